// Held, unevaluated calls of catalogue functions: sin(x), pow(2, x). A held
// function is a symbolic atom with a coefficient chain and an exponent, so
// 3*sin(x)^2 is one value. Its arithmetic carries the identities of
// trigonometry and logarithms while the trigonometric rules are on.

#include "value/class_macros.h"
#include "value/value.h"
#include <cstdio>
#include <exception>

#include "frame/catalogue.h"
#include "frame/switches.h"
#include "symbolic/atom_internal.h"
#include "symbolic/function_rules.h"

namespace VarnholtMath {
namespace ValueTypes {

using internal::expressionRoute;
using internal::isPowerFunction;

vhSymbolicFunction::vhSymbolicFunction() { m_valueType = tagSymbolicFunction; }

vhSymbolicFunction::vhSymbolicFunction(int functionID, const std::vector<vhValue>& arguments)
{
    // A count that differs from the catalogue is a programming error of the
    // caller, the one case in which building a value throws.
    if (arguments.size() != numberOfFunctionArguments(static_cast<NodeType>(functionID))) {
        std::printf("Error: number of arguments in function %d is not aqual with numer in numberOffunctionArguments()\n",
                    functionID);
        std::fflush(stdout);
        throw std::exception();
    }
    m_valueType = tagSymbolicFunction;
    m_undefined = false;
    m_functionID = functionID;
    m_elements = arguments;
    m_exponent = new vhInteger(1);
    m_multiplier = new vhDouble(1.0);
}

vhSymbolicFunction::vhSymbolicFunction(const vhValue& v) : vhValue(v) {}

// --- comparison and classification --------------------------------------------

bool vhValue::functionEqual(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction || other.m_valueType != tagSymbolicFunction || isNull() ||
        other.isNull())
        return false;
    if (m_functionID != other.m_functionID || m_elements.size() != other.m_elements.size())
        return false;
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        if (m_elements[i] != other.m_elements[i])
            return false;
    return true;
}

bool vhValue::functionArgumentsEqual(const vhValue& other) const
{
    // The function itself is not compared: sin(x) and cos(x) have equal
    // arguments.
    if (m_valueType != tagSymbolicFunction || other.m_valueType != tagSymbolicFunction || isNull() ||
        other.isNull())
        return false;
    if (m_elements.size() != other.m_elements.size())
        return false;
    for (std::size_t i = 0; i < m_elements.size(); ++i)
        if (m_elements[i] != other.m_elements[i])
            return false;
    return true;
}

bool vhValue::isDerivativeFunction() const
{
    if (isNull() || m_valueType != tagSymbolicFunction)
        return false;
    switch (m_functionID) {
    case nt_pow: case nt_abs: case nt_acos: case nt_asin: case nt_atan: case nt_cos: case nt_cosh:
    case nt_fabs: case nt_log: case nt_log10: case nt_log2: case nt_log1p: case nt_sin: case nt_sinh:
    case nt_tan: case nt_cot: case nt_tanh: case nt_acosh: case nt_asinh: case nt_atanh: case nt_coth:
    case nt_acot: case nt_acoth: case nt_logax: case nt_sec: case nt_csc: case nt_asec: case nt_acsc:
    case nt_sech: case nt_csch: case nt_asech: case nt_acsch:
        return true;
    default:
        return false;
    }
}

bool vhValue::isIntegrativeFunction() const
{
    if (isNull() || m_valueType != tagSymbolicFunction)
        return false;
    switch (m_functionID) {
    case nt_pow: case nt_cos: case nt_cosh: case nt_sin: case nt_sinh: case nt_acosh: case nt_asinh:
        return true;
    default:
        return false;
    }
}

bool vhValue::functionOversized() const
{
    if (m_valueType != tagSymbolicFunction)
        return false;
    for (const vhValue& a : m_elements)
        if (a.vectorSize() > 10)
            return true;
    return false;
}

// --- arithmetic ------------------------------------------------------------------

namespace {

// The common shape of + and - on a held function.
vhValue functionSum(const vhValue& self, const vhValue& other, bool subtract)
{
    const int t = other.valueType();
    if (internal::isAtomTag(t) && t != tagSymbolicFunction)
        return expressionRoute(self, other, subtract);
    if (t > tagSymbolicFunction) {
        if (!subtract)
            return other + self;
        if (internal::isArrayTag(t))
            return (other * vhInteger(-1)) + self;
        return self.increaseToType(other) - other;
    }
    if (t == tagSymbolicFunction) {
        if (trigonometricRulesOn()) {
            if (subtract) {
                if (internal::differenceTakesSumRules(self, other))
                    return self + (other * vhInteger(-1));
            } else {
                vhValue rewritten;
                if (internal::trigonometricSum(self, other, rewritten))
                    return rewritten;
            }
        }
        return internal::sameTagAtomSum(self, other, subtract);
    }
    if (t == tagComplex)
        return expressionRoute(self, other, subtract);
    if (other.isZero())
        return self;
    return expressionRoute(self, other, subtract);
}

// A power of base and exponent with the given coefficient chain, or null.
vhValue powerWithMultiplier(int id, const vhValue& base, const vhValue& exponent, const vhValue& multiplier)
{
    if (base.isNull() || exponent.isNull() || multiplier.isNull())
        return vhValue();
    vhValue power = internal::makeFunction(id, {base, exponent});
    if (power.isNull() || !power.multiplier())
        return vhValue();
    *power.multiplier() = multiplier;
    return power;
}

} // namespace

vhValue vhSymbolicFunction::operator+(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator+(other);
    if (isNull() || other.isNull())
        return vhValue();
    return functionSum(*this, other, false);
}

vhValue vhSymbolicFunction::operator-(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator-(other);
    if (isNull() || other.isNull())
        return vhValue();
    return functionSum(*this, other, true);
}

vhValue vhSymbolicFunction::operator*(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator*(other);
    // Text has no product, neither does an undefined factor.
    if (isNull() || other.isNull() || other.isString())
        return vhValue();
    const int t = other.valueType();
    if (t > tagSymbolicFunction)
        return other * *this;
    if (internal::isRealZero(other))
        return vhInteger(0);
    if (!internal::hasExponentAndMultiplier(*this))
        return vhValue();
    if (t == tagSymbolicFunction && trigonometricRulesOn()) {
        vhValue rewritten;
        if (internal::trigonometricProduct(*this, other, rewritten))
            return rewritten;
    }

    vhValue copy(*this);
    const bool power = isPowerFunction(*this) && m_elements.size() == 2;
    vhValue r(other);
    if (t < tagSymbolicFunction) {
        if (internal::isInfiniteDouble(other))
            return *m_multiplier * other;
        if (!isPowerFunction(*this)) {
            if (!internal::multiplyIntoMultiplier(copy, other))
                return vhValue();
            return copy;
        }
        if (!power)
            return vhValue();
        const vhValue& base = m_elements[0];
        const vhValue& e = m_elements[1];
        if (e.isInteger() && e.toInt() == -1) {
            // 1/x times 2 folds into the base: 1/(x/2).
            return powerWithMultiplier(m_functionID, base / other, e, *m_multiplier);
        }
        if (other.exponent()) {
            // A symbol meets a power as a power of itself.
            vhValue b(other);
            b.resetExponent();
            r = internal::makeFunction(nt_pow, {b, *other.exponent()});
        } else if (base != other) {
            if (!internal::multiplyIntoMultiplier(copy, other))
                return vhValue();
            return copy;
        } else {
            // 2^x * 2 becomes 2^x * 2^1, which merges below.
            r = internal::makeFunction(nt_pow, {other, vhExpression(vhInteger(1))});
        }
    }
    if (!internal::hasExponentAndMultiplier(r))
        return vhValue();
    const std::size_t l1 = internal::chainLength(copy);
    const std::size_t l2 = internal::chainLength(r);
    if (l1 < l2)
        return r * copy;
    if (l2 > 2) {
        std::vector<vhValue> factors;
        r.multipliers(factors);
        for (const vhValue& f : factors) {
            copy *= f;
            if (copy.isNull())
                return vhValue();
        }
        return copy;
    }

    bool mergeable = false;
    const bool otherPower = isPowerFunction(r) && r.m_elements.size() == 2;
    if (!isPowerFunction(copy) && !isPowerFunction(r)) {
        mergeable = copy.functionEqual(r);
    } else if (power && otherPower) {
        const vhValue& a0 = m_elements[0];
        const vhValue& a1 = m_elements[1];
        const vhValue& b0 = r.m_elements[0];
        const vhValue& b1 = r.m_elements[1];
        if (a0 == b0) {
            mergeable = true;
        } else if (a0.isSymbolic() && b0.isSymbolic()) {
            mergeable = false;
        } else if (a1 == b1) {
            // 2^x 3^x = 6^x
            return powerWithMultiplier(m_functionID, a0 * b0, a1, *m_multiplier * *r.m_multiplier);
        } else if (a1 == b1 * vhInteger(-1)) {
            // 2^x 3^-x = (2/3)^x
            if (a1.isNegative())
                return powerWithMultiplier(m_functionID, b0 / a0, b1, *m_multiplier * *r.m_multiplier);
            return powerWithMultiplier(m_functionID, a0 / b0, a1, *m_multiplier * *r.m_multiplier);
        }
    }
    if (!mergeable) {
        if (!internal::multiplyIntoMultiplier(copy, r))
            return vhValue();
        return copy;
    }
    if (!internal::multiplyIntoMultiplier(copy, *r.multiplier()))
        return vhValue();
    vhValue* e = copy.exponent();
    *e += *r.exponent();
    if (e->isNull())
        return vhValue();
    if (e->isZero()) {
        if (m_sweepNullExponent) {
            vhValue coefficient(*copy.multiplier());
            return coefficient;
        }
        return copy;
    }
    // A power at the first power is its base.
    if (isPowerFunction(copy) && e->toDouble() == 1.0)
        return *copy.multiplier() * copy.m_elements[0];
    return copy;
}

vhValue vhSymbolicFunction::operator/(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator/(other);
    if (isNull() || other.isNull())
        return vhValue();
    const int t = other.valueType();
    if (t <= tagSymbolicFunction) {
        if (internal::isNumberTag(t) && other.isZero())
            return vhValue();
        if (!internal::hasExponentAndMultiplier(*this))
            return vhValue();
        if (t == tagSymbolicFunction && trigonometricRulesOn()) {
            vhValue rewritten;
            if (internal::trigonometricQuotient(*this, other, rewritten))
                return rewritten;
        }
        if (internal::isNumberTag(t))
            return internal::coefficientOver(*this, other);
        vhValue inverted(other);
        inverted.invertExponent();
        return *this * inverted;
    }
    // A unit divides as the other atoms do: times its reciprocal.
    return internal::atomOverRicher(*this, other);
}

bool vhSymbolicFunction::operator==(const vhValue& other) const
{
    if (m_valueType != tagSymbolicFunction)
        return vhValue::operator==(other);
    return internal::atomEqual(*this, other, tagSymbolicFunction, true);
}

VH_DEFINE_COMPOUND_OPERATORS(vhSymbolicFunction, tagSymbolicFunction)
VH_DEFINE_NOT_EQUAL(vhSymbolicFunction, tagSymbolicFunction)

} // namespace ValueTypes
} // namespace VarnholtMath
