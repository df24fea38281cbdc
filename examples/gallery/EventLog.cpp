#include "EventLog.h"

#include <QStringList>

#include <nvlist/platform/Application.h>
#include <nvlist/platform/qt/QtApplication.h>

namespace gallery {
namespace {

constexpr int mostLines = 5000;

}  // namespace

/// Takes the failures over, so that no box interrupts who tries things out.
class EventLog::Failures final : public norvane::ErrorHandler {
 public:
  explicit Failures(EventLog& log) : log_(log) {}

  void RaiseError(const std::string&, const norvane::ApplicationFacts&, std::int32_t Number,
                  const std::string& Description, const std::string& Procedure, std::int32_t Line,
                  const std::string&, const std::string& Module) override {
    log_.write(QString("Failure %1 in %2.%3, line %4: %5")
                   .arg(Number)
                   .arg(QString::fromStdString(Module), QString::fromStdString(Procedure))
                   .arg(Line)
                   .arg(QString::fromStdString(Description)));
  }

 private:
  EventLog& log_;
};

EventLog::EventLog() : failures_(std::make_shared<Failures>(*this)) {
  setReadOnly(true);
  setLineWrapMode(NoWrap);
  setMaximumBlockCount(mostLines);
  setPlaceholderText("Events appear here, and what is set in the sheets.");
  norvane::QtApplication::ensure();
  norvane::Application::inUse().registerErrorHandler(failures_);
}

EventLog::~EventLog() { norvane::Application::inUse().registerErrorHandler(nullptr); }

void EventLog::write(const QString& line) { appendPlainText(line); }

void EventLog::event(const char* name, std::initializer_list<Argument> arguments) {
  QStringList shown;
  for (const Argument& argument : arguments)
    shown << QString("%1 = %2").arg(argument.name, QString::fromStdString(argument.value.toText()));
  write(shown.isEmpty() ? QString(name) : QString("%1   %2").arg(name, shown.join(", ")));
}

}  // namespace gallery
