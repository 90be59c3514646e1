// Hyperbolic functions and their inverses. sinh is the half difference of two
// exponentials and tanh the quotient of sinh and cosh; the inverses move
// arguments outside their real domain to the complex plane and give poles an
// infinity with the sign of the argument.

#include <cmath>
#include <complex>

#include <boost/math/complex/acos.hpp>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;
using elementary::logValue;

namespace {

double sinhOf(double x) { return (std::exp(x) - std::exp(-x)) / 2.0; }

vhValue complexSinh(double a, double b)
{
    const double r1 = std::exp(a) * std::cos(b), i1 = std::exp(a) * std::sin(b);
    const double r2 = std::exp(-a) * std::cos(-b), i2 = std::exp(-a) * std::sin(-b);
    if (std::isnan(r1) || std::isnan(i1) || std::isnan(r2) || std::isnan(i2))
        return vhValue();
    return complexOrUndefined((r1 - r2) / 2.0, (i1 - i2) / 2.0);
}

vhValue complexCosh(double a, double b)
{
    return complexOrUndefined(std::cosh(a) * std::cos(b), std::sinh(a) * std::sin(b));
}

bool isWholeQuotient(double q) { return double(internal::cutToInt32(q)) == q; }

template <class Kernel> vhValue realOnly(double d, Kernel kernel)
{
    return realByKernel(d, kernel, [](double) { return vhValue(); });
}

// acosh through the complex arc cosine: i acos(z) or -i acos(z), whichever
// has the non-negative real part.
vhValue complexAcosh(double a, double b)
{
    const std::complex<double> w = boost::math::acos(std::complex<double>(a, b));
    if (w.imag() <= 0.0)
        return complexOrUndefined(-w.imag(), w.real());
    return complexOrUndefined(w.imag(), -w.real());
}

// log(z + sqrt(z*z + 1)) with the value operators. In the left half-plane the
// sum cancels, so there the odd symmetry asinh(-z) = -asinh(z) is used.
vhValue complexAsinhRight(double a, double b)
{
    const vhComplex z(a, b);
    return logValue(z + elementary::rootValue(z * z + vhInteger(1), vhInteger(2), elementary::PowerRules{false, true}));
}

vhValue complexAsinh(double a, double b)
{
    if (a < 0.0) {
        const vhValue r = complexAsinhRight(-a, -b);
        return r.isNull() ? vhValue() : r * vhInteger(-1);
    }
    return complexAsinhRight(a, b);
}

// log((1 + z) / (1 - z)) / 2 with the value operators.
vhValue complexAtanh(double a, double b)
{
    const vhComplex z(a, b);
    return logValue((vhInteger(1) + z) / (vhInteger(1) - z)) / vhInteger(2);
}

} // namespace

