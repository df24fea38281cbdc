#include <nvlist/platform/windows/WinPlace.h>

#include <algorithm>
#include <cmath>

#include <nvlist/platform/windows/WinTextBox.h>
#include <nvlist/platform/windows/WinTimer.h>
#include <nvlist/platform/windows/WinWindow.h>

namespace norvane {
namespace {

/// In pixels: larger than any screen, and the limit of message coordinates.
constexpr float farOut = 32767;

/// The maximum nesting of DoEvents: a handler may cause the same event again. Above it, events stay
/// in the queue.
constexpr int maximumLoops = 16;
constexpr unsigned questionsALook = 64;
constexpr ULONGLONG millisecondsBetweenPumps = 10;

thread_local unsigned questions = 0;
thread_local ULONGLONG lastPumped = 0;
thread_local int loops = 0;

}  // namespace

int windowPixel(float length) {
  return static_cast<int>(std::lrint(std::clamp(length, -farOut, farOut)));
}

WinPlace::WinPlace(WinPlace* around) : Place(around) {
  surface_.onDrawn = [this] { changed(); };
}

WinWindow* WinPlace::window() { return dynamic_cast<WinWindow*>(&root()); }

Boolean WinPlace::UserMode() { return window() ? window()->UserMode() : Boolean(true); }

norvane::Font WinPlace::AmbientFont() { return window() ? window()->AmbientFont() : nullptr; }

std::int32_t WinPlace::hwnd() { return window() ? window()->hwnd() : 0; }

void WinPlace::changed() {
  if (isShown() && window()) window()->invalidate();
}

void WinPlace::move(const Bounds& bounds) {
  Place::move(bounds);
  surface_.resize(windowPixel(bounds.Width), windowPixel(bounds.Height));
  changed();
}

void WinPlace::show(bool isVisible) {
  Place::show(isVisible);
  if (window()) window()->invalidate();
}

std::unique_ptr<Container> WinPlace::addChild() { return std::make_unique<WinPlace>(this); }

std::unique_ptr<TextBox> WinPlace::addTextBox(std::function<void(std::int16_t&)> keyPress) {
  return std::make_unique<WinTextBox>(*this, std::move(keyPress));
}

std::unique_ptr<Timer> WinPlace::addTimer(std::function<void()> tick) {
  return std::make_unique<WinTimer>(apartment_, std::move(tick));
}

/// Queries the system only occasionally, because loops over a million items call this.
bool WinPlace::EventsWaiting() {
  if (++questions % questionsALook != 0) return false;
  if (GetTickCount64() - lastPumped < millisecondsBetweenPumps) return false;
  return GetQueueStatus(QS_ALLINPUT) != 0;
}

void WinPlace::DoEvents() {
  if (loops >= maximumLoops) return;
  struct Loop {
    Loop() { ++loops; }
    ~Loop() {
      --loops;
      lastPumped = GetTickCount64();
    }
  } const loop;
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // The message is for the program's own loop.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace norvane
