#pragma once

#include <QStringList>
#include <functional>

#include <nvlist/nvList.h>

#include "ListFiles.h"

namespace gallery {

/// Whether the gallery was built with JSON Lines. The functions below throw a message otherwise.
bool hasJsonLines();

/// Opens or saves JSON Lines and returns remarks for the user. They throw a message if it fails.
QStringList openJsonLines(norvane::nvList& list, const QString& path, Properties properties,
                          const Continues& continues);
QStringList saveJsonLines(const norvane::nvList& list, const QString& path,
                          const Continues& continues);

}  // namespace gallery
