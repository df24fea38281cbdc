#include <nvlist/platform/qt/NvListKeys.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>
#include <memory>
#include <string>

namespace norvane {
namespace {

/// A list of twelve visible rows of 16 pixels with the helper, beside another edit.
class NvListKeysTest : public testing::Test, public __nvList {
 protected:
  NvListKeysTest() {
    other.setParent(&form);
    widget->setGeometry(0, 20, 200, 200);
    list().MinHeight(16);
    list().AllowEdit(true);
    list().Style(cCheckBoxes);
    keys = new NvListKeys(*widget);
    list().addSink(*this);
    form.resize(220, 260);
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    widget->setFocus();
  }
  ~NvListKeysTest() override { delete widget; }

  void ItemCheck(std::int32_t&, Boolean& Cancel) override {
    if (endsInCheck) delete widget;
    Cancel = refusesChecks;
  }
  void KeyDown(std::int16_t&, std::int16_t&) override { ++keysDown; }

  void fill(int count) {
    for (int i = 0; i < count; ++i)
      list().ItemsAdd({.aText = "row " + std::to_string(i), .aAllowEdit = true});
  }
  void add(std::initializer_list<const char*> texts) {
    for (const char* text : texts) list().ItemsAdd({.aText = text, .aAllowEdit = true});
  }
  void press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(widget, static_cast<Qt::Key>(key), modifiers);
  }
  /// The current row, and the selected ones in brackets.
  std::string state() {
    std::string result = std::to_string(list().ListIndex()) + " (";
    for (int i = 0; i < list().ItemsCount(); ++i)
      if (list().ItemSelected(i)) result += (result.back() == '(' ? "" : " ") + std::to_string(i);
    return result + ")";
  }
  nvList& list() { return widget->list(); }
  QLineEdit& edit() { return *widget->findChild<QLineEdit*>(); }

