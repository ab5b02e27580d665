#include "gui/front_end.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTableWidget>
#include <QTest>

#include "gui_test_support.hpp"

namespace qorvat::gui {
namespace {

// The program's own dialogs, with probe controls added to Form5 (opened by
// the menu's first button) that count what reaches the runtime.
class GuiFrontEndTest : public testing::FrontEndTest {
 protected:
  GuiFrontEndTest() {
    DialogType& k = *registry.find_mutable("Form5");
    k.add({label("ProbeLabel", "Fy (kg/cm2)"), text_box("ProbeText", "0"), frame("ProbeFrame", "Ends")});
    k.add(inside("ProbeFrame",
                 {option_button("ProbeOption", "Pinned").at(0), option_button("ProbeOption", "Fixed").at(1)}));
    k.add({check_box("ProbeCheck", "Sway"), combo_box("ProbeCombo", {"A", "B", "C"}, "A").picked_only(),
           grid("ProbeGrid", 3, 2), slider("ProbeSlider", 0, 10, 3), button("ProbeAsk", "Ask"),
           button("ProbeCount", "Count"), button("ProbeUnload", "Close")});
    k.on_change("ProbeText", [this](Form&, int) { ++changes; });
    k.on_click("ProbeLabel", [this](Form&, int) { ++label_clicks; });
    k.on_click("ProbeOption", [this](Form&, int i) { option_clicks.push_back(i); });
    k.on_click("ProbeCombo", [this](Form& me, int) { picks.push_back(me["ProbeCombo"].list_index()); });
    k.on_click("ProbeGrid", [this](Form& me, int) { grid_rows.push_back(me["ProbeGrid"].row()); });
    k.on("ProbeGrid", Event::DblClick, [this](Form&, int) { ++double_clicks; });
    k.on_click("ProbeAsk", [](Form& me, int) { me.session().message_box("Check the input"); });
    k.on_click("ProbeCount", [this](Form&, int) { ++count_clicks; });
    k.on_click("ProbeUnload", [](Form& me, int) { me.session().close(me.name()); });
    for (const char* name : {"Form5", "Form8"}) {
      DialogType& type = *registry.find_mutable(name);
      type.on_activate = [this, previous = type.on_activate](Form& me) {
        ++activations[me.name()];
        if (previous) previous(me);
      };
    }
  }

  void start() { open_front_end(true); }

  void open_form5() {
    start();
    QTest::mouseClick(widget<QPushButton>("Form4", "Command1"), Qt::LeftButton);
    ASSERT_NE(gui->window("Form5"), nullptr);
  }

  template <typename W>
  W* widget(const char* form, const char* key) const {
    DialogWindow* window = gui->window(form);
    W* found = window == nullptr ? nullptr : window->findChild<W*>(key);
    EXPECT_NE(found, nullptr) << form << "." << key;
    return found;
  }

  Form& form5() { return session->form("Form5"); }

  // On the box itself: a wide check box or option button takes clicks only there and on its text.
  static void click_box(QAbstractButton* button) {
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
  }

  int changes = 0;
  int count_clicks = 0;
  int label_clicks = 0;
  int double_clicks = 0;
  std::vector<int> option_clicks;
  std::vector<int> picks;
  std::vector<int> grid_rows;
  std::map<std::string, int> activations;
};

TEST_F(GuiFrontEndTest, MenuButtonHidesTheMenuAndShowsItsDialog) {
  start();
  DialogWindow* menu = gui->window("Form4");
  ASSERT_NE(menu, nullptr);
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->windowTitle(), "Qorvat22.0.0");
  QPushButton* first = widget<QPushButton>("Form4", "Command1");
  EXPECT_EQ(first->text(), "K and Fa (Fcre) Cal");

