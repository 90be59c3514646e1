// Matrices, tables and images.

#include "value/class_macros.h"
#include "value/value.h"

#include <cstring>

#include "value/array_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

vhMatrix::vhMatrix()
{
    m_valueType = tagMatrix;
    m_undefined = false;
}

vhMatrix::vhMatrix(const vhValue& v) : vhValue(v) {}

vhMatrix::vhMatrix(unsigned int rows, unsigned int columns, bool numeric, bool image, bool complex) : vhMatrix()
{
    if (rows == 0 || columns == 0)
        return;
    if (numeric || complex) {
        m_numeric = true;
        m_numericComplex = complex;
    } else {
        m_image = image;
    }
    allocateMatrix(rows, columns);
}

vhMatrix::vhMatrix(const vhValue& fill, unsigned int rows, unsigned int columns) : vhMatrix()
{
    if (rows == 0 || columns == 0)
        return;
    if (fill.isDouble()) {
        m_numeric = true;
        if (!allocateMatrix(rows, columns))
            return;
        const double d = fill.toDouble();
        for (unsigned int i = 0; i < m_numericSize; ++i)
            m_numericData[i] = d;
        return;
    }
    if (!allocateMatrix(rows, columns))
        return;
    for (vhValue& e : m_elements)
        e = fill;
}

vhMatrix::vhMatrix(double* data, unsigned int rows, unsigned int columns) : vhMatrix()
{
    if (!data || rows == 0 || columns == 0)
        return;
    m_numeric = true;
    if (allocateMatrix(rows, columns))
        std::memcpy(m_numericData, data, sizeof(double) * m_numericSize);
}

vhMatrix::vhMatrix(unsigned int* pixels, unsigned int rows, unsigned int columns) : vhMatrix()
{
    if (!pixels || rows == 0 || columns == 0)
        return;
    m_image = true;
    if (allocateMatrix(rows, columns))
        std::memcpy(m_imageData, pixels, sizeof(std::uint32_t) * m_imageSize);
}

vhValue vhMatrix::multiply(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::multiply(other);
    return elementwise(*this, other, false);
}

vhValue vhMatrix::divide(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::divide(other);
    return elementwise(*this, other, true);
}

// PENDING(matrices): arithmetic of this class.
vhValue vhMatrix::operator+(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator+(other);
    return vhValue();
}

vhValue vhMatrix::operator-(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator-(other);
    return vhValue();
}

vhValue vhMatrix::operator*(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator*(other);
    return vhValue();
}

vhValue vhMatrix::operator/(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator/(other);
    return vhValue();
}

bool vhMatrix::operator==(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator==(other);
    return false;
}

VH_DEFINE_COMPOUND_OPERATORS(vhMatrix, tagMatrix)
VH_DEFINE_NOT_EQUAL(vhMatrix, tagMatrix)

} // namespace ValueTypes
} // namespace VarnholtMath
