// Powers and roots. pow works elementwise: a matrix to a number is the matrix
// of the powers, not a matrix product. A whole exponent multiplies exactly,
// with the value operators, so that exact types survive; a fractional one goes
// through exp(y log x), with a snap of results that fall just below a whole
// number. Roots of negative numbers are real for odd orders and the principal
// complex root for even ones.

#include <cmath>
#include <cstdint>

#include "frame/math.h"
#include "functions/elementary_core.h"
#include "functions/elementwise_skeleton.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace elementary {

namespace {

bool isWhole32(double y) { return double(internal::cutToInt32(y)) == y; }

// x^k for a whole k by repeated multiplication from 1.0, or repeated division
// for a negative k: the very operations of the real value operators, so the
// bits are theirs. Once the product is 0 or infinite, or when x is 1 or -1,
// each further step can only change its sign, so the loop stops early.
double wholePowerReal(double x, std::int64_t k)
{
    const bool divide = k < 0;
    std::int64_t steps = divide ? -k : k;
    if (divide && x == 0.0)
        return kNaN;
    double p = 1.0;
    while (steps > 0) {
        p = divide ? p / x : p * x;
        --steps;
        if (std::isnan(p))
            return kNaN;
        if (p == 0.0 || std::isinf(p) || std::fabs(x) == 1.0) {
            if (x < 0.0 && (steps & 1))
                p = -p;
            return p;
        }
    }
    return p;
}

// Parts of a complex product or quotient this close to zero are noise, as in
// the complex value operators.
double flushTiny(double v) { return ((v > 0.0 && v < 1e-15) || (v < 0.0 && v > -1e-15)) ? 0.0 : v; }

// The same repeated product for a complex x, step by step as the complex
// value operators compute it; false when a step has no result. A product that
// comes back to its first value repeats itself, so whole periods are skipped
// (the powers of i).
bool wholePowerComplex(double a, double b, std::int64_t k, double& re, double& im)
{
    const bool divide = k < 0;
    std::int64_t steps = divide ? -k : k;
    if (steps == 0) {
        re = 1.0;
        im = 0.0;
        return true;
    }
    const double den = a * a + b * b;
    if (divide) {
        // 1.0 / x: the real 1 is raised to the complex 1 + 0i first.
        if (den == 0.0)
            return false;
        re = flushTiny((1.0 * a + 0.0 * b) / den);
        im = flushTiny((0.0 * a - 1.0 * b) / den);
    } else {
        re = a * 1.0;
        im = b * 1.0;
    }
    const double firstRe = re, firstIm = im;
    std::int64_t done = 1;
    for (--steps; steps > 0; --steps) {
        if (std::isnan(re) || std::isnan(im))
            return false;
        const double c = re, d = im;
        if (divide) {
            re = flushTiny((c * a + d * b) / den);
            im = flushTiny((d * a - c * b) / den);
        } else {
            re = flushTiny(c * a - d * b);
            im = flushTiny(c * b + d * a);
        }
        ++done;
        if (re == 0.0 && im == 0.0)
            break;
        if (re == firstRe && im == firstIm) {
            // The period is done - 1 steps.
            steps = (steps - 1) % (done - 1) + 1;
            done = 1;
        }
    }
    return !std::isnan(re) && !std::isnan(im);
}

// exp(y log x) for a positive real x, and the snap of a result that lies just
// below a whole number: pow(8, 1/3) is exactly 2. A result just above a whole
// number is kept as it is.
double fractionalPower(double x, double y)
{
    const double r = std::exp(y * std::log(x));
    const double c = std::ceil(r);
    const double d = c - r;
    if (d > 0.0 && d < 1e-14)
        return c;
    return r;
}

vhValue complexPowerByLog(const vhValue& x, const vhValue& y)
{
    const vhValue r = expValue(y * logValue(x));
    const vhValue c = ceilValue(r);
    const vhValue d = c - r;
    if (d > vhInteger(0) && d < vhDouble(1e-14))
        return c;
    return r;
}

// The product of factors, multiplied from the last to the first onto the
// integer 1.
vhValue productOf(const std::vector<vhValue>& factors)
{
    vhValue p = vhInteger(1);
    for (std::size_t i = factors.size(); i > 0; --i) {
        p = p * factors[i - 1];
        if (p.isNull())
            return vhValue();
    }
    return p;
}

// A power of a symbolic value with a symbolic exponent: each factor's
// exponent is multiplied by y.
vhValue symbolicPowerOfAtom(const vhValue& x, const vhValue& y)
{
    if (innerTag(x) == tagUnit)
        return vhValue();
    std::vector<vhValue> factors;
    x.multipliers(factors);
    for (vhValue& m : factors) {
        const vhValue* e = m.exponent();
        const vhValue exponent = e ? *e : vhValue(vhInteger(1));
        const vhValue product = vhExpression(y * exponent);
        if (product.isNull())
            return vhValue();
        if (product.isInteger() && product.toInt() == 1)
            m.resetExponent();
        else
            m.setExponent(product);
    }
    return productOf(factors);
}

// A power of a symbolic value with a numeric exponent: factor by factor, so
// that the square root of a^2 is abs(a).
vhValue numericPowerOfAtom(const vhValue& x, const vhValue& y, const PowerRules& rules)
{
    std::vector<vhValue> factors;
    x.multipliers(factors);
    for (vhValue& m : factors) {
        if (m.isSymbolicValue()) {
            const vhValue* field = m.exponent();
            if (!field || field->isNull())
                return vhValue();
            const vhValue e = *field;
            bool evenRoot = false;
            if (e.isInteger() && y.isDouble() && y.toDouble() != 0.0) {
                const double ed = e.toDouble();
                evenRoot = std::fabs(ed) == std::fabs(1.0 / y.toDouble()) && isWhole32(ed * 0.5);
            }
            if (evenRoot) {
                vhValue base(m);
                base.resetExponent();
                m = powValue(absValue(base, nt_abs), e * y, rules);
                if (m.isNull())
                    return vhValue();
            } else {
                // The exponent is multiplied in place; on a held power that is
                // its second argument.
                const vhValue product = e * y;
                if (product.isNull())
                    return vhValue();
                *m.exponent() = product;
            }
        } else {
            vhValue p = powValue(m, y, rules);
            if (p.isNull())
                return vhValue();
            if (p.valueType() == tagComplex && p.complexIm() == 0.0)
                p = vhDouble(p.complexRe());
            m = p;
        }
    }
    return productOf(factors);
}

} // namespace

