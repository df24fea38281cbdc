// Lists on two threads at once, each with services of its own. The program is small so that it can
// be built with the thread sanitizer (scripts/test-threads).

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include <nvlist/core/storedProperties.h>
#include <nvlist/objects/Error.h>
#include <nvlist/objects/SpEv.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../files/MemoryFiles.h"

namespace norvane {
namespace {

constexpr int rounds = 20;

/// Runs both at the same time, from a common start.
void together(const std::function<void()>& one, const std::function<void()>& other) {
  std::atomic<int> ready = 0;
  const auto run = [&](const std::function<void()>& body) {
    ++ready;
    while (ready < 2) std::this_thread::yield();
    body();
  };
  std::thread thread([&] { run(one); });
  run(other);
  thread.join();
}

class Counting final : public __nvList {
 public:
  int heard = 0;
  void Scroll() override { ++heard; }
  void ErrorWrongIndex(Variant&) override { ++heard; }
};

/// Uses what lists share: art, texts and case tables that are created once, services, the reporter.
/// Returns the last picture of the list.
std::string life(const std::string& name) {
  HeadlessApplication application;
  application.program.EXEName = name;
  MemoryFiles files;
  std::string picture;
  for (int round = 0; round < rounds; ++round) {
    HeadlessList headless(120, 80);
    nvList& list = headless.list();
    Counting host;
    list.addSink(host);
    for (const cListStyle style : {cDefault, cCheckBoxes, cIcons, cCheckBoxesIcons}) {
      list.Style(style);
      list.ColorStyle(static_cast<cColorStyle>(round % 3));
      for (const char* text : {"Ärger", "öl", "def", "", "zebra"}) list.ItemsAdd(name + text);
    }
    EXPECT_GE(list.IsInList("*ÄRGER", cFindText), 0);
    list.Sort(cAscending);
    list.MultiSelect(true);
    headless.container().press(20, 30);
    list.ListIndex(99);
    list.TopIndex(3);
    EXPECT_GT(host.heard, 0);
    list.ListSave("list", true);
    list.ListInput("list", true);
    EXPECT_EQ(list.ItemsCount(), 20);
    PropertyBag bag;
    list.UserControl_WriteProperties(bag);
    picture = headless.face();
    list.UserControl_ReadProperties(bag);
    list.ItemsAdd("x"), list.ItemsAdd("y", "no number");
    list.ItemsSelectedRemove();
    SpEv().MouseButtonPressed();
    const auto& boxes = application.boxes;
    EXPECT_EQ(boxes.size(), static_cast<std::size_t>(round + 1));
    EXPECT_NE(boxes.back().text.find("Project: " + name + "\r\n"), std::string::npos);
  }
  return picture;
}

TEST(Threads, ListsOfTwoThreadsDoNotTouchEachOther) {
  std::string one, other;
  together([&] { one = life("program"); }, [&] { other = life("program"); });
  EXPECT_EQ(one, other);
}

TEST(Threads, SilentErrorIsOneForAll) {
  Error error;
  together(
      [] {
        for (int i = 0; i < 1000; ++i) Error().SilentError(i % 2 == 0);
        Error().SilentError(true);
      },
      [] {
        HeadlessApplication application;
        HeadlessList headless(50, 50);
        for (int i = 0; i < 1000; ++i) headless.list().ItemsAdd("x", "no number");
      });
  EXPECT_TRUE(error.SilentError().isTrue());
  error.SilentError(false);
}

}  // namespace
}  // namespace norvane
