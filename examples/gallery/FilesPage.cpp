#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QProgressDialog>
#include <QToolButton>
#include <memory>
#include <utility>

#include "JsonFiles.h"
#include "ListFiles.h"
#include "Pages.h"

using norvane::nvList;

namespace gallery {
namespace {

constexpr int iconSize = 24;
constexpr int many = 1000000;
constexpr auto jsonKind = "JSON Lines: all texts and properties (*.jsonl *.ndjson)";
constexpr auto listKind = "List files (*.nvl)";
constexpr auto anyKind = "All files (*)";
constexpr auto olderKind = "Older list files: texts alone, read item by item (*.nvl)";

struct Delimiter {
  const char* name;
  const char* text;
};
constexpr Delimiter delimiters[] = {{"lines", "\n"},     {"empty lines", "\n\n"}, {"commas", ","},
                                    {"semicolons", ";"}, {"tabulators", "\t"},    {"blanks", " "}};

/// The objects that the buttons of the page work with.
struct Desk {
  Stage* stage;
  nvList* list;
  QCheckBox* keeps;
  QComboBox* parted;
  /// True while an action runs. An action may process events and may outlive the page.
  std::shared_ptr<bool> isBusy = std::make_shared<bool>(false);

  Properties properties() const { return keeps->isChecked() ? Properties::kept : Properties::left; }
};

struct Action {
  const char* name;
  const char* hint;
  void (*run)(const Desk&);
};

/// Shows the progress of long work with a button that stops it, and keeps the user from closing the
/// window meanwhile.
class Box {
 public:
  Box(const Desk& desk, const QString& what) : dialog_(what, "Stop", 0, 100, desk.stage) {
    dialog_.setWindowModality(Qt::WindowModal);
  }

  Continues continues() {
    return [this](int percent) {
      dialog_.setValue(percent);
      return !dialog_.wasCanceled();
    };
  }

