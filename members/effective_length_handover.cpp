// Fa Calculation takes the column above A, the one Check Section hands in,
// and the closed-formula K for both axes. Every figure crosses as the number
// its field reads, written back in plain form.

#include "members/effective_length_dialog.hpp"
#include "members/fa_calculation.hpp"

namespace qorvat::members {

void hand_column_to_fa_calculation(Session& s) {
  const Form& me = s.form("Form5");
  open_fa_calculation_for_single_shape(s, [&me](Form& fa) {
    fa.set_number("Text1", me.val("Text52"));   // A
    fa.set_number("Text5", me.val("Text51"));   // Kx
    fa.set_number("Text6", me.val("Text51"));   // Ky
    fa.set_number("Text2", me.val("Text4"));    // Ix
    fa.set_number("Text3", me.val("Text4"));    // Iy
    fa.set_number("Text7", me.val("Text3"));    // L
    fa.set_number("Text16", me.val("Text50"));  // Fy
  });
}

}  // namespace qorvat::members
