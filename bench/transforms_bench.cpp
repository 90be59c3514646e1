// The Fourier transform of the worksheet (FFT1) against FFTW on the same
// complex data in the same run, at 2^10, 2^16, 2^20, 10^6 and the prime
// 65537 (which takes the chirp kernel). FFTW's plans are made outside the
// timed loop, and so is FFT1's first call, which makes the plan that later
// calls of that length reuse. KernelFFT shows the kernel FFT1 picks alone,
// without reading the argument or building the result. The primes:
// nthPrime(10^6) and isPrime of 10^5 numbers against a plain sieve of
// Eratosthenes.
//
// Pairs to compare: FFT1 / FFTWMeasure (and FFTWEstimate) per size;
// NthPrime / PlainSieveNthPrime; IsPrimeVector / PlainSieveFlags.

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "frame/math.h"
#include "signal/fft_kernels.h"

#ifdef VH_HAVE_FFTW
#include <fftw3.h>
#endif

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue complexSignal(unsigned int n)
{
    std::mt19937_64 engine(7);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    vhVector v(n, true, true, true);
    for (unsigned int k = 0; k < n; ++k) {
        v.numericValues()[k] = uniform(engine);
        v.numericImValues()[k] = uniform(engine);
    }
    return v;
}

void FFT1(benchmark::State& state)
{
    const unsigned int n = static_cast<unsigned int>(state.range(0));
    vhMath math;
    const vhValue x = complexSignal(n);
    // The first call makes the plan, as FFTW's planning before its loop.
    vhValue warm = math.FFT1_f(x);
    benchmark::DoNotOptimize(warm.numericValues());
    for (auto _ : state) {
        vhValue y = math.FFT1_f(x);
        benchmark::DoNotOptimize(y.numericValues());
    }
    state.SetComplexityN(n);
}

void KernelFFT(benchmark::State& state)
{
    const std::size_t n = static_cast<std::size_t>(state.range(0));
    const vhValue x = complexSignal(static_cast<unsigned int>(n));
    std::vector<double> re(n), im(n);
    // The kernel FFT1 takes: mixed-radix, or the chirp kernel for a large
    // prime length.
    const bool chirp = n == 65537;
    VarnholtMath::fourier::MixedRadix plan(chirp ? 1 : n, false);
    VarnholtMath::fourier::Bluestein chirpPlan(chirp ? n : 1);
    for (auto _ : state) {
        std::copy(x.numericValues(), x.numericValues() + n, re.begin());
        std::copy(x.numericImValues(), x.numericImValues() + n, im.begin());
        chirp ? chirpPlan.transform(re.data(), im.data()) : plan.transform(re.data(), im.data());
        benchmark::DoNotOptimize(re.data());
    }
}

#ifdef VH_HAVE_FFTW
void FFTW(benchmark::State& state, unsigned flags)
{
    const int n = static_cast<int>(state.range(0));
    const vhValue x = complexSignal(static_cast<unsigned int>(n));
    fftw_complex* in = fftw_alloc_complex(n);
    fftw_complex* out = fftw_alloc_complex(n);
    fftw_plan plan = fftw_plan_dft_1d(n, in, out, FFTW_FORWARD, flags);
    for (auto _ : state) {
        // The same copy in as FFT1 makes, for a fair comparison.
        for (int k = 0; k < n; ++k) {
            in[k][0] = x.numericValues()[k];
            in[k][1] = x.numericImValues()[k];
        }
        fftw_execute(plan);
        benchmark::DoNotOptimize(out);
    }
    fftw_destroy_plan(plan);
    fftw_free(in);
    fftw_free(out);
}
void FFTWEstimate(benchmark::State& state) { FFTW(state, FFTW_ESTIMATE); }
void FFTWMeasure(benchmark::State& state) { FFTW(state, FFTW_MEASURE); }
#endif

void sizes(benchmark::internal::Benchmark* b)
{
    for (long n : {1L << 10, 1L << 16, 1L << 20, 1000000L, 65537L})
        b->Arg(n);
    b->Unit(benchmark::kMicrosecond);
}

BENCHMARK(FFT1)->Apply(sizes);
BENCHMARK(KernelFFT)->Apply(sizes);
#ifdef VH_HAVE_FFTW
BENCHMARK(FFTWEstimate)->Apply(sizes);
BENCHMARK(FFTWMeasure)->Apply(sizes);
#endif

// --- primes ------------------------------------------------------------------

void NthPrime(benchmark::State& state)
{
    vhMath math;
    for (auto _ : state) {
        vhValue p = math.nthPrime_f(vhInteger(1000000));
        benchmark::DoNotOptimize(p.toInt());
    }
}

// The textbook sieve: one byte per number up to a bound of the n-th prime.
void PlainSieveNthPrime(benchmark::State& state)
{
    const long n = 1000000;
    const double ln = std::log(double(n));
    const std::size_t limit = static_cast<std::size_t>(double(n) * (ln + std::log(ln)));
    for (auto _ : state) {
        std::vector<char> composite(limit + 1, 0);
        long count = 0, found = 0;
        for (std::size_t i = 2; i <= limit; ++i) {
            if (composite[i])
                continue;
            if (++count == n) {
                found = long(i);
                break;
            }
            for (std::size_t j = i * i; j <= limit; j += i)
                composite[j] = 1;
        }
        benchmark::DoNotOptimize(found);
    }
}

vhValue firstNumbers(unsigned int n)
{
    vhVector v(n, true, true, false);
    for (unsigned int k = 0; k < n; ++k)
        v.numericValues()[k] = k + 1;
    return v;
}

void IsPrimeVector(benchmark::State& state)
{
    vhMath math;
    const vhValue v = firstNumbers(100000);
    for (auto _ : state) {
        vhValue flags = math.isPrime_f(v);
        benchmark::DoNotOptimize(flags.numericValues());
    }
}

void PlainSieveFlags(benchmark::State& state)
{
    const std::size_t limit = 100000;
    for (auto _ : state) {
        std::vector<double> flags(limit + 1, 1.0);
        flags[0] = flags[1] = 0.0;
        for (std::size_t i = 2; i * i <= limit; ++i)
            if (flags[i] != 0.0)
                for (std::size_t j = i * i; j <= limit; j += i)
                    flags[j] = 0.0;
        benchmark::DoNotOptimize(flags.data());
    }
}

BENCHMARK(NthPrime)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainSieveNthPrime)->Unit(benchmark::kMillisecond);
BENCHMARK(IsPrimeVector)->Unit(benchmark::kMicrosecond);
BENCHMARK(PlainSieveFlags)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
