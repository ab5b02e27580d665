#pragma once
// Where each member of the Effective Length dialog's cross keeps its data,
// shared by the declaration, the calculation and the copy buttons.

#include <array>

namespace qorvat::members::effective_length {

// Length, inertia, plastic modulus: what "ALL Same..!" and "Side Same" copy.
using Section = std::array<const char*, 3>;

struct BeamFields {
  Section section;
  const char* angle;
  const char* frame;
  const char* continuous;
  const char* fixed;
  const char* simple;
  const char* fixed_sketch;
  const char* simple_sketch;
};

struct ColumnFields {
  Section section;
  const char* fa_Fy;
};

inline constexpr BeamFields kRightOfA{
    {"Text1", "Text2", "Text36"}, "Text54", "Frame1", "Option12", "Option2", "Option1", "Image3", "Image4"};
inline constexpr BeamFields kLeftOfA{
    {"Text9", "Text11", "Text38"}, "Text55", "Frame2", "Option13", "Option4", "Option3", "Image5", "Image6"};
inline constexpr BeamFields kRightOfB{
    {"Text18", "Text19", "Text43"}, "Text56", "Frame3", "Option14", "Option6", "Option5", "Image7", "Image8"};
inline constexpr BeamFields kLeftOfB{
    {"Text25", "Text26", "Text47"}, "Text57", "Frame4", "Option15", "Option8", "Option7", "Image9", "Image10"};
inline constexpr std::array<const BeamFields*, 4> kBeams{&kRightOfA, &kLeftOfA, &kRightOfB, &kLeftOfB};

inline constexpr ColumnFields kAboveA{{"Text3", "Text4", "Text37"}, "Text40"};
inline constexpr ColumnFields kStudied{{"Text8", "Text10", "Text39"}, "Text41"};
inline constexpr ColumnFields kBelowB{{"Text29", "Text30", "Text46"}, "Text45"};

// Foot of the column and the connection conditions.
inline constexpr const char* kContinuousColumn = "Option11";
inline constexpr const char* kSimpleSupport = "Option10";
inline constexpr const char* kFixedSupport = "Option9";
inline constexpr const char* kAllMembers = "Option19";
inline constexpr const char* kOneUpperBeam = "Option16";
inline constexpr const char* kNoUpperColumn = "Option17";
inline constexpr const char* kOneLowerBeam = "Option18";
inline constexpr const char* kOnePlusTwo = "Option20";
inline constexpr const char* kOnePlusThree = "Option21";

}  // namespace qorvat::members::effective_length
