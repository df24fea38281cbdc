// The properties by name, as scripts use them. Each is independent of the others, and notifies and
// is stored under its own name.
#include <map>
#include <vector>

#include "Host.h"

namespace norvane {
namespace {

/// The argument before the value: none, or the index of an item.
using Index = std::vector<VARIANT>;

void read(IDispatch* object, DISPID id, Index index, OleVariant& value) {
  DISPPARAMS given{index.data(), nullptr, static_cast<UINT>(index.size()), 0};
  object->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYGET, &given, &value, nullptr, nullptr);
}

void write(IDispatch* object, DISPID id, Index index, const VARIANT& value) {
  DISPID put = DISPID_PROPERTYPUT;
  index.insert(index.begin(), value);  // arguments are passed last to first
  DISPPARAMS given{index.data(), &put, static_cast<UINT>(index.size()), 1};
  object->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &given, nullptr, nullptr, nullptr);
}

std::wstring shown(const VARIANT& value) {
  OleVariant text(value);
  return VariantChangeType(&text, &text, 0, VT_BSTR) == S_OK ? text.bstrVal : L"";
}

/// Replaces the value of a property by another valid one.
void change(const std::wstring& name, OleVariant& value) {
  if (name == L"ColorStyle") {
    value.lVal = ::cCustom;  // any other sets ScrollColorStyle too
  } else if (value.vt == VT_BOOL) {
    value.boolVal = static_cast<VARIANT_BOOL>(~value.boolVal);
  } else if (value.vt == VT_R4) {
    value.fltVal += 1;
  } else if (value.vt == VT_I4) {
    value.lVal += 1;
  } else {
    VariantClear(&value);
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocString(L"7");
  }
}

/// The properties with an index, or without one, that can be set and hold no object. Those of the
/// current item are left out, as they change each other.
std::map<std::wstring, DISPID> propertiesOf(IDispatch* object, const Index& index) {
  std::map<std::wstring, DISPID> result;
  ComPtr<ITypeInfo> info;
  object->GetTypeInfo(0, 0, info.put());
  FUNCDESC* member = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &member)); ++i) {
    OleVariant value;
    BSTR name = nullptr;
    const bool isWanted = member->invkind == INVOKE_PROPERTYPUT &&
                          member->cParams == static_cast<SHORT>(index.size() + 1);
    if (isWanted) read(object, member->memid, index, value);
    if (isWanted && value.vt != VT_DISPATCH) {
      info->GetDocumentation(member->memid, &name, nullptr, nullptr, nullptr);
      result[name] = member->memid;
      SysFreeString(name);
    }
    info->ReleaseFuncDesc(member);
  }
  for (const wchar_t* name : {L"ListIndex", L"TopIndex"})
    if (result.erase(name) > 0) result.erase(L"Text");
  return result;
}

std::map<std::wstring, std::wstring> valuesOf(IDispatch* object, const Index& index) {
  std::map<std::wstring, std::wstring> result;
  for (const auto& [name, id] : propertiesOf(object, index)) {
    OleVariant value;
    read(object, id, index, value);
    result[name] = shown(value);
  }
  return result;
}

/// Sets each property of an object in turn, and checks that it has its new value, that all others
/// keep theirs, and that the sink is notified once.
void walk(const char* what, std::size_t count, IDispatch* object, const Index& index, Sink* sink) {
  const auto properties = propertiesOf(object, index);
  check(properties.size() == count, what);
  for (const auto& [name, id] : properties) {
    auto expected = valuesOf(object, index);
    OleVariant value;
    read(object, id, index, value);
    change(name, value);
    expected[name] = shown(value);
    write(object, id, index, value);
    const bool isNotified = !sink || std::exchange(sink->properties, {}) == std::vector{id};
    check(isNotified && valuesOf(object, index) == expected, narrow(name).c_str());
  }
}

}  // namespace

void members() {
  ComPtr<IDispatch> record;
  CoCreateInstance(__uuidof(::ListItem), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                   record.putVoid());
  walk("the fields of a record", 17, record.get(), {}, nullptr);

  const auto list = make();
  Sink sink;
  ComPtr<IConnectionPoint> point;
  const DWORD cookie =
      connect(list.get(), IID_IPropertyNotifySink, static_cast<IDispatch*>(&sink), point);
  for (long i = 0; i < 3; ++i) add(list.get(), i);
  sink.properties.clear();
  walk("the properties of items", 17, list.get(), {number(1)}, &sink);
  walk("the properties of the list", 32, list.get(), {}, &sink);
  point->Unadvise(cookie);

  Bag bag;
  const auto copy = make();
  asked<IPersistPropertyBag>(list.get())->Save(&bag, TRUE, FALSE);
  asked<IPersistPropertyBag>(copy.get())->Load(&bag, nullptr);
  check(bag.values.size() == 32 && valuesOf(copy.get(), {}) == valuesOf(list.get(), {}),
        "all changed properties are kept in a bag");
}

}  // namespace norvane
