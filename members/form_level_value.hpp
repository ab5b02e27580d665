#pragma once
// A value that lives as long as one dialog instance, beside its fields: the
// old form-level variable. Reset when an instance opens, dropped when it closes.

#include <map>

#include "runtime/form.hpp"

namespace qorvat::members {

template <typename T>
class FormLevelValue {
 public:
  void reset(const Form& form) { values_[&form] = T{}; }
  void forget(const Form& form) { values_.erase(&form); }
  T& operator[](const Form& form) { return values_[&form]; }

 private:
  // An instance's address may come back for a later instance: reset() runs first then.
  std::map<const Form*, T> values_;
};

}  // namespace qorvat::members
