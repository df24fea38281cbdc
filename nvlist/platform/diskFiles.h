#pragma once

#include <memory>
#include <string>

#include <nvlist/platform/File.h>

/// Files of the disk, through the standard library. Paths are UTF-8.
namespace norvane::disk {

/// Whether a file or folder of that name exists. In the last part of the path, `*` matches any
/// characters, `?` one character, and a final `.*` also a name without an extension. Case matters
/// if it does in the system's file names.
bool holdsAny(const std::string& path);

/// Deletes a regular file; does nothing if there is none. Throws Failure 75 if the file cannot be
/// deleted, 52 for a name with a zero character.
void remove(const std::string& path);

/// Opens a file. For writing it is created, or emptied if it exists. Throws Failure 53 if a file to
/// read does not exist, 76 if its folder does not, 75 if it cannot be opened or is not a regular
/// file, 52 for a name with a zero character. Calls of the file throw 61 if the disk is full and 57
/// for other device errors.
std::unique_ptr<File> open(const std::string& path, FileMode mode);

}  // namespace norvane::disk
