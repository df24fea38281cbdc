#include "ListFiles.h"

#include <QDataStream>
#include <QFile>

#include <nvlist/files/windows1252.h>

using norvane::nvList;

namespace gallery {
namespace {

/// Writes a file in the older format, as far as texts need it.
class Store {
 public:
  Store() {
    out_.setByteOrder(QDataStream::LittleEndian);
    out_ << qint16(arrayOfBytes) << qint16(1) << qint32(0) << qint32(0);
    out_.writeRawData("PBAG", 4);
  }

  void number(const std::string& name, std::int32_t value) {
    begin(name, 3);
    out_ << qint32(value);
  }
  void text(const std::string& name, const std::string& value) {
    std::string characters;
    norvane::windows1252::append(characters, value);
    begin(name, 8);
    out_.writeBytes(characters.data(), static_cast<uint>(characters.size()));
  }

  QByteArray file() {
    constexpr int head = 12;
    out_.device()->seek(4);
    out_ << qint32(bytes_.size() - head);
    return bytes_;
  }

 private:
  static constexpr int arrayOfBytes = 0x2011;

  void begin(const std::string& name, qint16 kind) {
    out_ << quint16(name.size());
    out_.writeRawData(name.data(), static_cast<int>(name.size()));
    out_ << kind;
  }

  QByteArray bytes_;
  QDataStream out_{&bytes_, QIODevice::WriteOnly};
};

/// A list file restores which items are selected, but not the current item.
void takeCurrentFromMarks(nvList& list) {
  for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
    if (!list.state().Items.at(i).Selected) continue;
    // Setting ListIndex deselects all other items.
    return list.MultiSelect() ? list.ItemSelected(i, true) : list.ListIndex(i);
  }
  if (list.ItemsCount() > 0) list.ItemSelected(0, false);
}

}  // namespace

void saveListFile(nvList& list, const QString& path, Properties properties) {
  list.ListSave(path.toStdString(), properties == Properties::kept);
}

QString saveOlderFile(const nvList& list, const QString& path) {
  Store store;
  const std::int32_t count = list.ItemsCount();
  store.number("count", count);
  for (std::int32_t i = 0; i < count; ++i)
    store.text("i" + std::to_string(i) + "Text", list.state().Items.at(i).Text);
  const QByteArray bytes = store.file();
  QFile file(path);
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
  if (isWritten && file.flush()) return {};
  return QString("Cannot write %1: %2").arg(path, file.errorString());
}

/// ListInput leaves the position and the scroll bars to the host.
void openListFile(nvList& list, const QString& path, Properties properties) {
  list.ListInput(path.toStdString(), properties == Properties::kept);
  takeCurrentFromMarks(list);
  list.TopIndex(0);
  list.CheckScroll();
}

/// ListInput2 leaves AutoCheckScroll and AutoRedraw off.
void importText(nvList& list, const QString& path, const QString& delimiter) {
  list.ListInput2(path.toStdString(), delimiter.toStdString());
  list.AutoCheckScroll(true);
  list.AutoRedraw(true);
}

}  // namespace gallery
