#include "WidgetTest.h"

#include <QMetaProperty>
#include <QPalette>

#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtFailures.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/drawing/QtColour.h>

namespace norvane {
namespace {

using WidgetProperties = WidgetTest;

/// Another value than the default, in the type of Qt's property, and the same value in the list.
std::pair<QVariant, Variant> otherValue(const StoredProperty& property) {
  const QFont font("Serif", 17);
  const bool flag = !property.defaultValue.toBoolean();
  switch (property.type) {
    case PropertyType::font:
      return {font, Variant(Ref<Object>(fontFrom(font)))};
    case PropertyType::colour:
      return {QColor(1, 2, 3), 0x030201};
    case PropertyType::boolean:
      return {flag, Boolean(flag)};
    case PropertyType::single:
      return {5.5, 5.5F};
    case PropertyType::integer:
      return {7, 7};
    default:
      return {1, 1};
  }
}

TEST_F(WidgetProperties, EveryStoredPropertyIsOneOfQt) {
  const QMetaObject& meta = *widget->metaObject();
  for (const StoredProperty& property : storedProperties()) {
    std::string name = std::string(property.name) == "Style" ? "ListStyle" : property.name;
    name[0] = static_cast<char>(std::tolower(name[0]));
    SCOPED_TRACE(name);
    const QMetaProperty ofQt = meta.property(meta.indexOfProperty(name.c_str()));
    ASSERT_TRUE(ofQt.isValid() && ofQt.isWritable());
    const auto [value, expected] = otherValue(property);
    EXPECT_TRUE(ofQt.isEnumType() ? value.typeId() == QMetaType::Int
                                  : ofQt.metaType() == value.metaType())
        << "is a " << ofQt.typeName();
    ASSERT_NE(ofQt.read(widget), value);
    EXPECT_TRUE(ofQt.write(widget, value));
    const bool isFont = property.type == PropertyType::font;
    EXPECT_TRUE(isFont ? property.get(list()).object()->isSame(*expected.object())
                       : property.get(list()).toText() == expected.toText());
    const QVariant read = ofQt.read(widget);
    EXPECT_EQ(ofQt.isEnumType() ? QVariant(read.toInt()) : read, value);
  }
}

TEST_F(WidgetProperties, SystemColoursAreKept) {
  list().BackColor(colours::window);
  widget->setProperty("backColor", widget->property("backColor"));
  EXPECT_EQ(list().BackColor(), colours::window);
  widget->setBackColor(Qt::red);
  EXPECT_EQ(list().BackColor(), 0x0000FF);
}

TEST_F(WidgetProperties, AFontOfTheHostStaysUntilTheWidgetGetsOne) {
  const auto size = [&] { return list().Font()->Size; };
  form.setFont(QFont("Sans", 14));
  EXPECT_EQ(size(), 14);
  auto own = makeRef<FontObject>();
  own->Size = 30;
  list().Font(own);
  form.setFont(QFont("Sans", 15));
  EXPECT_EQ(size(), 30);
  widget->setFont(QFont("Sans", 16));
  EXPECT_EQ(size(), 16);
}

/// The colours of the list and of disabled rows, on palettes of all kinds.
TEST_F(WidgetProperties, RowsAreReadableInEveryPalette) {
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
    QPalette palette;
    palette.setColor(QPalette::Base, p.base);
    palette.setColor(QPalette::Text, p.text);
    palette.setColor(QPalette::Disabled, QPalette::Text, p.disabled);
    widget->setPalette(palette);
    EXPECT_EQ(widget->foreColor(), p.text) << p.name;
    const QImage image = widget->grab().toImage();
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

TEST_F(WidgetProperties, WhatIsEditedCanBeReadOnADesktopOfAnyColours) {
  list().AllowEdit(true);
  fill(3);
  const auto background = [&](Qt::GlobalColor desktop, Colour text) {
    QPalette palette = form.palette();
    palette.setColor(QPalette::Base, desktop);
    form.setPalette(palette);
    list().ForeColor(text);
    list().SetEdit(2);
    EXPECT_EQ(edit().palette().color(QPalette::Text), QColor(rgbOf(text, palette)));
    return edit().palette().color(QPalette::Base);
  };
  EXPECT_EQ(background(Qt::yellow, 0), QColor(Qt::yellow));
  EXPECT_EQ(background(Qt::black, 0), QColor(Qt::white));
  EXPECT_EQ(background(Qt::white, 0xFFFFFF), QColor(Qt::black));
}

TEST(Failures, GoWhereTheProgramWants) {
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
  static QString logged;
  const auto usual = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { logged = message; });
  widget.list().ItemText(7);
  qInstallMessageHandler(usual);
  EXPECT_TRUE(logged.startsWith("9: Subscript out of range (nvList.ItemText, line ")) << "as a log";
  QtFailures::setMode(QtFailures::Mode::Silent);
  widget.list().ItemText(7);
  EXPECT_EQ(told.size(), 1);
  QtFailures::setMode(QtFailures::Mode::Box);
}

}  // namespace
}  // namespace norvane
