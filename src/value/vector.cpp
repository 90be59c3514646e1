// Vectors: one row or one column of numbers, values or pixels.

#include "value/class_macros.h"
#include "value/value.h"

#include <cstring>
#include <utility>

#include "value/array_kernels.h"
#include "value/dense_kernels.h"

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
    // Two arrays of this tag go element by element; any other pair is the
    // plain product.
    if (other.arrayGrade().m_valueType != tagVector)
        return *this * other;
    return elementwise(*this, other, false);
}

vhValue vhVector::divide(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::divide(other);
    if (other.arrayGrade().m_valueType != tagVector)
        return *this / other;
    return elementwise(*this, other, true);
}

vhValue vhValue::vectorArithmetic(const vhValue& other, char op) const
{
    const vhValue& right = other.arrayGrade();
    if (right.isNull())
        return vhValue();
    const int t = right.m_valueType;
    const bool rightIsArray = t == tagVector || t == tagMatrix;

    if (op == '+' || op == '-') {
        const bool subtract = op == '-';
        // A vector and a matrix never add, not even a one-row matrix.
        if (t == tagMatrix)
            return vhValue();
        if (t != tagVector)
            return t < tagSymbolicValue ? addSameShape(right, subtract) : addSameShape(arrayOfOwnShape(right), subtract);
        // A row and a column of the same length don't add.
        if (m_rows != right.m_rows || m_columns != right.m_columns)
            return vhValue();
        return addSameShape(right, subtract);
    }

    if (!rightIsArray)
        return scaleByScalar(right, op == '/');
    if (t == tagMatrix)
        return copyAsMatrix().matrixArithmetic(right, op);
    if (m_matrixScalarMultiplicationAndDivisionOn)
        return elementwise(*this, right, op == '/');
    if (op == '/')
        return vhValue();
    if (m_rows == 1 && right.m_columns == 1)
        return dotProduct(right);
    if (m_columns == 1 && right.m_rows == 1)
        return outerProduct(right);
    return vhValue();
}

vhValue vhVector::operator+(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator+(other);
    return vectorArithmetic(other, '+');
}

vhValue vhVector::operator-(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator-(other);
    return vectorArithmetic(other, '-');
}

vhValue vhVector::operator*(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator*(other);
    return vectorArithmetic(other, '*');
}

vhValue vhVector::operator/(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator/(other);
    return vectorArithmetic(other, '/');
}

bool vhVector::operator==(const vhValue& other) const
{
    if (m_valueType != tagVector)
        return vhValue::operator==(other);
    // A richer right operand decides; a poorer one is never equal.
    if (other.m_valueType > tagVector)
        return other == *this;
    if (other.m_valueType < tagVector)
        return false;
    return sameShapeEqual(other);
}

void vhVector::resize(unsigned int n, bool row)
{
    if (m_valueType != tagVector || n == 0 || n == vectorSize())
        return;
    allocateMatrix(row ? 1 : n, row ? n : 1);
}

void vhVector::setNumericValues(double* data, unsigned int n)
{
    if (!m_numeric || !m_numericData || !data || n == 0)
        return;
    const unsigned int copied = n < m_numericSize ? n : m_numericSize;
    std::memcpy(m_numericData, data, sizeof(double) * copied);
    std::memset(m_numericData + copied, 0, sizeof(double) * (m_numericSize - copied));
}

void vhVector::setNumericImValues(double* data, unsigned int n)
{
    if (!m_numeric || !m_numericData || !data || n == 0)
        return;
    const unsigned int copied = n < m_numericSize ? n : m_numericSize;
    double* imaginary = m_numericData + m_numericSize;
    std::memcpy(imaginary, data, sizeof(double) * copied);
    std::memset(imaginary + copied, 0, sizeof(double) * (m_numericSize - copied));
    m_numericComplex = true;
}

vhValue vhVector::transpose() const
{
    vhValue result;
    if (m_valueType != tagVector) {
        vhVector empty;
        result.swapRecord(empty);
        return result;
    }
    // A vector keeps its data in the same order as a row or a column.
    vhValue copy(*this);
    result.swapRecord(copy);
    std::swap(result.m_rows, result.m_columns);
    result.m_rowNames.clear();
    result.m_columnNames.clear();
    return result;
}

vhValue vhVector::conjugateTranspose() const
{
    vhValue result = transpose();
    conjugateAll(result);
    return result;
}

VH_DEFINE_COMPOUND_OPERATORS(vhVector, tagVector)
VH_DEFINE_NOT_EQUAL(vhVector, tagVector)

} // namespace ValueTypes
} // namespace VarnholtMath
