// Two array helpers of the transforms: reversing a vector or the rows or
// columns of a matrix, and the real part of numbers and arrays.

#include <cstring>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue vhMath::flip_f(const vhValue& v, const vhValue& direction)
{
    if (v.isNull() || direction.isNull())
        return vhValue();
    vhValue holder;
    const bool array = elementwise::isArray(v);
    if ((!array && v.isSymbolic()) || direction.isSymbolic())
        return elementwise::symbolicCall(nt_flip, {v, direction});
    // 1 reverses the elements of every column, 2 those of every row; a
    // vector is reversed by either.
    if (!array || !direction.isInteger() || (direction.toInt() != 1 && direction.toInt() != 2))
        return vhValue();
    const vhValue& a = elementwise::arrayOf(v, holder);
    const unsigned int rows = a.matrixRows(), columns = a.matrixColumns(), n = a.vectorSize();
    const bool isVector = a.valueType() == tagVector;
    const bool columnsReversed = direction.toInt() == 1;
    auto source = [&](unsigned int k) -> unsigned int {
        if (isVector)
            return n - 1 - k;
        const unsigned int i = k / columns, j = k % columns;
        return columnsReversed ? (rows - 1 - i) * columns + j : i * columns + (columns - 1 - j);
    };
    if (n == 0 || (!isVector && std::uint64_t(rows) * columns != n))
        return vhValue();
    vhValue result = a;
    const double* re = a.numericValues();
    if (re && result.numericValues()) {
        const double* im = a.numericImValues();
        double* outRe = result.numericValues();
        double* outIm = result.numericImValues();
        for (unsigned int k = 0; k < n; ++k) {
            outRe[k] = re[source(k)];
            if (im && outIm)
                outIm[k] = im[source(k)];
        }
        return result;
    }
    for (unsigned int k = 0; k < n; ++k)
        result.setValue(a.value(source(k)), k);
    return result;
}

vhValue vhMath::complexRe_f(const vhValue& z)
{
    if (z.isNull())
        return vhValue();
    if (z.isSymbolic())
        return elementwise::symbolicCall(nt_complexRe, {z});
    if (elementwise::isArray(z)) {
        vhValue holder;
        const vhValue& a = elementwise::arrayOf(z, holder);
        if (const double* re = a.numericValues()) {
            const unsigned int n = a.vectorSize();
            vhValue result = a.valueType() == tagMatrix
                                 ? vhValue(vhMatrix(a.matrixRows(), a.matrixColumns(), true, false, false))
                                 : vhValue(vhVector(n, a.matrixRows() == 1 && n != 0, true, false));
            if (result.numericValues() && result.vectorSize() == n) {
                std::memcpy(result.numericValues(), re, sizeof(double) * n);
                return result;
            }
        }
        return elementwise::mapElements(a, [this](const vhValue& e) { return complexRe_f(e); });
    }
    if (z.isComplex())
        return vhDouble(z.complexRe());
    if (z.isDouble())
        return z;
    return vhValue();
}

} // namespace ValueTypes
} // namespace VarnholtMath
