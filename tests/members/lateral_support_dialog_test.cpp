// Lateral Support through a session: the input check and the angle. The road
// from Check Section through Fa Calculation is the lateral_support scenario.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "support/recording_prompts.hpp"

namespace qorvat {
namespace {

// A brace started as Check Section starts it for an I shape of h 40, t 1.5, Zx 1500.
struct Road {
  Road() : registry(make_program_registry()), s(registry, prompts) {
    s.start();
    s.show("Form71");
    for (const auto& [field, text] : {std::pair{"Text1", "3.1"},
                                      {"Text2", "41.4"},
                                      {"Text3", "41.5"},
                                      {"Text4", "120"},
                                      {"Text6", "60.81"},
                                      {"Text8", "43"},
                                      {"Text9", "2040000"}}) {
      enter(field, text);
    }
  }
  Control& at(const char* field) { return s.field("Form71", field); }
  void enter(const char* field, const char* text) { s.user_replace_text(at(field), text); }

  DialogRegistry registry;
  testing::RecordingPrompts prompts;
  Session s;
};

TEST(LateralSupportDialog, AnyZeroOfTheSixIsRefusedButNotPu) {
  for (const char* field : {"Text3", "Text2", "Text4", "Text6", "Text9", "Text5", "Text1"}) {
    Road r;
    r.enter("Text7", "9.99");
    r.enter(field, "0");
    r.s.user_click(r.at("Command1"));
    const bool pu = std::string(field) == "Text1";
    EXPECT_EQ(r.prompts.log.size(), pu ? 0U : 1U) << field;
    // 60.81e2 * 41.4e7 / (2040000 * 0.75 * 120 * 41.5 * 10 * 0.49999816) / 100 = 0.6608
    EXPECT_EQ(r.at("Text7").text(), pu ? "0.66" : "9.99") << field;
    EXPECT_EQ(r.at("Command2").enabled(), pu) << field;
  }
}

TEST(LateralSupportDialog, FlatOrUprightAngleLeavesTheLength) {
  Road r;
  const struct {
    const char* th;
    const char* L;
  } steps[] = {{"0", "60.81"}, {"30", "86"}, {"90", "86"}, {"89.99", "43"}, {"abc", "43"}, {"-45", "43"}};
  for (const auto& step : steps) {
    r.enter("Text5", step.th);
    EXPECT_EQ(r.at("Text6").text(), step.L) << step.th;  // 43 / sin(30 * 3.1416 / 180) = 85.9998
  }
  EXPECT_TRUE(r.prompts.log.empty());
}

}  // namespace
}  // namespace qorvat
