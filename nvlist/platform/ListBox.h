#pragma once

#include <cstdint>
#include <string>

#include <nvlist/values/Failure.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// A list box of the host, or any object with rows of text. Hosts and platforms derive from it. A
/// member that is not overridden throws Failure 438.
class ListBox : public Object {
 public:
  /// Number of rows.
  virtual std::int32_t ListCount() { throw Failure::noSuchMember(); }
  /// The text of a row; the first row is 0.
  virtual std::string List(std::int32_t index) {
    (void)index;
    throw Failure::noSuchMember();
  }
  /// Adds a row at the end.
  virtual void AddItem(const std::string& text) {
    (void)text;
    throw Failure::noSuchMember();
  }
};

}  // namespace norvane
