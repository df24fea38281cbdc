#pragma once

#include <optional>

#include <nvlist/platform/windows/WinPlace.h>

namespace norvane {

/// The owner of a control's window: answers its queries and receives its notifications, on the
/// thread of the window. It must outlive the window.
struct WinHost {
  virtual ~WinHost() = default;

  virtual void PropertyChanged(std::string_view name) { (void)name; }
  virtual Boolean UserMode() { return true; }
  virtual norvane::Font AmbientFont() { return nullptr; }
  virtual std::string Name() { return {}; }
  /// The keyboard focus has entered the window or its edit box, or has left both.
  virtual void focusChanged(bool hasFocus) { (void)hasFocus; }
  /// The image of a control that is not shown in a window has changed for the first time since
  /// draw().
  virtual void viewChanged() {}
  /// The resolution of the screen that shows the window has changed, and so have the widths of
  /// texts.
  virtual void resolutionChanged() {}
};

/// The window of a control: the outermost place. The places in it are regions of the window; only
/// the edit box and the helper of the wheel are windows of their own.
///
/// The window exists from the start, as a child of a hidden one, and is kept when it moves into a
/// container's window. If the container destroys it, drawing is not visible anywhere, and the next
/// call of `place` creates a new window.
class WinWindow final : public WinPlace {
 public:
  /// `host` must outlive the window.
  explicit WinWindow(WinHost& host);
  ~WinWindow() override;

  /// 0 if the container has destroyed it.
  HWND handle() const { return window_; }
  /// Moves the window into the container's window and shows it. `position` is in pixels of that
  /// window.
  void place(HWND container, const RECT& position);
  /// Moves it within the container's window; does not change its visibility.
  void reposition(const RECT& position);
  /// Moves it back into the hidden window.
  void park();
  bool isParked() const;
  /// Sets the size of the control in pixels, and notifies it.
  void resize(int width, int height);

  /// Draws the control with everything in it, scaled to a rectangle in logical units of a device,
  /// which may be a printer or a metafile.
  void draw(HDC target, const RECT& rectangle);
  /// Whether an edit box in the control has the keyboard.
  bool isEditing() const;
  bool hasFocus() const;

  // ---- the places ----

  void PropertyChanged(std::string_view name) override { host_.PropertyChanged(name); }
  Boolean UserMode() override { return host_.UserMode(); }
  norvane::Font AmbientFont() override;
  std::string Name() override { return host_.Name(); }
  std::int32_t hwnd() override;
  /// Hooks wheel messages by replacing the procedure of this window.
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override;
  /// Repaints the window. Further calls before the next painting have no effect.
  void invalidate();
  /// The edit box of a control has got the keyboard focus from another window, or lost it to one.
  /// `other` may be 0.
  void editFocus(bool hasFocus, HWND other);
  /// Pixels per inch of the screen that shows the window.
  int resolution() const { return dpi_; }

  static void unregisterClass();

 protected:
  void changed() override { invalidate(); }

 private:
  using Answer = std::optional<LRESULT>;

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) noexcept;
  static LRESULT CALLBACK wheelProcedure(HWND window, UINT message, WPARAM wParam,
                                         LPARAM lParam) noexcept;

  void create();
  /// Handles a message. An empty answer leaves it to the system.
  Answer handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  Answer handleMouse(UINT message, WPARAM wParam, LPARAM lParam);
  Answer handleKey(UINT message, WPARAM wParam);
  void handleFocus(bool hasFocus, HWND other);
  /// The window is about to be destroyed.
  void lost();
  void paint();
  /// Draws all pending calls, so that the images do not change while they are shown.
  static void complete(WinPlace& place);
  static void show(HDC target, WinPlace& place, int x, int y);
  void moveTo(HWND parent, const RECT& position, UINT flags);
  void subclass();
  void unsubclass();
  void followResolution();
  static void setResolution(WinPlace& place, int dpi);
  static void repaint(Place& place);
  void enter();
  void leave(HWND to);

  WinHost& host_;
  HWND window_ = nullptr;
  HWND wheelWindow_ = nullptr;
  std::function<void(std::int32_t, std::int32_t)> wheelHook_;
  int dpi_ = 0;
  bool isInvalid_ = false;
  bool isViewChanged_ = false;
  bool isLeavingTracked_ = false;
  bool isEntered_ = false;
};

}  // namespace norvane
