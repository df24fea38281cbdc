#include "GalleryWindow.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <nvlist/platform/qt/NvListKeys.h>
#include <nvlist/platform/qt/QtWindow.h>

#include "Settings.h"

using norvane::nvList;
using norvane::NvListKeys;
using norvane::NvListWidget;

namespace gallery {
namespace {

constexpr QSize initialSize(1000, 700);
constexpr int chooserWidth = 150;
constexpr int sheetWidth = 326;
constexpr int captionHeight = 24;
constexpr int hintTime = 8000;   // milliseconds
constexpr int timeToRead = 400;  // milliseconds
constexpr int hintWidth = 240;

/// A part of the window under a caption, which may have buttons on its right.
QWidget* panel(QLabel* caption, QWidget* content, const QList<QToolButton*>& buttons = {}) {
  auto* result = new QWidget;
  auto* column = new QVBoxLayout(result);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  auto* top = new QHBoxLayout;
  top->addWidget(caption, 1);
  for (QToolButton* button : buttons) top->addWidget(button);
  caption->setFixedHeight(captionHeight);
  // A long caption is cut off instead of widening the window.
  caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  column->addLayout(top);
  column->addWidget(content, 1);
  return result;
}

QSplitter* splitter(Qt::Orientation orientation, QWidget* first, QWidget* second,
                    const QList<int>& sizes, int growing) {
  auto* result = new QSplitter(orientation);
  result->addWidget(first);
  result->addWidget(second);
  result->setChildrenCollapsible(false);
  result->setHandleWidth(8);
  result->setSizes(sizes);
  result->setStretchFactor(growing, 1);
  return result;
}

/// The current item, or else the first selected one, or else -1.
int shownItem(nvList& list) {
  if (list.ListIndex() >= 0 && list.ListIndex() < list.ItemsCount()) return list.ListIndex();
  for (int i = 0; i < list.ItemsCount(); ++i)
    if (list.state().Items.at(i).Selected) return i;
  return -1;
}

QString captionOf(const Subject& item) {
  if (item.item < 0) return "No current item";
  const bool isCurrent = item.item == item.list().ListIndex();
  return QString(isCurrent ? "Current item: %1" : "First selected item: %1").arg(item.item);
}

QString rowsShown(nvList& list) {
  const int count = list.ItemsCount();
  if (count == 0) return "Nothing to show";
  const int top = std::max(0, list.TopIndex());
  const int last = std::min(count, top + list.VisibleItems());
  return QString("Rows %1 to %2 of %3").arg(top + 1).arg(last).arg(count);
}

}  // namespace

GalleryWindow::GalleryWindow(QList<Page> pages)
    : pages_(std::move(pages)),
      stages_(pages_.size(), nullptr),
      log_(new EventLog),
      chooser_(new Chooser(pages_)),
      stack_(new QStackedWidget),
      about_(new QLabel),
      keys_(button("Keys", "Page, Home, End, F2, Space, Ctrl+A, Ctrl+C and search as you type")),
      tools_(new Tools),
      listSheet_(new Sheet(propertiesOfTheList())),
      itemSheet_(new Sheet(propertiesOfItems())),
      listCaption_(new QLabel),
      itemCaption_(new QLabel),
      rows_(new QLabel) {
  layOut();
  showHints();
  connectParts();
}

/// The lists are destroyed before the log, which is one of their sinks.
GalleryWindow::~GalleryWindow() { delete stack_; }

void GalleryWindow::layOut() {
  auto* upper = new QWidget;
  auto* columns = new QHBoxLayout(upper);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(8);
  chooser_->setFixedWidth(chooserWidth);
  QWidget* choice = panel(new QLabel("Pages"), chooser_);
  choice->setFixedWidth(chooserWidth);
  columns->addWidget(choice);
  columns->addWidget(pagePanel(), 1);

  QWidget* log = logPanel();
  QWidget* sheets = sheetPanels();
  aboutLists_ = {tools_, log, sheets};
  auto* left = splitter(Qt::Vertical, upper, log, {520, 120}, 0);
  auto* whole =
      splitter(Qt::Horizontal, left, sheets, {initialSize.width() - sheetWidth, sheetWidth}, 0);
  auto* frame = new QWidget;
  auto* margins = new QVBoxLayout(frame);
  margins->setContentsMargins(10, 4, 10, 4);
  margins->setSpacing(2);
  margins->addWidget(whole, 1);
  margins->addWidget(rows_);
  setCentralWidget(frame);
  resize(initialSize);
}

QWidget* GalleryWindow::pagePanel() {
  QToolButton* again = button("Start over", "Fill the page anew, with the settings it starts from");
  connect(again, &QToolButton::clicked, this, [this] { startOver(); });
  keys_->setCheckable(true);
  keys_->setChecked(true);
  connect(keys_, &QToolButton::toggled, this, [this] {
    for (const Stage* stage : stages_)
      if (stage) giveKeys(*stage);
  });
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addWidget(tools_);
  column->addWidget(stack_, 1);
  return panel(about_, content, {keys_, again});
}

QWidget* GalleryWindow::sheetPanels() {
  QToolButton* saving = button("Save...", "Save these properties into a file");
  connect(saving, &QToolButton::clicked, this, [this] { save(); });
  QToolButton* loading = button("Load...", "Set these properties to what a file says");
  connect(loading, &QToolButton::clicked, this, [this] { load(); });
  return splitter(Qt::Vertical, panel(listCaption_, listSheet_, {saving, loading}),
                  panel(itemCaption_, itemSheet_), {400, 240}, 0);
}

QWidget* GalleryWindow::logPanel() {
  QToolButton* clear = button("Clear", "Forget these events");
  connect(clear, &QToolButton::clicked, log_, [this] { log_->clear(); });
  return panel(new QLabel("Events"), log_, {clear});
}

QToolButton* GalleryWindow::button(const QString& text, const char* hint) {
  auto* result = new QToolButton;
  result->setText(text);
  result->setFixedHeight(captionHeight - 2);
  hints_.emplace_back(result, hint);
  return result;
}

/// With the library's own tool tips. Call it once the widgets are in the window.
void GalleryWindow::showHints() {
  const norvane::Variant form = norvane::QtWindow::of(*this);
  for (const auto& [widget, hint] : hints_)
    tips_.Create(form, norvane::QtWindow::of(*widget), hint, hintTime, hintWidth);
}

void GalleryWindow::connectParts() {
  setAcceptDrops(true);
  chooser_->onChosen = [this](int index) { showPage(index); };
  tools_->onUsed = [this](const QString& what) {
    log_->write(what);
    refreshSoon();
  };
  listSheet_->onEdited = [this](const char* name, const QString& value) {
    log_->write(QString("%1 = %2").arg(name, value));
    refreshSoon();
  };
  itemSheet_->onEdited = [this](const char* name, const QString& value) {
    log_->write(QString("%1(%2) = %3").arg(name).arg(itemSheet_->subject().item).arg(value));
    refreshSoon();
  };
  progress_.onTold = [this](const char* doing, std::int32_t item) {
    const int count = subject_ ? subject_->list().state().Items.upperBound() + 1 : 0;
    tell(QString("%1 item %2 of %3").arg(doing).arg(item).arg(count));
  };
  refreshing_.setSingleShot(true);
  connect(&refreshing_, &QTimer::timeout, this, [this] { refresh(); });
  telling_.setSingleShot(true);
  connect(&telling_, &QTimer::timeout, this, [this] { showRows(); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    auto* widget = dynamic_cast<NvListWidget*>(now);
    if (widget && widget != chooser_) setSubject(widget);
  });
}

void GalleryWindow::showPage(int index) {
  if (index == shown_) return;
  shown_ = index;
  if (!stages_[index]) stages_[index] = makeStage(index);
  Stage* stage = stages_[index];
  stack_->setCurrentWidget(stage);
  about_->setText(pages_[index].about);
  const QString title =
      stage->windowTitle().isEmpty() ? QString(pages_[index].title) : stage->windowTitle();
  setWindowTitle(title + " - nvList");
  chooser_->list().ListIndex(index);
  const bool hasLists = !stage->lists().empty();
  for (QWidget* part : aboutLists_) part->setVisible(hasLists);
  setSubject(hasLists ? stage->lists().front() : nullptr);
}

void GalleryWindow::openFile(const QString& path) {
  for (int i = 0; i < pages_.size(); ++i) {
    if (QString(pages_[i].name) != "files") continue;
    showPage(i);
    stages_[i]->onDropped(path);
  }
}

void GalleryWindow::dragEnterEvent(QDragEnterEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.size() == 1 && urls.first().isLocalFile()) event->acceptProposedAction();
}

