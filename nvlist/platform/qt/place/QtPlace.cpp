#include <nvlist/platform/qt/place/QtPlace.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtWindow.h>
#include <nvlist/platform/qt/drawing/QtColour.h>
#include <nvlist/platform/qt/place/QtKeys.h>
#include <nvlist/platform/qt/place/QtTextBox.h>
#include <nvlist/platform/qt/place/QtTimer.h>

namespace norvane {
namespace {

using SteadyClock = std::chrono::steady_clock;

// One thread has all the controls.
unsigned timesAsked = 0;
SteadyClock::time_point lastDone = SteadyClock::now();
int eventLoops = 0;
int paints = 0;

/// A handler may cause the event that calls it again. Beyond this depth, events wait.
constexpr int mostEventLoops = 16;

/// Sent to the widget when something was drawn.
const auto drawnEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// In pixels: beyond any screen, and as far as widgets can be placed.
constexpr float farOut = 1 << 24;

std::int16_t shiftNow() { return shiftOf(QGuiApplication::keyboardModifiers()); }

/// Calls back when a window will not get the release of a pressed button: it is hidden, or a modal
/// dialog has opened in front of it.
class HoldWatch final : public QObject {
 public:
  HoldWatch(QWidget& window, std::function<void()> onLost) : onLost_(std::move(onLost)) {
    window.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    // Later, since this may be in the middle of the press.
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Hide)
      QTimer::singleShot(0, this, onLost_);
    return false;
  }

 private:
  const std::function<void()> onLost_;
};

}  // namespace

QtPlace::QtPlace(QWidget& widget) : Place(nullptr), widget_(&widget) {
  widget_->setMouseTracking(true);
  takePalette();
  newImage(widget_->size());
  surface_.onDrawn = [this] { changed(); };
}

QtPlace::QtPlace(QtPlace* around) : Place(around) {
  takePalette();
  newImage({});
  surface_.onDrawn = [this] { changed(); };
}

QtPlace::~QtPlace() { surface_.onDrawn = nullptr; }

void QtPlace::attach(UserControl* control) {
  Place::attach(control);
  setOpaque();
}

void QtPlace::endLater(std::shared_ptr<void> control) {
  if (!Trap::anyRuns()) return;
  QTimer::singleShot(1, [control = std::move(control)]() mutable { endLater(std::move(control)); });
}

std::unique_ptr<Container> QtPlace::addChild() {
  return std::unique_ptr<Container>(new QtPlace(this));
}

std::unique_ptr<TextBox> QtPlace::addTextBox(std::function<void(std::int16_t&)> keyPress) {
  const auto notify = [this](QEvent::Type type) {
    if (type == QEvent::Enter)
      mouse().pointerLeft(shiftNow());
    else if (control())
      focusEvent(type, FocusOf::editBox);
  };
  const auto shown = [this](const QRect& area) { return form().shown(area); };
  auto box = std::make_unique<QtTextBox>(*form().widget_,
                                         QtTextBox::Handlers{std::move(keyPress), notify, shown});
  form().textBoxes_ << box.get();
  return box;
}

std::unique_ptr<Timer> QtPlace::addTimer(std::function<void()> tick) {
  return std::make_unique<QtTimer>(std::move(tick));
}

void QtPlace::PropertyChanged(std::string_view name) {
  if (!onPropertyChanged) return;
  // A copy: the handler may replace itself.
  const auto handler = onPropertyChanged;
  handler(name);
}

Boolean QtPlace::UserMode() { return !form().isDesignMode; }

norvane::Font QtPlace::AmbientFont() {
  const QWidget* const widget = form().widget_;
  return widget ? fontFrom(widget->font()) : nullptr;
}

std::string QtPlace::Name() {
  const QWidget* const widget = form().widget_;
  return widget ? widget->objectName().toStdString() : "";
}

std::int32_t QtPlace::hwnd() {
  QWidget* const widget = form().widget_;
  return widget ? handleOf(*widget) : 0;
}

/// Reads the clock at every 64th call only, because loops over a million items call this.
bool QtPlace::EventsWaiting() {
  if (++timesAsked % 64 != 0) return false;
  return SteadyClock::now() - lastDone >= std::chrono::milliseconds(10);
}

void QtPlace::DoEvents() {
  if (eventLoops >= mostEventLoops) return;
  const QScopedValueRollback<int> inLoop(eventLoops, eventLoops + 1);
  const QScopeGuard done([] { lastDone = SteadyClock::now(); });
  const auto handler = form().onYieldFailure;
  try {
    QCoreApplication::processEvents();
  } catch (...) {
    if (!handler) throw;
    handler(std::current_exception());
  }
}

// ---- where it is and what it shows ----

void QtPlace::move(const Bounds& bounds) {
  // A thumb may be sent far off its track.
  const auto rounded = [](float length) {
    return std::nearbyint(std::clamp(length, -farOut, farOut));
  };
  const QRect before = geometry();
  Place::move(
      {rounded(bounds.Left), rounded(bounds.Top), rounded(bounds.Width), rounded(bounds.Height)});
  const QSize size(static_cast<int>(this->bounds().Width), static_cast<int>(this->bounds().Height));
  if (size != surface_.size()) newImage(size);
  if (geometry() == before) return;
  showAnew(before);
  showAnew(geometry());
}

