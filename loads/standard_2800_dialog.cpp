// Standard 2800 4th (Form26): the design acceleration B.A, the coefficient C,
// the exponent K and the period, handed back to the load calculator that
// opened it.

#include <initializer_list>
#include <utility>
#include <vector>

#include "loads/seismic_coefficient.hpp"
#include "loads/standard_2800_parts.hpp"
#include "runtime/session.hpp"

namespace qorvat::loads {
namespace {

constexpr Color kGreen = 65280;  // full green, the counterpart of the red of a governing minimum

// Joins the rows of a dialog table, a frame's controls right after the frame.
std::vector<ControlDecl> joined(std::initializer_list<std::vector<ControlDecl>> parts) {
  std::vector<ControlDecl> all;
  for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

// clang-format off
std::vector<ControlDecl> controls() {
  return joined({
      {label("Label1", "A (g)="), text_box("Text1", "0.35"), frame("Frame4", "")},
      inside("Frame4", {label("Label2", "Ru="),
                        combo_box("Combo2", {"2.0", "3.0", "3.5", "4.0", "5.0", "5.5", "6.0", "6.5", "7.0", "7.5"}, "5.0"),
                        label("Label3", "I="), combo_box("Combo1", {"0.8", "1.0", "1.2", "1.4"}, "1.0")}),
      {label("Label4", "H (m)="), text_box("Text4"),
       label("Label5", "T(sec)="), text_box("Text5"),
       button("Command5", "Cal"),
       frame("Frame1", "Soil Type")},
      inside("Frame1", {option_button("Option1", "I"), option_button("Option2", "II"),
                        option_button("Option3", "III"), option_button("Option4", "IV")}),
      {frame("Frame2", "Hazard")},
      inside("Frame2", {option_button("Option5", "Low"), option_button("Option7", "Moderate"),
                        option_button("Option6", "High"), option_button("Option8", "Very High")}),
      {frame("Frame5", "Period")},
      inside("Frame5", {option_button("Option9", "T=0.08 H^ 0.75  (قاب خمشي يا مهاربند برون محور فولادي)").selected(),
                        option_button("Option10", "T=0.05 H^ 0.9    (قاب خمشي بتن آرمه)"),
                        option_button("Option11", "T=0.05 H^ 0.75  (دوگانه، ديوار برشي يا مهاربند هم محور)"),
                        check_box("Check2", "افزايش 0.25 درصد")}),
      {label("Label8", "T (start)="), text_box("tstart", "0.01"),
       label("Label9", "T (end)="), text_box("tend", "4"),
       label("Label10", "Step="), text_box("xstep", "0.01"),
       button("Command1", "Show Diagram"), button("Command4", "Calculate C"), button("Command3", "Export B.A"),
       button("Command6", "SSI").disabled(), button("Command2", "Back"), button("xnext", "Next"),
       label("Label11", "B.A ="), text_box("Text3"),
       label("Label12", "C ="), text_box("Text6"),
       label("Label13", "K ="), text_box("Text7"),
       picture_box("Picture1"),  // the behaviour-factor table
       // The plot with its y strip beside it and its x strip below it.
       picture_box("picPlot").size(9790, 3400),
       picture_box("PicySxale").in("picPlot").size(700, 3000),
       picture_box("picContainer").in("picPlot").place(700, 0).size(9090, 3000),
       picture_box("picNemodar").in("picContainer").size(9090, 3000),
       line("Line2").in("picNemodar"), line("Line3").in("picNemodar"),
       picture_box("hr").in("picPlot").place(700, 3000).size(9090, 400),
       label("Label7", ""),
       slider("Slider1", 1, 10, 1), label("Label6", "X Axis Scale :1X"),
       scroll_bar("HScroll1", 0, 0).disabled()},
  });
}
// clang-format on

struct HazardOption {
  const char* option;
  const char* A;  // written into Text1 as it stands
};
constexpr HazardOption kHazardOptions[] = {
    {"Option5", "0.2"}, {"Option7", "0.25"}, {"Option6", "0.3"}, {"Option8", "0.35"}};

PeriodFormula period_formula_of(const Form& me) {
  if (me["Option10"].selected()) return PeriodFormula::ConcreteMomentFrame;
  if (me["Option11"].selected()) return PeriodFormula::DualWallOrConcentricBraces;
  return PeriodFormula::MomentFrameOrEccentricSteelBraces;
}

void open_standard_2800(Form& me) {
  reset_standard_2800_state(me);
  for (const char* key : {"Command3", "Command4", "Command5", "xnext", "Slider1"}) me[key].set_enabled(false);
  me["Combo2"].set_list_index(4);
  me["Combo1"].set_list_index(1);
}

void recalculate_spectrum(Form& me) {
  show_diagram(me);
  clear_outputs(me);
  calculate_c(me);
}

void recalculate_c(Form& me) {
  clear_outputs(me);
  calculate_c(me);
}

void recalculate_period(Form& me) {
  me.set_text("Text5", "");
  calculate_period(me);
}

void on_a_change(Form& me) {
  const bool usable = me.val("Text1") > 0;
  me["picContainer"].set_enabled(usable);
  me["Command1"].set_enabled(usable);
  // No diagram for an unusable A: drawing would enable Show Diagram again.
  if (!usable) return;
  show_diagram(me);
  calculate_c(me);
}

void on_h_change(Form& me) {
  me.set_text("Text5", "");
  me["Command5"].set_enabled(true);
  calculate_period(me);
}

// Soil-structure interaction: the period, the height and the shear-wave speed of the soil.
void open_ssi(Form& me) {
  Session& s = me.session();
  s.show("Form40");
  Form& ssi = s.form("Form40");
  ssi.set_number("Text1", me.val("Text5"));
  ssi.set_number("Text3", me.val("Text4"));
  if (const auto soil = soil_of(me)) {
    constexpr double kVs[] = {750, 565, 275, 175};  // m/s, soil I to IV
    ssi.set_number("Text4", kVs[static_cast<int>(*soil)]);
  }
}

// Whoever opened the dialog gets its values; the first caller showing wins.
void hand_back(Form& me) {
  Session& s = me.session();
  double S = standard_2800_state(me).spectrum.S;
  const double A = me.val("Text1");
  const double H = me.val("Text4");
  const double I = me.val("Combo1");
  const double BA = me.val("Text3");
  if (s.visible("Form41")) {
    Form& f = s.form("Form41");
    f.set_number("Text1", A);
    if (S == 0) S = 1.75;  // no diagram was made: 1+S comes out as 2.75
    f.set_number("Text2", 1 + S);
    if (H != 0) f.set_number("Text7", H);
  } else if (s.visible("Form52")) {
    Form& f = s.form("Form52");
    f.set_number("Text1", A);
    f.set_number("Text2", 1 + S);
    if (H != 0) f.set_number("Text7", H);
  } else if (s.visible("Form51")) {
    Form& f = s.form("Form51");
    f.set_rounded("Text18", (1 + S) * A * I, 2);
    const double marker = f.val("Text21");
    if (marker == 1 && BA != 0) f.set_number("Text19", BA * 1.5 * I);
    if (marker == 2 && BA != 0) f.set_number("Text20", BA * 1.5 * I);
  } else if (s.visible("Form7")) {
    Form& f = s.form("Form7");
    f.set_rounded("Text26", BA * 0.946, 2);
    f.set_number("Text27", A);
    f.set_number("Text3", A);
  }
}

void wire(DialogType& type) {
  auto routine = [](void (*body)(Form&)) { return [body](Form& me, int) { body(me); }; };
  for (const char* soil : {"Option1", "Option2", "Option3", "Option4"}) {
    type.on_click(soil, routine(recalculate_spectrum));
  }
  for (const auto& hazard : kHazardOptions) {
    type.on_click(hazard.option, [hazard](Form& me, int) {
      me.set_text("Text1", hazard.A);
      recalculate_spectrum(me);
    });
  }
  for (const char* combo : {"Combo1", "Combo2"}) {  // picked from the list or typed
    type.on_click(combo, routine(recalculate_c));
    type.on_change(combo, routine(recalculate_c));
  }
  type.on_change("Text5", routine(recalculate_c));
  for (const char* period : {"Option9", "Option10", "Option11", "Check2"}) {
    type.on_click(period, routine(recalculate_period));
  }
  type.on_change("Text4", routine(on_h_change));
  type.on_change("Text1", routine(on_a_change));

  type.on_click("Command1", routine(show_diagram));
  type.on_click("Command4", routine(calculate_c));
  type.on_click("Command5", routine(calculate_period));
  type.on_click("Command3", routine(export_spectrum));
  type.on_click("Command6", routine(open_ssi));
  type.on_click("Command2", [](Form& me, int) { me.session().close(me.name()); });
  type.on_click("Picture1", [](Form& me, int) { me.session().show("Form25"); });
  type.on("picNemodar", Event::MouseMove, routine(follow_pointer));
  type.on("Slider1", Event::Change, routine(change_x_scale));
  type.on("HScroll1", Event::Change, routine(scroll_plot));
}

}  // namespace

void clear_outputs(Form& me) {
  for (const char* key : {"Text3", "Text6", "Text7"}) me.set_text(key, "");
}

std::optional<SoilType> soil_of(const Form& me) {
  if (me["Option1"].selected()) return SoilType::I;
  if (me["Option2"].selected()) return SoilType::II;
  if (me["Option3"].selected()) return SoilType::III;
  if (me["Option4"].selected()) return SoilType::IV;
  return std::nullopt;
}

std::optional<Hazard> hazard_of(const Form& me) {
  if (me["Option5"].selected()) return Hazard::Low;
  if (me["Option7"].selected()) return Hazard::Moderate;
  if (me["Option6"].selected()) return Hazard::High;
  if (me["Option8"].selected()) return Hazard::VeryHigh;
  return std::nullopt;
}

void take_spectrum_parameters(const Form& me, Standard2800State& state) {
  if (const auto row = spectrum_parameters(soil_of(me), hazard_of(me))) state.spectrum = *row;
}

void calculate_c(Form& me) {
  const double Ru = me.val("Combo2");
  const double I = me.val("Combo1");
  const double A = me.val("Text1");
  const double T = me.val("Text5");
  if (Ru == 0 || I == 0 || A == 0 || T == 0) return;
  Standard2800State& state = standard_2800_state(me);
  take_spectrum_parameters(me, state);
  const auto sa = spectral_acceleration({A, T, state.spectrum, modification_exponent(hazard_of(me))});
  const auto c = seismic_coefficient({sa.BA, A, I, Ru, T});
  me["Text6"].set_back_color(c.minimum_governs ? colors::kRed : kGreen);
  me.set_rounded("Text6", c.C, 3);
  me.set_rounded("Text3", sa.BA, 2);
  me.set_rounded("Text7", c.K, 2);
  // The cursor takes B.A as shown, rounded.
  if (me.val("Text5") != 0 && me.val("Text3") != 0) place_cursor(me, T, me.val("Text3"));
}

void calculate_period(Form& me) {
  const double H = me.val("Text4");
  if (H != 0 && me.val("Combo2") != 0 && me.val("Combo1") != 0 && me.val("Text1") != 0) {
    me["Command6"].set_enabled(true);
    clear_outputs(me);
    const auto period = building_period({H, period_formula_of(me), me["Check2"].ticked()});
    me.set_rounded("Text5", period.T, 2);
  }
  if (me.val("Text5") != 0) place_cursor(me, me.val("Text5"), me.val("Text3"));
}

void register_standard_2800(DialogRegistry& registry) {
  DialogType type = *registry.find("Form26");
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());
  type.on_open = open_standard_2800;
  type.on_close = [](Form& me, bool&) {
    hand_back(me);
    forget_standard_2800_state(me);
  };
  wire(type);
  registry.add(std::move(type));
}

}  // namespace qorvat::loads
