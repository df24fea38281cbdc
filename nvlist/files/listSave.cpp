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
    ListItem& saved = item(state_.LoopIndex);
    writer.text(saved.Text);
    if (hasProperties) saveProperties(writer, saved);
    writer.writeBlock();
    raiseAtLoopIndex(&__nvList::ListSaving);
  }
  writer.flush();
  file->close();
}

void nvList::saveProperties(FileWriter& file, ListItem& item) {
  // A report may run code of the host that removes the item.
  const Ref<ListItem> held(&item);
  writeBoolean(file, item.AllowEdit);
  writeColour(file, item.BackColor);
  writeColour(file, item.BackColorDis);
  writeColour(file, item.BackColorSelect);
  writeBoolean(file, item.Checked);
  writeBoolean(file, item.Enabled);
  writeColour(file, item.ForeColor);
  writeColour(file, item.ForeColorDis);
  writeColour(file, item.ForeColorSelect);
  file.number(static_cast<std::uint8_t>(item.Alignment));
  writeBoolean(file, item.Bold);
  writeBoolean(file, item.Italic);
  writeBoolean(file, item.Underline);
  writeBoolean(file, item.Selected);
  file.text(item.Key);
  file.text(item.Tag.isText() ? item.Tag.text() : std::string_view(item.Tag.toText()));
  saveIcon(file, item.Icon);
  saveIcon(file, item.IconSelected);
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
