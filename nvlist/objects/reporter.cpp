#include <nvlist/objects/reporter.h>

#include <memory>
#include <utility>

#include <nvlist/platform/Application.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr std::int32_t criticalStopWithOk = 16;

template <class Statement>
bool ignoringFailures(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (...) {
    return false;
  }
}

std::string messageOf(const Report& failure, const ApplicationFacts& program) {
  const std::string newLine = "\r\n";
  return "Error no.: " + std::to_string(failure.Number) + newLine +
         "Error description: " + failure.Description + newLine +  //
         "Project: " + program.EXEName + newLine +                //
         "Module: " + failure.Kind + " " + failure.Module + newLine +
         "Line/Procedure: " + std::to_string(failure.Line) + "/" + failure.Procedure + newLine +
         "Version: " + std::to_string(program.Major) + "." + std::to_string(program.Minor) + "." +
         std::to_string(program.Revision);
}

/// The setting that names the folder of the log; a text counts up to its first zero character.
std::string logSetting(Application& application) {
  const Variant value = application.readSetting("Software\\Norvane", "ErrorLog");
  std::string text = value.toText();
  return text.substr(0, text.find('\0'));
}

void writeLog(Application& application, std::string folder, const std::string& message) {
  if (folder == "*app*") folder = application.facts().Path;
  if (!folder.ends_with('\\')) folder += '\\';
  ignoringFailures([&] {
    application.appendToFile(folder + "NorvaneError.txt",
                             application.dateText() + " " + application.timeText() + "\r\n" +
                                 message + "\r\n" + std::string(30, '-') + "\r\n");
  });
}

}  // namespace

void report(const Report& failure) {
  Application& application = Application::inUse();
  std::shared_ptr<ErrorHandler> handler;
  ignoringFailures([&] { handler = application.createErrorHandler(); });

  const ApplicationFacts facts = application.facts();
  const std::string message = messageOf(failure, facts);
  const std::string folder = logSetting(application);
  if (!trimmedBlanks(folder).empty()) writeLog(application, folder, message);

  if (handler && ignoringFailures([&] {
        handler->RaiseError(application.programPath(), facts, failure.Number, failure.Description,
                            failure.Procedure, failure.Line, failure.Kind, failure.Module);
      }))
    return;
  application.MsgBox(message, criticalStopWithOk, "Error");
}

}  // namespace norvane
