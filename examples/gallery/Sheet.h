#pragma once

#include <QGridLayout>
#include <QScrollArea>
#include <functional>
#include <vector>

#include <nvlist/platform/qt/NvListWidget.h>

#include "Editors.h"

namespace gallery {

/// The list whose properties a sheet shows or, for properties of items, one of its items.
struct Subject {
  norvane::NvListWidget* widget = nullptr;
  std::int32_t item = -1;

  norvane::nvList& list() const { return widget->list(); }
};

class Sheet;

/// One row of a sheet.
struct Property {
  struct Field {
    QWidget* widget;
    /// Shows the subject's current value.
    std::function<void(const Subject&)> show;
  };

  const char* name;
  std::function<Field(Sheet&)> make;
};

struct PropertyGroup {
  const char* title;
  std::vector<Property> properties;
};

/// A column of properties with an editor for each.
class Sheet : public QScrollArea {
 public:
  explicit Sheet(const std::vector<PropertyGroup>& groups);

  /// Called before each change that the user makes is applied.
  std::function<void(const char* name, const QString& value)> onEdited;

  /// Shows the subject's current values. A subject without a list disables the sheet.
  void show(const Subject& subject);

  const Subject& subject() const { return subject_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void addHeading(const char* title);
  void addField(const Property& property);

  QGridLayout* grid_;
  std::vector<Property::Field> fields_;
  Subject subject_;
};

/// A row with an editor: `read` takes the subject, `write` the subject and the value.
template <class Value, class Read, class Write>
Property property(const char* name, MakeEditor<Value> make, Read read, Write write) {
  return {name, [=](Sheet& sheet) {
            const Editor<Value> editor = make([=, &sheet](const Value& value, const QString& text) {
              if (sheet.onEdited) sheet.onEdited(name, text);
              write(sheet.subject(), value);
            });
            return Property::Field{editor.widget,
                                   [=](const Subject& subject) { editor.show(read(subject)); }};
          }};
}

/// The sheet of the list's own properties.
const std::vector<PropertyGroup>& propertiesOfTheList();

/// The sheet of the properties of its items.
const std::vector<PropertyGroup>& propertiesOfItems();

}  // namespace gallery
