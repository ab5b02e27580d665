// Pictures in the window: a drawing lands where its scale puts it, line
// controls and pictures inside a picture follow their runtime geometry, and
// the pointer reaches a MouseMove routine in the picture's own scale.

#include <gtest/gtest.h>

#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "gui/front_end.hpp"
#include "gui_test_support.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat::gui {
namespace {

using Kind = DrawCommand::Kind;
using Points = std::vector<std::pair<double, double>>;

constexpr Color kBlue = 0xff0000;
const QColor kQtRed(255, 0, 0);
const QColor kQtBlue(0, 0, 255);

// A point of a picture's drawing area: a fraction of its size plus whole pixels.
struct Spot {
  double fx, fy;
  int dx = 0, dy = 0;

  QPoint in(const QRect& area) const {
    return area.topLeft() + QPoint(static_cast<int>(fx * area.width()) + dx, static_cast<int>(fy * area.height()) + dy);
  }
};

DrawCommand red_trace(Points points) { return {Kind::Polyline, 0, 0, 0, 0, "", std::move(points), colors::kRed}; }

// The pen may fall a pixel either side of the exact spot.
bool shows_near(const QImage& image, QPoint at, const QColor& color) {
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      const QPoint p = at + QPoint(dx, dy);
      if (image.valid(p) && image.pixelColor(p) == color) return true;
    }
  }
  return false;
}

class PictureTest : public testing::FrontEndTest {
 protected:
  PictureTest() {
    DialogType plot = qorvat::testing::empty_dialog("Plot");
    plot.add({picture_box("picScaled").size(4500, 3000), line("Cursor").in("picScaled").fore(kBlue),
              picture_box("picHolder").size(3000, 1500), picture_box("picFill").in("picHolder"),
              picture_box("picPlot").in("picHolder").size(1500, 750), button("Ask", "Ask")});
    plot.on("picPlot", Event::MouseMove,
            [this](Form& me, int) { pointers.emplace_back(me["picPlot"].pointer_x(), me["picPlot"].pointer_y()); });
    plot.on_click("Ask", [](Form& me, int) { me.session().message_box("Wait"); });
    registry.add(std::move(plot));
    open_front_end(false);
    act([&] { session->show("Plot"); });
  }

  void act(const std::function<void()>& change) { session->user_action(change); }
  Control& control(const char* key) { return session->form("Plot")[key]; }
  QWidget* widget(const char* key) { return gui->window("Plot")->widget_for(control(key)); }
  QImage picture_image(const char* key) { return widget(key)->grab().toImage(); }

  // As the window system reports it: to whichever widget is under the pointer.
  void move_pointer(const char* key, QPoint at) {
    DialogWindow* window = gui->window("Plot");
    QTest::mouseMove(window->windowHandle(), window->mapFromGlobal(widget(key)->mapToGlobal(at)));
  }

  std::vector<std::pair<double, double>> pointers;
};

TEST_F(PictureTest, DrawingLandsWhereItsScalePutsIt) {
  struct Case {
    const char* what;
    PictureScale scale;
    DrawCommand command;
    QColor color;
    Spot drawn;
    Spot blank;  // on the previous case's drawing, so a stale picture shows
  };
  const Case cases[] = {
      {"y counting upward", {0, 10, 100, -10}, red_trace({{0, 2.5}, {100, 2.5}}), kQtRed, {0.5, 0.75}, {0.5, 0.25}},
      {"scale starting at 50", {50, 0, 100, 100}, red_trace({{75, 0}, {75, 100}}), kQtRed, {0.25, 0.5}, {0.5, 0.75}},
      {"twips when no scale is set", {}, red_trace({{0, 1500}, {4500, 1500}}), kQtRed, {0.5, 0, 0, 100}, {0.25, 0.25}},
      {"a line command",
       {0, 10, 100, -10},
       {Kind::Line, 0, 5, 100, 5, "", {}, kBlue},
       kQtBlue,
       {0.5, 0.5},
       {0.5, 0, 0, 100}},
  };
  for (const Case& c : cases) {
    act([&] {
      Control& picture = control("picScaled");
      picture.clear_drawing();
      picture.set_scale(c.scale);
      picture.draw(c.command);
    });
    const QImage image = picture_image("picScaled");
    const QRect area = widget("picScaled")->contentsRect();
    EXPECT_TRUE(shows_near(image, c.drawn.in(area), c.color)) << c.what;
    EXPECT_FALSE(shows_near(image, c.blank.in(area), kQtRed)) << c.what;
  }
}

