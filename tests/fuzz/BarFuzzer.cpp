// Does random things to a scroll bar that stands alone on a form.

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessContainer.h>
#include <nvlist/scroll/nvHScroll.h>
#include <nvlist/scroll/nvVScroll.h>
#include <nvlist/values/Failure.h>

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
    switch (input_.ConsumeIntegralInRange(0, 14)) {
      case 0:
        return bar_.Min(number());
      case 1:
        return bar_.Max(number());
      case 2:
        return bar_.Value(number());
      case 3:
        return bar_.Enabled(input_.ConsumeBool());
      case 4:
        return bar_.ActiveScrolling(input_.ConsumeBool());
      case 5:
        return bar_.ColorStyle(
            static_cast<cScrollColorStyle>(input_.ConsumeIntegralInRange(-1, 4)));
      case 6:
        return bar_.Gradient(input_.ConsumeBool());
      case 7:
        return bar_.Move({0, 0, static_cast<float>(input_.ConsumeIntegralInRange(0, 120)),
                          static_cast<float>(input_.ConsumeIntegralInRange(0, 120))});
      case 8:
        return form_.press(length(), length(), button);
      case 9:
        return form_.moveTo(length(), length(), button);
      case 10:
        return form_.release(length(), length(), button);
      case 11:
        return form_.clock().advance(
            std::chrono::milliseconds(input_.ConsumeIntegralInRange(0, 900)));
      case 12: {
        PropertyBag bag;
        bar_.UserControl_WriteProperties(bag);
        return bar_.UserControl_ReadProperties(bag);
      }
      case 13:
        return bar_.Visible(input_.ConsumeBool());
      default:
        return bar_.About();
    }
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
