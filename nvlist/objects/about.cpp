#include <nvlist/objects/about.h>

#include <nvlist/platform/Program.h>

namespace norvane {

void showAboutBox() {
  constexpr std::int32_t informationWithOk = 64;
  Program::inUse().MsgBox("nvList " NVLIST_VERSION, informationWithOk, "About nvList");
}

}  // namespace norvane
