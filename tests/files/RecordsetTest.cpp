#include <nvlist/files/Recordset.h>

#include "FileTest.h"

namespace norvane {
namespace {

using Values = std::vector<std::optional<Variant>>;

/// Rows of one field, never Null. Any member can be removed.
class Rows final : public Recordset {
 public:
  Rows(Values rows, std::string lacks)
      : count(static_cast<std::int32_t>(rows.size())),
        rows_(std::move(rows)),
        lacks_(std::move(lacks)) {}

  std::int32_t count;
  std::string calls;

  std::int32_t RecordCount() override { return called('C'), count; }
  void MoveFirst() override { called('F'), at_ = 0; }
  void MoveNext() override {
    called('N');
    if (at_ == rows_.size()) throw Failure(3021, "no current row");
    ++at_;
  }
  Boolean Eof() override { return called('E'), at_ == rows_.size(); }
  std::optional<Variant> Value(std::int32_t field) override {
    called(static_cast<char>('0' + field));
    return rows_.at(at_);
  }

 private:
  void called(char member) {
    calls += member;
    if (lacks_.find(member) != std::string::npos) Recordset::MoveFirst();
  }

  Values rows_;
  std::string lacks_;
  std::size_t at_ = 0;
};

class RecordsetBinding : public ListTest {
 protected:
  static Ref<Rows> rows(Values values, std::string lacks = "") {
    return makeRef<Rows>(std::move(values), std::move(lacks));
  }
  static Ref<Rows> lacking(const std::string& members) { return rows({"a", "b"}, members); }

  std::string filled(const Ref<Object>& object) {
    list.AutoRedraw(true);
    list.AutoCheckScroll(true);
    list.ItemsClear();
    add({"old"});
    list.Recordset(object);
    EXPECT_EQ(list.Recordset(), object);
    return std::string(list.AutoRedraw() ? "on" : "off") + (list.AutoCheckScroll() ? "on" : "off") +
           " " + std::to_string(list.ItemsCount()) + ":" + texts();
  }
};

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
  EXPECT_NE(headless.face().find("\"a\""), std::string::npos);
  // Bars are adjusted whatever AutoCheckScroll is.
  list.AutoCheckScroll(false);
  list.Recordset(rows(Values(30, "a")));
  EXPECT_GT(list.verticalBar().Max(), 0);
}

TEST_F(RecordsetBinding, NeedsACountOfRows) {
  const auto unknown = rows({"a"});
  unknown->count = -1;
  EXPECT_EQ(filled(unknown), "onon 1:old");
  EXPECT_EQ(unknown->calls, "C");
  EXPECT_EQ(filled(rows({})), "onon 1:old");
}

TEST_F(RecordsetBinding, ReportsWhatIsMissingAndEnds) {
  const struct {
    Ref<Object> object;
    std::string report;
    std::string left;
  } cases[] = {{nullptr, "91", "onon 1:old"},
               {makeRef<Object>(), "438", "onon 1:old"},
               {lacking("F"), "438", "offoff 0:"},
               {lacking("0"), "438", "offoff 0:"},
               {lacking("E"), "438", "offoff 1:a"},
               {rows({"a", std::nullopt, "c"}), "94", "offoff 1:a"},
               {rows({"a", Ref<Object>(makeRef<Object>())}), "13", "offoff 1:a"}};
  for (const auto& [object, report, left] : cases) {
    EXPECT_EQ(filled(object), left) << report;
    EXPECT_EQ(reports(), report + " Recordset");
  }
}

TEST_F(RecordsetBinding, PassesOverWhatIsMissingInSilence) {
  silent();
  EXPECT_EQ(filled(rows({"a", std::nullopt, "c"})), "onon 3:a  c");
  // Without Eof, the operation ends when the rows run out.
  EXPECT_EQ(filled(lacking("E")), "onon 3:a b ");
  EXPECT_EQ(filled(lacking("FNE0")), "onon 1:");
  EXPECT_EQ(filled(makeRef<Object>()), "onon 1:");
}

}  // namespace
}  // namespace norvane
