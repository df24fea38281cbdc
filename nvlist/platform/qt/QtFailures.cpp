#include <nvlist/platform/qt/QtFailures.h>

#include <QLoggingCategory>
#include <QMetaMethod>
#include <atomic>

#include <nvlist/platform/qt/place/QtPlace.h>

namespace norvane {
namespace {

Q_LOGGING_CATEGORY(category, "nvlist")

/// Threads with lists of their own report, too.
std::atomic<QtFailures::Mode> currentMode = QtFailures::Mode::Box;

}  // namespace

class QtFailureHandler final : public ErrorHandler {
 public:
  void RaiseError(std::string_view, const ApplicationFacts&, std::int32_t Number,
                  std::string_view Description, std::string_view Procedure, std::int32_t Line,
                  std::string_view, std::string_view Module) override {
    if (currentMode == QtFailures::Mode::Silent) return;
    const QString description = QString::fromUtf8(Description);
    const QString where = QString("%1.%2, line %3")
                              .arg(QString::fromUtf8(Module), QString::fromUtf8(Procedure))
                              .arg(Line);
    QtFailures& sender = QtFailures::instance();
    const bool isSignal = currentMode == QtFailures::Mode::Signal &&
                          sender.isSignalConnected(QMetaMethod::fromSignal(&QtFailures::reported));
    if (!isSignal) {
      qCWarning(category).noquote().nospace()
          << Number << ": " << description << " (" << where << ")";
      return;
    }
    const auto emission = [&sender, Number, description, where] {
      emit sender.reported(Number, description, where);
    };
    if (QtPlace::anyPaints())
      QMetaObject::invokeMethod(&sender, emission, Qt::QueuedConnection);
    else
      emission();
  }
};

void QtFailures::setMode(Mode mode) { currentMode = mode; }

QtFailures::Mode QtFailures::mode() { return currentMode; }

QtFailures& QtFailures::instance() {
  static QtFailures sender;
  return sender;
}

std::shared_ptr<ErrorHandler> QtFailures::handler() {
  static const auto handler = std::make_shared<QtFailureHandler>();
  return currentMode == Mode::Box ? nullptr : handler;
}

}  // namespace norvane
