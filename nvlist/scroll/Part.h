#pragma once

#include <cstdint>
#include <memory>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/scroll/values.h>

namespace norvane::scroll {

/// The base of the thumb and the buttons of a bar: style, hover and press.
class Part : public UserControl {
 public:
  /// The style: blue 0, silver 1, olive 2, or custom 99 if its kind has that. For any other style
  /// each repaint reports Failure 340 and leaves out the pictures. Default: 0.
  std::int32_t C() const { return C_; }
  void C(std::int32_t value) { assign("C", C_, value); }
  /// False shows the disabled picture of a button, except in custom style; it stops neither a
  /// button nor a thumb. Default: false.
  Boolean En() const { return En_; }
  void En(Boolean value) { assign("En", En_, value); }

 protected:
  /// `module`, which reports name, must outlive the part.
  Part(std::unique_ptr<Container> place, const Module& module)
      : UserControl(std::move(place)), module_(module) {}

  /// Sets a field and repaints. `name` is the property.
  template <class Field>
  void assign(const char* name, Field& field, Field value) {
    trapped(module_, name, [&](Trap& on) {
      field = value;
      on.step([&] { repaint(); });
    });
  }
  /// Stores whether the pointer is inside. Captures the mouse while the pointer hovers, to see it
  /// leave; while a button is down the platform delivers all moves anyway.
  void MouseOut(float X, float Y) {
    trapped(module_, "MouseOut", [&](Trap& on) {
      const bool isOutside = on.test([&] {
        return X < 0 || Y < 0 || X > surface_.ScaleWidth() || Y > surface_.ScaleHeight();
      });
      if (PressState_ != Press::down)
        on.step([&] { isOutside ? container_.ReleaseCapture() : container_.SetCapture(); });
      MouseInside_ = !isOutside;
    });
  }
  virtual void repaint() = 0;

  Press PressState_ = Press::none;
  Boolean MouseInside_;

 private:
  const Module& module_;
  std::int32_t C_ = 0;
  Boolean En_;
};

}  // namespace norvane::scroll
