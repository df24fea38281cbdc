#pragma once

#include <optional>
#include <string>
#include <vector>

#include <nvlist/nvList.h>

#include "Session.h"

namespace tool {

/// The kinds of files that hold lists.
enum class Kind { listFile, jsonLines, text };

/// The kind with this name, as options give it; throws Trouble for any other.
Kind kindNamed(const std::string& name);
/// The kind of files with this extension, or nothing.
std::optional<Kind> kindByExtension(const std::string& path);
/// The kind of an existing file: by its extension, or else by its first bytes.
Kind kindOfFile(const std::string& path);

/// What was found in a file.
struct Loaded {
  Kind kind = Kind::text;
  std::string format;          ///< for a person to read
  bool hasProperties = false;  ///< whether the list took its properties from the file
  /// What is damaged, with a line or a byte; the first of them only, if there are many.
  std::vector<std::string> damage;
  std::vector<std::string> unknownFields;
};

/// Fills the list from a file. Throws Trouble if it cannot be read at all.
Loaded loadFile(Session& session, norvane::nvList& list, const std::string& path,
                std::optional<Kind> kind);

struct Saving {
  Kind kind;
  bool mayReplace = false;   ///< an existing file
  bool onlyChanged = false;  ///< in JSON Lines, only fields that differ from those of a new item
};

/// Saves the list, completely or not at all. Returns what the file cannot hold. Throws Trouble.
std::vector<std::string> saveFile(Session& session, norvane::nvList& list, const std::string& path,
                                  const Saving& saving);

/// Writes a text to a file, completely or not at all. Throws Trouble.
void writeText(const std::string& path, bool mayReplace, const std::string& text);

}  // namespace tool
