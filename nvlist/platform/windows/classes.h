#pragma once

#include <span>

#include <nvlist/platform/windows/registration.h>

namespace norvane {

/// How a container treats the control.
inline constexpr DWORD controlMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE |
                                           OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                                           OLEMISC_SETCLIENTSITEFIRST;

/// The classes of the library.
std::span<const RegisteredClass> registeredClasses();

/// The type library.
const GUID& libraryId();

}  // namespace norvane
