#pragma once

#include <memory>

#include <nvlist/platform/Program.h>
#include <nvlist/platform/windows/ole.h>

namespace norvane {

/// The optional external receiver of failures, an object known only by its name.
class ErrorReporter final : public ErrorHandler {
 public:
  static constexpr const wchar_t* programmaticName = L"NorvaneErrorHandler.ErrorHandler";

  /// Returns nullptr if no such object is installed.
  static std::shared_ptr<ErrorHandler> create();

  /// Calls the object's method of that name. Throws Failure 440 if the call fails.
  void RaiseError(std::string_view programPath, const ApplicationFacts& application,
                  std::int32_t Number, std::string_view Description, std::string_view Procedure,
                  std::int32_t Line, std::string_view Kind, std::string_view Module) override;

 private:
  explicit ErrorReporter(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  ComPtr<IDispatch> object_;
};

}  // namespace norvane
