#pragma once

namespace Arctan {

// The angle of y/x with a guard for a vanishing divisor: for |x| below 0.01 the result is
// -pi/2 or +pi/2 by the sign of y. With fullRange, pi is added for negative x; without,
// the result stays in (-pi/2, pi/2] and the quadrant of x is not restored.
float ArcTan(float y, float x, bool fullRange);

} // namespace Arctan
