#include "members/width_thickness_limits.hpp"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "runtime/fault.hpp"

namespace qorvat::members {
namespace {

// Which scale a coefficient multiplies: S takes Ry, s does not.
enum class Scale { S, s };

struct Term {
  double k;
  Scale scale;
};

enum class Bound { Floor, Ceiling };

// One edition and class. The web limit is k scale (c - d Ca): the low-Ca formula
// up to and including Ca_limit, the high-Ca one above it, held there by the bound.
struct LimitRow {
  SeismicCode code;
  Ductility ductility;
  Term flange;
  double Ca_limit;
  Term web_low;
  double low_c, low_d;
  Term web_high;
  double high_c, high_d;
  Term bound;
  Bound bound_kind;
};

constexpr auto k1401 = SeismicCode::Mabhas1401;
constexpr auto k1392 = SeismicCode::Mabhas1392;
constexpr auto kAisc = SeismicCode::Aisc341_16;
constexpr auto kHigh = Ductility::High;
constexpr auto kMedium = Ductility::Medium;
constexpr auto S = Scale::S;
constexpr auto s = Scale::s;

// The 1392 rows know no Ry; the high-Ca AISC web takes s while its bound takes S;
// the 1401 bound is a floor and the others a ceiling. All three as the rules stand.
// clang-format off
constexpr LimitRow kLimits[] = {
    // code   class    flange       Ca     web, low Ca              web, high Ca              bound
    {k1401, kHigh,   {0.3, S},  0.113, {2.45, S}, 1, 1.04, {2.26, S}, 1,    0.38, {1.56, S}, Bound::Floor},
    {k1401, kMedium, {0.38, S}, 0.113, {3.76, S}, 1, 3.05, {2.61, S}, 1,    0.49, {1.56, S}, Bound::Floor},
    {k1392, kHigh,   {0.3, s},  0.125, {2.45, s}, 1, 0.93, {0.77, s}, 2.93, 1,    {1.49, s}, Bound::Ceiling},
    {k1392, kMedium, {0.38, s}, 0.125, {3.76, s}, 1, 2.75, {1.12, s}, 2.33, 1,    {1.49, s}, Bound::Ceiling},
    {kAisc, kHigh,   {0.32, S}, 0.114, {2.57, S}, 1, 1.04, {0.88, s}, 2.68, 1,    {1.57, S}, Bound::Ceiling},
    {kAisc, kMedium, {0.4, S},  0.114, {3.96, S}, 1, 3.04, {1.29, s}, 2.12, 1,    {1.57, S}, Bound::Ceiling},
};

// Box flanges: the 1392 highly ductile flange depends on the frame type.
struct BoxFlangeRow {
  SeismicCode code;
  Ductility ductility;
  Term special_moment;
  Term simple_braced;
};

constexpr BoxFlangeRow kBoxFlanges[] = {
    {k1401, kHigh,   {0.55, S}, {0.55, S}},
    {k1401, kMedium, {1, S},    {1, S}},
    {k1392, kHigh,   {0.6, s},  {0.55, s}},
    {k1392, kMedium, {1.12, s}, {1.12, s}},
    {kAisc, kHigh,   {0.65, S}, {0.65, S}},
    {kAisc, kMedium, {1.18, S}, {1.18, S}},
};
// clang-format on

template <typename Row, std::size_t N>
const Row& row_of(const Row (&table)[N], SeismicCode code, Ductility ductility) {
  const auto it = std::find_if(std::begin(table), std::end(table),
                               [&](const Row& r) { return r.code == code && r.ductility == ductility; });
  if (it == std::end(table)) throw std::logic_error("no width-thickness row");
  return *it;
}

// S is worked out only where a row asks for it, so a blank Ry never troubles the 1392 rows.
double scale(Scale which, const LimitBasis& b) {
  if (which == Scale::s) return checked_sqrt(checked_div(b.E, b.Fy));
  return checked_sqrt(checked_div(b.E, b.Ry * b.Fy));
}

double term(const Term& t, const LimitBasis& b) { return t.k * scale(t.scale, b); }

}  // namespace

double i_flange_limit(SeismicCode code, Ductility ductility, const LimitBasis& basis) {
  return term(row_of(kLimits, code, ductility).flange, basis);
}

double web_limit(SeismicCode code, Ductility ductility, const LimitBasis& basis, double Ca) {
  const LimitRow& r = row_of(kLimits, code, ductility);
  if (Ca <= r.Ca_limit) return term(r.web_low, basis) * (r.low_c - r.low_d * Ca);
  const double lw = term(r.web_high, basis) * (r.high_c - r.high_d * Ca);
  const double bound = term(r.bound, basis);
  return r.bound_kind == Bound::Floor ? std::max(lw, bound) : std::min(lw, bound);
}

double box_flange_limit(SeismicCode code, Ductility ductility, FrameType frame, const LimitBasis& basis) {
  const BoxFlangeRow& r = row_of(kBoxFlanges, code, ductility);
  return term(frame == FrameType::SpecialMoment ? r.special_moment : r.simple_braced, basis);
}

}  // namespace qorvat::members
