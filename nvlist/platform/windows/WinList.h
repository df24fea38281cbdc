#pragma once

#include <nvlist/nvList.h>
#include <nvlist/platform/windows/WinWindow.h>

namespace norvane {

/// A list in a window of a C++ program, without COM: created as a child of the program's window and
/// filled through list().
///
///     WinList names(form, {10, 10, 210, 110});
///     names.list().ItemsAdd("Ada");
///
/// It is used only on the thread that created it, which must have called OleInitialize or
/// CoInitialize if pictures are used. A handler of one of its events must not destroy it.
class WinList : private WinHost {
 public:
  WinList(HWND parent, const RECT& position) : window_(*this), list_(window_) {
    list_.UserControl_InitProperties();
    window_.place(parent, position);
  }

  nvList& list() { return list_; }
  HWND window() const { return window_.handle(); }
  void move(const RECT& position) { window_.reposition(position); }

 private:
  void resolutionChanged() override { list_.Font(list_.Font()); }

  WinWindow window_;
  nvList list_;
};

}  // namespace norvane
