#pragma once

#include <string>

#include <nvlist/values/Boolean.h>

namespace norvane {

/// Returns whether a file or folder matches the path; `*` and `?` in its last part are wildcards
/// (platform/diskFiles.h). False for an empty path and one that ends in a slash. A failure of the
/// search is reported and gives false.
Boolean FileExists(const std::string& path);

}  // namespace norvane
