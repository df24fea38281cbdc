#include <nvlist/platform/qt/NvListKeys.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPalette>
#include <QStringList>
#include <QTimer>
#include <algorithm>

#include <nvlist/platform/qt/drawing/QtColour.h>
#include <nvlist/platform/qt/widget/QtRows.h>
#include <nvlist/render/colours.h>

namespace norvane {
namespace {

/// Virtual-key codes, as KeyDown reports them.
enum Key : std::int16_t {
  keySpace = 32,
  keyPageUp = 33,
  keyPageDown = 34,
  keyEnd = 35,
  keyHome = 36,
  keyUp = 38,
  keyDown = 40,
  keyDelete = 46,
  keyA = 65,
  keyC = 67,
  keyF2 = 113
};

constexpr std::int16_t shiftKey = 1;
constexpr std::int16_t controlKey = 2;

/// QLineEdit keeps this much room on each side of its text.
constexpr int marginOfEdit = 2;

}  // namespace

NvListKeys::NvListKeys(NvListWidget& widget)
    : QObject(&widget),
      widget_(widget),
      edit_(widget.editBox()),
      typingInterval_(QApplication::keyboardInputInterval()) {
  list().addSink(*this);
  list().movesOnlyToMark(true);
  widget_.installEventFilter(this);
  widget_.setAttribute(Qt::WA_InputMethodEnabled);
  if (!edit_) return;
  edit_->installEventFilter(this);
  border_ = new QWidget(&widget_);
  border_->setAutoFillBackground(true);
  border_->setAttribute(Qt::WA_TransparentForMouseEvents);
  border_->hide();
  border_->stackUnder(edit_);
}

NvListKeys::~NvListKeys() {
  delete border_;
  // A widget that is being destroyed has no list any more.
  auto* const widget = dynamic_cast<NvListWidget*>(parent());
  if (!widget) return;
  widget->list().removeSink(*this);
  widget->list().movesOnlyToMark(false);
}

// ---- keys of the list ----

/// What a handler of the host is called by comes last: it may destroy the widget and this with it.
void NvListKeys::KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) {
  const std::int16_t key = KeyCode;
  const std::int32_t current = list().ListIndex();
  const std::int32_t count = list().ItemsCount();
  if (list().state().EditActive || count == 0) return;
  const bool isMany = static_cast<bool>(list().MultiSelect());
  if (Shift == controlKey) {
    if (key == keyC) {
      KeyCode = 0;
      copy();
    } else if (key == keyA && isMany) {
      KeyCode = 0;
      list().userSelects(0, count - 1, current);
    } else if (key == keySpace && isMany) {
      KeyCode = 0;
      list().userToggles(current);
    }
    return;
  }
  if (Shift != 0 && Shift != shiftKey) return;

  const bool extends = Shift == shiftKey && isMany;
  const auto go = [&](std::int32_t index) {
    KeyCode = 0;
    if (index >= 0) goTo(index, extends);
  };
  switch (key) {
    case keyUp:
      if (extends) go(enabledFrom(current - 1, -1));
      return;
    case keyDown:
      if (extends) go(enabledFrom(current + 1, +1));
      return;
    case keyHome:
      return go(enabledFrom(0, +1));
    case keyEnd:
      return go(enabledFrom(count - 1, -1));
    case keyPageUp:
      return go(pageFrom(current, -1));
    case keyPageDown:
      return go(pageFrom(current, +1));
    case keyF2:
      KeyCode = 0;
      return edit();
    case keySpace:
      if (!hasChecks() || isTyping()) return;
      KeyCode = 0;
      return list().userChecks();
    case keyDelete:
      if (!isSignalConnected(QMetaMethod::fromSignal(&NvListKeys::deleteRequested))) return;
      KeyCode = 0;
      emit deleteRequested();
      return;
    default:
      return;
  }
}

void NvListKeys::KeyPress(std::int16_t& KeyAscii) {
  const QChar character(static_cast<char16_t>(KeyAscii));
  if (character.isPrint()) type(character);
}

bool NvListKeys::hasChecks() {
  return list().Style() == cCheckBoxes || list().Style() == cCheckBoxesIcons;
}

// ---- rows ----

/// The first enabled row at an index or beyond it in the direction of `step`; -1 if all are
/// disabled.
std::int32_t NvListKeys::enabledFrom(std::int32_t index, int step) {
  const std::int32_t count = list().ItemsCount();
  for (; index >= 0 && index < count; index += step)
    if (list().ItemEnabled(index)) return index;
  return -1;
}

/// The row that Page Up or Page Down goes to: the last one in view or, from there, a page further.
std::int32_t NvListKeys::pageFrom(std::int32_t index, int direction) {
  const std::int32_t page = std::max(list().VisibleItems() - 1, 1);
  const std::int32_t top = std::max(list().TopIndex(), 0);
  const std::int32_t edge = direction < 0 ? top : top + page;
  const bool isBeforeEdge = index >= top && (edge - index) * direction > 0;
  const std::int32_t wanted = isBeforeEdge ? edge : index + direction * page;
  const std::int32_t inside = std::clamp(wanted, 0, list().ItemsCount() - 1);
  const std::int32_t further = enabledFrom(inside, direction);
  return further >= 0 ? further : enabledFrom(inside, -direction);
}

