// The members of the list in its type library. The header that widl generates from nvList.idl
// declares each of them pure, so the compiler checks that none is missing.
#include <algorithm>

#include <nvlist/core/storedProperties.h>
#include <nvlist/nvList.h>
#include <nvlist/platform/windows/Automation.h>
#include <nvlist/platform/windows/LateBound.h>
#include <nvlist/platform/windows/OleControl.h>
#include <nvlist/platform/windows/OleFont.h>
#include <nvlist/platform/windows/OleValues.h>

#include "nvListTypes.h"

namespace norvane {
namespace {

/// An argument of an event, which the sink may change.
VARIANT byReference(VARTYPE type, void* address) {
  VARIANT argument;
  VariantInit(&argument);
  argument.vt = static_cast<VARTYPE>(VT_BYREF | type);
  argument.byref = address;
  return argument;
}

class ListControl final : public OleControl, public Dispatch<::_nvList>, private norvane::__nvList {
 public:
  ListControl()
      : OleControl({__uuidof(::nvList), __uuidof(::_nvList), __uuidof(::__nvList), L"nvList"}) {
    list_.addSink(*this);
  }
  ~ListControl() override { list_.UserControl_Terminate(); }

  STDMETHODIMP QueryInterface(REFIID id, void** out) override { return query(id, out); }
  STDMETHODIMP_(ULONG) AddRef() override { return retain(); }
  STDMETHODIMP_(ULONG) Release() override { return release(); }

  // ---- items ----

  STDMETHODIMP ItemsAdd(VARIANT aText, VARIANT aIndex, IPictureDisp* aIcon,
                        IPictureDisp* aIconSelected, VARIANT_BOOL aChecked, VARIANT aForeColor,
                        VARIANT aBackColor, VARIANT_BOOL aAllowEdit, ::cItemAlignment aAlignment,
                        VARIANT aForeColorSelected, VARIANT aBackColorSelected,
                        VARIANT_BOOL aEnabled, VARIANT aTag, VARIANT aForeColorDis,
                        VARIANT aBackColorDis, VARIANT_BOOL aBold, VARIANT_BOOL aItalic,
                        VARIANT_BOOL aUnderline, VARIANT aKey) override {
    return run([&] {
      static const NewItem defaults;
      list_.ItemsAdd({fromOle(aText, defaults.aText), fromOle(aIndex, defaults.aIndex),
                      fromOle(aIcon), fromOle(aIconSelected), fromOle(aChecked),
                      fromOle(aForeColor, defaults.aForeColor),
                      fromOle(aBackColor, defaults.aBackColor), fromOle(aAllowEdit),
                      static_cast<cItemAlignment>(aAlignment),
                      fromOle(aForeColorSelected, defaults.aForeColorSelected),
                      fromOle(aBackColorSelected, defaults.aBackColorSelected), fromOle(aEnabled),
                      fromOle(aTag, defaults.aTag), fromOle(aForeColorDis, defaults.aForeColorDis),
                      fromOle(aBackColorDis, defaults.aBackColorDis), fromOle(aBold),
                      fromOle(aItalic), fromOle(aUnderline), fromOle(aKey, defaults.aKey)});
    });
  }
  STDMETHODIMP ItemsRemove(VARIANT* Index) override {
    if (!Index) return E_POINTER;
    return run([&] {
      Variant index = fromOle(*Index);
      list_.ItemsRemove(index);
      rewrite(*Index, index);
    });
  }
  STDMETHODIMP ItemsRemoveDouble(VARIANT_BOOL v) override {
    return put(v, &nvList::ItemsRemoveDouble);
  }
  STDMETHODIMP ItemsClear() override { return call(&nvList::ItemsClear); }
  STDMETHODIMP ItemsSelectedRemove() override { return call(&nvList::ItemsSelectedRemove); }
  STDMETHODIMP ItemsCount(long* v) override { return get(v, &nvList::ItemsCount); }
  STDMETHODIMP ItemsSelectCount(long* v) override { return get(v, &nvList::ItemsSelectCount); }
  STDMETHODIMP ItemsCheckCount(long* v) override { return get(v, &nvList::ItemsCheckCount); }
  STDMETHODIMP IndexByKey(VARIANT sKey, long* v) override {
    return get(v, [&] { return list_.IndexByKey(fromOle(sKey)); });
  }
  STDMETHODIMP IsInList(BSTR sText, ::cFindCompare oCompare, long* v) override {
    return get(v,
               [&] { return list_.IsInList(textOf(sText), static_cast<cFindCompare>(oCompare)); });
  }
  STDMETHODIMP Sort(::cSortMode* SortMode) override {
    return SortMode ? put(*SortMode, &nvList::Sort) : E_POINTER;
  }
  STDMETHODIMP MoveItemUp(VARIANT lItem, VARIANT lCount) override {
    return run([&] { list_.MoveItemUp(fromOle(lItem), fromOle(lCount)); });
  }
  STDMETHODIMP MoveItemDown(VARIANT lItem, VARIANT lCount) override {
    return run([&] { list_.MoveItemDown(fromOle(lItem), fromOle(lCount)); });
  }

