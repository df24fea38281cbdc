#include <nvlist/json/itemFields.h>
#include <nvlist/json/texts.h>

#include <algorithm>

#include <simdjson.h>

#include <nvlist/files/inputLimits.h>
#include <nvlist/platform/Files.h>
#include <nvlist/values/Failure.h>

namespace norvane::json {
namespace {

// How the value of a field is appended and read, by its type.

bool append(std::string& out, const std::string& value, RecentPictures&) {
  appendText(out, value);
  return true;
}
bool append(std::string& out, Boolean value, RecentPictures&) {
  appendBoolean(out, value);
  return true;
}
bool append(std::string& out, cItemAlignment value, RecentPictures&) {
  appendInteger(out, value);
  return true;
}
bool append(std::string& out, Colour value, RecentPictures&) {
  appendColour(out, value);
  return true;
}
bool append(std::string& out, const Picture& value, RecentPictures& pictures) {
  if (value) {
    const std::string& text = pictures.textOf(value);
    if (!text.empty()) {
      out.append("\"").append(text).append("\"");
      return true;
    }
  }
  out += "null";
  return !value;
}

void read(std::string& field, const Element& value, RecentPictures&) {
  // Copied into the memory of the field, if it is not encoded in some way.
  if (std::string_view text; value.get(text) == simdjson::SUCCESS)
    field = text;
  else
    field = textOf(value);
}
void read(Boolean& field, const Element& value, RecentPictures&) { field = booleanOf(value); }
void read(Colour& field, const Element& value, RecentPictures&) { field = colourOf(value); }
void read(cItemAlignment& field, const Element& value, RecentPictures&) {
  field = static_cast<cItemAlignment>(integerOf(value));
}
void read(Picture& field, const Element& value, RecentPictures& pictures) {
  std::string_view text;
  if (value.is_null())
    field = nullptr;
  else if (value.get(text) == simdjson::SUCCESS)
    field = pictures.pictureOf(text);
  else
    throw Unsuitable("a picture file in base64, or null, is needed");
}

bool isSame(const Variant& a, const Variant& b) {
  return a.isIdentical(b) || (a.isText() && b.isText() && a.text() == b.text());
}
template <class Value>
bool isSame(const Value& a, const Value& b) {
  return a == b;
}

template <auto field>
constexpr ItemField plain(std::string_view name) {
  return {name,
          [](std::string& out, const ListItem& item, RecentPictures& pictures) {
            return append(out, item.*field, pictures);
          },
          [](ListItem& item, const Element& value, RecentPictures& pictures) {
            read(item.*field, value, pictures);
          },
          [](const ListItem& a, const ListItem& b) { return isSame(a.*field, b.*field); }};
}

template <auto field, bool (*append)(std::string&, const Variant&), Variant (*read)(const Element&)>
constexpr ItemField variant(std::string_view name) {
  return {name,
          [](std::string& out, const ListItem& item, RecentPictures&) {
            return append(out, item.*field);
          },
          [](ListItem& item, const Element& value, RecentPictures&) { item.*field = read(value); },
          [](const ListItem& a, const ListItem& b) { return isSame(a.*field, b.*field); }};
}

template <auto field>
constexpr ItemField colour(std::string_view name) {
  return variant<field, appendColourVariant, colourVariantOf>(name);
}

constexpr ItemField fields[] = {
    plain<&ListItem::Text>("Text"),
    plain<&ListItem::Key>("Key"),
    variant<&ListItem::Tag, appendVariant, variantOf>("Tag"),
    plain<&ListItem::Checked>("Checked"),
    plain<&ListItem::Selected>("Selected"),
    plain<&ListItem::Enabled>("Enabled"),
    plain<&ListItem::AllowEdit>("AllowEdit"),
    plain<&ListItem::Alignment>("Alignment"),
    plain<&ListItem::Bold>("Bold"),
    plain<&ListItem::Italic>("Italic"),
    plain<&ListItem::Underline>("Underline"),
    colour<&ListItem::ForeColor>("ForeColor"),
    colour<&ListItem::BackColor>("BackColor"),
    colour<&ListItem::ForeColorSelect>("ForeColorSelect"),
    colour<&ListItem::BackColorSelect>("BackColorSelect"),
    plain<&ListItem::ForeColorDis>("ForeColorDis"),
    plain<&ListItem::BackColorDis>("BackColorDis"),
    plain<&ListItem::Icon>("Icon"),
    plain<&ListItem::IconSelected>("IconSelected"),
};

}  // namespace

const std::string& RecentPictures::textOf(const Picture& picture) {
  auto* const known = std::ranges::find(entries_, picture, &Entry::picture);
  if (known != std::end(entries_)) return known->text;
  const std::vector<std::byte> file = picture->fileBytes();
  Entry& entry = next();
  entry.picture = picture;
  entry.text.clear();
  appendBase64(entry.text, {reinterpret_cast<const char*>(file.data()), file.size()});
  return entry.text;
}

Picture RecentPictures::pictureOf(std::string_view text) {
  auto* const known = std::ranges::find(entries_, text, &Entry::text);
  if (known != std::end(entries_) && known->picture) return known->picture;
  const auto bytes = bytesOfBase64(text);
  if (!bytes) throw Unsuitable("the base64 is malformed");
  const auto* first = reinterpret_cast<const std::byte*>(bytes->data());
  Picture picture;
  try {
    picture = Files::inUse().loadPicture({first, first + bytes->size()});
  } catch (const Failure&) {
    throw Unsuitable("the picture is invalid");
  }
  next() = {picture, std::string(text)};
  return picture;
}

std::span<const ItemField> itemFields() { return fields; }

ListItem newItem() {
  ListItem item;
  setDefaults(item);
  item.Tag = "";
  return item;
}

}  // namespace norvane::json
