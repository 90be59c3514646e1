// The Hessenberg form of a square matrix by a unitary similarity.

#include <Eigen/Eigenvalues>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using linalg::ComplexMatrix;

vhValue vhMath::decHessenberg_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A) || A.matrixRows() != A.matrixColumns())
        return vhValue();
    return linalg::guardedFactorisation([&] {
        const ComplexMatrix M = linalg::toComplexMatrix(A);
        Eigen::HessenbergDecomposition<ComplexMatrix> hd(M);
        // H first, then Q: A = Q H Q'.
        const ComplexMatrix H = hd.matrixH();
        const ComplexMatrix Q = hd.matrixQ();
        return linalg::factorVector(linalg::fromComplexMatrix(H), linalg::fromComplexMatrix(Q));
    });
}

vhValue vhMath::decHessenbergH_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decHessenberg_f(A); });
}

vhValue vhMath::decHessenbergQ_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decHessenberg_f(A); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
