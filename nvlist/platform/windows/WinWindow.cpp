#include <nvlist/platform/windows/WinWindow.h>

#include <utility>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/windows/WinTextBox.h>
#include <nvlist/values/Failure.h>

#include <windowsx.h>

namespace norvane {
namespace {

constexpr wchar_t className[] = L"NorvaneControl";

// Window properties: the first two belong to the helper of the wheel, the last to the hooked
// window.
constexpr wchar_t oldWheelProc[] = L"OldWheelProc";
constexpr wchar_t wheelPtr[] = L"WheelPtr";
constexpr wchar_t wheelWnd[] = L"WheelWnd";

/// A message newer than the oldest supported system.
constexpr UINT dpiChangedAfterParent = 0x02E3;

std::int16_t shiftKeys() {
  const auto isDown = [](int key) { return GetKeyState(key) < 0; };
  return static_cast<std::int16_t>((isDown(VK_SHIFT) ? 1 : 0) | (isDown(VK_CONTROL) ? 2 : 0) |
                                   (isDown(VK_MENU) ? 4 : 0));
}

std::int16_t buttonsOf(WPARAM keys) {
  return static_cast<std::int16_t>(((keys & MK_LBUTTON) != 0 ? 1 : 0) |
                                   ((keys & MK_RBUTTON) != 0 ? 2 : 0) |
                                   ((keys & MK_MBUTTON) != 0 ? 4 : 0));
}

/// The resolution of the window's monitor if the system supports it, otherwise of the screen.
int resolutionOf(HWND window) {
  using GetDpi = UINT(WINAPI*)(HWND);
  static const auto getDpi = reinterpret_cast<GetDpi>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow")));
  const UINT dpi = getDpi ? getDpi(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : screenResolution().cy;
}

RECT rectOf(const Bounds& bounds) {
  const int left = windowPixel(bounds.Left);
  const int top = windowPixel(bounds.Top);
  return {left, top, left + windowPixel(bounds.Width), top + windowPixel(bounds.Height)};
}

}  // namespace

// ---- the window ----

WinWindow::WinWindow(WinHost& host) : WinPlace(nullptr), host_(host) { create(); }

WinWindow::~WinWindow() {
  if (!window_) return;
  const HWND window = window_;
  lost();
  DestroyWindow(window);
}

void WinWindow::create() {
  WNDCLASSW look{};
  look.style = CS_DBLCLKS;
  look.hInstance = thisModule();
  look.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
  look.lpfnWndProc = procedure;
  look.lpszClassName = className;
  // Fails if the class is already registered.
  RegisterClassW(&look);
  window_ = CreateWindowExW(
      0, className, L"", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_VISIBLE, 0, 0,
      image().width(), image().height(), apartment_->window(), nullptr, thisModule(), nullptr);
  if (!window_) throw Failure::outOfMemory();
  wheelWindow_ = CreateWindowExW(0, L"STATIC", L"Wheel1", WS_CHILD, 0, 0, 0, 0, window_, nullptr,
                                 thisModule(), nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  dpi_ = resolutionOf(window_);
  if (wheelHook_) subclass();
}

void WinWindow::lost() {
  unsubclass();
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  window_ = wheelWindow_ = nullptr;
  isInvalid_ = isLeavingTracked_ = false;
}

void WinWindow::unregisterClass() { UnregisterClassW(className, thisModule()); }

void WinWindow::moveTo(HWND parent, const RECT& position, UINT flags) {
  if (!window_) create();
  if (GetParent(window_) != parent) SetParent(window_, parent);
  SetWindowPos(window_, HWND_TOP, position.left, position.top, position.right - position.left,
               position.bottom - position.top, flags | SWP_NOACTIVATE);
  followResolution();
}

void WinWindow::place(HWND container, const RECT& position) {
  moveTo(container, position, SWP_SHOWWINDOW);
}

void WinWindow::reposition(const RECT& position) {
  if (window_) moveTo(GetParent(window_), position, SWP_NOZORDER);
}

void WinWindow::park() {
  if (!window_ || isParked()) return;
  if (hasFocus()) SetFocus(GetParent(window_));
  SetParent(window_, apartment_->window());
}

bool WinWindow::isParked() const { return window_ && GetParent(window_) == apartment_->window(); }

void WinWindow::resize(int width, int height) {
  if (width == image().width() && height == image().height()) return;
  image().resize(width, height);
  if (window_)
    SetWindowPos(window_, nullptr, 0, 0, width, height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
  invalidate();
  if (control()) control()->UserControl_Resize();
}

norvane::Font WinWindow::AmbientFont() {
  norvane::Font font = host_.AmbientFont();
  return font ? font : makeRef<FontObject>();
}

std::int32_t WinWindow::hwnd() {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window_));
}

bool WinWindow::hasFocus() const {
  const HWND focus = GetFocus();
  return window_ && focus && (focus == window_ || IsChild(window_, focus));
}

bool WinWindow::isEditing() const { return hasFocus() && GetFocus() != window_; }

// ---- painting ----

void WinWindow::invalidate() {
  if (window_ && !isParked()) {
    // Each call goes to the window system, and a list that is being filled changes with every item.
    if (!std::exchange(isInvalid_, true)) InvalidateRect(window_, nullptr, FALSE);
  } else if (!std::exchange(isViewChanged_, true)) {
    host_.viewChanged();
  }
}

void WinWindow::complete(WinPlace& place) {
  place.paintPending();
  place.image().drawWaiting();
  for (Place* child : place.places())
    if (child->isVisible()) complete(static_cast<WinPlace&>(*child));
}

/// Draws from front to back and no pixel twice, so that nothing flickers.
void WinWindow::show(HDC target, WinPlace& place, int x, int y) {
  const auto& children = place.places();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    if (!(*child)->isVisible()) continue;
    RECT box = rectOf((*child)->bounds());
    OffsetRect(&box, x, y);
    const int before = SaveDC(target);
    IntersectClipRect(target, box.left, box.top, box.right, box.bottom);
    show(target, static_cast<WinPlace&>(**child), box.left, box.top);
    RestoreDC(target, before);
    ExcludeClipRect(target, box.left, box.top, box.right, box.bottom);
  }
  GdiCanvas& image = place.image().image();
  image.copyTo(target, x, y, image.width(), image.height());
}

void WinWindow::paint() {
  complete(*this);
  isInvalid_ = false;
  PAINTSTRUCT shown;
  const HDC target = BeginPaint(window_, &shown);
  show(target, *this, 0, 0);
  EndPaint(window_, &shown);
}

void WinWindow::draw(HDC target, const RECT& rectangle) {
  complete(*this);
  isViewChanged_ = false;
  const int width = image().width();
  const int height = image().height();
  if (width <= 0 || height <= 0) return;
  // As one image: a printer or a metafile takes no parts of a window's.
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biSizeImage = static_cast<DWORD>(width * height * 4);  // for metafiles
  void* pixels = nullptr;
  const HDC dc = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  if (bitmap) {
    const HGDIOBJ before = SelectObject(dc, bitmap);
    show(dc, *this, 0, 0);
    GdiFlush();
    SetStretchBltMode(target, HALFTONE);
    StretchDIBits(target, rectangle.left, rectangle.top, rectangle.right - rectangle.left,
                  rectangle.bottom - rectangle.top, 0, 0, width, height, pixels, &info,
                  DIB_RGB_COLORS, SRCCOPY);
    SelectObject(dc, before);
    DeleteObject(bitmap);
  }
  DeleteDC(dc);
  if (!bitmap) throw Failure::outOfMemory();
}

void WinWindow::setResolution(WinPlace& place, int dpi) {
  place.image().resolution(dpi);
  for (Place* child : place.places()) setResolution(static_cast<WinPlace&>(*child), dpi);
}

void WinWindow::repaint(Place& place) {
  static_cast<WinPlace&>(place).image().drawAnew();
  if (place.control()) place.control()->UserControl_Paint();
  for (std::size_t i = 0; i < place.places().size(); ++i) repaint(*place.places()[i]);
}

void WinWindow::followResolution() {
  const int dpi = resolutionOf(window_);
  if (std::exchange(dpi_, dpi) == dpi) return;
  setResolution(*this, dpi);
  host_.resolutionChanged();
  repaint(*this);
}

// ---- messages ----

LRESULT CALLBACK WinWindow::procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept {
  auto* const self = reinterpret_cast<WinWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self) return DefWindowProcW(window, message, wParam, lParam);
  Answer answer;
  try {
    const Apartment::Running running(*self->apartment_);
    answer = self->handleMessage(message, wParam, lParam);
  } catch (...) {
    // The control has reported its failures; only running out of memory in this file is left.
  }
  return answer ? *answer : DefWindowProcW(window, message, wParam, lParam);
}

