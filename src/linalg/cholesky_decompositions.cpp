// Cholesky factorisations of Hermitian positive definite matrices, and the
// two tests that admit a matrix to them.

#include <cmath>

#include <Eigen/Cholesky>
#include <Eigen/Eigenvalues>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using linalg::ComplexMatrix;

namespace {

// All eigenvalues of the Hermitian matrix M positive. An eigenvalue within
// rounding of zero, relative to the largest, is not taken as positive: a
// singular matrix stays out whatever sign the rounding gave it.
bool hasPositiveSpectrum(const ComplexMatrix& M)
{
    Eigen::SelfAdjointEigenSolver<ComplexMatrix> solver(M, Eigen::EigenvaluesOnly);
    if (solver.info() != Eigen::Success)
        throw linalg::frameFailure;
    const Eigen::VectorXd& lambda = solver.eigenvalues();
    const double largest = lambda.cwiseAbs().maxCoeff();
    const double noise = double(M.rows()) * 2.220446049250313e-16 * largest;
    for (Eigen::Index i = 0; i < lambda.size(); ++i)
        if (!(lambda(i) > noise))
            return false;
    return true;
}

// The first of the two admission tests of the factorisations; the second,
// positive definiteness, runs on the converted copy that is then factored,
// which gives the answer of positiveDefinite_f without converting twice.
// The factorisations do not look at their own success flag afterwards; the
// tests are the guard.
bool isHermitianMatrix(vhMath& math, const vhValue& A)
{
    const vhValue hermitian = math.isHermitian_f(A);
    return hermitian.isBoolean() && hermitian.toBool();
}

bool isNumber(const vhValue& v) { return !v.isNull() && v.valueType() <= tagComplex; }

} // namespace

vhValue vhMath::isHermitian_f(const vhValue& A)
{
    if (A.isNull() || !A.isMatrix())
        return vhValue();
    const unsigned int n = A.matrixRows();
    if (n != A.matrixColumns())
        return vhBoolean(false);
    if (A.isNumericVectorOrMatrix()) {
        const double* re = A.numericValues();
        const double* im = A.numericImValues();
        // NaN and infinite entries make no matrix that could be factored:
        // the question has no answer.
        for (std::size_t k = 0, size = std::size_t(n) * n; k < size; ++k)
            if (!std::isfinite(re[k]) || (im && !std::isfinite(im[k])))
                return vhValue();
        // Exact equality: a matrix built as B B' or written out by hand is
        // Hermitian to the last bit, and the Cholesky factorisations that
        // trust this test read only one triangle.
        for (unsigned int i = 0; i < n; ++i)
            for (unsigned int j = i; j < n; ++j) {
                const std::size_t ij = std::size_t(i) * n + j, ji = std::size_t(j) * n + i;
                if (!(re[ij] == re[ji]))
                    return vhBoolean(false);
                if (im && !(im[ij] == -im[ji]))
                    return vhBoolean(false);
            }
        return vhBoolean(true);
    }
    // Elements held as values: numbers compare with the conjugate, anything
    // symbolic is taken as real and must equal its mirror image.
    for (unsigned int i = 0; i < n; ++i)
        for (unsigned int j = i; j < n; ++j) {
            const vhValue a = A.value(i, j), b = A.value(j, i);
            if (isNumber(a) && isNumber(b)) {
                if (!(a.toComplex() == std::conj(b.toComplex())))
                    return vhBoolean(false);
            } else if (a.isNull() || b.isNull() || !(a == b)) {
                return vhBoolean(false);
            }
        }
    return vhBoolean(true);
}

vhValue vhMath::positiveDefinite_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A))
        return vhValue();
    // Undefined for NaN and infinite entries, false when not Hermitian.
    const vhValue hermitian = isHermitian_f(A);
    if (hermitian.isNull())
        return vhValue();
    if (!hermitian.toBool())
        return vhBoolean(false);
    return linalg::guardedFactorisation(
        [&]() -> vhValue { return vhBoolean(hasPositiveSpectrum(linalg::toComplexMatrix(A))); });
}

vhValue vhMath::decCholesky_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A) || !isHermitianMatrix(*this, A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        ComplexMatrix M = linalg::toComplexMatrix(A);
        if (!hasPositiveSpectrum(M))
            throw linalg::frameFailure;
        Eigen::LLT<linalg::InPlace> llt(M);
        const ComplexMatrix L = llt.matrixL();
        return linalg::fromComplexMatrix(L);
    });
}

vhValue vhMath::decCholeskyLDP_f(const vhValue& A)
{
    if (!linalg::isNumericMatrix(A) || !isHermitianMatrix(*this, A))
        return vhValue();
    return linalg::guardedFactorisation([&] {
        ComplexMatrix M = linalg::toComplexMatrix(A);
        if (!hasPositiveSpectrum(M))
            throw linalg::frameFailure;
        const Eigen::Index n = M.rows();
        Eigen::LDLT<linalg::InPlace> ldlt(M);
        const ComplexMatrix L = ldlt.matrixL();
        const ComplexMatrix D = ldlt.vectorD().asDiagonal();
        // P A P' = L D L'.
        const ComplexMatrix P = ldlt.transpositionsP() * ComplexMatrix::Identity(n, n);
        return linalg::factorVector(linalg::fromComplexMatrix(L), linalg::fromComplexMatrix(D), linalg::fromComplexMatrix(P));
    });
}

vhValue vhMath::decCholeskyLDPL_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return decCholeskyLDP_f(A); });
}

vhValue vhMath::decCholeskyLDPD_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return decCholeskyLDP_f(A); });
}

vhValue vhMath::decCholeskyLDPP_f(const vhValue& A)
{
    return linalg::factorOf(A, 2, [&] { return decCholeskyLDP_f(A); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