void GalleryWindow::dropEvent(QDropEvent* event) {
  const QString path = event->mimeData()->urls().first().toLocalFile();
  event->acceptProposedAction();
  // The program that the file comes from waits until this handler returns.
  QTimer::singleShot(0, this, [this, path] { openFile(path); });
}

QPixmap GalleryWindow::picture() {
  setAttribute(Qt::WA_DontShowOnScreen);
  show();
  QCoreApplication::processEvents();
  refresh();
  return grab();
}

Stage* GalleryWindow::makeStage(int index) {
  auto* stage = new Stage(*log_);
  stage->onTold = [this](const QString& what) {
    log_->write(what);
    tell(what);
  };
  pages_[index].fill(*stage);
  stage->ready();
  for (NvListWidget* widget : stage->lists()) {
    widget->list().addSink(progress_);
    widget->installEventFilter(this);
    connect(widget, &NvListWidget::propertyChanged, this, [this] { refreshSoon(); });
  }
  giveKeys(*stage);
  stack_->addWidget(stage);
  return stage;
}

void GalleryWindow::giveKeys(const Stage& stage) {
  for (NvListWidget* widget : stage.lists()) {
    delete widget->findChild<NvListKeys*>(QString(), Qt::FindDirectChildrenOnly);
    if (keys_->isChecked()) new NvListKeys(*widget);
  }
}

