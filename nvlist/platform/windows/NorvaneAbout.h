#pragma once

#include <string_view>

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// Shows the about box with the name and the version of the library, and returns when the user has
/// closed it. Its link is empty until the library has an address. `owner` may be 0. Returns false
/// if the box cannot be shown: only nvList.ocx contains it.
bool showNorvaneAbout(HWND owner, std::string_view name, std::string_view version);

}  // namespace norvane
