#include <QFontMetricsF>
#include <string>
#include <vector>

#include <nvlist/platform/qt/drawing/QtSurface.h>

#include "Measure.h"
#include "Subjects.h"

namespace {

constexpr int count = 100'000;

struct Script {
  const char* name;
  const char* before;
  const char* after;
};

constexpr Script scripts[] = {
    {"ASCII", "item ", " of list"},           {"German", "Größe ", " für Übung"},
    {"Greek", "μέγεθος ", " λίστα"},          {"Cyrillic", "размер ", " список"},
    {"Japanese", "項目の", "リストの大きさ"}, {"Arabic", "حجم ", " قائمة"}};

std::vector<std::string> textsIn(const Script& script) {
  std::vector<std::string> made;
  for (int i = 0; i < count; ++i) made.push_back(script.before + std::to_string(i) + script.after);
  return made;
}

void addMeasuringOf(const char* work, const char* who, const Script& script) {
  addShared(
      work, who, true, [script] { return textsIn(script); },
      [](const std::vector<std::string>& all) {
        static norvane::QtSurface surface;
        float widest = 0;
        for (const std::string& text : all) widest = std::max(widest, surface.TextWidth(text));
        benchmark::DoNotOptimize(widest);
      });
}

}  // namespace

/// As the floor, the same number of texts in ASCII.
void addWidthBenchmarks() {
  for (const Script& script : scripts) {
    const std::string work = std::string("TextWidth ") + script.name + "/100000";
    addMeasuringOf(work.c_str(), subject::nvList, script);
    addMeasuringOf(work.c_str(), subject::floor, scripts[0]);
    addShared(
        work, subject::listWidget, true,
        [script] {
          std::vector<QString> made;
          for (const std::string& text : textsIn(script))
            made.push_back(QString::fromStdString(text));
          return made;
        },
        [](const std::vector<QString>& all) {
          const QFontMetricsF metrics{QFont()};
          double widest = 0;
          for (const QString& text : all)
            widest = std::max(widest, metrics.horizontalAdvance(text));
          benchmark::DoNotOptimize(widest);
        });
  }
}
