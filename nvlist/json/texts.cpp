#include <nvlist/json/texts.h>

#include <array>
#include <cstdint>

#include <simdjson.h>

namespace norvane::json {
namespace {

constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t noDigit = 0xFF;

constexpr auto valuesOfDigits = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(noDigit);
  for (std::uint8_t i = 0; i < 64; ++i) values[static_cast<unsigned char>(digits[i])] = i;
  return values;
}();

/// What a byte of a text needs.
enum class Need : std::uint8_t { nothing, escape, check };

constexpr auto needs = [] {
  std::array<Need, 256> result{};
  for (std::size_t byte = 0; byte < result.size(); ++byte)
    result[byte] = byte >= 0x80                                 ? Need::check
                   : byte < 0x20 || byte == '"' || byte == '\\' ? Need::escape
                                                                : Need::nothing;
  return result;
}();

Need needOf(char byte) { return needs[static_cast<unsigned char>(byte)]; }

void appendEscaped(std::string& out, char byte) {
  constexpr char hex[] = "0123456789abcdef";
  switch (byte) {
    case '"':
    case '\\':
      out += {'\\', byte};
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      out += {'\\', 'u', '0', '0', hex[byte >> 4], hex[byte & 15]};
  }
}

}  // namespace

void appendText(std::string& out, std::string_view text) {
  const std::size_t start = out.size();
  bool isChecked = false;
  out += '"';
  std::size_t written = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const Need need = needOf(text[at]);
    if (need == Need::nothing) continue;
    if (need == Need::escape) {
      out.append(text, written, at - written);
      appendEscaped(out, text[at]);
      written = at + 1;
    } else if (!isChecked) {
      isChecked = true;
      if (simdjson::validate_utf8(text.data(), text.size())) continue;
      out.resize(start);
      out += "{\"base64\":\"";
      appendBase64(out, text);
      out += "\"}";
      return;
    }
  }
  out.append(text, written, text.size() - written);
  out += '"';
}

void appendBase64(std::string& out, std::string_view bytes) {
  const auto byteAt = [&](std::size_t at) -> std::uint32_t {
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
  };
  out.reserve(out.size() + (bytes.size() + 2) / 3 * 4);
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    const std::uint32_t three = byteAt(at) << 16 | byteAt(at + 1) << 8 | byteAt(at + 2);
    out += digits[three >> 18];
    out += digits[three >> 12 & 63];
    out += at + 1 < bytes.size() ? digits[three >> 6 & 63] : '=';
    out += at + 2 < bytes.size() ? digits[three & 63] : '=';
  }
}

std::optional<std::string> bytesOfBase64(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
  text.remove_suffix(padding);
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3 + 2);
  std::uint32_t bits = 0;
  int count = 0;
  for (const char digit : text) {
    const std::uint8_t value = valuesOfDigits[static_cast<unsigned char>(digit)];
    if (value == noDigit) return std::nullopt;
    bits = bits << 6 | value;
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 0xFF);
  }
  // The bits that encode nothing are zero, so that each file has one form.
  if ((bits & ((1U << count) - 1)) != 0) return std::nullopt;
  return bytes;
}

}  // namespace norvane::json