WinWindow::Answer WinWindow::handleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK)
    return handleMouse(message, wParam, lParam);
  switch (message) {
    case WM_PAINT:
      paint();
      return 0;
    case WM_PRINTCLIENT:
      complete(*this);
      show(reinterpret_cast<HDC>(wParam), *this, 0, 0);
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SHOWWINDOW:
      isInvalid_ = false;
      return {};
    case WM_SIZE:
      isInvalid_ = false;
      resize(LOWORD(lParam), HIWORD(lParam));
      return 0;
    case WM_DESTROY:
      lost();
      return {};
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      repaint(*this);
      return {};
    case dpiChangedAfterParent:
      followResolution();
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_CHAR:
      return handleKey(message, wParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      handleFocus(message == WM_SETFOCUS, reinterpret_cast<HWND>(wParam));
      return 0;
    case WM_MOUSELEAVE:
      isLeavingTracked_ = false;
      mouse().pointerLeft(shiftKeys());
      return 0;
    case WM_CAPTURECHANGED:
      // Another window may get the release, or none.
      if (reinterpret_cast<HWND>(lParam) != window_) mouse().holdLost();
      return 0;
    case WM_CTLCOLOREDIT:
      if (const HBRUSH brush =
              WinTextBox::colours(reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam)))
        return reinterpret_cast<LRESULT>(brush);
      return {};
    default:
      return {};
  }
}

