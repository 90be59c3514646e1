#pragma once

// The frame of the integer functions: an undefined argument gives the
// undefined value, a symbolic one the held call, an array is mapped element
// by element (two arrays pair by pair, when they have one shape), and a
// scalar must be a whole number within 32 bits.

#include <cstdint>

#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace integers {

// f(n) gets the whole number of a scalar argument.
template <class F> vhValue unary(const vhValue& x, int id, const F& f)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return elementwise::symbolicCall(id, {x});
    if (elementwise::isArray(x)) {
        vhValue holder;
        return elementwise::mapElements(elementwise::arrayOf(x, holder),
                                        [&](const vhValue& e) { return unary(e, id, f); });
    }
    if (!x.isInteger())
        return vhValue();
    return f(static_cast<std::int32_t>(x.toInt()));
}

// readX and readY read one scalar argument each or refuse it; f gets the two.
template <class TX, class TY, class F>
vhValue binaryWith(const vhValue& x, const vhValue& y, int id, bool (*readX)(const vhValue&, TX&),
                   bool (*readY)(const vhValue&, TY&), const F& f)
{
    if (x.isNull() || y.isNull())
        return vhValue();
    if (x.isSymbolic() || y.isSymbolic())
        return elementwise::symbolicCall(id, {x, y});
    if (!elementwise::aligned(x, y))
        return vhValue();
    if (elementwise::isArray(x)) {
        vhValue hx, hy;
        return elementwise::mapPairs(elementwise::arrayOf(x, hx), elementwise::arrayOf(y, hy),
                                     [&](const vhValue& a, const vhValue& b) {
                                         return binaryWith(a, b, id, readX, readY, f);
                                     });
    }
    TX a{};
    TY b{};
    if (!readX(x, a) || !readY(y, b))
        return vhValue();
    return f(a, b);
}

// A whole number within 32 bits.
inline bool readInteger(const vhValue& v, std::int32_t& out)
{
    if (!v.isInteger())
        return false;
    out = static_cast<std::int32_t>(v.toInt());
    return true;
}

template <class F> vhValue binary(const vhValue& x, const vhValue& y, int id, const F& f)
{
    return binaryWith(x, y, id, readInteger, readInteger, f);
}

} // namespace integers
} // namespace ValueTypes
} // namespace VarnholtMath
