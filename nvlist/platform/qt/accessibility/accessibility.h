#pragma once

namespace norvane {

/// From now on, Qt describes lists to screen readers: as lists of their rows, with the scroll bars
/// that are shown and the open edit box after them. A list costs nothing until something asks for
/// it, and then only the rows asked for. A second call does nothing.
void makeListsAccessible();

}  // namespace norvane
