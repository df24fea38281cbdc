#include "WidgetTest.h"

#include <QDrag>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QToolTip>

#include <nvlist/objects/QI.h>
#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtWindow.h>

namespace norvane {
namespace {

class CutTexts : public WidgetTest {
 protected:
  ~CutTexts() override { QToolTip::hideText(); }

  /// The tip of a row without its markup.
  std::string tipAt(int index) {
    const QPoint at = row(index, 50);
    // A hidden tip keeps its text for a while.
    QToolTip::showText(widget->mapToGlobal(at), "none", widget);
    QHelpEvent help(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &help);
    return QToolTip::text()
        .remove("none")
        .remove("<p style='white-space:pre-wrap'>")
        .remove("</p>")
        .toStdString();
  }
};

TEST_F(CutTexts, AreShownInATip) {
  widget->resize(100, 100);
  const std::string longText = "A text with <b>& more than fits into a row";
  for (const std::string& text : {std::string("short"), longText, longText + "|right=9",
                                  std::string("left column|right=right column"), std::string("")})
    add(text);
  const std::string whole = "A text with &lt;b&gt; more than fits into a row";
  const std::string tips[] = {"", whole, whole + "\t9", "left column\tright column", "", ""};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(tipAt(i), tips[i]) << "row " << i << " of five";
  widget->resize(600, 100);
  EXPECT_EQ(tipAt(1) + tipAt(3), "");
  widget->resize(100, 100);

  widget->setShowsCutTexts(false);
  EXPECT_EQ(tipAt(1), "");
  widget->setShowsCutTexts(true);
  widget->setToolTip("the host's");
  EXPECT_EQ(tipAt(1), "the host's");
  widget->setToolTip({});
  QtDesktop desktop;
  QI hosts;
  hosts.Create(QtWindow::of(form), QtWindow::of(*widget), "QI's", 5000, 300);
  EXPECT_EQ(tipAt(1), "");
}

class Dropping : public WidgetTest {
 protected:
  Dropping() {
    for (const char* text : {"one", "two", "three"}) add(text);
  }
  bool send(QDropEvent&& event) {
    event.ignore();
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
  }
  /// The rows of pixels in which the mark is.
  std::string mark() {
    const QImage image = widget->grab().toImage();
    std::string result;
    for (int y = 0; y < image.height() - 1; ++y)
      if (image.pixelColor(190, y) == Qt::black) result += std::to_string(y) + " ";
    return result;
  }

  NvListDrop* drop = new NvListDrop(*widget);
};

TEST_F(Dropping, TakesFilesAndTexts) {
  std::string dropped;
  QObject::connect(drop, &NvListDrop::dropped, widget, [&](const QMimeData* data, int index) {
    dropped += data->text().toStdString() + " at " + std::to_string(index) + " ";
  });
  QMimeData text, colour;
  text.setText("text");
  colour.setColorData(QColor(Qt::red));
  const auto actions = Qt::CopyAction | Qt::MoveAction;
  const QPoint second(50, 24);
  EXPECT_FALSE(send(QDragEnterEvent(second, actions, &colour, Qt::LeftButton, {})));
  EXPECT_TRUE(send(QDragEnterEvent(second, actions, &text, Qt::LeftButton, {})));
  EXPECT_EQ(mark(), "19 20 ");
  QDragLeaveEvent leave;
  QCoreApplication::sendEvent(widget, &leave);
  EXPECT_EQ(mark(), "");
  for (const QPoint& point : {second, QPoint(50, 90), QPoint(50, 1)}) {
    EXPECT_TRUE(send(QDragEnterEvent(point, actions, &text, Qt::LeftButton, {})));
    EXPECT_TRUE(send(QDragMoveEvent(point, actions, &text, Qt::LeftButton, {})));
    EXPECT_TRUE(send(QDropEvent(point, actions, &text, Qt::LeftButton, {})));
  }
  EXPECT_EQ(dropped, "text at 1 text at 3 text at 0 ");
  EXPECT_EQ(mark(), "");
}

TEST_F(Dropping, ScrollsAtTheEdges) {
  fill(40);
  QMimeData text;
  text.setText("text");
  const auto hold = [&](int y) {
    send(QDragMoveEvent({50, y}, Qt::CopyAction, &text, Qt::LeftButton, {}));
  };
  const int last = widget->count() - list().VisibleItems();
  send(QDragEnterEvent({50, 100}, Qt::CopyAction, &text, Qt::LeftButton, {}));
  hold(195);
  EXPECT_TRUE(QTest::qWaitFor([&] { return list().TopIndex() == last; }, 20'000));
  hold(3);
  EXPECT_TRUE(QTest::qWaitFor([&] { return list().TopIndex() == last - 2; }, 20'000));
  hold(100);
  const int top = list().TopIndex();
  QTest::qWait(200);
  EXPECT_EQ(list().TopIndex(), top);
  hold(3);
  QDragLeaveEvent leave;
  QCoreApplication::sendEvent(widget, &leave);
  QTest::qWait(200);
  EXPECT_EQ(list().TopIndex(), top);
}

TEST_F(Dropping, DragsTheSelectedRowsOut) {
  list().MultiSelect(true);
  drop->setDragsRows(true);
  list().userSelects(1, 2, 2);
  click(1);
  EXPECT_EQ(state(), "1 (1)") << "a mere click";

  list().userSelects(1, 2, 2);
  press(row(1));
  EXPECT_EQ(state(), "2 (1 2)");
  QString dragged;
  // The drag deletes itself later.
  const auto look = [&] {
    if (const auto* const data = widget->findChild<QDrag*>()) dragged = data->mimeData()->text();
  };
  QTimer::singleShot(0, widget, [&] {
    look();
    QDrag::cancel();
  });
  drag(row(3));
  if (dragged.isEmpty()) look();
  EXPECT_EQ(dragged, "two\nthree");
  EXPECT_FALSE(widget->place().mouse().pressed());
}

}  // namespace
}  // namespace norvane
