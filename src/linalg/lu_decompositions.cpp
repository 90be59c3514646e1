// LU decompositions: the plain Doolittle elimination without pivoting, and
// Eigen's fully pivoting LU for matrices that need row or column exchanges.

#include <Eigen/LU>

#include "frame/math.h"
#include "linalg/eigen_frame.h"
#include "linalg/lu_kernel.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

using linalg::ComplexMatrix;

// Up to this size the invertibility test is the cofactor inverse itself.
// Its cost grows with the factorial of the size, so larger matrices answer
// the same question from the factorisation that follows: a pivot that is
// exactly zero.
const unsigned int cofactorTestLimit = 6;

bool hasCofactorInverse(const vhValue& A) { return !A.inverseMatrix().isNull(); }

} // namespace

vhValue vhMath::decLU_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    const unsigned int n = A.matrixRows();
    if (n == 0 || n != A.matrixColumns())
        return vhValue();
    if (n <= cofactorTestLimit && !hasCofactorInverse(A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        const ComplexMatrix M = linalg::toComplexMatrix(A);
        ComplexMatrix L, U;
        if (!linalg::doolittle(M, L, U))
            throw linalg::frameFailure;
        // The elimination never divides by the last pivot; a zero there
        // means a singular matrix, which has no inverse.
        if (n > cofactorTestLimit && U(n - 1, n - 1) == std::complex<double>(0.0, 0.0))
            throw linalg::frameFailure;
        return linalg::factorVector(linalg::fromComplexMatrix(L), linalg::fromComplexMatrix(U));
    });
}

vhValue vhMath::decLUL_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decLU_f(A); });
}

vhValue vhMath::decLUU_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decLU_f(A); });
}

vhValue vhMath::decLUPQ_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    const unsigned int n = A.matrixRows();
    if (n == 0 || n != A.matrixColumns())
        return vhValue();
    if (n <= cofactorTestLimit && !hasCofactorInverse(A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        ComplexMatrix M = linalg::toComplexMatrix(A);
        Eigen::FullPivLU<linalg::InPlace> lu(M);
        // A pivot that is exactly zero: the matrix is singular.
        if (lu.nonzeroPivots() != Eigen::Index(n))
            throw linalg::frameFailure;
        const auto& packed = lu.matrixLU();
        ComplexMatrix L = ComplexMatrix::Identity(n, n);
        L.triangularView<Eigen::StrictlyLower>() = packed.triangularView<Eigen::StrictlyLower>();
        ComplexMatrix U = packed.triangularView<Eigen::Upper>();
        const ComplexMatrix I = ComplexMatrix::Identity(n, n);
        // P A Q = L U.
        const ComplexMatrix P = lu.permutationP() * I;
        const ComplexMatrix Q = I * lu.permutationQ();
        return linalg::factorVector(linalg::fromComplexMatrix(L), linalg::fromComplexMatrix(U),
                                     linalg::fromComplexMatrix(P), linalg::fromComplexMatrix(Q));
    });
}

vhValue vhMath::decLUPQL_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decLUPQ_f(A); });
}

vhValue vhMath::decLUPQU_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decLUPQ_f(A); });
}

vhValue vhMath::decLUPQP_f(const vhValue& A)
{
    return linalg::factorOf(A, 2, [&] { return decLUPQ_f(A); });
}

vhValue vhMath::decLUPQQ_f(const vhValue& A)
{
    return linalg::factorOf(A, 3, [&] { return decLUPQ_f(A); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
