// QR decompositions by Householder reflections, plain and with column
// pivoting, and the rank that the pivoting one reveals.

#include <Eigen/QR>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using linalg::ComplexMatrix;

vhValue vhMath::decQR_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        ComplexMatrix M = linalg::toComplexMatrix(A);
        linalg::checkFactorSize(M.rows(), M.rows());
        Eigen::HouseholderQR<linalg::InPlace> qr(M);
        // The full square Q, and R with the shape of A: A = Q R.
        const ComplexMatrix Q = qr.householderQ();
        const ComplexMatrix R = qr.matrixQR().triangularView<Eigen::Upper>();
        return linalg::factorVector(linalg::fromComplexMatrix(Q), linalg::fromComplexMatrix(R));
    });
}

vhValue vhMath::decQRQ_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decQR_f(A); });
}

vhValue vhMath::decQRR_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decQR_f(A); });
}

vhValue vhMath::decQRP_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        ComplexMatrix M = linalg::toComplexMatrix(A);
        linalg::checkFactorSize(M.rows(), M.rows());
        linalg::checkFactorSize(M.cols(), M.cols());
        const Eigen::Index columns = M.cols();
        Eigen::ColPivHouseholderQR<linalg::InPlace> qr(M);
        // A P = Q R.
        const ComplexMatrix Q = qr.householderQ();
        const ComplexMatrix R = qr.matrixQR().triangularView<Eigen::Upper>();
        const ComplexMatrix P = ComplexMatrix::Identity(columns, columns) * qr.colsPermutation();
        return linalg::factorVector(linalg::fromComplexMatrix(Q), linalg::fromComplexMatrix(R), linalg::fromComplexMatrix(P));
    });
}

vhValue vhMath::decQRPQ_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decQRP_f(A); });
}

vhValue vhMath::decQRPR_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decQRP_f(A); });
}

vhValue vhMath::decQRPP_f(const vhValue& A)
{
    return linalg::factorOf(A, 2, [&] { return decQRP_f(A); });
}

vhValue vhMath::rank_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    return linalg::guardedFactorisation([&]() -> vhValue {
        const unsigned int r = linalg::relativeRank(linalg::toComplexMatrix(A));
        return vhInteger(static_cast<int>(r));
    });
}

} // namespace ValueTypes
} // namespace VarnholtMath