WinWindow::Answer WinWindow::handleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  const Point at{static_cast<float>(GET_X_LPARAM(lParam)),
                 static_cast<float>(GET_Y_LPARAM(lParam))};
  const std::int16_t shift = shiftKeys();
  std::int16_t button = 1;
  if (message >= WM_RBUTTONDOWN && message <= WM_RBUTTONDBLCLK) button = 2;
  if (message >= WM_MBUTTONDOWN && message <= WM_MBUTTONDBLCLK) button = 4;
  switch (message) {
    case WM_MOUSEMOVE:
      if (!std::exchange(isLeavingTracked_, true)) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window_, 0};
        TrackMouseEvent(&track);
      }
      mouse().move(at, buttonsOf(wParam), shift);
      return 0;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      // Before the handlers, which may show a box or take the capture themselves.
      mouse().release(at, button, shift);
      if (window_ && buttonsOf(wParam) == 0 && GetCapture() == window_) ::ReleaseCapture();
      return 0;
    default: {
      const bool isDouble =
          message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDBLCLK;
      if (GetFocus() != window_) SetFocus(window_);
      // A focus handler may have destroyed the window.
      if (!window_) return 0;
      ::SetCapture(window_);
      if (isDouble)
        mouse().doubleClick(at, button, shift);
      else
        mouse().press(at, button, shift);
      return 0;
    }
  }
}

WinWindow::Answer WinWindow::handleKey(UINT message, WPARAM wParam) {
  // Keys that leave the control belong to the form.
  if (!control() || wParam == VK_TAB) return {};
  auto code = static_cast<std::int16_t>(wParam);
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: {
      control()->UserControl_KeyDown(code, shiftKeys());
      if (code != 0) return {};
      // The program's message loop has already translated it into a character.
      MSG made;
      if (window_) PeekMessageW(&made, window_, WM_CHAR, WM_DEADCHAR, PM_REMOVE);
      return 0;
    }
    case WM_CHAR:
      control()->UserControl_KeyPress(code);
      return 0;
    default:
      control()->UserControl_KeyUp(code, shiftKeys());
      return {};
  }
}

// ---- the focus: control and edit box count as one ----

void WinWindow::enter() {
  if (std::exchange(isEntered_, true)) return;
  host_.focusChanged(true);
  if (control()) control()->UserControl_EnterFocus();
}

void WinWindow::leave(HWND to) {
  const bool isInside = window_ && to && (to == window_ || IsChild(window_, to));
  if (isInside || !std::exchange(isEntered_, false)) return;
  if (control()) control()->UserControl_ExitFocus();
  host_.focusChanged(false);
}

void WinWindow::handleFocus(bool hasFocus, HWND other) {
  if (hasFocus) {
    enter();
    if (control()) control()->UserControl_GotFocus();
    return;
  }
  if (control()) control()->UserControl_LostFocus();
  leave(other);
}

void WinWindow::editFocus(bool hasFocus, HWND other) {
  if (hasFocus)
    enter();
  else
    leave(other);
}

// ---- the wheel ----

void WinWindow::hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) {
  wheelHook_ = std::move(procedure);
  if (!window_) return;
  if (wheelHook_)
    subclass();
  else
    unsubclass();
}

void WinWindow::subclass() {
  if (GetPropW(wheelWindow_, oldWheelProc)) return;
  const LONG_PTR before = GetWindowLongPtrW(window_, GWLP_WNDPROC);
  SetPropW(wheelWindow_, oldWheelProc, reinterpret_cast<HANDLE>(before));
  SetPropW(wheelWindow_, wheelPtr, this);
  SetPropW(window_, wheelWnd, wheelWindow_);
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(wheelProcedure));
}

void WinWindow::unsubclass() {
  const HANDLE before = GetPropW(wheelWindow_, oldWheelProc);
  if (!before) return;
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before));
  RemovePropW(window_, wheelWnd);
  RemovePropW(wheelWindow_, wheelPtr);
  RemovePropW(wheelWindow_, oldWheelProc);
}

LRESULT CALLBACK WinWindow::wheelProcedure(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) noexcept {
  const HWND wheel = static_cast<HWND>(GetPropW(window, wheelWnd));
  auto* const self = static_cast<WinWindow*>(GetPropW(wheel, wheelPtr));
  const auto before = reinterpret_cast<WNDPROC>(GetPropW(wheel, oldWheelProc));
  if (message != WM_MOUSEWHEEL || !self)
    return before ? CallWindowProcW(before, window, message, wParam, lParam)
                  : DefWindowProcW(window, message, wParam, lParam);
  try {
    const Apartment::Running running(*self->apartment_);
    // A copy, because a handler of the host may remove the hook.
    const auto hook = self->wheelHook_;
    hook(static_cast<std::int32_t>(wParam), static_cast<std::int32_t>(lParam));
  } catch (...) {
    // Already reported. The message ends here in any case.
  }
  return 0;
}

}  // namespace norvane
