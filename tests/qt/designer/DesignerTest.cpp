// What Designer's plugin offers, through Qt alone: this program links nothing of the library.

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <memory>

namespace {

constexpr const char* form = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form"><layout class="QVBoxLayout">
<item><widget class="norvane::NvListWidget" name="towns">
  <property name="listStyle"><enum>norvane::NvListProperties::ListStyle::CheckBoxes</enum></property>
  <property name="colorStyle"><enum>norvane::NvListProperties::ColorStyle::XPOlive</enum></property>
  <property name="minHeight"><double>20.5</double></property>
  <property name="foreColor"><color><red>1</red><green>2</green><blue>3</blue></color></property>
  <property name="font"><font><pointsize>15</pointsize></font></property>
</widget></item>
<item><widget class="norvane::NvHScrollWidget" name="bar">
  <property name="maximum"><number>11</number></property>
  <property name="value"><number>7</number></property>
</widget></item>
</layout></widget></ui>)";

TEST(Designer, theLoaderMakesListsAndBars) {
  QUiLoader loader;
  loader.addPluginPath(NVLIST_PLUGIN_FOLDER);
  QByteArray text(form);
  QBuffer file(&text);
  const std::unique_ptr<QWidget> made(loader.load(&file));
  ASSERT_TRUE(made) << loader.errorString().toStdString();
  auto* const list = made->findChild<QWidget*>("towns");
  auto* const bar = made->findChild<QWidget*>("bar");
  ASSERT_TRUE(list && bar);
  EXPECT_STREQ(list->metaObject()->className(), "norvane::NvListWidget");
  EXPECT_EQ(list->property("listStyle").toInt(), 1);
  EXPECT_EQ(list->property("colorStyle").toInt(), 2);
  EXPECT_EQ(list->property("scrollColorStyle").toInt(), 2);
  EXPECT_EQ(list->property("minHeight").toDouble(), 20.5);
  EXPECT_EQ(list->property("foreColor").value<QColor>(), QColor(1, 2, 3));
  EXPECT_EQ(list->font().pointSize(), 15);
  EXPECT_EQ(bar->property("value").toInt(), 7);
}

TEST(Designer, showsAPreviewOfTheListAndAnIcon) {
  QPluginLoader plugin(NVLIST_PLUGIN_FILE);
  auto* const collection =
      qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
  ASSERT_TRUE(collection) << plugin.errorString().toStdString();
  ASSERT_EQ(collection->customWidgets().size(), 3);
  for (QDesignerCustomWidgetInterface* entry : collection->customWidgets()) {
    EXPECT_FALSE(entry->icon().isNull());
    EXPECT_TRUE(entry->domXml().contains(entry->name()));
    const auto picture = [&] {
      const std::unique_ptr<QWidget> widget(entry->createWidget(nullptr));
      EXPECT_EQ(widget->metaObject()->className(), entry->name());
      widget->setObjectName("preview");
      return widget->grab().toImage();
    };
    const QImage running = picture();
    entry->initialize(nullptr);
    EXPECT_EQ(picture() != running, entry->name().contains("List"));
  }
}

}  // namespace

int main(int argc, char** argv) {
  QApplication program(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
