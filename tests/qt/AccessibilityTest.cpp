#include <nvlist/platform/qt/accessibility/AccessibleList.h>
#include <nvlist/platform/qt/accessibility/AccessibleWatch.h>

#include <QAccessible>
#include <map>

#include "WidgetScript.h"

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

class AccessibilityTest : public WidgetScript {
 protected:
  AccessibilityTest() {
    list().Style(cCheckBoxes);
    for (int i = 0; i < 20; ++i)
      list().ItemsAdd({.aText = "&row|right=" + std::to_string(i), .aEnabled = i != 2});
    list().ListIndex(0);
    hearEvents();
    ear = new Ear(*widget);
    settle();
  }

  QAccessibleInterface& top() { return *QAccessible::queryAccessibleInterface(widget); }
  QAccessibleInterface& child(int index) { return *top().child(index); }
  std::string name(int index) { return child(index).text(QAccessible::Name).toStdString(); }
  /// The name and the states of a row.
  std::string described(int index) {
    const QAccessible::State state = child(index).state();
    const std::pair<bool, const char*> states[] = {
        {state.focused, " focused"},     {state.selected, " selected"},
        {state.checkable, " checkable"}, {state.checked, " checked"},
        {state.disabled, " disabled"},   {state.offscreen, " offscreen"}};
    std::string result = name(index);
    for (const auto& [is, word] : states) result += is ? word : "";
    return result;
  }
  static void act(QAccessibleInterface& on, const QString& action) {
    on.actionInterface()->doAction(action);
  }
  /// The events since the last call. Waits for those that are expected.
  std::string settle(const std::string& expected = "") {
    // A busy machine paints late.
    if (!expected.empty())
      static_cast<void>(QTest::qWaitFor([&] { return ear->events == expected; }));
    QTest::qWait(30);
    return std::exchange(ear->events, {});
  }

  Ear* ear = nullptr;
};

TEST_F(AccessibilityTest, DescribesRowsBarAndEditBox) {
  EXPECT_EQ(top().role(), QAccessible::List);
  ASSERT_EQ(top().childCount(), 21);
  list().ItemChecked(0, true);
  EXPECT_EQ(described(0), "row, 0 focused selected checkable checked");
  EXPECT_EQ(described(2), "row, 2 checkable disabled");
  EXPECT_EQ(described(15), "row, 15 checkable offscreen");
  EXPECT_EQ(top().focusChild(), &child(0));
  EXPECT_EQ(top().tableInterface()->rowCount(), 20);
  EXPECT_EQ(child(3).tableCellInterface()->rowIndex(), 3);

  list().AllowEdit(true);
  list().ItemAllowEdit(0, true);
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
  list().closeEdit();
  child(0).setText(QAccessible::Name, "new");
  child(1).setText(QAccessible::Name, "not editable");
  EXPECT_EQ(name(0) + " " + name(1), "new row, 1");
}

TEST_F(AccessibilityTest, Acts) {
  using Action = QAccessibleActionInterface;
  EXPECT_EQ(child(2).actionInterface()->actionNames(), QStringList());
  act(child(2), Action::pressAction());
  EXPECT_EQ(list().ListIndex(), 0);
  act(child(4), Action::pressAction());
  EXPECT_EQ(list().ListIndex(), 4);
  EXPECT_EQ(heard(), "Click");
  act(child(5), Action::toggleAction());
  EXPECT_EQ(list().ItemChecked(5), true);
  refusesChecks = true;
  act(child(5), Action::toggleAction());
  EXPECT_EQ(list().ItemChecked(5), true);
  list().Style(cDefault);
  EXPECT_FALSE(child(5).actionInterface()->actionNames().contains(Action::toggleAction()));

  QAccessibleTableInterface& table = *top().tableInterface();
  EXPECT_TRUE(table.selectRow(1));
  list().MultiSelect(true);
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_TRUE(table.selectRow(3));
  EXPECT_FALSE(table.selectRow(2) || table.selectRow(-1) || table.selectRow(20));
  EXPECT_EQ(table.selectedRows(), (QList<int>{1, 3}));
  EXPECT_TRUE(table.unselectRow(1));
  EXPECT_EQ(table.selectedCells(), (QList<QAccessibleInterface*>{&child(3)}));

  QAccessibleValueInterface& bar = *child(20).valueInterface();
  bar.setCurrentValue(5);
  EXPECT_EQ(list().TopIndex(), 5);
  bar.setCurrentValue(500);
  EXPECT_EQ(bar.currentValue(), list().verticalBar().Max());

  list().Style(cCheckBoxes);
  onEvent = [&](const std::string&) { delete widget; };
  act(child(1), Action::toggleAction());
  EXPECT_FALSE(widget);
}

TEST_F(AccessibilityTest, ReportsChanges) {
  const std::pair<const char*, const char*> changes[] = {
      {"key Down", "Remove(0) State(0) Add(1) State(1) Focus(1) "},
      {"check 1 1", "State(1) "},
      {"setText 3 x; setText 18 out of view", "Name(3) "},
      {"disable 3; check 3 1", "State(3) State(3) "},
      {"scroll 4", "Value "},
      {"remove 19", "Rows "},
      {"scroll 4", ""}};
  for (const auto& [change, events] : changes) {
    SCOPED_TRACE(change);
    run(change);
    EXPECT_EQ(settle(events), events);
  }
}

TEST_F(AccessibilityTest, AMillionRowsCostNothingUntilAskedFor) {
  list().AutoRedraw(false);
  list().AutoCheckScroll(false);
  for (int i = 0; i < 20'000; ++i) list().ItemsAdd("more");
  list().AutoCheckScroll(true);
  list().AutoRedraw(true);
  settle();
  const QAccessible::Id first = QAccessible::uniqueId(&child(0));
  for (int i = 1; i < AccessibleList::mostRows; ++i) child(i);
  EXPECT_TRUE(QAccessible::accessibleInterface(first));
  child(15'000);
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
