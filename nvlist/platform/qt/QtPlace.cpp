#include <nvlist/platform/qt/QtPlace.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>
#include <cmath>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtKeys.h>
#include <nvlist/platform/qt/QtTextBox.h>
#include <nvlist/platform/qt/QtTimer.h>
#include <nvlist/platform/qt/QtWindow.h>

namespace norvane {
namespace {

using SteadyClock = std::chrono::steady_clock;

// One thread has all the controls.
unsigned timesAsked = 0;
SteadyClock::time_point lastDone = SteadyClock::now();
int eventLoops = 0;

/// A handler may cause the event that calls it again; from here on it has to wait.
constexpr int mostEventLoops = 16;

/// In pixels; further than any screen, and no widget takes more.
constexpr float farOut = 1 << 24;

/// A control inside another one.
class ChildWidget final : public QWidget, public QtPlace {
 public:
  ChildWidget(QWidget* parent, QtPlace* around)
      : QWidget(parent), QtPlace(static_cast<QWidget&>(*this), around) {
    QWidget::show();
  }

  bool event(QEvent* event) override { return QtPlace::event(event) || QWidget::event(event); }

 protected:
  void paintEvent(QPaintEvent*) override { paint(); }
};

/// Tells when a window that is being pressed will not hear of the release: it has gone, or a modal
/// dialog stands in front of it.
class HoldWatch final : public QObject {
 public:
  HoldWatch(QWidget& window, std::function<void()> onLost) : onLost_(std::move(onLost)) {
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    // Not at once: this may be in the middle of the press.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Hide)
      QTimer::singleShot(0, this, onLost_);
    return false;
  }

