#include <nvlist/platform/qt/NvListWidget.h>

#include <QPalette>
#include <functional>

#include "WidgetTest.h"

namespace norvane {
namespace {

/// A widget on a screen whose pixel ratio the test changes.
class ScreenedWidget : public NvListWidget {
 public:
  qreal ratio = 1;

 protected:
  int metric(PaintDeviceMetric metric) const override {
    if (metric == PdmDevicePixelRatio) return qRound(ratio);
    if (metric == PdmDevicePixelRatioScaled)
      return static_cast<int>(ratio * devicePixelRatioFScale());
    return NvListWidget::metric(metric);
  }
};

class Painting : public testing::Test {
 protected:
  Painting() {
    widget.resize(200, 150);
    list.MinHeight(16);
    list.BorderVisible(false);
    widget.show();
    QCoreApplication::processEvents();
  }
  QImage shown() { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  ScreenedWidget widget;
  nvList& list = widget.list();
};

TEST_F(Painting, FollowsOnlyWhatLooksDifferent) {
  struct Counter : QObject {
    int frames = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      frames += event->type() == QEvent::Paint;
      return false;
    }
  } counter;
  widget.installEventFilter(&counter);
  const auto framesFor = [&](const std::function<void()>& work) {
    counter.frames = 0;
    work();
    // One turn of the event loop finds out what has changed, and paints.
    QCoreApplication::processEvents();
    return counter.frames;
  };
  EXPECT_EQ(framesFor([&] { list.ItemsAdd("a"); }), 1);
  // From here on the thumb has its shortest length.
  for (int i = 0; i < 300; ++i) list.ItemsAdd("a");
  QCoreApplication::processEvents();
  EXPECT_EQ(framesFor([&] { list.ItemsAdd("a"); }), 0);
  EXPECT_EQ(framesFor([&] { list.Redraw(); }), 0);
  EXPECT_EQ(framesFor([&] { list.ItemText(0, "b"); }), 1);
  EXPECT_EQ(framesFor([&] { list.TopIndex(20); }), 1);
}

TEST_F(Painting, FollowsTheItemsTheScreenAndThePalette) {
  list.ItemsAdd("Ada");
  const int one = inkOf(shown());
  EXPECT_GT(one, 0);
  list.ItemsAdd("Ada");
  EXPECT_EQ(inkOf(shown()), 2 * one);
  list.BackColor(systemColour(5));
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(1, 2, 3));
  widget.setPalette(palette);
  widget.resize(200, 300);
  EXPECT_EQ(shown().pixel(100, 280), qRgb(1, 2, 3));

  const auto show = [&](qreal ratio) {
    widget.ratio = ratio;
    widget.repaint();
    QCoreApplication::processEvents();
    return shown();
  };
  const QImage fine = show(2);
  EXPECT_EQ(fine.size(), QSize(400, 600));
  EXPECT_EQ(fine.pixel(201, 281), qRgb(1, 2, 3));
  EXPECT_TRUE(widget.testAttribute(Qt::WA_OpaquePaintEvent));
  // If an edge lies within a pixel, that pixel must not show the widget.
  show(1.25);
  EXPECT_FALSE(widget.testAttribute(Qt::WA_OpaquePaintEvent));
  widget.resize(0, 0);
  list.ItemsAdd("unseen");
}

TEST_F(Painting, ShowsThePreviewInADesigner) {
  widget.setObjectName("List1");
  widget.setDesignMode(true);
  const int shortName = inkOf(shown());
  EXPECT_GT(shortName, 0);
  widget.setObjectName("TheList1");
  EXPECT_GT(inkOf(shown()), shortName);
  widget.setDesignMode(false);
  EXPECT_EQ(inkOf(shown()), 0);
}

TEST_F(Painting, FillsTheRectangleOfAnItem) {
  list.IndentTop(5);
  for (int i = 0; i < 20; ++i) list.ItemsAdd(i);
  list.TopIndex(2);
  list.ListIndex(4);
  const QRect rect = widget.itemRect(4);
  EXPECT_EQ(rect, QRect(0, 37, 183, 16));
  const QImage image = shown();
  const QRgb selected = image.pixel(rect.center());
  for (const int edge : {rect.top(), rect.bottom()}) EXPECT_EQ(image.pixel(100, edge), selected);
  for (const int beyond : {rect.top() - 1, rect.bottom() + 1})
    EXPECT_NE(image.pixel(100, beyond), selected);
  EXPECT_EQ(widget.itemRect(0).top(), 5 - 32);
  EXPECT_TRUE(widget.itemRect(20).isEmpty());
}

TEST_F(Painting, KeepsATextOfSeveralLinesInItsRow) {
  for (const char* text : {"", "A\nB\nC", ""}) widget.addItem(text);
  const auto inkIn = [&](int index) {
    return inkOf(widget.grab(widget.itemRect(index)).toImage());
  };
  EXPECT_GT(inkIn(0), 0);
  widget.setClipsTexts(true);
  EXPECT_EQ(inkIn(0) + inkIn(2), 0);
  EXPECT_GT(inkIn(1), 0);
}

TEST_F(WidgetTest, TheLayoutIsMirroredOnRequest) {
  const auto shown = [&] { return widget->grab().toImage(); };
  for (int i = 0; i < 40; ++i) add("");
  list().ListIndex(1);
  const QImage plain = shown();
  widget->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(shown(), plain);
  widget->setMirrorsLayout(true);
  EXPECT_EQ(shown().mirrored(true, false), plain);
  list().ItemText(5, "A");
  const QRect row = widget->itemRect(5);
  EXPECT_GT(inkOf(widget->grab(row).toImage()), 0);
  EXPECT_EQ(inkOf(widget->grab(row.adjusted(0, 0, -20, 0)).toImage()), 0) << "texts at the right";
}

}  // namespace
}  // namespace norvane
