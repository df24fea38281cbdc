#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>

#include <nvlist/platform/qt/NvListWidget.h>

class QDropEvent;
class QMimeData;
class QMouseEvent;

namespace norvane {

/// Drag and drop between a list and other programs, for a widget that gets it by one line:
///
///     auto* drop = new NvListDrop(*widget);
///     connect(drop, &NvListDrop::dropped, [=](const QMimeData* data, int index) { ... });
///
/// Files and texts can be dropped. While they are over the list, a black bar shows where, as the
/// one for moving items does, and the list scrolls if they are held at its upper or lower edge. The
/// list changes nothing by itself, and its events named OLE... stay silent.
class NvListDrop : public QObject {
  Q_OBJECT
  Q_PROPERTY(bool dragsRows READ dragsRows WRITE setDragsRows)

 public:
  /// The widget becomes the parent, so the helper ends with it.
  explicit NvListDrop(NvListWidget& widget);

  /// Whether the user can drag the selected rows out of the list as text, a line for each. The
  /// mouse then neither sweeps the selection nor moves items. Default: false.
  bool dragsRows() const { return dragsRows_; }
  void setDragsRows(bool on) { dragsRows_ = on; }

 signals:
  /// Something was dropped in front of the row `index`, or behind all rows if that is the number of
  /// items. `data` is valid during the call.
  void dropped(const QMimeData* data, int index);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool over(QDropEvent& event);
  int indexAt(const QPoint& point) const;
  void mark(int index);
  int directionAt(const QPoint& point) const;
  void scroll();
  void leave();
  bool mouse(QMouseEvent& event);
  void replayPress();
  void drag();

  NvListWidget& widget_;
  QPointer<QWidget> mark_;
  QPoint heldAt_;  ///< what may be dropped
  QTimer scrolling_;
  bool dragsRows_ = false;
  bool isPressed_ = false;
  bool isHeldBack_ = false;
  bool isReplaying_ = false;
  QPoint pressedAt_;
};

}  // namespace norvane
