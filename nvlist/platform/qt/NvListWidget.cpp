#include <nvlist/platform/qt/NvListWidget.h>

#include <nvlist/platform/qt/QtApplication.h>

namespace norvane {

NvListWidget::NvListWidget(QWidget* parent) : QWidget(parent), place_(*this), list_(place_) {
  QtApplication::ensure();
  setFocusPolicy(Qt::StrongFocus);
  place_.onPropertyChanged = [this](std::string_view name) {
    if (onPropertyChanged) onPropertyChanged(name);
  };
  list_.UserControl_InitProperties();
}

NvListWidget::~NvListWidget() = default;

void NvListWidget::setDesignMode(bool on) {
  if (place_.isDesignMode == on) return;
  place_.isDesignMode = on;
  list_.Redraw();
}

bool NvListWidget::event(QEvent* event) { return place_.event(event) || QWidget::event(event); }

void NvListWidget::paintEvent(QPaintEvent*) { place_.paint(); }

void NvListWidget::resizeEvent(QResizeEvent*) {
  place_.resize();
  list_.UserControl_Resize();
}

}  // namespace norvane
