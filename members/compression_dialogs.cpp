#include "members/compression_dialogs.hpp"

#include <utility>

#include "members/alpha_cal.hpp"
#include "members/fa_calculation.hpp"

namespace qorvat::members {
namespace {

bool declares(const DialogType& type, const char* name) {
  for (const auto& c : type.controls) {
    if (c.name == name) return true;
  }
  return false;
}

// Until the brace connections are built, their stand-ins get the buttons that
// open these calculators, so that the roads through them can be walked. The
// full dialogs declare these buttons with their own filling of the calculator.
void add_stand_in_opener(DialogRegistry& registry, const char* dialog, const char* name, const char* caption,
                         ControlRoutine open) {
  DialogType& type = *registry.find_mutable(dialog);
  if (declares(type, name)) return;
  type.add(button(name, caption));
  type.on_click(name, std::move(open));
}

void show(Form& me, const char* dialog) { me.session().show(dialog); }

}  // namespace

void register_compression_dialogs(DialogRegistry& registry) {
  registry.add(fa_calculation_dialog(*registry.find("Form11")));
  registry.add(alpha_cal_dialog(*registry.find("Form14")));

  add_stand_in_opener(registry, "Form6", "Command3", "P - Cal", [](Form& me, int) { show(me, "Form11"); });
  add_stand_in_opener(registry, "Form6", "Command4", "Alpha Cal", [](Form& me, int) { show(me, "Form14"); });
  add_stand_in_opener(registry, "Form9", "Command4", "Cal Fcre", [](Form& me, int) { show(me, "Form11"); });
  add_stand_in_opener(registry, "Form9", "Command2", "Alpha Cal",
                      [](Form& me, int) { open_alpha_cal_for_v_brace(me.session()); });
}

}  // namespace qorvat::members
