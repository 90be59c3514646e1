// Sums: a flat list of terms.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhExpression::vhExpression() { m_valueType = tagExpression; }

vhExpression::vhExpression(const vhValue& v)
{
    if (v.valueType() == tagExpression) {
        setValue(v);
        return;
    }
    m_valueType = tagExpression;
    if (!v.isNull())
        m_expressionValues.push_back(v);
}

vhExpression::vhExpression(const vhExpression& v) : vhValue(v) {}

vhExpression::vhExpression(const std::string& symbol)
{
    m_valueType = tagExpression;
    if (!symbol.empty())
        m_expressionValues.push_back(vhSymbolicValue(symbol, false, std::vector<CharFormat>()));
}

std::vector<vhValue> vhExpression::factorize() const { return std::vector<vhValue>(); }
std::vector<vhValue> vhExpression::simplify() const { return std::vector<vhValue>(); }

vhValue expressionToValue(const vhValue& value)
{
    if (value.valueType() == tagExpression) {
        if (value.expressionValuesSize() == 1)
            return value.expressionValues()[0];
        if (value.expressionValuesSize() == 0)
            return vhInteger(0);
    }
    return value;
}

// PENDING(expressions): arithmetic of this class.
vhValue vhExpression::operator+(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhExpression::operator-(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhExpression::operator*(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhExpression::operator/(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhExpression::operator==(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhExpression, tagExpression)
VH_DEFINE_NOT_EQUAL(vhExpression, tagExpression)

} // namespace ValueTypes
} // namespace VarnholtMath