vhValue vhMath::sinh_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        out = sinhOf(v);
        return true;
    };
    return unaryFast(
        x, nt_sinh, [this](const vhValue& e) { return sinh_f(e); }, complexSinh,
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::cosh_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        out = std::cosh(v);
        return true;
    };
    return unaryFast(
        x, nt_cosh, [this](const vhValue& e) { return cosh_f(e); }, complexCosh,
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::tanh_f(const vhValue& x)
{
    // sinh / cosh: where both overflow the quotient has no value.
    auto kernel = [](double v, double& out) {
        out = sinhOf(v) / std::cosh(v);
        return true;
    };
    return unaryFast(
        x, nt_tanh, [this](const vhValue& e) { return tanh_f(e); },
        [](double a, double b) { return complexSinh(a, b) / complexCosh(a, b); },
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::coth_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (std::isinf(v))
            out = v > 0.0 ? 1.0 : -1.0;
        else {
            const double s = sinhOf(v);
            out = s == 0.0 ? kNaN : std::cosh(v) / s;
        }
        return true;
    };
    return unaryFast(
        x, nt_coth, [this](const vhValue& e) { return coth_f(e); },
        [](double a, double b) { return complexCosh(a, b) / complexSinh(a, b); },
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::sech_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        out = 1.0 / std::cosh(v);
        return true;
    };
    // 1 / (cosh a cos b + i sinh a sin b), where cos b is exactly 0 at odd
    // multiples of pi/2 and sin b at multiples of pi.
    auto complexPart = [](double a, double b) {
        const double c = isWholeQuotient((b + kHalfPi) / kPi) ? 0.0 : std::cos(b);
        const double s = isWholeQuotient(b / kPi) ? 0.0 : std::sin(b);
        return vhInteger(1) / complexOrUndefined(std::cosh(a) * c, std::sinh(a) * s);
    };
    return unaryFast(
        x, nt_sech, [this](const vhValue& e) { return sech_f(e); }, complexPart,
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::csch_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        const double s = sinhOf(v);
        out = s == 0.0 ? kNaN : 1.0 / s;
        return true;
    };
    // csch z = i csc(iz), with the cosecant in radians.
    auto complexPart = [](double a, double b) {
        const double ra = -b, rb = a;
        vhValue csc;
        if (rb == 0.0)
            csc = complexOrUndefined(1.0 / std::sin(ra), 0.0);
        else
            csc = vhInteger(1) / complexOrUndefined(std::sin(ra) * std::cosh(rb), std::cos(ra) * std::sinh(rb));
        return vhComplex(0.0, 1.0) * csc;
    };
    return unaryFast(
        x, nt_csch, [this](const vhValue& e) { return csch_f(e); }, complexPart,
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::acosh_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (v < 1.0)
            return false;
        out = std::acosh(v);
        return true;
    };
    return unaryFast(
        x, nt_acosh, [this](const vhValue& e) { return acosh_f(e); }, complexAcosh,
        [&](double d) { return realByKernel(d, kernel, [](double v) { return complexAcosh(v, 0.0); }); }, kernel);
}

vhValue vhMath::asinh_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        out = std::asinh(v);
        return true;
    };
    return unaryFast(
        x, nt_asinh, [this](const vhValue& e) { return asinh_f(e); }, complexAsinh,
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

vhValue vhMath::atanh_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (v < -1.0 || v > 1.0)
            return false;
        out = v == 1.0 ? kInf : (v == -1.0 ? -kInf : std::atanh(v));
        return true;
    };
    return unaryFast(
        x, nt_atanh, [this](const vhValue& e) { return atanh_f(e); }, complexAtanh,
        [&](double d) { return realByKernel(d, kernel, [](double v) { return complexAtanh(v, 0.0); }); }, kernel);
}

vhValue vhMath::acoth_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (v == 1.0 || v == -1.0) {
            out = v > 0.0 ? kInf : -kInf;
            return true;
        }
        if (v >= -1.0 && v <= 1.0)
            return false;
        out = std::atanh(1.0 / v);
        return true;
    };
    auto complexPart = [this](double a, double b) { return atanh_f(vhInteger(1) / vhComplex(a, b)); };
    return unaryFast(
        x, nt_acoth, [this](const vhValue& e) { return acoth_f(e); }, complexPart,
        [&](double d) { return realByKernel(d, kernel, [&](double v) { return complexPart(v, 0.0); }); }, kernel);
}

vhValue vhMath::asech_f(const vhValue& x)
{
    // 0 is a pole; at the infinities the limit acosh(0) = i pi/2.
    auto kernel = [](double v, double& out) {
        if (v == 0.0) {
            out = kInf;
            return true;
        }
        if (std::isinf(v))
            return false;
        const double y = 1.0 / v;
        if (y < 1.0)
            return false;
        out = std::acosh(y);
        return true;
    };
    auto outside = [this](double v) {
        if (std::isinf(v))
            return acosh_f(vhDouble(0.0));
        return acosh_f(vhInteger(1) / vhDouble(v));
    };
    return unaryFast(
        x, nt_asech, [this](const vhValue& e) { return asech_f(e); },
        [this](double a, double b) { return acosh_f(vhInteger(1) / vhComplex(a, b)); },
        [&](double d) { return realByKernel(d, kernel, outside); }, kernel);
}

vhValue vhMath::acsch_f(const vhValue& x)
{
    // At the infinities the limit 0; 0 itself is a pole without a value.
    auto kernel = [](double v, double& out) {
        out = std::isinf(v) ? 0.0 : (v == 0.0 ? kNaN : std::asinh(1.0 / v));
        return true;
    };
    return unaryFast(
        x, nt_acsch, [this](const vhValue& e) { return acsch_f(e); },
        [this](double a, double b) {
            if (std::isinf(a) || std::isinf(b))
                return vhValue(vhComplex(0.0, 0.0));
            return asinh_f(vhInteger(1) / vhComplex(a, b));
        },
        [&](double d) { return realOnly(d, kernel); }, kernel);
}

} // namespace ValueTypes
} // namespace VarnholtMath
