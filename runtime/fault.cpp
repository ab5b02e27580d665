#include "runtime/fault.hpp"

#include <cmath>

namespace qorvat {

double checked(double x) {
  if (std::isnan(x)) throw RuntimeFault(fault_text::kInvalidCall);
  if (std::isinf(x)) throw RuntimeFault(fault_text::kOverflow);
  return x;
}

double checked_div(double numerator, double denominator) {
  if (denominator == 0.0) {
    // 0/0 has always been reported as an overflow, anything else over 0 as a division by zero.
    throw RuntimeFault(numerator == 0.0 || std::isnan(numerator) ? fault_text::kOverflow
                                                                 : fault_text::kDivisionByZero);
  }
  return checked(numerator / denominator);
}

double checked_sqrt(double x) {
  if (x < 0.0) throw RuntimeFault(fault_text::kInvalidCall);
  return checked(std::sqrt(x));
}

double checked_log(double x) {
  if (x <= 0.0) throw RuntimeFault(fault_text::kInvalidCall);
  return checked(std::log(x));
}

double checked_pow(double base, double exponent) {
  if (base < 0.0 && exponent != std::floor(exponent)) throw RuntimeFault(fault_text::kInvalidCall);
  if (base == 0.0 && exponent < 0.0) throw RuntimeFault(fault_text::kDivisionByZero);
  return checked(std::pow(base, exponent));
}

double checked_exp(double x) { return checked(std::exp(x)); }

void LoopGuard::step() {
  if (++steps_ > limit_) throw RuntimeFault(fault_text::kLoopLimit);
}

}  // namespace qorvat
