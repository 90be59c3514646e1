// Reading a value as a number, writing a number into a value, the sign
// predicates, and raising a value to a richer tag.

#include <cfloat>
#include <cmath>
#include <limits>

#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
const double kNaN = std::numeric_limits<double>::quiet_NaN();

bool isRealTag(int t) { return t >= tagBoolean && t <= tagDouble; }
bool isAtomTag(int t) { return t >= tagSymbolicValue && t <= tagUnit; }
} // namespace

int vhValue::toInt() const
{
    const vhValue& v = fullGrade();
    if (v.isNull() || !isRealTag(v.m_valueType))
        return 0;
    // The processor's cut: outside 32 bits, and for NaN, -2147483648. A
    // pointer value keeps 0 as its own number and reads as 0; its pointee is
    // reached only through dereference.
    return internal::cutToInt32(v.m_re);
}

unsigned int vhValue::toUnsignedInt() const
{
    if (!isUnsignedInteger())
        return 0;
    return static_cast<unsigned int>(fullGrade().m_re);
}

double vhValue::toDouble() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return kNaN;
    if (isRealTag(v.m_valueType)) {
        if (v.isPointer())
            return v.toInt();
        return v.m_re;
    }
    if (v.m_valueType == tagComplex)
        return v.m_im == 0.0 ? v.m_re : kNaN;
    return kNaN;
}

bool vhValue::toBool() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return false;
    if (isRealTag(v.m_valueType)) {
        if (v.isPointer())
            return v.toInt() != 0;
        return v.m_re != 0.0;
    }
    return v.m_valueType >= tagComplex;
}

std::complex<double> vhValue::toComplex() const
{
    const vhValue& v = fullGrade();
    if (!v.isNull()) {
        if (v.m_valueType == tagComplex)
            return std::complex<double>(v.m_re, v.m_im);
        if (isRealTag(v.m_valueType))
            return std::complex<double>(v.toDouble(), 0.0);
    }
    return std::complex<double>(kNaN, kNaN);
}

double vhValue::complexRe() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return kNaN;
    if (v.isPointer())
        return v.toInt();
    if (isRealTag(v.m_valueType) || v.m_valueType == tagComplex)
        return v.m_re;
    return kNaN;
}

double vhValue::complexIm() const
{
    const vhValue& v = fullGrade();
    if (v.isNull())
        return kNaN;
    if (v.m_valueType == tagComplex)
        return v.m_im;
    if (isRealTag(v.m_valueType))
        return 0.0;
    return kNaN;
}

// --- setters -------------------------------------------------------------------
// Below the array tags the number is written in place and the other fields
// stay; from the array tags on a fresh scalar replaces the whole value.

void vhValue::setBool(bool v)
{
    if (m_valueType >= tagVector) {
        *this = vhBoolean(v);
        return;
    }
    m_re = v ? 1.0 : 0.0;
    m_undefined = false;
    m_valueType = tagBoolean;
}

void vhValue::setInt(int v)
{
    if (m_valueType >= tagVector) {
        *this = vhInteger(v);
        return;
    }
    m_re = v;
    m_undefined = false;
    m_valueType = tagInteger;
}

void vhValue::setDouble(double v)
{
    if (m_valueType >= tagVector) {
        *this = vhDouble(v);
        return;
    }
    m_re = v;
    m_undefined = false;
    m_valueType = tagDouble;
}

void vhValue::setComplexRe(double v)
{
    if (m_valueType >= tagVector) {
        *this = vhComplex(v, 0.0);
        return;
    }
    m_re = v;
    m_undefined = false;
    m_valueType = tagComplex;
}

void vhValue::setComplexIm(double v)
{
    if (m_valueType >= tagVector) {
        *this = vhComplex(0.0, v);
        return;
    }
    m_im = v;
    m_undefined = false;
    m_valueType = tagComplex;
}

void vhValue::setComplex(double re, double im)
{
    if (m_valueType >= tagVector) {
        *this = vhComplex(re, im);
        return;
    }
    m_re = re;
    m_im = im;
    m_undefined = false;
    m_valueType = tagComplex;
}

