#include "gui/picture_widget.hpp"

#include <QMouseEvent>
#include <QPainter>

#include "gui/layout_plan.hpp"
#include "gui/line_overlay.hpp"
#include "gui/qt_convert.hpp"
#include "gui/section_sketch.hpp"

namespace qorvat::gui {
namespace {

constexpr QSize kUnsizedPicture(140, 90);

bool has_design_size(const Control& control) { return control.width() > 0 && control.height() > 0; }

// One dimension of a child: its own in twips, else the picture's area for a
// picture (it fills its holder), else what the widget asks for.
int child_extent(int twips, bool picture, int area, int hint) {
  if (twips > 0) return twips_to_pixels(twips);
  return picture ? area : std::max(hint, 0);
}

}  // namespace

PictureWidget::PictureWidget(const Control& control, QWidget* parent) : QFrame(parent), control_(&control) {
  setFrameShape(QFrame::StyledPanel);
  setFrameShadow(QFrame::Sunken);
  size_changed();
}

void PictureWidget::detach() {
  control_ = nullptr;
  children_.clear();
  polylines_.clear();
  on_move_ = nullptr;
}

ScaleMap PictureWidget::scale_map() const {
  return {control_ != nullptr ? control_->scale() : PictureScale{}, QRectF(contentsRect())};
}

void PictureWidget::adopt(QWidget& child, const Control& control) {
  child.setParent(this);
  children_.push_back({&child, &control});
  // Lines lie over everything else in the picture, in their own order.
  for (const Child& c : children_) {
    if (c.control->kind() == ControlKind::Line) c.widget->raise();
  }
  place(children_.back());
}

void PictureWidget::place(QWidget& child) {
  for (const Child& c : children_) {
    if (c.widget == &child) place(c);
  }
}

void PictureWidget::place(const Child& child) {
  const Control& c = *child.control;
  const QRect area = contentsRect();
  if (auto* overlay = dynamic_cast<LineOverlay*>(child.widget)) {
    const ScaleMap map = scale_map();
    overlay->set_ends(map.to_pixels(c.x1(), c.y1()), map.to_pixels(c.x2(), c.y2()));
  } else {
    const QSize hint = child.widget->sizeHint();
    const bool picture = is_picture(c.kind());
    const QPoint at = area.topLeft() + QPoint(twips_to_pixels(c.left()), twips_to_pixels(c.top()));
    const QSize size(child_extent(c.width(), picture, area.width(), hint.width()),
                     child_extent(c.height(), picture, area.height(), hint.height()));
    child.widget->setGeometry(QRect(at, size));
  }
  clip_to_area(*child.widget);
}

void PictureWidget::clip_to_area(QWidget& child) const {
  // Qt clips children to the picture's outline; a plot scrolled past the
  // border must stay inside it too.
  const QRect inside = contentsRect().translated(-child.pos()) & child.rect();
  if (inside == child.rect()) {
    child.clearMask();
  } else if (inside.isEmpty()) {
    child.setMask(QRegion(-1, -1, 1, 1));  // covers none of it; an empty mask would mean no mask
  } else {
    child.setMask(QRegion(inside));
  }
}

void PictureWidget::place_all() {
  for (const Child& c : children_) place(c);
}

void PictureWidget::drawing_changed() {
  polylines_stale_ = true;
  place_all();  // the scale may have moved the lines
  update();
}

void PictureWidget::size_changed() {
  const bool sized = control_ != nullptr && has_design_size(*control_);
  setSizePolicy(sized ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed);
  updateGeometry();
}

void PictureWidget::report_pointer(std::function<void(QPointF)> on_move) {
  on_move_ = std::move(on_move);
  setMouseTracking(on_move_ != nullptr);
}

QSize PictureWidget::sizeHint() const {
  if (control_ == nullptr || !has_design_size(*control_)) return kUnsizedPicture;
  return {twips_to_pixels(control_->width()), twips_to_pixels(control_->height())};
}

void PictureWidget::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  if (control_ != nullptr && !control_->drawing().empty()) {
    paint_drawing(painter, event->rect());
  } else if (children_.empty()) {
    paint_section_sketch(painter, QRectF(contentsRect()), palette().color(QPalette::Mid));
  }
}

void PictureWidget::paint_drawing(QPainter& painter, const QRect& exposed) {
  const QRect area = contentsRect() & exposed;
  painter.setClipRect(area);
  const ScaleMap map = scale_map();
  const std::vector<PixelPolyline>& lines = polylines();
  const std::vector<DrawCommand>& drawing = control_->drawing();
  const QColor plain = palette().color(QPalette::WindowText);
  const qreal ascent = QFontMetricsF(font()).ascent();
  for (std::size_t i = 0; i < drawing.size(); ++i) {
    const DrawCommand& command = drawing[i];
    QPen pen(qt_color(command.color).value_or(plain), 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    switch (command.kind) {
      case DrawCommand::Kind::Line:
        painter.drawLine(map.to_pixels(command.x1, command.y1), map.to_pixels(command.x2, command.y2));
        break;
      case DrawCommand::Kind::Text:
        // The point is the text's top-left corner.
        painter.drawText(map.to_pixels(command.x1, command.y1) + QPointF(0, ascent), to_qstring(command.text));
        break;
      case DrawCommand::Kind::Polyline: lines[i].paint(painter, QRectF(area)); break;
    }
  }
}

const std::vector<PixelPolyline>& PictureWidget::polylines() {
  if (!polylines_stale_) return polylines_;
  const std::vector<DrawCommand>& drawing = control_->drawing();
  const ScaleMap map = scale_map();
  polylines_.assign(drawing.size(), PixelPolyline());
  for (std::size_t i = 0; i < drawing.size(); ++i) {
    if (drawing[i].kind == DrawCommand::Kind::Polyline) polylines_[i] = PixelPolyline(drawing[i].points, map);
  }
  polylines_stale_ = false;
  return polylines_;
}

void PictureWidget::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  polylines_stale_ = true;
  place_all();
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!on_move_) {
    QFrame::mouseMoveEvent(event);
    return;
  }
  // Held by value: the routine may close the dialog, which detaches this picture.
  const std::function<void(QPointF)> report = on_move_;
  event->accept();
  report(scale_map().to_user(event->position()));
}

}  // namespace qorvat::gui
