#include <nvlist/objects/about.h>

#include <nvlist/platform/Program.h>

namespace norvane {

void showAboutBox() { Program::inUse().showAbout("nvList", NVLIST_VERSION); }

}  // namespace norvane
