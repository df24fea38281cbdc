#include <nvlist/platform/qt/QtRecordset.h>

#include <QSqlDatabase>
#include <QSqlError>

#include "../failureOf.h"
#include "WidgetTest.h"

namespace norvane {
namespace {

enum class Direction { both, forwardOnly };

/// A list and a database in memory with four places, one of them without a name.
class QtRecordsetTest : public WidgetTest {
 protected:
  QtRecordsetTest() {
    database.setDatabaseName(":memory:");
    EXPECT_TRUE(database.open()) << database.lastError().text().toStdString();
    run("CREATE TABLE places (name TEXT, people INTEGER, area REAL, seal BLOB)");
    run("INSERT INTO places VALUES"
        " ('Bergen', 291940, 464.71, x'C3A6'), ('Tromsø', 78745, 2521.342857, NULL),"
        " ('', 0, 1e20, NULL), ('Ålesund', 5000000000, -0.5, NULL)");
  }
  ~QtRecordsetTest() override {
    database = {};
    QSqlDatabase::removeDatabase(QSqlDatabase::defaultConnection);
  }

  QSqlQuery run(const QString& statement, Direction direction = Direction::both) {
    QSqlQuery query(database);
    query.setForwardOnly(direction == Direction::forwardOnly);
    query.exec(statement);
    return query;
  }
  Ref<QtRecordset> rows(const QString& statement, Direction direction = Direction::both) {
    return makeRef<QtRecordset>(run(statement, direction));
  }

  /// The texts of the items after filling, and the reports.
  std::string filled(const Ref<Object>& source) {
    list().AutoRedraw(true);
    list().AutoCheckScroll(true);
    list().ItemsClear();
    list().ItemsAdd("old");
    list().Recordset(source);
    std::string result;
    for (std::int32_t i = 0; i < list().ItemsCount(); ++i) result += list().ItemText(i) + "|";
    for (const auto& box : std::exchange(application.boxes, {}))
      result += box.text.substr(0, box.text.find("\r\nProject"));
    return result;
  }

  QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
};

/// The second row cannot be computed, which fails while rows are counted or visited.
const char* const broken = "SELECT abs(-9223372036854775807 - (people < 100000)) FROM places";

TEST_F(QtRecordsetTest, fillsAListWithTheFirstFieldUpToWhatFails) {
  const struct {
    const char* query;
    std::string result;
  } cases[] = {
      {"SELECT name, people FROM places", "Bergen|Tromsø||Ålesund|"},
      {"SELECT area FROM places", "464.71|2521.342857|1E+20|-0.5|"},
      {"SELECT seal FROM places", "æ|Error no.: 94\r\nError description: Invalid use of Null"},
      {broken, "old|Error no.: 440\r\nError description: Automation error: integer overflow"}};
  for (const auto& test : cases) {
    const std::string result = filled(rows(test.query));
    EXPECT_EQ(result.substr(0, test.result.size()), test.result) << test.query;
  }
  const auto source = rows("SELECT name FROM places LIMIT 2");
  EXPECT_EQ(filled(source), filled(source)) << "a second time";
  EXPECT_EQ(filled(source), "Bergen|Tromsø|");
  EXPECT_EQ(filled(makeRef<QtRecordset>(QSqlQuery(database))),
            "old|Error no.: 440\r\nError description: Automation error: The query has no rows");
}

TEST_F(QtRecordsetTest, countsWhereItCanWithoutLosingItsPlace) {
  const auto moved = rows("SELECT name FROM places");
  moved->MoveNext();
  EXPECT_EQ(moved->RecordCount(), 4);
  EXPECT_EQ(moved->Value(0)->toText(), "Tromsø");

  const auto empty = rows("SELECT name FROM places WHERE people < 0");
  EXPECT_EQ(empty->RecordCount(), 0);
  EXPECT_TRUE(empty->Eof());
}

TEST_F(QtRecordsetTest, aForwardOnlyQueryGoesOnceThroughRowsItHasNotCounted) {
  const auto source = rows("SELECT name FROM places", Direction::forwardOnly);
  EXPECT_EQ(source->RecordCount(), -1);
  EXPECT_EQ(filled(source), "old|");
  std::string names;
  for (source->MoveFirst(); !source->Eof(); source->MoveNext())
    names += source->Value(0)->toText() + "|";
  EXPECT_EQ(names, "Bergen|Tromsø||Ålesund|");
  EXPECT_EQ(failureOf([&] { source->MoveFirst(); }), 440);
  const auto failing = rows(broken, Direction::forwardOnly);
  EXPECT_EQ(failing->Value(0)->toText(), "9223372036854775807");
  EXPECT_EQ(failureOf([&] { failing->MoveNext(); }), 440);
  EXPECT_TRUE(failing->Eof());
}

TEST_F(QtRecordsetTest, refusesFieldsAndRowsThatAreNotThere) {
  const auto source = rows("SELECT name, people FROM places LIMIT 1");
  EXPECT_EQ(source->Value(1)->type(), Variant::Type::Int32);
  EXPECT_EQ(failureOf([&] { source->Value(2); }), 9);
  EXPECT_EQ(failureOf([&] { source->Value(-1); }), 9);
  source->MoveNext();
  EXPECT_EQ(failureOf([&] { source->Value(0); }), 3021);
  EXPECT_EQ(failureOf([&] { source->MoveNext(); }), 3021);
}

}  // namespace
}  // namespace norvane
