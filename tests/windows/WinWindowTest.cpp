#include <gtest/gtest.h>
#include <nvlist/platform/windows/WinApplication.h>
#include <nvlist/platform/windows/WinList.h>
#include <nvlist/platform/windows/WinTimer.h>
#include <nvlist/platform/windows/failures.h>
#include <nvlist/values/Failure.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace norvane {
namespace {

/// Processes the message queue, for the given time if there is one.
void pump(DWORD milliseconds = 0) {
  const DWORD start = GetTickCount();
  do {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    if (milliseconds != 0) Sleep(1);
  } while (GetTickCount() - start < milliseconds);
}

/// A window of a program, and its handle as the library passes it.
struct Form {
  HWND window = CreateWindowExW(0, L"STATIC", L"form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                                300, nullptr, nullptr, nullptr, nullptr);
  std::int32_t handle = static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
  ~Form() { DestroyWindow(window); }
};

/// Collects reports instead of showing a message box.
struct Reports final : Program {
  std::string text;
  void MsgBox(std::string_view report, std::int32_t, std::string_view) override { text += report; }
};

/// A list with 50 rows of 16 pixels in a window. Its host swallows the key S.
class WinWindowTest : public testing::Test, protected __nvList {
 protected:
  WinWindowTest() {
    list.ScrollBars(vbVertical);
    list.MinHeight(16);
    for (int i = 0; i < 50; ++i) list.ItemsAdd("Item " + std::to_string(i));
    list.addSink(*this);
    pump();
  }
  ~WinWindowTest() override { list.removeSink(*this); }

  void Click() override { events += "click "; }
  void KeyDown(std::int16_t& KeyCode, std::int16_t&) override {
    events += "down " + std::to_string(KeyCode) + " ";
    if (KeyCode == 'S') KeyCode = 0;
  }
  void KeyPress(std::int16_t& KeyAscii) override {
    events += "press " + std::to_string(KeyAscii) + " ";
  }

  HWND window() const { return winList.window(); }
  LRESULT send(UINT message, WPARAM wParam = 0, int x = 0, int y = 0) {
    return SendMessageW(window(), message, wParam, MAKELPARAM(x, y));
  }
  HWND edit() { return FindWindowExW(window(), nullptr, L"Edit", nullptr); }

  Reports reports;
  Form form;
  WinList winList{form.window, {10, 10, 210, 110}};
  nvList& list = winList.list();
  std::string events;
};

TEST_F(WinWindowTest, PassesTheMouseToTheControlUnderIt) {
  send(WM_LBUTTONDOWN, MK_LBUTTON, 40, 40);
  EXPECT_EQ(2, list.ListIndex());
  EXPECT_EQ(window(), GetCapture());
  send(WM_LBUTTONUP, 0, 40, 40);
  EXPECT_EQ(nullptr, GetCapture());
  // The button at the lower end of the bar: a region of the window.
  send(WM_LBUTTONDOWN, MK_LBUTTON, 190, 92);
  send(WM_LBUTTONUP, 0, 190, 92);
  pump();
  EXPECT_EQ(1, list.TopIndex());
  EXPECT_EQ("click ", events);
  // A message box opened during a press takes the capture, and the button stops.
  send(WM_LBUTTONDOWN, MK_LBUTTON, 190, 92);
  send(WM_CAPTURECHANGED);
  pump(700);
  EXPECT_EQ(2, list.TopIndex());
}

TEST_F(WinWindowTest, AWheelTurnIsTakenByTheReplacedProcedure) {
  const HWND wheel = static_cast<HWND>(GetPropW(window(), L"WheelWnd"));
  ASSERT_NE(nullptr, wheel);
  EXPECT_EQ(window(), GetParent(wheel));
  EXPECT_FALSE(IsWindowVisible(wheel));
  EXPECT_NE(nullptr, GetPropW(wheel, L"WheelPtr"));
  const auto before = reinterpret_cast<LONG_PTR>(GetPropW(wheel, L"OldWheelProc"));
  EXPECT_NE(0, before);
  EXPECT_NE(before, GetWindowLongPtrW(window(), GWLP_WNDPROC));
  EXPECT_EQ(0, send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120))));
  EXPECT_GT(list.TopIndex(), 0);
  list.UserControl_Terminate();
  EXPECT_EQ(nullptr, GetPropW(window(), L"WheelWnd"));
}

