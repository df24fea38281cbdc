#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include <nvlist/values/Boolean.h>
#include <nvlist/values/Colour.h>
#include <nvlist/values/Font.h>
#include <nvlist/values/Picture.h>
#include <nvlist/values/Variant.h>

namespace gallery {

/// Called with each value that the user enters, and with its text.
template <class Value>
using Edited = std::function<void(const Value& value, const QString& text)>;

/// A widget for one value. `show` changes the value without reporting an edit.
template <class Value>
struct Editor {
  QWidget* widget;
  std::function<void(const Value&)> show;
};

template <class Value>
using MakeEditor = std::function<Editor<Value>(Edited<Value>)>;

MakeEditor<norvane::Boolean> flag();
MakeEditor<std::int32_t> number();
MakeEditor<float> length();
MakeEditor<std::string> text();
/// Always returns a text, whatever type the value had before.
MakeEditor<norvane::Variant> value();
MakeEditor<norvane::Font> font();
MakeEditor<norvane::Picture> picture();

/// Written as #RRGGBB, or as "system 17" for a system colour.
MakeEditor<norvane::Colour> colour();
/// The same for a colour that may be "def", which can be entered only if `accepted`.
enum class Default { accepted, shown };
MakeEditor<norvane::Variant> itemColour(Default mark);

struct Choice {
  const char* name;
  int value;
};
MakeEditor<int> choiceOf(std::vector<Choice> choices);

/// A choice between the values of an enumeration.
template <class Value>
MakeEditor<Value> choice(std::vector<Choice> choices) {
  return [make = choiceOf(std::move(choices))](Edited<Value> edited) {
    const Editor<int> editor =
        make([edited](int value, const QString& text) { edited(static_cast<Value>(value), text); });
    return Editor<Value>{editor.widget, [show = editor.show](const Value& value) { show(value); }};
  };
}

}  // namespace gallery
