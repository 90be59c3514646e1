// The operators of vhValue itself. Arithmetic and equality are dispatchers:
// the left operand is copied into a temporary of the class for its tag and
// that class's operator runs, so a caller never needs to know the dynamic
// class of an object. The integer-only operators, orderings and logical
// operators live here too, since no class overrides them.

#include <cstdint>

#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// Runs f on a temporary of the class that belongs to v's tag, for the tags
// that have arithmetic (1 to 12); any other tag gives the undefined value.
template <class F> vhValue withArithmeticClass(const vhValue& v, F f)
{
    switch (v.valueType()) {
    case tagBoolean: { vhBoolean t(v); return f(t); }
    case tagInteger: { vhInteger t(v); return f(t); }
    case tagDouble: { vhDouble t(v); return f(t); }
    case tagComplex: { vhComplex t(v); return f(t); }
    case tagSymbolicValue: { vhSymbolicValue t(v); return f(t); }
    case tagSymbolicFunction: { vhSymbolicFunction t(v); return f(t); }
    case tagUnit: { vhUnit t(v); return f(t); }
    case tagVector: { vhVector t(v); return f(t); }
    case tagMatrix: { vhMatrix t(v); return f(t); }
    case tagExpression: { vhExpression t(v); return f(t); }
    case tagFraction: { vhFraction t(v); return f(t); }
    case tagEquation: { vhEquation t(v); return f(t); }
    default: return vhValue();
    }
}

template <class F> bool withEqualityClass(const vhValue& v, F f)
{
    switch (v.valueType()) {
    case tagBoolean: { vhBoolean t(v); return f(t); }
    case tagInteger: { vhInteger t(v); return f(t); }
    case tagDouble: { vhDouble t(v); return f(t); }
    case tagComplex: { vhComplex t(v); return f(t); }
    case tagSymbolicValue: { vhSymbolicValue t(v); return f(t); }
    case tagSymbolicFunction: { vhSymbolicFunction t(v); return f(t); }
    case tagUnit: { vhUnit t(v); return f(t); }
    case tagVector: { vhVector t(v); return f(t); }
    case tagMatrix: { vhMatrix t(v); return f(t); }
    case tagExpression: { vhExpression t(v); return f(t); }
    case tagFraction: { vhFraction t(v); return f(t); }
    case tagEquation: { vhEquation t(v); return f(t); }
    case tagInterval: { vhInterval t(v); return f(t); }
    case tagInfiniteSolution: { vhInfiniteSolution t(v); return f(t); }
    case tagObject: { vhObject t(v); return f(t); }
    case tagChannel: { vhChannel t(v); return f(t); }
    case tagWidget: { vhWidget t(v); return f(t); }
    case tagFile: { vhFile t(v); return f(t); }
    default: return false;
    }
}

} // namespace

// --- dispatchers -------------------------------------------------------------

// Arrays skip the temporary: their operators read only the record, and a
// copy of a large array would cost more than the operation itself.
vhValue vhValue::operator+(const vhValue& other) const
{
    if (m_valueType == tagVector)
        return vectorArithmetic(other, '+');
    if (m_valueType == tagMatrix)
        return matrixArithmetic(other, '+');
    return withArithmeticClass(*this, [&](const vhValue& t) { return t + other; });
}

vhValue vhValue::operator-(const vhValue& other) const
{
    if (m_valueType == tagVector)
        return vectorArithmetic(other, '-');
    if (m_valueType == tagMatrix)
        return matrixArithmetic(other, '-');
    return withArithmeticClass(*this, [&](const vhValue& t) { return t - other; });
}

vhValue vhValue::operator*(const vhValue& other) const
{
    if (m_valueType == tagVector)
        return vectorArithmetic(other, '*');
    if (m_valueType == tagMatrix)
        return matrixArithmetic(other, '*');
    return withArithmeticClass(*this, [&](const vhValue& t) { return t * other; });
}

vhValue vhValue::operator/(const vhValue& other) const
{
    if (m_valueType == tagVector)
        return vectorArithmetic(other, '/');
    if (m_valueType == tagMatrix)
        return matrixArithmetic(other, '/');
    return withArithmeticClass(*this, [&](const vhValue& t) { return t / other; });
}

bool vhValue::operator==(const vhValue& other) const
{
    // Two undefined values are equal; undefined against anything else is not.
    if (m_valueType == tagNull)
        return other.m_valueType == tagNull;
    if (other.m_valueType == tagNull)
        return false;
    return withEqualityClass(*this, [&](const vhValue& t) { return t == other; });
}

