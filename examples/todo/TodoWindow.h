#pragma once

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QStatusBar>
#include <QVBoxLayout>

#include <nvlist/platform/qt/NvListKeys.h>

// Blue, green, red.
constexpr norvane::Colour black = 0, grey = 0x808080, red = 0x2222B2;

class TodoWindow : public QMainWindow {
 public:
  explicit TodoWindow(QString path) : path_(std::move(path)) {
    setWindowTitle("To do");
    resize(380, 420);
    norvane::nvList& list = list_->list();
    list.Style(norvane::cCheckBoxes);
    list.MinHeight(24);
    list.DistPicText(6);
    list.GridLines(true);
    list.GridLineColor(0xEEEEEE);
    list.AllowEdit(true);
    list.AllowItemMoving(true);
    load();

    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->addWidget(newTask_);
    column->addWidget(list_);
    setCentralWidget(content);
    newTask_->setPlaceholderText("What is to be done?");

    auto* const keys = new norvane::NvListKeys(*list_);
    connect(keys, &norvane::NvListKeys::deleteRequested, this, [this] { remove(); });
    connect(newTask_, &QLineEdit::returnPressed, this, [this] { add(); });
    connect(list_, &norvane::NvListWidget::itemChecked, this,
            [this](int index) { changed(index); });
    connect(list_, &norvane::NvListWidget::itemEdited, this, [this](int index) { changed(index); });
    connect(list_, &norvane::NvListWidget::itemMoved, this, [this] { save(); });
    connect(list_, &norvane::NvListWidget::contextMenuRequested, this, &TodoWindow::showMenu);
    showCount();
  }

 private:
  void load() {
    list_->list().ListInput(path_.toStdString(), true);
    for (int i = 0; i < list_->count(); ++i) showState(i);
    list_->list().CheckScroll();
  }

  void save() {
    list_->list().ListSave(path_.toStdString(), true);
    showCount();
  }

  void add() {
    if (newTask_->text().trimmed().isEmpty()) return;
    const int index = list_->addItem(newTask_->text().trimmed());
    list_->list().ItemAllowEdit(index, true);
    list_->list().ListIndex(index);
    newTask_->clear();
    save();
  }

  void remove() {
    list_->list().ItemsSelectedRemove();
    save();
  }

  void changed(int index) {
    showState(index);
    save();
  }

  void showState(int index) {
    norvane::nvList& list = list_->list();
    const bool isUrgent = list.ItemTag(index).toText() == "urgent";
    list.ItemForeColor(index, list.ItemChecked(index) ? grey : isUrgent ? red : black);
  }

  void showMenu(int index, QPoint at) {
    if (index < 0) return;
    list_->list().ListIndex(index);
    QMenu menu;
    menu.addAction("Edit", this, [=, this] { list_->list().SetEdit(index); });
    menu.addAction("Urgent", this, [=, this] {
      list_->list().ItemTag(index, "urgent");
      changed(index);
    });
    menu.addAction("Remove", this, [this] { remove(); });
    menu.exec(list_->mapToGlobal(at));
  }

  void showCount() {
    const int done = list_->list().ItemsCheckCount();
    statusBar()->showMessage(QString("%1 of %2 done").arg(done).arg(list_->count()));
  }

  const QString path_;
  QLineEdit* const newTask_ = new QLineEdit;
  norvane::NvListWidget* const list_ = new norvane::NvListWidget;
};
