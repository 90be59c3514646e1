#pragma once

// Small helpers shared by the value classes; not part of the interface.

#include <cmath>
#include <cstdint>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace internal {

// A double cut toward zero into 32 bits, the way the processor's conversion
// does it: NaN and numbers outside the 32-bit range give -2147483648. So 3e10
// is not a whole 32-bit number, and its integer reading is -2147483648.
inline std::int32_t cutToInt32(double x)
{
    if (!(x > -2147483649.0 && x < 2147483648.0))
        return INT32_MIN;
    return static_cast<std::int32_t>(x);
}

// A double cut to an unsigned 32-bit word, wrapping like the processor's
// 64-bit conversion followed by truncation; NaN and huge values give 0.
inline std::uint32_t cutToUInt32(double x)
{
    if (!(x > -9.2233720368547758e18 && x < 9.2233720368547758e18))
        return 0;
    return static_cast<std::uint32_t>(static_cast<std::int64_t>(x));
}

// A scalar number that equals 1 exactly.
inline bool isNumberOne(const vhValue& v)
{
    if (v.isNull())
        return false;
    int t = v.valueType();
    if (t >= tagBoolean && t <= tagDouble)
        return v.toDouble() == 1.0;
    if (t == tagComplex)
        return v.complexRe() == 1.0 && v.complexIm() == 0.0;
    return false;
}

} // namespace internal
} // namespace ValueTypes
} // namespace VarnholtMath
