// Standard 2800 as a dialog: the raised period, the diagram with its zoom,
// and the cursor on a computed period or under the pointer.

#include <cmath>

#include "seismic_session.hpp"

namespace qorvat {
namespace {

// H = 12: 0.08·12^0.75 = 0.515794; raised 1.25·0.515794 = 0.644742 (not 1.25·0.52 = 0.65).
TEST_F(SeismicDialogTest, RaisedPeriodFromTheUnroundedPeriod) {
  choose("Option1", "Option8");
  enter("Form26.Text4", "12");
  EXPECT_EQ(text("Form26.Text5"), "0.52");
  click("Form26.Check2");
  EXPECT_EQ(text("Form26.Text5"), "0.64");
  click("Form26.Option10");
  EXPECT_EQ(text("Form26.Text5"), "0.58");  // 1.25·0.05·12^0.9 = 0.584983
}

// The horizontal line stands at B.A as shown in Text3 (0.77), not at 0.769539.
TEST_F(SeismicDialogTest, CursorStandsOnTheRoundedBA) {
  choose("Option3", "Option6");
  for (const char* road : {"Text5", "Text4"}) {  // Calculate C on a typed T, and Cal on H
    if (road == std::string("Text5")) enter("Form26.Text5", "0.76");
    if (road == std::string("Text4")) enter("Form26.Text4", "20");  // 0.08·20^0.75 = 0.756593
    EXPECT_EQ(text("Form26.Text3"), "0.77");
    EXPECT_EQ(at("Form26.Line3").y1(), 0.77) << road;
    EXPECT_DOUBLE_EQ(at("Form26.Line2").x1(), 76);  // T/step
    EXPECT_EQ(at("Form26.Label7").text(), "T(Period): 0.76, B.A: 0.77  ");
  }
  move_pointer(200, 0.5);  // the cursor stays while a T and a B.A are shown
  EXPECT_DOUBLE_EQ(at("Form26.Line2").x1(), 76);
}

TEST_F(SeismicDialogTest, CursorFollowsThePointerOverTheDiagram) {
  choose("Option1", "Option8");
  move_pointer(30.4, 0.1);  // index 30, T = 0.01·30.4, B.A = 0.35·2.5
  EXPECT_EQ(at("Form26.Label7").text(), "T(Period): 0.30, B.A: 0.88  ");
  EXPECT_EQ(at("Form26.Line2").x1(), 30.4);
  EXPECT_DOUBLE_EQ(at("Form26.Line3").y1(), 0.35 * 2.5);
  for (double outside : {0.4, 400.6, std::nan("")}) move_pointer(outside, 0.1);
  EXPECT_EQ(at("Form26.Line2").x1(), 30.4);
  EXPECT_TRUE(faults().empty());
}

// A point stands at x = start·100 + i - 1 whatever the step; the cursor at T/step.
TEST_F(SeismicDialogTest, FixedFactorHundredOnTheXAxis) {
  enter("Form26.tstart", "0.5");
  enter("Form26.xstep", "0.00001");
  choose("Option1", "Option8");
  const Control& plot = at("Form26.picNemodar");
  ASSERT_EQ(plot.drawing().size(), 1u);  // one red curve, however many points
  const auto& curve = plot.drawing()[0];
  EXPECT_EQ(curve.color, 255);
  EXPECT_EQ(curve.points.size(), 400000u);  // 4/0.00001 entries
  EXPECT_EQ(spectrum().size(), 400001u);
  EXPECT_EQ(curve.points[0].first, 50);  // start/step would put it at 50000
  EXPECT_EQ(curve.points[1].first, 51);
  // x from start·100, one unit per entry; y up to 1.2 times the largest B.A, 0.713611 at 0.5 s.
  EXPECT_EQ((std::array{plot.scale().left, plot.scale().width}), (std::array{50.0, 400000.0}));
  EXPECT_NEAR(plot.scale().top, 0.8563333333, 1e-9);
  EXPECT_EQ(plot.scale().height, -plot.scale().top);
  enter("Form26.Text5", "1");
  EXPECT_DOUBLE_EQ(at("Form26.Line2").x1(), 100000);  // though the curve has T = 1 s at x = 50050
}

std::vector<std::string> labels(const Control& strip) {
  std::vector<std::string> out;
  for (const auto& command : strip.drawing()) {
    if (command.kind == DrawCommand::Kind::Text) out.push_back(command.text);
  }
  return out;
}

TEST_F(SeismicDialogTest, ZoomAndScrollMoveThePlotAndItsStrips) {
  using Labels = std::vector<std::string>;
  choose("Option1", "Option8");
  EXPECT_EQ(labels(at("Form26.PicySxale")), (Labels{"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}));
  EXPECT_EQ(labels(at("Form26.hr")), (Labels{"1", "2", "3", "4"}));
  s.user_action([&] { at("Form26.Slider1").set_value(3); });
  EXPECT_EQ(at("Form26.picNemodar").width(), 27270);
  EXPECT_EQ(text("Form26.Label6"), "X Axis Scale :3X");
  EXPECT_TRUE(at("Form26.HScroll1").enabled());
  EXPECT_EQ(at("Form26.HScroll1").max(), 183);        // 2·9165/100 = 183.3
  EXPECT_EQ(labels(at("Form26.hr")), (Labels{"1"}));  // the first 1.33 s
  s.user_action([&] { at("Form26.HScroll1").set_value(183); });
  EXPECT_EQ(at("Form26.picNemodar").left(), -18300);
  EXPECT_EQ(labels(at("Form26.hr")), (Labels{"3", "4"}));  // 2.69 s to 4.03 s
  s.user_action([&] { at("Form26.Slider1").set_value(1); });
  EXPECT_FALSE(at("Form26.HScroll1").enabled());
  EXPECT_EQ(at("Form26.picNemodar").left(), 0);
}

}  // namespace
}  // namespace qorvat
