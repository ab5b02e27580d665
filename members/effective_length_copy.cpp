// "ALL Same..!" and "Side Same": section data copied across the cross as text,
// by connection condition, so a symmetric frame is typed once.

#include <vector>

#include "members/effective_length_fields.hpp"
#include "members/effective_length_parts.hpp"

namespace qorvat::members::effective_length {
namespace {

void copy_section(Form& me, const Section& to, const Section& from) {
  for (std::size_t i = 0; i < to.size(); ++i) me.set_text(to[i], me.text(from[i]));
}

void zero_section(Form& me, const Section& section) {
  for (const char* field : section) me.set_text(field, "0");
}

enum class LeftBeam { FromRightOfA, Zeroed, ModulusOnly };

void fill_left_beam(Form& me, const Section& left, LeftBeam how) {
  switch (how) {
    case LeftBeam::FromRightOfA: copy_section(me, left, kRightOfA.section); break;
    case LeftBeam::Zeroed: zero_section(me, left); break;
    case LeftBeam::ModulusOnly: me.set_text(left[2], me.text(kRightOfA.section[2])); break;
  }
}

struct AllSameRule {
  const char* option;
  LeftBeam left_of_A;
  LeftBeam left_of_B;
  bool modulus_below_B;  // Text46 too, or only length and inertia
  bool angles;           // the other beams take Text54's angle
};

// No rule for the missing upper column: the button does nothing then.
const std::vector<AllSameRule> kAllSameRules{
    {kAllMembers, LeftBeam::FromRightOfA, LeftBeam::FromRightOfA, false, true},
    {kOneUpperBeam, LeftBeam::Zeroed, LeftBeam::FromRightOfA, true, true},
    {kOneLowerBeam, LeftBeam::FromRightOfA, LeftBeam::Zeroed, true, false},
    {kOnePlusTwo, LeftBeam::Zeroed, LeftBeam::Zeroed, true, true},
    {kOnePlusThree, LeftBeam::ModulusOnly, LeftBeam::ModulusOnly, true, true},
};

void apply_all_same(Form& me, const AllSameRule& rule) {
  fill_left_beam(me, kLeftOfA.section, rule.left_of_A);
  copy_section(me, kRightOfB.section, kRightOfA.section);
  fill_left_beam(me, kLeftOfB.section, rule.left_of_B);
  copy_section(me, kStudied.section, kAboveA.section);
  me.set_text("Text29", me.text("Text3"));
  me.set_text("Text30", me.text("Text4"));
  if (rule.modulus_below_B) me.set_text("Text46", me.text("Text37"));
  if (rule.angles) {
    for (const char* angle : {kLeftOfA.angle, kRightOfB.angle, kLeftOfB.angle}) {
      me.set_text(angle, me.text(kRightOfA.angle));
    }
  }
}

const AllSameRule* selected_rule(const Form& me) {
  for (const AllSameRule& rule : kAllSameRules) {
    if (me[rule.option].selected()) return &rule;
  }
  return nullptr;
}

struct SideSameRule {
  const char* option;
  bool left_of_B_from_left_of_A;
  bool zero_left_of_A;
  bool angle_57_from_56;
};

const std::vector<SideSameRule> kSideSameRules{
    {kAllMembers, true, false, true},
    {kOneUpperBeam, false, true, false},
    {kOneLowerBeam, false, false, false},
    {kOnePlusTwo, false, true, true},
};

}  // namespace

void copy_all_same(Form& me) {
  if (!me[kContinuousColumn].selected() && !me[kOnePlusThree].selected()) return;
  if (const AllSameRule* rule = selected_rule(me)) apply_all_same(me, *rule);
}

void copy_side_same(Form& me) {
  if (me[kOnePlusThree].selected()) {
    apply_all_same(me, *selected_rule(me));
    return;
  }
  if (!me[kContinuousColumn].selected()) return;
  for (const SideSameRule& rule : kSideSameRules) {
    if (!me[rule.option].selected()) continue;
    copy_section(me, kRightOfB.section, kRightOfA.section);
    copy_section(me, kBelowB.section, kStudied.section);
    // The left beam of A takes the right one's angle, not node B's beams.
    me.set_text(kLeftOfA.angle, me.text(kRightOfA.angle));
    if (rule.left_of_B_from_left_of_A) copy_section(me, kLeftOfB.section, kLeftOfA.section);
    if (rule.zero_left_of_A) zero_section(me, kLeftOfA.section);
    if (rule.angle_57_from_56) me.set_text(kLeftOfB.angle, me.text(kRightOfB.angle));
    return;
  }
}

}  // namespace qorvat::members::effective_length
