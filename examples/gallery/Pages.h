#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <vector>

#include <nvlist/input/events.h>
#include <nvlist/platform/qt/NvListWidget.h>
#include <nvlist/values/Colour.h>

#include "Glyphs.h"

class QGridLayout;
class QHBoxLayout;

namespace gallery {

/// The area of a page: its lists, two in a row, or other content.
class Stage : public QWidget {
 public:
  /// `sink` receives the events of every list and must outlive the stage.
  explicit Stage(norvane::__nvList& sink) : sink_(sink) {}

  /// Adds a list to fill, with AutoRedraw off until ready() is called. A caption that is not empty
  /// is shown above it.
  norvane::nvList& addList(const QString& name, const QString& caption = {});

  /// Adds a row for other widgets of the page above the lists added so far.
  QHBoxLayout* addRow();

  /// Shows a message instead of lists.
  void say(const QString& line);

  /// Called before work that takes long.
  std::function<void(const QString& what)> onTold;
  void tell(const QString& what) const {
    if (onTold) onTold(what);
  }

  /// Opens a file, on a page that can.
  std::function<void(const QString& path)> onDropped;

  /// Call it once the lists are filled: paints them from the top.
  void ready();

  const std::vector<norvane::NvListWidget*>& lists() const { return lists_; }

 private:
  QGridLayout* grid();

  norvane::__nvList& sink_;
  std::vector<norvane::NvListWidget*> lists_;
};

/// The text that the gallery shows as a list.
struct SampleText {
  QString title;
  QStringList lines;
};

struct Page {
  const char* name;   ///< for --page
  const char* title;  ///< in the chooser, and of the window unless the stage has its own
  const char* about;  ///< one line above the lists
  Glyph icon;
  /// Adds lists to the stage and fills them.
  std::function<void(Stage&)> fill;
};

QList<Page> allPages(const SampleText& text);

/// An icon of `size` logical pixels, drawn at the resolution of the screen.
norvane::Picture icon(const Glyph& glyph, int size = 16);

/// Converts a colour to the list's format.
norvane::Colour hostColour(QRgb rgb);

/// A palette for a dark desktop.
QPalette darkPalette();

/// The page of what the widget offers beyond the list's own properties, with switches that change
/// the palette and the direction of the whole program.
void fillComfort(Stage& stage);

/// The page of the scroll bars, which has no list.
void fillBars(Stage& stage);

/// The page of list files and text files.
void fillFiles(Stage& stage);

/// The page of a database. Shows a message if the database cannot be read.
void fillDatabase(Stage& stage);

}  // namespace gallery
