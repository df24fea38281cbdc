#include <nvlist/core/storedProperties.h>
#include <nvlist/platform/windows/OleControl.h>
#include <nvlist/platform/windows/OleFont.h>
#include <nvlist/platform/windows/OleValues.h>
#include <nvlist/platform/windows/failures.h>
#include <nvlist/values/Failure.h>

namespace norvane {

/// The container's store, read by name. Properties that are missing or cannot be read get their
/// defaults: containers report a missing property with many different failures.
class OleControl::OleBag final : public PropertyBag {
 public:
  OleBag(IPropertyBag* bag, IErrorLog* log) : bag_(bag), log_(log) {}

  Variant ReadProperty(std::string_view name, const Variant& defaultValue) const override {
    const StoredProperty* const property = storedProperty(name);
    const bool isFont = property && property->type == PropertyType::font;
    OleVariant value;
    if (isFont) {  // requests an object from the container
      value.vt = VT_UNKNOWN;
      value.punkVal = nullptr;
    }
    if (FAILED(bag_->Read(wide(name).c_str(), &value, log_))) return defaultValue;
    if (!isFont) return value.vt == VT_EMPTY ? defaultValue : fromOle(value);
    if (value.vt != VT_UNKNOWN && value.vt != VT_DISPATCH) return defaultValue;
    const norvane::Font font = fontOf(value.punkVal);
    return font ? Variant(Ref<Object>(font)) : defaultValue;
  }

 private:
  IPropertyBag* bag_;
  IErrorLog* log_;
};

STDMETHODIMP OleControl::GetClassID(CLSID* out) {
  if (!out) return E_POINTER;
  *out = identity_.control;
  return S_OK;
}

HRESULT OleControl::read(const PropertyBag& bag) {
  const ComPtr<IUnknown> held(members());
  isRead_ = true;
  return guarded([&] {
    readProperties(bag);
    isDirty_ = false;
  });
}

STDMETHODIMP OleControl::InitNew() { return read(PropertyBag()); }

STDMETHODIMP OleControl::Load(IPropertyBag* bag, IErrorLog* log) {
  return bag ? read(OleBag(bag, log)) : E_POINTER;
}

HRESULT OleControl::write(IPropertyBag* bag, const PropertyBag& properties) {
  for (const auto& [name, kept] : properties.properties()) {
    OleVariant value;
    const Ref<Object> object = kept.object();
    if (auto* font = dynamic_cast<FontObject*>(object.get())) {
      value.pdispVal = newFontDisp(norvane::Font(font)).detach();
      value.vt = VT_DISPATCH;
    } else {
      toOle(&value, kept);
    }
    if (const HRESULT answer = bag->Write(wide(name).c_str(), &value); FAILED(answer))
      return answer;
  }
  return S_OK;
}

STDMETHODIMP OleControl::Save(IPropertyBag* bag, BOOL clear, BOOL all) {
  if (!bag) return E_POINTER;
  HRESULT written = E_FAIL;
  const HRESULT answer = guarded([&] {
    ensureRead();
    PropertyBag properties;
    all ? writeAllProperties(properties) : writeProperties(properties);
    written = write(bag, properties);
  });
  if (SUCCEEDED(answer) && SUCCEEDED(written) && clear) isDirty_ = false;
  return FAILED(answer) ? answer : written;
}

// A stream contains the extent, the length of the store's text, and that text.

namespace {

constexpr ULONG longestText = 1 << 20;

struct StreamHead {
  SIZEL extent;
  ULONG textLength;
};

bool readAll(IStream* stream, void* bytes, ULONG count) {
  ULONG got = 0;
  return SUCCEEDED(stream->Read(bytes, count, &got)) && got == count;
}

}  // namespace

STDMETHODIMP OleControl::Save(IStream* stream, BOOL clear) {
  if (!stream) return E_POINTER;
  HRESULT written = E_FAIL;
  const HRESULT answer = guarded([&] {
    ensureRead();
    PropertyBag properties;
    writeProperties(properties);
    const std::string text = propertyText(properties);
    const StreamHead head{extent_, static_cast<ULONG>(text.size())};
    written = stream->Write(&head, sizeof head, nullptr);
    if (SUCCEEDED(written)) written = stream->Write(text.data(), head.textLength, nullptr);
  });
  if (SUCCEEDED(answer) && SUCCEEDED(written) && clear) isDirty_ = false;
  return FAILED(answer) ? answer : written;
}

STDMETHODIMP OleControl::Load(IStream* stream) {
  if (!stream) return E_POINTER;
  StreamHead head{};
  if (!readAll(stream, &head, sizeof head)) return STG_E_READFAULT;
  if (head.textLength > longestText || head.extent.cx < 0 || head.extent.cy < 0)
    return STG_E_INVALIDHEADER;
  PropertyBag properties;
  HRESULT answer = STG_E_READFAULT;
  const HRESULT parsed = guarded([&] {
    std::string text(head.textLength, '\0');
    if (!readAll(stream, text.data(), head.textLength)) return;
    answer = STG_E_INVALIDHEADER;
    try {
      properties = propertiesOf(text);
    } catch (const Failure&) {
      return;
    }
    answer = SetExtent(DVASPECT_CONTENT, &head.extent);
  });
  if (FAILED(parsed)) return parsed;
  return FAILED(answer) ? answer : read(properties);
}

STDMETHODIMP OleControl::GetSizeMax(ULARGE_INTEGER* size) {
  if (!size) return E_POINTER;
  size->QuadPart = sizeof(StreamHead) + longestText;
  return S_OK;
}

}  // namespace norvane
