#include <nvlist/platform/qt/accessibility/accessibility.h>

#include <QAccessible>

#include <nvlist/platform/qt/accessibility/AccessibleList.h>

namespace norvane {

void makeListsAccessible() {
  // Qt asks with the names of an object's class and then of its bases, so that a host can describe
  // a class of its own differently.
  QAccessible::installFactory([](const QString& name, QObject* object) -> QAccessibleInterface* {
    auto* const widget = dynamic_cast<NvListWidget*>(object);
    return widget && name == NvListWidget::staticMetaObject.className()
               ? new AccessibleList(*widget)
               : nullptr;
  });
}

}  // namespace norvane
