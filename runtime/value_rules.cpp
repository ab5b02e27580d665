#include "runtime/value_rules.hpp"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <system_error>

#include "runtime/fault.hpp"

namespace qorvat {
namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// Length of the number at the start of s (sign, digits, ".", fraction,
// exponent), or 0 when there is no digit in the mantissa.
std::size_t number_prefix_length(std::string_view s) {
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < s.size() && is_digit(s[i])) ++i, ++digits;
  if (i < s.size() && s[i] == '.') {
    ++i;
    while (i < s.size() && is_digit(s[i])) ++i, ++digits;
  }
  if (digits == 0) return 0;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < s.size() && (s[j] == '+' || s[j] == '-')) ++j;
    if (j < s.size() && is_digit(s[j])) {
      while (j < s.size() && is_digit(s[j])) ++j;
      i = j;
    }
  }
  return i;
}

// Rough power of ten of a well-formed unsigned number: enough to tell an
// overflow from an underflow when the conversion is out of range.
long decimal_exponent(std::string_view s) {
  const auto e = s.find_first_of("eE");
  long exponent = 0;
  if (e != std::string_view::npos) {
    std::string_view digits = s.substr(e + 1);
    if (!digits.empty() && digits[0] == '+') digits.remove_prefix(1);
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (parsed.ec == std::errc::result_out_of_range) exponent = digits[0] == '-' ? -100000 : 100000;
    s = s.substr(0, e);
  }
  const auto point = s.find('.');
  const std::string_view whole = s.substr(0, point);
  const auto first = whole.find_first_not_of('0');
  if (first != std::string_view::npos) return exponent + static_cast<long>(whole.size() - first);
  if (point == std::string_view::npos) return exponent;
  const std::string_view fraction = s.substr(point + 1);
  const auto lead = fraction.find_first_not_of('0');
  return exponent - static_cast<long>(lead == std::string_view::npos ? fraction.size() : lead);
}

// Parses a well-formed number as the prefix scanner accepted it.
double parse_number(std::string_view s) {
  bool negative = false;
  if (!s.empty() && (s[0] == '+' || s[0] == '-')) {
    negative = s[0] == '-';
    s.remove_prefix(1);
  }
  double value = 0.0;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  (void)end;
  if (ec == std::errc::result_out_of_range) {
    // Too large is an overflow; too small simply reads as zero.
    if (decimal_exponent(s) > 0) throw RuntimeFault(fault_text::kOverflow);
    value = 0.0;
  }
  return negative ? -value : value;
}

std::string_view trim_blanks(std::string_view s) {
  while (!s.empty() && is_blank(s.front())) s.remove_prefix(1);
  while (!s.empty() && is_blank(s.back())) s.remove_suffix(1);
  return s;
}

constexpr int kMaxDecimals = 15;

__extension__ typedef unsigned __int128 Wide;  // exact products of a mantissa and a power of ten

std::uint64_t power_of_ten(int n) {
  std::uint64_t p = 1;
  for (int i = 0; i < n; ++i) p *= 10;
  return p;
}

// The double nearest to digits * 10^-decimals, rounded once.
double decimal_to_double(Wide digits, int decimals) {
  std::string text;
  do {
    text.insert(text.begin(), static_cast<char>('0' + static_cast<int>(digits % 10)));
    digits /= 10;
  } while (digits != 0);
  text += "e-" + std::to_string(decimals);
  double value = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

}  // namespace

double val(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  const std::size_t n = number_prefix_length(text);
  return n == 0 ? 0.0 : parse_number(text.substr(0, n));
}

double strict_number(std::string_view text) {
  text = trim_blanks(text);
  const std::size_t n = number_prefix_length(text);
  if (n == 0 || n != text.size()) throw RuntimeFault(fault_text::kTypeMismatch);
  return parse_number(text);
}

