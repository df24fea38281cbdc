#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

#include <nvlist/nvList.h>
#include <nvlist/platform/qt/QtPlace.h>

namespace norvane {

/// A list as a Qt widget: put it on a form and fill it through list().
///
///     auto* names = new NvListWidget(form);
///     names->list().ItemsAdd("Ada");
///
/// The list starts with the font of the widget. It belongs to the thread of the QApplication.
class NvListWidget : public QWidget {
 public:
  /// The first widget puts the Qt platform's services to use, apart from those that the host has
  /// made already (QtApplication::ensure).
  explicit NvListWidget(QWidget* parent = nullptr);
  ~NvListWidget() override;

  /// Valid as long as the widget. A handler of one of its events may destroy the widget.
  nvList& list();
  /// The place of the list, which contains those of its bars. Valid as long as the widget.
  QtPlace& place();

  /// In design mode the list shows a preview instead of its items and leaves the mouse wheel to the
  /// form. Default: false.
  bool isDesignMode() const;
  void setDesignMode(bool on);

  /// Called after each change of a property of the list, with its exact name. Default: none.
  std::function<void(std::string_view name)> onPropertyChanged;

  QSize sizeHint() const override { return {240, 200}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Core;

  std::shared_ptr<Core> core_;
};

}  // namespace norvane