void QtPlace::show(bool isVisible) {
  if (isVisible == this->isVisible()) return;
  Place::show(isVisible);
  showAnew(geometry());
}

QRect QtPlace::geometry() const {
  const Point origin = toRoot({});
  const QRect plain(static_cast<int>(origin.x), static_cast<int>(origin.y),
                    static_cast<int>(surface_.ScaleWidth()),
                    static_cast<int>(surface_.ScaleHeight()));
  return form().shown(plain);
}

QRect QtPlace::shown(const QRect& area) const {
  if (!isMirrored_ || !widget_) return area;
  return QStyle::visualRect(Qt::RightToLeft, widget_->rect(), area);
}

void QtPlace::mirror(bool on) {
  if (isMirrored_ == on) return;
  isMirrored_ = on;
  surface_.mirror(on);
  renewImages();
  placeTextBoxes();
  if (widget_) widget_->update();
}

void QtPlace::showAnew(const QRect& area) {
  const QtPlace& all = form();
  if (all.widget_ && !all.isPainting_ && (!parent() || parent()->isShown()))
    all.widget_->update(area);
}

/// What was drawn often looks the same: the bars are painted after every added item. So the check
/// waits for the other events of this turn of the event loop, and paints in the same turn.
void QtPlace::changed() {
  QtPlace& all = form();
  if (!all.widget_ || all.isPainting_ || !isShown()) return;
  if (std::exchange(all.isCheckPosted_, true)) return;
  QCoreApplication::postEvent(all.widget_, new QEvent(drawnEvent), Qt::LowEventPriority);
}

void QtPlace::showChanges() {
  isCheckPosted_ = false;
  // A widget that becomes visible is painted as a whole.
  if (!widget_->isVisible()) return;
  const QScopedValueRollback<int> paint(paints, paints + 1);
  QRegion changed;
  forEachVisible([&](Place& place, Point, const Bounds&) {
    auto& drawn = static_cast<QtPlace&>(place);
    {
      const QScopedValueRollback<bool> painting(isPainting_, true);
      place.paintPending();
    }
    if (drawn.surface_.isChanged()) changed += drawn.geometry();
  });
  // update() would paint in the next turn.
  if (!changed.isEmpty()) widget_->repaint(changed);
}

void QtPlace::resize() {
  if (widget_->size() == surface_.size()) return;
  newImage(widget_->size());
  if (isMirrored_) placeTextBoxes();
}

void QtPlace::placeTextBoxes() {
  for (const QPointer<QtTextBox>& box : std::as_const(textBoxes_))
    if (box) box->follow();
}

void QtPlace::newImage(QSize size) {
  const QWidget* const widget = form().widget_;
  surface_.resize(size, widget ? widget->devicePixelRatioF() : 1);
  setOpaque();
}

/// With a fractional ratio the edges of the widget lie inside pixels, which the image may not
/// reach: what is behind the widget has to be painted there. Without a control there is nothing to
/// show.
void QtPlace::setOpaque() {
  if (!widget_) return;
  const qreal ratio = widget_->devicePixelRatioF();
  widget_->setAttribute(Qt::WA_OpaquePaintEvent, control() && ratio == std::floor(ratio));
}

void QtPlace::takePalette() {
  const QtPlace& all = form();
  if (!all.widget_) return;
  const QPalette palette = all.widget_->palette();
  surface_.setPalette(all.makesReadable_ ? readablePalette(palette) : palette);
}

void QtPlace::makesReadable(bool on) {
  if (makesReadable_ == on) return;
  makesReadable_ = on;
  renewImages();
}

/// Paints all images again, for another palette or screen.
void QtPlace::renewImages() {
  const QWidget* const widget = form().widget_;
  if (!widget) return;
  takePalette();
  newImage(surface_.size());
  if (control()) control()->UserControl_Paint();
  for (Place* place : places()) static_cast<QtPlace*>(place)->renewImages();
}

bool QtPlace::anyPaints() { return paints > 0; }

void QtPlace::paint(const QRegion& region) {
  if (!widget_) return;
  const QScopedValueRollback<int> paint(paints, paints + 1);
  forEachVisible([&](Place& place, Point, const Bounds&) {
    if (!region.intersects(static_cast<QtPlace&>(place).geometry())) return;
    // What is drawn now is shown below.
    const QScopedValueRollback<bool> painting(isPainting_, true);
    place.paintPending();
  });
  const qreal ratio = widget_->devicePixelRatioF();
  const auto aligned = [&](float length) { return std::round(qreal{length} * ratio) / ratio; };
  QPainter painter(widget_);
  forEachVisible([&](Place& place, Point origin, const Bounds& clip) {
    auto& shown = static_cast<QtPlace&>(place);
    if (!place.control() || !region.intersects(shown.geometry())) return;
    const QRect seen = this->shown({static_cast<int>(clip.Left), static_cast<int>(clip.Top),
                                    static_cast<int>(clip.Width), static_cast<int>(clip.Height)});
    painter.setClipRect(seen, seen == shown.geometry() ? Qt::NoClip : Qt::ReplaceClip);
    // Places in the outermost one have no texts, so their images may be reversed.
    const bool isReversed = isMirrored_ && &place != this;
    const float left = isReversed ? static_cast<float>(shown.geometry().left()) : origin.x;
    painter.drawImage(QPointF(aligned(left), aligned(origin.y)),
                      isReversed ? shown.image().mirrored(true, false) : shown.image());
  });
  // Not every change of the ratio is reported, and a control must not draw while its window is
  // painted.
  if (surface_.devicePixelRatio() != ratio)
    QTimer::singleShot(0, widget_, [this] { renewImages(); });
}

