// Numeric arrays and scalars against plain loops, Eigen and memcpy on the
// same data, in the same run. The pairs to compare:
//   VectorAdd        / RawAdd         (numeric vector + vector, 1e6)
//   VectorScale      / RawScale       (numeric vector * scalar, 1e6)
//   MatrixProduct    / EigenProduct   (512 x 512 product)
//   VectorCopy       / MemcpyReal, MemcpyBlock (copy of a 1e6 vector)
// and the cost of one scalar sum, one text form and the size of the record.

#include <benchmark/benchmark.h>

#include <Eigen/Dense>

#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const unsigned kVectorSize = 1000000;
const unsigned kMatrixSize = 512;

std::vector<double> randomData(std::size_t n, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> d(n);
    for (double& x : d)
        x = uniform(engine);
    return d;
}

// --- vector + vector --------------------------------------------------------------

void RawAdd(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1), b = randomData(kVectorSize, 2), c(kVectorSize);
    for (auto _ : state) {
        const double* x = a.data();
        const double* y = b.data();
        double* r = c.data();
        for (unsigned i = 0; i < kVectorSize; ++i)
            r[i] = x[i] + y[i];
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawAdd)->Unit(benchmark::kMicrosecond);

void VectorAdd(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1), b = randomData(kVectorSize, 2);
    const vhVector x(a.data(), kVectorSize, false), y(b.data(), kVectorSize, false);
    for (auto _ : state) {
        vhValue r = x + y;
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(VectorAdd)->Unit(benchmark::kMicrosecond);

// The same sum on operands held as plain vhValue objects, as a host holds
// them: the dispatcher copies the left operand first.
void VectorAddThroughValue(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1), b = randomData(kVectorSize, 2);
    const vhValue x = vhVector(a.data(), kVectorSize, false), y = vhVector(b.data(), kVectorSize, false);
    for (auto _ : state) {
        vhValue r = x + y;
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(VectorAddThroughValue)->Unit(benchmark::kMicrosecond);

// --- vector * scalar ------------------------------------------------------------------

void RawScale(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1), c(kVectorSize);
    const double s = 2.5;
    for (auto _ : state) {
        const double* x = a.data();
        double* r = c.data();
        for (unsigned i = 0; i < kVectorSize; ++i)
            r[i] = x[i] * s;
        benchmark::DoNotOptimize(r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawScale)->Unit(benchmark::kMicrosecond);

void VectorScale(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1);
    const vhVector x(a.data(), kVectorSize, false);
    const vhDouble s(2.5);
    for (auto _ : state) {
        vhValue r = x * s;
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(VectorScale)->Unit(benchmark::kMicrosecond);

// --- 512 x 512 product -------------------------------------------------------------------

typedef Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> RowMajorMatrix;

void EigenProduct(benchmark::State& state)
{
    std::vector<double> a = randomData(kMatrixSize * kMatrixSize, 3), b = randomData(kMatrixSize * kMatrixSize, 4);
    const RowMajorMatrix x = Eigen::Map<RowMajorMatrix>(a.data(), kMatrixSize, kMatrixSize);
    const RowMajorMatrix y = Eigen::Map<RowMajorMatrix>(b.data(), kMatrixSize, kMatrixSize);
    RowMajorMatrix c(kMatrixSize, kMatrixSize);
    for (auto _ : state) {
        c.noalias() = x * y;
        benchmark::DoNotOptimize(c.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(EigenProduct)->Unit(benchmark::kMillisecond);

void MatrixProduct(benchmark::State& state)
{
    std::vector<double> a = randomData(kMatrixSize * kMatrixSize, 3), b = randomData(kMatrixSize * kMatrixSize, 4);
    const vhMatrix x(a.data(), kMatrixSize, kMatrixSize), y(b.data(), kMatrixSize, kMatrixSize);
    for (auto _ : state) {
        vhValue r = x * y;
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(MatrixProduct)->Unit(benchmark::kMillisecond);

// --- copying a vector ----------------------------------------------------------------------

// memcpy of the n real numbers into a buffer that exists already.
void MemcpyReal(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1), c(kVectorSize);
    for (auto _ : state) {
        std::memcpy(c.data(), a.data(), sizeof(double) * kVectorSize);
        benchmark::DoNotOptimize(c.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(MemcpyReal)->Unit(benchmark::kMicrosecond);

// malloc, memcpy and free of the whole numeric block: n real numbers and the
// n imaginary parts that every numeric array carries.
void MemcpyBlock(benchmark::State& state)
{
    std::vector<double> a = randomData(2 * kVectorSize, 1);
    for (auto _ : state) {
        double* c = static_cast<double*>(std::malloc(sizeof(double) * 2 * kVectorSize));
        std::memcpy(c, a.data(), sizeof(double) * 2 * kVectorSize);
        benchmark::DoNotOptimize(c);
        benchmark::ClobberMemory();
        std::free(c);
    }
}
BENCHMARK(MemcpyBlock)->Unit(benchmark::kMicrosecond);

void VectorCopy(benchmark::State& state)
{
    std::vector<double> a = randomData(kVectorSize, 1);
    const vhVector x(a.data(), kVectorSize, false);
    for (auto _ : state) {
        vhValue r(x);
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(VectorCopy)->Unit(benchmark::kMicrosecond);

// --- scalars and the record ---------------------------------------------------------------

void DoubleAdd(benchmark::State& state)
{
    const vhDouble a(1.5), b(2.25);
    for (auto _ : state) {
        vhValue r = a + b;
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(DoubleAdd);

void DoubleToStringAll(benchmark::State& state)
{
    const vhDouble a(3.14159);
    for (auto _ : state) {
        std::string s = a.toStringAll();
        benchmark::DoNotOptimize(s);
    }
}
BENCHMARK(DoubleToStringAll);

void RecordSize(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(sizeof(vhValue));
    state.counters["sizeof_vhValue"] = sizeof(vhValue);
}
BENCHMARK(RecordSize)->Iterations(1);

// --- a fresh result block ------------------------------------------------------
// A real result of n numbers is a block of 2n doubles whose imaginary half
// is zero. Two ways to get it, each writing the n results: calloc of the
// whole block, or malloc and zeros written into the imaginary half only.

void FreshBlockCalloc(benchmark::State& state)
{
    const std::size_t n = kVectorSize;
    for (auto _ : state) {
        double* block = static_cast<double*>(std::calloc(2 * n, sizeof(double)));
        for (std::size_t i = 0; i < n; ++i)
            block[i] = double(i);
        benchmark::DoNotOptimize(block);
        std::free(block);
    }
}
BENCHMARK(FreshBlockCalloc)->Unit(benchmark::kMicrosecond);

void FreshBlockMallocHalfZero(benchmark::State& state)
{
    const std::size_t n = kVectorSize;
    for (auto _ : state) {
        double* block = static_cast<double*>(std::malloc(2 * n * sizeof(double)));
        std::memset(block + n, 0, n * sizeof(double));
        for (std::size_t i = 0; i < n; ++i)
            block[i] = double(i);
        benchmark::DoNotOptimize(block);
        std::free(block);
    }
}
BENCHMARK(FreshBlockMallocHalfZero)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
