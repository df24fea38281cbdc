#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include <nvlist/nvList.h>

namespace gallery {

enum class Properties { left, kept };

/// Saves the list with all properties, or only the texts of its items.
void saveListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Saves the texts in the older format, which lists read item by item but do not write. Returns an
/// error message, or an empty text on success.
QString saveOlderFile(const norvane::nvList& list, const QString& path);

/// Called now and then with the part that is done. Returning false stops.
using Continues = std::function<bool(int percent)>;

/// The kinds of files that the gallery opens.
enum class FileKind { jsonLines, list, text };

/// The kind of a file by its first bytes. Throws a message for a folder, a device, a file that
/// cannot be read, and one of another kind.
FileKind kindOf(const QString& path);

/// Shows a file of any kind instead of the items: scrolls to the top and makes the first selected
/// item current. Returns remarks for the user, and throws a message if the file cannot be opened.
QStringList openAnyFile(norvane::nvList& list, const QString& path, Properties properties,
                        const Continues& continues);

/// Loads a list file, scrolls to the top and makes the first selected item current.
void openListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Adds an item for each part of a text file.
void importText(norvane::nvList& list, const QString& path, const QString& delimiter);

}  // namespace gallery
