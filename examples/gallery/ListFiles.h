#pragma once

#include <QString>

#include <nvlist/nvList.h>

namespace gallery {

enum class Properties { left, kept };

/// Saves the list with all properties, or only the texts of its items.
void saveListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Saves the texts in the older format, which lists read item by item but do not write. Returns an
/// error message, or an empty text on success.
QString saveOlderFile(const norvane::nvList& list, const QString& path);

/// Loads a list file, scrolls to the top and makes the first selected item current.
void openListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Adds an item for each part of a text file.
void importText(norvane::nvList& list, const QString& path, const QString& delimiter);

}  // namespace gallery
