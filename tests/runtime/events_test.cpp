// Writing a control from code behaves as the user's edit would, and the fired
// routine runs at once, nested inside the writer. Many calculators rely on it.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using Trace = std::vector<std::string>;

class EventsTest : public testing::RoadTest<testing::SessionRoad> {
 protected:
  Trace trace;  // what the routines did, in order

  void SetUp() override {
    DialogType ev = testing::empty_dialog("Ev");
    ev.add({text_box("Text1"), text_box("Text2"), text_box("Text3"), text_box("Text4"), text_box("Text5"),
            button("Command1", "Cal"), check_box("Check1", "Braced"), frame("Frame1", "Edition"),
            frame("Frame2", "Class"), option_button("Option5", "kgf").selected(), option_button("Option6", "kN"),
            combo_box("Combo1", {"HEA", "HEB", "IPE"})});
    ev.add(inside("Frame1", {option_button("Option1", "2005").selected(), option_button("Option2", "2016")}));
    ev.add(inside("Frame2", {option_button("Option3", "Ductile").selected(), option_button("Option4", "Ordinary")}));
    ev.on_click("Command1", [this](Form& me, int) {
      trace.push_back("Command1 begins");
      me.set_text("Text1", "5");
      trace.push_back("Command1 after Text1");
      me.set_text("Text2", "7");
      trace.push_back("Command1 ends");
    });
    ev.on_change("Text1", [this](Form& me, int) {
      trace.push_back("Text1 " + me.text("Text1"));
      me.set_text("Text3", "from Text1");
      trace.push_back("Text1 ends");
    });
    for (const char* key : {"Text2", "Text3", "Text4"}) {
      ev.on_change(key, [this, key](Form& me, int) { trace.push_back(std::string(key) + " " + me.text(key)); });
    }
    // A field that locks itself once two characters are in.
    ev.on_change("Text5", [this](Form& me, int) {
      trace.push_back("Text5 " + me.text("Text5"));
      if (me.text("Text5").size() >= 2) me["Text5"].set_enabled(false);
    });
    ev.on_click("Check1", [this](Form& me, int) { trace.push_back("Check1 " + std::to_string(me["Check1"].value())); });
    for (const char* key : {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6"}) {
      ev.on_click(key, [this, key](Form&, int) { trace.push_back(key); });
    }
    ev.on_click("Combo1", [this](Form& me, int) {
      trace.push_back("Combo1 " + me.text("Combo1") + " " + std::to_string(me["Combo1"].list_index()));
    });
    registry.add(std::move(ev));

    // Closes itself on the second keystroke.
    DialogType closer = testing::empty_dialog("Closer");
    closer.add(text_box("Text1")).on_change("Text1", [this](Form& me, int) {
      trace.push_back("Closer " + me.text("Text1"));
      if (me.text("Text1") == "12") me.session().close("Closer");
    });
    registry.add(std::move(closer));
    s.show("Ev");
  }

  Control& ev(const char* key) { return at(std::string("Ev.") + key); }
  // What the routines did during one user event.
  Trace fired_by(const std::function<void()>& user_event) {
    trace.clear();
    user_event();
    return trace;
  }
  Trace fired_in_code(const std::function<void()>& code) {
    return fired_by([&] { s.user_action(code); });
  }
};

TEST_F(EventsTest, AWrittenFieldRunsItsChangeAtOnceInsideTheWriter) {
  click("Ev.Command1");
  EXPECT_EQ(trace, (Trace{"Command1 begins", "Text1 5", "Text3 from Text1", "Text1 ends", "Command1 after Text1",
                          "Text2 7", "Command1 ends"}));
  // The same texts again change nothing, so nothing fires.
  EXPECT_EQ(fired_by([&] { click("Ev.Command1"); }),
            (Trace{"Command1 begins", "Command1 after Text1", "Command1 ends"}));
}

TEST_F(EventsTest, ACheckBoxOrOptionSetInCodeClicksOnlyWhenItChanges) {
  const struct {
    const char* key;
    int value;
    Trace fired;
    const char* selected;  // options selected afterwards
  } steps[] = {
      {"Check1", 1, {"Check1 1"}, "Option1 Option3 Option5"},
      {"Check1", 1, {}, "Option1 Option3 Option5"},
      {"Check1", 0, {"Check1 0"}, "Option1 Option3 Option5"},
      // Each frame is a group of its own, and so are the buttons on the dialog itself.
      {"Option2", 1, {"Option2"}, "Option2 Option3 Option5"},
      {"Option2", 1, {}, "Option2 Option3 Option5"},
      {"Option4", 1, {"Option4"}, "Option2 Option4 Option5"},
      {"Option6", 1, {"Option6"}, "Option2 Option4 Option6"},
      {"Option1", 1, {"Option1"}, "Option1 Option4 Option6"},
  };
  for (const auto& step : steps) {
    EXPECT_EQ(fired_in_code([&] { ev(step.key).set_value(step.value); }), step.fired) << step.key << " " << step.value;
    std::string selected;
    for (const char* key : {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6"}) {
      if (ev(key).selected()) selected += (selected.empty() ? "" : " ") + std::string(key);
    }
    EXPECT_EQ(selected, step.selected) << "after " << step.key;
  }
}

TEST_F(EventsTest, TheUsersClicksAndEditsAlwaysFire) {
  const struct {
    std::function<void()> act;
    Trace fired;
  } steps[] = {
      {[&] { click("Ev.Check1"); }, {"Check1 1"}},
      {[&] { click("Ev.Check1"); }, {"Check1 0"}},
      {[&] { click("Ev.Option1"); }, {"Option1"}},  // already selected: still a click
      {[&] { click("Ev.Option2"); }, {"Option2"}},
      {[&] { enter("Ev.Text4", ""); }, {"Text4 "}},       // the same text: still a change
      {[&] { pick("Ev.Combo1", 2); }, {"Combo1 IPE 2"}},  // the entry is in the text already
      {[&] { s.user_action([&] { ev("Combo1").set_list_index(0); }); }, {"Combo1 HEA 0"}},  // in code
  };
  for (const auto& step : steps) EXPECT_EQ(fired_by(step.act), step.fired);
  EXPECT_FALSE(ev("Option1").selected());
  EXPECT_EQ(text("Ev.Combo1"), "HEA");
}

TEST_F(EventsTest, TypingFiresOneChangePerCharacter) {
  const struct {
    const char* typed;
    Trace seen;
  } cases[] = {
      {"12.5", {"Text4 1", "Text4 12", "Text4 12.", "Text4 12.5"}},
      {"\u0633\u0644\u0627\u0645",  // Persian, two bytes a letter
       {"Text4 \u0633", "Text4 \u0633\u0644", "Text4 \u0633\u0644\u0627", "Text4 \u0633\u0644\u0627\u0645"}},
      {"\u20ac\U0001D465=", {"Text4 \u20ac", "Text4 \u20ac\U0001D465", "Text4 \u20ac\U0001D465="}},
  };
  for (const auto& c : cases) {
    trace.clear();
    type("Ev.Text4", c.typed);
    EXPECT_EQ(trace, c.seen) << c.typed;
    EXPECT_EQ(text("Ev.Text4"), c.typed);
  }
}

TEST_F(EventsTest, TypingStopsWhenTheFieldCanNoLongerTakeIt) {
  type("Ev.Text5", "12345");
  EXPECT_EQ(trace, (Trace{"Text5 1", "Text5 12"}));
  EXPECT_EQ(text("Ev.Text5"), "12");

  // The dialog closed mid-typing: no keystroke reaches it (ASan-checked).
  trace.clear();
  s.show("Closer");
  type("Closer.Text1", "12345");
  EXPECT_EQ(trace, (Trace{"Closer 1", "Closer 12"}));
  EXPECT_EQ(s.state("Closer"), FormState::Destroyed);
  EXPECT_TRUE(faults().empty());
}

}  // namespace
}  // namespace qorvat
