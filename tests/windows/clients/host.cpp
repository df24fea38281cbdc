// A container of our own around the control: what scripts and common containers never ask for.
//
//     host                          runs the tests; with host.exe.manifest beside it, the library
//                                   need not be registered
//     host registry machine|user    counts the registry keys of the library
#include "Check.h"
#include "Container.h"

using namespace norvane;

namespace {

const VARIANT missing = [] {
  VARIANT value;
  VariantInit(&value);
  value.vt = VT_ERROR;
  value.scode = DISP_E_PARAMNOTFOUND;
  return value;
}();

VARIANT number(long value) {
  VARIANT result;
  VariantInit(&result);
  result.vt = VT_I4;
  result.lVal = value;
  return result;
}

void add(::_nvList* list, long text) {
  list->ItemsAdd(number(text), missing, nullptr, nullptr, 0, missing, missing, 0, ::cLeft, missing,
                 missing, VARIANT_TRUE, missing, missing, missing, 0, 0, 0, missing);
}

template <class T = ::_nvList>
ComPtr<T> make() {
  ComPtr<T> result;
  CoCreateInstance(__uuidof(::nvList), nullptr, CLSCTX_INPROC_SERVER, __uuidof(T),
                   result.putVoid());
  return result;
}

bool canUnload() {
  using Ask = HRESULT(WINAPI*)();
  const HMODULE library = GetModuleHandleW(L"nvList.ocx");
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
  return ask && ask() == S_OK;
}

DWORD connect(IUnknown* source, REFIID id, IUnknown* sink, ComPtr<IConnectionPoint>& point) {
  DWORD cookie = 0;
  const auto container = asked<IConnectionPointContainer>(source);
  if (SUCCEEDED(container->FindConnectionPoint(id, point.put()))) point->Advise(sink, &cookie);
  return cookie;
}

HWND windowOf(::_nvList* list) {
  long handle = 0;
  list->get_hwnd(&handle);
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(handle));
}

long listIndex(::_nvList* list) {
  long result = -2;
  list->get_ListIndex(&result);
  return result;
}

// ---- the tests ----

