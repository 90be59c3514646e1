// Quotients that do not divide out. While the fractions switch is on, every
// fraction reduces as soon as it is made or changed: a zero denominator, equal
// parts, single terms, exact polynomial division and common factors are tried
// in turn, and the value may turn into a number or an expression. With the
// switch off nothing reduces.

#include <cfloat>
#include <cmath>
#include <limits>

#include "value/class_macros.h"
#include "value/value.h"

#include "frame/switches.h"
#include "symbolic/division_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

vhFraction::vhFraction() { m_valueType = tagFraction; }

vhFraction::vhFraction(const vhValue& v) : vhValue(v) {}

vhFraction::vhFraction(const vhValue& numerator, const vhValue& denominator)
{
    m_valueType = tagFraction;
    m_undefined = false;
    m_numerator = new vhExpression(numerator);
    m_denominator = new vhExpression(denominator);
    divide();
}

namespace {

bool exact(const vhValue& quotient, const vhValue& remainder) { return !quotient.isNull() && remainder.isNull(); }

// Both parts divided by d, when both divide exactly.
bool divideBoth(vhValue& numerator, vhValue& denominator, const vhValue& d)
{
    vhValue r1, r2;
    const vhValue qd = denominator.division(d, r1);
    if (!exact(qd, r1))
        return false;
    const vhValue qn = numerator.division(d, r2);
    if (!exact(qn, r2))
        return false;
    numerator = vhExpression(qn);
    denominator = vhExpression(qd);
    return true;
}

bool hasParts(const vhValue& v) { return v.numerator() && v.denominator(); }

} // namespace

void vhFraction::divide()
{
    if (!fractionsOn() || m_valueType != tagFraction || !m_numerator || !m_denominator || m_numerator->isNull() ||
        m_denominator->isNull())
        return;
    internal::RecursionGuard guard;
    if (guard.exceeded())
        return;
    // The term of a one-term expression, repeatedly.
    auto singleTerm = [](const vhValue& v) -> const vhValue& {
        const vhValue* p = &v;
        while (p->m_valueType == tagExpression && p->m_expressionValues.size() == 1)
            p = &p->m_expressionValues[0];
        return *p;
    };

    // A zero denominator: under the rules of limits a number over zero is
    // infinite, whatever its sign; otherwise there is no value. 0/0 never has
    // one.
    if (m_denominator->isZero()) {
        const double n = m_numerator->toDouble();
        if (limitsRulesOn() && !m_numerator->isZero() && !std::isnan(n) && n >= -DBL_MAX && n <= DBL_MAX)
            *this = vhDouble(std::numeric_limits<double>::infinity());
        else
            clear();
        return;
    }
    // Zero over anything else is exactly 0, so that A times its inverse
    // cancels to the identity.
    if (m_numerator->isZero()) {
        *this = vhInteger(0);
        return;
    }
    if (*m_numerator == *m_denominator) {
        *this = vhInteger(1);
        return;
    }
    if (m_numerator->expressionValuesSize() == 1 && m_denominator->expressionValuesSize() == 1) {
        const vhValue quotient = singleTerm(*m_numerator) / singleTerm(*m_denominator);
        *this = quotient;
        return;
    }
    {
        vhValue remainder;
        const vhValue quotient = m_numerator->division(*m_denominator, remainder);
        if (exact(quotient, remainder)) {
            *this = vhExpression(quotient);
            return;
        }
    }

    // A binomial on one side: its bases may divide both sides, as x - 1 does
    // in (x^2 - 1)/(x - 1)^2.
    auto twoTerms = [](const vhValue* v) { return v->valueType() == tagExpression && v->expressionValuesSize() == 2; };
    if (twoTerms(m_denominator)) {
        vhValue d(*m_denominator);
        d.resetExponent();
        divideBoth(*m_numerator, *m_denominator, d);
    } else if (twoTerms(m_numerator)) {
        vhValue d(*m_numerator);
        d.resetExponent();
        divideBoth(*m_numerator, *m_denominator, d);
    }

    // Common factors of both sides cancel.
    vhValue n(singleTerm(*m_numerator));
    vhValue m(singleTerm(*m_denominator));
    if (m.valueType() != tagExpression)
        return;
    const std::vector<vhValue> f = m.factorize();
    if (f.empty())
        return;
    std::vector<vhValue> g;
    const bool numeratorIsSum = n.valueType() == tagExpression;
    if (numeratorIsSum)
        g = n.factorize();
    else if (n.isSymbolicValue())
        n.symbolicMultipliers(g);
    else
        return;
    for (const vhValue& fi : f)
        for (const vhValue& gj : g)
            if (!internal::RecursionGuard::spent() && (numeratorIsSum ? gj == fi : gj.symbolicEqual(fi))) {
                n /= fi;
                m /= fi;
            }
    *m_numerator = vhExpression(n);
    *m_denominator = vhExpression(m);
}

// Fractions add only over equal denominators. Any other pair gives no value,
// which tells a sum to keep both as separate terms: 1/x + 1/y stays two
// terms until expressionToFraction joins them.
vhValue vhFraction::operator+(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator+(other);
    if (isNull() || other.valueType() != tagFraction || other.isNull() || *m_denominator != *other.denominator())
        return vhValue();
    vhFraction copy(*this);
    *copy.m_numerator = *m_numerator + *other.numerator();
    copy.divide();
    return copy;
}

vhValue vhFraction::operator-(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator-(other);
    if (isNull() || other.valueType() != tagFraction || other.isNull() || *m_denominator != *other.denominator())
        return vhValue();
    vhFraction copy(*this);
    *copy.m_numerator = *m_numerator - *other.numerator();
    copy.divide();
    return copy;
}

vhValue vhFraction::operator*(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator*(other);
    if (!hasParts(*this) || other.isNull())
        return vhValue();
    vhFraction copy(*this);
    if (other.valueType() == tagFraction) {
        if (!hasParts(other))
            return vhValue();
        *copy.m_numerator *= *other.numerator();
        *copy.m_denominator *= *other.denominator();
    } else {
        *copy.m_numerator *= other;
    }
    copy.divide();
    return copy;
}

vhValue vhFraction::operator/(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator/(other);
    if (!hasParts(*this) || other.isNull())
        return vhValue();
    vhFraction copy(*this);
    if (other.valueType() == tagFraction) {
        if (!hasParts(other))
            return vhValue();
        *copy.m_numerator *= *other.denominator();
        *copy.m_denominator *= *other.numerator();
    } else {
        *copy.m_denominator *= other;
    }
    copy.divide();
    return copy;
}

// Parts compare as stored: 2/4 equals 1/2 only when both were reduced.
bool vhFraction::operator==(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator==(other);
    if (!hasParts(*this) || other.valueType() != tagFraction || !hasParts(other))
        return false;
    return *m_numerator == *other.numerator() && *m_denominator == *other.denominator();
}

VH_DEFINE_COMPOUND_OPERATORS(vhFraction, tagFraction)
VH_DEFINE_NOT_EQUAL(vhFraction, tagFraction)

} // namespace ValueTypes
} // namespace VarnholtMath
