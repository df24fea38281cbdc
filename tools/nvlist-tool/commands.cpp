#include "commands.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <set>

#include <nvlist/drawing/SvgDocument.h>
#include <nvlist/json/itemFields.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include "compare.h"

using norvane::HeadlessContainer;
using norvane::HeadlessList;
using norvane::ListItem;
using norvane::nvList;

namespace tool {
namespace {

/// A list that does nothing but keep items until it is rendered.
class QuietList : public HeadlessList {
 public:
  QuietList(int width, int height)
      : HeadlessList(static_cast<float>(width), static_cast<float>(height)) {
    list().AutoRedraw(false);
    list().AutoCheckScroll(false);
  }
  QuietList() : QuietList(100, 100) {}
};

void print(const std::string& line) { std::printf("%s\n", line.c_str()); }

/// Remarks on what is damaged. Returns whether anything is.
bool remarkDamage(Session& session, const std::string& path, const Loaded& loaded) {
  for (const std::string& damage : loaded.damage) session.remark(path + ": " + damage);
  for (const std::string& name : loaded.unknownFields)
    session.remark(path + ": the field " + name + " is unknown and was left out");
  return !loaded.damage.empty();
}

std::string joined(const std::vector<std::string>& words) {
  std::string result;
  for (const std::string& word : words) result += (result.empty() ? "" : ", ") + word;
  return result.empty() ? "none" : result;
}

/// Which fields differ from those of a new item, and the pictures.
class Usage {
 public:
  void add(const ListItem& item) {
    const auto fields = norvane::json::itemFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
      if (!isUsed_[i] && !fields[i].isSame(item, blank_)) isUsed_[i] = true;
    for (const norvane::Picture& picture : {item.Icon, item.IconSelected}) {
      if (!picture) continue;
      ++uses_;
      // Neighbours share their pictures, so their sizes are computed once.
      if (!known_.insert(picture.get()).second) continue;
      bytes_ += picture->fileBytes().size();
    }
  }

  std::string fields() const {
    std::vector<std::string> names;
    const auto fields = norvane::json::itemFields();
    for (std::size_t i = 0; i < fields.size(); ++i)
      if (isUsed_[i]) names.emplace_back(fields[i].name);
    return joined(names);
  }
  std::string pictures() const {
    if (known_.empty()) return "none";
    return std::to_string(known_.size()) + " in " + std::to_string(uses_) + " places, " +
           std::to_string(bytes_) + " bytes";
  }

 private:
  const ListItem blank_ = norvane::json::newItem();
  std::vector<bool> isUsed_ = std::vector<bool>(norvane::json::itemFields().size());
  std::set<const void*> known_;
  std::uint64_t uses_ = 0;
  std::uint64_t bytes_ = 0;
};

/// The fields of an item in their JSON forms.
std::vector<std::string> fieldTexts(const ListItem& item) {
  norvane::json::RecentPictures pictures;
  std::vector<std::string> texts;
  for (const auto& field : norvane::json::itemFields())
    field.append(texts.emplace_back(), item, pictures);
  return texts;
}

std::vector<std::uint64_t> hashesOf(const nvList& list) {
  norvane::json::RecentPictures pictures;
  std::vector<std::uint64_t> hashes;
  std::string text;
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
    text.clear();
    const ListItem item = list.state().Items.at(i);
    for (const auto& field : norvane::json::itemFields()) {
      field.append(text, item, pictures);
      text += ',';
    }
    hashes.push_back(std::hash<std::string>{}(text));
  }
  return hashes;
}

/// Prints how an item of one list became one of another.
void printChange(const ListItem& before, std::size_t from, const ListItem& after, std::size_t to) {
  const std::vector<std::string> old = fieldTexts(before), now = fieldTexts(after);
  const std::string place =
      from == to ? std::to_string(from) : std::to_string(from) + " -> " + std::to_string(to);
  std::string line = "! " + place + " " + old[0] + ":";
  const auto fields = norvane::json::itemFields();
  for (std::size_t i = 0; i < fields.size(); ++i)
    if (old[i] != now[i])
      line.append(" ")
          .append(fields[i].name)
          .append(" ")
          .append(old[i])
          .append(" -> ")
          .append(now[i]);
  print(line);
}

std::string fileSuffix(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  return dot == std::string::npos ? "" : path.substr(dot);
}

/// The part of the list's check boxes and icons that its items use.
norvane::cListStyle styleByItems(const nvList& list) {
  bool hasChecks = false, hasIcons = false;
  for (std::int32_t i = 0; i < list.ItemsCount() && !(hasChecks && hasIcons); ++i) {
    const ListItem item = list.state().Items.at(i);
    hasChecks = hasChecks || item.Checked;
    hasIcons = hasIcons || item.Icon || item.IconSelected;
  }
  if (hasIcons) return hasChecks ? norvane::cCheckBoxesIcons : norvane::cIcons;
  return hasChecks ? norvane::cCheckBoxes : norvane::cDefault;
}

/// Measures texts like the fonts in which viewers show them.
void measureLikeViewers(HeadlessContainer& place) {
  place.ownSurface().fontMeasure({.width = 5.6F, .boldWidth = 6.6F, .height = 13});
  for (HeadlessContainer* child : place.children()) measureLikeViewers(*child);
}

}  // namespace

