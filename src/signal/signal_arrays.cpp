// Split real and imaginary arrays of the transforms, read from and written
// to worksheet arrays.

#include "signal/signal_arrays.h"

#include <cmath>
#include <cstring>

#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {
bool finite(double d) { return std::isfinite(d); }
} // namespace

const vhValue* arrayBehind(const vhValue& v, vhValue& holder)
{
    if (!elementwise::isArray(v))
        return nullptr;
    return &elementwise::arrayOf(v, holder);
}

Read readSamples(const vhValue& array, Samples& out)
{
    const unsigned int n = array.vectorSize();
    out.rows = array.matrixRows();
    out.columns = array.matrixColumns();
    out.rowVector = out.rows == 1 && n != 0;
    out.re.assign(n, 0.0);
    out.im.assign(n, 0.0);
    out.complex = false;
    const double* re = array.numericValues();
    if (re) {
        std::memcpy(out.re.data(), re, sizeof(double) * n);
        if (const double* im = array.numericImValues()) {
            std::memcpy(out.im.data(), im, sizeof(double) * n);
            out.complex = true;
        }
        for (unsigned int i = 0; i < n; ++i)
            if (!finite(out.re[i]) || !finite(out.im[i]))
                return Read::undefined;
        return Read::ok;
    }
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue e = array.value(i);
        if (e.isSymbolic())
            return Read::held;
        if (e.isNull() || e.valueType() > tagComplex)
            return Read::undefined;
        if (e.isComplex()) {
            out.re[i] = e.complexRe();
            out.im[i] = e.complexIm();
            out.complex = true;
        } else {
            out.re[i] = e.toDouble();
        }
        if (!finite(out.re[i]) || !finite(out.im[i]))
            return Read::undefined;
    }
    return Read::ok;
}

vhValue complexVector(const double* re, const double* im, unsigned int n, bool row)
{
    vhVector v(n, row, true, true);
    if (n == 0 || !v.numericValues() || !v.numericImValues())
        return vhValue();
    std::memcpy(v.numericValues(), re, sizeof(double) * n);
    std::memcpy(v.numericImValues(), im, sizeof(double) * n);
    return v;
}

vhValue complexMatrix(const double* re, const double* im, unsigned int rows, unsigned int columns)
{
    vhMatrix m(rows, columns, true, false, true);
    const std::size_t n = std::size_t(rows) * columns;
    if (n == 0 || !m.numericValues() || !m.numericImValues())
        return vhValue();
    std::memcpy(m.numericValues(), re, sizeof(double) * n);
    std::memcpy(m.numericImValues(), im, sizeof(double) * n);
    return m;
}

vhValue realVector(const double* re, unsigned int n, bool row)
{
    vhVector v(n, row, true, false);
    if (n == 0 || !v.numericValues())
        return vhValue();
    std::memcpy(v.numericValues(), re, sizeof(double) * n);
    return v;
}

bool readCount(const vhValue& v, unsigned int limit, unsigned int& out)
{
    if (!v.isInteger())
        return false;
    const int k = v.toInt();
    if (k <= 0 || static_cast<unsigned int>(k) > limit)
        return false;
    out = static_cast<unsigned int>(k);
    return true;
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
