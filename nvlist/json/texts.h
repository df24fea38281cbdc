#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::json {

/// Appends a text as a JSON string. A text that is not valid UTF-8 becomes an object with its bytes
/// instead: {"base64": "..."}.
void appendText(std::string& out, std::string_view text);

/// Appends bytes in base64, without quotes.
void appendBase64(std::string& out, std::string_view bytes);

/// The bytes that a text in base64 encodes, or nothing if it is malformed.
std::optional<std::string> bytesOfBase64(std::string_view text);

}  // namespace norvane::json
