// Thinning a polyline to pixel columns keeps what the pixels show: each
// column's entry, lowest and highest points and exit, in the order drawn.

#include "gui/pixel_polyline.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace qorvat::gui {
namespace {

using Points = std::vector<std::pair<double, double>>;

TEST(GuiPixelPolyline, ThinsEachColumnToEntryExtremesAndExit) {
  // One user unit to a pixel.
  const ScaleMap map({0, 0, 10, 10}, QRectF(0, 0, 10, 10));
  const double nan = std::nan("");
  struct Case {
    const char* what;
    Points points;
    Points kept;
  };
  const Case cases[] = {
      {"one point a column stays as it is", {{1, 5}, {2, 6}, {3, 4}}, {{1, 5}, {2, 6}, {3, 4}}},
      {"the middle of a run goes, its extremes stay",
       {{3.1, 5}, {3.2, 1}, {3.3, 2}, {3.5, 9}, {3.6, 7}, {3.9, 4}},
       {{3.1, 5}, {3.2, 1}, {3.5, 9}, {3.9, 4}}},
      {"a high before a low keeps that order",
       {{4.0, 5}, {4.2, 9}, {4.4, 1}, {4.6, 3}, {4.8, 5}},
       {{4.0, 5}, {4.2, 9}, {4.4, 1}, {4.8, 5}}},
      {"an extreme at the entry is kept once",
       {{5.0, 0}, {5.3, 4}, {5.6, 2}, {5.9, 3}},
       {{5.0, 0}, {5.3, 4}, {5.9, 3}}},
      {"a return to a column is a run of its own",
       {{1.2, 1}, {1.4, 2}, {2.5, 3}, {1.6, 4}},
       {{1.2, 1}, {1.4, 2}, {2.5, 3}, {1.6, 4}}},
      {"points that are not finite are left out", {{1, 1}, {nan, 2}, {2, nan}, {3, 3}}, {{1, 1}, {3, 3}}},
  };
  for (const Case& c : cases) {
    const QPolygonF thinned = thin_to_columns(c.points, map);
    Points kept;
    for (const QPointF& p : thinned) kept.emplace_back(p.x(), p.y());
    EXPECT_EQ(kept, c.kept) << c.what;
  }
}

}  // namespace
}  // namespace qorvat::gui
