#pragma once
// What a picture shows before anything is drawn on it: a plain section
// outline, so the dialog keeps its shape and the picture reads as one.

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace qorvat::gui {

void paint_section_sketch(QPainter& painter, const QRectF& area, const QColor& color);

}  // namespace qorvat::gui
