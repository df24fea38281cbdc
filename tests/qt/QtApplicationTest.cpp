#include <nvlist/platform/qt/QtApplication.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <functional>
#include <memory>
#include <utility>

#include <nvlist/objects/SpEv.h>
#include <nvlist/objects/reporter.h>
#include <nvlist/platform/qt/QtPicture.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

QByteArray contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

class QtApplicationTest : public testing::Test {
 protected:
  /// Reports a failure, and does something while a box is open.
  static void reportAnd(const std::function<void(QWidget& box)>& act) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (QWidget* const box = QApplication::activeModalWidget()) act(*box);
    });
    timer.start(5);
    report({9, "<b>Subscript</b> out of range", "ItemText", 12, "Klassenmodul", "cItem"});
  }

  const QTemporaryDir folder;
  QSettings settings{QSettings::UserScope, "Norvane"};
};

TEST_F(QtApplicationTest, ReadsSettingsByTheLastLevelOfTheKey) {
  // As Qt writes them, and as a person does, without quotes.
  write(settings.fileName(),
        "[Other]\nByHand=a,b\n[General]\nFolder=\"logs/of, everything\"\nNumber=7\nCode=007\n"
        "ByHand=/var/log/a,  b\nQuoted=x, \"y\"\n");
  QtProgram program;
  const std::pair<const char*, Variant> values[] = {
      {"Folder", "logs/of, everything"}, {"Number", 7},     {"Code", "007"},
      {"ByHand", "/var/log/a,  b"},      {"Quoted", "x,y"}, {"Missing", Variant()}};
  for (const auto& [name, value] : values) {
    const Variant read = program.readSetting("Software\\Norvane", name);
    EXPECT_EQ(read.toText(), value.toText());
    EXPECT_EQ(read.type(), value.type()) << name;
  }
}

TEST_F(QtApplicationTest, NamesTheProgramAndTheTime) {
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
  EXPECT_EQ(program.timeText().size(), std::string("12:34:56").size());
}

/// Also where the active window, which is the parent of the box, is destroyed meanwhile.
TEST_F(QtApplicationTest, AReportWritesTheLogAndShowsABox) {
  settings.setValue("ErrorLog", folder.path());
  settings.sync();
  QtApplication application;
  application.appendToFile(folder.path().toStdString() + "\\NorvaneError.txt", "\xFF\n");
  QString shown;
  reportAnd([&](QWidget& box) {
    shown = dynamic_cast<QMessageBox&>(box).text();
    box.close();
  });
  EXPECT_TRUE(shown.contains("Error description: <b>Subscript</b> out of range\n"));
  const QByteArray log = contents(folder.filePath("NorvaneError.txt"));
  EXPECT_TRUE(log.startsWith("\xFF\n")) << "bytes are appended as they are";
  EXPECT_TRUE(log.contains("Error no.: 9\r\n"));
  settings.remove("ErrorLog");
  settings.sync();

  auto window = std::make_unique<QWidget>();
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  reportAnd([&](QWidget&) { window.reset(); });
  EXPECT_EQ(window, nullptr);
}

TEST_F(QtApplicationTest, EnsureAddsWhatTheHostHasNotMade) {
  {
    Program hosts;
    QtApplication::ensure();
    EXPECT_EQ(&Program::inUse(), &hosts);
    EXPECT_TRUE(dynamic_cast<QtFiles*>(&Files::inUse()));
  }
  QtApplication::ensure();
  EXPECT_TRUE(dynamic_cast<QtProgram*>(&Program::inUse()));
}

TEST_F(QtApplicationTest, ReturnsAMouseButtonThatIsDownOrWasPressed) {
  QtApplication application;
  QWidget widget;
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QWindow* const window = widget.windowHandle();
  const auto pressed = [] { return static_cast<int>(SpEv().MouseButtonPressed()); };
  // Other tests may have left it pressed.
  QTest::mouseRelease(window, Qt::LeftButton);
  // A press before the first query counts.
  QTest::mouseClick(window, Qt::LeftButton);
  EXPECT_EQ(pressed(), 1);
  EXPECT_EQ(pressed(), 0);
  QTest::mousePress(window, Qt::RightButton);
  EXPECT_EQ(pressed(), 2);
  QTest::mouseRelease(window, Qt::RightButton);
  EXPECT_EQ(pressed(), 0);
}

