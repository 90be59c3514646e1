#pragma once

// Shared pieces of the vector and matrix classes.

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// The element-wise product or quotient of two arrays of the same shape: a
// numeric array of that shape whose entries are a.multiply(b) or
// a.divide(b); an entry that is symbolic turns the storage into elements.
vhValue elementwise(const vhValue& a, const vhValue& b, bool divide);

// Negates the imaginary parts of an array in place: the imaginary half of
// numeric storage, or each complex element; an image has none.
void conjugateAll(vhValue& array);

// The product of two numbers read from numeric storage, as their element
// values multiply: two whole 32-bit numbers as integers, wrapping around;
// any other pair as doubles.
double elementProduct(double x, double y);

} // namespace ValueTypes
} // namespace VarnholtMath
