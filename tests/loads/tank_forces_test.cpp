// The liquid of a tank split into impulsive and convective parts, for both
// shapes, at and beside the ratios where the formulas change, and the forces.

#include "loads/tank_forces.hpp"

#include <gtest/gtest.h>

#include "runtime/fault.hpp"

namespace qorvat::loads {
namespace {

void expect_direction(const TankDirection& d, const TankDirection& want, const char* road) {
  EXPECT_NEAR(d.Tc, want.Tc, 1e-4) << road;
  EXPECT_NEAR(d.Wi, want.Wi, 1e-3) << road;
  EXPECT_NEAR(d.Wc, want.Wc, 1e-3) << road;
  EXPECT_NEAR(d.hi, want.hi, 1e-9) << road;
  EXPECT_NEAR(d.hc, want.hc, 1e-4) << road;
}

TEST(TankLiquid, BothShapes) {
  // L = 10, B = 5, HL = 4: W = 200 t.
  // x, L/HL = 2.5: u = 1.264, tanh u = 0.852157; Tc = 6.2832/sqrt(30.9996*0.852157)*sqrt(10) = 3.8658;
  // Wi = tanh(2.165)/2.165 * 200 = 89.978; Wc = 0.263*2.5*0.852157*200 = 112.059; hi = 0.375*4;
  // hc = (1 - (cosh u - 1)/(1.264 sinh u)) * 4 = (1 - 0.911015/2.058405) * 4 = 2.2297.
  // y, B/HL = 1.25: Wi = (1 - 0.218*1.25) * 200 = 145.5; u = 2.528, tanh u = 0.98734: Tc = 2.5395,
  // Wc = 0.263*1.25*0.98734*200 = 64.918, hi = 0.046875*1.25*4 = 0.234375, hc = 2.6516.
  const TankResult box = tank_liquid_split({.shape = TankShape::Rectangular, .L = 10, .B = 5, .HL = 4, .ML = 1000});
  EXPECT_DOUBLE_EQ(box.Wt, 200);
  expect_direction(box.x, {3.8658, 89.978, 112.059, 1.5, 2.2297}, "x");
  expect_direction(box.y, {2.5395, 145.5, 64.918, 0.234375, 2.6516}, "y");

  // D = 8, HL = 4: W = 64/4 * 3.1416 * 4 = 201.0624 t; u = 3.68*4/8 = 1.84, tanh u = 0.950794:
  // Tc = 6.2832/sqrt(36.1008*0.950794)*sqrt(8) = 3.0334; Wi = tanh(1.732)/1.732 * 201.0624 = 109.039;
  // Wc = 0.23*2*0.950794*201.0624 = 87.938; hi = 1.5; hc = 2.4220; the same both ways.
  const TankResult drum = tank_liquid_split({.shape = TankShape::Cylindrical, .L = 3, .D = 8, .HL = 4, .ML = 1000});
  EXPECT_DOUBLE_EQ(drum.Wt, 201.0624);
  expect_direction(drum.x, {3.0334, 109.039, 87.938, 1.5, 2.4220}, "D");
  expect_direction(drum.y, {3.0334, 109.039, 87.938, 1.5, 2.4220}, "D");

  EXPECT_TRUE(tank_liquid_split({.shape = TankShape::Rectangular, .L = 10, .HL = 4, .ML = 1000}).missing_input);
  EXPECT_TRUE(tank_liquid_split({.shape = TankShape::Cylindrical, .L = 10, .B = 5, .HL = 4, .ML = 1000}).missing_input);
  EXPECT_TRUE(tank_liquid_split({.shape = TankShape::Cylindrical, .D = 8, .HL = 4}).missing_input);
}

// Kept on purpose: hi changes form at X/HL = 1.333 and jumps there from
// 0.0625 HL to 0.375 HL, while Wi changes form at 4/3.
TEST(TankLiquid, FormsChangeAt1333And4Thirds) {
  struct Case {
    double X;  // a square tank with HL = 1: W = X * X tons
    double hi, Wi_per_W;
  } const cases[] = {
      {1.3329, 0.046875 * 1.3329, 1 - 0.218 * 1.3329},
      {1.333, 0.375, 1 - 0.218 * 1.333},
      {1.3332, 0.375, 1 - 0.218 * 1.3332},
      {4.0 / 3.0, 0.375, 0.7095504},         // tanh(1.154667)/1.154667
      {1.33334, 0.375, 0.7095484610657234},  // tanh(1.154672)/1.154672
  };
  for (const Case& c : cases) {
    const TankResult r = tank_liquid_split({.shape = TankShape::Rectangular, .L = c.X, .B = c.X, .HL = 1, .ML = 1000});
    EXPECT_NEAR(r.x.hi, c.hi, 1e-12) << c.X;
    EXPECT_NEAR(r.x.Wi, c.Wi_per_W * c.X * c.X, 1e-6) << c.X;
  }
}

// Kept on purpose: tanh is built from exp, so a liquid very deep for its
// length overflows where a library tanh would give 1.
TEST(TankLiquid, TanhFromExpOverflows) {
  try {
    // u = 3.16 * 4 / 0.01 = 1264: e^1264 is past the largest double.
    tank_liquid_split({.shape = TankShape::Rectangular, .L = 0.01, .B = 5, .HL = 4, .ML = 1000});
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_STREQ(fault.what(), "Overflow");
  }
}

TEST(TankForces, ForcesAndAlfa) {
  // clang-format off
  TankForceInput in{.Sa_i = 0.96, .Sc_x = 0.5, .Sc_y = 0.7, .Wix = 89.98, .Wiy = 145.5, .Wcx = 112.06,
                    .Wcy = 64.92, .Ri = 2, .Rc = 1, .b = 0.67};
  // clang-format on
  const TankForceResult r = tank_seismic_forces(in);
  EXPECT_NEAR(r.Pi_x, 43.1904, 1e-9);  // 0.96 * 89.98 / 2
  EXPECT_NEAR(r.Pi_y, 69.84, 1e-9);    // 0.96 * 145.5 / 2
  EXPECT_NEAR(r.Pc_x, 56.03, 1e-9);    // 0.5 * 112.06 / 1
  EXPECT_NEAR(r.Pc_y, 45.444, 1e-9);   // 0.7 * 64.92 / 1
  EXPECT_NEAR(r.alfa, 0.192, 1e-12);   // 0.67 * 0.4 * 0.96 / 2 = 0.12864, under 0.2 * 0.96
  in.Ri = 1;
  EXPECT_NEAR(tank_seismic_forces(in).alfa, 0.25728, 1e-12);  // 0.67 * 0.4 * 0.96 stands
  in.Ri = 0;
  EXPECT_THROW(tank_seismic_forces(in), RuntimeFault);
}

}  // namespace
}  // namespace qorvat::loads
