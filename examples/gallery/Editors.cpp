#include "Editors.h"

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <limits>
#include <memory>
#include <optional>

#include <nvlist/platform/qt/QtFont.h>
#include <nvlist/platform/qt/QtPicture.h>

using norvane::Boolean;
using norvane::Colour;
using norvane::Picture;
using norvane::QtPicture;
using norvane::Variant;

namespace gallery {
namespace {

constexpr int swatchSize = 14;

/// Shows lengths without trailing zeros.
class LengthBox final : public QDoubleSpinBox {
 public:
  QString textFromValue(double value) const override { return locale().toString(value, 'g', 9); }
};

QString quoted(const QString& text) { return '"' + text + '"'; }

/// The colour to show, if it is known: a system colour depends on the list's surface.
std::optional<QColor> shownColour(const Variant& value) {
  if (!value.isNumeric()) return std::nullopt;
  const Colour colour = value.toInt32();
  if (norvane::isSystemColour(colour)) return std::nullopt;
  return QColor(colour & 255, colour >> 8 & 255, colour >> 16 & 255);
}

Variant storedColour(const QColor& colour) {
  return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

QString nameOf(const Variant& value) {
  if (const auto colour = shownColour(value)) return colour->name().toUpper();
  if (value.isNumeric()) return QString("system %1").arg(value.toInt32() & 255);
  return QString::fromStdString(value.toText());
}

/// The colour with such a name; nothing for any other text.
std::optional<Variant> colourNamed(const QString& name) {
  const QString word = name.trimmed();
  bool isNumber = false;
  const int index = word.startsWith("system ") ? word.mid(7).toInt(&isNumber) : 0;
  if (isNumber && index >= 0 && index <= 255)
    return norvane::systemColour(static_cast<std::uint8_t>(index));
  const QColor colour(word);
  return colour.isValid() ? std::optional(storedColour(colour)) : std::nullopt;
}

QIcon swatchIcon(const std::optional<QColor>& colour) {
  QPixmap pixmap(swatchSize, swatchSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setPen(QColor(0x80, 0x80, 0x80));
  painter.setBrush(colour ? QBrush(*colour) : QBrush(QColor(0x80, 0x80, 0x80), Qt::BDiagPattern));
  painter.drawRect(0, 0, swatchSize - 1, swatchSize - 1);
  return pixmap;
}

/// A line edit with a swatch that opens the colour dialog.
Editor<Variant> colourEditor(Default mark, const Edited<Variant>& edited) {
  auto* line = new QLineEdit;
  QAction* pick = line->addAction(swatchIcon({}), QLineEdit::LeadingPosition);
  pick->setToolTip("Choose a colour");
  const auto now = std::make_shared<Variant>();

  const auto show = [=](const Variant& value) {
    *now = value;
    pick->setIcon(swatchIcon(shownColour(value)));
    if (!line->isModified()) line->setText(nameOf(value));
  };
  QObject::connect(line, &QLineEdit::editingFinished, [=] {
    if (!line->isModified()) return;
    line->setModified(false);
    const bool isMark = mark == Default::accepted && line->text() == "def";
    const auto typed = isMark ? Variant(norvane::defaultMark) : colourNamed(line->text());
    if (typed)
      edited(*typed, nameOf(*typed));
    else
      show(*now);
  });
  QObject::connect(pick, &QAction::triggered, [=] {
    const QColor before = shownColour(*now).value_or(Qt::white);
    const QColor chosen = QColorDialog::getColor(before, line->window());
    if (chosen.isValid()) edited(storedColour(chosen), chosen.name().toUpper());
  });
  return {line, show};
}

QString nameOf(const norvane::Font& font) {
  if (!font) return "none";
  QString name = QString("%1, %2 pt").arg(QString::fromStdString(font->Name)).arg(font->Size);
  if (font->Bold) name += ", bold";
  if (font->Italic) name += ", italic";
  return name;
}

QString nameOf(const Picture& picture) {
  if (!picture) return "none";
  return QString("%1 x %2").arg(picture->width()).arg(picture->height());
}

template <class Value, class Box>
Editor<Value> spinEditor(Box* box, const Edited<Value>& edited) {
  box->setKeyboardTracking(false);
  using Shown = decltype(box->value());
  QObject::connect(box, qOverload<Shown>(&Box::valueChanged),
                   [=](Shown value) { edited(static_cast<Value>(value), box->text()); });
  return {box, [box](const Value& value) {
            const QSignalBlocker quiet(box);
            box->setValue(static_cast<Shown>(value));
          }};
}

}  // namespace

MakeEditor<Boolean> flag() {
  return [](const Edited<Boolean>& edited) -> Editor<Boolean> {
    auto* box = new QCheckBox;
    QObject::connect(box, &QCheckBox::toggled, [=](bool on) { edited(on, on ? "True" : "False"); });
    return {box, [box](const Boolean& value) {
              const QSignalBlocker quiet(box);
              box->setChecked(static_cast<bool>(value));
            }};
  };
}

MakeEditor<std::int32_t> number() {
  return [](const Edited<std::int32_t>& edited) {
    auto* box = new QSpinBox;
    box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    return spinEditor<std::int32_t>(box, edited);
  };
}

MakeEditor<float> length() {
  return [](const Edited<float>& edited) {
    auto* box = new LengthBox;
    box->setRange(-1e6, 1e6);
    box->setDecimals(3);
    return spinEditor<float>(box, edited);
  };
}

MakeEditor<std::string> text() {
  return [](const Edited<std::string>& edited) -> Editor<std::string> {
    auto* line = new QLineEdit;
    QObject::connect(line, &QLineEdit::editingFinished, [=] {
      if (!line->isModified()) return;
      line->setModified(false);
      edited(line->text().toStdString(), quoted(line->text()));
    });
    return {line, [line](const std::string& text) {
              if (line->isModified()) return;
              line->setText(QString::fromStdString(text));
              line->setCursorPosition(0);
            }};
  };
}

MakeEditor<Variant> value() {
  return [](const Edited<Variant>& edited) -> Editor<Variant> {
    const auto line = text()([edited](const std::string& value, const QString& shown) {
      edited(Variant(value), shown);
    });
    return {line.widget, [show = line.show](const Variant& value) {
              show(value.object() ? "(object)" : value.toText());
            }};
  };
}

MakeEditor<Colour> colour() {
  return [](const Edited<Colour>& edited) -> Editor<Colour> {
    const auto editor = colourEditor(
        Default::shown,
        [edited](const Variant& value, const QString& text) { edited(value.toInt32(), text); });
    return {editor.widget, [show = editor.show](const Colour& value) { show(value); }};
  };
}

MakeEditor<Variant> itemColour(Default mark) {
  return [mark](const Edited<Variant>& edited) { return colourEditor(mark, edited); };
}

MakeEditor<norvane::Font> font() {
  return [](const Edited<norvane::Font>& edited) -> Editor<norvane::Font> {
    auto* button = new QPushButton;
    auto shown = std::make_shared<norvane::Font>();
    QObject::connect(button, &QPushButton::clicked, [=] {
      bool isChosen = false;
      const QFont chosen = QFontDialog::getFont(
          &isChosen, *shown ? norvane::toQFont(**shown) : button->font(), button->window());
      if (!isChosen) return;
      const norvane::Font font = norvane::fontFrom(chosen);
      edited(font, nameOf(font));
    });
    return {button, [=](const norvane::Font& font) {
              *shown = font;
              button->setText(nameOf(font));
              button->setToolTip(nameOf(font));
            }};
  };
}

MakeEditor<Picture> picture() {
  return [](const Edited<Picture>& edited) -> Editor<Picture> {
    auto* button = new QPushButton;
    auto* menu = new QMenu(button);
    menu->addAction("Open...", [=] {
      const QString path = QFileDialog::getOpenFileName(button->window(), "Open a picture");
      if (path.isEmpty()) return;
      const Picture chosen = QtPicture::fromFile(path);
      edited(chosen, nameOf(chosen));
    });
    menu->addAction("None", [=] { edited(nullptr, "none"); });
    button->setMenu(menu);
    return {button, [button](const Picture& picture) {
              button->setText(nameOf(picture));
              const auto* own = dynamic_cast<const QtPicture*>(picture.get());
              button->setIcon(own ? QIcon(QPixmap::fromImage(own->image())) : QIcon());
            }};
  };
}

MakeEditor<int> choiceOf(std::vector<Choice> choices) {
  return [choices = std::move(choices)](const Edited<int>& edited) -> Editor<int> {
    auto* box = new QComboBox;
    for (const Choice& choice : choices) box->addItem(choice.name, choice.value);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QObject::connect(box, &QComboBox::activated,
                     [=](int row) { edited(box->itemData(row).toInt(), box->itemText(row)); });
    return {box, [box](const int& value) { box->setCurrentIndex(box->findData(value)); }};
  };
}

}  // namespace gallery
