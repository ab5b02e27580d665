#pragma once
// Stand-in for a dialog's picture: a framed panel with a plain section
// sketch, so the dialog keeps its shape and the picture stays clickable.

#include <QFrame>

namespace qorvat::gui {

class SketchWidget final : public QFrame {
 public:
  explicit SketchWidget(QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qorvat::gui
