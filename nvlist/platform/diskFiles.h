#pragma once

#include <memory>
#include <string>

#include <nvlist/platform/File.h>

/// Files as the standard library reaches them. Paths are UTF-8.
namespace norvane::disk {

/// Whether there is a file or folder of that name. In the last part of the path `*` stands for any
/// characters and `?` for one; a closing `.*` also for no ending at all. Case counts as it does in
/// the names of the system's files.
bool holdsAny(const std::string& path);

/// Deletes a file; one that is not there, a folder and a device stay as they are. Throws Failure 75
/// where a file cannot be deleted, 52 for a name with a zero character.
void remove(const std::string& path);

/// A file to be written is made new, in the place of an old one. Throws Failure 53 for a file to be
/// read that is not there, 76 where its folder is not, 75 for one that may not be opened or is no
/// regular file, 52 for a name with a zero character. Later calls throw 61 where the disk is full
/// and 57 for any other trouble of the device.
std::unique_ptr<File> open(const std::string& path, FileMode mode);

}  // namespace norvane::disk
