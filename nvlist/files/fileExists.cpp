#include <nvlist/files/fileExists.h>

#include <nvlist/objects/Trap.h>
#include <nvlist/platform/Files.h>

namespace norvane {

Boolean FileExists(const std::string& path) {
  Boolean result;
  trapped(basList, "FileExists",
          [&](Trap& on) { on.step([&] { result = Files::inUse().holdsFile(path); }); });
  return result;
}

}  // namespace norvane
