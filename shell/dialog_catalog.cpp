#include "shell/dialog_catalog.hpp"

#include <utility>

namespace qorvat::shell {
namespace {

struct CatalogEntry {
  const char* name;
  const char* caption;
};

// clang-format off
constexpr CatalogEntry kCatalog[] = {
    {"Form1", "Beam Connections"},
    {"Form2", "P Calculate"},
    {"Form3", "M Calculate"},
    {"Form4", "Qorvat22.0.0"},
    {"Form5", "Effective Length Coefficient (K)"},
    {"Form6", "CBF Corner Brace Connection"},
    {"Form7", "AL-KarniI & Richards"},
    {"Form8", "Floor Vibration"},
    {"Form9", "V Brace Connection"},
    {"Form10", "Cont. Plate"},
    {"Form11", "Fa Calculation"},
    {"Form12", "Angle Design"},
    {"Form13", "STAHL PROFILE"},
    {"Form14", "Alpha Cal"},
    {"Form15", "Check Section"},
    {"Form16", "Ec, Mu (Tensile only) vc and Development Lenght"},
    {"Form17", "Slip-Critical Connections (LRFD)"},
    {"Form18", "Select"},
    {"Form19", "Extended End Plate (LRFD)"},
    {"Form20", "Select"},
    {"Form21", "T (Vu) calculate (LRFD)"},
    {"Form22", "Deck Design (LRFD)"},
    {"Form23", "Creep & Shrinkage - ACI 209"},
    {"Form24", "Bearing-Type Connections (LRFD)"},
    {"Form25", "ضرايب رفتار جدول 3-4"},
    {"Form26", "Standard 2800 4th"},
    {"Form27", "Rigid Connection (WUF-W)"},
    {"Form28", "Select Connection"},
    {"Form29", "Gravity Cal"},
    {"Form30", "P selection"},
    {"Form31", "Beam Connection Forces"},
    {"Form32", "Rigid Connection (BFP)"},
    {"Form33", "Plate Design"},
    {"Form34", "Beam Control"},
    {"Form35", "Column Splice (LRFD)"},
    {"Form36", "BasePlate (LRFD)"},
    {"Form37", "Connection Design"},
    {"Form38", "With Stiffeners (LRFD)"},
    {"Form39", "Fillet Weld Design"},
    {"Form40", "SSI"},
    {"Form41", "Non Structural Force (2800 4th)"},
    {"Form42", "Stiffener Design  (LRFD)"},
    {"Form43", "Link Beam (LRFD)"},
    {"Form44", "Web Bolts"},
    {"Form45", "PROFILE"},
    {"Form46", "STAHL PROFILE"},
    {"Form47", "SECTIONS"},
    {"Form48", "Form30"},
    {"Form49", "Bolt Design with shear tab"},
    {"Form50", "Hilti"},
    {"Form51", "Tank's Force"},
    {"Form52", "Saz Calculation"},
    {"Form53", "Wind Load"},
    {"Form54", "Select"},
    {"Form55", "Shallow Belled Pile - Meyerhof & Adams (1968) - Janbu (1976) - Das (1980)"},
    {"Form56", "RBS"},
    {"Form57", "Khorjini Connection"},
    {"Form58", "Cal Zx"},
    {"Form59", "Anchor group"},
    {"Form60", "Deck"},
    {"Form61", "Ldh"},
    {"Form62", "Shell Design"},
    {"Form63", "Cb,Ktr"},
    {"Form64", "Yield Line (LRFD)"},
    {"Form65", "Block Shear (LRFD)"},
    {"Form66", "Shear tab"},
    {"Form67", "Fire Protection"},
    {"Form68", "Shear Wall"},
    {"Form69", "تشديد"},
    {"Form70", "Select"},
    {"Form71", "Lateral Support"},
    {"Form72", "Effective With-Rojas et al."},
    {"Form73", "Rigid Founation-ACI 336.2"},
    {"Form74", "Weld Design (LRFD)"},
    {"Form75", "?"},
    {"Form76", "Select"},
    {"Form77", "?"},
    {"formKS", "Ks.Dyn"},
};
// clang-format on

}  // namespace

void register_dialog_catalog(DialogRegistry& registry) {
  for (const auto& entry : kCatalog) {
    DialogType type;
    type.name = entry.name;
    type.caption = entry.caption;
    registry.add(std::move(type));
  }
  // Route markers read when these dialogs close.
  registry.find_mutable("Form10")->add(text_box("Text30").hidden());
  registry.find_mutable("Form37")->add({text_box("Text14").hidden(), picture_box("Picture2").hidden()});
}

}  // namespace qorvat::shell
