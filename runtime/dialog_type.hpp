#pragma once
// What a dialog is at design time: its caption, its controls in order with
// their design defaults, and its routines. One DialogType per dialog name;
// the session creates instances from it.

#include <functional>
#include <string>
#include <vector>

#include "runtime/colors.hpp"

namespace qorvat {

class Form;

enum class ControlKind {
  TextBox,
  Label,
  CommandButton,
  CheckBox,
  OptionButton,
  ComboBox,
  Frame,
  PictureBox,
  Image,
  Line,
  Grid,
  Slider,
  ScrollBar,
};

const char* kind_name(ControlKind kind);

// Design defaults of one control. Built with the helpers below and refined
// with the chained setters, so a dialog reads as one table:
//   label("Label1", "h (cm)"), text_box("Text1", "30"), button("Command1", "Cal").disabled()
struct ControlDecl {
  ControlKind kind = ControlKind::Label;
  std::string name;
  int index = -1;          // -1: not part of a control array
  std::string text;        // Text of text and combo boxes, Caption of the others
  std::string container;   // key of the frame or picture holding it; empty: the dialog
  bool enabled = true;
  bool visible = true;
  int value = 0;           // check box 0/1, option 1 when selected, slider and scroll bar value
  int min = 0, max = 0;    // slider and scroll bar range
  Color back_color = 0;
  Color fore_color = 0;
  std::vector<std::string> list;  // combo box entries
  bool list_only = false;         // combo box whose text can only be picked
  int rows = 0, cols = 0;         // grid size
  int width = 0, height = 0;      // twips; 0: the layout chooses
  int left = 0, top = 0;          // twips, inside a picture that holds it
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // a line's ends

  ControlDecl& at(int i) { index = i; return *this; }
  ControlDecl& in(std::string key) { container = std::move(key); return *this; }
  ControlDecl& disabled() { enabled = false; return *this; }
  ControlDecl& hidden() { visible = false; return *this; }
  ControlDecl& back(Color c) { back_color = c; return *this; }
  ControlDecl& fore(Color c) { fore_color = c; return *this; }
  ControlDecl& checked(int v = 1) { value = v; return *this; }
  ControlDecl& selected() { value = 1; return *this; }
  ControlDecl& size(int w, int h) { width = w; height = h; return *this; }
  ControlDecl& place(int l, int t) { left = l; top = t; return *this; }
  ControlDecl& picked_only() { list_only = true; return *this; }
  ControlDecl& ends(double ax, double ay, double bx, double by) {
    x1 = ax; y1 = ay; x2 = bx; y2 = by;
    return *this;
  }
};

ControlDecl text_box(std::string name, std::string default_text = {});
ControlDecl label(std::string name, std::string caption);
ControlDecl button(std::string name, std::string caption);
ControlDecl check_box(std::string name, std::string caption);
ControlDecl option_button(std::string name, std::string caption);
ControlDecl combo_box(std::string name, std::vector<std::string> entries, std::string text = {});
ControlDecl frame(std::string name, std::string caption);
ControlDecl picture_box(std::string name);
ControlDecl image(std::string name);
ControlDecl line(std::string name);
ControlDecl grid(std::string name, int rows, int cols);
ControlDecl slider(std::string name, int min, int max, int value = 0);
ControlDecl scroll_bar(std::string name, int min, int max, int value = 0);

// Puts every control of the list into a frame (or picture), keeping order.
std::vector<ControlDecl> inside(const std::string& container_key, std::vector<ControlDecl> controls);

enum class Event { Click, DblClick, Change, MouseMove };

// A routine of a control: receives the dialog and the index of the control
// in its array (-1 for a single control).
using ControlRoutine = std::function<void(Form& me, int index)>;
using FormRoutine = std::function<void(Form& me)>;
// The closing routine may set cancel to keep the instance (it then usually hides it).
using CloseRoutine = std::function<void(Form& me, bool& cancel)>;

struct ControlHandler {
  std::string control;  // control name (all members of an array share it)
  Event event;
  ControlRoutine routine;
};

struct DialogType {
  std::string name;
  std::string caption;
  std::vector<ControlDecl> controls;

  FormRoutine on_open;      // first opening of an instance
  FormRoutine on_activate;  // each time a hidden or inactive instance becomes the active one
  CloseRoutine on_close;    // closing: hand-backs and what the dialog owns
  // Where the user goes next when the dialog closes; runs after on_close.
  CloseRoutine navigation;
  std::vector<ControlHandler> handlers;

  DialogType& add(ControlDecl c) { controls.push_back(std::move(c)); return *this; }
  DialogType& add(std::vector<ControlDecl> cs);
  DialogType& on(std::string control, Event event, ControlRoutine routine);
  DialogType& on_click(std::string control, ControlRoutine routine) {
    return on(std::move(control), Event::Click, std::move(routine));
  }
  DialogType& on_change(std::string control, ControlRoutine routine) {
    return on(std::move(control), Event::Change, std::move(routine));
  }
  const ControlRoutine* handler(const std::string& control, Event event) const;
};

}  // namespace qorvat
