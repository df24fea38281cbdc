#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// Texts are UTF-8, a character is a code point. A byte that starts no valid sequence is a
/// character of its own: it stands as firstStrayByte plus its value, so that it equals no code
/// point and can be written back as it was.
inline constexpr char32_t firstStrayByte = 0x110000;

/// Whether the byte starts no character but can only continue one.
constexpr bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) >> 6) == 2; }

/// decodeNext() for characters that may take several bytes.
char32_t decodeLong(std::string_view text, std::size_t& at);

/// The character at `at`, which must lie before the end; moves `at` behind it.
inline char32_t decodeNext(std::string_view text, std::size_t& at) {
  const auto byte = static_cast<unsigned char>(text[at]);
  if (byte < 0x80) {
    ++at;
    return byte;
  }
  return decodeLong(text, at);
}

/// The character before `at`, which must lie between two characters behind the first; moves `at`
/// to where it starts.
char32_t decodePrevious(std::string_view text, std::size_t& at);

/// How many characters the text holds.
std::size_t characterCount(std::string_view text);

/// Appends a character as decodeNext() gives it; what is no character at all becomes U+FFFD.
void appendUtf8(std::string& text, char32_t character);

/// The character's simple (one to one) upper-case form, whatever the locale; itself if it has none.
char32_t upperCase(char32_t character);

/// The text with every character in its simple upper-case form. Stray bytes stay as they are.
std::string upperCase(std::string_view text);

/// foldCase() for characters beyond ASCII.
char32_t foldLong(char32_t character);

/// The form in which characters that differ in case alone are equal (Unicode simple case folding).
inline char32_t foldCase(char32_t character) {
  if (character >= 0x80) return foldLong(character);
  return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}

/// The text without the blanks at both ends.
std::string_view trimmedBlanks(std::string_view text);

/// Calls `take` with each line of a text, until it returns false. CR, LF and both together end a
/// line and are not part of it; an empty text is one empty line.
template <class Take>
void forEachLine(std::string_view text, Take&& take) {
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    if (!take(text.substr(0, end)) || end == std::string_view::npos) return;
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
  }
}

}  // namespace norvane
