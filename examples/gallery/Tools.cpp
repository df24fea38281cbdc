#include "Tools.h"

#include <QHBoxLayout>
#include <QToolButton>

using norvane::Boolean;
using norvane::nvList;

namespace gallery {

struct Switch {
  const char* name;
  const char* property;
  const char* hint;
  Boolean (nvList::*read)() const;
  void (nvList::*write)(Boolean);
};

struct Command {
  const char* name;
  const char* hint;
  bool (*isPossible)(nvList&);
  /// The line in the log.
  QString (*call)(nvList&);
  void (*run)(nvList&);
};

namespace {

constexpr int wheelWidth = 124;

constexpr Switch switches[] = {
    {"Edit", "AllowEdit",
     "Press the current row again, or twice, to edit its text.\n"
     "The edit box assumes rows as high as the font, so with MinHeight it misses its row.",
     &nvList::AllowEdit, &nvList::AllowEdit},
    {"Move", "AllowItemMoving",
     "Drag an item to another place.\nA press without a drag takes it to the top.",
     &nvList::AllowItemMoving, &nvList::AllowItemMoving},
    {"Several", "MultiSelect", "Select more items with Ctrl, and ranges with Shift",
     &nvList::MultiSelect, &nvList::MultiSelect},
};

/// Sorting moves the selection with its item but not ListIndex, which is corrected here.
void sort(nvList& list, norvane::cSortMode mode) {
  list.Sort(mode);
  if (list.MultiSelect() || list.ListIndex() < 0) return;
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i)
    if (list.state().Items.at(i).Selected) return list.ListIndex(i);
}

bool hasItems(nvList& list) { return list.ItemsCount() > 0; }
/// ListIndex may be past the end, since removing items does not change it.
bool isUpPossible(nvList& list) {
  return list.ListIndex() > 0 && list.ListIndex() < list.ItemsCount();
}
bool isDownPossible(nvList& list) {
  return list.ListIndex() >= 0 && list.ListIndex() < list.ItemsCount() - 1;
}
QString moving(const char* name, nvList& list) {
  return QString("%1 %2, 1").arg(name).arg(list.ListIndex());
}

const Command commands[] = {
    {"A-Z", "Sort ascending", hasItems, [](nvList&) { return QString("Sort cAscending"); },
     [](nvList& list) { sort(list, norvane::cAscending); }},
    {"Z-A", "Sort descending", hasItems, [](nvList&) { return QString("Sort cDescending"); },
     [](nvList& list) { sort(list, norvane::cDescending); }},
    {"\u25B2", "Move the current item up", isUpPossible,
     [](nvList& list) { return moving("MoveItemUp", list); },
     [](nvList& list) { list.MoveItemUp(list.ListIndex(), 1); }},
    {"\u25BC", "Move the current item down", isDownPossible,
     [](nvList& list) { return moving("MoveItemDown", list); },
     [](nvList& list) { list.MoveItemDown(list.ListIndex(), 1); }},
};

QToolButton* button(const char* name, const char* hint) {
  auto* result = new QToolButton;
  result->setObjectName(name);
  result->setText(name);
  result->setToolTip(hint);
  return result;
}

}  // namespace

Tools::Tools() {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 2);
  row->setSpacing(2);
  for (const Switch& entry : switches) row->addWidget(addSwitch(entry));
  row->addSpacing(8);
  row->addWidget(addWheel());
  row->addStretch(1);
  for (const Command& entry : commands) row->addWidget(addCommand(entry));
}

QWidget* Tools::addSwitch(const Switch& entry) {
  QToolButton* result = button(entry.name, entry.hint);
  result->setCheckable(true);
  connect(result, &QToolButton::clicked, this, [this, &entry](bool on) {
    if (onUsed) onUsed(QString("%1 = %2").arg(entry.property, on ? "True" : "False"));
    (subject_.list().*entry.write)(on);
  });
  refreshers_.emplace_back([this, &entry, result] {
    result->setChecked(static_cast<bool>((subject_.list().*entry.read)()));
  });
  return result;
}

QWidget* Tools::addWheel() {
  const auto make = choice<norvane::cWheelFunction>({{"Wheel scrolls", norvane::cWheelScroll},
                                                     {"Wheel selects", norvane::cWheelListIndex},
                                                     {"Wheel off", norvane::cWheelOff}});
  const auto editor = make([this](norvane::cWheelFunction value, const QString&) {
    if (onUsed) onUsed(QString("WheelFunction = %1").arg(int{value}));
    subject_.list().WheelFunction(value);
  });
  editor.widget->setObjectName("wheel");
  editor.widget->setMinimumWidth(wheelWidth);
  refreshers_.emplace_back([this, editor] { editor.show(subject_.list().WheelFunction()); });
  return editor.widget;
}

QWidget* Tools::addCommand(const Command& entry) {
  QToolButton* result = button(entry.name, entry.hint);
  connect(result, &QToolButton::clicked, this, [this, &entry] {
    if (onUsed) onUsed(entry.call(subject_.list()));
    entry.run(subject_.list());
  });
  refreshers_.emplace_back(
      [this, &entry, result] { result->setEnabled(entry.isPossible(subject_.list())); });
  return result;
}

void Tools::show(const Subject& subject) {
  subject_ = subject;
  setEnabled(subject.widget != nullptr);
  if (!subject.widget) return;
  for (const auto& refresh : refreshers_) refresh();
}

}  // namespace gallery
