// Filters and designs against plain loops on the same data, in the same run.
// The pairs to compare:
//   FirFilterSlot     / RawFirLoop      (10^6 samples, 64 taps, one block)
//   FirFilterBlocks   / FirFilterSlot   (1000 blocks of 1000 against one block)
//   IirFilterSlot     / RawIirLoop      (10^6 samples, 9 coefficients)
//   MakeWindowHanning / RawHanning      (10^6 points)
//   FirLowpassDesign  / RawLowpass      (order 10^5, Hann window)
//   FirResponse       / RawFirResponse  (64 taps, 4096 points)
//   MovingAverageWide / MovingAverageNarrow (10^6 samples, w = 10001 and 11)
// FirFilterSlot1024 reports the direct form with 1024 taps, FftwOverlapAdd1024
// the same filtering by FFTW's transforms and overlap-add, when the FFTW
// library is installed (it is opened at run time, so the build needs nothing
// of it).

#include <benchmark/benchmark.h>

#include <dlfcn.h>

#include <cmath>
#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const unsigned kSamples = 1000000;
const double kPi = 3.141592653589793;

std::vector<double> randomData(std::size_t n, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::uniform_real_distribution<double> uniform(-1.0, 1.0);
    std::vector<double> d(n);
    for (double& x : d)
        x = uniform(engine);
    return d;
}

// --- FIR --------------------------------------------------------------------

