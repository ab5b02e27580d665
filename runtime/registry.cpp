#include "runtime/registry.hpp"

namespace qorvat {

DialogType& DialogRegistry::add(DialogType type) {
  auto it = types_.find(type.name);
  if (it == types_.end()) {
    std::string name = type.name;
    return types_.emplace(std::move(name), std::move(type)).first->second;
  }
  if (!type.navigation) type.navigation = std::move(it->second.navigation);
  it->second = std::move(type);
  return it->second;
}

const DialogType* DialogRegistry::find(std::string_view name) const {
  auto it = types_.find(name);
  return it == types_.end() ? nullptr : &it->second;
}

DialogType* DialogRegistry::find_mutable(std::string_view name) {
  auto it = types_.find(name);
  return it == types_.end() ? nullptr : &it->second;
}

std::vector<std::string> DialogRegistry::names() const {
  std::vector<std::string> out;
  for (const auto& [name, type] : types_) out.push_back(name);
  return out;
}

}  // namespace qorvat
