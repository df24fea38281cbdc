#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <nvlist/platform/File.h>
#include <nvlist/platform/TipWindow.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// What the running program says of itself.
struct ApplicationFacts {
  /// File name of the program without its ending.
  std::string EXEName;
  std::int32_t Major = 0;
  std::int32_t Minor = 0;
  std::int32_t Revision = 0;
  /// Folder of the program, in the form of the system it runs on.
  std::string Path;
};

/// The operating system as Windows numbers it.
struct SystemVersion {
  /// 2 for Windows NT and all that came after it, 0 for what is no Windows.
  std::int32_t PlatformId = 0;
  std::int32_t Major = 0;
  std::int32_t Minor = 0;
};

/// A host's own receiver of failures. It is asked before the box is shown.
class ErrorHandler {
 public:
  virtual ~ErrorHandler() = default;

  /// Takes over one failure: no box appears where this returns. Throwing hands it back.
  /// `programPath` is the full path of the running program.
  virtual void RaiseError(const std::string& programPath, const ApplicationFacts& application,
                          std::int32_t Number, const std::string& Description,
                          const std::string& Procedure, std::int32_t Line, const std::string& Kind,
                          const std::string& Module) = 0;
};

/// The program around the controls: its settings, its files, its boxes. There is one for the whole
/// program, and it serves the reporter of failures and the list files.
///
/// Making an object of a derived class puts it to use; destroying it puts the one before it back.
/// Where none was made, failures are written to the standard error stream. Make and destroy them on
/// one thread, while no other one runs a control.
class Application {
 public:
  Application();
  virtual ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// The application in use; never missing.
  static Application& inUse();
  /// Whether a platform or the host made the one in use.
  static bool anyInUse();

  /// Registers the handler that gets each failure before any box; nullptr takes it away.
  void registerErrorHandler(std::shared_ptr<ErrorHandler> handler) {
    handler_ = std::move(handler);
  }

  /// The outside handler for one report, or nullptr. Here: the registered one.
  virtual std::shared_ptr<ErrorHandler> createErrorHandler() { return handler_; }

  virtual ApplicationFacts facts() = 0;
  /// Full path of the running program.
  virtual std::string programPath() = 0;

  /// The value `name` of the user's settings under `key`, whose levels are parted by backslashes:
  /// a text, or a number for a 4-byte value; empty where there is no such key or value.
  virtual Variant readSetting(std::string_view key, std::string_view name) = 0;

  /// Appends the text to a file, which is made if it is missing. The last backslash of the path
  /// parts folder and file; elsewhere than on Windows it counts as a slash. Throws on failure.
  virtual void appendToFile(const std::string& path, const std::string& text) = 0;

  /// Date and time of day in the form in which the program's user reads them.
  virtual std::string dateText() = 0;
  virtual std::string timeText() = 0;

  // ---- the system; here: one without themes, sound, mouse and tool tips ----

  virtual SystemVersion systemVersion() { return {}; }

  /// Puts the file of the visual theme in use, its colour scheme and its size to the front of three
  /// buffers, each with a zero character behind it where there is room for one. 0 tells success;
  /// anything else, that there is no theme, and that the buffers are as they were.
  virtual std::int32_t currentThemeName(std::span<char16_t> themeFile,
                                        std::span<char16_t> colourScheme,
                                        std::span<char16_t> size) {
    (void)themeFile, (void)colourScheme, (void)size;
    return -1;
  }

  /// Of a mouse button (1 left, 2 right, 4 middle): negative while it is down; with the lowest bit
  /// set where it was pressed since it was asked for last; else 0.
  virtual std::int16_t asyncKeyState(std::int32_t key) {
    (void)key;
    return 0;
  }

  /// Begins to play a sound file and returns at once; one that still plays ends. What cannot be
  /// played is silence.
  virtual void playSound(const std::string& path) { (void)path; }

  /// A window of tool tips for the controls of a form, which shows also while another window is the
  /// active one. `form` is the form's handle. Nothing where there can be none.
  virtual std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) {
    (void)form;
    return nullptr;
  }

  /// Shows a modal box and returns when it is closed. Style 16 is a critical stop with one OK.
  virtual void MsgBox(const std::string& text, std::int32_t style, const std::string& title) = 0;

  // ---- files of the host; here: those on the disk (platform/diskFiles.h) ----

  /// Whether there is a file or folder of that name, in which `*` and `?` may stand for others.
  virtual bool holdsFile(const std::string& path);
  /// Deletes a file, where there is one.
  virtual void removeFile(const std::string& path);
  /// Opens a file to read it, or makes one new to write it. Throws where that fails.
  virtual std::unique_ptr<File> openFile(const std::string& path, FileMode mode);

  /// The picture that the bytes of a picture file stand for. Throws Failure 481 where they stand
  /// for none. Here: a picture of no size that has these bytes, whatever they are.
  virtual Picture loadPicture(std::vector<std::byte> file);

 private:
  Application* before_;
  std::shared_ptr<ErrorHandler> handler_;
};

}  // namespace norvane
