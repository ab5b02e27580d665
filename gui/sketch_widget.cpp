#include "gui/sketch_widget.hpp"

#include <QPainter>
#include <QPainterPath>

namespace qorvat::gui {

SketchWidget::SketchWidget(QWidget* parent) : QFrame(parent) {
  setFrameShape(QFrame::StyledPanel);
  setFrameShadow(QFrame::Sunken);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize SketchWidget::sizeHint() const { return {140, 90}; }

void SketchWidget::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Mid), 1.5));
  // An I-section outline, scaled to the panel.
  const QRectF area = QRectF(contentsRect()).adjusted(8, 8, -8, -8);
  const qreal side = std::min(area.width(), area.height());
  const QRectF box(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
  const qreal flange = side * 0.14;
  const qreal web = side * 0.12;
  QPainterPath outline;
  outline.addRect(box.left(), box.top(), box.width(), flange);
  outline.addRect(box.left(), box.bottom() - flange, box.width(), flange);
  outline.addRect(box.center().x() - web / 2, box.top() + flange, web, box.height() - 2 * flange);
  painter.drawPath(outline.simplified());
}

}  // namespace qorvat::gui
