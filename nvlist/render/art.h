#pragma once

#include <nvlist/values/Picture.h>

/// Built-in pictures of the list, each drawn once and shared by all lists.
namespace norvane::art {

/// A check box of 13 by 13 pixels.
Picture checkBox(bool isChecked, bool isEnabled);

/// The icon of 32 by 32 pixels shown in a designer in place of the items' icons.
Picture sampleIcon();

}  // namespace norvane::art
