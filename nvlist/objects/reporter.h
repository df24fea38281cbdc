#pragma once

#include <cstdint>
#include <string>

namespace norvane {

/// One failure as the reporter gets it from a trap.
struct Report {
  std::int32_t Number;
  std::string Description;
  std::string Procedure;
  std::int32_t Line;
  std::string Kind;
  std::string Module;
};

/// Tells the user of a failure: writes the log if one is configured, gives the failure to the
/// host's outside handler, and shows the box titled "Error" unless the handler took over. Works on
/// the Application that is in use (platform/Application.h). Throws what the application throws
/// where its failure is not one to be ignored.
void report(const Report& failure);

}  // namespace norvane
