#include <nvlist/scroll/art.h>

#include <gtest/gtest.h>

#include <functional>

namespace norvane {
namespace {

using art::Arrow;
using scroll::Axis;

/// Pictures are checked as a whole, since a wrong pixel is hard to find by eye: after an intended
/// change, look at them and write the new numbers here.
TEST(Art, HasTheseChecksums) {
  const auto thumbs = [](Axis axis) {
    return [axis](int index) { return art::thumb(axis, index); };
  };
  const auto buttons = [](Arrow arrow) {
    return [arrow](int index) { return art::button(arrow, index); };
  };
  const struct {
    const char* name;
    std::function<Picture(int index)> picture;
    int count;
    std::uint32_t checksum;
  } cases[] = {{"vertical thumb", thumbs(Axis::vertical), 18, 1671884161},
               {"horizontal thumb", thumbs(Axis::horizontal), 18, 810803759},
               {"up", buttons(Arrow::up), 12, 3960588473},
               {"down", buttons(Arrow::down), 12, 3401648823},
               {"left", buttons(Arrow::left), 12, 4131172503},
               {"right", buttons(Arrow::right), 12, 2601227279}};
  for (const auto& c : cases) {
    std::uint32_t checksum = 2166136261;
    for (int i = 1; i <= c.count; ++i)
      for (const std::byte byte : c.picture(i)->fileBytes())
        checksum = (checksum ^ std::to_integer<std::uint32_t>(byte)) * 16777619;
    EXPECT_EQ(checksum, c.checksum) << c.name;
  }
}

}  // namespace
}  // namespace norvane
