#include "gui/qt_convert.hpp"

#include <QStringList>

namespace qorvat::gui {

QString to_qstring(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string to_utf8(const QString& text) { return text.toUtf8().toStdString(); }

bool reads_right_to_left(const QString& text) {
  int right_to_left = 0;
  int left_to_right = 0;
  bool first_strong_is_rtl = false;
  for (const char32_t code_point : text.toUcs4()) {
    switch (QChar::direction(code_point)) {
      case QChar::DirR:
      case QChar::DirAL:
        if (right_to_left + left_to_right == 0) first_strong_is_rtl = true;
        ++right_to_left;
        break;
      case QChar::DirL: ++left_to_right; break;
      default: break;
    }
  }
  return first_strong_is_rtl || right_to_left > left_to_right;
}

QString label_display_text(const QString& caption) {
  QString shown;
  shown.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const bool marker = caption[i] == u'&' && i + 1 < caption.size();
    if (marker) ++i;  // "&&" keeps the second, "&x" keeps x
    shown += caption[i];
  }
  return shown;
}

std::optional<QColor> qt_color(Color color) {
  if (colors::is_system(color)) return std::nullopt;
  return QColor(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
}

QString qt_file_filter(std::string_view filter) {
  const QStringList parts = to_qstring(filter).split(u'|');
  if (parts.size() < 2) return parts.value(0);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString description = parts[i].trimmed();
    QString patterns = parts[i + 1].trimmed();
    patterns.replace(u';', u' ');
    const QString bracketed = "(" + patterns + ")";
    filters << (description.endsWith(bracketed) ? description : description + " " + bracketed);
  }
  return filters.join(";;");
}

}  // namespace qorvat::gui
