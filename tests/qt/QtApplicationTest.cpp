#include <nvlist/platform/qt/QtApplication.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <memory>
#include <utility>

#include <nvlist/objects/about.h>
#include <nvlist/objects/reporter.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

TEST(QtApplicationTest, ReadsSettingsByTheLastLevelOfTheKey) {
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

  // As a person writes them, without quotes.
  QFile file(QSettings(QSettings::UserScope, "Norvane").fileName());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Other]\nByHand=a,b\n[General]\nByHand=/var/log/a,  b\nQuoted=x, \"y\"\n");
  file.close();
  EXPECT_EQ(application.readSetting("Software\\Norvane", "ByHand").toText(), "/var/log/a,  b");
  EXPECT_EQ(application.readSetting("Software\\Norvane", "Quoted").toText(), "x,y");
}

TEST(QtApplicationTest, NamesTheProgramAndTheTime) {
  struct Named : QtProgram {
    std::string programPath() override { return path; }
    std::string path;
  } program;
  const std::pair<const char*, const char*> names[] = {
      {"/opt/host-1.2", "host-1.2"}, {"/opt/my.host.exe", "my.host"}, {"/opt/A.EXE", "A"}};
  for (const auto& [path, name] : names) {
    program.path = path;
    EXPECT_EQ(program.facts().EXEName, name);
  }
  const QString zone = QDateTime::currentDateTime().timeZoneAbbreviation();
  for (const QLocale& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
    QLocale::setDefault(locale);
    const QString time = QString::fromStdString(program.timeText());
    EXPECT_FALSE(time.contains(zone) || time.contains(u'(') || time.contains(u'['))
        << locale.name().toStdString() << ": " << time.toStdString();
  }
  QLocale::setDefault(QLocale::c());
  EXPECT_TRUE(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d$")
                  .match(QString::fromStdString(program.timeText()))
                  .hasMatch());
}

/// The active window, which is the parent of the box, is destroyed while the box is open.
TEST(QtApplicationTest, ABoxSurvivesTheEndOfItsWindow) {
  QtApplication application;
  for (const bool isAbout : {false, true}) {
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTimer ending;
    QObject::connect(&ending, &QTimer::timeout, [&] {
      if (QApplication::activeModalWidget()) window.reset();
    });
    ending.start(5);
    if (isAbout)
      showAboutBox();
    else
      report({9, "Subscript out of range", "ItemText", 12, "Klassenmodul", "cItem"});
    EXPECT_EQ(window, nullptr);
  }
}

TEST(QtApplicationTest, AReportWritesTheLogAndShowsABox) {
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
  application.appendToFile(folder.path().toStdString() + "\\NorvaneError.txt", "\xFF\n");
  report({9, "<b>Subscript</b> out of range", "ItemText", 12, "Klassenmodul", "cItem"});
  ASSERT_EQ(shown.size(), 1);
  EXPECT_TRUE(shown[0].contains("Error description: <b>Subscript</b> out of range\n"));
  const QByteArray log = contents(folder.filePath("NorvaneError.txt"));
  EXPECT_TRUE(log.startsWith("\xFF\n")) << "bytes are appended as they are";
  EXPECT_TRUE(log.contains("Error no.: 9\r\n"));

  settings.remove("ErrorLog");
  settings.sync();
}

TEST(QtApplicationTest, EnsureAddsWhatTheHostHasNotMade) {
  {
    Program hosts;
    QtApplication::ensure();
    EXPECT_EQ(&Program::inUse(), &hosts);
    EXPECT_TRUE(dynamic_cast<QtFiles*>(&Files::inUse()));
    EXPECT_TRUE(dynamic_cast<QtDesktop*>(&Desktop::inUse()));
  }
  QtApplication::ensure();
  EXPECT_TRUE(dynamic_cast<QtProgram*>(&Program::inUse()));
}

}  // namespace
}  // namespace norvane