Status info(Session& session, const Arguments& arguments) {
  QuietList form;
  const std::string& path = arguments.files.at(0);
  const Loaded loaded = loadFile(session, form.list(), path, arguments.from);
  Usage usage;
  for (std::int32_t i = 0; i < form.list().ItemsCount(); ++i)
    usage.add(form.list().state().Items.at(i));
  print("Format:   " + loaded.format);
  print("Items:    " + std::to_string(form.list().ItemsCount()));
  print("Fields:   " + usage.fields());
  print("Pictures: " + usage.pictures());
  print("Damage:   " + joined(loaded.damage));
  if (!loaded.unknownFields.empty()) print("Unknown:  " + joined(loaded.unknownFields));
  return done;
}

Status check(Session& session, const Arguments& arguments) {
  bool isDamaged = false;
  for (const std::string& path : arguments.files) {
    QuietList form;
    const Loaded loaded = loadFile(session, form.list(), path, arguments.from);
    isDamaged = remarkDamage(session, path, loaded) || isDamaged;
  }
  return isDamaged ? differs : done;
}

Status convert(Session& session, const Arguments& arguments) {
  const std::string& from = arguments.files.at(0);
  const std::string& into = arguments.files.at(1);
  const auto kind = arguments.to ? arguments.to : kindByExtension(into);
  if (!kind) throw Trouble(wrongUse, into + ": unknown extension; use --to");
  QuietList form;
  bool isWhole = !remarkDamage(session, from, loadFile(session, form.list(), from, arguments.from));
  const Saving saving{*kind, arguments.mayReplace, arguments.onlyChanged};
  for (const std::string& lost : saveFile(session, form.list(), into, saving)) {
    session.remark(into + ": " + lost);
    isWhole = false;
  }
  return isWhole ? done : differs;
}

Status render(Session& session, const Arguments& arguments) {
  const std::string suffix = fileSuffix(arguments.output);
  if (suffix != ".svg" && suffix != ".txt")
    throw Trouble(wrongUse, "render needs -o with a file that ends in .svg or .txt");
  const std::string& path = arguments.files.at(0);
  QuietList form(arguments.width, arguments.height);
  measureLikeViewers(form.container());
  nvList& list = form.list();
  const Loaded loaded = loadFile(session, list, path, arguments.from);
  const bool isWhole = !remarkDamage(session, path, loaded);
  if (arguments.style) list.ColorStyle(*arguments.style);
  if (arguments.show)
    list.Style(*arguments.show);
  else if (!loaded.hasProperties)
    list.Style(styleByItems(list));
  list.AutoCheckScroll(true);
  list.AutoRedraw(true);
  const std::int64_t top = std::int64_t{arguments.page - 1} * list.VisibleItems();
  if (top > 0 && top >= list.ItemsCount())
    throw Trouble(wrongUse, "there is no page " + std::to_string(arguments.page));
  list.TopIndex(static_cast<std::int32_t>(top));

  std::string picture;
  if (suffix == ".txt") {
    picture = form.picture();
  } else {
    norvane::SvgDocument document(form.surface().ScaleWidth(), form.surface().ScaleHeight());
    form.container().replay([&](const norvane::Bounds& at) -> norvane::Surface& {
      return document.add(at.Left, at.Top, at.Width, at.Height);
    });
    picture = document.text();
  }
  writeText(arguments.output, arguments.mayReplace, picture);
  return isWhole ? done : differs;
}

Status diff(Session& session, const Arguments& arguments) {
  QuietList first, second;
  bool isSame = true;
  for (const auto& [form, path] :
       {std::pair<QuietList&, const std::string&>(first, arguments.files.at(0)),
        {second, arguments.files.at(1)}}) {
    const Loaded loaded = loadFile(session, form.list(), path, arguments.from);
    if (remarkDamage(session, path, loaded)) isSame = false;
  }
  const auto itemOf = [](QuietList& form, std::size_t index) {
    return form.list().state().Items.at(static_cast<std::int32_t>(index));
  };
  compare(hashesOf(first.list()), hashesOf(second.list()), [&](Change change) {
    isSame = false;
    for (; change.a < change.aEnd && change.b < change.bEnd; ++change.a, ++change.b) {
      const ListItem before = itemOf(first, change.a), after = itemOf(second, change.b);
      const bool isOne =
          before.Text == after.Text || (!before.Key.empty() && before.Key == after.Key);
      if (!isOne) break;
      printChange(before, change.a, after, change.b);
    }
    for (; change.a < change.aEnd; ++change.a)
      print("- " + std::to_string(change.a) + " " + fieldTexts(itemOf(first, change.a))[0]);
    for (; change.b < change.bEnd; ++change.b)
      print("+ " + std::to_string(change.b) + " " + fieldTexts(itemOf(second, change.b))[0]);
  });
  return isSame ? done : differs;
}

}  // namespace tool
