// Changing the exponent of a value: the reciprocal that division multiplies
// by, the reset to the first power, and raising to a given power, which for a
// symbolic power turns the value into a held pow.

#include "value/value.h"

#include "frame/node_type.h"
#include "functions/elementary.h"
#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

void vhValue::invertExponent()
{
    switch (m_valueType) {
    case tagBoolean:
    case tagInteger:
    case tagDouble:
        if (!isNull())
            *this = vhDouble(1.0) / *this;
        break;
    case tagComplex:
        if (!isNull())
            *this = vhInteger(1) / *this;
        break;
    case tagSymbolicValue:
    case tagSymbolicFunction:
    case tagUnit: {
        if (isNull())
            break;
        // On a power the exponent is its second argument.
        vhValue* e = exponent();
        if (e)
            *e *= vhInteger(-1);
        if (m_multiplier)
            m_multiplier->invertExponent();
        break;
    }
    case tagVector:
    case tagMatrix:
        if (m_numeric) {
            if (!m_numericData)
                break;
            // Numeric storage inverts each stored part on its own, the
            // imaginary half of complex storage included.
            const std::size_t n = m_numericComplex ? 2 * std::size_t(m_numericSize) : m_numericSize;
            for (std::size_t i = 0; i < n; ++i)
                m_numericData[i] = 1.0 / m_numericData[i];
        } else if (!m_image) {
            for (vhValue& e : m_elements)
                e.invertExponent();
        }
        break;
    case tagExpression:
        for (vhValue& t : m_expressionValues)
            t.invertExponent();
        break;
    case tagFraction:
        if (m_numerator)
            m_numerator->invertExponent();
        if (m_denominator)
            m_denominator->invertExponent();
        break;
    default:
        break;
    }
}

void vhValue::resetExponent()
{
    switch (m_valueType) {
    case tagSymbolicValue:
    case tagSymbolicFunction:
    case tagUnit:
        if (isNull())
            break;
        if (internal::isPowerFunction(*this) && m_elements.size() == 2) {
            // A power at the first power is its base.
            vhValue base(m_elements[0]);
            vhValue result = m_multiplier ? base * *m_multiplier : base;
            *this = result;
            break;
        }
        if (m_exponent)
            *m_exponent = vhInteger(1);
        else
            m_exponent = new vhInteger(1);
        break;
    case tagVector:
    case tagMatrix:
        if (!m_numeric && !m_image)
            for (vhValue& e : m_elements)
                e.resetExponent();
        break;
    case tagExpression:
        for (vhValue& t : m_expressionValues)
            t.resetExponent();
        break;
    case tagFraction:
        if (m_numerator)
            m_numerator->resetExponent();
        if (m_denominator)
            m_denominator->resetExponent();
        break;
    default:
        break;
    }
}

void vhValue::setExponent(const vhValue& e)
{
    if (isNull() || e.isNull())
        return;
    if (internal::isPowerFunction(*this)) {
        if (m_elements.size() != 2)
            return;
        if (m_exponent)
            *m_exponent = vhInteger(1);
        m_elements[1] = e;
        if (e.isInteger() && e.toDouble() == 1.0) {
            vhValue base(m_elements[0]);
            base.resetExponent();
            vhValue result = m_multiplier ? base * *m_multiplier : base;
            *this = result;
        }
        return;
    }
    if (isSymbolicValue()) {
        if (!m_exponent) {
            m_exponent = new vhValue(e);
            return;
        }
        if (!e.isSymbolic()) {
            *m_exponent = e;
            return;
        }
        // A symbolic power can't sit in the exponent field: the atom becomes
        // a held pow of itself.
        resetExponent();
        vhValue power = internal::makeFunction(nt_pow, {*this, vhExpression(e)});
        *this = power;
        return;
    }
    if (!e.isSymbolic()) {
        vhValue power = pow_f(*this, e);
        *this = power;
        return;
    }
    // One stays one whatever the power.
    if (*this == vhDouble(1.0))
        return;
    vhValue power = internal::makeFunction(nt_pow, {*this, vhExpression(e)});
    *this = power;
}

} // namespace ValueTypes
} // namespace VarnholtMath