 private:
  QProgressDialog dialog_;
};

/// Shows a file instead of the items, or says why it cannot.
void openPath(const Desk& desk, const QString& path) {
  // Only files in the older format can be counted before they are read.
  const std::int32_t count = desk.list->ListFileItemsCount(path.toStdString());
  desk.stage->tell(count > 0 ? QString("Opening %1: %2 items").arg(path).arg(count)
                             : "Opening " + path);
  // Their items are read one by one, and the remaining old ones would be visible meanwhile.
  if (count > 0) desk.list->ItemsClear();
  try {
    Box box(desk, "Opening " + QFileInfo(path).fileName());
    for (const QString& remark : openAnyFile(*desk.list, path, desk.properties(), box.continues()))
      desk.stage->tell(remark);
  } catch (const QString& message) {
    desk.stage->tell(message);
  }
}

void open(const Desk& desk) {
  const QString kinds =
      QString("Lists and texts (*.jsonl *.ndjson *.nvl *.txt);;%1;;%2").arg(listKind, anyKind);
  const QString path = QFileDialog::getOpenFileName(desk.stage, "Open a list", {}, kinds);
  if (!path.isEmpty()) openPath(desk, path);
}

void save(const Desk& desk) {
  QStringList kinds{listKind, olderKind, anyKind};
  if (hasJsonLines()) kinds.prepend(jsonKind);
  QString kind;
  const QString path = QFileDialog::getSaveFileName(desk.stage, "Save the list",
                                                    hasJsonLines() ? "list.jsonl" : "list.nvl",
                                                    kinds.join(";;"), &kind);
  if (path.isEmpty()) return;
  desk.stage->tell("Saving " + path);
  if (kind == jsonKind) {
    try {
      Box box(desk, "Saving " + QFileInfo(path).fileName());
      for (const QString& remark : saveJsonLines(*desk.list, path, box.continues()))
        desk.stage->tell(remark);
    } catch (const QString& message) {
      desk.stage->tell(message);
    }
    return;
  }
  if (kind != olderKind) return saveListFile(*desk.list, path, desk.properties());
  const QString problem = saveOlderFile(*desk.list, path);
  if (!problem.isEmpty()) desk.stage->tell(problem);
}

void import(const Desk& desk) {
  const QString path = QFileDialog::getOpenFileName(desk.stage, "Import a text file");
  if (path.isEmpty()) return;
  desk.stage->tell("Importing " + path);
  importText(*desk.list, path, desk.parted->currentData().toString());
}

void addMany(const Desk& desk) {
  nvList& list = *desk.list;
  desk.stage->tell(QString("Adding %1 items").arg(many));
  list.AutoRedraw(false);
  for (int i = 0; i < many; ++i) list.ItemsAdd("Item " + std::to_string(list.ItemsCount()));
  list.AutoRedraw(true);
}

constexpr Action fileActions[] = {
    {"Open...", "Show a list, JSON Lines or the lines of a text instead of these items", open},
    {"Save...",
     "Save the items as JSON Lines or as a list file.\nThe dialog also offers the older format, "
     "which is read item by item.",
     save},
};
constexpr Action textActions[] = {
    {"Import...", "Add an item for each part of a text file", import},
    {"+ 1 million", "Add items, so that saving and reading take a while", addMany},
};

void fillItems(nvList& list) {
  struct Entry {
    const char* text;
    Glyph glyph;
    bool isPacked;
  };
  const Entry entries[] = {{"Tickets for the ferry", document, true},
                           {"Letter to the harbour master", letter, true},
                           {"Pictures of the house", photo, false},
                           {"What it may cost", spreadsheet, true},
                           {"Songs for the way", music, false},
                           {"Alarm clock", clock, true},
                           {"Calendar", calendar, false},
                           {"Pencils", pencil, false},
                           {"Paints", palette, false},
                           {"Cups, three of them", cup, true}};
  for (const auto& [text, glyph, isPacked] : entries) {
    const norvane::Picture picture = icon(glyph, iconSize);
    // A list file restores IconSelected as Icon, so both are the same picture.
    list.ItemsAdd({.aText = text,
                   .aIcon = picture,
                   .aIconSelected = picture,
                   .aChecked = isPacked,
                   .aAllowEdit = true});
  }
}

QComboBox* delimiterBox() {
  auto* result = new QComboBox;
  result->setObjectName("delimiter");
  result->setToolTip("The delimiter of the imported text");
  for (const auto& [name, text] : delimiters) result->addItem(name, QString(text));
  return result;
}

template <std::size_t count>
void addButtons(QHBoxLayout* row, const Action (&actions)[count], const Desk& desk) {
  for (const Action& action : actions) {
    auto* button = new QToolButton;
    button->setText(action.name);
    button->setToolTip(action.hint);
    QObject::connect(button, &QToolButton::clicked, desk.stage, [desk, run = action.run] {
      if (std::exchange(*desk.isBusy, true)) return;
      run(desk);
      *desk.isBusy = false;
    });
    row->addWidget(button);
  }
}

}  // namespace

void fillFiles(Stage& stage) {
  nvList& list = stage.addList("files");
  list.Style(norvane::cCheckBoxesIcons);
  list.IconW(iconSize);
  list.IconH(iconSize);
  list.MinHeight(iconSize + 4);
  list.DistPicText(6);
  fillItems(list);
  list.ListIndex(0);

  const Desk desk{&stage, &list, new QCheckBox("Properties"), delimiterBox()};
  desk.keeps->setChecked(true);
  desk.keeps->setToolTip("Save and read colours, fonts, keys and pictures too, not only texts");
  stage.onDropped = [desk](const QString& path) {
    if (std::exchange(*desk.isBusy, true)) return;
    openPath(desk, path);
    *desk.isBusy = false;
  };
  QHBoxLayout* row = stage.addRow();
  addButtons(row, fileActions, desk);
  row->addWidget(desk.keeps);
  row->addStretch(1);
  addButtons(row, textActions, desk);
  row->insertWidget(row->count() - 1, desk.parted);
}

}  // namespace gallery
