// A plain window with lists in it: check boxes, icons, an edit box, the colour families.
//
//     demo [seconds]     ends by itself after that time, for tests
#include <nvlist/drawing/DrawnPicture.h>
#include <nvlist/platform/windows/WinList.h>

#include <array>
#include <cstdlib>
#include <memory>

using namespace norvane;

namespace {

constexpr int margin = 10;
constexpr int titleHeight = 20;
constexpr int columns = 3;

/// A square of one colour in a darker frame.
Picture swatch(Colour colour) {
  const art::Pixel inside{static_cast<std::uint8_t>(colour), static_cast<std::uint8_t>(colour >> 8),
                          static_cast<std::uint8_t>(colour >> 16)};
  const art::Pixel frame = art::mix(inside, {0, 0, 0}, 1, 2);
  return art::drawn("swatch", 16, 16, [&](int row, int column) {
    const bool isOutside = row < 1 || row > 14 || column < 1 || column > 14;
    const bool isFrame = row == 1 || row == 14 || column == 1 || column == 14;
    return isOutside ? art::white : isFrame ? frame : inside;
  });
}

struct Shade {
  const char* name;
  Colour colour;
};

constexpr Shade blues[] = {{"Frost", rgb(240, 246, 255)},      {"Ice", rgb(214, 228, 250)},
                           {"Dawn", rgb(178, 208, 248)},       {"Sky", rgb(136, 184, 238)},
                           {"Cornflower", rgb(100, 149, 237)}, {"Gentian", rgb(72, 118, 216)},
                           {"Cobalt", rgb(49, 106, 197)},      {"Lake", rgb(40, 100, 180)},
                           {"Ocean", rgb(28, 80, 150)},        {"Denim", rgb(22, 66, 128)},
                           {"Navy", rgb(16, 44, 92)},          {"Midnight", rgb(10, 24, 56)}};
constexpr Shade greys[] = {
    {"Snow", rgb(250, 250, 252)}, {"Pearl", rgb(238, 238, 242)},  {"Cloud", rgb(224, 224, 232)},
    {"Mist", rgb(208, 208, 218)}, {"Silver", rgb(190, 190, 202)}, {"Fog", rgb(174, 174, 188)},
    {"Ash", rgb(156, 156, 170)},  {"Pewter", rgb(138, 138, 152)}, {"Slate", rgb(112, 116, 128)},
    {"Stone", rgb(98, 98, 108)},  {"Lead", rgb(78, 78, 86)},      {"Coal", rgb(44, 44, 50)}};
constexpr Shade greens[] = {
    {"Celery", rgb(214, 222, 178)}, {"Sage", rgb(188, 198, 152)}, {"Olive", rgb(153, 166, 112)},
    {"Lichen", rgb(150, 168, 104)}, {"Moss", rgb(124, 148, 84)},  {"Meadow", rgb(108, 146, 76)},
    {"Fern", rgb(90, 134, 66)},     {"Leaf", rgb(72, 120, 56)},   {"Pine", rgb(46, 96, 52)},
    {"Forest", rgb(38, 70, 40)},    {"Ivy", rgb(26, 60, 34)},     {"Yew", rgb(18, 40, 24)}};

void fillShades(nvList& list, cColorStyle style, std::span<const Shade> shades) {
  list.AutoRedraw(false);
  list.Style(cIcons);
  list.MinHeight(20);
  list.IconW(16);
  list.IconH(16);
  list.DistPicText(6);
  list.ScrollBars(vbVertical);
  list.ColorStyle(style);
  for (const Shade& shade : shades)
    list.ItemsAdd({.aText = shade.name, .aIcon = swatch(shade.colour)});
  list.AutoRedraw(true);
  list.ListIndex(4);
}

void fillTasks(nvList& list) {
  list.AutoRedraw(false);
  list.Style(cCheckBoxesIcons);
  // The edit box stands over its row where the height of the rows follows the font.
  const Font font = CloneFont(list.Font());
  font->Size = 10.5F;
  list.Font(font);
  list.IconW(16);
  list.IconH(16);
  list.DistPicText(4);
  list.MultiSelect(true);
  list.AllowEdit(true);
  list.ScrollBars(vbBoth);
  struct Task {
    const char* text;
    bool isDone;
    Colour mark;
  };
  constexpr Task tasks[] = {
      {"Order seeds |right=April", true, rgb(108, 146, 76)},
      {"Prune the apple trees |right=April", true, rgb(108, 146, 76)},
      {"Sow peas and broad beans |right=April", false, rgb(108, 146, 76)},
      {"Repair the greenhouse door |right=May", false, rgb(196, 120, 40)},
      {"Plant out tomatoes |right=May", false, rgb(108, 146, 76)},
      {"Water barrel: new tap |right=May", false, rgb(49, 106, 197)},
      {"Net the strawberries |right=June", false, rgb(178, 48, 60)},
      {"Caf\u00e9 table for the terrace |right=June", true, rgb(196, 120, 40)},
      {"Pick currants \u2013 all of them |right=July", false, rgb(178, 48, 60)},
      {"\u03a3 Count the flower pots |right=July", false, rgb(49, 106, 197)},
      {"Empty the compost heap |right=August", false, rgb(120, 88, 60)},
      {"Press apples |right=October", false, rgb(178, 48, 60)},
      {"Clean and oil the tools |right=November", false, rgb(98, 98, 108)}};
  for (const Task& task : tasks)
    list.ItemsAdd({.aText = task.text,
                   .aIcon = swatch(task.mark),
                   .aChecked = task.isDone,
                   .aAllowEdit = true,
                   .aBold = task.isDone});
  list.ItemEnabled(8, false);
  list.AutoRedraw(true);
  list.ListIndex(3);
}

void fillGrid(nvList& list) {
  list.AutoRedraw(false);
  list.Style(cCheckBoxes);
  list.GridLines(true);
  list.MinHeight(17);
  list.ShowFocusRect(true);
  list.ScrollBars(vbVertical);
  list.ValueColor(rgb(150, 70, 160));
  list.ColorStyle(cCustom);
  constexpr cItemAlignment alignments[] = {cLeft, cCenter, cRight};
  for (int i = 0; i < 1000; ++i)
    list.ItemsAdd({.aText = "Item " + std::to_string(i),
                   .aChecked = i % 3 == 0,
                   .aForeColor = i % 5 == 1 ? Variant(rgb(192, 0, 0)) : Variant(defaultMark),
                   .aAlignment = alignments[i % 3],
                   .aEnabled = i % 7 != 6,
                   .aItalic = i % 4 == 2});
  list.AutoRedraw(true);
  list.ListIndex(2);
}

/// The form: a title and a list in each of six fields, which share its room.
class Form {
 public:
  explicit Form(HWND window) {
    static constexpr const wchar_t* titles[] = {
        L"Check boxes, icons, two columns (press a row twice to edit)",
        L"cXPBlue",
        L"cXPSilver",
        L"1000 items, grid, three alignments",
        L"cXPOlive",
        L"The wheel moves the current item"};
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    font_ = CreateFontIndirectW(&metrics.lfMessageFont);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
      Field& field = fields_[i];
      field.title = CreateWindowExW(0, L"STATIC", titles[i], WS_CHILD | WS_VISIBLE | SS_ENDELLIPSIS,
                                    0, 0, 0, 0, window, nullptr, nullptr, nullptr);
      SendMessageW(field.title, WM_SETFONT, reinterpret_cast<WPARAM>(font_), FALSE);
      field.list = std::make_unique<WinList>(window, RECT{0, 0, 200, 200});
    }
    fillTasks(fields_[0].list->list());
    fillShades(fields_[1].list->list(), cXPBlue, blues);
    fillShades(fields_[2].list->list(), cXPSilver, greys);
    fillGrid(fields_[3].list->list());
    fillShades(fields_[4].list->list(), cXPOlive, greens);
    fillShades(fields_[5].list->list(), cXPBlue, blues);
    fields_[5].list->list().WheelFunction(cWheelListIndex);
  }
  ~Form() { DeleteObject(font_); }

