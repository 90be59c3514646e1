// Equations: left side, relation, right side.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhEquation::vhEquation() { m_valueType = tagEquation; }

vhEquation::vhEquation(const vhValue& v) : vhValue(v) {}

// PENDING(equations): arithmetic of this class.
vhValue vhEquation::operator+(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhEquation::operator-(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhEquation::operator*(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhEquation::operator/(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhEquation::operator==(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhEquation, tagEquation)
VH_DEFINE_NOT_EQUAL(vhEquation, tagEquation)

} // namespace ValueTypes
} // namespace VarnholtMath
