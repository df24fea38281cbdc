#pragma once

#include <QSqlQuery>
#include <optional>

#include <nvlist/files/Recordset.h>

namespace norvane {

/// The rows of an SQL query, of any driver that Qt has, to fill a list from:
///
///     QSqlQuery query("SELECT name FROM cities ORDER BY name");
///     names->list().Recordset(makeRef<QtRecordset>(std::move(query)));
///
/// It starts at the first row. What the database refuses is Failure 440 with the driver's text, and
/// so is every member of a query that failed or that has no rows by its nature. The library that
/// this is in, nvlist::qt_sql, needs Qt's Sql module.
class QtRecordset final : public Recordset {
 public:
  /// Takes the query over. It has been run, and its connection has to stay open.
  explicit QtRecordset(QSqlQuery query) : query_(std::move(query)) {}

  /// Where the driver does not know it, all rows are fetched once to count them. A forward-only
  /// query of such a driver does not know its count: -1.
  std::int32_t RecordCount() override;
  /// Failure 440 for a forward-only query that stands behind its first row.
  void MoveFirst() override;
  /// Failure 3021 behind the last row.
  void MoveNext() override;
  Boolean Eof() override;
  /// A number or truth value of the database is one where a Variant holds it without a loss, and
  /// everything else is a text, as Qt converts it. Failure 9 where there is no such field, 13 for a
  /// value that has no text, and 3021 behind the last row.
  std::optional<Variant> Value(std::int32_t field) override;

 private:
  void needRows() const;
  void failWhereRefused() const;
  void needCurrentRow();
  bool isAtEnd();
  std::int32_t countRows();

  QSqlQuery query_;
  std::optional<std::int32_t> count_;
  int fields_ = 0;               ///< nothing until the first value
  std::optional<bool> isAtEnd_;  ///< nothing until the first move
};

}  // namespace norvane