  // ---- painting, editing, files ----

  STDMETHODIMP Redraw() override { return call(&nvList::Redraw); }
  STDMETHODIMP VisibleItems(long* v) override { return get(v, &nvList::VisibleItems); }
  STDMETHODIMP CheckScroll() override { return call(&nvList::CheckScroll); }
  STDMETHODIMP SetEdit(VARIANT* Index) override {
    return Index ? run([&] { list_.SetEdit(fromOle(*Index)); }) : E_POINTER;
  }
  STDMETHODIMP ListSave(BSTR* Filename, VARIANT_BOOL SaveItemProperties) override {
    if (!Filename) return E_POINTER;
    return run([&] { list_.ListSave(textOf(*Filename), fromOle(SaveItemProperties)); });
  }
  STDMETHODIMP ListInput(BSTR* Filename, VARIANT_BOOL ReadItemPropertiesIfExists) override {
    if (!Filename) return E_POINTER;
    return run([&] { list_.ListInput(textOf(*Filename), fromOle(ReadItemPropertiesIfExists)); });
  }
  STDMETHODIMP ListInput2(BSTR* Filename, VARIANT* Delimiter, long* v) override {
    if (!Filename || !Delimiter) return E_POINTER;
    return get(v, [&] { return list_.ListInput2(textOf(*Filename), fromOle(*Delimiter)); });
  }
  STDMETHODIMP ListFileItemsCount(VARIANT Filename, long* v) override {
    return get(v, [&] { return list_.ListFileItemsCount(fromOle(Filename)); });
  }
  STDMETHODIMP About() override { return call(&nvList::About); }

  // ---- properties ----

