#pragma once

#include <cstdio>

/// Counts checks. A client prints each one that fails and ends with a line of both counts, which
/// tests/windows/run-clients requires.
struct Checks {
  int passed = 0, failed = 0;

  void operator()(bool isRight, const char* what) {
    isRight ? ++passed : ++failed;
    if (!isRight) std::printf("FAIL %s\n", what);
    std::fflush(stdout);
  }
  int finish() const {
    std::printf("passed: %d, failures: %d\n", passed, failed);
    return failed != 0;
  }
};

inline Checks check;
