// Times of the list and of the list-view common control, in the same run on the same desktop:
// nvlist_windows_benchmark. Only the ratios are meaningful.
#include <nvlist/platform/windows/WinList.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <optional>
#include <vector>

#include <commctrl.h>

using namespace norvane;

namespace {

constexpr int itemCount = 10000;

std::vector<std::string> texts() {
  std::vector<std::string> result;
  unsigned seed = 1;
  for (int i = 0; i < itemCount; ++i) {
    seed = seed * 1664525 + 1013904223;
    result.push_back("Item " + std::to_string(seed >> 8) + " of the list");
  }
  return result;
}

void pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

using Step = std::function<void()>;

double millisecondsOf(const Step& prepare, const Step& action) {
  prepare();
  pump();
  const auto start = std::chrono::steady_clock::now();
  action();
  const std::chrono::duration<double, std::milli> passed = std::chrono::steady_clock::now() - start;
  return passed.count();
}

struct Timed {
  Step prepare, action;
};

/// Prints the fastest of several runs of each. They alternate, so that a busy machine slows both.
void compare(const char* what, double most, int runs, const Timed& own, const Timed& common) {
  double ownTime = 1e9, commonTime = 1e9;
  for (int i = 0; i < runs; ++i) {
    ownTime = std::min(ownTime, millisecondsOf(own.prepare, own.action));
    commonTime = std::min(commonTime, millisecondsOf(common.prepare, common.action));
  }
  std::printf("%-22s %9.2f ms %9.2f ms   %.2f of it, at most %.2f: %s\n", what, ownTime, commonTime,
              ownTime / commonTime, most, ownTime <= commonTime * most ? "ok" : "TOO SLOW");
}

struct ListView {
  explicit ListView(HWND parent)
      : window(CreateWindowExW(0, WC_LISTVIEWW, L"",
                               WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_NOCOLUMNHEADER, 0, 0, 300,
                               400, parent, nullptr, nullptr, nullptr)) {
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = 250;
    SendMessageW(window, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  }
  ~ListView() { DestroyWindow(window); }
  ListView(const ListView&) = delete;
  ListView& operator=(const ListView&) = delete;

  void fill(const std::vector<std::wstring>& texts) {
    SendMessageW(window, WM_SETREDRAW, FALSE, 0);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    for (const std::wstring& text : texts) {
      item.pszText = const_cast<wchar_t*>(text.c_str());
      SendMessageW(window, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
      ++item.iItem;
    }
    SendMessageW(window, WM_SETREDRAW, TRUE, 0);
  }

  HWND window;
};

int CALLBACK compareTexts(LPARAM a, LPARAM b, LPARAM of) {
  const auto& texts = *reinterpret_cast<const std::vector<std::wstring>*>(of);
  return texts[static_cast<std::size_t>(a)].compare(texts[static_cast<std::size_t>(b)]);
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  InitCommonControls();
  const HWND form = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 700,
                                    450, nullptr, nullptr, nullptr, nullptr);
  const std::vector<std::string> all = texts();
  std::vector<std::wstring> allWide;
  for (const std::string& text : all) allWide.push_back(wide(text));

  std::optional<WinList> own;
  std::optional<ListView> common;
  const auto renewOwn = [&] {
    own.reset();
    own.emplace(form, RECT{310, 0, 610, 400});
    own->list().ScrollBars(vbVertical);
  };
  const auto renewCommon = [&] { common.emplace(form); };
  const auto fillOwn = [&] {
    own->list().AutoRedraw(false);
    own->list().AutoCheckScroll(false);
    for (const std::string& text : all) own->list().ItemsAdd(text);
    own->list().AutoCheckScroll(true);
    own->list().AutoRedraw(true);
  };
  const auto fillCommon = [&] { common->fill(allWide); };

  const auto addParams = [&] {
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    for (; item.iItem < itemCount; ++item.iItem) {
      item.lParam = item.iItem;
      SendMessageW(common->window, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
  };
  const Step nothing = [] {};

  std::printf("%d items; the fastest run       nvList     list-view\n", itemCount);
  compare("filling", 0.5, 7, {renewOwn, fillOwn}, {renewCommon, fillCommon});

  // In another colour each time: a frame that looks the same is not drawn.
  Colour colour = 0;
  compare("one repaint", 1, 50,
          {nothing,
           [&] {
             own->list().ForeColor(++colour);
             UpdateWindow(own->window());
             GdiFlush();
           }},
          {nothing, [&] {
             RedrawWindow(common->window, nullptr, nullptr,
                          RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
             GdiFlush();
           }});

  compare("sorting", 1, 5,
          {[&] {
             renewOwn();
             fillOwn();
           },
           [&] { own->list().Sort(cAscending); }},
          {[&] {
             renewCommon();
             fillCommon();
             addParams();
           },
           [&] {
             SendMessageW(common->window, LVM_SORTITEMS, reinterpret_cast<WPARAM>(&allWide),
                          reinterpret_cast<LPARAM>(&compareTexts));
           }});

  own.reset();
  common.reset();
  compare("making and ending one", 4, 100,
          {nothing,
           [&] {
             WinList(form, RECT{310, 0, 610, 400});
           }},
          {nothing, [&] { const ListView one(form); }});

  DestroyWindow(form);
  OleUninitialize();
  return 0;
}
