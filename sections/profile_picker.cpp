#include "sections/profile_picker.hpp"

#include <cmath>
#include <utility>

#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"
#include "sections/profile_database.hpp"

namespace qorvat::sections {
namespace {

constexpr const char* kGrid = "MSFlexGrid1";
constexpr int kGridWidth = 4500;
constexpr int kColumnWidth = 550;
constexpr const char* kHeadings[] = {"I or U", "h", "b", "s", "t", "r2", "c", "h-2c", "F", "Ix", "Iy", "Sx", "Sy"};

// Grid column -> picker field, as a row click copies them.
constexpr std::pair<int, const char*> kPickedColumns[] = {{1, "Text15"}, {8, "Text16"}, {9, "Text17"},
                                                          {3, "Text14"}, {10, "Text19"}, {2, "Text13"},
                                                          {4, "Text21"}, {6, "Text31"}};

// Channel area (cm2) -> the value Fa Calculation's Text20 takes for it.
constexpr std::pair<double, const char*> kChannelText20[] = {
    {7.12, "0.84"}, {6.46, "1.25"}, {9.03, "1.33"}, {11, "1.47"},   {13.5, "1.59"}, {17, "1.75"},   {20.4, "1.89"},
    {24, "2.02"},   {28, "2.14"},   {32.2, "2.30"}, {37.4, "2.42"}, {42.3, "2.56"}, {48.3, "2.74"}, {53.3, "2.90"},
    {10.1, "1.59"}, {12.5, "1.75"}, {15.4, "1.90"}, {18.4, "2.07"}, {21.7, "2.22"}, {25.1, "2.39"}, {29, "2.54"},
};

// The picked row as the picker's fields hold it (mm, cm2, cm4).
struct PickedProfile {
  double H, b, s, t, c, F, Ix, Iy;
};

PickedProfile read_picked(const Form& picker) {
  return {picker.val("Text15"), picker.val("Text13"), picker.val("Text14"), picker.val("Text21"),
          picker.val("Text31"), picker.val("Text16"), picker.val("Text17"), picker.val("Text19")};
}

// What the callers take of it besides the raw figures.
struct ProfileMeasures {
  double h;   // depth, cm
  double Sx;  // elastic modulus from Ix and the depth, cm3
  double Zx;  // plastic modulus taken as 1.13 Sx, cm3
};

ProfileMeasures measures_of(const PickedProfile& p) {
  const double h = p.H / 10;
  const double Sx = checked_div(p.Ix, h / 2);
  return {h, Sx, 1.13 * Sx};
}

// The connection dialogs' channel data, with Fa Calculation filled whether it shows or not.
void hand_to_brace_dialog(Session& s, const char* dialog, const char* thickness_field, const Form& picker,
                          const PickedProfile& p, const ProfileMeasures& m) {
  Form& f = s.form(dialog);
  f.set_text("Text1", picker.text("Text16"));
  f.set_rounded("Text7", m.h, 2);
  f.set_text(thickness_field, picker.text("Text21"));
  f.set_number("Text20", reduced_flange_thickness(p.t));
}

void fill_fa_calculation(Session& s, const Form& picker, const PickedProfile& p, const ProfileMeasures& m) {
  Form& fa = s.form("Form11");
  fa.set_text("Text1", picker.text("Text16"));
  fa.set_text("Text2", picker.text("Text17"));
  fa.set_text("Text3", picker.text("Text19"));
  fa.set_text("Text8", picker.text("Text14"));
  fa.set_rounded("Text9", p.b / 10, 2);
  fa.set_rounded("Text15", m.h, 2);
  for (const auto& [area, text] : kChannelText20) {
    if (p.F == area) fa.set_text("Text20", text);
  }
}

// "Ok": every showing caller gets what it needs of the row, in this order.
void hand_out(Form& picker) {
  Session& s = picker.session();
  const PickedProfile p = read_picked(picker);
  if (p.F == 0 || p.H == 0) {
    s.message_box("erro..! please Select the profile ");
    return;
  }
  const ProfileMeasures m = measures_of(p);

  if (s.visible("Form37")) hand_to_brace_dialog(s, "Form37", "Text29", picker, p, m);
  if (s.visible("Form6") && !s.visible("Form34")) {
    hand_to_brace_dialog(s, "Form6", "Text29", picker, p, m);
    fill_fa_calculation(s, picker, p, m);
  }
  if (s.visible("Form9") && !s.visible("Form34")) {
    hand_to_brace_dialog(s, "Form9", "Text9", picker, p, m);
    fill_fa_calculation(s, picker, p, m);
  }
  if (s.visible("Form8")) {
    Form& f = s.form("Form8");
    f.set_number("Text10", p.F);
    f.set_text("Text11", picker.text("Text17"));
    f.set_rounded("Text12", m.h, 2);
    f.set_rounded("Text40", p.b / 10, 2);
  }
  if (s.visible("Form3")) {
    Form& f = s.form("Form3");
    f.set_rounded("Text12", m.h, 2);
    f["Text12"].set_enabled(false);
    f.set_rounded("Text13", p.t / 10, 2);
    f.set_rounded("Text14", p.b / 10, 2);
    f.set_rounded("Text16", (p.H - 2 * p.c) / 10, 2);
    f.set_number("Text17", p.Ix);
    f.set_rounded("Text11", p.s / 10, 2);
    f.set_rounded("Text1", f["Check1"].value() == 0 ? m.Sx : m.Zx, 2);
    // The beam connection and the panel zone check take the depth even when closed.
    s.form("Form1").set_rounded("Text18", m.h, 2);
    s.form("Form10").set_rounded("Text11", m.h, 2);
    s.form("Form1").set_text("Text41", "1");
  }
  if (s.visible("Form21")) {
    Form& f = s.form("Form21");
    f.set_rounded("Text1", m.Zx, 2);
    f.set_rounded("Text3", m.h, 2);
  }
  if (s.visible("Form22")) {
    Form& f = s.form("Form22");
    if (f["Check1"].value() == 1) {
      f.set_text("Text10", picker.text("Text16"));
      f.set_rounded("Text16", m.h, 2);
      f.set_rounded("Text6", p.b / 10, 2);
      f.set_number("Text22", p.Ix);
      const double stud_row = round_half_even(p.b / 10 - 2, 0);
      f.set_number("Text21", stud_row);
      if (f["Check3"].value() == 0) f.set_number("Text4", stud_row);
    } else {
      f.set_rounded("Text1", m.h, 2);
      f.set_rounded("Text3", p.s / 10, 2);
      f.set_rounded("Text2", p.t / 10, 2);
    }
  }
  if (s.visible("Form2")) {
    Form& f = s.form("Form2");
    f.set_rounded("Text1", p.H * p.s / 100, 1);  // shear area of the web, cm2
    f.set_rounded("Text4", m.h, 2);
  }
  if (s.visible("Form34")) {
    Form& f = s.form("Form34");
    f.set_rounded("Text5", p.t / 10, 2);
    f.set_rounded("Text8", m.h, 2);
    f.set_rounded("Text4", p.c / 10, 2);
    f.set_rounded("Text13", s.form("Form9")["Check2"].value() == 1 ? m.Zx : m.Sx, 0);
  }
  if (s.visible("Form15")) {
    Form& f = s.form("Form15");
    f.set_rounded("Text38", m.Zx, 2);
    f.set_rounded("Text35", m.h, 2);
    f.set_rounded("Text44", p.Iy, 2);
    f.set_rounded("Text39", checked_sqrt(checked_div(p.Iy, p.F)), 2);
    f.set_rounded("Text36", p.t / 10, 2);
    f.set_rounded("Text37", m.Sx, 1);
  }
  if (s.visible("Form43")) {
    Form& f = s.form("Form43");
    f.set_rounded("Text5", m.Zx, 2);
    f.set_rounded("Text1", m.h, 2);
    f.set_rounded("Text4", p.Ix, 2);
    f.set_rounded("Text3", p.s / 10, 2);
    f.set_rounded("Text2", p.t / 10, 2);
    f.set_rounded("Text21", p.F, 2);
  }
  s.close("Form13");
}

void pick_row(Form& picker) {
  const Control& grid = picker[kGrid];
  const int row = grid.row();
  if (row < 0) return;
  for (const auto& [column, field] : kPickedColumns) {
    if (column < grid.cols()) picker.set_text(field, grid.cell(row, column));
  }
}

}  // namespace

double reduced_flange_thickness(double t_mm) { return t_mm > 6 ? int_floor(t_mm) : int_floor(t_mm - 2); }

void open_profile_picker(Session& s, const StahlRequest& request) {
  const TableRead read = read_profile_table(s.profiles_path, request.table);
  if (!read.ok()) {
    s.message_box(read.error());
    return;
  }
  Form& picker = s.form("Form13");
  const bool channels = request.table == "navdani";
  picker["Picture1"].set_visible(!channels);
  picker["Picture3"].set_visible(channels);

  Control& grid = picker[kGrid];
  grid.set_size(kGridWidth, grid.height());
  grid.set_grid_size(grid.rows(), request.grid_columns);
  for (int col = 0; col < request.fields_read && col < request.grid_columns; ++col) {
    grid.set_col_width(col, kColumnWidth);
    if (col < static_cast<int>(std::size(kHeadings))) grid.set_col_heading(col, kHeadings[col]);
  }
  std::vector<std::vector<std::string>> rows;
  rows.reserve(read.table().rows.size());
  for (const auto& record : read.table().rows) {
    const auto n = std::min<std::size_t>(record.size(), static_cast<std::size_t>(request.fields_read));
    rows.emplace_back(record.begin(), record.begin() + static_cast<std::ptrdiff_t>(n));
  }
  grid.fill_rows(rows);
  s.show("Form13");
}

void register_profile_picker(DialogRegistry& registry) {
  DialogType type = *registry.find("Form13");
  type.add({picture_box("Picture1"), picture_box("Picture3").hidden(), grid(kGrid, 1, 16),
            label("Label1", "H=(mm)"), text_box("Text15"), label("Label2", "b =(mm)"), text_box("Text13"),
            label("Label3", "s=(mm)"), text_box("Text14"), label("Label4", "t=(mm)"), text_box("Text21"),
            label("Label5", "c=(mm)"), text_box("Text31"), label("Label6", "F=(cm2)"), text_box("Text16"),
            label("Label7", "I=(cm4)"), text_box("Text17"), label("Label8", "Iy=(cm4)"), text_box("Text19"),
            check_box("Check3", "").hidden(), button("Command1", "Cancel"), button("Command2", "Ok")});
  type.on_open = [](Form& me) {
    for (const char* field : {"Text13", "Text14", "Text15", "Text16", "Text17"}) me.set_text(field, "");
  };
  type.on_click(kGrid, [](Form& me, int) { pick_row(me); });
  // A double click on a row takes it at once, as "Ok" would.
  type.on(kGrid, Event::DblClick, [](Form& me, int) { hand_out(me); });
  type.on_click("Command1", [](Form& me, int) {
    me["Check3"].set_visible(false);
    me.session().close("Form13");
  });
  type.on_click("Command2", [](Form& me, int) { hand_out(me); });
  registry.add(std::move(type));
}

}  // namespace qorvat::sections
