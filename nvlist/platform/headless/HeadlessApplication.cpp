#include <nvlist/platform/headless/HeadlessApplication.h>

#include <cstdio>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// Ends the name with a zero character if the buffer has room for it.
void putName(std::u16string_view name, std::span<char16_t> buffer) {
  const std::size_t copied = name.copy(buffer.data(), buffer.size());
  if (copied < buffer.size()) buffer[copied] = u'\0';
}

}  // namespace

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

std::int32_t HeadlessApplication::currentThemeName(std::span<char16_t> themeFile,
                                                   std::span<char16_t> colourScheme,
                                                   std::span<char16_t> size) {
  if (!theme) return -1;
  putName(theme->file, themeFile);
  putName(theme->colourScheme, colourScheme);
  putName(theme->size, size);
  return 0;
}

std::int16_t HeadlessApplication::asyncKeyState(std::int32_t key) {
  const auto found = keyStates.find(key);
  if (found == keyStates.end()) return 0;
  const std::int16_t state = found->second;
  found->second = static_cast<std::int16_t>(state & ~1);
  return state;
}

std::shared_ptr<TipWindow> HeadlessApplication::createTipWindow(std::int32_t form) {
  if (!hasTipWindows) return nullptr;
  // Far from the handles that a program is likely to use for its own windows.
  const auto handle = static_cast<std::int32_t>(0x10000 + tipWindows.size());
  auto window = std::make_shared<TipStore>(handle, form);
  tipWindows.push_back(window);
  return window;
}

void HeadlessApplication::MsgBox(std::string_view text, std::int32_t style,
                                 std::string_view title) {
  boxes.push_back({std::string(text), style, std::string(title)});
}

}  // namespace norvane
