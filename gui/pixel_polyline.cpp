#include "gui/pixel_polyline.hpp"

#include <algorithm>
#include <array>
#include <cmath>

namespace qorvat::gui {
namespace {

// Points per piece: small enough that a narrow repaint skips most of a long
// plot, large enough that the piece bookkeeping costs nothing.
constexpr qsizetype kPieceSize = 512;

// Gathers one pixel column's run of points at a time.
class ColumnRun {
 public:
  explicit ColumnRun(QPolygonF& out) : out_(out) {}

  void add(QPointF p) {
    const double column = std::floor(p.x());
    if (count_ > 0 && column != column_) flush();
    if (count_ == 0) {
      column_ = column;
      first_ = lowest_ = highest_ = {p, 0};
    }
    if (p.y() < lowest_.point.y()) lowest_ = {p, count_};
    if (p.y() > highest_.point.y()) highest_ = {p, count_};
    last_ = {p, count_};
    ++count_;
  }

  // Emits the run's entry, extremes and exit in the order they were drawn.
  void flush() {
    if (count_ == 0) return;
    std::array<Kept, 4> kept{first_, lowest_, highest_, last_};
    std::sort(kept.begin(), kept.end(), [](const Kept& a, const Kept& b) { return a.at < b.at; });
    for (std::size_t k = 0; k < kept.size(); ++k) {
      if (k == 0 || kept[k].at != kept[k - 1].at) out_ << kept[k].point;
    }
    count_ = 0;
  }

 private:
  struct Kept {
    QPointF point;
    long at = 0;  // position within the run
  };
  QPolygonF& out_;
  double column_ = 0;
  long count_ = 0;
  Kept first_, lowest_, highest_, last_;
};

}  // namespace

QPolygonF thin_to_columns(const std::vector<std::pair<double, double>>& points, const ScaleMap& map) {
  QPolygonF out;
  ColumnRun run(out);
  for (const auto& [x, y] : points) {
    const QPointF p = map.to_pixels(x, y);
    if (std::isfinite(p.x()) && std::isfinite(p.y())) run.add(p);
  }
  run.flush();
  return out;
}

PixelPolyline::PixelPolyline(const std::vector<std::pair<double, double>>& points, const ScaleMap& map) {
  const QPolygonF all = thin_to_columns(points, map);
  // Neighbouring pieces share their end point so the line stays joined.
  for (qsizetype start = 0; start + 1 < all.size(); start += kPieceSize - 1) {
    Piece piece;
    piece.points = all.mid(start, kPieceSize);
    piece.bounds = piece.points.boundingRect().adjusted(-1, -1, 1, 1);
    pieces_.push_back(std::move(piece));
  }
}

void PixelPolyline::paint(QPainter& painter, const QRectF& exposed) const {
  for (const Piece& piece : pieces_) {
    if (piece.bounds.intersects(exposed)) painter.drawPolyline(piece.points);
  }
}

}  // namespace qorvat::gui