bool powReal(double x, double y, bool limitsRulesOn, double& out)
{
    if (std::isnan(x) || std::isnan(y)) {
        out = kNaN;
        return true;
    }
    if (x == 0.0) {
        // 0^0 has no value; a negative power of 0 is infinite only by the
        // rules of limits.
        if (y > 0.0)
            out = 0.0;
        else if (y < 0.0)
            out = limitsRulesOn ? kInf : kNaN;
        else
            out = kNaN;
        return true;
    }
    if (y == 0.0) {
        out = std::isinf(x) ? kNaN : 1.0;
        return true;
    }
    if (isWhole32(y)) {
        out = wholePowerReal(x, internal::cutToInt32(y));
        return true;
    }
    if (x < 0.0)
        return false;
    out = fractionalPower(x, y);
    return true;
}

bool rootReal(double x, int n, bool limitsRulesOn, double& out)
{
    if (std::isnan(x) || n == 0) {
        out = kNaN;
        return true;
    }
    if (x == 0.0) {
        out = n < 0 ? kNaN : 0.0;
        return true;
    }
    if (x > 0.0)
        return powReal(x, 1.0 / n, limitsRulesOn, out);
    if ((n & 1) == 0)
        return false;
    const int an = n < 0 ? -n : n;
    const double m = std::pow(-x, 1.0 / an);
    out = n > 0 ? -m : -1.0 / m;
    return true;
}

