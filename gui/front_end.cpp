#include "gui/front_end.hpp"

#include <QCoreApplication>
#include <QMetaObject>

#include "gui/qt_convert.hpp"

namespace qorvat::gui {

GuiFrontEnd::GuiFrontEnd(Session& session, std::function<void()> end_application)
    : session_(session), end_application_(std::move(end_application)) {
  session_.set_observer(this);
}

GuiFrontEnd::~GuiFrontEnd() {
  session_.set_observer(nullptr);
  for (auto& [name, window] : windows_) delete window;
  for (auto& window : retired_) delete window.data();
}

void GuiFrontEnd::quit_application() {
  // Queued: the routine that ended the program is still on the stack.
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void GuiFrontEnd::start() {
  forward([&] { session_.start(); });
}

DialogWindow* GuiFrontEnd::window(std::string_view name) const {
  auto it = windows_.find(name);
  return it == windows_.end() ? nullptr : it->second;
}

DialogWindow* GuiFrontEnd::window_of(const Form& form) const {
  DialogWindow* w = window(form.name());
  return w != nullptr && w->form() == &form ? w : nullptr;
}

void GuiFrontEnd::forward(const std::function<void()>& action) {
  if (busy_) return;
  busy_ = true;
  struct Done {
    bool& busy;
    ~Done() { busy = false; }
  } done{busy_};
  action();
  if (activation_pending_) {
    activation_pending_ = false;
    activate_window(active_);
  }
}

void GuiFrontEnd::activate_window(const std::string& name) {
  DialogWindow* w = window(name);
  if (w == nullptr || !w->isVisible()) return;
  w->raise();
  w->activateWindow();
}

void GuiFrontEnd::show_window(Form& form) {
  DialogWindow* w = window_of(form);
  if (w == nullptr) {
    retire_window(form.name());  // a window left from an earlier instance, if any
    w = new DialogWindow(form, *this);
    windows_[form.name()] = w;
  }
  // The runtime makes a dialog active as it shows it.
  active_ = form.name();
  w->show();
  // Inside a routine only the last dialog it shows is given the focus, so
  // the window system does not report the others as the user's choice.
  if (busy_) {
    activation_pending_ = true;
  } else {
    activate_window(active_);
  }
}

void GuiFrontEnd::retire_window(const std::string& name) {
  auto it = windows_.find(name);
  if (it == windows_.end()) return;
  DialogWindow* w = it->second;
  windows_.erase(it);
  // The Form goes right after this call; the window may be inside one of its own signals.
  w->detach();
  w->hide();
  w->deleteLater();
  std::erase_if(retired_, [](const QPointer<DialogWindow>& p) { return p.isNull(); });
  retired_.emplace_back(w);
}

void GuiFrontEnd::form_state_changed(Form& form, FormState now) {
  if (now != FormState::Showing && active_ == form.name()) active_.clear();
  switch (now) {
    case FormState::Showing: show_window(form); break;
    case FormState::Hidden:
      if (DialogWindow* w = window_of(form)) w->hide();
      break;
    case FormState::Destroyed: retire_window(form.name()); break;
  }
}

void GuiFrontEnd::form_caption_changed(Form& form) {
  if (DialogWindow* w = window_of(form)) w->setWindowTitle(to_qstring(form.caption()));
}

void GuiFrontEnd::control_changed(Control& control, Property property) {
  if (DialogWindow* w = window_of(control.form())) w->sync(control, property);
}

void GuiFrontEnd::program_ended() {
  for (auto& [name, window] : windows_) window->hide();
  if (end_application_) end_application_();
}

void GuiFrontEnd::clicked(Control& control) {
  forward([&] { session_.user_click(control); });
}

void GuiFrontEnd::double_clicked(Control& control) {
  forward([&] { session_.user_double_click(control); });
}

void GuiFrontEnd::text_edited(Control& control, std::string_view text) {
  forward([&] { session_.user_replace_text(control, text); });
}

void GuiFrontEnd::picked(Control& control, int list_index) {
  forward([&] { session_.user_pick(control, list_index); });
}

void GuiFrontEnd::grid_clicked(Control& control, int row) {
  forward([&] { session_.user_grid_click(control, row); });
}

void GuiFrontEnd::moved(Control& control, int value) {
  forward([&] { session_.user_action([&] { control.set_value(value); }); });
}

void GuiFrontEnd::mouse_moved(Control& control, double x, double y) {
  forward([&] { session_.user_mouse_move(control, x, y); });
}

void GuiFrontEnd::close_requested(Form& form) {
  const std::string name = form.name();
  forward([&] { session_.user_close(name); });
}

void GuiFrontEnd::activated(Form& form) {
  // A routine's own prompt coming and going is no change of dialog.
  if (busy_ || !form.visible() || form.name() == active_) return;
  const std::string name = form.name();
  active_ = name;
  forward([&] { session_.user_activate(name); });
}

}  // namespace qorvat::gui
