// Physical units as symbolic atoms.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhUnit::vhUnit() { m_valueType = tagUnit; }

vhUnit::vhUnit(const vhValue& v) : vhValue(v) {}

// PENDING(units): arithmetic of this class.
vhValue vhUnit::operator+(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhUnit::operator-(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhUnit::operator*(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhUnit::operator/(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhUnit::operator==(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhUnit, tagUnit)
VH_DEFINE_NOT_EQUAL(vhUnit, tagUnit)

} // namespace ValueTypes
} // namespace VarnholtMath