void vhValue::setComplex(std::complex<double> c) { setComplex(c.real(), c.imag()); }

void vhValue::setString(const std::string& s)
{
    if (m_valueType >= tagVector) {
        *this = vhSymbolicValue(s, false, std::vector<CharFormat>());
        return;
    }
    m_text = s;
    m_undefined = false;
    m_valueType = tagSymbolicValue;
}

// --- sign predicates -------------------------------------------------------------
// A symbolic factor answers through its coefficient, the end of its chain.

namespace {
const vhValue& signCarrier(const vhValue& v)
{
    if (isAtomTag(v.valueType()) && v.multiplier()) {
        const vhValue* m = v.firstMultiplier();
        if (m)
            return *m;
    }
    return v;
}

bool anyNumericElement(const double* data, unsigned int n, bool (*test)(double))
{
    for (unsigned int i = 0; i < n; ++i)
        if (test(data[i]))
            return true;
    return false;
}

bool beyondLargest(double x) { return x > DBL_MAX || x < -DBL_MAX; }
bool notANumber(double x) { return std::isnan(x); }
} // namespace

bool vhValue::isZero() const
{
    const vhValue& g = fullGrade();
    const vhValue& v = signCarrier(g);
    if (v.isNull())
        return v.m_valueType == tagExpression;
    if (isRealTag(v.m_valueType))
        return v.toDouble() == 0.0;
    if (v.m_valueType == tagComplex)
        return v.m_re == 0.0 && v.m_im == 0.0;
    return false;
}

bool vhValue::isNegative() const
{
    const vhValue& v = signCarrier(fullGrade());
    if (v.isNull())
        return false;
    if (v.m_valueType == tagInteger || v.m_valueType == tagDouble)
        return v.toDouble() < 0.0;
    return false;
}

bool vhValue::isPositive() const { return !isNull() && !isNegative() && !isZero(); }

bool vhValue::isInfinity() const
{
    const vhValue& v = signCarrier(fullGrade());
    if (v.isNull())
        return false;
    if (isRealTag(v.m_valueType))
        return beyondLargest(v.m_re);
    if (v.m_valueType == tagComplex)
        return beyondLargest(v.m_re) || beyondLargest(v.m_im);
    if (v.m_valueType == tagVector || v.m_valueType == tagMatrix) {
        if (v.m_numeric)
            return v.m_numericData &&
                   anyNumericElement(v.m_numericData, v.m_numericComplex ? 2 * v.m_numericSize : v.m_numericSize,
                                     beyondLargest);
        if (v.m_image)
            return false;
        for (const vhValue& e : v.m_elements)
            if (e.isInfinity())
                return true;
    }
    return false;
}

bool vhValue::isNan() const
{
    // A scalar NaN is undefined, so only arrays can hold one.
    const vhValue& v = signCarrier(fullGrade());
    if (v.isNull())
        return false;
    if (v.m_valueType == tagVector || v.m_valueType == tagMatrix) {
        if (v.m_numeric)
            return v.m_numericData && anyNumericElement(v.m_numericData, 2 * v.m_numericSize, notANumber);
        if (v.m_image)
            return false;
        for (const vhValue& e : v.m_elements)
            if (e.isNan())
                return true;
    }
    return false;
}

vhValue vhValue::increaseToType(const vhValue& other) const
{
    if (other.m_valueType <= m_valueType)
        return *this;
    switch (other.m_valueType) {
    case tagInteger:
        return vhInteger(toInt());
    case tagDouble:
        return vhDouble(toDouble());
    case tagComplex:
        return vhComplex(toDouble(), 0.0);
    case tagVector:
        return vhVector(vhExpression(*this), other.vectorSize(), false);
    case tagMatrix:
        return vhMatrix(vhExpression(*this), other.matrixRows(), other.matrixColumns());
    case tagExpression:
        return vhExpression(*this);
    default:
        return vhValue();
    }
}

} // namespace ValueTypes
} // namespace VarnholtMath
