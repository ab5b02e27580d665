#include "gui/application_look.hpp"

#include <QFontDatabase>
#include <QStyleFactory>

namespace qorvat::gui {

void apply_application_look(QApplication& app) {
  if (QStyle* fusion = QStyleFactory::create("Fusion")) QApplication::setStyle(fusion);
  // DejaVu Sans covers Latin and Arabic script; Qt falls back per glyph for the rest.
  for (const char* family : {"DejaVu Sans", "Noto Sans", "Vazirmatn"}) {
    if (QFontDatabase::writingSystems(family).contains(QFontDatabase::Arabic)) {
      QFont font = QApplication::font();
      font.setFamily(family);
      app.setFont(font);
      return;
    }
  }
}

}  // namespace qorvat::gui
