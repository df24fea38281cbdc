#pragma once

#include <QPointer>

#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/Files.h>
#include <nvlist/platform/Program.h>

namespace norvane {

class QtMouse;
class QtSound;

/// The running program as Qt knows it. On Windows, settings are in the registry below
/// HKEY_CURRENT_USER; elsewhere, in the user's settings file named after the last level of the key:
/// "Software\Norvane" is Norvane.conf.
class QtProgram : public Program {
 public:
  /// EXEName is the file name of programPath() without ".exe". Major, Minor and Revision come from
  /// an application version of the form "1.2.3".
  ApplicationFacts facts() override;
  std::string programPath() override;
  /// Settings files do not distinguish numbers from texts: a value that reads as a 32-bit number is
  /// returned as one.
  Variant readSetting(std::string_view key, std::string_view name) override;
  /// Throws Failure 75 if the file cannot be written.
  void appendToFile(const std::string& path, const std::string& text) override;
  /// The registered handler, or the one of the program's failure mode (QtFailures).
  std::shared_ptr<ErrorHandler> createErrorHandler() override;
  /// In the user's short format.
  std::string dateText() override;
  /// In the user's format with seconds, without the time zone.
  std::string timeText() override;
  /// While a list is being painted, the box opens after that, and the call returns at once. Without
  /// a QApplication, and on other threads than the application's, writes both texts to the
  /// standard error stream.
  void MsgBox(std::string_view text, std::int32_t style, std::string_view title) override;
};

/// Files on the disk, with pictures in any format that Qt can read.
class QtFiles : public Files {
 public:
  Picture loadPicture(std::vector<std::byte> file) override;
};

/// The user's desktop as Qt knows it. Mouse, sound and tips need a QApplication and its thread.
class QtDesktop : public Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  SystemVersion systemVersion() override;
  /// Counts presses from the making of this object on or, if there was no QApplication yet, from
  /// the first query on.
  std::int16_t asyncKeyState(std::int32_t key) override;
  /// See QtSound.
  void playSound(const std::string& path) override;
  /// A QtTipWindow if the form is a widget (QtWindow.h).
  std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) override;

 private:
  // The QCoreApplication owns them.
  QPointer<QtMouse> mouse_;
  QPointer<QtSound> sound_;
};

/// All services of the Qt platform.
class QtApplication : public QtProgram, public QtFiles, public QtDesktop {
 public:
  /// Puts the services of the Qt platform to use on this thread until it ends, apart from those
  /// that the host or a platform has made already.
  static void ensure();
};

}  // namespace norvane
