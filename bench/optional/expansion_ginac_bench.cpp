// Expansion of (x+y+z+1)^n by repeated products, in this engine and in GiNaC
// (built only when libginac-dev is present), in the same run. The pairs to
// compare: Engine/n against Ginac/n, for n from 6 to 12.

#include <benchmark/benchmark.h>

#include <ginac/ginac.h>

#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

void Engine(benchmark::State& state)
{
    const vhValue base = vhSymbolicValue("x", false, {}) + vhSymbolicValue("y", false, {}) +
                         vhSymbolicValue("z", false, {}) + 1;
    vhValue r;
    for (auto _ : state) {
        r = base;
        for (int i = 1; i < state.range(0); ++i)
            r = r * base;
        benchmark::DoNotOptimize(r);
    }
    state.counters["terms"] = r.expressionValuesSize();
}
BENCHMARK(Engine)->DenseRange(6, 12, 2)->Unit(benchmark::kMillisecond);

// GiNaC's own way: each step expands the product of the expanded sum and the
// base.
void Ginac(benchmark::State& state)
{
    const GiNaC::symbol x("x"), y("y"), z("z");
    const GiNaC::ex base = x + y + z + 1;
    GiNaC::ex r;
    for (auto _ : state) {
        r = base;
        for (int i = 1; i < state.range(0); ++i)
            r = GiNaC::expand(r * base);
        benchmark::DoNotOptimize(r);
    }
    state.counters["terms"] = GiNaC::is_a<GiNaC::add>(r) ? r.nops() : 1;
}
BENCHMARK(Ginac)->DenseRange(6, 12, 2)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
