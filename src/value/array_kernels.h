#pragma once

// Shared pieces of the vector and matrix classes.

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// The element-wise product or quotient of two arrays of the same shape: a
// numeric array of that shape whose entries are a.multiply(b) or
// a.divide(b); an entry that is symbolic turns the storage into elements.
vhValue elementwise(const vhValue& a, const vhValue& b, bool divide);

} // namespace ValueTypes
} // namespace VarnholtMath
