// sin, exp, sqrt and log of a numeric vector of 1e6 elements against a plain
// loop of the C library function over the same array, in the same run. The
// pairs to compare: VectorSin / LoopSin, VectorExp / LoopExp, VectorSqrt /
// LoopSqrt, VectorLog / LoopLog.

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const unsigned kSize = 1000000;

// Positive numbers, so that every element stays in the real domain of all
// four functions.
const std::vector<double>& data()
{
    static const std::vector<double> d = [] {
        std::mt19937_64 engine(42);
        std::uniform_real_distribution<double> uniform(0.001, 1000.0);
        std::vector<double> v(kSize);
        for (double& x : v)
            x = uniform(engine);
        return v;
    }();
    return d;
}

template <double (*F)(double)> void Loop(benchmark::State& state)
{
    const std::vector<double>& in = data();
    std::vector<double> out(kSize);
    for (auto _ : state) {
        for (unsigned i = 0; i < kSize; ++i)
            out[i] = F(in[i]);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
}

template <vhValue (vhMath::*F)(const vhValue&)> void Vector(benchmark::State& state)
{
    vhMath math;
    const vhVector x(const_cast<double*>(data().data()), kSize, false);
    for (auto _ : state) {
        vhValue r = (math.*F)(x);
        benchmark::DoNotOptimize(r.numericValues());
    }
}

double cSin(double x) { return std::sin(x); }
double cExp(double x) { return std::exp(x); }
double cSqrt(double x) { return std::sqrt(x); }
double cLog(double x) { return std::log(x); }

} // namespace

BENCHMARK(Loop<cSin>)->Name("LoopSin")->Unit(benchmark::kMillisecond);
BENCHMARK(Vector<&vhMath::sin_f>)->Name("VectorSin")->Unit(benchmark::kMillisecond);
BENCHMARK(Loop<cExp>)->Name("LoopExp")->Unit(benchmark::kMillisecond);
BENCHMARK(Vector<&vhMath::exp_f>)->Name("VectorExp")->Unit(benchmark::kMillisecond);
BENCHMARK(Loop<cSqrt>)->Name("LoopSqrt")->Unit(benchmark::kMillisecond);
BENCHMARK(Vector<&vhMath::sqrt_f>)->Name("VectorSqrt")->Unit(benchmark::kMillisecond);
BENCHMARK(Loop<cLog>)->Name("LoopLog")->Unit(benchmark::kMillisecond);
BENCHMARK(Vector<&vhMath::log_f>)->Name("VectorLog")->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
