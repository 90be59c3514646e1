// Row and column names, which make a matrix a table; rows and columns taken
// out as vectors; reshaping a vector; the search for an element; and the
// public forms of a few matrix operations.

#include <cstdint>
#include <cstring>
#include <utility>

#include "value/value.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
bool isArrayTag(int t) { return t == tagVector || t == tagMatrix; }

bool allStrings(const std::vector<vhValue>& names)
{
    for (const vhValue& name : names)
        if (!name.isString())
            return false;
    return true;
}

bool sameNames(const std::vector<vhValue>& a, const std::vector<vhValue>& b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i])
            return false;
    return true;
}
} // namespace

// --- names -------------------------------------------------------------------------

bool vhValue::setRowNames(const std::vector<vhValue>& names)
{
    vhValue& v = arrayGradeMutable();
    if (!isArrayTag(v.m_valueType) || names.size() != v.m_rows || !allStrings(names))
        return false;
    v.m_rowNames = names;
    return true;
}

bool vhValue::setColumnNames(const std::vector<vhValue>& names)
{
    vhValue& v = arrayGradeMutable();
    if (!isArrayTag(v.m_valueType) || names.size() != v.m_columns || !allStrings(names))
        return false;
    v.m_columnNames = names;
    return true;
}

void vhValue::clearRowNames() { arrayGradeMutable().m_rowNames.clear(); }
void vhValue::clearColumnNames() { arrayGradeMutable().m_columnNames.clear(); }
std::vector<vhValue> vhValue::rowNames() const { return arrayGrade().m_rowNames; }
std::vector<vhValue> vhValue::columnNames() const { return arrayGrade().m_columnNames; }
unsigned int vhValue::rowNamesSize() const { return static_cast<unsigned int>(arrayGrade().m_rowNames.size()); }

unsigned int vhValue::columnNamesSize() const
{
    return static_cast<unsigned int>(arrayGrade().m_columnNames.size());
}

bool vhValue::rowNamesEqual(const vhValue& other) const
{
    return sameNames(arrayGrade().m_rowNames, other.arrayGrade().m_rowNames);
}

bool vhValue::columnNamesEqual(const vhValue& other) const
{
    return sameNames(arrayGrade().m_columnNames, other.arrayGrade().m_columnNames);
}

// --- rows and columns as vectors -------------------------------------------------------

vhValue vhValue::getMatrixRowAsVector(unsigned int i) const
{
    vhValue row;
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType) || v.isNull() || i >= v.m_rows)
        return row;
    const std::uint32_t columns = v.m_columns;
    const std::size_t first = std::size_t(i) * columns;
    if (v.m_numeric || v.m_image) {
        // Image pixels become plain numbers.
        const std::size_t size = v.m_numeric ? v.m_numericSize : v.m_imageSize;
        if (first + columns > size)
            return row;
        const bool complex = v.m_numeric && v.m_numericComplex;
        vhValue r = numericArray(tagVector, 1, columns, complex, false);
        row.swapRecord(r);
        if (!row.m_numericData)
            return row;
        double* re = row.m_numericData;
        double* im = row.m_numericData + columns;
        if (v.m_numeric) {
            std::memcpy(re, v.m_numericData + first, sizeof(double) * columns);
            if (complex)
                std::memcpy(im, v.m_numericData + v.m_numericSize + first, sizeof(double) * columns);
            else
                std::memset(im, 0, sizeof(double) * columns);
        } else {
            for (std::uint32_t j = 0; j < columns; ++j)
                re[j] = v.m_imageData[first + j];
            std::memset(im, 0, sizeof(double) * columns);
        }
    } else {
        if (first + columns > v.m_elements.size())
            return row;
        vhVector r(std::vector<vhValue>(v.m_elements.begin() + first, v.m_elements.begin() + first + columns), true);
        row.swapRecord(r);
    }
    row.m_numberOfDecimalPlaces = v.m_numberOfDecimalPlaces;
    if (v.m_columnNames.size() == columns)
        row.m_columnNames = v.m_columnNames;
    return row;
}