void activation() {
  Container site;
  Sink sink;
  auto list = make();
  const auto object = asked<IOleObject>(list.get());
  QACONTAINER container{};
  container.cbSize = sizeof container;
  container.pClientSite = &site;
  container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(static_cast<IAdviseSink*>(&sink));
  container.pUnkEventSink = static_cast<IDispatch*>(&sink);
  container.pPropertyNotifySink = &sink;
  QACONTROL control{};
  control.cbSize = sizeof control;
  check(asked<IQuickActivate>(list.get())->QuickActivate(&container, &control) == S_OK &&
            control.dwEventCookie != 0 && control.dwPropNotifyCookie != 0,
        "quick activation connects everything");
  check(control.dwMiscStatus & OLEMISC_ACTIVATEWHENVISIBLE, "quick activation gives the status");
  asked<IPersistStreamInit>(list.get())->InitNew();
  const RECT thumbnail{0, 0, 10, 10};
  const HDC memory = CreateCompatibleDC(nullptr);
  OleDraw(list.get(), DVASPECT_CONTENT, memory, const_cast<RECT*>(&thumbnail));
  DeleteDC(memory);
  sink.views = 0;
  for (long i = 0; i < 50; ++i) add(list.get(), i);
  check(sink.views == 1, "changes without a window are reported");

  site.refusesActivation = true;
  check(
      FAILED(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, site.frame, &site.place)),
      "a container may refuse");
  site.refusesActivation = false;
  check(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, site.frame, &site.place) ==
                S_OK &&
            site.calls["OnInPlaceActivate"] == 1 && site.calls["OnUIActivate"] == 0,
        "in-place activation");
  const HWND window = windowOf(list.get());
  RECT shown{};
  GetClientRect(window, &shown);
  check(GetParent(window) == site.frame && shown.right == 260 && shown.bottom == 180,
        "it stands in its place");
  check(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &site, 0, site.frame, &site.place) == S_OK &&
            site.calls["OnUIActivate"] == 1 && site.calls["active"] == 1,
        "UI activation");

  list->put_ListIndex(3);
  const auto active = asked<IOleInPlaceActiveObject>(list.get());
  MSG key{window, WM_KEYDOWN, VK_DOWN, 0, 0, {}};
  check(active->TranslateAccelerator(&key) == S_OK && listIndex(list.get()) == 4,
        "an arrow is the list's");
  key.wParam = VK_TAB;
  check(active->TranslateAccelerator(&key) == S_FALSE && site.calls["TranslateAccelerator"] == 1,
        "Tab is the container's");
  site.takesAccelerators = true;
  key.wParam = VK_RETURN;
  check(active->TranslateAccelerator(&key) == S_OK && site.calls["TranslateAccelerator"] == 2,
        "Return is the container's");
  CONTROLINFO info{};
  info.cb = sizeof info;
  check(asked<IOleControl>(list.get())->GetControlInfo(&info) == S_OK && info.dwFlags == 0,
        "no accelerators of its own");

  sink.onEvent = [](DISPID id, DISPPARAMS& given) {
    if (id == 12) *given.rgvarg[1].piVal = 0;  // swallows the key
  };
  SendMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
  check(sink.events[12] == 2 && listIndex(list.get()) == 4, "KeyDown is read back");
  asked<IOleControl>(list.get())->FreezeEvents(TRUE);
  SendMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
  check(sink.events[12] == 2 && listIndex(list.get()) == 5, "frozen events are not raised");
  asked<IOleControl>(list.get())->FreezeEvents(FALSE);
  sink.onEvent = [](DISPID, DISPPARAMS&) {};
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 20));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(40, 20));
  pump(50);
  check(sink.events[6] == 1 && sink.events[4] == 1 && sink.events[1] == 1, "press, release, click");

  const auto place = asked<IOleInPlaceObject>(list.get());
  const RECT moved{0, 0, 100, 80}, clip{0, 0, 50, 80};
  place->SetObjectRects(&moved, &clip);
  GetClientRect(window, &shown);
  RECT visible{};
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  GetWindowRgn(window, region);
  GetRgnBox(region, &visible);
  DeleteObject(region);
  check(shown.right == 100 && visible.right == 50, "SetObjectRects moves and clips");
  check(place->UIDeactivate() == S_OK && site.calls["OnUIDeactivate"] == 1 &&
            site.calls["inactive"] == 1,
        "UI deactivation");
  check(object->Close(OLECLOSE_SAVEIFDIRTY) == S_OK && site.calls["SaveObject"] == 1 &&
            site.calls["OnInPlaceDeactivate"] == 1 && GetParent(window) != site.frame,
        "closing saves and parks");
  check(IsWindow(window) && windowOf(list.get()) == window, "the window stays the same");
  object->SetClientSite(nullptr);
}

void ambients() {
  Container site;
  FONTDESC look{sizeof look, const_cast<LPOLESTR>(L"Tahoma"), {}, FW_BOLD, 0, FALSE, FALSE, FALSE};
  look.cySize.int64 = 120000;
  OleCreateFontIndirect(&look, IID_IFontDisp, site.font.putVoid());
  site.isRunning = false;
  auto list = make();
  asked<IOleObject>(list.get())->SetClientSite(&site);
  asked<IPersistPropertyBag>(list.get())->InitNew();
  ComPtr<IFontDisp> font;
  list->get_Font(font.put());
  BOOL isBold = FALSE;
  asked<IFont>(font.get())->get_Bold(&isBold);
  check(isBold, "the ambient font is the default");
  Bag bag;
  const auto stored = asked<IPersistPropertyBag>(list.get());
  check(stored->Save(&bag, TRUE, FALSE) == S_OK && bag.values.empty(), "defaults are not stored");
  check(stored->Save(&bag, TRUE, TRUE) == S_OK && bag.values.size() == 33, "unless all are wanted");
  const int asks = site.calls["DisplayName"];
  site.name = L"Names";
  asked<IOleControl>(list.get())->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYNAME);
  asked<IOleObject>(list.get())
      ->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, site.frame, &site.place);
  pump(50);
  check(site.calls["DisplayName"] > asks, "the preview of a designer shows the name");
  asked<IOleObject>(list.get())->Close(OLECLOSE_NOSAVE);
  asked<IOleObject>(list.get())->SetClientSite(nullptr);
}

