#include "gui/layout_plan.hpp"

#include <gtest/gtest.h>

namespace qorvat::gui {
namespace {

using K = ControlKind;

// "Label1+Text1 | Command1,Command2 | Frame1": rows joined by " | ", a
// labelled field by "+", a run by ",".
std::string describe(const LayoutPlan& plan, const std::vector<LayoutEntry>& entries, const std::string& container) {
  std::string out;
  for (const LayoutRow& row : plan.rows_of(container)) {
    if (!out.empty()) out += " | ";
    const char* joint = row.shape == RowShape::LabeledField ? "+" : ",";
    for (std::size_t k = 0; k < row.members.size(); ++k) out += (k > 0 ? joint : "") + entries[row.members[k]].key;
  }
  return out;
}

// Each control is drawn once: in exactly one row of exactly one container.
void expect_each_placed_once(const LayoutPlan& plan, std::size_t count) {
  std::vector<int> placed(count, 0);
  for (const auto& [container, rows] : plan.rows) {
    for (const LayoutRow& row : rows) {
      for (std::size_t i : row.members) ++placed.at(i);
    }
  }
  for (std::size_t i = 0; i < count; ++i) EXPECT_EQ(placed[i], 1) << "entry " << i;
}

struct Case {
  const char* what;
  std::vector<LayoutEntry> entries;
  std::vector<std::pair<std::string, std::string>> rows;  // container -> description
};

TEST(GuiLayoutPlan, ArrangesRowsAndContainers) {
  const Case cases[] = {
      {"a label names the field after it",
       {{K::Label, "Label1", ""}, {K::TextBox, "Text1", ""}, {K::Label, "Label2", ""}, {K::ComboBox, "Combo1", ""}},
       {{"", "Label1+Text1 | Label2+Combo1"}}},
      {"a label before a label or a button stands alone",
       {{K::Label, "Label1", ""},
        {K::Label, "Label2", ""},
        {K::TextBox, "Text1", ""},
        {K::Label, "Label3", ""},
        {K::CommandButton, "Command1", ""}},
       {{"", "Label1 | Label2+Text1 | Label3 | Command1"}}},
      {"a field in another frame is not the label's",
       {{K::Frame, "Frame1", ""}, {K::Label, "Label1", ""}, {K::TextBox, "Text1", "Frame1"}},
       {{"", "Frame1 | Label1"}, {"Frame1", "Text1"}}},
      {"frames nest and keep declaration order",
       {{K::Frame, "Frame1", ""},
        {K::Frame, "Frame2", "Frame1"},
        {K::Label, "Label1", "Frame2"},
        {K::TextBox, "Text1(0)", "Frame2"},
        {K::OptionButton, "Option1", "Frame1"},
        {K::Frame, "Frame3", ""}},
       {{"", "Frame1 | Frame3"}, {"Frame1", "Frame2 | Option1"}, {"Frame2", "Label1+Text1(0)"}}},
      {"buttons and pictures in a row sit side by side",
       {{K::CommandButton, "Command1", ""},
        {K::CommandButton, "Command2", ""},
        {K::PictureBox, "Picture1", ""},
        {K::Image, "Image1", ""},
        {K::CommandButton, "Command3", ""}},
       {{"", "Command1,Command2 | Picture1,Image1 | Command3"}}},
      {"a picture holding controls is a container, not part of a run",
       {{K::PictureBox, "Picture1", ""}, {K::PictureBox, "Picture2", ""}, {K::Label, "Label1", "Picture2"}},
       {{"", "Picture1 | Picture2"}, {"Picture2", "Label1"}}},
      {"a missing container or one that cannot hold controls means the dialog",
       {{K::TextBox, "Text1", ""}, {K::Label, "Label1", "Frame9"}, {K::CommandButton, "Command1", "Text1"}},
       {{"", "Text1 | Label1 | Command1"}}},
      {"frames holding each other are cut loose onto the dialog",
       {{K::Frame, "Frame1", "Frame2"},
        {K::Frame, "Frame2", "Frame1"},
        {K::Label, "Label1", "Frame2"},
        {K::Frame, "Frame3", "Frame3"}},
       {{"", "Frame1 | Frame3"}, {"Frame1", "Frame2"}, {"Frame2", "Label1"}}},
  };
  for (const Case& c : cases) {
    const LayoutPlan plan = plan_layout(c.entries);
    for (const auto& [container, expected] : c.rows) {
      EXPECT_EQ(describe(plan, c.entries, container), expected) << c.what << ", in '" << container << "'";
    }
    expect_each_placed_once(plan, c.entries.size());
  }
}

}  // namespace
}  // namespace qorvat::gui
