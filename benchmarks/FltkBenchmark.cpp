#include <FL/Fl.H>
#include <FL/Fl_Browser.H>

#include <cstdlib>
#include <cstring>

#include "Measure.h"
#include "Subjects.h"

namespace {

constexpr int count = 1'000'000;

std::unique_ptr<Fl_Browser> makeBrowser() {
  // Outside any window.
  Fl_Group::current(nullptr);
  return std::make_unique<Fl_Browser>(0, 0, 400, 300);
}

std::unique_ptr<Fl_Browser> filledBrowser(int items) {
  auto browser = makeBrowser();
  for (const std::string& text : texts(items)) browser->add(text.c_str());
  return browser;
}

}  // namespace

/// FLTK measures its font for every added line, so it needs a display.
void addFltkBenchmarks() {
  if (!std::getenv("DISPLAY")) return;
  addFresh(
      "Add/1000000", subject::fltk, count,
      [] {
        texts(count);
        return makeBrowser();
      },
      [](auto& browser) {
        for (const std::string& text : texts(count)) browser->add(text.c_str());
      });
  addFresh(
      "Destroy/1000000", subject::fltk, count, [] { return filledBrowser(count); },
      [](auto& browser) { browser.reset(); });
  addFresh(
      "InsertFrontShown/100000", subject::fltk, manyItems,
      [] {
        texts(manyItems);
        return makeBrowser();
      },
      [](auto& browser) {
        for (const std::string& text : texts(manyItems)) browser->insert(1, text.c_str());
      });
  addFresh(
      "RemoveFrontShown/100000", subject::fltk, manyItems, [] { return filledBrowser(manyItems); },
      [](auto& browser) {
        for (int i = 0; i < manyItems; ++i) browser->remove(1);
      });
  // Its lines are linked, and a search follows the links.
  addShared(
      "IsInList exact/1000000", subject::fltk, true, [] { return filledBrowser(count); },
      [](auto& browser) {
        static const std::string last = textOf(count - 1);
        int found = 0;
        for (int line = 1; line <= browser->size() && found == 0; ++line)
          if (last == browser->text(line)) found = line;
        benchmark::DoNotOptimize(found);
      });
}