  // The menu's state and the dialog's caption are the main_menu_walk scenario's; its
  // window title is checked with every other dialog's below.
  QTest::mouseClick(first, Qt::LeftButton);
  EXPECT_FALSE(menu->isVisible());
  ASSERT_NE(gui->window("Form5"), nullptr);
  EXPECT_TRUE(gui->window("Form5")->isVisible());
}

TEST_F(GuiFrontEndTest, EachKeystrokeIsOneChange) {
  open_form5();
  auto* field = widget<QLineEdit>("Form5", "ProbeText");
  field->selectAll();
  QTest::keyClicks(field, "2.5");
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(form5().text("ProbeText"), "2.5");
  QTest::keyClick(field, Qt::Key_Backspace);
  EXPECT_EQ(changes, 4);
  EXPECT_EQ(form5().text("ProbeText"), "2.");
  EXPECT_EQ(field->text(), "2.");
}

TEST_F(GuiFrontEndTest, RuntimeChangesShowAtOnce) {
  open_form5();
  DialogWindow* dialog = gui->window("Form5");
  auto* field = widget<QLineEdit>("Form5", "ProbeText");
  auto* label = widget<QLabel>("Form5", "ProbeLabel");
  auto* combo = widget<QComboBox>("Form5", "ProbeCombo");
  auto* table = widget<QTableWidget>("Form5", "ProbeGrid");
  struct Case {
    const char* what;
    std::function<void(Form&)> change;
    std::function<bool()> shown;
  };
  const Case cases[] = {
      {"red back colour", [](Form& f) { f["ProbeText"].set_back_color(colors::kRed); },
       [&] { return field->palette().color(QPalette::Base) == QColor(255, 0, 0); }},
      {"system back colour again", [](Form& f) { f["ProbeText"].set_back_color(colors::kWindowBackground); },
       [&] { return field->palette().color(QPalette::Base) == dialog->palette().color(QPalette::Base); }},
      {"green fore colour", [](Form& f) { f["ProbeLabel"].set_fore_color(colors::kDarkGreen); },
       [&] { return label->palette().color(QPalette::WindowText) == QColor(0, 128, 0); }},
      {"disabled", [](Form& f) { f["ProbeText"].set_enabled(false); }, [&] { return !field->isEnabled(); }},
      {"hidden", [](Form& f) { f["ProbeText"].set_visible(false); }, [&] { return field->isHidden(); }},
      {"text", [](Form& f) { f.set_text("ProbeText", "7.5"); }, [&] { return field->text() == "7.5"; }},
      {"Persian caption", [](Form& f) { f["ProbeLabel"].set_text("طول"); },
       [&] { return label->text() == "طول" && label->layoutDirection() == Qt::RightToLeft; }},
      {"option chosen", [](Form& f) { f["ProbeOption(1)"].set_selected(true); },
       [&] { return widget<QRadioButton>("Form5", "ProbeOption(1)")->isChecked(); }},
      {"list refilled",
       [](Form& f) {
         f["ProbeCombo"].clear_list();
         f["ProbeCombo"].add_item("W8");
       },
       [&] { return combo->count() == 1 && combo->itemText(0) == "W8"; }},
      {"grid cell", [](Form& f) { f["ProbeGrid"].set_cell(1, 1, "IPE 200"); },
       [&] { return table->item(1, 1)->text() == "IPE 200"; }},
      {"grid heading", [](Form& f) { f["ProbeGrid"].set_col_heading(0, "Profile"); },
       [&] { return !table->horizontalHeader()->isHidden() && table->horizontalHeaderItem(0)->text() == "Profile"; }},
      {"grid row", [](Form& f) { f["ProbeGrid"].set_row(2); },
       [&] { return table->selectionModel()->isRowSelected(2, {}); }},
      {"window caption", [](Form& f) { f.set_caption("K (sway)"); },
       [&] { return dialog->windowTitle() == "K (sway)"; }},
  };
  for (const Case& c : cases) {
    session->user_action([&] { c.change(form5()); });
    EXPECT_TRUE(c.shown()) << c.what;
  }
  EXPECT_EQ(prompts.lines("fault "), std::vector<std::string>{});
}

TEST_F(GuiFrontEndTest, ChecksAndOptionsShowWhatTheRuntimeDecides) {
  open_form5();
  auto* pinned = widget<QRadioButton>("Form5", "ProbeOption(0)");
  auto* fixed = widget<QRadioButton>("Form5", "ProbeOption(1)");
  click_box(pinned);
  click_box(fixed);
  EXPECT_FALSE(pinned->isChecked());  // the runtime keeps one per frame
  // Clicking the chosen option keeps it chosen and fires its click again.
  click_box(fixed);
  EXPECT_TRUE(fixed->isChecked());
  EXPECT_TRUE(form5()["ProbeOption(1)"].selected());
  EXPECT_EQ(option_clicks, (std::vector<int>{0, 1, 1}));

  auto* sway = widget<QCheckBox>("Form5", "ProbeCheck");
  click_box(sway);
  EXPECT_TRUE(sway->isChecked());
  EXPECT_EQ(form5()["ProbeCheck"].value(), 1);
  click_box(sway);
  EXPECT_FALSE(sway->isChecked());
  EXPECT_EQ(form5()["ProbeCheck"].value(), 0);
}

TEST_F(GuiFrontEndTest, PicksRowsMovesAndLabelClicksReachTheRuntime) {
  open_form5();
  QTest::mouseClick(widget<QLabel>("Form5", "ProbeLabel"), Qt::LeftButton);
  EXPECT_EQ(label_clicks, 1);
  QTest::keyClick(widget<QSlider>("Form5", "ProbeSlider"), Qt::Key_Right);
  EXPECT_EQ(form5()["ProbeSlider"].value(), 4);

  auto* combo = widget<QComboBox>("Form5", "ProbeCombo");
  EXPECT_EQ(combo->currentText(), "A");
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(picks, (std::vector<int>{1}));
  EXPECT_EQ(form5().text("ProbeCombo"), "B");

  auto* table = widget<QTableWidget>("Form5", "ProbeGrid");
  const QPoint third_row = table->visualRect(table->model()->index(2, 0)).center();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, third_row);
  EXPECT_EQ(grid_rows, (std::vector<int>{2}));
  // A double click: a click, then the second press.
  const QPoint second_row = table->visualRect(table->model()->index(1, 0)).center();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, second_row);
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, second_row);
  EXPECT_EQ(grid_rows, (std::vector<int>{2, 1, 1}));
  EXPECT_EQ(double_clicks, 1);
  EXPECT_EQ(form5()["ProbeGrid"].row(), 1);
}

