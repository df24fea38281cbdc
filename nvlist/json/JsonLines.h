#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <nvlist/nvList.h>

/// Lists as JSON Lines: UTF-8 texts in any language, one item a line. docs/json-lines.md describes
/// the format. Paths are UTF-8 and are opened by the Files in use.
namespace norvane::json {

/// Called after each block. Both numbers are bytes of the file while loading and items while
/// saving. Returning false stops the operation. The function may use the list, but must not destroy
/// it.
using Progress = std::function<bool(std::uint64_t done, std::uint64_t whole)>;

/// Something that was left out.
struct Problem {
  std::uint64_t line;  ///< of the file, counted from 1
  std::string text;    ///< a description for people, with the name of the field if there is one
};

/// What was saved or loaded, and what was not.
struct Result {
  std::int32_t items = 0;      ///< number of items saved or loaded
  bool hasProperties = false;  ///< whether the file that was loaded has properties of the list
  bool isStopped = false;      ///< whether `progress` returned false
  std::uint64_t problems = 0;  ///< number of all problems
  /// The first problems, at most `mostKept`.
  std::vector<Problem> firstProblems;
  /// Names of fields in the file that no item or list has, each once; at most `mostKept`.
  std::vector<std::string> unknownFields;

  /// The most entries of either list.
  static constexpr std::size_t mostKept = 100;
};

/// Which fields of the items are saved.
enum class Fields {
  all,
  changed  ///< those that differ from a new item; the file is much smaller
};

/// How a list is saved.
struct SaveOptions {
  Fields fields = Fields::all;  ///< the fields that each line has
  Progress progress = {};       ///< called after each block
};

/// How a list is loaded.
struct LoadOptions {
  /// Whether the list takes the properties in the file. Otherwise it keeps its own.
  bool takesProperties = true;
  /// Called after each block.
  Progress progress = {};
};

/// Saves the properties of the list and all its items. The file replaces an existing one when it is
/// complete; if the save fails or is stopped, the old file stays as it was.
///
/// A picture without a file, and a tag that holds an object without a text, are saved as null and
/// listed as problems. Throws a Failure if the file cannot be written.
Result save(const nvList& list, const std::string& path, const SaveOptions& options = {});

/// Replaces the items of the list by those of the file, and paints if AutoRedraw is on. A line that
/// cannot be read is left out and listed as a problem; so is a field with an unsuitable value, and
/// the item gets the value of a new item. All other lines and fields are loaded. If loading is
/// stopped, the items loaded so far stay.
///
/// Memory use beyond the list is that of a block and the longest line.
///
/// Throws a Failure, and leaves the list as it was, if the file cannot be opened, does not begin
/// with an object, or has a later version. Throws one, and keeps the items loaded so far, if the
/// file cannot be read to its end or the memory is exhausted.
Result load(nvList& list, const std::string& path, const LoadOptions& options = {});

}  // namespace norvane::json
