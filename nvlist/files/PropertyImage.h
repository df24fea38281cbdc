#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <nvlist/values/Variant.h>

namespace norvane {

/// A picture in a property store: the bytes of its file, not yet decoded.
class StoredPicture final : public Object {
 public:
  explicit StoredPicture(std::string_view bytes);

  std::vector<std::byte> file;
};

/// A read-only property store over the bytes of its contents. docs/list-files.md describes the
/// layout of the bytes.
class PropertyImage final : public Object {
 public:
  /// Replaces the contents; `bytes` is a text with one character per byte. Throws Failure 321, and
  /// keeps the old contents, if the layout is invalid or a property is cut short.
  void Contents(Variant bytes);

  /// The value of a property, or the default if it is not stored. Names are case-sensitive; the
  /// first of several properties of the same name counts. A picture is returned as a StoredPicture.
  Variant ReadProperty(std::string_view name, const Variant& defaultValue) const;

  /// Size of the contents in bytes.
  std::size_t size() const { return contents_.text().size(); }

 private:
  std::string_view nameAt(std::uint32_t place) const;

  Variant contents_;
  std::vector<std::uint32_t> places_;  ///< offsets of the properties, sorted by name
};

/// The byte array in the tagged variant at the start of a file. Throws if the file does not start
/// with one.
Variant readTaggedBytes(const std::string& path);

}  // namespace norvane
