// Arithmetic and equality of the four scalar classes: boolean, integer,
// double and complex. A right operand with a richer tag takes the operation
// over; otherwise the left operand's class computes, and the result starts as
// a copy of the left operand so that its decimal places and marks carry over.

#include <cmath>
#include <cstdint>
#include <limits>

#include "value/class_macros.h"
#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// Parts of a complex product or quotient this close to zero are rounding
// noise; they are flushed so that, say, i * i is exactly -1.
double flushTiny(double x)
{
    if ((x > 0.0 && x < 1e-15) || (x < 0.0 && x > -1e-15))
        return 0.0;
    return x;
}

bool isArray(const vhValue& v) { return v.valueType() == tagVector || v.valueType() == tagMatrix; }

// Division of a scalar by a right operand of a richer tag.
vhValue divideByRicher(const vhValue& left, const vhValue& right)
{
    if (left.isNull())
        return left;
    if (right.isNull())
        return vhValue();
    if (isArray(right)) {
        // Element by element, whatever the matrix setting: 1 / [2, 4] is
        // [0.5, 0.25].
        vhValue result(right);
        const unsigned int n = right.vectorSize();
        double* data = result.numericValues();
        if (data && !result.numericImValues() && left.isDouble()) {
            // A real number over real numbers, on the raw block: each quotient
            // as the scalar one, where a zero element has no result (NaN).
            const double l = left.toDouble();
            for (unsigned int i = 0; i < n; ++i)
                data[i] = data[i] == 0.0 ? std::numeric_limits<double>::quiet_NaN() : l / data[i];
            return result;
        }
        for (unsigned int i = 0; i < n; ++i)
            result.setValue(left / right.value(i), i);
        return result;
    }
    const int r = right.valueType();
    if (r >= tagSymbolicValue && r <= tagUnit) {
        vhValue inverted(right);
        inverted.invertExponent();
        return inverted * left;
    }
    if (r == tagFraction)
        return vhFraction(left * *right.denominator(), *right.numerator());
    return left.increaseToType(right) / right;
}

vhValue withBool(const vhValue& left, bool b)
{
    vhValue r(left);
    r.setBool(b);
    return r;
}

vhValue withInt(const vhValue& left, std::int32_t i)
{
    vhValue r(left);
    r.setInt(i);
    return r;
}

vhValue withDouble(const vhValue& left, double d)
{
    vhValue r(left);
    r.setDouble(d);
    return r;
}

vhValue withComplex(const vhValue& left, double re, double im)
{
    vhValue r(left);
    r.setComplex(re, im);
    return r;
}

// 32-bit integer arithmetic that wraps around instead of overflowing.
std::int32_t wrapAdd(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}
std::int32_t wrapSub(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}
std::int32_t wrapMul(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

} // namespace

// --- vhBoolean -----------------------------------------------------------------

vhBoolean::vhBoolean() { m_valueType = tagBoolean; }

vhBoolean::vhBoolean(bool v)
{
    m_valueType = tagBoolean;
    m_undefined = false;
    m_re = v ? 1.0 : 0.0;
}

vhBoolean::vhBoolean(const vhValue& v) : vhValue(v) {}

vhValue vhBoolean::operator+(const vhValue& other) const
{
    if (m_valueType != tagBoolean)
        return vhValue::operator+(other);
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagBoolean)
        return other + *this;
    return withBool(*this, wrapAdd(toInt(), other.toInt()) != 0);
}

vhValue vhBoolean::operator-(const vhValue& other) const
{
    if (m_valueType != tagBoolean)
        return vhValue::operator-(other);
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagBoolean)
        return (other * vhInteger(-1)) + *this;
    return withBool(*this, toInt() != other.toInt());
}

vhValue vhBoolean::operator*(const vhValue& other) const
{
    if (m_valueType != tagBoolean)
        return vhValue::operator*(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagBoolean)
        return other * *this;
    return withBool(*this, wrapMul(toInt(), other.toInt()) != 0);
}

vhValue vhBoolean::operator/(const vhValue& other) const
{
    if (m_valueType != tagBoolean)
        return vhValue::operator/(other);
    if (other.valueType() > tagBoolean)
        return divideByRicher(*this, other);
    if (isNull() || other.isNull())
        return vhValue();
    const std::int32_t d = other.toInt();
    if (d == 0)
        return vhValue();
    return withBool(*this, toInt() / d != 0);
}

