#include "ListFiles.h"

using norvane::nvList;

namespace gallery {

void saveListFile(nvList& list, const QString& path, Properties properties) {
  list.ListSave(path.toStdString(), properties == Properties::kept);
}

/// A list file leaves the place in the list and the scroll bars to its host.
void openListFile(nvList& list, const QString& path, Properties properties) {
  list.ListIndex(-1);
  list.ListInput(path.toStdString(), properties == Properties::kept);
  list.TopIndex(0);
  list.CheckScroll();
}

/// Both switches are off afterwards, and a host's own to turn on.
void importText(nvList& list, const QString& path, const QString& delimiter) {
  list.ListInput2(path.toStdString(), delimiter.toStdString());
  list.AutoCheckScroll(true);
  list.AutoRedraw(true);
}

}  // namespace gallery
