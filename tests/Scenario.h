#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <ostream>
#include <string>

namespace norvane {

/// A script and the outputs of its commands.
struct Scenario {
  const char* name;
  const char* script;
  const char* expected;

  friend std::ostream& operator<<(std::ostream& out, const Scenario& scenario) {
    return out << scenario.name;
  }
};

inline std::string nameOf(const testing::TestParamInfo<Scenario>& test) {
  std::string name = test.param.name;
  std::ranges::replace_if(
      name, [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

}  // namespace norvane
