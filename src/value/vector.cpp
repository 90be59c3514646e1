// Vectors: one row or one column of numbers, values or pixels.

#include "value/class_macros.h"
#include "value/value.h"

#include <cstring>

#include "value/array_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

vhVector::vhVector()
{
    m_valueType = tagVector;
    m_undefined = false;
}

vhVector::vhVector(const vhValue& v) : vhValue(v) {}

vhVector::vhVector(unsigned int n, bool row, bool numeric, bool complex) : vhVector()
{
    if (n == 0)
        return;
    m_numericComplex = complex;
    m_numeric = numeric || complex;
    allocateMatrix(row ? 1 : n, row ? n : 1);
}

vhVector::vhVector(const vhValue& fill, unsigned int n, bool row) : vhVector()
{
    if (n == 0)
        return;
    // A real fill gives numeric storage, anything else n copies.
    if (fill.isDouble()) {
        m_numeric = true;
        if (!allocateMatrix(row ? 1 : n, row ? n : 1))
            return;
        const double d = fill.toDouble();
        for (unsigned int i = 0; i < m_numericSize; ++i)
            m_numericData[i] = d;
        return;
    }
    if (!allocateMatrix(row ? 1 : n, row ? n : 1))
        return;
    for (vhValue& e : m_elements)
        e = fill;
}

vhVector::vhVector(const std::vector<vhValue>& elements, bool row) : vhVector()
{
    if (elements.empty())
        return;
    const unsigned int n = static_cast<unsigned int>(elements.size());
    m_elements = elements;
    m_rows = row ? 1 : n;
    m_columns = row ? n : 1;
}

vhVector::vhVector(double* data, unsigned int n, bool row) : vhVector()
{
    if (!data || n == 0)
        return;
    m_numeric = true;
    if (allocateMatrix(row ? 1 : n, row ? n : 1))
        std::memcpy(m_numericData, data, sizeof(double) * n);
}

vhValue vhVector::multiply(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::multiply(other);
    return elementwise(*this, other, false);
}

vhValue vhVector::divide(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::divide(other);
    return elementwise(*this, other, true);
}

// PENDING(vectors): arithmetic of this class.
vhValue vhVector::operator+(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhVector::operator-(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhVector::operator*(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhVector::operator/(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhVector::operator==(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhVector, tagVector)
VH_DEFINE_NOT_EQUAL(vhVector, tagVector)

} // namespace ValueTypes
} // namespace VarnholtMath
