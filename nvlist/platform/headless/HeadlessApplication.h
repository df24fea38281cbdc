#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <nvlist/platform/Application.h>
#include <nvlist/platform/TipStore.h>
#include <nvlist/platform/headless/HeadlessClock.h>

namespace norvane {

/// A program without a screen, in use from its making to its destruction. All that is asked of it
/// can be set, and all that it does can be read back: no box is shown, no log is written, no sound
/// is heard. List files are files on the disk.
class HeadlessApplication : public Application {
 public:
  struct Box {
    std::string text;
    std::int32_t style;
    std::string title;
  };

  /// A visual theme. A name is as long as its buffer lets it be.
  struct Theme {
    std::u16string file;
    std::u16string colourScheme;
    std::u16string size;
  };

  ApplicationFacts program{"headless", 1, 0, 0, "/opt/headless"};
  std::string path = "/opt/headless/headless";
  /// Values by key and name.
  std::map<std::pair<std::string, std::string>, Variant> settings;
  /// Contents by path, as written so far.
  std::map<std::string, std::string> files;
  /// Whether writing a file fails.
  bool isDiskFull = false;
  /// Every box so far, the oldest first.
  std::vector<Box> boxes;
  HeadlessClock clock;

  /// Default: no Windows, without a theme.
  SystemVersion system;
  std::optional<Theme> theme;
  /// What asyncKeyState answers by key; asking clears the lowest bit.
  std::map<std::int32_t, std::int16_t> keyStates;
  /// The files of all sounds so far, the oldest first.
  std::vector<std::string> sounds;
  /// Every tip window so far, also those that are gone.
  std::vector<std::weak_ptr<TipStore>> tipWindows;
  /// Whether tip windows can be made.
  bool hasTipWindows = true;

  ApplicationFacts facts() override { return program; }
  std::string programPath() override { return path; }
  Variant readSetting(std::string_view key, std::string_view name) override;
  void appendToFile(const std::string& file, const std::string& text) override;
  /// As 2026-11-21 and 14:05:09.
  std::string dateText() override;
  std::string timeText() override;
  SystemVersion systemVersion() override { return system; }
  std::int32_t currentThemeName(std::span<char16_t> themeFile, std::span<char16_t> colourScheme,
                                std::span<char16_t> size) override;
  std::int16_t asyncKeyState(std::int32_t key) override;
  void playSound(const std::string& file) override { sounds.push_back(file); }
  std::shared_ptr<TipWindow> createTipWindow(std::int32_t form) override;
  void MsgBox(const std::string& text, std::int32_t style, const std::string& title) override;
};

}  // namespace norvane
