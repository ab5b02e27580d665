// How texts become numbers and numbers become texts. Every figure a dialog
// shows passes through these, so each case below is one a user would see.

#include "runtime/value_rules.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using testing::fault_of;

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Persian digits are no digits to val.
TEST(Val, ReadsTheLeadingNumberAndStopsAtTheFirstOtherCharacter) {
  const struct {
    const char* text;
    double expected;
  } cases[] = {{"", 0},       {"12abc", 12},  {"1,5", 1},      {"2,4", 2},          {" -2.5e2x", -250},
               {".5", 0.5},   {"5.", 5},      {"-", 0},        {"e5", 0},           {"2e", 2},
               {"2e+", 2},    {"2E3", 2000},  {"2e-3", 0.002}, {"+3", 3},           {"-.5", -0.5},
               {".", 0},      {"--1", 0},     {"+-1", 0},      {"1.2.3", 1.2},      {"1e2.5", 100},
               {"1 2", 1},    {"\t 7", 7},    {"0x1A", 0},     {"inf", 0},          {"nan", 0},
               {"1e-400", 0}, {"-1e-400", 0}, {"abc12", 0},    {"\u06F1\u06F2", 0}, {"1e-99999999999999999999", 0}};
  for (const auto& c : cases) EXPECT_EQ(val(c.text), c.expected) << '"' << c.text << '"';
  EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0.0);
}

TEST(Val, ANumberTooLargeForADoubleIsAnOverflow) {
  const std::string four_hundred_nines(400, '9');
  for (const std::string text :
       {"1e400", "-1e400", " 2E+309abc", "1e99999999999999999999", four_hundred_nines.c_str()}) {
    EXPECT_EQ(fault_of([&] { val(text); }), fault_text::kOverflow) << text;
  }
}

TEST(StrictNumber, AcceptsOnlyAWholeNumber) {
  EXPECT_EQ(strict_number(" 12 "), 12);
  EXPECT_EQ(strict_number("\t-2.5e2"), -250);
  for (const char* text : {"", "  ", "12abc", "1,5", "2e", "abc", ".", "-", "1 2", "0x10"}) {
    EXPECT_EQ(fault_of([&] { strict_number(text); }), fault_text::kTypeMismatch) << '"' << text << '"';
  }
}

// 0.125 and 0.375 are exact halves in binary; 2.675, 1.005, 0.285, 1.015,
// 1.025 and 5e-7 lie just below the half (2.67499...), 1.5e-6 just above it.
// 1e15 + 0.125 to 2 decimals is ...0.12, whose nearest double is ...0.125.
TEST(RoundHalfEven, DecidesTiesOnTheExactBinaryValue) {
  const double two_to_53 = 9007199254740992.0;
  // clang-format off
  const struct {
    double x;
    int decimals;
    double expected;
  } cases[] = {
      {2.5, 0, 2}, {3.5, 0, 4}, {-2.5, 0, -2}, {-3.5, 0, -4}, {0.5, 0, 0}, {1.5, 0, 2},
      {0.125, 2, 0.12}, {0.375, 2, 0.38}, {-0.125, 2, -0.12},
      {2.675, 2, 2.67}, {1.005, 2, 1.0}, {0.285, 2, 0.28}, {1.015, 2, 1.01}, {1.025, 2, 1.02},
      {0.0000005, 6, 0}, {0.0000015, 6, 0.000002},
      {std::nextafter(0.125, 1.0), 2, 0.13}, {std::nextafter(0.125, 0.0), 2, 0.12},
      {std::nextafter(2.5, 3.0), 0, 3}, {std::nextafter(-2.5, -3.0), 0, -3},
      {1e15 + 0.5, 0, 1e15}, {1e15 + 1.5, 0, 1e15 + 2}, {1e15 + 0.125, 2, 1e15 + 0.125},
      {two_to_53, 0, two_to_53}, {two_to_53, 15, two_to_53},
      {1e300, 2, 1e300}, {1e-300, 2, 0}, {4.9e-324, 15, 0}, {1234.5678, 20, 1234.5678},
  };
  // clang-format on
  for (const auto& c : cases) {
    EXPECT_EQ(round_half_even(c.x, c.decimals), c.expected) << c.x << " to " << c.decimals;
  }
}

