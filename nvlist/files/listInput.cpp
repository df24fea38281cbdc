#include <nvlist/core/numbers.h>
#include <nvlist/files/FileReader.h>
#include <nvlist/files/fileExists.h>
#include <nvlist/files/inputLimits.h>
#include <nvlist/files/windows1252.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/Application.h>

#include <utility>

namespace norvane {

/// A binary list file on its way into the list. docs/list-files.md has the layout.
class nvList::ListFile {
 public:
  ListFile(nvList& list, File& file, Boolean wantsProperties)
      : list_(list),
        file_(file),
        wantsProperties_(static_cast<std::uint8_t>(wantsProperties.number()) != 0) {}

  /// Whether the file is one of an empty list.
  bool isEmpty() const { return last_ == -1; }
  void readHeader();
  void readItems();

 private:
  static constexpr int uniformPart = 40;  ///< bytes of the fields before the flags of the font
  static constexpr int colourSize = 6;

  std::uint64_t smallestRecord() const;
  std::string text(std::int64_t size) { return windows1252::textOf(file_.bytes(size)); }
  std::string itemText();
  void readProperties(ListItem& item);
  void readFlagsAndKeys(ListItem& item);
  void readIcons(ListItem& item);
  Picture readIcon();

  nvList& list_;
  FileReader file_;
  const bool wantsProperties_;
  std::int32_t last_ = -1;
  bool hasProperties_ = false;
  std::int16_t version_ = 0;
};

void nvList::ListFile::readHeader() {
  last_ = file_.number<std::int32_t>();
  hasProperties_ = file_.number<std::uint8_t>() != 0;
  version_ = file_.number<std::int16_t>();
}

/// Bytes that an item takes at least.
std::uint64_t nvList::ListFile::smallestRecord() const {
  const std::uint64_t text = version_ >= 271 ? 4 : version_ == 270 ? 16 : 0;
  if (!hasProperties_) return text;
  constexpr std::uint64_t markers = 2;
  const std::uint64_t flagsAndKeys = version_ >= 273 ? 12 : 0;
  return text + uniformPart + flagsAndKeys + markers;
}

void nvList::ListFile::readItems() {
  ItemStore& items = list_.state_.Items;
  std::int32_t& index = list_.state_.LoopIndex;
  items.recreate(believedCount(std::int64_t{last_} + 1, file_.left(), smallestRecord()));
  for (index = 0; index <= last_; index = checked::add(index, 1)) {
    auto item = makeRef<ListItem>();
    item->Text = itemText();
    if (hasProperties_)
      readProperties(*item);
    else
      setDefaults(*item);
    const Boolean isSelected = item->Selected;
    items.slot(index) = std::move(item);
    if (isSelected) list_.state_.Selection.set(items, index, true);
  }
}

std::string nvList::ListFile::itemText() {
  if (version_ >= 271) return text(file_.number<std::int32_t>());
  if (version_ < 270) return {};
  constexpr int unusedPart = 11;
  constexpr int lengthDigits = 5;
  file_.bytes(unusedPart);
  return text(Variant(file_.bytes(lengthDigits)).toInt32());
}

void nvList::ListFile::readProperties(ListItem& item) {
  const char* next = file_.bytes(uniformPart).data();
  const auto byte = [&] { return static_cast<unsigned char>(*next++); };
  const auto colour = [&] {
    const std::string_view text(std::exchange(next, next + colourSize), colourSize);
    return list_.HTML2VBColor(text);
  };
  if (!wantsProperties_) {
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
  if (version_ >= 273) readFlagsAndKeys(item);
  readIcons(item);
}

void nvList::ListFile::readFlagsAndKeys(ListItem& item) {
  const std::string_view flags = file_.bytes(4);
  if (wantsProperties_) {
    item.Bold = flags[0] != 0;
    item.Italic = flags[1] != 0;
    item.Underline = flags[2] != 0;
    item.Selected = flags[3] != 0;
  }
  // The texts are left in the file where nobody wants them: what follows is then read amiss.
  const auto keySize = file_.number<std::int32_t>();
  if (wantsProperties_) item.Key = text(keySize);
  const auto tagSize = file_.number<std::int32_t>();
  item.Tag = wantsProperties_ ? text(tagSize) : std::string();
}

/// The second picture takes the place of the first one, or its absence does: so it has always been.
void nvList::ListFile::readIcons(ListItem& item) {
  item.Icon = readIcon();
  item.Icon = readIcon();
}

Picture nvList::ListFile::readIcon() {
  if (file_.number<std::uint8_t>() != 1) return nullptr;
  const std::string_view picture = file_.bytes(file_.number<std::int32_t>());
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
  const auto file = Application::inUse().openFile(Filename, FileMode::read);
  ListFile reader(*this, *file, ReadItemPropertiesIfExists);
  reader.readHeader();
  state_.ItemsDimensioned = false;
  if (reader.isEmpty()) return;
  reader.readItems();
  file->close();
  state_.ItemsDimensioned = true;
  Redraw();
}

Variant nvList::HTML2VBColor(std::string_view Text) {
  Variant result;
  trapped(here, "HTML2VBColor", [&](Trap& on) {
    if (trimmedBlanks(Text) == defaultMark) {
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
