#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <nvlist/objects/Error.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// The texts drawn, top to bottom, each with its top edge: "a@3 b@16".
inline std::string rowsOf(const RecordingSurface& surface) {
  std::string result;
  for (const SurfaceCall& call : surface.image().calls)
    if (const auto* text = std::get_if<calls::DrawTextA>(&call))
      result +=
          (result.empty() ? "" : " ") + text->text + "@" + std::to_string(text->rectangle.Top);
  return result;
}

/// A picture without pixels, with a description.
struct NamedPicture final : PictureObject {
  explicit NamedPicture(std::string text, std::uintptr_t any = 1)
      : name(std::move(text)), number(any) {}
  std::uintptr_t handle() const override { return number; }
  float width() const override { return 32; }
  float height() const override { return 24; }
  std::string description() const override { return name; }
  const std::string name;
  std::uintptr_t number;
};

/// A headless list in a program that collects all reports.
class ListTest : public testing::Test {
 protected:
  ~ListTest() override { Error().SilentError(false); }

  void silent() { Error().SilentError(true); }

  void add(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) list.ItemsAdd(text);
  }

  /// The texts of all items, separated by blanks.
  std::string texts() {
    std::string result;
    for (int i = 0; i < list.ItemsCount(); ++i) result += (i ? " " : "") + item(i).Text;
    return result;
  }

  ListItem item(int index) { return list.state().Items.at(index); }

  /// Whether a part of the recording of the list's face is this text.
  bool shows(const std::string& calls) { return headless.face().find(calls) != std::string::npos; }

  /// "number procedure" of each report since the last call, separated by commas.
  std::string reports() {
    std::string result;
    for (const auto& box : application.boxes) {
      const std::string number = box.text.substr(11, box.text.find('\r') - 11);
      const std::string place = box.text.substr(0, box.text.find("\r\nVersion"));
      result += (result.empty() ? "" : ", ") + number + " " + place.substr(place.rfind('/') + 1);
    }
    application.boxes.clear();
    return result;
  }

  HeadlessApplication application;
  HeadlessList headless{200, 100};
  nvList& list = headless.list();
};

}  // namespace norvane
