#include <nvlist/platform/windows/failures.h>

#include <new>

#include <nvlist/values/Failure.h>

namespace norvane {
namespace {

void setErrorInfo(const Failure& failure) {
  ComPtr<ICreateErrorInfo> making;
  if (FAILED(CreateErrorInfo(making.put()))) return;
  std::wstring description = wide(failure.what());
  std::wstring source = L"nvList";
  making->SetDescription(description.data());
  making->SetSource(source.data());
  SetErrorInfo(0, asked<IErrorInfo>(making.get()).get());
}

}  // namespace

HRESULT caughtFailure() noexcept {
  try {
    try {
      throw;
    } catch (const Failure& failure) {
      setErrorInfo(failure);
      return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, failure.number());
    }
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace norvane
