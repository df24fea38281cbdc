#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <algorithm>
#include <memory>
#include <string>

#include "Measure.h"
#include "Subjects.h"

namespace {

/// A full list on the screen, with its vertical bar.
struct ScrolledList {
  explicit ScrolledList(int count) : widget(makeNvList(false)) {
    fill(widget->list(), count);
    widget->list().AutoCheckScroll(true);
    widget->list().AutoRedraw(true);
    widget->show();
    QApplication::processEvents();
  }

  /// The mouse, at a point of the bar.
  void send(QEvent::Type type, QPoint point) {
    const bool isDown = type != QEvent::MouseButtonRelease;
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const QPointF at = point + bar.geometry().topLeft();
    QMouseEvent event(type, at, widget->mapToGlobal(at), button,
                      isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget.get(), &event);
  }

  std::unique_ptr<norvane::NvListWidget> widget;
  norvane::QtPlace& bar = static_cast<norvane::QtPlace&>(*widget->place().places().at(0));
};

/// Scrolls by one row, back and forth, each shown on the screen. A frame that looks the same would
/// not be drawn.
void scrollOnce(ScrolledList& list) {
  norvane::nvList& on = list.widget->list();
  on.TopIndex(1 - on.TopIndex());
  QApplication::processEvents();
}

void addScrollByOneRow(int count) {
  const std::string work = "ScrollRow/" + std::to_string(count);
  const auto prepare = [count] { return std::make_unique<ScrolledList>(count); };
  addShared(work, subject::nvList, false, prepare, [](auto& list) {
    // One press per round; the two buttons alternate.
    static bool isDown = false;
    isDown = !isDown;
    const QPoint button(8, isDown ? list->bar.geometry().height() - 8 : 8);
    list->send(QEvent::MouseButtonPress, button);
    list->send(QEvent::MouseButtonRelease, button);
    QApplication::processEvents();
  });
  addShared(work, subject::floor, false, prepare, [](auto& list) { scrollOnce(*list); });
}

void addDrag(int count) {
  const std::string work = "DragThumb/" + std::to_string(count);
  const auto prepare = [count] { return std::make_unique<ScrolledList>(count); };
  // From end to end and back, one pixel at a time, each with a repaint on the screen.
  constexpr int length = 240;
  addShared(work, subject::nvList, false, prepare, [](auto& list) {
    const auto to = [&](int y) { list->send(QEvent::MouseMove, {8, y}); };
    list->send(QEvent::MouseButtonPress, {8, 20});
    for (int i = 0; i < length; ++i) to(20 + i);
    for (int i = length; i > 0; --i) to(20 + i);
    list->send(QEvent::MouseButtonRelease, {8, 20});
  });
  addShared(work, subject::floor, false, prepare, [](auto& list) {
    for (int i = 0; i < 2 * length; ++i) scrollOnce(*list);
  });
}

/// The first CheckScroll of a list that was filled with AutoCheckScroll off.
void addMeasuring(int count) {
  const std::string work = "CheckItemWidth/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count,
      [count] {
        auto widget = makeNvList(false);
        fill(widget->list(), count);
        return widget;
      },
      [](auto& widget) { widget->list().AutoCheckScroll(true); });
  addFresh(
      work, subject::floor, count, [count] { return &qtTexts(count); },
      [](const std::vector<QString>* all) {
        const QFontMetricsF metrics{QFont()};
        double widest = 0;
        for (const QString& text : *all) widest = std::max(widest, metrics.horizontalAdvance(text));
        benchmark::DoNotOptimize(widest);
      });
}

/// Removing one of many measured items, including the CheckScroll that follows.
void addRemoveMeasured(int count) {
  const std::string work = "RemoveMeasured/" + std::to_string(count);
  addFresh(
      work, subject::nvList, count, [count] { return std::make_unique<ScrolledList>(count); },
      [](auto& list) { list->widget->list().ItemsRemove(0); });
  addFresh(
      work, subject::listWidget, count,
      [count] {
        auto widget = makeListWidget(true);
        fill(*widget, count);
        QApplication::processEvents();
        return widget;
      },
      [](auto& widget) {
        delete widget->takeItem(0);
        benchmark::DoNotOptimize(widget->sizeHintForColumn(0));
      });
}

}  // namespace

void addScrollBenchmarks() {
  addScrollByOneRow(1'000'000);
  addDrag(1'000'000);
  addMeasuring(1'000'000);
  addRemoveMeasured(100'000);
}
