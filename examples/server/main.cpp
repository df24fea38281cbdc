// A program on a server: fills a list, sorts it, and writes it as a list file, as JSON Lines and as
// a picture. Usage: example_server FOLDER

#include <nvlist/drawing/SvgDocument.h>
#include <nvlist/json/JsonLines.h>
#include <nvlist/platform/headless/HeadlessApplication.h>
#include <nvlist/platform/headless/HeadlessList.h>

#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace {

using norvane::rgb;

/// Prints the reports of failures instead of showing message boxes.
class Server : public norvane::HeadlessApplication {
 public:
  void MsgBox(std::string_view text, std::int32_t, std::string_view) override {
    std::cerr << text << "\n";
  }
};

/// Notes that a list file could not be written.
class Events : public norvane::__nvList {
 public:
  bool hasFailed = false;
  void ErrorListSave() override { hasFailed = true; }
};

void fill(norvane::nvList& list) {
  list.AutoRedraw(false);
  list.ItemsAdd({.aText = "Wien", .aChecked = true, .aKey = "AT-9"});
  list.ItemsAdd({.aText = "Athen |right=Αθήνα", .aForeColor = rgb(0, 64, 160)});
  list.ItemsAdd({.aText = "Tokio |right=東京", .aBold = true});
  list.ItemsAdd({.aText = "Salt && Pepper", .aEnabled = false});
  list.Sort(norvane::cAscending);
  list.Style(norvane::cCheckBoxes);
  list.ListIndex(1);
  list.AutoRedraw(true);
}

void saveListFile(norvane::nvList& list, const std::string& path) {
  Events events;
  list.addSink(events);
  list.ListSave(path, true);
  list.removeSink(events);
  if (events.hasFailed) throw std::runtime_error("cannot write " + path);
}

void savePicture(norvane::HeadlessList& form, const std::string& path) {
  norvane::SvgDocument document(form.surface().ScaleWidth(), form.surface().ScaleHeight());
  form.container().replay([&](const norvane::Bounds& at) -> norvane::Surface& {
    return document.add(at.Left, at.Top, at.Width, at.Height);
  });
  std::ofstream file(path, std::ios::binary);
  file << document.text() << std::flush;
  if (!file) throw std::runtime_error("cannot write " + path);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::cerr << "usage: example_server FOLDER\n";
    return 2;
  }
  const std::string folder = std::string(arguments[1]) + "/";
  try {
    Server server;
    norvane::HeadlessList form(240, 80);
    fill(form.list());
    saveListFile(form.list(), folder + "towns.nvl");
    norvane::json::save(form.list(), folder + "towns.jsonl");
    savePicture(form, folder + "towns.svg");
    std::cout << form.list().ItemsCount() << " items in " << folder << "\n";
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
