#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include <nvlist/platform/headless/HeadlessApplication.h>

namespace tool {

/// The exit statuses of the command.
enum Status {
  done = 0,
  differs = 1,     ///< the files differ, or something is damaged or could not be kept
  wrongUse = 2,    ///< wrong arguments
  cannotRead = 3,  ///< a file cannot be read
  cannotWrite = 4  ///< a file cannot be written
};

/// Ends the command with a message.
class Trouble : public std::runtime_error {
 public:
  Trouble(Status status, const std::string& message)
      : std::runtime_error(message), status_(status) {}
  Status status() const { return status_; }

 private:
  Status status_;
};

/// The running command. It keeps the description of the first failure that lists report, and shows
/// the progress of long operations on a terminal.
class Session : public norvane::HeadlessApplication {
 public:
  Session();
  ~Session() override;

  /// Shows how much of an operation is done, in percent. Throws Trouble if the user has interrupted
  /// the command; the operation then removes what it has written.
  void progress(const char* doing, std::uint64_t part, std::uint64_t whole);
  /// Removes the progress from the terminal.
  void endProgress();

  /// Prints a remark on the error output.
  void remark(const std::string& text);

  void MsgBox(std::string_view text, std::int32_t style, std::string_view title) override;
  /// Number of reports since the last call.
  std::uint64_t takeReports();
  const std::string& firstReport() const { return firstReport_; }

 private:
  const bool isTerminal_;
  int shown_ = -1;  ///< percent
  std::uint64_t reports_ = 0;
  std::string firstReport_;
};

}  // namespace tool
