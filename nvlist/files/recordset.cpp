#include <nvlist/files/Recordset.h>
#include <nvlist/nvList.h>

namespace norvane {
namespace {

/// Throws if the object is empty or not a recordset.
Recordset& recordsetOf(const Ref<Object>& object) {
  if (!object) throw Failure::objectNotSet();
  if (auto* rows = dynamic_cast<Recordset*>(object.get())) return *rows;
  throw Failure::noSuchMember();
}

std::string firstFieldOf(const Ref<Object>& object) {
  const std::optional<Variant> value = recordsetOf(object).Value(0);
  if (!value) throw Failure::invalidNull();
  return value->toText();
}

}  // namespace

void nvList::Recordset(const Ref<Object>& value) {
  trapped(here, "Recordset", [&](Trap& on) {
    const Ref<Object> rows = value;
    state_.Recordset = rows;
    if (!on.test([&] { return recordsetOf(rows).RecordCount() > 0; })) return;
    const Boolean autoRedraw = AutoRedraw();
    const Boolean autoCheckScroll = AutoCheckScroll();
    on.step([&] { AutoRedraw(false); });
    on.step([&] { AutoCheckScroll(false); });
    on.step([&] { ItemsClear(); });
    on.step([&] { recordsetOf(rows).MoveFirst(); });
    addRows(on, rows);
    on.step([&] { AutoRedraw(autoRedraw); });
    on.step([&] { AutoCheckScroll(autoCheckScroll); });
    on.step([&] { Redraw(); });
    on.step([&] { CheckScroll(); });
  });
}

/// Adds the current row and all rows after it.
void nvList::addRows(Trap& on, const Ref<Object>& rows) {
  bool isAtEnd = false;
  bool answers = true;
  while (!isAtEnd && answers) {
    // If every call of a round fails, so would all further rounds. A recordset that lacks only Eof
    // is read endlessly.
    answers = false;
    std::string text;
    on.step([&] {
      text = firstFieldOf(rows);
      answers = true;
    });
    on.step([&] { ItemsAdd(text); });
    on.step([&] {
      recordsetOf(rows).MoveNext();
      answers = true;
    });
    on.step([&] {
      isAtEnd = static_cast<bool>(recordsetOf(rows).Eof());
      answers = true;
    });
  }
}

}  // namespace norvane
