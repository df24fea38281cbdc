#include <nvlist/platform/qt/NvListWidget.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QMetaProperty>
#include <QPalette>
#include <QRegularExpression>
#include <QScroller>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <string>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtColour.h>
#include <nvlist/platform/qt/QtFailures.h>
#include <nvlist/platform/qt/QtFont.h>

namespace norvane {
namespace {

class WidgetProperties : public testing::Test {
 protected:
  WidgetProperties() {
    widget.resize(200, 150);
    list.MinHeight(16);
    for (int i = 0; i < 40; ++i)
      widget.addItem(QString("a text that is wider than the list ") + QString::number(i));
    widget.show();
  }
  ~WidgetProperties() override {
    for (const auto& box : application.boxes) ADD_FAILURE() << box.text;
  }

  void turn(QPoint delta, Qt::KeyboardModifiers keys = {}) {
    const QPointF at(50, 50);
    QWheelEvent event(at, widget.mapToGlobal(at), {}, delta, {}, keys, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }

  HeadlessApplication application;
  NvListWidget widget;
  nvList& list = widget.list();
};

/// Another value than the default, in the type that Qt's property has to have.
QVariant otherValue(const StoredProperty& property) {
  switch (property.type) {
    case PropertyType::font:
      return QFont("Serif", 17);
    case PropertyType::colour:
      return QColor(1, 2, 3);
    case PropertyType::boolean:
      return !property.defaultValue.toBoolean();
    case PropertyType::single:
      return 5.5;
    case PropertyType::integer:
      return 7;
    default:
      return 1;
  }
}

/// The value in the list that belongs to it.
Variant inList(const StoredProperty& property, const QVariant& value) {
  switch (property.type) {
    case PropertyType::font:
      return Variant(Ref<Object>(fontFrom(value.value<QFont>())));
    case PropertyType::colour:
      return 0x030201;
    case PropertyType::boolean:
      return Boolean(value.toBool());
    case PropertyType::single:
      return 5.5F;
    default:
      return value.toInt();
  }
}

TEST_F(WidgetProperties, everyStoredPropertyIsOneOfQt) {
  const QMetaObject& meta = *widget.metaObject();
  for (const StoredProperty& property : storedProperties()) {
    std::string name = std::string(property.name) == "Style" ? "ListStyle" : property.name;
    name[0] = static_cast<char>(std::tolower(name[0]));
    const QMetaProperty ofQt = meta.property(meta.indexOfProperty(name.c_str()));
    ASSERT_TRUE(ofQt.isValid() && ofQt.isWritable()) << name;
    const QVariant value = otherValue(property);
    EXPECT_TRUE(ofQt.isEnumType() ? value.typeId() == QMetaType::Int
                                  : ofQt.metaType() == value.metaType())
        << name << " is a " << ofQt.typeName();
    ASSERT_NE(ofQt.read(&widget), value) << name;
    EXPECT_TRUE(ofQt.write(&widget, value)) << name;
    const Variant expected = inList(property, value);
    EXPECT_EQ(property.type == PropertyType::font
                  ? property.get(list).object()->isSame(*expected.object())
                  : property.get(list).toText() == expected.toText(),
              true)
        << name << " is " << property.get(list).toText() << " in the list";
    if (ofQt.isEnumType())
      EXPECT_EQ(ofQt.read(&widget).toInt(), 1) << name;
    else
      EXPECT_EQ(ofQt.read(&widget), value) << name;
  }
}

TEST_F(WidgetProperties, systemColoursAreKept) {
  list.BackColor(colours::window);
  widget.setProperty("backColor", widget.property("backColor"));
  EXPECT_EQ(list.BackColor(), colours::window);
  widget.setBackColor(Qt::red);
  EXPECT_EQ(list.BackColor(), 0x0000FF);
}

TEST_F(WidgetProperties, aFontOfTheHostStaysUntilTheWidgetGetsOne) {
  const auto size = [&] { return list.Font()->Size; };
  QWidget form;
  form.setFont(QFont("Sans", 14));
  widget.setParent(&form);
  EXPECT_EQ(size(), 14);
  auto own = makeRef<FontObject>();
  own->Size = 30;
  list.Font(own);
  form.setFont(QFont("Sans", 15));
  EXPECT_EQ(size(), 30);
  widget.setFont(QFont("Sans", 16));
  EXPECT_EQ(size(), 16);
  widget.setParent(nullptr);
}

/// The colours of the list and of disabled rows, on palettes of all kinds.
TEST_F(WidgetProperties, rowsAreReadableInEveryPalette) {
  const struct {
    const char* name;
    QColor base, text, disabled;
  } palettes[] = {{"light", Qt::white, Qt::black, QColor(190, 190, 190)},
                  {"dark", QColor(36, 36, 36), Qt::white, QColor(60, 60, 60)},
                  {"black", Qt::black, QColor(0, 255, 0), Qt::black},
                  {"sepia", QColor(250, 235, 200), QColor(90, 60, 20), QColor(250, 235, 200)}};
  widget.setFollowsPalette(true);
  for (const auto& p : palettes) {
    QPalette palette;
    palette.setColor(QPalette::Base, p.base);
    palette.setColor(QPalette::Text, p.text);
    palette.setColor(QPalette::Disabled, QPalette::Text, p.disabled);
    widget.setPalette(palette);
    EXPECT_EQ(widget.foreColor(), p.text) << p.name;
    EXPECT_EQ(widget.grab().toImage().pixelColor(100, 3), p.base) << p.name;
    const QPalette readable = readablePalette(palette);
    const QColor background(rgbOf(colours::light3D, readable));
    EXPECT_GE(contrastOf(QColor(rgbOf(colours::greyText, readable)), background), 3) << p.name;
    EXPECT_LE(contrastOf(p.base, background), 1.6) << p.name;
  }
  list.ForeColor(0x112233);
  widget.setFollowsPalette(false);
  EXPECT_EQ(list.ForeColor(), 0x112233);
  EXPECT_EQ(list.BackColor(), colours::white);
}

TEST_F(WidgetProperties, fineTurnsAddUpToNotches) {
  QSignalSpy scrolls(&widget, &NvListWidget::scrolled);
  for (const int delta : {-30, -30, -30}) turn({0, delta});
  EXPECT_EQ(list.TopIndex(), 0);
  turn({0, -30});
  EXPECT_EQ(list.TopIndex(), 1);
  turn({0, -110}), turn({0, 20});  // another direction starts anew
  EXPECT_EQ(list.TopIndex(), 1);
  EXPECT_EQ(scrolls.size(), 1);
  turn({0, -240});
  EXPECT_EQ(scrolls.size(), 2);
  widget.setPassesFineWheel(true);
  turn({0, -30});
  EXPECT_EQ(list.TopIndex(), 31);  // the list itself takes a part of a notch for all the way
  widget.setFollowsWheelSettings(true);
  EXPECT_EQ(list.WheelScrollLines(), QApplication::wheelScrollLines());
}

TEST_F(WidgetProperties, aSidewaysWheelMovesTheHorizontalBar) {
  turn({-120, 0});
  EXPECT_EQ(list.horizontalBar().Value(), 0);
  list.ScrollBars(vbBoth);
  list.CheckScroll();
  ASSERT_TRUE(list.horizontalBar().Visible());
  turn({-60, 0});
  const int half = list.horizontalBar().Value();
  EXPECT_EQ(half, 8 * QApplication::wheelScrollLines());
  turn({-60, 0});
  EXPECT_EQ(list.horizontalBar().Value(), 2 * half);
  turn({1200, 0});
  EXPECT_EQ(list.horizontalBar().Value(), 0);
  EXPECT_EQ(list.TopIndex(), 0);
}

TEST_F(WidgetProperties, touchScrollsByRows) {
  QScroller* const scroller = QScroller::scroller(&widget);
  scroller->scrollTo(QPointF(0, 165), 0);
  EXPECT_EQ(list.TopIndex(), 10);
  scroller->scrollTo(QPointF(0, 1e6), 0);
  EXPECT_EQ(list.TopIndex(), 40 - list.VisibleItems());
}

TEST_F(WidgetProperties, aTextOfSeveralLinesStaysInItsRow) {
  list.ItemsClear();
  for (const char* text : {"", "A\nB\nC", ""}) widget.addItem(text);
  list.MinHeight(list.state().ItemHeightValue + 4);
  const auto inkIn = [&](int index) {
    const QImage image = widget.grab(widget.itemRect(index)).toImage();
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) ink += image.pixelColor(x, y) == Qt::black;
    return ink;
  };
  EXPECT_GT(inkIn(0), 0);
  widget.setClipsTexts(true);
  EXPECT_EQ(inkIn(0) + inkIn(2), 0);
  EXPECT_GT(inkIn(1), 0);
}

TEST_F(WidgetProperties, theLayoutIsMirroredOnRequest) {
  const auto shown = [&] { return widget.grab().toImage(); };
  list.AutoRedraw(false);
  for (int i = 0; i < 40; ++i) list.ItemText(i, "");
  list.AutoRedraw(true);
  list.ListIndex(1);
  const QImage plain = shown();
  widget.setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(shown(), plain);
  widget.setMirrorsLayout(true);
  EXPECT_EQ(shown().mirrored(true, false), plain);
  EXPECT_EQ(widget.itemRect(1).left(), 200 - 182);

  list.Style(cCheckBoxes);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {200 - 1 - 9, 12 + 32});
  EXPECT_TRUE(list.ItemChecked(2));
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {9, 144});  // the lower button of the bar
  EXPECT_EQ(list.TopIndex(), 1);
  list.Style(cDefault);
  list.ItemText(5, "A");
  const QImage row = widget.grab(widget.itemRect(5)).toImage();
  int left = row.width();
  for (int y = 0; y < row.height(); ++y)
    for (int x = 0; x < row.width(); ++x)
      if (row.pixelColor(x, y) == Qt::black) left = std::min(left, x);
  EXPECT_GT(left, row.width() - 20);
  EXPECT_LT(left, row.width());
}

TEST(Failures, goWhereTheProgramWants) {
  QtApplication application;
  NvListWidget widget;
  QStringList told;
  const auto reporter = QObject::connect(
      &QtFailures::instance(), &QtFailures::reported,
      [&](int number, const QString& description, const QString& where) {
        told << QString::number(number) + " " + description + " " + where.section(',', 0, 0);
      });
  QtFailures::setMode(QtFailures::Mode::Signal);
  widget.list().ItemText(7);
  EXPECT_EQ(told, QStringList("9 Subscript out of range nvList.ItemText"));
  QObject::disconnect(reporter);
  QTest::ignoreMessage(QtWarningMsg,
                       QRegularExpression("^9: Subscript out of range \\(nvList\\.ItemText, line"));
  widget.list().ItemText(7);
  QtFailures::setMode(QtFailures::Mode::Silent);
  widget.list().ItemText(7);
  EXPECT_EQ(told.size(), 1);
  QtFailures::setMode(QtFailures::Mode::Box);
}

}  // namespace
}  // namespace norvane
