// "Calculate K": the fields into the input record, the zero test, and the
// results back into the cross.

#include <vector>

#include "members/effective_length.hpp"
#include "members/effective_length_fields.hpp"
#include "members/effective_length_parts.hpp"
#include "runtime/fault.hpp"
#include "runtime/session.hpp"

namespace qorvat::members::effective_length {
namespace {

using Names = std::vector<const char*>;

FarEnd far_end(const Form& me, const BeamFields& f) {
  if (me[f.fixed].selected()) return FarEnd::Fixed;
  if (me[f.simple].selected()) return FarEnd::Simple;
  return FarEnd::Continuous;
}

Beam read_beam(const Form& me, const BeamFields& f) {
  const auto& [L, I, Z] = f.section;
  return {me.val(L), me.val(I), me.val(Z), me.val(f.angle), far_end(me, f)};
}

Column read_column(const Form& me, const ColumnFields& f) {
  const auto& [L, I, Z] = f.section;
  return {me.val(L), me.val(I), me.val(Z), me.val(f.fa_Fy)};
}

ColumnFoot foot(const Form& me) {
  if (me[kSimpleSupport].selected()) return ColumnFoot::SimpleSupport;
  if (me[kFixedSupport].selected()) return ColumnFoot::FixedSupport;
  return ColumnFoot::Continuous;
}

EffectiveLengthInput read_input(const Form& me) {
  EffectiveLengthInput in;
  in.right_A = read_beam(me, kRightOfA);
  in.left_A = read_beam(me, kLeftOfA);
  in.right_B = read_beam(me, kRightOfB);
  in.left_B = read_beam(me, kLeftOfB);
  in.above_A = read_column(me, kAboveA);
  in.studied = read_column(me, kStudied);
  in.below_B = read_column(me, kBelowB);
  in.Fyc = me.val("Text50");
  in.Fyb = me.val("Text53");
  in.foot = foot(me);
  in.joint_calculation = me["Check1"].ticked();
  return in;
}

// Fields that may not be zero, by what the dialog covers. Only tested with all
// members present: a taken-out member's fields are zero by design.
const Names kNodeA{"Text1", "Text2", "Text3", "Text4", "Text9", "Text11", "Text8", "Text10"};
const Names kNodeB{"Text18", "Text19", "Text25", "Text26", "Text29", "Text30"};
const Names kJointAtA{"Text36", "Text37", "Text38", "Text39", "Text40", "Text41"};
const Names kJointAtB{"Text42", "Text43", "Text45", "Text46", "Text47"};

bool any_zero(const Form& me, const Names& names) {
  for (const char* name : names) {
    if (me.val(name) == 0) return true;
  }
  return false;
}

bool inputs_refused(const Form& me, const EffectiveLengthInput& in) {
  if (!me[kAllMembers].selected()) return false;
  const bool node_B = in.foot == ColumnFoot::Continuous;
  return any_zero(me, kNodeA) || (node_B && any_zero(me, kNodeB)) ||
         (in.joint_calculation && any_zero(me, kJointAtA)) ||
         (in.joint_calculation && node_B && any_zero(me, kJointAtB));
}

void write_node_A(Form& me, const EffectiveLengthResult& r) {
  // Correction factors go out as they are (0.667), the rest to 2 decimals.
  me.set_number("Text5", r.c1);
  me.set_number("Text13", r.c2);
  me.set_rounded("Text6", r.b1, 2);
  me.set_rounded("Text14", r.b2, 2);
  me.set_rounded("Text7", r.cAup, 2);
  me.set_rounded("Text12", r.cS, 2);
  me.set_rounded("Text15", r.SbA, 2);
  me.set_rounded("Text16", r.ScA, 2);
  me.set_rounded("Text17", r.GA, 2);
}

void write_node_B(Form& me, const EffectiveLengthInput& in, const EffectiveLengthResult& r) {
  me.set_number("Text20", r.c3);
  me.set_number("Text27", r.c4);
  me.set_rounded("Text21", r.b3, 2);
  me.set_rounded("Text28", r.b4, 2);
  me.set_rounded("Text31", r.cBlow, 2);
  // Beside the studied column again, but holding the column sum at A.
  me.set_rounded("Text24", r.ScA, 2);
  me.set_rounded("Text33", r.SbB, 2);
  me.set_rounded("Text34", r.ScB, 2);
  me.set_rounded("Text22", r.studied_L, 2);
  me.set_rounded("Text23", in.studied.I, 2);
  me.set_rounded("Text44", in.studied.Z, 2);
}

}  // namespace

void calculate_k(Form& me) {
  const EffectiveLengthInput in = read_input(me);
  if (inputs_refused(me, in)) {
    me.session().message_box("Error in input data..!");
    return;
  }
  const EffectiveLengthResult r = effective_length_factor(in);

  write_node_A(me, r);
  if (in.foot == ColumnFoot::Continuous) write_node_B(me, in, r);
  me.set_rounded("Text32", r.GB, 2);
  if (in.joint_calculation) {
    me.set_rounded("Text48", r.MPc_MPb_A, 2);
    me.set_rounded("Text49", r.MPc_MPb_B, 2);
  }
  me.set_rounded("Text35", r.K_stability, 2);
  if (!r.K_formula_fault.empty()) throw RuntimeFault(r.K_formula_fault);
  me.set_rounded("Text51", r.K_formula, 2);
}

}  // namespace qorvat::members::effective_length
