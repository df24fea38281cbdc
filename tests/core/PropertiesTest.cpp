#include <nvlist/core/storedProperties.h>

#include <algorithm>
#include <set>

#include "../HearingList.h"

namespace norvane {
namespace {

using Properties = HearingListTest;

class Persistence : public HearingListTest {
 protected:
  std::string stored() {
    PropertyBag bag;
    list.UserControl_WriteProperties(bag);
    return propertyText(bag);
  }
};

/// Every property except the font, in stored order, with a value that is not its default.
const std::pair<std::string, Variant> otherValues[] = {
    {"ForeColor", 1},           {"BackColor", systemColour(5)},
    {"Enabled", false},         {"ClickOnIndexChange", 1},
    {"ColorStyle", 99},         {"BorderColor", 2},
    {"HoverSelect", true},      {"Style", 3},
    {"FullRowSelect", false},   {"AllowEdit", true},
    {"ValueColor", 3},          {"IconSelect", false},
    {"BorderVisible", false},   {"IndentTop", 4.5F},
    {"IndentLeft", -5.0F},      {"IndentRight", 6.0F},
    {"IndentBottom", 7.0F},     {"DistPicText", 8.0F},
    {"AutoCheckScroll", false}, {"IconW", 9.0F},
    {"IconH", 10.0F},           {"ScrollColorStyle", 2},
    {"GridLines", true},        {"GridLineColor", 4},
    {"MultiSelect", true},      {"ShowFocusRect", true},
    {"WheelFunction", 1},       {"WheelScrollLines", 5},
    {"MinHeight", 17.5F},       {"AutoRedraw", false},
    {"ScrollBars", 3},          {"AllowItemMoving", true}};

PropertyBag otherBag() {
  PropertyBag bag;
  auto font = makeRef<FontObject>();
  font->Name = "Sans \"x\"";
  font->Italic = true;
  bag.WriteProperty("Font", Variant(Ref<Object>(font)), Variant());
  for (const auto& [name, value] : otherValues) bag.WriteProperty(name, value, Variant(""));
  return bag;
}

TEST_F(Properties, EachIsMarkedAndPaintsInItsOwnWay) {
  const std::set<std::string> always = {"ColorStyle", "BorderColor", "AllowEdit", "BorderVisible"},
                              never = {"AutoCheckScroll", "ScrollColorStyle", "MultiSelect",
                                       "ShowFocusRect",   "WheelFunction",    "WheelScrollLines",
                                       "AllowItemMoving"};
  fill(3);
  for (const bool isAutomatic : {true, false}) {
    list.AutoRedraw(isAutomatic);
    heard();
    for (const auto& [name, value] : otherValues) {
      if (name == "AutoRedraw") continue;
      storedProperty(name)->set(list, value);
      const bool isPainted = always.contains(name) || (isAutomatic && !never.contains(name));
      EXPECT_EQ(heard(), name + (isPainted ? "*" : ""));
    }
    list.Font(list.Font());
    list.ColorStyle(cXPSilver);
    EXPECT_EQ(heard(), isAutomatic ? "Font* ScrollColorStyle ColorStyle*"
                                   : "Font ScrollColorStyle ColorStyle*");
  }
  EXPECT_EQ(reports(), "");
}

TEST_F(Properties, OnlyTrueItselfMeasuresAndFits) {
  fill(3);
  const auto width = [&] { return list.state().MaxItemWidth; };
  const std::int32_t measured = width();
  for (const Boolean value : {Boolean(false), Boolean::ofNumber(1), Boolean(true)}) {
    list.AutoRedraw(false);
    list.AutoCheckScroll(false);
    list.Style(cDefault);
    for (int i = 0; i < 40; ++i) list.ItemsAdd("long");
    list.AutoCheckScroll(value);
    EXPECT_EQ(width() > measured, value.isTrue());
    EXPECT_EQ(list.verticalBar().Visible(), value.isTrue());
    list.Style(cIcons);  // another padding
    heard();
    const std::int32_t before = width();
    list.AutoRedraw(value);
    EXPECT_EQ(heard(), value.isTrue() ? "AutoRedraw*" : "AutoRedraw");
    EXPECT_EQ(width() == before, !value.isTrue());
  }
}

TEST_F(Properties, AFontIsClonedAndGivesTheRowsTheirHeight) {
  fill(2);
  const auto font = makeRef<FontObject>();
  font->Size = 12;
  headless.surface().fontMeasure({9, 10, 19});
  list.Font(font);
  font->Size = 30;
  EXPECT_EQ(list.Font()->Size, 12);
  EXPECT_EQ(list.state().ItemHeightValue, 19);
  EXPECT_TRUE(shows("CurrentY 22\n"));
  list.MinHeight(25.5);
  list.Font(font);
  EXPECT_EQ(list.state().ItemHeightValue, 25.5F);
}

TEST_F(Persistence, EveryPropertyComesBackInItsOrder) {
  HeadlessList other;
  other.list().UserControl_ReadProperties(otherBag());
  PropertyBag written;
  other.list().UserControl_WriteProperties(written);
  const auto properties = storedProperties();
  ASSERT_EQ(properties.size(), 1 + std::size(otherValues));
  ASSERT_EQ(written.properties().size(), properties.size());
  for (std::size_t i = 0; i < std::size(otherValues); ++i) {
    const StoredProperty& property = properties[i + 1];
    const auto& [name, value] = otherValues[i];
    EXPECT_EQ(storedProperty(name), &property) << name;
    EXPECT_EQ(written.properties()[i + 1].name, name);
    const bool isFlag = property.type == PropertyType::boolean;
    const double number = isFlag ? value.toBoolean().number() : value.toNumber();
    EXPECT_EQ(written.properties()[i + 1].value.toNumber(), number) << name;
    // The table alone, on a list with default values.
    EXPECT_EQ(property.get(list).toNumber(), property.defaultValue.toNumber()) << name;
    property.set(list, value);
    EXPECT_EQ(property.get(list).toNumber(), number) << name;
    EXPECT_THROW(property.set(list, "many"), Failure) << name;
  }
  EXPECT_EQ(storedProperty("font"), nullptr);
  properties[0].set(list, properties[0].get(other.list()));
  EXPECT_EQ(list.Font()->Name, "Sans \"x\"");

  // To text and back, with the same result twice.
  const std::string text = propertyText(written);
  list.UserControl_ReadProperties(propertiesOf(text));
  EXPECT_EQ(stored(), text);
  EXPECT_TRUE(
      text.starts_with("Font = font \"Sans \\\"x\\\"\" 8.25 italic\nForeColor = 1\n"
                       "BackColor = &H80000005\nEnabled"));
}

TEST_F(Persistence, DefaultsAreNotStored) {
  EXPECT_EQ(stored(), "");
  // Values stored before are removed.
  PropertyBag bag = otherBag();
  list.UserControl_WriteProperties(bag);
  EXPECT_EQ(propertyText(bag), "");
  heard();
  list.ItemsAdd("gone");
  list.UserControl_ReadProperties(bag);
  EXPECT_EQ(list.ItemsCount(), 0);
  // The item, ItemsClear and the end.
  EXPECT_EQ(std::ranges::count(heard(), '*'), 3);
}

TEST_F(Persistence, AValueThatDoesNotFitEndsTheReading) {
  const PropertyBag bag = propertiesOf("\tBackColor\t= 255\r\nStyle = many\nGridLines = True\n");
  list.UserControl_ReadProperties(bag);
  EXPECT_EQ(reports(), "13 UserControl_ReadProperties");
  EXPECT_EQ(list.BackColor(), 255);
  EXPECT_FALSE(list.GridLines());
  silent();
  list.UserControl_ReadProperties(bag);
  EXPECT_TRUE(list.GridLines().isTrue());
  list.UserControl_ReadProperties(propertiesOf("Font = 7"));
  EXPECT_EQ(list.Font()->Name, "Tahoma");
  // The colours of the bars are read after those of the list, which set them too.
  list.UserControl_ReadProperties(propertiesOf("ColorStyle = 1\nScrollColorStyle = 2"));
  EXPECT_EQ(list.ScrollColorStyle(), cXPScrollOlive);
}

TEST_F(Persistence, ReadingForgetsTheHandAndTheFormsLaterFont) {
  HeadlessContainer& form = headless.container();
  list.AllowItemMoving(true);
  add({"a", "b"});
  form.press(50, 10), form.moveTo(50, 20, 1);
  list.UserControl_ReadProperties(PropertyBag());
  EXPECT_EQ(list.state().SelectAnchor, -1);
  EXPECT_EQ(list.state().HoverIndex, -1);
  form.ambientFont = makeRef<FontObject>();
  form.ambientFont->Size = 20;
  EXPECT_EQ(stored(), "");
}

TEST_F(Persistence, AFormWithoutAmbientPropertiesIsServed) {
  struct BareForm : HeadlessContainer {
    Boolean UserMode() override { throw Failure::invalidCall(); }
    norvane::Font AmbientFont() override { throw Failure::invalidCall(); }
  } bare;
  HeadlessContainer withoutFont;
  withoutFont.ambientFont = nullptr;
  for (HeadlessContainer* form : {static_cast<HeadlessContainer*>(&bare), &withoutFont}) {
    nvList onForm(*form);
    onForm.UserControl_InitProperties();
    EXPECT_TRUE(form->turnWheel(120));
    ASSERT_TRUE(onForm.Font());
    EXPECT_EQ(onForm.Font()->Name, "Tahoma");
  }
}

TEST(PropertyText, NamesTheLineThatCannotBeRead) {
  for (const auto& [text, line] :
       {std::pair("# a note\n\n a = 1 \r\nb", "4"), {"= 3", "1"}, {"a = \"open\nb = 2", "1"}}) {
    try {
      propertiesOf(text);
      ADD_FAILURE() << text;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.number(), 321);
      EXPECT_EQ(failure.what(), std::string("Invalid file format in line ") + line);
    }
  }
  const PropertyBag bag =
      propertiesOf("t = \"\\x41\\\\\\\"\\n\"\nf = -0.5\nfont = font \"A\" 8 bold heavy\nn = 1e99");
  EXPECT_EQ(bag.ReadProperty("t", 0).text(), "A\\\"n");
  EXPECT_EQ(bag.ReadProperty("f", 0).toSingle(), -0.5F);
  EXPECT_TRUE(bag.ReadProperty("font", 0).isText());
  PropertyBag lines;
  lines.WriteProperty("t", "a\nb", "");
  EXPECT_EQ(propertyText(lines), "t = \"a\\x0Ab\"\n");
}

}  // namespace
}  // namespace norvane
