#include <nvlist/files/PropertyImage.h>
#include <nvlist/files/fileExists.h>
#include <nvlist/files/inputLimits.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/Files.h>

namespace norvane {
namespace {

constexpr std::uint64_t smallestImageItem = 8;

/// The stored properties of one item.
class ItemInImage {
 public:
  ItemInImage(const PropertyImage& image, std::int32_t index)
      : image_(image), name_("i" + std::to_string(index)), prefix_(name_.size()) {}

  Variant operator()(std::string_view field, const Variant& defaultValue) {
    name_.replace(prefix_, std::string::npos, field);
    return image_.ReadProperty(name_, defaultValue);
  }

  Picture picture(std::string_view field) {
    const Ref<Object> none;
    const Variant value = (*this)(field, none);
    if (value.type() != Variant::Type::Object) throw Failure::typeMismatch();
    const Ref<Object> object = value.object();
    if (!object) return nullptr;
    return Files::inUse().loadPicture(static_cast<const StoredPicture&>(*object).file);
  }

 private:
  const PropertyImage& image_;
  std::string name_;
  std::size_t prefix_;
};

}  // namespace

/// Returns whether the file is a property store image, and loads it into ReadBag if so. A failure
/// while reading it means that it is not.
bool nvList::isImage(Trap& on, const std::string& Filename) {
  bool result = false;
  if (!FileExists(Filename)) {
    raise(on, &__nvList::ErrorListInput);
    return result;
  }
  on.ignoring([&] {
    state_.ReadBagContents = readTaggedBytes(Filename);
    if (!state_.ReadBag) state_.ReadBag = makeRef<PropertyImage>();
    auto& image = static_cast<PropertyImage&>(*state_.ReadBag);
    image.Contents(state_.ReadBagContents);
    result = compare(image.ReadProperty("count", -1), -1) != 0;
  });
  return result;
}

void nvList::inputImage(Boolean ReadItemPropertiesIfExists) {
  const auto& image = static_cast<const PropertyImage&>(*state_.ReadBag);
  const std::int32_t count = image.ReadProperty("count", std::int16_t{0}).toInt32();
  if (count == 0) return;
  const Boolean isStored = image.ReadProperty("sip", false).toBoolean();
  const bool readsProperties = ReadItemPropertiesIfExists && isStored;
  state_.Items.recreate(believedCount(count, image.size(), smallestImageItem));
  state_.Selection.removedAll();
  state_.LoopIndex = 0;
  while (state_.LoopIndex <= state_.Items.upperBound()) {
    inputImageItem(image, readsProperties);
    raiseAtLoopIndex(&__nvList::ListReading);
    toNextItem();
    yield();
  }
  state_.ItemsDimensioned = true;
  Redraw();
}

void nvList::inputImageItem(const PropertyImage& image, bool readsProperties) {
  ItemInImage stored(image, state_.LoopIndex);
  // Destroying the old values may run code of the host that removes the item.
  const Ref<StoredItem> item = state_.Items.slot(state_.LoopIndex);
  item->Text(stored("Text", "").toText());
  if (!readsProperties) {
    ListItem values = item->record();
    setDefaults(values);
    state_.Items.assign(state_.LoopIndex, values);
  } else {
    item->ownLook().AllowEdit = stored("AllowEdit", false).toBoolean();
    item->ownLook().BackColor = stored("BackColor", colours::white);
    item->ownLook().BackColorDis = stored("BackColorDis", 0).toInt32();
    item->ownLook().BackColorSelect = stored("BackColorSelect", aktValueColor());
    item->Checked(stored("Checked", false).toBoolean());
    item->ownLook().Enabled = stored("Enabled", true).toBoolean();
    item->ownLook().ForeColor = stored("ForeColor", 0);
    item->ownLook().ForeColorDis = stored("ForeColorDis", 0).toInt32();
    item->ownLook().ForeColorSelect = stored("ForeColorSelect", colours::white);
    item->ownLook().Icon = stored.picture("Icon");
    item->ownLook().IconSelected = stored.picture("IconSelected");
    item->ownLook().Alignment =
        static_cast<cItemAlignment>(stored("Alignment", std::int16_t{0}).toInt32());
    state_.Items.shareLook(state_.LoopIndex);
  }
}

std::int32_t nvList::ListFileItemsCount(const Variant& Filename) {
  std::int32_t result = 0;
  trapped(here, "ListFileItemsCount", [&](Trap& on) {
    on.ignoring([&] {
      const std::string path = Filename.toText();
      if (!FileExists(path)) {
        result = -1;
        return;
      }
      PropertyImage image;
      image.Contents(readTaggedBytes(path));
      result = image.ReadProperty("count", std::int16_t{0}).toInt32();
    });
  });
  return result;
}

}  // namespace norvane
