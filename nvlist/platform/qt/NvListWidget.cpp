#include <nvlist/platform/qt/NvListWidget.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPaintEvent>
#include <QPointer>
#include <QScrollEvent>
#include <QScrollPrepareEvent>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include <nvlist/platform/qt/QtApplication.h>
#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/accessibility/accessibility.h>
#include <nvlist/platform/qt/widget/QtListSignals.h>
#include <nvlist/platform/qt/widget/QtRows.h>
#include <nvlist/platform/qt/widget/cutTexts.h>

namespace norvane {

/// The list and its place, which may have to outlive the widget for a moment.
struct NvListWidget::Core {
  explicit Core(NvListWidget& widget) : place(widget), list(place), notifier(widget, list) {
    list.addSink(notifier);
  }

  QtPlace place;
  nvList list;
  QtListSignals notifier;
};

NvListWidget::NvListWidget(QWidget* parent) : NvListProperties(parent) {
  core_ = std::make_shared<Core>(*this);
  QtApplication::ensure();
  makeListsAccessible();
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QObject::objectNameChanged, this,
          [this] { list().UserControl_AmbientChanged("DisplayName"); });
  connect(QGuiApplication::styleHints(), &QStyleHints::wheelScrollLinesChanged, this,
          &NvListWidget::followWheelSettings);
  core_->place.wheel.onSideways = [this](int pixels) {
    const std::int64_t change = core_->place.isMirrored() ? -pixels : pixels;
    const std::int64_t left = list().horizontalBar().Value() + change;
    list().userScrollsTo(static_cast<std::int32_t>(std::clamp<std::int64_t>(left, 0, INT32_MAX)));
  };
  list().UserControl_InitProperties();
  followedFont_ = CloneFont(list().Font());
  if (!isEnabled()) list().Enabled(false);
}

NvListWidget::~NvListWidget() {
  core_->place.onPropertyChanged = nullptr;
  core_->place.wheel.onSideways = nullptr;
  core_->notifier.end();
  // The host may be destroyed with its window, while the list is still in the middle of a call.
  core_->list.removeAllSinks();
  // An edit that loses the focus later would be written to a list that has ended (NvListKeys).
  core_->list.closeEdit();
  core_->place.detach();
  QtPlace::endLater(std::move(core_));
}

QtPlace& NvListWidget::place() { return core_->place; }

const QtPlace& NvListWidget::place() const { return core_->place; }

nvList& NvListWidget::list() { return core_->list; }

const nvList& NvListWidget::list() const { return core_->list; }

/// The first child: the list makes it before a host can add one.
QLineEdit* NvListWidget::editBox() const {
  return findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
}

bool NvListWidget::isDesignMode() const { return core_->place.isDesignMode; }

void NvListWidget::setDesignMode(bool on) {
  if (isDesignMode() == on) return;
  core_->place.isDesignMode = on;
  list().Redraw();
}

// ---- comfort ----

void NvListWidget::setFollowsPalette(bool on) {
  if (followsPalette_ == on) return;
  followsPalette_ = on;
  core_->place.makesReadable(on);
  const struct {
    Colour (nvList::*get)() const;
    void (nvList::*set)(Colour);
    Colour usual, ofPalette;
  } properties[] = {
      {&nvList::ForeColor, &nvList::ForeColor, 0, colours::windowText},
      {&nvList::BackColor, &nvList::BackColor, colours::white, colours::window},
      {&nvList::GridLineColor, &nvList::GridLineColor, 0xC0C0C0, colours::workspace},
  };
  for (const auto& property : properties) {
    const Colour from = on ? property.usual : property.ofPalette;
    const Colour to = on ? property.ofPalette : property.usual;
    if ((list().*property.get)() == from) (list().*property.set)(to);
  }
}

void NvListWidget::setMirrorsLayout(bool on) {
  mirrorsLayout_ = on;
  followDirection();
}

void NvListWidget::followDirection() {
  core_->place.mirror(mirrorsLayout_ && isRightToLeft());
  // The text stays where the row has it, also if its own direction is the other one.
  if (QLineEdit* const edit = editBox())
    edit->setAlignment(core_->place.isMirrored() ? Qt::AlignRight | Qt::AlignAbsolute
                                                 : Qt::AlignLeft);
}

QPointF NvListWidget::mirrored(const QPointF& point) const {
  return core_->place.isMirrored() ? QPointF(width() - 1 - point.x(), point.y()) : point;
}

bool NvListWidget::clipsTexts() const { return list().clipsTexts(); }