void RawFirLoop(benchmark::State& state)
{
    const std::size_t taps = 64;
    std::vector<double> x = randomData(kSamples, 1), h = randomData(taps, 2);
    std::vector<double> history(kSamples + taps - 1, 0.0), y(kSamples);
    for (auto _ : state) {
        std::memcpy(history.data() + taps - 1, x.data(), kSamples * sizeof(double));
        for (std::size_t i = 0; i < kSamples; ++i) {
            const double* p = history.data() + taps - 1 + i;
            double s = 0.0;
            for (std::size_t k = 0; k < taps; ++k)
                s += h[k] * p[-static_cast<std::ptrdiff_t>(k)];
            y[i] = s;
        }
        std::memmove(history.data(), history.data() + kSamples, (taps - 1) * sizeof(double));
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawFirLoop)->Unit(benchmark::kMillisecond);

void firSlot(benchmark::State& state, unsigned taps, unsigned block)
{
    vhMath m;
    std::vector<double> x = randomData(kSamples, 1), h = randomData(taps, 2);
    m.InitFIRFilter_f(vhInteger(0), vhInteger(int(block)), vhInteger(int(taps)));
    std::vector<vhVector> blocks;
    for (unsigned at = 0; at < kSamples; at += block)
        blocks.emplace_back(x.data() + at, block, false);
    const vhVector coefficients(h.data(), taps, false);
    for (auto _ : state) {
        for (const vhVector& b : blocks) {
            vhValue y = m.FIRFilter_f(vhInteger(0), b, coefficients);
            benchmark::DoNotOptimize(y.numericValues());
        }
    }
}

void FirFilterSlot(benchmark::State& state) { firSlot(state, 64, kSamples); }
BENCHMARK(FirFilterSlot)->Unit(benchmark::kMillisecond);

void FirFilterBlocks(benchmark::State& state) { firSlot(state, 64, 1000); }
BENCHMARK(FirFilterBlocks)->Unit(benchmark::kMillisecond);

void FirFilterSlot1024(benchmark::State& state) { firSlot(state, 1024, kSamples); }
BENCHMARK(FirFilterSlot1024)->Unit(benchmark::kMillisecond);

// --- FFTW overlap-add, 1024 taps -------------------------------------------------

struct Fftw {
    using Plan = void*;
    void* library = nullptr;
    Plan (*planR2c)(int, double*, double (*)[2], unsigned) = nullptr;
    Plan (*planC2r)(int, double (*)[2], double*, unsigned) = nullptr;
    void (*executeR2c)(Plan, double*, double (*)[2]) = nullptr;
    void (*executeC2r)(Plan, double (*)[2], double*) = nullptr;
    void (*destroy)(Plan) = nullptr;

    Fftw()
    {
        library = dlopen("libfftw3.so.3", RTLD_NOW);
        if (!library)
            return;
        planR2c = reinterpret_cast<decltype(planR2c)>(dlsym(library, "fftw_plan_dft_r2c_1d"));
        planC2r = reinterpret_cast<decltype(planC2r)>(dlsym(library, "fftw_plan_dft_c2r_1d"));
        executeR2c = reinterpret_cast<decltype(executeR2c)>(dlsym(library, "fftw_execute_dft_r2c"));
        executeC2r = reinterpret_cast<decltype(executeC2r)>(dlsym(library, "fftw_execute_dft_c2r"));
        destroy = reinterpret_cast<decltype(destroy)>(dlsym(library, "fftw_destroy_plan"));
    }
    bool ready() const { return planR2c && planC2r && executeR2c && executeC2r && destroy; }
};

void FftwOverlapAdd1024(benchmark::State& state)
{
    static Fftw fftw;
    if (!fftw.ready()) {
        state.SkipWithError("libfftw3.so.3 not found");
        return;
    }
    const int taps = 1024, n = 4096, step = n - taps + 1;
    const unsigned estimate = 1u << 6;
    std::vector<double> x = randomData(kSamples, 1), h = randomData(taps, 2);
    std::vector<double> y(kSamples + taps - 1), frame(n);
    std::vector<double> spectrum(2 * (n / 2 + 1)), response(2 * (n / 2 + 1));
    auto* sp = reinterpret_cast<double (*)[2]>(spectrum.data());
    auto* rp = reinterpret_cast<double (*)[2]>(response.data());
    Fftw::Plan forward = fftw.planR2c(n, frame.data(), sp, estimate);
    Fftw::Plan backward = fftw.planC2r(n, sp, frame.data(), estimate);
    std::fill(frame.begin(), frame.end(), 0.0);
    std::copy(h.begin(), h.end(), frame.begin());
    fftw.executeR2c(forward, frame.data(), rp);
    for (auto _ : state) {
        std::fill(y.begin(), y.end(), 0.0);
        for (std::size_t at = 0; at < kSamples; at += step) {
            const std::size_t len = std::min<std::size_t>(step, kSamples - at);
            std::fill(frame.begin(), frame.end(), 0.0);
            std::copy(x.begin() + at, x.begin() + at + len, frame.begin());
            fftw.executeR2c(forward, frame.data(), sp);
            for (int k = 0; k <= n / 2; ++k) {
                const double re = sp[k][0] * rp[k][0] - sp[k][1] * rp[k][1];
                sp[k][1] = sp[k][0] * rp[k][1] + sp[k][1] * rp[k][0];
                sp[k][0] = re;
            }
            fftw.executeC2r(backward, sp, frame.data());
            const std::size_t out = std::min<std::size_t>(n, y.size() - at);
            for (std::size_t i = 0; i < out; ++i)
                y[at + i] += frame[i] / n;
        }
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
    fftw.destroy(forward);
    fftw.destroy(backward);
}
BENCHMARK(FftwOverlapAdd1024)->Unit(benchmark::kMillisecond);

// --- IIR --------------------------------------------------------------------

void RawIirLoop(benchmark::State& state)
{
    const std::size_t taps = 9;
    std::vector<double> x = randomData(kSamples, 1), y(kSamples), s(taps, 0.0);
    std::vector<double> a = randomData(taps, 3), b = randomData(taps, 4);
    for (double& v : a)
        v *= 0.05;
    a[0] = 1.0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < kSamples; ++i) {
            std::memmove(s.data() + 1, s.data(), (taps - 1) * sizeof(double));
            double s0 = x[i];
            for (std::size_t k = 1; k < taps; ++k)
                s0 -= a[k] * s[k];
            s[0] = s0;
            double out = s0 * b[0];
            for (std::size_t k = 1; k < taps; ++k)
                out += b[k] * s[k];
            y[i] = out;
        }
        benchmark::DoNotOptimize(y.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawIirLoop)->Unit(benchmark::kMillisecond);

void IirFilterSlot(benchmark::State& state)
{
    vhMath m;
    const std::size_t taps = 9;
    std::vector<double> x = randomData(kSamples, 1);
    std::vector<double> a = randomData(taps, 3), b = randomData(taps, 4);
    for (double& v : a)
        v *= 0.05;
    a[0] = 1.0;
    m.InitIIRFilter_f(vhInteger(0), vhInteger(int(taps)));
    const vhVector xs(x.data(), kSamples, false), as(a.data(), taps, false), bs(b.data(), taps, false);
    for (auto _ : state) {
        vhValue y = m.IIRFilter_f(vhInteger(0), xs, as, bs);
        benchmark::DoNotOptimize(y.numericValues());
    }
}
BENCHMARK(IirFilterSlot)->Unit(benchmark::kMillisecond);

// --- windows and designs -------------------------------------------------------

void RawHanning(benchmark::State& state)
{
    std::vector<double> w(kSamples);
    for (auto _ : state) {
        for (std::size_t i = 0; i <= (kSamples - 1) / 2; ++i) {
            const double v = 0.5 - 0.5 * std::cos(2 * kPi * double(i) / double(kSamples));
            w[i] = v;
            w[kSamples - 1 - i] = v;
        }
        benchmark::DoNotOptimize(w.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawHanning)->Unit(benchmark::kMillisecond);

void MakeWindowHanning(benchmark::State& state)
{
    vhMath m;
    const vhValue name = vhSymbolicValue("hanning", true, {});
    for (auto _ : state) {
        vhValue w = m.makeWindow_f(name, vhInteger(int(kSamples)));
        benchmark::DoNotOptimize(w.numericValues());
    }
}
BENCHMARK(MakeWindowHanning)->Unit(benchmark::kMillisecond);

void RawLowpass(benchmark::State& state)
{
    const std::size_t n = 100000;
    const double f = 0.1;
    std::vector<double> h(n);
    for (auto _ : state) {
        const double m = (double(n) - 1.0) / 2.0;
        for (std::size_t i = 0; i <= (n - 1) / 2; ++i) {
            const double w = 0.5 - 0.5 * std::cos(2 * kPi * double(i) / double(n));
            const double k = double(i) - m;
            const double v = k == 0.0 ? 2 * f : std::sin(2 * kPi * f * k) / (kPi * k) * w;
            h[i] = v;
            h[n - 1 - i] = v;
        }
        benchmark::DoNotOptimize(h.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawLowpass)->Unit(benchmark::kMillisecond);

void FirLowpassDesign(benchmark::State& state)
{
    vhMath m;
    for (auto _ : state) {
        vhValue h = m.FIRlowpass_f(vhDouble(100), vhDouble(1000), vhInteger(100000), vhInteger(1));
        benchmark::DoNotOptimize(h.numericValues());
    }
}
BENCHMARK(FirLowpassDesign)->Unit(benchmark::kMillisecond);

// --- responses -------------------------------------------------------------------

void RawFirResponse(benchmark::State& state)
{
    const std::size_t taps = 64, size = 4096;
    std::vector<double> h = randomData(taps, 5), out(size);
    for (auto _ : state) {
        for (std::size_t k = 0; k < size; ++k) {
            const double w = double(k) * kPi / double(size);
            const double zr = std::cos(w), zi = -std::sin(w);
            double pr = 1.0, pi = 0.0, sr = 0.0, si = 0.0;
            for (std::size_t n = 0; n < taps; ++n) {
                sr += h[n] * pr;
                si += h[n] * pi;
                const double t = pr * zr - pi * zi;
                pi = pr * zi + pi * zr;
                pr = t;
            }
            out[k] = std::fmax(std::sqrt(sr * sr + si * si), 1e-12);
        }
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
}
BENCHMARK(RawFirResponse)->Unit(benchmark::kMicrosecond);

void FirResponse(benchmark::State& state)
{
    vhMath m;
    std::vector<double> h = randomData(64, 5);
    const vhVector taps(h.data(), 64, false);
    for (auto _ : state) {
        vhValue r = m.FIRFreqResponse_f(taps, vhInteger(4096), vhInteger(1));
        benchmark::DoNotOptimize(r.numericValues());
    }
}
BENCHMARK(FirResponse)->Unit(benchmark::kMicrosecond);

// --- moving average -------------------------------------------------------------------

void movingAverage(benchmark::State& state, int w)
{
    vhMath m;
    std::vector<double> x = randomData(kSamples, 6);
    const vhVector xs(x.data(), kSamples, false);
    for (auto _ : state) {
        vhValue y = m.MovingAverage_f(xs, vhInteger(w));
        benchmark::DoNotOptimize(y.numericValues());
    }
}

void MovingAverageNarrow(benchmark::State& state) { movingAverage(state, 11); }
BENCHMARK(MovingAverageNarrow)->Unit(benchmark::kMillisecond);

void MovingAverageWide(benchmark::State& state) { movingAverage(state, 10001); }
BENCHMARK(MovingAverageWide)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
