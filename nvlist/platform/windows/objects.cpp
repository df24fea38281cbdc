// The creatable objects without a window: SpEv, Error and ListItem, as nvList.idl publishes them.
#include <nvlist/core/ListItem.h>
#include <nvlist/objects/Error.h>
#include <nvlist/objects/SpEv.h>
#include <nvlist/platform/windows/Apartment.h>
#include <nvlist/platform/windows/Automation.h>
#include <nvlist/platform/windows/LateBound.h>
#include <nvlist/platform/windows/OleValues.h>

#include "nvListTypes.h"

namespace norvane {
namespace {

/// Runs a member with a result, which is initially zero.
template <class Out, class Body>
HRESULT result(Out* out, Body&& body) {
  if (!out) return E_POINTER;
  *out = {};
  return guarded([&] { toOle(out, body()); });
}

/// A list box of the host. SpEv rejects any other value.
Variant listBoxIn(const VARIANT& list) {
  IDispatch* const box = dispatchIn(list);
  return box ? Variant(Ref<Object>(makeRef<OleListBox>(box))) : fromOle(list);
}

class SpEvObject final : public AutomationObject<::_SpEv> {
 public:
  SpEvObject() : AutomationObject(__uuidof(::SpEv)) {}

  STDMETHODIMP TextRead(BSTR Filename, BSTR* v) override {
    return result(v, [&] { return helper_.TextRead(textOf(Filename)); });
  }
  STDMETHODIMP TextSave(BSTR Filename, BSTR Text) override {
    return guarded([&] { helper_.TextSave(textOf(Filename), textOf(Text)); });
  }
  STDMETHODIMP PlayMusic(BSTR Filename) override {
    return guarded([&] { helper_.PlayMusic(textOf(Filename)); });
  }
  STDMETHODIMP ListSave(VARIANT List, BSTR Filename, BSTR TextBeforeListText,
                        BSTR TextAfterListText) override {
    return guarded([&] {
      helper_.ListSave(listBoxIn(List), textOf(Filename), textOf(TextBeforeListText),
                       textOf(TextAfterListText));
    });
  }
  STDMETHODIMP ListRead(VARIANT List, BSTR Filename) override {
    return guarded([&] { helper_.ListRead(listBoxIn(List), textOf(Filename)); });
  }
  STDMETHODIMP FileExists(BSTR sFile, VARIANT_BOOL* v) override {
    return result(v, [&] { return helper_.FileExists(textOf(sFile)); });
  }
  STDMETHODIMP ActiveXPTheme(::cActiveXPTheme* v) override {
    return result(v, [&] { return helper_.ActiveXPTheme(); });
  }
  STDMETHODIMP MouseButtonPressed(::cMouseButton* v) override {
    return result(v, [&] { return helper_.MouseButtonPressed(); });
  }

 private:
  std::shared_ptr<Apartment> apartment_ = Apartment::current();
  norvane::SpEv helper_;
};

class ErrorObject final : public AutomationObject<::_Error> {
 public:
  ErrorObject() : AutomationObject(__uuidof(::Error)) {}

  STDMETHODIMP get_SilentError(VARIANT_BOOL* v) override {
    return result(v, [&] { return error_.SilentError(); });
  }
  STDMETHODIMP put_SilentError(VARIANT_BOOL v) override {
    return guarded([&] { error_.SilentError(fromOle(v)); });
  }

 private:
  norvane::Error error_;
};

class ItemObject final : public AutomationObject<::_ListItem> {
 public:
  ItemObject() : AutomationObject(__uuidof(::ListItem)) {}

