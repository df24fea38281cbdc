#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include <nvlist/platform/Application.h>
#include <nvlist/platform/headless/HeadlessClock.h>

namespace norvane {

/// A program without a screen, in use from its making to its destruction. All that the reporter
/// asks of it can be set, and all that it does can be read back: no box is shown and no log is
/// written. List files are files on the disk.
class HeadlessApplication : public Application {
 public:
  struct Box {
    std::string text;
    std::int32_t style;
    std::string title;
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

  ApplicationFacts facts() override { return program; }
  std::string programPath() override { return path; }
  Variant readSetting(std::string_view key, std::string_view name) override;
  void appendToFile(const std::string& file, const std::string& text) override;
  /// As 2026-11-21 and 14:05:09.
  std::string dateText() override;
  std::string timeText() override;
  void MsgBox(const std::string& text, std::int32_t style, const std::string& title) override;
};

}  // namespace norvane
