#pragma once

#include <QSqlQuery>
#include <optional>

#include <nvlist/files/Recordset.h>

namespace norvane {

/// The rows of an SQL query, with any driver of Qt, to fill a list from:
///
///     QSqlQuery query("SELECT name FROM cities ORDER BY name");
///     names->list().Recordset(makeRef<QtRecordset>(std::move(query)));
///
/// It starts at the first row. An error of the database throws Failure 440 with the driver's text,
/// and so does every call if the query has failed or is not one that returns rows. This class is in
/// the library nvlist::qt_sql, which needs Qt's Sql module.
class QtRecordset final : public Recordset {
 public:
  /// Takes over a query that has been executed. Its connection has to stay open.
  explicit QtRecordset(QSqlQuery query) : query_(std::move(query)) {}

  /// If the driver does not report the count, all rows are fetched once to count them; a
  /// forward-only query returns -1 then.
  std::int32_t RecordCount() override;
  /// Throws Failure 440 if a forward-only query is past its first row.
  void MoveFirst() override;
  /// Throws Failure 3021 past the last row.
  void MoveNext() override;
  Boolean Eof() override;
  /// A number or Boolean that a Variant can hold exactly keeps its type; any other value is
  /// converted to a text by Qt. Throws Failure 9 if there is no such field, 13 for a value without
  /// a text, and 3021 past the last row.
  std::optional<Variant> Value(std::int32_t field) override;

 private:
  void needRows() const;
  void failWhereRefused() const;
  void needCurrentRow();
  bool isAtEnd();
  std::int32_t countRows();

  QSqlQuery query_;
  std::optional<std::int32_t> count_;
  int fields_ = 0;               ///< 0 until the first value is read
  std::optional<bool> isAtEnd_;  ///< empty until the first move
};

}  // namespace norvane
