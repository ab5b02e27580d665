#pragma once
// Mouse clicks on widgets that have no clicked signal (labels, pictures).
// A click is a press and release on the widget; the release that ends a
// double click is not a second click.

#include <QObject>
#include <functional>

namespace qorvat::gui {

class ClickFilter final : public QObject {
 public:
  ClickFilter(QObject* parent, std::function<void()> on_click, std::function<void()> on_double_click);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> on_click_;
  std::function<void()> on_double_click_;
  bool ending_double_click_ = false;
};

// Reports clicks on the widget until it is deleted.
void report_clicks(QWidget& widget, std::function<void()> on_click, std::function<void()> on_double_click);

}  // namespace qorvat::gui
