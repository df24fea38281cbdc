#pragma once

#include <functional>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Font.h>

namespace norvane {

/// A font of the library with the look of a host's; empty for a null pointer or another object.
Font fontOf(IUnknown* font);

/// The platform's object of a font; empty for an empty reference.
ComPtr<IFontDisp> newFontDisp(const Font& font);

/// The font object that a control hands out: the same one for as long as the font is the same. A
/// host may change it (`list.Font.Bold = True`); the control then takes the new look over.
class OleFont {
 public:
  /// `changed` runs after each change that the host makes.
  explicit OleFont(std::function<void(const Font& look)> changed) : changed_(std::move(changed)) {}
  ~OleFont() { disconnect(); }
  OleFont(const OleFont&) = delete;
  OleFont& operator=(const OleFont&) = delete;

  /// The object for the font that the control has now, with a reference for the caller.
  IFontDisp* handOut(const Font& font);

 private:
  class Listener;
  void disconnect();
  void hostChanged();

  std::function<void(const Font&)> changed_;
  Font look_;
  ComPtr<IFontDisp> font_;
  ComPtr<IConnectionPoint> point_;
  DWORD cookie_ = 0;
};

}  // namespace norvane
