// Trigonometric functions and their inverses. Arguments are read in the
// calculation object's angle unit, and the inverses answer in it. sin of a
// whole multiple of the stored pi is exactly 0 and cos of an odd multiple of
// pi/2 is exactly 0, not a small remainder, so tan has true poles there.

#include <cmath>
#include <cstdint>
#include <complex>

#include <boost/math/complex/acos.hpp>
#include <boost/math/complex/asin.hpp>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"
#include "functions/vector_math.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace {

// A whole quotient within the 32-bit integers; written without branches so
// that the pass over a block is vectorised.
bool isWholeQuotient(double q)
{
    const bool inRange = q > -2147483649.0 && q < 2147483648.0;
    const double r = inRange ? q : 0.5;
    return double(static_cast<std::int32_t>(r)) == r;
}

// sin and cos of radian numbers, a block at a time, with their exact zeros:
// sin at whole multiples of pi, cos at odd multiples of pi/2.
void sinRadians(const double* r, double* out, std::size_t n)
{
    vectormath::sin(r, out, n);
    for (std::size_t i = 0; i < n; ++i)
        if (isWholeQuotient(r[i] / kPi))
            out[i] = 0.0;
}

void cosRadians(const double* r, double* out, std::size_t n)
{
    vectormath::cos(r, out, n);
    for (std::size_t i = 0; i < n; ++i)
        if (isWholeQuotient((r[i] + kHalfPi) / kPi))
            out[i] = 0.0;
}

// sin or cos of real arguments in the angle unit, with the result conversion
// that integrations in degrees or gradians ask for. Arguments in another unit
// are converted a slice at a time.
template <class Radians>
void trigBlock(Radians radians, const double* x, double* out, std::size_t n, AngleUnit unit, unsigned int count)
{
    if (unit != angleDegrees && unit != angleGradians) {
        radians(x, out, n);
        return;
    }
    const std::size_t slice = 256;
    double r[slice];
    for (std::size_t i = 0; i < n; i += slice) {
        const std::size_t m = n - i < slice ? n - i : slice;
        for (std::size_t k = 0; k < m; ++k)
            r[k] = toRadians(x[i + k], unit);
        radians(r, out + i, m);
        for (std::size_t k = 0; k < m; ++k)
            out[i + k] = repeatToRadians(out[i + k], unit, count);
    }
}

void sinBlock(const double* x, double* out, std::size_t n, AngleUnit unit, unsigned int count)
{
    trigBlock(sinRadians, x, out, n, unit, count);
}

void cosBlock(const double* x, double* out, std::size_t n, AngleUnit unit, unsigned int count)
{
    trigBlock(cosRadians, x, out, n, unit, count);
}

double sinOf(double x, AngleUnit unit, unsigned int count)
{
    double out;
    sinBlock(&x, &out, 1, unit, count);
    return out;
}

double cosOf(double x, AngleUnit unit, unsigned int count)
{
    double out;
    cosBlock(&x, &out, 1, unit, count);
    return out;
}


// The complex sine and cosine of a radian argument; on the real axis they
// stay complex, with imaginary part 0.
std::complex<double> complexSin(double a, double b)
{
    if (b == 0.0)
        return std::complex<double>(std::sin(a), 0.0);
    return std::complex<double>(std::sin(a) * std::cosh(b), std::cos(a) * std::sinh(b));
}

std::complex<double> complexCos(double a, double b)
{
    if (b == 0.0)
        return std::complex<double>(std::cos(a), 0.0);
    return std::complex<double>(std::cos(a) * std::cosh(b), -std::sin(a) * std::sinh(b));
}

vhValue complexValue(std::complex<double> c) { return complexOrUndefined(c.real(), c.imag()); }

// A complex angle converted out of radians, both parts.
vhValue complexAngle(const vhValue& v, AngleUnit unit, unsigned int convertResultsToRadians)
{
    double a, b;
    if (!complexOf(v, a, b))
        return v;
    return vhComplex(inverseAngle(a, unit, convertResultsToRadians), inverseAngle(b, unit, convertResultsToRadians));
}

// A value converted into radians count times: the result conversion of tan
// and cot, for real and complex quotients.
vhValue repeatValueToRadians(const vhValue& v, AngleUnit unit, unsigned int count)
{
    double a, b;
    if (realOf(v, a))
        return vhDouble(repeatToRadians(a, unit, count));
    if (complexOf(v, a, b))
        return vhComplex(repeatToRadians(a, unit, count), repeatToRadians(b, unit, count));
    return v;
}

std::complex<double> boostAcos(double a, double b) { return boost::math::acos(std::complex<double>(a, b)); }
std::complex<double> boostAsin(double a, double b) { return boost::math::asin(std::complex<double>(a, b)); }

// (log(i - z) - log(i + z)) / 2i, computed with the value operators; i and
// -i have no arc tangent.
vhValue complexAtanRadians(double a, double b)
{
    if (a == 0.0 && (b == 1.0 || b == -1.0))
        return vhValue();
    const vhComplex i(0.0, 1.0), z(a, b);
    const vhValue l1 = elementary::logValue(i - z), l2 = elementary::logValue(i + z);
    return (l1 - l2) / vhComplex(0.0, 2.0);
}

