// A host of the control, with a container that uses what scripts and common containers never do.
//
//     host                          runs the tests; with host.exe.manifest beside it, the library
//                                   need not be registered
//     host registry machine|user    counts the registry keys of the library
#include <algorithm>

#include "Host.h"

using namespace norvane;

namespace {

/// The greatest of the handles of many new GDI objects, and the handle of a new window. Both grow
/// if earlier objects were not destroyed.
std::pair<int, int> nextHandles() {
  const auto number = [](HANDLE handle) { return LOWORD(reinterpret_cast<UINT_PTR>(handle)); };
  int greatest = 0;
  HPEN pens[100];
  for (HPEN& pen : pens) {
    pen = CreatePen(PS_SOLID, 1, 0);
    greatest = std::max(greatest, int{number(pen)});
  }
  for (const HPEN pen : pens) DeleteObject(pen);
  const HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                      nullptr, nullptr);
  const int windowNumber = number(window);
  DestroyWindow(window);
  return {greatest, windowNumber};
}

void lifetimes() {
  constexpr int count = 1000;
  // While another control lives, the windows are not destroyed with those of its apartment.
  const auto other = make();
  const HDC memory = CreateCompatibleDC(nullptr);
  const auto useOne = [&] {
    const auto list = make();
    list->put_ScrollBars(::vbBoth);
    list->put_Style(::cCheckBoxes);
    for (long i = 0; i < 20; ++i) add(list.get(), i);
    const RECT bounds{0, 0, 20, 20};
    OleDraw(list.get(), DVASPECT_CONTENT, memory, const_cast<RECT*>(&bounds));
  };
  for (int i = 0; i < 10; ++i) useOne();
  const auto before = nextHandles();
  for (int i = 0; i < count; ++i) useOne();
  pump(50);
  const auto after = nextHandles();
  DeleteDC(memory);
  check(after.first <= before.first + count / 10, "GDI objects are destroyed");
  check(after.second <= before.second + count / 10, "windows are destroyed");
}

/// Uses a control on a thread of its own. Returns 1 if it worked.
DWORD WINAPI useControl(void* given) {
  OleInitialize(nullptr);
  const auto index = static_cast<long>(reinterpret_cast<INT_PTR>(given));
  DWORD result = 0;
  {
    Container site;
    const auto list = make();
    const auto object = asked<IOleObject>(list.get());
    object->SetClientSite(&site);
    object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &site, 0, site.frame, &site.place);
    for (long i = 0; i < 300; ++i) {
      add(list.get(), i);
      list->put_ListIndex(i);
      if (i % 30 == 0) pump(1);
    }
    list->put_ListIndex(index);
    PostMessageW(windowOf(list.get()), WM_KEYDOWN, VK_DOWN, 0);
    pump(50);
    result = listIndex(list.get()) == index + 1;
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
  }
  pump(20);
  OleUninitialize();
  return result;
}

void apartments() {
  const auto own = make();
  HANDLE threads[3];
  for (INT_PTR i = 0; i < 3; ++i)
    threads[i] = CreateThread(nullptr, 0, useControl, reinterpret_cast<void*>(i * 10), 0, nullptr);
  for (long i = 0; WaitForMultipleObjects(3, threads, TRUE, 0) == WAIT_TIMEOUT; ++i) {
    add(own.get(), i);
    pump(1);
  }
  for (const HANDLE thread : threads) {
    DWORD isRight = 0;
    GetExitCodeThread(thread, &isRight);
    CloseHandle(thread);
    check(isRight != 0, "a control on a thread of its own");
  }
}

