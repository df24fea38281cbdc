#pragma once

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// The users whose programs can find the library.
enum class Scope { machine, user };

/// A class that the library registers as Norvane.<name>, with version 1.
struct RegisteredClass {
  CLSID id;
  const wchar_t* name;
  const wchar_t* description;
  bool isControl;
  HRESULT (*create)(REFIID id, void** out);
};

/// Writes everything that containers need to find the classes and the type library. A failure
/// removes what was written.
HRESULT registerLibrary(Scope scope);
/// Removes the registration; missing entries are not a failure. The names are kept if the library
/// is still registered for the other bitness.
HRESULT unregisterLibrary(Scope scope);

}  // namespace norvane
