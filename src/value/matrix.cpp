// Matrices, tables and images.

#include "value/class_macros.h"
#include "value/value.h"

#include <cstdint>
#include <cstring>

#include "value/array_kernels.h"
#include "value/dense_kernels.h"

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
    // Two arrays of this tag go element by element; any other pair is the
    // plain product.
    if (other.arrayGrade().m_valueType != tagMatrix)
        return *this * other;
    return elementwise(*this, other, false);
}

vhValue vhMatrix::divide(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::divide(other);
    if (other.arrayGrade().m_valueType != tagMatrix)
        return *this / other;
    return elementwise(*this, other, true);
}

vhValue vhValue::matrixArithmetic(const vhValue& other, char op) const
{
    const vhValue& right = other.arrayGrade();
    if (isNull() || right.isNull())
        return vhValue();
    const int t = right.m_valueType;
    // A vector on the right acts as the matrix of its shape.
    if (t == tagVector)
        return matrixArithmetic(right.copyAsMatrix(), op);

    if (op == '+' || op == '-') {
        const bool subtract = op == '-';
        if (t != tagMatrix)
            return t < tagSymbolicValue ? addSameShape(right, subtract) : addSameShape(arrayOfOwnShape(right), subtract);
        if (m_rows != right.m_rows || m_columns != right.m_columns)
            return vhValue();
        return addSameShape(right, subtract);
    }

    if (t != tagMatrix)
        return scaleByScalar(right, op == '/');
    if (m_matrixScalarMultiplicationAndDivisionOn)
        return elementwise(*this, right, op == '/');
    if (op == '*')
        return matrixProduct(right);
    // Division by a matrix is multiplication by its cofactor inverse; a
    // singular matrix has none, and the quotient is undefined.
    vhValue inverse = vhMatrix(right).inverse();
    if (inverse.isNull())
        return vhValue();
    return matrixArithmetic(inverse, '*');
}

vhValue vhMatrix::operator+(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator+(other);
    return matrixArithmetic(other, '+');
}

vhValue vhMatrix::operator-(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator-(other);
    return matrixArithmetic(other, '-');
}

vhValue vhMatrix::operator*(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator*(other);
    return matrixArithmetic(other, '*');
}

vhValue vhMatrix::operator/(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator/(other);
    return matrixArithmetic(other, '/');
}

bool vhMatrix::operator==(const vhValue& other) const
{
    if (m_valueType != tagMatrix)
        return vhValue::operator==(other);
    // A richer right operand decides; a poorer one, a vector included, is
    // never equal.
    if (other.m_valueType > tagMatrix)
        return other == *this;
    if (other.m_valueType < tagMatrix)
        return false;
    return sameShapeEqual(other);
}

void vhMatrix::resize(unsigned int rows, unsigned int columns)
{
    if (m_valueType != tagMatrix || rows == 0 || columns == 0 || (rows == m_rows && columns == m_columns))
        return;
    allocateMatrix(rows, columns);
}

void vhMatrix::setNumericValues(double* data, unsigned int n)
{
    if (!m_numeric || !m_numericData || !data || n == 0 || n != m_numericSize)
        return;
    std::memcpy(m_numericData, data, sizeof(double) * n);
}

void vhMatrix::setNumericImValues(double* data, unsigned int n)
{
    if (!m_numeric || !m_numericData || !data || n == 0 || n != m_numericSize)
        return;
    std::memcpy(m_numericData + m_numericSize, data, sizeof(double) * n);
    m_numericComplex = true;
}

vhValue vhMatrix::transpose() const
{
    vhValue result;
    if (m_valueType != tagMatrix || isNull())
        return result;
    const std::uint32_t rows = m_rows, columns = m_columns;
    if (m_numeric) {
        if (std::uint64_t(rows) * columns != m_numericSize)
            return result;
        vhValue t = numericArray(tagMatrix, columns, rows, m_numericComplex, false);
        result.swapRecord(t);
        if (!result.m_numericData)
            return result;
        const std::size_t n = m_numericSize;
        dense::transpose(m_numericData, result.m_numericData, rows, columns);
        if (m_numericComplex)
            dense::transpose(m_numericData + n, result.m_numericData + n, rows, columns);
        else
            dense::zero(result.m_numericData + n, n);
    } else if (m_image) {
        if (std::uint64_t(rows) * columns != m_imageSize)
            return result;
        // An image stays an image; its pixels move by index.
        vhMatrix t(columns, rows, false, true, false);
        if (!t.m_imageData)
            return result;
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                t.m_imageData[std::size_t(j) * rows + i] = m_imageData[std::size_t(i) * columns + j];
        t.m_dpi = m_dpi;
        result.swapRecord(t);
    } else {
        vhMatrix t(columns, rows, false, false, false);
        for (std::uint32_t i = 0; i < rows; ++i)
            for (std::uint32_t j = 0; j < columns; ++j)
                t.setValue(value(i, j), j, i);
        result.swapRecord(t);
    }
    result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
    return result;
}

vhValue vhMatrix::conjugateTranspose() const
{
    vhValue result = transpose();
    if (result.isNull())
        return result;
    conjugateAll(result);
    return result;
}

VH_DEFINE_COMPOUND_OPERATORS(vhMatrix, tagMatrix)
VH_DEFINE_NOT_EQUAL(vhMatrix, tagMatrix)

} // namespace ValueTypes
} // namespace VarnholtMath
