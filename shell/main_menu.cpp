#include "shell/main_menu.hpp"

#include "runtime/session.hpp"

namespace qorvat::shell {
namespace {

struct MenuButton {
  const char* button;
  const char* caption;
  const char* target;
  void (*after_show)(Session&) = nullptr;
};

// The bolt selector offers the end-plate option only when opened from the menu.
void offer_end_plate(Session& s) { s.form("Form18")["Option2"].set_enabled(true); }

// clang-format off
constexpr MenuButton kMenu[] = {
    {"Command1", "K and Fa (Fcre) Cal", "Form5"},
    {"Command2", "Beam Connection", "Form28"},
    {"Command3", "CBF Corner Connection", "Form6"},
    {"Command4", "Seismic Foundation", "Form54"},
    {"Command5", "Floor Vibration", "Form8"},
    {"Command6", "V Brace Connection", "Form9"},
    {"Command7", "Check Section", "Form15"},
    {"Command8", "Concrete (Mu, Ld, ...)", "Form76"},
    {"Command9", "Bolt Design", "Form18", offer_end_plate},
    {"Command10", "Deck Design", "Form22"},
    {"Command11", "Creep && Shrinkage", "Form23"},
    {"Command12", "Cal. \" C \"", "Form26"},
    {"Command13", "Column Splice", "Form35"},
    {"Command14", "Base Plate", "Form36"},
    {"Command15", "CBF Middle Connection", "Form37"},
    {"Command16", "Section Properties", "Form47"},
    {"Command17", "Non Structural Force", "Form77"},
    {"Command18", "EBF Braces", "Form75"},
};
// clang-format on

}  // namespace

void register_main_menu(DialogRegistry& registry) {
  DialogType type = *registry.find("Form4");
  type.add(picture_box("Picture1"));
  for (const auto& entry : kMenu) {
    type.add(button(entry.button, entry.caption));
    type.on_click(entry.button, [entry](Form& me, int) {
      me.hide();
      me.session().show(entry.target);
      if (entry.after_show != nullptr) entry.after_show(me.session());
    });
  }
  registry.add(std::move(type));
}

}  // namespace qorvat::shell
