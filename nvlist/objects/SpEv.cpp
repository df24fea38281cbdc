#include <nvlist/objects/SpEv.h>

#include <nvlist/objects/TextFile.h>
#include <nvlist/objects/Trap.h>
#include <nvlist/objects/lateBound.h>
#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/Files.h>
#include <nvlist/platform/ListBox.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

/// The names compared with the text are ASCII. Any other character becomes '?', so that it matches
/// none of them.
std::string narrowed(std::u16string_view text) {
  std::string result;
  for (const char16_t unit : text) result += unit < 0x80 ? static_cast<char>(unit) : '?';
  return result;
}

cActiveXPTheme styleOf(std::string_view colourScheme) {
  if (colourScheme == "NormalColor") return styleBlue;
  if (colourScheme == "Metallic") return styleSilver;
  if (colourScheme == "HomeStead") return styleOlive;
  return styleClassic;
}

}  // namespace

constinit const Module SpEv::here{kinds::classModule, "SpEv"};

std::string SpEv::TextRead(const std::string& Filename) {
  std::string text;
  trapped(here, "TextRead", [&](Trap& on) {
    TextFile file;
    on.step([&] { file.openForInput(Filename); });
    on.step([&] { text = file.read(file.length()); });
    on.step([&] { file.close(); });
  });
  return text;
}

void SpEv::TextSave(const std::string& Filename, const std::string& Text) {
  trapped(here, "TextSave", [&](Trap& on) {
    TextFile file;
    on.step([&] { file.openForOutput(Filename); });
    on.step([&] { file.print(Text); });
    on.step([&] { file.close(); });
  });
}

void SpEv::PlayMusic(const std::string& Filename) {
  trapped(here, "PlayMusic",
          [&](Trap& on) { on.step([&] { Desktop::inUse().playSound(Filename); }); });
}

void SpEv::ListSave(const Variant& List, const std::string& Filename,
                    const std::string& TextBeforeListText, const std::string& TextAfterListText) {
  trapped(here, "ListSave", [&](Trap& on) {
    TextFile file;
    on.step([&] { file.openForOutput(Filename); });
    std::int32_t last = -1;
    on.step([&] { last = checked::subtract(lateBound<ListBox>(List)->ListCount(), 1); });
    bool goesOn = true;
    for (std::int16_t i = 0; goesOn && i <= last;) {
      on.step([&] {
        file.print(TextBeforeListText + lateBound<ListBox>(List)->List(i) + TextAfterListText);
      });
      goesOn = false;
      on.step([&] {
        i = checked::add<std::int16_t>(i, 1);
        goesOn = true;
      });
    }
    on.step([&] { file.close(); });
  });
}

void SpEv::ListRead(const Variant& List, const std::string& Filename) {
  trapped(here, "ListRead", [&](Trap& on) {
    TextFile file;
    on.step([&] { file.openForInput(Filename); });
    std::string line;
    while (!on.test([&] { return file.isAtEnd(); })) {
      on.step([&] { line = file.readLine(); });
      on.step([&] { lateBound<ListBox>(List)->AddItem(line); });
    }
    on.step([&] { file.close(); });
  });
}

Boolean SpEv::FileExists(const std::string& sFile) {
  Boolean result;
  trapped(here, "FileExists",
          [&](Trap& on) { on.step([&] { result = Files::inUse().holdsFile(sFile); }); });
  return result;
}

/// Tests the major and the minor version independently, as published: 6.0 is not XP, but 6.1 is.
Boolean SpEv::IsWinXP() {
  Boolean result;
  trapped(here, "IsWinXP", [&](Trap& on) {
    SystemVersion version;
    on.step([&] { version = Desktop::inUse().systemVersion(); });
    result = version.PlatformId == 2 && version.Major >= 5 && version.Minor >= 1;
  });
  return result;
}

std::string SpEv::ConvUnicode(std::u16string_view text) {
  std::string result;
  trapped(here, "ConvUnicode", [&](Trap& on) {
    on.step([&] {
      const std::string narrow = narrowed(text);
      const std::size_t end = narrow.find('\0');
      if (end == std::string::npos) throw Failure::invalidCall();
      result = narrow.substr(0, end);
    });
  });
  return result;
}

cActiveXPTheme SpEv::ActiveXPTheme() {
  cActiveXPTheme result{};
  trapped(here, "ActiveXPTheme", [&](Trap& on) {
    if (!on.test([] { return IsWinXP(); })) {
      result = styleClassic;
      return;
    }
    std::u16string themeFile(260, u' ');
    std::u16string colourScheme(255, u' ');
    std::u16string size(255, u' ');
    std::string scheme;
    if (on.test([&] {
          return Desktop::inUse().currentThemeName(themeFile, colourScheme, size) == 0;
        })) {
      on.step([&] { ConvUnicode(themeFile); });
      on.step([&] { scheme = ConvUnicode(colourScheme); });
      on.step([&] { ConvUnicode(size); });
    }
    result = styleOf(scheme);
  });
  return result;
}

cMouseButton SpEv::MouseButtonPressed() {
  cMouseButton result = mouseNone;
  trapped(here, "MouseButtonPressed", [&](Trap& on) {
    for (const std::int32_t key : {1, 2, 4}) {
      if (!on.test([&] { return Desktop::inUse().asyncKeyState(key) != 0; })) continue;
      result = static_cast<cMouseButton>(key);
      return;
    }
  });
  return result;
}

}  // namespace norvane
