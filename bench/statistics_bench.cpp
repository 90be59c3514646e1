// Distributions, random vectors and descriptive statistics against plain
// loops on the same data, in the same run. The pairs to compare:
//   NormalDistVector   / BoostNormalCdf     (normaldist_f over 1e5 numbers)
//   GammaInvVector     / BoostGammaQuantile (gammainv_f over 1e4 numbers)
//   Average, Variance  / RawSum, RawSumOfSquares (1e6 numbers)
//   Median             / NthElement         (1e6 numbers, copy included)
//   NormRandVector     / RawTwelveUniforms  (1e6 draws)

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <vector>

#include <boost/math/distributions/gamma.hpp>
#include <boost/math/distributions/normal.hpp>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const unsigned kDistributionSize = 100000;
const unsigned kInverseSize = 10000;
const unsigned kDataSize = 1000000;

std::vector<double> randomData(std::size_t n, double lo, double hi, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::uniform_real_distribution<double> uniform(lo, hi);
    std::vector<double> d(n);
    for (double& x : d)
        x = uniform(engine);
    return d;
}

// --- normal cumulative -----------------------------------------------------------

void BoostNormalCdf(benchmark::State& state)
{
    std::vector<double> x = randomData(kDistributionSize, -4.0, 4.0, 1), r(kDistributionSize);
    const boost::math::normal_distribution<double> normal(0.5, 1.5);
    for (auto _ : state) {
        for (unsigned i = 0; i < kDistributionSize; ++i)
            r[i] = boost::math::cdf(normal, x[i]);
        benchmark::DoNotOptimize(r.data());
    }
}
BENCHMARK(BoostNormalCdf)->Unit(benchmark::kMillisecond);

void NormalDistVector(benchmark::State& state)
{
    std::vector<double> x = randomData(kDistributionSize, -4.0, 4.0, 1);
    vhMath m;
    const vhVector v(x.data(), kDistributionSize, false);
    const vhDouble mean(0.5), sigma(1.5);
    for (auto _ : state) {
        vhValue r = m.normaldist_f(v, mean, sigma);
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(NormalDistVector)->Unit(benchmark::kMillisecond);

// --- gamma quantile ----------------------------------------------------------------

void BoostGammaQuantile(benchmark::State& state)
{
    std::vector<double> p = randomData(kInverseSize, 0.01, 0.99, 2), r(kInverseSize);
    const boost::math::gamma_distribution<double> gamma(2.5, 1.5);
    for (auto _ : state) {
        for (unsigned i = 0; i < kInverseSize; ++i)
            r[i] = boost::math::quantile(gamma, p[i]);
        benchmark::DoNotOptimize(r.data());
    }
}
BENCHMARK(BoostGammaQuantile)->Unit(benchmark::kMillisecond);

void GammaInvVector(benchmark::State& state)
{
    std::vector<double> p = randomData(kInverseSize, 0.01, 0.99, 2);
    vhMath m;
    const vhVector v(p.data(), kInverseSize, false);
    const vhDouble shape(2.5), scale(1.5);
    for (auto _ : state) {
        vhValue r = m.gammainv_f(v, shape, scale);
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(GammaInvVector)->Unit(benchmark::kMillisecond);

// --- descriptive statistics ----------------------------------------------------------

void RawSum(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 3);
    for (auto _ : state) {
        double s = 0.0;
        for (double v : x)
            s += v;
        benchmark::DoNotOptimize(s / kDataSize);
    }
}
BENCHMARK(RawSum)->Unit(benchmark::kMicrosecond);

void Average(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 3);
    vhMath m;
    const vhVector v(x.data(), kDataSize, false);
    for (auto _ : state) {
        vhValue r = m.average_f(v);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(Average)->Unit(benchmark::kMicrosecond);

void RawSumOfSquares(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 3);
    for (auto _ : state) {
        double s = 0.0, s2 = 0.0;
        for (double v : x) {
            s += v;
            s2 += v * v;
        }
        benchmark::DoNotOptimize(s2 / kDataSize - s * s / (1.0 * kDataSize * kDataSize));
    }
}
BENCHMARK(RawSumOfSquares)->Unit(benchmark::kMicrosecond);

void Variance(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 3);
    vhMath m;
    const vhVector v(x.data(), kDataSize, false);
    for (auto _ : state) {
        vhValue r = m.variance_f(v);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(Variance)->Unit(benchmark::kMicrosecond);

void NthElement(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 4);
    for (auto _ : state) {
        std::vector<double> copy(x);
        std::nth_element(copy.begin(), copy.begin() + kDataSize / 2, copy.end());
        const double upper = copy[kDataSize / 2];
        const double lower = *std::max_element(copy.begin(), copy.begin() + kDataSize / 2);
        benchmark::DoNotOptimize((lower + upper) / 2.0);
    }
}
BENCHMARK(NthElement)->Unit(benchmark::kMillisecond);

void Median(benchmark::State& state)
{
    std::vector<double> x = randomData(kDataSize, -1.0, 1.0, 4);
    vhMath m;
    const vhVector v(x.data(), kDataSize, false);
    for (auto _ : state) {
        vhValue r = m.median_f(v);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(Median)->Unit(benchmark::kMillisecond);

// --- random vectors ----------------------------------------------------------------------

void RawTwelveUniforms(benchmark::State& state)
{
    std::vector<double> r(kDataSize);
    std::uint32_t s = 12345u;
    for (auto _ : state) {
        for (unsigned i = 0; i < kDataSize; ++i) {
            double sum = 0.0;
            for (int k = 0; k < 12; ++k) {
                s = static_cast<std::uint32_t>(static_cast<std::uint64_t>(s) * 16807u % 2147483647u);
                sum += s / 2147483647.0;
            }
            r[i] = (sum - 6.0) * 2.0 + 1.0;
        }
        benchmark::DoNotOptimize(r.data());
    }
}
BENCHMARK(RawTwelveUniforms)->Unit(benchmark::kMillisecond);

void NormRandVector(benchmark::State& state)
{
    vhMath m;
    const vhDouble mean(1.0), deviation(2.0);
    const vhInteger n(static_cast<int>(kDataSize));
    for (auto _ : state) {
        vhValue r = m.normRandVec_f(mean, deviation, n);
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(NormRandVector)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
