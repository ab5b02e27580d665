// The soil-structure interaction check: its ratio and its verdict at 0.1.

#include "concrete/ssi_need.hpp"

#include <gtest/gtest.h>

namespace qorvat::concrete {
namespace {

TEST(SsiNeed, VerdictTurnsAtOneTenth) {
  struct Case {
    double T, factor, h, Vs;
    double r;
    bool necessary;
  } const cases[] = {
      {10, 0.5, 2, 1, 0.1, true},                        // exactly 0.1: 1/10
      {1.01, 0.67, 15, 100, 0.0995049504950495, false},  // 10.05/101, shown as 0.1
      {0.5, 0.67, 30, 175, 0.2297142857142857, true},    // 20.1/87.5
  };
  for (const Case& c : cases) {
    const auto result = ssi_need({c.T, c.factor, c.h, c.Vs});
    EXPECT_NEAR(result.r, c.r, 1e-15) << c.T;
    EXPECT_EQ(result.necessary, c.necessary) << c.T;
  }
}

}  // namespace
}  // namespace qorvat::concrete