 private:
  const std::function<void()> onLost_;
};

}  // namespace

QtPlace::QtPlace(QWidget& widget, QtPlace* around) : widget_(&widget), around_(around) {
  if (around_) around_->children_.push_back(this);
  widget_->setMouseTracking(true);
  surface_.setPalette(widget_->palette());
  newImage();
  surface_.onDrawn = [this] {
    if (widget_ && !isPainting_) widget_->update();
  };
}

QtPlace::~QtPlace() {
  if (around_) std::erase(around_->children_, this);
  for (QtPlace* child : children_) child->around_ = nullptr;
}

void QtPlace::detach() {
  for (QtPlace* child : children_) {
    QWidget* const widget = child->widget_;
    child->detach();
    // The control in it owns the widget, not the one around it.
    if (widget) widget->hide();
    if (widget) widget->setParent(nullptr);
  }
  widget_ = nullptr;
}

void QtPlace::endLater(std::shared_ptr<void> control) {
  if (!Trap::anyRuns()) return;
  QTimer::singleShot(1, [control = std::move(control)]() mutable { endLater(std::move(control)); });
}

std::unique_ptr<Container> QtPlace::addChild() {
  return std::make_unique<ChildWidget>(widget_, this);
}

std::unique_ptr<TextBox> QtPlace::addTextBox(std::function<void(std::int16_t&)> keyPress) {
  return std::make_unique<QtTextBox>(*widget_, std::move(keyPress), [this](QEvent::Type type) {
    if (control_) focusEvent(type, FocusOf::editBox);
  });
}

std::unique_ptr<Timer> QtPlace::addTimer(std::function<void()> tick) {
  return std::make_unique<QtTimer>(std::move(tick));
}

void QtPlace::PropertyChanged(std::string_view name) {
  if (!onPropertyChanged) return;
  // A copy, as a handler may take itself away.
  const auto handler = onPropertyChanged;
  handler(name);
}

Boolean QtPlace::UserMode() { return around_ ? around_->UserMode() : Boolean(!isDesignMode); }

norvane::Font QtPlace::AmbientFont() { return widget_ ? fontFrom(widget_->font()) : nullptr; }

std::string QtPlace::Name() { return widget_ ? widget_->objectName().toStdString() : ""; }

std::int32_t QtPlace::hwnd() { return widget_ ? handleOf(*widget_) : 0; }

/// Looks at the clock once in a while only: loops over a million items ask.
bool QtPlace::EventsWaiting() {
  if (++timesAsked % 64 != 0) return false;
  return SteadyClock::now() - lastDone >= std::chrono::milliseconds(10);
}

void QtPlace::DoEvents() {
  if (eventLoops >= mostEventLoops) return;
  ++eventLoops;
  QCoreApplication::processEvents();
  --eventLoops;
  lastDone = SteadyClock::now();
}

void QtPlace::move(const Bounds& bounds) {
  if (!widget_) return;
  // A thumb may be sent far off its track.
  const auto rounded = [](float length) {
    return static_cast<int>(std::lrint(std::clamp(length, -farOut, farOut)));
  };
  widget_->setGeometry(rounded(bounds.Left), rounded(bounds.Top), rounded(bounds.Width),
                       rounded(bounds.Height));
  // A hidden widget is not told of its size.
  resize();
}

void QtPlace::show(bool isVisible) {
  if (widget_) widget_->setVisible(isVisible);
}

void QtPlace::enable(bool isEnabled) {
  if (widget_) widget_->setEnabled(isEnabled);
}

void QtPlace::hookWheel(std::function<void(std::int32_t, std::int32_t)> procedure) {
  wheelProcedure_ = std::move(procedure);
}

void QtPlace::paintLater() {
  if (std::exchange(isPaintPending_, true) || !widget_) return;
  widget_->update();
}

void QtPlace::resize() {
  if (widget_->size() != surface_.size()) newImage();
}

void QtPlace::newImage() {
  const qreal ratio = widget_->devicePixelRatioF();
  surface_.resize(widget_->size(), ratio);
  // With a broken ratio the edges of a widget lie inside pixels, which the image may not reach:
  // what is behind the widget has to be painted there.
  widget_->setAttribute(Qt::WA_OpaquePaintEvent, ratio == std::floor(ratio));
}

/// The look of the screen or of the program has changed; what was drawn before is of no use.
void QtPlace::renewImage() {
  if (!widget_) return;
  surface_.setPalette(widget_->palette());
  newImage();
  isPaintPending_ = false;
  if (control_) control_->UserControl_Paint();
}

void QtPlace::paint() {
  if (!widget_) return;
  if (std::exchange(isPaintPending_, false) && control_) {
    isPainting_ = true;
    control_->UserControl_Paint();
    isPainting_ = false;
  }
  QPainter(widget_).drawImage(QPointF(0, 0), surface_.image());
  // Not every change of the ratio is told, and a control must not draw while its window is painted.
  if (surface_.devicePixelRatio() != widget_->devicePixelRatioF())
    QTimer::singleShot(0, widget_, [this] { renewImage(); });
}

bool QtPlace::event(QEvent* event) {
  if (!widget_ || !control_) return false;
  const QPointer<QWidget> guard(widget_);
  const bool isTaken = hear(event);
  return isTaken || !guard;
}

bool QtPlace::hear(QEvent* event) {
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::ScreenChangeInternal:
      renewImage();
      return false;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      focusEvent(event->type(), FocusOf::control);
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return keyEvent(event);
    case QEvent::Leave:
      pointerLeft();
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return mouseEvent(event);
    case QEvent::Wheel:
      return wheelEvent(event);
    default:
      return false;
  }
}

/// A handler of the host may end the widget: nothing is done behind the call of the control.
bool QtPlace::mouseEvent(QEvent* event) {
  const auto* mouse = static_cast<const QMouseEvent*>(event);
  const std::int16_t button = buttonsOf(mouse->button());
  const bool isLettingGo = event->type() == QEvent::MouseButtonRelease && (held_ & button) != 0;
  // What a disabled control covers hears nothing either.
  if (!widget_->isEnabled() && !isLettingGo) return around_ && around_->widget_->isEnabled();
  const std::int16_t shift = shiftOf(mouse->modifiers());
  const auto x = static_cast<float>(mouse->position().x());
  const auto y = static_cast<float>(mouse->position().y());
  // Buttons that the control does not know are the form's.
  if (button == 0 && event->type() != QEvent::MouseMove) return false;
  event->accept();
  if (event->type() == QEvent::MouseMove) {
    control_->UserControl_MouseMove(buttonsOf(mouse->buttons()), shift, x, y);
    return true;
  }
  if (event->type() == QEvent::MouseButtonRelease) {
    const QPointer<QWidget> guard(widget_);
    const bool isClick = mouse->button() == Qt::LeftButton && !isDoubleClick_ &&
                         widget_->rect().contains(mouse->position().toPoint());
    letGo(button);
    control_->UserControl_MouseUp(button, shift, x, y);
    if (guard && isClick && control_) control_->UserControl_Click();
    return true;
  }
  if (mouse->button() == Qt::LeftButton) {
    const QPointer<QWidget> guard(widget_);
    const bool isHeard =
        event->type() == QEvent::MouseButtonDblClick && control_->UserControl_DblClick();
    if (!guard) return true;
    isDoubleClick_ = isHeard;
    if (isHeard) return true;
  }
  hold(button);
  control_->UserControl_MouseDown(button, shift, x, y);
  return true;
}

