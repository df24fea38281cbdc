#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <cstdint>

#include <nvlist/input/events.h>
#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// The keys that users know from other lists. The list itself has only Up and Down; a host installs
/// the others by one line, which needs no variable:
///
///     new NvListKeys(*widget);
///
/// - Home, End, Page Up and Page Down move the current row; with Shift they and the arrows extend
///   the selection from where it began, Ctrl+Space flips the mark of the current row and Ctrl+A
///   selects all; these three need MultiSelect.
/// - Typing goes to the next enabled row that begins with what was typed, from the current row on;
///   one letter again and again visits all rows that begin with it.
/// - Space flips the check mark of the current row, if the style shows check boxes (ItemCheck may
///   refuse it); Ctrl+C copies the selected rows, a line each; Delete emits deleteRequested.
/// - F2 edits the current row. The edit box stands over its row, inside the frame and left of the
///   scroll bar, with a border. Return and the loss of the focus write its text, Escape discards
///   it, and a scroll by the wheel writes it first.
/// - With AllowItemMoving, a click without a drag moves nothing.
///
/// The host's KeyDown comes first if its sink was added first; a key whose code it sets to 0 does
/// nothing here either. Written with the public operations of the list and the widget, as an
/// example for helpers of your own; only the place of the edit box is taken from inside the widget.
class NvListKeys : public QObject, private __nvList {
  Q_OBJECT
  Q_PROPERTY(int typingInterval READ typingInterval WRITE setTypingInterval)

 public:
  /// The widget becomes the parent, so the helper ends with it; deleting the helper earlier takes
  /// the keys away.
  explicit NvListKeys(NvListWidget& widget);
  ~NvListKeys() override;

  /// In milliseconds: letters typed with a longer pause between them begin a new search. Default:
  /// QApplication::keyboardInputInterval.
  int typingInterval() const { return typingInterval_; }
  void setTypingInterval(int milliseconds) { typingInterval_ = milliseconds; }

 signals:
  /// Delete was pressed. The list removes nothing by itself.
  void deleteRequested();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override;
  void KeyPress(std::int16_t& KeyAscii) override;

  nvList& list() { return widget_.list(); }
  bool hasChecks();
  bool isTyping() const;
  void type(const QString& text);
  std::int32_t rowBeginningWith(const QString& prefix, std::int32_t from);
  std::int32_t enabledFrom(std::int32_t index, int step);
  std::int32_t pageFrom(std::int32_t index, int direction);
  void goTo(std::int32_t index, bool extends);
  void edit();
  void copy();
  bool editEvent(QEvent* event);
  void writeEdit();
  void placeEdit();

  NvListWidget& widget_;
  QPointer<QWidget> edit_;  ///< no QLineEdit any more when it reports its end
  QPointer<QWidget> border_;
  int typingInterval_;
  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace norvane
