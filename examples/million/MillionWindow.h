#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <string>

#include <nvlist/platform/qt/NvListKeys.h>

constexpr int rowsAtOnce = 20'000;

/// "Lida Morat 000042": a different name for each number.
inline std::string nameOf(int number) {
  static constexpr const char* first[] = {"Ada", "Boro", "Cilla", "Dunja", "Edo", "Lida", "Nuri"};
  static constexpr const char* second[] = {"Abel", "Brandt", "Cornelis", "Morat", "Oster"};
  std::string digits = std::to_string(number);
  digits.insert(0, 6 - std::min<std::size_t>(digits.size(), 6), '0');
  return std::string(first[number % 7]) + ' ' + second[number % 5] + ' ' + digits;
}

class MillionWindow : public QWidget {
 public:
  explicit MillionWindow(int rows = 1'000'000) : rows_(rows) {
    setWindowTitle(QString("%L1 rows").arg(rows_));
    resize(420, 460);
    auto* const column = new QVBoxLayout(this);
    for (QWidget* part : {static_cast<QWidget*>(search_), static_cast<QWidget*>(list_),
                          static_cast<QWidget*>(progress_), static_cast<QWidget*>(state_)})
      column->addWidget(part, part == list_ ? 1 : 0);
    search_->setPlaceholderText("Search: any part of a name; Return for the next one");
    search_->setEnabled(false);
    progress_->setMaximum(rows);
    list_->setFollowsPalette(true);
    list_->setMirrorsLayout(true);
    list_->setMultiSelect(true);
    new norvane::NvListKeys(*list_);

    connect(search_, &QLineEdit::textEdited, this, [this] { find(list_->currentIndex()); });
    connect(search_, &QLineEdit::returnPressed, this, [this] { find(list_->currentIndex() + 1); });
    connect(list_, &norvane::NvListWidget::selectionChanged, this, [this] {
      state_->setText(
          QString("%L1 of %L2 selected").arg(list_->selectedIndexes().size()).arg(rows_));
    });
    filling_.callOnTimeout(this, [this] { fill(); });
    filling_.start(0);
    clock_.start();
  }

 private:
  /// Adds some rows, and then lets the window live.
  void fill() {
    norvane::nvList& list = list_->list();
    list.AutoRedraw(false);
    list.AutoCheckScroll(false);
    const int end = std::min(list_->count() + rowsAtOnce, rows_);
    for (int i = list_->count(); i < end; ++i) list.ItemsAdd(nameOf(i));
    list.AutoCheckScroll(true);
    list.AutoRedraw(true);
    progress_->setValue(end);
    if (end < rows_) return;
    filling_.stop();
    progress_->hide();
    search_->setEnabled(true);
    search_->setFocus();
    state_->setText(QString("%L1 rows in %L2 ms").arg(rows_).arg(clock_.elapsed()));
  }

  /// Goes to the next row that contains what was typed, from `from` on and then from the top.
  void find(int from) {
    const QString wanted = search_->text();
    if (wanted.isEmpty()) return;
    clock_.start();
    for (int i = 0; i < rows_; ++i) {
      const int index = (std::max(from, 0) + i) % rows_;
      if (!list_->itemText(index).contains(wanted, Qt::CaseInsensitive)) continue;
      list_->setCurrentIndex(index);
      list_->scrollTo(index);
      state_->setText(QString("row %L1, found in %L2 ms").arg(index + 1).arg(clock_.elapsed()));
      return;
    }
    state_->setText(QString("not found, in %L1 ms").arg(clock_.elapsed()));
  }

  const int rows_;
  QLineEdit* const search_ = new QLineEdit;
  norvane::NvListWidget* const list_ = new norvane::NvListWidget;
  QProgressBar* const progress_ = new QProgressBar;
  QLabel* const state_ = new QLabel("Making rows...");
  QTimer filling_;
  QElapsedTimer clock_;
};
