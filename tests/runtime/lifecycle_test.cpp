// Destroyed, hidden, showing: access creates, hiding keeps, closing destroys.
// Dialogs find their callers by asking which ones are showing.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using Trace = std::vector<std::string>;

class LifecycleTest : public testing::RoadTest<testing::SessionRoad> {
 protected:
  Trace trace;  // what the routines did, in order
  int opened = 0;
  bool keep_open = false;  // the closing routine cancels and hides instead

  void SetUp() override {
    DialogType sub = testing::empty_dialog("Sub");
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
      Session& session = me.session();
      for (const char* caller : {"A", "B", "C", "D"}) {
        if (session.visible(caller)) session.form(caller).set_text("Text6", me.text("Text1"));
      }
      session.close("Sub");
    });
    // Goes on with its own dialog after closing it.
    sub.on_click("Command2", [this](Form& me, int) {
      me.session().close(me.name());
      trace.push_back("after close " + me.text("Text1") + " " + me["Combo1"].text());
      me.set_text("Text2", "late");
    });
    registry.add(std::move(sub));
    for (const char* caller : {"A", "B", "C", "D"}) {
      DialogType type = testing::empty_dialog(caller);
      type.add(text_box("Text6"));
      registry.add(std::move(type));
    }
  }
};

TEST_F(LifecycleTest, AccessCreatesAHiddenDialogWithItsDefaultsAndOpensItOnlyThen) {
  EXPECT_EQ(s.state("Sub"), FormState::Destroyed);
  Form& sub = s.form("Sub");
  EXPECT_EQ(s.state("Sub"), FormState::Hidden);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(sub.text("Text1"), "30");
  EXPECT_TRUE(sub["Check1"].ticked());
  EXPECT_TRUE(sub["Option2"].selected() && !sub["Option1"].selected());
  EXPECT_EQ(sub["Combo1"].text(), "S355");
  // The opening routine's write ran its change routine at once.
  EXPECT_EQ(trace, (Trace{"Form_Load", "Text2_Change loaded", "Form_Load went on"}));

  // Showing and hiding neither open it again nor lose what the user entered.
  EXPECT_EQ(&s.form("Sub"), &sub);
  s.show("Sub");
  s.user_replace_text(sub["Text1"], "12");
  s.user_click(sub["Option1"]);
  s.hide("Sub");
  EXPECT_EQ(s.state("Sub"), FormState::Hidden);
  s.show("Sub");
  EXPECT_EQ(s.state("Sub"), FormState::Showing);
  EXPECT_EQ(sub.text("Text1"), "12");
  EXPECT_TRUE(sub["Option1"].selected());
  EXPECT_EQ(opened, 1);
}

TEST_F(LifecycleTest, ReadingVisibleCreatesTheDialogReadingTheStateOrClosingItDoesNot) {
  s.user_close("Sub");
  EXPECT_EQ(s.state("Sub"), FormState::Destroyed);
  EXPECT_TRUE(trace.empty());
  EXPECT_FALSE(s.visible("Sub"));
  EXPECT_EQ(s.state("Sub"), FormState::Hidden);
  EXPECT_EQ(opened, 1);
}

TEST_F(LifecycleTest, ClosingRunsTheClosingRoutineThenNavigationAndDestroysUnlessCancelled) {
  keep_open = true;
  s.show("Sub");
  Form* const before = s.existing("Sub");
  enter("Sub.Text1", "12");
  trace.clear();
  s.user_close("Sub");
  EXPECT_EQ(trace, Trace{"Form_Unload"});
  EXPECT_EQ(s.state("Sub"), FormState::Hidden);
  EXPECT_EQ(s.existing("Sub"), before);
  EXPECT_EQ(text("Sub.Text1"), "12");

  keep_open = false;
  s.show("Sub");
  trace.clear();
  s.user_close("Sub");
  EXPECT_EQ(trace, (Trace{"Form_Unload", "navigation"}));
  EXPECT_EQ(s.state("Sub"), FormState::Destroyed);
  EXPECT_EQ(s.existing("Sub"), nullptr);
  // The next access starts over from the design, opening it a second time only.
  EXPECT_EQ(text("Sub.Text1"), "30");
  EXPECT_EQ(opened, 2);
}

// Run under AddressSanitizer this fails on any read of freed memory.
TEST_F(LifecycleTest, ARoutineMayGoOnWithItsOwnDialogAfterClosingIt) {
  s.show("Sub");
  enter("Sub.Text1", "12");
  trace.clear();
  click("Sub.Command2");
  ASSERT_GE(trace.size(), 3u);
  EXPECT_EQ(Trace(trace.begin(), trace.begin() + 3), (Trace{"Form_Unload", "navigation", "after close 12 S355"}));
  EXPECT_EQ(s.state("Sub"), FormState::Destroyed);
  EXPECT_TRUE(faults().empty());
  // Still alive and usable after the event that destroyed it.
  EXPECT_EQ(text("Sub.Text1"), "30");
}

TEST_F(LifecycleTest, AHandBackReachesEveryShowingCallerAndNoHiddenOne) {
  s.show("A");
  s.show("B");
  s.form("C");  // hidden
  s.show("Sub");
  enter("Sub.Text1", "12.5");
  click("Sub.Command1");

  expect_texts({{"A.Text6", "12.5"}, {"B.Text6", "12.5"}, {"C.Text6", ""}});
  // Asking whether D shows created it, hidden, and gave it nothing.
  EXPECT_EQ(s.state("D"), FormState::Hidden);
  EXPECT_EQ(text("D.Text6"), "");
  EXPECT_EQ(s.state("Sub"), FormState::Destroyed);
}

}  // namespace
}  // namespace qorvat
