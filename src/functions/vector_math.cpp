// The blocks of the vectorised kernels for each instruction set, and the
// choice of the set at run time. The wider sets are compiled for their own
// processors only, inside functions marked for them, so the library itself
// still runs on any x86-64 processor.

#include "functions/vector_math.h"

#include <cmath>

#include <sleef.h>

// The header declares the AVX2 and AVX-512 kernels only for a build that
// targets those processors; these functions are chosen at run time instead.
extern "C" {
__m256d Sleef_sind4_u10avx2(__m256d);
__m256d Sleef_cosd4_u10avx2(__m256d);
__m256d Sleef_expd4_u10avx2(__m256d);
__m256d Sleef_logd4_u10avx2(__m256d);
__m512d Sleef_sind8_u10avx512f(__m512d);
__m512d Sleef_cosd8_u10avx512f(__m512d);
__m512d Sleef_expd8_u10avx512f(__m512d);
__m512d Sleef_logd8_u10avx512f(__m512d);
}

namespace VarnholtMath {
namespace ValueTypes {
namespace vectormath {

namespace {

typedef void (*Block)(const double*, double*, std::size_t);

// Whole vectors first, then the rest padded with zeros into one vector: each
// lane is computed alone, so a number's result does not depend on where in
// the block it stands.
#define VH_VECTOR_BLOCK(name, isa, width, vector, load, store, kernel)                                  \
    __attribute__((target(isa))) void name(const double* x, double* out, std::size_t n)                \
    {                                                                                                   \
        std::size_t i = 0;                                                                              \
        for (; i + width <= n; i += width)                                                              \
            store(out + i, kernel(load(x + i)));                                                        \
        if (i < n) {                                                                                    \
            double in[width] = {}, result[width];                                                       \
            for (std::size_t k = 0; i + k < n; ++k)                                                     \
                in[k] = x[i + k];                                                                       \
            store(result, kernel(load(in)));                                                            \
            for (std::size_t k = 0; i + k < n; ++k)                                                     \
                out[i + k] = result[k];                                                                 \
        }                                                                                               \
    }

VH_VECTOR_BLOCK(sinSse2, "sse2", 2, __m128d, _mm_loadu_pd, _mm_storeu_pd, Sleef_sind2_u10sse2)
VH_VECTOR_BLOCK(cosSse2, "sse2", 2, __m128d, _mm_loadu_pd, _mm_storeu_pd, Sleef_cosd2_u10sse2)
VH_VECTOR_BLOCK(expSse2, "sse2", 2, __m128d, _mm_loadu_pd, _mm_storeu_pd, Sleef_expd2_u10sse2)
VH_VECTOR_BLOCK(logSse2, "sse2", 2, __m128d, _mm_loadu_pd, _mm_storeu_pd, Sleef_logd2_u10sse2)
VH_VECTOR_BLOCK(sinAvx2, "avx2,fma", 4, __m256d, _mm256_loadu_pd, _mm256_storeu_pd, Sleef_sind4_u10avx2)
VH_VECTOR_BLOCK(cosAvx2, "avx2,fma", 4, __m256d, _mm256_loadu_pd, _mm256_storeu_pd, Sleef_cosd4_u10avx2)
VH_VECTOR_BLOCK(expAvx2, "avx2,fma", 4, __m256d, _mm256_loadu_pd, _mm256_storeu_pd, Sleef_expd4_u10avx2)
VH_VECTOR_BLOCK(logAvx2, "avx2,fma", 4, __m256d, _mm256_loadu_pd, _mm256_storeu_pd, Sleef_logd4_u10avx2)
VH_VECTOR_BLOCK(sinAvx512, "avx512f", 8, __m512d, _mm512_loadu_pd, _mm512_storeu_pd, Sleef_sind8_u10avx512f)
VH_VECTOR_BLOCK(cosAvx512, "avx512f", 8, __m512d, _mm512_loadu_pd, _mm512_storeu_pd, Sleef_cosd8_u10avx512f)
VH_VECTOR_BLOCK(expAvx512, "avx512f", 8, __m512d, _mm512_loadu_pd, _mm512_storeu_pd, Sleef_expd8_u10avx512f)
VH_VECTOR_BLOCK(logAvx512, "avx512f", 8, __m512d, _mm512_loadu_pd, _mm512_storeu_pd, Sleef_logd8_u10avx512f)

#undef VH_VECTOR_BLOCK

struct Kernels {
    Block sin, cos, exp, log;
};

const Kernels kKernels[] = {
    {sinSse2, cosSse2, expSse2, logSse2},
    {sinAvx2, cosAvx2, expAvx2, logAvx2},
    {sinAvx512, cosAvx512, expAvx512, logAvx512},
};

InstructionSet detect()
{
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx512f"))
        return instructionAvx512;
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
        return instructionAvx2;
    return instructionSse2;
}

struct Choice {
    InstructionSet widest;
    InstructionSet current;
    const Kernels* kernels;
};

Choice& choice()
{
    static Choice c = [] {
        const InstructionSet widest = detect();
        return Choice{widest, widest, &kKernels[widest]};
    }();
    return c;
}

// SLEEF's sine and cosine reduce the argument in one of three ways, chosen
// for the whole vector by its largest lane: below 15, below 1e14, or beyond
// (and NaN). A lane's result differs in the last bit between the ways, so
// that a number would depend on its neighbours. Each slice of a block is
// therefore computed as it is, and the numbers of a vector whose largest lane
// needed a wider way than their own are done again, sorted by the way they
// need. The zeros that pad a short vector never change the way, so a number
// alone takes the way of its own size, the same as in a block.
int reductionWay(double x)
{
    const double a = std::fabs(x);
    return a < 15.0 ? 0 : a < 1e14 ? 1 : 2;
}

const std::size_t kSlice = 512;

// A slice whose numbers need different ways: each way's numbers gathered,
// computed together and put back.
__attribute__((noinline)) void gatherByWay(Block kernel, const double* x, double* out, std::size_t m)
{
    double in[3][kSlice], result[kSlice];
    unsigned short index[3][kSlice];
    std::size_t count[3] = {0, 0, 0};
    for (std::size_t k = 0; k < m; ++k) {
        const int w = reductionWay(x[k]);
        in[w][count[w]] = x[k];
        index[w][count[w]++] = static_cast<unsigned short>(k);
    }
    for (int w = 0; w < 3; ++w) {
        if (count[w] == 0)
            continue;
        kernel(in[w], result, count[w]);
        for (std::size_t k = 0; k < count[w]; ++k)
            out[index[w][k]] = result[k];
    }
}

// Lanes per vector of each set, in the order of InstructionSet.
const std::size_t kWidth[] = {2, 4, 8};

void byReductionWay(Block kernel, std::size_t width, const double* x, double* out, std::size_t n)
{
    // One number is one way.
    if (n <= 1) {
        kernel(x, out, n);
        return;
    }
    double again[kSlice], result[kSlice];
    unsigned short index[kSlice];
    for (std::size_t i = 0; i < n; i += kSlice) {
        const std::size_t m = n - i < kSlice ? n - i : kSlice;
        // The slice goes through as it is; only the lanes of a vector whose
        // largest lane needed another way than their own are done again.
        kernel(x + i, out + i, m);
        unsigned char way[kSlice];
        for (std::size_t k = 0; k < m; ++k) {
            const double a = std::fabs(x[i + k]);
            way[k] = static_cast<unsigned char>(!(a < 15.0)) + static_cast<unsigned char>(!(a < 1e14));
        }
        std::size_t count = 0;
        for (std::size_t v = 0; v < m; v += width) {
            const std::size_t end = v + width < m ? v + width : m;
            unsigned char top = 0, low = 2;
            for (std::size_t k = v; k < end; ++k) {
                top = way[k] > top ? way[k] : top;
                low = way[k] < low ? way[k] : low;
            }
            if (top == low)
                continue;
            for (std::size_t k = v; k < end; ++k) {
                if (way[k] < top) {
                    again[count] = x[i + k];
                    index[count++] = static_cast<unsigned short>(k);
                }
            }
        }
        if (count == 0)
            continue;
        gatherByWay(kernel, again, result, count);
        for (std::size_t k = 0; k < count; ++k)
            out[i + index[k]] = result[k];
    }
}

} // namespace

InstructionSet widestInstructionSet() { return choice().widest; }

InstructionSet instructionSet() { return choice().current; }

bool useInstructionSet(InstructionSet set)
{
    Choice& c = choice();
    if (set < instructionSse2 || set > c.widest)
        return false;
    c.current = set;
    c.kernels = &kKernels[set];
    return true;
}

void sin(const double* x, double* out, std::size_t n)
{
    const Choice& c = choice();
    byReductionWay(c.kernels->sin, kWidth[c.current], x, out, n);
}

void cos(const double* x, double* out, std::size_t n)
{
    const Choice& c = choice();
    byReductionWay(c.kernels->cos, kWidth[c.current], x, out, n);
}
void exp(const double* x, double* out, std::size_t n) { choice().kernels->exp(x, out, n); }
void log(const double* x, double* out, std::size_t n) { choice().kernels->log(x, out, n); }

} // namespace vectormath
} // namespace ValueTypes
} // namespace VarnholtMath