// The same rearranged for the arc cotangent: (log(z + i) - log(z - i)) / 2i,
// which matches the real branch with values in (0, pi).
vhValue complexAcotRadians(double a, double b)
{
    if (a == 0.0 && (b == 1.0 || b == -1.0))
        return vhValue();
    const vhComplex i(0.0, 1.0), z(a, b);
    const vhValue l1 = elementary::logValue(z + i), l2 = elementary::logValue(z - i);
    return (l1 - l2) / vhComplex(0.0, 2.0);
}

} // namespace

// --- sin, cos, tan, cot, sec, csc ---------------------------------------------

vhValue vhMath::sin_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int count = convertResultsToRadians();
    return unaryBlock(
        x, nt_sin, [this](const vhValue& e) { return sin_f(e); },
        [unit](double a, double b) { return complexValue(complexSin(toRadians(a, unit), toRadians(b, unit))); },
        [&](double d) { return doubleOrUndefined(sinOf(d, unit, count)); },
        [&](const double* in, double* out, std::size_t n) { sinBlock(in, out, n, unit, count); }, [](double) { return false; });
}

vhValue vhMath::cos_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int count = convertResultsToRadians();
    return unaryBlock(
        x, nt_cos, [this](const vhValue& e) { return cos_f(e); },
        [unit](double a, double b) { return complexValue(complexCos(toRadians(a, unit), toRadians(b, unit))); },
        [&](double d) { return doubleOrUndefined(cosOf(d, unit, count)); },
        [&](const double* in, double* out, std::size_t n) { cosBlock(in, out, n, unit, count); }, [](double) { return false; });
}

namespace {

// tan and cot: a quotient of sin_f and cos_f. The count of result
// conversions is taken once and the setting cleared for good; a real zero
// divisor gives an infinity with the sign of the dividend.
vhValue trigQuotient(vhMath* math, const vhValue& x, bool cotangent)
{
    const unsigned int count = math->convertResultsToRadians();
    if (count != 0)
        math->setConvertResultsToRadians(0);
    const vhValue c = math->cos_f(x), s = math->sin_f(x);
    const vhValue& dividend = cotangent ? c : s;
    const vhValue& divisor = cotangent ? s : c;
    vhValue t = dividend / divisor;
    t = repeatValueToRadians(t, math->angleUnit(), count);
    if (t.isNull() && isRealZero(divisor))
        return vhDouble(dividend.isPositive() ? kInf : -kInf);
    return t;
}

bool trigQuotientKernel(vhMath* math, double v, bool cotangent, double& out)
{
    const unsigned int count = math->convertResultsToRadians();
    if (count != 0)
        math->setConvertResultsToRadians(0);
    const AngleUnit unit = math->angleUnit();
    const double c = cosOf(v, unit, 0), s = sinOf(v, unit, 0);
    const double dividend = cotangent ? c : s, divisor = cotangent ? s : c;
    if (std::isnan(c) || std::isnan(s)) {
        out = kNaN;
    } else if (divisor == 0.0) {
        out = dividend > 0.0 ? kInf : -kInf;
    } else {
        out = repeatToRadians(dividend / divisor, unit, count);
    }
    return true;
}

template <class Self>
vhValue tangentFamily(vhMath* math, const vhValue& x, int id, bool cotangent, Self self)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(id, {x});
    if (isArray(x)) {
        vhValue holder;
        const vhValue& array = arrayOf(x, holder);
        if (array.numericValues() && !array.numericImValues())
            return mapReal(
                array, [&](double v, double& out) { return trigQuotientKernel(math, v, cotangent, out); }, self);
        return mapElements(array, self);
    }
    if (!x.isDouble() && !x.isComplex())
        return vhValue();
    return trigQuotient(math, x, cotangent);
}

} // namespace

vhValue vhMath::tan_f(const vhValue& x)
{
    return tangentFamily(this, x, nt_tan, false, [this](const vhValue& e) { return tan_f(e); });
}

vhValue vhMath::cot_f(const vhValue& x)
{
    return tangentFamily(this, x, nt_cot, true, [this](const vhValue& e) { return cot_f(e); });
}

