#pragma once
// The small selector dialogs: option buttons and one go button that opens
// the first selected option's dialog (the last one when none earlier is
// selected) and hides the selector.

#include <functional>
#include <string>
#include <vector>

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::shell {

struct SelectorOption {
  std::string option;  // option button name
  std::string caption;
  std::string target;  // dialog it opens
  // Extra work when this option opens its target (route markers).
  std::function<void(Session&)> prepare = {};
};

struct SelectorSpec {
  std::string name;
  std::string go_button;
  std::string go_caption;
  std::vector<SelectorOption> options;  // in the order the go button reads them
  std::string default_option;           // selected on opening; empty: none
  std::vector<ControlDecl> extra_controls = {};
};

// Builds the selector's dialog type on top of its catalog entry (caption and
// closing rule stay) and registers it.
void register_selector(DialogRegistry& registry, SelectorSpec spec);

// The option that the go button of `selector` would open.
const SelectorOption& chosen_option(const Form& selector, const std::vector<SelectorOption>& options);

void register_selectors(DialogRegistry& registry);

}  // namespace qorvat::shell
