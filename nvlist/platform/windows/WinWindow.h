#pragma once

#include <optional>

#include <nvlist/platform/windows/WinPlace.h>

namespace norvane {

/// What a control's window asks of whoever owns it, and what it reports. Calls come on the thread
/// of the window, each outlives none of them.
struct WinHost {
  virtual ~WinHost() = default;

  virtual void PropertyChanged(std::string_view name) { (void)name; }
  virtual Boolean UserMode() { return true; }
  virtual norvane::Font AmbientFont() { return nullptr; }
  virtual std::string Name() { return {}; }
  /// The keyboard's focus comes into the window or its edit box, or leaves both.
  virtual void focusChanged(bool hasFocus) { (void)hasFocus; }
  /// The image of a control that is shown in no window has changed, for the first time since
  /// draw().
  virtual void viewChanged() {}
  /// The window is on a screen of another resolution; texts have other widths.
  virtual void resolutionChanged() {}
};

/// The window of a control: the outermost place. The places in it are regions of the window; only
/// the edit box and the wheel's helper are windows of their own.
///
/// The window exists from the start, as a child of a hidden one, and stays the same when it comes
/// into a container's window. If the container destroys it, what is drawn is seen nowhere, and the
/// next call of `place` makes a new one.
class WinWindow final : public WinPlace {
 public:
  /// `host` outlives the window.
  explicit WinWindow(WinHost& host);
  ~WinWindow() override;

  /// 0 if the container has destroyed it.
  HWND handle() const { return window_; }
  /// Puts the window into the container's and shows it. In pixels of that one.
  void place(HWND container, const RECT& position);
  /// Moves it within the container's window, without a change of its visibility.
  void reposition(const RECT& position);
  /// Back into the hidden window.
  void park();
  bool isParked() const;
  /// Gives the control another size, in pixels; it is notified.
  void resize(int width, int height);

  /// Draws the control with all in it, scaled to a rectangle in logical units of a device, which
  /// may be a printer or a metafile.
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
  /// The wheel's messages are taken from this window by replacing its procedure.
  void hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) override;
  /// Shows the images anew, once for any number of calls before the next painting.
  void invalidate();
  /// The edit box of a control gets the keyboard from another window, or loses it to one. `other`
  /// may be 0.
  void editFocus(bool hasFocus, HWND other);
  /// Pixels an inch where the window is shown.
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
  /// What a message results in. An empty answer leaves it to the system.
  Answer handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
  Answer handleMouse(UINT message, WPARAM wParam, LPARAM lParam);
  Answer handleKey(UINT message, WPARAM wParam);
  void handleFocus(bool hasFocus, HWND other);
  /// The window is about to be destroyed.
  void lost();
  void paint();
  /// Draws everything that waits, so that nothing changes while the images are shown.
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
