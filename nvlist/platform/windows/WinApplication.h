#pragma once

#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/Files.h>
#include <nvlist/platform/Program.h>

namespace norvane {

/// The running program on Windows, with its settings below HKEY_CURRENT_USER.
class WinProgram final : public Program {
 public:
  /// The registered handler, or a new ErrorReporter if that object is installed.
  std::shared_ptr<ErrorHandler> createErrorHandler() override;
  /// The first, second and last of the four numbers of the program's version.
  ApplicationFacts facts() override;
  std::string programPath() override;
  Variant readSetting(std::string_view key, std::string_view name) override;
  /// Throws Failure 75 if the file cannot be written.
  void appendToFile(const std::string& path, const std::string& text) override;
  std::string dateText() override;
  std::string timeText() override;
  /// Shown in front of the active window of the thread.
  void MsgBox(std::string_view text, std::int32_t style, std::string_view title) override;
  void showAbout(std::string_view name, std::string_view version) override;
};

/// Files on disk, with the pictures that OlePicture can read.
class WinFiles final : public Files {
 public:
  Picture loadPicture(std::vector<std::byte> file) override;
};

class WinDesktop final : public Desktop {
 public:
  /// The version that Windows reports to this program; without a manifest it may be an older one.
  SystemVersion systemVersion() override;
  std::int32_t currentThemeName(std::span<char16_t> themeFile, std::span<char16_t> colourScheme,
                                std::span<char16_t> size) override;
  std::int16_t asyncKeyState(std::int32_t key) override;
  void playSound(const std::string& path) override;
  std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) override;
};

/// Installs the services of Windows on the thread that creates it, except those that the host or a
/// platform has already installed.
class WinApplication {
 public:
  WinApplication();

 private:
  std::unique_ptr<Program> program_;
  std::unique_ptr<Files> files_;
  std::unique_ptr<Desktop> desktop_;
};

}  // namespace norvane