double round_half_even(double x, int decimals) {
  if (!std::isfinite(x) || x == 0.0) return x == 0.0 ? 0.0 : x;
  if (decimals < 0) decimals = 0;
  if (decimals > kMaxDecimals) decimals = kMaxDecimals;

  // |x| = mantissa * 2^exponent exactly, with a 53-bit integer mantissa.
  int binary_exponent = 0;
  const double fraction = std::frexp(std::fabs(x), &binary_exponent);
  const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 53));
  const int shift = 53 - binary_exponent;  // |x| = mantissa / 2^shift
  if (shift <= 0) return x;                 // already a whole number

  // |x| * 10^d = mantissa * 10^d / 2^shift, held exactly in 128 bits (< 2^103).
  const std::uint64_t scale = power_of_ten(decimals);
  const Wide scaled = static_cast<Wide>(mantissa) * scale;
  Wide quotient = 0;
  if (shift < 128) {
    quotient = scaled >> shift;
    const Wide remainder = scaled - (quotient << shift);
    const Wide half = static_cast<Wide>(1) << (shift - 1);
    if (remainder > half || (remainder == half && (quotient & 1) != 0)) ++quotient;
  }
  if (quotient == 0) return 0.0;
  // Up to 2^53 both operands are exact and the division rounds once. Above it
  // the quotient would round on its own first, landing an ulp off; read the
  // decimal instead.
  const double magnitude = quotient <= (static_cast<Wide>(1) << 53)
                               ? static_cast<double>(quotient) / static_cast<double>(scale)
                               : decimal_to_double(quotient, decimals);
  return x < 0 ? -magnitude : magnitude;
}

std::string number_text(double x) {
  checked(x);
  if (x == 0.0) return "0";  // also negative zero
  char buffer[64];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::general, 15);
  std::string text(buffer, result.ptr);
  for (char& c : text) {
    if (c == 'e') c = 'E';
  }
  return text;
}

double int_floor(double x) { return std::floor(x); }

std::string format_pattern(double x, std::string_view pattern) {
  // A report line never shows an infinity or NaN as a figure.
  checked(x);
  const auto point = pattern.find('.');
  const std::size_t decimals = point == std::string_view::npos ? 0 : pattern.size() - point - 1;

  // The report format works on the value's 15-digit decimal form and rounds
  // a trailing 5 away from zero there, unlike round_half_even.
  char buffer[64];
  const auto sci = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(x), std::chars_format::scientific, 14);
  const std::string_view s(buffer, static_cast<std::size_t>(sci.ptr - buffer));
  const auto e = s.find('e');
  std::string digits;  // the 15 significant digits
  for (char c : s.substr(0, e)) {
    if (is_digit(c)) digits.push_back(c);
  }
  const std::string_view exponent_text = s.substr(e + 1);
  int exponent = 0;
  std::from_chars(exponent_text.data() + (exponent_text.front() == '+' ? 1 : 0),
                  exponent_text.data() + exponent_text.size(), exponent);

  // The digits of |x| * 10^decimals up to the cut, then the digit after the cut decides.
  const long keep = exponent + 1 + static_cast<long>(decimals);
  std::string kept;
  for (long i = 0; i < keep; ++i) {
    kept.push_back(i < static_cast<long>(digits.size()) ? digits[static_cast<std::size_t>(i)] : '0');
  }
  const bool round_up = keep >= 0 && keep < static_cast<long>(digits.size()) &&
                        digits[static_cast<std::size_t>(keep)] >= '5';
  if (round_up) {
    std::size_t i = kept.size();
    while (i > 0 && kept[i - 1] == '9') kept[--i] = '0';
    if (i == 0) {
      kept.insert(kept.begin(), '1');
    } else {
      ++kept[i - 1];
    }
  }
  if (kept.size() <= decimals) kept.insert(kept.begin(), decimals + 1 - kept.size(), '0');

  std::string text;
  if (x < 0 && kept.find_first_not_of('0') != std::string::npos) text.push_back('-');
  text.append(kept, 0, kept.size() - decimals);
  if (decimals > 0) {
    text.push_back('.');
    text.append(kept, kept.size() - decimals, decimals);
  }
  return text;
}

}  // namespace qorvat
