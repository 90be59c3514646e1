// Loops over plain double arrays for the numeric storage of arrays.

#include "value/dense_kernels.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace VarnholtMath {
namespace ValueTypes {
namespace dense {

namespace {

// Results of at least a megabyte are written past the caches: they are
// fresh blocks that would otherwise be read from memory before every store,
// and an array that large doesn't stay in the caches anyway.
const std::size_t kStreamedCount = 131072;

#if defined(__SSE2__)
// r[i] = scalar(i) for every i, two at a time by vector(i) with streaming
// stores where r is aligned to 16 bytes.
template <class Vector, class Scalar> void streamed(double* r, std::size_t n, Vector vector, Scalar scalar)
{
    std::size_t i = 0;
    for (; i < n && (reinterpret_cast<std::uintptr_t>(r + i) & 15) != 0; ++i)
        r[i] = scalar(i);
    for (; i + 2 <= n; i += 2)
        _mm_stream_pd(r + i, vector(i));
    for (; i < n; ++i)
        r[i] = scalar(i);
    _mm_sfence();
}
#define VH_STREAMED(R, N, VECTOR, SCALAR)                                                                  \
    if ((N) >= kStreamedCount) {                                                                           \
        streamed((R), (N), [&](std::size_t i) { (void)i; return VECTOR; },                                 \
                 [&](std::size_t i) { (void)i; return SCALAR; });                                          \
        return;                                                                                            \
    }
#else
#define VH_STREAMED(R, N, VECTOR, SCALAR)
#endif

} // namespace

void add(const double* a, const double* b, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_add_pd(_mm_loadu_pd(a + i), _mm_loadu_pd(b + i)), a[i] + b[i])
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i] + b[i];
}

void subtract(const double* a, const double* b, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_sub_pd(_mm_loadu_pd(a + i), _mm_loadu_pd(b + i)), a[i] - b[i])
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i] - b[i];
}

void addScalar(const double* a, double s, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_add_pd(_mm_loadu_pd(a + i), _mm_set1_pd(s)), a[i] + s)
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i] + s;
}

void scale(const double* a, double s, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_mul_pd(_mm_loadu_pd(a + i), _mm_set1_pd(s)), a[i] * s)
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i] * s;
}

void divideBy(const double* a, double s, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_div_pd(_mm_loadu_pd(a + i), _mm_set1_pd(s)), a[i] / s)
    for (std::size_t i = 0; i < n; ++i)
        r[i] = a[i] / s;
}

void negate(const double* a, double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_xor_pd(_mm_loadu_pd(a + i), _mm_set1_pd(-0.0)), -a[i])
    for (std::size_t i = 0; i < n; ++i)
        r[i] = -a[i];
}

void zero(double* r, std::size_t n)
{
    VH_STREAMED(r, n, _mm_setzero_pd(), 0.0)
    std::memset(r, 0, sizeof(double) * n);
}

#undef VH_STREAMED

namespace {
// Blocks of the inner index and of the result's columns. The blocks of the
// inner index are visited in increasing order, so that every entry still
// receives its products in the order of the inner index.
const std::size_t kInnerBlock = 128;
const std::size_t kColumnBlock = 512;

double flushTiny(double x)
{
    return (x > 0.0 && x < 1e-15) || (x < 0.0 && x > -1e-15) ? 0.0 : x;
}
} // namespace

void realProduct(const double* a, const double* b, double* c, std::size_t m, std::size_t p, std::size_t q)
{
    std::fill(c, c + m * q, 0.0);
    for (std::size_t k0 = 0; k0 < p; k0 += kInnerBlock) {
        const std::size_t k1 = std::min(p, k0 + kInnerBlock);
        for (std::size_t j0 = 0; j0 < q; j0 += kColumnBlock) {
            const std::size_t j1 = std::min(q, j0 + kColumnBlock);
            for (std::size_t i = 0; i < m; ++i) {
                double* __restrict ci = c + i * q;
                const double* ai = a + i * p;
                for (std::size_t k = k0; k < k1; ++k) {
                    const double aik = ai[k];
                    const double* __restrict bk = b + k * q;
                    for (std::size_t j = j0; j < j1; ++j)
                        ci[j] += aik * bk[j];
                }
            }
        }
    }
}

void complexProduct(const double* ar, const double* ai, const double* br, const double* bi, double* cr, double* ci,
                    std::size_t m, std::size_t p, std::size_t q)
{
    std::fill(cr, cr + m * q, 0.0);
    std::fill(ci, ci + m * q, 0.0);
    for (std::size_t i = 0; i < m; ++i) {
        double* __restrict rowR = cr + i * q;
        double* __restrict rowI = ci + i * q;
        for (std::size_t k = 0; k < p; ++k) {
            const double xr = ar[i * p + k];
            const double xi = ai ? ai[i * p + k] : 0.0;
            const double* yr = br + k * q;
            const double* yi = bi ? bi + k * q : nullptr;
            for (std::size_t j = 0; j < q; ++j) {
                const double vr = yr[j];
                const double vi = yi ? yi[j] : 0.0;
                rowR[j] += flushTiny(xr * vr - xi * vi);
                rowI[j] += flushTiny(xr * vi + xi * vr);
            }
        }
    }
}

void transpose(const double* a, double* t, std::size_t rows, std::size_t columns)
{
    for (std::size_t i = 0; i < rows; ++i)
        for (std::size_t j = 0; j < columns; ++j)
            t[j * rows + i] = a[i * columns + j];
}

} // namespace dense
} // namespace ValueTypes
} // namespace VarnholtMath
