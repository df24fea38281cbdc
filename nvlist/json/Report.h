#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include <nvlist/json/JsonLines.h>

namespace norvane::json {

/// Collects the result of an operation. Its size is bounded, whatever the file contains.
struct Report {
  Result result;

  void problem(std::uint64_t line, std::string text) {
    ++result.problems;
    if (result.firstProblems.size() < Result::mostKept)
      result.firstProblems.push_back({line, std::move(text)});
  }

  void unknownField(std::string_view name) {
    auto& names = result.unknownFields;
    if (names.size() < Result::mostKept && std::ranges::find(names, name) == names.end())
      names.emplace_back(name);
  }
};

}  // namespace norvane::json
