// Destroyed, hidden, showing: access creates, hiding keeps, closing destroys.
// Dialogs find their callers by asking which ones are showing.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session_fixture.hpp"

namespace qorvat {
namespace {

using Trace = std::vector<std::string>;

class LifecycleTest : public SessionTest {
 protected:
  int opened = 0;
  bool keep_open = false;  // the closing routine cancels and hides instead

  void SetUp() override {
    DialogType sub = dialog("Sub");
    sub.caption = "Sub calculator";
    sub.add({text_box("Text1", "30"), text_box("Text2"), check_box("Check1", "Ductile").checked(),
             frame("Frame1", "Edition"), combo_box("Combo1", {"S235", "S355"}, "S355"), button("Command1", "OK"),
             button("Command2", "Close and read")});
    sub.add(inside("Frame1", {option_button("Option1", "2005"), option_button("Option2", "2016").selected()}));
    sub.on_open = [this](Form& me) {
      ++opened;
      trace.push_back("Form_Load");
      me.set_text("Text2", "loaded");
      trace.push_back("Form_Load went on");
    };
    sub.on_change("Text2", [this](Form& me, int) { trace.push_back("Text2_Change " + me.text("Text2")); });
    sub.on_close = [this](Form& me, bool& cancel) {
      trace.push_back("Form_Unload");
      cancel = keep_open;
      if (cancel) me.hide();
    };
    sub.navigation = [this](Form&, bool&) { trace.push_back("navigation"); };
    // Hands Text1 back to every caller that is showing, then closes itself.
    sub.on_click("Command1", [](Form& me, int) {
      Session& s = me.session();
      for (const char* caller : {"A", "B", "C", "D"}) {
        if (s.visible(caller)) s.form(caller).set_text("Text6", me.text("Text1"));
      }
      s.close("Sub");
    });
    // Goes on with its own dialog after closing it.
    sub.on_click("Command2", [this](Form& me, int) {
      me.session().close(me.name());
      trace.push_back("after close " + me.text("Text1") + " " + me["Combo1"].text());
      me.set_text("Text2", "late");
    });
    registry.add(std::move(sub));
    for (const char* caller : {"A", "B", "C", "D"}) {
      DialogType type = dialog(caller);
      type.add(text_box("Text6"));
      registry.add(std::move(type));
    }
  }
};

TEST_F(LifecycleTest, AccessCreatesAHiddenDialogWithItsDefaultsAndOpensItOnlyThen) {
  EXPECT_EQ(session().state("Sub"), FormState::Destroyed);
  Form& sub = session().form("Sub");
  EXPECT_EQ(session().state("Sub"), FormState::Hidden);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(sub.caption(), "Sub calculator");
  EXPECT_EQ(sub.text("Text1"), "30");
  EXPECT_TRUE(sub["Check1"].ticked());
  EXPECT_TRUE(sub["Option2"].selected() && !sub["Option1"].selected());
  EXPECT_EQ(sub["Combo1"].text(), "S355");
  // The opening routine's write ran its change routine at once.
  EXPECT_EQ(trace, (Trace{"Form_Load", "Text2_Change loaded", "Form_Load went on"}));

  // Showing and hiding neither open it again nor lose what the user entered.
  EXPECT_EQ(&session().form("Sub"), &sub);
  session().show("Sub");
  session().user_replace_text(sub["Text1"], "12");
  session().user_click(sub["Option1"]);
  session().hide("Sub");
  EXPECT_EQ(session().state("Sub"), FormState::Hidden);
  session().show("Sub");
  EXPECT_EQ(session().state("Sub"), FormState::Showing);
  EXPECT_EQ(sub.text("Text1"), "12");
  EXPECT_TRUE(sub["Option1"].selected());
  EXPECT_EQ(opened, 1);
}

TEST_F(LifecycleTest, ReadingVisibleCreatesTheDialogReadingTheStateOrClosingItDoesNot) {
  session().user_close("Sub");
  EXPECT_EQ(session().state("Sub"), FormState::Destroyed);
  EXPECT_TRUE(trace.empty());
  EXPECT_FALSE(session().visible("Sub"));
  EXPECT_EQ(session().state("Sub"), FormState::Hidden);
  EXPECT_EQ(opened, 1);
}

TEST_F(LifecycleTest, ClosingRunsTheClosingRoutineThenNavigationAndDestroys) {
  session().show("Sub");
  session().user_replace_text(control("Sub", "Text1"), "12");
  trace.clear();
  session().user_close("Sub");
  EXPECT_EQ(trace, (Trace{"Form_Unload", "navigation"}));
  EXPECT_EQ(session().state("Sub"), FormState::Destroyed);
  EXPECT_EQ(session().existing("Sub"), nullptr);

  // The next access starts over from the design.
  EXPECT_EQ(control("Sub", "Text1").text(), "30");
  EXPECT_EQ(opened, 2);
}

TEST_F(LifecycleTest, AClosingRoutineThatCancelsKeepsTheInstance) {
  keep_open = true;
  session().show("Sub");
  Form* const before = session().existing("Sub");
  session().user_replace_text(control("Sub", "Text1"), "12");
  trace.clear();
  session().user_close("Sub");
  EXPECT_EQ(trace, Trace{"Form_Unload"});
  EXPECT_EQ(session().state("Sub"), FormState::Hidden);
  EXPECT_EQ(session().existing("Sub"), before);
  EXPECT_EQ(control("Sub", "Text1").text(), "12");
  EXPECT_EQ(opened, 1);
}

// Run under AddressSanitizer this fails on any read of freed memory.
TEST_F(LifecycleTest, ARoutineMayGoOnWithItsOwnDialogAfterClosingIt) {
  session().show("Sub");
  session().user_replace_text(control("Sub", "Text1"), "12");
  trace.clear();
  session().user_click(control("Sub", "Command2"));
  ASSERT_GE(trace.size(), 3u);
  EXPECT_EQ(Trace(trace.begin(), trace.begin() + 3), (Trace{"Form_Unload", "navigation", "after close 12 S355"}));
  EXPECT_EQ(session().state("Sub"), FormState::Destroyed);
  EXPECT_TRUE(faults().empty());
  // Still alive and usable after the event that destroyed it.
  EXPECT_EQ(control("Sub", "Text1").text(), "30");
}

TEST_F(LifecycleTest, AHandBackReachesEveryShowingCallerAndNoHiddenOne) {
  session().show("A");
  session().show("B");
  session().form("C");  // hidden
  session().show("Sub");
  session().user_replace_text(control("Sub", "Text1"), "12.5");
  session().user_click(control("Sub", "Command1"));

  EXPECT_EQ(control("A", "Text6").text(), "12.5");
  EXPECT_EQ(control("B", "Text6").text(), "12.5");
  EXPECT_EQ(control("C", "Text6").text(), "");
  // Asking whether D shows created it, hidden, and gave it nothing.
  EXPECT_EQ(session().state("D"), FormState::Hidden);
  EXPECT_EQ(control("D", "Text6").text(), "");
  EXPECT_EQ(session().state("Sub"), FormState::Destroyed);
}

TEST_F(LifecycleTest, PromptsWithoutATitleShowTheProgramName) {
  prompts.input_answers = {"7"};
  session().message_box("Section passes");
  session().message_box("Check Fy", "Notice");
  EXPECT_EQ(session().input_box("Number of bolts"), "7");
  EXPECT_EQ(prompts.log,
            (Trace{"msgbox Qorvat\tSection passes", "msgbox Notice\tCheck Fy", "input Qorvat\tNumber of bolts"}));
}

}  // namespace
}  // namespace qorvat
