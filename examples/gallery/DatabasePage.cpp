#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QSqlError>
#include <QTemporaryFile>
#include <QToolButton>
#include <memory>

#include <nvlist/platform/qt/QtRecordset.h>

#include "Pages.h"

using norvane::nvList;

namespace gallery {
namespace {

/// The last one shows an error of the database, the one before it a Null.
constexpr const char* queries[] = {
    "SELECT country || '|right=' || count(*) FROM places GROUP BY country",
    "SELECT country || '|right=' || count(*) FROM places GROUP BY country ORDER BY count(*) DESC",
    "SELECT name FROM places WHERE country = 'Norway' ORDER BY name",
    "SELECT name || '|right=' || count(*) FROM places GROUP BY name HAVING count(*) > 1",
    "SELECT nullif(name, 'Oslo') FROM places WHERE country = 'Norway'",
    "SELECT name FROM cities",
};

/// The sample database, copied to a file that a driver can open. It must outlive all its queries.
class Database : public QObject {
 public:
  Database();
  ~Database() override;

  /// Why it cannot be read; empty if it can.
  QString problem() const;
  QSqlQuery run(const QString& statement) const;

 private:
  static constexpr auto connection = "gallery";

  std::unique_ptr<QTemporaryFile> file_;
};

Database::Database() : file_(QTemporaryFile::createNativeFile(":/sample/places.db")) {
  QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
  database.setConnectOptions("QSQLITE_OPEN_READONLY");
  if (file_) database.setDatabaseName(file_->fileName());
  database.open();
}

Database::~Database() { QSqlDatabase::removeDatabase(connection); }

QString Database::problem() const {
  const QSqlDatabase database = QSqlDatabase::database(connection, false);
  if (database.isOpen()) return {};
  return "The sample database cannot be opened: " + database.lastError().text().simplified();
}

QSqlQuery Database::run(const QString& statement) const {
  QSqlQuery result(QSqlDatabase::database(connection, false));
  result.exec(statement);
  return result;
}

/// A fill that ends early leaves AutoCheckScroll and AutoRedraw off.
void fillFrom(nvList& list, QSqlQuery query) {
  list.Recordset(norvane::makeRef<norvane::QtRecordset>(std::move(query)));
  list.AutoCheckScroll(true);
  list.AutoRedraw(true);
  list.TopIndex(0);
}

QComboBox* queryBox() {
  auto* result = new QComboBox;
  result->setObjectName("query");
  result->setEditable(true);
  result->setInsertPolicy(QComboBox::NoInsert);
  result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  result->setToolTip("A query; its first field goes to the list");
  for (const char* query : queries) result->addItem(query);
  result->lineEdit()->setCursorPosition(0);
  return result;
}

}  // namespace

void fillDatabase(Stage& stage) {
  auto database = std::make_unique<Database>();
  if (!database->problem().isEmpty()) return stage.say(database->problem());
  nvList& list = stage.addList("database");
  list.MinHeight(20);
  list.Recordset(norvane::makeRef<norvane::QtRecordset>(database->run(queries[0])));
  list.ListIndex(0);

  QComboBox* box = queryBox();
  auto* button = new QToolButton;
  button->setText("Fill");
  button->setToolTip("Fill the list with the rows of the query");
  QHBoxLayout* row = stage.addRow();
  row->addWidget(box, 1);
  row->addWidget(button);
  const auto fill = [&list, box, source = database.get()] {
    fillFrom(list, source->run(box->currentText()));
  };
  QObject::connect(button, &QToolButton::clicked, &stage, fill);
  QObject::connect(box, &QComboBox::activated, &stage, [fill, line = box->lineEdit()] {
    line->setCursorPosition(0);
    fill();
  });
  // The box reports Return only for the queries it contains.
  QObject::connect(box->lineEdit(), &QLineEdit::returnPressed, &stage, [fill, box] {
    if (box->findText(box->currentText()) < 0) fill();
  });
  // Children are destroyed in order, so the list and its query go first.
  database.release()->setParent(&stage);
}

}  // namespace gallery
