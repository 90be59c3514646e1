// Exponentials and logarithms. exp of a symbolic argument is held as a power
// of e, so that the rules of powers apply to it; the logarithms move a
// negative real argument to the complex plane, and a real zero has no
// logarithm at all.

#include <cmath>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"
#include "functions/vector_math.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace elementary {

std::complex<double> complexLog(double a, double b)
{
    const double ma = std::fabs(a), mb = std::fabs(b);
    const double m = ma > mb ? ma : mb;
    if (m == 0.0 || std::isnan(m))
        return std::complex<double>(kNaN, kNaN);
    const double t = (ma > mb ? mb : ma) / m;
    return std::complex<double>(std::log(m) + 0.5 * std::log1p(t * t), std::atan2(b, a));
}

namespace {

vhValue complexLogValue(double a, double b)
{
    const std::complex<double> l = complexLog(a, b);
    return complexOrUndefined(l.real(), l.imag());
}

// The real logarithm of a block; a zero has none (NaN). A negative number,
// whose logarithm is complex, leaves the reals.
void logBlock(const double* x, double* out, std::size_t n)
{
    vectormath::log(x, out, n);
    for (std::size_t i = 0; i < n; ++i)
        if (x[i] == 0.0)
            out[i] = kNaN;
}

// A negative number's logarithm is complex.
inline bool leavesLog(double x) { return x < 0.0; }

} // namespace

vhValue expValue(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic()) {
        if (innerTag(x) == tagUnit)
            return symbolicCall(nt_exp, {x});
        return symbolicCall(nt_pow, {vhDouble(2.718281828459045), x});
    }
    return unaryBlock(
        x, nt_exp, [](const vhValue& e) { return expValue(e); },
        [](double a, double b) { return complexOrUndefined(std::exp(a) * std::cos(b), std::exp(a) * std::sin(b)); },
        [](double d) { return doubleOrUndefined(vectormath::exp1(d)); }, vectormath::exp, [](double) { return false; });
}

vhValue logValue(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(nt_log, {x});
    // The move of a negative real stands before the array test; it only
    // concerns real numbers.
    double d;
    if (realOf(x, d) && d < 0.0)
        return complexLogValue(d, 0.0);
    return unaryBlock(
        x, nt_log, [](const vhValue& e) { return logValue(e); }, complexLogValue,
        [](double r) {
            if (leavesLog(r))
                return complexLogValue(r, 0.0);
            double out;
            logBlock(&r, &out, 1);
            return doubleOrUndefined(out);
        },
        logBlock, [](double v) { return leavesLog(v); });
}

} // namespace elementary

using namespace elementary;

vhValue vhMath::exp_f(const vhValue& x) { return expValue(x); }

vhValue vhMath::exp2_f(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic()) {
        if (innerTag(x) == tagUnit)
            return symbolicCall(nt_exp2, {x});
        return symbolicCall(nt_pow, {vhInteger(2), x});
    }
    auto kernel = [](double v, double& out) {
        out = std::exp2(v);
        return true;
    };
    return unaryFast(
        x, nt_exp2, [this](const vhValue& e) { return exp2_f(e); },
        [](double a, double b) {
            const double m = std::exp(a * kLn2), angle = b * kLn2;
            return complexOrUndefined(m * std::cos(angle), m * std::sin(angle));
        },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::expm1_f(const vhValue& x)
{
    // A plain difference, not a precise expm1: the family computes exp(x) - 1.
    auto kernel = [](double v, double& out) {
        out = std::exp(v) - 1.0;
        return true;
    };
    return unaryFast(
        x, nt_expm1, [this](const vhValue& e) { return expm1_f(e); },
        [](double a, double b) { return complexOrUndefined(std::exp(a) * std::cos(b) - 1.0, std::exp(a) * std::sin(b)); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::log_f(const vhValue& x) { return logValue(x); }

namespace {

// log10 and log2 share the frame of log: the complex logarithm scaled.
template <class RealLog>
vhValue scaledLog(vhMath* math, vhValue (vhMath::*self)(const vhValue&), const vhValue& x, int id, double scale,
                  RealLog realLog)
{
    auto complexPart = [scale](double a, double b) {
        const std::complex<double> l = complexLog(a, b);
        return complexOrUndefined(l.real() / scale, l.imag() / scale);
    };
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(id, {x});
    double d;
    if (realOf(x, d) && d < 0.0)
        return complexPart(d, 0.0);
    auto kernel = [realLog](double v, double& out) {
        if (v < 0.0)
            return false;
        out = v == 0.0 ? kNaN : realLog(v);
        return true;
    };
    return unaryFast(
        x, id, [math, self](const vhValue& e) { return (math->*self)(e); }, complexPart,
        [&](double r) { return realByKernel(r, kernel, [&](double v) { return complexPart(v, 0.0); }); }, kernel);
}

} // namespace

vhValue vhMath::log10_f(const vhValue& x)
{
    return scaledLog(this, &vhMath::log10_f, x, nt_log10, kLn10, [](double v) { return std::log10(v); });
}

vhValue vhMath::log2_f(const vhValue& x)
{
    return scaledLog(this, &vhMath::log2_f, x, nt_log2, kLn2, [](double v) { return std::log(v) / kLn2; });
}

vhValue vhMath::log1p_f(const vhValue& x)
{
    auto kernel = [](double v, double& out) {
        if (v < -1.0)
            return false;
        out = std::log1p(v);
        return true;
    };
    auto complexPart = [](double a, double b) { return complexLogValue(a + 1.0, b); };
    return unaryFast(
        x, nt_log1p, [this](const vhValue& e) { return log1p_f(e); }, complexPart,
        [&](double d) { return realByKernel(d, kernel, [&](double v) { return complexPart(v, 0.0); }); }, kernel);
}

vhValue vhMath::logb_f(const vhValue& x)
{
    // The binary exponent of a real number: -inf for 0, +inf for infinities.
    auto kernel = [](double v, double& out) {
        out = std::logb(v);
        return true;
    };
    return unaryFast(
        x, nt_logb, [this](const vhValue& e) { return logb_f(e); }, [](double, double) { return vhValue(); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::logax_f(const vhValue& a, const vhValue& x)
{
    if (a.isNull() || x.isNull())
        return vhValue();
    if (a.isSymbolic() || x.isSymbolic())
        return symbolicCall(nt_logax, {a, x});
    if (isArray(a) || isArray(x)) {
        if (!aligned(a, x))
            return vhValue();
        vhValue ha, hx;
        return mapPairs(arrayOf(a, ha), arrayOf(x, hx),
                        [this](const vhValue& p, const vhValue& q) { return logax_f(p, q); });
    }
    // A base of 0 or 1 has no logarithms.
    double base;
    if (realOf(a, base) && (base == 0.0 || base == 1.0))
        return vhValue();
    if (!(a.isDouble() || a.isComplex()) || !(x.isDouble() || x.isComplex()))
        return vhValue();
    return logValue(x) / logValue(a);
}

} // namespace ValueTypes
} // namespace VarnholtMath
