#include "Pages.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <nvlist/platform/qt/QtPicture.h>

using norvane::Boolean;
using norvane::Colour;
using norvane::NewItem;
using norvane::nvList;
using norvane::NvListWidget;
using norvane::Picture;

namespace gallery {
namespace {

/// Sets the height of the rows by their font: with MinHeight, the edit box would not cover its row.
void setFontSize(nvList& list, float points) {
  const norvane::Font font = norvane::CloneFont(list.Font());
  font->Size = points;
  list.Font(font);
}

// ---- text ----

void fillText(Stage& stage, const SampleText& text) {
  stage.setWindowTitle(text.title);
  nvList& list = stage.addList("text");
  setFontSize(list, 10);
  for (const QString& line : text.lines)
    list.ItemsAdd({.aText = line.toStdString(), .aAllowEdit = true});
  list.ListIndex(0);
}

// ---- checks ----

void fillChecks(Stage& stage) {
  nvList& list = stage.addList("checks");
  list.Style(norvane::cCheckBoxes);
  list.MinHeight(22);
  list.DistPicText(6);
  const Colour heading = hostColour(0xE8EEF8);
  const Colour navy = hostColour(0x1F3F77);
  const NewItem items[] = {
      {.aText = "Before the release",
       .aChecked = true,
       .aForeColor = navy,
       .aBackColor = heading,
       .aBold = true},
      {.aText = "Raise the version number", .aChecked = true},
      {.aText = "Run every test, with the sanitizers too", .aChecked = true},
      {.aText = "Write down what has changed", .aChecked = true},
      {.aText = "Look at the pictures in the manual", .aItalic = true},
      {.aText = "Two translations are still missing", .aForeColor = hostColour(0xD04030)},
      {.aText = "The day itself", .aForeColor = navy, .aBackColor = heading, .aBold = true},
      {.aText = "Freeze the branch (done by the server)", .aChecked = true, .aEnabled = false},
      {.aText = "Build and sign the packages"},
      {.aText = "Ask Ada for the second signature",
       .aForeColor = hostColour(0x6A4A00),
       .aBackColor = hostColour(0xFFF6CC)},
      {.aText = "Publish (needs both signatures)", .aEnabled = false},
      {.aText = "Afterwards", .aForeColor = navy, .aBackColor = heading, .aBold = true},
      {.aText = "Announcement to the readers",
       .aForeColor = hostColour(0x3478DC),
       .aUnderline = true},
      {.aText = "Thank those who found faults", .aItalic = true},
      {.aText = "Cake"},
  };
  for (NewItem item : items) {
    item.aAllowEdit = true;
    list.ItemsAdd(item);
  }
  // FullRowSelect and IconSelect are visible on a row with its own background.
  list.ListIndex(9);
}

// ---- icons ----

void fillIcons(Stage& stage) {
  constexpr int size = 24;
  nvList& list = stage.addList("icons");
  list.Style(norvane::cIcons);
  list.IconW(size);
  list.IconH(size);
  list.MinHeight(28);
  list.DistPicText(6);
  struct Entry {
    const char* text;
    Glyph glyph;
    Glyph selected;
  };
  const Entry entries[] = {
      {"Drafts|right=7 entries", folder, openFolder},
      {"Letters|right=31 entries", folder, openFolder},
      {"Summer by the lake|right=112 entries", folder, openFolder},
      {"budget.csv|right=4 KB", spreadsheet, nullptr},
      {"ferry.png|right=2 140 KB", photo, nullptr},
      {"harbour at night.png|right=3 318 KB", photo, nullptr},
      {"notes.txt|right=12 KB", document, pencil},
      {"to do.txt|right=1 KB", document, pencil},
      {"waltz.ogg|right=5 207 KB", music, nullptr},
  };
  for (const auto& [text, glyph, selected] : entries)
    list.ItemsAdd({.aText = text,
                   .aIcon = icon(glyph, size),
                   .aIconSelected = selected ? icon(selected, size) : nullptr,
                   .aAllowEdit = true});
  // Icons of any size are stretched to IconW by IconH.
  for (const int own : {16, 32, 48, 64})
    list.ItemsAdd({.aText = QString("clock-%1.png|right=%1 x %1").arg(own).toStdString(),
                   .aIcon = norvane::QtPicture::fromImage(drawn(clock, own)),
                   .aAllowEdit = true});
  list.ListIndex(1);
}

// ---- both ----

void fillBoth(Stage& stage) {
  nvList& list = stage.addList("both");
  list.Style(norvane::cCheckBoxesIcons);
  list.ColorStyle(norvane::cXPOlive);
  list.GridLines(true);
  list.GridLineColor(hostColour(0xDDE2D0));
  list.MultiSelect(true);
  list.MinHeight(22);
  list.DistPicText(6);
  const Colour tint = hostColour(0xF1F4E8);
  const auto day = [&](const char* name, bool isDone) {
    list.ItemsAdd({.aText = name,
                   .aIcon = icon(calendar),
                   .aChecked = isDone,
                   .aBackColor = tint,
                   .aAllowEdit = true,
                   .aAlignment = norvane::cCenter,
                   .aBold = true});
  };
  const auto task = [&](const char* text, const Glyph& glyph, bool isDone) {
    list.ItemsAdd({.aText = text, .aIcon = icon(glyph), .aChecked = isDone, .aAllowEdit = true});
  };
  const auto sum = [&](const char* text, bool isDone) {
    list.ItemsAdd({.aText = text,
                   .aIcon = icon(clock),
                   .aChecked = isDone,
                   .aForeColor = hostColour(0x5A6440),
                   .aAllowEdit = true,
                   .aAlignment = norvane::cRight});
  };
  day("Monday", true);
  task("Answer the letters of the weekend", letter, true);
  task("Draw the arrows of the scroll bars", pencil, true);
  task("Coffee with the new neighbours", cup, true);
  sum("6 hours", true);
  day("Tuesday", false);
  task("Rehearsal for the talk", clock, true);
  task("Second draft of the talk", pencil, false);
  task("Invitations to the readers", letter, false);
  sum("7 hours 30", false);
  day("Wednesday", false);
  task("The talk", clock, false);
  task("Coffee for everybody", cup, false);
  sum("4 hours", false);
  for (const int selected : {2, 8, 9, 10}) list.ItemSelected(selected, true);
}

// ---- edit ----

void fillEdit(Stage& stage) {
  nvList& list = stage.addList("edit");
  list.Style(norvane::cCheckBoxes);
  setFontSize(list, 11);
  list.DistPicText(6);
  list.AllowEdit(true);
  const char* const spices[] = {
      "Allspice",  "Anise",     "Asafoetida",  "Basil",        "Bay leaves",   "Caraway",
      "Cardamom",  "Cayenne",   "Celery seed", "Chervil",      "Chives",       "Cinnamon",
      "Cloves",    "Coriander", "Cumin",       "Curry leaves", "Dill",         "Fennel",
      "Fenugreek", "Galangal",  "Ginger",      "Juniper",      "Lavender",     "Lemongrass",
      "Lovage",    "Mace",      "Marjoram",    "Mint",         "Mustard seed", "Nigella",
      "Nutmeg",    "Oregano",   "Paprika",     "Parsley",      "Pepper",       "Poppy seed",
      "Rosemary",  "Saffron",   "Sage",        "Savory",       "Sesame",       "Star anise",
      "Sumac",     "Tarragon",  "Thyme",       "Turmeric",     "Vanilla",      "Wasabi"};
  for (const char* spice : spices)
    list.ItemsAdd({.aText = spice, .aChecked = spice[1] % 2 == 0, .aAllowEdit = true});
  list.ListIndex(6);
}

// ---- colours ----

struct Shade {
  const char* name;
  QRgb rgb;
};

void addShades(Stage& stage, const char* caption, norvane::cColorStyle style,
               const std::vector<Shade>& shades) {
  nvList& list = stage.addList(caption, caption);
  list.Style(norvane::cIcons);
  list.ColorStyle(style);
  list.MinHeight(20);
  list.DistPicText(6);
  for (const Shade& shade : shades)
    list.ItemsAdd(
        {.aText = shade.name, .aIcon = icon(swatch(QColor(shade.rgb))), .aAllowEdit = true});
  list.ListIndex(4);
}

void fillColours(Stage& stage) {
  addShades(stage, "cXPBlue", norvane::cXPBlue,
            {{"Frost", 0xEEF5FD},
             {"Ice", 0xD6E4F7},
             {"Dawn", 0xB4D0F2},
             {"Sky", 0x8FB8EC},
             {"Cornflower", 0x5A8BE0},
             {"Gentian", 0x4377D6},
             {"Cobalt", 0x316AC5},
             {"Lake", 0x2A66B4},
             {"Ocean", 0x1F5A9E},
             {"Denim", 0x214C86},
             {"Navy", 0x1C3A70},
             {"Dusk", 0x192F58},
             {"Ink", 0x14233F},
             {"Night", 0x0C1528}});
  addShades(stage, "cXPSilver", norvane::cXPSilver,
            {{"Snow", 0xF7F7FA},
             {"Pearl", 0xEDEDF2},
             {"Cloud", 0xE0E1E8},
             {"Mist", 0xD3D4DC},
             {"Silver", 0xB2B4BF},
             {"Fog", 0xA5A7B2},
             {"Ash", 0x9799A3},
             {"Pewter", 0x848692},
             {"Slate", 0x70737F},
             {"Stone", 0x61646F},
             {"Lead", 0x51545E},
             {"Iron", 0x3F4149},
             {"Coal", 0x2E3036},
             {"Soot", 0x1D1E22}});
  addShades(stage, "cXPOlive", norvane::cXPOlive,
            {{"Straw", 0xF0F2E2},
             {"Reed", 0xE0E6C8},
             {"Celery", 0xCDD8B0},
             {"Sage", 0xBAC69A},
             {"Olive", 0x93A070},
             {"Lichen", 0x85935F},
             {"Moss", 0x77864F},
             {"Meadow", 0x688045},
             {"Fern", 0x5A7A3C},
             {"Leaf", 0x476835},
             {"Pine", 0x34542F},
             {"Forest", 0x2B3B27},
             {"Ivy", 0x22381F},
             {"Thicket", 0x172614}});
  addShades(stage, "cCustom", norvane::cCustom,
            {{"Blossom", 0xF9EEFA},
             {"Petal", 0xF0DCF2},
             {"Lilac", 0xE0B8E5},
             {"Orchid", 0xCF94D8},
             {"Plum", 0x9B4FA8},
             {"Iris", 0x8845A2},
             {"Violet", 0x743A9C},
             {"Beet", 0x7F337F},
             {"Berry", 0x8A2C62},
             {"Cherry", 0x74224D},
             {"Wine", 0x5E1B38},
             {"Grape", 0x4C2B3C},
             {"Fig", 0x3A1D3F},
             {"Sloe", 0x241228}});
  nvList& custom = stage.lists().back()->list();
  custom.ValueColor(hostColour(0x9B4FA8));
  custom.BorderColor(hostColour(0x9B4FA8));
  custom.ScrollColorStyle(norvane::cXPScrollSilver);
}

}  // namespace

QList<Page> allPages(const SampleText& text) {
  return {
      {"text", "Text", "cDefault: rows of text", document,
       [text](Stage& stage) { fillText(stage, text); }},
      {"checks", "Check boxes", "cCheckBoxes: items with fonts and colours of their own", ticks,
       fillChecks},
      {"icons", "Icons", "cIcons: two columns, other icons while selected", folder, fillIcons},
      {"both", "Both", "cCheckBoxesIcons: three alignments, many selected", calendar, fillBoth},
      {"edit", "Editing", "AllowEdit: press the current row again to edit its text", pencil,
       fillEdit},
      {"colours", "Colours", "ColorStyle: three families, and one of your own", palette,
       fillColours},
      {"comfort", "Comfort", "Dropping, a mirrored layout, clipped texts and tips", cup,
       fillComfort},
      {"bars", "Scroll bars", "The scroll bars alone: all their states, and some to use below",
       scrollBar, fillBars},
      {"files", "List files", "ListSave, ListInput, ListInput2: lists in files, texts as lists",
       openFolder, fillFiles},
      {"database", "Database", "Recordset: the first field of an SQL query", database,
       fillDatabase},
  };
}

Picture icon(const Glyph& glyph, int size) {
  return norvane::QtPicture::fromImage(drawn(glyph, qRound(size * qApp->devicePixelRatio())));
}

Colour hostColour(QRgb rgb) { return qRed(rgb) | qGreen(rgb) << 8 | qBlue(rgb) << 16; }

nvList& Stage::addList(const QString& name, const QString& caption) {
  auto* widget = new NvListWidget;
  widget->setObjectName(name);
  widget->setFollowsPalette(true);
  widget->setMirrorsLayout(true);
  auto* column = new QVBoxLayout;
  column->setSpacing(4);
  if (!caption.isEmpty()) column->addWidget(new QLabel(caption));
  column->addWidget(widget, 1);
  const int place = static_cast<int>(lists_.size());
  grid()->addLayout(column, 1 + place / 2, place % 2);
  lists_.push_back(widget);

  nvList& list = widget->list();
  list.AutoRedraw(false);
  list.addSink(sink_);
  return list;
}

QGridLayout* Stage::grid() {
  if (!layout()) (new QGridLayout(this))->setContentsMargins(0, 0, 0, 0);
  return static_cast<QGridLayout*>(layout());
}

QHBoxLayout* Stage::addRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  grid()->addLayout(row, 0, 0, 1, grid()->columnCount());
  return row;
}

void Stage::say(const QString& line) {
  auto* label = new QLabel(line);
  label->setWordWrap(true);
  grid()->addWidget(label, 0, 0, Qt::AlignTop);
}

void Stage::ready() {
  for (NvListWidget* widget : lists_) {
    nvList& list = widget->list();
    if (list.TopIndex() > 0) list.TopIndex(0);
    list.AutoRedraw(true);
  }
}

}  // namespace gallery
