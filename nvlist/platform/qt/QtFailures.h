#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include <nvlist/platform/Program.h>

namespace norvane {

/// Where reports of failures go in a program that has registered no ErrorHandler of its own
/// (Program::registerErrorHandler). It applies to all lists, since a report does not say which
/// control it is from. SilentError is independent of it: under SilentError nothing is reported.
///
///     QtFailures::setMode(QtFailures::Mode::Log);
class QtFailures : public QObject {
  Q_OBJECT

 public:
  /// Where reports go.
  enum class Mode {
    Box,     ///< a message box; the default
    Log,     ///< a warning of the logging category "nvlist"
    Signal,  ///< the signal `reported`; as Log while nobody is connected
    Silent   ///< nowhere
  };
  Q_ENUM(Mode)

  /// Takes effect at once. Default: Mode::Box.
  static void setMode(Mode mode);
  static Mode mode();

  /// The sender of `reported`. Belongs to the thread that asks first.
  static QtFailures& instance();
  /// The receiver of reports in the current mode; nullptr in the mode Box.
  static std::shared_ptr<ErrorHandler> handler();

 signals:
  /// A procedure of the library has failed with this number and description. `where` names the
  /// module, the procedure and the line. Emitted in the middle of the call; while a window is being
  /// painted, it is emitted after that.
  void reported(int number, const QString& description, const QString& where);

 private:
  friend class QtFailureHandler;
  QtFailures() = default;
};

}  // namespace norvane
