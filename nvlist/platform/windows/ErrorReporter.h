#pragma once

#include <memory>

#include <nvlist/platform/Program.h>
#include <nvlist/platform/windows/LateBound.h>

namespace norvane {

/// The optional external receiver of failures, an object known only by its name.
class ErrorReporter final : public ErrorHandler {
 public:
  static constexpr const wchar_t* programmaticName = L"NorvaneErrorHandler.ErrorHandler";

  /// Returns nullptr if no such object is installed.
  static std::shared_ptr<ErrorHandler> create();

  /// Calls the object's method of that name. Throws the failure of the call.
  void RaiseError(std::string_view programPath, const ApplicationFacts& application,
                  std::int32_t Number, std::string_view Description, std::string_view Procedure,
                  std::int32_t Line, std::string_view Kind, std::string_view Module) override;

 private:
  explicit ErrorReporter(IDispatch* handler) : handler_(handler) {}

  LateBound handler_;
};

}  // namespace norvane
