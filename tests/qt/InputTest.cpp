#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QtTest/qtestspontaneevent.h>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <string>

#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/qt/QtColour.h>
#include <nvlist/platform/qt/QtKeys.h>
#include <nvlist/values/numbers.h>

namespace norvane {
namespace {

/// A form with a list of forty rows of 16 pixels between two line edits, and its host. It uses the
/// real event loop; reports are collected.
class Input : public testing::Test, public __nvList {
 protected:
  Input() {
    before.setParent(&form);
    begin();
    after.setParent(&form);
    form.resize(220, 260);
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_EQ(list->list().VisibleItems(), 12);
  }
  ~Input() override {
    delete list;
    for (const auto& box : application.boxes) ADD_FAILURE() << box.text;
  }

  void Click() override { hear("Click"); }
  void DblClick() override { hear("DblClick"); }
  void ItemCheck(std::int32_t& Item, Boolean&) override { hear("ItemCheck(" + textOf(Item) + ")"); }
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float&, float&) override {
    hear("MouseDown(" + textOf(Button) + " " + textOf(Shift) + ")");
  }
  void MouseUp(std::int16_t& Button, std::int16_t&, float&, float&) override {
    hear("MouseUp(" + textOf(Button) + ")");
  }
  void Scroll() override { hear("Scroll"); }
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
    hear("KeyDown(" + textOf(KeyCode) + " " + textOf(Shift) + ")");
    if (swallowsKeys) KeyCode = 0;
  }
  void KeyPress(std::int16_t& KeyAscii) override { hear("KeyPress(" + textOf(KeyAscii) + ")"); }
  void KeyUp(std::int16_t& KeyCode, std::int16_t&) override {
    hear("KeyUp(" + textOf(KeyCode) + ")");
  }
  void ErrorWrongIndex(Variant& Index) override { hear("Wrong(" + Index.toText() + ")"); }

  void hear(const std::string& event) {
    EXPECT_TRUE(list) << event << " after the end";
    told += (told.empty() ? "" : " ") + event;
    if (event.substr(0, event.find('(')) == endsIn) end();
  }
  void begin() {
    list = new NvListWidget(&form);
    list->setGeometry(0, 20, 200, 200);
    list->show();
    nvList& control = list->list();
    control.MinHeight(16);
    control.AllowEdit(true);
    for (int i = 0; i < 40; ++i) control.ItemsAdd({.aText = i, .aAllowEdit = true});
    control.addSink(*this);
  }
  void end() {
    endsIn = "none";
    delete list;
  }
  std::string heard() { return std::exchange(told, {}); }

