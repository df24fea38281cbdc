#include <nvlist/files/windows1252.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>

#include <nvlist/values/text.h>

namespace norvane::windows1252 {
namespace {

/// Code points of the bytes 0x80 to 0x9F; every other byte is its own code point.
constexpr char32_t upperHalf[] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The offset of the first byte from `at` on that is not ASCII, or the size of the text.
std::size_t endOfAscii(std::string_view text, std::size_t at) {
  for (std::uint64_t eight = 0; text.size() - at >= sizeof eight; at += sizeof eight) {
    std::memcpy(&eight, text.data() + at, sizeof eight);
    if (eight & 0x8080808080808080U) break;
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

char byteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
    return static_cast<char>(character);
  const auto* place = std::ranges::find(upperHalf, character);
  if (place == std::end(upperHalf)) return '?';
  return static_cast<char>(0x80 + (place - std::begin(upperHalf)));
}

char32_t characterOf(char byte) {
  const auto number = static_cast<unsigned char>(byte);
  return number >= 0x80 && number < 0xA0 ? upperHalf[number - 0x80] : number;
}

}  // namespace

void append(std::string& bytes, std::string_view text) {
  for (std::size_t at = 0;;) {
    const std::size_t end = endOfAscii(text, at);
    bytes.append(text, at, end - at);
    if (end == text.size()) return;
    at = end;
    bytes += byteOf(decodeNext(text, at));
  }
}

std::string textOf(std::string_view bytes) {
  std::size_t end = endOfAscii(bytes, 0);
  std::string text(bytes, 0, end);
  while (end < bytes.size()) {
    appendUtf8(text, characterOf(bytes[end]));
    const std::size_t at = end + 1;
    end = endOfAscii(bytes, at);
    text.append(bytes, at, end - at);
  }
  return text;
}

}  // namespace norvane::windows1252
