#pragma once
// Where each control of a dialog goes, worked out from the declaration alone:
// which container holds it and how its container's rows are shaped. No Qt
// here, so the arrangement can be checked on its own.

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "runtime/dialog_type.hpp"

namespace qorvat::gui {

// Picture boxes and images: both are drawn as pictures and may hold controls.
bool is_picture(ControlKind kind);

struct LayoutEntry {
  ControlKind kind;
  std::string key;        // "Text5" or "Text5(0)"
  std::string container;  // key of the frame or picture holding it; "" for the dialog
};

enum class RowShape {
  Single,        // one control across the row
  LabeledField,  // a label and the text or combo box it names
  Run,           // consecutive buttons or pictures side by side
};

struct LayoutRow {
  RowShape shape;
  std::vector<std::size_t> members;  // indices into the entries, in declaration order
};

struct LayoutPlan {
  // Whether entry i is drawn as a container (a frame, or a picture holding controls).
  std::vector<bool> holds_others;
  // The rows of each container by its key; "" is the dialog itself.
  std::map<std::string, std::vector<LayoutRow>> rows;

  const std::vector<LayoutRow>& rows_of(const std::string& container_key) const;
};

// Every entry lands in exactly one row. A control naming a container that
// does not exist (or a ring of frames holding each other) goes on the dialog.
LayoutPlan plan_layout(const std::vector<LayoutEntry>& entries);

}  // namespace qorvat::gui