TEST_F(GuiFrontEndTest, ClosingTheWindowGoesBackToTheMenu) {
  open_form5();
  QPointer<DialogWindow> old = gui->window("Form5");
  old->close();
  EXPECT_EQ(session->state("Form5"), FormState::Destroyed);
  EXPECT_EQ(gui->window("Form5"), nullptr);
  EXPECT_EQ(session->state("Form4"), FormState::Showing);
  EXPECT_TRUE(gui->window("Form4")->isVisible());
  testing::flush_deferred_deletes();
  EXPECT_TRUE(old.isNull());

  // A new instance gets a window of its own; a routine unloading its own
  // dialog from the button's click leaves nothing behind.
  QTest::mouseClick(widget<QPushButton>("Form4", "Command1"), Qt::LeftButton);
  QTest::keyClicks(widget<QLineEdit>("Form5", "ProbeText"), "1");
  EXPECT_EQ(changes, 1);
  QTest::mouseClick(widget<QPushButton>("Form5", "ProbeUnload"), Qt::LeftButton);
  EXPECT_EQ(session->state("Form5"), FormState::Destroyed);
  EXPECT_EQ(gui->window("Form5"), nullptr);
  EXPECT_TRUE(gui->window("Form4")->isVisible());
}

TEST_F(GuiFrontEndTest, ActionsWhileARoutinesPromptIsUpAreDropped) {
  open_form5();
  auto* count = widget<QPushButton>("Form5", "ProbeCount");
  prompts.while_message_is_up = [&] {
    EXPECT_TRUE(gui->busy());
    QTest::mouseClick(count, Qt::LeftButton);
    QTest::keyClicks(widget<QLineEdit>("Form5", "ProbeText"), "9");
    gui->window("Form5")->close();
  };
  QTest::mouseClick(widget<QPushButton>("Form5", "ProbeAsk"), Qt::LeftButton);
  EXPECT_EQ(prompts.lines("msgbox "), (std::vector<std::string>{"msgbox Qorvat\tCheck the input"}));
  EXPECT_EQ(count_clicks, 0);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(session->state("Form5"), FormState::Showing);

  prompts.while_message_is_up = nullptr;
  QTest::mouseClick(count, Qt::LeftButton);
  EXPECT_EQ(count_clicks, 1);
}

TEST_F(GuiFrontEndTest, ActivatingAnotherDialogsWindowActivatesIt) {
  open_form5();
  QCoreApplication::processEvents();
  EXPECT_EQ(activations["Form5"], 1);  // shown by the runtime, not activated twice
  session->user_action([&] { session->show("Form8"); });
  QCoreApplication::processEvents();
  EXPECT_EQ(activations["Form8"], 1);

  gui->window("Form5")->activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(activations["Form5"], 2);
  gui->window("Form5")->activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(activations["Form5"], 2);
  gui->window("Form8")->activateWindow();
  QCoreApplication::processEvents();
  EXPECT_EQ(activations["Form8"], 2);
}

TEST_F(GuiFrontEndTest, PersianCaptionsReadRightToLeft) {
  start();
  QTest::mouseClick(widget<QPushButton>("Form4", "Command2"), Qt::LeftButton);
  ASSERT_NE(gui->window("Form28"), nullptr);
  EXPECT_EQ(gui->window("Form28")->windowTitle(), "Select Connection");
  EXPECT_EQ(widget<QRadioButton>("Form28", "Option1")->layoutDirection(), Qt::RightToLeft);
  EXPECT_EQ(widget<QPushButton>("Form28", "Command1")->layoutDirection(), Qt::LeftToRight);
}

TEST_F(GuiFrontEndTest, EveryDialogShowsEveryControlAndClosesThenTheMenuEndsTheProgram) {
  start();
  for (const std::string& name : registry.names()) {
    if (name == "Form4") continue;
    session->user_action([&] { session->show(name); });
    DialogWindow* window = gui->window(name);
    ASSERT_NE(window, nullptr) << name;
    EXPECT_TRUE(window->isVisible()) << name;
    Form& form = session->form(name);
    EXPECT_EQ(window->windowTitle().toStdString(), form.caption()) << name;
    for (const auto& control : form.controls()) {
      EXPECT_NE(window->widget_for(*control), nullptr) << name << "." << control->key();
    }
    window->close();
    EXPECT_NE(session->state(name), FormState::Showing) << name;
  }
  // Closing the menu ends the program.
  gui->window("Form4")->close();
  EXPECT_TRUE(session->ended());
  EXPECT_EQ(program_ends, 1);
  EXPECT_EQ(gui->window("Form4"), nullptr);
  EXPECT_EQ(prompts.lines("fault "), std::vector<std::string>{});
}

}  // namespace
}  // namespace qorvat::gui
