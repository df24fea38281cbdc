#pragma once

#include <string>

#include <nvlist/platform/File.h>

namespace tool {

/// The structure of a list file.
struct Structure {
  std::string format;  ///< with the version
  /// Where the first damage is, with its byte; empty if the records are whole.
  std::string damage;
};

/// Follows the records of a list file, in blocks of bounded size. docs/list-files.md describes
/// them.
Structure structureOf(norvane::File& file);

}  // namespace tool
