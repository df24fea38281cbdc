#include "WidgetTest.h"

#include <QDropEvent>
#include <QMimeData>

#include <nvlist/platform/qt/NvListDrop.h>

namespace norvane {
namespace {

/// A widget that takes drops, with forty rows.
class Dropping : public WidgetTest {
 protected:
  Dropping() {
    fill(40);
    data.setText("text");
    last = widget->count() - list().VisibleItems();
  }
  bool hold(int y) {
    QDragEnterEvent enter({50, y}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDragMoveEvent move({50, y}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(widget, &enter);
    QCoreApplication::sendEvent(widget, &move);
    return enter.isAccepted();
  }
  bool scrollsTo(int top) {
    return QTest::qWaitFor([&] { return list().TopIndex() == top; }, 20'000);
  }
  void expectRest() {
    const int top = list().TopIndex();
    QTest::qWait(200);
    EXPECT_EQ(list().TopIndex(), top);
  }

  NvListDrop* drop = new NvListDrop(*widget);
  QMimeData data;
  int last;
};

TEST_F(Dropping, ScrollsAtTheEdges) {
  hold(195);
  EXPECT_TRUE(scrollsTo(last));
  hold(3);
  EXPECT_TRUE(scrollsTo(last - 2));
  hold(100);
  expectRest();
  hold(3);
  QDragLeaveEvent leave;
  QCoreApplication::sendEvent(widget, &leave);
  expectRest();
}

TEST_F(Dropping, TakesFilesAndTextsAlone) {
  QMimeData colour;
  colour.setColorData(QColor(Qt::red));
  QDragEnterEvent enter({50, 24}, Qt::CopyAction, &colour, Qt::LeftButton, {});
  enter.ignore();
  QCoreApplication::sendEvent(widget, &enter);
  EXPECT_FALSE(enter.isAccepted());
  EXPECT_TRUE(hold(24));
  widget->setEnabled(false);
  EXPECT_FALSE(hold(24));
}

}  // namespace
}  // namespace norvane
