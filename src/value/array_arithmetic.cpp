// The arithmetic that vectors and matrices share: sums of equal shapes,
// products and quotients by a scalar, the matrix product, the dot and outer
// products of vectors, and equality. Numeric storage is worked on as raw
// double arrays; element storage goes through the value operators, so that
// symbols, strings and nested arrays meet the rules of their own classes.

#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "value/array_kernels.h"
#include "value/dense_kernels.h"
#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
bool isScalarTag(int t) { return t >= tagBoolean && t <= tagComplex; }

// Numeric storage whose block really covers rows x columns numbers; a shape
// whose 32-bit element count wrapped around does not.
bool coversShape(std::uint32_t size, std::uint32_t rows, std::uint32_t columns)
{
    return std::uint64_t(rows) * columns == size;
}

// A 32-bit integer reading of a number, as the element values give it.
bool isWholeElement(double d) { return double(internal::cutToInt32(d)) == d; }
} // namespace

vhValue vhValue::numericArray(int tag, unsigned int rows, unsigned int columns, bool complex, bool clearContent)
{
    vhValue result;
    result.m_valueType = tag;
    result.m_undefined = false;
    result.m_numeric = true;
    result.m_numericComplex = complex;
    result.reserveStorage(rows, columns, clearContent);
    return result;
}

vhValue vhValue::arrayOfOwnShape(const vhValue& scalar) const
{
    vhValue fill;
    const int t = scalar.m_valueType;
    if (isScalarTag(t) && !scalar.isNull()) {
        const bool complex = t == tagComplex;
        vhValue numbers = numericArray(m_valueType, m_rows, m_columns, complex, false);
        fill.swapRecord(numbers);
        if (fill.m_numericData) {
            const double re = complex ? scalar.m_re : scalar.toDouble();
            const double im = complex ? scalar.m_im : 0.0;
            const std::uint32_t n = fill.m_numericSize;
            for (std::uint32_t i = 0; i < n; ++i) {
                fill.m_numericData[i] = re;
                fill.m_numericData[n + i] = im;
            }
        }
    } else if (m_valueType == tagVector) {
        vhVector v(scalar, vectorSize(), m_rows == 1);
        fill.swapRecord(v);
    } else {
        vhMatrix m(scalar, m_rows, m_columns);
        fill.swapRecord(m);
    }
    return fill;
}

// Every function below that returns a large array returns one named
// result, so that it is built in place and never copied on return.

vhValue vhValue::addSameShape(const vhValue& right, bool subtract) const
{
    vhValue result;
    const bool leftNumeric = m_numeric && m_numericData && m_numericSize != 0;
    const std::size_t n = m_numericSize;

    // A number added to a numeric array: the filled array is never built.
    if (isScalarTag(right.m_valueType) && !right.isNull() && leftNumeric) {
        const bool rightComplex = right.m_valueType == tagComplex;
        const bool complex = m_numericComplex || rightComplex;
        vhValue fresh = numericArray(m_valueType, m_rows, m_columns, complex, false);
        result.swapRecord(fresh);
        if (!result.m_numericData)
            return result;
        const double re = rightComplex ? right.m_re : right.toDouble();
        const double im = rightComplex ? right.m_im : 0.0;
        dense::addScalar(m_numericData, subtract ? -re : re, result.m_numericData, n);
        if (complex) {
            double* imaginary = result.m_numericData + n;
            if (m_numericComplex)
                dense::addScalar(m_numericData + n, subtract ? -im : im, imaginary, n);
            else
                for (std::size_t i = 0; i < n; ++i)
                    imaginary[i] = subtract ? -im : im;
        } else {
            dense::zero(result.m_numericData + n, n);
        }
        result.m_columnNames = m_columnNames;
        result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        return result;
    }
    if (right.m_valueType != tagVector && right.m_valueType != tagMatrix) {
        vhValue sum = addSameShape(arrayOfOwnShape(right), subtract);
        result.swapRecord(sum);
        return result;
    }

    // Two numeric arrays: a numeric result, complex if either is, with the
    // left operand's column names. A missing imaginary half counts as zeros.
    if (leftNumeric && right.m_numeric && right.m_numericData && right.m_numericSize == m_numericSize) {
        const bool complex = m_numericComplex || right.m_numericComplex;
        vhValue fresh = numericArray(m_valueType, m_rows, m_columns, complex, false);
        result.swapRecord(fresh);
        if (!result.m_numericData)
            return result;
        double* r = result.m_numericData;
        if (subtract)
            dense::subtract(m_numericData, right.m_numericData, r, n);
        else
            dense::add(m_numericData, right.m_numericData, r, n);
        if (!complex) {
            dense::zero(r + n, n);
        } else if (m_numericComplex && right.m_numericComplex) {
            if (subtract)
                dense::subtract(m_numericData + n, right.m_numericData + n, r + n, n);
            else
                dense::add(m_numericData + n, right.m_numericData + n, r + n, n);
        } else if (m_numericComplex) {
            std::memcpy(r + n, m_numericData + n, sizeof(double) * n);
        } else if (subtract) {
            dense::negate(right.m_numericData + n, r + n, n);
        } else {
            std::memcpy(r + n, right.m_numericData + n, sizeof(double) * n);
        }
        result.m_columnNames = m_columnNames;
        result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        return result;
    }

    // Element by element on a copy of the left operand. A sum that the
    // scalar layer refuses is kept as an expression.
    vhValue copy(*this);
    result.swapRecord(copy);
    const unsigned int count = vectorSize();
    for (unsigned int i = 0; i < count; ++i) {
        const vhValue a = value(i);
        const vhValue b = right.value(i);
        if (a.isNull() || b.isNull()) {
            result.setValue(vhValue(), i);
            continue;
        }
        vhValue sum = subtract ? a - b : a + b;
        if (sum.isNull())
            sum = subtract ? vhExpression(a) - b : vhExpression(a) + b;
        result.setValue(sum, i);
    }
    return result;
}

