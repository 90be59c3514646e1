// Reading image and real-array arguments; fresh result arrays.

#include "image/image_arguments.h"

#include <cstring>

namespace VarnholtMath {
namespace ValueTypes {

bool readImage(const vhValue& v, ImageArgument& image)
{
    const unsigned int* pixels = v.imageValues();
    if (!pixels)
        return false;
    const unsigned rows = v.matrixRows(), columns = v.matrixColumns();
    if (rows == 0 || columns == 0 || std::uint64_t(rows) * columns != v.vectorSize())
        return false;
    image.pixels = pixels;
    image.rows = rows;
    image.columns = columns;
    image.dpi = imageDpi(v);
    return true;
}

unsigned imageDpi(const vhValue& v)
{
    if (v.valueType() == tagExpression && v.expressionValuesSize() == 1)
        return imageDpi(v.expressionValues().front());
    return v.dpi();
}

bool readRealArray(const vhValue& v, std::vector<double>& values, unsigned& rows, unsigned& columns)
{
    if (v.isNull() || !(v.isVector() || v.isMatrix()) || v.isImage() || v.numericImValues())
        return false;
    rows = v.matrixRows();
    columns = v.matrixColumns();
    const unsigned n = v.vectorSize();
    if (rows == 0 || columns == 0 || std::uint64_t(rows) * columns != n)
        return false;
    values.resize(n);
    if (const double* re = v.numericValues()) {
        std::memcpy(values.data(), re, sizeof(double) * n);
        return true;
    }
    for (unsigned i = 0; i < n; ++i) {
        // Only real elements: a complex element or a symbol is no number here.
        const vhValue e = v.value(i);
        if (!e.isDouble())
            return false;
        values[i] = e.toDouble();
    }
    return true;
}

bool sizeAllowed(std::uint64_t rows, std::uint64_t columns)
{
    return rows > 0 && columns > 0 && rows <= 0xFFFFFFFFull && columns <= 0xFFFFFFFFull &&
           rows * columns <= maximumNumerOfMatrixElements();
}

vhValue wholeNumber(std::uint64_t n)
{
    if (n <= 2147483647u)
        return vhInteger(int(n));
    return vhDouble(double(n));
}

FreshImage::FreshImage(unsigned rows, unsigned columns, unsigned dpi)
{
    m_image = true;
    if (!reserveStorage(rows, columns, false)) {
        m_image = false;
        return;
    }
    setDpi(dpi);
}

FreshNumericMatrix::FreshNumericMatrix(unsigned rows, unsigned columns)
{
    // Cleared storage: a large block comes zeroed from the system, so the
    // imaginary half costs nothing until it is read.
    m_numeric = true;
    if (!reserveStorage(rows, columns, true))
        m_numeric = false;
}

} // namespace ValueTypes
} // namespace VarnholtMath
