#pragma once
// A picture box or image: paints the control's drawing in the picture's
// scale, and holds the controls declared inside it at their own positions
// (in twips), clipped by the picture. A picture with nothing drawn shows a
// section sketch, or a plain panel when it holds controls.

#include <QFrame>
#include <functional>
#include <vector>

#include "gui/pixel_polyline.hpp"
#include "gui/scale_map.hpp"
#include "runtime/control.hpp"

namespace qorvat::gui {

class LineOverlay;

class PictureWidget final : public QFrame {
 public:
  explicit PictureWidget(const Control& control, QWidget* parent = nullptr);

  // The Form is going away: from now on the picture reads nothing of it.
  void detach();

  // The picture's scale against its drawing area as it is now.
  ScaleMap scale_map() const;

  // Takes a control's widget as a child placed by the control's geometry; a
  // line control's widget is a LineOverlay placed by its ends.
  void adopt(QWidget& child, const Control& control);
  // Places one adopted child again after its position or size changed.
  void place(QWidget& child);
  // The drawing or the scale changed.
  void drawing_changed();
  // The control's own size changed; only the layout holding the picture cares.
  void size_changed();

  // Called with the pointer in the picture's scale on every mouse move.
  void report_pointer(std::function<void(QPointF)> on_move);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  struct Child {
    QWidget* widget;
    const Control* control;
  };

  void place(const Child& child);
  void clip_to_area(QWidget& child) const;
  void place_all();
  void paint_drawing(QPainter& painter, const QRect& exposed);
  const std::vector<PixelPolyline>& polylines();

  const Control* control_;
  std::vector<Child> children_;
  std::function<void(QPointF)> on_move_;
  // Polylines in pixels, one per command (empty for other kinds); rebuilt
  // when the drawing, the scale or the size changes.
  std::vector<PixelPolyline> polylines_;
  bool polylines_stale_ = true;
};

}  // namespace qorvat::gui
