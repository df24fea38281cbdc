#pragma once

#include <functional>

#include <nvlist/platform/windows/ole.h>
#include <nvlist/values/Font.h>

namespace norvane {

/// A library font equal to a host's font. Empty for a null pointer or another object.
Font fontOf(IUnknown* font);

/// The platform's object for a font. Empty for an empty reference.
ComPtr<IFontDisp> newFontDisp(const Font& font);

/// The font object that a control returns: the same one as long as the font is the same. A host may
/// change it (`list.Font.Bold = True`), which changes the control's font.
class OleFont {
 public:
  /// `changed` is called after each change by the host.
  explicit OleFont(std::function<void(const Font& look)> changed) : changed_(std::move(changed)) {}
  ~OleFont() { disconnect(); }
  OleFont(const OleFont&) = delete;
  OleFont& operator=(const OleFont&) = delete;

  /// The object for the control's current font, with a reference for the caller.
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
