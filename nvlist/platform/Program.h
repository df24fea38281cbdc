#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <nvlist/platform/InUse.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// Facts about the running program, which reports name.
struct ApplicationFacts {
  /// File name of the program without its extension.
  std::string EXEName;
  std::int32_t Major = 0;
  std::int32_t Minor = 0;
  std::int32_t Revision = 0;
  /// Folder of the program, in the notation of its system.
  std::string Path;
};

/// A host's own receiver of failures. It is called before the message box appears.
class ErrorHandler {
 public:
  virtual ~ErrorHandler() = default;

  /// Handles one failure. If it returns, no message box appears; if it throws, the box appears.
  /// `programPath` is the full path of the running program.
  virtual void RaiseError(std::string_view programPath, const ApplicationFacts& application,
                          std::int32_t Number, std::string_view Description,
                          std::string_view Procedure, std::int32_t Line, std::string_view Kind,
                          std::string_view Module) = 0;
};

/// The running program: its name and settings, and what its user sees of failures. The reporter,
/// the about boxes and the scroll bars use it. A host or platform overrides what it has. Any call
/// may throw; of exhausted memory, a call throws std::bad_alloc.
class Program : public InUse<Program> {
 public:
  Program() = default;
  virtual ~Program() = default;

  /// Registers the handler that receives each failure before the message box; nullptr removes it.
  void registerErrorHandler(std::shared_ptr<ErrorHandler> handler) {
    handler_ = std::move(handler);
  }

  /// The handler for one report, or nullptr. Default: the registered one.
  virtual std::shared_ptr<ErrorHandler> createErrorHandler() { return handler_; }

  /// Default: all empty.
  virtual ApplicationFacts facts() { return {}; }
  /// Full path of the running program. Default: empty.
  virtual std::string programPath() { return {}; }

  /// The value `name` of the user's settings under `key`, whose levels are separated by
  /// backslashes: a text, or a number for a 4-byte value; empty if it does not exist. Default:
  /// there are no settings.
  virtual Variant readSetting(std::string_view key, std::string_view name) {
    (void)key, (void)name;
    return {};
  }

  /// Appends text to a file, which is created if it does not exist. The last backslash of the path
  /// separates folder and file; except on Windows it counts as a slash. Throws on failure. Default:
  /// nothing is written.
  virtual void appendToFile(const std::string& path, const std::string& text) {
    (void)path, (void)text;
  }

  /// Date and time of day, each as one text in the user's format. Default: empty.
  virtual std::string dateText() { return {}; }
  virtual std::string timeText() { return {}; }

  /// Shows a modal message box and returns when it is closed. Style 16 has a critical-stop icon, 64
  /// an information icon; both have one OK button. Lines of the text are separated by a carriage
  /// return and a line feed. Default: writes both texts to the standard error stream.
  virtual void MsgBox(std::string_view text, std::int32_t style, std::string_view title);

  /// Shows the modal about box of the library and returns when it is closed. Default: a message box
  /// with both texts.
  virtual void showAbout(std::string_view name, std::string_view version);

 private:
  std::shared_ptr<ErrorHandler> handler_;
};

}  // namespace norvane
