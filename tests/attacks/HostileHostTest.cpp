// The life of a list whose host does something bad in each place where it is called.

#include "HostileHost.h"

#include <gtest/gtest.h>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "Allocations.h"

namespace norvane::attacks {
namespace {

/// Runs one life, with the trouble in the call-out of that number. Returns the number of call-outs.
long live(long at, const NamedTrouble& trouble) {
  HostileLife life(at);
  HeadlessList headless(60, 60);
  nvList& list = headless.list();
  HeadlessContainer& form = headless.container();
  list.addSink(life.host);
  form.onPropertyChanged = [&](std::string_view) { life.out(); };
  life.out.trouble = [&] {
    if (trouble.run) return trouble.run(life, list);
    for (int i = 0; i < 3; ++i) form.post([&] { list.ItemsRemove(0); });
    while (form.waiting() > 0) form.DoEvents();
  };
  Hand hand = handOn(form, list);
  // A message waits in each loop that yields.
  const auto post = [&] { form.post([&] { life.out(); }); };
  life.run(lifeOf(list, hand, [&] { life.out(); }), post, [&] {
    EXPECT_FALSE(Trap::anyRuns()) << life.current->name;
    EXPECT_FALSE(life.hasLeaked) << life.current->name;
  });
  const long calls = life.out.calls;
  life.out.at = 0;
  while (form.waiting() > 0) form.DoEvents();
  EXPECT_TRUE(life.serves(list));
  return calls;
}

TEST(HostileHostTest, IsSurvivedWhereverItIsCalled) {
  std::vector<NamedTrouble> troubles = troublesForAList();
  troubles.push_back({"nested loop", nullptr});
  // The first life allocates what the library keeps.
  live(0, troubles[0]);
  const long calls = live(0, troubles[0]);
  ASSERT_GT(calls, 100);
  RecordProperty("calls", std::to_string(calls));
  for (const NamedTrouble& trouble : troubles) {
    for (long at = 1; at <= calls; at += strideOr(17)) {
      for (const bool silent : {false, true}) {
        SCOPED_TRACE(std::string(trouble.name) + " at " + std::to_string(at));
        Error().SilentError(silent);
        const long blocks = allocations::blocks();
        live(at, trouble);
        EXPECT_EQ(allocations::blocks(), blocks) << "leak";
      }
    }
  }
  Error().SilentError(false);
}

}  // namespace
}  // namespace norvane::attacks
