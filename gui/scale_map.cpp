#include "gui/scale_map.hpp"

#include <cmath>

namespace qorvat::gui {
namespace {

double pixels_per_unit(double extent, double pixels) {
  const double factor = pixels / extent;
  return extent == 0 || !std::isfinite(factor) ? 1 / kTwipsPerPixel : factor;
}

double finite_or_zero(double x) { return std::isfinite(x) ? x : 0; }

}  // namespace

int twips_to_pixels(int twips) { return static_cast<int>(std::lround(twips / kTwipsPerPixel)); }

ScaleMap::ScaleMap(const PictureScale& scale, const QRectF& area)
    : left_(finite_or_zero(scale.left)),
      top_(finite_or_zero(scale.top)),
      x_pixels_per_unit_(pixels_per_unit(scale.width, area.width())),
      y_pixels_per_unit_(pixels_per_unit(scale.height, area.height())),
      origin_(area.topLeft()) {}

QPointF ScaleMap::to_pixels(double x, double y) const {
  return origin_ + QPointF((x - left_) * x_pixels_per_unit_, (y - top_) * y_pixels_per_unit_);
}

QPointF ScaleMap::to_user(QPointF pixel) const {
  const QPointF from_origin = pixel - origin_;
  const double x = x_pixels_per_unit_ == 0 ? 0 : from_origin.x() / x_pixels_per_unit_;
  const double y = y_pixels_per_unit_ == 0 ? 0 : from_origin.y() / y_pixels_per_unit_;
  return {left_ + x, top_ + y};
}

}  // namespace qorvat::gui
