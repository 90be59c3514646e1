// Quotients that do not divide out.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhFraction::vhFraction() { m_valueType = tagFraction; }

vhFraction::vhFraction(const vhValue& v) : vhValue(v) {}

vhFraction::vhFraction(const vhValue& numerator, const vhValue& denominator)
{
    m_valueType = tagFraction;
    m_undefined = false;
    m_numerator = new vhValue(numerator);
    m_denominator = new vhValue(denominator);
}

// PENDING(fractions): arithmetic of this class.
vhValue vhFraction::operator+(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhFraction::operator-(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhFraction::operator*(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhFraction::operator/(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhFraction::operator==(const vhValue& other) const
{
    if (m_valueType != tagFraction)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhFraction, tagFraction)
VH_DEFINE_NOT_EQUAL(vhFraction, tagFraction)

} // namespace ValueTypes
} // namespace VarnholtMath
