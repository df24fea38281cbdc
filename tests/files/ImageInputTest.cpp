#include "FileTest.h"

namespace norvane {
namespace {

/// Writes the contents of a property store, and the image of one as a file holds it.
class Store {
 public:
  Store& text(const std::string& name, const std::string& value) {
    return put(name, 8, Bytes().text(value));
  }
  Store& number(const std::string& name, int value) { return put(name, 3, Bytes().int32(value)); }
  Store& shortNumber(const std::string& name, int value) {
    return put(name, 2, Bytes().int16(value));
  }
  Store& truth(const std::string& name, bool value) {
    return put(name, 11, Bytes().int16(value ? -1 : 0));
  }
  Store& picture(const std::string& name, const std::string& file) {
    return put(name, 9, Bytes().text(file));
  }
  Store& put(const std::string& name, int kind, const std::string& value) {
    contents_.int16(static_cast<int>(name.size())).raw(name).int16(kind).raw(value);
    return *this;
  }
  std::string contents() const { return contents_; }
  operator std::string() const {
    const std::string bytes = contents_;
    return Bytes().int16(0x2011).int16(1).int32(static_cast<int>(bytes.size())).int32(0).raw(bytes);
  }

 private:
  Bytes contents_ = Bytes().raw("PBAG");
};

class ImageInput : public FileTest {
 protected:
  static Store full() {
    Store store;
    store.shortNumber("count", 2).truth("sip", true).text("i0Text", "\xC4").text("i1Text", "b");
    store.truth("i0AllowEdit", true)
        .number("i0BackColor", 1)
        .number("i0BackColorDis", 2)
        .number("i0BackColorSelect", 3)
        .truth("i0Checked", true)
        .truth("i0Enabled", false)
        .number("i0ForeColor", 4)
        .number("i0ForeColorDis", 5)
        .number("i0ForeColorSelect", 6)
        .picture("i0Icon", "icon")
        .picture("i0IconSelected", "selected")
        .shortNumber("i0Alignment", 2);
    return store;
  }

