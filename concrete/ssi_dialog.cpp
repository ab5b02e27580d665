#include "concrete/ssi_dialog.hpp"

#include <utility>

#include "concrete/ssi_need.hpp"
#include "runtime/session.hpp"

namespace qorvat::concrete {
namespace {

// clang-format off
std::vector<ControlDecl> controls() {
  return {
      label("Label1", "T="), text_box("Text1"), label("Label5", "sec"),
      label("Label2", "Eff. Heigh"), text_box("Text2", "0.67"),
      label("Label3", "h'="), text_box("Text3"), label("Label6", "m"),
      label("Label4", "Vs="), text_box("Text4"), label("Label7", "m/s"),
      button("Command1", "Cal"),
      label("Label9", "h' / (Vs.T) ="), text_box("Text5"),
      label("Label8", ""),
  };
}
// clang-format on

void calculate_ssi_need(Form& me) {
  const SsiNeedInput in{.T = me.val("Text1"), .factor = me.val("Text2"), .h = me.val("Text3"), .Vs = me.val("Text4")};
  if (in.Vs == 0 || in.h == 0 || in.factor == 0 || in.T == 0) {
    me.session().message_box("error in input data...!");
    return;
  }
  const SsiNeedResult result = ssi_need(in);
  me.set_rounded("Text5", result.r, 2);
  Control& verdict = me["Label8"];
  verdict.set_text(result.necessary ? "necessary" : "negligible");
  verdict.set_back_color(result.necessary ? colors::kRed : colors::kGrey);
}

}  // namespace

void register_ssi_dialog(DialogRegistry& registry) {
  DialogType type = *registry.find("Form40");
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());
  type.on_click("Command1", [](Form& me, int) { calculate_ssi_need(me); });
  registry.add(std::move(type));
}

}  // namespace qorvat::concrete
