#include <nvlist/json/JsonLines.h>

#include <bit>
#include <limits>
#include <random>
#include <sstream>

#include <nvlist/core/storedProperties.h>

#include "../files/FileTest.h"

namespace norvane {
namespace {

/// Files in memory in which the bytes "bad" are no picture.
class PictureFiles final : public MemoryFiles {
 public:
  Picture loadPicture(std::vector<std::byte> file) override {
    if (!file.empty() && file.front() == std::byte{'b'}) throw Failure::invalidPicture();
    return MemoryFiles::loadPicture(std::move(file));
  }
};

std::string textOfVariant(const Variant& value) {
  const std::string type = std::to_string(static_cast<int>(value.type())) + ":";
  if (value.type() != Variant::Type::Single) return type + value.toText();
  return type + std::to_string(std::bit_cast<std::uint32_t>(value.toSingle()));
}

/// Every field of an item.
std::string textOfItem(const ListItem& item) {
  std::string result = "[" + item.Text + "|" + item.Key + "|" + textOfVariant(item.Tag);
  for (const Boolean flag : {item.Checked, item.Selected, item.Enabled, item.AllowEdit, item.Bold,
                             item.Italic, item.Underline})
    result += "|" + std::to_string(flag.number());
  for (const std::int32_t number :
       {std::int32_t{item.Alignment}, item.ForeColorDis, item.BackColorDis})
    result += "|" + std::to_string(number);
  for (const Variant& colour :
       {item.ForeColor, item.BackColor, item.ForeColorSelect, item.BackColorSelect})
    result += "|" + textOfVariant(colour);
  return result + "|" + fileOf(item.Icon) + "|" + fileOf(item.IconSelected) + "]";
}

std::string textOfList(const nvList& list) {
  std::string result;
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i)
    result += textOfItem(list.state().Items.at(i)) + "\n";
  return result;
}

class JsonLines : public ListTest {
 protected:
  JsonLines() { list.AutoRedraw(false); }

  json::Result load(const std::string& file, const json::LoadOptions& options = {}) {
    files.files["in"] = file;
    return json::load(list, "in", options);
  }
  /// Saves the list and loads it into another one.
  void expectSameAgain(json::Fields fields = json::Fields::all) {
    EXPECT_EQ(json::save(list, "file", {.fields = fields}).problems, 0U);
    const json::Result result = json::load(again.list(), "file");
    EXPECT_EQ(result.problems, 0U) << (result.problems ? result.firstProblems[0].text : "");
    EXPECT_TRUE(result.unknownFields.empty());
    EXPECT_EQ(result.items, list.ItemsCount());
    EXPECT_EQ(textOfList(again.list()), textOfList(list));
    EXPECT_EQ(files.open, 0);
  }
  static std::string textOf(const json::Result& result) {
    std::string text = std::to_string(result.items);
    for (const json::Problem& problem : result.firstProblems)
      text += "; " + std::to_string(problem.line) + " " +
              problem.text.substr(0, problem.text.find(" ("));
    for (const std::string& name : result.unknownFields) text += "; unknown " + name;
    return text;
  }

