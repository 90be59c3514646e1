// The scalar path: one record and one number at a time, each against its
// anchor in the same run. The pairs to compare:
//   RecordCopyDouble   / RecordEmpty      (copy of a vhDouble into a new vhValue)
//   DoublePlusDouble   / RecordEmpty      (vhDouble + vhDouble)
//   DoublePlusDoubleAsValues / RecordEmpty (the same, operands held as vhValue)
//   MemberSin          / StdSin + RecordEmpty (m.sin_f on a vhDouble)
//   CallFunctionSin    / MemberSin        (callFunction by number)

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "frame/math.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

void RecordEmpty(benchmark::State& state)
{
    for (auto _ : state) {
        vhValue v;
        benchmark::DoNotOptimize(&v);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RecordEmpty);

void RecordCopyDouble(benchmark::State& state)
{
    const vhDouble d(2.5);
    for (auto _ : state) {
        vhValue v(d);
        benchmark::DoNotOptimize(&v);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RecordCopyDouble);

void DoublePlusDouble(benchmark::State& state)
{
    const vhDouble a(1.5), b(2.25);
    for (auto _ : state) {
        vhValue r = a + b;
        benchmark::DoNotOptimize(&r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DoublePlusDouble);

void DoublePlusDoubleAsValues(benchmark::State& state)
{
    const vhValue a = vhDouble(1.5), b = vhDouble(2.25);
    for (auto _ : state) {
        vhValue r = a + b;
        benchmark::DoNotOptimize(&r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(DoublePlusDoubleAsValues);

void StdSin(benchmark::State& state)
{
    double x = 0.7;
    for (auto _ : state) {
        benchmark::DoNotOptimize(x);
        double r = std::sin(x);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(StdSin);

void MemberSin(benchmark::State& state)
{
    vhMath math;
    math.setAngleUnit(angleRadians);
    const vhDouble x(0.7);
    for (auto _ : state) {
        vhValue r = math.sin_f(x);
        benchmark::DoNotOptimize(&r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(MemberSin);

void CallFunctionSin(benchmark::State& state)
{
    vhMath math;
    math.setAngleUnit(angleRadians);
    const std::vector<vhValue> arguments{vhDouble(0.7)};
    for (auto _ : state) {
        vhValue r = callFunction(&math, nt_sin, arguments);
        benchmark::DoNotOptimize(&r);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(CallFunctionSin);

} // namespace

BENCHMARK_MAIN();
