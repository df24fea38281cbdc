#pragma once

#include <cstdint>
#include <optional>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// Rows with a current one, as a database hands them out; a list fills itself from their first
/// field (nvList::Recordset). A host derives from it. What it does not override it does not have,
/// and calling that is Failure 438.
class Recordset : public Object {
 public:
  /// Number of rows; -1 where it is not known.
  virtual std::int32_t RecordCount() { throw Failure::noSuchMember(); }
  /// Makes the first row the current one.
  virtual void MoveFirst() { throw Failure::noSuchMember(); }
  /// Makes the row behind the current one the current one.
  virtual void MoveNext() { throw Failure::noSuchMember(); }
  /// Whether the current row lies behind the last one. (C has a macro of the name EOF.)
  virtual Boolean Eof() { throw Failure::noSuchMember(); }
  /// The value of a field of the current row, from 0; nothing stands for Null.
  virtual std::optional<Variant> Value(std::int32_t field) {
    (void)field;
    throw Failure::noSuchMember();
  }
};

}  // namespace norvane
