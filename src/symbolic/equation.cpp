// Equations: a left side, a relation and a right side. Arithmetic works on
// both sides with opposite operations, and an equation whose left side
// becomes a plain symbol is solved: the result is its right side.

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

vhEquation::vhEquation() { m_valueType = tagEquation; }

vhEquation::vhEquation(const vhValue& v) : vhValue(v) {}

vhEquation::vhEquation(const vhValue& left, const std::string& equationType, const vhValue& right)
{
    // Without a relation the value stays without its tag.
    if (equationType.empty())
        return;
    m_valueType = tagEquation;
    m_undefined = false;
    m_numerator = new vhExpression(left);
    m_denominator = new vhExpression(right);
    m_equationType = equationType;
}

namespace {
vhValue apply(const vhValue& side, const vhValue& v, char op)
{
    switch (op) {
    case '+': return side + v;
    case '-': return side - v;
    case '*': return side * v;
    default: return side / v;
    }
}

char inverse(char op)
{
    switch (op) {
    case '+': return '-';
    case '-': return '+';
    case '*': return '/';
    default: return '*';
    }
}
} // namespace

vhValue vhEquation::sidesWith(const vhValue& v, char op) const
{
    if (isNull() || v.isNull())
        return vhValue();
    // Values richer than a fraction do not enter an equation.
    if (v.valueType() > tagFraction)
        return vhValue();
    vhValue left = apply(*m_numerator, v, op);
    vhValue right = apply(*m_denominator, v, inverse(op));
    if (op == '*' || op == '/') {
        left = expressionToValue(left);
        right = expressionToValue(right);
    }
    if (left.isSymbol())
        return right;
    return vhEquation(left, m_equationType, right);
}

vhValue vhEquation::operator+(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator+(other);
    return sidesWith(other, '+');
}

vhValue vhEquation::operator-(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator-(other);
    return sidesWith(other, '-');
}

vhValue vhEquation::operator*(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator*(other);
    return sidesWith(other, '*');
}

vhValue vhEquation::operator/(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator/(other);
    return sidesWith(other, '/');
}

bool vhEquation::operator==(const vhValue& other) const
{
    if (m_valueType != tagEquation)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagEquation)
        return false;
    return *m_numerator == *other.numerator() && *m_denominator == *other.denominator() &&
           m_equationType == other.equationType();
}

VH_DEFINE_COMPOUND_OPERATORS(vhEquation, tagEquation)
VH_DEFINE_NOT_EQUAL(vhEquation, tagEquation)

} // namespace ValueTypes
} // namespace VarnholtMath
