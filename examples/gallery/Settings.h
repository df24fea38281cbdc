#pragma once

#include <QString>
#include <QStringList>

#include <nvlist/nvList.h>

namespace gallery {

/// Saves the properties of a list to a text file. Throws a message for the user if the file cannot
/// be written.
void saveSettings(norvane::nvList& list, const QString& path);

/// Loads the properties of a list from such a file and keeps its items. Throws a message for the
/// user if the file cannot be read. If a value is invalid for its property, the list reports it and
/// keeps all its properties.
///
/// Returns a line for each entry of the file that could not be used.
QStringList loadSettings(norvane::nvList& list, const QString& path);

}  // namespace gallery
