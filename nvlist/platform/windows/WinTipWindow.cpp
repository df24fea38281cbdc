#include <nvlist/platform/windows/WinTipWindow.h>

#include <algorithm>

#include <nvlist/platform/windows/Apartment.h>

#include <commctrl.h>

namespace norvane {
namespace {

/// Handles have 32 significant bits; the system sign-extends them.
HWND windowOf(std::int32_t handle) {
  return reinterpret_cast<HWND>(static_cast<std::intptr_t>(handle));
}

/// The version of the record that every version of the common controls accepts.
TTTOOLINFOW recordOf(const TipTool& tool, wchar_t* text) {
  TTTOOLINFOW record{};
  record.cbSize = TTTOOLINFOW_V1_SIZE;
  record.uFlags = tool.flags;
  record.hwnd = windowOf(tool.owner);
  record.uId = static_cast<UINT_PTR>(static_cast<std::intptr_t>(tool.id));
  record.rect = {tool.rectangle.Left, tool.rectangle.Top, tool.rectangle.Right,
                 tool.rectangle.Bottom};
  record.hinst = reinterpret_cast<HINSTANCE>(static_cast<std::intptr_t>(tool.instance));
  record.lpszText = text;
  return record;
}

}  // namespace

std::shared_ptr<TipWindow> WinTipWindow::create(std::int32_t form) {
  InitCommonControls();
  const HWND window = CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0,
                                      0, 0, windowOf(form), nullptr, thisModule(), nullptr);
  return window ? std::shared_ptr<TipWindow>(new WinTipWindow(window)) : nullptr;
}

WinTipWindow::~WinTipWindow() {
  // The form may have destroyed it.
  if (IsWindow(window_)) DestroyWindow(window_);
}

std::int32_t WinTipWindow::handle() {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window_));
}

bool WinTipWindow::addTool(const TipTool& tool) {
  std::wstring text = wide(tool.text);
  TTTOOLINFOW record = recordOf(tool, text.data());
  return send(TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&record)) != 0;
}

void WinTipWindow::deleteTool(const TipTool& tool) {
  TTTOOLINFOW record = recordOf(tool, nullptr);
  send(TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&record));
}

void WinTipWindow::updateText(const TipTool& tool) {
  std::wstring text = wide(tool.text);
  TTTOOLINFOW record = recordOf(tool, text.data());
  send(TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&record));
}

std::int32_t WinTipWindow::toolCount() { return static_cast<std::int32_t>(send(TTM_GETTOOLCOUNT)); }

bool WinTipWindow::enumerateTool(std::int32_t index, TipTool& tool) {
  TTTOOLINFOW record = recordOf({}, nullptr);
  if (index < 0 ||
      !send(TTM_ENUMTOOLSW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&record)))
    return false;
  tool.flags = record.uFlags;
  tool.owner = static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(record.hwnd));
  tool.id = static_cast<std::int32_t>(record.uId);
  tool.rectangle = {record.rect.left, record.rect.top, record.rect.right, record.rect.bottom};
  if (tool.text.empty()) return true;

  // The message does not pass the buffer size, so the buffer has room for the longest possible
  // text.
  std::wstring text(static_cast<std::size_t>(UINT16_MAX) + 1, L'\0');
  record.lpszText = text.data();
  send(TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&record));
  const std::string whole = narrow(std::wstring_view(text.c_str()));
  const std::size_t copied = whole.copy(tool.text.data(), tool.text.size());
  if (copied < tool.text.size()) tool.text[copied] = '\0';
  return true;
}

Colour WinTipWindow::backColour() { return static_cast<Colour>(send(TTM_GETTIPBKCOLOR)); }

void WinTipWindow::backColour(Colour colour) {
  send(TTM_SETTIPBKCOLOR, static_cast<WPARAM>(colour));
}

Colour WinTipWindow::textColour() { return static_cast<Colour>(send(TTM_GETTIPTEXTCOLOR)); }

std::int32_t WinTipWindow::textColour(Colour colour) {
  return static_cast<std::int32_t>(send(TTM_SETTIPTEXTCOLOR, static_cast<WPARAM>(colour)));
}

std::int32_t WinTipWindow::delay(TipDelay which) {
  return static_cast<std::int32_t>(send(TTM_GETDELAYTIME, static_cast<WPARAM>(which)));
}

void WinTipWindow::delay(TipDelay which, std::int32_t milliseconds) {
  // The message takes a signed 16-bit number.
  const auto time = static_cast<std::int16_t>(std::clamp(milliseconds, -1, INT16_MAX + 0));
  send(TTM_SETDELAYTIME, static_cast<WPARAM>(which), MAKELPARAM(time, 0));
}

Rectangle WinTipWindow::margin() {
  RECT sides{};
  send(TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(&sides));
  return {sides.left, sides.top, sides.right, sides.bottom};
}

void WinTipWindow::margin(const Rectangle& sides) {
  RECT record{sides.Left, sides.Top, sides.Right, sides.Bottom};
  send(TTM_SETMARGIN, 0, reinterpret_cast<LPARAM>(&record));
}

std::int32_t WinTipWindow::maxTipWidth() {
  return static_cast<std::int32_t>(send(TTM_GETMAXTIPWIDTH));
}

void WinTipWindow::maxTipWidth(std::int32_t pixels) { send(TTM_SETMAXTIPWIDTH, 0, pixels); }

}  // namespace norvane
