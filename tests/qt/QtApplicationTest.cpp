#include <nvlist/platform/qt/QtApplication.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <nvlist/objects/reporter.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
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
  EXPECT_TRUE(application.readSetting("Software\\Nobody", "Folder").isEmpty());
}

TEST(QtApplicationTest, appendsBytesAsTheyAre) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString() + "\\log.txt";
  QtApplication application;
  application.appendToFile(path, "one\r\n");
  application.appendToFile(path, "two\n");
  EXPECT_EQ(contents(folder.filePath("log.txt")), "one\r\ntwo\n");
}

TEST(QtApplicationTest, aReportWritesTheLogAndShowsABox) {
  const QTemporaryDir folder;
  QSettings settings(QSettings::UserScope, "Norvane");
  settings.setValue("ErrorLog", folder.path());
  settings.sync();

  QtApplication application;
  QStringList shown;
  QTimer closing;
  QObject::connect(&closing, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    shown << box->text();
    box->accept();
  });
  closing.start(5);
  report({9, "<b>Subscript</b> out of range", "ItemText", 12, "Klassenmodul", "cItem"});
  ASSERT_EQ(shown.size(), 1);
  EXPECT_TRUE(shown[0].contains("Error description: <b>Subscript</b> out of range\n"));
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
