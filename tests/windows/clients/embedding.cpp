// What a container does with a control, apart from drawing it.
#include "Host.h"

namespace norvane {
namespace {

void activate(Container& site, Sink& sink) {
  const auto list = make();
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
        "shown in its place");
  check(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &site, 0, site.frame, &site.place) == S_OK &&
            site.calls["OnUIActivate"] == 1 && site.calls["active"] == 1,
        "UI activation");

  list->put_ListIndex(3);
  const auto active = asked<IOleInPlaceActiveObject>(list.get());
  MSG key{window, WM_KEYDOWN, VK_DOWN, 0, 0, {}};
  check(active->TranslateAccelerator(&key) == S_OK && listIndex(list.get()) == 4,
        "the list takes an arrow key");
  key.wParam = VK_TAB;
  check(active->TranslateAccelerator(&key) == S_FALSE && site.calls["TranslateAccelerator"] == 1,
        "the container takes Tab");
  site.takesAccelerators = true;
  key.wParam = VK_RETURN;
  check(active->TranslateAccelerator(&key) == S_OK && site.calls["TranslateAccelerator"] == 2,
        "the container takes Return");
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
  asked<IOleControl>(list.get())->FreezeEvents(TRUE);
  asked<IOleControl>(list.get())->FreezeEvents(FALSE);
  SendMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
  check(sink.events[12] == 2 && listIndex(list.get()) == 6,
        "frozen events are not raised until all have thawed");
  asked<IOleControl>(list.get())->FreezeEvents(FALSE);
  sink.onEvent = [](DISPID, DISPPARAMS&) {};
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, 20));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(40, 20));
  pump(50);
  check(sink.events[6] == 1 && sink.events[4] == 1 && sink.events[1] == 1, "press, release, click");

  VARIANT edited = number(1);
  list->put_AllowEdit(VARIANT_TRUE);
  list->put_ItemAllowEdit(&edited, VARIANT_TRUE);
  list->SetEdit(&edited);
  check(asked<IOleControl>(list.get())->GetControlInfo(&info) == S_OK &&
            info.dwFlags == CTRLINFO_EATS_RETURN && active->TranslateAccelerator(&key) == S_OK &&
            site.calls["TranslateAccelerator"] == 2,
        "the list takes Return while its edit box is open");

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
  auto copy = make();
  asked<IPersistPropertyBag>(copy.get())->Load(&bag, nullptr);
  copy->get_Font(font.put());
  isBold = FALSE;
  asked<IFont>(font.get())->get_Bold(&isBold);
  check(isBold, "a font is read from a bag");
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

void persistence() {
  auto list = make();
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
  check(asked<IPersistPropertyBag>(list.get())->Save(&refusing, TRUE, FALSE) == STG_E_MEDIUMFULL,
        "a bag that refuses");
}

