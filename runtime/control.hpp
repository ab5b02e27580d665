#pragma once
// One control of a dialog instance. Writing a property from a routine behaves
// as the user's edit would: a new text fires Change, a check box or option
// button that changes fires Click, a new list index fires Click. The fired
// routine runs at once, nested inside the writer.

#include <string>
#include <string_view>
#include <vector>

#include "runtime/colors.hpp"
#include "runtime/dialog_type.hpp"

namespace qorvat {

class Form;

// "Text5" for a single control, "Text5(0)" for a member of a control array.
std::string control_key(std::string_view name, int index);

// One drawing command on a picture box, in the picture's own scale.
struct DrawCommand {
  enum class Kind { Line, Text, Polyline };
  Kind kind = Kind::Line;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // Line: both ends; Text: x1, y1 is where it starts
  std::string text;
  std::vector<std::pair<double, double>> points;  // Polyline
  Color color = 0;
};

// The coordinates a picture box draws in: left/top at the top-left corner,
// width/height across (a negative height counts upward). An axis with zero
// extent counts in twips of the picture's own size.
struct PictureScale {
  double left = 0, top = 0, width = 0, height = 0;
};

enum class Property {
  Text,
  Value,
  Enabled,
  Visible,
  BackColor,
  ForeColor,
  ListIndex,
  List,
  Grid,
  Size,
  Position,  // left and top, or a line's ends
  Drawing,   // a picture box's drawing or scale
};

class Control {
 public:
  Control(Form& form, const ControlDecl& decl);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return *form_; }
  ControlKind kind() const { return kind_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  std::string key() const;  // "Text5" or "Text5(0)"
  const std::string& container() const { return container_; }

  // Text of a text or combo box, Caption of every other control.
  const std::string& text() const { return text_; }
  void set_text(std::string_view text);
  double val() const;                  // the text read by the Val rule
  void set_number(double x);           // default number text; a NaN or infinity is a fault
  void set_rounded(double x, int decimals);

  // Check box 0/1(/2); option button -1 when selected, 0 when not; slider and scroll bar position.
  int value() const;
  bool selected() const { return kind_ == ControlKind::OptionButton && value_ != 0; }
  bool ticked() const { return kind_ == ControlKind::CheckBox && value_ == 1; }
  void set_value(int value);
  void set_selected(bool on) { set_value(on ? 1 : 0); }

  bool enabled() const { return enabled_; }
  void set_enabled(bool on);
  bool visible() const { return visible_; }
  void set_visible(bool on);
  Color back_color() const { return back_color_; }
  void set_back_color(Color c);
  Color fore_color() const { return fore_color_; }
  void set_fore_color(Color c);
  int width() const { return width_; }
  int height() const { return height_; }
  void set_size(int width, int height);
  int left() const { return left_; }
  int top() const { return top_; }
  void set_position(int left, int top);

  // A line control's ends, in its container's scale.
  double x1() const { return x1_; }
  double y1() const { return y1_; }
  double x2() const { return x2_; }
  double y2() const { return y2_; }
  void set_line(double x1, double y1, double x2, double y2);

  // A picture box's drawing: commands kept until cleared, in the current scale.
  const std::vector<DrawCommand>& drawing() const { return drawing_; }
  const PictureScale& scale() const { return scale_; }
  void set_scale(const PictureScale& scale);
  void clear_drawing();
  void draw(DrawCommand command);
  // Where the pointer was at the last mouse move over this control, in its scale.
  double pointer_x() const { return pointer_x_; }
  double pointer_y() const { return pointer_y_; }
  void set_pointer(double x, double y) { pointer_x_ = x; pointer_y_ = y; }

  // Combo box list.
  const std::vector<std::string>& list() const { return list_; }
  bool list_only() const { return list_only_; }
  void add_item(std::string item);
  void clear_list();
  int list_index() const { return list_index_; }
  void set_list_index(int i);

  // Slider and scroll bar range.
  int min() const { return min_; }
  int max() const { return max_; }
  void set_range(int min, int max);

  // Grid cells, row-major; the current row is what a click selects.
  int rows() const { return rows_; }
  int cols() const { return cols_; }
  void set_grid_size(int rows, int cols);
  const std::string& cell(int row, int col) const;
  void set_cell(int row, int col, std::string text);
  // Replaces all rows at once (one notice to the front end): row i, field j
  // goes into cell (i, j); fields beyond the column count are dropped.
  void fill_rows(const std::vector<std::vector<std::string>>& rows);
  int row() const { return row_; }
  void set_row(int row);
  int col_width(int col) const;
  void set_col_width(int col, int width);
  // Column headings, shown above the rows (not a row of cells).
  const std::string& col_heading(int col) const;
  void set_col_heading(int col, std::string heading);

  // Whether the user can reach it now: enabled and visible, and so are the
  // frames holding it, on a dialog that is showing.
  bool reachable() const;

  // Used by the session for the user's own edits: sets the text and fires Change even
  // when the text is the same, as a keystroke does.
  void user_replace_text(std::string_view text);

 private:
  void notify(Property p);
  void fire(Event e);

  Form* form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  std::string container_;
  std::string text_;
  int value_;
  bool enabled_;
  bool visible_;
  Color back_color_;
  Color fore_color_;
  int width_, height_;
  int left_, top_;
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
  std::vector<DrawCommand> drawing_;
  PictureScale scale_;
  double pointer_x_ = 0, pointer_y_ = 0;
  std::vector<std::string> list_;
  bool list_only_;
  int list_index_ = -1;
  int min_, max_;
  int rows_, cols_;
  std::vector<std::string> cells_;
  std::vector<int> col_widths_;
  std::vector<std::string> col_headings_;
  int row_ = -1;
};

}  // namespace qorvat
