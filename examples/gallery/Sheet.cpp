#include "Sheet.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>

namespace gallery {

Sheet::Sheet(const std::vector<PropertyGroup>& groups) {
  auto* page = new QWidget;
  grid_ = new QGridLayout(page);
  grid_->setContentsMargins(8, 4, 8, 8);
  grid_->setHorizontalSpacing(8);
  grid_->setVerticalSpacing(2);
  grid_->setColumnMinimumWidth(1, 145);
  grid_->setColumnStretch(1, 1);
  for (const PropertyGroup& group : groups) {
    addHeading(group.title);
    for (const Property& property : group.properties) addField(property);
  }
  grid_->setRowStretch(grid_->rowCount(), 1);

  setWidget(page);
  setWidgetResizable(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void Sheet::addHeading(const char* title) {
  auto* heading = new QLabel(title);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  heading->setContentsMargins(0, 6, 0, 2);
  grid_->addWidget(heading, grid_->rowCount(), 0, 1, 2);
}

void Sheet::addField(const Property& property) {
  const Property::Field& field = fields_.emplace_back(property.make(*this));
  field.widget->setObjectName(property.name);
  field.widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  field.widget->setFocusPolicy(Qt::StrongFocus);
  field.widget->installEventFilter(this);
  const int row = grid_->rowCount();
  grid_->addWidget(new QLabel(property.name), row, 0);
  grid_->addWidget(field.widget, row, 1);
  grid_->setRowMinimumHeight(row, 20);
}

/// Makes the wheel scroll the sheet instead of changing the value under the pointer.
bool Sheet::eventFilter(QObject* watched, QEvent* event) {
  const bool isField = watched->parent() == widget();
  if (event->type() != QEvent::Wheel || !isField || static_cast<QWidget*>(watched)->hasFocus())
    return QScrollArea::eventFilter(watched, event);
  event->ignore();
  return true;
}

void Sheet::show(const Subject& subject) {
  subject_ = subject;
  widget()->setEnabled(subject.widget != nullptr);
  if (!subject.widget) return;
  for (const Property::Field& field : fields_) field.show(subject);
}

}  // namespace gallery
