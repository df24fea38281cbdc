#include <nvlist/platform/qt/AccessibleList.h>
#include <nvlist/platform/qt/AccessibleWatch.h>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <map>
#include <string>

namespace norvane {
namespace {

/// Collects the events as "Type(row)". Qt itself passes none on without a screen reader.
class Ear final : public AccessibleWatch {
 public:
  using AccessibleWatch::AccessibleWatch;
  std::string heard;

 private:
  void send(QAccessibleEvent& event) override {
    static const std::map<QAccessible::Event, std::string> names{
        {QAccessible::Focus, "Focus"},        {QAccessible::NameChanged, "Name"},
        {QAccessible::SelectionAdd, "Add"},   {QAccessible::SelectionRemove, "Remove"},
        {QAccessible::StateChanged, "State"}, {QAccessible::TableModelChanged, "Rows"},
        {QAccessible::ValueChanged, "Value"}};
    heard += names.at(event.type());
    if (event.child() >= 0) heard += "(" + std::to_string(event.child()) + ")";
    heard += " ";
    AccessibleWatch::send(event);
  }
};

class AccessibilityTest : public testing::Test, public __nvList {
 protected:
  AccessibilityTest() {
    list().MinHeight(16);
    list().Style(cCheckBoxes);
    list().addSink(*this);
    widget->resize(200, 130);
    for (int i = 0; i < 20; ++i)
      list().ItemsAdd({.aText = "&row|right=" + std::to_string(i), .aEnabled = i != 2});
    list().ListIndex(0);
    widget->show();
    widget->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget));
    widget->setFocus();
    ear = new Ear(*widget);
    settle();
  }
  ~AccessibilityTest() override { delete widget; }

  void Click() override { ++clicks; }
  void ItemCheck(std::int32_t&, Boolean& Cancel) override {
    if (endsInCheck) delete widget;
    Cancel = refusesChecks;
  }

  nvList& list() { return widget->list(); }
  QAccessibleInterface& top() { return *QAccessible::queryAccessibleInterface(widget); }
  QAccessibleInterface& row(int index) { return *top().child(index); }
  std::string name(int index) { return row(index).text(QAccessible::Name).toStdString(); }
  static void act(QAccessibleInterface& on, const QString& action) {
    on.actionInterface()->doAction(action);
  }
  /// The events since the last call. Waits for those that are expected.
  std::string settle(const std::string& expected = "") {
    // A busy machine paints late.
    if (!expected.empty())
      static_cast<void>(QTest::qWaitFor([&] { return ear->heard == expected; }));
    QTest::qWait(30);
    return std::exchange(ear->heard, {});
  }

  QPointer<NvListWidget> widget = new NvListWidget;
  Ear* ear = nullptr;
  int clicks = 0;
  bool refusesChecks = false;
  bool endsInCheck = false;
};

TEST_F(AccessibilityTest, describesRowsBarAndEditBox) {
  EXPECT_EQ(top().role(), QAccessible::List);
  ASSERT_EQ(top().childCount(), 21);
  EXPECT_EQ(name(3), "row, 3");
  EXPECT_EQ(top().indexOfChild(&row(3)), 3);
  EXPECT_EQ(row(3).role(), QAccessible::ListItem);
  EXPECT_EQ(row(3).parent(), &top());
  EXPECT_EQ(row(3).tableCellInterface()->rowIndex(), 3);
  EXPECT_EQ(top().tableInterface()->rowCount(), 20);

  list().ItemChecked(0, true);
  const QAccessible::State first = row(0).state();
  EXPECT_TRUE(first.focused && first.selected && first.checkable && first.checked);
  EXPECT_FALSE(first.disabled || first.offscreen);
  EXPECT_TRUE(row(2).state().disabled);
  EXPECT_TRUE(row(15).state().offscreen);
  EXPECT_EQ(top().focusChild(), &row(0));
  EXPECT_EQ(row(1).rect().size(), QSize(181, 16));
  const QPoint inRow = row(1).rect().center();
  EXPECT_EQ(top().childAt(inRow.x(), inRow.y()), &row(1));

  QAccessibleInterface& bar = row(20);
  EXPECT_EQ(bar.role(), QAccessible::ScrollBar);
  EXPECT_EQ(top().childAt(bar.rect().center().x(), bar.rect().center().y()), &bar);
  bar.valueInterface()->setCurrentValue(5);
  EXPECT_EQ(list().TopIndex(), 5);
  bar.valueInterface()->setCurrentValue(500);
  EXPECT_EQ(bar.valueInterface()->currentValue(), list().verticalBar().Max());
  list().TopIndex(0);

  list().AllowEdit(true);
  list().ItemAllowEdit(0, true);
  list().SetEdit(0);
  ASSERT_EQ(top().childCount(), 22);
  EXPECT_EQ(row(21).object(), widget->editBox());
  EXPECT_EQ(top().indexOfChild(&row(21)), 21);
  EXPECT_EQ(row(21).parent(), &top());
  list().closeEdit();
  row(0).setText(QAccessible::Name, "new");
  row(1).setText(QAccessible::Name, "not editable");
  EXPECT_EQ(name(0) + " " + name(1), "new row, 1");
}