  static QPoint row(int index, int x = 60) { return {x, 12 + 16 * index}; }
  void click(int index, Qt::KeyboardModifiers keys = {}, int x = 60) {
    QTest::mousePress(list, Qt::LeftButton, keys, row(index, x));
    if (list) QTest::mouseRelease(list, Qt::LeftButton, keys, row(index, x));
  }
  /// The events of a real mouse.
  void doubleClick(int index) {
    click(index);
    QTest::mouseDClick(list, Qt::LeftButton, {}, row(index));
    if (list) QTest::mouseRelease(list, Qt::LeftButton, {}, row(index));
  }
  /// One wheel event as from a real mouse: if a widget ignores it, its parent gets it.
  void turn(int delta, QPoint at = row(2)) {
    QWidget* const over = list->childAt(at) ? list->childAt(at) : list.data();
    const QPoint global = list->mapToGlobal(at);
    QWheelEvent event(over->mapFromGlobal(global), global, {}, {0, delta}, {}, {},
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(over, &event);
  }
  QLineEdit& edit() { return *list->findChild<QLineEdit*>(); }

  HeadlessApplication application;
  QWidget form;
  QLineEdit before, after;
  QPointer<NvListWidget> list;
  std::string told;
  bool swallowsKeys = false;
  std::string endsIn = "none";  ///< the event in which the host destroys the widget
};

TEST_F(Input, TheMouseSelects) {
  click(4, Qt::ShiftModifier);
  click(3, Qt::ControlModifier);
  EXPECT_EQ(heard(), "MouseDown(1 1) MouseUp(1) Click MouseDown(1 2) MouseUp(1) Click");
  QTest::mouseClick(list, Qt::RightButton, {}, row(8));
  QTest::mouseClick(list, Qt::MiddleButton, {}, row(8));
  QTest::mouseClick(list, Qt::BackButton, {}, row(9));
  EXPECT_EQ(heard(), "MouseDown(2 0) MouseUp(2) MouseDown(4 0) MouseUp(4)");
  EXPECT_EQ(list->list().ListIndex(), 8);
  QTest::mousePress(list, Qt::LeftButton, {}, row(3));
  QTest::mouseRelease(list, Qt::LeftButton, {}, {300, 20});
  EXPECT_EQ(heard(), "MouseDown(1 0) MouseUp(1)");
  list->list().Style(cCheckBoxes);
  doubleClick(5);
  EXPECT_EQ(heard(), "MouseDown(1 0) MouseUp(1) Click ItemCheck(5) DblClick MouseUp(1)");
}

TEST_F(Input, ADragMovesAnItemAndScrollsByARealTimer) {
  list->list().AllowItemMoving(true);
  const auto drag = [&](QPoint to) {
    QTest::mousePress(list, Qt::LeftButton, {}, row(1));
    QMouseEvent move(QEvent::MouseMove, to, list->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     {});
    QApplication::sendEvent(list, &move);
  };
  drag(row(4));
  QTest::mouseRelease(list, Qt::LeftButton, {}, row(4));
  EXPECT_EQ(list->list().ItemText(3), "1");
  drag({60, 230});
  EXPECT_TRUE(QTest::qWaitFor([&] { return list->list().TopIndex() == 28; }, 2000));
}

TEST_F(Input, ATextIsTypedIntoTheBox) {
  click(2), click(2);
  ASSERT_TRUE(edit().isVisible());
  EXPECT_TRUE(edit().hasFocus());
  EXPECT_EQ(edit().selectedText(), "2");
  heard();
  QTest::keyClicks(&edit(), "Zoe");
  QTest::keyClick(&edit(), Qt::Key_Escape);
  QTest::keyClick(&edit(), Qt::Key_Down);
  EXPECT_TRUE(edit().isVisible());
  QTest::keyClick(&edit(), Qt::Key_Return);
  EXPECT_TRUE(list->hasFocus());
  EXPECT_EQ(heard(), "");
  EXPECT_EQ(list->list().ItemText(2), "Zoe");
  // The focus may leave and return; only a press on the rows closes the box without saving.
  click(2);
  edit().setText("gone");
  after.setFocus();
  EXPECT_TRUE(edit().isVisible());
  QTest::mousePress(list, Qt::LeftButton, {}, row(4));
  EXPECT_FALSE(edit().isVisible());
}

TEST_F(Input, TheKeysHaveTheirCodes) {
  list->setFocus();
  list->list().ListIndex(2);
  QTest::keyClick(list, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(list, 'a');
  QTest::keyClick(list, Qt::Key_F2, Qt::AltModifier);
  EXPECT_EQ(heard(),
            "KeyDown(16 1) KeyDown(40 1) KeyUp(40) KeyUp(16) KeyDown(65 0) KeyPress(97) KeyUp(65) "
            "KeyDown(18 4) KeyDown(113 4) KeyUp(113) KeyUp(18)");
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int code;
  } codes[] = {{Qt::Key_Exclam, Qt::ShiftModifier, 49},
               {Qt::Key_7, Qt::KeypadModifier, 103},
               {Qt::Key_Plus, Qt::ShiftModifier, 187},
               {Qt::Key_Plus, Qt::KeypadModifier, 107},
               {Qt::Key_Question, {}, 191},
               {Qt::Key_F24, {}, 135},
               {Qt::Key_MediaPlay, {}, 0}};
  for (const auto& c : codes)
    EXPECT_EQ(keyCodeOf(QKeyEvent(QEvent::KeyPress, c.key, c.modifiers)), c.code) << c.key;
  QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_A, {}, "a", true);
  QApplication::sendEvent(list, &repeat);
  swallowsKeys = true;
  QTest::keyPress(list, 'a');
  EXPECT_EQ(heard(), "KeyDown(65 0)");
  EXPECT_EQ(characterOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Delete, {}, "\x7f")), 0);
  QTest::keyClick(list, Qt::Key_Tab);
  EXPECT_TRUE(after.hasFocus());
  EXPECT_EQ(heard(), "");
}

