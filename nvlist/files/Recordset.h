#pragma once

#include <cstdint>
#include <optional>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/Variant.h>

namespace norvane {

/// The rows of a database query, one of which is current. nvList::Recordset fills a list from their
/// first field. Hosts derive from this class; calling a member they do not override throws
/// Failure 438.
class Recordset : public Object {
 public:
  /// Number of rows; -1 if unknown.
  virtual std::int32_t RecordCount() { throw Failure::noSuchMember(); }
  /// Makes the first row the current one.
  virtual void MoveFirst() { throw Failure::noSuchMember(); }
  /// Makes the next row the current one.
  virtual void MoveNext() { throw Failure::noSuchMember(); }
  /// Whether the current row is past the last one. Not named EOF, which is a macro in C.
  virtual Boolean Eof() { throw Failure::noSuchMember(); }
  /// The value of a field of the current row, counted from 0; std::nullopt for Null.
  virtual std::optional<Variant> Value(std::int32_t field) {
    (void)field;
    throw Failure::noSuchMember();
  }
};

}  // namespace norvane
