#pragma once

#include <QList>
#include <QMainWindow>
#include <QTimer>
#include <utility>
#include <vector>

#include <nvlist/objects/QI.h>

#include "Chooser.h"
#include "EventLog.h"
#include "Pages.h"
#include "Progress.h"
#include "Sheet.h"
#include "Tools.h"

class QLabel;
class QStackedWidget;
class QToolButton;

namespace gallery {

/// The main window: the pages on the left, the lists of the current page and a row of tools in the
/// middle, the property sheets on the right, and the event log at the bottom.
class GalleryWindow : public QMainWindow {
 public:
  explicit GalleryWindow(QList<Page> pages);
  ~GalleryWindow() override;

  /// Shows a page and fills it the first time.
  void showPage(int index);

  /// Opens a list, JSON Lines or a text on the page of files.
  void openFile(const QString& path);

  /// A picture of the window. Works without a screen.
  QPixmap picture();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void layOut();
  QWidget* pagePanel();
  QWidget* logPanel();
  /// `hint` becomes its tool tip.
  QToolButton* button(const QString& text, const char* hint);
  void showHints();
  QWidget* sheetPanels();
  void connectParts();
  Stage* makeStage(int index);
  /// Installs NvListKeys on the lists of a page, or removes it, as the switch says.
  void giveKeys(const Stage& stage);
  void tell(const QString& what);
  void startOver();
  void save();
  void load();
  void setSubject(norvane::NvListWidget* widget);
  void refreshSoon();
  void refresh();
  void showRows();

  const QList<Page> pages_;
  QList<Stage*> stages_;
  int shown_ = -1;
  norvane::NvListWidget* subject_ = nullptr;  ///< the list whose properties are shown
  std::vector<std::pair<QWidget*, const char*>> hints_;
  norvane::QI tips_;
  Progress progress_;
  QTimer refreshing_;
  QTimer telling_;  ///< runs while a message replaces the row numbers

  EventLog* log_;
  Chooser* chooser_;
  QStackedWidget* stack_;
  QLabel* about_;
  QToolButton* keys_;  ///< whether the lists have more keys than Up and Down
  Tools* tools_;
  Sheet* listSheet_;
  Sheet* itemSheet_;
  QLabel* listCaption_;
  QLabel* itemCaption_;
  QList<QWidget*> aboutLists_;  ///< hidden on a page without lists
  QLabel* rows_;
};

}  // namespace gallery