  std::string colours(int index) {
    const ListItem& it = item(index);
    return it.BackColor.toText() + " " + std::to_string(it.BackColorDis) + " " +
           it.BackColorSelect.toText() + " " + it.ForeColor.toText() + " " +
           std::to_string(it.ForeColorDis) + " " + it.ForeColorSelect.toText();
  }
  std::string flags(int index) {
    const ListItem& it = item(index);
    return std::string(it.AllowEdit ? "1" : "0") + (it.Checked ? "1" : "0") +
           (it.Enabled ? "1" : "0") + std::to_string(it.Alignment);
  }
};

TEST_F(ImageInput, ReadsEveryProperty) {
  list.ColorStyle(cXPOlive);
  input(full());
  EXPECT_EQ(texts(), "\u00c4 b");
  EXPECT_EQ(flags(0) + " " + colours(0), "1102 1 2 3 4 5 6");
  EXPECT_EQ(fileOf(item(0).Icon) + fileOf(item(0).IconSelected), "iconselected");
  // What is not in the store has the defaults of the store.
  EXPECT_EQ(flags(1) + " " + colours(1),
            "0010 16777215 0 " + std::to_string(0x70A093) + " 0 0 16777215");
  EXPECT_EQ(fileOf(item(1).Icon) + fileOf(item(1).IconSelected), "nonenone");
  EXPECT_EQ(events() + reports(), "0 1 ");
  EXPECT_EQ(list.ListFileItemsCount("file"), 2);
}

TEST_F(ImageInput, GivesTheDefaultsOfNewItemsWithoutProperties) {
  const std::string ordinary = "0010 def -2147483626 def def -2147483631 def";
  input(full(), false);
  EXPECT_EQ(texts(), "\u00c4 b");
  EXPECT_EQ(flags(0) + " " + colours(0), ordinary);
  EXPECT_EQ(fileOf(item(0).Icon), "none");
  input(Store().number("count", 1).truth("i0Checked", true));
  EXPECT_EQ(item(0).Text + flags(0) + " " + colours(0), ordinary);
}

TEST_F(ImageInput, LetsTheHostInBetweenTheItems) {
  int yields = 0;
  headless.container().post([&] { ++yields; });
  headless.container().post([&] { ++yields; });
  headless.surface().Cls();
  onProgress = [&](Variant& Index) { EXPECT_EQ(yields, Index.toInt32()); };
  input(full());
  EXPECT_EQ(yields, 2);
  EXPECT_NE(headless.picture().find("\u00c4"), std::string::npos);
  events();
  onProgress = [](Variant& Index) { Index = 1; };
  input(full());
  EXPECT_EQ(events(), "0 ");
  EXPECT_EQ(texts(), "\u00c4 ");
  // The handler loads another image into the store that is being read.
  onProgress = [&](Variant&) {
    onProgress = nullptr;
    input(Store().number("count", 1).text("i0Text", "inner"));
  };
  input(full());
  EXPECT_EQ(events(), "0 0 ");
  EXPECT_EQ(texts(), "inner");
}

TEST_F(ImageInput, LeavesTheListForACountOfNone) {
  add({"old"});
  input(Store().number("count", 0));
  EXPECT_EQ(texts(), "old");
  EXPECT_EQ(events(), "");
}

TEST_F(ImageInput, RaisesTheEventOnTheWay) {
  add({"old", "older"});
  const struct {
    Store store;
    std::string heard;
    int count;
  } cases[] = {{Store().number("count", -2), "", 2},
               {Store().number("count", 2000000000), "", 2},
               {Store().number("count", 4097), "", 2},
               {Store().text("count", "some"), "", 0},
               {Store().number("count", 1).text("sip", "neither"), "", 2},
               {Store().number("count", 3).put("i1Text", 9, Bytes().text("")), "0 ", 3},
               {full().picture("i1Icon", ""), "0 ", 2},
               {full().number("i1Icon", 7), "0 ", 2},
               {full().text("i1ForeColorDis", "def"), "0 ", 2}};
  for (const auto& [store, heardBefore, count] : cases) {
    list.ItemsClear();
    add({"old", "older"});
    input(store);
    EXPECT_EQ(events(), heardBefore + "ErrorListInput ");
    EXPECT_EQ(list.ItemsCount(), count);
    EXPECT_EQ(memory.open, 0);
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(ImageInput, IsNotTakenFromAnyOtherFile) {
  const std::string image = full();
  const auto with = [&](std::size_t place, char byte) {
    std::string changed = image;
    changed[place] = byte;
    return changed;
  };
  std::vector<std::string> files = {with(0, 0x10),
                                    with(2, 2),
                                    with(3, 1),
                                    with(8, 1),
                                    with(12, 'p'),
                                    with(18, 'C'),
                                    with(23, 99),
                                    Store().number("Count", 1),
                                    Store().number("count", -1),
                                    Store().put("count", 5, "12345678")};
  for (std::size_t size = 0; size < image.size(); ++size) files.push_back(image.substr(0, size));
  // Cut in the contents, with a count of bytes to match.
  const std::string contents = full().contents();
  for (std::size_t size = 4; size < contents.size(); ++size) {
    const std::string cut = contents.substr(0, size);
    const std::string file =
        Bytes().int16(0x2011).int16(1).int32(static_cast<int>(size)).int32(0).raw(cut);
    EXPECT_LE(list.ListFileItemsCount((memory.files["file"] = file, "file")), 2);
    input(file);
    EXPECT_EQ(memory.open, 0);
  }
  events();
  for (const std::string& file : files) {
    input(file);
    EXPECT_EQ(events(), "ErrorListInput ");
    EXPECT_LE(list.ListFileItemsCount("file"), 0);
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(ImageInput, CountsTheItemsOfImagesOnly) {
  memory.files["image"] = Store().text("count", "70000");
  memory.files["none"] = Store().number("other", 1);
  add({"a"});
  save();
  EXPECT_EQ(list.ListFileItemsCount("image"), 70000);
  EXPECT_EQ(list.ListFileItemsCount("none"), 0);
  EXPECT_EQ(list.ListFileItemsCount("file"), 0);
  EXPECT_EQ(list.ListFileItemsCount("missing"), -1);
  EXPECT_EQ(list.ListFileItemsCount(Ref<Object>(makeRef<Object>())), 0);
  EXPECT_TRUE(list.state().ReadBagContents.isEmpty());
  EXPECT_EQ(memory.open, 0);
  EXPECT_EQ(reports(), "");
}

TEST_F(ImageInput, SurvivesAFailureOfEachFileOperation) {
  const std::string image = full();
  for (const bool isSilent : {false, true}) {
    if (isSilent) silent();
    for (int failing = 1; failing <= 6; ++failing) {
      memory.operations = 0;
      memory.failing = failing;
      input(image);
      // Found and then missed: told of, and then tried as a list file of the newer form.
      EXPECT_EQ(events(), failing == 2 ? "ErrorListInput ErrorListInput " : "ErrorListInput ");
      EXPECT_EQ(reports(), failing <= 2 && !isSilent ? "57 FileExists" : "") << failing;
      memory.operations = 0;
      EXPECT_EQ(list.ListFileItemsCount("file"), failing == 1 ? -1 : failing <= 5 ? 0 : 2);
      reports();
      EXPECT_EQ(memory.open, 0);
    }
    memory.failing = 0;
  }
}

}  // namespace
}  // namespace norvane
