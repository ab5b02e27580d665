#pragma once
// One run of the program: every dialog instance by name, their lifecycle,
// the firing of routines, and the prompts. Front ends drive it through the
// user_* actions; routines through form(), show(), close() and the prompts.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/form.hpp"
#include "runtime/observer.hpp"
#include "runtime/prompts.hpp"
#include "runtime/registry.hpp"

namespace qorvat {

class Session {
 public:
  // Nested routines deeper than this are a runaway chain of events.
  static constexpr int kMaxNesting = 200;

  Session(const DialogRegistry& registry, Prompts& prompts);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void set_observer(SessionObserver* observer) { observer_ = observer; }
  const DialogRegistry& registry() const { return *registry_; }

  // The dialog by name; a destroyed one is created hidden with its design
  // defaults and its opening routine runs. Unknown names throw std::out_of_range.
  Form& form(std::string_view name);
  bool visible(std::string_view name) { return form(name).visible(); }
  // One control of a dialog, for hand-backs: field("Form17", "Text6").set_rounded(p / 1000, 2).
  Control& field(std::string_view form_name, std::string_view key) { return form(form_name)[key]; }
  // Reads the state without creating anything.
  FormState state(std::string_view name) const;
  Form* existing(std::string_view name) const;

  void show(std::string_view name);
  void hide(std::string_view name);
  // Runs the closing routine and the navigation rule, then destroys the
  // instance unless the routine cancelled. Does nothing to a destroyed dialog.
  void close(std::string_view name);
  void end_program();
  bool ended() const { return ended_; }

  // Prompts for the routines. An empty title shows the application title.
  void message_box(std::string_view text, std::string_view title = {});
  std::optional<std::string> input_box(std::string_view prompt, std::string_view title = {},
                                       std::string_view default_text = {});
  std::optional<std::string> save_dialog(std::string_view file_name, std::string_view filter);

  // The user's actions. Each is one event of the event loop: a fault in any
  // routine it sets off ends them all and is reported once.
  void start();  // shows the main menu
  void user_click(Control& control);
  void user_double_click(Control& control);
  void user_replace_text(Control& control, std::string_view text);
  void user_type(Control& control, std::string_view text);
  void user_pick(Control& control, int list_index);
  void user_grid_click(Control& control, int row);
  // The pointer moved over a control, at (x, y) in the control's own scale.
  void user_mouse_move(Control& control, double x, double y);
  void user_close(std::string_view name);
  void user_activate(std::string_view name);
  // Runs any other work as one user event (tests and front ends).
  void user_action(const std::function<void()>& action);

  // Used by Control and Form.
  void fire(Control& control, Event event);
  void notify_control(Control& control, Property property);
  void notify_caption(Form& form);

  // Settings given on the command line.
  std::string profiles_path;

 private:
  void run_routine(Form& form, const std::string& routine_name, const std::function<void()>& body);
  void set_state(Form& form, FormState now);
  void destroy(Form& form);
  Form& create(const DialogType& type);
  void activate(Form& form);

  const DialogRegistry* registry_;
  Prompts* prompts_;
  SessionObserver* observer_ = nullptr;
  std::map<std::string, std::unique_ptr<Form>, std::less<>> live_;
  // Destroyed instances wait here until the user event ends, so a routine
  // still holding one never reads freed memory.
  std::vector<std::unique_ptr<Form>> graveyard_;
  Form* active_ = nullptr;
  int depth_ = 0;
  int user_event_depth_ = 0;
  bool ended_ = false;
};

}  // namespace qorvat
