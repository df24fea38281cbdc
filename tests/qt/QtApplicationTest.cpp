#include <nvlist/platform/qt/QtApplication.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <nvlist/objects/Failure.h>
#include <nvlist/objects/reporter.h>

namespace norvane {
namespace {

/// Closes the next message box and keeps what it showed.
struct BoxReader {
  int shown = 0;
  QString title, text;
  QMessageBox::Icon icon = QMessageBox::NoIcon;

  BoxReader() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      ++shown;
      title = box->windowTitle();
      text = box->text();
      icon = box->icon();
      box->accept();
    });
    timer_.start(5);
  }

 private:
  QTimer timer_;
};

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

TEST(QtApplicationTest, tellsTheProgram) {
  QtApplication application;
  const ApplicationFacts facts = application.facts();
  EXPECT_EQ(facts.EXEName, "nvlist_qt_tests");
  EXPECT_EQ(facts.Minor, 14);
  EXPECT_EQ(facts.Revision, 159);
  EXPECT_TRUE(application.programPath().starts_with(facts.Path));
}

TEST(QtApplicationTest, readsSettingsByTheLastLevelOfTheKey) {
  QSettings settings(QSettings::UserScope, "Norvane");
  settings.setValue("Folder", "logs/of, everything");
  settings.setValue("Number", 7);
  settings.setValue("Code", "007");
  settings.sync();
  QtApplication application;
  EXPECT_EQ(application.readSetting("Software\\Norvane", "Folder").toText(), "logs/of, everything");
  EXPECT_EQ(application.readSetting("Software\\Norvane", "Number").type(), Variant::Type::Int32);
  EXPECT_EQ(application.readSetting("Software\\Norvane", "Code").toText(), "007");
  EXPECT_TRUE(application.readSetting("Software\\Norvane", "Missing").isEmpty());
  EXPECT_TRUE(application.readSetting("Software\\Nobody", "Folder").isEmpty());
}

TEST(QtApplicationTest, appendsBytesAsTheyAre) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString() + "\\log.txt";
  QtApplication application;
  application.appendToFile(path, "one\r\n");
  application.appendToFile(path, "two\n");
  EXPECT_EQ(contents(folder.filePath("log.txt")), "one\r\ntwo\n");
  try {
    application.appendToFile(folder.path().toStdString() + "\\missing\\log.txt", "x");
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.number(), 75);
  }
}

TEST(QtApplicationTest, aReportWritesTheLogAndShowsABox) {
  const QTemporaryDir folder;
  QSettings settings(QSettings::UserScope, "Norvane");
  settings.setValue("ErrorLog", folder.path());
  settings.sync();

  QtApplication application;
  BoxReader box;
  report({9, "<b>Subscript</b> out of range", "ItemText", 12, "Klassenmodul", "cItem"});
  EXPECT_EQ(box.shown, 1);
  EXPECT_EQ(box.title, "Error");
  EXPECT_EQ(box.icon, QMessageBox::Critical);
  EXPECT_TRUE(box.text.contains("Error description: <b>Subscript</b> out of range\n"));
  EXPECT_TRUE(box.text.endsWith("Version: 3.14.159"));
  EXPECT_TRUE(contents(folder.filePath("NorvaneError.txt")).contains("Error no.: 9\r\n"));

  settings.remove("ErrorLog");
  settings.sync();
}

TEST(QtApplicationTest, ensureLeavesAHostsApplicationInUse) {
  {
    QtApplication hosts;
    QtApplication::ensure();
    EXPECT_EQ(&Application::inUse(), &hosts);
  }
  QtApplication::ensure();
  EXPECT_TRUE(dynamic_cast<QtApplication*>(&Application::inUse()));
}

}  // namespace
}  // namespace norvane
