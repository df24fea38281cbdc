#include <nvlist/files/Recordset.h>

#include "FileTest.h"

namespace norvane {
namespace {

using Values = std::vector<std::optional<Variant>>;

/// Rows of one field, never Null. Any member can be removed.
struct Rows final : Recordset {
  Rows(Values itsRows, std::string itsLacks)
      : rows(std::move(itsRows)), lacks(std::move(itsLacks)) {}

  std::int32_t RecordCount() override { return called('C'), count; }
  void MoveFirst() override { called('F'), at = 0; }
  void MoveNext() override {
    called('N');
    if (at == rows.size()) throw Failure(3021, "no current row");
    ++at;
  }
  Boolean Eof() override { return called('E'), at == rows.size(); }
  std::optional<Variant> Value(std::int32_t field) override {
    called(static_cast<char>('0' + field));
    return rows.at(at);
  }
  void called(char member) {
    calls += member;
    if (lacks.find(member) != std::string::npos) Recordset::MoveFirst();
  }

  Values rows;
  std::string lacks, calls;
  std::int32_t count = static_cast<std::int32_t>(rows.size());
  std::size_t at = 0;
};

using RecordsetBinding = ListTest;

Ref<Rows> rows(Values values, std::string lacks = "") {
  return makeRef<Rows>(std::move(values), std::move(lacks));
}
Ref<Rows> lacking(std::string members) { return rows({"a", "b"}, std::move(members)); }

TEST_F(RecordsetBinding, ReplacesTheItemsByTheFirstFields) {
  add({"old", "older"});
  list.AutoRedraw(false);
  headless.surface().Cls();
  const auto source = rows({"a", 5, Variant()});
  std::string changed;
  headless.container().onPropertyChanged = [&](std::string_view name) {
    changed += std::string(name) + std::to_string(list.ItemsCount()) + " ";
  };
  list.Recordset(source);
  EXPECT_EQ(texts(), "a 5 ");
  EXPECT_EQ(source->calls, "CF0NE0NE0NE");
  EXPECT_EQ(changed, "AutoRedraw2 AutoCheckScroll2 AutoRedraw3 AutoCheckScroll3 ");
  EXPECT_FALSE(list.AutoRedraw());
  EXPECT_TRUE(list.AutoCheckScroll());
  EXPECT_TRUE(shows("\"a\""));
  // Bars are adjusted whatever AutoCheckScroll is.
  list.AutoCheckScroll(false);
  list.Recordset(rows(Values(30, "a")));
  EXPECT_GT(list.verticalBar().Max(), 0);
}

TEST_F(RecordsetBinding, ReportsWhatIsMissingAndEndsUnlessSilent) {
  const auto uncounted = rows({"a"});
  uncounted->count = -1;
  const Ref<Object> other = makeRef<Object>();
  // AutoRedraw and AutoCheckScroll, the number of items and their texts.
  const std::tuple<const char*, bool, Ref<Object>, const char*, const char*> cases[] = {
      {"rows that cannot be counted", false, uncounted, "11 1:old", ""},
      {"no rows", false, rows({}), "11 1:old", ""},
      {"nothing", false, nullptr, "11 1:old", "91 Recordset"},
      {"no recordset", false, other, "11 1:old", "438 Recordset"},
      {"no MoveFirst", false, lacking("F"), "00 0:", "438 Recordset"},
      {"no Value", false, lacking("0"), "00 0:", "438 Recordset"},
      {"no Eof", false, lacking("E"), "00 1:a", "438 Recordset"},
      {"a Null", false, rows({"a", std::nullopt, "c"}), "00 1:a", "94 Recordset"},
      {"an object", false, rows({"a", other}), "00 1:a", "13 Recordset"},
      {"silently a Null", true, rows({"a", std::nullopt, "c"}), "11 3:a  c", ""},
      {"silently no Eof, until the rows run out", true, lacking("E"), "11 3:a b ", ""},
      {"silently nothing but a count", true, lacking("FNE0"), "11 1:", ""},
      {"silently no recordset", true, other, "11 1:", ""}};
  for (const auto& [name, isSilent, object, left, report] : cases) {
    Error().SilentError(isSilent);
    list.AutoRedraw(true);
    list.AutoCheckScroll(true);
    list.ItemsClear();
    add({"old"});
    list.Recordset(object);
    EXPECT_EQ(list.Recordset(), object) << name;
    const std::string flags = {list.AutoRedraw() ? '1' : '0', list.AutoCheckScroll() ? '1' : '0'};
    EXPECT_EQ(flags + " " + std::to_string(list.ItemsCount()) + ":" + texts(), left) << name;
    EXPECT_EQ(reports(), report) << name;
  }
  EXPECT_EQ(uncounted->calls, "C");
}

}  // namespace
}  // namespace norvane
