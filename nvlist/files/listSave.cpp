#include <nvlist/files/FileWriter.h>
#include <nvlist/files/colourTexts.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/Files.h>

namespace norvane {
namespace {

void writeBoolean(FileWriter& file, Boolean value) {
  file.number(static_cast<std::uint8_t>(value.number()));
}

void writeColour(FileWriter& file, const Variant& colour) {
  const auto text = listFileColour(colour);
  file.bytes({text.data(), text.size()});
}

}  // namespace

// docs/list-files.md describes the layout.

void nvList::ListSave(const std::string& Filename, Boolean SaveItemProperties) {
  trapped(here, "ListSave", [&](Trap& on) {
    state_.LoopIndex = 0;
    orRaise(on, &__nvList::ErrorListSave, [&] { saveItems(Filename, SaveItemProperties); });
  });
}

void nvList::saveItems(const std::string& Filename, Boolean SaveItemProperties) {
  Files& files = Files::inUse();
  const auto file =
      files.openFile(Filename, files.savesBeside() ? FileMode::saveBeside : FileMode::save);
  FileWriter writer(*file);
  const std::int32_t last = ItemsCount() - 1;
  const auto hasProperties = static_cast<std::uint8_t>(SaveItemProperties.number());
  writer.number(last);
  writer.number(hasProperties);
  writer.number(Variant(aktuelleSpeicherVersion()).toInt16());
  for (state_.LoopIndex = 0; state_.LoopIndex <= last; toNextItem()) {
    const Ref<StoredItem> saved(&item(state_.LoopIndex));
    writer.text(saved->Text());
    if (hasProperties) saveProperties(writer, saved);
    writer.writeBlock();
    raiseAtLoopIndex(&__nvList::ListSaving);
  }
  writer.flush();
  file->close();
}

void nvList::saveProperties(FileWriter& file, const Ref<StoredItem>& item) {
  // A copy: a report may run code of the host that changes the item.
  const ItemLook look = item->look();
  writeBoolean(file, look.AllowEdit);
  writeColour(file, look.BackColor);
  writeColour(file, look.BackColorDis);
  writeColour(file, look.BackColorSelect);
  writeBoolean(file, item->Checked());
  writeBoolean(file, look.Enabled);
  writeColour(file, look.ForeColor);
  writeColour(file, look.ForeColorDis);
  writeColour(file, look.ForeColorSelect);
  file.number(static_cast<std::uint8_t>(look.Alignment));
  writeBoolean(file, look.Bold);
  writeBoolean(file, look.Italic);
  writeBoolean(file, look.Underline);
  writeBoolean(file, item->Selected());
  file.text(item->Key());
  const Variant tag = item->Tag();
  file.text(tag.isText() ? tag.text() : std::string_view(tag.toText()));
  saveIcon(file, look.Icon);
  saveIcon(file, look.IconSelected);
}

void nvList::saveIcon(FileWriter& file, const Picture& icon) {
  file.number(static_cast<std::uint8_t>(icon ? 1 : 0));
  if (!icon) return;
  std::int32_t length = 0;
  const std::string bytes = GetPictureString(icon, length);
  file.number(length);
  file.bytes(bytes);
}

}  // namespace norvane
