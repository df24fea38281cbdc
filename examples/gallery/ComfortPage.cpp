#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPalette>
#include <QStringList>
#include <QUrl>

#include <nvlist/platform/qt/NvListDrop.h>

#include "Pages.h"

using norvane::nvList;
using norvane::NvListDrop;
using norvane::NvListWidget;

namespace gallery {
namespace {

/// The names of files, or the lines of a text.
QStringList linesOf(const QMimeData& data) {
  QStringList lines;
  for (const QUrl& url : data.urls())
    lines << (url.isLocalFile() ? url.fileName() : url.toDisplayString());
  return lines.isEmpty() ? data.text().split('\n', Qt::SkipEmptyParts) : lines;
}

void addDropping(Stage& stage) {
  nvList& list = stage.addList("drop", "Drop here, drag rows out");
  NvListWidget* const widget = stage.lists().back();
  list.MultiSelect(true);
  list.MinHeight(20);
  for (const char* text :
       {"Apples", "Bread", "Coffee", "Flour", "Lentils", "Pears", "Rice", "Salt"})
    list.ItemsAdd({.aText = text, .aAllowEdit = true});
  auto* const drop = new NvListDrop(*widget);
  drop->setDragsRows(true);
  QObject::connect(drop, &NvListDrop::dropped, widget, [&list](const QMimeData* data, int index) {
    for (const QString& line : linesOf(*data))
      list.ItemsAdd({.aText = line.toStdString(), .aIndex = index++, .aAllowEdit = true});
  });
}

void addMirrored(Stage& stage) {
  nvList& list = stage.addList("mirrored", "Mirrored: from right to left");
  NvListWidget* const widget = stage.lists().back();
  widget->setLayoutDirection(Qt::RightToLeft);
  list.Style(norvane::cCheckBoxes);
  list.MinHeight(20);
  list.DistPicText(6);
  list.AllowEdit(true);
  for (const char* text :
       {"תפוחים|right=6", "לחם|right=1", "קפה|right=2", "קמח|right=1", "عدس|right=3",
        "كمثرى|right=4", "أرز|right=2", "ملح|right=1", "Olive oil|right=1", "סוכר|right=2",
        "شاي|right=5", "חלב|right=3", "جبن|right=2", "Pasta|right=4", "בצל|right=7"})
    list.ItemsAdd({.aText = text, .aChecked = text[1] % 2 == 0, .aAllowEdit = true});
  list.ListIndex(3);
}

void addVerses(Stage& stage, const QString& name, const QString& caption, bool clips) {
  nvList& list = stage.addList(name, caption);
  stage.lists().back()->setClipsTexts(clips);
  list.GridLines(true);
  list.MinHeight(22);
  for (const char* text :
       {"One line", "A row of two lines:\nthe second has no room", "Another single line",
        "This line is longer than any row of this page, even a wide one: a tip shows all of it",
        "Three lines in\na row that has room\nfor one of them", "The last line"})
    list.ItemsAdd({.aText = text, .aAllowEdit = true});
}

/// For the whole program.
void addSwitches(Stage& stage) {
  QHBoxLayout* const row = stage.addRow();
  const auto add = [row](const QString& text, bool isOn, void (*turn)(bool)) {
    auto* const box = new QCheckBox(text);
    box->setChecked(isOn);
    QObject::connect(box, &QCheckBox::toggled, turn);
    row->addWidget(box);
  };
  const QPalette palette = QApplication::palette();
  const bool isDark =
      palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
  add("Dark palette", isDark,
      [](bool on) { QApplication::setPalette(on ? darkPalette() : QPalette()); });
  add("Right to left", QApplication::isRightToLeft(),
      [](bool on) { QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight); });
  row->addStretch(1);
}

}  // namespace

/// Qt computes all colours from that of the buttons.
QPalette darkPalette() { return QColor(50, 50, 54); }

void fillComfort(Stage& stage) {
  addSwitches(stage);
  addDropping(stage);
  addMirrored(stage);
  addVerses(stage, "centred", "Texts of several lines", false);
  addVerses(stage, "clipped", "Clipped to their rows, with tips", true);
}

}  // namespace gallery
