#pragma once

#include <string>

namespace norvane {

/// The whole text file, its bytes as they are. Throws where it cannot be read.
std::string textOfFile(const std::string& path);

}  // namespace norvane
