#include "ListFiles.h"

#include <QDataStream>
#include <QFile>

#include <nvlist/files/windows1252.h>

using norvane::ListItem;
using norvane::nvList;
using norvane::Picture;
using norvane::Variant;

namespace gallery {
namespace {

/// A property store with the fields of items, as the older form has it.
class Store {
 public:
  Store() {
    out_.setByteOrder(QDataStream::LittleEndian);
    out_.writeRawData("PBAG", 4);
  }

  void number(const std::string& name, std::int32_t value) {
    begin(name, numberKind);
    out_ << qint32(value);
  }
  void truth(const std::string& name, norvane::Boolean value) {
    begin(name, truthKind);
    out_ << qint16(value ? -1 : 0);
  }
  void text(const std::string& name, const std::string& value) {
    std::string characters;
    norvane::windows1252::append(characters, value);
    bytes(name, textKind, characters.data(), characters.size());
  }
  void colour(const std::string& name, const Variant& value) {
    if (value.isNumeric()) number(name, value.toInt32());
  }
  void picture(const std::string& name, const Picture& value) {
    if (!value) return;
    const auto file = value->fileBytes();
    bytes(name, pictureKind, reinterpret_cast<const char*>(file.data()), file.size());
  }

  bool writeTo(QFile& file) const {
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << qint16(arrayOfBytes) << qint16(1) << qint32(contents_.size()) << qint32(0);
    return file.write(head) == head.size() && file.write(contents_) == contents_.size();
  }

 private:
  enum Kind : qint16 { numberKind = 3, textKind = 8, pictureKind = 9, truthKind = 11 };
  static constexpr int arrayOfBytes = 0x2011;

  void begin(const std::string& name, Kind kind) {
    out_ << quint16(name.size());
    out_.writeRawData(name.data(), static_cast<int>(name.size()));
    out_ << kind;
  }
  void bytes(const std::string& name, Kind kind, const char* data, std::size_t size) {
    begin(name, kind);
    out_ << qint32(size);
    out_.writeRawData(data, static_cast<int>(size));
  }

  QByteArray contents_;
  QDataStream out_{&contents_, QIODevice::WriteOnly};
};

void addProperties(Store& store, const std::string& name, const ListItem& item) {
  store.truth(name + "AllowEdit", item.AllowEdit);
  store.colour(name + "BackColor", item.BackColor);
  store.number(name + "BackColorDis", item.BackColorDis);
  store.colour(name + "BackColorSelect", item.BackColorSelect);
  store.truth(name + "Checked", item.Checked);
  store.truth(name + "Enabled", item.Enabled);
  store.colour(name + "ForeColor", item.ForeColor);
  store.number(name + "ForeColorDis", item.ForeColorDis);
  store.colour(name + "ForeColorSelect", item.ForeColorSelect);
  store.picture(name + "Icon", item.Icon);
  store.picture(name + "IconSelected", item.IconSelected);
  store.number(name + "Alignment", item.Alignment);
}

/// A list file brings the marks of its items, and leaves the current item to its host.
void takeCurrentFromMarks(nvList& list) {
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
    if (!list.state().Items.at(i).Selected) continue;
    // Making one item current takes the marks off the others.
    return list.MultiSelect() ? list.ItemSelected(i, true) : list.ListIndex(i);
  }
  if (list.ItemsCount() > 0) list.ItemSelected(0, false);
}

}  // namespace

void saveListFile(nvList& list, const QString& path, Properties properties) {
  list.ListSave(path.toStdString(), properties == Properties::kept);
}

QString saveOlderFile(nvList& list, const QString& path, Properties properties) {
  const bool keepsProperties = properties == Properties::kept;
  const std::int32_t count = list.ItemsCount();
  Store store;
  store.number("count", count);
  store.truth("sip", keepsProperties);
  for (std::int32_t i = 0; i < count; ++i) {
    const std::string name = "i" + std::to_string(i);
    const ListItem& item = list.state().Items.at(i);
    store.text(name + "Text", item.Text);
    if (keepsProperties) addProperties(store, name, item);
  }
  QFile file(path);
  if (file.open(QIODevice::WriteOnly) && store.writeTo(file) && file.flush()) return {};
  return QString("Cannot write %1: %2").arg(path, file.errorString());
}

/// Place and scroll bars are the host's after this.
void openListFile(nvList& list, const QString& path, Properties properties) {
  list.ListInput(path.toStdString(), properties == Properties::kept);
  takeCurrentFromMarks(list);
  list.TopIndex(0);
  list.CheckScroll();
}

/// Both switches are off afterwards, and a host's own to turn on.
void importText(nvList& list, const QString& path, const QString& delimiter) {
  list.ListInput2(path.toStdString(), delimiter.toStdString());
  list.AutoCheckScroll(true);
  list.AutoRedraw(true);
}

}  // namespace gallery
