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

/// Collects reports instead of showing a message box.
struct Reports final : ErrorHandler {
  std::vector<std::string> procedures;
  void RaiseError(std::string_view, const ApplicationFacts&, std::int32_t, std::string_view,
                  std::string_view Procedure, std::int32_t, std::string_view,
                  std::string_view) override {
    procedures.emplace_back(Procedure);
  }
};

/// A window of a program.
class Form {
 public:
  Form() {
    window_ = CreateWindowExW(0, L"STATIC", L"form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 400,
                              300, nullptr, nullptr, nullptr, nullptr);
  }
  ~Form() { destroy(); }
  void destroy() {
    if (window_) DestroyWindow(std::exchange(window_, nullptr));
  }
  HWND window() const { return window_; }

 private:
  HWND window_;
};

class WinWindowTest : public testing::Test {
 protected:
  WinWindowTest() : list_(form_.window(), {10, 10, 210, 110}) {
    Program::inUse().registerErrorHandler(reports_);
    list().ScrollBars(vbVertical);
    list().MinHeight(16);
    for (int i = 0; i < 50; ++i) list().ItemsAdd("Item " + std::to_string(i));
    pump();
  }
  ~WinWindowTest() override { Program::inUse().registerErrorHandler(nullptr); }

  nvList& list() { return list_.list(); }
  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(list_.window(), message, wParam, lParam);
  }
  void press(int x, int y) { send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
  void release(int x, int y) { send(WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
  HWND edit() { return FindWindowExW(list_.window(), nullptr, L"Edit", nullptr); }

  std::shared_ptr<Reports> reports_ = std::make_shared<Reports>();
  Form form_;
  WinList list_;
};

struct Clicks final : __nvList {
  int count = 0;
  void Click() override { ++count; }
};

TEST_F(WinWindowTest, PassesTheMouseToTheControlUnderIt) {
  Clicks clicks;
  list().addSink(clicks);
  press(40, 40);
  EXPECT_EQ(2, list().ListIndex());
  EXPECT_EQ(list_.window(), GetCapture());
  release(40, 40);
  EXPECT_EQ(1, clicks.count);
  EXPECT_EQ(nullptr, GetCapture());

  // The button at the lower end of the bar: a region of the window.
  press(190, 92);
  release(190, 92);
  pump();
  EXPECT_EQ(1, list().TopIndex());
  EXPECT_EQ(2, list().ListIndex());
  EXPECT_EQ(1, clicks.count);

  // A message box opened during a press takes the capture, and the button stops.
  press(190, 92);
  send(WM_CAPTURECHANGED, 0, 0);
  const std::int32_t top = list().TopIndex();
  pump(700);
  EXPECT_EQ(top, list().TopIndex());
  list().removeSink(clicks);
}

TEST_F(WinWindowTest, AWheelTurnIsTakenByTheReplacedProcedure) {
  const HWND wheel = static_cast<HWND>(GetPropW(list_.window(), L"WheelWnd"));
  ASSERT_NE(nullptr, wheel);
  EXPECT_EQ(list_.window(), GetParent(wheel));
  EXPECT_FALSE(IsWindowVisible(wheel));
  EXPECT_NE(nullptr, GetPropW(wheel, L"OldWheelProc"));
  EXPECT_NE(nullptr, GetPropW(wheel, L"WheelPtr"));
  EXPECT_NE(reinterpret_cast<LONG_PTR>(GetPropW(wheel, L"OldWheelProc")),
            GetWindowLongPtrW(list_.window(), GWLP_WNDPROC));
  EXPECT_TRUE(IsWindowUnicode(list_.window()));

  EXPECT_EQ(0, send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
  EXPECT_GT(list().TopIndex(), 0);
  list().UserControl_Terminate();
  EXPECT_EQ(nullptr, GetPropW(list_.window(), L"WheelWnd"));
}

TEST_F(WinWindowTest, EditsInAWindowOfItsOwn) {
  SetForegroundWindow(form_.window());
  SetFocus(list_.window());
  list().AllowEdit(true);
  list().ItemAllowEdit(1, true);
  list().ItemText(1, "\u00e4\U0001F600b");
  press(40, 24);
  release(40, 24);
  EXPECT_EQ(nullptr, edit());
  list().SetEdit(1);
  ASSERT_NE(nullptr, edit());
  EXPECT_TRUE(IsWindowVisible(edit()));
  EXPECT_EQ(edit(), GetFocus());
  DWORD start = 9;
  DWORD end = 9;
  SendMessageW(edit(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(0u, start);
  EXPECT_EQ(4u, end) << "of three characters, one of them beyond 16 bits";

  SendMessageW(edit(), WM_CHAR, 0x20AC, 0);
  EXPECT_EQ("\u00e4\U0001F600b", list().ItemText(1));
  SendMessageW(edit(), WM_CHAR, VK_RETURN, 0);
  EXPECT_EQ("\u20ac", list().ItemText(1));
  EXPECT_FALSE(IsWindowVisible(edit()));
  EXPECT_EQ(list_.window(), GetFocus());
  EXPECT_EQ(std::vector<std::string>{}, reports_->procedures);

  ShowWindow(form_.window(), SW_HIDE);
  list().SetEdit(1);
  EXPECT_EQ(std::vector<std::string>{"SetEdit"}, reports_->procedures);
}

TEST_F(WinWindowTest, ASwallowedKeyHasNoCharacter) {
  struct Keys final : __nvList {
    std::string heard;
    void KeyDown(std::int16_t& KeyCode, std::int16_t&) override {
      heard += "down " + std::to_string(KeyCode) + " ";
      if (KeyCode == 'S') KeyCode = 0;
    }
    void KeyPress(std::int16_t& KeyAscii) override {
      heard += "press " + std::to_string(KeyAscii) + " ";
    }
  } keys;
  list().addSink(keys);
  for (const WPARAM key : {'S', 'A'}) PostMessageW(list_.window(), WM_KEYDOWN, key, 0);
  pump();
  EXPECT_EQ("down 83 down 65 press 97 ", keys.heard);
  list().removeSink(keys);
}

TEST_F(WinWindowTest, OnlyTheFirstRepaintInvalidates) {
  const auto isDirty = [&] {
    RECT dirty;
    return GetUpdateRect(list_.window(), &dirty, FALSE) != 0;
  };
  pump(50);
  ASSERT_FALSE(isDirty());
  list().Redraw();
  EXPECT_TRUE(isDirty());
  // A further call would make it dirty again.
  ValidateRect(list_.window(), nullptr);
  list().Redraw();
  EXPECT_FALSE(isDirty());
  InvalidateRect(list_.window(), nullptr, FALSE);
  pump(20);
  list().Redraw();
  EXPECT_TRUE(isDirty()) << "after it has been painted";
}

TEST(WinWindow, OutlivesAContainerThatDestroysIt) {
  WinHost host;
  WinWindow window(host);
  nvList list(window);
  list.UserControl_InitProperties();
  {
    Form form;
    window.place(form.window(), {0, 0, 100, 80});
    list.ItemsAdd("one");
    form.destroy();
  }
  EXPECT_EQ(nullptr, window.handle());
  list.ItemsAdd("two");
  list.Redraw();
  EXPECT_EQ(0, list.hwnd());

  Form next;
  window.place(next.window(), {0, 0, 120, 80});
  ASSERT_NE(nullptr, window.handle());
  EXPECT_NE(nullptr, GetPropW(window.handle(), L"WheelWnd"));
  EXPECT_EQ(120, window.image().width());
  EXPECT_EQ(2, list.ItemsCount());
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
  Form form;
  const auto handle = [](HWND window) {
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window));
  };
  const auto tips = desktop.createTipWindow(handle(form.window()));
  ASSERT_NE(nullptr, tips);
  EXPECT_NE(0, tips->handle());
  TipTool tool{TipTool::isWindow | TipTool::receivesMouse,
               handle(form.window()),
               handle(form.window()),
               {},
               0,
               "caf\u00e9"};
  EXPECT_TRUE(tips->addTool(tool));
  EXPECT_EQ(1, tips->toolCount());
  TipTool read;
  read.text.assign(6, '#');
  ASSERT_TRUE(tips->enumerateTool(0, read));
  EXPECT_EQ(tool.id, read.id);
  EXPECT_STREQ("caf\u00e9", read.text.c_str());
  EXPECT_FALSE(tips->enumerateTool(1, read));
  tips->maxTipWidth(120);
  EXPECT_EQ(120, tips->maxTipWidth());
  tips->delay(TipDelay::autopop, 1234);
  EXPECT_EQ(1234, tips->delay(TipDelay::autopop));
  tips->margin({1, 2, 3, 4});
  EXPECT_EQ(3, tips->margin().Right);
  tips->deleteTool(tool);
  EXPECT_EQ(0, tips->toolCount());
}

TEST(Failures, BecomeHresultsWithATextWhereThereIsOne) {
  const struct {
    std::function<void()> body;
    HRESULT expected;
    const wchar_t* text;
  } cases[] = {
      {[] {}, S_OK, nullptr},
      {[] { throw Failure::typeMismatch(); }, static_cast<HRESULT>(0x800A000D), L"Type mismatch"},
      {[] { throw std::bad_alloc(); }, E_OUTOFMEMORY, nullptr},
      {[] { throw 1; }, E_UNEXPECTED, nullptr}};
  for (const auto& [body, expected, text] : cases) {
    SetErrorInfo(0, nullptr);
    EXPECT_EQ(expected, guarded(body));
    ComPtr<IErrorInfo> info;
    BSTR description = nullptr;
    if (GetErrorInfo(0, info.put()) == S_OK) info->GetDescription(&description);
    EXPECT_EQ(text ? std::wstring(text) : L"", description ? description : L"")
        << std::hex << expected;
    SysFreeString(description);
  }
}

TEST(WinProgram, ReadsSettingsOfEachType) {
  const wchar_t* const key = L"Software\\NorvaneTest";
  const auto set = [&](const wchar_t* name, DWORD type, const void* data, DWORD size) {
    RegSetKeyValueW(HKEY_CURRENT_USER, key, name, type, data, size);
  };
  const wchar_t text[] = L"C:\\\u00fc\0rest";
  const DWORD number = 70000;
  set(L"text", REG_SZ, text, sizeof text);
  set(L"number", REG_DWORD, &number, sizeof number);
  set(L"bytes", REG_BINARY, &number, sizeof number);
  WinProgram program;
  EXPECT_EQ("C:\\\u00fc", program.readSetting("Software\\NorvaneTest", "text").toText());
  EXPECT_EQ(70000, program.readSetting("Software\\NorvaneTest", "number").toInt32());
  EXPECT_TRUE(program.readSetting("Software\\NorvaneTest", "bytes").isEmpty());
  EXPECT_TRUE(program.readSetting("Software\\NorvaneTest", "none").isEmpty());
  EXPECT_TRUE(program.readSetting("Software\\NorvaneNoKey", "text").isEmpty());
  RegDeleteTreeW(HKEY_CURRENT_USER, key);
}

TEST(WinProgram, KnowsItsFileAndAppendsToLogs) {
  WinProgram program;
  const ApplicationFacts facts = program.facts();
  EXPECT_EQ("nvlist_windows_tests", facts.EXEName);
  EXPECT_EQ(facts.Path + "\\nvlist_windows_tests.exe", program.programPath());
  EXPECT_FALSE(program.dateText().empty());
  EXPECT_FALSE(program.timeText().empty());

  const std::filesystem::path log =
      std::filesystem::temp_directory_path() / std::filesystem::path(u8"nvlist-\u00fc.txt");
  const std::u8string name = log.u8string();
  const std::string path(name.begin(), name.end());
  program.appendToFile(path, "one\r\n");
  program.appendToFile(path, "two\r\n");
  std::ostringstream content;
  content << std::ifstream(log, std::ios::binary).rdbuf();
  EXPECT_EQ("one\r\ntwo\r\n", content.str());
  std::filesystem::remove(log);
  EXPECT_THROW(program.appendToFile("C:\\no such folder\\log.txt", "x"), Failure);
}

}  // namespace
}  // namespace norvane
