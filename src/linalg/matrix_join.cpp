// Joining arrays: the rows of two arrays with the same number of columns.

#include <cstring>

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
bool isArray(const vhValue& v) { return !v.isNull() && (v.isVector() || v.isMatrix()); }
} // namespace

vhValue vhMath::joinMatrixRows_f(const vhValue& a, const vhValue& b)
{
    if (!isArray(a) || !isArray(b))
        return vhValue();
    const unsigned int columns = a.matrixColumns();
    if (columns == 0 || columns != b.matrixColumns())
        return vhValue();
    const unsigned long long rows = static_cast<unsigned long long>(a.matrixRows()) + b.matrixRows();
    if (rows * columns > maximumNumerOfMatrixElements() || rows > 0xFFFFFFFFull)
        return vhValue();
    const unsigned int r = static_cast<unsigned int>(rows);
    const unsigned int na = a.vectorSize(), nb = b.vectorSize();

    if (a.isNumericVectorOrMatrix() && b.isNumericVectorOrMatrix()) {
        const bool complex = a.numericImValues() || b.numericImValues();
        vhMatrix joined(r, columns, true, false, complex);
        double* re = joined.numericValues();
        if (!re)
            return vhValue();
        std::memcpy(re, a.numericValues(), sizeof(double) * na);
        std::memcpy(re + na, b.numericValues(), sizeof(double) * nb);
        if (complex) {
            double* im = joined.numericImValues();
            if (a.numericImValues())
                std::memcpy(im, a.numericImValues(), sizeof(double) * na);
            if (b.numericImValues())
                std::memcpy(im + na, b.numericImValues(), sizeof(double) * nb);
        }
        return joined;
    }

    vhMatrix joined(r, columns, false, false, false);
    for (unsigned int i = 0; i < na; ++i)
        joined.setValue(a.value(i), i);
    for (unsigned int i = 0; i < nb; ++i)
        joined.setValue(b.value(i), na + i);
    return joined;
}

} // namespace ValueTypes
} // namespace VarnholtMath
