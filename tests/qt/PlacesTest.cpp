#include <gtest/gtest.h>

#include <QAccessible>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QToolTip>

#include <nvlist/platform/qt/NvListDrop.h>
#include <nvlist/platform/qt/NvListKeys.h>

namespace norvane {
namespace {

/// Everything that has a place in the widget agrees about it, in both layouts: the parameter is
/// whether the layout is mirrored.
class PlacesTest : public testing::TestWithParam<bool> {
 protected:
  PlacesTest() {
    widget.setMirrorsLayout(true);
    if (GetParam()) widget.setLayoutDirection(Qt::RightToLeft);
    widget.resize(200, 130);
    list.MinHeight(20);
    list.Style(cCheckBoxes);
    list.AllowEdit(true);
    for (int i = 0; i < 20; ++i)
      list.ItemsAdd({.aText = i == 1 ? std::string(60, 'w') : "row", .aAllowEdit = true});
    widget.show();
    widget.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&widget));
  }
  ~PlacesTest() override { QToolTip::hideText(); }

  /// An area of the layout from left to right, in that of the test.
  QRect shown(const QRect& area) const {
    return GetParam()
               ? QRect(widget.width() - area.right() - 1, area.y(), area.width(), area.height())
               : area;
  }
  QRect accessible(int child) {
    const QRect onScreen = QAccessible::queryAccessibleInterface(&widget)->child(child)->rect();
    return {widget.mapFromGlobal(onScreen.topLeft()), onScreen.size()};
  }

  NvListWidget widget;
  nvList& list = widget.list();
};

TEST_P(PlacesTest, rowsAndBars) {
  constexpr int bar = 20;
  EXPECT_EQ(accessible(bar), shown({182, 1, 17, 128}));
  list.TopIndex(3);
  for (const int row : {3, 5, 8}) {
    SCOPED_TRACE(row);
    const QRect rect = widget.itemRect(row);
    EXPECT_EQ(rect, shown({1, 3 + 20 * (row - 3), 181, 20}));
    EXPECT_EQ(accessible(row), rect);
    for (const int x : {rect.left() + 30, rect.center().x(), rect.right() - 30}) {
      EXPECT_EQ(widget.indexAt({x, rect.center().y()}), row);
      list.ListIndex(-1);
      QTest::mouseClick(&widget, Qt::LeftButton, {}, {x, rect.center().y()});
      EXPECT_EQ(list.ListIndex(), row);
    }
    EXPECT_FALSE(list.ItemChecked(row));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, shown({5, rect.center().y(), 1, 1}).topLeft());
    EXPECT_TRUE(list.ItemChecked(row));
  }
}

TEST_P(PlacesTest, theEditBoxFollows) {
  const QLineEdit& edit = *widget.editBox();
  const auto press = [&](int row) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.itemRect(row).center());
  };
  press(0);
  list.SetEdit(0);
  const QRect plain = shown(edit.geometry());
  EXPECT_LT(plain.left(), 40);
  EXPECT_EQ(plain.right(), 200 - 3);
  widget.resize(260, 130);
  EXPECT_EQ(shown(edit.geometry()), plain);
  widget.setMirrorsLayout(false);
  EXPECT_EQ(edit.geometry(), plain);
  widget.setMirrorsLayout(true);
  EXPECT_EQ(shown(edit.geometry()), plain);
  EXPECT_EQ(edit.alignment().testFlag(Qt::AlignAbsolute), GetParam());
  list.closeEdit();

  new NvListKeys(widget);
  press(2);
  QTest::keyClick(&widget, Qt::Key_F2);
  EXPECT_TRUE(widget.itemRect(2).contains(edit.geometry()));
  EXPECT_EQ(shown(edit.geometry()).left(), plain.left() - 2);
  // The widget ends with the box open.
}

TEST_P(PlacesTest, tipsOfCutTextsAndTheMarkOfADrop) {
  const auto tipAt = [&](int row) {
    const QPoint at = widget.itemRect(row).center();
    QToolTip::showText(widget.mapToGlobal(at), "none", &widget);
    QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
    QCoreApplication::sendEvent(&widget, &help);
    return QToolTip::text();
  };
  EXPECT_TRUE(tipAt(1).contains("wwww"));
  EXPECT_FALSE(tipAt(0).contains("row"));

  new NvListDrop(widget);
  const QWidget& mark = *widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).last();
  QMimeData text;
  text.setText("text");
  QDragEnterEvent enter(widget.itemRect(2).center(), Qt::CopyAction, &text, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&widget, &enter);
  EXPECT_EQ(mark.geometry(), QRect(widget.itemRect(2).topLeft(), QSize(181, 2)));
}

INSTANTIATE_TEST_SUITE_P(Layouts, PlacesTest, testing::Bool(),
                         [](const auto& layout) { return layout.param ? "mirrored" : "plain"; });

}  // namespace
}  // namespace norvane
