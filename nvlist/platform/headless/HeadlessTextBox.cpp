#include <nvlist/platform/headless/HeadlessTextBox.h>

#include <nvlist/values/Failure.h>

namespace norvane {

void HeadlessTextBox::draw(Surface& onto) const {
  onto.BackColor(systemColour(5));
  onto.Cls();
  onto.Font(font);
  onto.ForeColor(foreColor);
  onto.Print(text_);
}

bool HeadlessTextBox::typeCharacter(std::int16_t KeyAscii) {
  if (!isVisible_) return true;
  keyPress_(KeyAscii);
  return KeyAscii != 0;
}

void HeadlessTextBox::Visible(bool isVisible) {
  isVisible_ = isVisible;
  if (!isVisible) hasFocus = false;
}

void HeadlessTextBox::SetFocus() {
  if (refusesFocus) throw Failure::invalidCall();
  hasFocus = true;
}

void HeadlessTextBox::select(std::int32_t start, std::int32_t length) {
  selectionStart = start;
  selectionLength = length;
}

}  // namespace norvane
