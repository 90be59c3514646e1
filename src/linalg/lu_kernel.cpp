// Doolittle's scheme, row by row: the elements of row i of U and L follow
// from the rows above, each as the matrix element less the dot product of
// what is already known.

#include "linalg/lu_kernel.h"

#include <vector>

namespace VarnholtMath {
namespace ValueTypes {
namespace linalg {

namespace {
// An infinite or NaN partial sum would spread through every later element.
inline bool isFinitePart(double v) { return v >= -1.7976931348623157e+308 && v <= 1.7976931348623157e+308; }
} // namespace

bool doolittle(const ComplexMatrix& A, ComplexMatrix& L, ComplexMatrix& U)
{
    typedef std::complex<double> C;
    const Eigen::Index n = A.rows();
    if (n == 0 || n != A.cols())
        return false;
    // L is read along its rows and U down its columns: L is kept row by row
    // and U column by column, so that both dot products run over adjacent
    // numbers.
    std::vector<C> lRows(std::size_t(n) * n, C(0.0, 0.0));
    std::vector<C> uColumns(std::size_t(n) * n, C(0.0, 0.0));
    for (Eigen::Index i = 0; i < n; ++i) {
        const C* li = lRows.data() + std::size_t(i) * n;
        for (Eigen::Index j = 0; j < n; ++j) {
            const C* uj = uColumns.data() + std::size_t(j) * n;
            const Eigen::Index m = i < j ? i : j;
            C sum(0.0, 0.0);
            for (Eigen::Index k = 0; k < m; ++k)
                sum += li[k] * uj[k];
            if (j >= i) {
                uColumns[std::size_t(j) * n + i] = A(i, j) - sum;
            } else {
                const C pivot = uColumns[std::size_t(j) * n + j];
                if (!isFinitePart(sum.real()) || !isFinitePart(sum.imag()) || pivot == C(0.0, 0.0))
                    return false;
                lRows[std::size_t(i) * n + j] = (A(i, j) - sum) / pivot;
            }
        }
        lRows[std::size_t(i) * n + i] = C(1.0, 0.0);
    }
    L.resize(n, n);
    U.resize(n, n);
    for (Eigen::Index i = 0; i < n; ++i)
        for (Eigen::Index j = 0; j < n; ++j) {
            L(i, j) = lRows[std::size_t(i) * n + j];
            U(i, j) = uColumns[std::size_t(j) * n + i];
        }
    return true;
}

} // namespace linalg
} // namespace ValueTypes
} // namespace VarnholtMath
