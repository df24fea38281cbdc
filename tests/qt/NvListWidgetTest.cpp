#include <nvlist/platform/qt/NvListWidget.h>

#include <QMetaProperty>
#include <QPalette>
#include <functional>
#include <map>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtFailures.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/drawing/QtColour.h>

#include "WidgetTest.h"

namespace norvane {
namespace {

/// Number of black pixels.
int inkOf(const QImage& image) {
  int ink = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ink += image.pixelColor(x, y) == Qt::black;
  return ink;
}

class NvListWidgetTest : public WidgetTest {
 protected:
  NvListWidgetTest() { list().BorderVisible(false); }

  QImage shown() { return widget->grab().toImage().convertToFormat(QImage::Format_RGB32); }
  int inkIn(const QRect& area) { return inkOf(widget->grab(area).toImage()); }
  void setColours(const QColor& base, const QColor& text, const QColor& disabled) {
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Disabled, QPalette::Text, disabled);
    widget->setPalette(palette);
  }
};

TEST_F(NvListWidgetTest, FollowsOnlyWhatLooksDifferent) {
  struct Counter : QObject {
    int frames = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      frames += event->type() == QEvent::Paint;
      return false;
    }
  } counter;
  widget->installEventFilter(&counter);
  const auto framesFor = [&](const std::function<void()>& work) {
    counter.frames = 0;
    work();
    // One turn of the event loop finds out what has changed, and paints.
    QCoreApplication::processEvents();
    return counter.frames;
  };
  QCoreApplication::processEvents();
  EXPECT_EQ(framesFor([&] { add("a"); }), 1);
  // From here on the thumb has its shortest length.
  fill(300);
  QCoreApplication::processEvents();
  EXPECT_EQ(framesFor([&] { add("a"); }), 0);
  EXPECT_EQ(framesFor([&] { list().Redraw(); }), 0);
  EXPECT_EQ(framesFor([&] { list().ItemText(0, "b"); }), 1);
  EXPECT_EQ(framesFor([&] { list().TopIndex(20); }), 1);
}

TEST_F(NvListWidgetTest, FollowsTheScreen) {
  struct Screened : NvListWidget {
    qreal ratio = 1;
    int metric(PaintDeviceMetric metric) const override {
      if (metric == PdmDevicePixelRatio) return qRound(ratio);
      if (metric == PdmDevicePixelRatioScaled)
        return static_cast<int>(ratio * devicePixelRatioFScale());
      return NvListWidget::metric(metric);
    }
  } screened;
  screened.resize(200, 300);
  screened.list().BackColor(0x030201);
  screened.show();
  // If an edge lies within a pixel, that pixel must not show the widget.
  for (const auto& [ratio, isOpaque] : {std::pair(2.0, true), std::pair(1.25, false)}) {
    screened.ratio = ratio;
    screened.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(screened.testAttribute(Qt::WA_OpaquePaintEvent), isOpaque);
    const QImage shown = screened.grab().toImage();
    EXPECT_EQ(shown.size(), QSize(200, 300) * ratio);
    EXPECT_EQ(shown.pixel(QPoint(100, 140) * ratio), qRgb(1, 2, 3));
  }
}

TEST_F(NvListWidgetTest, ShowsThePreviewInADesigner) {
  widget->setObjectName("List1");
  widget->setDesignMode(true);
  const int shortName = inkOf(shown());
  EXPECT_GT(shortName, 0);
  widget->setObjectName("TheList1");
  EXPECT_GT(inkOf(shown()), shortName);
  widget->setDesignMode(false);
  EXPECT_EQ(inkOf(shown()), 0);
}

TEST_F(NvListWidgetTest, KeepsATextOfSeveralLinesInItsRow) {
  for (const char* text : {"", "A\nB\nC", ""}) add(text);
  const auto inkAround = [&] { return inkIn(widget->itemRect(0)) + inkIn(widget->itemRect(2)); };
  EXPECT_GT(inkAround(), 0);
  widget->setClipsTexts(true);
  EXPECT_EQ(inkAround(), 0);
  EXPECT_GT(inkIn(widget->itemRect(1)), 0);
}

TEST_F(NvListWidgetTest, TheLayoutIsMirroredOnRequest) {
  for (int i = 0; i < 40; ++i) add("");
  list().ListIndex(1);
  const QImage plain = shown();
  widget->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(shown(), plain);
  widget->setMirrorsLayout(true);
  EXPECT_EQ(shown().mirrored(true, false), plain);
  list().ItemText(5, "A");
  const QRect row = widget->itemRect(5);
  EXPECT_GT(inkIn(row), 0);
  EXPECT_EQ(inkIn(row.adjusted(0, 0, -20, 0)), 0) << "texts at the right";
}

TEST_F(NvListWidgetTest, EveryStoredPropertyIsOneOfQt) {
  const std::map<int, QVariant> others{{QMetaType::Int, 7},
                                       {QMetaType::Double, 5.5},
                                       {QMetaType::QColor, QColor(1, 2, 3)},
                                       {QMetaType::QFont, QFont("Serif", 17)}};
  const QMetaObject& meta = *widget->metaObject();
  for (const StoredProperty& property : storedProperties()) {
    std::string name = std::string(property.name) == "Style" ? "ListStyle" : property.name;
    name[0] = static_cast<char>(std::tolower(name[0]));
    SCOPED_TRACE(name);
    const QMetaProperty ofQt = meta.property(meta.indexOfProperty(name.c_str()));
    ASSERT_TRUE(ofQt.isValid());
    const Variant before = property.get(list());
    const int type = ofQt.typeId();
    const QVariant old = ofQt.read(widget);
    const QVariant value = ofQt.isEnumType()         ? QVariant(old.toInt() == 1 ? 2 : 1)
                           : type == QMetaType::Bool ? QVariant(!old.toBool())
                                                     : others.at(type);
    EXPECT_TRUE(ofQt.write(widget, value));
    EXPECT_EQ(ofQt.isEnumType() ? QVariant(ofQt.read(widget).toInt()) : ofQt.read(widget), value);
    const Variant now = property.get(list());
    EXPECT_FALSE(now.object() ? now.object()->isSame(*before.object())
                              : now.toText() == before.toText());
  }
  EXPECT_EQ(list().BackColor(), 0x030201);
}

