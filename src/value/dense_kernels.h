#pragma once

// Loops over plain double arrays behind the numeric storage of vectors and
// matrices. They know nothing of values; the operators of the array classes
// hand them the raw halves of the numeric blocks. Results of a megabyte and
// more are written with streaming stores, past the caches.

#include <cstddef>

namespace VarnholtMath {
namespace ValueTypes {
namespace dense {

// r = a + b or r = a - b, element by element; r may be a or b.
void add(const double* a, const double* b, double* r, std::size_t n);
void subtract(const double* a, const double* b, double* r, std::size_t n);
// r = a + s or r = a - s.
void addScalar(const double* a, double s, double* r, std::size_t n);
// r = a * s or r = a / s, with no test of s: a zero divisor gives infinities.
void scale(const double* a, double s, double* r, std::size_t n);
void divideBy(const double* a, double s, double* r, std::size_t n);
// r = -a.
void negate(const double* a, double* r, std::size_t n);
// r = 0.
void zero(double* r, std::size_t n);

// c (m x q) = a (m x p) times b (p x q), all row-major. Each entry sums its
// products in the order of the inner index, starting from 0.
void realProduct(const double* a, const double* b, double* c, std::size_t m, std::size_t p, std::size_t q);

// The same over complex numbers in split halves. A null imaginary half reads
// as zeros. Each product's parts are flushed to 0 below 1e-15 in magnitude
// before they are added, like the product of two complex scalars.
void complexProduct(const double* ar, const double* ai, const double* br, const double* bi, double* cr, double* ci,
                    std::size_t m, std::size_t p, std::size_t q);

// The transpose of a (rows x columns, row-major) into t (columns x rows).
void transpose(const double* a, double* t, std::size_t rows, std::size_t columns);

} // namespace dense
} // namespace ValueTypes
} // namespace VarnholtMath
