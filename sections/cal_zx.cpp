// Cal Zx (Form58): the moment and plastic modulus of a facade wall post from
// the wind pressure the wind load dialog hands over.

#include <utility>

#include "runtime/form.hpp"
#include "sections/section_helper_dialogs.hpp"
#include "sections/section_helpers.hpp"
#include "sections/wall_post.hpp"

namespace qorvat::sections {

void open_cal_zx(Session& s) {
  s.form("Form58").set_text("Text5", s.form("Form53").text("Text12"));
  s.show("Form58");
}

void register_cal_zx(DialogRegistry& registry) {
  DialogType type = catalog_entry(registry, "Form58");
  // clang-format off
  type.add({
      label("Label1", "Pt="), text_box("Text5"), label("Label2", "kg/m2"),
      label("Label3", "S="), text_box("Text1"), label("Label4", "m"),
      label("Label5", "h="), text_box("Text2"), label("Label6", "m"),
      label("Label7", "وال پست دو سر مفصل فرض شده است"),
      button("Command1", "Cal Mu, Zx"),
      label("Label8", "Mu="), text_box("Text3"), label("Label9", "Ton,m"),
      label("Label10", "Zx="), text_box("Text4"), label("Label11", "cm3"),
  });
  // clang-format on
  type.on_click("Command1", [](Form& me, int) {
    const WallPostResult r = wall_post_modulus({.p = me.val("Text5"), .S = me.val("Text1"), .h = me.val("Text2")});
    me.set_rounded("Text3", r.Mu, 2);
    me.set_rounded("Text4", r.Zx, 0);
  });
  registry.add(std::move(type));
}

}  // namespace qorvat::sections
