// The built-in profile library. Every row must agree with the geometry it lists:
// a mistyped digit in a dimension or a property shows up as a row whose area or
// second moment no longer fits its own plates, fillets and corners.

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <numbers>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "runtime/value_rules.hpp"
#include "sections/profile_table.hpp"

namespace qorvat::sections {
namespace {

using Row = std::vector<std::string>;
enum Field : std::size_t { kName, kH, kB, kS, kT, kR, kC, kClearWeb, kF, kIx, kIy, kSx, kSy };
enum BoxField : std::size_t { kA, kBoxB, kWall, kBoxF, kBoxIx, kBoxIy };

double num(const Row& row, std::size_t field) { return strict_number(row.at(field)); }
double off(double computed, double listed) { return std::abs(computed / listed - 1.0); }

// A root fillet (or rounded corner) of radius r: area, centroid distance from
// both faces it joins, and own second moment, per r^2, r and r^4.
constexpr double kPi = std::numbers::pi;
constexpr double kFilletArea = 1 - kPi / 4;
constexpr double kFilletArm = (10 - 3 * kPi) / (12 - 3 * kPi);
constexpr double kFilletOwn = (1 - 5 * kPi / 16) - kFilletArea * kFilletArm * kFilletArm;

struct Properties {
  double area, ix, iy, sy;  // cm2, cm4, cm4, cm3
};

// A rolled I (four flange outstands) or channel (two). The flange is t thick at
// `at` (from the web's centre line for an I: b/4; from the back of the web for a
// channel: b/2) and thickens by `slope` per mm towards the web; root fillets r1
// under the flanges, flange toes rounded with r2. Summed over strips across the
// flange width; mm in. sy is Iy over the distance to the flange tips.
struct Rolled {
  double h, b, s, t, r1, r2 = 0, slope = 0;
  bool channel = false;
};

Properties properties(const Rolled& p) {
  struct Part {
    double area, x, y, own_x, own_y;  // x across the flanges, y from mid-depth
  };
  std::vector<Part> parts;
  const double pieces = p.channel ? 2 : 4;
  const double face = p.channel ? p.s : p.s / 2, tip = p.channel ? p.b : p.b / 2;
  const double at = p.channel ? p.b / 2 : p.b / 4;
  const auto thickness = [&](double x) { return p.t + p.slope * (at - x); };
  constexpr int kStrips = 200;
  const double dx = (tip - face) / kStrips;
  for (int i = 0; i < kStrips; ++i) {
    const double x = face + (i + 0.5) * dx, tf = thickness(x);
    parts.push_back(
        {pieces * tf * dx, x, p.h / 2 - tf / 2, pieces * dx * tf * tf * tf / 12, pieces * tf * dx * dx * dx / 12});
  }
  parts.push_back({p.h * p.s, p.channel ? p.s / 2 : 0, 0, p.s * std::pow(p.h, 3) / 12, p.h * std::pow(p.s, 3) / 12});
  const auto corner = [&](double sign, double r, double x, double y) {
    const double own = sign * pieces * kFilletOwn * std::pow(r, 4);
    parts.push_back({sign * pieces * kFilletArea * r * r, x, y, own, own});
  };
  corner(+1, p.r1, face + kFilletArm * p.r1, p.h / 2 - thickness(face) - kFilletArm * p.r1);
  corner(-1, p.r2, tip - kFilletArm * p.r2, p.h / 2 - thickness(tip) + kFilletArm * p.r2);
  double area = 0, moment = 0, ix = 0, iy = 0;
  for (const auto& q : parts) {
    area += q.area;
    moment += q.area * q.x;
  }
  const double e = p.channel ? moment / area : 0;  // centroid from the back of the web
  for (const auto& q : parts) {
    ix += q.own_x + q.area * q.y * q.y;
    iy += q.own_y + q.area * (q.x - e) * (q.x - e);
  }
  return {area / 100, ix / 1e4, iy / 1e4, iy / (p.channel ? p.b - e : p.b / 2) / 1e3};
}

// What follows the prefix in a designation ("IPE 300" -> 300), or -1.
double designation_number(const std::string& name, std::string_view prefix) {
  if (name.rfind(prefix, 0) != 0) return -1;
  return strict_number(name.substr(prefix.size()));
}

const std::vector<Row>& rows_of(const char* table) { return embedded_table(table).rows; }

TEST(ProfileData, EveryTableHasItsLayoutAndEveryFieldIsAPositiveNumber) {
  for (const auto& layout : kProfileTables) {
    const auto& rows = rows_of(layout.name);
    EXPECT_GE(rows.size(), 14u) << layout.name;
    const std::size_t fields = static_cast<std::size_t>(layout_fields(layout.name));
    const std::size_t first_number = fields == 6 ? 0 : 1;
    for (const auto& row : rows) {
      SCOPED_TRACE(std::string(layout.name) + ": " + row.at(0));
      ASSERT_EQ(row.size(), fields);
      for (std::size_t i = first_number; i < fields; ++i) EXPECT_GT(num(row, i), 0) << "field " << i;
    }
  }
}

// Designations carry the table's prefix, rows run in ascending size, and the
// number is the depth where the series is named after it.
TEST(ProfileData, DesignationsRunInAscendingOrder) {
  const struct {
    const char* table;
    std::vector<std::string_view> prefixes;  // groups in table order
    bool number_is_depth;
  } tables[] = {{"ipe", {"IPE "}, true},
                {"inp", {"INP "}, true},
                {"ipb", {"IPB "}, true},
                {"ipbi", {"IPBi "}, false},
                {"CPE", {"CPE "}, false},
                {"CPB", {"CPB "}, false},
                {"navdani", {"UNP ", "UPE "}, true}};
  for (const auto& table : tables) {
    std::size_t group = 0;
    double last = 0;
    for (const auto& row : rows_of(table.table)) {
      SCOPED_TRACE(std::string(table.table) + ": " + row[kName]);
      double n = designation_number(row[kName], table.prefixes[group]);
      if (n < 0 && group + 1 < table.prefixes.size()) {
        n = designation_number(row[kName], table.prefixes[++group]);
        last = 0;
      }
      ASSERT_GT(n, last);
      if (table.number_is_depth) {
        EXPECT_EQ(num(row, kH), n);
      }
      last = n;
    }
    EXPECT_EQ(group + 1, table.prefixes.size()) << table.table;
  }
}

// Rolled sections against their own geometry. Taper flanges slope 14 % (INP, toe
// radius 0.6 s) and 8 %, from UNP 320 on 5 % (UNP, toe radius t/2). Parallel
// flanges fit within 1 %; taper flanges within 1.5 % on F and Ix and 5 % on the
// weak axis, where the short flanges of small channels strain the model.
TEST(ProfileData, RolledSectionsAgreeWithTheirGeometry) {
  for (const char* table : {"ipe", "inp", "ipb", "ipbi", "navdani"}) {
    for (const auto& row : rows_of(table)) {
      SCOPED_TRACE(std::string(table) + ": " + row[kName]);
      Rolled shape{num(row, kH), num(row, kB), num(row, kS), num(row, kT), num(row, kR)};
      shape.channel = std::string_view(table) == "navdani";
      if (row[kName].starts_with("INP")) {
        shape.r2 = 0.6 * shape.s;
        shape.slope = 0.14;
      } else if (row[kName].starts_with("UNP")) {
        shape.r2 = shape.t / 2;
        shape.slope = shape.h <= 300 ? 0.08 : 0.05;
      }
      const bool tapered = shape.slope > 0;
      const auto p = properties(shape);
      EXPECT_LT(off(p.area, num(row, kF)), tapered ? 0.015 : 0.01) << p.area;
      EXPECT_LT(off(p.ix, num(row, kIx)), tapered ? 0.015 : 0.01) << p.ix;
      EXPECT_LT(off(p.iy, num(row, kIy)), tapered ? 0.05 : 0.01) << p.iy;
      EXPECT_LT(off(p.sy, num(row, kSy)), tapered ? 0.05 : 0.01) << p.sy;
    }
  }
}

// c, h-2c and the moduli follow from the other fields in every I and channel table
// (Sy of a channel, Iy/(b - e), is checked with its geometry above).
TEST(ProfileData, DerivedFieldsFollowFromTheRow) {
  for (const char* table : {"ipe", "inp", "ipb", "ipbi", "CPE", "CPB", "navdani"}) {
    for (const auto& row : rows_of(table)) {
      SCOPED_TRACE(std::string(table) + ": " + row[kName]);
      const double h = num(row, kH), c = num(row, kC);
      EXPECT_NEAR(c, num(row, kT) + num(row, kR), 0.5);
      EXPECT_NEAR(num(row, kClearWeb), h - 2 * c, 0.01);
      EXPECT_LT(off(num(row, kIx) / (h / 20), num(row, kSx)), 0.01);
      if (std::string_view(table) != "navdani") {
        EXPECT_LT(off(num(row, kIy) / (num(row, kB) / 20), num(row, kSy)), 0.01);
      }
    }
  }
}

// A castellated beam is its parent cut and opened to 1.5 times the depth, with
// openings as high as the parent; the values are the net section at an opening,
// here summed directly from the two tees' plates and fillets.
TEST(ProfileData, CastellatedBeamsAreTheirParentsOpenedToOneAndAHalfDepths) {
  const struct {
    const char* table;
    const char* prefix;
    const char* parent_table;
    const char* parent_prefix;
  } series[] = {{"CPE", "CPE ", "ipe", "IPE "}, {"CPB", "CPB ", "ipb", "IPB "}};
  for (const auto& cast : series) {
    for (const auto& row : rows_of(cast.table)) {
      SCOPED_TRACE(row[kName]);
      const double n = designation_number(row[kName], cast.prefix);
      const Row* parent = nullptr;
      for (const auto& p : rows_of(cast.parent_table))
        if (designation_number(p[kName], cast.parent_prefix) == n) parent = &p;
      ASSERT_NE(parent, nullptr);
      const double h = num(*parent, kH), big_h = num(row, kH);
      EXPECT_EQ(big_h, 1.5 * h);
      for (const Field f : {kB, kS, kT, kR, kC}) EXPECT_EQ(row[f], (*parent)[f]) << "field " << f;
      const double b = num(row, kB), s = num(row, kS), t = num(row, kT), r = num(row, kR);
      EXPECT_GE(big_h / 2 - h / 2 - t - r, 10) << "tee too shallow to cut";
      const double opening = h;
      const auto gross = properties({big_h, b, s, t, r});
      const double area = gross.area - s * opening / 100;
      const double ix = gross.ix - s * std::pow(opening, 3) / 12 / 1e4;
      const double iy = gross.iy - std::pow(s, 3) * opening / 12 / 1e4;
      EXPECT_LT(off(area, num(row, kF)), 0.005) << area;
      EXPECT_LT(off(ix, num(row, kIx)), 0.005) << ix;
      EXPECT_LT(off(iy, num(row, kIy)), 0.005) << iy;
    }
  }
}

// Hollow sections: outer rounded rectangle minus inner one, corner radii by wall
// thickness (cold formed: outer 2 s up to 6 mm, 2.5 s up to 10 mm, 3 s beyond;
// inner = outer - s). The listed values are rounded to 4 digits: 1 % tolerance.
TEST(ProfileData, HollowSectionsAgreeWithTheirWalls) {
  // A solid width x depth with rounded corners: area (mm2), I across the depth (mm4).
  const auto rounded = [](double width, double depth, double radius) {
    const double corner = kFilletArea * radius * radius, arm = depth / 2 - kFilletArm * radius;
    return std::pair{width * depth - 4 * corner,
                     width * depth * depth * depth / 12 - 4 * (kFilletOwn * std::pow(radius, 4) + corner * arm * arm)};
  };
  std::tuple<double, double, double> last{0, 0, 0};
  for (const auto& row : rows_of("box")) {
    const double a = num(row, kA), b = num(row, kBoxB), s = num(row, kWall);
    SCOPED_TRACE("box " + row[kA] + "x" + row[kBoxB] + "x" + row[kWall]);
    EXPECT_LT(last, std::make_tuple(a, b, s));
    last = {a, b, s};
    EXPECT_GE(a, b);
    const double ro = s <= 6 ? 2 * s : s <= 10 ? 2.5 * s : 3 * s;
    const auto tube = [&](double width, double depth) {
      const auto [outer_area, outer_i] = rounded(width, depth, ro);
      const auto [inner_area, inner_i] = rounded(width - 2 * s, depth - 2 * s, ro - s);
      return std::pair{(outer_area - inner_area) / 100, (outer_i - inner_i) / 1e4};
    };
    const auto [area, ix] = tube(b, a);
    const double iy = tube(a, b).second;
    EXPECT_LT(off(area, num(row, kBoxF)), 0.01) << area;
    EXPECT_LT(off(ix, num(row, kBoxIx)), 0.01) << ix;
    EXPECT_LT(off(iy, num(row, kBoxIy)), 0.01) << iy;
  }
}

// Channel areas quoted elsewhere in the program's tables must be found here as
// the same text: UNP 50 to UNP 280 with UNP 60, and UPE 80 to UPE 200.
TEST(ProfileData, ChannelAreasQuotedElsewhereArePresent) {
  std::set<std::string> areas;
  for (const auto& row : rows_of("navdani")) areas.insert(row[kF]);
  for (const char* area : {"7.12", "6.46", "9.03", "11",   "13.5", "17",   "20.4", "24",   "28",   "32.2", "37.4",
                           "42.3", "48.3", "53.3", "10.1", "12.5", "15.4", "18.4", "21.7", "25.1", "29"})
    EXPECT_EQ(areas.count(area), 1u) << "no channel with F = " << area;
}

}  // namespace
}  // namespace qorvat::sections
