#include <nvlist/objects/about.h>

#include <nvlist/platform/Application.h>

namespace norvane {

void showAboutBox() {
  constexpr std::int32_t informationWithOk = 64;
  Application::inUse().MsgBox("nvList " NVLIST_VERSION, informationWithOk, "About nvList");
}

}  // namespace norvane