/// Each property under its own name: another value, one notification, one value in the bag.
void persistence() {
  auto list = make();
  Sink sink;
  ComPtr<IConnectionPoint> point;
  const DWORD cookie =
      connect(list.get(), IID_IPropertyNotifySink, static_cast<IDispatch*>(&sink), point);
  Bag all;
  const auto stored = asked<IPersistPropertyBag>(list.get());
  stored->Save(&all, TRUE, TRUE);
  int wrong = 0;
  for (const auto& [name, value] : all.values) {
    if (name == L"Font" || name == L"ColorStyle") continue;  // ColorStyle sets another one
    auto one = make();
    const DWORD connected =
        connect(one.get(), IID_IPropertyNotifySink, static_cast<IDispatch*>(&sink), point);
    asked<IPersistStreamInit>(one.get())->InitNew();
    sink.properties.clear();
    OleVariant other(static_cast<const VARIANT&>(*value));
    if (other.vt == VT_BOOL)
      other.boolVal = static_cast<VARIANT_BOOL>(~other.boolVal);
    else if (other.vt == VT_R4)
      other.fltVal += 1;
    else
      VariantChangeType(&other, &other, 0, VT_I4), other.lVal += 1;
    auto* text = const_cast<LPOLESTR>(name.c_str());
    DISPID id = 0, put = DISPID_PROPERTYPUT;
    one->GetIDsOfNames(IID_NULL, &text, 1, 0, &id);
    DISPPARAMS given{&other, &put, 1, 1};
    one->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &given, nullptr, nullptr, nullptr);
    Bag bag, again;
    asked<IPersistPropertyBag>(one.get())->Save(&bag, TRUE, FALSE);
    auto copy = make();
    asked<IPersistPropertyBag>(copy.get())->Load(&bag, nullptr);
    asked<IPersistPropertyBag>(copy.get())->Save(&again, TRUE, FALSE);
    if (bag.values.size() == 1 && bag.values.contains(name) && again.values.size() == 1 &&
        again.values.contains(name) && sink.properties.size() == 1 && sink.properties.contains(id))
      continue;
    ++wrong;
    std::printf("wrong: %ls\n", name.c_str());
    point->Unadvise(connected);
  }
  check(wrong == 0, "each property is stored and notified under its own name");

  for (long i = 0; i < 3; ++i) add(list.get(), i);
  const wchar_t* const names[] = {L"ItemChecked",
                                  L"ItemBold",
                                  L"ItemItalic",
                                  L"ItemUnderline",
                                  L"ItemEnabled",
                                  L"ItemText",
                                  L"ItemKey",
                                  L"ItemTag",
                                  L"ItemAllowEdit",
                                  L"ItemAlignment",
                                  L"ItemForeColor",
                                  L"ItemBackColor",
                                  L"ItemForeColorSelect",
                                  L"ItemBackColorSelect",
                                  L"ItemForeColorDis",
                                  L"ItemBackColorDis"};
  for (const wchar_t* name : names) {
    auto* text = const_cast<LPOLESTR>(name);
    DISPID id = 0, put = DISPID_PROPERTYPUT;
    list->GetIDsOfNames(IID_NULL, &text, 1, 0, &id);
    VARIANT arguments[] = {number(1), number(1)};
    DISPPARAMS given{arguments, &put, 2, 1};
    sink.properties.clear();
    list->Invoke(id, IID_NULL, 0, DISPATCH_PROPERTYPUT, &given, nullptr, nullptr, nullptr);
    check(sink.properties.size() == 1 && sink.properties.contains(id),
          "a property of items is notified under its name");
  }

  list->put_MinHeight(31);
  SIZEL size{5000, 4000};
  asked<IOleObject>(list.get())->SetExtent(DVASPECT_CONTENT, &size);
  ComPtr<IStream> stream;
  CreateStreamOnHGlobal(nullptr, TRUE, stream.put());
  const auto from = asked<IPersistStreamInit>(list.get());
  auto copy = make();
  const auto into = asked<IPersistStreamInit>(copy.get());
  check(from->IsDirty() == S_OK && from->Save(stream.get(), TRUE) == S_OK &&
            from->IsDirty() == S_FALSE,
        "saved in a stream");
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  float height = 0;
  SIZEL extent{};
  check(into->Load(stream.get()) == S_OK && copy->get_MinHeight(&height) == S_OK && height == 31 &&
            asked<IOleObject>(copy.get())->GetExtent(DVASPECT_CONTENT, &extent) == S_OK &&
            extent.cx == 5000,
        "read from a stream");
  check(into->Load(stream.get()) == STG_E_READFAULT, "a stream that ends early");
  Bag refusing;
  refusing.refusesWriting = true;
  check(stored->Save(&refusing, TRUE, FALSE) == STG_E_MEDIUMFULL, "a bag that refuses");
  point.reset();
  connect(list.get(), IID_IPropertyNotifySink, static_cast<IDispatch*>(&sink), point);
  point->Unadvise(cookie);
}

