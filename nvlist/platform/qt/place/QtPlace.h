#pragma once

#include <QEvent>
#include <QList>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QWidget>
#include <exception>
#include <functional>
#include <memory>
#include <string_view>

#include <nvlist/platform/Place.h>
#include <nvlist/platform/qt/drawing/QtSurface.h>
#include <nvlist/platform/qt/place/QtWheel.h>

namespace norvane {

class QtTextBox;

/// The place of a control in a widget. The outermost place has the widget; the places in it are
/// regions of that widget, each with an image of its own.
///
/// The widget passes every event to `event`, its paint events to `paint` and its new sizes to
/// `resize`.
class QtPlace : public Place {
 public:
  explicit QtPlace(QWidget& widget);
  ~QtPlace() override;

  /// Whether the form is open in a designer; read at the outermost place. Default: false.
  bool isDesignMode = false;
  /// Called with the name of each property of the control that has changed. Default: none.
  std::function<void(std::string_view name)> onPropertyChanged;

  /// Converts the turns of the wheel; used at the outermost place.
  QtWheel wheel;

  /// Called with what a handler of the program threw while the control let events run (DoEvents);
  /// the control then goes on as if nothing had been thrown. Read at the outermost place. Default:
  /// none; what is thrown is then a failure of the control, after which a list may stay unpainted
  /// (nvList::Redraw).
  std::function<void(std::exception_ptr)> onYieldFailure;

  /// Forwards an event of the widget to the control. Returns true if it was consumed, or if a
  /// handler of the host destroyed the widget.
  bool event(QEvent* event);
  /// Shows the images of this place and of those in it, as far as they lie in the region.
  void paint(const QRegion& region);
  /// Gives the image the size of the widget. A new size clears the image.
  void resize();
  /// Whether system colours are changed where texts of disabled rows could not be read
  /// (readablePalette). Called at the outermost place. Default: false.
  void makesReadable(bool on);
  /// Whether left and right are exchanged, for layouts from right to left. The control is not
  /// notified: its points and places are those of the layout from left to right. Called at the
  /// outermost place. Default: false.
  void mirror(bool on);
  bool isMirrored() const { return form().isMirrored_; }
  /// Has to be called before the widget is destroyed if the control outlives it. From then on
  /// nothing is shown.
  void detach() { widget_ = nullptr; }
  /// Destroys a control and its place as soon as no procedure of the library runs: a handler of the
  /// host may have destroyed the widget around them.
  static void endLater(std::shared_ptr<void> control);

  /// Whether any widget with a place is being painted. No window may be opened meanwhile.
  static bool anyPaints();

  /// In whole pixels of the widget, in which it may be mirrored.
  QRect geometry() const;
  /// Where an area of the outermost control appears in the widget. An empty one stays as it is.
  QRect shown(const QRect& area) const;
  /// What the place shows, without the places in it.
  const QImage& image() { return surface_.image(); }

  void attach(UserControl* control) override;
  Surface& surface() override { return surface_; }
  void PropertyChanged(std::string_view name) override;
  Boolean UserMode() override;
  norvane::Font AmbientFont() override;
  std::string Name() override;
  bool EventsWaiting() override;
  void DoEvents() override;
  void move(const Bounds& bounds) override;
  void show(bool isVisible) override;
  /// The widget's number (QtWindow.h); 0 once it is gone.
  std::int32_t hwnd() override;
  void hookWheel(QtWheel::Procedure procedure) override { wheelProcedure_ = std::move(procedure); }
  std::unique_ptr<Container> addChild() override;
  std::unique_ptr<TextBox> addTextBox(std::function<void(std::int16_t&)> keyPress) override;
  std::unique_ptr<Timer> addTimer(std::function<void()> tick) override;

 private:
  enum class FocusOf { control, editBox };

  explicit QtPlace(QtPlace* around);

  QtPlace& form() { return static_cast<QtPlace&>(root()); }
  const QtPlace& form() const { return const_cast<QtPlace*>(this)->form(); }
  void changed() override;
  void showAnew(const QRect& area);
  void showChanges();

  bool dispatch(QEvent* event);
  bool mouseEvent(QEvent* event);
  bool keyEvent(QEvent* event);
  bool wheelEvent(QWheelEvent& event);
  void focusEvent(QEvent::Type type, FocusOf of);
  bool isFocusInside() const;
  void watchHold();
  void newImage(QSize size);
  void setOpaque();
  void placeTextBoxes();
  void takePalette();
  void renewImages();

  QtSurface surface_;
  QtWheel::Procedure wheelProcedure_;
  // In use at the outermost place only.
  QWidget* widget_ = nullptr;
  bool makesReadable_ = false;
  bool isMirrored_ = false;
  bool isPainting_ = false;
  bool isCheckPosted_ = false;
  bool isEntered_ = false;
  QList<QPointer<QtTextBox>> textBoxes_;
  std::unique_ptr<QObject> holdWatch_;
};

}  // namespace norvane