namespace {

// The principal n-th root of a complex number, or of a negative real one,
// whose real part is cleaned of the noise of cos(pi/2): sqrt(-4) is exactly
// 0 + 2i.
vhValue complexRoot(double a, double b, int n, bool negativeReal)
{
    const double an = n < 0 ? -double(n) : double(n);
    double re, im;
    if (negativeReal) {
        const double m = std::pow(-a, 1.0 / an);
        re = std::cos(kPi / an) * m;
        if ((re > 0.0 && re < 1e-15) || (re < 0.0 && re > -1e-15))
            re = 0.0;
        im = std::sin(kPi / an) * m;
    } else {
        const double m = std::pow(std::sqrt(a * a + b * b), 1.0 / an);
        const double p = std::atan2(b, a) / an;
        re = std::cos(p) * m;
        im = std::sin(p) * m;
    }
    if (std::isnan(re) || std::isnan(im))
        return vhValue();
    if (n < 1) {
        // The reciprocal as a plain complex quotient: its parts are results,
        // not noise to be cleaned.
        const std::complex<double> r = 1.0 / std::complex<double>(re, im);
        return complexOrUndefined(r.real(), r.imag());
    }
    return vhComplex(re, im);
}

vhValue powerOfWholeExponent(const vhValue& x, const vhValue& y, const PowerRules& rules)
{
    const std::int64_t k = y.toInt();
    double a, b;
    if (x.valueType() != tagExpression) {
        if (realOf(x, a))
            return doubleOrUndefined(wholePowerReal(a, k));
        if (complexOf(x, a, b)) {
            if (k == 0)
                return vhDouble(1.0);
            double re, im;
            if (!wholePowerComplex(a, b, k, re, im))
                return vhValue();
            return vhComplex(re, im);
        }
    }
    // Symbolic values multiply with their own operators. A negative power of
    // an expression is held while fractions are off.
    const std::int64_t steps = k < 0 ? -k : k;
    vhValue p = vhDouble(1.0);
    if (k < 0 && x.valueType() == tagExpression && !rules.fractionsOn) {
        for (std::int64_t i = 0; i < steps && !p.isNull(); ++i)
            p = p * x;
        if (p.isNull())
            return vhValue();
        return symbolicCall(nt_pow, {p, vhInteger(-1)});
    }
    for (std::int64_t i = 0; i < steps && !p.isNull(); ++i)
        p = k < 0 ? p / x : p * x;
    return p;
}

} // namespace

vhValue powValue(const vhValue& x, const vhValue& y, const PowerRules& rules)
{
    // A text string is no number and no symbol.
    if (x.isNull() || y.isNull() || x.isString() || y.isString())
        return vhValue();
    const bool xArray = isArray(x), yArray = isArray(y);
    if (xArray && yArray)
        return vhValue();
    if (yArray) {
        vhValue holder;
        const vhValue& ys = arrayOf(y, holder);
        double base;
        if (realOf(x, base) && ys.numericValues() && !ys.numericImValues() && x.valueType() != tagExpression) {
            return mapReal(
                ys, [&](double e, double& out) { return powReal(base, e, rules.limitsRulesOn, out); },
                [&](const vhValue& e) { return powValue(x, e, rules); });
        }
        return mapElements(ys, [&](const vhValue& e) { return powValue(x, e, rules); });
    }

    if (y.isSymbolic()) {
        if (!x.isSymbolicValue()) {
            if (isRealZero(x) || isScalarInfinity(x)) {
                if (y.isPositive())
                    return x;
                if (isRealZero(x))
                    return vhDouble(kInf);
                return vhInteger(0);
            }
            // A number to a symbolic power is held as a power; 1 stays 1.
            vhValue power(x);
            power.setExponent(y);
            return power;
        }
        return symbolicPowerOfAtom(x, y);
    }

    double a, b;
    if (y.isComplex()) {
        if (isRealZero(x))
            return y.complexRe() == 0.0 ? vhValue() : vhValue(vhDouble(0.0));
        if (realOf(x, a) && std::isinf(a))
            return vhValue();
        if (!x.isSymbolicValue())
            return expValue(y * logValue(x));
        if (y.isZero())
            return vhInteger(1);
        if (y == vhInteger(1))
            return x;
        return numericPowerOfAtom(x, y, rules);
    }

    if (x.isSymbolic() && y.isDouble()) {
        if (y.toDouble() == 0.0)
            return vhInteger(1);
        if (y.toDouble() == 1.0)
            return x;
        if (x.isSymbolicValue())
            return numericPowerOfAtom(x, y, rules);
        if (xArray) {
            vhValue holder;
            return mapElements(arrayOf(x, holder), [&](const vhValue& e) { return powValue(e, y, rules); });
        }
        if (!y.isInteger()) {
            if (x.valueType() == tagExpression && x.expressionValuesSize() == 1)
                return powValue(expressionToValue(x), y, rules);
            return symbolicCall(nt_pow, {x, y});
        }
        return powerOfWholeExponent(x, y, rules);
    }

    if (!y.isDouble())
        return vhValue();
    const double e = y.toDouble();
    if (xArray) {
        vhValue holder;
        const vhValue& xs = arrayOf(x, holder);
        auto element = [&](const vhValue& v) { return powValue(v, y, rules); };
        if (xs.numericValues() && !xs.numericImValues())
            return mapReal(
                xs, [&](double v, double& out) { return powReal(v, e, rules.limitsRulesOn, out); }, element);
        return mapElements(xs, element);
    }

    // Scalars. A negative whole power of an expression is held while fractions
    // are off, even of an expression that is a number.
    if (realOf(x, a) && x.valueType() == tagExpression && !rules.fractionsOn && y.isInteger() && e < 0.0 && a != 0.0)
        return powerOfWholeExponent(x, y, rules);
    if (realOf(x, a)) {
        double out;
        if (powReal(a, e, rules.limitsRulesOn, out)) {
            if (a != 0.0 && e == 0.0 && !std::isnan(out))
                return vhInteger(1);
            return doubleOrUndefined(out);
        }
        // A fractional power of a negative number is complex.
        return powValue(vhComplex(a, 0.0), y, rules);
    }
    if (!x.isComplex() && !x.isSymbolic())
        return vhValue();
    if (y.isInteger())
        return powerOfWholeExponent(x, y, rules);
    if (complexOf(x, a, b))
        return complexPowerByLog(x, y);
    return vhValue();
}

