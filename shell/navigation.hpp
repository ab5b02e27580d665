#pragma once
// Where the user goes when a dialog closes. No stack of callers is kept:
// each rule asks which dialogs are showing.

#include <initializer_list>
#include <span>

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::shell {

// True when any of the dialogs is showing. Every name is read, as the old
// conditions did, so each is created if it did not exist.
bool any_showing(Session& session, std::span<const char* const> names);
inline bool any_showing(Session& session, std::initializer_list<const char*> names) {
  return any_showing(session, std::span<const char* const>(names.begin(), names.size()));
}

// Sets the closing rule of every dialog that has one.
void register_navigation(DialogRegistry& registry);

// The main menu's Form47 goes back by its picture as by its window control.
void leave_sections_menu(Session& session);

}  // namespace qorvat::shell
