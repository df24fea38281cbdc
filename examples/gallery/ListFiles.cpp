#include "ListFiles.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "JsonFiles.h"

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

/// Whether a list file may begin with these bytes.
bool isListFile(const QByteArray& head, qint64 size) {
  QDataStream in(head);
  in.setByteOrder(QDataStream::LittleEndian);
  qint32 last = 0;
  quint8 hasProperties = 0;
  qint16 version = 0;
  in >> last >> hasProperties >> version;
  constexpr qint32 olderForm = 0x12011;
  if (last == olderForm) return true;
  // Items of the oldest versions may take no bytes.
  constexpr qint64 alwaysPossible = 4096;
  return in.status() == QDataStream::Ok && last >= -1 && version > 0 &&
         last < std::max(size, alwaysPossible);
}

/// Adds an item for each line.
void openTextFile(nvList& list, const QString& path, const Continues& continues) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw QString("Cannot read %1: %2").arg(path, file.errorString());
  list.ItemsClear();
  const norvane::Boolean redraws = list.AutoRedraw(), checks = list.AutoCheckScroll();
  list.AutoRedraw(false);
  list.AutoCheckScroll(false);
  constexpr int linesAtOnce = 10000;
  for (int count = 1; !file.atEnd(); ++count) {
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r')) line.chop(1);
    list.ItemsAdd(line.toStdString());
    if (count % linesAtOnce == 0 && !continues(static_cast<int>(file.pos() * 100 / file.size())))
      break;
  }
  list.AutoCheckScroll(checks);
  list.AutoRedraw(redraws);
}

}  // namespace

FileKind kindOf(const QString& path) {
  const QFileInfo facts(path);
  if (facts.isDir()) throw QString("%1 is a folder, not a file").arg(path);
  if (facts.exists() && !facts.isFile()) throw QString("%1 is a device, not a file").arg(path);
  QFile file(path);
  constexpr qint64 headSize = 4096;
  if (!file.open(QIODevice::ReadOnly))
    throw QString("cannot read %1: %2").arg(path, file.errorString());
  const QByteArray head = file.read(headSize);
  if (!head.contains('\0')) {
    const QByteArray text = head.startsWith("\xEF\xBB\xBF") ? head.mid(3) : head;
    return text.trimmed().startsWith('{') ? FileKind::jsonLines : FileKind::text;
  }
  if (!isListFile(head, file.size())) throw QString("%1 is neither a list nor a text").arg(path);
  return FileKind::list;
}

QStringList openAnyFile(nvList& list, const QString& path, Properties properties,
                        const Continues& continues) {
  QStringList remarks;
  switch (kindOf(path)) {
    case FileKind::jsonLines:
      remarks = openJsonLines(list, path, properties, continues);
      break;
    case FileKind::list:
      openListFile(list, path, properties);
      return remarks;
    case FileKind::text:
      openTextFile(list, path, continues);
      break;
  }
  takeCurrentFromMarks(list);
  list.TopIndex(0);
  list.CheckScroll();
  return remarks;
}

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
