#pragma once

#include <QMainWindow>

#include <nvlist/platform/qt/NvListWidget.h>

/// The window of the gallery: one list, and a line below that says what it holds.
class GalleryWindow : public QMainWindow {
 public:
  GalleryWindow();

  /// Shows the lines of a text; `title` names it.
  void show(const QStringList& lines, const QString& title);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void scrollBy(int rows);
  void updateStatus();

  norvane::NvListWidget* list_;
};
