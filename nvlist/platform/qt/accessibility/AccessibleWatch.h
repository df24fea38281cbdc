#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>
#include <QTimer>
#include <vector>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

class AccessibleList;

/// Reports to screen readers what has changed in a list: it compares what the list shows after each
/// paint with what it showed before, so that a change costs the list nothing. Exists only once
/// something has asked for the list.
class AccessibleWatch : public QObject {
 public:
  /// Ends with the widget.
  explicit AccessibleWatch(NvListWidget& widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  /// Passes an event on to Qt.
  virtual void send(QAccessibleEvent& event);

 private:
  struct ShownRow {
    QString text;
    bool isEnabled;
    bool isChecked;
    bool isSelected;
  };
  struct Shown {
    int count = 0;
    int current = -1;
    int top = 0;  ///< index of the first row below
    bool hasFocus = false;
    int vertical = 0;
    int horizontal = 0;
    std::vector<ShownRow> rows = {};
  };

  Shown take() const;
  void compare();
  void report(int index, const ShownRow& before, const ShownRow& now);
  void reportRow(int index, QAccessible::Event type);
  void reportBar(const AccessibleList& list, Qt::Orientation orientation);

  NvListWidget& widget_;
  Shown before_;
  QTimer comparing_;
};

}  // namespace norvane
