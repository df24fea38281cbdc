#include "files.h"

#include <algorithm>
#include <memory>

#include <nvlist/files/ByteReader.h>
#include <nvlist/files/windows1252.h>
#include <nvlist/json/JsonLines.h>
#include <nvlist/json/LineReader.h>
#include <nvlist/platform/Files.h>

#include "damage.h"

using norvane::Failure;
using norvane::FileMode;
using norvane::Files;
using norvane::nvList;

namespace tool {
namespace {

constexpr std::size_t blockSize = std::size_t{256} * 1024;

struct Known {
  Kind kind;
  const char* name;
  std::vector<const char*> extensions;
};
const Known kinds[] = {{Kind::listFile, "list", {".nvl", ".lst"}},
                       {Kind::jsonLines, "jsonl", {".jsonl", ".ndjson"}},
                       {Kind::text, "text", {".txt", ".text"}}};

std::unique_ptr<norvane::File> openForReading(const std::string& path) {
  try {
    return Files::inUse().openFile(path, FileMode::read);
  } catch (const Failure& failure) {
    throw Trouble(cannotRead, path + ": " + failure.what());
  }
}

/// Receives the events of list files.
class Events final : public norvane::__nvList {
 public:
  Events(Session& session, nvList& list) : session_(session), list_(list) { list.addSink(*this); }
  ~Events() override { list_.removeSink(*this); }
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;

  bool hasFailed = false;

  void ErrorListInput() override { hasFailed = true; }
  void ErrorListSave() override { hasFailed = true; }
  void ListSaving(norvane::Variant& Index) override {
    session_.progress("saving", static_cast<std::uint64_t>(Index.toInt32()),
                      static_cast<std::uint64_t>(list_.ItemsCount()));
  }
  void ListReading(norvane::Variant& Index) override {
    session_.progress("reading", static_cast<std::uint64_t>(Index.toInt32()),
                      static_cast<std::uint64_t>(list_.ItemsCount()));
  }

 private:
  Session& session_;
  nvList& list_;
};

void loadListFile(Session& session, nvList& list, const std::string& path, Loaded& loaded) {
  const Structure structure = structureOf(*openForReading(path));
  loaded.format = structure.format;
  Events events(session, list);
  list.ListInput(path, true);
  if (!structure.damage.empty())
    loaded.damage.push_back(structure.damage);
  else if (events.hasFailed)
    loaded.damage.emplace_back("the file cannot be read to its end");
  if (const std::uint64_t count = session.takeReports(); count > 0)
    loaded.damage.push_back(std::to_string(count) + " colours or pictures are invalid (" +
                            session.firstReport() + ")");
}

void loadJsonLines(Session& session, nvList& list, const std::string& path, Loaded& loaded) {
  norvane::json::Result result;
  try {
    result = norvane::json::load(list, path, {.progress = [&](auto part, auto whole) {
                                   session.progress("reading", part, whole);
                                   return true;
                                 }});
  } catch (const Failure& failure) {
    throw Trouble(cannotRead, path + ": " + failure.what());
  }
  loaded.format = "JSON Lines";
  loaded.hasProperties = result.hasProperties;
  for (const auto& [line, text] : result.firstProblems)
    loaded.damage.push_back("line " + std::to_string(line) + ": " + text);
  if (result.problems > result.firstProblems.size())
    loaded.damage.push_back("and " + std::to_string(result.problems - result.firstProblems.size()) +
                            " more");
  loaded.unknownFields = result.unknownFields;
}

void loadText(Session& session, nvList& list, const std::string& path, Loaded& loaded) {
  const auto file = openForReading(path);
  norvane::json::LineReader lines(*file, 0);
  loaded.format = "text";
  while (lines.next()) {
    std::string_view line = lines.line();
    if (lines.isTooLong() || line.find('\0') != std::string_view::npos)
      throw Trouble(cannotRead, path + ": line " + std::to_string(lines.number()) +
                                    " is not a text: it has a zero byte or is too long");
    if (line.ends_with('\r')) line.remove_suffix(1);
    list.ItemsAdd(line);
    if (lines.number() % 4096 == 0) session.progress("reading", lines.done(), lines.whole());
  }
}

void requireNew(const std::string& path, bool mayReplace) {
  if (!mayReplace && Files::inUse().holdsFile(path))
    throw Trouble(cannotWrite, path + " exists already; --force replaces it");
}

[[noreturn]] void cannotSave(const std::string& path, const std::string& why) {
  throw Trouble(cannotWrite, path + ": " + why);
}

/// A list file reads the second picture into the first, so an item with one picture gets it twice.
/// Returns what is lost.
std::vector<std::string> prepareForListFile(nvList& list) {
  std::int64_t texts = 0, pictures = 0;
  std::string bytes;
  const auto isKept = [&](std::string_view text) {
    const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
    if (std::ranges::all_of(text, isAscii)) return true;
    bytes.clear();
    norvane::windows1252::append(bytes, text);
    return norvane::windows1252::textOf(bytes) == text;
  };
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
    const norvane::ListItem item = list.state().Items.at(i);
    if (!isKept(item.Text) || !isKept(item.Key) || !isKept(item.Tag.text())) ++texts;
    if (item.Icon && !item.IconSelected)
      list.ItemIconSelected(i, item.Icon);
    else if (item.Icon && item.Icon != item.IconSelected)
      ++pictures;
  }
  std::vector<std::string> lost;
  if (texts > 0)
    lost.push_back(std::to_string(texts) +
                   " items have characters that list files cannot hold; they are written as ?");
  if (pictures > 0)
    lost.push_back(std::to_string(pictures) +
                   " items have two different icons, of which list files keep the second");
  return lost;
}

void saveListFile(Session& session, nvList& list, const std::string& path) {
  Files::inUse().savesBeside(true);
  Events events(session, list);
  list.ListSave(path, true);
  session.progress("saving", 1, 1);
  if (events.hasFailed) cannotSave(path, "the file cannot be written");
}

std::vector<std::string> saveJsonLines(Session& session, nvList& list, const std::string& path,
                                       bool onlyChanged) {
  using norvane::json::Fields;
  const norvane::json::Result result =
      norvane::json::save(list, path,
                          {.fields = onlyChanged ? Fields::changed : Fields::all,
                           .progress = [&](auto part, auto whole) {
                             session.progress("saving", part, whole);
                             return true;
                           }});
  std::vector<std::string> lost;
  for (const auto& [line, text] : result.firstProblems)
    lost.push_back("line " + std::to_string(line) + ": " + text);
  return lost;
}

void saveText(Session& session, nvList& list, const std::string& path) {
  const auto file = Files::inUse().openFile(path, FileMode::saveBeside);
  std::string block;
  const auto flush = [&] {
    file->write(block.data(), block.size());
    block.clear();
  };
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
    const std::string text = list.state().Items.at(i).Text;
    if (text.find_first_of("\r\n") != std::string::npos)
      cannotSave(path, "item " + std::to_string(i) +
                           " has several lines, which a text file cannot keep apart");
    block.append(text).append("\n");
    if (block.size() < blockSize) continue;
    flush();
    session.progress("saving", static_cast<std::uint64_t>(i),
                     static_cast<std::uint64_t>(list.ItemsCount()));
  }
  flush();
  file->close();
}

}  // namespace