bool vhValue::operator!=(const vhValue& other) const { return !(*this == other); }

// The compound forms compute the binary operator of the value's own class
// and assign the result, which may change the tag.
vhValue& vhValue::operator+=(const vhValue& other)
{
    *this = *this + other;
    return *this;
}

vhValue& vhValue::operator-=(const vhValue& other)
{
    *this = *this - other;
    return *this;
}

vhValue& vhValue::operator*=(const vhValue& other)
{
    *this = *this * other;
    return *this;
}

vhValue& vhValue::operator/=(const vhValue& other)
{
    *this = *this / other;
    return *this;
}

vhValue& vhValue::operator%=(const vhValue& other)
{
    *this = *this % other;
    return *this;
}

vhValue& vhValue::operator<<=(const vhValue& other)
{
    *this = *this << other;
    return *this;
}

vhValue& vhValue::operator>>=(const vhValue& other)
{
    *this = *this >> other;
    return *this;
}

vhValue& vhValue::operator&=(const vhValue& other)
{
    *this = *this & other;
    return *this;
}

vhValue& vhValue::operator^=(const vhValue& other)
{
    *this = *this ^ other;
    return *this;
}

vhValue& vhValue::operator|=(const vhValue& other)
{
    *this = *this | other;
    return *this;
}

// --- integer-only operators --------------------------------------------------

vhValue vhValue::operator%(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger())
        return vhValue();
    const std::int32_t l = toInt();
    const std::int32_t r = other.toInt();
    if (r == 0)
        return vhValue();
    // -2147483648 % -1 has no 32-bit quotient; its remainder is 0.
    if (r == -1)
        return vhInteger(0);
    return vhInteger(l % r);
}

vhValue vhValue::operator<<(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger() || other.toInt() < 0)
        return vhValue();
    // The shift count is taken modulo 32.
    const std::uint32_t shifted = static_cast<std::uint32_t>(toInt()) << (other.toInt() & 31);
    return vhInteger(static_cast<std::int32_t>(shifted));
}

vhValue vhValue::operator>>(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger() || other.toInt() < 0)
        return vhValue();
    return vhInteger(toInt() >> (other.toInt() & 31));
}

vhValue vhValue::operator&(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger())
        return vhValue();
    return vhInteger(toInt() & other.toInt());
}

vhValue vhValue::operator^(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger())
        return vhValue();
    return vhInteger(toInt() ^ other.toInt());
}

vhValue vhValue::operator|(const vhValue& other) const
{
    if (!isInteger() || !other.isInteger())
        return vhValue();
    return vhInteger(toInt() | other.toInt());
}

// --- element-wise forms --------------------------------------------------------

namespace {
bool isArrayTag(const vhValue& v) { return v.valueType() == tagVector || v.valueType() == tagMatrix; }
} // namespace

vhValue vhValue::multiply(const vhValue& other) const
{
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0].multiply(other);
    if (isNull() || other.isNull())
        return vhValue();
    // Two vectors or two matrices go element by element and need one shape;
    // every other pair, a vector with a matrix included, is the plain operator.
    if (isArrayTag(*this) && other.valueType() == m_valueType) {
        if (matrixRows() != other.matrixRows() || matrixColumns() != other.matrixColumns())
            return vhValue();
        if (m_valueType == tagVector)
            return vhVector(*this).multiply(other);
        return vhMatrix(*this).multiply(other);
    }
    return *this * other;
}

vhValue vhValue::divide(const vhValue& other) const
{
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0].divide(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (isArrayTag(*this) && other.valueType() == m_valueType) {
        if (matrixRows() != other.matrixRows() || matrixColumns() != other.matrixColumns())
            return vhValue();
        if (m_valueType == tagVector)
            return vhVector(*this).divide(other);
        return vhMatrix(*this).divide(other);
    }
    return *this / other;
}

// --- orderings and logic -------------------------------------------------------

namespace {

bool isRealScalarTag(const vhValue& v) { return v.valueType() >= tagBoolean && v.valueType() <= tagDouble; }

} // namespace

bool vhValue::operator<(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return false;
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0] < other;
    if (!isRealScalarTag(*this))
        return false;
    const vhValue* r = &other;
    if (other.m_valueType == tagExpression && other.m_expressionValues.size() == 1)
        r = &other.m_expressionValues[0];
    if (!isRealScalarTag(*r) || r->isNull())
        return false;
    // A difference, so that two infinities of the same sign are not ordered.
    return r->toDouble() - toDouble() > 0;
}

