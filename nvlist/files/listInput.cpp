#include <nvlist/files/ByteReader.h>
#include <nvlist/files/colourTexts.h>
#include <nvlist/files/fileExists.h>
#include <nvlist/files/inputLimits.h>
#include <nvlist/files/windows1252.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/Files.h>
#include <nvlist/values/numbers.h>
#include <nvlist/values/text.h>

#include <algorithm>

namespace norvane {
namespace {

constexpr std::size_t headerSize = 7;
/// Size of the fields before the font flags, which all versions have.
constexpr int uniformPart = 40;
constexpr int colourSize = 6;

bool isHexDigit(char c) {
  const char letter = static_cast<char>(c | 0x20);
  return (c >= '0' && c <= '9') || (letter >= 'a' && letter <= 'f');
}

/// Returns whether all colours are valid as ListSave writes them, so that reading them cannot fail.
bool hasPlainColours(std::string_view uniform) {
  const auto isNumber = [&](std::size_t at) {
    return std::ranges::all_of(uniform.substr(at, colourSize), isHexDigit);
  };
  const auto isColour = [&](std::size_t at) {
    return isNumber(at) || uniform.substr(at, colourSize) == "   def";
  };
  constexpr std::size_t back = 1, backDis = 7, backSelect = 13;
  constexpr std::size_t fore = 21, foreDis = 27, foreSelect = 33;
  return isColour(back) && isNumber(backDis) && isColour(backSelect) && isColour(fore) &&
         isNumber(foreDis) && isColour(foreSelect);
}

}  // namespace

/// Reads a binary list file into the list. docs/list-files.md describes the layout.
///
/// The records up to the first one that has a picture or could fail stay in memory as bytes, and
/// their items are made when they are first accessed. All records from there on are read at once,
/// so that every failure occurs while the file is read.
class nvList::ListFile final : public ItemSource {
 public:
  ListFile(nvList& list, Boolean wantsProperties)
      : list_(list), wantsProperties_(static_cast<std::uint8_t>(wantsProperties.number()) != 0) {}

  void readHeader(File& file);
  /// Whether the file holds an empty list.
  bool isEmpty() const { return last_ == -1; }
  /// Checks the number of items in the header, loads the rest of the file and returns that number.
  std::size_t load(File& file);
  void readRecords();

  bool make(std::int32_t index, ListItem& item) override;

 private:
  std::uint64_t smallestRecord() const;
  ByteReader recordsFrom(std::size_t start) const {
    return ByteReader({records_.data() + start, records_.size() - start});
  }

  bool passPlainRecord(ByteReader& from, bool& isSelected) const;
  void oneMade();

  void readItem(ByteReader& from, ListItem& item) const;
  std::string itemText(ByteReader& from) const;
  void readProperties(ByteReader& from, ListItem& item) const;
  void readFlagsAndKeys(ByteReader& from, ListItem& item) const;
  void readIcons(ByteReader& from, ListItem& item) const;
  Picture readIcon(ByteReader& from) const;

  nvList& list_;
  const bool wantsProperties_;
  std::int32_t last_ = -1;
  bool hasProperties_ = false;
  std::int16_t version_ = 0;

