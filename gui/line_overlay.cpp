#include "gui/line_overlay.hpp"

#include <QPainter>

namespace qorvat::gui {

LineOverlay::LineOverlay(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
}

void LineOverlay::set_ends(QPointF from, QPointF to) {
  // A margin so the pen's width, and a line along an axis, still fit. The
  // parent clips the rest, so the overlay never reaches beyond it, however far the ends.
  const QRectF around = QRectF(from, to).normalized().adjusted(-2, -2, 2, 2);
  const QRectF limit = parentWidget() != nullptr ? QRectF(parentWidget()->rect()) : around;
  const QRect covered = (around & limit).toAlignedRect();
  from_ = from - covered.topLeft();
  to_ = to - covered.topLeft();
  if (covered == geometry()) {
    update();
  } else {
    setGeometry(covered);
  }
}

void LineOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
  painter.drawLine(from_, to_);
}

}  // namespace qorvat::gui
