// Rounding, splitting numbers into parts, scaling by powers of two, and the
// remainders. Rounding a complex number rounds both parts.

#include <cmath>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace {

template <class Round> vhValue roundBothParts(double a, double b, Round round)
{
    return complexOrUndefined(round(a), round(b));
}

// The frame of ceil, floor and round.
template <class Round> vhValue rounded(const vhValue& x, int id, Round round)
{
    auto kernel = [round](double v, double& out) {
        out = round(v);
        return true;
    };
    return unaryFast(
        x, id, [id, round](const vhValue& e) { return rounded(e, id, round); },
        [round](double a, double b) { return roundBothParts(a, b, round); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

double ceilOf(double v) { return std::ceil(v); }
double floorOf(double v) { return std::floor(v); }
// Halves are rounded away from zero.
double roundOf(double v) { return std::round(v); }
double truncOf(double v) { return std::trunc(v); }

} // namespace

namespace elementary {
vhValue ceilValue(const vhValue& x) { return rounded(x, nt_ceil, ceilOf); }
} // namespace elementary

vhValue vhMath::ceil_f(const vhValue& x) { return elementary::ceilValue(x); }

vhValue vhMath::floor_f(const vhValue& x) { return rounded(x, nt_floor, floorOf); }

vhValue vhMath::round_f(const vhValue& x) { return rounded(x, nt_round, roundOf); }

vhValue vhMath::trunc_f(const vhValue& x)
{
    // Truncation has no complex form.
    auto kernel = [](double v, double& out) {
        out = truncOf(v);
        return true;
    };
    return unaryFast(
        x, nt_trunc, [this](const vhValue& e) { return trunc_f(e); }, [](double, double) { return vhValue(); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::conj_f(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(nt_conj, {x});
    if (isArray(x)) {
        vhValue holder;
        return mapElements(arrayOf(x, holder), [this](const vhValue& e) { return conj_f(e); });
    }
    double a, b;
    if (x.isComplex())
        return complexOf(x, a, b) ? vhValue(vhComplex(a, -b)) : vhValue();
    // A real number is its own conjugate, with its own type.
    if (realOf(x, a))
        return expressionToValue(x);
    return vhValue();
}

vhValue vhMath::frexp_f(const vhValue& x)
{
    // [fraction, exponent]: x = fraction * 2^exponent, the fraction's
    // magnitude in [0.5, 1). An infinity has no such form.
    return unary(
        x, nt_frexp, [this](const vhValue& e) { return frexp_f(e); }, [](double, double) { return vhValue(); },
        [](double d) {
            if (std::isinf(d))
                return vhValue();
            int e = 0;
            const double f = std::frexp(d, &e);
            return vhValue(vhVector({vhDouble(f), vhInteger(e)}, false));
        });
}

vhValue vhMath::modf_f(const vhValue& x)
{
    // [fractional part, integral part], both with the sign of x. An infinity
    // has no parts.
    return unary(
        x, nt_modf, [this](const vhValue& e) { return modf_f(e); },
        [](double a, double b) {
            if (std::isinf(a) || std::isinf(b))
                return vhValue();
            double ia, ib;
            const double fa = std::modf(a, &ia), fb = std::modf(b, &ib);
            return vhValue(vhVector({vhComplex(fa, fb), vhComplex(ia, ib)}, false));
        },
        [](double d) {
            if (std::isinf(d))
                return vhValue();
            double i;
            const double f = std::modf(d, &i);
            return vhValue(vhVector({vhDouble(f), vhDouble(i)}, false));
        });
}

namespace {

// The frame of ldexp and scalbn: a real or complex x, a whole exponent y.
template <class Self, class Scale>
vhValue scaledByTwo(const vhValue& x, const vhValue& y, int id, Self self, Scale scale)
{
    if (x.isNull() || y.isNull())
        return vhValue();
    if (x.isSymbolic() || y.isSymbolic())
        return symbolicCall(id, {x, y});
    if (isArray(x) || isArray(y)) {
        if (!aligned(x, y))
            return vhValue();
        vhValue hx, hy;
        return mapPairs(arrayOf(x, hx), arrayOf(y, hy), self);
    }
    if (!y.isInteger() || !(x.isDouble() || x.isComplex()))
        return vhValue();
    return scale(x, y);
}

} // namespace

vhValue vhMath::ldexp_f(const vhValue& x, const vhValue& y)
{
    return scaledByTwo(
        x, y, nt_ldexp, [this](const vhValue& p, const vhValue& q) { return ldexp_f(p, q); },
        [this](const vhValue& p, const vhValue& q) { return p * pow_f(vhInteger(2), q); });
}

vhValue vhMath::scalbn_f(const vhValue& x, const vhValue& y)
{
    return scaledByTwo(
        x, y, nt_scalbn, [this](const vhValue& p, const vhValue& q) { return scalbn_f(p, q); },
        [this](const vhValue& p, const vhValue& q) { return p * exp_f(q * log_f(vhInteger(2))); });
}

vhValue vhMath::fmod_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(x, y, nt_fmod, [this](const vhValue& p, const vhValue& q) { return fmod_f(p, q); },
                      [](double a, double b) {
                          if (b == 0.0 || std::isinf(a) || std::isinf(b))
                              return vhValue();
                          double r = std::fmod(a, b);
                          // Rounding noise of a remainder that should be 0.
                          if ((r > 0.0 && r < 1e-15) || (r < 0.0 && r > -1e-15))
                              r = 0.0;
                          const double m = std::fabs(b);
                          if (r >= m)
                              r -= m;
                          if (r <= -m)
                              r += m;
                          return vhValue(vhDouble(r));
                      });
}

vhValue vhMath::mod_f(const vhValue& x, const vhValue& y)
{
    // The remainder with the sign of the divisor, computed with the value
    // operators so that whole numbers stay whole. The quotient is cut to 32
    // bits, which limits the function to quotients in that range.
    return binary(
        x, y, nt_mod, [this](const vhValue& p, const vhValue& q) { return mod_f(p, q); },
        [&](double, double b) {
            const vhValue xv = expressionToValue(x), yv = expressionToValue(y);
            if (b == 0.0)
                return xv;
            const vhValue q = xv / yv;
            if (q.isNull())
                return vhValue();
            const vhValue k = vhInteger(internal::cutToInt32(q.toDouble()));
            vhValue r = xv - yv * k;
            if (r.isNull())
                return vhValue();
            if ((r * yv) < vhInteger(0))
                r = r + yv;
            return r;
        },
        [](const vhValue&, const vhValue&) { return vhValue(); });
}

namespace {
vhValue nearestRemainder(double a, double b) { return doubleOrUndefined(std::remainder(a, b)); }
} // namespace

vhValue vhMath::remainder_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(
        x, y, nt_remainder, [this](const vhValue& p, const vhValue& q) { return remainder_f(p, q); },
        nearestRemainder);
}

vhValue vhMath::remquo_f(const vhValue& x, const vhValue& y)
{
    return binaryReal(
        x, y, nt_remquo, [this](const vhValue& p, const vhValue& q) { return remquo_f(p, q); }, nearestRemainder);
}

} // namespace ValueTypes
} // namespace VarnholtMath
