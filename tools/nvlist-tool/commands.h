#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Session.h"
#include "files.h"

namespace tool {

/// The command line. Each argument is valid by itself.
struct Arguments {
  std::vector<std::string> files;
  std::optional<Kind> from;
  std::optional<Kind> to;
  std::string output;
  bool mayReplace = false;
  bool onlyChanged = false;
  int width = 300;
  int height = 200;
  int page = 1;
  std::optional<norvane::cColorStyle> style;
  std::optional<norvane::cListStyle> show;
};

// The commands. Each returns the exit status, or throws Trouble.
Status info(Session& session, const Arguments& arguments);
Status check(Session& session, const Arguments& arguments);
Status convert(Session& session, const Arguments& arguments);
Status render(Session& session, const Arguments& arguments);
Status diff(Session& session, const Arguments& arguments);

}  // namespace tool
