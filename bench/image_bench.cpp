// Image functions against plain C loops over the same pixel array, in the
// same run. Each anchor allocates its result with malloc on every iteration,
// as the function must. The pairs to compare (4096 x 4096 unless named):
//   ImageRed           / RawChannel        channel extraction
//   ImageRedMul        / RawChannelMul     channel multiply
//   ImageBGRA          / RawJoin           joining four channel images
//   Image2Matrix       / RawToDoubles      pixel words to doubles
//   ImageSmooth        / RawFilter3x3      split, 3 x 3 filter, join
//   ImageMsePsnr       / RawSquaredDiff    sum of squared byte differences
//   ImageMedian3x3     / RawMedian9        median with a 9-value network
// Growth: ImageRed, ImageSmooth and ImageMedian3x3 at 1024 and 4096 (16x
// the pixels); ImageMedianSquare (windows 11, 31 and 101 square) against
// ImageMedian3x3 at 1024.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

std::vector<unsigned int> randomPixels(std::size_t n, unsigned seed)
{
    std::mt19937 engine(seed);
    std::vector<unsigned int> p(n);
    for (unsigned int& x : p)
        x = engine();
    return p;
}

// One image per size and seed, made once.
const vhValue& image(unsigned side, unsigned seed)
{
    static std::vector<std::pair<std::pair<unsigned, unsigned>, vhValue>> cache;
    for (const auto& e : cache)
        if (e.first == std::make_pair(side, seed))
            return e.second;
    std::vector<unsigned int> p = randomPixels(std::size_t(side) * side, seed);
    cache.emplace_back(std::make_pair(side, seed), vhMatrix(p.data(), side, side));
    return cache.back().second;
}

std::uint32_t* allocateWords(std::size_t n) { return static_cast<std::uint32_t*>(std::malloc(n * 4)); }

// --- channel extraction --------------------------------------------------------

void RawChannel(benchmark::State& state)
{
    const unsigned side = unsigned(state.range(0));
    const std::size_t n = std::size_t(side) * side;
    const unsigned int* src = image(side, 1).imageValues();
    for (auto _ : state) {
        std::uint32_t* dst = allocateWords(n);
        for (std::size_t i = 0; i < n; ++i)
            dst[i] = (src[i] >> 16) & 255u;
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(dst);
    }
}
BENCHMARK(RawChannel)->Arg(1024)->Arg(4096)->Unit(benchmark::kMillisecond);

void ImageRed(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(unsigned(state.range(0)), 1);
    for (auto _ : state) {
        vhValue r = math.ImageRed_f(a);
        benchmark::DoNotOptimize(r.imageValues());
    }
}
BENCHMARK(ImageRed)->Arg(1024)->Arg(4096)->Unit(benchmark::kMillisecond);

// --- channel multiply ------------------------------------------------------------

void RawChannelMul(benchmark::State& state)
{
    const unsigned side = 4096;
    const std::size_t n = std::size_t(side) * side;
    const unsigned int* src = image(side, 1).imageValues();
    const double f = 0.75;
    for (auto _ : state) {
        std::uint32_t* dst = allocateWords(n);
        for (std::size_t i = 0; i < n; ++i) {
            const double v = double((src[i] >> 16) & 255u) * f;
            const std::uint32_t c = v >= 255.0 ? 255u : v > 0.0 ? std::uint32_t(v) : 0u;
            dst[i] = (src[i] & 0xFF00FFFFu) | c << 16;
        }
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(dst);
    }
}
BENCHMARK(RawChannelMul)->Unit(benchmark::kMillisecond);

void ImageRedMul(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(4096, 1);
    const vhDouble f(0.75);
    for (auto _ : state) {
        vhValue r = math.ImageRedMul_f(a, f);
        benchmark::DoNotOptimize(r.imageValues());
    }
}
BENCHMARK(ImageRedMul)->Unit(benchmark::kMillisecond);

// --- joining channels --------------------------------------------------------------

