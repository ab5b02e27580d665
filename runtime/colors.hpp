#pragma once
// Field colours as 24-bit blue-green-red values. The system colours are the
// high-bit values the dialogs start with; the GUI maps them to the palette.

#include <cstdint>

namespace qorvat {

using Color = std::int32_t;

namespace colors {
inline constexpr Color kRed = 255;                   // fore: fails; back: result fails
inline constexpr Color kDarkGreen = 32768;           // fore: passes
inline constexpr Color kLightGreen = 0x80ff80;       // back: result passes
inline constexpr Color kYellow = 65535;              // back: warning with a message box
inline constexpr Color kLightYellow = 0x80ffff;      // back: outside validity / field used by variant
inline constexpr Color kGrey = 0xe0e0e0;             // back: resting state of a checked result
inline constexpr Color kWhite = 0xffffff;            // back: resting state of a colourable field
inline constexpr Color kBlack = 0;

// System colours (the high bit marks them).
inline constexpr Color kWindowBackground = static_cast<Color>(0x80000005u);
inline constexpr Color kWindowText = static_cast<Color>(0x80000008u);
inline constexpr Color kButtonFace = static_cast<Color>(0x8000000Fu);
inline constexpr Color kButtonText = static_cast<Color>(0x80000012u);

inline constexpr bool is_system(Color c) { return c < 0; }
}  // namespace colors

}  // namespace qorvat
