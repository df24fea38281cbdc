// The life of a list whose host does something bad in each place where it is called.

#include <gtest/gtest.h>

#include <memory>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../files/MemoryFiles.h"
#include "Allocations.h"
#include "HostileHost.h"

namespace norvane::attacks {
namespace {

struct Outcome {
  long calls = 0;
  const char* fault = nullptr;
};

/// One life, with the trouble in the call-out of that number.
Outcome outcomeOf(long at, const NamedTrouble& trouble, bool silent) {
  Error().SilentError(silent);
  CallOut out{0, at};
  HostileProgram program(out);
  MemoryFiles files;
  for (auto& [name, bytes] : filesOfALife()) files.files[name] = bytes;
  Outcome outcome;
  {
    HeadlessList headless(60, 60);
    nvList& list = headless.list();
    HeadlessContainer& form = headless.container();
    HostileHost host(out);
    list.addSink(host);
    form.onPropertyChanged = [&](std::string_view) { out(); };
    Hand hand = handOn(form, list);
    const Step* current = nullptr;
    int depth = 0;
    out.trouble = [&] {
      if (std::string_view(trouble.name) == "the same again") {
        if (++depth == 1) current->run();
        --depth;
      } else if (std::string_view(trouble.name) == "unregister") {
        list.removeSink(host);
      } else if (std::string_view(trouble.name) == "nested loop") {
        for (int i = 0; i < 3; ++i) form.post([&] { list.ItemsRemove(0); });
        while (form.waiting() > 0) form.DoEvents();
      } else {
        trouble.run(list);
      }
    };
    for (const Step& step : lifeOf(list, hand, [&] { out(); })) {
      current = &step;
      // A message waits in each loop that yields.
      form.post([&] { out(); });
      try {
        step.run();
      } catch (...) {
        // Only the reporter's failures come out.
      }
      if (Trap::anyRuns()) outcome.fault = "a procedure has not ended";
    }
    outcome.calls = out.calls;
    out.at = 0;
    list.removeSink(host);
    while (form.waiting() > 0) form.DoEvents();
    list.UserControl_ReadProperties(PropertyBag());
    list.ItemsAdd("end");
    if (list.ItemsCount() != 1 || list.ItemText(0) != "end")
      outcome.fault = "the list is of no use";
    if (files.open != 0) outcome.fault = "a file is still open";
  }
  Error().SilentError(false);
  return outcome;
}

TEST(HostileHostTest, IsSurvivedWhereverItIsCalled) {
  const long stride = strideOr(17);
  std::vector<NamedTrouble> troubles = troublesForAList();
  for (const char* name : {"the same again", "unregister", "nested loop"})
    troubles.push_back({name, [](nvList&) {}});
  outcomeOf(0, troubles[0], false);
  const Outcome whole = outcomeOf(0, troubles[0], false);
  ASSERT_GT(whole.calls, 100);
  RecordProperty("calls", std::to_string(whole.calls));
  for (const NamedTrouble& trouble : troubles) {
    for (long at = 1; at <= whole.calls; at += stride) {
      for (const bool silent : {false, true}) {
        const long blocks = allocations::blocks();
        const Outcome outcome = outcomeOf(at, trouble, silent);
        EXPECT_EQ(allocations::blocks(), blocks) << "leak: " << trouble.name << " at " << at;
        EXPECT_EQ(outcome.fault, nullptr) << outcome.fault << ": " << trouble.name << " at " << at;
      }
    }
  }
}

}  // namespace
}  // namespace norvane::attacks
