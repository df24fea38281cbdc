#pragma once

#include <string>
#include <string_view>

/// Conversion between UTF-8 and Windows-1252, the code page of list files. The five bytes that the
/// code page leaves undefined map to the control characters of the same number, so that every byte
/// survives a round trip.
namespace norvane::windows1252 {

/// Appends a UTF-8 text to `bytes`, with `?` for each character that the code page lacks.
void append(std::string& bytes, std::string_view text);

/// Converts bytes to UTF-8.
std::string textOf(std::string_view bytes);

}  // namespace norvane::windows1252
