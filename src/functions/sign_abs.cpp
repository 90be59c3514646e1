// Absolute value and sign. The absolute value of a complex number is a real
// number; that of a Boolean stays a whole number. A unit is no whole to wrap:
// its factors are taken one by one, so that |5 m| is 5 |m|.

#include <cmath>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace elementary {

namespace {

bool absKernel(double x, double& out)
{
    out = std::fabs(x);
    return true;
}

double signOf(double x) { return x > 0.0 ? 1.0 : (x < 0.0 ? -1.0 : 0.0); }

bool signKernel(double x, double& out)
{
    out = signOf(x);
    return true;
}

bool isEvenWhole(const vhValue* e)
{
    if (!e || !e->isInteger())
        return false;
    return e->toInt() % 2 == 0;
}

// |u| of a unit with its coefficient: factor by factor. A factor with an even
// power is never negative and needs no wrapper.
vhValue absOfUnit(const vhValue& x)
{
    std::vector<vhValue> factors;
    x.multipliers(factors);
    vhValue product = vhInteger(1);
    for (std::size_t i = factors.size(); i > 0; --i) {
        const vhValue& m = factors[i - 1];
        vhValue factor;
        if (m.isSymbolicValue())
            factor = isEvenWhole(m.exponent()) ? m : symbolicCall(nt_abs, {m});
        else
            factor = absValue(m, nt_abs);
        product = product * factor;
        if (product.isNull())
            return vhValue();
    }
    return product;
}

} // namespace

vhValue absValue(const vhValue& x, int wholeId)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic()) {
        if (innerTag(x) == tagUnit)
            return absOfUnit(x);
        return symbolicCall(wholeId, {x});
    }
    if (innerTag(x) == tagBoolean)
        return vhInteger(x.toBool() ? 1 : 0);
    return unaryFast(
        x, wholeId, [wholeId](const vhValue& e) { return absValue(e, wholeId); },
        [](double a, double b) {
            // The square root of a*a + b*b, as sqrt computes it.
            double out;
            rootReal(a * a + b * b, 2, false, out);
            return doubleOrUndefined(out);
        },
        [](double d) { return realByKernel(d, absKernel, [](double) { return vhValue(); }); }, absKernel);
}

vhValue sgnValue(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic()) {
        // An even power is never negative.
        const vhValue* e = x.exponent();
        if (e && e->isDouble() && std::floor(e->toDouble() * 0.5) == e->toDouble() * 0.5)
            return vhInteger(1);
        return symbolicCall(nt_sgn, {x});
    }
    return unaryFast(
        x, nt_sgn, [](const vhValue& e) { return sgnValue(e); },
        [](double a, double b) {
            if (a == 0.0 && b == 0.0)
                return vhValue(vhComplex(0.0, 0.0));
            return vhValue(vhComplex(a, b)) / absValue(vhComplex(a, b), nt_abs);
        },
        [](double d) { return realByKernel(d, signKernel, [](double) { return vhValue(); }); }, signKernel);
}

} // namespace elementary

using namespace elementary;

vhValue vhMath::abs_f(const vhValue& x) { return absValue(x, nt_abs); }

vhValue vhMath::fabs_f(const vhValue& x) { return absValue(x, nt_fabs); }

vhValue vhMath::sgn_f(const vhValue& x) { return sgnValue(x); }

vhValue vhMath::sgnIm_f(const vhValue& x)
{
    // The sign of the imaginary part; a real number gives its negated sign.
    auto kernel = [](double v, double& out) {
        out = v > 0.0 ? -1.0 : (v < 0.0 ? 1.0 : 0.0);
        return true;
    };
    return unaryFast(
        x, nt_sgnIm, [this](const vhValue& e) { return sgnIm_f(e); },
        [](double, double b) { return vhValue(vhDouble(b > 0.0 ? 1.0 : (b < 0.0 ? -1.0 : 0.0))); },
        [&](double d) { return realByKernel(d, kernel, [](double) { return vhValue(); }); }, kernel);
}

vhValue vhMath::epsilon_f() { return vhDouble(2.220446049250313e-16); }

vhValue vhMath::epsilon_f(const vhValue& x) { return abs_f(x); }

vhValue vhMath::infinity_f() { return vhDouble(elementwise::kInf); }

} // namespace ValueTypes
} // namespace VarnholtMath