vhValue vhValue::scaleByScalar(const vhValue& right, bool divide) const
{
    vhValue result;
    // A real number scales the real half of numeric storage in place; the
    // imaginary half of a complex array stays as it is, and a zero divisor
    // gives infinities and NaNs.
    if (m_numeric && m_numericData && right.m_valueType >= tagBoolean && right.m_valueType < tagComplex) {
        const std::size_t n = m_numericSize;
        vhValue fresh = numericArray(m_valueType, m_rows, m_columns, m_numericComplex, false);
        result.swapRecord(fresh);
        if (!result.m_numericData)
            return result;
        const double s = right.toDouble();
        if (divide)
            dense::divideBy(m_numericData, s, result.m_numericData, n);
        else
            dense::scale(m_numericData, s, result.m_numericData, n);
        if (m_numericComplex)
            std::memcpy(result.m_numericData + n, m_numericData + n, sizeof(double) * n);
        else
            dense::zero(result.m_numericData + n, n);
        // The rest of the left operand's record comes along, as in a copy.
        result.m_re = m_re;
        result.m_im = m_im;
        result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        result.m_bracket = m_bracket;
        result.m_bracketExponent = m_bracketExponent;
        result.m_sweepNullExponent = m_sweepNullExponent;
        result.m_dpi = m_dpi;
        result.m_rowNames = m_rowNames;
        result.m_columnNames = m_columnNames;
        return result;
    }
    vhValue copy(*this);
    result.swapRecord(copy);
    const unsigned int count = vectorSize();
    for (unsigned int i = 0; i < count; ++i)
        result.setValue(divide ? value(i) / right : value(i) * right, i);
    return result;
}

vhValue vhValue::matrixProduct(const vhValue& right) const
{
    vhValue result;
    const std::uint32_t m = m_rows, p = m_columns, q = right.m_columns;
    if (p != right.m_rows || m == 0 || p == 0 || q == 0 || std::uint64_t(m) * q > 0xFFFFFFFFull)
        return result;

    if (m_numeric && m_numericData && right.m_numeric && right.m_numericData && coversShape(m_numericSize, m, p) &&
        coversShape(right.m_numericSize, p, q)) {
        const bool complex = m_numericComplex || right.m_numericComplex;
        vhValue fresh = numericArray(tagMatrix, m, q, complex, false);
        result.swapRecord(fresh);
        if (!result.m_numericData)
            return result;
        const std::size_t n = std::size_t(m) * q;
        if (complex) {
            dense::complexProduct(m_numericData, m_numericComplex ? m_numericData + m_numericSize : nullptr,
                                  right.m_numericData,
                                  right.m_numericComplex ? right.m_numericData + right.m_numericSize : nullptr,
                                  result.m_numericData, result.m_numericData + n, m, p, q);
        } else {
            dense::realProduct(m_numericData, right.m_numericData, result.m_numericData, m, p, q);
            dense::zero(result.m_numericData + n, n);
        }
        if (m_columnNames.size() == q)
            result.m_columnNames = m_columnNames;
        result.m_numberOfDecimalPlaces = m_numberOfDecimalPlaces;
        // A one-row result is a row vector, a one-column result a column
        // vector; the data stays where it is.
        if (m == 1 || q == 1)
            result.m_valueType = tagVector;
        return result;
    }

    // Element storage: every entry collects its products by the inner index
    // at the level of the values. An undefined product makes the entry
    // undefined for good; a sum that the scalar layer refuses is kept as an
    // expression.
    std::vector<vhValue> entries(std::size_t(m) * q, vhInteger(0));
    for (std::uint32_t i = 0; i < m; ++i) {
        for (std::uint32_t j = 0; j < q; ++j) {
            vhValue& entry = entries[std::size_t(i) * q + j];
            for (std::uint32_t k = 0; k < p; ++k) {
                const vhValue a = value(i, k);
                const vhValue b = right.value(k, j);
                vhValue product = a * b;
                if (a.isNull() || b.isNull() || product.isNull()) {
                    entry = vhValue();
                    break;
                }
                vhValue sum = entry + product;
                if (sum.isNull())
                    sum = vhExpression(entry) + product;
                entry.swapRecord(sum);
            }
        }
    }
    result.m_valueType = tagMatrix;
    result.m_undefined = false;
    if (!result.allocateMatrix(m, q)) {
        result.clear();
        return result;
    }
    for (std::size_t k = 0; k < entries.size(); ++k)
        result.m_elements[k].swapRecord(entries[k]);
    return result;
}

