#include "shell/navigation.hpp"

#include <string>
#include <utility>

namespace qorvat::shell {

bool any_showing(Session& session, std::span<const char* const> names) {
  bool showing = false;
  for (const char* name : names) showing = session.visible(name) || showing;
  return showing;
}

void leave_sections_menu(Session& session) {
  session.show("Form4");
  session.hide("Form47");
}

namespace {

void set_rule(DialogRegistry& registry, const char* name, CloseRoutine rule) {
  registry.find_mutable(name)->navigation = std::move(rule);
}

CloseRoutine back_to(std::string target) {
  return [target = std::move(target)](Form& me, bool&) { me.session().show(target); };
}

// Shows the target unless one of the listed dialogs is showing.
CloseRoutine back_to_unless(std::string target, std::initializer_list<const char*> callers) {
  std::vector<const char*> names(callers);
  return [target = std::move(target), names](Form& me, bool&) {
    if (!any_showing(me.session(), names)) me.session().show(target);
  };
}

CloseRoutine destroying_form3(CloseRoutine then) {
  return [then = std::move(then)](Form& me, bool& cancel) {
    me.session().close("Form3");
    then(me, cancel);
  };
}

}  // namespace

void register_navigation(DialogRegistry& r) {
  set_rule(r, "Form4", [](Form& me, bool&) { me.session().end_program(); });

  for (const char* name : {"Form6", "Form9", "Form22", "Form23", "Form36"}) {
    set_rule(r, name, back_to("Form4"));
  }
  // Standard 2800 hands its values to the load calculator that opened it, which stays in front.
  set_rule(r, "Form26", back_to_unless("Form4", {"Form41", "Form52", "Form51", "Form7"}));
  // Opened from Check Section, Form5 goes back to it instead of the menu.
  set_rule(r, "Form5", [](Form& me, bool&) {
    Session& s = me.session();
    s.show(s.visible("Form15") ? "Form15" : "Form4");
  });
  set_rule(r, "Form8", back_to_unless("Form4", {"Form22"}));
  set_rule(r, "Form35", back_to_unless("Form4", {"Form15"}));
  set_rule(r, "Form15", back_to_unless("Form4", {"Form2", "Form3", "Form21", "Form27", "Form32", "Form36", "Form6",
                                                 "Form9", "Form35", "Form43"}));
  set_rule(r, "Form34", back_to_unless("Form4", {"Form6", "Form9"}));
  set_rule(r, "Form18", back_to_unless("Form4", {"Form31", "Form9", "Form6", "Form37", "Form35", "Form44", "Form27",
                                                 "Form32", "Form1"}));
  for (const char* name : {"Form28", "Form54", "Form75", "Form76", "Form77"}) set_rule(r, name, back_to("Form4"));

  r.find_mutable("Form47")->add(image("Image2")).on_click("Image2", [](Form& me, int) {
    leave_sections_menu(me.session());
  });
  set_rule(r, "Form47", [](Form& me, bool& cancel) {
    leave_sections_menu(me.session());
    cancel = true;
  });
  set_rule(r, "Form46", [](Form& me, bool& cancel) {
    me.hide();
    me.session().show("Form47");
    cancel = true;
  });

  set_rule(r, "Form1", [](Form& me, bool&) {
    Session& s = me.session();
    s.close("Form3");
    s.close("Form66");
    if (!s.visible("Form34")) s.show("Form28");
  });
  set_rule(r, "Form27", destroying_form3(back_to("Form28")));
  set_rule(r, "Form32", destroying_form3(back_to("Form28")));
  set_rule(r, "Form64", destroying_form3(back_to_unless("Form28", {"Form34"})));
  for (const char* name : {"Form19", "Form39", "Form57"}) set_rule(r, name, back_to("Form28"));
  set_rule(r, "Form10", [](Form& me, bool&) {
    if (me.val("Text30") == 1) me.session().show("Form28");
  });

  for (const char* name : {"Form7", "Form55", "Form73", "formKS"}) set_rule(r, name, back_to("Form54"));

  set_rule(r, "Form16", [](Form& me, bool&) {
    Session& s = me.session();
    if (!s.visible("Form22")) s.show("Form76");
    s.hide("Form68");
  });
  for (const char* name : {"Form62", "Form68"}) set_rule(r, name, back_to("Form76"));

  set_rule(r, "Form37", [](Form& me, bool&) { me.session().show(me.val("Text14") == 1 ? "Form75" : "Form4"); });
  set_rule(r, "Form43", back_to("Form75"));
  for (const char* name : {"Form41", "Form51", "Form53"}) set_rule(r, name, back_to("Form77"));

  set_rule(r, "Form24", destroying_form3(back_to_unless("Form18", {"Form36", "Form27", "Form32"})));
  set_rule(r, "Form17", destroying_form3(back_to_unless("Form18", {"Form27", "Form32"})));
}

}  // namespace qorvat::shell
