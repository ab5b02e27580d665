#include "runtime/form.hpp"

#include <stdexcept>

#include "runtime/session.hpp"

namespace qorvat {

Form::Form(Session& session, const DialogType& type) : session_(&session), type_(&type), caption_(type.caption) {
  controls_.reserve(type.controls.size());
  for (const auto& decl : type.controls) {
    controls_.push_back(std::make_unique<Control>(*this, decl));
    Control* c = controls_.back().get();
    if (!by_key_.emplace(c->key(), c).second) {
      throw std::logic_error(type.name + " declares " + c->key() + " twice");
    }
  }
}

void Form::set_caption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  session_->notify_caption(*this);
}

void Form::set_height(int height) {
  height_ = height;
  session_->notify_caption(*this);
}

Control* Form::find(std::string_view key) const {
  auto it = by_key_.find(key);
  return it == by_key_.end() ? nullptr : it->second;
}

Control& Form::operator[](std::string_view key) const {
  if (Control* c = find(key)) return *c;
  throw std::out_of_range(name() + " has no control " + std::string(key));
}

Control& Form::control(std::string_view name, int index) const {
  return (*this)[control_key(name, index)];
}

Control* Form::selected_option(std::string_view container) const {
  for (const auto& c : controls_) {
    if (c->selected() && c->container() == container) return c.get();
  }
  return nullptr;
}

void Form::show() { session_->show(name()); }
void Form::hide() { session_->hide(name()); }

}  // namespace qorvat
