// The life of a list widget whose host does something bad in each place where it is called.

#include "../attacks/HostileHost.h"

#include <QEventLoop>

#include <nvlist/objects/Error.h>

#include "WidgetTest.h"

namespace norvane::attacks {
namespace {

class QtHostileHostTest : public WidgetTest {
 protected:
  Hand hand() {
    const auto point = [](float x, float y) {
      return QPoint(static_cast<int>(x), static_cast<int>(y));
    };
    Hand result;
    result.press = [=, this](float x, float y, std::int16_t shift) {
      press(point(x, y), shift ? Qt::ShiftModifier : Qt::NoModifier);
    };
    result.drag = [=, this](float x, float y) { drag(point(x, y)); };
    result.release = [=, this](float x, float y) { release(point(x, y)); };
    result.doubleClick = [=, this](float x, float y) {
      QTest::mouseDClick(widget, Qt::LeftButton, {}, point(x, y));
    };
    result.turnWheel = [this](std::int16_t delta) { turn({0, delta}); };
    result.key = [this](std::int16_t code) {
      QTest::keyPress(widget, code == 38 ? Qt::Key_Up : code == 40 ? Qt::Key_Down : Qt::Key_A);
    };
    result.finishEdit = [this] { QTest::keyPress(&edit(), Qt::Key_Return); };
    result.wait = [](int) { QCoreApplication::processEvents(); };
    result.resize = [=, this](float x, float y) {
      widget->resize(point(x, y).x(), point(x, y).y());
    };
    return result;
  }

  /// One life, with the trouble in the call-out of that number. Returns how many there were.
  long live(long at, const NamedTrouble& trouble) {
    HostileLife life(at);
    delete widget;
    make();
    widget->resize(60, 60);
    list().MinHeight(0);
    list().addSink(life.host);
    const auto changes =
        QObject::connect(widget, &NvListWidget::propertyChanged, [&] { life.out(); });
    life.out.trouble = [&] { trouble.run(life, list()); };
    Hand user = hand();
    std::vector<Step> steps = lifeOf(list(), user, [&] { life.out(); });
    for (Step& step : steps)
      step.run = [this, run = step.run] {
        if (widget) run();
      };
    life.run(
        steps, [] {}, [&] { EXPECT_FALSE(Trap::anyRuns()) << life.current->name; });
    const long calls = life.out.calls;
    QObject::disconnect(changes);
    if (widget) {
      EXPECT_TRUE(life.serves(list()));
      widget->grab();
    }
    delete widget;
    QCoreApplication::processEvents();
    EXPECT_EQ(life.files.open, 0);
    return calls;
  }
};

TEST_F(QtHostileHostTest, IsSurvivedWhereverItIsCalled) {
  const long stride = strideOr(29);
  std::vector<NamedTrouble> troubles = troublesForAList();
  troubles.push_back({"close", [&](HostileLife&, nvList&) { widget->close(); }});
  troubles.push_back({"end the widget", [&](HostileLife& life, nvList&) {
                        // Finishing an edit moves the focus to the widget, which Qt itself uses
                        // afterwards.
                        if (std::string_view(life.current->name) == "finish")
                          widget->deleteLater();
                        else
                          delete widget;
                      }});
  troubles.push_back({"nested loop", [&](HostileLife&, nvList&) {
                        QEventLoop loop;
                        QTimer::singleShot(0, &loop, [&] {
                          if (widget) list().ItemsClear();
                          loop.quit();
                        });
                        loop.exec();
                      }});
  const long calls = live(0, troubles[0]);
  ASSERT_GT(calls, 100);
  long first = 1;
  for (const NamedTrouble& trouble : troubles) {
    for (const bool silent : {false, true}) {
      Error().SilentError(silent);
      // Other places for each trouble.
      first = first % stride + 1;
      for (long at = first; at <= calls; at += stride) {
        SCOPED_TRACE(std::string(trouble.name) + " at " + std::to_string(at));
        live(at, trouble);
      }
    }
  }
  Error().SilentError(false);
}

}  // namespace
}  // namespace norvane::attacks