TEST_F(WinWindowTest, EditsInAWindowOfItsOwn) {
  SetForegroundWindow(form.window);
  SetFocus(window());
  list.AllowEdit(true);
  list.ItemAllowEdit(1, true);
  list.ItemText(1, "\u00e4\U0001F600b");
  list.ListIndex(1);
  list.SetEdit(1);
  ASSERT_NE(nullptr, edit());
  EXPECT_TRUE(IsWindowVisible(edit()));
  EXPECT_EQ(edit(), GetFocus());
  EXPECT_EQ(MAKELRESULT(0, 4), SendMessageW(edit(), EM_GETSEL, 0, 0))
      << "three characters, one of them beyond 16 bits";
  SendMessageW(edit(), WM_CHAR, 0x20AC, 0);
  EXPECT_EQ("\u00e4\U0001F600b", list.ItemText(1));
  SendMessageW(edit(), WM_CHAR, VK_RETURN, 0);
  EXPECT_EQ("\u20ac", list.ItemText(1));
  EXPECT_FALSE(IsWindowVisible(edit()));
  EXPECT_EQ(window(), GetFocus());
  EXPECT_EQ("", reports.text);

  ShowWindow(form.window, SW_HIDE);
  list.SetEdit(1);
  EXPECT_NE(std::string::npos, reports.text.find("SetEdit"));
}

TEST_F(WinWindowTest, ASwallowedKeyHasNoCharacter) {
  for (const WPARAM key : {'S', 'A'}) PostMessageW(window(), WM_KEYDOWN, key, 0);
  pump();
  EXPECT_EQ("down 83 down 65 press 97 ", events);
}

TEST_F(WinWindowTest, OnlyTheFirstRepaintInvalidates) {
  const auto isDirty = [&] { return GetUpdateRect(window(), nullptr, FALSE) != 0; };
  pump(50);
  ASSERT_FALSE(isDirty());
  list.Redraw();
  EXPECT_TRUE(isDirty());
  // A further call would make it dirty again.
  ValidateRect(window(), nullptr);
  list.Redraw();
  EXPECT_FALSE(isDirty());
  InvalidateRect(window(), nullptr, FALSE);
  pump(20);
  list.Redraw();
  EXPECT_TRUE(isDirty()) << "after it has been painted";
}

TEST(WinWindow, OutlivesAContainerThatDestroysIt) {
  WinHost host;
  WinWindow window(host);
  nvList list(window);
  list.UserControl_InitProperties();
  {
    const Form form;
    window.place(form.window, {0, 0, 100, 80});
    list.ItemsAdd("one");
  }
  EXPECT_EQ(nullptr, window.handle());
  list.ItemsAdd("two");
  list.Redraw();
  EXPECT_EQ(0, list.hwnd());

  const Form next;
  window.place(next.window, {0, 0, 120, 80});
  ASSERT_NE(nullptr, window.handle());
  EXPECT_NE(nullptr, GetPropW(window.handle(), L"WheelWnd"));
  EXPECT_EQ(120, window.image().width());
  window.park();
  EXPECT_TRUE(window.isParked());
}

TEST(Apartment, AControlIsReleasedAfterItsProcedure) {
  const auto apartment = Apartment::current();
  auto control = std::make_shared<int>(1);
  const std::weak_ptr<int> seen = control;
  {
    const Apartment::Running running(*apartment);
    apartment->release(std::move(control));
    pump(50);
    EXPECT_FALSE(seen.expired());
  }
  pump(50);
  EXPECT_TRUE(seen.expired());
}

TEST(Apartment, TimersTickUntilTheyEnd) {
  int ticks = 0;
  std::unique_ptr<WinTimer> timer;
  timer = std::make_unique<WinTimer>(Apartment::current(), [&] {
    if (++ticks == 3) timer.reset();
    if (ticks == 1) throw 1;  // stays inside
  });
  timer->Interval(10);
  pump(60);
  EXPECT_EQ(0, ticks);
  timer->Enabled(true);
  pump(500);
  EXPECT_EQ(3, ticks);
}