Kind kindNamed(const std::string& name) {
  for (const Known& known : kinds)
    if (name == known.name) return known.kind;
  throw Trouble(wrongUse, "unknown kind of file " + name + "; use list, jsonl or text");
}

std::optional<Kind> kindByExtension(const std::string& path) {
  for (const Known& known : kinds)
    for (const char* extension : known.extensions)
      if (path.ends_with(extension)) return known.kind;
  return std::nullopt;
}

Kind kindOfFile(const std::string& path) {
  const auto file = openForReading(path);
  if (const auto kind = kindByExtension(path)) return *kind;
  const std::vector<char> head = norvane::readBytes(*file, 512);
  const std::string_view first(head.data(), head.size());
  // The numbers in a list file have zero bytes, unless it is huge.
  if (first.find('\0') != std::string_view::npos) return Kind::listFile;
  const std::size_t begin = first.find_first_not_of("\xEF\xBB\xBF \t\r\n");
  const bool isObject = begin != std::string_view::npos && first[begin] == '{';
  return isObject ? Kind::jsonLines : Kind::text;
}

Loaded loadFile(Session& session, nvList& list, const std::string& path, std::optional<Kind> kind) {
  Loaded loaded;
  loaded.kind = kind ? *kind : kindOfFile(path);
  session.takeReports();
  switch (loaded.kind) {
    case Kind::listFile:
      loadListFile(session, list, path, loaded);
      break;
    case Kind::jsonLines:
      loadJsonLines(session, list, path, loaded);
      break;
    case Kind::text:
      loadText(session, list, path, loaded);
      break;
  }
  session.endProgress();
  return loaded;
}

std::vector<std::string> saveFile(Session& session, nvList& list, const std::string& path,
                                  const Saving& saving) {
  requireNew(path, saving.mayReplace);
  std::vector<std::string> lost;
  try {
    switch (saving.kind) {
      case Kind::listFile:
        lost = prepareForListFile(list);
        saveListFile(session, list, path);
        break;
      case Kind::jsonLines:
        lost = saveJsonLines(session, list, path, saving.onlyChanged);
        break;
      case Kind::text:
        saveText(session, list, path);
        break;
    }
  } catch (const Failure& failure) {
    cannotSave(path, failure.what());
  }
  session.endProgress();
  return lost;
}

void writeText(const std::string& path, bool mayReplace, const std::string& text) {
  requireNew(path, mayReplace);
  try {
    const auto file = Files::inUse().openFile(path, FileMode::saveBeside);
    file->write(text.data(), text.size());
    file->close();
  } catch (const Failure& failure) {
    cannotSave(path, failure.what());
  }
}

}  // namespace tool
