#include "shell/selectors.hpp"

#include <memory>
#include <utility>

namespace qorvat::shell {

const SelectorOption& chosen_option(const Form& selector, const std::vector<SelectorOption>& options) {
  for (std::size_t i = 0; i + 1 < options.size(); ++i) {
    if (selector[options[i].option].selected()) return options[i];
  }
  return options.back();
}

void register_selector(DialogRegistry& registry, SelectorSpec spec) {
  DialogType type = *registry.find(spec.name);
  for (const auto& o : spec.options) type.add(option_button(o.option, o.caption));
  type.add(std::move(spec.extra_controls));
  type.add(button(spec.go_button, spec.go_caption));

  auto options = std::make_shared<const std::vector<SelectorOption>>(std::move(spec.options));
  if (!spec.default_option.empty()) {
    type.on_open = [option = spec.default_option](Form& me) { me[option].set_selected(true); };
  }
  type.on_click(spec.go_button, [options](Form& me, int) {
    const SelectorOption& chosen = chosen_option(me, *options);
    Session& s = me.session();
    me.hide();
    if (chosen.prepare) chosen.prepare(s);
    s.show(chosen.target);
  });
  registry.add(std::move(type));
}

namespace {

std::vector<ControlDecl> pictures(int count) {
  std::vector<ControlDecl> out;
  for (int i = 1; i <= count; ++i) out.push_back(picture_box("Picture" + std::to_string(i)));
  return out;
}

}  // namespace

void register_selectors(DialogRegistry& r) {
  register_selector(r, {"Form18", "Command1", "OK",
                        {{"Option1", "برش پيچهاي لغزش بحراني", "Form17"},
                         {"Option2", "اتصالات و وصله فلنجي", "Form19"},
                         {"Option3", "برش و کشش پيچهاي اتکايي", "Form24"}},
                        "Option3"});

  register_selector(
      r, {"Form28", "Command1", "Go..!",
          {{"Option1", " WFP اتصال مفصلي جان و يا اتصال گيردار با ورق روسري و زير سري جوشي", "Form1"},
           {"Option2", "WUF-W اتصال گيردار مستقيم تير به ستون و  وصله تير (اتصال درختي)", "Form27"},
           {"Option3", "BFP اتصال گيردار با ورق روسري و زير سري پيچي ", "Form32"},
           {"Option5", "نسبت گيرداري اتصال خورجيني با نبشي بالايي", "Form57"},
           {"Option6", "خطوط تسليم و کشش", "Form64"},
           {"Option7", "BEEP اتصالات و وصله فلنجي (انتهايي) پيچي ", "Form19"},
           {"Option8", "کنترل چشمه اتصال و ورق پيوستگي", "Form10",
            [](Session& s) { s.form("Form10").set_text("Text30", "1"); }},
           {"Option4", "اتصال تمام جوشي گوشه (خمش و برش)", "Form39"}},
          "",
          pictures(8)});

  register_selector(r, {"Form54", "Command1", "Go..",
                        {{"Option1", "فونداسيون مربع يا مستطيل (نواري -لرزه اي)", "Form7"},
                         {"Option2", "شمع  کم عمق (لرزه اي)", "Form55"},
                         {"Option3", "کنترل صلبيت", "Form73"},
                         {"Option4", "ضريب عکس العمل بستر ديناميکي", "formKS"}},
                        ""});

  register_selector(r, {"Form75", "Command1", "Go",
                        {{"Option1", "Link Beam", "Form43"},
                         {"Option2", "Connection", "Form37",
                          [](Session& s) {
                            Form& f = s.form("Form37");
                            f["Picture2"].set_visible(true);
                            f.set_text("Text14", "1");
                          }}},
                        ""});

  register_selector(r, {"Form76", "Command1", "Go",
                        {{"Option1", "طول مهاري، کاشت و آرماتور عرض", "Form16"},
                         {"Option2", "ديوار برشي", "Form68"},
                         {"Option3", "دال بتني", "Form62"}},
                        ""});

  register_selector(r, {"Form77", "Command1", "Go",
                        {{"Option1", "بارگذاري لرزه اي", "Form41"},
                         {"Option2", "بارگذاري باد (نما)", "Form53"},
                         {"Option3", "بارگذاري مخازن", "Form51"}},
                        ""});
}

}  // namespace qorvat::shell
