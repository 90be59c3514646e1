// Expansion of powers of sums by repeated multiplication: every product of
// two terms joins the growing sum at once and merges with its like term, so
// this measures the term walk of sums and products of atoms.

#include <benchmark/benchmark.h>

#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue sym(const char* s) { return vhSymbolicValue(s, false, {}); }

vhValue expand(const vhValue& base, int power)
{
    vhValue r = base;
    for (int i = 1; i < power; ++i)
        r = r * base;
    return r;
}

void report(benchmark::State& state, const vhValue& result)
{
    state.counters["terms"] = result.expressionValuesSize();
}

void BM_ExpandTwoSymbolsPower10(benchmark::State& state)
{
    const vhValue base = sym("x") + sym("y") + 1;
    vhValue r;
    for (auto _ : state) {
        r = expand(base, 10);
        benchmark::DoNotOptimize(r);
    }
    report(state, r);
}
BENCHMARK(BM_ExpandTwoSymbolsPower10)->Unit(benchmark::kMillisecond);

void BM_ExpandThreeSymbolsPower6(benchmark::State& state)
{
    const vhValue base = sym("x") + sym("y") + sym("z") + 1;
    vhValue r;
    for (auto _ : state) {
        r = expand(base, 6);
        benchmark::DoNotOptimize(r);
    }
    report(state, r);
}
BENCHMARK(BM_ExpandThreeSymbolsPower6)->Unit(benchmark::kMillisecond);

// One symbol: the product is also sorted by falling powers each time.
void BM_ExpandOneSymbolPower20(benchmark::State& state)
{
    const vhValue base = sym("x") + 1;
    vhValue r;
    for (auto _ : state) {
        r = expand(base, 20);
        benchmark::DoNotOptimize(r);
    }
    report(state, r);
}
BENCHMARK(BM_ExpandOneSymbolPower20)->Unit(benchmark::kMillisecond);

// Three symbols and a constant from power 6 to 12, to see how the cost
// grows with the number of terms (84 to 455).
void BM_ExpandThreeSymbols(benchmark::State& state)
{
    const vhValue base = sym("x") + sym("y") + sym("z") + 1;
    vhValue r;
    for (auto _ : state) {
        r = expand(base, static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(r);
    }
    report(state, r);
}
BENCHMARK(BM_ExpandThreeSymbols)->Arg(6)->Arg(8)->Arg(10)->Arg(12)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