/// The contents of the type library: each enumerator, each event with its id and the types of
/// its arguments, and a help text for every member.
void types() {
  ComPtr<ITypeInfo> info;
  ComPtr<ITypeLib> library;
  UINT index = 0;
  GUID source{};
  const auto described = asked<IProvideClassInfo2>(make().get());
  check(described->GetClassInfo(info.put()) == S_OK &&
            described->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source) == S_OK &&
            source == __uuidof(::__nvList),
        "the class and its events");
  info->GetContainingTypeLib(library.put(), &index);
  std::wstring enumerators, events, helpless;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    library->GetTypeInfo(i, info.put());
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    const auto nameOf = [&](MEMBERID member) {
      BSTR name = nullptr, help = nullptr;
      info->GetDocumentation(member, &name, &help, nullptr, nullptr);
      const std::wstring result = name ? name : L"";
      const bool isOfDispatch = member >= 0x60000000;
      if (SysStringLen(help) == 0 && !isOfDispatch && attributes->typekind != TKIND_ENUM)
        helpless += result + L"; ";
      SysFreeString(name);
      SysFreeString(help);
      return result;
    };
    for (UINT n = 0; n < attributes->cVars; ++n) {
      VARDESC* variable = nullptr;
      info->GetVarDesc(n, &variable);
      enumerators += nameOf(variable->memid) + std::to_wstring(variable->lpvarValue->lVal) + L" ";
      info->ReleaseVarDesc(variable);
    }
    for (UINT n = 0; n < attributes->cFuncs; ++n) {
      FUNCDESC* function = nullptr;
      info->GetFuncDesc(n, &function);
      const std::wstring name = nameOf(function->memid);
      if (attributes->guid == __uuidof(::__nvList)) {
        events += std::to_wstring(function->memid) + name;
        for (SHORT a = 0; a < function->cParams; ++a)
          events += L" " + std::to_wstring(function->lprgelemdescParam[a].tdesc.lptdesc->vt);
        events += L"; ";
      }
      info->ReleaseFuncDesc(function);
    }
    info->ReleaseTypeAttr(attributes);
  }
  const auto same = [](const std::wstring& got, const wchar_t* expected, const char* what) {
    check(got == expected, what);
    if (got != expected) std::printf("  %ls\n", got.c_str());
  };
  same(enumerators,
       L"cXPBlue0 cXPSilver1 cXPOlive2 cCustom99 cXPScrollBlue0 cXPScrollSilver1 cXPScrollOlive2 "
       L"cDefault0 cCheckBoxes1 cIcons2 cCheckBoxesIcons3 cLeft0 cCenter1 cRight2 cAscending1 "
       L"cDescending2 cFindBinary0 cFindText1 cWheelScroll0 cWheelListIndex1 cWheelOff2 styleBlue1 "
       L"styleSilver2 styleOlive3 styleClassic4 mouseNone0 mouseLeft1 mouseRight2 mouseMiddle3 "
       L"vbSBNone0 vbHorizontal1 vbVertical2 vbBoth3 ",
       "enumerators");
  same(events,
       L"1Click; 2DblClick; 3ItemCheck 3 11; 4MouseUp 2 2 4 4; 5MouseMove 12 3 2 2 4 4; "
       L"6MouseDown 2 2 4 4; 7ErrorListInput; 8ErrorListSave; 9ListSaving 12; 10ListReading 12; "
       L"11Scroll; 12KeyDown 2 2; 13KeyPress 2; 14KeyUp 2 2; 15OLECompleteDrag 3; "
       L"16OLEDragDrop 9 3 2 2 4 4; 17OLEDragOver 9 3 2 2 4 4 2; 18OLEGiveFeedback 3 11; "
       L"19OLESetData 9 2; 20OLEStartDrag 9 3; 21ErrorWrongIndex 12; ",
       "events");
  same(helpless, L"", "help texts");
}

/// Counts the keys that a registration writes: names, classes, the type library and its interfaces.
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
  } tests[] = {{"types", types},
               {"members", members},
               {"activation", activation},
               {"ambients", ambients},
               {"persistence", persistence},
               {"drawing", drawing},
               {"connections", connections},
               {"events", events},
               {"bad arguments", badArguments},
               {"apartments", apartments},
               {"lifetimes", lifetimes}};
  for (const auto& test : tests) {
    test.run();
    pump(30);
    check(canUnload(), test.name);
  }
  const HMODULE library = GetModuleHandleW(L"nvList.ocx");
  WNDCLASSW look;
  check(GetClassInfoW(library, L"NorvaneControl", &look), "a window class of the library");
  OleUninitialize();
  check(!GetModuleHandleW(L"nvList.ocx") && !GetClassInfoW(library, L"NorvaneControl", &look),
        "unloaded with its window classes");
  return check.finish();
}
