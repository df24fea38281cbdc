#include <gtest/gtest.h>

#include <examples/gallery/EventLog.h>
#include <nvlist/platform/qt/NvListWidget.h>

namespace gallery {
namespace {

class EventLogTest : public testing::Test {
 protected:
  QStringList lines() {
    const QStringList result = log.toPlainText().split('\n');
    log.clear();
    return result;
  }

  EventLog log;
  norvane::__nvList& sink = log;
};

TEST_F(EventLogTest, everyEventIsALineWithItsArguments) {
  std::int16_t button = 1, shift = 2, code = 65;
  std::int32_t item = 7;
  float x = 1.5F, y = 2;
  norvane::Variant text("Graz"), index = 3;
  norvane::Boolean flag = true;
  norvane::Ref<norvane::Object> data;

  sink.Click();
  sink.DblClick();
  sink.ItemCheck(item, flag);
  sink.MouseUp(button, shift, x, y);
  sink.MouseMove(text, item, button, shift, x, y);
  sink.MouseDown(button, shift, x, y);
  sink.ErrorListInput();
  sink.ErrorListSave();
  sink.ListSaving(index);
  sink.ListReading(index);
  sink.Scroll();
  sink.KeyDown(code, shift);
  sink.KeyPress(code);
  sink.KeyUp(code, shift);
  sink.OLECompleteDrag(item);
  sink.OLEDragDrop(data, item, button, shift, x, y);
  sink.OLEDragOver(data, item, button, shift, x, y, code);
  sink.OLEGiveFeedback(item, flag);
  sink.OLESetData(data, code);
  sink.OLEStartDrag(data, item);
  sink.ErrorWrongIndex(index);

  EXPECT_EQ(
      lines(),
      QStringList(
          {"Click",
           "DblClick",
           "ItemCheck   Item = 7, Cancel = True",
           "MouseUp   Button = 1, Shift = 2, X = 1.5, Y = 2",
           "MouseMove   TextUnderMouse = \"Graz\", IndexUnderMouse = 7, Button = 1, Shift = 2, "
           "X = 1.5, Y = 2",
           "MouseDown   Button = 1, Shift = 2, X = 1.5, Y = 2",
           "ErrorListInput",
           "ErrorListSave",
           "ListSaving   Index = 3",
           "ListReading   Index = 3",
           "Scroll",
           "KeyDown   KeyCode = 65, Shift = 2",
           "KeyPress   KeyAscii = 65",
           "KeyUp   KeyCode = 65, Shift = 2",
           "OLECompleteDrag   Effect = 7",
           "OLEDragDrop   Data = none, Effect = 7, Button = 1, Shift = 2, X = 1.5, Y = 2",
           "OLEDragOver   Data = none, Effect = 7, Button = 1, Shift = 2, X = 1.5, Y = 2, "
           "State = 65",
           "OLEGiveFeedback   Effect = 7, DefaultCursors = True",
           "OLESetData   Data = none, DataFormat = 65",
           "OLEStartDrag   Data = none, AllowedEffects = 7",
           "ErrorWrongIndex   Index = 3"}));
}

TEST_F(EventLogTest, onlyTheLastOfManyMovesIsKeptAndRepetitionsAreCounted) {
  std::int16_t none = 0;
  std::int32_t row = 0;
  norvane::Variant text("Linz");
  float x = 0, y = 0;
  const auto move = [&](float to) {
    x = to;
    sink.MouseMove(text, row, none, none, x, y);
  };
  sink.Click();
  for (const float to : {1.0F, 2.0F, 2.0F, 3.0F}) move(to);
  sink.Scroll();
  sink.Scroll();
  sink.Scroll();
  move(4);
  log.write("by hand");
  const QStringList written = lines();
  ASSERT_EQ(written.size(), 5) << written.join("; ").toStdString();
  EXPECT_EQ(written[0], "Click");
  EXPECT_TRUE(written[1].endsWith("X = 3, Y = 0"));
  EXPECT_EQ(written[2], "Scroll   (3 times)");
  EXPECT_TRUE(written[3].endsWith("X = 4, Y = 0"));
  EXPECT_EQ(written[4], "by hand");

  // A cleared log begins anew.
  log.write("by hand");
  EXPECT_EQ(lines(), QStringList("by hand"));
}

TEST_F(EventLogTest, hearsListsAndTheirFailures) {
  norvane::NvListWidget widget;
  widget.list().ItemsAdd("Graz");
  widget.list().addSink(log);
  widget.list().ListIndex(7);
  widget.list().ItemText("Graz");
  widget.list().removeSink(log);
  const QStringList written = lines();
  ASSERT_EQ(written.size(), 2);
  EXPECT_EQ(written[0], "ErrorWrongIndex   Index = 7");
  EXPECT_TRUE(written[1].startsWith("Failure 13 in nvList.ItemText, line "))
      << written[1].toStdString();
}

}  // namespace
}  // namespace gallery
