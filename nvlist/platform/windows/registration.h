#pragma once

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// Whose programs find the library.
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
/// Removes it; what is not there is no failure. The names stay if the library is still registered
/// in the other bitness.
HRESULT unregisterLibrary(Scope scope);

}  // namespace norvane