  PictureFiles files;
  HeadlessList again;
};

TEST_F(JsonLines, KeepsEveryFieldOfRandomItems) {
  std::mt19937 random(7);
  const auto number = [&] { return static_cast<std::int32_t>(random()); };
  // Scripts of all directions, characters with a meaning in JSON, and what is no UTF-8.
  std::vector<std::string> pieces = {"\u202E\u2028", "\t\r\n\"\\",   "\x01\x1F\x7F", "\xFF\xC3(",
                                     "\xED\xA0\x80", "\xF0\x9F\x98", {"\0", 1}};
  std::istringstream words(
      "a Größe Ελλ עברית فارسی हिन्दी தமிழ் မြန်မာ 中文 日本語 한국어 𐌲𐌿𐍄 "
      "👩‍🚀🏳️‍🌈");
  for (std::string word; words >> word;) pieces.push_back(word);
  const auto text = [&] {
    std::string result;
    for (auto count = random() % 6; count > 0; --count) result += pieces[random() % pieces.size()];
    return result;
  };
  const auto variant = [&] {
    const auto half = static_cast<std::int16_t>(number());
    const float infinite = std::numeric_limits<float>::infinity();
    float single = std::bit_cast<float>(number());
    // NaN has many forms, of which one is kept.
    if (std::isnan(single)) single = std::numeric_limits<float>::quiet_NaN();
    const Variant values[] = {"def",
                              "",
                              "#102030",
                              "system 5",
                              text(),
                              number(),
                              half,
                              true,
                              false,
                              number() & 0xFFFFFF,
                              Boolean::ofNumber(3),
                              systemColour(17),
                              single,
                              2.0F,
                              -0.0F,
                              1e-40F,
                              infinite,
                              Variant()};
    return values[random() % std::size(values)];
  };
  const Picture pictures[] = {nullptr, makeRef<BytePicture>("a"),
                              makeRef<BytePicture>(std::string("\0\xFF b", 4))};
  for (int i = 0; i < 400; ++i) {
    ListItem item;
    for (Boolean* flag : {&item.AllowEdit, &item.Enabled, &item.Bold, &item.Italic, &item.Underline,
                          &item.Checked, &item.Selected})
      *flag = random() % 9 ? Boolean(random() % 2 == 0)
                           : Boolean::ofNumber(static_cast<std::int16_t>(random()));
    for (Variant* value : {&item.ForeColor, &item.BackColor, &item.ForeColorSelect,
                           &item.BackColorSelect, &item.Tag})
      *value = variant();
    for (std::int32_t* colour : {&item.ForeColorDis, &item.BackColorDis})
      *colour = random() % 2 ? systemColour(static_cast<std::uint8_t>(number())) : number();
    item.Alignment = static_cast<cItemAlignment>(random() % 4);
    item.Icon = pictures[random() % 3];
    item.IconSelected = pictures[random() % 3];
    item.Text = text();
    item.Key = text();
    list.ItemsAppend(item);
  }
  expectSameAgain(json::Fields::all);
  const std::size_t whole = files.files["file"].size();
  expectSameAgain(json::Fields::changed);
  EXPECT_LT(files.files["file"].size(), whole);
}

TEST_F(JsonLines, KeepsTheProperties) {
  list.UserControl_ReadProperties(
      propertiesOf("Font = font \"Größe\" 9.75 strikethrough\nForeColor = &H80000008\n"
                   "ColorStyle = 99\nIndentLeft = -2.5"));
  list.GridLines(Boolean::ofNumber(2));
  list.MinHeight(std::numeric_limits<float>::infinity());
  expectSameAgain();
  for (const StoredProperty& property : storedProperties()) {
    const Variant before = property.get(list), after = property.get(again.list());
    if (property.type == PropertyType::font)
      EXPECT_TRUE(before.object()->isSame(*after.object()));
    else
      EXPECT_EQ(textOfVariant(before), textOfVariant(after)) << property.name;
  }
  again.list().ForeColor(1);
  json::load(again.list(), "file", {.takesProperties = false});
  EXPECT_EQ(again.list().ForeColor(), 1);
}

TEST_F(JsonLines, WritesPlainValues) {
  list.ItemsAdd({.aText = "Vienna", .aForeColor = rgb(255, 128, 0), .aTag = 7});
  json::save(list, "file", {.fields = json::Fields::changed});
  const std::string& file = files.files["file"];
  EXPECT_TRUE(file.starts_with("{\"nvList\":1,\"Items\":1,\"Properties\":{\"Font\":{\"Name\":"));
  EXPECT_EQ(file.substr(file.find('\n') + 1),
            "{\"Text\":\"Vienna\",\"Tag\":7,\"ForeColor\":\"#FF8000\"}\n");
  json::save(list, "file");
  EXPECT_NE(
      file.find("\"ForeColorDis\":\"system 17\",\"BackColorDis\":\"system 22\",\"Icon\":null"),
      std::string::npos);
}

TEST_F(JsonLines, LeavesOutWhatItCannotRead) {
  const struct {
    const char* name;
    const char* file;
    const char* result;  ///< number of items, problems and unknown fields
    const char* texts;
  } inputs[] = {
      {"empty", "", "0", ""},
      {"blank lines and line ends", "\n{\"Text\":\"a\"}\r\n \n{\"Text\":\"b\"}", "2", "a b"},
      {"byte order mark", "\xEF\xBB\xBF{\"Text\":\"a\"}", "1", "a"},
      {"bad lines", "{\"Text\":\"a\"}\n{\"Text\":\n[1]\nnull\n{\"Text\":\"b\"}",
       "2; 2 invalid JSON; 3 an object is needed; 4 an object is needed", "a b"},
      {"invalid UTF-8", "{\"Text\":\"a\"}\n{\"Text\":\"\xFF\"}", "1; 2 invalid JSON", "a"},
      {"unsuitable values",
       "{\"Text\":5,\"Key\":\"k\",\"Icon\":\"YmFk\",\"IconSelected\":\"!\",\"Bold\":70000,"
       "\"Alignment\":1.5,\"ForeColor\":\"red\",\"BackColorDis\":\"#12345\",\"Tag\":[]}",
       "1; 1 Text: a text is needed; 1 Icon: the picture is invalid; 1 IconSelected: the base64 is "
       "malformed; 1 Bold: true or false is needed; 1 Alignment: a whole number of 32 bits is "
       "needed; 1 ForeColor: a colour is needed: \"#RRGGBB\", \"system N\" or a number; 1 "
       "BackColorDis: a colour is needed: \"#RRGGBB\", \"system N\" or a number; 1 Tag: a text, a "
       "number of 32 bits, true, false or null is needed",
       ""},
      {"unknown fields", "{\"nvList\":1,\"x\":1,\"Properties\":{\"y\":1}}\n{\"z\":{}}\n{\"z\":1}",
       "2; unknown x; unknown y; unknown z", " "},
      {"unsuitable properties",
       "{\"nvList\":1,\"Properties\":{\"Font\":1,\"ForeColor\":\"x\",\"GridLines\":\"yes\","
       "\"IconW\":\"wide\",\"Style\":3000000000}}",
       "0; 1 Font: a font is needed; 1 ForeColor: a colour is needed: \"#RRGGBB\", \"system N\" or "
       "a number; 1 GridLines: true or false is needed; 1 IconW: a number is needed; 1 Style: a "
       "whole number of 32 bits is needed",
       ""},
      {"second header", "{\"nvList\":1}\n{\"Text\":\"a\"}\n{\"nvList\":1}",
       "1; 3 a second header is ignored", "a"},
      {"cut short", "{\"nvList\":1,\"Items\":3}\n{\"Text\":\"a\"}\n",
       "1; 2 the file ends early: 2 items are missing", "a"},
  };
  for (const auto& input : inputs) {
    EXPECT_EQ(textOf(load(input.file)), input.result) << input.name;
    EXPECT_EQ(texts(), input.texts) << input.name;
    EXPECT_EQ(reports(), "") << input.name;
    list.AutoRedraw(false);
  }
}

TEST_F(JsonLines, RefusesOtherFilesAndKeepsTheList) {
  add({"kept"});
  for (const char* file :
       {"MZ\x90", "Vienna\nGraz", "[1]", "{\"nvList\":2}", "{\"nvList\":\"x\"}"}) {
    EXPECT_THROW(load(file), Failure) << file;
    EXPECT_EQ(texts(), "kept") << file;
  }
  EXPECT_THROW(json::load(list, "missing"), Failure);
  EXPECT_EQ(files.open, 0);
}

TEST_F(JsonLines, ProblemsAreBounded) {
  std::string file = "{}\n";
  for (int i = 0; i < 300; ++i) file += "{\"field" + std::to_string(i) + "\":1,\"Text\":0}\n";
  const json::Result result = load(file);
  EXPECT_EQ(result.problems, 300U);
  EXPECT_EQ(result.firstProblems.size(), json::Result::mostKept);
  EXPECT_EQ(result.unknownFields.size(), json::Result::mostKept);
}

TEST_F(JsonLines, LinesMayCrossBlocks) {
  const std::string large(600'000, 'x');
  for (int i = 0; i < 5; ++i) list.ItemsAdd(large + std::to_string(i));
  expectSameAgain(json::Fields::changed);
}

TEST_F(JsonLines, StopsWhenAsked) {
  for (int i = 0; i < 4000; ++i) list.ItemsAdd(i);
  std::vector<std::uint64_t> done;
  const auto stopAtSecond = [&](std::uint64_t part, std::uint64_t whole) {
    EXPECT_LE(part, whole);
    done.push_back(part);
    return done.size() < 2;
  };
  EXPECT_TRUE(json::save(list, "stopped", {.progress = stopAtSecond}).isStopped);
  EXPECT_EQ(done.size(), 2U);
  json::save(list, "file");
  done.clear();
  const json::Result result = json::load(again.list(), "file", {.progress = stopAtSecond});
  EXPECT_TRUE(result.isStopped);
  EXPECT_GT(result.items, 0);
  EXPECT_LT(result.items, 4000);
  EXPECT_EQ(again.list().ItemsCount(), result.items);
}

TEST_F(JsonLines, AFailureReachesTheCallerAndClosesTheFile) {
  add({"a"});
  json::save(list, "file");
  for (const bool isLoading : {false, true}) {
    int failures = 0;
    for (bool fails = true; fails && failures < 20; failures += fails) {
      files.failing = failures + 1;
      files.operations = 0;
      try {
        isLoading ? json::load(list, "file") : json::save(list, "other");
        fails = false;
      } catch (const Failure&) {
        EXPECT_EQ(files.open, 0);
      }
    }
    EXPECT_GE(failures, 3) << isLoading;
  }
}

TEST_F(JsonLines, NeighboursKeepSharingAPicture) {
  const Picture picture = makeRef<BytePicture>("icon");
  for (int i = 0; i < 3; ++i) list.ItemsAdd({.aText = "a", .aIcon = picture});
  json::save(list, "file");
  json::load(again.list(), "file");
  EXPECT_EQ(again.list().ItemIcon(0), again.list().ItemIcon(2));
}

}  // namespace
}  // namespace norvane