  QWidget form;
  QPointer<NvListWidget> widget = new NvListWidget(&form);
  QPointer<NvListKeys> keys;
  QLineEdit other;
  bool refusesChecks = false;
  bool endsInCheck = false;
  int keysDown = 0;
};

TEST_F(NvListKeysTest, movesTheCurrentRow) {
  fill(40);
  list().ItemEnabled(0, false);
  list().ItemEnabled(39, false);
  list().ListIndex(5);
  const struct {
    int key, current, top;
  } steps[] = {{Qt::Key_PageDown, 11, 0}, {Qt::Key_PageDown, 22, 11}, {Qt::Key_PageUp, 11, 11},
               {Qt::Key_PageUp, 1, 1},    {Qt::Key_End, 38, 27},      {Qt::Key_PageDown, 38, 27},
               {Qt::Key_PageUp, 27, 27},  {Qt::Key_Home, 1, 1},       {Qt::Key_Up, 1, 1},
               {Qt::Key_Down, 2, 1}};
  for (const auto& step : steps) {
    SCOPED_TRACE(QKeySequence(step.key).toString().toStdString() + " to " +
                 std::to_string(step.current));
    press(step.key);
    EXPECT_EQ(state(), std::to_string(step.current) + " (" + std::to_string(step.current) + ")");
    EXPECT_EQ(list().TopIndex(), step.top);
  }
  EXPECT_EQ(keysDown, 10);
}

TEST_F(NvListKeysTest, extendsTheSelection) {
  fill(9);
  list().ItemEnabled(4, false);
  list().ListIndex(3);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(state(), "5 (5)") << "without MultiSelect";
  list().MultiSelect(true);
  list().ListIndex(3);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(state(), "5 (3 5)");
  press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(state(), "8 (3 5 6 7 8)");
  press(Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(state(), "0 (0 1 2 3)");
  QTest::mouseClick(widget, Qt::LeftButton, Qt::ShiftModifier, {100, 12 + 16 * 2});
  EXPECT_EQ(state(), "2 (2 3)") << "the mouse goes on from the same row";
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(state(), "1 (1 2 3)");
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(state(), "1 (0 1 2 3 5 6 7 8)");
  press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(state(), "1 (0 2 3 5 6 7 8)");
  press(Qt::Key_Down);
  EXPECT_EQ(state(), "2 (2)");
}

TEST_F(NvListKeysTest, findsWhatIsTyped) {
  add({"&Alpha", "beta", "Berlin", "bern|right=9", "Ödipus", "a && b"});
  list().ItemEnabled(1, false);
  keys->setTypingInterval(100'000);
  list().ListIndex(0);
  QTest::keyClicks(widget, "BERN");
  EXPECT_EQ(list().ListIndex(), 3);
  QInputMethodEvent composed;
  composed.setCommitString("öd");
  keys->setTypingInterval(-1);
  QCoreApplication::sendEvent(widget, &composed);
  EXPECT_EQ(list().ListIndex(), 4);
  QTest::keyClicks(widget, "b");
  EXPECT_EQ(list().ListIndex(), 2) << "past the end, and past a disabled row";
  QTest::keyClicks(widget, "z");
  EXPECT_EQ(list().ListIndex(), 2);
  QTest::keyClicks(widget, " ");
  EXPECT_EQ(list().ItemChecked(2), true) << "a blank begins no search";
}

TEST_F(NvListKeysTest, repeatsALetterAndTypesBlanks) {
  add({"an ape", "ant", "bee", "and", "a fly"});
  keys->setTypingInterval(100'000);
  QTest::keyClicks(widget, "a f");
  EXPECT_EQ(list().ListIndex(), 4);
  EXPECT_EQ(list().ItemChecked(4), false);
  keys->setTypingInterval(-1);
  QTest::keyClicks(widget, "a");
  EXPECT_EQ(list().ListIndex(), 0);
  keys->setTypingInterval(100'000);
  QTest::keyClicks(widget, "a");
  EXPECT_EQ(list().ListIndex(), 1);
  QTest::keyClicks(widget, "a");
  EXPECT_EQ(list().ListIndex(), 3);
}

TEST_F(NvListKeysTest, checksCopiesAndAsksToDelete) {
  add({"&one|right=1", "two", "three"});
  list().MultiSelect(true);
  list().ListIndex(1);
  press(Qt::Key_Space);
  EXPECT_EQ(list().ItemChecked(1), true);
  refusesChecks = true;
  press(Qt::Key_Space);
  EXPECT_EQ(list().ItemChecked(1), true);
  press(Qt::Key_Home, Qt::ShiftModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "one\t1\ntwo");
  QObject::connect(keys, &NvListKeys::deleteRequested, widget, [&] { delete widget; });
  press(Qt::Key_Delete);
  EXPECT_FALSE(widget);
}

TEST_F(NvListKeysTest, aHandlerMayEndTheWidget) {
  add({"one"});
  list().ListIndex(0);
  endsInCheck = true;
  press(Qt::Key_Space);
  EXPECT_FALSE(widget);
}

TEST_F(NvListKeysTest, editsOverTheRow) {
  fill(30);
  list().Style(cDefault);
  for (const int row : {20, 0}) {
    SCOPED_TRACE(row);
    list().ListIndex(row);
    press(Qt::Key_F2);
    ASSERT_TRUE(edit().isVisible());
    const int top = 3 + 16 * (row - list().TopIndex());
    EXPECT_NEAR(edit().geometry().center().y(), top + 8, 2);
    EXPECT_GT(edit().x(), 1);
    EXPECT_LT(edit().geometry().right(), list().verticalBar().Left() - 1);
    QTest::keyClicks(&edit(), "gone");
    QTest::keyClick(&edit(), Qt::Key_Escape);
    EXPECT_FALSE(edit().isVisible());
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_EQ(list().ItemText(row), "row " + std::to_string(row));
  }
  press(Qt::Key_F2);
  widget->resize(150, 180);
  QCoreApplication::processEvents();
  EXPECT_LT(edit().geometry().right(), list().verticalBar().Left() - 1);
  edit().setText("first");
  QTest::keyClick(&edit(), Qt::Key_Return);
  EXPECT_EQ(list().ItemText(0), "first");
  press(Qt::Key_Down);
  EXPECT_EQ(list().ListIndex(), 1) << "the list has its keys again";
}

TEST_F(NvListKeysTest, writesWhatWasEditedWhenTheUserGoesElsewhere) {
  fill(30);
  const auto wheel = [&] {
    QWheelEvent turn({50, 50}, edit().mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &turn);
  };
  const struct {
    const char* name;
    std::function<void()> leave;
  } ways[] = {{"to another widget", [&] { other.setFocus(); }},
              {"to another row",
               [&] {
                 QTest::mouseClick(widget, Qt::LeftButton, {}, {100, 12 + 16 * 5});
               }},
              {"by the wheel", wheel}};
  for (const auto& way : ways) {
    SCOPED_TRACE(way.name);
    widget->setFocus();
    list().ListIndex(2);
    press(Qt::Key_F2);
    QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(&edit(), &menu);
    ASSERT_TRUE(edit().isVisible());
    edit().setText(way.name);
    way.leave();
    EXPECT_FALSE(edit().isVisible());
    EXPECT_EQ(list().ItemText(2), way.name);
    EXPECT_FALSE(list().state().EditActive);
  }
}

TEST_F(NvListKeysTest, aClickMovesNothing) {
  fill(5);
  list().AllowItemMoving(true);
  const QPoint third(100, 12 + 16 * 2);
  const auto texts = [&] {
    std::string result;
    for (int i = 0; i < 5; ++i) result += list().ItemText(i).back();
    return result;
  };
  QTest::mouseClick(widget, Qt::LeftButton, {}, third);
  EXPECT_EQ(texts(), "01234");
  QTest::mousePress(widget, Qt::LeftButton, {}, third);
  QMouseEvent drag(QEvent::MouseMove, QPointF(100, 12), QPointF(100, 12), Qt::NoButton,
                   Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &drag);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, QPoint(100, 12));
  EXPECT_EQ(texts(), "20134");
  delete keys;
  QTest::mouseClick(widget, Qt::LeftButton, {}, third);
  EXPECT_EQ(texts(), "12034") << "the list alone moves to the top";
  list().ListIndex(0);
  press(Qt::Key_End);
  EXPECT_EQ(list().ListIndex(), 0);
}

}  // namespace
}  // namespace norvane
