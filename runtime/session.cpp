#include "runtime/session.hpp"

#include <stdexcept>

#include "runtime/fault.hpp"

namespace qorvat {
namespace {

const char* event_suffix(Event e) {
  switch (e) {
    case Event::Click: return "_Click";
    case Event::DblClick: return "_DblClick";
    case Event::Change: return "_Change";
    case Event::MouseMove: return "_MouseMove";
  }
  return "_Event";
}

// Splits UTF-8 text into its characters, each as the prefix length after it.
std::vector<std::size_t> character_ends(std::string_view text) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool continuation = (byte & 0xC0) == 0x80;
    if (!continuation && i > 0) ends.push_back(i);
  }
  if (!text.empty()) ends.push_back(text.size());
  return ends;
}

}  // namespace

Session::Session(const DialogRegistry& registry, Prompts& prompts) : registry_(&registry), prompts_(&prompts) {}

Session::~Session() {
  observer_ = nullptr;
  live_.clear();
  graveyard_.clear();
}

Form* Session::existing(std::string_view name) const {
  auto it = live_.find(name);
  return it == live_.end() ? nullptr : it->second.get();
}

FormState Session::state(std::string_view name) const {
  const Form* f = existing(name);
  if (f == nullptr) return FormState::Destroyed;
  return f->visible() ? FormState::Showing : FormState::Hidden;
}

Form& Session::form(std::string_view name) {
  if (Form* f = existing(name)) return *f;
  const DialogType* type = registry_->find(name);
  if (type == nullptr) throw std::out_of_range("no dialog named " + std::string(name));
  return create(*type);
}

Form& Session::create(const DialogType& type) {
  auto instance = std::make_unique<Form>(*this, type);
  Form& f = *instance;
  live_.emplace(type.name, std::move(instance));
  set_state(f, FormState::Hidden);
  if (type.on_open) run_routine(f, "Form_Load", [&] { type.on_open(f); });
  return f;
}

void Session::set_state(Form& form, FormState now) {
  if (observer_ != nullptr) observer_->form_state_changed(form, now);
}

void Session::activate(Form& form) {
  active_ = &form;
  if (form.type().on_activate) run_routine(form, "Form_Activate", [&] { form.type().on_activate(form); });
}

void Session::show(std::string_view name) {
  Form& f = form(name);
  if (f.visible_ && active_ == &f) return;
  if (!f.visible_) {
    f.visible_ = true;
    set_state(f, FormState::Showing);
  }
  activate(f);
}

void Session::hide(std::string_view name) {
  Form& f = form(name);
  if (active_ == &f) active_ = nullptr;
  if (!f.visible_) return;
  f.visible_ = false;
  set_state(f, FormState::Hidden);
}

void Session::destroy(Form& form) {
  auto it = live_.find(form.name());
  if (it == live_.end() || it->second.get() != &form) return;
  if (active_ == &form) active_ = nullptr;
  form.visible_ = false;
  set_state(form, FormState::Destroyed);
  graveyard_.push_back(std::move(it->second));
  live_.erase(it);
}

void Session::close(std::string_view name) {
  Form* f = existing(name);
  if (f == nullptr || f->closing_) return;
  const DialogType& type = f->type();
  bool cancel = false;
  f->closing_ = true;
  try {
    run_routine(*f, "Form_Unload", [&] {
      if (type.on_close) type.on_close(*f, cancel);
      if (!cancel && type.navigation) type.navigation(*f, cancel);
    });
  } catch (...) {
    f->closing_ = false;
    throw;
  }
  f->closing_ = false;
  if (!cancel) destroy(*f);
}

void Session::end_program() {
  if (ended_) return;
  ended_ = true;
  if (observer_ != nullptr) observer_->program_ended();
}

void Session::message_box(std::string_view text, std::string_view title) {
  prompts_->message_box(text, title.empty() ? std::string_view(kApplicationTitle) : title);
}

std::optional<std::string> Session::input_box(std::string_view prompt, std::string_view title,
                                              std::string_view default_text) {
  return prompts_->input_box(prompt, title.empty() ? std::string_view(kApplicationTitle) : title, default_text);
}

