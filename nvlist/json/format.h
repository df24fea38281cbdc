#pragma once

#include <cstddef>
#include <string_view>

/// The constants of the format, which docs/json-lines.md describes.
namespace norvane::json::format {

// The fields of the header line.
inline constexpr std::string_view marker = "nvList";  ///< its value is the version
inline constexpr std::string_view itemCount = "Items";
inline constexpr std::string_view properties = "Properties";

inline constexpr int version = 1;

inline constexpr std::size_t blockSize = std::size_t{256} * 1024;
/// No longer line is written, and a longer one is not read, so that memory use is bounded.
inline constexpr std::size_t longestLine = std::size_t{256} * 1024 * 1024;

}  // namespace norvane::json::format
