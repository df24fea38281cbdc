#include <nvlist/platform/qt/NvListKeys.h>

#include "WidgetTest.h"

namespace norvane {
namespace {

class NvListKeysTest : public WidgetTest {
 protected:
  NvListKeysTest() {
    list().AllowEdit(true);
    fill(30);
    list().ListIndex(0);
    keys = new NvListKeys(*widget);
  }

  QPointer<NvListKeys> keys;
};

TEST_F(NvListKeysTest, AHandlerMayEndTheWidget) {
  for (const int code : {Qt::Key_Space, Qt::Key_Delete}) {
    delete widget;
    make();
    list().Style(cCheckBoxes);
    add("one");
    list().ListIndex(0);
    QObject::connect(new NvListKeys(*widget), &NvListKeys::deleteRequested, [&] { delete widget; });
    hearEvents();
    onEvent = [&](const std::string& name) {
      if (name == "ItemCheck") delete widget;
    };
    key(code);
    EXPECT_FALSE(widget) << code;
  }
}

TEST_F(NvListKeysTest, EditsOverTheRow) {
  const auto expectBesideTheBar = [&] {
    EXPECT_GT(edit().x(), 1);
    EXPECT_LT(edit().geometry().right(), list().verticalBar().Left() - 1);
  };
  for (const int row : {20, 0}) {
    list().ListIndex(row);
    key(Qt::Key_F2);
    const int top = 3 + 16 * (row - list().TopIndex());
    EXPECT_NEAR(edit().geometry().center().y(), top + 8, 2) << row;
    expectBesideTheBar();
    QTest::keyClick(&edit(), Qt::Key_Escape);
  }
  key(Qt::Key_F2);
  widget->resize(150, 180);
  QCoreApplication::processEvents();
  expectBesideTheBar();
}

TEST_F(NvListKeysTest, LeavesTheListAsItWas) {
  delete keys;
  list().AllowItemMoving(true);
  click(2);
  EXPECT_EQ(list().ItemText(0), "2") << "the list alone moves to the top";
  key(Qt::Key_End);
  EXPECT_EQ(list().ListIndex(), 0);
}

}  // namespace
}  // namespace norvane