// A value that already fits in the decimals asked for comes back as the same
// double, also where value * 10^decimals no longer fits in 53 bits.
TEST(RoundHalfEven, LeavesAValueThatAlreadyFitsUnchanged) {
  const struct {
    double x;
    int fewest_decimals;
  } cases[] = {{1e15, 0},  {1e15 + 0.5, 1}, {1e15 + 1.5, 1},  {1e15 + 0.25, 2},          {1125899906842624.25, 2},
               {0.125, 3}, {1234.5, 1},     {-1e15 - 0.5, 1}, {65133502353855.484375, 6}};
  for (const auto& c : cases) {
    for (int d = c.fewest_decimals; d <= 15; ++d) {
      EXPECT_EQ(round_half_even(c.x, d), c.x) << std::to_string(c.x) << " to " << d;
    }
  }
}

// No thousands sign; a negative rounded to zero shows no minus.
TEST(NumberText, PrintsUpTo15SignificantDigitsWithoutTrailingZeros) {
  // clang-format off
  const struct {
    double x;
    const char* expected;
  } cases[] = {
      {2.5, "2.5"}, {3.0, "3"}, {-1.5, "-1.5"}, {100.0, "100"}, {1234.5, "1234.5"}, {1234567.25, "1234567.25"},
      {0.1 + 0.2, "0.3"}, {2.0 / 3.0, "0.666666666666667"}, {123456789012345.0, "123456789012345"},
      {1e15, "1E+15"}, {999999999999999.9, "1E+15"}, {1e100, "1E+100"},
      {0.0001, "0.0001"}, {0.00001, "1E-05"}, {-1.5e-7, "-1.5E-07"},
      {-0.0, "0"}, {round_half_even(-0.001, 2), "0"}, {round_half_even(-0.4, 0), "0"},
  };
  // clang-format on
  for (const auto& c : cases) EXPECT_EQ(number_text(c.x), c.expected) << c.expected;
}

TEST(IntFloor, TakesTheIntegerPartDownward) {
  const double cases[][2] = {{-2.5, -3}, {2.9, 2}, {-3, -3}, {-0.1, -1}, {0, 0}};
  for (const auto& c : cases) EXPECT_EQ(int_floor(c[0]), c[1]) << c[0];
}

// Reports round a 5 away from zero on the value's 15-digit decimal form
// (2.675 is 2.67500000000000 there), unlike the fields; a carry may add a
// digit, and a negative that rounds to zero shows no minus.
TEST(FormatPattern, PrintsExactlyThePatternsDecimals) {
  // clang-format off
  const struct {
    double x;
    const char* pattern;
    const char* expected;
  } cases[] = {
      {0.125, "0.00", "0.13"}, {2.675, "0.00", "2.68"}, {1.005, "0.00", "1.01"}, {3.0, "0.00", "3.00"},
      {9.995, "0.00", "10.00"}, {99.995, "0.00", "100.00"},
      {-0.001, "0.00", "0.00"}, {-0.0, "0.00", "0.00"}, {-0.005, "0.00", "-0.01"},
      {0.0049, "0.00", "0.00"}, {0.005, "0.00", "0.01"}, {0.0, "0.00", "0.00"}, {0.0, "0", "0"},
      {1234.5, "0", "1235"}, {-2.5, "0", "-3"}, {0.4, "0", "0"},
      {123456.789, "0.00", "123456.79"}, {1e20, "0.00", "100000000000000000000.00"}, {1e-20, "0.00", "0.00"},
      {1.5, "0.00000000", "1.50000000"}, {0.00000001234, "0.00000000", "0.00000001"},
      {0.000000005, "0.00000000", "0.00000001"},
  };
  // clang-format on
  for (const auto& c : cases) {
    EXPECT_EQ(format_pattern(c.x, c.pattern), c.expected) << c.x << " as " << c.pattern;
  }
}

TEST(ValueRules, ANonFiniteValueIsAFaultNotAFigure) {
  for (const double x : {kInf, -kInf, kNaN}) {
    const char* what = std::isnan(x) ? fault_text::kInvalidCall : fault_text::kOverflow;
    EXPECT_EQ(fault_of([&] { number_text(x); }), what) << x;
    EXPECT_EQ(fault_of([&] { format_pattern(x, "0.00"); }), what) << x;
  }
}

// A German desktop writes "2,5"; our fields and reports still use ".".
TEST(ValueRules, DoNotFollowTheCLocale) {
  const std::string previous = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "de_DE.UTF-8 is not installed";
  EXPECT_EQ(number_text(1234567.5), "1234567.5");
  EXPECT_EQ(format_pattern(1234.5, "0.00"), "1234.50");
  EXPECT_EQ(val("2.5"), 2.5);
  EXPECT_EQ(val("2,5"), 2);
  EXPECT_EQ(strict_number("0.75"), 0.75);
  std::setlocale(LC_ALL, previous.c_str());
}

}  // namespace
}  // namespace qorvat
