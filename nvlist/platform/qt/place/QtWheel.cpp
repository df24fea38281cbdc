#include <nvlist/platform/qt/place/QtWheel.h>

#include <QApplication>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include <nvlist/platform/qt/place/QtKeys.h>

namespace norvane {
namespace {

constexpr int notch = 120;
constexpr double pixelsOfLine = 16;

}  // namespace

bool QtWheel::turn(QWheelEvent& event, const Procedure& procedure) {
  int turn = event.angleDelta().y();
  // Some systems turn the wheel sideways while Alt is down.
  if (turn == 0 && (event.modifiers() & Qt::AltModifier)) turn = event.angleDelta().x();
  if (turn == 0) return turnSideways(event);
  event.accept();
  if (!passesParts) {
    if (event.phase() == Qt::ScrollBegin) restOfNotch_ = 0;
    turn = wholeNotches(turn);
    if (turn == 0) return true;
  }
  turn = std::clamp(turn, -32768, 32767);
  const QPoint position = event.globalPosition().toPoint();
  const auto packed = [](int high, int low) { return high * 0x10000 + (low & 0xFFFF); };
  procedure(packed(turn, wheelKeysOf(event.buttons(), event.modifiers())),
            packed(static_cast<std::int16_t>(position.y()), position.x()));
  return true;
}

/// Adds a turn to what earlier ones have left, and takes the whole notches from that. A turn in the
/// other direction starts anew.
int QtWheel::wholeNotches(int turn) {
  if ((turn < 0) != (restOfNotch_ < 0)) restOfNotch_ = 0;
  restOfNotch_ += turn;
  const int whole = restOfNotch_ / notch * notch;
  restOfNotch_ -= whole;
  return whole;
}

bool QtWheel::turnSideways(const QWheelEvent& event) {
  if (!onSideways || event.angleDelta().x() == 0) return false;
  const double ofNotch = pixelsOfLine * QApplication::wheelScrollLines();
  const int exact = event.pixelDelta().x();
  restOfPixel_ -= exact != 0 ? exact : event.angleDelta().x() * ofNotch / notch;
  const double whole = std::trunc(restOfPixel_);
  restOfPixel_ -= whole;
  // A copy: a handler of the host may destroy the widget.
  const auto handler = onSideways;
  if (whole != 0) handler(static_cast<int>(whole));
  return true;
}

}  // namespace norvane
