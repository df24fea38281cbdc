#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// Texts are UTF-8, and a character is a code point. A byte that is not part of a valid sequence is
/// a character of its own, firstStrayByte plus its value: unlike any code point, and written back
/// unchanged.
inline constexpr char32_t firstStrayByte = 0x110000;

/// Whether the byte is a continuation byte of UTF-8.
constexpr bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) >> 6) == 2; }

/// decodeNext() for characters that may take several bytes.
char32_t decodeLong(std::string_view text, std::size_t& at);

/// The character at `at`, which must be before the end. Advances `at` past it.
inline char32_t decodeNext(std::string_view text, std::size_t& at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  if (byte < 0x80) {
    ++at;
    return byte;
  }
  return decodeLong(text, at);
}

/// The character before `at`, which must be a character boundary after the start. Moves `at` to its
/// first byte.
char32_t decodePrevious(std::string_view text, std::size_t& at);

/// The number of characters in the text.
std::size_t characterCount(std::string_view text);

/// Appends a character as returned by decodeNext(). Other values are appended as U+FFFD.
void appendUtf8(std::string& text, char32_t character);

/// The simple (one to one) upper-case form of the character in any locale, or the character itself.
char32_t upperCase(char32_t character);

/// The text with each character in its simple upper-case form. Stray bytes are unchanged.
std::string upperCase(std::string_view text);

/// foldCase() for characters beyond ASCII.
char32_t foldLong(char32_t character);

/// The folded form of a character (Unicode simple case folding). Characters that differ only in
/// case have the same.
inline char32_t foldCase(char32_t character) {
  if (character >= 0x80) return foldLong(character);
  return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}

/// The text without leading and trailing characters from `blanks`.
std::string_view trimmed(std::string_view text, std::string_view blanks);

/// Calls `take` with each line of the text until it returns false. A line ends with CR, LF or CR
/// LF, which are not part of it. An empty text is one empty line.
template <class Take>
void forEachLine(std::string_view text, Take&& take) {
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    if (!take(text.substr(0, end)) || end == std::string_view::npos) return;
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
  }
}

}  // namespace norvane
