#include <nvlist/json/texts.h>
#include <nvlist/json/values.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include <simdjson.h>

#include <nvlist/drawing/Recording.h>
#include <nvlist/values/Failure.h>

namespace norvane::json {
namespace {

namespace dom = simdjson::dom;

constexpr std::string_view systemWord = "system ";

template <class Value>
std::optional<Value> valueAs(const Element& element) {
  Value value;
  if (element.get(value) != simdjson::SUCCESS) return std::nullopt;
  return value;
}

/// The value of an object's only field if it has this name.
std::optional<Element> onlyField(const Element& value, std::string_view name) {
  const auto object = valueAs<dom::object>(value);
  if (!object || object->size() != 1) return std::nullopt;
  const dom::key_value_pair field = *object->begin();
  if (field.key != name) return std::nullopt;
  return field.value;
}

template <class Integer>
Integer wholeOf(const Element& value, const char* needed) {
  const auto number = valueAs<std::int64_t>(value);
  if (!number || *number < std::numeric_limits<Integer>::min() ||
      *number > std::numeric_limits<Integer>::max())
    throw Unsuitable(needed);
  return static_cast<Integer>(*number);
}

std::int16_t shortOf(const Element& value) {
  return wholeOf<std::int16_t>(value, "a whole number of 16 bits is needed");
}

/// The colour that a text names, or nothing.
std::optional<Colour> colourOfText(std::string_view text) {
  const auto number = [](std::string_view part, int base, unsigned most) {
    unsigned result = 0;
    const char* const end = part.data() + part.size();
    const bool isNumber = std::from_chars(part.data(), end, result, base).ptr == end;
    return isNumber && !part.empty() && result <= most ? std::optional(result) : std::nullopt;
  };
  if (text.starts_with('#') && text.size() == 7) {
    const auto bits = number(text.substr(1), 16, 0xFFFFFF);
    if (!bits) return std::nullopt;
    const auto channel = [&](int shift) {
      return static_cast<std::uint8_t>(*bits >> shift & 0xFF);
    };
    return rgb(channel(16), channel(8), channel(0));
  }
  if (text.starts_with(systemWord))
    if (const auto index = number(text.substr(systemWord.size()), 10, 0xFF))
      return systemColour(static_cast<std::uint8_t>(*index));
  return std::nullopt;
}

/// The text of an object in a variant, or nothing.
std::optional<std::string> textOfObject(const Variant& value) {
  if (value.type() != Variant::Type::Object) return std::nullopt;
  try {
    return value.toText();
  } catch (const Failure&) {
    return std::nullopt;
  }
}

void appendTyped(std::string& out, std::string_view type, std::int32_t number) {
  out.append("{\"").append(type).append("\":");
  appendInteger(out, number);
  out += '}';
}

struct FontFlag {
  std::string_view name;
  Boolean FontObject::*flag;
};
constexpr FontFlag fontFlags[] = {{"Bold", &FontObject::Bold},
                                  {"Italic", &FontObject::Italic},
                                  {"Underline", &FontObject::Underline},
                                  {"Strikethrough", &FontObject::Strikethrough}};

}  // namespace

std::string textOf(const Element& value) {
  if (const auto text = valueAs<std::string_view>(value)) return std::string(*text);
  if (const auto encoded = onlyField(value, "base64"))
    if (const auto text = valueAs<std::string_view>(*encoded))
      if (auto bytes = bytesOfBase64(*text)) return *std::move(bytes);
  throw Unsuitable("a text is needed");
}

void appendBoolean(std::string& out, Boolean value) {
  if (value.isTrue() || !value)
    out += value ? "true" : "false";
  else
    appendInteger(out, value.number());
}

Boolean booleanOf(const Element& value) {
  if (const auto truth = valueAs<bool>(value)) return *truth;
  return Boolean::ofNumber(wholeOf<std::int16_t>(value, "true or false is needed"));
}

void appendInteger(std::string& out, std::int32_t value) {
  char digits[12];
  out.append(digits, std::to_chars(digits, std::end(digits), value).ptr);
}

std::int32_t integerOf(const Element& value) {
  return wholeOf<std::int32_t>(value, "a whole number of 32 bits is needed");
}

void appendSingle(std::string& out, float value) {
  if (!std::isfinite(value)) {
    out += std::isnan(value) ? "\"nan\"" : value > 0 ? "\"inf\"" : "\"-inf\"";
    return;
  }
  char digits[24];
  const std::string_view text(digits, std::to_chars(digits, std::end(digits), value).ptr);
  out += text;
  // Otherwise it would come back as a whole number.
  if (text.find_first_of(".e") == std::string_view::npos) out += ".0";
}

float singleOf(const Element& value) {
  using Limits = std::numeric_limits<float>;
  if (const auto number = valueAs<double>(value))
    if (std::abs(*number) <= Limits::max()) return static_cast<float>(*number);
  if (const auto text = valueAs<std::string_view>(value)) {
    if (*text == "inf") return Limits::infinity();
    if (*text == "-inf") return -Limits::infinity();
    if (*text == "nan") return Limits::quiet_NaN();
  }
  throw Unsuitable("a number is needed");
}

void appendColour(std::string& out, Colour colour) {
  if ((colour & 0x7F000000) != 0 || (isSystemColour(colour) && (colour & 0xFFFF00) != 0))
    appendInteger(out, colour);
  else
    out.append("\"").append(textOfColour(colour)).append("\"");
}

Colour colourOf(const Element& value) {
  if (const auto text = valueAs<std::string_view>(value)) {
    if (const auto colour = colourOfText(*text)) return *colour;
  } else if (value.is_int64()) {
    return integerOf(value);
  }
  throw Unsuitable("a colour is needed: \"#RRGGBB\", \"system N\" or a number");
}

bool appendVariant(std::string& out, const Variant& value) {
  switch (value.type()) {
    case Variant::Type::Empty:
      out += "null";
      break;
    case Variant::Type::Int16:
      appendTyped(out, "Int16", value.toInt16());
      break;
    case Variant::Type::Int32:
      appendInteger(out, value.toInt32());
      break;
    case Variant::Type::Single:
      if (const float number = value.toSingle(); std::isfinite(number)) {
        appendSingle(out, number);
      } else {
        out += "{\"Single\":";
        appendSingle(out, number);
        out += '}';
      }
      break;
    case Variant::Type::Boolean:
      if (const auto truth = Boolean::ofNumber(value.toInt16()); truth.isTrue() || !truth)
        appendBoolean(out, truth);
      else
        appendTyped(out, "Boolean", truth.number());
      break;
    case Variant::Type::Text:
      appendText(out, value.text());
      break;
    case Variant::Type::Object:
      if (const auto text = textOfObject(value)) {
        appendText(out, *text);
      } else {
        out += "null";
        return false;
      }
      break;
  }
  return true;
}

Variant variantOf(const Element& value) {
  if (value.is_null()) return {};
  if (const auto truth = valueAs<bool>(value)) return *truth;
  if (value.is_int64()) return integerOf(value);
  if (value.is_double()) return singleOf(value);
  if (const auto number = onlyField(value, "Int16")) return shortOf(*number);
  if (const auto number = onlyField(value, "Boolean")) return Boolean::ofNumber(shortOf(*number));
  if (const auto number = onlyField(value, "Single")) return singleOf(*number);
  if (const auto text = onlyField(value, "Text")) return textOf(*text);
  try {
    return textOf(value);
  } catch (const Unsuitable&) {
    throw Unsuitable("a text, a number of 32 bits, true, false or null is needed");
  }
}

bool appendColourVariant(std::string& out, const Variant& value) {
  if (isDefaultMark(value)) {
    out += "\"def\"";
  } else if (value.type() == Variant::Type::Int32) {
    appendColour(out, value.toInt32());
  } else if (const auto text = value.isText() ? value.toText() : textOfObject(value)) {
    out += "{\"Text\":";
    appendText(out, *text);
    out += '}';
  } else {
    return appendVariant(out, value);
  }
  return true;
}

Variant colourVariantOf(const Element& value) {
  if (const auto text = valueAs<std::string_view>(value); text && *text == defaultMark)
    return defaultMark;
  if (value.is_string() || value.is_int64()) return colourOf(value);
  return variantOf(value);
}

void appendFont(std::string& out, const Font& font) {
  if (!font) {
    out += "null";
    return;
  }
  out += "{\"Name\":";
  appendText(out, font->Name);
  out += ",\"Size\":";
  appendSingle(out, font->Size);
  for (const auto& [name, flag] : fontFlags) {
    out.append(",\"").append(name).append("\":");
    appendBoolean(out, (*font).*flag);
  }
  out += '}';
}

Font fontOf(const Element& value) {
  if (value.is_null()) return {};
  const auto object = valueAs<dom::object>(value);
  if (!object) throw Unsuitable("a font is needed");
  auto font = makeRef<FontObject>();
  for (const dom::key_value_pair field : *object) {
    if (field.key == "Name") font->Name = textOf(field.value);
    if (field.key == "Size") font->Size = singleOf(field.value);
    for (const auto& [name, flag] : fontFlags)
      if (field.key == name) (*font).*flag = booleanOf(field.value);
  }
  return font;
}

}  // namespace norvane::json