vhValue vhValue::getMatrixColumnAsVector(unsigned int j) const
{
    vhValue column;
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType) || v.isNull() || j >= v.m_columns)
        return column;
    const std::uint32_t rows = v.m_rows, columns = v.m_columns;
    const std::size_t size = v.m_numeric ? v.m_numericSize : v.m_image ? v.m_imageSize : v.m_elements.size();
    if (rows == 0 || std::size_t(rows - 1) * columns + j >= size)
        return column;
    if (v.m_numeric || v.m_image) {
        const bool complex = v.m_numeric && v.m_numericComplex;
        vhValue r = numericArray(tagVector, rows, 1, complex, false);
        column.swapRecord(r);
        if (!column.m_numericData)
            return column;
        double* re = column.m_numericData;
        double* im = column.m_numericData + rows;
        for (std::uint32_t i = 0; i < rows; ++i) {
            const std::size_t k = std::size_t(i) * columns + j;
            re[i] = v.m_numeric ? v.m_numericData[k] : double(v.m_imageData[k]);
            im[i] = complex ? v.m_numericData[v.m_numericSize + k] : 0.0;
        }
    } else {
        std::vector<vhValue> items;
        items.reserve(rows);
        for (std::uint32_t i = 0; i < rows; ++i)
            items.push_back(v.m_elements[std::size_t(i) * columns + j]);
        vhVector r(items, false);
        column.swapRecord(r);
    }
    column.m_numberOfDecimalPlaces = v.m_numberOfDecimalPlaces;
    // The name of the column comes along when every column has one.
    if (v.m_columnNames.size() == columns)
        column.m_columnNames.assign(1, v.m_columnNames[j]);
    return column;
}

// --- reshaping ---------------------------------------------------------------------------

void vhValue::toRowVector()
{
    vhValue& v = arrayGradeMutable();
    if (v.m_valueType != tagVector || v.vectorSize() == 0)
        return;
    // Meant for a column; there is no test, and a row vector is left as a
    // 1 x 1 shape over the same data.
    v.m_columns = v.m_rows;
    v.m_rows = 1;
    v.m_rowNames.clear();
    v.m_columnNames.clear();
}

void vhValue::toColumnVector()
{
    vhValue& v = arrayGradeMutable();
    if (v.m_valueType != tagVector || v.vectorSize() == 0)
        return;
    v.m_rows = v.m_columns;
    v.m_columns = 1;
    v.m_rowNames.clear();
    v.m_columnNames.clear();
}

// --- search, merging and alignment ----------------------------------------------------------

bool vhValue::contains(const vhValue& item) const
{
    const vhValue& v = arrayGrade();
    if (!isArrayTag(v.m_valueType) || v.isNull())
        return false;
    if (v.m_numeric) {
        if (!v.m_numericData)
            return false;
        const std::uint32_t n = v.m_numericSize;
        if (!v.m_numericComplex && item.isDouble()) {
            const double d = item.toDouble();
            for (std::uint32_t i = 0; i < n; ++i)
                if (v.m_numericData[i] == d)
                    return true;
        } else if (v.m_numericComplex && item.isComplex()) {
            const double re = item.complexRe(), im = item.complexIm();
            for (std::uint32_t i = 0; i < n; ++i)
                if (v.m_numericData[i] == re && v.m_numericData[n + i] == im)
                    return true;
        }
        return false;
    }
    if (v.m_image) {
        if (!v.m_imageData || !item.isDouble())
            return false;
        const std::uint32_t word = internal::cutToUInt32(item.toDouble());
        for (std::uint32_t i = 0; i < v.m_imageSize; ++i)
            if (v.m_imageData[i] == word)
                return true;
        return false;
    }
    for (const vhValue& e : v.m_elements)
        if (e == item)
            return true;
    return false;
}

vhValue vhValue::merge(const vhValue&) const
{
    // Reserved: no merge is defined for any pair of values.
    return vhValue();
}

bool vhValue::isDataAlignedWidh(const vhValue& other) const
{
    if (isDouble() && other.isDouble())
        return true;
    if (isComplex() && other.isComplex())
        return true;
    const vhValue& a = arrayGrade();
    const vhValue& b = other.arrayGrade();
    if (a.m_valueType == tagVector && b.m_valueType == tagVector)
        return a.vectorSize() == b.vectorSize() && a.isRowVector() == b.isRowVector();
    if (a.m_valueType == tagMatrix && b.m_valueType == tagMatrix)
        return a.m_rows == b.m_rows && a.m_columns == b.m_columns;
    return m_valueType >= tagSymbolicValue && m_valueType <= tagUnit && m_valueType == other.m_valueType;
}

vhValue vhValue::inverseMatrix() const
{
    const vhValue& v = arrayGrade();
    if (v.m_valueType != tagMatrix)
        return vhValue();
    return vhMatrix(v).inverse();
}

} // namespace ValueTypes
} // namespace VarnholtMath
