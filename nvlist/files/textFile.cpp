#include <nvlist/files/textFile.h>
#include <nvlist/platform/Application.h>

namespace norvane {

std::string textOfFile(const std::string& path) {
  const auto file = Application::inUse().openFile(path, FileMode::read);
  std::string text(static_cast<std::size_t>(file->size()), '\0');
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t got = file->read(text.data() + end, text.size() - end);
    if (got == 0) break;
    end += got;
  }
  text.resize(end);
  file->close();
  return text;
}

}  // namespace norvane
