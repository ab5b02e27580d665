#include "members/check_section_dialog.hpp"

#include <memory>
#include <utility>

#include "members/check_section_parts.hpp"
#include "members/rbs_dialog.hpp"

namespace qorvat::members {
namespace check_section {

SeismicCode i_shape_code(const Form& me) {
  if (me["Option1"].selected()) return SeismicCode::Mabhas1401;
  if (me["Option7"].selected()) return SeismicCode::Aisc341_16;
  return SeismicCode::Mabhas1392;
}

Ductility i_shape_ductility(const Form& me) { return me["Check1"].ticked() ? Ductility::High : Ductility::Medium; }

SeismicCode box_code(const Form& me) {
  if (me["Option3"].selected()) return SeismicCode::Mabhas1401;
  if (me["Option8"].selected()) return SeismicCode::Aisc341_16;
  return SeismicCode::Mabhas1392;
}

Ductility box_ductility(const Form& me) { return me["Check3"].ticked() ? Ductility::High : Ductility::Medium; }

bool any_showing(Session& s, std::initializer_list<const char*> names) {
  bool showing = false;
  for (const char* name : names) showing = s.visible(name) || showing;
  return showing;
}

void keep_exclusive(Form& me, const char* clicked, const char* other) {
  me[other].set_value(me[clicked].ticked() ? 0 : 1);
}

void tick_high_if_no_class(Form& me, const char* high, const char* medium) {
  if (!me[high].ticked() && !me[medium].ticked()) me[high].set_value(1);
}

namespace {

void open_dialog(Form& me, KeptBox& kept) {
  kept.reset(me);
  // Each selection runs its click, as picking it would.
  me["Option2"].set_selected(true);
  me["Option5"].set_selected(true);
  me["Check1"].set_value(1);
  me["Option4"].set_selected(true);
  me["Check3"].set_value(1);
  me["Combo1"].set_list_index(0);
}

}  // namespace
}  // namespace check_section

void register_check_section_dialog(DialogRegistry& registry) {
  using namespace check_section;
  DialogType type = *registry.find("Form15");
  // The stand-in's fields and "Stahl" are declared again in their places.
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());

  auto kept = std::make_shared<KeptBox>();
  type.on_open = [kept](Form& me) { open_dialog(me, *kept); };
  type.on_close = [kept](Form& me, bool&) {
    hand_back(me);
    kept->forget(me);
  };
  add_i_shape_routines(type);
  add_box_routines(type, kept);
  add_handovers(type, kept);
  registry.add(std::move(type));

  registry.add(rbs_dialog(*registry.find("Form56")));
}

}  // namespace qorvat::members