void RawJoin(benchmark::State& state)
{
    const std::size_t n = std::size_t(4096) * 4096;
    const unsigned int *b = image(4096, 1).imageValues(), *g = image(4096, 2).imageValues(),
                       *r = image(4096, 3).imageValues(), *a = image(4096, 4).imageValues();
    for (auto _ : state) {
        std::uint32_t* dst = allocateWords(n);
        for (std::size_t i = 0; i < n; ++i)
            dst[i] = (b[i] & 255u) | (g[i] & 255u) << 8 | (r[i] & 255u) << 16 | (a[i] & 255u) << 24;
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(dst);
    }
}
BENCHMARK(RawJoin)->Unit(benchmark::kMillisecond);

void ImageBGRA(benchmark::State& state)
{
    vhMath math;
    const vhValue &b = image(4096, 1), &g = image(4096, 2), &r = image(4096, 3), &a = image(4096, 4);
    for (auto _ : state) {
        vhValue j = math.ImageBGRA_f(b, g, r, a);
        benchmark::DoNotOptimize(j.imageValues());
    }
}
BENCHMARK(ImageBGRA)->Unit(benchmark::kMillisecond);

// --- words to doubles ------------------------------------------------------------------

void RawToDoubles(benchmark::State& state)
{
    const std::size_t n = std::size_t(4096) * 4096;
    const unsigned int* src = image(4096, 1).imageValues();
    // The same block as a numeric matrix holds: the real half, then an
    // imaginary half of zeros.
    for (auto _ : state) {
        double* dst = static_cast<double*>(std::malloc(2 * n * sizeof(double)));
        for (std::size_t i = 0; i < n; ++i)
            dst[i] = double(src[i]);
        std::memset(dst + n, 0, n * sizeof(double));
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(dst);
    }
}
BENCHMARK(RawToDoubles)->Unit(benchmark::kMillisecond);

void Image2Matrix(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(4096, 1);
    for (auto _ : state) {
        vhValue m = math.Image2Matrix_f(a);
        benchmark::DoNotOptimize(m.numericValues());
    }
}
BENCHMARK(Image2Matrix)->Unit(benchmark::kMillisecond);

// --- 3 x 3 filter ------------------------------------------------------------------------

void RawFilter3x3(benchmark::State& state)
{
    const std::ptrdiff_t w = 4096, h = 4096;
    const std::size_t n = std::size_t(w) * h;
    const unsigned int* src = image(4096, 1).imageValues();
    const double k[9] = {1, 1, 1, 1, 2, 1, 1, 1, 1};
    const double divisor = 10.0;
    for (auto _ : state) {
        std::uint8_t* planes = static_cast<std::uint8_t*>(std::malloc(3 * n));
        std::uint32_t* dst = allocateWords(n);
        for (std::size_t i = 0; i < n; ++i) {
            planes[i] = std::uint8_t(src[i] >> 16);
            planes[n + i] = std::uint8_t(src[i] >> 8);
            planes[2 * n + i] = std::uint8_t(src[i]);
        }
        std::copy(src, src + n, dst);
        for (std::ptrdiff_t y = 1; y + 1 < h; ++y) {
            for (std::ptrdiff_t x = 1; x + 1 < w; ++x) {
                const std::ptrdiff_t i = y * w + x;
                std::uint32_t out = src[i] & 0xFF000000u;
                for (unsigned c = 0; c < 3; ++c) {
                    const std::uint8_t* p = planes + c * n + i;
                    const double s = k[0] * p[-w - 1] + k[1] * p[-w] + k[2] * p[-w + 1] + k[3] * p[-1] + k[4] * p[0] +
                                     k[5] * p[1] + k[6] * p[w - 1] + k[7] * p[w] + k[8] * p[w + 1];
                    double v = std::min(s / divisor, 255.0);
                    out |= (v >= 0.0 ? std::uint32_t(v + 0.5) : 0u) << (16 - 8 * c);
                }
                dst[i] = out;
            }
        }
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(planes);
        std::free(dst);
    }
}
BENCHMARK(RawFilter3x3)->Unit(benchmark::kMillisecond);

void ImageSmooth(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(unsigned(state.range(0)), 1);
    for (auto _ : state) {
        vhValue r = math.ImageSmooth_f(a);
        benchmark::DoNotOptimize(r.imageValues());
    }
}
BENCHMARK(ImageSmooth)->Arg(1024)->Arg(4096)->Unit(benchmark::kMillisecond);

