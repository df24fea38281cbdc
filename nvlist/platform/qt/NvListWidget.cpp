#include <nvlist/platform/qt/NvListWidget.h>

#include <QPaintEvent>

#include <nvlist/platform/qt/QtApplication.h>

namespace norvane {

/// The list and its place, which may have to outlive the widget for a moment.
struct NvListWidget::Core {
  explicit Core(QWidget& widget) : place(widget), list(place) {}

  QtPlace place;
  nvList list;
};

NvListWidget::NvListWidget(QWidget* parent)
    : QWidget(parent), core_(std::make_shared<Core>(*this)) {
  QtApplication::ensure();
  setFocusPolicy(Qt::StrongFocus);
  core_->place.onPropertyChanged = [this](std::string_view name) {
    // A copy: the handler may replace itself.
    const auto handler = onPropertyChanged;
    if (handler) handler(name);
  };
  connect(this, &QObject::objectNameChanged, this,
          [this] { list().UserControl_AmbientChanged("DisplayName"); });
  list().UserControl_InitProperties();
}

NvListWidget::~NvListWidget() {
  core_->place.onPropertyChanged = nullptr;
  // The host may be destroyed with its window, while the list is still in the middle of a call.
  core_->list.removeAllSinks();
  core_->place.detach();
  QtPlace::endLater(std::move(core_));
}

QtPlace& NvListWidget::place() { return core_->place; }

nvList& NvListWidget::list() { return core_->list; }

bool NvListWidget::isDesignMode() const { return core_->place.isDesignMode; }

void NvListWidget::setDesignMode(bool on) {
  if (isDesignMode() == on) return;
  core_->place.isDesignMode = on;
  list().Redraw();
}

bool NvListWidget::event(QEvent* event) {
  // Events come before the list exists, and after it.
  return (core_ && core_->place.event(event)) || QWidget::event(event);
}

void NvListWidget::paintEvent(QPaintEvent* event) { core_->place.paint(event->region()); }

void NvListWidget::resizeEvent(QResizeEvent*) {
  core_->place.resize();
  list().UserControl_Resize();
}

}  // namespace norvane
