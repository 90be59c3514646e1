// Determinant, cofactors, adjoint and inverse of a square matrix whose
// elements may be symbols. No pivoting takes place: choosing a pivot needs
// to compare elements, which symbols can't. The cost is therefore factorial
// in the size; large numeric determinants belong to the numeric functions.

#include <cstdint>
#include <vector>

#include "frame/switches.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// The determinant of the n x n list a, row-major, through the operators of
// the elements: a d - b c for 2 x 2, the rule of Sarrus for 3 x 3, and the
// expansion along the first row with alternating signs above.
vhValue expand(const std::vector<vhValue>& a, unsigned int n)
{
    if (n == 1)
        return a[0];
    if (n == 2)
        return a[0] * a[3] - a[1] * a[2];
    if (n == 3)
        return a[0] * a[4] * a[8] + a[1] * a[5] * a[6] + a[2] * a[3] * a[7] - a[2] * a[4] * a[6] -
               a[1] * a[3] * a[8] - a[0] * a[5] * a[7];
    const unsigned int m = n - 1;
    std::vector<vhValue> minor(std::size_t(m) * m);
    vhValue sum;
    for (unsigned int j = 0; j < n; ++j) {
        for (unsigned int r = 1; r < n; ++r)
            for (unsigned int c = 0, k = 0; c < n; ++c)
                if (c != j)
                    minor[std::size_t(r - 1) * m + k++] = a[std::size_t(r) * n + c];
        const vhValue term = a[j] * expand(minor, m);
        if (j == 0)
            sum = term;
        else
            sum = (j % 2 == 1) ? sum - term : sum + term;
    }
    // The expansion of a large matrix takes long; the host stays responsive.
    if (n > 5)
        appProcessEventsGlobal();
    return sum;
}

// The determinant of a square list of element values. Plain numbers are
// multiplied and added by the scalar operators; as soon as an element is
// anything else, every element of a tag below 10 is wrapped in an expression
// so that all sums stay in the expression algebra.
vhValue determinantOf(std::vector<vhValue> a, unsigned int n)
{
    if (n == 0 || a.size() != std::size_t(n) * n)
        return vhValue();
    if (n == 1)
        return a[0];
    bool numbersOnly = true;
    for (const vhValue& e : a) {
        // An undefined element leaves the determinant undefined.
        if (e.isNull())
            return vhValue();
        if (e.valueType() > tagComplex)
            numbersOnly = false;
    }
    if (!numbersOnly)
        for (vhValue& e : a)
            if (e.valueType() < tagExpression) {
                vhExpression wrapped(e);
                e = wrapped;
            }
    vhValue d = expand(a, n);
    if (d.valueType() == tagExpression) {
        const unsigned int terms = d.expressionValuesSize();
        if (terms == 0)
            return vhInteger(0);
        if (terms == 1)
            return d.expressionValues()[0];
    }
    return d;
}

std::vector<vhValue> elementsOf(const vhValue& matrix)
{
    const unsigned int n = matrix.vectorSize();
    std::vector<vhValue> a;
    a.reserve(n);
    for (unsigned int i = 0; i < n; ++i)
        a.push_back(matrix.value(i));
    return a;
}

// The list without row i and column j.
std::vector<vhValue> minorOf(const std::vector<vhValue>& a, unsigned int n, unsigned int i, unsigned int j)
{
    std::vector<vhValue> minor;
    minor.reserve(std::size_t(n - 1) * (n - 1));
    for (unsigned int r = 0; r < n; ++r)
        for (unsigned int c = 0; c < n; ++c)
            if (r != i && c != j)
                minor.push_back(a[std::size_t(r) * n + c]);
    return minor;
}

vhValue negated(const vhValue& v) { return v * vhInteger(-1); }

} // namespace

vhValue vhMatrix::determinant() const
{
    if (m_valueType != tagMatrix || isNull() || m_rows != m_columns)
        return vhValue();
    if (std::uint64_t(m_rows) * m_columns != vectorSize())
        return vhValue();
    return determinantOf(elementsOf(*this), m_rows);
}

vhValue vhMatrix::coFactor() const
{
    if (m_valueType != tagMatrix || isNull() || m_rows != m_columns)
        return vhValue();
    const unsigned int n = m_rows;
    if (std::uint64_t(n) * n != vectorSize())
        return vhValue();
    vhValue result = numericArray(tagMatrix, n, n, false, true);
    if (result.isNull())
        return vhValue();
    const std::vector<vhValue> a = elementsOf(*this);
    if (n == 1) {
        result.setValue(vhInteger(1), 0u);
    } else if (n == 2) {
        result.setValue(a[3], 0u);
        result.setValue(negated(a[2]), 1u);
        result.setValue(negated(a[1]), 2u);
        result.setValue(a[0], 3u);
    } else {
        for (unsigned int i = 0; i < n; ++i)
            for (unsigned int j = 0; j < n; ++j) {
                const vhValue d = determinantOf(minorOf(a, n, i, j), n - 1);
                result.setValue((i + j) % 2 == 1 ? negated(d) : d, i * n + j);
            }
    }
    if (m_columnNames.size() == n)
        result.m_columnNames = m_columnNames;
    return result;
}

vhValue vhMatrix::adjoint() const
{
    const vhValue cofactors = coFactor();
    if (cofactors.isNull())
        return vhValue();
    vhValue result = vhMatrix(cofactors).transpose();
    if (m_columnNames.size() == result.m_columns)
        result.m_columnNames = m_columnNames;
    return result;
}

vhValue vhMatrix::inverse() const
{
    if (m_valueType != tagMatrix || isNull() || m_rows != m_columns)
        return vhValue();
    const unsigned int n = m_rows;
    const vhValue d = determinant();
    // Division by an undefined or exactly zero determinant has no result:
    // that is how a singular matrix is reported.
    if (d.isNull())
        return vhValue();
    const vhValue cofactors = coFactor();
    if (cofactors.isNull())
        return vhValue();
    vhValue result = numericArray(tagMatrix, n, n, false, true);
    if (result.isNull())
        return vhValue();
    for (unsigned int i = 0; i < n; ++i)
        for (unsigned int j = 0; j < n; ++j) {
            const vhValue q = cofactors.value(i, j) / d;
            if (q.isNull())
                return vhValue();
            result.setValue(q, j * n + i);
        }
    if (m_columnNames.size() == n)
        result.m_columnNames = m_columnNames;
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
