#include <nvlist/values/numbers.h>

#include <charconv>
#include <locale>
#include <sstream>

#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<double> prefixedNumber(std::string_view digits, int base) {
  std::uint32_t value = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (error != std::errc{} || end != digits.data() + digits.size()) return std::nullopt;
  // Up to four hexadecimal digits are a 16-bit number, more a 32-bit one; both are signed.
  const bool isShort = base == 16 ? digits.size() <= 4 : value <= 0xFFFF;
  return isShort ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
}

/// Whether the text is a decimal number: an optional sign, digits with at most one point, and an
/// optional exponent.
bool isDecimal(std::string_view text) {
  std::size_t at = 0;
  const auto digits = [&] {
    const std::size_t start = at;
    while (at < text.size() && isDigit(text[at])) ++at;
    return at - start;
  };
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t count = digits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    count += digits();
  }
  if (count == 0) return false;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (digits() == 0) return false;
  }
  return at == text.size();
}

}  // namespace

std::optional<double> numberOf(std::string_view text) {
  text = trimmed(text, " \t\n\v\f\r");
  if (text.size() > 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return prefixedNumber(text.substr(2), 16);
    if (text[1] == 'O' || text[1] == 'o') return prefixedNumber(text.substr(2), 8);
    return std::nullopt;
  }
  if (!isDecimal(text)) return std::nullopt;
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  if (stream.fail()) return std::nullopt;
  return value;
}

std::string textOf(std::int32_t number) { return std::to_string(number); }

std::string textOf(float number) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.precision(7);
  stream << std::uppercase << number;
  return stream.str();
}

std::string hexTextOf(std::uint32_t number, int width) {
  std::string result;
  do {
    result.insert(result.begin(), "0123456789ABCDEF"[number & 15]);
    number >>= 4;
  } while (number != 0);
  const auto wanted = static_cast<std::size_t>(width > 0 ? width : 0);
  if (result.size() < wanted) result.insert(0, wanted - result.size(), '0');
  return result;
}

}  // namespace norvane
