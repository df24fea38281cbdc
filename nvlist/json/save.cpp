#include <nvlist/core/storedProperties.h>
#include <nvlist/json/JsonLines.h>
#include <nvlist/json/Report.h>
#include <nvlist/json/format.h>
#include <nvlist/json/itemFields.h>
#include <nvlist/json/texts.h>
#include <nvlist/platform/Files.h>
#include <nvlist/values/Failure.h>

namespace norvane::json {
namespace {

void appendProperty(std::string& out, const StoredProperty& property, const Variant& value) {
  switch (property.type) {
    case PropertyType::font:
      appendFont(out, Ref<FontObject>(dynamic_cast<FontObject*>(value.object().get())));
      break;
    case PropertyType::colour:
      appendColour(out, value.toInt32());
      break;
    case PropertyType::boolean:
      appendBoolean(out, Boolean::ofNumber(value.toInt16()));
      break;
    case PropertyType::single:
      appendSingle(out, value.toSingle());
      break;
    default:
      appendInteger(out, value.toInt32());
  }
}

std::string headerOf(const nvList& list) {
  std::string out = "{\"";
  out.append(format::marker).append("\":").append(std::to_string(format::version));
  out.append(",\"").append(format::itemCount).append("\":");
  out.append(std::to_string(list.ItemsCount()));
  out.append(",\"").append(format::properties).append("\":");
  char separator = '{';
  for (const StoredProperty& property : storedProperties()) {
    out += separator;
    separator = ',';
    out.append("\"").append(property.name).append("\":");
    appendProperty(out, property, property.get(list));
  }
  return out + "}}\n";
}

}  // namespace

Result save(const nvList& list, const std::string& path, const SaveOptions& options) {
  Report report;
  RecentPictures pictures;
  const ListItem unchanged = newItem();
  const auto file = Files::inUse().openFile(path, FileMode::saveBeside);

  std::string block = headerOf(list);
  const auto isContinued = [&](std::int32_t done) {
    file->write(block.data(), block.size());
    block.clear();
    return !options.progress || options.progress(static_cast<std::uint64_t>(done),
                                                 static_cast<std::uint64_t>(list.ItemsCount()));
  };
  // `progress` may change the list.
  for (std::int32_t index = 0; index < list.ItemsCount(); ++index) {
    const std::size_t start = block.size();
    const ListItem item = list.state().Items.at(index);
    char separator = '{';
    for (const ItemField& field : itemFields()) {
      if (options.fields == Fields::changed && field.isSame(item, unchanged)) continue;
      block += separator;
      separator = ',';
      block.append("\"").append(field.name).append("\":");
      if (!field.append(block, item, pictures))
        report.problem(static_cast<std::uint64_t>(index) + 2,
                       std::string(field.name) + ": left out, since it has no file or text");
    }
    block += separator == '{' ? "{}\n" : "}\n";
    if (block.size() - start > format::longestLine)
      throw Failure(6, "Overflow: item " + std::to_string(index) + " is too large for a line");
    ++report.result.items;
    if (block.size() >= format::blockSize && !isContinued(index + 1)) {
      report.result.isStopped = true;
      return report.result;
    }
  }
  if (!isContinued(list.ItemsCount())) {
    report.result.isStopped = true;
    return report.result;
  }
  file->close();
  return report.result;
}

}  // namespace norvane::json
