#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include <nvlist/values/Failure.h>
#include <nvlist/values/Font.h>
#include <nvlist/values/PropertyBag.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr std::string_view blanks = " \t\r";
constexpr std::string_view fontWord = "font ";

struct FontFlag {
  std::string_view word;
  Boolean FontObject::*flag;
};
constexpr FontFlag fontFlags[] = {{"bold", &FontObject::Bold},
                                  {"italic", &FontObject::Italic},
                                  {"underline", &FontObject::Underline},
                                  {"strikethrough", &FontObject::Strikethrough}};

std::string inQuotes(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (static_cast<unsigned char>(c) < 0x20)
      result += "\\x" + hexTextOf(static_cast<unsigned char>(c), 2);
    else if (c == '"' || c == '\\')
      result += {'\\', c};
    else
      result += c;
  }
  return result + "\"";
}

std::string fontText(const FontObject& font) {
  std::string result = std::string(fontWord) + inQuotes(font.Name) + " " + textOf(font.Size);
  for (const FontFlag& flag : fontFlags)
    if (font.*flag.flag) result += " " + std::string(flag.word);
  return result;
}

std::optional<std::string> valueText(const Variant& value) {
  switch (value.type()) {
    case Variant::Type::Text:
      return inQuotes(value.text());
    case Variant::Type::Int32:
      if (const std::int32_t number = value.toInt32(); number < 0 || number > 65535)
        return "&H" + hexTextOf(static_cast<std::uint32_t>(number), 8);
      return value.toText();
    case Variant::Type::Object:
      if (const auto* font = dynamic_cast<const FontObject*>(value.object().get()))
        return fontText(*font);
      return std::nullopt;
    default:
      return value.toText();
  }
}

/// Reads and removes a quoted text at the front; nothing if its quote is not closed.
std::optional<std::string> takeQuoted(std::string_view& text) {
  std::string result;
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] == '"') {
      text.remove_prefix(at + 1);
      return result;
    }
    if (text[at] != '\\') {
      result += text[at];
      continue;
    }
    unsigned code = 0;
    if (text.substr(at + 1, 1) == "x" && at + 3 < text.size() &&
        std::from_chars(&text[at + 2], &text[at] + 4, code, 16).ptr == &text[at] + 4) {
      result += static_cast<char>(code);
      at += 3;
    } else if (++at < text.size()) {
      result += text[at];
    }
  }
  return std::nullopt;
}

/// A font, or nothing if the text is not a valid description of one.
std::optional<Variant> fontOf(std::string_view text) {
  if (!text.starts_with('"')) return std::nullopt;
  auto font = makeRef<FontObject>();
  const auto name = takeQuoted(text);
  if (!name) return std::nullopt;
  font->Name = *name;
  text = trimmed(text, blanks);
  const std::size_t end = text.find_first_of(blanks);
  const auto size = numberOf(text.substr(0, end));
  if (!size) return std::nullopt;
  font->Size = static_cast<float>(*size);
  while (!(text = trimmed(text.substr(std::min(text.find_first_of(blanks), text.size())), blanks))
              .empty()) {
    bool isKnown = false;
    for (const FontFlag& flag : fontFlags)
      if (text.substr(0, text.find_first_of(blanks)) == flag.word) {
        (*font).*flag.flag = true;
        isKnown = true;
      }
    if (!isKnown) return std::nullopt;
  }
  return Variant(Ref<Object>(font));
}

std::optional<Variant> valueOf(std::string_view text) {
  if (text.starts_with('"')) {
    const auto inside = takeQuoted(text);
    if (!inside || !trimmed(text, blanks).empty()) return std::nullopt;
    return Variant(*inside);
  }
  if (text == "True") return Variant(true);
  if (text == "False") return Variant(false);
  if (text.starts_with(fontWord))
    if (auto font = fontOf(trimmed(text.substr(fontWord.size()), blanks))) return font;
  const auto number = numberOf(text);
  if (!number) return Variant(text);
  constexpr double least = std::numeric_limits<std::int32_t>::min();
  constexpr double greatest = std::numeric_limits<std::int32_t>::max();
  const bool isWhole = *number >= least && *number <= greatest && std::trunc(*number) == *number;
  return isWhole ? Variant(static_cast<std::int32_t>(*number)) : Variant(*number);
}

}  // namespace

std::string propertyText(const PropertyBag& bag) {
  std::string result;
  for (const PropertyBag::Property& property : bag.properties())
    if (const auto value = valueText(property.value))
      result += property.name + " = " + *value + "\n";
  return result;
}

PropertyBag propertiesOf(std::string_view text) {
  PropertyBag bag;
  for (int number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    const std::string_view line = trimmed(text.substr(0, end), blanks);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.empty() || line.starts_with('#')) continue;
    const std::size_t equals = line.find('=');
    const std::string_view name = trimmed(line.substr(0, equals), blanks);
    const auto value = equals == std::string_view::npos || name.empty()
                           ? std::nullopt
                           : valueOf(trimmed(line.substr(equals + 1), blanks));
    if (!value) throw Failure(321, "Invalid file format in line " + std::to_string(number));
    bag.WriteProperty(name, *value, Variant(Ref<Object>()));
  }
  return bag;
}

}  // namespace norvane
