#pragma once

#include <QWidget>
#include <memory>

#include <nvlist/platform/qt/NvListProperties.h>
#include <nvlist/platform/qt/place/QtPlace.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>

namespace norvane {

/// A scroll bar alone on a form, as a Qt widget:
///
///     auto* volume = new NvHScrollWidget(form);
///     volume->setMaximum(11);
///     connect(volume, &NvScrollWidget::scrolled, player, &Player::setVolume);
///
/// The widget is 17 pixels wide and as long as its layout makes it. The length of the thumb
/// follows. It belongs to the thread of the QApplication. Its properties are those of the bar
/// (scroll/Bar.h), whose Min and Max are minimum and maximum here.
class NvScrollWidget : public QWidget {
  Q_OBJECT
  Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
  Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
  Q_PROPERTY(int value READ value WRITE setValue USER true)
  Q_PROPERTY(int smallChange READ smallChange WRITE setSmallChange)
  Q_PROPERTY(int largeChange READ largeChange WRITE setLargeChange)
  Q_PROPERTY(bool gradient READ gradient WRITE setGradient)
  Q_PROPERTY(bool activeScrolling READ activeScrolling WRITE setActiveScrolling)
  Q_PROPERTY(
      norvane::NvListProperties::ScrollColorStyle colorStyle READ colorStyle WRITE setColorStyle)

 public:
  /// The colour schemes of a bar.
  using ColorStyle = NvListProperties::ScrollColorStyle;

  ~NvScrollWidget() override;

  /// Valid as long as the widget. A handler of one of its events may destroy the widget. The widget
  /// sets the position, size and visibility of the bar.
  scroll::Bar& bar();
  const scroll::Bar& bar() const;
  /// The place around that of the bar. Valid as long as the widget.
  QtPlace& place();

  /// The properties of the bar.
  int minimum() const { return bar().Min(); }
  void setMinimum(int value) { bar().Min(value); }
  int maximum() const { return bar().Max(); }
  void setMaximum(int value) { bar().Max(value); }
  int value() const { return bar().Value(); }
  void setValue(int value) { bar().Value(value); }
  int smallChange() const { return bar().SmallChange(); }
  void setSmallChange(int value) { bar().SmallChange(value); }
  int largeChange() const { return bar().LargeChange(); }
  void setLargeChange(int value) { bar().LargeChange(value); }
  bool gradient() const { return static_cast<bool>(bar().Gradient()); }
  void setGradient(bool on) { bar().Gradient(on); }
  bool activeScrolling() const { return static_cast<bool>(bar().ActiveScrolling()); }
  void setActiveScrolling(bool on) { bar().ActiveScrolling(on); }
  ColorStyle colorStyle() const { return static_cast<ColorStyle>(bar().ColorStyle()); }
  void setColorStyle(ColorStyle value) { bar().ColorStyle(static_cast<cScrollColorStyle>(value)); }

  /// The breadth of the bar by a usual length.
  QSize sizeHint() const override;
  /// The size of the two buttons and of the shortest track with a thumb.
  QSize minimumSizeHint() const override;

 signals:
  /// After each step of a button or of the track, also at an end of the range, and when the thumb
  /// is released.
  void changed(int value);
  /// After each change of the value by the thumb.
  void scrolled(int value);

 protected:
  /// The first widget puts the Qt platform's services to use, apart from those that the host has
  /// made already (QtApplication::ensure).
  NvScrollWidget(Qt::Orientation orientation, QWidget* parent);

  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Core;

  QSize sizeOf(int length) const;

  const Qt::Orientation orientation_;
  std::shared_ptr<Core> core_;
};

/// A vertical scroll bar.
class NvVScrollWidget : public NvScrollWidget {
  Q_OBJECT

 public:
  /// Its properties have their defaults.
  explicit NvVScrollWidget(QWidget* parent = nullptr) : NvScrollWidget(Qt::Vertical, parent) {}
  /// The bar itself. Valid as long as the widget.
  nvVScroll& bar() { return static_cast<nvVScroll&>(NvScrollWidget::bar()); }
};

/// A horizontal scroll bar.
class NvHScrollWidget : public NvScrollWidget {
  Q_OBJECT

 public:
  /// Its properties have their defaults.
  explicit NvHScrollWidget(QWidget* parent = nullptr) : NvScrollWidget(Qt::Horizontal, parent) {}
  /// The bar itself. Valid as long as the widget.
  nvHScroll& bar() { return static_cast<nvHScroll&>(NvScrollWidget::bar()); }
};

}  // namespace norvane
