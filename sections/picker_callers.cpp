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
};

const StahlRequest kIpe{"ipe", 16, 13};

// clang-format off
const std::vector<PickerCaller>& picker_callers() {
  static const std::vector<PickerCaller> callers = {
      {"Form1", {"Text18", "Text41"}, {}, {}},
      {"Form2", {"Text1", "Text4"}, {}, {{"Command2", kIpe}}},
      {"Form3", {"Text1", "Text11", "Text12", "Text13", "Text14", "Text16", "Text17"}, {"Check1"}, {{"Command2", kIpe}}},
      {"Form6", {"Text1", "Text7", "Text20", "Text29"}, {}, {{"Command2", {"navdani", 12, 11}}}},
      {"Form8", {"Text10", "Text11", "Text12", "Text40"}, {}, {{"Command2", kIpe}}},
      {"Form9", {"Text1", "Text7", "Text9", "Text20"}, {"Check2"}, {{"Command3", {"navdani", 13, 13}}}},
      {"Form10", {"Text11"}, {}, {}},
      {"Form11", {"Text1", "Text2", "Text3", "Text8", "Text9", "Text15", "Text20"}, {}, {}},
      {"Form15", {"Text35", "Text36", "Text37", "Text38", "Text39", "Text44"}, {}, {{"Command5", {"ipe", 13, 13}}}},
      {"Form21", {"Text1", "Text3"}, {}, {{"Command1", {"ipe", 13, 13}}}},
      {"Form22", {"Text1", "Text2", "Text3", "Text4", "Text6", "Text10", "Text16", "Text21", "Text22"},
       {"Check1", "Check3"}, {{"Command2", {"ipe", 13, 13}}, {"Command3", {"navdani", 13, 11}}}},
      {"Form34", {"Text4", "Text5", "Text8", "Text13"}, {}, {{"Command4", kIpe}}},
      {"Form37", {"Text1", "Text7", "Text20", "Text29"}, {}, {{"Command2", {"navdani", 12, 11}}}},
      {"Form43", {"Text1", "Text2", "Text3", "Text4", "Text5", "Text21"}, {}, {{"Command2", kIpe}}},
  };
  return callers;
}
// clang-format on

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
    for (const auto& stahl : caller.stahl) {
      if (declares(type, stahl.button)) continue;
      type.add(button(stahl.button, "Stahl"));
      type.on_click(stahl.button, [request = stahl.request](Form& me, int) {
        open_profile_picker(me.session(), request);
      });
    }
  }
}

}  // namespace qorvat::sections
