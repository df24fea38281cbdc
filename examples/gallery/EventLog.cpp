#include "EventLog.h"

#include <QStringList>
#include <QTextBlock>

#include <nvlist/platform/qt/QtApplication.h>

namespace gallery {
namespace {

constexpr int mostLines = 5000;
constexpr int progressInterval = 40;  // milliseconds
constexpr auto mouseMove = "MouseMove";

QString shown(const norvane::Variant& value) {
  if (value.type() == norvane::Variant::Type::Object) return value.object() ? "object" : "none";
  const QString text = QString::fromStdString(value.toText());
  return value.isText() ? '"' + text + '"' : text;
}

}  // namespace

/// Logs failures instead of interrupting the user with message boxes.
class EventLog::Failures final : public norvane::ErrorHandler {
 public:
  explicit Failures(EventLog& log) : log_(log) {}

  void RaiseError(std::string_view, const norvane::ApplicationFacts&, std::int32_t Number,
                  std::string_view Description, std::string_view Procedure, std::int32_t Line,
                  std::string_view, std::string_view Module) override {
    log_.write(QString("Failure %1 in %2.%3, line %4: %5")
                   .arg(Number)
                   .arg(QString::fromUtf8(Module), QString::fromUtf8(Procedure))
                   .arg(Line)
                   .arg(QString::fromUtf8(Description)));
  }

 private:
  EventLog& log_;
};

EventLog::EventLog() : failures_(std::make_shared<Failures>(*this)) {
  setReadOnly(true);
  setMaximumBlockCount(mostLines);
  setPlaceholderText("Events and changes in the sheets appear here.");
  connect(&showingProgress_, &QTimer::timeout, this, [this] { showProgress(); });
  norvane::QtApplication::ensure();
  norvane::Program::inUse().registerErrorHandler(failures_);
}

EventLog::~EventLog() { norvane::Program::inUse().registerErrorHandler(nullptr); }

void EventLog::progress(const char* name, const norvane::Variant& index) {
  if (progress_ && progress_ != name) showProgress();
  progress_ = name;
  reached_ = index;
  if (!showingProgress_.isActive()) showingProgress_.start(progressInterval);
}

void EventLog::showProgress() {
  const char* name = std::exchange(progress_, nullptr);
  if (!name) return;
  showingProgress_.stop();
  if (lastLine_.startsWith(name)) removeLastLine();
  logEvent(name, {{"Index", reached_}});
}

void EventLog::write(const QString& line) {
  showProgress();
  const bool isRepeated = line == lastLine_ && !document()->isEmpty();
  times_ = isRepeated ? times_ + 1 : 1;
  if (isRepeated) removeLastLine();
  lastLine_ = line;
  appendPlainText(isRepeated ? QString("%1   (%2 times)").arg(line).arg(times_) : line);
}

void EventLog::removeLastLine() {
  QTextCursor cursor(document()->lastBlock());
  cursor.select(QTextCursor::BlockUnderCursor);
  cursor.removeSelectedText();
  lastLine_.clear();
}

void EventLog::MouseMove(norvane::Variant& TextUnderMouse, std::int32_t& IndexUnderMouse,
                         std::int16_t& Button, std::int16_t& Shift, float& X, float& Y) {
  if (lastLine_.startsWith(mouseMove)) removeLastLine();
  logEvent(mouseMove, {{"TextUnderMouse", TextUnderMouse},
                       {"IndexUnderMouse", IndexUnderMouse},
                       {"Button", Button},
                       {"Shift", Shift},
                       {"X", X},
                       {"Y", Y}});
}

void EventLog::OLEDragDrop(DataObject& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y) {
  logEvent("OLEDragDrop", {{"Data", Data},
                           {"Effect", Effect},
                           {"Button", Button},
                           {"Shift", Shift},
                           {"X", X},
                           {"Y", Y}});
}

void EventLog::OLEDragOver(DataObject& Data, std::int32_t& Effect, std::int16_t& Button,
                           std::int16_t& Shift, float& X, float& Y, std::int16_t& State) {
  logEvent("OLEDragOver", {{"Data", Data},
                           {"Effect", Effect},
                           {"Button", Button},
                           {"Shift", Shift},
                           {"X", X},
                           {"Y", Y},
                           {"State", State}});
}

void EventLog::logEvent(const char* name, std::initializer_list<Argument> arguments) {
  QStringList texts;
  for (const Argument& argument : arguments)
    texts << QString("%1 = %2").arg(argument.name, shown(argument.value));
  write(texts.isEmpty() ? QString(name) : QString("%1   %2").arg(name, texts.join(", ")));
}

}  // namespace gallery
