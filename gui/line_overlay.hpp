#pragma once
// A line control drawn over the picture that holds it. The picture works
// out the ends in pixels from its scale; the overlay covers only the line, so
// moving a cursor line repaints a sliver of the plot, not all of it. Mouse
// events pass through to the picture underneath.

#include <QWidget>

namespace qorvat::gui {

class LineOverlay final : public QWidget {
 public:
  explicit LineOverlay(QWidget* parent = nullptr);

  // The ends in the parent's pixels.
  void set_ends(QPointF from, QPointF to);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF from_, to_;  // in the overlay's own pixels
};

}  // namespace qorvat::gui
