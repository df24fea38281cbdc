#pragma once

#include <string>

/// The parts of list files, put together by hand.
namespace norvane::bytes {

inline std::string little(int value, int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> 8 * i);
  return bytes;
}
inline std::string byte(int value) { return little(value, 1); }
inline std::string int16(int value) { return little(value, 2); }
inline std::string int32(int value) { return little(value, 4); }
inline std::string zeros(std::size_t count) { return std::string(count, '\0'); }
/// The length of a text, then the text.
inline std::string text(const std::string& bytes) {
  return int32(static_cast<int>(bytes.size())) + bytes;
}

// ---- the binary form ----

inline std::string header(int last, bool properties, int version = 273) {
  return int32(last) + byte(properties ? 0xFF : 0) + int16(version);
}
/// The fields that all versions have, except the icons.
inline std::string fields(const std::string& backColor = "0A0000") {
  return "\1" + backColor + "0B00000C0000\xFF" + byte(0) + "0D00000E00000F0000\1";
}
inline std::string flagsAndKeys(const std::string& key, const std::string& tag) {
  return std::string("\1\0\2\3", 4) + text(key) + text(tag);
}
inline const std::string noIcons = zeros(2);

// ---- the property store image ----

inline std::string property(const std::string& name, int kind, const std::string& value) {
  return int16(static_cast<int>(name.size())) + name + int16(kind) + value;
}
inline std::string image(const std::string& properties) {
  return int16(0x2011) + int16(1) + int32(static_cast<int>(properties.size()) + 4) + int32(0) +
         "PBAG" + properties;
}

}  // namespace norvane::bytes
