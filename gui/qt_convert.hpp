#pragma once
// Conversions between the runtime's values (UTF-8 text, blue-green-red
// colours, file filters) and Qt's.

#include <QColor>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/colors.hpp"

namespace qorvat::gui {

QString to_qstring(std::string_view utf8);
std::string to_utf8(const QString& text);

// Persian and Arabic text is laid out right to left: when its first strong
// character is right-to-left, or when right-to-left letters outnumber the
// Latin ones (Persian captions often start with a Latin abbreviation).
bool reads_right_to_left(const QString& text);

// A label's caption as shown: "&&" is a literal ampersand and a single "&"
// only marks a shortcut letter.
QString label_display_text(const QString& caption);

// The colour to paint, or nothing for a system colour (the palette's own).
std::optional<QColor> qt_color(Color color);

// A save dialog filter in Qt's form. Accepts a bare pattern ("*.txt") or
// description|pattern pairs ("Text (*.txt)|*.txt|All|*.*").
QString qt_file_filter(std::string_view filter);

}  // namespace qorvat::gui
