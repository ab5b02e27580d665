#include "loads/standard_2800_state.hpp"

#include <map>

namespace qorvat::loads {
namespace {

// Keyed by instance. An address may come back for a later instance; its
// opening routine resets the entry first.
std::map<const Form*, Standard2800State>& states() {
  static std::map<const Form*, Standard2800State> by_form;
  return by_form;
}

}  // namespace

Standard2800State& standard_2800_state(const Form& form) { return states()[&form]; }

void reset_standard_2800_state(const Form& form) { states()[&form] = Standard2800State{}; }

void forget_standard_2800_state(const Form& form) { states().erase(&form); }

const std::vector<double>* spectrum_of(const Form& form) {
  auto it = states().find(&form);
  return it == states().end() ? nullptr : &it->second.BA;
}

}  // namespace qorvat::loads
