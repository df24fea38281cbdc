#pragma once

#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// The HRESULT for the exception being handled. A Failure gives its number, as in 0x800A0000 + 13,
/// and an error info with its text.
HRESULT caughtFailure() noexcept;

/// Runs the body of a COM method; no exception leaves it.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return caughtFailure();
  }
}

}  // namespace norvane
