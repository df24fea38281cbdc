#include <nvlist/platform/qt/place/QtPlace.h>

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <functional>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/QtListBox.h>
#include <nvlist/platform/qt/QtWindow.h>
#include <nvlist/platform/qt/place/QtKeys.h>
#include <nvlist/platform/qt/place/QtTextBox.h>

#include "../failureOf.h"

namespace norvane {
namespace {

TEST(QtPlaceTest, PacksAMessageOfTheWheelAndReadsCharacters) {
  struct Control : UserControl {
    explicit Control(Container& place) : UserControl(place) {}
  };
  QWidget widget;
  QtPlace place(widget);
  Control control(place);
  std::pair<std::int32_t, std::int32_t> message;
  place.hookWheel([&](std::int32_t wParam, std::int32_t lParam) { message = {wParam, lParam}; });
  // A position of (258, -2); the buttons and keys are 2 right, 8 Ctrl, 16 middle.
  const auto packed = [](std::int16_t turn) {
    return std::pair<std::int32_t, std::int32_t>(turn * 0x10000 + 0x1A, -2 * 0x10000 + 0x102);
  };
  const auto turn = [&](int delta, int sideways = 0, Qt::KeyboardModifier key = {}) {
    QWheelEvent event({1, 2}, {258, -2}, {}, {sideways, delta}, Qt::MiddleButton | Qt::RightButton,
                      Qt::ControlModifier | key, Qt::NoScrollPhase, false);
    return place.event(&event);
  };
  EXPECT_TRUE(turn(-120));
  EXPECT_EQ(message, packed(-120));
  EXPECT_TRUE(turn(100000));
  EXPECT_EQ(message, packed(32767));
  // Some systems turn the wheel sideways while Alt is down.
  EXPECT_TRUE(turn(0, -120, Qt::AltModifier));
  EXPECT_EQ(message, packed(-120));
  EXPECT_FALSE(turn(0, -120));
  place.isDesignMode = true;
  EXPECT_FALSE(turn(-120));
  // Delete types no character, though Qt reports one.
  EXPECT_EQ(characterOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, {}, "\x7f")), 0);
}

TEST(QtPlaceTest, YieldsAfterHandlersHaveThrown) {
  QWidget widget;
  QtPlace place(widget);
  const auto post = [&](auto handler) {
    QMetaObject::invokeMethod(&widget, handler, Qt::QueuedConnection);
  };
  // More often than event loops may be nested.
  for (int i = 0; i < 20; ++i) {
    post([] { throw 1; });
    EXPECT_THROW(place.DoEvents(), int);
  }
  int failures = 0;
  place.onYieldFailure = [&](const std::exception_ptr&) { ++failures; };
  post([] { throw 1; });
  EXPECT_NO_THROW(place.DoEvents());
  EXPECT_EQ(failures, 1);
}

TEST(QtPlaceTest, ATextBoxCountsCharactersAndTakesTheFocusOnlyWhereItShows) {
  QWidget form;
  QtTextBox box(form, {[](std::int16_t&) {}, [](QEvent::Type) {}, {}});
  const QLineEdit& edit = *form.findChild<QLineEdit*>();
  box.Text("a\U0001F600b\U0001F600");
  box.select(2, INT32_MAX);
  EXPECT_EQ(edit.selectedText().toStdString(), "b\U0001F600");
  box.Visible(true);
  EXPECT_EQ(failureOf([&] { box.SetFocus(); }), 5);
}

TEST(QtPlaceTest, ListBoxesAndWindowsFailWithoutTheirWidgets) {
  QWidget form;
  auto* list = new QListWidget(&form);
  list->addItem("Zoë");
  QtListBox box(*list);
  QtWindow window(form);
  QtWindow control(*list);
  box.AddItem(box.List(0) + "Ω");
  EXPECT_EQ(box.List(1), "ZoëΩ");
  EXPECT_EQ(failureOf([&] { box.List(2); }), 381);
  EXPECT_EQ(control.Container()->hwnd(), handleOf(form));
  EXPECT_EQ(failureOf([&] { window.Container(); }), 438);

  const std::int32_t gone = handleOf(*list);
  EXPECT_EQ(widgetOf(gone), list);
  delete list;
  EXPECT_EQ(widgetOf(gone), nullptr);
  EXPECT_EQ(failureOf([&] { box.ListCount(); }), 91);
  EXPECT_EQ(failureOf([&] { control.hwnd(); }), 91);
}

TEST(QtPlaceTest, WidgetsAtTheSameAddressHaveDifferentHandles) {
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

}  // namespace
}  // namespace norvane
