#include <nvlist/platform/qt/widget/QtListSignals.h>

#include <QMetaMethod>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/place/QtKeys.h>

namespace norvane {

/// The signals that somebody is connected to, a bit for each in the order of their declaration. Qt
/// would take a lock at each question.
std::uint32_t QtListSignals::connected() const {
  if (!widget_->hasNewConnections_) return connected_;
  widget_->hasNewConnections_ = false;
  const QMetaObject& meta = NvListWidget::staticMetaObject;
  connected_ = 0;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    if (widget_->isConnected(meta.method(i))) connected_ |= 1U << (i - meta.methodOffset());
  return connected_;
}

template <auto signal>
bool QtListSignals::isConnected() const {
  static const std::uint32_t bit = 1U << (QMetaMethod::fromSignal(signal).methodIndex() -
                                          NvListWidget::staticMetaObject.methodOffset());
  return widget_ && (connected() & bit) != 0;
}

template <auto signal, class... Arguments>
void QtListSignals::later(Arguments... arguments) {
  if (!isConnected<signal>()) return;
  waiting_.push_back([widget = widget_, arguments...] { emit(widget->*signal)(arguments...); });
  watch();
}

// ---- when signals are emitted ----

void QtListSignals::end() {
  watch_.reset();
  widget_ = nullptr;
}

bool QtListSignals::during(const std::function<bool()>& event) {
  bool result = false;
  {
    const QScopedValueRollback<int> inEvent(events_, events_ + 1);
    currentBeforeEvent_ = list_.ListIndex();
    result = event();
  }
  emitWaiting();
  return result;
}

bool QtListSignals::isCompared() const {
  return isConnected<&NvListWidget::currentChanged>() ||
         isConnected<&NvListWidget::selectionChanged>() ||
         isConnected<&NvListWidget::itemEdited>() || isConnected<&NvListWidget::scrolled>();
}

void QtListSignals::watch() {
  if (!widget_) return watch_.reset();
  // A list reports changes of its properties often: without a connection, there is no handler.
  auto& onPropertyChanged = widget_->place().onPropertyChanged;
  if (!isConnected<&NvListWidget::propertyChanged>())
    onPropertyChanged = nullptr;
  else if (!onPropertyChanged)
    onPropertyChanged = [this](std::string_view name) { propertyChanged(name); };
  const bool isNeeded = !waiting_.empty() || !checks_.empty() || isCompared();
  if (!isNeeded) return watch_.reset();
  if (watch_) return;
  seen_ = look();
  watch_.emplace([this] { emitWaiting(); });
}

QtListSignals::Look QtListSignals::look() const {
  return {list_.ListIndex(), list_.state().Selection.signature(), list_.verticalBar().Value(),
          list_.horizontalBar().Value(), list_.state().Edits};
}

/// Emits what has changed or happened since the last time. A slot may destroy the widget; the list
/// then lives until the event loop runs, as the caller may be a part of it.
void QtListSignals::emitWaiting() {
  if (events_ > 0 || isCollecting_ || !watch_) return;
  isCollecting_ = true;
  const Look before = std::exchange(seen_, look());
  const Look now = seen_;
  const auto checks = std::exchange(checks_, {});
  const auto happened = std::exchange(waiting_, {});
  const auto isFlipped = [&](const Check& check) {
    return check.index >= 0 && check.index < list_.ItemsCount() &&
           static_cast<bool>(list_.ItemChecked(check.index)) != check.wasChecked;
  };
  std::vector<Check> flipped;
  std::ranges::copy_if(checks, std::back_inserter(flipped), isFlipped);
  // Return writes the text to the item that is current then.
  QString edited;
  if (now.edits != before.edits) edited = QString::fromStdString(list_.ItemText(now.current));
  watch();
  isCollecting_ = false;

  NvListWidget& widget = *widget_;
  const std::shared_ptr<void> list = widget.core_;
  const auto ifAlive = [&](auto&& emission) {
    if (!hasEnded()) emission();
  };
  if (now.current != before.current) ifAlive([&] { emit widget.currentChanged(now.current); });
  if (now.selection != before.selection) ifAlive([&] { emit widget.selectionChanged(); });
  if (now.top != before.top || now.left != before.left) ifAlive([&] { emit widget.scrolled(); });
  if (now.edits != before.edits) ifAlive([&] { emit widget.itemEdited(now.current, edited); });
  for (const Check& check : flipped)
    ifAlive([&] { emit widget.itemChecked(check.index, !check.wasChecked); });
  for (const auto& emission : happened) ifAlive(emission);
  // Not in 0 ms: Qt would post an event, and hold its lock while a program that is closing discards
  // the event and so the list.
  if (hasEnded()) QTimer::singleShot(1, [list] { QtPlace::endLater(list); });
}

// ---- what happens ----

void QtListSignals::propertyChanged(std::string_view name) {
  if (!isConnected<&NvListWidget::propertyChanged>()) return watch();
  emit widget_->propertyChanged(QString::fromUtf8(name));
}

void QtListSignals::Click() { later<&NvListWidget::clicked>(); }

void QtListSignals::DblClick() {
  later<&NvListWidget::doubleClicked>();
  const ListState& state = list_.state();
  const std::int32_t index = state.ListIndex;
  const int hit = widget_->indexAt(
      widget_->mirrored(QPointF(state.MouseDownX.toNumber(), state.MouseDownY.toNumber()))
          .toPoint());
  // A double click that edits the item is no command, and neither is one on another, disabled item.
  if (!state.EditActive && hit >= 0 && hit == index) later<&NvListWidget::itemActivated>(index);
}

void QtListSignals::ItemCheck(std::int32_t& Item, Boolean& Cancel) {
  if (isConnected<&NvListWidget::itemChecked>()) {
    checks_.push_back({Item, static_cast<bool>(list_.ItemChecked(Item))});
    watch();
  }
  if (!isConnected<&NvListWidget::itemAboutToBeChecked>()) return;
  bool cancel = static_cast<bool>(Cancel);
  emit widget_->itemAboutToBeChecked(Item, cancel);
  if (cancel != static_cast<bool>(Cancel)) Cancel = cancel;
}

void QtListSignals::MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
  later<&NvListWidget::mousePressed>(Qt::MouseButton(Button), modifiersOf(Shift),
                                     widget_->mirrored(QPointF(X, Y)));
}