  STDMETHODIMP get_hwnd(long* v) override { return get(v, &nvList::hwnd); }
  STDMETHODIMP get_NewIndex(long* v) override { return get(v, &nvList::NewIndex); }
  STDMETHODIMP get_ListIndex(long* v) override { return get(v, &nvList::ListIndex); }
  STDMETHODIMP put_ListIndex(long v) override { return put(v, &nvList::ListIndex); }
  STDMETHODIMP get_TopIndex(long* v) override { return get(v, &nvList::TopIndex); }
  STDMETHODIMP put_TopIndex(long v) override { return put(v, &nvList::TopIndex); }
  STDMETHODIMP get_Text(BSTR* v) override { return get(v, &nvList::Text); }
  STDMETHODIMP put_Text(BSTR v) override { return put(v, &nvList::Text); }
  STDMETHODIMP get_Recordset(IDispatch** v) override {
    if (!v) return E_POINTER;
    *v = nullptr;
    return run([&] {
      const Ref<Object> object = list_.Recordset();
      if (const auto* rows = dynamic_cast<const OleRecordset*>(object.get()))
        *v = ComPtr<IDispatch>(rows->rows()).detach();
    });
  }
  STDMETHODIMP put_Recordset(IDispatch* v) override {
    return run([&] { list_.Recordset(v ? Ref<Object>(makeRef<OleRecordset>(v)) : Ref<Object>()); });
  }
  STDMETHODIMP putref_Recordset(IDispatch* v) override { return put_Recordset(v); }
  STDMETHODIMP get_Font(IFontDisp** v) override {
    if (!v) return E_POINTER;
    *v = nullptr;
    return run([&] { *v = font_.handOut(list_.Font()); });
  }
  STDMETHODIMP put_Font(IFontDisp* v) override {
    return run([&] { list_.Font(fontOf(v)); });
  }
  STDMETHODIMP putref_Font(IFontDisp* v) override { return put_Font(v); }
  STDMETHODIMP get_ForeColor(OLE_COLOR* v) override { return get(v, &nvList::ForeColor); }
  STDMETHODIMP put_ForeColor(OLE_COLOR v) override { return put(v, &nvList::ForeColor); }
  STDMETHODIMP get_BackColor(OLE_COLOR* v) override { return get(v, &nvList::BackColor); }
  STDMETHODIMP put_BackColor(OLE_COLOR v) override { return put(v, &nvList::BackColor); }
  STDMETHODIMP get_Enabled(VARIANT_BOOL* v) override { return get(v, &nvList::Enabled); }
  STDMETHODIMP put_Enabled(VARIANT_BOOL v) override { return put(v, &nvList::Enabled); }
  STDMETHODIMP get_ClickOnIndexChange(VARIANT_BOOL* v) override {
    return get(v, &nvList::ClickOnIndexChange);
  }
  STDMETHODIMP put_ClickOnIndexChange(VARIANT_BOOL v) override {
    return put(v, &nvList::ClickOnIndexChange);
  }
  STDMETHODIMP get_ColorStyle(::cColorStyle* v) override { return get(v, &nvList::ColorStyle); }
  STDMETHODIMP put_ColorStyle(::cColorStyle v) override { return put(v, &nvList::ColorStyle); }
  STDMETHODIMP get_BorderColor(OLE_COLOR* v) override { return get(v, &nvList::BorderColor); }
  STDMETHODIMP put_BorderColor(OLE_COLOR v) override { return put(v, &nvList::BorderColor); }
  STDMETHODIMP get_HoverSelect(VARIANT_BOOL* v) override { return get(v, &nvList::HoverSelect); }
  STDMETHODIMP put_HoverSelect(VARIANT_BOOL v) override { return put(v, &nvList::HoverSelect); }
  STDMETHODIMP get_Style(::cListStyle* v) override { return get(v, &nvList::Style); }
  STDMETHODIMP put_Style(::cListStyle v) override { return put(v, &nvList::Style); }
  STDMETHODIMP get_FullRowSelect(VARIANT_BOOL* v) override {
    return get(v, &nvList::FullRowSelect);
  }
  STDMETHODIMP put_FullRowSelect(VARIANT_BOOL v) override { return put(v, &nvList::FullRowSelect); }
  STDMETHODIMP get_AllowEdit(VARIANT_BOOL* v) override { return get(v, &nvList::AllowEdit); }
  STDMETHODIMP put_AllowEdit(VARIANT_BOOL v) override { return put(v, &nvList::AllowEdit); }
  STDMETHODIMP get_ValueColor(OLE_COLOR* v) override { return get(v, &nvList::ValueColor); }
  STDMETHODIMP put_ValueColor(OLE_COLOR v) override { return put(v, &nvList::ValueColor); }
  STDMETHODIMP get_IconSelect(VARIANT_BOOL* v) override { return get(v, &nvList::IconSelect); }
  STDMETHODIMP put_IconSelect(VARIANT_BOOL v) override { return put(v, &nvList::IconSelect); }
  STDMETHODIMP get_BorderVisible(VARIANT_BOOL* v) override {
    return get(v, &nvList::BorderVisible);
  }
  STDMETHODIMP put_BorderVisible(VARIANT_BOOL v) override { return put(v, &nvList::BorderVisible); }
  STDMETHODIMP get_IndentTop(float* v) override { return get(v, &nvList::IndentTop); }
  STDMETHODIMP put_IndentTop(float v) override { return put(v, &nvList::IndentTop); }
  STDMETHODIMP get_IndentLeft(float* v) override { return get(v, &nvList::IndentLeft); }
  STDMETHODIMP put_IndentLeft(float v) override { return put(v, &nvList::IndentLeft); }
  STDMETHODIMP get_IndentRight(float* v) override { return get(v, &nvList::IndentRight); }
  STDMETHODIMP put_IndentRight(float v) override { return put(v, &nvList::IndentRight); }
  STDMETHODIMP get_IndentBottom(float* v) override { return get(v, &nvList::IndentBottom); }
  STDMETHODIMP put_IndentBottom(float v) override { return put(v, &nvList::IndentBottom); }
  STDMETHODIMP get_DistPicText(float* v) override { return get(v, &nvList::DistPicText); }
  STDMETHODIMP put_DistPicText(float v) override { return put(v, &nvList::DistPicText); }
  STDMETHODIMP get_AutoCheckScroll(VARIANT_BOOL* v) override {
    return get(v, &nvList::AutoCheckScroll);
  }
  STDMETHODIMP put_AutoCheckScroll(VARIANT_BOOL v) override {
    return put(v, &nvList::AutoCheckScroll);
  }
  STDMETHODIMP get_IconW(float* v) override { return get(v, &nvList::IconW); }
  STDMETHODIMP put_IconW(float v) override { return put(v, &nvList::IconW); }
  STDMETHODIMP get_IconH(float* v) override { return get(v, &nvList::IconH); }
  STDMETHODIMP put_IconH(float v) override { return put(v, &nvList::IconH); }
  STDMETHODIMP get_ScrollColorStyle(::cScrollColorStyle* v) override {
    return get(v, &nvList::ScrollColorStyle);
  }
  STDMETHODIMP put_ScrollColorStyle(::cScrollColorStyle v) override {
    return put(v, &nvList::ScrollColorStyle);
  }
  STDMETHODIMP get_GridLines(VARIANT_BOOL* v) override { return get(v, &nvList::GridLines); }
  STDMETHODIMP put_GridLines(VARIANT_BOOL v) override { return put(v, &nvList::GridLines); }
  STDMETHODIMP get_GridLineColor(OLE_COLOR* v) override { return get(v, &nvList::GridLineColor); }
  STDMETHODIMP put_GridLineColor(OLE_COLOR v) override { return put(v, &nvList::GridLineColor); }
  STDMETHODIMP get_MultiSelect(VARIANT_BOOL* v) override { return get(v, &nvList::MultiSelect); }
  STDMETHODIMP put_MultiSelect(VARIANT_BOOL v) override { return put(v, &nvList::MultiSelect); }
  STDMETHODIMP get_ShowFocusRect(VARIANT_BOOL* v) override {
    return get(v, &nvList::ShowFocusRect);
  }
  STDMETHODIMP put_ShowFocusRect(VARIANT_BOOL v) override { return put(v, &nvList::ShowFocusRect); }
  STDMETHODIMP get_WheelFunction(::cWheelFunction* v) override {
    return get(v, &nvList::WheelFunction);
  }
  STDMETHODIMP put_WheelFunction(::cWheelFunction v) override {
    return put(v, &nvList::WheelFunction);
  }
  STDMETHODIMP get_WheelScrollLines(long* v) override { return get(v, &nvList::WheelScrollLines); }
  STDMETHODIMP put_WheelScrollLines(long v) override { return put(v, &nvList::WheelScrollLines); }
  STDMETHODIMP get_MinHeight(float* v) override { return get(v, &nvList::MinHeight); }
  STDMETHODIMP put_MinHeight(float v) override { return put(v, &nvList::MinHeight); }
  STDMETHODIMP get_AutoRedraw(VARIANT_BOOL* v) override { return get(v, &nvList::AutoRedraw); }
  STDMETHODIMP put_AutoRedraw(VARIANT_BOOL v) override { return put(v, &nvList::AutoRedraw); }
  STDMETHODIMP get_ScrollBars(::ScrollBarConstants* v) override {
    return get(v, &nvList::ScrollBars);
  }
  STDMETHODIMP put_ScrollBars(::ScrollBarConstants v) override {
    return put(v, &nvList::ScrollBars);
  }
  STDMETHODIMP get_AllowItemMoving(VARIANT_BOOL* v) override {
    return get(v, &nvList::AllowItemMoving);
  }
  STDMETHODIMP put_AllowItemMoving(VARIANT_BOOL v) override {
    return put(v, &nvList::AllowItemMoving);
  }

