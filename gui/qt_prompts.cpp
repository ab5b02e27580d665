#include "gui/qt_prompts.hpp"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include "gui/qt_convert.hpp"

namespace qorvat::gui {
namespace {

void lay_out_for(QWidget& dialog, const QString& text) {
  if (reads_right_to_left(text)) dialog.setLayoutDirection(Qt::RightToLeft);
}

}  // namespace

void QtPrompts::message_box(std::string_view text, std::string_view title) {
  const QString shown = to_qstring(text);
  QMessageBox box(QMessageBox::Information, to_qstring(title), shown, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  lay_out_for(box, shown);
  box.exec();
}

std::optional<std::string> QtPrompts::input_box(std::string_view prompt, std::string_view title,
                                                std::string_view default_text) {
  const QString shown = to_qstring(prompt);
  QInputDialog dialog;
  dialog.setInputMode(QInputDialog::TextInput);
  dialog.setWindowTitle(to_qstring(title));
  dialog.setLabelText(shown);
  dialog.setTextValue(to_qstring(default_text));
  lay_out_for(dialog, shown);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return to_utf8(dialog.textValue());
}

std::optional<std::string> QtPrompts::save_dialog(std::string_view file_name, std::string_view filter) {
  const QString chosen =
      QFileDialog::getSaveFileName(nullptr, QString(), to_qstring(file_name), qt_file_filter(filter));
  if (chosen.isEmpty()) return std::nullopt;
  return to_utf8(chosen);
}

void QtPrompts::fault(const FaultReport& report) {
  QMessageBox::critical(nullptr, kApplicationTitle, "Run-time error: " + to_qstring(report.what));
}

}  // namespace qorvat::gui
