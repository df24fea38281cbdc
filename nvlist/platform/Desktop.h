#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include <nvlist/platform/InUse.h>
#include <nvlist/platform/TipWindow.h>

namespace norvane {

/// The version of the operating system in the numbers of Windows.
struct SystemVersion {
  /// 2 for Windows NT and its successors, 0 for other systems.
  std::int32_t PlatformId = 0;
  std::int32_t Major = 0;
  std::int32_t Minor = 0;
};

/// The user's desktop: theme, mouse, sound and tool tips. SpEv and nvToolTip use it. A host or
/// platform overrides what it has. Any call may throw.
class Desktop : public InUse<Desktop> {
 public:
  Desktop() = default;
  virtual ~Desktop() = default;

  /// Default: not Windows.
  virtual SystemVersion systemVersion() { return {}; }

  /// Copies the file of the visual theme, its colour scheme and its size to the front of three
  /// buffers, each followed by a zero character if there is room for one. Returns 0 on success;
  /// otherwise there is no theme and the buffers are unchanged. Default: no theme.
  virtual std::int32_t currentThemeName(std::span<char16_t> themeFile,
                                        std::span<char16_t> colourScheme,
                                        std::span<char16_t> size) {
    (void)themeFile, (void)colourScheme, (void)size;
    return -1;
  }

  /// The state of a mouse button (1 left, 2 right, 4 middle): negative while it is down; the lowest
  /// bit is set if it was pressed since the last query; otherwise 0. Default: 0.
  virtual std::int16_t asyncKeyState(std::int32_t key) {
    (void)key;
    return 0;
  }

  /// Starts playing a sound file and returns at once; a sound still playing stops. A file that
  /// cannot be played is silent. Default: no sound.
  virtual void playSound(const std::string& path) { (void)path; }

  /// A window of tool tips for the controls of a form, which shows tips even while the form is
  /// inactive. `form` is the form's handle. nullptr if there can be none, which is the default.
  virtual std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) {
    (void)form;
    return nullptr;
  }
};

}  // namespace norvane