vhValue vhValue::dotProduct(const vhValue& right) const
{
    const unsigned int n = vectorSize();
    // Both operands run over the length of the left one; a shorter right
    // operand would only contribute undefined products.
    if (n == 0 || right.vectorSize() != n)
        return vhValue();

    if (m_numeric && m_numericData && !m_numericComplex && right.m_numeric && right.m_numericData &&
        !right.m_numericComplex) {
        // The sum of the element values' products, as the scalar operators
        // form it: whole numbers multiply and add as wrapping 32-bit
        // integers until a non-whole product makes the sum a double.
        bool integerSum = true;
        std::int32_t intSum = 0;
        double sum = 0.0;
        for (unsigned int i = 0; i < n; ++i) {
            const double x = m_numericData[i], y = right.m_numericData[i];
            const bool wholeProduct = isWholeElement(x) && isWholeElement(y);
            const double product = elementProduct(x, y);
            if (std::isnan(product))
                return vhValue();
            if (product == 0.0)
                continue;
            if (integerSum && wholeProduct) {
                intSum = static_cast<std::int32_t>(static_cast<std::uint32_t>(intSum) +
                                                   static_cast<std::uint32_t>(static_cast<std::int32_t>(product)));
                continue;
            }
            if (integerSum) {
                sum = product + double(intSum);
                integerSum = false;
                continue;
            }
            sum += product;
        }
        if (integerSum)
            return vhInteger(intSum);
        if (std::isnan(sum))
            return vhValue();
        return vhDouble(sum);
    }

    std::vector<vhValue> products;
    products.reserve(n);
    bool scalarsOnly = true;
    for (unsigned int i = 0; i < n; ++i) {
        products.push_back(value(i) * right.value(i));
        if (products.back().isNull())
            return vhValue();
        if (!isScalarTag(products.back().m_valueType))
            scalarsOnly = false;
    }
    if (scalarsOnly) {
        vhValue sum = vhInteger(0);
        for (const vhValue& product : products) {
            vhValue next = sum + product;
            sum.swapRecord(next);
        }
        return sum;
    }
    // Symbolic products are collected in a sum; one term stands for itself.
    vhValue sum = vhExpression(vhInteger(0));
    for (const vhValue& product : products)
        sum += product;
    if (sum.m_valueType == tagExpression && sum.m_expressionValues.size() == 1) {
        vhValue term = sum.m_expressionValues[0];
        return term;
    }
    return sum;
}

vhValue vhValue::outerProduct(const vhValue& right) const
{
    vhValue result;
    const unsigned int m = vectorSize(), q = right.vectorSize();
    if (m == 0 || q == 0 || std::uint64_t(m) * q > 0xFFFFFFFFull)
        return result;
    vhValue fresh = numericArray(tagMatrix, m, q, false, true);
    result.swapRecord(fresh);
    if (!result.m_numericData)
        return result;
    if (m_numeric && m_numericData && !m_numericComplex && right.m_numeric && right.m_numericData &&
        !right.m_numericComplex) {
        for (unsigned int i = 0; i < m; ++i)
            for (unsigned int j = 0; j < q; ++j)
                result.m_numericData[std::size_t(i) * q + j] = elementProduct(m_numericData[i], right.m_numericData[j]);
        return result;
    }
    for (unsigned int i = 0; i < m; ++i) {
        const vhValue a = value(i);
        for (unsigned int j = 0; j < q; ++j)
            result.setValue(a * right.value(j), i * q + j);
    }
    return result;
}

bool vhValue::sameShapeEqual(const vhValue& right) const
{
    if (m_rows != right.m_rows || m_columns != right.m_columns || !columnNamesEqual(right))
        return false;
    const unsigned int n = vectorSize();
    if (n != right.vectorSize())
        return false;
    if (m_numeric && m_numericData && right.m_numeric && right.m_numericData) {
        // The element values compare exactly; a NaN is undefined and equals
        // nothing, and a real array reads no imaginary part.
        const double* li = m_numericComplex ? m_numericData + m_numericSize : nullptr;
        const double* ri = right.m_numericComplex ? right.m_numericData + right.m_numericSize : nullptr;
        for (unsigned int i = 0; i < n; ++i) {
            const double a = m_numericData[i], b = right.m_numericData[i];
            const double ai = li ? li[i] : 0.0, bi = ri ? ri[i] : 0.0;
            if (std::isnan(a) || std::isnan(b) || std::isnan(ai) || std::isnan(bi) || a != b || ai != bi)
                return false;
        }
        return true;
    }
    for (unsigned int i = 0; i < n; ++i)
        if (value(i) != right.value(i))
            return false;
    return true;
}

vhValue vhValue::copyAsMatrix() const
{
    vhValue matrix(*this);
    matrix.m_valueType = tagMatrix;
    return matrix;
}

} // namespace ValueTypes
} // namespace VarnholtMath
