// Eigenvalues, diagonalisation, eigenvectors and the characteristic
// polynomial of a square matrix.

#include <vector>

#include <Eigen/Eigenvalues>

#include "frame/math.h"
#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {

using linalg::ComplexMatrix;

namespace {

bool isSquareNumericMatrix(const vhValue& A)
{
    return linalg::isNumericMatrix(A) && A.matrixRows() == A.matrixColumns();
}

// Parts closer to zero than this are rounding noise of the solver: a real
// eigenvalue should come back real, and a zero eigenvalue as zero.
double cleanPart(double v) { return (v > -1e-15 && v < 1e-15) ? 0.0 : v; }

// How many eigenvalues equal each eigenvalue, with the comparison of values.
std::vector<int> algebraicMultiplicities(const vhValue& roots)
{
    const unsigned int n = roots.vectorSize();
    std::vector<vhValue> values;
    values.reserve(n);
    for (unsigned int i = 0; i < n; ++i)
        values.push_back(roots.value(i));
    std::vector<int> counts(n, 0);
    for (unsigned int i = 0; i < n; ++i)
        for (unsigned int j = 0; j < n; ++j)
            if (values[i] == values[j])
                ++counts[i];
    return counts;
}

// The dimension of each eigenvalue's eigenspace: the size less the rank of
// A - e I, with the rank's relative threshold.
std::vector<int> geometricMultiplicities(const ComplexMatrix& M, const vhValue& roots)
{
    const unsigned int n = roots.vectorSize();
    std::vector<int> counts(n, 0);
    for (unsigned int i = 0; i < n; ++i) {
        const std::complex<double> e = roots.value(i).toComplex();
        ComplexMatrix shifted = M;
        shifted.diagonal().array() -= e;
        counts[i] = int(M.rows()) - int(linalg::relativeRank(shifted));
    }
    return counts;
}

} // namespace

vhValue vhMath::characteristicPolynomialRoots_f(const vhValue& A)
{
    if (!isSquareNumericMatrix(A))
        return vhValue();
    return linalg::guardedFactorisation([&]() -> vhValue {
        const ComplexMatrix M = linalg::toComplexMatrix(A);
        Eigen::ComplexEigenSolver<ComplexMatrix> solver(M, false);
        if (solver.info() != Eigen::Success)
            return vhValue();
        const Eigen::VectorXcd& lambda = solver.eigenvalues();
        const unsigned int n = static_cast<unsigned int>(lambda.size());
        bool complex = false;
        std::vector<double> re(n), im(n);
        for (unsigned int i = 0; i < n; ++i) {
            re[i] = cleanPart(lambda(i).real());
            im[i] = cleanPart(lambda(i).imag());
            complex = complex || im[i] != 0.0;
        }
        vhVector roots(n, false, true, complex);
        double* r = roots.numericValues();
        double* m = roots.numericImValues();
        if (!r || (complex && !m))
            return vhValue();
        for (unsigned int i = 0; i < n; ++i) {
            r[i] = re[i];
            if (complex)
                m[i] = im[i];
        }
        return roots;
    });
}

vhValue vhMath::diagonalization_f(const vhValue& A)
{
    if (!isSquareNumericMatrix(A))
        return vhValue();
    const vhValue roots = characteristicPolynomialRoots_f(A);
    if (roots.isNull() || !roots.isVector())
        return vhValue();
    return linalg::guardedFactorisation([&]() -> vhValue {
        const ComplexMatrix M = linalg::toComplexMatrix(A);
        // A defective matrix, whose eigenvectors span less than the whole
        // space, has no diagonal form.
        if (algebraicMultiplicities(roots) != geometricMultiplicities(M, roots))
            return vhValue();
        Eigen::ComplexEigenSolver<ComplexMatrix> solver(M, true);
        if (solver.info() != Eigen::Success)
            return vhValue();
        const ComplexMatrix D = solver.eigenvalues().asDiagonal();
        const ComplexMatrix P = solver.eigenvectors();
        return linalg::factorVector(linalg::fromComplexMatrix(D), linalg::fromComplexMatrix(P));
    });
}

vhValue vhMath::diagonalizationD_f(const vhValue& A)
{
    return linalg::factorOf(A, 0, [&] { return diagonalization_f(A); });
}

vhValue vhMath::diagonalizationP_f(const vhValue& A)
{
    return linalg::factorOf(A, 1, [&] { return diagonalization_f(A); });
}

vhValue vhMath::eigenVectors_f(const vhValue& A)
{
    const vhValue P = diagonalizationP_f(A);
    if (P.isNull() || !P.isMatrix())
        return vhValue();
    const unsigned int columns = P.matrixColumns();
    vhVector vectors(columns, true, true, false);
    for (unsigned int j = 0; j < columns; ++j) {
        // Already a column vector, top to bottom.
        const vhValue column = P.getMatrixColumnAsVector(j);
        if (column.isNull())
            return vhValue();
        vectors.setValue(column, j);
    }
    return vectors;
}

vhValue vhMath::charpoly_f(const vhValue& A, const vhValue& x)
{
    if (A.isNull() || x.isNull() || !A.isMatrix() || !x.isSymbol())
        return vhValue();
    const unsigned int n = A.matrixRows();
    if (n == 0 || n != A.matrixColumns())
        return vhValue();
    // det(x I - A), expanded by the determinant of symbolic matrices.
    vhMatrix xI(vhDouble(0.0), n, n);
    for (unsigned int i = 0; i < n; ++i)
        xI.setValue(x, i, i);
    return matrixDeterminant_f(xI - A);
}

} // namespace ValueTypes
} // namespace VarnholtMath
