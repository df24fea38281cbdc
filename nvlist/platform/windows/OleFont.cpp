#include <nvlist/platform/windows/OleFont.h>

#include <nvlist/platform/windows/ComObject.h>
#include <nvlist/platform/windows/failures.h>

namespace norvane {
namespace {

constexpr LONGLONG currencyUnit = 10000;

}  // namespace

Font fontOf(IUnknown* given) {
  const ComPtr<IFont> font = asked<IFont>(given);
  if (!font) return nullptr;
  BSTR name = nullptr;
  CY size{};
  BOOL bold = FALSE, italic = FALSE, underline = FALSE, strikethrough = FALSE;
  font->get_Name(&name);
  font->get_Size(&size);
  font->get_Bold(&bold);
  font->get_Italic(&italic);
  font->get_Underline(&underline);
  font->get_Strikethrough(&strikethrough);
  auto look = makeRef<FontObject>();
  if (name) look->Name = textOf(name);
  SysFreeString(name);
  if (size.int64 > 0)
    look->Size = static_cast<float>(static_cast<double>(size.int64) / currencyUnit);
  look->Bold = bold != FALSE;
  look->Italic = italic != FALSE;
  look->Underline = underline != FALSE;
  look->Strikethrough = strikethrough != FALSE;
  return look;
}

ComPtr<IFontDisp> newFontDisp(const Font& font) {
  ComPtr<IFontDisp> result;
  if (!font) return result;
  std::wstring name = wide(font->Name);
  FONTDESC look{};
  look.cbSizeofstruct = sizeof look;
  look.lpstrName = name.data();
  look.cySize.int64 = static_cast<LONGLONG>(font->Size * currencyUnit);
  look.sWeight = font->Bold ? FW_BOLD : FW_NORMAL;
  look.sCharset = DEFAULT_CHARSET;
  look.fItalic = static_cast<bool>(font->Italic);
  look.fUnderline = static_cast<bool>(font->Underline);
  look.fStrikethrough = static_cast<bool>(font->Strikethrough);
  OleCreateFontIndirect(&look, IID_IFontDisp, result.putVoid());
  return result;
}

/// Listens to a font that the host may keep longer than the control.
class OleFont::Listener final : public ComObject<IPropertyNotifySink> {
 public:
  explicit Listener(OleFont& owner) : owner_(owner) {}
  STDMETHODIMP OnChanged(DISPID) override {
    return guarded([&] { owner_.hostChanged(); });
  }
  STDMETHODIMP OnRequestEdit(DISPID) override { return S_OK; }

 private:
  OleFont& owner_;
};

IFontDisp* OleFont::handOut(const Font& font) {
  if (!font) return nullptr;
  if (!font_ || !look_ || (look_ != font && !look_->isSame(*font))) {
    disconnect();
    font_ = newFontDisp(font);
    const auto container = asked<IConnectionPointContainer>(font_.get());
    if (container &&
        SUCCEEDED(container->FindConnectionPoint(IID_IPropertyNotifySink, point_.put())))
      if (FAILED(point_->Advise(ComPtr<Listener>(new Listener(*this)).get(), &cookie_)))
        point_.reset();
  }
  look_ = font;
  return ComPtr<IFontDisp>(font_).detach();
}

void OleFont::disconnect() {
  if (point_) point_->Unadvise(cookie_);
  point_.reset();
  font_.reset();
}

void OleFont::hostChanged() {
  const Font look = fontOf(font_.get());
  if (!look || (look_ && look_->isSame(*look))) return;
  look_ = look;
  changed_(look);
}

}  // namespace norvane
