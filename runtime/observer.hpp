#pragma once
// What a front end needs to follow the dialogs: the GUI keeps its widgets in
// step through this; the runtime never waits for it.

#include "runtime/control.hpp"

namespace qorvat {

class Form;

enum class FormState { Destroyed, Hidden, Showing };

class SessionObserver {
 public:
  virtual ~SessionObserver() = default;
  // Created (Hidden), shown, hidden, or about to be destroyed (Destroyed:
  // the Form is still valid during the call, never after).
  virtual void form_state_changed(Form& form, FormState now) = 0;
  virtual void form_caption_changed(Form& form) = 0;
  virtual void control_changed(Control& control, Property property) = 0;
  // Closing the main menu ended the program.
  virtual void program_ended() = 0;
};

}  // namespace qorvat
