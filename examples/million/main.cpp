// A million rows: made while a progress bar runs, searched as one types.
#include <QApplication>

#include "MillionWindow.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  MillionWindow window;
  window.show();
  return QApplication::exec();
}
