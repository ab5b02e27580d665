#include "gui/section_sketch.hpp"

#include <QPainterPath>

namespace qorvat::gui {

void paint_section_sketch(QPainter& painter, const QRectF& area, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.5));
  // An I-section outline, scaled to the panel.
  const QRectF inner = area.adjusted(8, 8, -8, -8);
  const qreal side = std::min(inner.width(), inner.height());
  const QRectF box(inner.center().x() - side / 2, inner.center().y() - side / 2, side, side);
  const qreal flange = side * 0.14;
  const qreal web = side * 0.12;
  QPainterPath outline;
  outline.addRect(box.left(), box.top(), box.width(), flange);
  outline.addRect(box.left(), box.bottom() - flange, box.width(), flange);
  outline.addRect(box.center().x() - web / 2, box.top() + flange, web, box.height() - 2 * flange);
  painter.drawPath(outline.simplified());
  painter.restore();
}

}  // namespace qorvat::gui
