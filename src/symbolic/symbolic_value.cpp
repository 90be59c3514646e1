// Symbols and text strings: a named atom with an exponent and a chain of
// multipliers that ends in the numeric coefficient.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

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

// PENDING(symbolic atoms): the merge rules of symbols.
vhValue vhSymbolicValue::operator+(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhSymbolicValue::operator-(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhSymbolicValue::operator*(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhSymbolicValue::operator/(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhSymbolicValue::operator==(const vhValue& other) const
{
    if (m_valueType != tagSymbolicValue)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagSymbolicValue)
        return false;
    return m_text == other.m_text && m_stringValue == other.m_stringValue && m_charFormats == other.m_charFormats;
}

VH_DEFINE_COMPOUND_OPERATORS(vhSymbolicValue, tagSymbolicValue)
VH_DEFINE_NOT_EQUAL(vhSymbolicValue, tagSymbolicValue)

unsigned int vhValue::multipliers(std::vector<vhValue>& list) const
{
    list.push_back(*this);
    return static_cast<unsigned int>(list.size());
}

unsigned int vhValue::symbolicMultipliers(std::vector<vhValue>& list) const
{
    list.clear();
    return 0;
}

void vhValue::invertExponent() {}

} // namespace ValueTypes
} // namespace VarnholtMath
