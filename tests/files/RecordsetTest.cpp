#include <nvlist/files/Recordset.h>

#include "FileTest.h"

namespace norvane {
namespace {

/// Rows of one field; nothing is Null. Any member can be taken away.
class Rows final : public Recordset {
 public:
  explicit Rows(std::vector<std::optional<Variant>> rows) : rows_(std::move(rows)) {}

  std::string lacks;
  std::int32_t count = 0;
  std::string calls;

  std::int32_t RecordCount() override {
    return has('C') ? count != 0 ? count : static_cast<std::int32_t>(rows_.size()) : 0;
  }
  void MoveFirst() override {
    if (has('F')) at_ = 0;
  }
  void MoveNext() override {
    if (!has('N')) return;
    if (at_ == rows_.size()) throw Failure(3021, "no current row");
    ++at_;
  }
  Boolean Eof() override { return has('E') && at_ == rows_.size(); }
  std::optional<Variant> Value(std::int32_t field) override {
    has(static_cast<char>('0' + field));
    return rows_.at(at_);
  }

 private:
  bool has(char member) {
    calls += member;
    if (lacks.find(member) != std::string::npos) Recordset::MoveFirst();
    return true;
  }

  std::vector<std::optional<Variant>> rows_;
  std::size_t at_ = 7;
};

class RecordsetBinding : public ListTest {
 protected:
  static Ref<Rows> rows(std::vector<std::optional<Variant>> values) {
    return makeRef<Rows>(std::move(values));
  }
  std::string flags() {
    return std::string(list.AutoRedraw() ? "on" : "off") + (list.AutoCheckScroll() ? "on" : "off");
  }
  static Ref<Rows> lacking(const std::string& members) {
    const auto result = rows({"a", "b"});
    result->lacks = members;
    return result;
  }
};

TEST_F(RecordsetBinding, ReplacesTheItemsByTheFirstFields) {
  add({"old", "older"});
  const auto source = rows({"a", 5, Variant()});
  std::string changed;
  headless.container().onPropertyChanged = [&](std::string_view name) {
    changed += std::string(name) + (name == "AutoRedraw" && list.ItemsCount() == 3 ? "! " : " ");
  };
  list.Recordset(source);
  EXPECT_EQ(texts(), "a 5 ");
  EXPECT_EQ(source->calls, "CF0NE0NE0NE");
  EXPECT_EQ(changed, "AutoRedraw AutoCheckScroll AutoRedraw! AutoCheckScroll ");
  EXPECT_EQ(list.Recordset(), Ref<Object>(source));
  EXPECT_EQ(flags(), "onon");
  EXPECT_TRUE(isDefaultMark(item(0).BackColor));
  EXPECT_TRUE(item(0).Enabled);

  list.AutoRedraw(false);
  headless.surface().Cls();
  list.Recordset(source);
  EXPECT_NE(headless.picture().find("\"a\""), std::string::npos);
  EXPECT_EQ(flags(), "offon");
}

TEST_F(RecordsetBinding, NeedsACountOfRows) {
  add({"old"});
  for (const int count : {-1, -2}) {
    const auto source = rows({"a"});
    source->count = count;
    list.Recordset(source);
    EXPECT_EQ(texts(), "old");
    EXPECT_EQ(list.Recordset(), Ref<Object>(source));
    EXPECT_EQ(source->calls, "C");
  }
  list.Recordset(rows({}));
  EXPECT_EQ(texts(), "old");
  EXPECT_EQ(reports(), "");
}

TEST_F(RecordsetBinding, ReportsWhatIsMissingAndEnds) {
  const struct {
    Ref<Object> object;
    std::string report;
    std::string left;
  } cases[] = {{nullptr, "91", "onon old"},
               {makeRef<Object>(), "438", "onon old"},
               {makeRef<Recordset>(), "438", "onon old"},
               {lacking("C"), "438", "onon old"},
               {lacking("F"), "438", "offoff "},
               {lacking("0"), "438", "offoff "},
               {lacking("N"), "438", "offoff a"},
               {lacking("E"), "438", "offoff a"},
               {rows({"a", std::nullopt, "c"}), "94", "offoff a"},
               {rows({"a", Variant(Ref<Object>(makeRef<Object>()))}), "13", "offoff a"}};
  for (const auto& [object, report, left] : cases) {
    list.ItemsClear();
    add({"old"});
    list.AutoRedraw(true);
    list.AutoCheckScroll(true);
    list.Recordset(object);
    EXPECT_EQ(flags() + " " + texts(), left);
    EXPECT_EQ(reports(), report + " Recordset");
    EXPECT_EQ(list.Recordset(), object);
  }
}

TEST_F(RecordsetBinding, PassesOverWhatIsMissingInSilence) {
  silent();
  const auto filled = [&](const Ref<Object>& object) {
    list.ItemsClear();
    add({"old"});
    list.Recordset(object);
    return std::to_string(list.ItemsCount()) + ":" + texts();
  };
  EXPECT_EQ(filled(rows({"a", std::nullopt, "c"})), "3:a  c");
  EXPECT_EQ(filled(lacking("C")), "2:a b");
  EXPECT_EQ(filled(lacking("0")), "2: ");
  // Without an end in sight the rows run out, and with them the fill.
  EXPECT_EQ(filled(lacking("E")), "3:a b ");
  EXPECT_EQ(filled(lacking("FNE0")), "1:");
  EXPECT_EQ(filled(nullptr), "1:");
  EXPECT_EQ(filled(makeRef<Object>()), "1:");
  EXPECT_EQ(flags(), "onon");
}

}  // namespace
}  // namespace norvane