TEST(WinDesktop, TipsAreKeptByTheSystemsControl) {
  WinDesktop desktop;
  const Form form;
  const auto tips = desktop.createTipWindow(form.handle);
  ASSERT_NE(nullptr, tips);
  EXPECT_NE(0, tips->handle());
  const TipTool tool{
      TipTool::isWindow | TipTool::receivesMouse, form.handle, form.handle, {}, 0, "caf\u00e9"};
  EXPECT_TRUE(tips->addTool(tool));
  TipTool read;
  read.text.assign(6, '#');
  ASSERT_TRUE(tips->enumerateTool(0, read));
  EXPECT_EQ(tool.id, read.id);
  EXPECT_STREQ("caf\u00e9", read.text.c_str());
  EXPECT_FALSE(tips->enumerateTool(1, read));
  tips->maxTipWidth(120);
  tips->delay(TipDelay::autopop, 1234);
  tips->margin({1, 2, 3, 4});
  EXPECT_EQ(120, tips->maxTipWidth());
  EXPECT_EQ(1234, tips->delay(TipDelay::autopop));
  EXPECT_EQ((Rectangle{1, 2, 3, 4}), tips->margin());
  EXPECT_EQ(1, tips->toolCount());
  tips->deleteTool(tool);
  EXPECT_EQ(0, tips->toolCount());
}

TEST(Failures, BecomeHresults) {
  EXPECT_EQ(S_OK, guarded([] {}));
  EXPECT_EQ(E_OUTOFMEMORY, guarded([] { throw std::bad_alloc(); }));
  EXPECT_EQ(E_UNEXPECTED, guarded([] { throw 1; }));
  EXPECT_EQ(static_cast<HRESULT>(0x800A000D), guarded([] { throw Failure::typeMismatch(); }));
  ComPtr<IErrorInfo> info;
  ASSERT_EQ(S_OK, GetErrorInfo(0, info.put()));
  BSTR description = nullptr;
  info->GetDescription(&description);
  EXPECT_STREQ(L"Type mismatch", description);
  SysFreeString(description);
}

TEST(WinProgram, ReadsSettingsOfEachType) {
  const wchar_t* const key = L"Software\\NorvaneTest";
  const wchar_t text[] = L"C:\\\u00fc\0rest";
  const DWORD number = 70000;
  RegSetKeyValueW(HKEY_CURRENT_USER, key, L"text", REG_SZ, text, sizeof text);
  RegSetKeyValueW(HKEY_CURRENT_USER, key, L"number", REG_DWORD, &number, sizeof number);
  RegSetKeyValueW(HKEY_CURRENT_USER, key, L"bytes", REG_BINARY, &number, sizeof number);
  WinProgram program;
  const auto read = [&](const char* name) {
    return program.readSetting("Software\\NorvaneTest", name);
  };
  EXPECT_EQ("C:\\\u00fc", read("text").toText());
  EXPECT_EQ(70000, read("number").toInt32());
  EXPECT_TRUE(read("bytes").isEmpty());
  EXPECT_TRUE(read("none").isEmpty());
  RegDeleteTreeW(HKEY_CURRENT_USER, key);
  EXPECT_TRUE(read("text").isEmpty());
}

TEST(WinProgram, KnowsItsFileAndAppendsToLogs) {
  WinProgram program;
  const ApplicationFacts facts = program.facts();
  EXPECT_EQ("nvlist_windows_tests", facts.EXEName);
  EXPECT_EQ(facts.Path + "\\nvlist_windows_tests.exe", program.programPath());
  EXPECT_FALSE(program.dateText().empty());
  EXPECT_FALSE(program.timeText().empty());

  program.appendToFile("log-\u00fc.txt", "one\r\n");
  program.appendToFile("log-\u00fc.txt", "two\r\n");
  const std::filesystem::path log(u8"log-\u00fc.txt");
  std::ostringstream content;
  content << std::ifstream(log, std::ios::binary).rdbuf();
  EXPECT_EQ("one\r\ntwo\r\n", content.str());
  std::filesystem::remove(log);
  EXPECT_THROW(program.appendToFile("C:\\no such folder\\log.txt", "x"), Failure);
}

}  // namespace
}  // namespace norvane