void NvListKeys::goTo(std::int32_t index, bool extends) {
  std::int32_t anchor = list().state().SelectAnchor;
  const bool isAnchorSelected =
      anchor >= 0 && anchor < list().ItemsCount() && list().ItemSelected(anchor);
  // The selection did not begin with a press or key.
  if (!isAnchorSelected) anchor = list().ListIndex() >= 0 ? list().ListIndex() : index;
  const QPointer<NvListKeys> guard(this);
  list().userSelects(extends ? anchor : index, index, index);
  if (guard) widget_.scrollTo(index);
}

// ---- typing ----

bool NvListKeys::isTyping() const {
  return !typed_.isEmpty() && sinceTyped_.elapsed() <= typingInterval_;
}

void NvListKeys::type(const QString& text) {
  if (!isTyping()) typed_.clear();
  typed_ += text;
  sinceTyped_.start();
  if (typed_.trimmed().isEmpty()) return typed_.clear();
  const std::int32_t next = std::max(list().ListIndex() + 1, 0);
  const bool isFirst = typed_.size() == text.size();
  std::int32_t found = rowBeginningWith(typed_, isFirst ? next : std::max(next - 1, 0));
  if (found < 0 && typed_.count(typed_.front(), Qt::CaseInsensitive) == typed_.size())
    found = rowBeginningWith(typed_.first(1), next);
  if (found >= 0) goTo(found, false);
}

/// The first enabled row with that beginning, from `from` on and then from the top; -1 if no row
/// has it.
std::int32_t NvListKeys::rowBeginningWith(const QString& prefix, std::int32_t from) {
  const std::int32_t count = list().ItemsCount();
  // Of a long text only as much is converted as is compared.
  const auto bytes = static_cast<std::size_t>(prefix.size()) * 4 + 8;
  for (std::int32_t i = 0; i < count; ++i) {
    const std::int32_t index = (from + i) % count;
    const std::string text = list().ItemText(index);
    const QString shown = readableText(std::string_view(text).substr(0, bytes));
    if (shown.startsWith(prefix, Qt::CaseInsensitive) && list().ItemEnabled(index)) return index;
  }
  return -1;
}

void NvListKeys::copy() {
  QStringList lines;
  for (std::int32_t i = 0; i < list().ItemsCount(); ++i)
    if (list().ItemSelected(i)) lines << readableText(list().ItemText(i));
  if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join('\n'));
}

// ---- the edit box ----

void NvListKeys::edit() {
  const std::int32_t current = list().ListIndex();
  if (current < 0 || current >= list().ItemsCount()) return;
  const QPointer<NvListKeys> guard(this);
  widget_.scrollTo(current);
  if (guard) list().SetEdit(current);
}

bool NvListKeys::eventFilter(QObject* watched, QEvent* event) {
  const QPointer<NvListKeys> guard(this);
  if (watched == edit_) return editEvent(event) || !guard;
  if (event->type() == QEvent::Wheel) {
    writeEdit();
  } else if (event->type() == QEvent::Resize) {
    // Once the list has moved its bar.
    QTimer::singleShot(0, this, [this] { placeEdit(); });
  } else if (event->type() == QEvent::InputMethod && !list().state().EditActive) {
    const QString text = static_cast<QInputMethodEvent*>(event)->commitString();
    if (!text.isEmpty() && list().ItemsCount() > 0) type(text);
  }
  return !guard;
}

/// Returns true if the event has been handled.
bool NvListKeys::editEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
      placeEdit();
      return false;
    case QEvent::Hide:
      if (border_) border_->hide();
      return false;
    case QEvent::FocusOut:
      // The context menu of the edit box takes the focus for a moment.
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) writeEdit();
      return false;
    case QEvent::KeyPress:
      if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) return false;
      list().closeEdit();
      return true;
    default:
      return false;
  }
}

/// As the user does, so that the widget emits itemEdited.
void NvListKeys::writeEdit() {
  if (!edit_ || !list().state().EditActive) return;
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
  QCoreApplication::sendEvent(edit_, &press);
}

/// Over the current row, whose text Return would write.
void NvListKeys::placeEdit() {
  if (!edit_ || !list().state().EditActive) return;
  const QRect room = areaOfRows(widget_).adjusted(1, 1, -1, -1);
  const QRect text =
      textOfRow(widget_, list().ListIndex()).adjusted(-marginOfEdit, 0, marginOfEdit, 0);
  const int height = std::max(text.height(), edit_->fontMetrics().height());
  const int top = text.center().y() - (height - 1) / 2;
  QRect box(0, std::max(std::min(top, room.bottom() + 1 - height), room.top()), 0, height);
  box.setLeft(std::max(text.left(), room.left()));
  box.setRight(std::min(text.right(), room.right()));
  // Without room for it the box stays where the list has put it.
  if (!box.isValid()) return;
  edit_->setGeometry(box);
  if (!border_) return;
  QPalette palette;
  palette.setColor(
      QPalette::Window,
      rgbOf(selectionColour(list().ColorStyle(), list().ValueColor()), widget_.palette()));
  border_->setPalette(palette);
  border_->setGeometry(box.adjusted(-1, -1, 1, 1));
  border_->setVisible(!edit_->isHidden());
}

}  // namespace norvane