/// On a system whose only sound player records its commands and plays for a long time.
TEST_F(QtApplicationTest, PlaysOneSoundAfterTheOther) {
  if (!QFile::exists("/proc/self")) GTEST_SKIP() << "no list of processes";
  write(folder.filePath("aplay"),
        "#!/bin/sh\nhere=${0%/*}\necho \"$$ $*\" >>\"$here/played\"\n"
        "PATH=/usr/bin:/bin exec sleep 60\n");
  QFile::setPermissions(folder.filePath("aplay"), QFile::ReadOwner | QFile::ExeOwner);
  for (const char* name : {"-one.wav", "two.wav"}) write(folder.filePath(name), "");
  /// The output of the player; each line begins with its process id.
  const auto played = [&] { return contents(folder.filePath("played")).split('\n'); };
  const auto hasPlayed = [&](int count) {
    return QTest::qWaitFor([&] { return played().size() > count; }, 5000);
  };
  const auto runs = [&](int line) {
    return QFile::exists("/proc/" + QString::fromLatin1(played()[line].split(' ').first()));
  };

  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", folder.path().toLocal8Bit());
  auto application = std::make_unique<QtApplication>();
  SpEv helper;
  const QString back = QDir::currentPath();
  QDir::setCurrent(folder.path());
  for (const char* name : {"missing.wav", "-one.wav"}) helper.PlayMusic(name);
  QDir::setCurrent(back);
  EXPECT_TRUE(hasPlayed(1));
  EXPECT_TRUE(played()[0].endsWith(" -q " + folder.filePath("-one.wav").toUtf8()));
  EXPECT_TRUE(runs(0));
  helper.PlayMusic(folder.filePath("two.wav").toStdString());
  EXPECT_FALSE(runs(0));
  EXPECT_TRUE(hasPlayed(2));
  application.reset();
  EXPECT_FALSE(runs(1));
  qputenv("PATH", path);
}

QImage imageOf(const Picture& picture) { return static_cast<const QtPicture&>(*picture).image(); }

TEST_F(QtApplicationTest, PicturesComeBackFromTheirFileBytes) {
  QtApplication application;
  QImage image(3, 2, QImage::Format_ARGB32);
  image.fill(Qt::green);
  image.setPixelColor(2, 1, QColor(10, 20, 30, 40));
  const Picture own = QtPicture::fromImage(image);
  const Picture back = application.loadPicture(own->fileBytes());
  EXPECT_EQ(back->fileBytes(), own->fileBytes());
  EXPECT_EQ(imageOf(back), imageOf(own));
  EXPECT_THROW(application.loadPicture(std::vector<std::byte>(100)), Failure);
}

TEST_F(QtApplicationTest, PicturesKeepNoMorePixelsThanTheBudget) {
  QtApplication application;
  const qsizetype usual = QtPicture::pixelBudget();
  const auto bytes = QtPicture::fromImage(QImage(100, 100, QImage::Format_RGB32))->fileBytes();
  const Picture one = application.loadPicture(bytes), other = application.loadPicture(bytes);
  QtPicture::pixelBudget(15'000);
  const qint64 decoded = imageOf(one).cacheKey();
  EXPECT_EQ(imageOf(one).cacheKey(), decoded) << "decoded once";
  imageOf(other);
  EXPECT_NE(imageOf(one).cacheKey(), decoded) << "dropped for the other one";
  QtPicture::pixelBudget(9'999);
  EXPECT_THROW(application.loadPicture(bytes), Failure);
  EXPECT_TRUE(imageOf(one).isNull());
  QtPicture::pixelBudget(usual);
}

}  // namespace
}  // namespace norvane
