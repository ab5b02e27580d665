#include "gui/layout_plan.hpp"

#include <algorithm>

namespace qorvat::gui {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

bool is_field(ControlKind kind) { return kind == ControlKind::TextBox || kind == ControlKind::ComboBox; }

// Controls that sit side by side when they follow one another: 0 for none.
int run_family(const std::vector<LayoutEntry>& entries, const LayoutPlan& plan, std::size_t i) {
  if (entries[i].kind == ControlKind::CommandButton) return 1;
  if (is_picture(entries[i].kind) && !plan.holds_others[i]) return 2;
  return 0;
}

std::vector<LayoutRow> shape_rows(const std::vector<LayoutEntry>& entries, const LayoutPlan& plan,
                                  const std::vector<std::size_t>& children) {
  std::vector<LayoutRow> rows;
  std::size_t k = 0;
  while (k < children.size()) {
    const std::size_t i = children[k];
    if (entries[i].kind == ControlKind::Label && k + 1 < children.size() && is_field(entries[children[k + 1]].kind)) {
      rows.push_back({RowShape::LabeledField, {i, children[k + 1]}});
      k += 2;
      continue;
    }
    const int family = run_family(entries, plan, i);
    std::size_t end = k + 1;
    while (family != 0 && end < children.size() && run_family(entries, plan, children[end]) == family) ++end;
    LayoutRow row{end - k > 1 ? RowShape::Run : RowShape::Single, {}};
    row.members.assign(children.begin() + static_cast<std::ptrdiff_t>(k),
                       children.begin() + static_cast<std::ptrdiff_t>(end));
    rows.push_back(std::move(row));
    k = end;
  }
  return rows;
}

}  // namespace

bool is_picture(ControlKind kind) { return kind == ControlKind::PictureBox || kind == ControlKind::Image; }

const std::vector<LayoutRow>& LayoutPlan::rows_of(const std::string& container_key) const {
  static const std::vector<LayoutRow> kEmpty;
  auto it = rows.find(container_key);
  return it == rows.end() ? kEmpty : it->second;
}

LayoutPlan plan_layout(const std::vector<LayoutEntry>& entries) {
  const std::size_t n = entries.size();
  std::map<std::string, std::size_t, std::less<>> index_of;
  for (std::size_t i = 0; i < n; ++i) index_of.emplace(entries[i].key, i);

  LayoutPlan plan;
  plan.holds_others.assign(n, false);
  std::vector<std::size_t> parent(n, kNone);
  for (std::size_t i = 0; i < n; ++i) {
    if (entries[i].kind == ControlKind::Frame) plan.holds_others[i] = true;
    auto it = index_of.find(entries[i].container);
    if (it == index_of.end() || it->second == i) continue;
    const ControlKind holder = entries[it->second].kind;
    if (holder == ControlKind::Frame || is_picture(holder)) {
      parent[i] = it->second;
      plan.holds_others[it->second] = true;
    }
  }

  // Children lists in declaration order; kNone stands for the dialog.
  std::map<std::size_t, std::vector<std::size_t>> children;
  for (std::size_t i = 0; i < n; ++i) children[parent[i]].push_back(i);

  std::vector<bool> reached(n, false);
  std::vector<std::size_t> pending;
  auto reach_from = [&](std::size_t holder) {
    pending.assign(1, holder);
    while (!pending.empty()) {
      const std::size_t h = pending.back();
      pending.pop_back();
      for (std::size_t child : children[h]) {
        if (reached[child]) continue;
        reached[child] = true;
        pending.push_back(child);
      }
    }
  };
  reach_from(kNone);
  // Frames holding each other in a ring are cut loose onto the dialog.
  for (std::size_t i = 0; i < n; ++i) {
    if (reached[i]) continue;
    auto& siblings = children[parent[i]];
    siblings.erase(std::find(siblings.begin(), siblings.end(), i));
    parent[i] = kNone;
    auto& top = children[kNone];
    top.insert(std::upper_bound(top.begin(), top.end(), i), i);
    reached[i] = true;
    reach_from(i);
  }

  for (const auto& [holder, kids] : children) {
    if (kids.empty()) continue;
    plan.rows[holder == kNone ? std::string() : entries[holder].key] = shape_rows(entries, plan, kids);
  }
  return plan;
}

}  // namespace qorvat::gui
