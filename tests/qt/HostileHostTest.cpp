// The life of a list widget whose host does something bad in each place where it is called.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/qt/NvListWidget.h>

#include "../attacks/HostileHost.h"
#include "../files/MemoryFiles.h"

namespace norvane::attacks {
namespace {

Hand handOn(QPointer<NvListWidget>& widget) {
  const auto send = [&](QEvent::Type type, float x, float y, Qt::MouseButton button,
                        Qt::MouseButtons buttons, std::int16_t shift) {
    const QPointF place(x, y);
    QMouseEvent event(type, place, widget->mapToGlobal(place), button, buttons,
                      shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
  };
  Hand hand;
  hand.press = [=](float x, float y, std::int16_t shift) {
    send(QEvent::MouseButtonPress, x, y, Qt::LeftButton, Qt::LeftButton, shift);
  };
  hand.drag = [=](float x, float y) {
    send(QEvent::MouseMove, x, y, Qt::NoButton, Qt::LeftButton, 0);
  };
  hand.release = [=](float x, float y) {
    send(QEvent::MouseButtonRelease, x, y, Qt::LeftButton, Qt::NoButton, 0);
  };
  hand.doubleClick = [=](float x, float y) {
    send(QEvent::MouseButtonDblClick, x, y, Qt::LeftButton, Qt::LeftButton, 0);
  };
  hand.turnWheel = [&](std::int16_t delta) {
    const QPointF place(20, 20);
    QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, delta}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
  };
  hand.key = [&](std::int16_t code) {
    const int key = code == 38 ? Qt::Key_Up : code == 40 ? Qt::Key_Down : Qt::Key_A;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
  };
  hand.finishEdit = [&] {
    if (auto* box = widget->findChild<QLineEdit*>()) {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
      QCoreApplication::sendEvent(box, &event);
    }
  };
  hand.wait = [](int) { QCoreApplication::processEvents(); };
  hand.resize = [&](float width, float height) {
    widget->resize(static_cast<int>(width), static_cast<int>(height));
  };
  return hand;
}

/// One life, with the trouble in the call-out of that number. Returns how many there were.
long live(long at, const NamedTrouble& trouble) {
  CallOut out{0, at};
  HostileProgram program(out);
  MemoryFiles files;
  for (auto& [name, bytes] : filesOfALife()) files.files[name] = bytes;
  HostileHost host(out);
  QPointer<NvListWidget> widget = new NvListWidget;
  widget->resize(60, 60);
  widget->show();
  nvList& list = widget->list();
  list.addSink(host);
  const auto changes =
      QObject::connect(widget, &NvListWidget::propertyChanged, widget, [&] { out(); });
  const Step* current = nullptr;
  int depth = 0;
  const std::string_view name = trouble.name;
  out.trouble = [&] {
    if (name == "end the widget") {
      // Finishing an edit moves the focus to the widget, which Qt itself uses afterwards.
      if (std::string_view(current->name) == "finish")
        widget->deleteLater();
      else
        delete widget;
    } else if (name == "close") {
      widget->close();
    } else if (name == "the same again") {
      if (++depth == 1) current->run();
      --depth;
    } else if (name == "unregister") {
      list.removeSink(host);
    } else if (name == "nested loop") {
      QEventLoop loop;
      QTimer::singleShot(0, &loop, [&] {
        if (widget) widget->list().ItemsClear();
        loop.quit();
      });
      loop.exec();
    } else {
      trouble.run(list);
    }
  };
  Hand hand = handOn(widget);
  for (const Step& step : lifeOf(list, hand, [&] { out(); })) {
    if (!widget) break;
    current = &step;
    try {
      step.run();
    } catch (...) {
      // Only failures of the reporter come out.
    }
    EXPECT_FALSE(Trap::anyRuns()) << trouble.name << " in " << step.name << " at " << at;
  }
  out.at = 0;
  if (widget) {
    list.removeSink(host);
    list.UserControl_ReadProperties(PropertyBag());
    list.ItemsAdd("end");
    EXPECT_EQ(list.ItemText(0), "end") << trouble.name << " at " << at;
    QObject::disconnect(changes);
    widget->grab();
  }
  delete widget;
  QCoreApplication::processEvents();
  EXPECT_EQ(files.open, 0) << trouble.name << " at " << at;
  return out.calls;
}

TEST(QtHostileHostTest, isSurvivedWhereverItIsCalled) {
  const long stride = strideOr(29);
  std::vector<NamedTrouble> troubles = troublesForAList();
  for (const char* name :
       {"end the widget", "close", "the same again", "unregister", "nested loop"})
    troubles.push_back({name, [](nvList&) {}});
  const long calls = live(0, troubles[0]);
  ASSERT_GT(calls, 100);
  long first = 1;
  for (const NamedTrouble& trouble : troubles) {
    for (const bool silent : {false, true}) {
      Error().SilentError(silent);
      // Other places for each trouble.
      first = first % stride + 1;
      for (long at = first; at <= calls; at += stride) live(at, trouble);
    }
  }
  Error().SilentError(false);
}

}  // namespace
}  // namespace norvane::attacks
