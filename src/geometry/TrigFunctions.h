#pragma once

namespace TrigFunctions {

// Arcsine and arccosine built from the arctangent. Both raise ArithmeticError at and
// beyond |x| = 1 (a division by zero or the root of a negative number); the vectors
// catch it and fall back to another formula.
float ArcSin(float x);
float ArcCos(float x);

} // namespace TrigFunctions
