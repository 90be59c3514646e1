// The determinant of a square matrix, numeric or symbolic.

#include <Eigen/LU>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
// Up to this size the determinant is the cofactor expansion, exact in the
// operators of the elements. A numeric matrix beyond it takes a pivoting LU
// factorisation: the expansion's cost grows with the factorial of the size.
const unsigned int expansionLimit = 6;
} // namespace

vhValue vhMath::matrixDeterminant_f(const vhValue& A)
{
    if (A.isNull() || !A.isMatrix())
        return vhValue();
    const unsigned int n = A.matrixRows();
    if (n == 0 || n != A.matrixColumns())
        return vhValue();
    if (n <= expansionLimit || !A.isNumericVectorOrMatrix())
        return vhMatrix(expressionToValue(A)).determinant();
    return linalg::guardedFactorisation([&]() -> vhValue {
        const linalg::ComplexMatrix M = linalg::toComplexMatrix(A);
        const std::complex<double> d = Eigen::PartialPivLU<linalg::ComplexMatrix>(M).determinant();
        if (!A.numericImValues())
            return vhDouble(d.real());
        return vhComplex(d);
    });
}

} // namespace ValueTypes
} // namespace VarnholtMath
