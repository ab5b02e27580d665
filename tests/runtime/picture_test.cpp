// Pictures and lines: what a plot routine draws stays with the picture, a
// line's ends move, and a mouse move reaches the routine with its position.

#include <gtest/gtest.h>

#include <cmath>

#include "runtime/value_rules.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

class PictureTest : public testing::RoadTest<testing::SessionRoad> {
 protected:
  void SetUp() override {
    DialogType plot = testing::empty_dialog("Plot");
    plot.add({picture_box("picPlot"), line("Line2").in("picPlot").ends(0, 0, 0, 100), label("Label7", "")});
    plot.on("picPlot", Event::MouseMove, [](Form& me, int) {
      const double x = me["picPlot"].pointer_x();
      me["Line2"].set_line(x, 0, x, 100);
      me["Label7"].set_text("T=" + number_text(x / 100));
    });
    registry.add(std::move(plot));
    s.show("Plot");
  }
};

TEST_F(PictureTest, MouseMoveGivesTheRoutineThePointer) {
  s.user_mouse_move(at("Plot.picPlot"), 250, 40);
  EXPECT_EQ(text("Plot.Label7"), "T=2.5");
  EXPECT_EQ(at("Plot.Line2").x1(), 250);
  EXPECT_EQ(at("Plot.Line2").y2(), 100);
}

TEST_F(PictureTest, DrawingIsKeptUntilClearedAndNeverHoldsNaN) {
  Control& pic = at("Plot.picPlot");
  pic.draw({DrawCommand::Kind::Polyline, 0, 0, 0, 0, "", {{0, 0.5}, {1, 0.75}, {2, 0.7}}, colors::kRed});
  pic.draw({DrawCommand::Kind::Text, 0, 1.1, 0, 0, "1.0", {}, colors::kBlack});
  ASSERT_EQ(pic.drawing().size(), 2u);
  EXPECT_EQ(pic.drawing()[0].points.size(), 3u);
  pic.clear_drawing();
  EXPECT_TRUE(pic.drawing().empty());

  const double nan = std::nan("");
  EXPECT_EQ(testing::fault_of([&] { at("Plot.Line2").set_line(nan, 0, 0, 0); }), "Invalid procedure call or argument");
}

}  // namespace
}  // namespace qorvat