  std::vector<char> records_;
  std::vector<std::uint64_t> starts_;  ///< offsets of the records whose items are made later
  std::size_t unmade_ = 1;  ///< how many of these are left, plus 1 while the file is read
};

void nvList::ListFile::readHeader(File& file) {
  const std::vector<char> head = readBytes(file, headerSize);
  ByteReader header({head.data(), head.size()});
  last_ = header.number<std::int32_t>();
  hasProperties_ = header.number<std::uint8_t>() != 0;
  version_ = header.number<std::int16_t>();
}

std::size_t nvList::ListFile::load(File& file) {
  const std::uint64_t size = std::max<std::uint64_t>(file.size(), headerSize) - headerSize;
  const std::uint64_t smallest = smallestRecord();
  const std::size_t count = believedCount(std::int64_t{last_} + 1, size, smallest);
  starts_.reserve(count);
  // Records may take no bytes at all, as in a large file of zeros; its contents are not needed.
  if (smallest > 0) records_ = readBytes(file, static_cast<std::size_t>(size));
  return count;
}

/// The least number of bytes that a record takes.
std::uint64_t nvList::ListFile::smallestRecord() const {
  const std::uint64_t text = version_ >= 271 ? 4 : version_ == 270 ? 16 : 0;
  if (!hasProperties_) return text;
  constexpr std::uint64_t markers = 2;
  const std::uint64_t flagsAndKeys = version_ >= 273 ? 12 : 0;
  return text + uniformPart + flagsAndKeys + markers;
}

void nvList::ListFile::readRecords() {
  ItemStore& items = list_.state_.Items;
  std::int32_t& index = list_.state_.LoopIndex;
  ByteReader from = recordsFrom(0);
  bool isPlain = true;
  for (index = 0; index <= last_; index = checked::add(index, 1)) {
    const std::size_t start = records_.size() - from.left();
    bool isSelected = false;
    isPlain = isPlain && passPlainRecord(from, isSelected);
    if (isPlain) {
      starts_.push_back(start);
      ++unmade_;
    } else {
      ListItem item;
      try {
        readItem(from, item);
      } catch (...) {
        items.assign(index, item);
        throw;
      }
      isSelected = static_cast<bool>(item.Selected);
      items.assign(index, item);
    }
    if (isSelected) list_.state_.Selection.setLoaded(items, index);
  }
  oneMade();
}

/// Skips the next record and returns true if nothing in it can fail.
bool nvList::ListFile::passPlainRecord(ByteReader& from, bool& isSelected) const {
  ByteReader record = from;
  const auto passText = [&](bool isRead) {
    if (record.left() < sizeof(std::int32_t)) return false;
    const auto size = record.number<std::int32_t>();
    return !isRead || record.pass(size);
  };
  if (version_ < 271 || !passText(true)) return false;
  if (hasProperties_) {
    if (record.left() < uniformPart) return false;
    const std::string_view uniform = record.bytes(uniformPart);
    if (wantsProperties_ && !hasPlainColours(uniform)) return false;
    if (version_ >= 273) {
      if (record.left() < 4) return false;
      isSelected = record.bytes(4)[3] != 0 && wantsProperties_;
      if (!passText(wantsProperties_) || !passText(wantsProperties_)) return false;
    }
    if (record.left() < 2) return false;
    const std::string_view markers = record.bytes(2);
    if (markers[0] == 1 || markers[1] == 1) return false;
  }
  from = record;
  return true;
}

bool nvList::ListFile::make(std::int32_t index, ListItem& item) {
  const auto record = static_cast<std::size_t>(index);
  if (record >= starts_.size()) return false;
  ByteReader from = recordsFrom(static_cast<std::size_t>(starts_[record]));
  readItem(from, item);
  oneMade();
  return true;
}

/// Frees the bytes of the file after the last item has been made.
void nvList::ListFile::oneMade() {
  if (--unmade_ > 0) return;
  records_ = std::vector<char>();
  starts_ = std::vector<std::uint64_t>();
}

void nvList::ListFile::readItem(ByteReader& from, ListItem& item) const {
  item.Text = itemText(from);
  if (hasProperties_)
    readProperties(from, item);
  else
    setDefaults(item);
}

std::string nvList::ListFile::itemText(ByteReader& from) const {
  if (version_ < 270) return {};
  if (version_ >= 271) return windows1252::textOf(from.bytes(from.number<std::int32_t>()));
  constexpr int unusedPart = 11;
  constexpr int lengthDigits = 5;
  from.bytes(unusedPart);
  const std::int32_t size = Variant(from.bytes(lengthDigits)).toInt32();
  return windows1252::textOf(from.bytes(size));
}

void nvList::ListFile::readProperties(ByteReader& from, ListItem& item) const {
  // Field by field: a record may be cut after a colour whose conversion fails and is reported.
  const auto byte = [&] { return from.number<std::uint8_t>(); };
  const auto colour = [&] { return list_.HTML2VBColor(from.bytes(colourSize)); };
  if (!wantsProperties_) {
    from.bytes(uniformPart);
    setDefaults(item);
  } else {
    item.AllowEdit = byte() != 0;
    item.BackColor = colour();
    item.BackColorDis = colour().toInt32();
    item.BackColorSelect = colour();
    item.Checked = byte() != 0;
    item.Enabled = byte() != 0;
    item.ForeColor = colour();
    item.ForeColorDis = colour().toInt32();
    item.ForeColorSelect = colour();
    item.Alignment = static_cast<cItemAlignment>(byte());
  }
  if (version_ >= 273) readFlagsAndKeys(from, item);
  readIcons(from, item);
}

void nvList::ListFile::readFlagsAndKeys(ByteReader& from, ListItem& item) const {
  const std::string_view flags = from.bytes(4);
  if (wantsProperties_) {
    item.Bold = flags[0] != 0;
    item.Italic = flags[1] != 0;
    item.Underline = flags[2] != 0;
    item.Selected = flags[3] != 0;
  }
  // Without the properties only the lengths are consumed, so a non-empty key or tag shifts all that
  // follows.
  const auto text = [&](std::int32_t size) { return windows1252::textOf(from.bytes(size)); };
  const auto keySize = from.number<std::int32_t>();
  if (wantsProperties_) item.Key = text(keySize);
  const auto tagSize = from.number<std::int32_t>();
  item.Tag = wantsProperties_ ? text(tagSize) : std::string();
}

/// The second picture, or its absence, replaces the first one. Hosts rely on this.
void nvList::ListFile::readIcons(ByteReader& from, ListItem& item) const {
  item.Icon = readIcon(from);
  item.Icon = readIcon(from);
}

Picture nvList::ListFile::readIcon(ByteReader& from) const {
  if (from.number<std::uint8_t>() != 1) return nullptr;
  const std::string_view picture = from.bytes(from.number<std::int32_t>());
  return wantsProperties_ ? list_.GetStringPicture(picture) : nullptr;
}

void nvList::ListInput(const std::string& Filename, Boolean ReadItemPropertiesIfExists) {
  trapped(here, "ListInput", [&](Trap& on) {
    if (!FileExists(Filename)) {
      raise(on, &__nvList::ErrorListInput);
    } else if (isImage(on, Filename)) {
      orRaise(on, &__nvList::ErrorListInput, [&] { inputImage(ReadItemPropertiesIfExists); });
    } else {
      orRaise(on, &__nvList::ErrorListInput,
              [&] { inputItems(Filename, ReadItemPropertiesIfExists); });
    }
  });
}

void nvList::inputItems(const std::string& Filename, Boolean ReadItemPropertiesIfExists) {
  const auto file = Files::inUse().openFile(Filename, FileMode::read);
  const auto reader = std::make_shared<ListFile>(*this, ReadItemPropertiesIfExists);
  reader->readHeader(*file);
  state_.ItemsDimensioned = false;
  if (reader->isEmpty()) return;
  state_.Items.recreate(reader->load(*file), reader);
  state_.Selection.removedAll();
  reader->readRecords();
  file->close();
  state_.ItemsDimensioned = true;
  Redraw();
}

Variant nvList::HTML2VBColor(std::string_view Text) {
  Variant result;
  trapped(here, "HTML2VBColor", [&](Trap& on) {
    if (trimmed(Text, " ") == defaultMark) {
      result = defaultMark;
      return;
    }
    if (Text.starts_with('#')) Text.remove_prefix(1);
    Colour red = 0, green = 0, blue = 0;
    on.step([&] { red = channelOfText(Text, 0); });
    on.step([&] { green = channelOfText(Text, 2); });
    on.step([&] { blue = channelOfText(Text, 4); });
    result = red | green << 8 | blue << 16;
  });
  return result;
}

}  // namespace norvane
