#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/QtFailures.h>

#include <QApplication>
#include <QDebug>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // Failures go to the log of the program. By default each opens a message box.
  norvane::QtFailures::setMode(norvane::QtFailures::Mode::Log);
  norvane::NvListWidget widget;
  norvane::nvList& list = widget.list();
  list.ItemsAdd("Vienna");
  list.ItemsAdd({.aText = "Graz", .aKey = "AT-6"});
  list.ItemsAdd("Linz", 0);
  QObject::connect(&widget, &norvane::NvListWidget::itemActivated,
                   [&](int index) { qInfo() << "chosen:" << widget.itemText(index); });
  widget.setWindowTitle("Towns");
  widget.show();
  return QApplication::exec();
}
