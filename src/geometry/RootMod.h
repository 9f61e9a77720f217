#pragma once

namespace RootMod {

// base raised to a whole power by repeated single-precision multiplication: the
// exponent - 1 rounded to a whole number (halves to even) is the count of extra factors,
// so 0 gives 1, 1 and every negative exponent give base, and 2.5 gives base cubed.
// An overflow is reported in a message box and gives 0.
float SngRoot(float base, float exponent);
// SngRoot of each of count bases to the one exponent, results[i] for bases[i]. Bases below 1
// in size are multiplied out side by side, which gives the same products sooner.
void SngRoots(const float* bases, int count, float exponent, float* results);

} // namespace RootMod
