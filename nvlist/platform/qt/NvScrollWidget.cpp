#include <nvlist/platform/qt/NvScrollWidget.h>

#include <QPaintEvent>
#include <type_traits>

#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtPlace.h>

namespace norvane {
namespace {

constexpr int across = 17;
constexpr int usualLength = 150;
constexpr int shortestLength = across + static_cast<int>(scroll::shortestTrack) + across;

template <class Bar>
constexpr bool isVertical = std::is_same_v<Bar, nvVScroll>;

template <class Bar>
QSize sizeOf(int length) {
  return isVertical<Bar> ? QSize(across, length) : QSize(length, across);
}

}  // namespace

/// The bar and the place around its own, which may have to outlive the widget for a moment.
template <class Bar>
struct NvScrollWidget<Bar>::Core final : nvVScrollEvents, nvHScrollEvents {
  explicit Core(NvScrollWidget& owner)
      : widget(&owner), place(owner), bar(place.addChild(), *this) {}

  void VScroll1_Change() override { tell(&NvScrollWidget::onChange); }
  void VScroll1_Scroll() override { tell(&NvScrollWidget::onScroll); }
  void HScroll1_Change() override { tell(&NvScrollWidget::onChange); }
  void HScroll1_Scroll() override { tell(&NvScrollWidget::onScroll); }

  void tell(std::function<void()> NvScrollWidget::*event) {
    if (!widget) return;
    // A copy: the handler may replace itself.
    const auto handler = widget->*event;
    if (handler) handler();
  }

  NvScrollWidget* widget;
  QtPlace place;
  Bar bar;
};

template <class Bar>
NvScrollWidget<Bar>::NvScrollWidget(QWidget* parent)
    : QWidget(parent), core_(std::make_shared<Core>(*this)) {
  QtApplication::ensure();
  if (isVertical<Bar>) {
    setFixedWidth(across);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  } else {
    setFixedHeight(across);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  bar().UserControl_InitProperties();
  bar().Visible(true);
}

template <class Bar>
NvScrollWidget<Bar>::~NvScrollWidget() {
  core_->widget = nullptr;
  core_->place.detach();
  QtPlace::endLater(std::move(core_));
}

template <class Bar>
Bar& NvScrollWidget<Bar>::bar() {
  return core_->bar;
}

template <class Bar>
QtPlace& NvScrollWidget<Bar>::place() {
  return core_->place;
}

template <class Bar>
QSize NvScrollWidget<Bar>::sizeHint() const {
  return sizeOf<Bar>(usualLength);
}

template <class Bar>
QSize NvScrollWidget<Bar>::minimumSizeHint() const {
  return sizeOf<Bar>(shortestLength);
}

template <class Bar>
bool NvScrollWidget<Bar>::event(QEvent* event) {
  // Events come before the bar exists, and after it.
  return (core_ && core_->place.event(event)) || QWidget::event(event);
}

template <class Bar>
void NvScrollWidget<Bar>::paintEvent(QPaintEvent* event) {
  core_->place.paint(event->region());
}

template <class Bar>
void NvScrollWidget<Bar>::resizeEvent(QResizeEvent*) {
  core_->place.resize();
  bar().Move({0, 0, static_cast<float>(width()), static_cast<float>(height())});
  // The thumb takes its length from the new length of the bar, and then its position.
  bar().UserControl_Show();
  bar().Value(bar().Value());
}

template class NvScrollWidget<nvVScroll>;
template class NvScrollWidget<nvHScroll>;

}  // namespace norvane
