#include "JsonFiles.h"

namespace gallery {

bool hasJsonLines() { return false; }

QStringList openJsonLines(norvane::nvList&, const QString&, Properties, const Continues&) {
  throw QString("The gallery was built without JSON Lines");
}

QStringList saveJsonLines(const norvane::nvList&, const QString&, const Continues&) {
  throw QString("The gallery was built without JSON Lines");
}

}  // namespace gallery
