#pragma once
// The pieces of the Check Section dialog (Form15), one file each, and what
// they share. The I shape and the box are two halves of one dialog; the box's
// full Ix, Iy and the shares Rw, Rf live beside its fields for the column
// splice.

#include <initializer_list>
#include <memory>
#include <vector>

#include "members/form_level_value.hpp"
#include "members/width_thickness_limits.hpp"
#include "runtime/dialog_type.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"

namespace qorvat::members::check_section {

struct KeptBoxValues {
  double Ix = 0, Iy = 0, Rw = 0, Rf = 0;
};
using KeptBox = FormLevelValue<KeptBoxValues>;

// The controls in dialog order: I shape, IPE unbraced length, box.
std::vector<ControlDecl> controls();

// Edition and class as each half's options and boxes stand.
SeismicCode i_shape_code(const Form& me);
Ductility i_shape_ductility(const Form& me);
SeismicCode box_code(const Form& me);
Ductility box_ductility(const Form& me);

// Whether any of the dialogs shows. Every one is asked, so every one exists afterwards.
bool any_showing(Session& s, std::initializer_list<const char*> names);

// Check boxes of which exactly one stays ticked: the one ticked clears the
// other, the one cleared ticks the other.
void keep_exclusive(Form& me, const char* clicked, const char* other);
// Ticks the high ductility box when neither box of the pair is ticked.
void tick_high_if_no_class(Form& me, const char* high, const char* medium);

// "Cal" of the I shape, and the recalculation from the thicknesses on the dialog
// ("Command8", pressed by the reduced beam section calculator).
void design_i_shape(Form& me);
void recalculate_i_shape(Form& me);
void add_i_shape_routines(DialogType& type);

// "Cal" of the box.
void design_box(Form& me, KeptBox& kept);
void add_box_routines(DialogType& type, const std::shared_ptr<KeptBox>& kept);

// The buttons that open other calculators with this dialog's section.
void add_handovers(DialogType& type, const std::shared_ptr<KeptBox>& kept);

// Closing: the section into every caller that shows.
void hand_back(Form& me);

}  // namespace qorvat::members::check_section