void connections() {
  auto list = make();
  const auto container = asked<IConnectionPointContainer>(list.get());
  ComPtr<IEnumConnectionPoints> points;
  container->EnumConnectionPoints(points.put());
  IConnectionPoint* found[3] = {};
  ULONG got = 0;
  check(points->Next(3, found, &got) == S_FALSE && got == 2, "two connection points");
  ComPtr<IEnumConnectionPoints> clone;
  IConnectionPoint* second = nullptr;
  check(points->Reset() == S_OK && points->Skip(1) == S_OK && points->Clone(clone.put()) == S_OK &&
            points->Skip(2) == S_FALSE && clone->Next(1, &second, nullptr) == S_OK &&
            second == found[1],
        "an enumerator skips, starts again and is cloned where it stands");
  second->Release();
  IID id{};
  found[0]->GetConnectionInterface(&id);
  check(id == __uuidof(::__nvList), "the first is that of the events");
  ComPtr<IConnectionPointContainer> owner;
  const ULONG before = list->AddRef();
  found[0]->GetConnectionPointContainer(owner.put());
  check(list->AddRef() == before + 2 && owner.get() == container.get(), "its owner");
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
  first.onEvent = [&](DISPID, DISPPARAMS& given) {
    check(given.cArgs == 1 && given.rgvarg[0].vt == (VT_BYREF | VT_VARIANT),
          "the index by reference");
    found[0]->Unadvise(cookies[1]);
    list->ItemsClear();
  };
  list->put_ListIndex(9);
  check(first.events[21] == 1 && other.events[21] == 0, "a disconnected sink is not called");
  check(found[0]->Unadvise(cookies[1]) == CONNECT_E_NOCONNECTION, "disconnected twice");
  check(found[0]->Advise(nullptr, cookies) == E_POINTER, "no sink");
  for (IConnectionPoint* each : {found[0], found[1]}) each->Release();

  // The last reference is released in an event.
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

/// Each event with its arguments in order. All of them are passed by reference.
void events() {
  Container site;
  Sink sink;
  const auto list = make();
  const auto object = asked<IOleObject>(list.get());
  object->SetClientSite(&site);
  object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, site.frame, &site.place);
  list->put_Style(::cCheckBoxes);
  list->put_MinHeight(20);
  for (long i = 0; i < 30; ++i) add(list.get(), 100 + i);
  ComPtr<IConnectionPoint> point;
  const DWORD cookie =
      connect(list.get(), __uuidof(::__nvList), static_cast<IDispatch*>(&sink), point);

  DISPID awaited = 0;
  std::wstring seen;
  std::function<void(DISPPARAMS&)> answer;
  sink.onEvent = [&](DISPID id, DISPPARAMS& given) {
    if (id != awaited) return;
    for (UINT i = given.cArgs; i-- > 0;) {
      OleVariant text(given.rgvarg[i]);
      VariantChangeType(&text, &text, 0, VT_BSTR);
      seen += std::to_wstring(given.rgvarg[i].vt & ~VT_BYREF) + L":" + text.bstrVal +
              (given.rgvarg[i].vt & VT_BYREF ? L" " : L"! ");
    }
    seen += L"; ";
    if (answer) answer(given);
  };
  const auto send = [&](UINT message, WPARAM first, int x, int y) {
    SendMessageW(windowOf(list.get()), message, first, MAKELPARAM(x, y));
  };
  const auto file = [&](bool isSaved, const wchar_t* path) {
    BSTR name = SysAllocString(path);
    isSaved ? list->ListSave(&name, 0) : list->ListInput(&name, 0);
    SysFreeString(name);
  };
  const auto setIndex = [](long index) {
    return [index](DISPPARAMS& given) {
      VariantClear(given.rgvarg[0].pvarVal);
      *given.rgvarg[0].pvarVal = number(index);
    };
  };
  // A property store image that holds a number of items, and nothing else of them.
  const wchar_t *const saved = L"nvlist-saved.nvl", *const image = L"nvlist-image.nvl";
  constexpr char bytes[] = "\x11\x20\1\0\x0F\0\0\0\0\0\0\0PBAG\5\0count\2\0\x1E";
  if (std::FILE* const out = _wfopen(image, L"wb")) {
    std::fwrite(bytes, 1, sizeof bytes, out);
    std::fclose(out);
  }
  const struct {
    const char* name;
    DISPID id;
    std::function<void()> cause;
    std::wstring arguments;
    std::function<void(DISPPARAMS&)> answer;
  } cases[] = {
      {"Click",
       1,
       [&] {
         send(WM_LBUTTONDOWN, MK_LBUTTON, 60, 30);
         send(WM_LBUTTONUP, 0, 60, 30);
       },
       L"; ",
       {}},
      {"DblClick", 2, [&] { send(WM_LBUTTONDBLCLK, MK_LBUTTON, 60, 30); }, L"; ", {}},
      {"ItemCheck", 3,
       [&] {
         VARIANT index = number(1);
         list->put_ItemChecked(&index, VARIANT_FALSE);
         send(WM_LBUTTONDOWN, MK_LBUTTON, 9, 32);
       },
       L"3:1 11:0 ; ", [](DISPPARAMS& given) { *given.rgvarg[0].pboolVal = VARIANT_TRUE; }},
      {"MouseUp", 4, [&] { send(WM_RBUTTONUP, 0, 41, 52); }, L"2:2 2:0 4:41 4:52 ; ", {}},
      {"MouseMove",
       5,
       [&] { send(WM_MOUSEMOVE, MK_RBUTTON, 43, 52); },
       L"12:102 3:2 2:2 2:0 4:43 4:52 ; ",
       {}},
      {"MouseDown",
       6,
       [&] { send(WM_RBUTTONDOWN, MK_RBUTTON, 42, 52); },
       L"2:2 2:0 4:42 4:52 ; ",
       {}},
      {"ErrorListInput", 7, [&] { file(false, L"C:\\none\\none"); }, L"; ", {}},
      {"ErrorListSave", 8, [&] { file(true, L"C:\\none\\none"); }, L"; ", {}},
      {"ListSaving", 9, [&] { file(true, saved); }, L"12:0 ; 12:1 ; ",
       [&](DISPPARAMS& given) {
         if (seen.size() > 8) setIndex(29)(given);
       }},
      {"ListReading", 10, [&] { file(false, image); }, L"12:0 ; ", setIndex(29)},
      {"Scroll", 11, [&] { send(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 60, 30); }, L"; ; ", {}},
      {"KeyDown", 12, [&] { send(WM_KEYDOWN, VK_F6, 0, 0); }, L"2:117 2:0 ; ", {}},
      {"KeyPress", 13, [&] { send(WM_CHAR, 'x', 0, 0); }, L"2:120 ; ", {}},
      {"KeyUp", 14, [&] { send(WM_KEYUP, VK_F6, 0, 0); }, L"2:117 2:0 ; ", {}},
      {"ErrorWrongIndex", 21, [&] { list->put_ListIndex(99); }, L"12:99 ; ", {}}};
  for (const auto& each : cases) {
    awaited = each.id;
    answer = each.answer;
    seen.clear();
    each.cause();
    check(seen == each.arguments, each.name);
    if (seen != each.arguments) std::printf("  %ls\n", seen.c_str());
    if (each.id != 3) continue;
    VARIANT index = number(1);
    VARIANT_BOOL isChecked = VARIANT_TRUE;
    check(list->get_ItemChecked(&index, &isChecked) == S_OK && !isChecked, "Cancel is read back");
  }
  DeleteFileW(saved);
  DeleteFileW(image);
  point->Unadvise(cookie);
  object->Close(OLECLOSE_NOSAVE);
  object->SetClientSite(nullptr);
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

}  // namespace norvane
