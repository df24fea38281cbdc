#include <nvlist/platform/qt/QtPlace.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <chrono>
#include <cmath>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtTimer.h>

namespace norvane {
namespace {

using SteadyClock = std::chrono::steady_clock;

// One thread has all the controls.
unsigned timesAsked = 0;
SteadyClock::time_point lastDone = SteadyClock::now();

/// A control inside another one.
class ChildWidget final : public QWidget, public QtPlace {
 public:
  explicit ChildWidget(QWidget* parent) : QWidget(parent), QtPlace(static_cast<QWidget&>(*this)) {
    QWidget::show();
  }

  bool event(QEvent* event) override { return QtPlace::event(event) || QWidget::event(event); }

 protected:
  void paintEvent(QPaintEvent*) override { paint(); }
};

std::int16_t numberOf(Qt::MouseButtons buttons) {
  // Qt's own numbers are the same for the three that a control hears.
  return static_cast<std::int16_t>(buttons & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton));
}

std::int16_t numberOf(Qt::KeyboardModifiers modifiers) {
  return static_cast<std::int16_t>((modifiers & Qt::ShiftModifier ? 1 : 0) |
                                   (modifiers & Qt::ControlModifier ? 2 : 0) |
                                   (modifiers & Qt::AltModifier ? 4 : 0));
}

}  // namespace

QtPlace::QtPlace(QWidget& widget) : widget_(widget) {
  widget_.setMouseTracking(true);
  widget_.setAttribute(Qt::WA_OpaquePaintEvent);
  surface_.setPalette(widget_.palette());
  surface_.resize(widget_.size(), widget_.devicePixelRatioF());
  surface_.onDrawn = [this] { widget_.update(); };
}

std::unique_ptr<Container> QtPlace::addChild() { return std::make_unique<ChildWidget>(&widget_); }

std::unique_ptr<Timer> QtPlace::addTimer(std::function<void()> tick) {
  return std::make_unique<QtTimer>(std::move(tick));
}

void QtPlace::PropertyChanged(std::string_view name) {
  if (onPropertyChanged) onPropertyChanged(name);
}

Boolean QtPlace::UserMode() { return !isDesignMode; }

norvane::Font QtPlace::AmbientFont() { return fontFrom(widget_.font()); }

std::string QtPlace::Name() { return widget_.objectName().toStdString(); }

/// Looks at the clock once in a while only: loops over a million items ask.
bool QtPlace::EventsWaiting() {
  if (++timesAsked % 64 != 0) return false;
  return SteadyClock::now() - lastDone >= std::chrono::milliseconds(10);
}

void QtPlace::DoEvents() {
  QCoreApplication::processEvents();
  lastDone = SteadyClock::now();
}

void QtPlace::move(const Bounds& bounds) {
  const auto rounded = [](float length) { return static_cast<int>(std::lrint(length)); };
  widget_.setGeometry(rounded(bounds.Left), rounded(bounds.Top), rounded(bounds.Width),
                      rounded(bounds.Height));
  // A hidden widget is not told of its size.
  resize();
}

void QtPlace::resize() {
  if (widget_.size() != surface_.size())
    surface_.resize(widget_.size(), widget_.devicePixelRatioF());
}

/// The look of the screen or of the program has changed; what was drawn before is of no use.
void QtPlace::renewImage() {
  surface_.setPalette(widget_.palette());
  surface_.resize(widget_.size(), widget_.devicePixelRatioF());
  if (control_) control_->UserControl_Paint();
}

void QtPlace::paint() {
  QPainter(&widget_).drawImage(QPointF(0, 0), surface_.image());
  // Not every change of the ratio is told, and a control must not draw while its window is painted.
  if (surface_.devicePixelRatio() != widget_.devicePixelRatioF())
    QTimer::singleShot(0, &widget_, [this] { renewImage(); });
}

bool QtPlace::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::ScreenChangeInternal:
      renewImage();
      return false;
    case QEvent::FocusIn:
      if (control_) control_->UserControl_EnterFocus();
      if (control_) control_->UserControl_GotFocus();
      return false;
    case QEvent::FocusOut:
      if (control_) control_->UserControl_LostFocus();
      if (control_) control_->UserControl_ExitFocus();
      return false;
    case QEvent::Leave:
      pointerLeft();
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return mouseEvent(event);
    default:
      return false;
  }
}

bool QtPlace::mouseEvent(QEvent* event) {
  if (!control_ || !widget_.isEnabled()) return false;
  const auto* mouse = static_cast<const QMouseEvent*>(event);
  const std::int16_t shift = numberOf(mouse->modifiers());
  const auto x = static_cast<float>(mouse->position().x());
  const auto y = static_cast<float>(mouse->position().y());
  if (event->type() == QEvent::MouseMove)
    control_->UserControl_MouseMove(numberOf(mouse->buttons()), shift, x, y);
  else if (event->type() == QEvent::MouseButtonRelease)
    control_->UserControl_MouseUp(numberOf(mouse->button()), shift, x, y);
  else
    control_->UserControl_MouseDown(numberOf(mouse->button()), shift, x, y);
  event->accept();
  return true;
}

/// A control that holds the capture hears of the pointer outside. No pointer is grabbed for it.
void QtPlace::pointerLeft() {
  if (!control_ || !hasCapture_) return;
  QPoint position = widget_.mapFromGlobal(QCursor::pos());
  if (widget_.rect().contains(position)) position = QPoint(-1, -1);
  control_->UserControl_MouseMove(0, numberOf(QGuiApplication::keyboardModifiers()),
                                  static_cast<float>(position.x()),
                                  static_cast<float>(position.y()));
}

}  // namespace norvane
