#pragma once
// The main menu Form4: a picture and eighteen buttons, each hiding the menu
// and opening a calculator or a selector.

#include "runtime/registry.hpp"

namespace qorvat::shell {

void register_main_menu(DialogRegistry& registry);

}  // namespace qorvat::shell
