#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaProperty>

#include <examples/gallery/Sheet.h>

namespace gallery {
namespace {

void type(QLineEdit* line, const QString& text) {
  line->setText(text);
  line->setModified(true);
  emit line->editingFinished();
}

QVariant shownBy(QWidget* field) { return field->metaObject()->userProperty().read(field); }

/// Enters another value, as a user would. Fields with a dialog stay as they are.
void change(QWidget* field) {
  if (auto* box = qobject_cast<QCheckBox*>(field)) box->click();
  if (auto* box = qobject_cast<QAbstractSpinBox*>(field)) box->stepBy(5);
  if (auto* line = qobject_cast<QLineEdit*>(field)) type(line, "#12ABEF");
  if (auto* box = qobject_cast<QComboBox*>(field)) {
    box->setCurrentIndex((box->currentIndex() + 1) % box->count());
    emit box->activated(box->currentIndex());
  }
}

class SheetTest : public testing::Test {
 protected:
  SheetTest() {
    widget.resize(200, 100);
    for (const char* text : {"Graz", "Linz", "Vienna"}) widget.list().ItemsAdd(text);
    widget.list().ListIndex(1);
    QObject::connect(&widget, &norvane::NvListWidget::propertyChanged,
                     [this](const QString& name) { told << name; });
  }

  /// Edits every property of a sheet that changes no others. Returns their number.
  int editAll(Sheet& sheet, const Subject& subject) {
    const QStringList others{"", "ListIndex", "TopIndex", "Text", "Design mode", "SilentError"};
    int edited = 0;
    for (auto* field : sheet.widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QString name = field->objectName();
      if (others.contains(name)) continue;
      sheet.show(subject);
      told.clear();
      const QVariant before = shownBy(field);
      change(field);
      const QVariant entered = shownBy(field);
      if (entered == before) continue;
      sheet.show(subject);
      EXPECT_EQ(shownBy(field), entered) << qPrintable(name);
      EXPECT_TRUE(told.contains(name)) << qPrintable(name);
      ++edited;
    }
    return edited;
  }

  norvane::NvListWidget widget;
  QStringList told;
};

TEST_F(SheetTest, everyRowReadsAndWritesThePropertyItNames) {
  Sheet list(propertiesOfTheList());
  EXPECT_EQ(editAll(list, {&widget}), 32);
  Sheet item(propertiesOfItems());
  EXPECT_EQ(editAll(item, {&widget, 1}), 17);
}

TEST_F(SheetTest, coloursAreTypedByName) {
  Sheet sheet(propertiesOfItems());
  sheet.show({&widget, 1});
  auto* const line = sheet.findChild<QLineEdit*>("ItemForeColorSelect");
  type(line, "system 17");
  EXPECT_EQ(widget.list().ItemForeColorSelect(1).toInt32(), norvane::colours::greyText);
  type(line, "red");
  sheet.show({&widget, 1});
  // A text that is not a colour is replaced.
  for (const char* text : {"reddish", "system 256", ""}) {
    type(line, text);
    EXPECT_EQ(line->text(), "#FF0000") << text;
  }
}

}  // namespace
}  // namespace gallery