void NvListWidget::setClipsTexts(bool on) {
  if (clipsTexts() == on) return;
  list().clipsTexts(on);
  list().Redraw();
}

bool NvListWidget::passesFineWheel() const { return core_->place.wheel.passesParts; }

void NvListWidget::setPassesFineWheel(bool on) { core_->place.wheel.passesParts = on; }

void NvListWidget::setFollowsWheelSettings(bool on) {
  followsWheelSettings_ = on;
  followWheelSettings();
}

void NvListWidget::followWheelSettings() {
  if (followsWheelSettings_) list().WheelScrollLines(QApplication::wheelScrollLines());
}

/// An inherited font, which also changes with the program's, does not replace one that the host has
/// given the list.
void NvListWidget::followFont() {
  const norvane::Font own = fontFrom(font());
  const norvane::Font current = list().Font();
  const bool isFollowing = current && followedFont_ && current->isSame(*followedFont_);
  if (!testAttribute(Qt::WA_SetFont) && !isFollowing) return;
  followedFont_ = own;
  if (!current || !current->isSame(*own)) list().Font(own);
}

void NvListWidget::changeEvent(QEvent* event) {
  const QPointer<QWidget> guard(this);
  if (core_ && event->type() == QEvent::FontChange) followFont();
  if (core_ && event->type() == QEvent::LayoutDirectionChange) followDirection();
  if (core_ && event->type() == QEvent::EnabledChange) list().Enabled(isEnabled());
  if (guard) QWidget::changeEvent(event);
}

/// A value of the horizontal bar from the pixels that are hidden to the left, and the other way
/// round.
std::int32_t NvListWidget::sideways(std::int32_t value) const {
  const nvHScroll& bar = list().horizontalBar();
  return core_->place.isMirrored() && bar.Visible() ? bar.Max() - value : value;
}

/// QScroller scrolls by touch: by whole rows, since the list has no other places.
void NvListWidget::prepareScroller(QScrollPrepareEvent& event) {
  const double height = list().state().ItemHeightValue;
  const nvHScroll& bar = list().horizontalBar();
  const int last = std::max(count() - list().VisibleItems(), 0);
  event.setViewportSize(size());
  event.setContentPosRange({0, 0, bar.Visible() ? bar.Max() : 0.0, last * height});
  event.setContentPos({static_cast<double>(sideways(bar.Visible() ? bar.Value() : 0)),
                       std::max(list().TopIndex(), 0) * height});
  event.accept();
}

void NvListWidget::followScroller(const QScrollEvent& event) {
  const double height = list().state().ItemHeightValue;
  if (!(height > 0)) return;
  const auto top = static_cast<std::int32_t>(std::lround(event.contentPos().y() / height));
  const QPointer<QWidget> guard(this);
  if (top != list().TopIndex()) list().TopIndex(top);
  if (guard)
    list().userScrollsTo(sideways(static_cast<std::int32_t>(std::lround(event.contentPos().x()))));
}

// ---- items ----

namespace {

/// A pattern that matches the text alone.
std::string patternOf(const QString& text) {
  std::string pattern;
  for (const char c : text.toStdString()) {
    const bool isSpecial = std::string_view("?*#[").find(c) != std::string_view::npos;
    pattern += isSpecial ? std::string{'[', c, ']'} : std::string{c};
  }
  return pattern;
}

}  // namespace

int NvListWidget::currentIndex() const { return list().ListIndex(); }

void NvListWidget::setCurrentIndex(int index) { list().ListIndex(index); }

int NvListWidget::count() const { return core_->list.ItemsCount(); }

int NvListWidget::addItem(const QString& text, const QString& key) {
  list().ItemsAdd({.aText = text.toStdString(), .aKey = key.toStdString()});
  return list().NewIndex();
}

QString NvListWidget::itemText(int index) const {
  return QString::fromUtf8(core_->list.ItemText(index));
}

void NvListWidget::setItemText(int index, const QString& text) {
  list().ItemText(index, text.toStdString());
}

QString NvListWidget::itemKey(int index) const {
  return QString::fromUtf8(core_->list.ItemKey(index).toText());
}

void NvListWidget::setItemKey(int index, const QString& key) {
  list().ItemKey(index, key.toStdString());
}

int NvListWidget::indexOfText(const QString& text) const {
  return core_->list.IsInList(patternOf(text));
}

int NvListWidget::indexOfKey(const QString& key) const {
  return core_->list.IndexByKey(key.toStdString());
}

