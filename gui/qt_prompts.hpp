#pragma once
// The routines' prompts as Qt's own modal dialogs.

#include "runtime/prompts.hpp"

namespace qorvat::gui {

class QtPrompts final : public Prompts {
 public:
  void message_box(std::string_view text, std::string_view title) override;
  std::optional<std::string> input_box(std::string_view prompt, std::string_view title,
                                       std::string_view default_text) override;
  std::optional<std::string> save_dialog(std::string_view file_name, std::string_view filter) override;
  void fault(const FaultReport& report) override;
};

}  // namespace qorvat::gui
