#pragma once

#include <nvlist/platform/Place.h>
#include <nvlist/platform/windows/GdiSurface.h>

namespace norvane {

class WinWindow;

/// Rounds to the nearest pixel that a window coordinate can hold.
int windowPixel(float length);

/// The place of a control inside another one. It has no window: the outermost place shows its image
/// and passes the mouse to it (WinWindow).
class WinPlace : public Place {
 public:
  explicit WinPlace(WinPlace* around);

  GdiSurface& image() { return surface_; }
  /// The outermost place, or nullptr once it has been destroyed.
  WinWindow* window();

  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view) override {}
  Boolean UserMode() override;
  norvane::Font AmbientFont() override;
  std::string Name() override { return {}; }
  bool EventsWaiting() override;
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  void show(bool isVisible) override;
  /// The handle of the outermost place. Window handles have 32 significant bits on every Windows.
  std::int32_t hwnd() override;
  void hookWheel(std::function<void(std::int32_t, std::int32_t)>) override {}
  std::unique_ptr<Container> addChild() override;
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 protected:
  void changed() override;
  std::shared_ptr<Apartment> apartment_ = Apartment::current();

 private:
  GdiSurface surface_;
};

}  // namespace norvane
