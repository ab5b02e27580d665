#pragma once
// A polyline of a picture's drawing in pixels, ready to paint. A plot may
// hold hundreds of thousands of points for a few hundred pixel columns, so
// each run of points within one column keeps only where it enters, its
// highest and lowest points and where it leaves: the same pixels, peaks kept.
// The result is cut into pieces, so a repaint of part of the picture only
// draws the pieces that cross it.

#include <QPainter>
#include <QPolygonF>
#include <utility>
#include <vector>

#include "gui/scale_map.hpp"

namespace qorvat::gui {

// The points of a polyline in pixels with each column's run thinned as above.
// Points that are not finite are left out.
QPolygonF thin_to_columns(const std::vector<std::pair<double, double>>& points, const ScaleMap& map);

class PixelPolyline {
 public:
  PixelPolyline() = default;
  PixelPolyline(const std::vector<std::pair<double, double>>& points, const ScaleMap& map);

  // Draws with the painter's pen the pieces that cross `exposed`.
  void paint(QPainter& painter, const QRectF& exposed) const;

 private:
  struct Piece {
    QPolygonF points;
    QRectF bounds;  // widened by a pixel, so a straight piece still has an area
  };
  std::vector<Piece> pieces_;
};

}  // namespace qorvat::gui
