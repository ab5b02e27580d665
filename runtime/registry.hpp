#pragma once
// Every dialog of the program by name. The shell registers a dialog for
// every name with its caption; each calculator replaces its own entry with
// the full declaration and routines.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/dialog_type.hpp"

namespace qorvat {

class DialogRegistry {
 public:
  // Adds or replaces the dialog of type.name. A navigation rule already set
  // for the name is kept unless the new type brings its own.
  DialogType& add(DialogType type);
  const DialogType* find(std::string_view name) const;
  DialogType* find_mutable(std::string_view name);
  bool contains(std::string_view name) const { return find(name) != nullptr; }
  std::vector<std::string> names() const;

 private:
  std::map<std::string, DialogType, std::less<>> types_;
};

}  // namespace qorvat
