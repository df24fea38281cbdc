#pragma once

#include <cstdint>
#include <string>

#include <nvlist/values/Failure.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// A list box of the host, or anything that has rows of text. A host or a platform derives from it.
/// What it does not override it does not have, and calling that is Failure 438.
class ListBox : public Object {
 public:
  /// Number of rows.
  virtual std::int32_t ListCount() { throw Failure::noSuchMember(); }
  /// The text of a row, from 0.
  virtual std::string List(std::int32_t index) {
    (void)index;
    throw Failure::noSuchMember();
  }
  /// Adds a row behind the last one.
  virtual void AddItem(const std::string& text) {
    (void)text;
    throw Failure::noSuchMember();
  }
};

}  // namespace norvane
