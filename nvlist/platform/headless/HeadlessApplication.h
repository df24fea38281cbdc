#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/Program.h>
#include <nvlist/platform/TipStore.h>
#include <nvlist/platform/headless/HeadlessClock.h>

namespace norvane {

/// A program and its desktop without a screen. Everything the library asks of it can be set, and
/// everything it does can be read back: message boxes, logs and sounds are only recorded. It leaves
/// Files alone, so list files are on the disk.
class HeadlessApplication : public Program, public Desktop {
 public:
  struct Box {
    std::string text;
    std::int32_t style;
    std::string title;
  };

  /// A visual theme. Names longer than their buffers are cut off.
  struct Theme {
    std::u16string file;
    std::u16string colourScheme;
    std::u16string size;
  };

  ApplicationFacts program{"headless", 1, 0, 0, "/opt/headless"};
  std::string path = "/opt/headless/headless";
  /// Values by key and name.
  std::map<std::pair<std::string, std::string>, Variant> settings;
  /// Contents of the log files by path.
  std::map<std::string, std::string> files;
  /// Whether writing a log fails. Default: false.
  bool isDiskFull = false;
  /// All message boxes so far, the oldest first.
  std::vector<Box> boxes;
  HeadlessClock clock;

  /// Default: not Windows, and no theme.
  SystemVersion system;
  std::optional<Theme> theme;
  /// The result of asyncKeyState by key; a query clears the lowest bit.
  std::map<std::int32_t, std::int16_t> keyStates;
  /// The files of all sounds so far, the oldest first.
  std::vector<std::string> sounds;
  /// All tip windows so far; those destroyed have expired.
  std::vector<std::weak_ptr<TipStore>> tipWindows;
  /// Whether tip windows can be created. Default: true.
  bool hasTipWindows = true;

  ApplicationFacts facts() override { return program; }
  std::string programPath() override { return path; }
  Variant readSetting(std::string_view key, std::string_view name) override;
  void appendToFile(const std::string& file, const std::string& text) override;
  /// In the form 2026-11-21 and 14:05:09, by `clock`.
  std::string dateText() override;
  std::string timeText() override;
  SystemVersion systemVersion() override { return system; }
  std::int32_t currentThemeName(std::span<char16_t> themeFile, std::span<char16_t> colourScheme,
                                std::span<char16_t> size) override;
  std::int16_t asyncKeyState(std::int32_t key) override;
  void playSound(const std::string& file) override { sounds.push_back(file); }
  std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) override;
  void MsgBox(std::string_view text, std::int32_t style, std::string_view title) override;
};

}  // namespace norvane
