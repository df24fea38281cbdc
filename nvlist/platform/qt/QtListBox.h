#pragma once

#include <QListWidget>
#include <QPointer>

#include <nvlist/platform/ListBox.h>

namespace norvane {

/// A QListWidget as a list box. Every call throws Failure 91 once the widget is destroyed. Bytes of
/// a text that are not UTF-8 are displayed as U+FFFD.
class QtListBox final : public ListBox {
 public:
  explicit QtListBox(QListWidget& widget) : widget_(&widget) {}
  static Variant of(QListWidget& widget) { return Variant(makeRef<QtListBox>(widget)); }

  std::int32_t ListCount() override { return widget().count(); }
  /// Throws Failure 381 if there is no such row.
  std::string List(std::int32_t index) override {
    const QListWidgetItem* row = widget().item(index);
    if (!row) throw Failure(381, "Invalid property array index");
    return row->text().toStdString();
  }
  void AddItem(const std::string& text) override { widget().addItem(QString::fromStdString(text)); }

 private:
  QListWidget& widget() const {
    if (!widget_) throw Failure::objectNotSet();
    return *widget_;
  }

  QPointer<QListWidget> widget_;
};

}  // namespace norvane
