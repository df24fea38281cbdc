#pragma once

#include <nvlist/values/Picture.h>

/// The pictures the list brings along, each drawn once and shared by all lists of the program.
namespace norvane::art {

/// A check box of 13 by 13 pixels.
Picture checkBox(bool isChecked, bool isEnabled);

/// The 32 by 32 icon that stands for the host's icons in a designer.
Picture sampleIcon();

}  // namespace norvane::art
