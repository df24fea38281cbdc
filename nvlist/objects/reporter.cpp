#include <nvlist/objects/reporter.h>

#include <array>
#include <memory>
#include <new>
#include <string>

#include <nvlist/platform/Program.h>
#include <nvlist/values/Failure.h>
#include <nvlist/values/text.h>

namespace norvane {
namespace {

constexpr std::int32_t criticalStopWithOk = 16;

/// Runs a part of the report that is left out when memory is exhausted. Any other failure is thrown
/// to the caller of the report.
template <class Statement>
bool ifMemoryLasts(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

/// A text of limited size, which never allocates. The rest of a longer text is cut off.
class FixedText {
 public:
  void append(std::string_view text) {
    size_ += text.copy(bytes_.data() + size_, bytes_.size() - size_);
  }
  std::string_view view() const { return {bytes_.data(), size_}; }

 private:
  std::array<char, 1000> bytes_;
  std::size_t size_ = 0;
};

template <class Text>
void writeMessage(Text& message, const Report& failure, const ApplicationFacts& program) {
  // std::to_string does not allocate for numbers of 32 bits.
  const auto write = [&](std::string_view label, std::string_view value) {
    message.append(label);
    message.append(value);
  };
  write("Error no.: ", std::to_string(failure.Number));
  write("\r\nError description: ", failure.Description);
  write("\r\nProject: ", program.EXEName);
  write("\r\nModule: ", failure.Kind);
  write(" ", failure.Module);
  write("\r\nLine/Procedure: ", std::to_string(failure.Line));
  write("/", failure.Procedure);
  write("\r\nVersion: ", std::to_string(program.Major));
  write(".", std::to_string(program.Minor));
  write(".", std::to_string(program.Revision));
}

/// The message in a fixed size. Cuts the description, so that the lines after it are complete.
void writeShortMessage(FixedText& message, Report failure, const ApplicationFacts& program) {
  constexpr std::size_t longestDescription = 200;
  failure.Description = failure.Description.substr(0, longestDescription);
  writeMessage(message, failure, program);
}

/// The setting that names the folder of the log, up to its first zero character.
std::string logSetting(Program& program) {
  const Variant value = program.readSetting("Software\\Norvane", "ErrorLog");
  std::string text = value.toText();
  return text.substr(0, text.find('\0'));
}

void writeLog(Program& program, std::string folder, std::string_view message) {
  if (folder == "*app*") folder = program.facts().Path;
  if (!folder.ends_with('\\')) folder += '\\';
  ignoringFailures([&] {
    std::string record = program.dateText() + " " + program.timeText() + "\r\n";
    record.append(message).append("\r\n").append(30, '-').append("\r\n");
    program.appendToFile(folder + "NorvaneError.txt", record);
  });
}

}  // namespace

void report(const Report& failure) {
  Program& program = Program::inUse();
  std::shared_ptr<ErrorHandler> handler;
  ignoringFailures([&] { handler = program.createErrorHandler(); });

  ApplicationFacts facts;
  ifMemoryLasts([&] { facts = program.facts(); });
  std::string whole;
  FixedText cut;
  const bool isWhole = ifMemoryLasts([&] { writeMessage(whole, failure, facts); });
  if (!isWhole) writeShortMessage(cut, failure, facts);
  const std::string_view message = isWhole ? whole : cut.view();

  ifMemoryLasts([&] {
    const std::string folder = logSetting(program);
    if (!trimmed(folder, " ").empty()) writeLog(program, folder, message);
  });

  const bool isTakenOver =
      handler && ignoringFailures([&] {
        handler->RaiseError(program.programPath(), facts, failure.Number, failure.Description,
                            failure.Procedure, failure.Line, failure.Kind, failure.Module);
      });
  if (isTakenOver) return;
  ifMemoryLasts([&] { program.MsgBox(message, criticalStopWithOk, "Error"); });
}

}  // namespace norvane
