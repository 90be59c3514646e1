// The singular value decomposition by two-sided Jacobi rotations, after a
// column-pivoting QR for rectangular matrices.

#include <Eigen/SVD>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using linalg::ComplexMatrix;

vhValue vhMath::decSVD_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        const ComplexMatrix M = linalg::toComplexMatrix(A);
        linalg::checkFactorSize(M.rows(), M.rows());
        linalg::checkFactorSize(M.cols(), M.cols());
        Eigen::JacobiSVD<ComplexMatrix, Eigen::ColPivHouseholderQRPreconditioner> svd(
            M, Eigen::ComputeFullU | Eigen::ComputeFullV);
        // S as the matrix between U and V', with the shape of A, so that
        // A = U S V' holds as written.
        ComplexMatrix S = ComplexMatrix::Zero(M.rows(), M.cols());
        const Eigen::VectorXd& sigma = svd.singularValues();
        for (Eigen::Index i = 0; i < sigma.size(); ++i)
            S(i, i) = sigma(i);
        const ComplexMatrix U = svd.matrixU();
        const ComplexMatrix V = svd.matrixV();
        return linalg::factorVector(linalg::fromComplexMatrix(U), linalg::fromComplexMatrix(S), linalg::fromComplexMatrix(V));
    });
}

vhValue vhMath::decSVDU_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decSVD_f(A); });
}

vhValue vhMath::decSVDS_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decSVD_f(A); });
}

vhValue vhMath::decSVDV_f(const vhValue& A)
{
    return linalg::factorOf(A, 2, [&] { return decSVD_f(A); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
