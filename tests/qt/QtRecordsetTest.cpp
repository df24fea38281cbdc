#include <nvlist/platform/qt/QtRecordset.h>

#include <QSqlDatabase>
#include <QSqlError>

#include "../failureOf.h"
#include "WidgetTest.h"

namespace norvane {
namespace {

/// A list and a database in memory with four places, one of them without a name.
class QtRecordsetTest : public WidgetTest {
 protected:
  QtRecordsetTest() {
    database.setDatabaseName(":memory:");
    EXPECT_TRUE(database.open()) << database.lastError().text().toStdString();
    rows("CREATE TABLE places (name TEXT, people INTEGER, area REAL, seal BLOB)");
    rows(
        "INSERT INTO places VALUES"
        " ('Bergen', 291940, 464.71, x'C3A6'), ('Tromsø', 78745, 2521.342857, NULL),"
        " ('', 0, 1e20, NULL), ('Ålesund', 5000000000, -0.5, NULL)");
  }
  ~QtRecordsetTest() override {
    database = {};
    QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
  }

  Ref<QtRecordset> rows(const QString& statement, bool forwardOnly = false) {
    QSqlQuery query(database);
    query.setForwardOnly(forwardOnly);
    query.exec(statement);
    return makeRef<QtRecordset>(std::move(query));
  }

  /// The texts of the items after filling, and the number and the description of a report.
  std::string filled(const Ref<Object>& source) {
    list().AutoRedraw(true);
    list().AutoCheckScroll(true);
    list().ItemsClear();
    add("old");
    list().Recordset(source);
    std::string result;
    for (std::int32_t i = 0; i < list().ItemsCount(); ++i) result += list().ItemText(i) + "|";
    for (const auto& box : std::exchange(application.boxes, {}))
      result += box.text.substr(11, box.text.find("\r\nProject") - 11);
    return result;
  }

  /// The second row cannot be computed, which fails while rows are counted or visited.
  const QString broken = "SELECT abs(-9223372036854775807 - (people < 100000)) FROM places";
  QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
};

TEST_F(QtRecordsetTest, fillsAListWithTheFirstFieldUpToWhatFails) {
  const std::pair<QString, std::string> cases[] = {
      {"SELECT name, people FROM places", "Bergen|Tromsø||Ålesund|"},
      {"SELECT area FROM places", "464.71|2521.342857|1E+20|-0.5|"},
      {"SELECT seal FROM places", "æ|94\r\nError description: Invalid use of Null"},
      {"", "old|440\r\nError description: Automation error: The query has no rows"},
      {broken, "old|440\r\nError description: Automation error: integer overflow"}};
  for (const auto& [query, result] : cases) {
    const auto source = rows(query);
    EXPECT_EQ(filled(source).substr(0, result.size()), result) << query.toStdString();
    EXPECT_TRUE(!result.ends_with('|') || filled(source) == result) << "a second time";
  }
}

TEST_F(QtRecordsetTest, countsWhereItCanWithoutLosingItsPlace) {
  const auto moved = rows("SELECT name FROM places");
  moved->MoveNext();
  EXPECT_EQ(moved->RecordCount(), 4);
  EXPECT_EQ(moved->Value(0)->toText(), "Tromsø");
  EXPECT_EQ(rows("SELECT name FROM places WHERE people < 0")->RecordCount(), 0);
}

TEST_F(QtRecordsetTest, aForwardOnlyQueryGoesOnceThroughRowsItHasNotCounted) {
  const auto source = rows("SELECT name FROM places", true);
  EXPECT_EQ(source->RecordCount(), -1);
  EXPECT_EQ(filled(source), "old|");
  std::string names;
  for (source->MoveFirst(); !source->Eof(); source->MoveNext())
    names += source->Value(0)->toText() + "|";
  EXPECT_EQ(names, "Bergen|Tromsø||Ålesund|");
  EXPECT_EQ(failureOf([&] { source->MoveFirst(); }), 440);
  const auto failing = rows(broken, true);
  EXPECT_EQ(failing->Value(0)->toText(), "9223372036854775807");
  EXPECT_EQ(failureOf([&] { failing->MoveNext(); }), 440);
  EXPECT_TRUE(failing->Eof());
}

TEST_F(QtRecordsetTest, refusesFieldsAndRowsThatAreNotThere) {
  const auto source = rows("SELECT name, people FROM places LIMIT 1");
  EXPECT_EQ(source->Value(1)->type(), Variant::Type::Int32);
  for (const int field : {2, -1}) EXPECT_EQ(failureOf([&] { source->Value(field); }), 9);
  source->MoveNext();
  EXPECT_EQ(failureOf([&] { source->Value(0); }), 3021);
  EXPECT_EQ(failureOf([&] { source->MoveNext(); }), 3021);
}

}  // namespace
}  // namespace norvane
