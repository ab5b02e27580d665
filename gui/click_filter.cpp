#include "gui/click_filter.hpp"

#include <QMouseEvent>
#include <QWidget>

namespace qorvat::gui {

ClickFilter::ClickFilter(QObject* parent, std::function<void()> on_click, std::function<void()> on_double_click)
    : QObject(parent), on_click_(std::move(on_click)), on_double_click_(std::move(on_double_click)) {}

bool ClickFilter::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      // Taken here so the release comes back to this widget.
      return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    case QEvent::MouseButtonDblClick:
      if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return false;
      ending_double_click_ = true;
      on_double_click_();
      return true;
    case QEvent::MouseButtonRelease: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::LeftButton) return false;
      if (ending_double_click_) {
        ending_double_click_ = false;
        return true;
      }
      if (widget->rect().contains(mouse->position().toPoint())) on_click_();
      return true;
    }
    default: return false;
  }
}

void report_clicks(QWidget& widget, std::function<void()> on_click, std::function<void()> on_double_click) {
  widget.installEventFilter(new ClickFilter(&widget, std::move(on_click), std::move(on_double_click)));
}

}  // namespace qorvat::gui
