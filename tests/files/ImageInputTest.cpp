#include "FileTest.h"

namespace norvane {
namespace {

std::string number(const char* name, int value) { return property(name, 3, int32(value)); }
std::string truth(const char* name, int value) { return property(name, 11, int16(value)); }
std::string words(const char* name, const char* value) { return property(name, 8, text(value)); }
std::string picture(const char* name, const char* file) { return property(name, 9, text(file)); }

const std::string full =
    property("count", 2, int16(2)) + truth("sip", -1) + words("i0Text", "\xC4") +
    words("i1Text", "b") + truth("i0AllowEdit", -1) + number("i0BackColor", 1) +
    number("i0BackColorDis", 2) + number("i0BackColorSelect", 3) + truth("i0Checked", -1) +
    truth("i0Enabled", 0) + property("i0ForeColor", 4, std::string("\0\0\x80\x40", 4)) +
    number("i0ForeColorDis", 5) + number("i0ForeColorSelect", 6) + picture("i0Icon", "icon") +
    picture("i0IconSelected", "selected") + property("i0Alignment", 2, int16(2));

class ImageInput : public FileTest {
 protected:
  std::string told(int index) {
    const ListItem all = item(index);
    return FileTest::told(all) + fileOf(all.Icon) + " " + fileOf(all.IconSelected);
  }
};

TEST_F(ImageInput, ReadsEveryProperty) {
  list.ColorStyle(cXPOlive);
  input(image(full));
  EXPECT_EQ(told(0), "\u00c4|1100000 2 1 2 3 4 5 6||icon selected");
  // Values missing in the store have the defaults of the store.
  EXPECT_EQ(told(1),
            "b|0010000 0 16777215 0 " + std::to_string(0x70A093) + " 0 0 16777215||none none");
  EXPECT_EQ(events(), "0 1 ");
  EXPECT_EQ(list.ListFileItemsCount("file"), 2);
  input(image(full), false);
  EXPECT_EQ(told(0), ordinaryItem("\u00c4") + "none none");
}

TEST_F(ImageInput, LetsTheHostInBetweenTheItems) {
  int yields = 0;
  for (int i = 0; i < 2; ++i)
    headless.container().post([&] {
      // The loop has already advanced to the next item.
      EXPECT_EQ(list.state().LoopIndex, ++yields);
    });
  headless.surface().Cls();
  onProgress = [&](Variant& Index) { EXPECT_EQ(yields, Index.toInt32()); };
  input(image(full));
  EXPECT_EQ(yields, 2);
  EXPECT_TRUE(shows("\u00c4"));
  for (const int last : {1, 2147483647}) {
    onProgress = [&](Variant& Index) { Index = last; };
    input(image(full));
    EXPECT_EQ(texts(), "\u00c4 ");
  }
  // An item that is read again keeps what the file does not specify.
  onProgress = [&](Variant& Index) {
    onProgress = nullptr;
    list.ItemBold(0, true);
    list.ItemIcon(0, makeRef<BytePicture>("icon"));
    Index = -1;
  };
  input(image(full), false);
  EXPECT_EQ(told(0), "\u00c4|0010100 0 def -2147483626 def def -2147483631 def||none none");
  EXPECT_TRUE(item(0).Bold);
  // The handler loads another image.
  onProgress = [&](Variant&) {
    onProgress = nullptr;
    input(image(number("count", 1) + words("i0Text", "inner")));
  };
  input(image(full));
  EXPECT_EQ(texts(), "inner");
  EXPECT_EQ(events(), "0 1 0 0 0 0 1 0 0 ");
}

TEST_F(ImageInput, RaisesTheEventOnTheWay) {
  const std::tuple<std::string, const char*, int> cases[] = {
      {number("count", 0), "", 2},
      {number("count", -2), "input! ", 2},
      {number("count", 4097), "input! ", 2},
      {words("count", "some"), "input! ", 0},
      {number("count", 3) + picture("i1Text", "no text"), "0 input! ", 3},
      {full + picture("i1Icon", ""), "0 input! ", 2},
      {full + words("i1ForeColorDis", "def"), "0 input! ", 2}};
  for (const auto& [properties, expected, count] : cases) {
    list.ItemsClear();
    add({"old", "older"});
    input(image(properties));
    EXPECT_EQ(events(), expected) << testing::PrintToString(properties);
    EXPECT_EQ(list.ItemsCount(), count) << testing::PrintToString(properties);
  }
  // The failed item has what was read before the failure.
  EXPECT_EQ(told(1), "b|0010000 0 16777215 0 12937777 0 0 ||none none");
}

TEST_F(ImageInput, IsNotTakenFromAnyOtherFile) {
  const std::string whole = image(full);
  std::vector<std::string> files = {image(number("Count", 1)), image(number("count", -1)),
                                    image(property("count", 5, "12345678"))};
  // Wrong tag, dimension, index, signature, name and kind.
  for (const std::size_t place : {0U, 2U, 3U, 8U, 12U, 18U, 23U}) {
    files.push_back(whole);
    files.back()[place] ^= 0x20;
  }
  for (std::size_t size = 0; size < whole.size(); ++size) files.push_back(whole.substr(0, size));
  for (const std::string& file : files) {
    input(file);
    EXPECT_LE(list.ListFileItemsCount("file"), 0);
    EXPECT_EQ(events(), "input! ");
  }
  // Truncated contents: only a cut between two properties leaves a valid image.
  for (std::size_t size = 0; size < full.size(); ++size) {
    input(image(full.substr(0, size)));
    EXPECT_EQ(list.ListFileItemsCount("file") == 2, heard != "input! ") << size;
    events();
  }
}

TEST_F(ImageInput, CountsTheItemsOfImagesOnly) {
  memory.files["image"] = image(words("count", "70000"));
  save();
  EXPECT_EQ(list.ListFileItemsCount("image"), 70000);
  EXPECT_EQ(list.ListFileItemsCount("file"), 0);
  EXPECT_EQ(list.ListFileItemsCount("missing"), -1);
  EXPECT_TRUE(list.state().ReadBagContents.isEmpty());
  memory.files["file"] = image(full);
  std::string counts;
  eachFailing([&] { counts += std::to_string(list.ListFileItemsCount("file")) + " "; });
  EXPECT_EQ(counts, "-1 0 0 0 0 0 2 ");
}

}  // namespace
}  // namespace norvane
