// The life of a list, again and again, in which each call of the platform and each allocation fails
// in turn: once, and from then on. No failure may reach the caller.

#include <gtest/gtest.h>

#include <optional>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessList.h>
#include <nvlist/values/Failure.h>

#include "Allocations.h"
#include "FailingPlatform.h"
#include "Life.h"

namespace norvane::attacks {
namespace {

/// Which of the calls and allocations of a life fails, counted from 1; 0: none.
struct Plan {
  long call = 0;
  long allocation = 0;
  bool onward = false;
  bool silent = false;
};

struct Outcome {
  long calls = 0;
  long allocations = 0;
  /// A description of the fault that was found, or nullptr.
  const char* fault = nullptr;
  const char* step = "";
};

class Host final : public __nvList {
 public:
  int saveErrors = 0;
  void ErrorListSave() override { ++saveErrors; }
};

/// A list whose platform, files and memory can fail.
class Sweep {
 public:
  explicit Sweep(const Plan& plan) : plan_(plan) {
    Error().SilentError(plan.silent);
    for (auto& [name, bytes] : filesOfALife()) files_.files[name] = bytes;
    calls_.at = plan.call;
    calls_.onward = plan.onward;
    calls_.trouble = [this] { fail(); };
  }
  ~Sweep() { Error().SilentError(false); }

  Outcome run() {
    {
      // A constructor may throw.
      allocations::Watch memory(plan_.allocation, plan_.onward);
      ignoringFailures([&] {
        place_.emplace(form_, calls_);
        list_ = std::make_unique<nvList>(*place_);
      });
      if (list_) live();
      outcome_.allocations = memory.count;
    }
    const long calls = std::exchange(calls_.calls, 0);
    calls_.at = 0;
    if (list_) checkUse();
    if (files_.open != 0) fault("a file is still open");
    if (Trap::anyRuns()) fault("a procedure has not ended");
    // Trouble that is onward also meets the end of the list.
    calls_.calls = calls;
    calls_.at = plan_.call;
    allocations::Watch memory(plan_.onward && plan_.allocation > 0 ? 1 : 0, true);
    list_.reset();
    outcome_.calls = calls_.calls;
    return outcome_;
  }

 private:
  void fail() const {
    if (plan_.call % 3 == 0) throw Failure(57, "Device I/O error");
    if (plan_.call % 3 == 1) throw std::runtime_error("the platform failed");
    throw plan_.call;
  }
  void fault(const char* what) {
    if (!outcome_.fault) outcome_.fault = what;
  }

  /// Whether a statement succeeds. Only a failure of the reporter may come out of it.
  bool succeeds(const std::function<void()>& statement) {
    program_.hasFailedToReport();
    if (ignoringFailures(statement)) return true;
    if (!program_.hasFailedToReport()) fault("a failure reached the caller");
    return false;
  }
  void live() {
    Host host;
    Hand hand;
    std::vector<Step> life;
    {
      const allocations::Pause pause;
      hand = handOn(form_, *list_);
      hand.wait = [this, wait = hand.wait](int time) {
        if (!ignoringFailures([&] { wait(time); })) fault("a tick failed");
      };
      life = lifeOf(*list_, hand, [this] { calls_(); });
      list_->addSink(host);
    }
    succeeds([&] { list_->UserControl_InitProperties(); });
    for (const Step& step : life) {
      const int before = host.saveErrors;
      const bool wasCalled = succeeds(step.run);
      if (std::string_view(step.name).starts_with("save") && wasCalled && host.saveErrors == before)
        checkSaved();
      if (outcome_.fault && !*outcome_.step) outcome_.step = step.name;
    }
    succeeds([&] { list_->removeSink(host); });
  }
  /// A save without an event must have written the whole list.
  void checkSaved() {
    const allocations::Pause pause;
    const auto [calls, at] = std::pair(calls_.calls, std::exchange(calls_.at, 0));
    HeadlessList copy;
    Host host;
    copy.list().ListInput("list", true);
    if (copy.list().ItemsCount() != list_->ItemsCount()) fault("a file was lost without an event");
    calls_.calls = calls;
    calls_.at = at;
  }
  /// After its properties are read and the wheel is turned, which ends a repaint that a failure has
  /// left unfinished, the list must work again.
  void checkUse() {
    list_->UserControl_ReadProperties(PropertyBag());
    list_->ItemsClear();
    list_->ItemsAdd("one");
    list_->ItemsAdd("two");
    std::int16_t rotation = 0, keys = 0;
    float x = 0, y = 0;
    list_->Wheel1_WheelScroll(rotation, keys, x, y);
    if (list_->ItemsCount() != 2 || list_->ItemText(1) != "two") fault("the list is of no use");
    if (form_.ownSurface().image().text().find("\"two\"") == std::string::npos)
      fault("the list paints nothing");
  }

  const Plan plan_;
  CallOut calls_;
  FailingProgram program_{calls_};
  FailingFiles files_{calls_};
  HeadlessContainer form_{60, 60};
  std::optional<FailingContainer> place_;
  std::unique_ptr<nvList> list_;
  Outcome outcome_;
};

class SweepTest : public testing::TestWithParam<std::pair<bool, bool>> {
 protected:
  void sweep(long Plan::*what, long Outcome::*number) {
    const auto [onward, silent] = GetParam();
    Plan plan{0, 0, onward, silent};
    // The first life allocates what the library keeps.
    Sweep(plan).run();
    const Outcome whole = Sweep(plan).run();
    ASSERT_EQ(whole.fault, nullptr);
    ASSERT_GT(whole.*number, 300);
    RecordProperty("calls", std::to_string(whole.*number));
    for (plan.*what = 1; plan.*what <= whole.*number; plan.*what += strideOr(97)) {
      const long blocks = allocations::blocks();
      const Outcome outcome = Sweep(plan).run();
      EXPECT_EQ(allocations::blocks(), blocks) << "leak, number " << plan.*what;
      EXPECT_EQ(outcome.fault, nullptr)
          << outcome.fault << " in " << outcome.step << ", number " << plan.*what;
    }
  }
};

TEST_P(SweepTest, SurvivesEachCallOfThePlatform) { sweep(&Plan::call, &Outcome::calls); }

TEST_P(SweepTest, SurvivesEachAllocation) { sweep(&Plan::allocation, &Outcome::allocations); }

INSTANTIATE_TEST_SUITE_P(Attacks, SweepTest,
                         testing::Values(std::pair(false, false), std::pair(false, true),
                                         std::pair(true, false), std::pair(true, true)),
                         [](const auto& parameter) {
                           return std::string(parameter.param.first ? "Onward" : "Once") +
                                  (parameter.param.second ? "InSilence" : "Reported");
                         });

}  // namespace
}  // namespace norvane::attacks
