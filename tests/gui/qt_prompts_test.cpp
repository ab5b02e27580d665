#include "gui/qt_prompts.hpp"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QTemporaryDir>

#include "gui_test_support.hpp"

namespace qorvat::gui {
namespace {

TEST(GuiQtPrompts, MessageBoxesShowTitleTextIconAndDirection) {
  struct Case {
    std::function<void(QtPrompts&)> raise;
    const char* title;
    const char* text;
    QMessageBox::Icon icon;
    Qt::LayoutDirection direction;
  };
  const Case cases[] = {
      {[](QtPrompts& p) { p.message_box("Fy must be positive", "Check"); }, "Check", "Fy must be positive",
       QMessageBox::Information, Qt::LeftToRight},
      {[](QtPrompts& p) { p.message_box("مقدار Fy را وارد کنيد", "Qorvat"); }, "Qorvat", "مقدار Fy را وارد کنيد",
       QMessageBox::Information, Qt::RightToLeft},
      {[](QtPrompts& p) {
         p.fault({"Form11", "Command1_Click", "Division by zero"});
       },
       "Qorvat", "Run-time error: Division by zero", QMessageBox::Critical, Qt::LeftToRight},
  };
  QtPrompts prompts;
  for (const Case& c : cases) {
    QMessageBox* seen = nullptr;
    testing::ModalWatchdog read_and_accept([&](QWidget& modal) {
      seen = qobject_cast<QMessageBox*>(&modal);
      ASSERT_NE(seen, nullptr);
      EXPECT_EQ(seen->windowTitle(), c.title);
      EXPECT_EQ(seen->text(), QString::fromUtf8(c.text));
      EXPECT_EQ(seen->icon(), c.icon);
      EXPECT_EQ(seen->layoutDirection(), c.direction) << c.text;
      seen->button(QMessageBox::Ok)->click();
    });
    c.raise(prompts);
    EXPECT_NE(seen, nullptr) << c.text;
  }
}

// The answer given, or a cancel when `answer` is empty.
testing::ModalWatchdog answer_with(std::function<void(QDialog&)> answer) {
  return testing::ModalWatchdog([answer](QWidget& modal) {
    auto* dialog = qobject_cast<QDialog*>(&modal);
    ASSERT_NE(dialog, nullptr);
    if (!answer) return dialog->reject();
    answer(*dialog);
    dialog->accept();
  });
}

TEST(GuiQtPrompts, InputBoxGivesTheAnswerOrNothing) {
  QtPrompts prompts;
  QString shown_default;
  {
    auto typing = answer_with([&](QDialog& modal) {
      auto* dialog = qobject_cast<QInputDialog*>(&modal);
      ASSERT_NE(dialog, nullptr);
      shown_default = dialog->textValue();
      dialog->setTextValue("24");
    });
    EXPECT_EQ(prompts.input_box("Number of bolts", "Qorvat", "4"), "24");
    EXPECT_EQ(shown_default, "4");
  }
  auto cancel = answer_with({});
  EXPECT_EQ(prompts.input_box("Number of bolts", "Qorvat", "4"), std::nullopt);
}

TEST(GuiQtPrompts, SaveDialogGivesThePathOrNothing) {
  QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  const QString path = folder.filePath("report.txt");
  QtPrompts prompts;
  {
    auto choosing = answer_with([&](QDialog& modal) {
      auto* dialog = qobject_cast<QFileDialog*>(&modal);
      ASSERT_NE(dialog, nullptr);
      dialog->selectFile(path);
    });
    EXPECT_EQ(prompts.save_dialog("report.txt", "*.txt"), path.toStdString());
  }
  auto cancel = answer_with({});
  EXPECT_EQ(prompts.save_dialog("report.txt", "*.txt"), std::nullopt);
}

}  // namespace
}  // namespace qorvat::gui
