// A to-do list in a file: check, edit, drag, colour and remove what there is to do.
#include <QApplication>
#include <QDir>

#include "TodoWindow.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  TodoWindow window(argc > 1 ? QString(argv[1]) : QDir::home().filePath("todo.nvlist"));
  window.show();
  return QApplication::exec();
}