TEST_F(NvListWidgetTest, SystemColoursAreThoseOfThePaletteAndAreKept) {
  setColours({1, 2, 3}, Qt::black, {4, 5, 6});
  const std::pair<Colour, QRgb> cases[] = {{colours::window, qRgb(1, 2, 3)},
                                           {colours::greyText, qRgb(4, 5, 6)},
                                           {systemColour(255), qRgb(0, 0, 0)},
                                           {0x7F332211, qRgb(0x11, 0x22, 0x33)}};
  for (const auto& [colour, pixel] : cases) {
    list().BackColor(colour);
    EXPECT_EQ(shown().pixel(100, 100), pixel) << colour;
  }
  list().BackColor(colours::window);
  widget->setProperty("backColor", widget->property("backColor"));
  EXPECT_EQ(list().BackColor(), colours::window);
}

TEST_F(NvListWidgetTest, AFontOfTheHostStaysUntilTheWidgetGetsOne) {
  form.setFont(QFont("Sans", 14));
  EXPECT_EQ(list().Font()->Size, 14);
  list().Font(fontFrom(QFont("Sans", 30)));
  form.setFont(QFont("Sans", 15));
  EXPECT_EQ(list().Font()->Size, 30);
  widget->setFont(QFont("Sans", 16));
  EXPECT_EQ(list().Font()->Size, 16);
}

/// The colours of the list and of disabled rows, on palettes of all kinds.
TEST_F(NvListWidgetTest, RowsAreReadableInEveryPalette) {
  const struct {
    const char* name;
    QColor base, text, disabled;
  } palettes[] = {{"light", Qt::white, Qt::black, QColor(190, 190, 190)},
                  {"dark", QColor(36, 36, 36), Qt::white, QColor(60, 60, 60)},
                  {"black", Qt::black, QColor(0, 255, 0), Qt::black},
                  {"sepia", QColor(250, 235, 200), QColor(90, 60, 20), QColor(250, 235, 200)}};
  widget->setFollowsPalette(true);
  // A block has pixels of the full colour.
  list().ItemsAdd({.aText = "\u2588\u2588\u2588", .aEnabled = false});
  for (const auto& p : palettes) {
    setColours(p.base, p.text, p.disabled);
    EXPECT_EQ(widget->foreColor(), p.text) << p.name;
    const QImage image = shown();
    EXPECT_EQ(image.pixelColor(100, 100), p.base) << p.name;
    const QColor background = image.pixelColor(100, 10);
    double contrast = 0;
    for (int x = 2; x < 100; ++x)
      contrast = std::max(contrast, contrastOf(image.pixelColor(x, 10), background));
    EXPECT_GE(contrast, 3) << p.name;
    EXPECT_LE(contrastOf(p.base, background), 1.6) << p.name;
  }
  list().ForeColor(0x112233);
  widget->setFollowsPalette(false);
  EXPECT_EQ(list().ForeColor(), 0x112233);
  EXPECT_EQ(list().BackColor(), colours::white);
}

TEST_F(NvListWidgetTest, WhatIsEditedCanBeReadOnADesktopOfAnyColours) {
  list().AllowEdit(true);
  fill(3);
  const auto background = [&](Qt::GlobalColor desktop, Colour text) {
    setColours(desktop, Qt::red, Qt::red);
    list().ForeColor(text);
    list().SetEdit(2);
    EXPECT_EQ(edit().palette().color(QPalette::Text), QColor(rgbOf(text, {})));
    return edit().palette().color(QPalette::Base);
  };
  EXPECT_EQ(background(Qt::yellow, 0), QColor(Qt::yellow));
  EXPECT_EQ(background(Qt::black, 0), QColor(Qt::white));
  EXPECT_EQ(background(Qt::white, 0xFFFFFF), QColor(Qt::black));
}

TEST_F(NvListWidgetTest, FailuresGoWhereTheProgramWants) {
  static QString logged;
  QString reported;
  const auto failing = [&](QtFailures::Mode mode) {
    QtFailures::setMode(mode);
    logged = reported = "";
    list().ItemText(7);
    QtFailures::setMode(QtFailures::Mode::Box);
    return reported + " / " + logged.section(',', 0, 0);
  };
  QtApplication services;
  const auto usual = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { logged = message; });
  EXPECT_EQ(failing(QtFailures::Mode::Signal), " / 9: Subscript out of range (nvList.ItemText");
  const auto reporter = QObject::connect(
      &QtFailures::instance(), &QtFailures::reported,
      [&](int number, const QString& description, const QString& where) {
        reported = QString::number(number) + " " + description + " " + where.section(',', 0, 0);
      });
  EXPECT_EQ(failing(QtFailures::Mode::Signal), "9 Subscript out of range nvList.ItemText / ");
  EXPECT_EQ(failing(QtFailures::Mode::Silent), " / ");
  QObject::disconnect(reporter);
  qInstallMessageHandler(usual);
}

}  // namespace
}  // namespace norvane
