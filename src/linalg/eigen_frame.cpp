// The conversion frame between vhMatrix and the dense complex matrices of
// Eigen, shared by every decomposition.

#include "linalg/eigen_frame.h"

#include <Eigen/QR>

namespace VarnholtMath {
namespace ValueTypes {
namespace linalg {

namespace {
// Parts beyond the largest double are infinities or NaN; the decompositions
// cannot carry them, so the frame refuses them before any work starts.
inline bool isFinitePart(double v) { return v >= -1.7976931348623157e+308 && v <= 1.7976931348623157e+308; }
} // namespace

bool isNumericMatrix(const vhValue& A) { return !A.isNull() && A.isNumericVectorOrMatrix() && A.isMatrix(); }

ComplexMatrix toComplexMatrix(const vhValue& A)
{
    const unsigned int rows = A.matrixRows(), columns = A.matrixColumns();
    const double* re = A.numericValues();
    const double* im = A.numericImValues();
    if (!re || rows == 0 || columns == 0)
        throw frameFailure;
    ComplexMatrix M(rows, columns);
    for (unsigned int i = 0; i < rows; ++i)
        for (unsigned int j = 0; j < columns; ++j) {
            const std::size_t k = std::size_t(i) * columns + j;
            const double r = re[k], m = im ? im[k] : 0.0;
            if (!isFinitePart(r) || !isFinitePart(m))
                throw frameFailure;
            M(i, j) = std::complex<double>(r, m);
        }
    return M;
}

vhValue fromComplexMatrix(const ComplexMatrix& M)
{
    const Eigen::Index rows = M.rows(), columns = M.cols();
    if (rows <= 0 || columns <= 0 || rows > 0xFFFFFFFFll || columns > 0xFFFFFFFFll)
        throw frameFailure;
    bool complex = false;
    for (Eigen::Index j = 0; j < columns && !complex; ++j)
        for (Eigen::Index i = 0; i < rows; ++i)
            if (M(i, j).imag() != 0.0) {
                complex = true;
                break;
            }
    vhMatrix result(static_cast<unsigned int>(rows), static_cast<unsigned int>(columns), true, false, complex);
    double* re = result.numericValues();
    double* im = result.numericImValues();
    if (!re || (complex && !im))
        throw frameFailure;
    // Down the columns of the library's matrix, across the rows of ours.
    const std::complex<double>* source = M.data();
    for (Eigen::Index j = 0; j < columns; ++j)
        for (Eigen::Index i = 0; i < rows; ++i) {
            const std::size_t k = std::size_t(i) * std::size_t(columns) + std::size_t(j);
            const std::complex<double> z = source[std::size_t(j) * std::size_t(rows) + std::size_t(i)];
            re[k] = z.real();
            if (complex)
                im[k] = z.imag();
        }
    return vhValue(std::move(result));
}

void checkFactorSize(Eigen::Index rows, Eigen::Index columns)
{
    if (rows <= 0 || columns <= 0 ||
        static_cast<unsigned long long>(rows) * static_cast<unsigned long long>(columns) >
            maximumNumerOfMatrixElements())
        throw frameFailure;
}

vhValue packFactors(std::vector<vhValue>& factors)
{
    const unsigned int count = static_cast<unsigned int>(factors.size());
    vhVector result(count, true, true, false);
    // The first value that is no number turns the vector into one of
    // values; the factors then move into their places.
    result.setValue(vhSymbolicValue("_", false, std::vector<CharFormat>()), 0);
    for (unsigned int i = 0; i < count; ++i) {
        vhValue* slot = result.get_vector_index_address(i);
        if (!slot || factors[i].isNull())
            throw frameFailure;
        *slot = std::move(factors[i]);
    }
    if (result.vectorSize() != count)
        throw frameFailure;
    return vhValue(std::move(result));
}

unsigned int relativeRank(const ComplexMatrix& M)
{
    Eigen::ColPivHouseholderQR<ComplexMatrix> qr(M.rows(), M.cols());
    // One in a million of the largest pivot: rounding noise of measured data
    // does not count as an independent direction.
    qr.setThreshold(1e-6);
    qr.compute(M);
    return static_cast<unsigned int>(qr.rank());
}

} // namespace linalg
} // namespace ValueTypes
} // namespace VarnholtMath
