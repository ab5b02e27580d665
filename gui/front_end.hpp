#pragma once
// Keeps one window per dialog in step with the session, and passes the
// user's actions back to it. The runtime runs every routine; this only draws
// and forwards.

#include <QPointer>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "gui/dialog_window.hpp"
#include "gui/user_events.hpp"
#include "runtime/observer.hpp"
#include "runtime/session.hpp"

namespace qorvat::gui {

class GuiFrontEnd final : public SessionObserver, public UserEvents {
 public:
  // Run when the program has ended; by default it leaves the application's event loop.
  explicit GuiFrontEnd(Session& session, std::function<void()> end_application = quit_application);
  ~GuiFrontEnd() override;
  GuiFrontEnd(const GuiFrontEnd&) = delete;
  GuiFrontEnd& operator=(const GuiFrontEnd&) = delete;

  static void quit_application();

  // Shows the main menu.
  void start();
  // The window of a live dialog instance, or nullptr.
  DialogWindow* window(std::string_view name) const;
  // While a routine runs (its prompts included), the user's other actions are dropped.
  bool busy() const { return busy_; }

  // SessionObserver
  void form_state_changed(Form& form, FormState now) override;
  void form_caption_changed(Form& form) override;
  void control_changed(Control& control, Property property) override;
  void program_ended() override;

  // UserEvents
  void clicked(Control& control) override;
  void double_clicked(Control& control) override;
  void text_edited(Control& control, std::string_view text) override;
  void picked(Control& control, int list_index) override;
  void grid_clicked(Control& control, int row) override;
  void moved(Control& control, int value) override;
  void mouse_moved(Control& control, double x, double y) override;
  void close_requested(Form& form) override;
  void activated(Form& form) override;

 private:
  void forward(const std::function<void()>& action);
  void show_window(Form& form);
  void activate_window(const std::string& name);
  void retire_window(const std::string& name);
  DialogWindow* window_of(const Form& form) const;

  Session& session_;
  std::function<void()> end_application_;
  std::map<std::string, DialogWindow*, std::less<>> windows_;
  // Windows of destroyed dialogs, deleted once their events are done.
  std::vector<QPointer<DialogWindow>> retired_;
  // The dialog the runtime last made active, so activating its window again is no new event.
  std::string active_;
  bool busy_ = false;
  // A routine showed dialogs: once it ends, the one the runtime left active gets the focus.
  bool activation_pending_ = false;
};

}  // namespace qorvat::gui