namespace {

// 1 / cos and 1 / sin: the integer 1 divided by the value, so that an exact
// zero of cos or sin gives no result. A complex argument on the real axis
// gives the real-axis value with imaginary part 0.
template <class Direct, class ComplexDirect, class Self>
vhValue reciprocalTrig(vhMath* math, const vhValue& x, int id, Direct direct, ComplexDirect complexDirect,
                       Self self)
{
    const AngleUnit unit = math->angleUnit();
    auto kernel = [&](double v, double& out) {
        const double c = direct(v, unit, math->convertResultsToRadians());
        out = (c == 0.0 || std::isnan(c)) ? kNaN : 1.0 / c;
        return true;
    };
    return unaryFast(
        x, id, self,
        [&](double a, double b) {
            const double ra = toRadians(a, unit), rb = toRadians(b, unit);
            const std::complex<double> c = complexDirect(ra, rb);
            if (rb == 0.0)
                return complexOrUndefined(1.0 / c.real(), 0.0);
            return vhInteger(1) / complexValue(c);
        },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

} // namespace

vhValue vhMath::sec_f(const vhValue& x)
{
    return reciprocalTrig(this, x, nt_sec, cosOf, complexCos, [this](const vhValue& e) { return sec_f(e); });
}

vhValue vhMath::csc_f(const vhValue& x)
{
    return reciprocalTrig(this, x, nt_csc, sinOf, complexSin, [this](const vhValue& e) { return csc_f(e); });
}

// --- inverse functions -----------------------------------------------------------

namespace {

// acos and asin: inside [-1, 1] the real function; outside, and for complex
// arguments, the complex function, whose parts are converted like angles.
template <class Real, class Complex, class Self>
vhValue arcFamily(vhMath* math, const vhValue& x, int id, Real real, Complex complexFn, Self self)
{
    const AngleUnit unit = math->angleUnit();
    const unsigned int convert = math->convertResultsToRadians();
    auto complexPart = [&](double a, double b) {
        return complexAngle(complexValue(complexFn(a, b)), unit, convert);
    };
    auto kernel = [&](double v, double& out) {
        if (v < -1.0 || v > 1.0)
            return false;
        out = inverseAngle(real(v), unit, convert);
        return true;
    };
    double d;
    if (realOf(x, d))
        return realByKernel(d, kernel, [&](double v) { return complexPart(v, 0.0); });
    return unaryFast(
        x, id, self, complexPart,
        [&](double r) { return realByKernel(r, kernel, [&](double v) { return complexPart(v, 0.0); }); }, kernel);
}

double acosOf(double v) { return std::acos(v); }
double asinOf(double v) { return std::asin(v); }

} // namespace

vhValue vhMath::acos_f(const vhValue& x)
{
    return arcFamily(this, x, nt_acos, acosOf, boostAcos, [this](const vhValue& e) { return acos_f(e); });
}

vhValue vhMath::asin_f(const vhValue& x)
{
    return arcFamily(this, x, nt_asin, asinOf, boostAsin, [this](const vhValue& e) { return asin_f(e); });
}

vhValue vhMath::atan_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int convert = convertResultsToRadians();
    auto kernel = [&](double v, double& out) {
        out = inverseAngle(std::atan(v), unit, convert);
        return true;
    };
    return unaryFast(
        x, nt_atan, [this](const vhValue& e) { return atan_f(e); },
        [&](double a, double b) { return complexAngle(complexAtanRadians(a, b), unit, convert); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::acot_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int convert = convertResultsToRadians();
    auto kernel = [&](double v, double& out) {
        out = inverseAngle(kHalfPi - std::atan(v), unit, convert);
        return true;
    };
    return unaryFast(
        x, nt_acot, [this](const vhValue& e) { return acot_f(e); },
        [&](double a, double b) { return complexAngle(complexAcotRadians(a, b), unit, convert); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::asec_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int convert = convertResultsToRadians();
    auto kernel = [&](double v, double& out) {
        if (v == 0.0) {
            out = kNaN;
            return true;
        }
        const double y = 1.0 / v;
        if (y < -1.0 || y > 1.0)
            return false;
        out = inverseAngle(std::acos(y), unit, convert);
        return true;
    };
    auto direct = [this](const vhValue& v) { return acos_f(vhInteger(1) / v); };
    return unaryFast(
        x, nt_asec, [this](const vhValue& e) { return asec_f(e); },
        [&](double a, double b) { return direct(vhComplex(a, b)); },
        [&](double d) { return realByKernel(d, kernel, [&](double v) { return direct(vhDouble(v)); }); }, kernel);
}

vhValue vhMath::acsc_f(const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int convert = convertResultsToRadians();
    // An infinite argument has the limit 0.
    auto kernel = [&](double v, double& out) {
        if (std::isinf(v)) {
            out = 0.0;
            return true;
        }
        if (v == 0.0) {
            out = kNaN;
            return true;
        }
        const double y = 1.0 / v;
        if (y < -1.0 || y > 1.0)
            return false;
        out = inverseAngle(std::asin(y), unit, convert);
        return true;
    };
    auto direct = [this](const vhValue& v) { return asin_f(vhInteger(1) / v); };
    return unaryFast(
        x, nt_acsc, [this](const vhValue& e) { return acsc_f(e); },
        [&](double a, double b) {
            if (std::isinf(a) || std::isinf(b))
                return vhValue(vhComplex(0.0, 0.0));
            return direct(vhComplex(a, b));
        },
        [&](double d) { return realByKernel(d, kernel, [&](double v) { return direct(vhDouble(v)); }); }, kernel);
}

vhValue vhMath::atan2_f(const vhValue& y, const vhValue& x)
{
    const AngleUnit unit = angleUnit();
    const unsigned int convert = convertResultsToRadians();
    return binaryReal(y, x, nt_atan2, [this](const vhValue& p, const vhValue& q) { return atan2_f(p, q); },
                      [&](double a, double b) { return vhValue(vhDouble(inverseAngle(std::atan2(a, b), unit, convert))); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