TEST_F(PictureTest, ThousandsOfPointsPerColumnKeepTheirPeaks) {
  // A flat trace with one narrow spike, far more points than pixels.
  Points trace(100'000);
  for (std::size_t i = 0; i < trace.size(); ++i) trace[i] = {static_cast<double>(i), i == 60'000 ? 0.9 : 0.2};
  act([&] {
    control("picScaled").set_scale({0, 1, 100'000, -1});
    control("picScaled").draw(red_trace(std::move(trace)));
  });
  const QImage image = picture_image("picScaled");
  const QRect area = widget("picScaled")->contentsRect();
  EXPECT_TRUE(shows_near(image, Spot{0.6, 0.1}.in(area), kQtRed));
  EXPECT_TRUE(shows_near(image, Spot{0.6, 0.5}.in(area), kQtRed));  // the spike's flank
  EXPECT_FALSE(shows_near(image, Spot{0.3, 0.1}.in(area), kQtRed));
  EXPECT_TRUE(shows_near(image, Spot{0.3, 0.8}.in(area), kQtRed));
}

TEST_F(PictureTest, ALineInsideAPictureFollowsItsEnds) {
  act([&] {
    control("picScaled").set_scale({0, 0, 100, 100});
    control("Cursor").set_line(20, 0, 20, 100);
  });
  const QRect area = widget("picScaled")->contentsRect();
  EXPECT_TRUE(shows_near(picture_image("picScaled"), Spot{0.2, 0.5}.in(area), kQtBlue));

  act([&] { control("Cursor").set_line(70, 0, 70, 100); });
  QImage image = picture_image("picScaled");
  EXPECT_TRUE(shows_near(image, Spot{0.7, 0.5}.in(area), kQtBlue));
  EXPECT_FALSE(shows_near(image, Spot{0.2, 0.5}.in(area), kQtBlue));

  // A new scale moves the line with it.
  act([&] { control("picScaled").set_scale({0, 0, 200, 100}); });
  image = picture_image("picScaled");
  EXPECT_TRUE(shows_near(image, Spot{0.35, 0.5}.in(area), kQtBlue));
  EXPECT_FALSE(shows_near(image, Spot{0.7, 0.5}.in(area), kQtBlue));
}

TEST_F(PictureTest, PicturesInsideAPictureFollowTheirPositionAndSize) {
  EXPECT_EQ(widget("picScaled")->size(), QSize(300, 200));  // 15 twips a pixel
  QWidget* holder = widget("picHolder");
  const QRect area = holder->contentsRect();
  EXPECT_EQ(widget("picFill")->geometry(), area);

  struct Case {
    const char* what;
    std::function<void(Control&)> change;
    QRect expected;
  };
  const Case cases[] = {
      {"as declared", [](Control&) {}, QRect(area.topLeft(), QSize(100, 50))},
      {"scrolled left", [](Control& c) { c.set_position(-1500, 150); },
       QRect(area.topLeft() + QPoint(-100, 10), QSize(100, 50))},
      {"stretched", [](Control& c) { c.set_size(9090 * 2, 750); },
       QRect(area.topLeft() + QPoint(-100, 10), QSize(1212, 50))},
  };
  for (const Case& c : cases) {
    act([&] { c.change(control("picPlot")); });
    EXPECT_EQ(widget("picPlot")->geometry(), c.expected) << c.what;
  }
  // The holder's border stays in front of a plot scrolled past it.
  act([&] { control("picPlot").set_back_color(colors::kRed); });
  const QImage image = holder->grab().toImage();
  const int y = area.top() + 30;
  EXPECT_EQ(image.pixelColor(area.left(), y), kQtRed);
  EXPECT_NE(image.pixelColor(0, y), kQtRed);
}

TEST_F(PictureTest, PointerReachesTheRoutineInThePicturesScale) {
  act([&] {
    control("picPlot").set_position(-1500, 0);
    control("picPlot").set_size(6000, 1500);
    control("picPlot").set_scale({0, 10, 100, -10});
  });
  const QRect area = widget("picPlot")->contentsRect();
  // Inside the part of the plot that shows, whatever the scroll.
  move_pointer("picPlot", Spot{0.5, 0.75}.in(area));
  ASSERT_EQ(pointers.size(), 1u);
  const double x_pixel = 100.0 / area.width();
  const double y_pixel = 10.0 / area.height();
  EXPECT_NEAR(pointers[0].first, 50, x_pixel);
  EXPECT_NEAR(pointers[0].second, 2.5, y_pixel);

  // Pictures without a MouseMove routine do not follow the pointer at all.
  EXPECT_FALSE(widget("picScaled")->hasMouseTracking());
  EXPECT_TRUE(widget("picPlot")->hasMouseTracking());

  // While a routine waits on its message, moves are dropped like any other action.
  prompts.while_message_is_up = [&] { move_pointer("picPlot", Spot{0.6, 0.5}.in(area)); };
  QTest::mouseClick(gui->window("Plot")->findChild<QPushButton*>("Ask"), Qt::LeftButton);
  EXPECT_EQ(pointers.size(), 1u);
}

}  // namespace
}  // namespace qorvat::gui
