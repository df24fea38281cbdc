#pragma once

#include <string>
#include <string_view>

#include <nvlist/values/Colour.h>
#include <nvlist/values/Font.h>
#include <nvlist/values/Variant.h>

namespace simdjson::dom {
class element;
}

/// The values of fields and properties in their JSON forms. Reading throws Unsuitable.
namespace norvane::json {

using Element = simdjson::dom::element;

/// A value that its field cannot take. what() says what the field needs.
class Unsuitable : public std::exception {
 public:
  explicit Unsuitable(const char* needed) : needed_(needed) {}
  const char* what() const noexcept override { return needed_; }

 private:
  const char* needed_;
};

std::string textOf(const Element& value);

/// true, false, or the number of a Boolean that holds another one.
void appendBoolean(std::string& out, Boolean value);
Boolean booleanOf(const Element& value);

void appendInteger(std::string& out, std::int32_t value);
std::int32_t integerOf(const Element& value);

/// A number, or "inf", "-inf" or "nan".
void appendSingle(std::string& out, float value);
float singleOf(const Element& value);

/// "#RRGGBB", "system N", or the number of any other colour.
void appendColour(std::string& out, Colour colour);
Colour colourOf(const Element& value);

/// A value of any type. An object becomes its text, or null if it has none; returns false then.
bool appendVariant(std::string& out, const Variant& value);
Variant variantOf(const Element& value);

/// A colour, "def", or a value of any other type, with texts as {"Text": "..."}. Returns false for
/// an object without a text.
bool appendColourVariant(std::string& out, const Variant& value);
Variant colourVariantOf(const Element& value);

/// An object with the fields of the font, or null.
void appendFont(std::string& out, const Font& font);
Font fontOf(const Element& value);

}  // namespace norvane::json