void drawing() {
  auto list = make();
  add(list.get(), 1);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, 400, -300, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC target = CreateCompatibleDC(nullptr);
  const HBITMAP image = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(target, image);
  const RECTL bounds{20, 20, 220, 170};
  const auto view = asked<IViewObject2>(list.get());
  check(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, target, &bounds, nullptr,
                   nullptr, 0) == S_OK &&
            GetPixel(target, 100, 150) == 0xFFFFFF && GetPixel(target, 10, 10) == 0,
        "drawn without a window");
  check(view->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, target, &bounds, nullptr, nullptr,
                   0) == DV_E_DVASPECT,
        "no other aspect");
  SelectObject(target, before);
  DeleteObject(image);
  DeleteDC(target);
  const auto data = asked<IDataObject>(list.get());
  ComPtr<IEnumFORMATETC> formats;
  check(data->EnumFormatEtc(DATADIR_GET, formats.put()) == S_OK, "formats");
  FORMATETC format{};
  int count = 0;
  while (formats->Next(1, &format, nullptr) == S_OK) {
    STGMEDIUM medium{};
    check(data->GetData(&format, &medium) == S_OK && medium.tymed == format.tymed,
          "data of a format");
    ReleaseStgMedium(&medium);
    ++count;
  }
  check(count == 2, "two metafiles");
}

void connections() {
  auto list = make();
  const auto container = asked<IConnectionPointContainer>(list.get());
  ComPtr<IEnumConnectionPoints> points;
  container->EnumConnectionPoints(points.put());
  IConnectionPoint* found[3] = {};
  ULONG got = 0;
  check(points->Next(3, found, &got) == S_FALSE && got == 2, "two connection points");
  IID id{};
  found[0]->GetConnectionInterface(&id);
  check(id == __uuidof(::__nvList), "the first is that of the events");
  Sink first, second;
  DWORD cookies[2] = {};
  found[0]->Advise(static_cast<IDispatch*>(&first), &cookies[0]);
  found[0]->Advise(static_cast<IDispatch*>(&second), &cookies[1]);
  ComPtr<IEnumConnections> connected;
  found[0]->EnumConnections(connected.put());
  CONNECTDATA data[2] = {};
  check(connected->Next(2, data, &got) == S_OK && data[1].dwCookie == cookies[1], "connections");
  for (const CONNECTDATA& each : data) each.pUnk->Release();
  add(list.get(), 1);
  first.onEvent = [&](DISPID, DISPPARAMS& given) {
    check(given.cArgs == 1 && given.rgvarg[0].vt == (VT_BYREF | VT_VARIANT),
          "the index by reference");
    found[0]->Unadvise(cookies[1]);
    list->ItemsClear();
  };
  list->put_ListIndex(9);
  check(first.events[21] == 1 && second.events[21] == 0, "a sink that went is not called");
  check(found[0]->Unadvise(cookies[1]) == CONNECT_E_NOCONNECTION, "gone");
  check(found[0]->Advise(nullptr, cookies) == E_POINTER, "no sink");
  for (IConnectionPoint* each : {found[0], found[1]}) each->Release();

  // The last reference goes inside an event.
  auto doomed = make();
  ComPtr<IConnectionPoint> point;
  Sink last;
  add(doomed.get(), 1);
  connect(doomed.get(), __uuidof(::__nvList), static_cast<IDispatch*>(&last), point);
  point.reset();
  last.onEvent = [&](DISPID, DISPPARAMS&) { doomed.reset(); };
  ::_nvList* const raw = doomed.get();
  check(raw->put_ListIndex(9) == S_OK && last.events[21] == 1 && !doomed,
        "released in its own event");
}

