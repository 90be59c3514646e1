// Exact division of an expanded power of a sum by the sum, against the
// product that made it, and substitution of numbers into expanded powers,
// whose cost per term must not grow with the number of terms.

#include <benchmark/benchmark.h>

#include "frame/math.h"
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

// The anchor: (x+y+1)^8 * (x+y+1), the product that the division undoes.
void BM_ProductPower8ByBase(benchmark::State& state)
{
    const vhValue base = sym("x") + sym("y") + vhInteger(1);
    const vhValue p8 = expand(base, 8);
    for (auto _ : state) {
        vhValue r = p8 * base;
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(BM_ProductPower8ByBase)->Unit(benchmark::kMillisecond);

void BM_ExactDivisionPower9ByBase(benchmark::State& state)
{
    const vhValue base = sym("x") + sym("y") + vhInteger(1);
    const vhValue p9 = expand(base, 9);
    vhValue quotient;
    for (auto _ : state) {
        vhValue remainder;
        quotient = p9.division(base, remainder);
        benchmark::DoNotOptimize(quotient);
    }
    state.counters["quotient terms"] = quotient.expressionValuesSize();
}
BENCHMARK(BM_ExactDivisionPower9ByBase)->Unit(benchmark::kMillisecond);

// Doubles for x, y and z in the expanded (x+y+z+1)^n: 286 terms at n = 10,
// 816 at n = 15. Reported per term.
void BM_SubstituteDoubles(benchmark::State& state)
{
    vhMath math;
    const vhValue base = sym("x") + sym("y") + sym("z") + vhInteger(1);
    const vhValue p = expand(base, int(state.range(0)));
    const std::vector<std::string> names{"x", "y", "z"};
    const std::vector<vhValue> values{vhDouble(0.3), vhDouble(-0.7), vhDouble(1.1)};
    for (auto _ : state) {
        vhValue r = p.replaceSymbolicValuesConst(&math, names, values, false);
        benchmark::DoNotOptimize(r);
    }
    const double terms = p.expressionValuesSize();
    state.counters["terms"] = terms;
    state.counters["per term"] =
        benchmark::Counter(terms * state.iterations(), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_SubstituteDoubles)->Arg(10)->Arg(15)->Unit(benchmark::kMicrosecond);

} // namespace
BENCHMARK_MAIN();
