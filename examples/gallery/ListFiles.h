#pragma once

#include <QString>

#include <nvlist/nvList.h>

namespace gallery {

enum class Properties { left, kept };

/// Saves the list with its pictures, or the texts of its items alone.
void saveListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Saves the texts in the older form, which lists read item by item and do not write. Returns why
/// it could not; empty where it could.
QString saveOlderFile(const norvane::nvList& list, const QString& path);

/// Shows what a list file holds, from the top and with the items current that it has selected.
void openListFile(norvane::nvList& list, const QString& path, Properties properties);

/// Adds an item for each piece of a text file.
void importText(norvane::nvList& list, const QString& path, const QString& delimiter);

}  // namespace gallery
