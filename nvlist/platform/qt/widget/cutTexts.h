#pragma once

#include <QHelpEvent>

#include <nvlist/platform/qt/NvListWidget.h>

namespace norvane {

/// Shows the whole text of the row under the mouse as a tool tip, if the row shows only a part of
/// it. Returns false if there is nothing to show.
bool showCutText(NvListWidget& widget, const QHelpEvent& event);

}  // namespace norvane
