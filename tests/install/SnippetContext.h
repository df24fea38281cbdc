// What the snippets of the documents take from the program around them.

#include <nvlist/files/Recordset.h>
#include <nvlist/json/JsonLines.h>
#include <nvlist/platform/Files.h>
#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/NvListKeys.h>
#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/platform/qt/QtFailures.h>

#include <QMenu>
#include <QMimeData>

#include <iostream>

using namespace norvane;

class MemoryFiles : public Files {};

class Window : public QWidget {
 public:
  void save(int index, bool isChecked);

 protected:
  NvListWidget* tasks;
  QMenu* menu;
  QWidget* form;
  nvList& list = tasks->list();
  std::vector<std::byte> bytesOfFile;
  __nvList& sink;
  Picture picture;
  Ref<Object> rows;
  Variant value;
  int i;
};