vhValue rootValue(const vhValue& x, const vhValue& n, const PowerRules& rules)
{
    if (x.isNull() || n.isNull() || isArray(n))
        return vhValue();
    if (n.isSymbolic())
        return powValue(x, vhExpression(vhInteger(1) / n), rules);
    double order;
    if (!realOf(n, order))
        return vhValue();
    if (x.isSymbolic() && !isArray(x)) {
        if (order == 0.0)
            return vhValue();
        if (order == 1.0)
            return x;
        return powValue(x, vhDouble(1.0 / order), rules);
    }
    if (isArray(x)) {
        vhValue holder;
        const vhValue& xs = arrayOf(x, holder);
        auto element = [&](const vhValue& v) { return rootValue(v, n, rules); };
        if (n.isInteger() && order != 0.0 && xs.numericValues() && !xs.numericImValues()) {
            const int k = n.toInt();
            return mapReal(
                xs, [&](double v, double& out) { return rootReal(v, k, rules.limitsRulesOn, out); }, element);
        }
        return mapElements(xs, element);
    }
    if (!n.isInteger())
        return powValue(x, vhDouble(1.0 / order), rules);
    const int k = n.toInt();
    if (k == 0)
        return vhValue();
    double a, b;
    if (realOf(x, a)) {
        if (a == 0.0)
            return k < 0 ? vhValue() : vhValue(vhDouble(0.0));
        if (a > 0.0)
            return powValue(x, vhDouble(1.0 / k), rules);
        double out;
        if (rootReal(a, k, rules.limitsRulesOn, out))
            return doubleOrUndefined(out);
        return complexRoot(a, 0.0, k, true);
    }
    if (complexOf(x, a, b))
        return complexRoot(a, b, k, false);
    return vhValue();
}

} // namespace elementary

using namespace elementary;

vhValue vhMath::pow_f(const vhValue& x, const vhValue& y)
{
    return powValue(x, y, PowerRules{limitsRulesOn(), fractionsOn()});
}

vhValue vhMath::root_f(const vhValue& x, const vhValue& n)
{
    return rootValue(x, n, PowerRules{limitsRulesOn(), fractionsOn()});
}

vhValue vhMath::sqrt_f(const vhValue& x) { return root_f(x, vhInteger(2)); }

vhValue vhMath::cbrt_f(const vhValue& x) { return root_f(x, vhInteger(3)); }

} // namespace ValueTypes
} // namespace VarnholtMath
