#pragma once

namespace norvane {

/// Shows a modal box with the name and the version of the library.
void showAboutBox();

}  // namespace norvane