bool vhValue::operator>(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return false;
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0] > other;
    if (!isRealScalarTag(*this))
        return false;
    const vhValue* r = &other;
    if (other.m_valueType == tagExpression && other.m_expressionValues.size() == 1)
        r = &other.m_expressionValues[0];
    if (!isRealScalarTag(*r) || r->isNull())
        return false;
    return toDouble() - r->toDouble() > 0;
}

bool vhValue::operator<=(const vhValue& other) const { return *this == other || *this < other; }
bool vhValue::operator>=(const vhValue& other) const { return *this == other || *this > other; }

vhValue vhValue::GreaterThen(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0].GreaterThen(other);
    if (!isRealScalarTag(*this))
        return vhValue();
    const vhValue* r = &other;
    if (other.m_valueType == tagExpression && other.m_expressionValues.size() == 1)
        r = &other.m_expressionValues[0];
    if (!isRealScalarTag(*r) || r->isNull())
        return vhValue();
    return vhBoolean(toDouble() > r->toDouble());
}

vhValue vhValue::LessThen(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    if (m_valueType == tagExpression && m_expressionValues.size() == 1)
        return m_expressionValues[0].LessThen(other);
    if (!isRealScalarTag(*this))
        return vhValue();
    const vhValue* r = &other;
    if (other.m_valueType == tagExpression && other.m_expressionValues.size() == 1)
        r = &other.m_expressionValues[0];
    if (!isRealScalarTag(*r) || r->isNull())
        return vhValue();
    return vhBoolean(toDouble() < r->toDouble());
}

vhValue vhValue::EqualTo(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    return vhBoolean(*this == other);
}

vhValue vhValue::NotEqualTo(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    return vhBoolean(*this != other);
}

vhValue vhValue::GreaterThenOrEqalTo(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    if (*this == other)
        return vhBoolean(true);
    return GreaterThen(other);
}

vhValue vhValue::LessThenOrEqalTo(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return vhValue();
    if (*this == other)
        return vhBoolean(true);
    return LessThen(other);
}

bool vhValue::operator&&(const vhValue& other) const
{
    if (isNull() || other.isNull())
        return false;
    return toBool() && other.toBool();
}

bool vhValue::operator||(const vhValue& other) const
{
    // A null operand makes the whole disjunction false, even true || null.
    if (isNull() || other.isNull())
        return false;
    return toBool() || other.toBool();
}

// --- families on plain C++ values ----------------------------------------------

bool vhValue::operator==(std::complex<double> c) const { return *this == vhComplex(c); }

#define VH_FAMILY(TYPE, CLASS)                                                                 \
    vhValue& vhValue::operator=(TYPE v) { return *this = CLASS(v); }                         \
    vhValue vhValue::operator+(TYPE v) const { return *this + CLASS(v); }                    \
    vhValue vhValue::operator-(TYPE v) const { return *this - CLASS(v); }                    \
    vhValue vhValue::operator*(TYPE v) const { return *this * CLASS(v); }                    \
    vhValue vhValue::operator/(TYPE v) const { return *this / CLASS(v); }                    \
    vhValue& vhValue::operator+=(TYPE v) { return *this += CLASS(v); }                       \
    vhValue& vhValue::operator-=(TYPE v) { return *this -= CLASS(v); }                       \
    vhValue& vhValue::operator*=(TYPE v) { return *this *= CLASS(v); }                       \
    vhValue& vhValue::operator/=(TYPE v) { return *this /= CLASS(v); }                       \
    bool vhValue::operator!=(TYPE v) const { return *this != CLASS(v); }

namespace {
// A std::string in these families is a symbol, not a text string.
vhSymbolicValue symbolFromText(const std::string& s) { return vhSymbolicValue(s, false, std::vector<CharFormat>()); }
} // namespace

VH_FAMILY(int, vhInteger)
VH_FAMILY(double, vhDouble)
VH_FAMILY(std::complex<double>, vhComplex)
VH_FAMILY(bool, vhBoolean)
VH_FAMILY(const std::string&, symbolFromText)
#undef VH_FAMILY

bool vhValue::operator==(int v) const { return *this == vhInteger(v); }
bool vhValue::operator==(double v) const { return *this == vhDouble(v); }
bool vhValue::operator==(bool v) const { return *this == vhBoolean(v); }
bool vhValue::operator==(const std::string& v) const { return *this == symbolFromText(v); }

} // namespace ValueTypes
} // namespace VarnholtMath
