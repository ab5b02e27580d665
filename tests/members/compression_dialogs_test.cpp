// Fa Calculation through a session: what each caller prepares, what each
// activation resets, and what goes back to whom. The corner brace's road, with
// its force from the unrounded stress, is the fa_calculation scenarios'.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "members/fa_calculation.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using testing::CalculatorRoad;

// Two UNP 80 back to back, as the picker leaves them for a brace connection.
void enter_two_channels(CalculatorRoad& r, const char* length) {
  r.enter({{"Form11.Text1", "11"},
           {"Form11.Text2", "106"},
           {"Form11.Text3", "19.4"},
           {"Form11.Text9", "4.5"},
           {"Form11.Text15", "8"},
           {"Form11.Text20", "1.47"},
           {"Form11.Text7", length}});
}

TEST(FaCalculation, VBraceComesFirstAndTakesTheShownStress) {
  CalculatorRoad r;
  r.show("Form6");
  r.show("Form9");
  r.at("Form9.Check2").set_value(1);
  r.show("Form11");
  enter_two_channels(r, "300");
  r.click("Form11.Command1");
  r.enter("Form11.Text14", "1234.5");
  r.click("Form11.Command2");
  r.expect_texts({{"Form9.Text17", "1234.5"}, {"Form6.Text17", ""}});
  EXPECT_EQ(r.at("Form9.Check2").value(), 1);
}

TEST(FaCalculation, LateralSupportChecksOneShapeAndHearsTheLargestForce) {
  CalculatorRoad r;
  r.show("Form71");
  r.enter("Form11.Text15", "10");  // left by an earlier road: emptied below
  members::open_fa_calculation_for_single_shape(r.s, [](Form& fa) {
    fa.set_number("Text1", 6);
    fa.set_number("Text7", 200);
  });
  const Form& fa = r.s.form("Form11");
  EXPECT_EQ(fa.height(), 6750);
  EXPECT_EQ(fa["Label8"].text(), " طول ستون");
  for (const char* key : {"Label4", "Text4", "Text19", "Label18", "Picture1"}) EXPECT_FALSE(fa[key].visible()) << key;
  EXPECT_FALSE(fa["Check1"].enabled());
  EXPECT_EQ(fa.text("Text17") + " " + fa.text("Text18"), "2040000 1");  // E by the tick, then Ry
  for (const char* key : {"Text9", "Text20", "Text21", "Text15"}) {
    EXPECT_EQ(fa.text(key) + (fa[key].enabled() ? " enabled" : ""), "") << key;
  }

  r.enter({{"Form11.Text2", "24"}, {"Form11.Text3", "24"}, {"Form11.Text5", "1"}, {"Form11.Text6", "1"}});
  r.click("Form11.Command1");
  // r = 2, lam = 100, Fcre = 0.658^(2400 / 2013.41) * 2400 = 1457.25; 6 * 1457.25 * 0.9 / 1000.
  EXPECT_EQ(fa.text("Text14"), "1457.25");
  EXPECT_EQ(fa.text("Text19"), "");
  r.click("Form11.Command2");
  EXPECT_EQ(r.prompts.log, (std::vector<std::string>{"msgbox Qorvat\t7.87  ton  حداکثر نيروي قابل تحمل"}));
  EXPECT_EQ(r.s.state("Form11"), FormState::Destroyed);
}

TEST(FaCalculation, EachActivationClearsResultsAndFollowsTheCaller) {
  const struct {
    std::vector<const char*> showing;
    const char* ticked_check2;
    int check1;
    bool locked;
  } cases[] = {
      {{"Form9", "Form6"}, "Form6", 1, true},  {{"Form6", "Form9"}, "Form9", 1, true},
      {{"Form6", "Form5"}, nullptr, 1, false}, {{"Form71"}, nullptr, 1, false},
      {{"Form6"}, nullptr, 0, false},
  };
  for (const auto& c : cases) {
    CalculatorRoad r;
    for (const char* name : c.showing) r.show(name);
    if (c.ticked_check2 != nullptr) r.at(std::string(c.ticked_check2) + ".Check2").set_value(1);
    r.show("Form11");
    EXPECT_EQ(r.at("Form11.Check1").value(), c.check1) << c.showing.back();
    EXPECT_EQ(r.at("Form11.Check1").enabled(), !c.locked) << c.showing.back();
  }
  CalculatorRoad r;
  r.show("Form6");
  r.show("Form11");
  enter_two_channels(r, "300");
  r.click("Form11.Command1");
  r.s.user_activate("Form11");
  for (const char* key : {"Text10", "Text11", "Text12", "Text13", "Text14", "Text19"}) {
    EXPECT_EQ(r.text(std::string("Form11.") + key), "") << key;
  }
  EXPECT_FALSE(r.at("Form11.Command2").enabled());
}

TEST(FaCalculation, CentroidFollowsTheDepthButIsFoundByArea) {
  CalculatorRoad r;
  r.show("Form11");
  const struct {
    const char* field;
    const char* text;
    const char* ey;
  } steps[] = {{"Text1", "13.5", ""},     {"Text15", "10", "1.55"}, {"Text1", "7.12", "1.55"},
               {"Text15", "6.5", "1.37"}, {"Text1", "7.1", "1.37"}, {"Text15", "6", ""}};
  for (const auto& step : steps) {
    r.enter(std::string("Form11.") + step.field, step.text);
    EXPECT_EQ(r.text("Form11.Text21"), step.ey) << step.field << "=" << step.text;
  }
}

}  // namespace
}  // namespace qorvat
