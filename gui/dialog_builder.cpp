#include "gui/dialog_builder.hpp"

#include <QBoxLayout>
#include <QGridLayout>

#include "gui/control_widgets.hpp"
#include "gui/layout_plan.hpp"
#include "gui/picture_widget.hpp"
#include "gui/qt_convert.hpp"

namespace qorvat::gui {
namespace {

constexpr int kButtonsPerRow = 3;
constexpr int kPicturesPerRow = 4;

class Builder {
 public:
  Builder(Form& form, DialogWindow& window) : form_(form) {
    std::vector<LayoutEntry> entries;
    for (const auto& control : form.controls()) {
      entries.push_back({control->kind(), control->key(), control->container()});
    }
    plan_ = plan_layout(entries);
    widgets_.reserve(entries.size());
    for (const auto& control : form.controls()) widgets_.push_back(make_control_widget(*control, window));
  }

  BuiltDialog build() {
    BuiltDialog built;
    built.content = new QWidget;
    QGridLayout* top = fill(*built.content, std::string());
    top->setRowStretch(top->rowCount(), 1);
    for (std::size_t i = 0; i < widgets_.size(); ++i) built.widgets.emplace(form_.controls()[i].get(), widgets_[i]);
    return built;
  }

 private:
  const Control& control(std::size_t i) const { return *form_.controls()[i]; }

  QGridLayout* fill(QWidget& holder, const std::string& container_key) {
    auto* grid = new QGridLayout(&holder);
    grid->setColumnStretch(1, 1);
    int r = 0;
    for (const LayoutRow& row : plan_.rows_of(container_key)) {
      switch (row.shape) {
        case RowShape::Single: grid->addWidget(widgets_[row.members[0]], r, 0, 1, 2); break;
        case RowShape::LabeledField: add_labeled_field(*grid, r, row.members[0], row.members[1]); break;
        case RowShape::Run: grid->addLayout(side_by_side(row.members), r, 0, 1, 2); break;
      }
      ++r;
      for (std::size_t member : row.members) fill_holder(member);
    }
    return grid;
  }

  // A frame lays out what it holds in rows; a picture places each control by its own geometry.
  void fill_holder(std::size_t holder) {
    if (!plan_.holds_others[holder]) return;
    auto* picture = dynamic_cast<PictureWidget*>(widgets_[holder]);
    if (picture == nullptr) {
      fill(*widgets_[holder], control(holder).key());
      return;
    }
    for (const LayoutRow& row : plan_.rows_of(control(holder).key())) {
      for (std::size_t member : row.members) {
        picture->adopt(*widgets_[member], control(member));
        fill_holder(member);
      }
    }
  }

  void add_labeled_field(QGridLayout& grid, int r, std::size_t label, std::size_t field) {
    if (!reads_right_to_left(to_qstring(control(label).text()))) {
      grid.addWidget(widgets_[label], r, 0);
      grid.addWidget(widgets_[field], r, 1);
      return;
    }
    // A Persian label stands to the right of its field.
    auto* row = new QBoxLayout(QBoxLayout::RightToLeft);
    row->addWidget(widgets_[label]);
    row->addWidget(widgets_[field], 1);
    grid.addLayout(row, r, 0, 1, 2);
  }

  QGridLayout* side_by_side(const std::vector<std::size_t>& members) {
    const bool buttons = control(members[0]).kind() == ControlKind::CommandButton;
    const int per_row = buttons ? kButtonsPerRow : kPicturesPerRow;
    auto* grid = new QGridLayout;
    for (std::size_t k = 0; k < members.size(); ++k) {
      const int n = static_cast<int>(k);
      grid->addWidget(widgets_[members[k]], n / per_row, n % per_row);
    }
    return grid;
  }

  Form& form_;
  LayoutPlan plan_;
  std::vector<QWidget*> widgets_;
};

}  // namespace

BuiltDialog build_dialog(Form& form, DialogWindow& window) { return Builder(form, window).build(); }

}  // namespace qorvat::gui