int NvListWidget::indexAt(const QPoint& point) const {
  // The row at the top of a press, as the list finds it (input/mouse.cpp).
  constexpr int pressOrigin = 4;
  QtPlace& place = core_->place;
  nvList& list = core_->list;
  const QPointF inList = mirrored(point);
  const Point at{static_cast<float>(inList.x()), static_cast<float>(inList.y())};
  if (place.mouse().hit(at) != &place) return -1;
  const std::int64_t height = list.ItemHeight();
  if (height <= 0 || point.y() > height * list.ItemsCount()) return -1;
  const std::int64_t row = point.y() < pressOrigin ? -1 : (point.y() - pressOrigin) / height;
  const std::int64_t index = list.verticalBar().Value() + row;
  return index >= 0 && index < list.ItemsCount() ? static_cast<int>(index) : -1;
}

QRect NvListWidget::itemRect(int index) const {
  const bool isItem = index >= 0 && index < count();
  if (!isItem) return {};
  return paintedRow(*this, index);
}

void NvListWidget::scrollTo(int index) {
  if (index < 0 || index >= count()) return;
  const int visible = std::max(list().VisibleItems(), 1);
  const int top = list().TopIndex();
  if (index < top)
    list().TopIndex(index);
  else if (index >= std::max(top, 0) + visible)
    list().TopIndex(index - visible + 1);
}

QList<int> NvListWidget::selectedIndexes() const {
  const auto indexes = core_->list.selectedIndexes();
  return {indexes.begin(), indexes.end()};
}

void NvListWidget::clearSelection() { list().clearSelection(); }

// ---- events ----

bool NvListWidget::event(QEvent* event) {
  // Events come before the list exists, and after it.
  if (!core_) return QWidget::event(event);
  std::shared_ptr<Core> core = core_;
  // Qt uses the widget after it has moved the focus, so no slot may run then: if the list itself
  // has moved it, the signals follow when that call ends.
  const bool isFocus = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
  const auto deliver = [&] { return core->place.event(event); };
  const bool isTaken = isFocus ? deliver() : core->notifier.during(deliver);
  if (core->notifier.hasEnded()) {
    QtPlace::endLater(std::move(core));
    return true;
  }
  if (event->type() == QEvent::ScrollPrepare) {
    prepareScroller(*static_cast<QScrollPrepareEvent*>(event));
    return true;
  }
  if (event->type() == QEvent::Scroll) {
    followScroller(*static_cast<QScrollEvent*>(event));
    return true;
  }
  if (!isTaken && event->type() == QEvent::ContextMenu &&
      contextMenuPolicy() == Qt::DefaultContextMenu)
    return requestContextMenu(*static_cast<QContextMenuEvent*>(event));
  if (!isTaken && event->type() == QEvent::ToolTip && showsCutTexts_ && toolTip().isEmpty() &&
      showCutText(*this, *static_cast<QHelpEvent*>(event)))
    return true;
  return isTaken || QWidget::event(event);
}

/// Returns true if somebody is connected. A slot may destroy the widget.
bool NvListWidget::requestContextMenu(QContextMenuEvent& event) {
  static const QMetaMethod signal = QMetaMethod::fromSignal(&NvListWidget::contextMenuRequested);
  const bool isByMouse = event.reason() == QContextMenuEvent::Mouse;
  const int index = isByMouse ? indexAt(event.pos()) : list().ListIndex();
  const QRect item = itemRect(index);
  event.setAccepted(isConnected(signal));
  if (event.isAccepted())
    emit contextMenuRequested(item.isEmpty() ? -1 : index,
                              isByMouse ? event.pos() : item.bottomLeft());
  return true;
}

/// As in Qt's own views, Return is also left to the form, whose default button it may press.
void NvListWidget::keyPressEvent(QKeyEvent* event) {
  const QPointer<QWidget> guard(this);
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const int index = list().ListIndex();
  if (isReturn && index >= 0 && index < count() && list().ItemEnabled(index))
    emit itemActivated(index);
  if (guard) QWidget::keyPressEvent(event);
}

void NvListWidget::paintEvent(QPaintEvent* event) { core_->place.paint(event->region()); }

void NvListWidget::resizeEvent(QResizeEvent*) {
  core_->place.resize();
  list().UserControl_Resize();
}

void NvListWidget::connectNotify(const QMetaMethod&) {
  hasNewConnections_ = true;
  if (core_) core_->notifier.watch();
}

void NvListWidget::disconnectNotify(const QMetaMethod&) { hasNewConnections_ = true; }

}  // namespace norvane
