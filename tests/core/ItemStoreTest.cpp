#include <algorithm>
#include <numeric>
#include <random>

#include "../Lists.h"

namespace norvane {
namespace {

/// Random changes of a long store, compared with a vector of the texts.
TEST(ItemStore, EqualsAVectorThroughAllChanges) {
  std::mt19937 random(7);
  const auto below = [&](std::size_t end) {
    return static_cast<std::int32_t>(random() % static_cast<unsigned>(end));
  };
  ItemStore store;
  std::vector<std::string> model{""};
  const auto at = [&](std::int32_t index) { return model.begin() + index; };
  const auto expectSame = [&](std::int32_t index) {
    ASSERT_EQ(store.touch(index).Text(), *at(index)) << index;
  };
  /// The key of each item is its text.
  const auto setBoth = [&](std::int32_t index, const std::string& text) {
    store.setText(index, text);
    store.setKey(index, text);
  };
  /// Short and long enough for each place in memory where a text may stand.
  const auto textOf = [&](int step) {
    const auto length = static_cast<std::size_t>(below(2) * below(300));
    return std::to_string(step % 700) + std::string(length, 'x');
  };
  /// The length of the longest text. Only texts that are not known to be measured are visited.
  const auto widest = [&] {
    int result = 0;
    for (std::int32_t i = 0; i <= store.upperBound();) {
      if (const auto measured = store.measuredFrom(i)) {
        result = std::max<int>(result, measured->widest);
        i = measured->end;
      } else {
        StoredItem& item = store.touch(i++);
        if (item.textWidth == StoredItem::notMeasured)
          item.textWidth = static_cast<std::uint16_t>(item.Text().size());
        result = std::max<int>(result, item.textWidth);
      }
    }
    return static_cast<std::size_t>(result);
  };
  for (int step = 0; step < 8'000; ++step) {
    // Grows to more than a thousand, shrinks to a few, and grows again.
    const bool grows = step % 4'000 < 2'400;
    const int action = below(100);
    const std::int32_t index = below(3) == 0 ? 0 : below(model.size());
    if (action < (grows ? 70 : 20)) {
      const std::string text = textOf(step);
      store.grow();
      setBoth(store.upperBound(), text);
      store.move(store.upperBound(), index);
      model.insert(at(index), text);
    } else if (action < 90 && model.size() > 1) {
      store.remove(index);
      model.erase(at(index));
    } else if (action < 94) {
      *at(index) = textOf(step);
      setBoth(index, *at(index));
    } else if (action < 99) {
      const std::int32_t to = below(model.size());
      store.move(index, to);
      const std::string moved = *at(index);
      model.erase(at(index));
      model.insert(at(to), moved);
    } else if (step % 5 == 0 && model.size() > 1) {
      const std::int32_t end = index + 1 + below(model.size() - static_cast<std::size_t>(index));
      std::vector<std::string> kept;
      for (std::int32_t i = index; i < end; ++i) {
        const bool isSelected = below(2) == 0 && i > 0;
        store.touch(i).Selected(isSelected);
        if (!isSelected) kept.push_back(*at(i));
      }
      const auto removed = static_cast<std::size_t>(end - index) - kept.size();
      EXPECT_EQ(store.removeSelected(index, end), static_cast<std::int32_t>(removed));
      model.erase(at(index), at(end));
      model.insert(at(index), kept.begin(), kept.end());
    } else {
      std::vector<std::int32_t> order(model.size());
      std::iota(order.begin(), order.end(), 0);
      std::ranges::shuffle(order, random);
      store.reorder(order);
      const std::vector<std::string> before = model;
      std::ranges::transform(order, model.begin(), [&](std::int32_t from) {
        return before[static_cast<std::size_t>(from)];
      });
    }
    ASSERT_EQ(store.upperBound() + 1, static_cast<std::int32_t>(model.size())) << step;
    expectSame(below(model.size()));
    if (step % 3 == 0) {
      ASSERT_EQ(widest(), std::ranges::max(model, {}, &std::string::size).size()) << step;
    }
    // The second search builds an index, which any change drops.
    for (int search = 0; step % 20 == 0 && search < 3; ++search) {
      const std::string text = search == 2 ? "none" : *at(below(model.size()));
      const auto expected = std::ranges::find(model, text) - model.begin();
      ASSERT_EQ(store.findText(text), expected) << step;
      ASSERT_EQ(store.findKey(text), expected) << step;
    }
  }
  for (std::int32_t i = 0; i <= store.upperBound(); ++i) expectSame(i);
}

TEST(ItemStore, TheWidestTextIsFoundAfterASweepMergesBlocks) {
  ItemStore store;
  for (int i = 1; i < 600; ++i) store.grow();
  for (int i = 0; i < 600; ++i) store.touch(i).textWidth = static_cast<std::uint16_t>(i);
  // The first sweep leaves a short block. The second removes nothing of it.
  for (const std::int32_t end : {256, 261}) {
    for (std::int32_t i = 10; i < end; ++i) store.touch(i).Selected(true);
    store.removeSelected(0, end);
    EXPECT_EQ(store.measuredFrom(0)->widest, 599) << end;
  }
}

using SelectedItems = ListTest;

TEST_F(SelectedItems, AreRemovedAtOnceWithTheResultOfSingleSteps) {
  /// A form on which a message waits at every yield, if it is busy.
  struct Form : HeadlessContainer {
    using HeadlessContainer::HeadlessContainer;
    bool isBusy = false;
    bool EventsWaiting() override { return isBusy; }
  };
  const auto everySecond = [](int i) { return i % 2 == 0; };
  const auto all = [](int) { return true; };
  const auto wide = [](nvList& on) { on.ScrollBars(vbBoth); };
  const struct {
    const char* text;
    bool (*isSelected)(int);
    void (*prepare)(nvList&);
    int frames = 30;
  } cases[] = {
      {"every second, both bars", everySecond, wide},
      {"all", all, wide, 400},
      {"all, without painting", all, [](nvList& on) { on.AutoRedraw(false); }, 2},
      {"all, without fitting", all, [](nvList& on) { on.AutoCheckScroll(false); }, 400},
      {"behind the view", [](int i) { return i > 30 && i < 290; }, wide},
      {"an item that cannot be painted", everySecond,
       [](nvList& on) { on.ItemForeColorSelect(40, "red"); }},
      {"a row height that fails", everySecond, [](nvList& on) { on.MinHeight(1e30F); }, 400},
      {"the view at the end", everySecond, [](nvList& on) { on.TopIndex(290); }, 400},
  };
  for (const auto& c : cases) {
    const auto remove = [&](bool inSteps) {
      Form form(200, 100);
      nvList on(form);
      on.UserControl_InitProperties();
      on.AutoRedraw(false);
      for (int i = 0; i < 300; ++i) {
        on.ItemsAdd(std::string(static_cast<std::size_t>(i % 37), 'x') + std::to_string(i));
        on.ItemSelected(i, c.isSelected(i));
      }
      on.TopIndex(0);
      on.AutoRedraw(true);
      c.prepare(on);
      reports();
      form.isBusy = inSteps;
      const int before = form.ownSurface().frames();
      on.ItemsSelectedRemove();
      if (!inSteps) {
        EXPECT_LE(form.ownSurface().frames() - before, c.frames) << c.text;
      }
      const ListState& state = on.state();
      std::string result = form.picture() + reports();
      for (const int number :
           {on.ItemsCount(), state.LoopIndex, state.SweepIndex, state.InsertIndex.toInt32(),
            state.MaxItemWidth, state.TopIndex, state.ListIndex, on.horizontalBar().Max()})
        result += ' ' + std::to_string(number);
      for (int i = 0; i < on.ItemsCount(); ++i) result += ' ' + on.ItemText(i);
      return result;
    };
    EXPECT_EQ(remove(false), remove(true)) << c.text;
  }
}

}  // namespace
}  // namespace norvane
