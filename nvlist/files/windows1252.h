#pragma once

#include <string>
#include <string_view>

/// The code page of list files, one byte a character. The five bytes that it leaves open stand for
/// the control characters of the same number, so that every byte comes back as it was.
namespace norvane::windows1252 {

/// Appends the text, `?` for each character that the code page lacks.
void append(std::string& bytes, std::string_view text);

/// The text that the bytes stand for.
std::string textOf(std::string_view bytes);

}  // namespace norvane::windows1252
