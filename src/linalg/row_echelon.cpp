// The reduced row echelon form by Gauss-Jordan elimination.

#include <vector>

#include "frame/math.h"
#include "frame/node_type.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue vhMath::matRREForm_f(const vhValue& A)
{
    if (A.isNull() || !A.isMatrix())
        return vhValue();
    if (A.isSymbolic())
        return vhSymbolicFunction(nt_matRREForm, std::vector<vhValue>{A});
    const unsigned int rows = A.matrixRows(), columns = A.matrixColumns();
    if (rows == 0 || columns == 0)
        return vhValue();
    std::vector<vhValue> m;
    m.reserve(std::size_t(rows) * columns);
    for (unsigned int i = 0; i < rows; ++i)
        for (unsigned int j = 0; j < columns; ++j) {
            const vhValue e = A.value(i, j);
            if (e.isNull() || e.valueType() > tagComplex || e.isPointer() || e.complexIm() != 0.0)
                return vhValue();
            const double d = e.toDouble();
            if (!(d >= -1.7976931348623157e+308 && d <= 1.7976931348623157e+308))
                return vhValue();
            m.push_back(vhDouble(d));
        }
    auto at = [&](unsigned int i, unsigned int j) -> vhValue& { return m[std::size_t(i) * columns + j]; };

    unsigned int lead = 0;
    for (unsigned int c = 0; c < columns && lead < rows; ++c) {
        // The first row from the lead row down with a non-zero entry; no
        // tolerance, so an entry of rounding size still counts as a pivot.
        unsigned int p = lead;
        while (p < rows && !(at(p, c) != 0.0))
            ++p;
        if (p == rows)
            continue;
        if (p != lead)
            for (unsigned int j = 0; j < columns; ++j)
                std::swap(at(p, j), at(lead, j));
        const vhValue pivot = at(lead, c);
        for (unsigned int j = 0; j < columns; ++j)
            at(lead, j) = at(lead, j) / pivot;
        for (unsigned int i = 0; i < rows; ++i) {
            if (i == lead)
                continue;
            const vhValue factor = at(i, c);
            for (unsigned int j = 0; j < columns; ++j)
                at(i, j) = at(i, j) - at(lead, j) * factor;
        }
        ++lead;
    }

    vhMatrix result(rows, columns, true, false, false);
    double* out = result.numericValues();
    if (!out)
        return vhValue();
    for (std::size_t k = 0; k < m.size(); ++k)
        out[k] = m[k].toDouble();
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
