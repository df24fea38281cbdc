#include "WidgetTest.h"

#include <QClipboard>
#include <QInputMethodEvent>

#include <nvlist/platform/qt/NvListKeys.h>

namespace norvane {
namespace {

class NvListKeysTest : public WidgetTest {
 protected:
  NvListKeysTest() {
    list().AllowEdit(true);
    list().Style(cCheckBoxes);
    keys = new NvListKeys(*widget);
    hearEvents();
  }
  void addAll(std::initializer_list<const char*> texts) {
    for (const char* text : texts) add(text);
  }

  QPointer<NvListKeys> keys;
};

TEST_F(NvListKeysTest, MovesTheCurrentRow) {
  fill(40);
  for (const int disabled : {0, 39}) list().ItemEnabled(disabled, false);
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
    heard();
    key(step.key);
    EXPECT_EQ(state(), std::to_string(step.current) + " (" + std::to_string(step.current) + ")");
    EXPECT_EQ(list().TopIndex(), step.top);
    EXPECT_TRUE(heard().starts_with("KeyDown "));
  }
}

TEST_F(NvListKeysTest, ExtendsTheSelection) {
  fill(9);
  list().ItemEnabled(4, false);
  list().ListIndex(3);
  key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(state(), "5 (5)") << "without MultiSelect";
  list().MultiSelect(true);
  list().ListIndex(3);
  const struct {
    const char* name;
    std::function<void()> act;
    const char* state;
  } steps[] = {
      {"down", [&] { key(Qt::Key_Down, Qt::ShiftModifier); }, "5 (3 5)"},
      {"to the end", [&] { key(Qt::Key_End, Qt::ShiftModifier); }, "8 (3 5 6 7 8)"},
      {"to the start", [&] { key(Qt::Key_Home, Qt::ShiftModifier); }, "0 (0 1 2 3)"},
      {"the mouse goes on from the same row", [&] { click(2, Qt::ShiftModifier); }, "2 (2 3)"},
      {"up", [&] { key(Qt::Key_Up, Qt::ShiftModifier); }, "1 (1 2 3)"},
      {"all", [&] { key(Qt::Key_A, Qt::ControlModifier); }, "1 (0 1 2 3 5 6 7 8)"},
      {"toggle", [&] { key(Qt::Key_Space, Qt::ControlModifier); }, "1 (0 2 3 5 6 7 8)"},
      {"down alone", [&] { key(Qt::Key_Down); }, "2 (2)"}};
  for (const auto& step : steps) {
    step.act();
    EXPECT_EQ(state(), step.state) << step.name;
  }
}

TEST_F(NvListKeysTest, FindsWhatIsTyped) {
  addAll({"&Alpha", "beta", "Berlin", "bern|right=9", "Ödipus", "a && b"});
  list().ItemEnabled(1, false);
  constexpr int onWord = 100'000, newWord = -1;
  const auto type = [&](int interval, const char* text) {
    keys->setTypingInterval(interval);
    QTest::keyClicks(widget, text);
    return list().ListIndex();
  };
  list().ListIndex(0);
  EXPECT_EQ(type(onWord, "BERN"), 3);
  QInputMethodEvent composed;
  composed.setCommitString("öd");
  keys->setTypingInterval(newWord);
  QCoreApplication::sendEvent(widget, &composed);
  EXPECT_EQ(list().ListIndex(), 4);
  EXPECT_EQ(type(newWord, "b"), 2) << "past the end, and past a disabled row";
  EXPECT_EQ(type(newWord, "z"), 2);
  EXPECT_EQ(type(newWord, " "), 2);
  EXPECT_EQ(list().ItemChecked(2), true) << "a blank begins no search";

  list().ItemsClear();
  addAll({"an ape", "ant", "bee", "and", "a fly"});
  EXPECT_EQ(type(newWord, "a"), 0);
  EXPECT_EQ(type(onWord, " f"), 4) << "a blank continues the word";
  EXPECT_EQ(list().ItemChecked(4), false);
  EXPECT_EQ(type(newWord, "a"), 0);
  EXPECT_EQ(type(onWord, "a"), 1) << "the next one with this letter";
  EXPECT_EQ(type(onWord, "a"), 3);
}

TEST_F(NvListKeysTest, ChecksCopiesAndAsksToDelete) {
  addAll({"&one|right=1", "two", "three"});
  list().MultiSelect(true);
  list().ListIndex(1);
  key(Qt::Key_Space);
  EXPECT_EQ(list().ItemChecked(1), true);
  refusesChecks = true;
  key(Qt::Key_Space);
  EXPECT_EQ(list().ItemChecked(1), true);
  key(Qt::Key_Home, Qt::ShiftModifier);
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "one\t1\ntwo");
  QObject::connect(keys, &NvListKeys::deleteRequested, widget, [&] { delete widget; });
  key(Qt::Key_Delete);
  EXPECT_FALSE(widget);
}

