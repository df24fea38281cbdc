#include <nvlist/platform/windows/WinTextBox.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include <nvlist/platform/windows/WinWindow.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr int legibleDifference = 64;

/// Returns 0 to 255.
int brightness(COLORREF colour) {
  return (GetRValue(colour) * 11 + GetGValue(colour) * 16 + GetBValue(colour) * 5) / 32;
}

/// Returns how many UTF-16 units the first `characters` characters take.
int unitsOf(std::wstring_view text, std::int32_t characters) {
  std::size_t at = 0;
  for (; characters > 0 && at < text.size(); --characters)
    at += IS_HIGH_SURROGATE(text[at]) && at + 1 < text.size() && IS_LOW_SURROGATE(text[at + 1]) ? 2
                                                                                                : 1;
  return static_cast<int>(at);
}

}  // namespace

WinTextBox::WinTextBox(WinPlace& around, std::function<void(std::int16_t&)> keyPress)
    : around_(around), keyPress_(std::move(keyPress)) {}

WinTextBox::~WinTextBox() { destroy(); }

void WinTextBox::create() {
  WinWindow* const window = around_.window();
  if (edit_ || !window || !window->handle()) return;
  edit_ = CreateWindowExW(0, L"EDIT", wide(text_).c_str(), WS_CHILD | ES_AUTOHSCROLL, 0, 0, 0, 0,
                          window->handle(), nullptr, thisModule(), nullptr);
  if (!edit_) throw Failure::outOfMemory();
  SetWindowLongPtrW(edit_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  procedureBefore_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(edit_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
  // Margins would reduce the room for the text.
  SendMessageW(edit_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  applyFont();
  applyPlace();
}

void WinTextBox::destroy() {
  const HWND edit = std::exchange(edit_, nullptr);
  if (!edit) return;
  SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedureBefore_));
  DestroyWindow(edit);
}

void WinTextBox::Font(const norvane::Font& font) {
  if (!font) return;
  font_ = CloneFont(font);
  applyFont();
}

void WinTextBox::applyFont() {
  if (!edit_ || !font_) return;
  const auto before = std::exchange(
      face_, Apartment::current()->faces().face(*font_, around_.window()->resolution()));
  SendMessageW(edit_, WM_SETFONT, reinterpret_cast<WPARAM>(face_->handle()), TRUE);
}

void WinTextBox::ForeColor(Colour colour) {
  foreColor_ = colour;
  if (edit_) InvalidateRect(edit_, nullptr, TRUE);
}

/// The background is that of the desktop's edit controls, whatever the list's colours. If the text
/// would be illegible on it, it becomes black or white.
HBRUSH WinTextBox::colours(HWND edit, HDC dc) {
  const bool isOwn = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(edit, GWLP_WNDPROC)) == procedure;
  if (!isOwn) return nullptr;
  const auto* self = reinterpret_cast<WinTextBox*>(GetWindowLongPtrW(edit, GWLP_USERDATA));
  const COLORREF text = GdiCanvas::colourRef(self->foreColor_);
  const COLORREF window = GetSysColor(COLOR_WINDOW);
  SetTextColor(dc, text);
  SetBkColor(dc, window);
  if (std::abs(brightness(text) - brightness(window)) >= legibleDifference)
    return GetSysColorBrush(COLOR_WINDOW);
  const bool isDark = brightness(text) < 128;
  SetBkColor(dc, isDark ? RGB(255, 255, 255) : RGB(0, 0, 0));
  return static_cast<HBRUSH>(GetStockObject(isDark ? WHITE_BRUSH : BLACK_BRUSH));
}

std::string WinTextBox::Text() const {
  if (!edit_) return text_;
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit_)) + 1, L'\0');
  const int length = GetWindowTextW(edit_, text.data(), static_cast<int>(text.size()));
  return narrow(std::wstring_view(text).substr(0, static_cast<std::size_t>(length)));
}

void WinTextBox::Text(const std::string& text) {
  text_ = text;
  if (edit_) SetWindowTextW(edit_, wide(text).c_str());
}

void WinTextBox::Move(const Bounds& bounds) {
  place_ = bounds;
  applyPlace();
}

void WinTextBox::applyPlace() {
  if (!edit_) return;
  const Point origin = around_.toRoot({place_.Left, place_.Top});
  SetWindowPos(edit_, HWND_TOP, windowPixel(origin.x), windowPixel(origin.y),
               windowPixel(place_.Width), windowPixel(place_.Height), SWP_NOACTIVATE);
}

void WinTextBox::Visible(bool isVisible) {
  if (isVisible_ == isVisible) return;
  if (isVisible) create();
  isVisible_ = isVisible;
  if (!edit_) return;
  if (!isVisible && GetFocus() == edit_) ::SetFocus(GetParent(edit_));
  if (edit_) ShowWindow(edit_, isVisible ? SW_SHOWNA : SW_HIDE);
}

void WinTextBox::SetFocus() {
  if (!edit_ || !IsWindowVisible(edit_)) throw Failure::invalidCall();
  ::SetFocus(edit_);
}

void WinTextBox::select(std::int32_t start, std::int32_t length) {
  if (!edit_) return;
  const std::wstring text = wide(Text());
  const std::int32_t first = std::max(start, 0);
  const std::int32_t last = first + std::clamp(length, 0, INT32_MAX - first);
  SendMessageW(edit_, EM_SETSEL, static_cast<WPARAM>(unitsOf(text, first)), unitsOf(text, last));
}

LRESULT CALLBACK WinTextBox::procedure(HWND window, UINT message, WPARAM wParam,
                                       LPARAM lParam) noexcept {
  auto* const self = reinterpret_cast<WinTextBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  const WNDPROC before = self->procedureBefore_;
  try {
    const auto apartment = Apartment::current();
    const Apartment::Running running(*apartment);
    return self->handle(message, wParam, lParam);
  } catch (...) {
    return CallWindowProcW(before, window, message, wParam, lParam);
  }
}

LRESULT WinTextBox::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND edit = edit_;
  const WNDPROC before = procedureBefore_;
  WinWindow* const window = around_.window();
  switch (message) {
    case WM_GETDLGCODE:
      // A dialog would use Enter for its default button, and select all text.
      return DLGC_WANTALLKEYS;
    case WM_CHAR: {
      auto character = static_cast<std::int16_t>(wParam);
      keyPress_(character);
      if (character == 0) return 0;
      wParam = static_cast<std::uint16_t>(character);
      break;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      const LRESULT result = CallWindowProcW(before, edit, message, wParam, lParam);
      if (window) window->editFocus(message == WM_SETFOCUS, reinterpret_cast<HWND>(wParam));
      return result;
    }
    case WM_DESTROY:
      text_ = Text();
      SetWindowLongPtrW(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before));
      edit_ = nullptr;
      isVisible_ = false;
      break;
    default:
      break;
  }
  return CallWindowProcW(before, edit, message, wParam, lParam);
}

}  // namespace norvane
