#include "Settings.h"

#include <QFile>
#include <string>
#include <vector>

#include <nvlist/core/storedProperties.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/PropertyBag.h>

using norvane::ListItem;
using norvane::NewItem;
using norvane::nvList;
using norvane::PropertyBag;
using norvane::Variant;

namespace gallery {
namespace {

/// A store that remembers which property was read last.
class WatchedBag final : public PropertyBag {
 public:
  explicit WatchedBag(const PropertyBag& bag) : PropertyBag(bag) {}

  Variant ReadProperty(std::string_view name, const Variant& defaultValue) const override {
    lastRead_ = name;
    return PropertyBag::ReadProperty(name, defaultValue);
  }

  const std::string& lastRead() const { return lastRead_; }

 private:
  mutable std::string lastRead_;
};

/// The items, selection and position of a list. Loading its properties resets them.
class Content {
 public:
  explicit Content(nvList& list) : current_(list.ListIndex()), top_(list.TopIndex()) {
    for (std::int32_t i = 0; i < list.ItemsCount(); ++i) {
      const ListItem& item = list.state().Items.at(i);
      items_.push_back(asNew(item));
      if (item.Selected) selected_.push_back(i);
    }
  }

  void putInto(nvList& list) const {
    const norvane::Boolean redraws = list.AutoRedraw();
    list.AutoRedraw(false);
    for (const NewItem& item : items_) list.ItemsAdd(item);
    for (const std::int32_t index : selected_) list.ItemSelected(index, true);
    if (current_ >= 0) list.ListIndex(current_);
    if (redraws) list.AutoRedraw(redraws);
    if (top_ > 0) list.TopIndex(top_);
  }

 private:
  static NewItem asNew(const ListItem& item) {
    return {.aText = item.Text,
            .aIcon = item.Icon,
            .aIconSelected = item.IconSelected,
            .aChecked = item.Checked,
            .aForeColor = item.ForeColor,
            .aBackColor = item.BackColor,
            .aAllowEdit = item.AllowEdit,
            .aAlignment = item.Alignment,
            .aForeColorSelected = item.ForeColorSelect,
            .aBackColorSelected = item.BackColorSelect,
            .aEnabled = item.Enabled,
            .aTag = item.Tag,
            .aForeColorDis = item.ForeColorDis,
            .aBackColorDis = item.BackColorDis,
            .aBold = item.Bold,
            .aItalic = item.Italic,
            .aUnderline = item.Underline,
            .aKey = item.Key};
  }

  std::vector<NewItem> items_;
  std::vector<std::int32_t> selected_;
  std::int32_t current_;
  std::int32_t top_;
};

PropertyBag propertiesIn(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw QString("Cannot read %1: %2").arg(path, file.errorString());
  try {
    return norvane::propertiesOf(file.readAll().toStdString());
  } catch (const norvane::Failure& failure) {
    throw QString("Cannot read %1: %2").arg(path, failure.what());
  }
}

}  // namespace

void saveSettings(nvList& list, const QString& path) {
  PropertyBag bag;
  list.UserControl_WriteProperties(bag);
  QFile file(path);
  const std::string text = norvane::propertyText(bag);
  if (!file.open(QIODevice::WriteOnly) || file.write(text.c_str()) < 0 || !file.flush())
    throw QString("Cannot write %1: %2").arg(path, file.errorString());
}

QStringList loadSettings(nvList& list, const QString& path) {
  const WatchedBag bag(propertiesIn(path));
  PropertyBag before;
  list.UserControl_WriteProperties(before);
  const Content content(list);
  QStringList remarks;

  list.UserControl_ReadProperties(bag);
  const bool isRefused = static_cast<bool>(list.state().SuppressRedraw);
  if (isRefused) {
    remarks << QString("%1 refused its value: all settings stay as they were")
                   .arg(QString::fromStdString(bag.lastRead()));
    list.UserControl_ReadProperties(before);
  } else {
    for (const PropertyBag::Property& property : bag.properties())
      if (!norvane::storedProperty(property.name))
        remarks << QString("No property is called %1").arg(QString::fromStdString(property.name));
  }
  content.putInto(list);
  return remarks;
}

}  // namespace gallery