  // ---- properties of items ----

  STDMETHODIMP get_ItemChecked(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemChecked);
  }
  STDMETHODIMP put_ItemChecked(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemChecked);
  }
  STDMETHODIMP get_ItemForeColor(VARIANT* i, OLE_COLOR* v) override {
    return get(i, v, &nvList::ItemForeColor);
  }
  STDMETHODIMP put_ItemForeColor(VARIANT* i, OLE_COLOR v) override {
    return put(i, v, &nvList::ItemForeColor);
  }
  STDMETHODIMP get_ItemBackColor(VARIANT* i, OLE_COLOR* v) override {
    return get(i, v, &nvList::ItemBackColor);
  }
  STDMETHODIMP put_ItemBackColor(VARIANT* i, OLE_COLOR v) override {
    return put(i, v, &nvList::ItemBackColor);
  }
  STDMETHODIMP get_ItemForeColorSelect(VARIANT* i, VARIANT* v) override {
    return get(i, v, &nvList::ItemForeColorSelect);
  }
  STDMETHODIMP put_ItemForeColorSelect(VARIANT* i, VARIANT v) override {
    return put(i, v, &nvList::ItemForeColorSelect);
  }
  STDMETHODIMP get_ItemBackColorSelect(VARIANT* i, VARIANT* v) override {
    return get(i, v, &nvList::ItemBackColorSelect);
  }
  STDMETHODIMP put_ItemBackColorSelect(VARIANT* i, VARIANT v) override {
    return put(i, v, &nvList::ItemBackColorSelect);
  }
  STDMETHODIMP get_ItemForeColorDis(VARIANT* i, VARIANT* v) override {
    return get(i, v, &nvList::ItemForeColorDis);
  }
  STDMETHODIMP put_ItemForeColorDis(VARIANT* i, VARIANT v) override {
    return put(i, v, &nvList::ItemForeColorDis);
  }
  STDMETHODIMP get_ItemBackColorDis(VARIANT* i, VARIANT* v) override {
    return get(i, v, &nvList::ItemBackColorDis);
  }
  STDMETHODIMP put_ItemBackColorDis(VARIANT* i, VARIANT v) override {
    return put(i, v, &nvList::ItemBackColorDis);
  }
  STDMETHODIMP get_ItemTag(VARIANT* i, VARIANT* v) override { return get(i, v, &nvList::ItemTag); }
  STDMETHODIMP put_ItemTag(VARIANT* i, VARIANT v) override { return put(i, v, &nvList::ItemTag); }
  STDMETHODIMP putref_ItemTag(VARIANT* i, VARIANT v) override { return put_ItemTag(i, v); }
  STDMETHODIMP get_ItemKey(VARIANT* i, VARIANT* v) override { return get(i, v, &nvList::ItemKey); }
  STDMETHODIMP put_ItemKey(VARIANT* i, VARIANT v) override { return put(i, v, &nvList::ItemKey); }
  STDMETHODIMP get_ItemIcon(VARIANT* i, IPictureDisp** v) override {
    return get(i, v, &nvList::ItemIcon);
  }
  STDMETHODIMP put_ItemIcon(VARIANT* i, IPictureDisp* v) override {
    return put(i, v, &nvList::ItemIcon);
  }
  STDMETHODIMP putref_ItemIcon(VARIANT* i, IPictureDisp* v) override { return put_ItemIcon(i, v); }
  STDMETHODIMP get_ItemIconSelected(VARIANT* i, IPictureDisp** v) override {
    return get(i, v, &nvList::ItemIconSelected);
  }
  STDMETHODIMP put_ItemIconSelected(VARIANT* i, IPictureDisp* v) override {
    return put(i, v, &nvList::ItemIconSelected);
  }
  STDMETHODIMP putref_ItemIconSelected(VARIANT* i, IPictureDisp* v) override {
    return put_ItemIconSelected(i, v);
  }
  STDMETHODIMP get_ItemAlignment(VARIANT* i, ::cItemAlignment* v) override {
    return get(i, v, &nvList::ItemAlignment);
  }
  STDMETHODIMP put_ItemAlignment(VARIANT* i, ::cItemAlignment v) override {
    return put(i, v, &nvList::ItemAlignment);
  }
  STDMETHODIMP get_ItemAllowEdit(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemAllowEdit);
  }
  STDMETHODIMP put_ItemAllowEdit(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemAllowEdit);
  }
  STDMETHODIMP get_ItemText(VARIANT* i, BSTR* v) override { return get(i, v, &nvList::ItemText); }
  STDMETHODIMP put_ItemText(VARIANT* i, BSTR v) override { return put(i, v, &nvList::ItemText); }
  STDMETHODIMP get_ItemEnabled(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemEnabled);
  }
  STDMETHODIMP put_ItemEnabled(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemEnabled);
  }
  STDMETHODIMP get_ItemBold(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemBold);
  }
  STDMETHODIMP put_ItemBold(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemBold);
  }
  STDMETHODIMP get_ItemItalic(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemItalic);
  }
  STDMETHODIMP put_ItemItalic(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemItalic);
  }
  STDMETHODIMP get_ItemUnderline(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemUnderline);
  }
  STDMETHODIMP put_ItemUnderline(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemUnderline);
  }
  STDMETHODIMP get_ItemSelected(VARIANT* i, VARIANT_BOOL* v) override {
    return get(i, v, &nvList::ItemSelected);
  }
  STDMETHODIMP put_ItemSelected(VARIANT* i, VARIANT_BOOL v) override {
    return put(i, v, &nvList::ItemSelected);
  }

 private:
  /// Runs the body of a member with the properties initialised. The control is not destroyed before
  /// the body has returned, and no exception leaves it.
  template <class Body>
  HRESULT run(Body&& body) {
    retain();
    const HRESULT answer = guarded([&] {
      ensureRead();
      body();
    });
    release();
    return answer;
  }

  // ---- the forms that nearly all members have ----

  HRESULT call(void (nvList::*method)()) {
    return run([&] { (list_.*method)(); });
  }
  /// The result starts as zero, which it stays if the body fails.
  template <class Out, class Body>
  requires std::is_invocable_v<Body> HRESULT get(Out* out, Body&& body) {
    if (!out) return E_POINTER;
    *out = {};
    return run([&] { toOle(out, body()); });
  }
  template <class Out, class Value>
  HRESULT get(Out* out, Value (nvList::*getter)() const) {
    return get(out, [&] { return (list_.*getter)(); });
  }
  template <class Out, class Value>
  HRESULT get(Out* out, Value (nvList::*getter)()) {
    return get(out, [&] { return (list_.*getter)(); });
  }
  template <class Out, class Value>
  HRESULT get(VARIANT* index, Out* out, Value (nvList::*getter)(const Variant&)) {
    if (!index) return E_POINTER;
    return get(out, [&] { return (list_.*getter)(fromOle(*index)); });
  }
  template <class In, class Value>
  HRESULT put(In in, void (nvList::*setter)(Value)) {
    return run([&] { (list_.*setter)(static_cast<Value>(fromOle(in))); });
  }
  HRESULT put(BSTR in, void (nvList::*setter)(std::string_view)) {
    return run([&] { (list_.*setter)(textOf(in)); });
  }
  template <class In, class Value>
  HRESULT put(VARIANT* index, const In& in, void (nvList::*setter)(const Variant&, Value)) {
    if (!index) return E_POINTER;
    return run([&] {
      (list_.*setter)(fromOle(*index), static_cast<std::remove_cvref_t<Value>>(fromOle(in)));
    });
  }

  // ---- OleControl ----

  IDispatch* members() override { return static_cast<::_nvList*>(this); }
  ITypeInfo* membersInfo() override { return typeInfo(); }
  void readProperties(const PropertyBag& bag) override { list_.UserControl_ReadProperties(bag); }
  void writeProperties(PropertyBag& bag) override { list_.UserControl_WriteProperties(bag); }
  void writeAllProperties(PropertyBag& bag) override {
    const Variant unlikeAnything = Ref<Object>(makeRef<OleValue>(VARIANT{}));
    for (const StoredProperty& property : storedProperties())
      bag.WriteProperty(property.name, property.get(list_), unlikeAnything);
  }
  void ambientChanged(std::string_view name) override { list_.UserControl_AmbientChanged(name); }
  /// Measures the rows again.
  void resolutionChanged() override {
    guarded([&] { list_.Font(list_.Font()); });
  }

  // ---- events ----

  /// A Variant argument, as a VARIANT while its event is raised.
  class VariantArgument {
   public:
    explicit VariantArgument(Variant& value) : value_(value) { toOle(&argument_, value); }
    ~VariantArgument() {
      guarded([&] { value_ = fromOle(argument_); });
    }
    VariantArgument(const VariantArgument&) = delete;
    VariantArgument& operator=(const VariantArgument&) = delete;
    VARIANT reference() { return byReference(VT_VARIANT, static_cast<VARIANT*>(&argument_)); }

   private:
    Variant& value_;
    OleVariant argument_;
  };
  class BooleanArgument {
   public:
    explicit BooleanArgument(Boolean& value) : value_(value), argument_(value.number()) {}
    ~BooleanArgument() { value_ = fromOle(argument_); }
    BooleanArgument(const BooleanArgument&) = delete;
    BooleanArgument& operator=(const BooleanArgument&) = delete;
    VARIANT reference() { return byReference(VT_BOOL, &argument_); }

   private:
    Boolean& value_;
    VARIANT_BOOL argument_;
  };
  static VARIANT reference(std::int16_t& value) { return byReference(VT_I2, &value); }
  static VARIANT reference(std::int32_t& value) { return byReference(VT_I4, &value); }
  static VARIANT reference(float& value) { return byReference(VT_R4, &value); }
  template <class Argument>
  static VARIANT reference(Argument& argument) {
    return argument.reference();
  }
  template <class... Arguments>
  void raise(EventId id, Arguments&... arguments) {
    VARIANT inOrder[sizeof...(arguments) + 1] = {reference(arguments)...};
    std::reverse(inOrder, inOrder + sizeof...(arguments));
    OleControl::raise(static_cast<DISPID>(id), inOrder, sizeof...(arguments));
  }

  void Click() override { raise(EventId::Click); }
  void DblClick() override { raise(EventId::DblClick); }
  void ItemCheck(std::int32_t& Item, Boolean& Cancel) override {
    BooleanArgument cancel(Cancel);
    raise(EventId::ItemCheck, Item, cancel);
  }
  void MouseUp(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    raise(EventId::MouseUp, Button, Shift, X, Y);
  }
  void MouseMove(Variant& TextUnderMouse, std::int32_t& IndexUnderMouse, std::int16_t& Button,
                 std::int16_t& Shift, float& X, float& Y) override {
    VariantArgument text(TextUnderMouse);
    raise(EventId::MouseMove, text, IndexUnderMouse, Button, Shift, X, Y);
  }
  void MouseDown(std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) override {
    raise(EventId::MouseDown, Button, Shift, X, Y);
  }
  void ErrorListInput() override { raise(EventId::ErrorListInput); }
  void ErrorListSave() override { raise(EventId::ErrorListSave); }
  void ListSaving(Variant& Index) override {
    VariantArgument index(Index);
    raise(EventId::ListSaving, index);
  }
  void ListReading(Variant& Index) override {
    VariantArgument index(Index);
    raise(EventId::ListReading, index);
  }
  void Scroll() override { raise(EventId::Scroll); }
  void KeyDown(std::int16_t& KeyCode, std::int16_t& Shift) override {
    raise(EventId::KeyDown, KeyCode, Shift);
  }
  void KeyPress(std::int16_t& KeyAscii) override { raise(EventId::KeyPress, KeyAscii); }
  void KeyUp(std::int16_t& KeyCode, std::int16_t& Shift) override {
    raise(EventId::KeyUp, KeyCode, Shift);
  }
  void ErrorWrongIndex(Variant& Index) override {
    VariantArgument index(Index);
    raise(EventId::ErrorWrongIndex, index);
  }

  nvList list_{window()};
  OleFont font_{[this](const norvane::Font& look) { list_.Font(look); }};
};

}  // namespace

HRESULT createList(REFIID id, void** out) {
  HRESULT answer = E_FAIL;
  const HRESULT made = guarded([&] {
    auto* const control = new ListControl;  // with a reference
    answer = control->QueryInterface(id, out);
    control->Release();
  });
  return FAILED(made) ? made : answer;
}

}  // namespace norvane
