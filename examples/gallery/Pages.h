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

/// Where a page stands: its lists, two in a row, or whatever else it shows.
class Stage : public QWidget {
 public:
  /// `sink` hears every list; it has to outlive the stage.
  explicit Stage(norvane::__nvList& sink) : sink_(sink) {}

  /// A new list to fill, with AutoRedraw off until the stage is ready. A caption stands above the
  /// list, and none where it is empty.
  norvane::nvList& addList(const QString& name, const QString& caption = {});

  /// A new row above the lists that there are by now, for what the page has of its own.
  QHBoxLayout* addRow();

  /// Shows a line in the place of lists.
  void say(const QString& line);

  /// Told of work that takes its time, just before it begins.
  std::function<void(const QString& what)> onTold;
  void tell(const QString& what) {
    if (onTold) onTold(what);
  }

  /// Ends the filling: the lists are painted, from the top.
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
  const char* name;   ///< that --page takes
  const char* title;  ///< in the chooser and, unless the stage has one, of the window
  const char* about;  ///< what there is to see
  Glyph icon;
  /// Adds lists to the stage and fills them.
  std::function<void(Stage&)> fill;
};

QList<Page> allPages(const SampleText& text);

/// An icon for a place of `size`: on a dense screen with the pixels that it has there.
norvane::Picture icon(const Glyph& glyph, int size = 16);

/// A colour as the lists have it.
norvane::Colour hostColour(QRgb rgb);

/// The page of the scroll bars, which has no list.
void fillBars(Stage& stage);

/// The page of list files and text files.
void fillFiles(Stage& stage);

/// The page of a database, which says so where none can be read.
void fillDatabase(Stage& stage);

}  // namespace gallery
