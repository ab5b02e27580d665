// qorvat: the desktop program. Options that only print are handled before
// Qt starts, so they work without a display.

#include <QApplication>
#include <iostream>

#include "gui/application_look.hpp"
#include "gui/command_line.hpp"
#include "gui/front_end.hpp"
#include "gui/qt_prompts.hpp"
#include "shell/program.hpp"

namespace {

std::vector<std::string> arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

// Non-zero when the program stops here.
int refuse(const qorvat::gui::CommandLine& line) {
  if (!line.error.empty()) {
    std::cerr << "qorvat: " << line.error << "\n" << qorvat::gui::usage_text();
    return 2;
  }
  if (!line.unknown.empty()) {
    std::cerr << "qorvat: unknown option " << line.unknown.front() << "\n" << qorvat::gui::usage_text();
    return 2;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace qorvat;
  const gui::CommandLine early = gui::parse_command_line(arguments(argc, argv));
  if (early.help) {
    std::cout << gui::usage_text();
    return 0;
  }
  if (early.version) {
    std::cout << gui::version_text();
    return 0;
  }
  if (!early.error.empty()) return refuse(early);

  QApplication app(argc, argv);
  // Qt has taken its own options out; anything left that is not ours is a mistake.
  const gui::CommandLine line = gui::parse_command_line(arguments(argc, argv));
  if (const int status = refuse(line); status != 0) return status;
  QApplication::setQuitOnLastWindowClosed(false);  // only closing the main menu ends the program
  gui::apply_application_look(app);

  const DialogRegistry registry = make_program_registry();
  gui::QtPrompts prompts;
  Session session(registry, prompts);
  session.profiles_path = line.profiles_path;
  gui::GuiFrontEnd front_end(session);
  front_end.start();
  return QApplication::exec();
}
