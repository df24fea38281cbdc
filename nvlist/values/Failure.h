#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace norvane {

/// A failure with the number and text that the reporter shows.
///
/// The library throws every failure as one of these; the trap of the procedure in which it happens
/// catches it (objects/Trap.h). Hosts and platforms may throw one too.
class Failure : public std::runtime_error {
 public:
  /// Any number and text.
  Failure(std::int32_t number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  /// The number that the reporter shows.
  std::int32_t number() const { return number_; }

  /// The failures that the library itself throws.
  static Failure invalidCall() { return {5, "Invalid procedure call or argument"}; }
  static Failure overflow() { return {6, "Overflow"}; }
  static Failure outOfMemory() { return {7, "Out of memory"}; }
  static Failure subscriptOutOfRange() { return {9, "Subscript out of range"}; }
  static Failure divisionByZero() { return {11, "Division by zero"}; }
  static Failure typeMismatch() { return {13, "Type mismatch"}; }
  static Failure pastEndOfFile() { return {62, "Input past end of file"}; }
  static Failure objectNotSet() { return {91, "Object variable or With block variable not set"}; }
  static Failure invalidPattern() { return {93, "Invalid pattern string"}; }
  static Failure invalidNull() { return {94, "Invalid use of Null"}; }
  static Failure invalidFormat() { return {321, "Invalid file format"}; }
  static Failure objectRequired() { return {424, "Object required"}; }
  static Failure noSuchMember() { return {438, "Object doesn't support this property or method"}; }
  static Failure automation(const std::string& what) { return {440, "Automation error: " + what}; }
  static Failure invalidPicture() { return {481, "Invalid picture"}; }
  /// A message asks for an element that the control array does not have.
  static Failure noControlArrayElement(std::int32_t index) {
    return {340, "Control array element '" + std::to_string(index) + "' doesn't exist"};
  }

 private:
  std::int32_t number_;
};

/// Runs a statement whose failure has nowhere to go: in a destructor, a timer or the reporter.
/// Returns whether it succeeded.
template <class Statement>
bool ignoringFailures(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (...) {
    return false;
  }
}

}  // namespace norvane
