// Closing Standard 2800 hands its values to the first of its callers that is
// showing; the menu shows only when none is.

#include "seismic_session.hpp"

namespace qorvat {
namespace {

// Without a diagram S is still 0: the floor spectrum gets 1 + 0 (the non-structural
// force's 1 + 1.75 is the standard_2800_hand_back scenario's).
TEST(SeismicHandBack, OnePlusSWithoutADiagram) {
  SeismicRoad road;
  road.show("Form52");
  road.s.user_close("Form26");
  road.expect_texts({{"Form52.Text1", "0.35"}, {"Form52.Text2", "1"}, {"Form52.Text7", ""}});  // H is 0
  EXPECT_FALSE(road.s.visible("Form4"));
}

TEST(SeismicHandBack, FirstCallerShowingWins) {
  struct Case {
    std::vector<const char*> showing;
    std::string winner;
  } const cases[] = {
      {{"Form7", "Form51", "Form52", "Form41"}, "Form41"},
      {{"Form7", "Form51", "Form52"}, "Form52"},
      {{"Form7", "Form51"}, "Form51"},
      {{"Form7"}, "Form7"},
  };
  for (const Case& c : cases) {
    SeismicRoad road;
    for (const char* caller : c.showing) road.show(caller);
    road.show("Form26");
    road.choose("Option4", "Option6");  // soil IV, high: S = 1.75, A = 0.3
    road.enter("Form26.Text4", "10");   // T = 0.45, B.A = 0.3·2.75 = 0.825, shown 0.82
    road.s.user_close("Form26");
    const std::string& w = c.winner;
    EXPECT_EQ(road.text("Form41.Text2"), w == "Form41" ? "2.75" : "") << w;
    EXPECT_EQ(road.text("Form52.Text7"), w == "Form52" ? "10" : "") << w;
    // 2.75·0.3·1 = 0.825, a hair under it in binary
    EXPECT_EQ(road.text("Form51.Text18"), w == "Form51" ? "0.82" : "") << w;
    EXPECT_EQ(road.text("Form7.Text26"), w == "Form7" ? "0.78" : "") << w;  // 0.82·0.946 = 0.77572
    EXPECT_EQ(road.text("Form7.Text3"), w == "Form7" ? "0.3" : "") << w;
    EXPECT_FALSE(road.s.visible("Form4")) << w;
  }
}

// The tank's spectral values are B.A as shown (0.71, not 0.713611) times 1.5·I, unrounded.
TEST(SeismicHandBack, TankGetsTheShownBA) {
  struct Case {
    const char* marker;
    const char* Text19;
    const char* Text20;
  } const cases[] = {{"1", "1.278", ""}, {"2", "", "1.278"}, {"0", "", ""}};
  for (const Case& c : cases) {
    SeismicRoad road;
    road.show("Form51");
    road.enter("Form51.Text21", c.marker);
    road.show("Form26");
    road.choose("Option1", "Option8");
    road.pick("Form26.Combo1", 2);  // I = 1.2
    road.enter("Form26.Text5", "0.5");
    road.s.user_close("Form26");
    EXPECT_EQ(road.text("Form51.Text18"), "1.05");  // 2.5·0.35·1.2
    EXPECT_EQ(road.text("Form51.Text19"), c.Text19) << c.marker;
    EXPECT_EQ(road.text("Form51.Text20"), c.Text20) << c.marker;
  }
}

}  // namespace
}  // namespace qorvat
