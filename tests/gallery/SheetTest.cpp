#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>
#include <string>
#include <vector>

#include <examples/gallery/Sheet.h>

namespace gallery {
namespace {

void type(QLineEdit* line, const QString& text) {
  line->setText(text);
  line->setModified(true);
  emit line->editingFinished();
}

QString shownBy(QWidget* widget) {
  if (auto* box = qobject_cast<QCheckBox*>(widget)) return box->isChecked() ? "True" : "False";
  if (auto* box = qobject_cast<QComboBox*>(widget)) return box->currentText();
  if (auto* box = qobject_cast<QAbstractSpinBox*>(widget)) return box->text();
  if (auto* line = qobject_cast<QLineEdit*>(widget)) return line->text();
  return {};
}

/// Enters another value, as a user would, and returns it.
QString change(QWidget* widget) {
  if (auto* box = qobject_cast<QCheckBox*>(widget)) box->click();
  if (auto* box = qobject_cast<QAbstractSpinBox*>(widget)) box->stepBy(5);
  if (auto* line = qobject_cast<QLineEdit*>(widget)) type(line, "#12ABEF");
  if (auto* box = qobject_cast<QComboBox*>(widget)) {
    box->setCurrentIndex((box->currentIndex() + 1) % box->count());
    emit box->activated(box->currentIndex());
  }
  return shownBy(widget);
}

class SheetTest : public testing::Test {
 protected:
  SheetTest() {
    widget.resize(200, 100);
    for (const char* text : {"Graz", "Linz", "Vienna"}) widget.list().ItemsAdd(text);
    widget.list().ListIndex(1);
    QObject::connect(&widget, &norvane::NvListWidget::propertyChanged,
                     [this](const QString& name) { told.push_back(name.toStdString()); });
  }

  /// Edits every property of a sheet that can be edited without a dialog.
  void editAll(Sheet& sheet, const Subject& subject, const QStringList& others) {
    for (auto* field : sheet.widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QString name = field->objectName();
      if (name.isEmpty() || others.contains(name)) continue;
      sheet.show(subject);
      told.clear();
      const QString value = change(field);
      if (value.isEmpty()) continue;
      sheet.show(subject);
      EXPECT_EQ(shownBy(field), value) << name.toStdString();
      EXPECT_NE(std::find(told.begin(), told.end(), name.toStdString()), told.end())
          << name.toStdString() << " was not told";
      ++edited;
    }
  }

  norvane::NvListWidget widget;
  std::vector<std::string> told;
  int edited = 0;
};

TEST_F(SheetTest, everyRowReadsAndWritesThePropertyItNames) {
  Sheet list(propertiesOfTheList());
  editAll(list, {&widget}, {"ListIndex", "TopIndex", "Text", "Design mode", "SilentError"});
  EXPECT_EQ(edited, 32);
  Sheet item(propertiesOfItems());
  edited = 0;
  editAll(item, {&widget, 1}, {});
  EXPECT_EQ(edited, 17);
}

TEST_F(SheetTest, coloursAreTypedByName) {
  Sheet sheet(propertiesOfItems());
  sheet.show({&widget, 1});
  auto* own = sheet.findChild<QLineEdit*>("ItemForeColorSelect");
  type(own, "system 17");
  EXPECT_EQ(widget.list().ItemForeColorSelect(1).toInt32(), norvane::colours::greyText);
  type(own, "red");
  EXPECT_EQ(widget.list().ItemForeColorSelect(1).toInt32(), 0x0000FF);

  // A text that is not a colour changes nothing and is replaced.
  sheet.show({&widget, 1});
  told.clear();
  for (const char* bad : {"reddish", "system 256", ""}) type(own, bad);
  auto* number = sheet.findChild<QLineEdit*>("ItemForeColorDis");
  type(number, "def");
  EXPECT_EQ(told, std::vector<std::string>());
  EXPECT_EQ(own->text(), "#FF0000");
  EXPECT_EQ(number->text(), "system 17");
}

}  // namespace
}  // namespace gallery
