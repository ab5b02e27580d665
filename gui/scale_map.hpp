#pragma once
// A picture's user coordinates against the pixels of its drawing area. An
// axis whose scale has no extent counts in twips from its origin, the unit
// every picture starts in.

#include <QPointF>
#include <QRectF>

#include "runtime/control.hpp"

namespace qorvat::gui {

inline constexpr double kTwipsPerPixel = 15.0;

// Whole pixels of a length in twips, as controls are placed and sized.
int twips_to_pixels(int twips);

class ScaleMap {
 public:
  ScaleMap(const PictureScale& scale, const QRectF& area);

  QPointF to_pixels(double x, double y) const;
  // The user coordinates of a pixel position; a collapsed axis gives its origin.
  QPointF to_user(QPointF pixel) const;

 private:
  double left_, top_;
  double x_pixels_per_unit_, y_pixels_per_unit_;
  QPointF origin_;
};

}  // namespace qorvat::gui