  void layOut(int width, int height) {
    // The first column is as wide as the other two.
    const int unit = (width - (columns + 1) * margin) / (columns + 1);
    const int high = (height - 3 * margin) / 2;
    for (int i = 0; i < static_cast<int>(fields_.size()); ++i) {
      const int column = i % columns;
      const int left = margin + (column == 0 ? 0 : (column + 1) * unit + column * margin);
      const int top = margin + i / columns * (high + margin);
      const int wide = column == 0 ? 2 * unit : unit;
      const Field& field = fields_[static_cast<std::size_t>(i)];
      MoveWindow(field.title, left, top, wide, titleHeight, TRUE);
      field.list->move({left, top + titleHeight, left + wide, top + high});
    }
  }
  HWND first() const { return fields_[0].list->window(); }

 private:
  struct Field {
    HWND title = nullptr;
    std::unique_ptr<WinList> list;
  };

  std::array<Field, 6> fields_;
  HFONT font_ = nullptr;
};

LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* form = reinterpret_cast<Form*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  switch (message) {
    case WM_CREATE:
      form = new Form(window);
      SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(form));
      return 0;
    case WM_SIZE:
      if (form) form->layOut(LOWORD(lParam), HIWORD(lParam));
      return 0;
    case WM_SETFOCUS:
      if (form) SetFocus(form->first());
      return 0;
    case WM_TIMER:
      DestroyWindow(window);
      return 0;
    case WM_DESTROY:
      SetWindowLongPtrW(window, GWLP_USERDATA, 0);
      delete form;
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

}  // namespace

int main(int count, char** arguments) {
  OleInitialize(nullptr);
  WNDCLASSW look{};
  look.lpfnWndProc = procedure;
  look.hInstance = GetModuleHandleW(nullptr);
  look.hIcon = LoadIconW(nullptr, MAKEINTRESOURCEW(32512));
  look.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  look.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  look.lpszClassName = L"nvListDemo";
  RegisterClassW(&look);
  const HWND window = CreateWindowExW(
      0, look.lpszClassName, L"nvList", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
      CW_USEDEFAULT, 860, 560, nullptr, nullptr, look.hInstance, nullptr);
  ShowWindow(window, SW_SHOWDEFAULT);
  if (count > 1) SetTimer(window, 1, static_cast<UINT>(std::atoi(arguments[1])) * 1000, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  OleUninitialize();
  return 0;
}
