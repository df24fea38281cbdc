#pragma once

#include <memory>
#include <string>

#include <nvlist/platform/File.h>

/// Files on the disk. Paths are UTF-8.
namespace norvane::disk {

/// Returns whether a file or folder matches the path. In the last part of the path `*` matches any
/// characters and `?` matches one; a final `.*` also matches names without an extension. Upper and
/// lower case differ where the file system of the target distinguishes them. False for a path that
/// contains a zero character.
bool holdsAny(const std::string& path);

/// Opens a file. Throws Failure 53 if a file to be read is missing, 76 if its folder is missing, 75
/// if the file may not be opened or is not a regular file where the mode requires one, 70 if
/// another writer is saving it, 61 if the disk is full, 52 if the path contains a zero character.
/// Calls on the file throw 61 if the disk is full and 57 for any other device failure.
///
/// FileMode::saveBeside writes to the name with ".nvlist-new" appended. A killed process may leave
/// that file behind; the next save of the same list replaces it.
std::unique_ptr<File> open(const std::string& path, FileMode mode);

}  // namespace norvane::disk
