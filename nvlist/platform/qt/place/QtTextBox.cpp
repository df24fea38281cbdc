#include <nvlist/platform/qt/place/QtTextBox.h>

#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/drawing/QtColour.h>
#include <nvlist/platform/qt/place/QtKeys.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

bool isLegible(const QColor& text, const QColor& background) {
  return std::abs(qGray(text.rgb()) - qGray(background.rgb())) >= 64;
}

}  // namespace

QtTextBox::QtTextBox(QWidget& parent, Handlers handlers)
    : edit_(new QLineEdit(&parent)), handlers_(std::move(handlers)) {
  edit_->hide();
  // The edit is as high as a line of text; a frame and margins would not fit.
  edit_->setFrame(false);
  edit_->setTextMargins(0, 0, 0, 0);
  edit_->installEventFilter(this);
}

QtTextBox::~QtTextBox() {
  if (!edit_) return;
  edit_->removeEventFilter(this);
  // Later, since this may be one of its own events.
  edit_->hide();
  edit_->deleteLater();
}

void QtTextBox::Font(const norvane::Font& font) {
  if (edit_ && font) edit_->setFont(toQFont(*font));
}

/// The background is that of the desktop's edits. It may be too close to the list's text colour, as
/// dark letters are on a dark desktop: then it is replaced.
void QtTextBox::ForeColor(Colour colour) {
  if (!edit_) return;
  const QPalette desktop = edit_->parentWidget()->palette();
  const QColor text(rgbOf(colour, desktop));
  QPalette own;
  own.setColor(QPalette::Text, text);
  if (!isLegible(text, desktop.color(QPalette::Base)))
    own.setColor(QPalette::Base, qGray(text.rgb()) < 128 ? Qt::white : Qt::black);
  edit_->setPalette(own);
}

std::string QtTextBox::Text() const { return edit_ ? edit_->text().toStdString() : std::string(); }

void QtTextBox::Text(const std::string& text) {
  if (edit_) edit_->setText(QString::fromStdString(text));
}

void QtTextBox::Move(const Bounds& bounds) {
  place_ = bounds;
  follow();
}

void QtTextBox::follow() {
  if (!edit_) return;
  const auto rounded = [](float length) { return static_cast<int>(std::lrint(length)); };
  edit_->setGeometry(handlers_.shown(
      {rounded(place_.Left), rounded(place_.Top), rounded(place_.Width), rounded(place_.Height)}));
}

bool QtTextBox::Visible() const { return edit_ && !edit_->isHidden(); }

void QtTextBox::Visible(bool isVisible) {
  if (!edit_ || Visible() == isVisible) return;
  // Hiding the focused widget would move the focus to the next one of the form.
  if (!isVisible && edit_->hasFocus()) edit_->parentWidget()->setFocus();
  if (edit_) edit_->setVisible(isVisible);
}

void QtTextBox::SetFocus() {
  if (!edit_) return;
  if (!edit_->isVisible()) throw Failure::invalidCall();
  edit_->setFocus();
}

void QtTextBox::select(std::int32_t start, std::int32_t length) {
  if (!edit_) return;
  // Qt counts UTF-16 units.
  const std::u32string characters = edit_->text().toStdU32String();
  const auto units = [&](std::int32_t count) {
    const auto all = static_cast<std::int32_t>(characters.size());
    const auto end = static_cast<std::size_t>(std::clamp(count, 0, all));
    return static_cast<int>(QString::fromStdU32String(characters.substr(0, end)).size());
  };
  const int first = units(start);
  edit_->setSelection(first, units(start + std::min(length, INT32_MAX - start)) - first);
}

bool QtTextBox::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::FocusIn || type == QEvent::FocusOut || type == QEvent::Enter)
    handlers_.notify(type);
  if (type == QEvent::KeyPress) {
    std::int16_t character = characterOf(*static_cast<QKeyEvent*>(event));
    if (character != 0) {
      handlers_.keyPress(character);
      if (character == 0 || !edit_) return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace norvane
