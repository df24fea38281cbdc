#include <nvlist/platform/qt/services/QtTipWindow.h>

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QToolTip>
#include <algorithm>

#include <nvlist/platform/qt/QtWindow.h>

namespace norvane {
namespace {

/// In milliseconds. If the mouse enters another widget this soon, its tip appears faster.
constexpr qint64 movingOn = 100;
constexpr int border = 2;
constexpr QPoint besideMouse(2, 20);

QColor qtColour(Colour colour) {
  const auto bits = static_cast<unsigned>(colour);
  return qRgb(bits & 0xFF, bits >> 8 & 0xFF, bits >> 16 & 0xFF);
}

Colour colourOf(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

}  // namespace

/// The window that shows the text.
class QtTipWindow::Tip final : public QWidget {
 public:
  Tip(QWidget& form, TipStore& store)
      : QWidget(&form, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput),
        store_(store) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFont(QToolTip::font());
  }

  /// Screen readers read the text as the accessible name.
  void setText(const QString& text) {
    setAccessibleName(text);
    const QRect room(0, 0, limit() > 0 ? limit() : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QSize size = fontMetrics().boundingRect(room, flags(), text).size();
    resize(size.grownBy(margins()));
    update();
  }

  /// Below the mouse, or above it if the screen ends there.
  void placeAt(QPoint mouse) {
    const QScreen* screen = QGuiApplication::screenAt(mouse);
    const QRect area = (screen ? screen : parentWidget()->screen())->availableGeometry();
    QPoint place = mouse + besideMouse;
    if (place.y() + height() > area.bottom() + 1) place.setY(mouse.y() - height());
    place.setX(std::min(place.x(), area.right() + 1 - width()));
    move(std::max(place.x(), area.left()), std::max(place.y(), area.top()));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(qtColour(store_.textColour()));
    painter.setBrush(qtColour(store_.backColour()));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawText(rect().marginsRemoved(margins()), flags(), accessibleName());
  }

 private:
  int limit() const { return store_.maxTipWidth(); }
  int flags() const { return limit() > 0 ? Qt::TextWordWrap : 0; }
  QMargins margins() const {
    const auto side = [](std::int32_t pixels) { return border + std::clamp(pixels, 0, 1000); };
    const Rectangle sides = store_.margin();
    return {side(sides.Left), side(sides.Top), side(sides.Right), side(sides.Bottom)};
  }

  TipStore& store_;
};

QtTipWindow::QtTipWindow(QWidget& form) : TipStore(newHandle(), handleOf(form)), form_(&form) {
  TipStore::backColour(colourOf(QToolTip::palette().color(QPalette::ToolTipBase)));
  TipStore::textColour(colourOf(QToolTip::palette().color(QPalette::ToolTipText)));
  timer_.setSingleShot(true);
  timer_.callOnTimeout(this, [this] { timeOver(); });
  // Filters the events of all widgets: a press on a tool may go to a child of it.
  QCoreApplication::instance()->installEventFilter(this);
}

QtTipWindow::~QtTipWindow() { delete tip_; }

// ---- tools and settings ----

bool QtTipWindow::addTool(const TipTool& tool) {
  const bool isAdded = TipStore::addTool(tool);
  if (QWidget* widget = widgetOf(tool.id); widget && widget->underMouse()) enter(*widget);
  return isAdded;
}

void QtTipWindow::deleteTool(const TipTool& tool) {
  TipStore::deleteTool(tool);
  QWidget* widget = widgetOf(tool.id);
  if (widget && !isTool(*widget)) leave(*widget);
}

void QtTipWindow::updateText(const TipTool& tool) {
  TipStore::updateText(tool);
  refresh();
}

void QtTipWindow::backColour(Colour colour) {
  TipStore::backColour(colour);
  refresh();
}

std::int32_t QtTipWindow::textColour(Colour colour) {
  const std::int32_t answer = TipStore::textColour(colour);
  refresh();
  return answer;
}

void QtTipWindow::margin(const Rectangle& sides) {
  TipStore::margin(sides);
  refresh();
}

void QtTipWindow::maxTipWidth(std::int32_t pixels) {
  TipStore::maxTipWidth(pixels);
  refresh();
}

// ---- the mouse ----

bool QtTipWindow::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  switch (event->type()) {
    case QEvent::Enter:
      if (isTool(widget)) enter(widget);
      break;
    case QEvent::Leave:
    case QEvent::Hide:
      leave(widget);
      break;
    case QEvent::MouseButtonPress:
      if (tool_ && (tool_ == &widget || tool_->isAncestorOf(&widget))) hide();
      break;
    case QEvent::ToolTip:
      // The widget shows no tip of its own making besides, only one that the host has set.
      return isTool(widget) && widget.toolTip().isEmpty();
    default:
      break;
  }
  return false;
}

bool QtTipWindow::isTool(const QWidget& widget) const {
  return std::ranges::any_of(tools(),
                             [&](const TipTool& tool) { return widgetOf(tool.id) == &widget; });
}

/// A widget may get Enter while it has the mouse, when a window in front of it closes.
void QtTipWindow::enter(QWidget& widget) {
  if (tool_ && (tool_ == &widget || widget.isAncestorOf(tool_))) return;
  hide();
  tool_ = &widget;
  const bool hasMovedOn = sinceHidden_.isValid() && sinceHidden_.elapsed() < movingOn;
  waitFor(hasMovedOn ? TipDelay::reshow : TipDelay::initial);
}

/// The mouse may still be over a tool behind this one, which gets no Enter.
void QtTipWindow::leave(QWidget& widget) {
  if (tool_ != &widget) return;
  hide();
  tool_ = nullptr;
  for (QWidget* behind = widget.parentWidget(); behind; behind = behind->parentWidget())
    if (behind->underMouse() && isTool(*behind)) return enter(*behind);
}

// ---- the tip ----

void QtTipWindow::waitFor(TipDelay which) {
  restsAt_ = QCursor::pos();
  timer_.start(delay(which));
}

void QtTipWindow::timeOver() {
  if (restsAt_ != QCursor::pos()) {
    restsAt_ = QCursor::pos();
    timer_.start();
  } else if (isShown()) {
    hide();
  } else {
    show();
  }
}

bool QtTipWindow::isShown() const { return tip_ && tip_->isVisible(); }

QString QtTipWindow::text() const {
  if (!tool_) return {};
  for (const TipTool& tool : tools())
    if (widgetOf(tool.id) == tool_) return QString::fromUtf8(tool.text.c_str());
  return {};
}

void QtTipWindow::show() {
  if (text().isEmpty() || !form_) return;
  if (!tip_) tip_ = new Tip(*form_, *this);
  tip_->setText(text());
  tip_->placeAt(QCursor::pos());
  tip_->show();
  waitFor(TipDelay::autopop);
}

void QtTipWindow::hide() {
  timer_.stop();
  if (!isShown()) return;
  tip_->hide();
  sinceHidden_.start();
}

void QtTipWindow::refresh() {
  if (!isShown()) return;
  if (text().isEmpty()) return hide();
  tip_->setText(text());
}

}  // namespace norvane
