#pragma once
// How numbers go into and come out of dialog fields. Every routine reads its
// fields with val() and writes results with number_text(round_half_even(...)),
// so these few functions decide every figure the user sees.

#include <string>
#include <string_view>

#include "runtime/constants.hpp"

namespace qorvat {

// Reads the leading number of a text: blanks are skipped, then an optional
// sign, digits, an optional "." and fraction, an optional exponent; reading
// stops at the first other character. No number at all reads 0.
// A number too large for a double is an overflow fault.
double val(std::string_view text);

// Strict conversion for list entries and marker fields: the whole text,
// blanks around it aside, must be a number; otherwise a "Type mismatch" fault.
double strict_number(std::string_view text);

// Rounds to `decimals` places (0..15), ties to the even digit, deciding the
// tie on the exact binary value of x (0.125 -> 0.12, 2.675 -> 2.67).
double round_half_even(double x, int decimals);

// The default text of a number: up to 15 significant digits, no trailing
// zeros, "." as decimal sign, no thousands separator, exponent form "1E+16"
// and "1E-05" outside the plain range. Negative zero prints as "0".
// A NaN or an infinity never becomes text: it is a run-time fault.
std::string number_text(double x);

// Shorthand for the most common write: rounded, then its default text.
inline std::string rounded_text(double x, int decimals) {
  return number_text(round_half_even(x, decimals));
}

// Integer part taken downward, also for negative values (-2.5 -> -3).
double int_floor(double x);

// Report pattern of the form "0", "0.00", "0.00000000": printed with exactly
// that many decimals. Unlike the field rounding, the report format rounds a
// 5 away from zero on the value's 15-digit decimal form (0.125 -> "0.13").
std::string format_pattern(double x, std::string_view pattern);

}  // namespace qorvat
