#include <sstream>
#include <thread>

#include <nvlist/platform/Files.h>

#include "../Lists.h"

namespace norvane {
namespace {

constexpr Module here{kinds::module, "basList"};

/// A failure in a known procedure, and its consequences.
class Reporter : public ListTest {
 protected:
  void fail() {
    list.ItemsAdd("x");
    list.ItemsAdd("y", "no number");
  }

  struct Handler : ErrorHandler {
    void RaiseError(std::string_view programPath, const ApplicationFacts& program,
                    std::int32_t Number, std::string_view Description, std::string_view Procedure,
                    std::int32_t, std::string_view Kind, std::string_view Module) override {
      std::ostringstream all;
      all << programPath << "|" << program.EXEName << "|" << Number << "|" << Description << "|"
          << Procedure << "|" << Kind << "|" << Module;
      got = all.str();
      if (refuses) throw std::runtime_error("not mine");
    }
    std::string got;
    bool refuses = false;
  };

  Variant& logFolder() { return application.settings[{"Software\\Norvane", "ErrorLog"}]; }
};

TEST_F(Reporter, ShowsSixLinesInABox) {
  application.program = {"host", 3, 4, 5, "C:\\host"};
  fail();
  ASSERT_EQ(application.boxes.size(), 1U);
  const auto& box = application.boxes[0];
  EXPECT_EQ(box.title + std::to_string(box.style), "Error16");
  const std::string beforeLine =
      "Error no.: 13\r\nError description: Type mismatch\r\nProject: host\r\n"
      "Module: Benutzersteuerelement nvList\r\nLine/Procedure: ";
  EXPECT_TRUE(box.text.starts_with(beforeLine)) << box.text;
  EXPECT_GT(std::stoi(box.text.substr(beforeLine.size())), 0);
  EXPECT_TRUE(box.text.ends_with("/ItemsAdd\r\nVersion: 3.4.5")) << box.text;
}

TEST_F(Reporter, LogsWhereTheSettingSays) {
  const auto logged = [&](const Variant& setting) {
    application.files.clear();
    logFolder() = setting;
    fail();
    return application.files.empty() ? std::string() : application.files.begin()->first;
  };
  EXPECT_EQ(logged("   "), "");
  EXPECT_EQ(logged("D:\\log\\"), "D:\\log\\NorvaneError.txt");
  EXPECT_EQ(logged(std::string("D:\0rest", 7)), "D:\\NorvaneError.txt");
  EXPECT_EQ(logged("*app*"), "/opt/headless\\NorvaneError.txt");

  application.clock.set(HeadlessClock::Time(std::chrono::hours(24 * 365)));
  application.clock.advance(std::chrono::milliseconds(3723000));
  logged("D:");
  EXPECT_EQ(application.files["D:\\NorvaneError.txt"],
            "1971-01-01 01:02:03\r\n" + application.boxes.back().text +
                "\r\n------------------------------\r\n");
  application.isDiskFull = true;
  application.boxes.clear();
  EXPECT_EQ(logged("D:"), "");
  EXPECT_EQ(application.boxes.size(), 1U);
}

TEST_F(Reporter, AsksTheOutsideHandlerFirst) {
  const auto handler = std::make_shared<Handler>();
  application.registerErrorHandler(handler);
  logFolder() = "D:";
  fail();
  EXPECT_EQ(handler->got,
            "/opt/headless/headless|headless|13|Type mismatch|ItemsAdd|"
            "Benutzersteuerelement|nvList");
  EXPECT_TRUE(application.boxes.empty());
  EXPECT_EQ(application.files.size(), 1U);

  handler->refuses = true;
  fail();
  EXPECT_EQ(application.boxes.size(), 1U);
}

TEST_F(Reporter, ExhaustedMemoryNeverReachesTheHost) {
  struct NoMemory final : Program {
    ApplicationFacts facts() override { throw std::bad_alloc(); }
    std::string programPath() override { throw std::bad_alloc(); }
    Variant readSetting(std::string_view, std::string_view) override { throw std::bad_alloc(); }
    void MsgBox(std::string_view text, std::int32_t, std::string_view) override {
      box = text;
      throw std::bad_alloc();
    }
    std::string box;
  } program;
  trapped(here, "Proc", [](Trap& on) { on.step([] { throw std::bad_alloc(); }); });
  EXPECT_TRUE(program.box.starts_with("Error no.: 7\r\nError description: Out of memory\r\n"));
  EXPECT_TRUE(program.box.ends_with("/Proc\r\nVersion: 0.0.0"));
}

/// A host implements the services it has; the previous service is restored when its own is
/// destroyed.
TEST_F(Reporter, ServicesAreInUseFromTheirMakingToTheirEnd) {
  EXPECT_FALSE(Files::anyInUse());
  {
    auto first = std::make_unique<Program>();
    Program second;
    EXPECT_EQ(&Desktop::inUse(), &application);
    first.reset();
    std::thread([] {
      EXPECT_FALSE(Program::anyInUse());
      Program threads;
      EXPECT_EQ(&Program::inUse(), &threads);
    }).join();
    EXPECT_EQ(&Program::inUse(), &second);
  }
  EXPECT_EQ(&Program::inUse(), &application);
  EXPECT_EQ(Files::inUse().loadPicture({std::byte{1}})->fileBytes().size(), 1U);
}

TEST_F(Reporter, AFailureEndsOnlyTheProcedureItHappensIn) {
  std::string trace;
  const auto inner = [&] {
    trapped(here, "Inner", [&](Trap& on) {
      on.step([] { throw Failure::overflow(); });
      trace += "i";
    });
  };
  const auto outer = [&] {
    trace.clear();
    trapped(here, "Outer", [&](Trap& on) {
      on.step(inner);
      trace += "a";
      if (on.test([]() -> bool { throw Failure::typeMismatch(); })) trace += "b";
      trace += "c";
      on.ignoring([] { throw 1; });
      on.step([&] { on.step([] { throw std::bad_alloc(); }); });
      trace += "d";
    });
    return trace;
  };
  EXPECT_EQ(outer(), "a");
  EXPECT_EQ(reports(), "6 Inner, 13 Outer");
  silent();
  EXPECT_EQ(outer(), "iabcd");
  EXPECT_EQ(reports(), "");
}

}  // namespace
}  // namespace norvane
