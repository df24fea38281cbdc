// A host of the control, with a container that uses what scripts and common containers never do.
// With host.exe.manifest beside it, the library need not be registered.
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
  auto list = make();
  for (long i = 0; i < 300; ++i) {
    add(list.get(), i);
    list->put_ListIndex(i);
    if (i % 30 == 0) pump(1);
  }
  list->put_ListIndex(index);
  PostMessageW(windowOf(list.get()), WM_KEYDOWN, VK_DOWN, 0);
  pump(50);
  const bool isRight = listIndex(list.get()) == index + 1;
  list.reset();
  pump(20);
  OleUninitialize();
  return isRight;
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

// The enumerators of the type library.
static_assert(::cXPBlue == 0 && ::cXPSilver == 1 && ::cXPOlive == 2 && ::cCustom == 99);
static_assert(::cXPScrollBlue == 0 && ::cXPScrollSilver == 1 && ::cXPScrollOlive == 2);
static_assert(::cDefault == 0 && ::cCheckBoxes == 1 && ::cIcons == 2 && ::cCheckBoxesIcons == 3);
static_assert(::cLeft == 0 && ::cCenter == 1 && ::cRight == 2);
static_assert(::cAscending == 1 && ::cDescending == 2 && ::cFindBinary == 0 && ::cFindText == 1);
static_assert(::cWheelScroll == 0 && ::cWheelListIndex == 1 && ::cWheelOff == 2);
static_assert(::styleBlue == 1 && ::styleSilver == 2 && ::styleOlive == 3 && ::styleClassic == 4);
static_assert(::mouseNone == 0 && ::mouseLeft == 1 && ::mouseRight == 2 && ::mouseMiddle == 3);
static_assert(::vbSBNone == 0 && ::vbHorizontal == 1 && ::vbVertical == 2 && ::vbBoth == 3);

/// The events in the type library, with their ids and the types of their arguments.
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
  library->GetTypeInfoOfGuid(source, info.put());
  std::wstring events;
  FUNCDESC* event = nullptr;
  for (UINT i = 0; SUCCEEDED(info->GetFuncDesc(i, &event)); ++i) {
    BSTR name = nullptr;
    info->GetDocumentation(event->memid, &name, nullptr, nullptr, nullptr);
    events += std::to_wstring(event->memid) + name;
    for (SHORT a = 0; a < event->cParams; ++a)
      events += L" " + std::to_wstring(event->lprgelemdescParam[a].tdesc.lptdesc->vt);
    events += L"; ";
    SysFreeString(name);
    info->ReleaseFuncDesc(event);
  }
  check.same(events,
             L"1Click; 2DblClick; 3ItemCheck 3 11; 4MouseUp 2 2 4 4; 5MouseMove 12 3 2 2 4 4; "
             L"6MouseDown 2 2 4 4; 7ErrorListInput; 8ErrorListSave; 9ListSaving 12; "
             L"10ListReading 12; 11Scroll; 12KeyDown 2 2; 13KeyPress 2; 14KeyUp 2 2; "
             L"15OLECompleteDrag 3; 16OLEDragDrop 9 3 2 2 4 4; 17OLEDragOver 9 3 2 2 4 4 2; "
             L"18OLEGiveFeedback 3 11; 19OLESetData 9 2; 20OLEStartDrag 9 3; "
             L"21ErrorWrongIndex 12; ",
             "events");
}

bool canUnload() {
  using Ask = HRESULT(WINAPI*)();
  const HMODULE library = GetModuleHandleW(L"nvList.ocx");
  const auto ask =
      reinterpret_cast<Ask>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
  return ask && ask() == S_OK;
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  if (!make()) {
    std::puts("no list can be made");
    return 1;
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
  std::printf("passed: %d, failures: %d\n", check.passed, check.failed);
  return check.failed != 0;
}
