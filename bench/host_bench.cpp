// Host objects and the type registry against direct calls of the same host
// functions, in the same run. The pairs to compare:
//   MethodCall         / DirectMethodCall   (a two-argument method, 20 in the table)
//   ObjectCreate       / DirectCreate       (two arguments, 1000 registered types)
// and the growth of registering n types and of a lookup among n types.

#include <benchmark/benchmark.h>

#include <cstdarg>
#include <cstdint>
#include <string>
#include <vector>

#include "frame/math.h"
#include "value/type_registry.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }

// --- a method call through the value ------------------------------------------

// A typical small method: reads its own value and both arguments.
vhValue addScaled(vhValue* self, vhValue a, vhValue b)
{
    return vhDouble(self->toDouble() * a.toDouble() + b.toDouble());
}

vhValue otherMethod(vhValue*, vhValue a, vhValue) { return a; }

void DirectMethodCall(benchmark::State& state)
{
    vhValue own = vhDouble(2.0);
    const vhValue a = vhDouble(1.5), b = vhDouble(0.25);
    vhValue (*volatile function)(vhValue*, vhValue, vhValue) = &addScaled;
    for (auto _ : state) {
        // The same argument copies as the call through the table makes.
        vhValue r = function(&own, a, b);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(DirectMethodCall);

void MethodCall(benchmark::State& state)
{
    vhValue own = vhDouble(2.0);
    vhValue object = vhObject("Thing", nullptr);
    object.set_mthis(&own);
    // The method looked for is the last of 20 two-argument methods.
    for (int i = 0; i < 19; ++i)
        object.add_method("method" + std::to_string(i), 2, reinterpret_cast<void*>(&otherMethod));
    object.add_method("addScaled", 2, reinterpret_cast<void*>(&addScaled));
    const vhValue name = str("addScaled");
    const vhValue a = vhDouble(1.5), b = vhDouble(0.25);
    for (auto _ : state) {
        vhValue r = object.call(3, &name, &a, &b);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(MethodCall);

// --- object creation by the type's name ---------------------------------------------

vhValue createPoint(unsigned int n, ...)
{
    if (n != 2)
        return vhValue();
    va_list args;
    va_start(args, n);
    const vhValue* x = va_arg(args, const vhValue*);
    const vhValue* y = va_arg(args, const vhValue*);
    va_end(args);
    vhValue object = vhObject("point", nullptr);
    object.setObjectPointer(reinterpret_cast<void*>(static_cast<std::uintptr_t>(x->toInt() + y->toInt())));
    return object;
}
vhValue emptyList() { return vhVector(); }
vhValue emptyQuery(const vhValue&) { return vhValue(); }

void defineTypes(int n, const std::string& prefix)
{
    for (int i = 0; i < n; ++i)
        MathDefineType(prefix + std::to_string(i), &createPoint, &emptyList, &emptyList, &emptyQuery, &emptyList,
                       &emptyQuery);
}

void DirectCreate(benchmark::State& state)
{
    const vhValue x = vhInteger(3), y = vhInteger(4);
    vhValue (*volatile create)(unsigned int, ...) = &createPoint;
    for (auto _ : state) {
        vhValue r = create(2, &x, &y);
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(DirectCreate);

void ObjectCreate(benchmark::State& state)
{
    MathUndefineTypes();
    defineTypes(1000, "type");
    vhMath math;
    const vhValue name = str("type517"), x = vhInteger(3), y = vhInteger(4);
    for (auto _ : state) {
        vhValue r = math.ObjectCreate_f(3, &name, &x, &y);
        benchmark::DoNotOptimize(r);
    }
    MathUndefineTypes();
}
BENCHMARK(ObjectCreate);

// --- growth with the number of types ----------------------------------------------

// Registering n types, then forgetting them: linear in n.
void DefineTypes(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    std::vector<std::string> names;
    for (int i = 0; i < n; ++i)
        names.push_back("type" + std::to_string(i));
    for (auto _ : state) {
        for (const std::string& name : names)
            MathDefineType(name, &createPoint, &emptyList, &emptyList, &emptyQuery, &emptyList, &emptyQuery);
        state.PauseTiming();
        MathUndefineTypes();
        state.ResumeTiming();
    }
    state.SetComplexityN(n);
}
BENCHMARK(DefineTypes)
    ->RangeMultiplier(10)
    ->Range(100, 10000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMicrosecond);

// One lookup of a type's members among n types: the same for every n.
void LookupAmongTypes(benchmark::State& state)
{
    const int n = static_cast<int>(state.range(0));
    MathUndefineTypes();
    defineTypes(n, "type");
    const vhValue name = str("type" + std::to_string(n / 2));
    for (auto _ : state) {
        vhValue r = MathTypeMembers(name);
        benchmark::DoNotOptimize(r);
    }
    MathUndefineTypes();
}
BENCHMARK(LookupAmongTypes)->RangeMultiplier(10)->Range(10, 10000);

} // namespace

BENCHMARK_MAIN();
