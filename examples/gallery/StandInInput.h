#pragma once

#include <QObject>

#include <nvlist/platform/qt/NvListWidget.h>

namespace gallery {

/// Stands in for the hand on a list: a click makes its row the current item, the wheel and the keys
/// scroll. To be removed, with its two uses in Chooser and GalleryWindow, as soon as the list
/// handles mouse, wheel and keys itself.
class StandInInput : public QObject {
 public:
  /// Works for as long as the widget lives.
  static void serve(norvane::NvListWidget& widget);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit StandInInput(norvane::NvListWidget& widget);

  void click(double y);
  void scrollBy(int rows);
  bool key(int key);

  norvane::nvList& list_;
};

}  // namespace gallery
