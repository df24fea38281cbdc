#pragma once

#include <QPointer>

#include <nvlist/platform/Application.h>

namespace norvane {

class QtMouse;
class QtSound;

/// The program around the controls as Qt knows it. Settings stand in the registry on Windows, below
/// HKEY_CURRENT_USER, and elsewhere in the user's settings file of the last level of the key:
/// "Software\Norvane" is Norvane.conf.
///
/// Boxes need a QApplication and the thread it runs in; otherwise they go to the standard error
/// stream.
class QtApplication : public Application {
 public:
  /// Makes one for the rest of the program, unless a platform or the host has made an application
  /// already.
  static void ensure();

  QtApplication();
  ~QtApplication() override;

  /// Major, Minor and Revision come from the application version of the form "1.2.3".
  ApplicationFacts facts() override;
  std::string programPath() override;
  /// Settings files do not tell numbers from texts: what reads as a 32-bit number is one.
  Variant readSetting(std::string_view key, std::string_view name) override;
  /// Throws Failure 75 where the file cannot be written.
  void appendToFile(const std::string& path, const std::string& text) override;
  std::string dateText() override;
  std::string timeText() override;
  SystemVersion systemVersion() override;
  /// What was pressed before a button was asked for the first time does not count.
  std::int16_t asyncKeyState(std::int32_t key) override;
  /// Through a player of the system (QtSound.h).
  void playSound(const std::string& path) override;
  /// For a form that is a widget: a QtTipWindow.
  std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) override;
  void MsgBox(const std::string& text, std::int32_t style, const std::string& title) override;
  /// In any format that Qt knows.
  Picture loadPicture(std::vector<std::byte> file) override;

 private:
  // They belong to the program.
  QPointer<QtMouse> mouse_;
  QPointer<QtSound> sound_;
};

}  // namespace norvane
