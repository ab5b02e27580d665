// Where closing a dialog leads when other dialogs are showing: the closing
// rules that depend on callers and route markers, which the menu roads of the
// scenario scripts cannot reach yet.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

// 'S' showing, 'H' hidden, 'D' destroyed, 'n' not showing (hidden or destroyed).
struct Expect {
  const char* dialog;
  char state;
};

struct CloseCase {
  const char* closing;
  std::vector<const char*> showing;  // shown after the menu was hidden, in order
  std::vector<Expect> after;
  const char* marker = nullptr;  // "Form10.Text30" style field set to 1 before closing
};

const std::vector<CloseCase>& close_cases() {
  static const std::vector<CloseCase> cases = {
      {"Form5", {"Form15", "Form5"}, {{"Form15", 'S'}, {"Form4", 'n'}, {"Form5", 'D'}}},
      {"Form5", {"Form5"}, {{"Form4", 'S'}, {"Form15", 'n'}}},
      {"Form15", {"Form3", "Form15"}, {{"Form4", 'n'}, {"Form3", 'S'}, {"Form15", 'D'}}},
      {"Form15", {"Form43", "Form15"}, {{"Form4", 'n'}}},
      {"Form15", {"Form15"}, {{"Form4", 'S'}}},
      {"Form34", {"Form6", "Form34"}, {{"Form4", 'n'}}},
      {"Form34", {"Form34"}, {{"Form4", 'S'}}},
      {"Form18", {"Form1", "Form18"}, {{"Form4", 'n'}, {"Form18", 'D'}}},
      {"Form18", {"Form44", "Form18"}, {{"Form4", 'n'}}},
      {"Form18", {"Form18"}, {{"Form4", 'S'}}},
      {"Form1", {"Form3", "Form66", "Form1"}, {{"Form28", 'S'}, {"Form3", 'D'}, {"Form66", 'D'}}},
      {"Form1", {"Form34", "Form1"}, {{"Form28", 'n'}, {"Form34", 'S'}}},
      {"Form27", {"Form3", "Form27"}, {{"Form28", 'S'}, {"Form3", 'D'}}},
      {"Form32", {"Form3", "Form32"}, {{"Form28", 'S'}, {"Form3", 'D'}}},
      {"Form64", {"Form34", "Form3", "Form64"}, {{"Form28", 'n'}, {"Form3", 'D'}}},
      {"Form10", {"Form10"}, {{"Form28", 'S'}}, "Form10.Text30"},
      {"Form10", {"Form1", "Form10"}, {{"Form28", 'n'}, {"Form1", 'S'}}},
      {"Form16", {"Form22", "Form68", "Form16"}, {{"Form76", 'n'}, {"Form68", 'H'}, {"Form22", 'S'}}},
      {"Form16", {"Form16"}, {{"Form76", 'S'}, {"Form68", 'H'}}},
      {"Form37", {"Form37"}, {{"Form75", 'S'}, {"Form4", 'n'}}, "Form37.Text14"},
      {"Form37", {"Form37"}, {{"Form4", 'S'}, {"Form75", 'n'}}},
      {"Form24", {"Form36", "Form3", "Form24"}, {{"Form18", 'n'}, {"Form3", 'D'}, {"Form36", 'S'}}},
      {"Form24", {"Form3", "Form24"}, {{"Form18", 'S'}, {"Form3", 'D'}}},
      {"Form17", {"Form32", "Form17"}, {{"Form18", 'n'}}},
      {"Form17", {"Form36", "Form17"}, {{"Form18", 'S'}}},
      {"Form35", {"Form15", "Form35"}, {{"Form4", 'n'}}},
      {"Form8", {"Form22", "Form8"}, {{"Form4", 'n'}, {"Form22", 'S'}}},
      {"Form46", {"Form46"}, {{"Form46", 'H'}, {"Form47", 'S'}, {"Form4", 'n'}}},
      {"Form41", {"Form41"}, {{"Form77", 'S'}, {"Form41", 'D'}}},
      {"Form51", {"Form51"}, {{"Form77", 'S'}, {"Form51", 'D'}}},
      {"Form43", {"Form43"}, {{"Form75", 'S'}}},
      {"Form62", {"Form62"}, {{"Form76", 'S'}}},
      {"formKS", {"formKS"}, {{"Form54", 'S'}}},
      {"Form57", {"Form57"}, {{"Form28", 'S'}}},
      // Dialogs without a rule of their own close alone; the caller stays as it is.
      {"Form2", {"Form1", "Form2"}, {{"Form1", 'S'}, {"Form2", 'D'}, {"Form4", 'n'}}},
  };
  return cases;
}

bool matches(FormState state, char expected) {
  switch (expected) {
    case 'S': return state == FormState::Showing;
    case 'H': return state == FormState::Hidden;
    case 'D': return state == FormState::Destroyed;
    default: return state != FormState::Showing;
  }
}

TEST(ClosingRules, LeadWhereTheCallersAndMarkersSay) {
  for (const auto& c : close_cases()) {
    testing::CalculatorRoad road;
    for (const char* name : c.showing) road.s.show(name);
    if (c.marker != nullptr) road.at(c.marker).set_text("1");
    road.s.user_close(c.closing);
    std::string shown;
    for (const char* name : c.showing) shown += std::string(name) + " ";
    for (const auto& e : c.after) {
      EXPECT_TRUE(matches(road.s.state(e.dialog), e.state))
          << "closing " << c.closing << " with " << shown << ": " << e.dialog << " should be " << e.state;
    }
    EXPECT_TRUE(road.prompts.log.empty()) << c.closing;
    EXPECT_FALSE(road.s.ended());
  }
}

TEST(ClosingRules, ClosingTheMenuEndsTheProgramWhateverIsOpen) {
  testing::ProgramRoad road;
  road.s.show("Form15");
  road.s.user_close("Form4");
  EXPECT_TRUE(road.s.ended());
  EXPECT_TRUE(road.showing("Form15"));  // the front end quits; nothing else closes
}

TEST(ClosingRules, SectionsMenuKeepsItsValuesBetweenOpenings) {
  testing::ProgramRoad road;
  road.click("Form4.Command16");
  road.s.form("Form47").set_caption("changed");
  road.s.user_close("Form47");
  road.click("Form4.Command16");
  EXPECT_EQ(road.s.form("Form47").caption(), "changed");
  EXPECT_EQ(road.s.state("Form4"), FormState::Hidden);
}

}  // namespace
}  // namespace qorvat
