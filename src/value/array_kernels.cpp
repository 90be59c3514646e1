// Shared pieces of the vector and matrix classes.

#include <limits>

#include "value/array_kernels.h"
#include "value/dense_kernels.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

// Two whole 32-bit numbers multiply as integers, wrapping around, just as
// their element values do; any other pair multiplies as doubles.
double elementProduct(double x, double y)
{
    const std::int32_t a = internal::cutToInt32(x), b = internal::cutToInt32(y);
    if (double(a) == x && double(b) == y)
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
    return x * y;
}

void conjugateAll(vhValue& array)
{
    if (double* im = array.numericImValues()) {
        dense::negate(im, im, array.vectorSize());
        return;
    }
    if (array.numericValues() || array.isImage())
        return;
    const unsigned int n = array.vectorSize();
    for (unsigned int i = 0; i < n; ++i) {
        vhValue* e = array.get_vector_index_address(i);
        if (e && e->isComplex())
            *e = vhComplex(e->complexRe(), -e->complexIm());
    }
}

vhValue elementwise(const vhValue& a, const vhValue& b, bool divide)
{
    // One named result, built in place and never copied on return.
    vhValue result;
    if (a.isNull() || b.isNull())
        return result;
    const unsigned int rows = a.matrixRows(), columns = a.matrixColumns();
    if (rows != b.matrixRows() || columns != b.matrixColumns() || rows == 0 || columns == 0)
        return result;
    if (a.valueType() == tagVector)
        result.setValue(vhVector(rows * columns, rows == 1, true, false));
    else
        result.setValue(vhMatrix(rows, columns, true, false, false));
    const unsigned int n = rows * columns;
    const double* x = a.numericValues();
    const double* y = b.numericValues();
    double* r = result.numericValues();
    if (x && y && r && !a.numericImValues() && !b.numericImValues() && a.vectorSize() == n && b.vectorSize() == n) {
        // Real numeric arrays: the same numbers as the element path, where a
        // division by an exact zero has no result and stores a NaN.
        for (unsigned int i = 0; i < n; ++i) {
            if (divide)
                r[i] = y[i] == 0.0 ? std::numeric_limits<double>::quiet_NaN() : x[i] / y[i];
            else
                r[i] = elementProduct(x[i], y[i]);
        }
        return result;
    }
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue e = a.value(i);
        result.setValue(divide ? e.divide(b.value(i)) : e.multiply(b.value(i)), i);
    }
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
