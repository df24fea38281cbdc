#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Measure.h"
#include "Subjects.h"

namespace {

/// The fields of an item in a list file, in types that QDataStream supports.
struct QtItem {
  QString text;
  QString key;
  QString tag;
  qint32 colours[6] = {};
  bool flags[7] = {};
  quint8 alignment = 0;
  QByteArray icon;
  QByteArray iconSelected;
};

using QtItems = std::vector<std::shared_ptr<QtItem>>;

std::string path(const char* name) {
  static const QTemporaryDir folder;
  return folder.filePath(name).toStdString();
}

// Every item has a key, a tag and one colour of its own; the other colours are the list's.

void addItems(norvane::nvList& list, int count) {
  for (int i = 0; i < count; ++i)
    list.ItemsAdd({.aText = textOf(i), .aForeColor = i, .aTag = textOf(i), .aKey = keyOf(i)});
}

QtItems qtItems(int count) {
  QtItems items;
  for (int i = 0; i < count; ++i) {
    auto item = std::make_shared<QtItem>();
    item->text = item->tag = QString::fromStdString(textOf(i));
    item->key = QString::fromStdString(keyOf(i));
    item->colours[0] = i;
    items.push_back(std::move(item));
  }
  return items;
}

template <class Stream, class Item>
void transferProperties(Stream&& both, Item& item) {
  for (auto& colour : item.colours) both(colour);
  for (auto& flag : item.flags) both(flag);
  both(item.alignment);
  both(item.key);
  both(item.tag);
  both(item.icon);
  both(item.iconSelected);
}

void saveByDataStream(const QtItems& items, bool withProperties) {
  QFile file(QString::fromStdString(path("stream")));
  if (!file.open(QIODevice::WriteOnly)) std::abort();
  QDataStream stream(&file);
  stream << static_cast<qint32>(items.size());
  for (const auto& item : items) {
    stream << item->text;
    if (withProperties)
      transferProperties([&](const auto& field) { stream << field; }, std::as_const(*item));
  }
}

QtItems loadByDataStream(bool withProperties) {
  QFile file(QString::fromStdString(path("stream")));
  if (!file.open(QIODevice::ReadOnly)) std::abort();
  QDataStream stream(&file);
  qint32 count = 0;
  stream >> count;
  QtItems items;
  for (qint32 i = 0; i < count; ++i) {
    auto item = std::make_shared<QtItem>();
    stream >> item->text;
    if (withProperties) transferProperties([&](auto& field) { stream >> field; }, *item);
    items.push_back(std::move(item));
  }
  return items;
}

/// The texts of a list, as a program with a QListWidget would keep them in a file.
void addTexts(int count) {
  const std::string number = '/' + std::to_string(count);
  const auto filled = [count](auto widget) {
    if constexpr (requires { widget->list(); })
      fill(widget->list(), count);
    else
      fill(*widget, count);
    return widget;
  };
  const auto save = [](norvane::NvListWidget& widget) {
    widget.list().ListSave(path("list"), false);
  };
  const auto saveStream = [](const QListWidget& widget) {
    QFile file(QString::fromStdString(path("stream")));
    if (!file.open(QIODevice::WriteOnly)) std::abort();
    QDataStream stream(&file);
    stream << static_cast<qint32>(widget.count());
    for (int i = 0; i < widget.count(); ++i) stream << widget.item(i)->text();
  };
  addShared(
      "Save from list" + number, subject::nvList, true, [=] { return filled(makeNvList(false)); },
      [=](auto& widget) { save(*widget); });
  addShared(
      "Save from list" + number, subject::listWidget, true,
      [=] { return filled(makeListWidget(false)); }, [=](auto& widget) { saveStream(*widget); });
  addFresh(
      "Load and read" + number, subject::nvList, count,
      [=] {
        save(*filled(makeNvList(false)));
        return makeNvList(false);
      },
      [](auto& widget) {
        norvane::nvList& list = widget->list();
        list.ListInput(path("list"), false);
        for (int i = 0; i < list.ItemsCount(); ++i) benchmark::DoNotOptimize(list.ItemText(i));
      });
  addFresh(
      "Load and read" + number, subject::listWidget, count,
      [=] {
        saveStream(*filled(makeListWidget(false)));
        return makeListWidget(false);
      },
      [](auto& widget) {
        QFile file(QString::fromStdString(path("stream")));
        if (!file.open(QIODevice::ReadOnly)) std::abort();
        QDataStream stream(&file);
        qint32 size = 0;
        QString text;
        for (stream >> size; size > 0; --size) {
          stream >> text;
          widget->addItem(text);
        }
        for (int i = 0; i < widget->count(); ++i) benchmark::DoNotOptimize(widget->item(i)->text());
      });
}

std::string bytesOf(const std::string& path) {
  std::string bytes(static_cast<std::size_t>(QFile(QString::fromStdString(path)).size()), '\0');
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             std::fclose);
  if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) std::abort();
  return bytes;
}

void writeBytes(const std::string& bytes) {
  std::FILE* file = std::fopen(path("floor").c_str(), "wb");
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) std::abort();
  std::fclose(file);
}

void addSave(int count, bool withProperties, const std::string& work) {
  const auto save = [=](auto& holder) { holder->list().ListSave(path("list"), withProperties); };
  const auto filled = [=](auto list) {
    addItems(list->list(), count);
    return list;
  };
  addShared(
      work, subject::nvList, false, [=] { return filled(makeNvList(false)); }, save);
  addShared(
      work, subject::headless, false, [=] { return filled(makeHeadlessList()); }, save);
  addShared(
      work, subject::dataStream, false, [=] { return qtItems(count); },
      [=](const QtItems& items) { saveByDataStream(items, withProperties); });
  addShared(
      work, subject::floor, false,
      [=] {
        const auto list = filled(makeHeadlessList());
        save(list);
        return bytesOf(path("list"));
      },
      writeBytes);
}

void addLoad(int count, bool withProperties, const std::string& work) {
  const auto saveFirst = [=] {
    auto list = makeHeadlessList();
    addItems(list->list(), count);
    list->list().ListSave(path("list"), withProperties);
  };
  const auto load = [=](auto& holder) { holder->list().ListInput(path("list"), withProperties); };
  addFresh(
      work, subject::nvList, count,
      [=] {
        saveFirst();
        return makeNvList(false);
      },
      load);
  addFresh(
      work, subject::headless, count,
      [=] {
        saveFirst();
        return makeHeadlessList();
      },
      load);
  addFresh(
      work, subject::dataStream, count,
      [=] {
        saveByDataStream(qtItems(count), withProperties);
        return QtItems();
      },
      [=](QtItems& items) { items = loadByDataStream(withProperties); });
  addFresh(
      work, subject::floor, count,
      [=] {
        saveFirst();
        return std::string();
      },
      [](std::string& bytes) { bytes = bytesOf(path("list")); });
}

}  // namespace

void addListFileBenchmarks() {
  constexpr int count = 1'000'000;
  addTexts(count);
  for (const bool withProperties : {false, true}) {
    const std::string what = (withProperties ? " with properties/" : "/") + std::to_string(count);
    addSave(count, withProperties, "ListSave" + what);
    addLoad(count, withProperties, "ListInput" + what);
  }
}
