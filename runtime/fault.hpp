#pragma once
// Run-time faults. A fault ends the routine where it happens (and every
// routine that caused it); the session reports it once and the program goes on.

#include <cstddef>
#include <stdexcept>
#include <string>

namespace qorvat {

namespace fault_text {
inline constexpr const char* kDivisionByZero = "Division by zero";
inline constexpr const char* kOverflow = "Overflow";
inline constexpr const char* kInvalidCall = "Invalid procedure call or argument";
inline constexpr const char* kTypeMismatch = "Type mismatch";
inline constexpr const char* kOutOfStack = "Out of stack space";
inline constexpr const char* kLoopLimit = "Loop stopped: no result after too many steps";
}  // namespace fault_text

class RuntimeFault : public std::runtime_error {
 public:
  explicit RuntimeFault(const std::string& what) : std::runtime_error(what) {}

  // Where it happened: filled in by the innermost routine it leaves.
  std::string form;
  std::string routine;
};

// Checked arithmetic for the places where the input tests let a bad value
// through. Each either returns a finite value or throws a RuntimeFault.
double checked_div(double numerator, double denominator);
double checked_sqrt(double x);
double checked_log(double x);
double checked_pow(double base, double exponent);
double checked_exp(double x);
// A value about to be used further: NaN is an invalid operation, infinity an overflow.
double checked(double x);

// Bounds a loop. step() throws a RuntimeFault once the loop has run more
// than `limit` times, so a search that would not end stops with a message.
class LoopGuard {
 public:
  explicit LoopGuard(std::size_t limit = 1'000'000) : limit_(limit) {}
  void step();
  std::size_t steps() const { return steps_; }

 private:
  std::size_t limit_;
  std::size_t steps_ = 0;
};

}  // namespace qorvat
