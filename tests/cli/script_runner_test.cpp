// The script runner's contract on a small dialog of its own: prompts and
// their answers, faults, typing, picking, and what a user cannot reach.

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "cli/script_runner.hpp"
#include "runtime/fault.hpp"
#include "runtime/session.hpp"

namespace qorvat {
namespace {

DialogRegistry make_test_registry() {
  DialogRegistry registry;
  DialogType menu;
  menu.name = "Form4";
  menu.caption = "Test menu";
  menu.add({text_box("Text1"), text_box("Text2"), label("Label1", ""), button("Command1", "Ask"),
            button("Command2", "Divide"), button("Command3", "Save"), button("Command4", "Off").disabled(),
            combo_box("Combo1", {"A", "B", "ب"}), grid("Grid1", 3, 2), frame("Frame1", "Hidden").hidden()});
  menu.add(inside("Frame1", {button("Command5", "Inside")}));
  menu.on_click("Command1", [](Form& me, int) {
    me.session().message_box("first line\r\nsecond line");
    me.session().message_box("!خطا", "Notice ");
    auto answer = me.session().input_box("How many?", "", "3");
    me.set_text("Text1", answer.value_or("cancelled"));
  });
  menu.on_click("Command2", [](Form& me, int) {
    me.set_text("Text1", "before");
    me.set_number("Text2", checked_div(me.val("Text2"), 0.0));
    me.set_text("Text1", "after");
  });
  menu.on_click("Command3", [](Form& me, int) {
    me.set_text("Text1", me.session().save_dialog("*.txt", "*.txt").value_or("none"));
  });
  menu.on_change("Text2", [](Form& me, int) { me["Label1"].set_text(me["Label1"].text() + "|" + me.text("Text2")); });
  menu.on_click("Combo1", [](Form& me, int) { me["Label1"].set_text("picked " + me.text("Combo1")); });
  menu.on_click("Grid1", [](Form& me, int) { me["Label1"].set_text("row " + std::to_string(me["Grid1"].row())); });
  registry.add(std::move(menu));
  return registry;
}

struct Case {
  const char* name;
  const char* script;
  const char* transcript;
  int status;
};

const Case kCases[] = {
    {"prompts use the application title and answers from the queue",
     "input 7\nclick Form4.Command1\nget Form4.Text1\n",
     "msgbox Qorvat\tfirst line\\nsecond line\nmsgbox Notice \t!خطا\ninputbox Qorvat\tHow many?\t7\nForm4.Text1.Text=7\n",
     0},
    {"an input box with nothing queued answers empty; a cancel gives the routine no answer",
     "click Form4.Command1\nget Form4.Text1\ninput-cancel\nclick Form4.Command1\nget Form4.Text1\n",
     "msgbox Qorvat\tfirst line\\nsecond line\nmsgbox Notice \t!خطا\ninputbox Qorvat\tHow many?\t\nForm4.Text1.Text=\n"
     "msgbox Qorvat\tfirst line\\nsecond line\nmsgbox Notice \t!خطا\ninputbox Qorvat\tHow many?\t\n"
     "Form4.Text1.Text=cancelled\n",
     0},
    {"a save dialog is cancelled unless an answer is queued",
     "click Form4.Command3\nexpect Form4.Text1 none\nsave /tmp/out.txt\nclick Form4.Command3\nexpect Form4.Text1 /tmp/out.txt\n",
     "savedialog \nsavedialog /tmp/out.txt\n", 0},
    {"a fault ends the routine where it happens and the program goes on",
     "set Form4.Text2 5\nclick Form4.Command2\nget Form4.Text1\nget Form4.Text2\nclick Form4.Command2\n",
     "fault Form4 Command2_Click\tDivision by zero\nForm4.Text1.Text=before\nForm4.Text2.Text=5\n"
     "fault Form4 Command2_Click\tDivision by zero\n",
     0},
    {"0 over 0 is reported as an overflow", "click Form4.Command2\n",
     "fault Form4 Command2_Click\tOverflow\n", 0},
    {"typing fires change after each character, Persian letters whole",
     "type Form4.Text2 1.5\ntype Form4.Text2 عدد\nget Form4.Label1\n",
     "Form4.Label1.Caption=|1|1.|1.5|ع|عد|عدد\n", 0},
    {"typing nothing deletes the text with one change", "type Form4.Text2 \nget Form4.Label1\n",
     "Form4.Label1.Caption=|\n", 0},
    {"set fires change once, also for the same text", "set Form4.Text2 4\nset Form4.Text2 4\nget Form4.Label1\n",
     "Form4.Label1.Caption=|4|4\n", 0},
    {"pick takes the entry's text and fires click",
     "pick Form4.Combo1 2\nget Form4.Combo1\nget Form4.Combo1.ListIndex\nget Form4.Label1\npick Form4.Combo1 3\n",
     "Form4.Combo1.Text=ب\nForm4.Combo1.ListIndex=2\nForm4.Label1.Caption=picked ب\nerror line 5: no entry 3 in Form4.Combo1\n",
     2},
    {"a grid click selects the row", "grid Form4.Grid1 2\nget Form4.Label1\ngrid Form4.Grid1 3\n",
     "Form4.Label1.Caption=row 2\nerror line 3: no row 3 in Form4.Grid1\n", 2},
    {"disabled controls and controls in a hidden frame are refused",
     "click Form4.Command4\nclick Form4.Command5\nget Form4.Command5.Visible\n",
     "refused Form4.Command4\nrefused Form4.Command5\nForm4.Command5.Visible=True\n", 0},
    {"a failed expectation is reported and sets the status",
     "expect Form4.Text1 x\nexpect Form4.Command4.Enabled False\nexpect Form4.Visible True\n",
     "FAIL Form4.Text1.Text expected x got \n", 1},
};

TEST(ScriptRunner, PlaysEachCaseAsDocumented) {
  const DialogRegistry registry = make_test_registry();
  for (const auto& c : kCases) {
    std::ostringstream out;
    cli::ScriptRunner runner(registry, out);
    std::istringstream script(c.script);
    const int status = runner.run(script);
    EXPECT_EQ(out.str(), c.transcript) << c.name;
    EXPECT_EQ(status, c.status) << c.name;
  }
}

TEST(ScriptRunner, StopsAfterTheMenuCloses) {
  const DialogRegistry registry = make_test_registry();
  DialogRegistry with_end = registry;
  with_end.find_mutable("Form4")->navigation = [](Form& me, bool&) { me.session().end_program(); };
  std::ostringstream out;
  cli::ScriptRunner runner(with_end, out);
  std::istringstream script("close Form4\nget Form4.Text1\nbogus line\n");
  EXPECT_EQ(runner.run(script), 0);
  EXPECT_EQ(out.str(), "end\n");
}

}  // namespace
}  // namespace qorvat
