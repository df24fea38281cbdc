#include <nvlist/core/like.h>

#include <nvlist/objects/Trap.h>
#include <nvlist/values/LikePattern.h>

namespace norvane {
namespace {

constexpr Module binaryModule = {kinds::module, "basCompareBinary"};
constexpr Module textModule = {kinds::module, "basComparyText"};

}  // namespace

Boolean LikeCompBinary(std::string_view text, std::string_view pattern) {
  Boolean result;
  trapped(binaryModule, "LikeCompBinary",
          [&](Trap& on) { on.step([&] { result = LikePattern(pattern, false).matches(text); }); });
  return result;
}

Boolean LikeCompText(std::string_view text, std::string_view pattern) {
  Boolean result;
  trapped(textModule, "LikeCompText",
          [&](Trap& on) { on.step([&] { result = LikePattern(pattern, true).matches(text); }); });
  return result;
}

}  // namespace norvane
