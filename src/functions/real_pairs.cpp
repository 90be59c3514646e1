// Functions of two real numbers: the positive difference, the larger and the
// smaller of two, the hypotenuse and the next representable number.

#include <cmath>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

vhValue vhMath::fdim_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(x, y, nt_fdim, [this](const vhValue& p, const vhValue& q) { return fdim_f(p, q); },
                      [](double a, double b) { return doubleOrUndefined(std::fdim(a, b)); });
}

vhValue vhMath::fmax_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(x, y, nt_fmax, [this](const vhValue& p, const vhValue& q) { return fmax_f(p, q); },
                      [](double a, double b) { return doubleOrUndefined(std::fmax(a, b)); });
}

vhValue vhMath::fmin_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(x, y, nt_fmin, [this](const vhValue& p, const vhValue& q) { return fmin_f(p, q); },
                      [](double a, double b) { return doubleOrUndefined(std::fmin(a, b)); });
}

// max and min hold symbolic calls of their own; numbers go to fmax and fmin.
vhValue vhMath::max_f(const vhValue& x, const vhValue& y)
{
    if (x.isNull() || y.isNull())
        return vhValue();
    if (x.isSymbolic() || y.isSymbolic())
        return symbolicCall(nt_max, {x, y});
    return fmax_f(x, y);
}

vhValue vhMath::min_f(const vhValue& x, const vhValue& y)
{
    if (x.isNull() || y.isNull())
        return vhValue();
    if (x.isSymbolic() || y.isSymbolic())
        return symbolicCall(nt_min, {x, y});
    return fmin_f(x, y);
}

vhValue vhMath::hypot_f(const vhValue& x, const vhValue& y)
{
    // Complex pairs take the value operators: sqrt(x*x + y*y).
    return binary(
        x, y, nt_hypot, [this](const vhValue& p, const vhValue& q) { return hypot_f(p, q); },
        [](double a, double b) { return doubleOrUndefined(std::hypot(a, b)); },
        [this](const vhValue& p, const vhValue& q) {
            if (!p.isComplex() || !q.isComplex())
                return vhValue();
            return sqrt_f(p * p + q * q);
        });
}

vhValue vhMath::nextafter_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(x, y, nt_nextafter, [this](const vhValue& p, const vhValue& q) { return nextafter_f(p, q); },
                      [](double a, double b) { return doubleOrUndefined(std::nextafter(a, b)); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
