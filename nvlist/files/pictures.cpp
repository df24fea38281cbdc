#include <nvlist/nvList.h>
#include <nvlist/platform/Files.h>
#include <nvlist/values/numbers.h>

namespace norvane {

// Platforms convert between pictures and the bytes of their files, so no temporary file is needed.

std::string nvList::GetPictureString(const Picture& picture, std::int32_t& length) {
  std::string result;
  trapped(here, "GetPictureString", [&](Trap& on) {
    on.step([&] {
      // fileBytes() may run code of the host that drops the picture.
      const Picture held = picture;  // NOLINT(performance-unnecessary-copy-initialization)
      const std::vector<std::byte> file = held->fileBytes();
      if (file.empty()) throw Failure::invalidPicture();
      std::string bytes(reinterpret_cast<const char*>(file.data()), file.size());
      length = checked::narrow<std::int32_t>(static_cast<std::int64_t>(file.size()));
      result.swap(bytes);
    });
  });
  return result;
}

Picture nvList::GetStringPicture(std::string_view file) {
  Picture result;
  trapped(here, "GetStringPicture", [&](Trap& on) {
    on.step([&] {
      const auto* first = reinterpret_cast<const std::byte*>(file.data());
      result = Files::inUse().loadPicture({first, first + file.size()});
    });
  });
  return result;
}

}  // namespace norvane