// ---- events ----

bool QtPlace::event(QEvent* event) {
  if (!widget_) return false;
  const QPointer<QWidget> guard(widget_);
  const bool isTaken = dispatch(event);
  return isTaken || !guard;
}

bool QtPlace::dispatch(QEvent* event) {
  if (event->type() == drawnEvent) {
    showChanges();
    return true;
  }
  switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::ScreenChangeInternal:
      renewImages();
      return false;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      if (control()) focusEvent(event->type(), FocusOf::control);
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return control() && keyEvent(event);
    case QEvent::Leave:
      mouse().pointerLeft(shiftNow());
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return mouseEvent(event);
    case QEvent::Wheel:
      return wheelEvent(*static_cast<QWheelEvent*>(event));
    default:
      return false;
  }
}

/// A handler of the host may end the widget: it is not used after the control was called.
bool QtPlace::mouseEvent(QEvent* event) {
  const auto* mouseEvent = static_cast<const QMouseEvent*>(event);
  const std::int16_t button = buttonsOf(mouseEvent->button());
  const std::int16_t buttons = buttonsOf(mouseEvent->buttons());
  const std::int16_t shift = shiftOf(mouseEvent->modifiers());
  const auto x = static_cast<float>(mouseEvent->position().x());
  const Point at{isMirrored_ ? static_cast<float>(widget_->width() - 1) - x : x,
                 static_cast<float>(mouseEvent->position().y())};
  const bool isMove = event->type() == QEvent::MouseMove;
  const bool isRelease = event->type() == QEvent::MouseButtonRelease;
  // A child control that is pressed gets its release in any case: it repeats until then.
  const bool isChildHeld = mouse().pressed() && mouse().pressed() != this;
  if (!widget_->isEnabled() && !(isRelease && isChildHeld)) return false;
  // Other buttons are left to the form.
  if (button == 0 && !isMove) return false;
  event->accept();
  if (isRelease) {
    if (buttons == 0) holdWatch_.reset();
    mouse().release(at, button, shift);
    return true;
  }
  // The end of an earlier hold was not reported.
  if (mouse().pressed() && (buttons & ~button) == 0) mouse().holdLost();
  if (!isMove) watchHold();
  if (isMove)
    mouse().move(at, buttons, shift);
  else if (event->type() == QEvent::MouseButtonDblClick)
    mouse().doubleClick(at, button, shift);
  else
    mouse().press(at, button, shift);
  return true;
}

/// Before the press is delivered: its handler may already hide the window. The control of the
/// widget itself waits for its release.
void QtPlace::watchHold() {
  holdWatch_ = std::make_unique<HoldWatch>(*widget_->window(), [this] {
    if (mouse().pressed() != this) mouse().holdLost();
  });
}

bool QtPlace::keyEvent(QEvent* event) {
  auto* key = static_cast<QKeyEvent*>(event);
  // Keys that leave the control are left to the form, and so are those that the edit box ignores.
  const bool isFromEditBox = isFocusInside() && !widget_->hasFocus();
  if (isFromEditBox || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
  std::int16_t code = keyCodeOf(*key);
  const std::int16_t shift = shiftOf(key->modifiers());
  if (event->type() == QEvent::KeyRelease) {
    if (!key->isAutoRepeat() && code != 0) control()->UserControl_KeyUp(code, shift);
    return false;
  }
  const QPointer<QWidget> guard(widget_);
  const bool isArrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
  if (code != 0) {
    control()->UserControl_KeyDown(code, shift);
    if (!guard || code == 0) return true;
  }
  std::int16_t character = characterOf(*key);
  if (character != 0) control()->UserControl_KeyPress(character);
  return isArrow;
}

bool QtPlace::wheelEvent(QWheelEvent& event) {
  // In a designer the wheel is not hooked.
  if (!wheelProcedure_ || isDesignMode || !widget_->isEnabled()) return false;
  // A copy: a handler of the host may end the hook.
  const auto procedure = wheelProcedure_;
  return wheel.turn(event, procedure);
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
    if (!std::exchange(isEntered_, true)) control()->UserControl_EnterFocus();
    if (guard && of == FocusOf::control) control()->UserControl_GotFocus();
    return;
  }
  if (of == FocusOf::control) control()->UserControl_LostFocus();
  if (guard && !isFocusInside() && std::exchange(isEntered_, false))
    control()->UserControl_ExitFocus();
}

}  // namespace norvane
