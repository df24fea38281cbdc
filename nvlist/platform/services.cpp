#include <cstdio>
#include <utility>

#include <nvlist/platform/Desktop.h>
#include <nvlist/platform/Files.h>
#include <nvlist/platform/Program.h>
#include <nvlist/platform/diskFiles.h>
#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

/// The newest service that this thread has made and not destroyed.
template <class Service>
thread_local InUse<Service>* newest = nullptr;

/// A picture that the library cannot decode.
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

template <class Service>
InUse<Service>::InUse() : before_(std::exchange(newest<Service>, this)) {}

template <class Service>
InUse<Service>::~InUse() {
  for (InUse** link = &newest<Service>; *link; link = &(*link)->before_) {
    if (*link != this) continue;
    *link = before_;
    return;
  }
}

template <class Service>
Service& InUse<Service>::inUse() {
  if (newest<Service>) return static_cast<Service&>(*newest<Service>);
  static thread_local Service defaults;
  // Used only while no other service is installed.
  newest<Service> = nullptr;
  return defaults;
}

template <class Service>
bool InUse<Service>::anyInUse() {
  return newest<Service> != nullptr;
}

template class InUse<Program>;
template class InUse<Files>;
template class InUse<Desktop>;

void Program::MsgBox(std::string_view text, std::int32_t, std::string_view title) {
  std::fprintf(stderr, "%.*s\n%.*s\n", static_cast<int>(title.size()), title.data(),
               static_cast<int>(text.size()), text.data());
}

void Program::showAbout(std::string_view name, std::string_view version) {
  constexpr std::int32_t informationWithOk = 64;
  const std::string title(name);
  MsgBox(title + " " + std::string(version), informationWithOk, "About " + title);
}

bool Files::holdsFile(const std::string& path) { return disk::holdsAny(path); }

std::unique_ptr<File> Files::openFile(const std::string& path, FileMode mode) {
  return disk::open(path, mode);
}

Picture Files::loadPicture(std::vector<std::byte> file) {
  if (file.empty()) throw Failure::invalidPicture();
  return makeRef<UnreadPicture>(std::move(file));
}

}  // namespace norvane
