#include "gui/qt_convert.hpp"

#include <gtest/gtest.h>

namespace qorvat::gui {
namespace {

TEST(GuiQtConvert, PersianReadsRightToLeft) {
  struct Case {
    const char* text;
    bool rtl;
  };
  const Case cases[] = {
      {"", false},
      {"Fy (kg/cm2)", false},
      {"ضرايب رفتار جدول 3-4", true},
      {"123 طول مهاري", true},                           // digits are not strong
      {" WFP اتصال مفصلي جان و يا اتصال گيردار", true},  // Latin first, Persian mostly
      {"Run-time error: ب", false},
      {"\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", true},  // Hebrew counts as well
  };
  for (const Case& c : cases) EXPECT_EQ(reads_right_to_left(to_qstring(c.text)), c.rtl) << c.text;
}

TEST(GuiQtConvert, LabelCaptionsDropShortcutMarkers) {
  const std::pair<const char*, const char*> cases[] = {
      {"Creep && Shrinkage", "Creep & Shrinkage"},
      {"&Cal", "Cal"},
      {"a&&&b", "a&b"},
      {"ends with &", "ends with &"},
  };
  for (const auto& [caption, shown] : cases) EXPECT_EQ(label_display_text(caption), shown) << caption;
}

TEST(GuiQtConvert, ColoursAreBlueGreenRed) {
  struct Case {
    Color color;
    int red, green, blue;
  };
  const Case cases[] = {
      {colors::kRed, 255, 0, 0},
      {colors::kDarkGreen, 0, 128, 0},
      {colors::kLightGreen, 128, 255, 128},
      {colors::kLightYellow, 255, 255, 128},
      {0xff0000, 0, 0, 255},
  };
  for (const Case& c : cases) {
    ASSERT_TRUE(qt_color(c.color).has_value());
    EXPECT_EQ(*qt_color(c.color), QColor(c.red, c.green, c.blue)) << c.color;
  }
  for (Color system : {colors::kWindowBackground, colors::kButtonFace, colors::kWindowText}) {
    EXPECT_FALSE(qt_color(system).has_value());
  }
}

TEST(GuiQtConvert, SaveFiltersBecomeQtFilters) {
  const std::pair<const char*, const char*> cases[] = {
      {"*.txt", "*.txt"},
      {"", ""},
      {"Text (*.txt)|*.txt", "Text (*.txt)"},
      {"Text files|*.txt|All|*.*", "Text files (*.txt);;All (*.*)"},
      {"Reports|*.txt;*.rtf", "Reports (*.txt *.rtf)"},
  };
  for (const auto& [filter, qt] : cases) EXPECT_EQ(qt_file_filter(filter), qt) << filter;
}

}  // namespace
}  // namespace qorvat::gui