TEST_F(Input, TheFocusIsOfTheWholeList) {
  list->list().ListIndex(2);
  before.setFocus();
  const auto hasFocus = [&] { return static_cast<bool>(list->list().state().HasFocus); };
  EXPECT_FALSE(hasFocus());
  list->setFocus();
  EXPECT_TRUE(hasFocus());
  list->list().SetEdit(2);
  EXPECT_FALSE(hasFocus());  // the box has it
  after.setFocus();
  edit().setFocus();
  EXPECT_TRUE(hasFocus());  // the list is entered
}

TEST_F(Input, WhatIsEditedCanBeReadOnADesktopOfAnyColours) {
  const auto background = [&](Qt::GlobalColor desktop, Colour text) {
    QPalette palette = form.palette();
    palette.setColor(QPalette::Base, desktop);
    form.setPalette(palette);
    list->list().ForeColor(text);
    list->list().SetEdit(2);
    EXPECT_EQ(edit().palette().color(QPalette::Text), QColor(rgbOf(text, palette)));
    return edit().palette().color(QPalette::Base);
  };
  EXPECT_EQ(background(Qt::yellow, 0), QColor(Qt::yellow));
  EXPECT_EQ(background(Qt::black, 0), QColor(Qt::white));
  EXPECT_EQ(background(Qt::white, 0xFFFFFF), QColor(Qt::black));
}

TEST_F(Input, AWheelIsHeardInItsMessages) {
  list->setPassesFineWheel(true);
  turn(-120);
  EXPECT_EQ(heard(), "Scroll Scroll");
  turn(0);
  EXPECT_EQ(list->list().TopIndex(), 1);
  turn(30);
  EXPECT_EQ(list->list().TopIndex(), 28);
  turn(120, {190, 60});
  EXPECT_EQ(list->list().TopIndex(), 27);
  list->setEnabled(false);
  turn(120);
  EXPECT_EQ(list->list().TopIndex(), 27);
}

TEST_F(Input, AHandlerMayEndTheWidget) {
  const std::pair<const char*, std::function<void()>> endings[] = {
      {"MouseDown", [&] { click(2); }},
      {"MouseUp", [&] { click(2); }},
      {"Click", [&] { click(2); }},
      {"DblClick", [&] { doubleClick(2); }},
      {"ItemCheck", [&] { click(2, {}, 9); }},
      {"Wrong", [&] { list->list().ListIndex(99); }},
      {"Scroll", [&] { turn(-120); }},
      {"Scroll",
       [&] {
         QTest::mousePress(list, Qt::LeftButton, {}, {190, 190});
       }},
      {"KeyDown", [&] { QTest::keyPress(list, Qt::Key_A); }},
      {"KeyPress", [&] { QTest::keyPress(list, 'a'); }},
      {"KeyUp", [&] { QTest::keyRelease(list, Qt::Key_A); }},
      {"nothing",
       [&] {
         QTimer::singleShot(0, list, [&] { end(); });
         nvList& control = list->list();
         for (int i = 0; i < 2000 && list; ++i) control.ItemsAdd(i), control.ItemsRemove(0);
       }},
      {"nothing", [&] {
         list->list().ListIndex(2);
         QTimer::singleShot(0, list, [&] { end(); });
         click(2);  // yields, and would then open the box
       }}};
  for (const auto& [event, act] : endings) {
    if (!list) begin();
    endsIn = event;
    act();
    EXPECT_FALSE(list) << event << " " << &act - &endings[0].second;
    QTest::qWait(5);
  }
}

}  // namespace
}  // namespace norvane
