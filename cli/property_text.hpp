#pragma once
// The text forms of control and dialog properties used by the script runner's
// get, expect and dump: booleans as True/False, colours as signed integers,
// line breaks as \n so every value stays on one line.

#include <optional>
#include <string>
#include <string_view>

#include "runtime/control.hpp"
#include "runtime/form.hpp"

namespace qorvat::cli {

// Property names a script may ask for.
bool is_control_property(std::string_view name);

// The property a bare "get F.C" reads: Text for text fields and combo boxes,
// Value for check boxes and option buttons, Caption otherwise.
std::string default_property(const Control& control);

// The value of one property, or nothing when the name is not a property.
std::optional<std::string> control_property(const Control& control, std::string_view property);
std::optional<std::string> form_property(const Form& form, std::string_view property);

// One line describing a control and all its properties, tab separated.
std::string dump_line(const Control& control);
std::string dump_header(const Form& form);

// Writes line breaks (CR LF, LF or CR) as the two characters \n.
std::string one_line(std::string_view text);

}  // namespace qorvat::cli
