// The factors of a symbolic term and the comparisons built on them: which
// terms merge in a sum (equal but for the coefficient), which atoms are the
// same symbol, and where a symbol's exponent sits in a product.

#include "value/value.h"

#include "functions/elementary.h"
#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

unsigned int vhValue::multipliers(std::vector<vhValue>& list) const
{
    internal::FactorList factors;
    internal::chainFactors(*this, factors);
    list.reserve(list.size() + factors.size());
    for (const vhValue* f : factors) {
        list.push_back(*f);
        // Each atom stands for itself alone; its chain is listed before it.
        if (f->isSymbolicValue())
            list.back().resetMultiplier();
    }
    return static_cast<unsigned int>(list.size());
}

unsigned int vhValue::symbolicMultipliers(std::vector<vhValue>& list) const
{
    list.clear();
    internal::FactorList factors;
    internal::symbolicChainFactors(*this, factors);
    list.reserve(factors.size());
    for (const vhValue* f : factors) {
        list.push_back(*f);
        list.back().resetMultiplier();
    }
    return static_cast<unsigned int>(list.size());
}

unsigned int vhValue::powmultipliers(std::vector<vhValue>& list) const
{
    // A power of a product spreads over its factors: (x*y)^n is x^n y^n. The
    // chain in front of the power is not raised.
    if (!isNull() && internal::isPowerFunction(*this) && m_elements.size() == 2 && m_multiplier) {
        m_multiplier->multipliers(list);
        std::vector<vhValue> base;
        m_elements[0].multipliers(base);
        for (const vhValue& b : base)
            list.push_back(pow_f(b, m_elements[1]));
        return static_cast<unsigned int>(list.size());
    }
    return multipliers(list);
}

void vhValue::resetMultiplier()
{
    if (m_multiplier)
        *m_multiplier = vhDouble(1.0);
}

bool vhValue::charFormatEqual(const vhValue& other) const
{
    return m_valueType == tagSymbolicValue && other.m_valueType == tagSymbolicValue &&
           m_charFormats == other.m_charFormats;
}

bool vhValue::stringEqual(const vhValue& other) const
{
    if (m_valueType == tagSymbolicValue && (m_stringValue || other.m_stringValue)) {
        // Text against text: same characters, same formats.
        return m_stringValue && other.m_valueType == tagSymbolicValue && other.m_stringValue && !isNull() &&
               !other.isNull() && m_charFormats == other.m_charFormats && m_text == other.m_text;
    }
    if (!internal::isAtomTag(m_valueType) || other.m_valueType != m_valueType)
        return false;
    if (isNull() || other.isNull() || !exponent() || !other.exponent())
        return false;
    internal::FactorList mine, theirs;
    internal::symbolicChainFactors(*this, mine);
    internal::symbolicChainFactors(other, theirs);
    if (mine.size() != theirs.size())
        return false;
    // A held function ignores character formats of the symbols in its chain.
    return internal::factorListsMatch(mine, theirs, m_valueType == tagSymbolicValue, false);
}

bool vhValue::symbolicEqual(const vhValue& other) const
{
    if (!isSymbolicValue() || other.isNull() || other.m_valueType != m_valueType)
        return false;
    if (m_valueType == tagSymbolicFunction)
        return m_functionID == other.m_functionID && functionArgumentsEqual(other);
    return m_text == other.m_text;
}

bool vhValue::exponentForSymbol(const vhValue& symbol, double& exponent, bool includeUnits) const
{
    exponent = 0.0;
    if (!symbol.isSymbol() || !isSymbolicValue())
        return false;
    internal::FactorList factors;
    internal::chainFactors(*this, factors);
    for (const vhValue* f : factors) {
        const int t = f->m_valueType;
        if ((t == tagSymbolicValue || (includeUnits && t == tagUnit)) && f->m_text == symbol.m_text) {
            exponent = f->exp();
            return true;
        }
    }
    return false;
}

void vhValue::sweepNullExponents(bool on)
{
    // The flag alone is the effect: products read it when an exponent comes
    // out as zero. It goes down to everything the value holds.
    m_sweepNullExponent = on;
    switch (m_valueType) {
    case tagSymbolicValue:
    case tagSymbolicFunction:
    case tagUnit:
        if (m_multiplier)
            m_multiplier->sweepNullExponents(on);
        break;
    case tagVector:
    case tagMatrix:
        for (vhValue& e : m_elements)
            e.sweepNullExponents(on);
        break;
    case tagExpression:
        for (vhValue& t : m_expressionValues)
            t.sweepNullExponents(on);
        break;
    case tagFraction:
        if (m_numerator)
            m_numerator->sweepNullExponents(on);
        if (m_denominator)
            m_denominator->sweepNullExponents(on);
        break;
    default:
        break;
    }
}

} // namespace ValueTypes
} // namespace VarnholtMath
