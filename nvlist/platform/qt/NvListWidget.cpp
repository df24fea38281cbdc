#include <nvlist/platform/qt/NvListWidget.h>

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QTimer>
#include <chrono>

#include <nvlist/platform/Container.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtFont.h>

namespace norvane {

/// The place of the list is the widget.
class NvListWidget::Place final : public Container {
 public:
  explicit Place(NvListWidget& widget) : widget_(widget) {}

  bool isDesignMode = false;

  void PropertyChanged(std::string_view name) override {
    if (widget_.onPropertyChanged) widget_.onPropertyChanged(name);
  }
  Boolean UserMode() override { return !isDesignMode; }
  norvane::Font AmbientFont() override { return fontFrom(widget_.font()); }
  std::string Name() override { return widget_.objectName().toStdString(); }

  /// Looks at the clock once in a while only: loops over a million items ask.
  bool EventsWaiting() override {
    if (++timesAsked_ % 64 != 0) return false;
    return Clock::now() - lastDone_ >= std::chrono::milliseconds(10);
  }
  void DoEvents() override {
    QCoreApplication::processEvents();
    lastDone_ = Clock::now();
  }

 private:
  using Clock = std::chrono::steady_clock;

  NvListWidget& widget_;
  unsigned timesAsked_ = 0;
  Clock::time_point lastDone_ = Clock::now();
};

NvListWidget::NvListWidget(QWidget* parent)
    : QWidget(parent), place_(std::make_unique<Place>(*this)), list_(*place_, surface_) {
  QtApplication::ensure();
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  surface_.setPalette(palette());
  surface_.resize(size(), devicePixelRatioF());
  list_.UserControl_InitProperties();
  surface_.onDrawn = [this] { update(); };
}

NvListWidget::~NvListWidget() = default;

bool NvListWidget::isDesignMode() const { return place_->isDesignMode; }

void NvListWidget::setDesignMode(bool on) {
  if (place_->isDesignMode == on) return;
  place_->isDesignMode = on;
  list_.Redraw();
}

/// The look of the screen or of the program has changed; what was drawn before is of no use.
void NvListWidget::renewImage() {
  surface_.setPalette(palette());
  surface_.resize(size(), devicePixelRatioF());
  list_.Redraw();
}

bool NvListWidget::event(QEvent* event) {
  const bool isHandled = QWidget::event(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ScreenChangeInternal)
    renewImage();
  return isHandled;
}

void NvListWidget::paintEvent(QPaintEvent*) {
  QPainter(this).drawImage(QPointF(0, 0), surface_.image());
  // Not every change of the ratio is told, and a list must not draw while the window is painted.
  if (surface_.devicePixelRatio() != devicePixelRatioF())
    QTimer::singleShot(0, this, [this] { renewImage(); });
}

void NvListWidget::resizeEvent(QResizeEvent*) {
  surface_.resize(size(), devicePixelRatioF());
  list_.UserControl_Resize();
}

}  // namespace norvane
