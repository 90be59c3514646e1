// Physical units as symbolic atoms: 3 metres is the unit m with multiplier
// 3. Units multiply, divide and add by the rules of symbols, with the unit
// outermost in a product, and a temperature never falls below absolute zero.

#include "value/class_macros.h"
#include "value/value.h"

#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using internal::expressionRoute;

vhUnit::vhUnit() { m_valueType = tagUnit; }

vhUnit::vhUnit(const vhValue& v) : vhValue(v) {}

namespace {

// The lowest multiplier of a temperature unit: absolute zero.
void clampTemperature(const std::string& symbol, vhValue& multiplier)
{
    if (multiplier.isNull() || !internal::isRealNumberTag(multiplier.valueType()))
        return;
    const double m = multiplier.toDouble();
    if (symbol == "K") {
        if (m < 0.0)
            multiplier = vhDouble(0.0);
    } else if (symbol == "\xCB\x9A" "F") {
        if (m < -459.67)
            multiplier = vhDouble(-459.67);
    } else if (symbol == "\xCB\x9A" "C") {
        if (m < -273.15)
            multiplier = vhDouble(-273.15);
    }
}

vhValue unitSum(const vhValue& self, const vhValue& other, bool subtract)
{
    if (other.isString())
        return expressionRoute(self, other, subtract);
    return internal::atomSum(self, other, subtract, tagUnit);
}

} // namespace

vhValue vhUnit::operator+(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator+(other);
    if (isNull() || other.isNull())
        return vhValue();
    return unitSum(*this, other, false);
}

vhValue vhUnit::operator-(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator-(other);
    if (isNull() || other.isNull())
        return vhValue();
    return unitSum(*this, other, true);
}

vhValue vhUnit::operator*(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator*(other);
    if (isNull() || other.isNull() || other.isString())
        return vhValue();
    const int t = other.valueType();
    if (t > tagUnit)
        return other * *this;
    if (!internal::hasExponentAndMultiplier(*this))
        return vhValue();
    vhValue copy(*this);
    if (internal::isNumberTag(t)) {
        // A number is a quantity of the unit: it goes to the multiplier, also
        // a zero, so that 0 m stays a length.
        if (!internal::multiplyIntoMultiplier(copy, other))
            return vhValue();
        clampTemperature(m_text, *copy.m_multiplier);
        return copy;
    }
    if (t != tagUnit) {
        // Symbols and functions join the chain behind the unit.
        if (!internal::multiplyIntoMultiplier(copy, other))
            return vhValue();
        return copy;
    }
    if (!internal::hasExponentAndMultiplier(other))
        return vhValue();
    return internal::sameTagAtomProduct(*this, other, m_sweepNullExponent);
}

vhValue vhUnit::operator/(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator/(other);
    if (isNull() || other.isNull() || other.isString())
        return vhValue();
    const int t = other.valueType();
    if (t <= tagUnit) {
        if (internal::isNumberTag(t) && other.isZero())
            return vhValue();
        if (!internal::hasExponentAndMultiplier(*this))
            return vhValue();
        if (internal::isNumberTag(t)) {
            vhValue copy = internal::coefficientOver(*this, other);
            if (!copy.isNull())
                clampTemperature(m_text, *copy.multiplier());
            return copy;
        }
        vhValue inverted(other);
        inverted.invertExponent();
        return *this * inverted;
    }
    return internal::atomOverRicher(*this, other);
}

bool vhUnit::operator==(const vhValue& other) const
{
    if (m_valueType != tagUnit)
        return vhValue::operator==(other);
    // Symbol, exponent and multiplier, factor by factor.
    return internal::atomEqual(*this, other, tagUnit, false);
}

VH_DEFINE_COMPOUND_OPERATORS(vhUnit, tagUnit)
VH_DEFINE_NOT_EQUAL(vhUnit, tagUnit)

} // namespace ValueTypes
} // namespace VarnholtMath