TEST_F(AccessibilityTest, acts) {
  using Action = QAccessibleActionInterface;
  EXPECT_EQ(row(2).actionInterface()->actionNames(), QStringList());
  act(row(2), Action::pressAction());
  EXPECT_EQ(list().ListIndex(), 0);
  act(row(4), Action::pressAction());
  EXPECT_EQ(list().ListIndex(), 4);
  EXPECT_EQ(clicks, 1);
  act(row(5), Action::toggleAction());
  EXPECT_EQ(list().ItemChecked(5), true);
  refusesChecks = true;
  act(row(5), Action::toggleAction());
  EXPECT_EQ(list().ItemChecked(5), true);
  list().Style(cDefault);
  EXPECT_FALSE(row(5).actionInterface()->actionNames().contains(Action::toggleAction()));

  QAccessibleTableInterface& table = *top().tableInterface();
  EXPECT_TRUE(table.selectRow(1));
  list().MultiSelect(true);
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_FALSE(table.selectRow(2) || table.selectRow(-1) || table.selectRow(20));
  EXPECT_EQ(table.selectedRows(), (QList<int>{1, 3}));
  EXPECT_TRUE(table.unselectRow(1));
  EXPECT_EQ(table.selectedCells(), (QList<QAccessibleInterface*>{&row(3)}));

  list().Style(cCheckBoxes);
  endsInCheck = true;
  act(row(1), Action::toggleAction());
  EXPECT_FALSE(widget);
}

TEST_F(AccessibilityTest, reportsChanges) {
  const struct {
    const char* name;
    std::function<void()> change;
    const char* events;
  } cases[] = {{"key", [&] { QTest::keyClick(widget, Qt::Key_Down); },
                "Remove(0) State(0) Add(1) State(1) Focus(1) "},
               {"check", [&] { list().ItemChecked(1, true); }, "State(1) "},
               {"text",
                [&] {
                  list().ItemText(3, "x");
                  list().ItemText(18, "out of view");
                },
                "Name(3) "},
               {"disabled", [&] { list().ItemEnabled(3, false); }, "State(3) "},
               {"scroll", [&] { list().TopIndex(4); }, "Value "},
               {"remove", [&] { list().ItemsRemove(19); }, "Rows "},
               {"nothing", [&] { widget->update(); }, ""}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.name);
    test.change();
    EXPECT_EQ(settle(test.events), test.events);
  }
}

TEST_F(AccessibilityTest, aMillionRowsCostNothingUntilAskedFor) {
  list().AutoRedraw(false);
  list().AutoCheckScroll(false);
  for (int i = 0; i < 20'000; ++i) list().ItemsAdd("more");
  list().AutoCheckScroll(true);
  list().AutoRedraw(true);
  settle();
  const QAccessible::Id first = QAccessible::uniqueId(&row(0));
  for (int i = 1; i < AccessibleList::mostRows; ++i) row(i);
  EXPECT_TRUE(QAccessible::accessibleInterface(first));
  row(15'000);
  EXPECT_FALSE(QAccessible::accessibleInterface(first));
  EXPECT_EQ(name(0), "row, 0");
  list().ItemsClear();
  settle();
  EXPECT_EQ(top().childCount(), 0);
  EXPECT_EQ(top().focusChild(), nullptr);
  EXPECT_EQ(top().child(0), nullptr);
}

}  // namespace
}  // namespace norvane
