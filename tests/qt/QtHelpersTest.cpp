#include <nvlist/objects/SpEv.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtListBox.h>
#include <nvlist/platform/qt/QtWindow.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "../failureOf.h"

namespace norvane {
namespace {

std::string nameIn(const QTemporaryDir& folder, const char* name) {
  return folder.filePath(name).toStdString();
}

QByteArray contents(const std::string& path) {
  QFile file(QString::fromStdString(path));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(QtListBoxTest, GoesToAFileAndComesBack) {
  const QTemporaryDir folder;
  QListWidget widget;
  widget.addItems({"Zoë", "", "Ω"});
  SpEv helper;
  helper.ListSave(QtListBox::of(widget), nameIn(folder, "list"), "* ");
  helper.ListRead(QtListBox::of(widget), nameIn(folder, "list"));
  ASSERT_EQ(widget.count(), 6);
  EXPECT_EQ(widget.item(3)->text(), "* Zoë");
}

TEST(QtAdaptersTest, FailWithoutTheirWidgets) {
  auto form = std::make_unique<QWidget>();
  auto* list = new QListWidget(form.get());
  QtListBox box(*list);
  QtWindow window(*form);
  QtWindow control(*list);
  EXPECT_EQ(failureOf([&] { box.List(0); }), 381);
  EXPECT_EQ(control.Container()->hwnd(), handleOf(*form));
  EXPECT_EQ(failureOf([&] { window.Container(); }), 438);

  QWidget dialog(form.get(), Qt::Dialog);
  EXPECT_EQ(failureOf([&] { QtWindow(dialog).Container(); }), 438);

  const std::int32_t gone = handleOf(*list);
  EXPECT_EQ(widgetOf(gone), list);
  delete list;
  EXPECT_EQ(widgetOf(gone), nullptr);
  EXPECT_EQ(failureOf([&] { box.ListCount(); }), 91);
  EXPECT_EQ(failureOf([&] { control.hwnd(); }), 91);
  EXPECT_TRUE(window.isForm());
  dialog.setParent(nullptr);
  form.reset();
  EXPECT_FALSE(window.isForm());
}

TEST(QtAdaptersTest, GiveNoNumberTwice) {
  alignas(QWidget) std::byte place[sizeof(QWidget)];
  auto* widget = new (place) QWidget;
  const std::int32_t first = handleOf(*widget);
  // From then on its destruction is not reported.
  widget->disconnect();
  widget->~QWidget();
  widget = new (place) QWidget;
  EXPECT_NE(handleOf(*widget), first);
  EXPECT_EQ(widgetOf(handleOf(*widget)), widget);
  widget->~QWidget();
}

TEST(QtMouseTest, ReturnsAButtonThatIsDownOrWasPressed) {
  QtApplication application;
  SpEv helper;
  const auto pressed = [&] { return static_cast<int>(helper.MouseButtonPressed()); };
  QWidget widget;
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  QWindow* window = widget.windowHandle();
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
TEST(QtSoundTest, PlaysOneAfterTheOther) {
  if (!QFile::exists("/proc/self")) GTEST_SKIP() << "no list of processes";
  const QTemporaryDir folder;
  QFile player(folder.filePath("aplay"));
  ASSERT_TRUE(player.open(QIODevice::WriteOnly));
  player.write(
      "#!/bin/sh\nhere=${0%/*}\necho \"$$ $*\" >>\"$here/played\"\n"
      "PATH=/usr/bin:/bin exec sleep 60\n");
  player.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  player.close();
  for (const char* name : {"-one.wav", "two.wav"}) {
    QFile sound(folder.filePath(name));
    ASSERT_TRUE(sound.open(QIODevice::WriteOnly));
  }
  /// The output of the player; each line begins with its process id.
  const auto played = [&] { return contents(nameIn(folder, "played")).split('\n'); };
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
  helper.PlayMusic("missing.wav");
  helper.PlayMusic("-one.wav");
  QDir::setCurrent(back);
  EXPECT_TRUE(hasPlayed(1));
  EXPECT_TRUE(played()[0].endsWith(" -q " + folder.filePath("-one.wav").toUtf8()));
  EXPECT_TRUE(runs(0));
  helper.PlayMusic(nameIn(folder, "two.wav"));
  EXPECT_FALSE(runs(0));
  EXPECT_TRUE(hasPlayed(2));
  application.reset();
  EXPECT_FALSE(runs(1));
  qputenv("PATH", path);
}

}  // namespace
}  // namespace norvane
