#pragma once

#include <QList>
#include <QPointF>
#include <QPointer>
#include <atomic>
#include <memory>

#include <nvlist/platform/qt/NvListProperties.h>
#include <nvlist/platform/qt/place/QtPlace.h>

class QContextMenuEvent;
class QScrollEvent;
class QScrollPrepareEvent;
class QLineEdit;

namespace norvane {

/// A list as a Qt widget: put it on a form and fill it through list().
///
///     auto* names = new NvListWidget(form);
///     names->list().ItemsAdd("Ada");
///     connect(names, &NvListWidget::itemActivated, [=](int index) { open(names->itemText(index));
///     });
///
/// The list has the font of the widget, until the host gives the list itself another one; setFont
/// replaces that again. Its Enabled is that of the widget. It belongs to the thread of the
/// QApplication. Indexes are those of the list; points are in pixels of the widget. docs/qt.md
/// lists all signals and properties.
class NvListWidget : public NvListProperties {
  Q_OBJECT
  Q_PROPERTY(int count READ count STORED false)
  Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged
                 DESIGNABLE false STORED false USER true)
  Q_PROPERTY(bool followsPalette READ followsPalette WRITE setFollowsPalette)
  Q_PROPERTY(bool mirrorsLayout READ mirrorsLayout WRITE setMirrorsLayout)
  Q_PROPERTY(bool clipsTexts READ clipsTexts WRITE setClipsTexts)
  Q_PROPERTY(bool passesFineWheel READ passesFineWheel WRITE setPassesFineWheel)
  Q_PROPERTY(bool followsWheelSettings READ followsWheelSettings WRITE setFollowsWheelSettings)
  Q_PROPERTY(bool showsCutTexts READ showsCutTexts WRITE setShowsCutTexts)

 public:
  /// The first widget puts the Qt platform's services to use, apart from those that the host has
  /// made already (QtApplication::ensure).
  explicit NvListWidget(QWidget* parent = nullptr);
  ~NvListWidget() override;

  /// Valid as long as the widget. A handler of one of its events, or a slot, may destroy the
  /// widget.
  nvList& list() override;
  const nvList& list() const override;
  /// The place of the list, which contains those of its bars. Valid as long as the widget.
  QtPlace& place();
  const QtPlace& place() const;
  /// The edit box of the list, hidden while nothing is edited; valid as long as the widget.
  QLineEdit* editBox() const;

  /// In design mode the list shows a preview instead of its items and leaves the mouse wheel to the
  /// form. Default: false.
  bool isDesignMode() const;
  void setDesignMode(bool on);

  // ---- comfort beyond the list's own properties ----

  /// Whether the colours come from the palette: the properties ForeColor, BackColor and
  /// GridLineColor of the list, each if it has its default value, become system colours, and the
  /// texts of disabled rows are made readable. Turned off, those that still are such become the
  /// defaults again. The colours of selection and scroll bars stay. Default: false.
  bool followsPalette() const { return followsPalette_; }
  void setFollowsPalette(bool on);
  /// Whether the list is mirrored while layoutDirection() is right to left: check boxes and texts
  /// begin at the right, and the vertical bar is at the left. The sinks of the list get the points
  /// of the layout from left to right. Default: false.
  bool mirrorsLayout() const { return mirrorsLayout_; }
  void setMirrorsLayout(bool on);
  /// Whether a text that is higher than its row is clipped to it (nvList::clipsTexts). Default:
  /// false.
  bool clipsTexts() const;
  void setClipsTexts(bool on);
  /// Whether turns of the wheel by less than a notch, as of a touchpad, reach the list one by one;
  /// it then scrolls to the end at each. Otherwise they are added up to notches. Default: false.
  bool passesFineWheel() const;
  void setPassesFineWheel(bool on);
  /// Whether WheelScrollLines is kept at the number of lines in the settings of the system.
  /// Default: false.
  bool followsWheelSettings() const { return followsWheelSettings_; }
  void setFollowsWheelSettings(bool on);
  /// Whether a text that does not fit into its row is shown whole as a tool tip. A tip that the
  /// host sets, by setToolTip or QI, is shown instead. Default: true.
  bool showsCutTexts() const { return showsCutTexts_; }
  void setShowsCutTexts(bool on) { showsCutTexts_ = on; }

  // ---- items, with Qt's texts ----

