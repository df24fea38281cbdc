#include "Session.h"

#include <csignal>
#include <cstdio>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace tool {
namespace {

volatile std::sig_atomic_t isInterrupted = 0;

extern "C" void interrupt(int) { isInterrupted = 1; }

bool isErrorOutputATerminal() {
#ifdef _WIN32
  return _isatty(2) != 0;
#else
  return isatty(2) != 0;
#endif
}

}  // namespace

Session::Session() : isTerminal_(isErrorOutputATerminal()) {
  std::signal(SIGINT, interrupt);
  std::signal(SIGTERM, interrupt);
}

Session::~Session() { endProgress(); }

void Session::progress(const char* doing, std::uint64_t part, std::uint64_t whole) {
  if (isInterrupted) throw Trouble(cannotWrite, "interrupted");
  if (!isTerminal_ || whole == 0) return;
  const int percent = static_cast<int>(part * 100 / whole);
  if (std::exchange(shown_, percent) == percent) return;
  std::fprintf(stderr, "\r%s %d %%", doing, percent);
}

void Session::endProgress() {
  if (std::exchange(shown_, -1) >= 0) std::fputs("\r\033[K", stderr);
}

void Session::remark(const std::string& text) {
  endProgress();
  std::fprintf(stderr, "nvlist-tool: %s\n", text.c_str());
}

void Session::MsgBox(std::string_view text, std::int32_t, std::string_view) {
  if (reports_++ > 0) return;
  constexpr std::string_view label = "Error description: ";
  text.remove_prefix(std::min(text.find(label), text.size()));
  text.remove_prefix(std::min(label.size(), text.size()));
  firstReport_ = text.substr(0, text.find('\r'));
}

std::uint64_t Session::takeReports() { return std::exchange(reports_, 0); }

}  // namespace tool
