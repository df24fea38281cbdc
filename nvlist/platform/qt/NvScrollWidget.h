#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include <nvlist/platform/qt/QtPlace.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>

namespace norvane {

/// A scroll bar alone on a form, as a Qt widget:
///
///     auto* volume = new NvHScrollWidget(form);
///     volume->bar().Max(11);
///     volume->onScroll = [=] { player->setVolume(volume->bar().Value()); };
///
/// The widget is 17 pixels wide and as long as its layout makes it. The length of the thumb
/// follows. It belongs to the thread of the QApplication.
template <class Bar>
class NvScrollWidget : public QWidget {
 public:
  /// The first widget puts the Qt platform's services to use, apart from those that the host has
  /// made already (QtApplication::ensure).
  explicit NvScrollWidget(QWidget* parent = nullptr);
  ~NvScrollWidget() override;

  /// Valid as long as the widget. A handler of one of its events may destroy the widget. The widget
  /// sets the position, size and visibility of the bar.
  Bar& bar();
  /// The place around that of the bar. Valid as long as the widget.
  QtPlace& place();

  /// Called after each step of a button or of the track, also at an end of the range, and when the
  /// thumb is released. Default: none.
  std::function<void()> onChange;
  /// Called after each change of the value by the thumb. Default: none.
  std::function<void()> onScroll;

  QSize sizeHint() const override;
  /// The size of the two buttons and of the shortest track with a thumb.
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Core;

  std::shared_ptr<Core> core_;
};

using NvVScrollWidget = NvScrollWidget<nvVScroll>;
using NvHScrollWidget = NvScrollWidget<nvHScroll>;

extern template class NvScrollWidget<nvVScroll>;
extern template class NvScrollWidget<nvHScroll>;

}  // namespace norvane