  /// The number of items.
  int count() const;
  /// Adds an item with a text, and a key if that is not empty, at the end. Returns its index.
  int addItem(const QString& text, const QString& key = {});
  /// The text, or the key, of an item. A bad index is a failure, and the result is empty.
  QString itemText(int index) const;
  void setItemText(int index, const QString& text);
  QString itemKey(int index) const;
  void setItemKey(int index, const QString& key);
  /// The first item with exactly this text, or key; -1 if no item has it.
  int indexOfText(const QString& text) const;
  int indexOfKey(const QString& key) const;

  // ---- where items are ----

  /// The item that a click at this point would hit, or -1. Near the edge of a row this may be
  /// another one than the row that is painted there: the list hits rows one pixel lower than it
  /// paints them, and above the first row the item before it.
  int indexAt(const QPoint& point) const;
  /// Where the row of an item is painted, inside the frame and left of the vertical bar; outside of
  /// the widget if it is scrolled out of view. Empty if there is no such item.
  QRect itemRect(int index) const;
  /// Scrolls as little as necessary to make the item visible. A bad index is ignored.
  void scrollTo(int index);

  // ---- the current item and the selection ----

  /// The list's ListIndex.
  int currentIndex() const;
  void setCurrentIndex(int index);

  /// The indexes of the selected items, in order. Visits all items if several are selected.
  QList<int> selectedIndexes() const;
  /// Clears the selection. The current item stays.
  void clearSelection();

  QSize sizeHint() const override { return {240, 200}; }

 signals:
  // Emitted when the call or the event that caused them has ended, at most once for each.

  /// The list has another current index; -1 for none. An item that takes the index of another one
  /// is no change.
  void currentChanged(int index);
  /// Other items are selected.
  void selectionChanged();
  /// The rows have moved in the widget: by a scroll bar, the wheel, a key or the host.
  void scrolled();
  /// The user has checked or cleared the check box of an item.
  void itemChecked(int index, bool isChecked);
  /// The edit box has written its text to an item. It may be the old one.
  void itemEdited(int index, const QString& text);
  /// The user has dragged an item to another place. Items between the two have moved by one.
  void itemMoved(int from, int to);
  /// A double click on an enabled item that does not open the edit box, or Return while the list
  /// has the focus.
  void itemActivated(int index);
  /// The context menu was requested at a point of the widget, on an item or (-1) beside all. By the
  /// menu key: on the current item, at its lower left corner. Not emitted, and the request is left
  /// to the parent, while nobody is connected or contextMenuPolicy() is another than the default.
  void contextMenuRequested(int index, const QPoint& point);

  // The events of the list in Qt's types.

  /// A row or the free space below was clicked, or double-clicked.
  void clicked();
  void doubleClicked();
  /// A button was pressed, or released, at a point of the widget.
  void mousePressed(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPointF& point);
  void mouseReleased(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, const QPointF& point);
  /// `index` is the item under the pointer, or -1.
  void mouseMoved(int index, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers,
                  const QPointF& point);
  /// The list refused to make this index, which has no enabled item, the current one.
  void wrongIndex(int index);
  /// A list file could not be loaded, or not be saved.
  void inputFailed();
  void saveFailed();

  // Emitted in the middle of a call. A slot may call any operation, but must not open a dialog.

  /// The user is about to change the check mark of an item. A slot that sets `cancel` prevents it.
  void itemAboutToBeChecked(int index, bool& cancel);
  /// A list file is being loaded, or saved, and this item is done.
  void itemRead(int index);
  void itemSaved(int index);
  /// A property of the list has changed, or was set to the same value again. `name` is its exact
  /// name in the list, such as "ListIndex".
  void propertyChanged(const QString& name);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void connectNotify(const QMetaMethod& signal) override;
  void disconnectNotify(const QMetaMethod& signal) override;

 private:
  friend class QtListSignals;
  struct Core;

  bool isConnected(const QMetaMethod& signal) const { return isSignalConnected(signal); }
  bool requestContextMenu(QContextMenuEvent& event);

  /// Between a point of the widget and one of the list, which may be mirrored in it.
  QPointF mirrored(const QPointF& point) const;
  void followDirection();
  void followFont();
  void followWheelSettings();
  std::int32_t sideways(std::int32_t value) const;
  void prepareScroller(QScrollPrepareEvent& event);
  void followScroller(const QScrollEvent& event);

  std::shared_ptr<Core> core_;
  /// The font that the widget gave the list last.
  norvane::Font followedFont_;
  /// Whether signals were connected or disconnected since QtListSignals has asked which are. Set on
  /// the threads of receivers.
  std::atomic<bool> hasNewConnections_ = true;
  bool followsPalette_ = false;
  bool mirrorsLayout_ = false;
  bool followsWheelSettings_ = false;
  bool showsCutTexts_ = true;
};

}  // namespace norvane