bool vhBoolean::operator==(const vhValue& other) const
{
    if (m_valueType != tagBoolean)
        return vhValue::operator==(other);
    if (isNull() || other.isNull())
        return false;
    if (other.valueType() > tagBoolean)
        return other == *this;
    return toBool() == other.toBool();
}

VH_DEFINE_COMPOUND_OPERATORS(vhBoolean, tagBoolean)
VH_DEFINE_NOT_EQUAL(vhBoolean, tagBoolean)

// --- vhInteger -----------------------------------------------------------------

vhInteger::vhInteger() { m_valueType = tagInteger; }

vhInteger::vhInteger(int v)
{
    m_valueType = tagInteger;
    m_undefined = false;
    m_re = v;
}

vhInteger::vhInteger(vhValue* pointer)
{
    // A null pointer leaves the undefined value.
    if (pointer) {
        m_valueType = tagInteger;
        m_undefined = false;
        m_re = 0.0;
        m_pointer = pointer;
    }
}

vhInteger::vhInteger(const vhValue& v) : vhValue(v) {}

vhValue vhInteger::operator+(const vhValue& other) const
{
    if (m_valueType != tagInteger)
        return vhValue::operator+(other);
    if (isPointer() || other.isPointer())
        return vhValue();
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagInteger)
        return other + *this;
    return withInt(*this, wrapAdd(toInt(), other.toInt()));
}

vhValue vhInteger::operator-(const vhValue& other) const
{
    if (m_valueType != tagInteger)
        return vhValue::operator-(other);
    if (isPointer() || other.isPointer())
        return vhValue();
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagInteger)
        return (other * vhInteger(-1)) + *this;
    return withInt(*this, wrapSub(toInt(), other.toInt()));
}

vhValue vhInteger::operator*(const vhValue& other) const
{
    if (m_valueType != tagInteger)
        return vhValue::operator*(other);
    if (isPointer() || other.isPointer())
        return vhValue();
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagInteger)
        return other * *this;
    return withInt(*this, wrapMul(toInt(), other.toInt()));
}

vhValue vhInteger::operator/(const vhValue& other) const
{
    if (m_valueType != tagInteger)
        return vhValue::operator/(other);
    if (isPointer() || other.isPointer())
        return vhValue();
    if (other.valueType() > tagInteger)
        return divideByRicher(*this, other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.toInt() == 0)
        return vhValue();
    // Integer division never gives an integer tag: 7 / 2 is 3.5, and 6 / 3
    // is the double 2.
    return withDouble(*this, toDouble() / other.toDouble());
}

bool vhInteger::operator==(const vhValue& other) const
{
    if (m_valueType != tagInteger)
        return vhValue::operator==(other);
    if (isNull() || other.isNull())
        return false;
    if (isPointer() || other.isPointer())
        return isPointer() && other.isPointer() && pointer() == other.pointer();
    if (other.valueType() > tagInteger)
        return other == *this;
    return toInt() == other.toInt();
}

VH_DEFINE_COMPOUND_OPERATORS(vhInteger, tagInteger)
VH_DEFINE_NOT_EQUAL(vhInteger, tagInteger)

// --- vhDouble ------------------------------------------------------------------

vhDouble::vhDouble() { m_valueType = tagDouble; }

vhDouble::vhDouble(double v)
{
    m_valueType = tagDouble;
    m_undefined = false;
    m_re = v;
}

vhDouble::vhDouble(const vhValue& v) : vhValue(v) {}

vhValue vhDouble::operator+(const vhValue& other) const
{
    if (m_valueType != tagDouble)
        return vhValue::operator+(other);
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagDouble)
        return other + *this;
    return withDouble(*this, m_re + other.toDouble());
}

vhValue vhDouble::operator-(const vhValue& other) const
{
    if (m_valueType != tagDouble)
        return vhValue::operator-(other);
    if (other.isZero())
        return *this;
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagDouble)
        return (other * vhInteger(-1)) + *this;
    return withDouble(*this, m_re - other.toDouble());
}

vhValue vhDouble::operator*(const vhValue& other) const
{
    if (m_valueType != tagDouble)
        return vhValue::operator*(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagDouble)
        return other * *this;
    return withDouble(*this, m_re * other.toDouble());
}

