// Tank's Force (Form51): the impulsive and convective parts of a tank's
// liquid, the spectral values fetched from the seismic calculator, and the
// forces they give.

#include <string>
#include <utility>

#include "loads/nonstructural_dialog_parts.hpp"
#include "loads/tank_forces.hpp"
#include "runtime/colors.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::loads {
namespace {

// The sheet behind "?": a section through the tank with the two parts of the
// liquid at their heights.
void draw_sheet(Control& sheet) {
  sheet.set_scale({0, 0, 100, 100});
  auto line = [&](double x1, double y1, double x2, double y2) {
    sheet.draw({DrawCommand::Kind::Line, x1, y1, x2, y2, {}, {}, colors::kBlack});
  };
  auto text = [&](double x, double y, const char* words) {
    sheet.draw({DrawCommand::Kind::Text, x, y, 0, 0, words, {}, colors::kBlack});
  };
  // Walls and floor, the liquid surface and its height.
  line(15, 10, 15, 85);
  line(85, 10, 85, 85);
  line(15, 85, 85, 85);
  line(15, 30, 85, 30);
  line(90, 30, 90, 85);
  text(88, 27, "HL");
  // The convective part high in the liquid, the impulsive part low.
  line(35, 45, 65, 45);
  line(25, 45, 25, 85);
  text(45, 40, "Wc");
  text(18, 62, "hc");
  line(35, 70, 65, 70);
  line(75, 70, 75, 85);
  text(45, 65, "Wi");
  text(77, 76, "hi");
  text(30, 90, "L(x), B(y) / D");
}

void on_open(Form& me) {
  me["Option1"].set_selected(true);
  me["Combo1"].set_list_index(0);
  draw_sheet(me["Picture2"]);
}

// Concrete tanks take Rc = 1, steel tanks 2.
void material_chosen(Form& me) { me.set_text("Text17", me["Combo1"].list_index() == 1 ? "2" : "1"); }

void calculate_liquid(Form& me) {
  const TankResult r =
      tank_liquid_split({.shape = me["Option1"].selected() ? TankShape::Rectangular : TankShape::Cylindrical,
                         .L = me.val("Text1"),
                         .B = me.val("Text2"),
                         .D = me.val("Text10"),
                         .HL = me.val("Text3"),
                         .ML = me.val("Text4")});
  if (r.missing_input) {
    me.session().message_box("error in input data...!");
    return;
  }
  // clang-format off
  const std::pair<const char*, double> results[] = {
      {"Text5", r.x.Tc},  {"Text6", r.y.Tc},
      {"Text7", r.x.Wi},  {"Text8", r.x.Wc}, {"Text9", r.y.Wi}, {"Text11", r.y.Wc}, {"Text12", r.Wt},
      {"Text13", r.x.hi}, {"Text14", r.y.hi}, {"Text15", r.x.hc}, {"Text16", r.y.hc},
  };
  // clang-format on
  for (const auto& [field, value] : results) me.set_rounded(field, value, 2);
}

void calculate_forces(Form& me) {
  const TankForceResult r = tank_seismic_forces({.Sa_i = me.val("Text18"),
                                                 .Sc_x = me.val("Text19"),
                                                 .Sc_y = me.val("Text20"),
                                                 .Wix = me.val("Text7"),
                                                 .Wiy = me.val("Text9"),
                                                 .Wcx = me.val("Text8"),
                                                 .Wcy = me.val("Text11"),
                                                 .Ri = me.val("Text22"),
                                                 .Rc = me.val("Text17"),
                                                 .b = me.val("Text27")});
  me.set_rounded("Text23", r.Pi_x, 2);
  me.set_rounded("Text24", r.Pi_y, 2);
  me.set_rounded("Text25", r.Pc_x, 2);
  me.set_rounded("Text26", r.Pc_y, 2);
  if (me["Option1"].selected()) me.session().message_box("alfa =" + rounded_text(r.alfa, 2));
}

// The seismic calculator, kept to the spectrum at one period: the behaviour
// factor, the period formula and the building frame are not its business here.
// The marker tells its closing which of the convective values it serves.
void ask_spectral_value(Form& me, const char* marker, const std::string& period) {
  Session& s = me.session();
  if (marker != nullptr) me.set_text("Text21", marker);
  s.show("Form26");
  Form& seismic = s.form("Form26");
  seismic["Combo2"].set_visible(false);
  seismic["Picture1"].set_enabled(false);
  seismic["Frame5"].set_enabled(false);
  seismic["Command5"].set_enabled(false);
  seismic.set_text("Text5", period);
}

// The floor spectrum replaces the three requests to the seismic calculator.
void floor_spectrum_clicked(Form& me) {
  const bool on = me["Check1"].ticked();
  for (const char* request : {"Command2", "Command3", "Command4"}) me[request].set_enabled(!on);
  if (!on) return;
  Session& s = me.session();
  s.show("Form52");
  s.form("Form52").set_text("Text3", me.text("Text5"));
  s.form("Form52").set_text("Text4", me.text("Text6"));
}

}  // namespace

