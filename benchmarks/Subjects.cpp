#include "Subjects.h"

#include <QApplication>
#include <map>

namespace {

template <class Text>
using ByCount = std::map<int, std::vector<Text>>;

template <class Text, class Make>
const std::vector<Text>& madeOnce(ByCount<Text>& made, int count, Make&& make) {
  std::vector<Text>& result = made[count];
  if (result.empty()) {
    result.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) result.push_back(make(i));
  }
  return result;
}

void place(QWidget& widget, bool isShown) {
  widget.resize(400, 300);
  if (!isShown) return;
  widget.show();
  QApplication::processEvents();
}

}  // namespace

std::string textOf(int number) { return "item " + std::to_string(number) + " of list"; }

std::string keyOf(int number) { return "key " + std::to_string(number); }

const std::vector<std::string>& texts(int count) {
  static ByCount<std::string> made;
  return madeOnce(made, count, textOf);
}

const std::vector<QString>& qtTexts(int count) {
  static ByCount<QString> made;
  return madeOnce(made, count, [](int i) { return QString::fromStdString(textOf(i)); });
}

const std::vector<std::string>& keys(int count) {
  static ByCount<std::string> made;
  return madeOnce(made, count, keyOf);
}

std::unique_ptr<norvane::NvListWidget> makeNvList(bool isShown) {
  auto widget = std::make_unique<norvane::NvListWidget>();
  widget->list().AutoRedraw(isShown);
  if (!isShown) widget->list().AutoCheckScroll(false);
  place(*widget, isShown);
  return widget;
}

std::unique_ptr<QListWidget> makeListWidget(bool isShown) {
  auto widget = std::make_unique<QListWidget>();
  widget->setUniformItemSizes(true);
  widget->setFrameShape(QFrame::NoFrame);
  widget->setUpdatesEnabled(isShown);
  place(*widget, isShown);
  return widget;
}

std::unique_ptr<norvane::HeadlessList> makeHeadlessList() {
  auto list = std::make_unique<norvane::HeadlessList>(400.0F, 300.0F);
  list->list().AutoRedraw(false);
  list->list().AutoCheckScroll(false);
  return list;
}

void fill(norvane::nvList& list, int count) {
  for (const std::string& text : texts(count)) list.ItemsAdd(text);
  if (!list.AutoCheckScroll()) list.CheckScroll();
}

void fill(QListWidget& list, int count) {
  for (const QString& text : qtTexts(count)) list.addItem(text);
}

void fillAllFields(norvane::nvList& list, int count) {
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    list.ItemsAdd({.aText = texts(count)[at],
                   .aChecked = i % 2 == 0,
                   .aForeColor = i % 8,
                   .aTag = i,
                   .aKey = keys(count)[at]});
  }
}

void fillAllFields(QListWidget& list, int count) {
  for (int i = 0; i < count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    auto* item = new QListWidgetItem(qtTexts(count)[at]);
    item->setCheckState(i % 2 == 0 ? Qt::Checked : Qt::Unchecked);
    item->setForeground(QColor(i % 8, 0, 0));
    item->setData(Qt::UserRole, i);
    item->setData(Qt::UserRole + 1, QString::fromStdString(keys(count)[at]));
    list.addItem(item);
  }
}