std::optional<std::string> Session::save_dialog(std::string_view file_name, std::string_view filter) {
  return prompts_->save_dialog(file_name, filter);
}

void Session::run_routine(Form& form, const std::string& routine_name, const std::function<void()>& body) {
  if (depth_ >= kMaxNesting) {
    RuntimeFault fault(fault_text::kOutOfStack);
    fault.form = form.name();
    fault.routine = routine_name;
    throw fault;
  }
  ++depth_;
  try {
    body();
  } catch (RuntimeFault& fault) {
    --depth_;
    if (fault.form.empty()) {
      fault.form = form.name();
      fault.routine = routine_name;
    }
    throw;
  } catch (...) {
    --depth_;
    throw;
  }
  --depth_;
}

void Session::fire(Control& control, Event event) {
  Form& f = control.form();
  const ControlRoutine* routine = f.type().handler(control.name(), event);
  if (routine == nullptr) return;
  const int index = control.index();
  run_routine(f, control.name() + event_suffix(event), [&] { (*routine)(f, index); });
}

void Session::notify_control(Control& control, Property property) {
  if (observer_ != nullptr) observer_->control_changed(control, property);
}

void Session::notify_caption(Form& form) {
  if (observer_ != nullptr) observer_->form_caption_changed(form);
}

void Session::user_action(const std::function<void()>& action) {
  if (ended_) return;
  if (depth_ > 0) {
    // Called from inside a routine: part of that routine, not an event of its own.
    action();
    return;
  }
  ++user_event_depth_;
  try {
    action();
  } catch (const RuntimeFault& fault) {
    prompts_->fault({fault.form, fault.routine, fault.what()});
  } catch (const std::exception& error) {
    // A routine asked for something that does not exist: report it like a fault
    // so the program goes on.
    prompts_->fault({"", "", error.what()});
  }
  depth_ = 0;
  if (--user_event_depth_ == 0) graveyard_.clear();
}

void Session::start() {
  user_action([&] { show("Form4"); });
}

void Session::user_click(Control& control) {
  user_action([&] {
    switch (control.kind()) {
      case ControlKind::CheckBox:
        control.set_value(control.value() == 1 ? 0 : 1);
        break;
      case ControlKind::OptionButton:
        if (control.selected()) {
          fire(control, Event::Click);
        } else {
          control.set_value(1);
        }
        break;
      default:
        fire(control, Event::Click);
        break;
    }
  });
}

void Session::user_double_click(Control& control) {
  user_action([&] { fire(control, Event::DblClick); });
}

void Session::user_replace_text(Control& control, std::string_view text) {
  user_action([&] { control.user_replace_text(text); });
}

void Session::user_type(Control& control, std::string_view text) {
  if (text.empty()) {
    user_replace_text(control, text);
    return;
  }
  // Each keystroke is an event of its own; typing stops when the field can
  // no longer take it (its change routine disabled it or closed the dialog).
  // The outer count keeps a dialog destroyed by one keystroke in memory
  // until the typing ends, so the checks below never read freed memory.
  Form* const owner = &control.form();
  const std::string name = owner->name();
  ++user_event_depth_;
  for (std::size_t end : character_ends(text)) {
    if (ended_ || existing(name) != owner || !control.reachable()) break;
    user_replace_text(control, text.substr(0, end));
  }
  if (--user_event_depth_ == 0) graveyard_.clear();
}

void Session::user_pick(Control& control, int list_index) {
  user_action([&] { control.set_list_index(list_index); });
}

void Session::user_mouse_move(Control& control, double x, double y) {
  user_action([&] {
    control.set_pointer(x, y);
    fire(control, Event::MouseMove);
  });
}

void Session::user_grid_click(Control& control, int row) {
  user_action([&] {
    control.set_row(row);
    fire(control, Event::Click);
  });
}

void Session::user_close(std::string_view name) {
  user_action([&] { close(name); });
}

void Session::user_activate(std::string_view name) {
  user_action([&] {
    Form& f = form(name);
    if (f.visible()) activate(f);
  });
}

}  // namespace qorvat