vhValue vhDouble::operator/(const vhValue& other) const
{
    if (m_valueType != tagDouble)
        return vhValue::operator/(other);
    if (other.valueType() > tagDouble)
        return divideByRicher(*this, other);
    if (isNull() || other.isNull())
        return vhValue();
    const double d = other.toDouble();
    // Division by an exact zero has no result, never an infinity.
    if (d == 0.0)
        return vhValue();
    return withDouble(*this, m_re / d);
}

bool vhDouble::operator==(const vhValue& other) const
{
    if (m_valueType != tagDouble)
        return vhValue::operator==(other);
    if (isNull() || other.isNull())
        return false;
    if (other.valueType() > tagDouble)
        return other == *this;
    return toDouble() == other.toDouble();
}

VH_DEFINE_COMPOUND_OPERATORS(vhDouble, tagDouble)
VH_DEFINE_NOT_EQUAL(vhDouble, tagDouble)

// --- vhComplex -----------------------------------------------------------------

vhComplex::vhComplex() { m_valueType = tagComplex; }

vhComplex::vhComplex(double re, double im)
{
    m_valueType = tagComplex;
    m_undefined = false;
    m_re = re;
    m_im = im;
}

vhComplex::vhComplex(std::complex<double> c) : vhComplex(c.real(), c.imag()) {}

vhComplex::vhComplex(const vhValue& v) : vhValue(v) {}

vhComplex vhComplex::conjugate() const { return vhComplex(m_re, -m_im); }

vhComplex vhComplex::modulo() const { return vhComplex(std::sqrt(m_re * m_re + m_im * m_im), 0.0); }

vhValue vhComplex::operator+(const vhValue& other) const
{
    if (m_valueType != tagComplex)
        return vhValue::operator+(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.isZero())
        return *this;
    if (other.valueType() > tagComplex)
        return other + *this;
    if (other.valueType() == tagComplex)
        return withComplex(*this, m_re + other.complexRe(), m_im + other.complexIm());
    return withComplex(*this, m_re + other.toDouble(), m_im);
}

vhValue vhComplex::operator-(const vhValue& other) const
{
    if (m_valueType != tagComplex)
        return vhValue::operator-(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.isZero())
        return *this;
    if (other.valueType() > tagComplex)
        return (other * vhInteger(-1)) + *this;
    if (other.valueType() == tagComplex)
        return withComplex(*this, m_re - other.complexRe(), m_im - other.complexIm());
    return withComplex(*this, m_re - other.toDouble(), m_im);
}

vhValue vhComplex::operator*(const vhValue& other) const
{
    if (m_valueType != tagComplex)
        return vhValue::operator*(other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() > tagComplex)
        return other * *this;
    if (other.valueType() == tagComplex) {
        const double a = m_re, b = m_im, c = other.complexRe(), d = other.complexIm();
        return withComplex(*this, flushTiny(a * c - b * d), flushTiny(a * d + b * c));
    }
    const double r = other.toDouble();
    return withComplex(*this, m_re * r, m_im * r);
}

vhValue vhComplex::operator/(const vhValue& other) const
{
    if (m_valueType != tagComplex)
        return vhValue::operator/(other);
    if (other.valueType() > tagComplex)
        return divideByRicher(*this, other);
    if (isNull() || other.isNull())
        return vhValue();
    if (other.valueType() == tagComplex) {
        const double a = m_re, b = m_im, c = other.complexRe(), d = other.complexIm();
        const double denominator = c * c + d * d;
        if (denominator == 0.0)
            return vhValue();
        return withComplex(*this, flushTiny((a * c + b * d) / denominator), flushTiny((b * c - a * d) / denominator));
    }
    const double r = other.toDouble();
    if (r == 0.0)
        return vhValue();
    return withComplex(*this, m_re / r, m_im / r);
}

bool vhComplex::operator==(const vhValue& other) const
{
    if (m_valueType != tagComplex)
        return vhValue::operator==(other);
    if (isNull() || other.isNull())
        return false;
    if (other.valueType() > tagComplex)
        return other == *this;
    if (other.valueType() == tagComplex)
        return m_re == other.complexRe() && m_im == other.complexIm();
    return m_im == 0.0 && m_re == other.toDouble();
}

VH_DEFINE_COMPOUND_OPERATORS(vhComplex, tagComplex)
VH_DEFINE_NOT_EQUAL(vhComplex, tagComplex)

} // namespace ValueTypes
} // namespace VarnholtMath
