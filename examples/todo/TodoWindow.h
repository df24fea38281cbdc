#pragma once

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QVBoxLayout>

#include <nvlist/platform/qt/NvListKeys.h>

namespace colours = norvane::colours;
using norvane::NvListWidget;

constexpr auto red = norvane::rgb(208, 64, 48);  // readable on light and dark backgrounds
constexpr bool withEverything = true;            // tags, colours and check marks, too

class TodoWindow : public QMainWindow {
 public:
  explicit TodoWindow(QString path) : path_(std::move(path)) {
    setWindowTitle("To do");
    resize(380, 420);
    list_->setListStyle(NvListWidget::ListStyle::CheckBoxes);
    list_->setFollowsPalette(true);
    list_->setMirrorsLayout(true);
    list_->setMinHeight(24);
    list_->setDistPicText(6);
    list_->setAllowEdit(true);
    list_->setAllowItemMoving(true);
    items_.ListInput(path_.toStdString(), withEverything);
    items_.CheckScroll();  // loading leaves the scroll bars as they are
    for (int i = 0; i < list_->count(); ++i) showState(i);

    setCentralWidget(new QWidget);
    auto* const column = new QVBoxLayout(centralWidget());
    column->addWidget(newTask_);
    column->addWidget(list_);
    newTask_->setPlaceholderText("What is to be done?");

    auto* const keys = new norvane::NvListKeys(*list_);
    connect(keys, &norvane::NvListKeys::deleteRequested, this, &TodoWindow::remove);
    connect(newTask_, &QLineEdit::returnPressed, this, &TodoWindow::add);
    connect(list_, &NvListWidget::itemChecked, this, &TodoWindow::change);
    connect(list_, &NvListWidget::itemEdited, this, &TodoWindow::change);
    connect(list_, &NvListWidget::itemMoved, this, &TodoWindow::save);
    connect(list_, &NvListWidget::contextMenuRequested, this, &TodoWindow::showMenu);
    connect(list_, &NvListWidget::saveFailed, this,
            [this] { QMessageBox::warning(this, "To do", "Cannot save " + path_); });
    showCount();
  }

 private:
  void save() {
    items_.ListSave(path_.toStdString(), withEverything);
    showCount();
  }

  void add() {
    if (newTask_->text().trimmed().isEmpty()) return;
    const int index = list_->addItem(newTask_->text().trimmed());
    items_.ItemAllowEdit(index, true);
    list_->setCurrentIndex(index);
    list_->scrollTo(index);
    newTask_->clear();
    save();
  }

  void remove() {
    items_.ItemsSelectedRemove();
    save();
  }

  void change(int index) {
    showState(index);
    save();
  }

  void showState(int index) {
    const bool isUrgent = items_.ItemTag(index).toText() == "urgent";
    const norvane::Colour open = isUrgent ? red : colours::windowText;
    items_.ItemForeColor(index, items_.ItemChecked(index) ? colours::greyText : open);
  }

  void showMenu(int index, QPoint at) {
    if (index < 0) return;
    list_->setCurrentIndex(index);
    QMenu menu;
    menu.addAction("Edit", this, [=, this] { items_.SetEdit(index); });
    menu.addAction("Urgent", this, [=, this] {
      items_.ItemTag(index, "urgent");
      change(index);
    });
    menu.addAction("Remove", this, &TodoWindow::remove);
    menu.exec(list_->mapToGlobal(at));
  }

  void showCount() {
    const QString message("%1 of %2 done");
    statusBar()->showMessage(message.arg(items_.ItemsCheckCount()).arg(list_->count()));
  }

  const QString path_;
  QLineEdit* const newTask_ = new QLineEdit;
  NvListWidget* const list_ = new NvListWidget;
  norvane::nvList& items_ = list_->list();
};