TEST_F(NvListKeysTest, AHandlerMayEndTheWidget) {
  add("one");
  list().ListIndex(0);
  onEvent = [&](const std::string& name) {
    if (name == "ItemCheck") delete widget;
  };
  key(Qt::Key_Space);
  EXPECT_FALSE(widget);
}

TEST_F(NvListKeysTest, EditsOverTheRow) {
  fill(30);
  list().Style(cDefault);
  const auto expectBesideTheBar = [&] {
    EXPECT_GT(edit().x(), 1);
    EXPECT_LT(edit().geometry().right(), list().verticalBar().Left() - 1);
  };
  for (const int row : {20, 0}) {
    SCOPED_TRACE(row);
    list().ListIndex(row);
    key(Qt::Key_F2);
    ASSERT_TRUE(edit().isVisible());
    const int top = 3 + 16 * (row - list().TopIndex());
    EXPECT_NEAR(edit().geometry().center().y(), top + 8, 2);
    expectBesideTheBar();
    QTest::keyClicks(&edit(), "gone");
    QTest::keyClick(&edit(), Qt::Key_Escape);
    EXPECT_FALSE(edit().isVisible());
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_EQ(list().ItemText(row), std::to_string(row));
  }
  key(Qt::Key_F2);
  widget->resize(150, 180);
  QCoreApplication::processEvents();
  expectBesideTheBar();
  edit().setText("first");
  QTest::keyClick(&edit(), Qt::Key_Return);
  EXPECT_EQ(list().ItemText(0), "first");
  key(Qt::Key_Down);
  EXPECT_EQ(list().ListIndex(), 1) << "the list has its keys again";
}

TEST_F(NvListKeysTest, WritesWhatWasEditedWhenTheUserGoesElsewhere) {
  fill(30);
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"to another widget", [&] { after.setFocus(); }},
      {"to another row", [&] { click(5); }},
      {"by the wheel", [&] {
         turn({0, -120});
       }}};
  for (const auto& [way, leave] : ways) {
    SCOPED_TRACE(way);
    widget->setFocus();
    list().ListIndex(2);
    key(Qt::Key_F2);
    QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
    QCoreApplication::sendEvent(&edit(), &menu);
    ASSERT_TRUE(edit().isVisible());
    edit().setText(way);
    leave();
    EXPECT_FALSE(edit().isVisible());
    EXPECT_EQ(list().ItemText(2), way);
    EXPECT_FALSE(list().state().EditActive);
  }
}

TEST_F(NvListKeysTest, AClickMovesNothing) {
  fill(5);
  list().AllowItemMoving(true);
  const auto texts = [&] {
    std::string result;
    for (int i = 0; i < 5; ++i) result += list().ItemText(i);
    return result;
  };
  click(2);
  EXPECT_EQ(texts(), "01234");
  press(row(2)), drag(row(0)), release(row(0));
  EXPECT_EQ(texts(), "20134");
  delete keys;
  click(2);
  EXPECT_EQ(texts(), "12034") << "the list alone moves to the top";
  list().ListIndex(0);
  key(Qt::Key_End);
  EXPECT_EQ(list().ListIndex(), 0);
}

}  // namespace
}  // namespace norvane
