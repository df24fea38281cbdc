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

  /// Lives as long as the widget; a handler of one of its events may end the widget.
  nvList& list();
  /// The place of the list, with those of its bars. Lives as long as the widget.
  QtPlace& place();

  /// Whether the list shows the preview of a form designer instead of its items. Default: false.
  bool isDesignMode() const;
  void setDesignMode(bool on);

  /// Told after each change of a property of the list, with the property's exact name. Default:
  /// none.
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