void badArguments() {
  auto list = make();
  check(list->get_ListIndex(nullptr) == E_POINTER && list->ItemsRemove(nullptr) == E_POINTER &&
            list->get_ItemText(nullptr, nullptr) == E_POINTER && list->Sort(nullptr) == E_POINTER,
        "null pointers of members");
  const auto object = asked<IOleObject>(list.get());
  check(
      object->SetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER &&
          object->GetClientSite(nullptr) == E_POINTER &&
          asked<IPersistStreamInit>(list.get())->Load(static_cast<IStream*>(nullptr)) == E_POINTER,
      "null pointers of containers");
  check(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr) == E_UNEXPECTED,
        "a verb without a site");
  VARIANT object4 = number(0);
  BSTR text = nullptr;
  object4.vt = VT_NULL;
  check(list->get_ItemText(&object4, &text) == S_OK && SysStringLen(text) == 0, "Null as index");
  SysFreeString(text);
}

/// The numbers of a new GDI object and a new window. Both count up past those that are not
/// returned.
std::pair<int, int> nextHandles() {
  const auto number = [](HANDLE handle) { return LOWORD(reinterpret_cast<UINT_PTR>(handle)); };
  const HPEN pen = CreatePen(PS_SOLID, 1, 0);
  const HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                      nullptr, nullptr);
  const std::pair<int, int> result{number(pen), number(window)};
  DestroyWindow(window);
  DeleteObject(pen);
  return result;
}

void lifetimes() {
  constexpr int count = 1000;
  for (int i = 0; i < 10; ++i) add(make().get(), 1);
  const auto before = nextHandles();
  const DWORD start = GetTickCount();
  for (int i = 0; i < count; ++i) add(make().get(), 1);
  std::printf("%d controls made and ended: %lu ms\n", count, GetTickCount() - start);
  pump(50);
  const auto after = nextHandles();
  check(after.first <= before.first + count / 10, "GDI objects are returned");
  check(after.second <= before.second + count / 10, "windows are returned");
}

/// Keys that a registration writes: names, classes, the type library and its interfaces.
int registeredKeys(HKEY root) {
  const auto holds = [&](const std::wstring& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, KEY_READ, &opened)) return 0;
    RegCloseKey(opened);
    return 1;
  };
  const auto textOf = [](REFGUID id) {
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return std::wstring(text);
  };
  int count = holds(L"TypeLib\\" + textOf(LIBID_Norvane));
  for (const IID& id :
       {__uuidof(::_nvList), __uuidof(::_SpEv), __uuidof(::_Error), __uuidof(::_ListItem)})
    count += holds(L"Interface\\" + textOf(id));
  for (const CLSID& id :
       {__uuidof(::nvList), __uuidof(::SpEv), __uuidof(::Error), __uuidof(::ListItem)})
    count += holds(L"CLSID\\" + textOf(id));
  for (const wchar_t* name : {L"nvList", L"SpEv", L"Error", L"ListItem"})
    count +=
        holds(std::wstring(L"Norvane.") + name) + holds(std::wstring(L"Norvane.") + name + L".1");
  return count;
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 3) {
    const bool isUser = std::string(arguments[2]) == "user";
    std::printf("keys: %d\n", registeredKeys(isUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE));
    return 0;
  }
  OleInitialize(nullptr);
  {
    const auto list = make();
    check(static_cast<bool>(list), "made");
    if (!list) return check.finish();
  }
  check(canUnload(), "unloadable after one control");
  const struct {
    const char* name;
    void (*run)();
  } tests[] = {{"activation", activation},   {"ambients", ambients},
               {"persistence", persistence}, {"drawing", drawing},
               {"connections", connections}, {"bad arguments", badArguments},
               {"lifetimes", lifetimes}};
  for (const auto& test : tests) {
    test.run();
    pump(30);
    check(canUnload(), test.name);
  }
  return check.finish();
}