DialogType tank_force_dialog(DialogType type) {
  // clang-format off
  type.add({
      option_button("Option1", "مخزن مستطيلي"),
      label("Label1", "L(x)="),   text_box("Text1"), label("Label2", "m"),
      label("Label3", "B(y)="),   text_box("Text2"), label("Label4", "m"),
      option_button("Option2", "مخزن استوانه اي"),
      label("Label5", "D="),      text_box("Text10"), label("Label6", "m"),
      label("Label7", "HL="),     text_box("Text3"), label("Label8", "m"),
      label("Label9", "ML="),     text_box("Text4", "1000"), label("Label10", "kg/m3"),
      button("Command1", "Cal"),
      label("Label11", "Tc(x)="), text_box("Text5"), label("Label12", "sec"),
      label("Label13", "Tc(y)="), text_box("Text6"), label("Label14", "sec"),
      label("Label15", "Wix="),   text_box("Text7"), label("Label16", "ton"),
      label("Label17", "Wcx="),   text_box("Text8"), label("Label18", "ton"),
      label("Label19", "Wiy="),   text_box("Text9"), label("Label20", "ton"),
      label("Label21", "Wcy="),   text_box("Text11"), label("Label22", "ton"),
      label("Label23", "Wt="),    text_box("Text12"), label("Label24", "ton"),
      label("Label25", "hi(x)="), text_box("Text13"), label("Label26", "m"),
      label("Label27", "hi(y)="), text_box("Text14"), label("Label28", "m"),
      label("Label29", "hc(x)="), text_box("Text15"), label("Label30", "m"),
      label("Label31", "hc(y)="), text_box("Text16"), label("Label32", "m"),
      combo_box("Combo1", {"بتني", "فولادي"}, "بتني").picked_only(),
      label("Label33", "Ri="),    text_box("Text22", "2"),
      label("Label34", "Rc="),    text_box("Text17", "1"),
      label("Label35", "b="),     text_box("Text27", "0.67"),
      label("Label36", "Sa(i)="), text_box("Text18"), button("Command2", "Cal"),
      label("Label37", "Sc(x)="), text_box("Text19"), button("Command3", "Cal"),
      label("Label38", "Sc(y)="), text_box("Text20"), button("Command4", "Cal"),
      check_box("Check1", "استفاده از طيف طبقه"),
      text_box("Text21", "0").hidden(),
      button("Command5", "Cal"),
      label("Label39", "Pi(x)="), text_box("Text23"), label("Label40", "ton"),
      label("Label41", "Pi(y)="), text_box("Text24"), label("Label42", "ton"),
      label("Label43", "Pc(x)="), text_box("Text25"), label("Label44", "ton"),
      label("Label45", "Pc(y)="), text_box("Text26"), label("Label46", "ton"),
      button("Command6", "?"),
      picture_box("Picture2").hidden(),
  });
  // clang-format on
  type.on_open = on_open;
  type.on_click("Combo1", [](Form& me, int) { material_chosen(me); });
  type.on_click("Command1", [](Form& me, int) { calculate_liquid(me); });
  type.on_click("Command5", [](Form& me, int) { calculate_forces(me); });
  type.on_click("Command2", [](Form& me, int) { ask_spectral_value(me, nullptr, "0.3"); });
  type.on_click("Command3", [](Form& me, int) { ask_spectral_value(me, "1", me.text("Text5")); });
  type.on_click("Command4", [](Form& me, int) { ask_spectral_value(me, "2", me.text("Text6")); });
  type.on_click("Check1", [](Form& me, int) { floor_spectrum_clicked(me); });
  type.on_click("Command6", [](Form& me, int) { me["Picture2"].set_visible(!me["Picture2"].visible()); });
  return type;
}

}  // namespace qorvat::loads
