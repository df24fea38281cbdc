#pragma once

#include <cstddef>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include <nvlist/core/ListItem.h>
#include <nvlist/json/values.h>

namespace norvane::json {

/// The pictures that were converted last. Neighbouring items often share an icon: it is encoded
/// only once, and after loading the items share it again.
class RecentPictures {
 public:
  /// The file of a picture in base64; empty if it has no file. Valid until the next call.
  const std::string& textOf(const Picture& picture);
  /// The picture whose file is given in base64. Throws Unsuitable if it is no picture.
  Picture pictureOf(std::string_view text);

 private:
  struct Entry {
    Picture picture;
    std::string text;
  };
  Entry& next() { return entries_[next_++ % std::size(entries_)]; }

  Entry entries_[8];
  std::size_t next_ = 0;
};

/// A field of an item.
struct ItemField {
  std::string_view name;
  /// Appends the value. Returns false if it was left out and null was written.
  bool (*append)(std::string& out, const ListItem& item, RecentPictures& pictures);
  /// Sets the field. Throws Unsuitable for a value that it cannot take.
  void (*read)(ListItem& item, const Element& value, RecentPictures& pictures);
  bool (*isSame)(const ListItem& a, const ListItem& b);
};

/// All fields in the order in which they are written.
std::span<const ItemField> itemFields();

/// The fields of an item that is added without arguments.
ListItem newItem();

}  // namespace norvane::json
