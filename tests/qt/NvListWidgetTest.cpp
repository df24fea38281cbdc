#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <functional>

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

/// Number of pixels that are not white.
int inkOf(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) != 0xFFFFFFFF;
  return count;
}

class NvListWidgetTest : public testing::Test {
 protected:
  NvListWidgetTest() {
    widget.resize(200, 150);
    widget.list().BorderVisible(false);
    widget.show();
    QCoreApplication::processEvents();
  }

  QImage shown() { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  ScreenedWidget widget;
};

TEST_F(NvListWidgetTest, framesAreOnlyPaintedForWhatLooksDifferent) {
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
    // The first turn finds out what has changed.
    for (int turn = 0; turn < 2; ++turn) QCoreApplication::processEvents();
    return counter.frames;
  };
  nvList& list = widget.list();
  EXPECT_EQ(framesFor([&] { list.ItemsAdd("a"); }), 1);
  // From here on the thumb has its shortest length.
  for (int i = 0; i < 300; ++i) list.ItemsAdd("a");
  QCoreApplication::processEvents();
  EXPECT_EQ(framesFor([&] { list.ItemsAdd("a"); }), 0);
  EXPECT_EQ(framesFor([&] { list.Redraw(); }), 0);
  EXPECT_EQ(framesFor([&] { list.ItemText(0, "b"); }), 1);
  EXPECT_EQ(framesFor([&] { list.TopIndex(20); }), 1);
}

TEST_F(NvListWidgetTest, showsWhatWasAdded) {
  widget.list().ItemsAdd("Ada");
  const int one = inkOf(shown());
  EXPECT_GT(one, 0);
  widget.list().ItemsAdd("Ada");
  EXPECT_EQ(inkOf(shown()), 2 * one);
  widget.list().BackColor(0x00FF00);
  widget.resize(200, 300);
  EXPECT_EQ(shown().pixel(100, 280), qRgb(0, 255, 0));
  widget.resize(0, 0);
  widget.list().ItemsAdd("unseen");
}

TEST_F(NvListWidgetTest, followsTheScreenAndThePalette) {
  widget.list().BackColor(systemColour(5));
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(1, 2, 3));
  widget.setPalette(palette);
  EXPECT_EQ(shown().pixel(100, 140), qRgb(1, 2, 3));

  widget.ratio = 2;
  widget.repaint();
  QCoreApplication::processEvents();
  EXPECT_EQ(shown().size(), QSize(400, 300));
  EXPECT_EQ(shown().pixel(201, 281), qRgb(1, 2, 3));
  EXPECT_TRUE(widget.testAttribute(Qt::WA_OpaquePaintEvent));
  // If an edge lies within a pixel, that pixel must not show the widget.
  widget.ratio = 1.25;
  widget.repaint();
  QCoreApplication::processEvents();
  EXPECT_FALSE(widget.testAttribute(Qt::WA_OpaquePaintEvent));
}

TEST_F(NvListWidgetTest, theDesignerSeesAPreview) {
  widget.setObjectName("List1");
  widget.setDesignMode(true);
  const int shortName = inkOf(shown());
  EXPECT_GT(shortName, 0);
  widget.setObjectName("TheList1");
  EXPECT_GT(inkOf(shown()), shortName);
  widget.setDesignMode(false);
  EXPECT_EQ(inkOf(shown()), 0);
}

}  // namespace
}  // namespace norvane
