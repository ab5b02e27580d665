// What the option groups and the joint-calculation box do to the dialog:
// sketches, and which members' fields can be typed in.

#include <initializer_list>
#include <vector>

#include "members/effective_length_fields.hpp"
#include "members/effective_length_parts.hpp"

namespace qorvat::members::effective_length {
namespace {

using Names = std::vector<const char*>;

void set_enabled(Form& me, const Names& names, bool on) {
  for (const char* name : names) me[name].set_enabled(on);
}

void zero(Form& me, const Names& names) {
  for (const char* name : names) me.set_text(name, "0");
}

// The fields only the strong-column ratio uses.
const Names kJointFields{"Text36", "Text37", "Text38", "Text39", "Text40", "Text41",
                         "Text43", "Text44", "Text45", "Text46", "Text47"};

void apply_joint_calculation(Form& me) { set_enabled(me, kJointFields, me["Check1"].ticked()); }

void show_far_end_sketch(Form& me, const BeamFields& beam) {
  me[beam.fixed_sketch].set_visible(me[beam.fixed].selected());
  me[beam.simple_sketch].set_visible(me[beam.simple].selected());
}

// A connection condition: the members it takes out and the cross lines left standing.
struct Condition {
  const char* option;
  Names zeroed;
  Names disabled;
  Names hidden_lines;
};

// clang-format off
const std::vector<Condition>& conditions() {
  static const std::vector<Condition> table = {
      {kOneUpperBeam, {"Text9", "Text11", "Text38"}, {"Text9", "Text11", "Text38", "Frame2"}, {"Line15"}},
      {kNoUpperColumn, {"Text3", "Text4", "Text37"}, {"Text3", "Text4", "Text37", "Text40"}, {"Line16"}},
      {kOneLowerBeam, {"Text25", "Text26", "Text47"}, {"Text25", "Text26", "Text47", "Frame4"}, {"Line17"}},
      // Both left beams go, yet the upper column is only locked: its figures still count.
      {kOnePlusTwo, {"Text9", "Text11", "Text38", "Text25", "Text26", "Text47"}, {"Text3", "Text4", "Text37", "Text40"},
       {"Line15", "Line16", "Line17"}},
      {kOnePlusThree, {"Text9", "Text11", "Text38", "Text25", "Text26", "Text47", "Text18", "Text19", "Text43",
                       "Text29", "Text30", "Text46"}, {"Frame2", "Frame4"}, {"Line15", "Line17"}},
  };
  return table;
}
// clang-format on

// Everything a condition can lock, opened again by "هيچكدام".
const Names kConditionLocked{"Text9",  "Text11", "Text38", "Frame2", "Text3",  "Text4",
                             "Text37", "Text40", "Text25", "Text26", "Text47", "Frame4"};

void draw_cross(Form& me, const Names& hidden_lines) {
  for (const char* line : {"Line15", "Line16", "Line17"}) me[line].set_visible(true);
  for (const char* line : hidden_lines) me[line].set_visible(false);
}

void apply_condition(Form& me, const Condition& condition) {
  draw_cross(me, condition.hidden_lines);
  zero(me, condition.zeroed);
  set_enabled(me, condition.disabled, false);
}

void all_members(Form& me) {
  draw_cross(me, {});
  set_enabled(me, kConditionLocked, true);
}

// Node B's members, taken out by a simple or fixed support at the foot.
const Names kNodeBSections{"Text18", "Text19", "Text43", "Text25", "Text26", "Text47", "Text29", "Text30", "Text46"};
const Names kNodeBLocked{"Text45", "Frame3", "Frame4", "Text42", "Text49", "Label65", kOneLowerBeam, kOnePlusThree};

void support_at_foot(Form& me) {
  // The conditions go back to "all members" first, since that opens every field again.
  me[kAllMembers].set_selected(true);
  me[kRightOfB.continuous].set_selected(true);
  me[kLeftOfB.continuous].set_selected(true);
  zero(me, kNodeBSections);
  set_enabled(me, kNodeBSections, false);
  set_enabled(me, kNodeBLocked, false);
  me["Image1"].set_visible(me[kFixedSupport].selected());
  me["Image2"].set_visible(me[kSimpleSupport].selected());
}

void continuous_column(Form& me) {
  set_enabled(me, kNodeBSections, true);
  set_enabled(me, kNodeBLocked, true);
  me["Image1"].set_visible(false);
  me["Image2"].set_visible(false);
}

void open_dialog(Form& me) {
  for (const BeamFields* beam : kBeams) me[beam->continuous].set_selected(true);
  me[kContinuousColumn].set_selected(true);
  me[kAllMembers].set_selected(true);
  apply_joint_calculation(me);
}

}  // namespace

void add_state_routines(DialogType& type) {
  type.on_open = open_dialog;
  type.on_click("Check1", [](Form& me, int) { apply_joint_calculation(me); });
  // The studied column's fa/Fy is shown again on B's upper row.
  type.on_change("Text41", [](Form& me, int) { me.set_text("Text42", me.text("Text41")); });

  for (const BeamFields* beam : kBeams) {
    for (const char* option : {beam->continuous, beam->fixed, beam->simple}) {
      type.on_click(option, [beam](Form& me, int) { show_far_end_sketch(me, *beam); });
    }
  }
  type.on_click(kContinuousColumn, [](Form& me, int) { continuous_column(me); });
  type.on_click(kSimpleSupport, [](Form& me, int) { support_at_foot(me); });
  type.on_click(kFixedSupport, [](Form& me, int) { support_at_foot(me); });
  type.on_click(kAllMembers, [](Form& me, int) { all_members(me); });
  for (const Condition& condition : conditions()) {
    type.on_click(condition.option, [&condition](Form& me, int) { apply_condition(me, condition); });
  }
}

}  // namespace qorvat::members::effective_length
