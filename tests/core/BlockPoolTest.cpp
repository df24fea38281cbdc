#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include <nvlist/core/BlockPool.h>

namespace norvane {
namespace {

struct Held {
  BlockPool::Block block;
  std::size_t units;
  unsigned char mark;

  auto bytes() const { return static_cast<unsigned char*>(block.memory); }
  std::size_t size() const { return units * BlockPool::unit; }
};

/// Random blocks of all sizes, each filled with a mark of its own. The last ones outlive the pool.
TEST(BlockPool, KeepsEachBlockApartUntilItsRelease) {
  std::mt19937 random(3);
  Ref<BlockPool> pool = makeRef<BlockPool>();
  std::vector<Held> held;
  const auto release = [&](std::size_t at) {
    const Held& old = held[at];
    for (std::size_t i = 0; i < old.size(); ++i) ASSERT_EQ(old.bytes()[i], old.mark) << i;
    BlockPool::release(old.block.memory, old.units, old.block.slot);
    held.erase(held.begin() + static_cast<std::ptrdiff_t>(at));
  };
  for (int step = 0; step < 40'000; ++step) {
    // Grows to some thousand blocks and shrinks again.
    if (random() % 100 < (step < 20'000 ? 60U : 45U)) {
      const std::size_t units = 1 + random() % BlockPool::mostUnits;
      const auto mark = static_cast<unsigned char>(random());
      held.push_back({pool->allocate(units), units, mark});
      std::memset(held.back().bytes(), mark, held.back().size());
      ASSERT_EQ(&BlockPool::of(held.back().bytes(), units, held.back().block.slot), pool.get());
    } else if (!held.empty()) {
      release(random() % held.size());
    }
  }
  EXPECT_GT(held.size(), 100U);
  pool = nullptr;
  while (!held.empty()) release(0);
}

}  // namespace
}  // namespace norvane
