#include <nvlist/input/Wheel.h>

#include <utility>

#include <nvlist/objects/Trap.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

constexpr Module wheelControl{kinds::control, "Wheel"};
constexpr Module basWheel{kinds::module, "basWheel"};
constexpr double turnOfOneNotch = 120;

// The halves of a 32-bit number, signed. Defined here and not in the header, because Windows
// headers define macros of these names.
std::int16_t LOWORD(std::int32_t value) { return static_cast<std::int16_t>(value & 0xFFFF); }
std::int16_t HIWORD(std::int32_t value) { return static_cast<std::int16_t>(value >> 16); }

}  // namespace

void Wheel::EnableWheel() {
  trapped(wheelControl, "EnableWheel", [&](Trap& on) {
    if (window_ == 0) return;
    const bool wasHooked = std::exchange(isHooked_, true);
    if (wasHooked) return;
    on.step([&] {
      place_.hookWheel([this](std::int32_t wParam, std::int32_t lParam) {
        trapped(basWheel, "WheelProc",
                [&](Trap& inHook) { inHook.step([&] { WndProc(wParam, lParam); }); });
      });
    });
  });
}

void Wheel::DisableWheel() {
  if (window_ != 0) unhook("DisableWheel");
}

/// Removes the hook whether or not the window still has a handle: the hook refers to this object.
Wheel::~Wheel() {
  ignoringFailures([&] { unhook("UserControl_Terminate"); });
}

void Wheel::unhook(const char* procedure) {
  trapped(wheelControl, procedure, [&](Trap& on) {
    const bool wasHooked = std::exchange(isHooked_, false);
    if (wasHooked) on.step([&] { place_.hookWheel({}); });
  });
}

void Wheel::WndProc(std::int32_t wParam, std::int32_t lParam) {
  trapped(wheelControl, "WndProc", [&](Trap& on) {
    std::int16_t Keys = LOWORD(wParam);
    auto Rotation = checked::nearest<std::int16_t>(HIWORD(wParam) / turnOfOneNotch);
    float X = LOWORD(lParam);
    float Y = HIWORD(lParam);
    on.step([&] { owner_.Wheel1_WheelScroll(Rotation, Keys, X, Y); });
  });
}

}  // namespace norvane