  STDMETHODIMP get_Checked(VARIANT_BOOL* v) override { return get(v, &Item::Checked); }
  STDMETHODIMP put_Checked(VARIANT_BOOL v) override { return put(v, &Item::Checked); }
  STDMETHODIMP get_ForeColor(VARIANT* v) override { return get(v, &Item::ForeColor); }
  STDMETHODIMP put_ForeColor(VARIANT v) override { return put(v, &Item::ForeColor); }
  STDMETHODIMP get_BackColor(VARIANT* v) override { return get(v, &Item::BackColor); }
  STDMETHODIMP put_BackColor(VARIANT v) override { return put(v, &Item::BackColor); }
  STDMETHODIMP get_ForeColorSelect(VARIANT* v) override { return get(v, &Item::ForeColorSelect); }
  STDMETHODIMP put_ForeColorSelect(VARIANT v) override { return put(v, &Item::ForeColorSelect); }
  STDMETHODIMP get_BackColorSelect(VARIANT* v) override { return get(v, &Item::BackColorSelect); }
  STDMETHODIMP put_BackColorSelect(VARIANT v) override { return put(v, &Item::BackColorSelect); }
  STDMETHODIMP get_ForeColorDis(OLE_COLOR* v) override { return get(v, &Item::ForeColorDis); }
  STDMETHODIMP put_ForeColorDis(OLE_COLOR v) override { return put(v, &Item::ForeColorDis); }
  STDMETHODIMP get_BackColorDis(OLE_COLOR* v) override { return get(v, &Item::BackColorDis); }
  STDMETHODIMP put_BackColorDis(OLE_COLOR v) override { return put(v, &Item::BackColorDis); }
  STDMETHODIMP get_Icon(IPictureDisp** v) override { return get(v, &Item::Icon); }
  STDMETHODIMP put_Icon(IPictureDisp* v) override { return put(v, &Item::Icon); }
  STDMETHODIMP putref_Icon(IPictureDisp* v) override { return put_Icon(v); }
  STDMETHODIMP get_IconSelected(IPictureDisp** v) override { return get(v, &Item::IconSelected); }
  STDMETHODIMP put_IconSelected(IPictureDisp* v) override { return put(v, &Item::IconSelected); }
  STDMETHODIMP putref_IconSelected(IPictureDisp* v) override { return put_IconSelected(v); }
  STDMETHODIMP get_AllowEdit(VARIANT_BOOL* v) override { return get(v, &Item::AllowEdit); }
  STDMETHODIMP put_AllowEdit(VARIANT_BOOL v) override { return put(v, &Item::AllowEdit); }
  STDMETHODIMP get_Text(BSTR* v) override { return get(v, &Item::Text); }
  STDMETHODIMP put_Text(BSTR v) override { return put(v, &Item::Text); }
  STDMETHODIMP get_Enabled(VARIANT_BOOL* v) override { return get(v, &Item::Enabled); }
  STDMETHODIMP put_Enabled(VARIANT_BOOL v) override { return put(v, &Item::Enabled); }
  STDMETHODIMP get_Selected(VARIANT_BOOL* v) override { return get(v, &Item::Selected); }
  STDMETHODIMP put_Selected(VARIANT_BOOL v) override { return put(v, &Item::Selected); }
  STDMETHODIMP get_Tag(VARIANT* v) override { return get(v, &Item::Tag); }
  STDMETHODIMP put_Tag(VARIANT v) override { return put(v, &Item::Tag); }
  STDMETHODIMP putref_Tag(VARIANT v) override { return put_Tag(v); }
  STDMETHODIMP get_Alignment(::cItemAlignment* v) override { return get(v, &Item::Alignment); }
  STDMETHODIMP put_Alignment(::cItemAlignment v) override { return put(v, &Item::Alignment); }
  STDMETHODIMP get_Bold(VARIANT_BOOL* v) override { return get(v, &Item::Bold); }
  STDMETHODIMP put_Bold(VARIANT_BOOL v) override { return put(v, &Item::Bold); }
  STDMETHODIMP get_Italic(VARIANT_BOOL* v) override { return get(v, &Item::Italic); }
  STDMETHODIMP put_Italic(VARIANT_BOOL v) override { return put(v, &Item::Italic); }
  STDMETHODIMP get_Underline(VARIANT_BOOL* v) override { return get(v, &Item::Underline); }
  STDMETHODIMP put_Underline(VARIANT_BOOL v) override { return put(v, &Item::Underline); }
  STDMETHODIMP get_Key(BSTR* v) override { return get(v, &Item::Key); }
  STDMETHODIMP put_Key(BSTR v) override { return put(v, &Item::Key); }

 private:
  using Item = norvane::ListItem;

  template <class Out, class Value, class Owner>
  HRESULT get(Out* out, Value Owner::*field) {
    return result(out, [&] { return item_.*field; });
  }
  template <class In, class Value, class Owner>
  HRESULT put(const In& in, Value Owner::*field) {
    return guarded([&] { item_.*field = static_cast<Value>(fromOle(in)); });
  }

  Item item_;
};

}  // namespace

HRESULT createSpEv(REFIID id, void** out) { return createObject<SpEvObject>(id, out); }
HRESULT createError(REFIID id, void** out) { return createObject<ErrorObject>(id, out); }
HRESULT createListItem(REFIID id, void** out) { return createObject<ItemObject>(id, out); }

}  // namespace norvane
