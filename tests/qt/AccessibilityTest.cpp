#include <nvlist/platform/qt/accessibility/AccessibleList.h>
#include <nvlist/platform/qt/accessibility/AccessibleWatch.h>

#include <QAccessible>
#include <map>

#include "WidgetTest.h"

namespace norvane {
namespace {

/// Collects the events as "Type(row)". Qt itself passes none on without a screen reader.
class Ear final : public AccessibleWatch {
 public:
  using AccessibleWatch::AccessibleWatch;
  std::string events;

 private:
  void send(QAccessibleEvent& event) override {
    static const std::map<QAccessible::Event, std::string> names{
        {QAccessible::Focus, "Focus"},        {QAccessible::NameChanged, "Name"},
        {QAccessible::SelectionAdd, "Add"},   {QAccessible::SelectionRemove, "Remove"},
        {QAccessible::StateChanged, "State"}, {QAccessible::TableModelChanged, "Rows"},
        {QAccessible::ValueChanged, "Value"}};
    events += names.at(event.type());
    if (event.child() >= 0) events += "(" + std::to_string(event.child()) + ")";
    events += " ";
    AccessibleWatch::send(event);
  }
};

class AccessibilityTest : public WidgetTest {
 protected:
  AccessibilityTest() {
    run("Style 1; AllowEdit 1; hearEvents");
    for (int i = 0; i < 20; ++i) add("&row|right=" + std::to_string(i));
    run("disable 2; select 0");
  }

  QAccessibleInterface& top() { return *QAccessible::queryAccessibleInterface(widget); }
  QAccessibleInterface& child(int index) { return *top().child(index); }
  /// The name and the states of a row.
  std::string described(int index) {
    const QAccessible::State state = child(index).state();
    const std::pair<bool, const char*> states[] = {
        {state.focused, " focused"},     {state.selected, " selected"},
        {state.checkable, " checkable"}, {state.checked, " checked"},
        {state.disabled, " disabled"},   {state.offscreen, " offscreen"}};
    std::string result = child(index).text(QAccessible::Name).toStdString();
    for (const auto& [is, word] : states) result += is ? word : "";
    return result;
  }
  void act(int index, const QString& action) { child(index).actionInterface()->doAction(action); }
};

TEST_F(AccessibilityTest, DescribesRowsBarAndEditBox) {
  EXPECT_EQ(top().role(), QAccessible::List);
  list().ItemChecked(0, true);
  EXPECT_EQ(described(0), "row, 0 focused selected checkable checked");
  EXPECT_EQ(described(2), "row, 2 checkable disabled");
  EXPECT_EQ(described(15), "row, 15 checkable offscreen");
  EXPECT_EQ(top().focusChild(), &child(0));
  list().SetEdit(0);
  ASSERT_EQ(top().childCount(), 22);
  EXPECT_EQ(child(21).object(), widget->editBox());
  const std::pair<int, QAccessible::Role> parts[] = {
      {3, QAccessible::ListItem}, {20, QAccessible::ScrollBar}, {21, QAccessible::EditableText}};
  for (const auto& [index, role] : parts) {
    SCOPED_TRACE(index);
    EXPECT_EQ(child(index).role(), role);
    EXPECT_EQ(child(index).parent(), &top());
    EXPECT_EQ(top().indexOfChild(&child(index)), index);
    const QPoint inside = child(index).rect().center();
    EXPECT_EQ(top().childAt(inside.x(), inside.y()), &child(index));
  }
}

TEST_F(AccessibilityTest, Acts) {
  using Action = QAccessibleActionInterface;
  EXPECT_EQ(child(2).actionInterface()->actionNames(), QStringList());
  act(2, Action::pressAction());
  act(4, Action::pressAction());
  act(5, Action::toggleAction());
  EXPECT_EQ(run("heard; checked 5; Style 0"), "Click, ItemCheck 5 / yes");
  EXPECT_FALSE(child(5).actionInterface()->actionNames().contains(Action::toggleAction()));
  for (const int row : {2, 3}) child(row).setText(QAccessible::Name, "new");
  EXPECT_EQ(run("text 2; text 3"), "&row|right=2 / new");

  QAccessibleTableInterface& table = *top().tableInterface();
  EXPECT_TRUE(table.selectRow(1));
  list().MultiSelect(true);
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_FALSE(table.selectRow(2) || table.selectRow(-1) || table.selectRow(20));
  EXPECT_EQ(table.selectedRows(), (QList<int>{1, 3}));
  EXPECT_TRUE(table.unselectRow(1));
  EXPECT_EQ(table.selectedCells(), (QList<QAccessibleInterface*>{&child(3)}));

  child(20).valueInterface()->setCurrentValue(500);
  EXPECT_EQ(run("top"), "8");

  run("Style 1; on ItemCheck end");
  act(1, Action::toggleAction());
  EXPECT_FALSE(widget);
}

TEST_F(AccessibilityTest, ReportsChanges) {
  auto* const ear = new Ear(*widget);
  const std::pair<const char*, const char*> changes[] = {
      {"rest", ""},
      {"key Down", "Remove(0) State(0) Add(1) State(1) Focus(1) "},
      {"check 1 1", "State(1) "},
      {"setText 3 x; setText 18 out of view", "Name(3) "},
      {"disable 3; check 3 1", "State(3) State(3) "},
      {"scroll 4", "Value "},
      {"remove 19", "Rows "}};
  for (const auto& change : changes) {
    ear->events.clear();
    run(change.first);
    // A busy machine paints late.
    static_cast<void>(QTest::qWaitFor([&] { return ear->events == change.second; }));
    QTest::qWait(30);
    EXPECT_EQ(ear->events, change.second) << change.first;
  }
}

TEST_F(AccessibilityTest, AMillionRowsCostNothingUntilAskedFor) {
  run("AutoRedraw 0; AutoCheckScroll 0; fill 20000; AutoCheckScroll 1; AutoRedraw 1");
  const QAccessible::Id first = QAccessible::uniqueId(&child(0));
  for (int i = 1; i < AccessibleList::mostRows; ++i) child(i);
  EXPECT_TRUE(QAccessible::accessibleInterface(first));
  child(15'000);
  EXPECT_FALSE(QAccessible::accessibleInterface(first));
  EXPECT_EQ(described(0), "row, 0 focused selected checkable");
  run("clear; rest");
  EXPECT_EQ(top().child(0), nullptr);
}

}  // namespace
}  // namespace norvane
