#include <nvlist/values/caseTables.h>
#include <nvlist/values/text.h>

namespace norvane {

namespace {

/// The length in bytes of the valid sequence at `at`. Without one, 1, and `character` is a stray
/// byte. Only for bytes beyond ASCII.
std::size_t decodeSequence(std::string_view text, std::size_t at, char32_t& character) {
  const auto lead = static_cast<unsigned char>(text[at]);
  character = firstStrayByte + lead;
  const std::size_t length = lead < 0xC2   ? 1
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 1;
  if (length == 1 || text.size() - at < length) return 1;
  char32_t value = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (!isContinuation(text[at + i])) return 1;
    value = value << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3Fu);
  }
  // Lead bytes C0 and C1 are excluded above, so two bytes are never overlong.
  const bool isOverlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  if (isOverlong || isSurrogate || value > 0x10FFFF) return 1;
  character = value;
  return length;
}

}  // namespace

char32_t decodeLong(std::string_view text, std::size_t& at) {
  char32_t character;
  at += decodeSequence(text, at, character);
  return character;
}

char32_t decodePrevious(std::string_view text, std::size_t& at) {
  const std::size_t end = at--;
  const auto last = static_cast<unsigned char>(text[at]);
  if (last < 0x80) return last;
  // The character is either the whole sequence that starts at the nearest lead byte, or the last
  // byte alone.
  std::size_t lead = at;
  while (lead > 0 && end - lead < 4 && isContinuation(text[lead])) --lead;
  char32_t character;
  if (!isContinuation(text[lead]) && static_cast<unsigned char>(text[lead]) >= 0x80 &&
      decodeSequence(text, lead, character) == end - lead) {
    at = lead;
    return character;
  }
  return firstStrayByte + last;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) decodeNext(text, at);
  return count;
}

void appendUtf8(std::string& text, char32_t character) {
  if (character >= firstStrayByte && character <= firstStrayByte + 0xFF) {
    text += static_cast<char>(character - firstStrayByte);
    return;
  }
  if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) character = 0xFFFD;
  const auto continuation = [&](int shift) {
    text += static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    continuation(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xE0 | character >> 12);
    continuation(6);
    continuation(0);
  } else {
    text += static_cast<char>(0xF0 | character >> 18);
    continuation(12);
    continuation(6);
    continuation(0);
  }
}

char32_t upperCase(char32_t character) {
  if (character >= 0x80) return mapCase(upperCaseTable(), character);
  return character >= U'a' && character <= U'z' ? character - (U'a' - U'A') : character;
}

std::string upperCase(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) appendUtf8(result, upperCase(decodeNext(text, at)));
  return result;
}

char32_t foldLong(char32_t character) { return mapCase(foldCaseTable(), character); }

std::string_view trimmed(std::string_view text, std::string_view blanks) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace norvane
