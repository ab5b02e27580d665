// Faults: where a routine stops, what the user is told, and that the program
// goes on afterwards.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using testing::fault_of;

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
// Nested deeply, yet within the bound on nesting.
constexpr int kDeepChain = Session::kMaxNesting - 5;

TEST(CheckedArithmetic, FaultsWithTheMessageTheUserKnows) {
  EXPECT_EQ(fault_of([] { checked_div(1, 0); }), fault_text::kDivisionByZero);
  EXPECT_EQ(fault_of([] { checked_div(0, 0); }), fault_text::kOverflow);
  EXPECT_EQ(fault_of([] { checked_div(1e308, 1e-10); }), fault_text::kOverflow);
  EXPECT_EQ(fault_of([] { checked_div(1, kNaN); }), fault_text::kInvalidCall);
  EXPECT_EQ(fault_of([] { checked_sqrt(-1); }), fault_text::kInvalidCall);
  EXPECT_EQ(fault_of([] { checked_log(0); }), fault_text::kInvalidCall);
  EXPECT_EQ(fault_of([] { checked_pow(-8, 1.0 / 3); }), fault_text::kInvalidCall);
  EXPECT_EQ(fault_of([] { checked_pow(0, -1); }), fault_text::kDivisionByZero);
  EXPECT_EQ(fault_of([] { checked_pow(10, 400); }), fault_text::kOverflow);
  EXPECT_EQ(fault_of([] { checked_exp(1000); }), fault_text::kOverflow);
  EXPECT_EQ(fault_of([] { checked(kNaN); }), fault_text::kInvalidCall);
  EXPECT_EQ(fault_of([] { checked(-kInf); }), fault_text::kOverflow);
  // A whole exponent of a negative base is fine, and an underflow is zero.
  EXPECT_EQ(checked_pow(-8, 3), -512);
  EXPECT_EQ(checked_exp(-1000), 0);
}

TEST(LoopGuard, StopsALoopAfterItsLimit) {
  LoopGuard guard(3);
  for (int i = 0; i < 3; ++i) guard.step();
  EXPECT_EQ(fault_of([&] { guard.step(); }), fault_text::kLoopLimit);
}

class FaultTest : public testing::RoadTest<testing::SessionRoad> {
 protected:
  std::vector<std::string> trace;  // what the routines did, in order

  void SetUp() override {
    DialogType calc = testing::empty_dialog("Calc");
    calc.add({text_box("Text1"), text_box("Text2"), text_box("Text3", "0"), button("Command1", "Cal"),
              text_box("Text4"), text_box("Text5"), button("Command2", "Cal"), text_box("Text6", "0"),
              text_box("Text7", "old"), text_box("Text8", "0")});
    // Text1 is written before the division and Text2 after it.
    calc.on_click("Command1", [](Form& me, int) {
      me.set_text("Text1", "A");
      me.set_number("Text2", checked_div(10, me.val("Text3")));
    });
    // The write into Text4 runs its change routine, which fails.
    calc.on_click("Command2", [this](Form& me, int) {
      me.set_text("Text4", "-1");
      trace.push_back("Command2 went on");
      me.set_text("Text5", "after");
    });
    calc.on_change("Text4", [](Form& me, int) { checked_sqrt(me.val("Text4")); });
    // Writes its own field with a new value every time: never ends by itself.
    calc.on_change("Text6", [](Form& me, int) { me.set_number("Text6", me.val("Text6") + 1); });
    // A deep but finite chain of changes.
    calc.on_change("Text8", [](Form& me, int) {
      if (me.val("Text8") < kDeepChain) me.set_number("Text8", me.val("Text8") + 1);
    });
    registry.add(std::move(calc));
    s.show("Calc");
  }
};

TEST_F(FaultTest, ARoutineStopsAtTheFaultAndTheDialogGoesOn) {
  click("Calc.Command1");
  expect_texts({{"Calc.Text1", "A"}, {"Calc.Text2", ""}});
  EXPECT_EQ(faults(), std::vector<std::string>{"fault Calc Command1_Click\tDivision by zero"});
  EXPECT_EQ(s.state("Calc"), FormState::Showing);

  enter("Calc.Text3", "4");
  click("Calc.Command1");
  EXPECT_EQ(text("Calc.Text2"), "2.5");
  EXPECT_EQ(faults().size(), 1u);
}

TEST_F(FaultTest, AFaultInANestedChangeEndsTheWriterTooAndIsReportedOnce) {
  click("Calc.Command2");
  expect_texts({{"Calc.Text4", "-1"}, {"Calc.Text5", ""}});
  EXPECT_TRUE(trace.empty());
  EXPECT_EQ(faults(), std::vector<std::string>{"fault Calc Text4_Change\tInvalid procedure call or argument"});
}

TEST_F(FaultTest, NaNAndInfinityNeverReachAField) {
  Control& field = at("Calc.Text7");
  for (const double x : {kNaN, kInf, -kInf}) {
    for (const bool rounded : {false, true}) {
      prompts.log.clear();
      s.user_action([&] { rounded ? field.set_rounded(x, 2) : field.set_number(x); });
      EXPECT_EQ(field.text(), "old") << x;
      ASSERT_EQ(faults().size(), 1u) << x;
      EXPECT_TRUE(faults()[0].ends_with(std::isnan(x) ? "\tInvalid procedure call or argument" : "\tOverflow"))
          << faults()[0];
    }
  }
}

TEST_F(FaultTest, ARunawayChainOfChangesIsCutOnceAndTheSessionGoesOn) {
  enter("Calc.Text6", "1");
  EXPECT_EQ(faults(), std::vector<std::string>{"fault Calc Text6_Change\tOut of stack space"});
  EXPECT_GT(at("Calc.Text6").val(), 1);

  // The nesting count starts afresh: a deep but finite chain still runs out.
  enter("Calc.Text8", "1");
  EXPECT_EQ(text("Calc.Text8"), std::to_string(kDeepChain));
  enter("Calc.Text3", "5");
  click("Calc.Command1");
  EXPECT_EQ(text("Calc.Text2"), "2");
  EXPECT_EQ(faults().size(), 1u);
}

TEST_F(FaultTest, TheOpeningAndClosingRoutinesAreNamedInTheReport) {
  DialogType loads = testing::empty_dialog("Loads");
  loads.on_open = [](Form&) { checked_div(1, 0); };
  loads.on_close = [](Form&, bool&) { checked_log(0); };
  registry.add(std::move(loads));
  show("Loads");
  s.user_close("Loads");
  EXPECT_EQ(faults(), (std::vector<std::string>{"fault Loads Form_Load\tDivision by zero",
                                                "fault Loads Form_Unload\tInvalid procedure call or argument"}));
  // A closing routine that failed did not close its dialog.
  EXPECT_NE(s.state("Loads"), FormState::Destroyed);
}

}  // namespace
}  // namespace qorvat
