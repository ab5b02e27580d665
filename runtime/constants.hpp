#pragma once
// The constants every calculator shares, written as the published results
// were computed with them: any more exact value would change those results.

namespace qorvat {

inline constexpr double kPi = 3.1416;
inline constexpr double kPointFiftyFivePi = 1.72788;  // 0.55 * pi where a formula uses it
// 2 * pi^2 of the steel formulas, always formed as a sum of two squares.
inline constexpr double kTwoPiSquared = 3.1416 * 3.1416 + 3.1416 * 3.1416;
inline constexpr double kSteelE = 2040000.0;  // kgf/cm2
inline constexpr double kDefaultFy = 2400.0;  // kgf/cm2
// Throat of a fillet weld per unit size: sizes in cm and in mm.
inline constexpr double kWeldThroatCm = 0.707;
inline constexpr double kWeldThroatMm = 0.0707;
// The base of natural powers as the footing and wall formulas write it.
inline constexpr double kShortE = 2.7183;
inline constexpr double kLongE = 2.7182182846;

inline double degrees_to_radians(double degrees) { return degrees * kPi / 180.0; }
inline double radians_to_degrees(double radians) { return radians * 180.0 / kPi; }

}  // namespace qorvat
