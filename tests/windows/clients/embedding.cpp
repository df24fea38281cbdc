// What a container does with a control, apart from drawing it.
#include "Host.h"

namespace norvane {
namespace {

void activate(Container& site, Sink& sink) {
  const auto list = make();
  QACONTAINER container{};
  container.cbSize = sizeof container;
  container.pClientSite = &site;
  container.pAdviseSink = reinterpret_cast<IAdviseSinkEx*>(static_cast<IAdviseSink*>(&sink));
  container.pUnkEventSink = static_cast<IDispatch*>(&sink);
  container.pPropertyNotifySink = &sink;
  QACONTROL control{};
  control.cbSize = sizeof control;
  check(asked<IQuickActivate>(list.get())->QuickActivate(&container, &control) == S_OK &&
            control.dwEventCookie != 0 && control.dwPropNotifyCookie != 0 &&
            (control.dwMiscStatus & OLEMISC_ACTIVATEWHENVISIBLE) != 0,
        "quick activation connects everything");
  asked<IPersistStreamInit>(list.get())->InitNew();
  const RECT thumbnail{0, 0, 10, 10};
  const HDC memory = CreateCompatibleDC(nullptr);
  OleDraw(list.get(), DVASPECT_CONTENT, memory, const_cast<RECT*>(&thumbnail));
  DeleteDC(memory);
  sink.views = 0;
  for (long i = 0; i < 50; ++i) add(list.get(), i);
  check(sink.views == 1, "changes without a window are reported");

  const auto object = asked<IOleObject>(list.get());
  const auto place = asked<IOleInPlaceObject>(list.get());
  const HWND window = windowOf(list.get());
  const auto verb = [&](LONG which) { return site.activate(list.get(), which); };
  const auto key = [&](WPARAM code) {
    MSG message{window, WM_KEYDOWN, code, 0, 0, {}};
    return asked<IOleInPlaceActiveObject>(list.get())->TranslateAccelerator(&message);
  };
  const auto eatsReturn = [&] {
    CONTROLINFO info{};
    info.cb = sizeof info;
    asked<IOleControl>(list.get())->GetControlInfo(&info);
    return info.dwFlags == CTRLINFO_EATS_RETURN;
  };
  const auto expect = [&](HRESULT answer, HRESULT expected, const char* calls, const char* what) {
    check(answer == expected && std::exchange(site.calls, {}) == calls, what);
  };
  site.refusesActivation = true;
  expect(verb(OLEIVERB_INPLACEACTIVATE), E_FAIL, "", "a container may refuse");
  site.refusesActivation = false;
  expect(verb(OLEIVERB_INPLACEACTIVATE), S_OK, "in place show ", "in-place activation");
  RECT shown{};
  GetClientRect(window, &shown);
  check(GetParent(window) == site.frame && shown.right == 260 && shown.bottom == 180,
        "shown in its place");
  expect(verb(OLEIVERB_UIACTIVATE), S_OK, "UI active ", "UI activation");

  list->put_ListIndex(3);
  expect(key(VK_DOWN), S_OK, "", "the list takes an arrow key");
  check(listIndex(list.get()) == 4, "the key arrives");
  expect(key(VK_TAB), S_FALSE, "key ", "the container takes Tab");
  site.takesAccelerators = true;
  expect(key(VK_RETURN), S_OK, "key ", "the container takes Return");
  check(!eatsReturn(), "no use for Return");
  VARIANT edited = number(1);
  list->put_AllowEdit(VARIANT_TRUE);
  list->put_ItemAllowEdit(&edited, VARIANT_TRUE);
  list->SetEdit(&edited);
  check(eatsReturn(), "Return ends an edit");
  expect(key(VK_RETURN), S_OK, "", "the list takes Return while its edit box is open");

  const RECT moved{0, 0, 100, 80}, clip{0, 0, 50, 80};
  place->SetObjectRects(&moved, &clip);
  GetClientRect(window, &shown);
  RECT visible{};
  const HRGN region = CreateRectRgn(0, 0, 0, 0);
  GetWindowRgn(window, region);
  GetRgnBox(region, &visible);
  DeleteObject(region);
  check(shown.right == 100 && visible.right == 50, "SetObjectRects moves and clips");
  expect(place->UIDeactivate(), S_OK, "inactive no UI ", "UI deactivation");
  expect(object->Close(OLECLOSE_SAVEIFDIRTY), S_OK, "save out of place ",
         "closing saves and parks");
  check(GetParent(window) != site.frame && IsWindow(window) && windowOf(list.get()) == window,
        "the window stays the same");
  ComPtr<IAdviseSink> view;
  asked<IViewObject2>(list.get())->GetAdvise(nullptr, nullptr, view.put());
  ComPtr<IOleClientSite> owner;
  check(view.get() == &sink && object->GetClientSite(owner.put()) == S_OK && owner.get() == &site,
        "the sink of the view and the site can be read");
  object->SetClientSite(nullptr);
}

}  // namespace

void activation() {
  Container site;
  Sink sink;
  activate(site, sink);
  check(site.references == 0 && sink.references == 0, "each reference is returned once");
}

void ambients() {
  Container site;
  FONTDESC look{sizeof look, const_cast<LPOLESTR>(L"Tahoma"), {}, FW_BOLD, 0, FALSE, FALSE, FALSE};
  look.cySize.int64 = 120000;
  OleCreateFontIndirect(&look, IID_IFontDisp, site.font.putVoid());
  site.isRunning = false;
  const auto list = make(), copy = make();
  const auto isBold = [](::_nvList* of) {
    ComPtr<IFontDisp> font;
    of->get_Font(font.put());
    BOOL result = FALSE;
    asked<IFont>(font.get())->get_Bold(&result);
    return result != FALSE;
  };
  asked<IOleObject>(list.get())->SetClientSite(&site);
  const auto stored = asked<IPersistPropertyBag>(list.get());
  stored->InitNew();
  check(isBold(list.get()), "the ambient font is the default");
  Bag bag;
  check(stored->Save(&bag, TRUE, FALSE) == S_OK && bag.values.empty(), "defaults are not stored");
  check(stored->Save(&bag, TRUE, TRUE) == S_OK && bag.values.size() == 33, "unless all are wanted");
  asked<IPersistPropertyBag>(copy.get())->Load(&bag, nullptr);
  check(isBold(copy.get()), "a font is read from a bag");
  bag.refusesWriting = true;
  check(stored->Save(&bag, TRUE, TRUE) == STG_E_MEDIUMFULL, "a bag that refuses");

  const int reads = site.nameReads;
  asked<IOleControl>(list.get())->OnAmbientPropertyChange(DISPID_AMBIENT_DISPLAYNAME);
  site.activate(list.get());
  pump(50);
  check(site.nameReads > reads, "the preview of a designer shows the name");
  asked<IOleObject>(list.get())->Close(OLECLOSE_NOSAVE);
  asked<IOleObject>(list.get())->SetClientSite(nullptr);
}

void persistence() {
  const auto list = make(), copy = make();
  list->put_MinHeight(31);
  SIZEL size{5000, 4000}, extent{};
  asked<IOleObject>(list.get())->SetExtent(DVASPECT_CONTENT, &size);
  ComPtr<IStream> stream;
  CreateStreamOnHGlobal(nullptr, TRUE, stream.put());
  const auto from = asked<IPersistStreamInit>(list.get());
  const auto into = asked<IPersistStreamInit>(copy.get());
  check(from->IsDirty() == S_OK && from->Save(stream.get(), TRUE) == S_OK &&
            from->IsDirty() == S_FALSE,
        "saved in a stream");
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  float height = 0;
  check(into->Load(stream.get()) == S_OK && copy->get_MinHeight(&height) == S_OK && height == 31 &&
            asked<IOleObject>(copy.get())->GetExtent(DVASPECT_CONTENT, &extent) == S_OK &&
            extent.cx == 5000,
        "read from a stream");
  check(into->Load(stream.get()) == STG_E_READFAULT, "a stream that ends early");
}

void connections() {
  const auto list = make();
  const auto container = asked<IConnectionPointContainer>(list.get());
  ComPtr<IEnumConnectionPoints> points, clone;
  container->EnumConnectionPoints(points.put());
  IConnectionPoint* found[3] = {};
  ULONG got = 0;
  check(points->Next(3, found, &got) == S_FALSE && got == 2, "two connection points");
  ComPtr<IConnectionPoint> second;
  check(points->Reset() == S_OK && points->Skip(1) == S_OK && points->Clone(clone.put()) == S_OK &&
            points->Skip(2) == S_FALSE && clone->Next(1, second.put(), nullptr) == S_OK &&
            second.get() == found[1],
        "an enumerator skips, starts again, and is cloned with its position");
  IID id{};
  ComPtr<IConnectionPointContainer> owner;
  const ULONG before = list->AddRef();
  check(found[0]->GetConnectionInterface(&id) == S_OK && id == __uuidof(::__nvList) &&
            found[0]->GetConnectionPointContainer(owner.put()) == S_OK &&
            owner.get() == container.get() && list->AddRef() == before + 2,
        "the first is that of the events, and knows its owner");
  for (int i = 0; i < 2; ++i) list->Release();

  Sink first, other;
  DWORD cookies[2] = {};
  found[0]->Advise(static_cast<IDispatch*>(&first), &cookies[0]);
  found[0]->Advise(static_cast<IDispatch*>(&other), &cookies[1]);
  ComPtr<IEnumConnections> connected;
  found[0]->EnumConnections(connected.put());
  CONNECTDATA data[2] = {};
  check(connected->Next(2, data, &got) == S_OK && data[1].dwCookie == cookies[1], "connections");
  for (const CONNECTDATA& each : data) each.pUnk->Release();
  add(list.get(), 1);
  first.onEvent = [&](DISPID, DISPPARAMS&) {
    found[0]->Unadvise(cookies[1]);
    list->ItemsClear();
  };
  list->put_ListIndex(9);
  check(first.events == L"21 12:9; " && other.events.empty(), "a disconnected sink is not called");
  check(found[0]->Unadvise(cookies[1]) == CONNECT_E_NOCONNECTION, "disconnected twice");
  check(found[0]->Advise(nullptr, cookies) == E_POINTER, "no sink");
  for (IConnectionPoint* each : {found[0], found[1]}) each->Release();

  auto doomed = make();
  ComPtr<IConnectionPoint> point;
  Sink last;
  add(doomed.get(), 1);
  connect(doomed.get(), __uuidof(::__nvList), static_cast<IDispatch*>(&last), point);
  point.reset();
  last.onEvent = [&](DISPID, DISPPARAMS&) { doomed.reset(); };
  ::_nvList* const raw = doomed.get();
  check(raw->put_ListIndex(9) == S_OK && !doomed, "released in its own event");
}

void events() {
  Container site;
  Sink sink;
  const auto list = make();
  const auto object = asked<IOleObject>(list.get());
  object->SetClientSite(&site);
  site.activate(list.get());
  list->put_Style(::cCheckBoxes);
  list->put_MinHeight(20);
  for (long i = 0; i < 30; ++i) add(list.get(), 100 + i);
  ComPtr<IConnectionPoint> point;
  const DWORD cookie =
      connect(list.get(), __uuidof(::__nvList), static_cast<IDispatch*>(&sink), point);
  sink.onEvent = [](DISPID id, DISPPARAMS& given) {
    VARIANTARG* const last = given.rgvarg;
    if (id == 3) *last->pboolVal = VARIANT_TRUE;                                  // Cancel
    if (id == 9 || id == 10) *last->pvarVal = number(29);                         // Index
    if (id == 12 && *given.rgvarg[1].piVal == VK_UP) *given.rgvarg[1].piVal = 0;  // KeyCode
  };
  const auto send = [&](UINT message, WPARAM wParam, int x = 0, int y = 0) {
    SendMessageW(windowOf(list.get()), message, wParam, MAKELPARAM(x, y));
    return std::exchange(sink.events, {});
  };
  const struct {
    const char* name;
    UINT message;
    WPARAM wParam;
    int x, y;
    const wchar_t* events;
  } messages[] = {
      {"press", WM_LBUTTONDOWN, MK_LBUTTON, 60, 30, L"6 2:1 2:0 4:60 4:30; "},
      {"release", WM_LBUTTONUP, 0, 61, 30, L"4 2:1 2:0 4:61 4:30; 1; "},
      {"double click", WM_LBUTTONDBLCLK, MK_LBUTTON, 60, 30, L"3 3:1 11:0; 2; "},
      {"check box", WM_LBUTTONDOWN, MK_LBUTTON, 9, 52, L"6 2:1 2:0 4:9 4:52; 3 3:2 11:0; "},
      {"move", WM_MOUSEMOVE, MK_RBUTTON, 43, 52, L"5 12:102 3:2 2:2 2:0 4:43 4:52; "},
      {"wheel", WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 60, 30, L"11; 11; "},
      {"key", WM_KEYDOWN, VK_F6, 0, 0, L"12 2:117 2:0; "},
      {"character", WM_CHAR, 'x', 0, 0, L"13 2:120; "},
      {"key up", WM_KEYUP, VK_F6, 0, 0, L"14 2:117 2:0; "},
      {"swallowed key", WM_KEYDOWN, VK_UP, 0, 0, L"12 2:38 2:0; "}};
  for (const auto& each : messages)
    check.same(send(each.message, each.wParam, each.x, each.y), each.events, each.name);
  long checked = -1;
  check(list->ItemsCheckCount(&checked) == S_OK && checked == 0, "Cancel is read back");
  check(listIndex(list.get()) == 2, "KeyCode is read back");

  // A property store image that holds a number of items, and nothing else of them.
  const wchar_t *const saved = L"nvlist-saved.nvl", *const image = L"nvlist-image.nvl";
  constexpr char bytes[] = "\x11\x20\1\0\x0F\0\0\0\0\0\0\0PBAG\5\0count\2\0\x1E";
  if (std::FILE* const out = _wfopen(image, L"wb")) {
    std::fwrite(bytes, 1, sizeof bytes, out);
    std::fclose(out);
  }
  const auto file = [&](bool isSaved, const wchar_t* path) {
    BSTR name = SysAllocString(path);
    isSaved ? list->ListSave(&name, 0) : list->ListInput(&name, 0);
    SysFreeString(name);
    return std::exchange(sink.events, {});
  };
  check.same(file(true, saved), L"9 12:0; ", "ListSaving, Index read back");
  check.same(file(true, L"C:\\none\\none"), L"8; ", "ErrorListSave");
  check.same(file(false, image), L"10 12:0; ", "ListReading, Index read back");
  check.same(file(false, L"C:\\none\\none"), L"7; ", "ErrorListInput");
  DeleteFileW(saved);
  DeleteFileW(image);

  std::wstring thawing;
  for (const BOOL freeze : {TRUE, TRUE, FALSE, FALSE}) {
    asked<IOleControl>(list.get())->FreezeEvents(freeze);
    thawing += send(WM_KEYUP, VK_F6) + L"| ";
  }
  check.same(thawing, L"| | | 14 2:117 2:0; | ", "frozen events are not raised until all thawed");
  point->Unadvise(cookie);
  object->Close(OLECLOSE_NOSAVE);
  object->SetClientSite(nullptr);
}

void badArguments() {
  const auto list = make();
  const auto object = asked<IOleObject>(list.get());
  const auto stream = asked<IPersistStreamInit>(list.get());
  check(list->get_ListIndex(nullptr) == E_POINTER && list->ItemsRemove(nullptr) == E_POINTER &&
            list->get_ItemText(nullptr, nullptr) == E_POINTER && list->Sort(nullptr) == E_POINTER &&
            object->SetExtent(DVASPECT_CONTENT, nullptr) == E_POINTER &&
            object->GetClientSite(nullptr) == E_POINTER &&
            stream->Load(static_cast<IStream*>(nullptr)) == E_POINTER,
        "null pointers");
  check(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr) == E_UNEXPECTED,
        "a verb without a site");
  VARIANT null = number(0, VT_NULL);
  BSTR text = nullptr;
  check(list->get_ItemText(&null, &text) == S_OK && SysStringLen(text) == 0, "Null as index");
  SysFreeString(text);
}

}  // namespace norvane
