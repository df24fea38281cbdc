#include <nvlist/platform/qt/NvListWidget.h>

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  norvane::NvListWidget widget;
  norvane::nvList& list = widget.list();
  list.ItemsAdd("Vienna");
  list.ItemsAdd({.aText = "Graz", .aKey = "AT-6"});
  list.ItemsAdd("Linz", 0);
  widget.setWindowTitle("Towns");
  widget.show();
  return QApplication::exec();
}