void QtListSignals::MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
  // The list has moved the item before it raises this event.
  const std::int32_t current = list_.ListIndex();
  if (list_.AllowItemMoving() && events_ > 0 && current != currentBeforeEvent_)
    later<&NvListWidget::itemMoved>(currentBeforeEvent_, current);
  later<&NvListWidget::mouseReleased>(Qt::MouseButton(Button), modifiersOf(Shift),
                                      widget_->mirrored(QPointF(X, Y)));
}

void QtListSignals::MouseMove(Variant&, std::int32_t& IndexUnderMouse, std::int16_t& Button,
                              std::int16_t& Shift, float& X, float& Y) {
  later<&NvListWidget::mouseMoved>(IndexUnderMouse < list_.ItemsCount() ? IndexUnderMouse : -1,
                                   Qt::MouseButtons(Button), modifiersOf(Shift),
                                   widget_->mirrored(QPointF(X, Y)));
}

void QtListSignals::ErrorListInput() { later<&NvListWidget::inputFailed>(); }

void QtListSignals::ErrorListSave() { later<&NvListWidget::saveFailed>(); }

void QtListSignals::ListSaving(Variant& Index) {
  if (isConnected<&NvListWidget::itemSaved>()) emit widget_->itemSaved(Index.toInt32());
}

void QtListSignals::ListReading(Variant& Index) {
  if (isConnected<&NvListWidget::itemRead>()) emit widget_->itemRead(Index.toInt32());
}

void QtListSignals::ErrorWrongIndex(Variant& Index) {
  later<&NvListWidget::wrongIndex>(Index.toInt32());
}

}  // namespace norvane
