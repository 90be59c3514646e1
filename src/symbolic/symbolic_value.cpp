// Symbols and text strings: a named atom with an exponent and a chain of
// multipliers that ends in the numeric coefficient. A product such as
// 3*x^2*y is one atom; a sum of unlike atoms becomes an expression.

#include "value/class_macros.h"
#include "value/value.h"

#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

using internal::expressionRoute;

vhSymbolicValue::vhSymbolicValue() { m_valueType = tagSymbolicValue; }

vhSymbolicValue::vhSymbolicValue(const std::string& text, bool isString, const std::vector<CharFormat>& formats)
{
    m_valueType = tagSymbolicValue;
    // There is no empty symbol; an empty string is a value.
    if (text.empty() && !isString)
        return;
    m_text = text;
    m_undefined = false;
    m_exponent = new vhInteger(1);
    m_multiplier = new vhDouble(1.0);
    m_stringValue = isString;
    if (formats.size() == text.size())
        m_charFormats = formats;
    else
        m_charFormats.assign(text.size(), 0);
}

vhSymbolicValue::vhSymbolicValue(const vhValue& v) : vhValue(v) {}

vhValue vhSymbolicValue::operator*(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator*(other);
    // Text has no product.
    if (isNull() || other.isNull() || m_stringValue || other.isString())
        return vhValue();
    const int t = other.valueType();
    if (t > tagSymbolicValue)
        return other * *this;
    if (internal::isRealZero(other))
        return vhInteger(0);
    if (!internal::hasExponentAndMultiplier(*this))
        return vhValue();
    if (t < tagSymbolicValue) {
        // An infinite factor swallows the symbol.
        if (internal::isInfiniteDouble(other))
            return *m_multiplier * other;
        vhValue copy(*this);
        if (!internal::multiplyIntoMultiplier(copy, other))
            return vhValue();
        return copy;
    }
    if (!internal::hasExponentAndMultiplier(other))
        return vhValue();
    return internal::sameTagAtomProduct(*this, other, m_sweepNullExponent);
}

vhValue vhSymbolicValue::operator/(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator/(other);
    if (isNull() || other.isNull() || m_stringValue || other.isString())
        return vhValue();
    const int t = other.valueType();
    if (t <= tagSymbolicValue) {
        if (internal::isNumberTag(t) && other.isZero())
            return vhValue();
        if (!internal::hasExponentAndMultiplier(*this))
            return vhValue();
        if (internal::isNumberTag(t))
            return internal::coefficientOver(*this, other);
        vhValue inverted(other);
        inverted.invertExponent();
        return *this * inverted;
    }
    return internal::atomOverRicher(*this, other);
}

namespace {

// The common shape of + and - on a symbol or a string.
vhValue symbolSum(const vhValue& self, const vhValue& other, bool subtract, bool selfIsString,
                  const std::string& selfText, const std::string& otherText)
{
    const bool otherIsString = other.isString();
    if (selfIsString && otherIsString && !subtract) {
        // Text joins text; the formats are not carried over.
        return vhSymbolicValue(selfText + otherText, true, std::vector<CharFormat>());
    }
    if (selfIsString || otherIsString)
        return expressionRoute(self, other, subtract);
    return internal::atomSum(self, other, subtract, tagSymbolicValue);
}

} // namespace

vhValue vhSymbolicValue::operator+(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator+(other);
    if (isNull() || other.isNull())
        return vhValue();
    return symbolSum(*this, other, false, m_stringValue, m_text, other.fullGrade().m_text);
}

vhValue vhSymbolicValue::operator-(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator-(other);
    if (isNull() || other.isNull())
        return vhValue();
    return symbolSum(*this, other, true, m_stringValue, m_text, other.fullGrade().m_text);
}

bool vhSymbolicValue::operator==(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator==(other);
    if (!m_stringValue && !other.isString())
        return internal::atomEqual(*this, other, tagSymbolicValue, true);
    // Text equals text of the same characters and formats only.
    if (!m_stringValue || isNull() || other.isNull())
        return false;
    const vhValue& o = other.fullGrade();
    return o.m_valueType == tagSymbolicValue && o.m_stringValue && o.m_charFormats == m_charFormats &&
           o.m_text == m_text;
}

VH_DEFINE_COMPOUND_OPERATORS(vhSymbolicValue, tagSymbolicValue)
VH_DEFINE_NOT_EQUAL(vhSymbolicValue, tagSymbolicValue)

} // namespace ValueTypes
} // namespace VarnholtMath
