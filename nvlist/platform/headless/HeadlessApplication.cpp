#include <nvlist/platform/headless/HeadlessApplication.h>

#include <cstdio>

#include <nvlist/objects/Failure.h>

namespace norvane {

Variant HeadlessApplication::readSetting(std::string_view key, std::string_view name) {
  const auto found = settings.find({std::string(key), std::string(name)});
  return found == settings.end() ? Variant() : found->second;
}

void HeadlessApplication::appendToFile(const std::string& file, const std::string& text) {
  if (isDiskFull) throw Failure(61, "Disk full");
  files[file] += text;
}

std::string HeadlessApplication::dateText() {
  const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(clock.now()));
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u", int{date.year()}, unsigned{date.month()},
                unsigned{date.day()});
  return text;
}

std::string HeadlessApplication::timeText() {
  const auto now = clock.now();
  const std::chrono::hh_mm_ss time(now - std::chrono::floor<std::chrono::days>(now));
  char text[32];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d", static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return text;
}

void HeadlessApplication::MsgBox(const std::string& text, std::int32_t style,
                                 const std::string& title) {
  boxes.push_back({text, style, title});
}

}  // namespace norvane
