// Lengths: a point is 1/72 inch, an inch 25.4 mm.
#pragma once

namespace printing {

inline constexpr double kMillimetresPerInch = 25.4;
inline constexpr double kPointsPerInch = 72;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / kMillimetresPerInch;
inline constexpr double kPointsPerHundredthOfMillimetre = kPointsPerInch / (100 * kMillimetresPerInch);

} // namespace printing
