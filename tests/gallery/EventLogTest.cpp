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
  for (int i = 0; i < 3; ++i) sink.Scroll();
  move(4);
  log.write("by hand");
  const QStringList written = lines();
  ASSERT_EQ(written.size(), 5) << written.join("; ").toStdString();
  EXPECT_TRUE(written[1].endsWith("X = 3, Y = 0"));
  EXPECT_EQ(written[2], "Scroll   (3 times)");
  EXPECT_TRUE(written[3].endsWith("X = 4, Y = 0"));
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
