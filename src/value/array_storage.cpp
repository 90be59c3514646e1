// Storage of vectors and matrices: the numeric block (real half, then
// imaginary half), the image block of packed pixels, or a list of elements.

#include <cstdlib>
#include <cstring>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
unsigned int g_maximumNumerOfMatrixElements = 2147483647u;
}

void setMaximumNumerOfMatrixElements(unsigned int n) { g_maximumNumerOfMatrixElements = n; }
unsigned int maximumNumerOfMatrixElements() { return g_maximumNumerOfMatrixElements; }

bool vhValue::allocateMatrix(unsigned int rows, unsigned int columns)
{
    if (rows == 0 || columns == 0)
        return false;
    m_rows = 0;
    m_columns = 0;
    // The element count is a 32-bit product, as everywhere in the arrays.
    const std::uint32_t n = rows * columns;
    if (m_numeric) {
        const std::uint32_t oldSize = m_numericSize;
        m_numericSize = 0;
        double* block = static_cast<double*>(std::malloc(sizeof(double) * 2 * std::size_t(n)));
        if (!block) {
            std::free(m_numericData);
            m_numericData = nullptr;
            return false;
        }
        std::memset(block, 0, sizeof(double) * 2 * std::size_t(n));
        // Growing keeps the linear content; the same size or a smaller one
        // starts from zeros.
        if (m_numericData && oldSize != 0 && oldSize < n) {
            std::memcpy(block, m_numericData, sizeof(double) * oldSize);
            std::memcpy(block + n, m_numericData + oldSize, sizeof(double) * oldSize);
        }
        std::free(m_numericData);
        m_numericData = block;
        m_numericSize = n;
    } else if (m_image) {
        std::free(m_imageData);
        m_imageSize = 0;
        m_imageData = static_cast<std::uint32_t*>(std::malloc(sizeof(std::uint32_t) * std::size_t(n)));
        if (!m_imageData)
            return false;
        std::memset(m_imageData, 0xFF, sizeof(std::uint32_t) * std::size_t(n));
        m_imageSize = n;
    } else {
        m_elements.resize(n);
    }
    m_rows = rows;
    m_columns = columns;
    if (m_columnNames.size() != columns)
        m_columnNames.clear();
    if (m_rowNames.size() != rows)
        m_rowNames.clear();
    return true;
}

bool vhValue::reserveStorage(unsigned int rows, unsigned int columns, bool clearContent)
{
    if (rows == 0 || columns == 0)
        return false;
    const std::uint32_t n = rows * columns;
    m_rows = 0;
    m_columns = 0;
    if (m_numeric) {
        std::free(m_numericData);
        m_numericSize = 0;
        // Two separate calls: a malloc followed by a memset under a condition
        // may otherwise be merged into a calloc that clears every time.
        const std::size_t bytes = sizeof(double) * 2 * std::size_t(n);
        if (clearContent)
            m_numericData = static_cast<double*>(std::calloc(1, bytes));
        else
            m_numericData = static_cast<double*>(std::malloc(bytes));
        if (!m_numericData)
            return false;
        m_numericSize = n;
    } else if (m_image) {
        std::free(m_imageData);
        m_imageSize = 0;
        m_imageData = static_cast<std::uint32_t*>(std::malloc(sizeof(std::uint32_t) * std::size_t(n)));
        if (!m_imageData)
            return false;
        if (clearContent)
            std::memset(m_imageData, 0xFF, sizeof(std::uint32_t) * std::size_t(n));
        m_imageSize = n;
    } else {
        m_elements.clear();
        m_elements.resize(n);
    }
    m_rows = rows;
    m_columns = columns;
    if (m_columnNames.size() != columns)
        m_columnNames.clear();
    if (m_rowNames.size() != rows)
        m_rowNames.clear();
    return true;
}

unsigned int vhValue::matrixRows() const { return arrayGrade().m_rows; }
unsigned int vhValue::matrixColumns() const { return arrayGrade().m_columns; }

unsigned int vhValue::vectorSize() const
{
    const vhValue& v = arrayGrade();
    if (v.m_valueType != tagVector && v.m_valueType != tagMatrix)
        return 0;
    if (v.m_numeric)
        return v.m_numericSize;
    if (v.m_image)
        return v.m_imageSize;
    return static_cast<unsigned int>(v.m_elements.size());
}

unsigned int vhValue::size() const { return vectorSize(); }

double* vhValue::numericValues() const
{
    const vhValue& v = arrayGrade();
    if ((v.m_valueType == tagVector || v.m_valueType == tagMatrix) && v.m_numeric)
        return v.m_numericData;
    return nullptr;
}

double* vhValue::numericImValues() const
{
    const vhValue& v = arrayGrade();
    if ((v.m_valueType == tagVector || v.m_valueType == tagMatrix) && v.m_numeric && v.m_numericComplex &&
        v.m_numericData)
        return v.m_numericData + v.m_numericSize;
    return nullptr;
}

unsigned int* vhValue::imageValues() const
{
    const vhValue& v = arrayGrade();
    if (v.m_valueType == tagMatrix && v.m_image)
        return v.m_imageData;
    return nullptr;
}

} // namespace ValueTypes
} // namespace VarnholtMath
