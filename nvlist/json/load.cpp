#include <nvlist/core/storedProperties.h>
#include <nvlist/json/JsonLines.h>
#include <nvlist/json/LineReader.h>
#include <nvlist/json/Report.h>
#include <nvlist/json/format.h>
#include <nvlist/json/itemFields.h>
#include <nvlist/platform/Files.h>
#include <nvlist/values/Failure.h>

#include <optional>

#include <simdjson.h>

namespace norvane::json {
namespace {

namespace dom = simdjson::dom;

Variant propertyOf(PropertyType type, const Element& value) {
  switch (type) {
    case PropertyType::font:
      return Ref<Object>(fontOf(value));
    case PropertyType::colour:
      return colourOf(value);
    case PropertyType::boolean:
      return booleanOf(value);
    case PropertyType::single:
      return singleOf(value);
    default:
      return integerOf(value);
  }
}

/// Loads one file into a list.
class Loader {
 public:
  Loader(nvList& list, File& file, const LoadOptions& options)
      : list_(list), options_(options), lines_(file, simdjson::SIMDJSON_PADDING) {}

  Result load();

 private:
  bool nextLine();
  std::optional<dom::object> objectInLine();
  bool isContinued();
  void readHeader(const dom::object& header);
  void readProperties(const Element& value, PropertyBag& bag);
  void readItem(const dom::object& object);
  const ItemField* fieldNamed(std::string_view name);
  void problem(std::string text) { report_.problem(lines_.number(), std::move(text)); }

  nvList& list_;
  const LoadOptions& options_;
  LineReader lines_;
  dom::parser parser_;
  RecentPictures pictures_;
  Report report_;
  std::int64_t announced_ = 0;  ///< number of items by the header
  std::uint64_t done_ = 0;      ///< bytes that `progress` was last called with
  const ListItem blank_ = newItem();
  ListItem item_;  ///< of the current line; a member, so that its texts keep their memory
  std::size_t nextField_ = 0;
};

/// Goes to the next line with contents.
bool Loader::nextLine() {
  while (lines_.next())
    if (lines_.isTooLong() || lines_.line().find_first_not_of(" \t\r") != std::string_view::npos)
      return true;
  return false;
}

/// The object in the current line, or nothing, which is a problem.
std::optional<dom::object> Loader::objectInLine() {
  if (lines_.isTooLong()) {
    problem("the line is too long");
    return std::nullopt;
  }
  std::string_view line = lines_.line();
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (lines_.number() == 1 && line.starts_with(byteOrderMark))
    line.remove_prefix(byteOrderMark.size());
  dom::object object;
  const simdjson::error_code error = parser_.parse(line.data(), line.size(), false).get(object);
  if (error == simdjson::SUCCESS) return object;
  if (error == simdjson::MEMALLOC) throw Failure::outOfMemory();
  problem(error == simdjson::INCORRECT_TYPE
              ? "an object is needed"
              : std::string("invalid JSON (") + simdjson::error_message(error) + ")");
  return std::nullopt;
}

bool Loader::isContinued() {
  if (!options_.progress || lines_.done() == done_) return true;
  done_ = lines_.done();
  return options_.progress(done_, lines_.whole());
}

Result Loader::load() {
  bool hasLine = nextLine();
  std::optional<dom::object> object;
  if (hasLine) {
    object = objectInLine();
    if (!object && lines_.line().substr(0, 1) != "{")
      throw Failure(
          321, "Invalid file format: no JSON Lines in line " + std::to_string(lines_.number()));
  }
  if (object && (*object)[format::marker].error() == simdjson::SUCCESS) {
    readHeader(*object);
    object.reset();
  } else {
    list_.ItemsClear();
  }
  while (hasLine) {
    if (object) readItem(*object);
    if (!isContinued()) {
      report_.result.isStopped = true;
      break;
    }
    hasLine = nextLine();
    if (hasLine) object = objectInLine();
  }
  const auto lost = announced_ - report_.result.items;
  if (!report_.result.isStopped && lost > 0 && report_.result.problems == 0)
    problem("the file ends early: " + std::to_string(lost) + " items are missing");
  // Setting them measures the items, adjusts the bars and paints, as far as they are on.
  if (list_.AutoCheckScroll()) list_.AutoCheckScroll(list_.AutoCheckScroll());
  if (list_.AutoRedraw()) list_.AutoRedraw(list_.AutoRedraw());
  return report_.result;
}

void Loader::readHeader(const dom::object& header) {
  std::int64_t version = 0;
  if (header[format::marker].get(version) != simdjson::SUCCESS || version < 1 ||
      version > format::version)
    throw Failure(321, "Invalid file format: this version cannot be read");
  PropertyBag bag;
  for (const dom::key_value_pair field : header) {
    if (field.key == format::properties) {
      readProperties(field.value, bag);
      report_.result.hasProperties = true;
    } else if (field.key == format::itemCount) {
      if (field.value.get(announced_) != simdjson::SUCCESS)
        problem(std::string(format::itemCount) + ": a whole number is needed");
    } else if (field.key != format::marker) {
      report_.unknownField(field.key);
    }
  }
  if (options_.takesProperties)
    list_.UserControl_ReadProperties(bag);
  else
    list_.ItemsClear();
}

void Loader::readProperties(const Element& value, PropertyBag& bag) {
  dom::object properties;
  if (value.get(properties) != simdjson::SUCCESS) {
    problem(std::string(format::properties) + ": an object is needed");
    return;
  }
  for (const dom::key_value_pair field : properties) {
    const std::string name(field.key);
    const StoredProperty* const property = storedProperty(name);
    if (!property) {
      report_.unknownField(name);
      continue;
    }
    try {
      const Variant read = propertyOf(property->type, field.value);
      // No value is the default of an empty font, so everything is stored.
      bag.WriteProperty(name, read, Variant(Ref<Object>()));
    } catch (const Unsuitable& unsuitable) {
      problem(name + ": " + unsuitable.what());
    }
  }
}

void Loader::readItem(const dom::object& object) {
  item_ = blank_;
  nextField_ = 0;
  for (const dom::key_value_pair pair : object) {
    const ItemField* const field = fieldNamed(pair.key);
    if (!field && pair.key == format::marker) {
      problem("a second header is ignored");
      return;
    }
    if (!field) {
      report_.unknownField(pair.key);
      continue;
    }
    try {
      field->read(item_, pair.value, pictures_);
    } catch (const Unsuitable& unsuitable) {
      problem(std::string(field->name) + ": " + unsuitable.what());
    }
  }
  const std::int32_t before = list_.ItemsCount();
  list_.ItemsAppend(item_);
  if (list_.ItemsCount() == before) throw Failure::outOfMemory();
  ++report_.result.items;
}

/// Most lines have their fields in the order of the table, so the search begins after the field
/// that was found last.
const ItemField* Loader::fieldNamed(std::string_view name) {
  const auto fields = itemFields();
  std::size_t at = nextField_;
  for (std::size_t left = fields.size(); left > 0; --left, ++at) {
    if (at == fields.size()) at = 0;
    if (fields[at].name != name) continue;
    nextField_ = at + 1;
    return &fields[at];
  }
  return nullptr;
}

}  // namespace

Result load(nvList& list, const std::string& path, const LoadOptions& options) {
  const auto file = Files::inUse().openFile(path, FileMode::read);
  return Loader(list, *file, options).load();
}

}  // namespace norvane::json
