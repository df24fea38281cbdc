#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <nvlist/values/Variant.h>

namespace norvane {

/// A picture as it stands in a property store: the bytes of its file.
class StoredPicture final : public Object {
 public:
  explicit StoredPicture(std::string_view bytes);

  std::vector<std::byte> file;
};

/// A property store made of the bytes of its contents, to be read. docs/list-files.md has the
/// layout of the bytes.
class PropertyImage final : public Object {
 public:
  /// Takes over the contents, a text of bytes, and forgets those before. Throws Failure 321, and
  /// keeps those before, where the layout is another one or a property does not end in time.
  void Contents(Variant bytes);

  /// The value under a name, whose case counts: the first one where it is there several times. A
  /// picture is a StoredPicture.
  Variant ReadProperty(std::string_view name, const Variant& defaultValue) const;

  /// Bytes of the contents.
  std::size_t size() const { return contents_.text().size(); }

 private:
  std::string_view nameAt(std::uint32_t place) const;

  Variant contents_;
  std::vector<std::uint32_t> places_;  ///< where the properties start, in the order of the names
};

/// The bytes in the tagged variant that a file starts with. Throws where there is none, or no array
/// of bytes in it.
Variant readTaggedBytes(const std::string& path);

}  // namespace norvane
