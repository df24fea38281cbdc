#include <nvlist/platform/Application.h>

#include <cstdio>
#include <utility>

#include <nvlist/platform/diskFiles.h>
#include <nvlist/values/Failure.h>

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

/// A picture that nobody here can draw.
class UnreadPicture final : public PictureObject {
 public:
  explicit UnreadPicture(std::vector<std::byte> file) : file_(std::move(file)) {}

  float width() const override { return 0; }
  float height() const override { return 0; }
  std::vector<std::byte> fileBytes() const override { return file_; }

 private:
  std::vector<std::byte> file_;
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

bool Application::holdsFile(const std::string& path) { return disk::holdsAny(path); }

void Application::removeFile(const std::string& path) { disk::remove(path); }

std::unique_ptr<File> Application::openFile(const std::string& path, FileMode mode) {
  return disk::open(path, mode);
}

Picture Application::loadPicture(std::vector<std::byte> file) {
  if (file.empty()) throw Failure::invalidPicture();
  return makeRef<UnreadPicture>(std::move(file));
}

}  // namespace norvane
