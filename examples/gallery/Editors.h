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

/// Called with each value that the user has given, and with the value as a text.
template <class Value>
using Edited = std::function<void(const Value& value, const QString& text)>;

/// A widget for one value. `show` gives it another one, which does not count as an edit.
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
/// A text, whatever the value was before.
MakeEditor<norvane::Variant> value();
MakeEditor<norvane::Font> font();
MakeEditor<norvane::Picture> picture();

/// Written as #RRGGBB, or as "system 17" for a system colour.
MakeEditor<norvane::Colour> colour();
/// The same for a colour that may be "def", if only to look at.
enum class Default { accepted, shown };
MakeEditor<norvane::Variant> itemColour(Default mark);

struct Choice {
  const char* name;
  int value;
};
MakeEditor<int> choiceOf(std::vector<Choice> choices);

/// One of the values of an enumeration.
template <class Value>
MakeEditor<Value> choice(std::vector<Choice> choices) {
  return [make = choiceOf(std::move(choices))](Edited<Value> edited) {
    const Editor<int> editor =
        make([edited](int value, const QString& text) { edited(static_cast<Value>(value), text); });
    return Editor<Value>{editor.widget, [show = editor.show](const Value& value) { show(value); }};
  };
}

}  // namespace gallery