void GalleryWindow::startOver() {
  const int index = std::exchange(shown_, -1);
  setSubject(nullptr);
  delete std::exchange(stages_[index], nullptr);
  showPage(index);
}

void GalleryWindow::save() {
  const QString path = QFileDialog::getSaveFileName(this, "Save the properties of the list",
                                                    subject_->objectName() + ".txt");
  if (path.isEmpty()) return;
  try {
    saveSettings(subject_->list(), path);
    log_->write("Save " + path);
  } catch (const QString& message) {
    QMessageBox::warning(this, "Save", message);
  }
}

void GalleryWindow::load() {
  const QString path = QFileDialog::getOpenFileName(this, "Load the properties of the list");
  if (path.isEmpty()) return;
  try {
    log_->write("Load " + path);
    for (const QString& remark : loadSettings(subject_->list(), path)) log_->write(remark);
  } catch (const QString& message) {
    QMessageBox::warning(this, "Load", message);
  }
}

/// Repaints at once, since the work it announces may not process events. If it does, the line still
/// stays for a while.
void GalleryWindow::tell(const QString& what) {
  rows_->setText(what);
  rows_->repaint();
  telling_.start(timeToRead);
  refreshSoon();
}

void GalleryWindow::setSubject(NvListWidget* widget) {
  subject_ = widget;
  refresh();
}

/// Every change of a list either reports a property or paints the list.
bool GalleryWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Paint) refreshSoon();
  return QMainWindow::eventFilter(watched, event);
}

/// Delayed, because a list may be in the middle of an operation.
void GalleryWindow::refreshSoon() { refreshing_.start(0); }

void GalleryWindow::refresh() {
  Subject list{subject_};
  Subject item{subject_, subject_ ? shownItem(subject_->list()) : -1};
  if (item.item < 0) item.widget = nullptr;
  listSheet_->show(list);
  itemSheet_->show(item);
  tools_->show(list);
  if (!telling_.isActive()) showRows();
  if (!subject_) return;
  listCaption_->setText("Properties of " + subject_->objectName());
  itemCaption_->setText(captionOf(item));
}

void GalleryWindow::showRows() {
  rows_->setText(subject_ ? rowsShown(subject_->list()) : QString());
}

}  // namespace gallery
