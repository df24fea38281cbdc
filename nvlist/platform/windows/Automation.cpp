#include <nvlist/platform/windows/Automation.h>

#include <algorithm>
#include <new>
#include <vector>

namespace norvane {
namespace {

bool isVariable(const VARIANT& argument) { return argument.vt == (VT_BYREF | VT_VARIANT); }

}  // namespace

HRESULT invokeMember(ITypeInfo& info, void* object, DISPID id, WORD flags, DISPPARAMS& given,
                     VARIANT* result, EXCEPINFO* exception, UINT* wrong) noexcept {
  SetErrorInfo(0, nullptr);
  const auto call = [&](DISPPARAMS& arguments) {
    return info.Invoke(object, id, flags, &arguments, result, exception, wrong);
  };
  HRESULT answer = call(given);
  VARIANT* const end = given.rgvarg + given.cArgs;
  if (answer == DISP_E_TYPEMISMATCH && std::any_of(given.rgvarg, end, isVariable)) {
    // The system converts no variable of a script to an argument that is a number or text by
    // reference. No member rewrites such an argument, so that the value serves as well.
    const HRESULT retried = guarded([&] {
      std::vector<VARIANT> values(given.rgvarg, end);
      for (VARIANT& value : values) {  // copies, as the system writes such arguments back
        if (!isVariable(value)) continue;
        VARIANT copy;
        VariantInit(&copy);
        if (FAILED(VariantCopyInd(&copy, &value))) throw std::bad_alloc();
        value = copy;
      }
      DISPPARAMS arguments = given;
      arguments.rgvarg = values.data();
      answer = call(arguments);
      for (UINT i = 0; i < given.cArgs; ++i)
        if (isVariable(given.rgvarg[i])) VariantClear(&values[i]);
    });
    if (FAILED(retried)) return retried;
  }
  // A colour: scripts know no unsigned numbers.
  if (SUCCEEDED(answer) && result && result->vt == VT_UI4) result->vt = VT_I4;
  return answer;
}

}  // namespace norvane
