#pragma once

#include <cstdint>
#include <string_view>

namespace norvane {

/// A failure as a trap passes it to the reporter.
struct Report {
  std::int32_t Number;
  std::string_view Description;
  std::string_view Procedure;
  std::int32_t Line;
  std::string_view Kind;
  std::string_view Module;
};

/// Reports a failure through the Program in use (platform/Program.h): writes the log if the
/// settings name a folder, calls the host's ErrorHandler and, unless that takes over, shows the
/// message box titled "Error".
///
/// When memory is exhausted, parts of the report that would allocate are left out and a long
/// description is cut off. Throws what the program's facts, settings or message box throw, apart
/// from std::bad_alloc.
void report(const Report& failure);

}  // namespace norvane
