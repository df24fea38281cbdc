#include <nvlist/platform/qt/NvScrollWidget.h>

#include <QPaintEvent>
#include <QPointer>

#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/place/QtPlace.h>

namespace norvane {
namespace {

constexpr int across = 17;
constexpr int usualLength = 150;
constexpr int shortestLength = across + static_cast<int>(scroll::shortestTrack) + across;

}  // namespace

/// The bar and the place around its own, which may have to outlive the widget for a moment.
struct NvScrollWidget::Core final : nvVScrollEvents, nvHScrollEvents {
  Core(NvScrollWidget& owner, Qt::Orientation orientation) : widget(&owner), place(owner) {
    if (orientation == Qt::Vertical)
      bar = std::make_unique<nvVScroll>(place.addChild(), *this);
    else
      bar = std::make_unique<nvHScroll>(place.addChild(), *this);
  }

  void VScroll1_Change() override { changed(); }
  void VScroll1_Scroll() override { scrolled(); }
  void HScroll1_Change() override { changed(); }
  void HScroll1_Scroll() override { scrolled(); }

  void changed() const {
    if (widget) emit widget->changed(bar->Value());
  }
  void scrolled() const {
    if (widget) emit widget->scrolled(bar->Value());
  }

  NvScrollWidget* widget;  ///< nullptr after its end
  QtPlace place;
  std::unique_ptr<scroll::Bar> bar;
};

NvScrollWidget::NvScrollWidget(Qt::Orientation orientation, QWidget* parent)
    : QWidget(parent),
      orientation_(orientation),
      core_(std::make_shared<Core>(*this, orientation)) {
  QtApplication::ensure();
  if (orientation == Qt::Vertical) {
    setFixedWidth(across);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  } else {
    setFixedHeight(across);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  bar().UserControl_InitProperties();
  if (!isEnabled()) bar().Enabled(false);
  bar().Visible(true);
}

NvScrollWidget::~NvScrollWidget() {
  core_->widget = nullptr;
  core_->place.detach();
  QtPlace::endLater(std::move(core_));
}

scroll::Bar& NvScrollWidget::bar() { return *core_->bar; }

const scroll::Bar& NvScrollWidget::bar() const { return *core_->bar; }

QtPlace& NvScrollWidget::place() { return core_->place; }

QSize NvScrollWidget::sizeOf(int length) const {
  return orientation_ == Qt::Vertical ? QSize(across, length) : QSize(length, across);
}

QSize NvScrollWidget::sizeHint() const { return sizeOf(usualLength); }

QSize NvScrollWidget::minimumSizeHint() const { return sizeOf(shortestLength); }

bool NvScrollWidget::event(QEvent* event) {
  // Events come before the bar exists, and after it.
  return (core_ && core_->place.event(event)) || QWidget::event(event);
}

void NvScrollWidget::paintEvent(QPaintEvent* event) { core_->place.paint(event->region()); }

void NvScrollWidget::resizeEvent(QResizeEvent*) {
  core_->place.resize();
  bar().Move({0, 0, static_cast<float>(width()), static_cast<float>(height())});
  // The thumb takes its length from the new length of the bar, and then its position.
  bar().UserControl_Show();
  bar().Value(bar().Value());
}

void NvScrollWidget::changeEvent(QEvent* event) {
  const QPointer<QWidget> guard(this);
  if (core_ && event->type() == QEvent::EnabledChange) bar().Enabled(isEnabled());
  if (guard) QWidget::changeEvent(event);
}

}  // namespace norvane
