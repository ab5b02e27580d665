#include "sections/picker_callers.hpp"

#include <vector>

#include "runtime/form.hpp"
#include "sections/profile_picker.hpp"

namespace qorvat::sections {
namespace {

struct StahlButton {
  const char* button;
  StahlRequest request;
};

struct PickerCaller {
  const char* dialog;
  std::vector<const char*> fields;
  std::vector<const char*> check_boxes;
  std::vector<StahlButton> stahl;
  std::vector<ControlDecl> others = {};  // labels and pictures a caller's hand-over touches
};

const StahlRequest kIpe{"ipe", 16, 13};

// clang-format off
const std::vector<PickerCaller>& picker_callers() {
  static const std::vector<PickerCaller> callers = {
      {"Form1", {"Text18", "Text41"}, {}, {}},
      {"Form2", {"Text1", "Text4"}, {}, {{"Command2", kIpe}}},
      {"Form3", {"Text1", "Text11", "Text12", "Text13", "Text14", "Text16", "Text17"}, {"Check1"}, {{"Command2", kIpe}}},
      {"Form6", {"Text1", "Text7", "Text20", "Text29", "Text10", "Text17", "Text30", "Text36"},
       {"Check2", "Check3", "Check4"}, {{"Command2", {"navdani", 12, 11}}}},
      {"Form8", {"Text10", "Text11", "Text12", "Text40"}, {}, {{"Command2", kIpe}}},
      {"Form9", {"Text1", "Text7", "Text9", "Text20", "Text17", "Text18", "Text23", "Text27"}, {"Check2"},
       {{"Command3", {"navdani", 13, 13}}}},
      {"Form10", {"Text11"}, {}, {}},
      {"Form11", {"Text1", "Text2", "Text3", "Text8", "Text9", "Text15", "Text20", "Text4", "Text5", "Text6", "Text7",
                  "Text16", "Text18", "Text19", "Text21"}, {"Check1"}, {},
       {label("Label4", "C(cm)="), label("Label8", "طول مهاربند"), label("Label18", "حداکثر فاصله لقمه ها   (cm)"),
        picture_box("Picture1")}},
      {"Form15", {"Text35", "Text36", "Text37", "Text38", "Text39", "Text44"}, {}, {{"Command5", {"ipe", 13, 13}}}},
      {"Form21", {"Text1", "Text3"}, {}, {{"Command1", {"ipe", 13, 13}}}},
      {"Form22", {"Text1", "Text2", "Text3", "Text4", "Text6", "Text10", "Text16", "Text21", "Text22"},
       {"Check1", "Check3"}, {{"Command2", {"ipe", 13, 13}}, {"Command3", {"navdani", 13, 11}}}},
      {"Form34", {"Text4", "Text5", "Text8", "Text13"}, {}, {{"Command4", kIpe}}},
      {"Form37", {"Text1", "Text7", "Text20", "Text29"}, {}, {{"Command2", {"navdani", 12, 11}}}},
      {"Form43", {"Text1", "Text2", "Text3", "Text4", "Text5", "Text21"}, {}, {{"Command2", kIpe}}},
      // What Check Section hands to the column splice and the base plate.
      {"Form35", {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text9", "Text10", "Text17", "Text24",
                  "Text35", "Text36", "Text37"}, {}, {}, {combo_box("Combo1", {"E60", "E70"}, "E70")}},
      {"Form36", {"Text8", "Text9", "Text49"}, {}, {},
       {option_button("Option1", " H ستون"), option_button("Option2", " Box  ستون").selected()}},
  };
  return callers;
}
// clang-format on

// What the small section calculators read from or hand back into dialogs not
// built in full yet, with those dialogs' design defaults. Plain data: one
// initializer list of ControlDecl temporaries this long upsets the stack
// checking of the sanitizer build.
struct StandInControl {
  const char* dialog;
  ControlKind kind;
  const char* name;
  const char* text = "";
  bool hidden = false;
  bool ticked_and_locked = false;
};

constexpr ControlKind kText = ControlKind::TextBox;
constexpr ControlKind kCheck = ControlKind::CheckBox;

// clang-format off
constexpr StandInControl kSectionHelperStandIns[] = {
    {"Form1", kText, "Text1"}, {"Form1", kText, "Text13", "Text13"}, {"Form1", kText, "Text17"},
    {"Form1", kText, "Text21", "0.85"}, {"Form1", kText, "Text26"}, {"Form1", kText, "Text36", "0.75"},
    {"Form1", kText, "Text39", "0", true}, {"Form1", kCheck, "Check5", "طول ورق براساس نشريه 264"},
    {"Form1", kCheck, "Check6", "مقاومت نهايي 92و01", false, true},
    {"Form1", ControlKind::Label, "Label74", "طول ورقها بايد برابر باشد", true},
    {"Form10", kText, "Text8"}, {"Form10", kCheck, "Check2", "Check2"},
    {"Form12", kText, "Text1"}, {"Form12", kText, "Text6"}, {"Form12", kCheck, "Check1", "Check1"},
    {"Form12", ControlKind::OptionButton, "Option1", "Option1"},
    {"Form15", ControlKind::CommandButton, "Command4", "Col Splice"},
    {"Form17", kText, "Text6"}, {"Form19", kText, "Text21"}, {"Form24", kText, "Text6"},
    {"Form27", kText, "Text1"}, {"Form27", kText, "Text2"}, {"Form27", kText, "Text4", "2400"},
    {"Form27", kText, "Text5", "Text5"}, {"Form27", kText, "Text6"}, {"Form27", kText, "Text8"},
    {"Form27", kText, "Text16", "1"}, {"Form27", kText, "Text17", "Text17"}, {"Form27", kText, "Text18", "Text18"},
    {"Form27", kText, "Text23", "Text23"}, {"Form27", kText, "Text27", "Text27"},
    {"Form27", kText, "Text28", "Text28"}, {"Form27", kText, "Text30", "Text30"},
    {"Form27", kText, "Text31", "Text31"}, {"Form27", kText, "Text32", "Text32"},
    {"Form29", kText, "Text7"}, {"Form29", kText, "Text8", "0"},
    {"Form29", kCheck, "Check1", "مقاومت نهايي 92 و 01"}, {"Form29", kCheck, "Check2", "وصله", true},
    {"Form32", kText, "Text1"}, {"Form32", kText, "Text2"}, {"Form32", kText, "Text4", "2400"},
    {"Form32", kText, "Text5", "Text5"}, {"Form32", kText, "Text6"}, {"Form32", kText, "Text8"},
    {"Form32", kText, "Text17", "Text17"}, {"Form32", kText, "Text18", "Text18"},
    {"Form53", kText, "Text12"},
    // What Standard 2800 hands back to the load calculators that open it.
    {"Form41", kText, "Text1"}, {"Form41", kText, "Text2"}, {"Form41", kText, "Text7"},
    {"Form52", kText, "Text1"}, {"Form52", kText, "Text2"}, {"Form52", kText, "Text7"},
    // What the tank calculator hands to the floor spectrum.
    {"Form52", kText, "Text3"}, {"Form52", kText, "Text4"},
    {"Form51", kText, "Text18"}, {"Form51", kText, "Text19"}, {"Form51", kText, "Text20"},
    {"Form51", kText, "Text21", "", true},
    {"Form7", kText, "Text3"}, {"Form7", kText, "Text26"}, {"Form7", kText, "Text27"},
    // What Check Section hands to the rigid connections and to fire protection.
    {"Form27", kText, "Text20", "1"}, {"Form32", kText, "Text20", "1"}, {"Form67", kText, "Text10"},
};
// clang-format on

ControlDecl declaration(const StandInControl& c) {
  ControlDecl d;
  switch (c.kind) {
    case ControlKind::CheckBox: d = check_box(c.name, c.text); break;
    case ControlKind::Label: d = label(c.name, c.text); break;
    case ControlKind::OptionButton: d = option_button(c.name, c.text); break;
    case ControlKind::CommandButton: d = button(c.name, c.text); break;
    default: d = text_box(c.name, c.text); break;
  }
  if (c.hidden) d.hidden();
  if (c.ticked_and_locked) d.checked().disabled();
  return d;
}

bool declares(const DialogType& type, const char* name) {
  for (const auto& c : type.controls) {
    if (c.name == name && c.index < 0) return true;
  }
  return false;
}

}  // namespace

void register_picker_callers(DialogRegistry& registry) {
  for (const auto& caller : picker_callers()) {
    DialogType& type = *registry.find_mutable(caller.dialog);
    for (const char* field : caller.fields) {
      if (!declares(type, field)) type.add(text_box(field));
    }
    for (const char* check : caller.check_boxes) {
      if (!declares(type, check)) type.add(check_box(check, check));
    }
    for (const auto& other : caller.others) {
      if (!declares(type, other.name.c_str())) type.add(other);
    }
    for (const auto& stahl : caller.stahl) {
      if (declares(type, stahl.button)) continue;
      type.add(button(stahl.button, "Stahl"));
      type.on_click(stahl.button, [request = stahl.request](Form& me, int) {
        open_profile_picker(me.session(), request);
      });
    }
  }
  for (const auto& stand_in : kSectionHelperStandIns) {
    DialogType& type = *registry.find_mutable(stand_in.dialog);
    if (!declares(type, stand_in.name)) type.add(declaration(stand_in));
  }
}

}  // namespace qorvat::sections
