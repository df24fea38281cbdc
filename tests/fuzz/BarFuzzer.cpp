// Does random things to a scroll bar that stands alone on a form.

#include <cstdint>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessContainer.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>
#include <nvlist/values/Failure.h>

#include "oneOf.h"

namespace {

using namespace norvane;

/// A bar and its host, some of whose handlers change the bar.
template <class Bar>
class Life : private nvVScrollEvents, private nvHScrollEvents {
 public:
  explicit Life(FuzzedDataProvider& input) : input_(input) {
    Error().SilentError(input.ConsumeBool());
    bar_.UserControl_InitProperties();
    bar_.Visible(true);
  }
  ~Life() { Error().SilentError(false); }

  void run() {
    for (int steps = 0; input_.remaining_bytes() > 0 && steps < 400; ++steps) step();
  }

 private:
  std::int32_t number() {
    constexpr std::int32_t special[] = {2147483647, -2147483647 - 1, 32767, -1, 0, 1000000};
    return input_.ConsumeBool() ? special[input_.ConsumeIntegralInRange(0, 5)]
                                : input_.ConsumeIntegralInRange(-20, 200);
  }
  float length() {
    constexpr float special[] = {0, -1e9F, 1e9F, 3e38F, 0.5F, 17};
    return input_.ConsumeIntegralInRange(0, 3) == 0
               ? special[input_.ConsumeIntegralInRange(0, 5)]
               : static_cast<float>(input_.ConsumeIntegralInRange(-10, 120));
  }

  void step() {
    const auto button = static_cast<std::int16_t>(input_.ConsumeIntegralInRange(1, 3));
    const auto range = [&](int low, int high) { return input_.ConsumeIntegralInRange(low, high); };
    oneOf(
        input_, [&] { bar_.Min(number()); }, [&] { bar_.Max(number()); },
        [&] { bar_.Value(number()); }, [&] { bar_.Enabled(input_.ConsumeBool()); },
        [&] { bar_.ActiveScrolling(input_.ConsumeBool()); },
        [&] { bar_.ColorStyle(static_cast<cScrollColorStyle>(range(-1, 4))); },
        [&] { bar_.Gradient(input_.ConsumeBool()); },
        [&] {
          bar_.Move({0, 0, static_cast<float>(range(0, 120)), static_cast<float>(range(0, 120))});
        },
        [&] { form_.press(length(), length(), button); },
        [&] { form_.moveTo(length(), length(), button); },
        [&] { form_.release(length(), length(), button); },
        [&] { form_.clock().advance(std::chrono::milliseconds(range(0, 900))); },
        [&] {
          PropertyBag bag;
          bar_.UserControl_WriteProperties(bag);
          bar_.UserControl_ReadProperties(bag);
        },
        [&] { bar_.Visible(input_.ConsumeBool()); }, [&] { bar_.About(); });
  }
  void react() {
    if (depth_ > 2 || input_.remaining_bytes() == 0 || input_.ConsumeIntegralInRange(0, 3)) return;
    ++depth_;
    step();
    --depth_;
    if (input_.ConsumeIntegralInRange(0, 15) == 1) throw Failure(5, "host");
  }

  void VScroll1_Change() override { react(); }
  void VScroll1_Scroll() override { react(); }
  void HScroll1_Change() override { react(); }
  void HScroll1_Scroll() override { react(); }

  HeadlessApplication application_;
  FuzzedDataProvider& input_;
  HeadlessContainer form_{120, 120};
  Bar bar_{form_.addChild(), *this};
  int depth_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  if (input.ConsumeBool())
    Life<nvVScroll>(input).run();
  else
    Life<nvHScroll>(input).run();
  return 0;
}
