// Between fractions and sums: a sum joined over one common denominator, and
// fractions turned into products with a reciprocal power. Also the
// coefficient of a symbol in a polynomial, which the equation solvers read.

#include "value/value.h"

#include "frame/switches.h"
#include "functions/elementary.h"
#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

void vhValue::expressionToFraction()
{
    // Nothing may reduce while the parts are built, or the fraction would
    // fall apart again. The switch is left on afterwards whatever it was:
    // callers rely on that.
    setFractionsOnPublic(false);
    std::vector<vhValue> terms = expressionValues();
    for (vhValue& t : terms)
        if (t.m_valueType != tagFraction)
            t = vhFraction(t, vhInteger(1));
    if (terms.size() < 2) {
        if (!terms.empty())
            *this = terms[0];
        setFractionsOnPublic(true);
        return;
    }
    vhValue common = vhInteger(1);
    for (const vhValue& t : terms) {
        if (!t.m_numerator || !t.m_denominator) {
            clear();
            setFractionsOnPublic(true);
            return;
        }
        common *= *t.m_denominator;
    }
    vhFraction joined(vhExpression(vhInteger(0)), common);
    for (vhValue& t : terms) {
        *t.m_numerator *= common / *t.m_denominator;
        *joined.m_numerator += *t.m_numerator;
    }
    *this = joined;
    setFractionsOnPublic(true);
}

vhValue vhValue::expressionToFractionConst() const
{
    vhValue copy(*this);
    copy.expressionToFraction();
    return copy;
}

void vhValue::fractionToExpression()
{
    if (isNull())
        return;
    switch (m_valueType) {
    case tagSymbolicValue:
    case tagSymbolicFunction:
    case tagUnit: {
        std::vector<vhValue> factors;
        multipliers(factors);
        bool converted = false;
        for (vhValue& f : factors)
            if (f.m_valueType == tagFraction) {
                f.fractionToExpression();
                converted = true;
            }
        if (!converted)
            return;
        vhValue product = factors[0];
        for (std::size_t i = 1; i < factors.size(); ++i)
            product *= factors[i];
        *this = product;
        return;
    }
    case tagVector:
    case tagMatrix:
        for (vhValue& e : m_elements)
            e.fractionToExpression();
        return;
    case tagExpression: {
        std::vector<vhValue> terms;
        terms.swap(m_expressionValues);
        vhValue sum = vhExpression();
        for (vhValue& t : terms) {
            t.fractionToExpression();
            sum += t;
        }
        *this = expressionToValue(sum);
        return;
    }
    case tagFraction: {
        const vhValue product = *m_numerator * pow_f(*m_denominator, vhInteger(-1));
        *this = product;
        return;
    }
    default:
        return;
    }
}

vhValue vhValue::fractionToExpressionConst() const
{
    vhValue copy(*this);
    copy.fractionToExpression();
    return copy;
}

namespace {

// term / symbol over the terms that hold the symbol; firstDegree refuses a
// quotient that still holds it.
vhValue coefficientOf(const vhValue& v, const vhValue& symbol, bool firstDegree)
{
    const std::vector<vhValue> terms = v.expressionValues();
    vhValue sum;
    std::size_t found = 0;
    for (const vhValue& t : terms) {
        if (!t.containSymbol(symbol))
            continue;
        const vhValue q = t / symbol;
        if (firstDegree && q.containSymbol(symbol))
            return vhValue();
        sum = found == 0 ? q : sum + q;
        ++found;
    }
    if (found == 0)
        return vhInteger(0);
    return sum;
}

} // namespace

vhValue vhValue::coefficientForSymbol(const vhValue& symbol) const
{
    if (!symbol.isSymbol())
        return vhValue();
    return coefficientOf(*this, symbol, false);
}

vhValue vhValue::coefficientFirstDegreeForSymbol(const vhValue& symbol) const
{
    if (!symbol.isSymbol())
        return vhExpression();
    return coefficientOf(*this, symbol, true);
}

} // namespace ValueTypes
} // namespace VarnholtMath
