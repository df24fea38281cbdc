#include <nvlist/platform/Application.h>

#include <cstdio>

namespace norvane {
namespace {

Application* current = nullptr;

/// Serves a program that brought no platform along.
class BareApplication final : public Application {
 public:
  ApplicationFacts facts() override { return {}; }
  std::string programPath() override { return {}; }
  Variant readSetting(std::string_view, std::string_view) override { return {}; }
  void appendToFile(const std::string&, const std::string&) override {}
  std::string dateText() override { return {}; }
  std::string timeText() override { return {}; }
  void MsgBox(const std::string& text, std::int32_t, const std::string& title) override {
    std::fprintf(stderr, "%s\n%s\n", title.c_str(), text.c_str());
  }
};

}  // namespace

Application::Application() : before_(current) { current = this; }

Application::~Application() {
  Application** link = &current;
  while (*link != this) link = &(*link)->before_;
  *link = before_;
}

Application& Application::inUse() {
  if (!current) static BareApplication bare;
  return *current;
}

bool Application::anyInUse() { return current && !dynamic_cast<BareApplication*>(current); }

}  // namespace norvane
