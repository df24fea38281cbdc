#pragma once

#include <string>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// Whether there is a file or folder of that name; `*` and `?` in its last part stand for others
/// (platform/diskFiles.h). False for the empty name and one that ends in a slash. A failure of the
/// search is reported and gives false.
Boolean FileExists(const std::string& path);

}  // namespace norvane
