// Lists on two threads at once, each with services of its own. The program is small so that it can
// be built with the thread sanitizer (scripts/test-threads).

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include <nvlist/objects/Error.h>
#include <nvlist/objects/SpEv.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "../attacks/HostileHost.h"

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

/// Uses all that lists share: art, texts and case tables that are created once, services, the
/// reporter. Returns every picture of the lists.
std::string life(const std::string& name) {
  attacks::HostileLife life(0);
  HeadlessApplication application;
  application.program.EXEName = name;
  std::string pictures;
  for (int round = 0; round < rounds; ++round) {
    HeadlessList headless(60, 60);
    nvList& list = headless.list();
    list.addSink(life.host);
    list.ItemsAdd("Ärger");
    EXPECT_EQ(list.IsInList("ÄRGER", cFindText), 0);
    list.ItemsClear();
    SpEv().MouseButtonPressed();
    attacks::Hand hand = attacks::handOn(headless.container(), list);
    life.run(
        attacks::lifeOf(list, hand, [] {}), [] {}, [&] { pictures += headless.face(); });
    list.ItemsAdd("y", "no number");
    EXPECT_NE(application.boxes.back().text.find("Project: " + name + "\r\n"), std::string::npos);
  }
  EXPECT_GT(life.out.calls, 50 * rounds);
  return pictures;
}

TEST(Threads, ListsOfTwoThreadsDoNotTouchEachOther) {
  std::string one, other;
  together([&] { one = life("one"); }, [&] { other = life("other"); });
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
