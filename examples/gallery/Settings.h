#pragma once

#include <QString>
#include <QStringList>

#include <nvlist/nvList.h>

namespace gallery {

/// Stores the properties of a list as a text file. Throws a message for the user where the file
/// cannot be written.
void saveSettings(norvane::nvList& list, const QString& path);

/// Gives a list the properties of such a file and its own items again. Throws a message for the
/// user where the file cannot be read. A value that its property cannot take is reported by the
/// list, which then has the properties it had before.
///
/// The result tells what in the file was of no use, a line each.
QStringList loadSettings(norvane::nvList& list, const QString& path);

}  // namespace gallery
