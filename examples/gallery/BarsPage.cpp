// The page of the scroll bars: enlarged pictures of all their states, and bars to use.

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <memory>

#include <nvlist/platform/UserControl.h>
#include <nvlist/platform/qt/NvScrollWidget.h>

#include "Pages.h"

using norvane::nvHScroll;
using norvane::NvHScrollWidget;
using norvane::NvScrollWidget;
using norvane::nvVScroll;
using norvane::NvVScrollWidget;

namespace gallery {
namespace {

constexpr int enlargement = 3;
constexpr int specimenLength = 56;
/// A point inside of each part of a bar, across and along.
constexpr float insidePart = 8;

struct Family {
  const char* name;
  norvane::cScrollColorStyle style;
};
constexpr Family families[] = {{"Blue", norvane::cXPScrollBlue},
                               {"Silver", norvane::cXPScrollSilver},
                               {"Olive", norvane::cXPScrollOlive}};
constexpr Family custom = {"Custom", nvHScroll::custom};

enum class State { normal, hovered, pressed, disabled };
struct NamedState {
  const char* name;
  State state;
};
constexpr NamedState states[] = {{"normal", State::normal},
                                 {"hovered", State::hovered},
                                 {"pressed", State::pressed},
                                 {"disabled", State::disabled}};

/// The colours of the horizontal bar's custom style.
struct NamedColour {
  const char* name;
  QRgb rgb;
};
constexpr NamedColour customColours[] = {
    {"ScrollBackColor", 0xF6E9F8},    {"ScrollBar", 0xB06ABE},     {"ScrollBarDown", 0x6E2F7B},
    {"ScrollBarHover", 0xC98BD5},     {"ScrollArrows", 0xFFFFFF},  {"ScrollArrowsDown", 0xFFE08A},
    {"ScrollArrowsHover", 0xFFFFFF},  {"ScrollButtons", 0x8A3F98}, {"ScrollButtonsDown", 0x55205F},
    {"ScrollButtonsHover", 0xA85AB6},
};

void setStyle(nvVScroll& bar, const Family& family) { bar.ColorStyle(family.style); }

void setStyle(nvHScroll& bar, const Family& family) {
  bar.ColorStyle(family.style);
  if (family.style != nvHScroll::custom) return;
  norvane::PropertyBag bag;
  for (const auto& [name, rgb] : customColours)
    bag.WriteProperty(name, hostColour(rgb), norvane::Variant());
  bar.SetNewProperty(bag);
}

/// An enlarged picture of a real bar, with all parts in the same state.
template <class Widget>
QPixmap specimen(const Family& family, State state) {
  Widget widget;
  widget.setAttribute(Qt::WA_DontShowOnScreen);
  widget.resize(specimenLength, specimenLength);
  widget.show();
  widget.bar().Max(6);
  widget.bar().Value(3);
  setStyle(widget.bar(), family);
  if (state == State::disabled) widget.bar().Enabled(false);
  // The thumb and the two buttons.
  for (norvane::Place* part : widget.place().places()[0]->places()) {
    if (state == State::hovered || state == State::pressed)
      part->control()->UserControl_MouseMove(0, 0, insidePart, insidePart);
    if (state == State::pressed)
      part->control()->UserControl_MouseDown(1, 0, insidePart, insidePart);
  }
  const QPixmap pixmap = widget.grab();
  return pixmap.scaled(pixmap.size() * enlargement);
}

QLabel* shown(const QPixmap& pixmap) {
  auto* label = new QLabel;
  label->setPixmap(pixmap);
  label->setFixedSize(pixmap.size() / pixmap.devicePixelRatio());
  return label;
}

/// All colour families side by side, each in all states.
QWidget* verticalSpecimens() {
  auto* result = new QWidget;
  auto* grid = new QGridLayout(result);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(2);
  int column = 0;
  for (const Family& family : families) {
    grid->addWidget(new QLabel(family.name), 0, column, 1, 4);
    for (const auto& [name, state] : states) {
      grid->addWidget(shown(specimen<NvVScrollWidget>(family, state)), 1, column);
      grid->addWidget(new QLabel(name), 2, column++, Qt::AlignHCenter);
    }
    grid->setColumnMinimumWidth(column++, 12);
  }
  grid->setColumnStretch(column, 1);
  return result;
}

/// One row for each family, one column for each state.
QWidget* horizontalSpecimens() {
  auto* result = new QWidget;
  auto* grid = new QGridLayout(result);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(4);
  int row = 1;
  const auto addRow = [&](const Family& family) {
    int column = 0;
    for (const auto& [name, state] : states) {
      if (row == 1) grid->addWidget(new QLabel(name), 0, column, Qt::AlignHCenter);
      grid->addWidget(shown(specimen<NvHScrollWidget>(family, state)), row, column++);
    }
    grid->addWidget(new QLabel(family.name), row++, column);
    grid->setColumnStretch(column, 1);
  };
  for (const Family& family : families) addRow(family);
  addRow(custom);
  return result;
}

/// A bar to use, and a label that shows its value and how often each event was raised.
template <class Widget>
std::pair<QWidget*, QLabel*> live(const Family& family, int max, const char* separator) {
  auto* widget = new Widget;
  widget->setMaximum(max);
  widget->setValue(max / 3);
  setStyle(widget->bar(), family);
  auto* label = new QLabel;
  struct Counts {
    int change = 0;
    int scroll = 0;
  };
  const auto counts = std::make_shared<Counts>();
  const auto tell = [=] {
    const QStringList parts = {QString("Value %1").arg(widget->value()),
                               QString("Change %1").arg(counts->change),
                               QString("Scroll %1").arg(counts->scroll)};
    label->setText(parts.join(separator));
  };
  QObject::connect(widget, &NvScrollWidget::changed, [=] { ++counts->change, tell(); });
  QObject::connect(widget, &NvScrollWidget::scrolled, [=] { ++counts->scroll, tell(); });
  tell();
  return {widget, label};
}

QWidget* liveBars() {
  auto* result = new QWidget;
  auto* grid = new QGridLayout(result);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  int column = 0;
  for (const Family& family : families) {
    const auto [bar, label] = live<NvVScrollWidget>(family, 40, "\n");
    bar->setObjectName(QString("VScroll %1").arg(family.name));
    label->setMinimumWidth(72);
    grid->addWidget(bar, 0, column++, 4, 1);
    grid->addWidget(label, 0, column++, 4, 1);
  }
  int row = 0;
  const auto addRow = [&](const Family& family) {
    const auto [bar, label] = live<NvHScrollWidget>(family, 150, "   ");
    bar->setObjectName(QString("HScroll %1").arg(family.name));
    label->setMinimumWidth(210);
    grid->addWidget(bar, row, column);
    grid->addWidget(label, row++, column + 1);
  };
  for (const Family& family : families) addRow(family);
  addRow(custom);
  grid->setColumnStretch(column, 1);
  return result;
}

}  // namespace

/// In a scroll area, so that it does not limit how small the window can be.
void fillBars(Stage& stage) {
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(8);
  column->addWidget(verticalSpecimens());
  column->addWidget(horizontalSpecimens());
  column->addWidget(liveBars(), 1);
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(content);
  auto* whole = new QVBoxLayout(&stage);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(area);
}

}  // namespace gallery