/// A part of a bar acts for as long as it is held, so it must hear of the end of every press.
void QtPlace::hold(std::int16_t button) {
  if (!around_) return;
  held_ = static_cast<std::int16_t>(held_ | button);
  holdWatch_ = std::make_unique<HoldWatch>(*widget_->window(), [this] { releaseLost(); });
}

void QtPlace::letGo(std::int16_t button) {
  held_ = static_cast<std::int16_t>(held_ & ~button);
  if (held_ == 0) holdWatch_.reset();
}

void QtPlace::releaseLost() {
  for (const auto button : std::initializer_list<std::int16_t>{1, 2, 4}) {
    if ((held_ & button) == 0) continue;
    letGo(button);
    if (control_) control_->UserControl_MouseUp(button, 0, -1, -1);
  }
}

/// A control that holds the capture hears of the pointer outside. No pointer is grabbed for it.
void QtPlace::pointerLeft() {
  // While a button is down every move comes to the control that was pressed.
  if (!hasCapture_ || QGuiApplication::mouseButtons() != Qt::NoButton) return;
  QPoint position = widget_->mapFromGlobal(QCursor::pos());
  // The control counts the pixels beside its far edges as its own, and no other move follows.
  if (widget_->rect().adjusted(0, 0, 1, 1).contains(position)) position = QPoint(-1, -1);
  control_->UserControl_MouseMove(0, shiftOf(QGuiApplication::keyboardModifiers()),
                                  static_cast<float>(position.x()),
                                  static_cast<float>(position.y()));
}

bool QtPlace::keyEvent(QEvent* event) {
  auto* key = static_cast<QKeyEvent*>(event);
  // The keys that leave the control are the form's, and so are those that come by from an edit box.
  const bool isFromEditBox = isFocusInside() && !widget_->hasFocus();
  if (isFromEditBox || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
  std::int16_t code = keyCodeOf(*key);
  const std::int16_t shift = shiftOf(key->modifiers());
  if (event->type() == QEvent::KeyRelease) {
    if (!key->isAutoRepeat() && code != 0) control_->UserControl_KeyUp(code, shift);
    return false;
  }
  const QPointer<QWidget> guard(widget_);
  const bool isArrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
  if (code != 0) {
    control_->UserControl_KeyDown(code, shift);
    if (!guard || code == 0) return true;
  }
  std::int16_t character = characterOf(*key);
  if (character != 0) control_->UserControl_KeyPress(character);
  return isArrow;
}

bool QtPlace::wheelEvent(QEvent* event) {
  const auto* wheel = static_cast<const QWheelEvent*>(event);
  const int turn = std::clamp(wheel->angleDelta().y(), -32768, 32767);
  if (!wheelProcedure_ || !widget_->isEnabled() || turn == 0) return false;
  const QPoint position = wheel->globalPosition().toPoint();
  const auto packed = [](int high, int low) { return high * 0x10000 + (low & 0xFFFF); };
  event->accept();
  // A copy, as a handler of the host may end the hook.
  const auto procedure = wheelProcedure_;
  procedure(packed(turn, wheelKeysOf(wheel->buttons(), wheel->modifiers())),
            packed(static_cast<std::int16_t>(position.y()), position.x()));
  return true;
}

/// Whether the focus is in the widget or in one in it.
bool QtPlace::isFocusInside() const {
  const QWidget* const focus = QApplication::focusWidget();
  return widget_ && focus && (focus == widget_ || widget_->isAncestorOf(focus));
}

/// The control is entered and left as a whole, with the edit boxes in it.
void QtPlace::focusEvent(QEvent::Type type, FocusOf of) {
  const QPointer<QWidget> guard(widget_);
  if (type == QEvent::FocusIn) {
    if (!std::exchange(isEntered_, true)) control_->UserControl_EnterFocus();
    if (guard && of == FocusOf::control) control_->UserControl_GotFocus();
    return;
  }
  if (of == FocusOf::control) control_->UserControl_LostFocus();
  if (guard && !isFocusInside() && std::exchange(isEntered_, false))
    control_->UserControl_ExitFocus();
}

}  // namespace norvane