// --- mse and psnr ------------------------------------------------------------------------

void RawSquaredDiff(benchmark::State& state)
{
    const std::size_t n = std::size_t(4096) * 4096;
    const unsigned int *a = image(4096, 1).imageValues(), *b = image(4096, 2).imageValues();
    for (auto _ : state) {
        std::uint64_t sum = 0;
        for (std::size_t i = 0; i < n; ++i)
            for (unsigned s = 0; s < 24; s += 8) {
                const int d = int((a[i] >> s) & 255u) - int((b[i] >> s) & 255u);
                sum += std::uint64_t(d * d);
            }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(RawSquaredDiff)->Unit(benchmark::kMillisecond);

void ImageMsePsnr(benchmark::State& state)
{
    vhMath math;
    const vhValue &a = image(4096, 1), &b = image(4096, 2);
    for (auto _ : state) {
        vhValue r = math.ImageMsePsnr_f(a, b);
        benchmark::DoNotOptimize(r.vectorSize());
    }
}
BENCHMARK(ImageMsePsnr)->Unit(benchmark::kMillisecond);

// --- median --------------------------------------------------------------------------------

inline void order(std::uint8_t& a, std::uint8_t& b)
{
    if (a > b)
        std::swap(a, b);
}

std::uint8_t median9(std::uint8_t* p)
{
    order(p[1], p[2]); order(p[4], p[5]); order(p[7], p[8]);
    order(p[0], p[1]); order(p[3], p[4]); order(p[6], p[7]);
    order(p[1], p[2]); order(p[4], p[5]); order(p[7], p[8]);
    order(p[0], p[3]); order(p[5], p[8]); order(p[4], p[7]);
    order(p[3], p[6]); order(p[1], p[4]); order(p[2], p[5]);
    order(p[4], p[7]); order(p[4], p[2]); order(p[6], p[4]);
    order(p[4], p[2]);
    return p[4];
}

void RawMedian9(benchmark::State& state)
{
    const std::size_t w = 4096, h = 4096, ow = w - 2, oh = h - 2;
    const unsigned int* src = image(4096, 1).imageValues();
    for (auto _ : state) {
        std::uint32_t* dst = allocateWords(ow * oh);
        for (std::size_t y = 0; y < oh; ++y)
            for (std::size_t x = 0; x < ow; ++x) {
                std::uint32_t out = src[(y + 1) * w + x + 1] & 0xFF000000u;
                for (unsigned s = 0; s < 24; s += 8) {
                    std::uint8_t v[9];
                    for (unsigned r = 0; r < 3; ++r)
                        for (unsigned c = 0; c < 3; ++c)
                            v[3 * r + c] = std::uint8_t(src[(y + r) * w + x + c] >> s);
                    out |= std::uint32_t(median9(v)) << s;
                }
                dst[y * ow + x] = out;
            }
        benchmark::DoNotOptimize(dst);
        benchmark::ClobberMemory();
        std::free(dst);
    }
}
BENCHMARK(RawMedian9)->Unit(benchmark::kMillisecond);

void ImageMedian3x3(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(unsigned(state.range(0)), 1);
    double size[2] = {3, 3};
    const vhVector s(size, 2, true);
    for (auto _ : state) {
        vhValue r = math.ImageMedian_f(a, s);
        benchmark::DoNotOptimize(r.imageValues());
    }
}
BENCHMARK(ImageMedian3x3)->Arg(1024)->Arg(4096)->Unit(benchmark::kMillisecond);

void ImageMedianSquare(benchmark::State& state)
{
    vhMath math;
    const vhValue& a = image(1024, 1);
    double size[2] = {double(state.range(0)), double(state.range(0))};
    const vhVector s(size, 2, true);
    for (auto _ : state) {
        vhValue r = math.ImageMedian_f(a, s);
        benchmark::DoNotOptimize(r.imageValues());
    }
}
BENCHMARK(ImageMedianSquare)->Arg(11)->Arg(31)->Arg(101)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
