// Running filters in slots against scipy's lfilter, block by block, and the
// two smoothers against direct sums and a system identification.

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "filter_reference.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

Array slice(const Array& a, std::size_t from, std::size_t n) { return Array(a.begin() + from, a.begin() + from + n); }

bool sameBits(const Array& a, const Array& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

// The signal through slot 0 in blocks of the given size.
Array runFir(vhMath& m, const Array& x, const Array& h, std::size_t block)
{
    EXPECT_TRUE(m.InitFIRFilter_f(vhInteger(0), vhInteger(int(block)), vhInteger(int(h.size()))).toBool());
    Array y;
    for (std::size_t at = 0; at < x.size(); at += block) {
        const std::size_t n = std::min(block, x.size() - at);
        const Array part = numbers(m.FIRFilter_f(vhInteger(0), column(slice(x, at, n)), column(h)));
        EXPECT_EQ(part.size(), n);
        y.insert(y.end(), part.begin(), part.end());
    }
    return y;
}

Array runIir(vhMath& m, const Array& x, const Array& a, const Array& b, std::size_t block)
{
    EXPECT_TRUE(m.InitIIRFilter_f(vhInteger(0), vhInteger(int(a.size()))).toBool());
    Array y;
    for (std::size_t at = 0; at < x.size(); at += block) {
        const std::size_t n = std::min(block, x.size() - at);
        const Array part = numbers(m.IIRFilter_f(vhInteger(0), column(slice(x, at, n)), column(a), column(b)));
        EXPECT_EQ(part.size(), n);
        y.insert(y.end(), part.begin(), part.end());
    }
    return y;
}

TEST(RunningFilters, BlocksEqualOneCallAndLfilter)
{
    vhMath m;
    const Reference fir = references("lfilter_fir")[0];
    const Array whole = runFir(m, fir.arrays[0], fir.arrays[1], fir.arrays[0].size());
    EXPECT_LE(maxDifference(whole, fir.arrays[2]), 1e-12);
    for (std::size_t block : {1, 7, 1000})
        EXPECT_TRUE(sameBits(runFir(m, fir.arrays[0], fir.arrays[1], block), whole)) << "block " << block;

    const Reference iir = references("lfilter_iir")[0];
    const Array x = iir.arrays[0];
    const Array wholeIir = runIir(m, x, iir.arrays[2], iir.arrays[1], x.size());
    EXPECT_LE(maxDifference(wholeIir, iir.arrays[3]), 1e-12);
    for (std::size_t block : {1, 7, 1000})
        EXPECT_TRUE(sameBits(runIir(m, x, iir.arrays[2], iir.arrays[1], block), wholeIir)) << "block " << block;
}

TEST(RunningFilters, SlotsAreIndependentAndKeepOrientation)
{
    vhMath m;
    const Array h = {0.5, 0.25, 0.125};
    const Array a = {1.0, -0.5};
    const Array b = {1.0, 0.0};
    ASSERT_TRUE(m.InitFIRFilter_f(vhInteger(3), vhInteger(4), vhInteger(3)).toBool());
    ASSERT_TRUE(m.InitIIRFilter_f(vhInteger(3), vhInteger(2)).toBool());
    ASSERT_TRUE(m.InitFIRFilter_f(vhInteger(4), vhInteger(4), vhInteger(3)).toBool());
    EXPECT_EQ(m.firFilterBufferSize(3), 6u);
    EXPECT_EQ(m.iirFilterBufferSize(3), 2u);
    const vhValue y1 = m.FIRFilter_f(vhInteger(3), column({1, 0, 0, 0}, true), column(h));
    EXPECT_TRUE(y1.isRowVector());
    EXPECT_EQ(numbers(y1), (Array{0.5, 0.25, 0.125, 0}));
    EXPECT_EQ(numbers(m.IIRFilter_f(vhInteger(3), column({1, 0, 0}), column(a), column(b))),
              (Array{1, 0.5, 0.25}));
    // The history of slot 3 carries over; slot 4 starts from silence.
    EXPECT_EQ(numbers(m.FIRFilter_f(vhInteger(3), column({0, 0}), column(h))), (Array{0, 0}));
    EXPECT_EQ(numbers(m.FIRFilter_f(vhInteger(4), column({2}), column(h))), (Array{1}));
    EXPECT_EQ(numbers(m.IIRFilter_f(vhInteger(3), column({0}), column(a), column(b))), (Array{0.125}));
    // The history holds the last samples of the block that came in.
    EXPECT_EQ(m.firFilterBuffer(4)[1], 2.0);

    // Longer blocks than Init's, unequal a and b, larger IIR orders are refused.
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(3), column({1, 2, 3, 4, 5}), column(h)).isNull());
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(3), column({1, 2}), column({1, 2, 3, 4, 5, 6})).isNull());
    EXPECT_TRUE(m.IIRFilter_f(vhInteger(3), column({1}), column({1, 2}), column({1})).isNull());
    EXPECT_TRUE(m.IIRFilter_f(vhInteger(3), column({1}), column({1, 2, 3}), column({1, 2, 3})).isNull());
    // 0 taps frees the slot and answers undefined.
    EXPECT_TRUE(m.InitFIRFilter_f(vhInteger(3), vhInteger(4), vhInteger(0)).isNull());
    EXPECT_EQ(m.firFilterBuffer(3), nullptr);
    EXPECT_EQ(m.firFilterBufferSize(3), 0u);
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(3), column({1}), column(h)).isNull());
    EXPECT_NE(m.iirFilterBuffer(3), nullptr);
    m.deinitializeIIRfilterBuffer();
    EXPECT_EQ(m.iirFilterBuffer(3), nullptr);
}

TEST(RunningFilters, RefusedSlotsAndValues)
{
    vhMath m;
    const vhValue x = column({1, 2});
    for (int slot : {-1, 64}) {
        EXPECT_TRUE(m.InitFIRFilter_f(vhInteger(slot), vhInteger(2), vhInteger(2)).isNull());
        EXPECT_TRUE(m.FIRFilter_f(vhInteger(slot), x, x).isNull());
        EXPECT_TRUE(m.InitIIRFilter_f(vhInteger(slot), vhInteger(2)).isNull());
        EXPECT_TRUE(m.IIRFilter_f(vhInteger(slot), x, x, x).isNull());
        EXPECT_EQ(m.firFilterBuffer(slot), nullptr);
        EXPECT_EQ(m.iirFilterBufferSize(slot), 0u);
    }
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(0), x, x).isNull());
    // Overflow of the signed 32-bit size answers false and leaves the slot free.
    const vhValue overflow = m.InitFIRFilter_f(vhInteger(0), vhInteger(2147483647), vhInteger(2));
    EXPECT_TRUE(overflow.isBoolean());
    EXPECT_FALSE(overflow.toBool());
    EXPECT_EQ(m.firFilterBuffer(0), nullptr);
    // So does a size beyond what a slot may take.
    EXPECT_FALSE(m.InitIIRFilter_f(vhInteger(0), vhInteger(2147483647)).toBool());
    EXPECT_FALSE(m.InitIIRFilter_f(vhInteger(0), vhInteger(2147483647)).isNull());
    EXPECT_EQ(m.iirFilterBuffer(0), nullptr);
    ASSERT_TRUE(m.InitFIRFilter_f(vhInteger(0), vhInteger(4), vhInteger(2)).toBool());
    ASSERT_TRUE(m.InitIIRFilter_f(vhInteger(0), vhInteger(2)).toBool());
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(0), vhSymbolicValue("x", true, {}), x).isNull());
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(0), vhVector(std::vector<vhValue>{vhDouble(1), vhComplex(0, 1)}, false), x)
                    .isNull());
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(0), vhVector(2, false, true, true), x).isNull());
    EXPECT_TRUE(m.FIRFilter_f(vhDouble(0.5), x, x).isNull());
    EXPECT_TRUE(m.IIRFilter_f(vhInteger(0), vhVector(), x, x).isNull());
    // Element storage of real numbers is read like numeric storage; NaN in
    // numeric storage flows through.
    const vhValue mixed = vhVector(std::vector<vhValue>{vhInteger(1), vhBoolean(true)}, false);
    EXPECT_EQ(numbers(m.FIRFilter_f(vhInteger(0), mixed, column({1, 1}))), (Array{1, 2}));
    const Array y = numbers(m.FIRFilter_f(vhInteger(0), column({NAN, 0}), column({1, 1})));
    ASSERT_EQ(y.size(), 2u);
    EXPECT_TRUE(std::isnan(y[0]) && std::isnan(y[1]));
    EXPECT_TRUE(m.InitIIRFilter_f(vhInteger(0), vhInteger(-1)).isNull());
    EXPECT_EQ(m.iirFilterBuffer(0), nullptr);
}

int g_calls = 0;
vhMath* g_math = nullptr;
void stopOnThirdCall()
{
    if (++g_calls == 3)
        g_math->setStopCalculation(true);
}

TEST(RunningFilters, StopFromTheEventsCallback)
{
    vhMath m;
    g_math = &m;
    m.setAppProcessEventsCallback(stopOnThirdCall);
    const Array x(200, 1.0);
    const Array h(10, 0.1);
    ASSERT_TRUE(m.InitFIRFilter_f(vhInteger(1), vhInteger(200), vhInteger(10)).toBool());
    ASSERT_TRUE(m.InitIIRFilter_f(vhInteger(1), vhInteger(10)).toBool());
    // 200 x 5 = 1000 multiply-adds: no polling yet.
    g_calls = 0;
    EXPECT_FALSE(m.FIRFilter_f(vhInteger(1), column(slice(x, 0, 200)), column(slice(h, 0, 5))).isNull());
    EXPECT_EQ(g_calls, 0);
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(1), column(x), column(h)).isNull());
    EXPECT_EQ(g_calls, 3);
    EXPECT_TRUE(m.IIRFilter_f(vhInteger(1), column(x), column(h), column(h)).isNull());
    m.setStopCalculation(false);
    m.setAppProcessEventsCallback(nullptr);
    // Without a callback a flag already set stops the long blocks only.
    m.setStopCalculation(true);
    EXPECT_TRUE(m.FIRFilter_f(vhInteger(1), column(x), column(h)).isNull());
    EXPECT_TRUE(m.IIRFilter_f(vhInteger(1), column(x), column(h), column(h)).isNull());
    EXPECT_FALSE(m.FIRFilter_f(vhInteger(1), column(slice(x, 0, 10)), column(h)).isNull());
    m.setStopCalculation(false);
}

TEST(MovingAverage, MatchesDirectSumsOverWideRanges)
{
    vhMath m;
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> exponent(-8.0, 8.0);
    const std::size_t n = 3000;
    Array x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = (i % 2 ? -1.0 : 1.0) * std::pow(10.0, exponent(rng));
    for (int w : {1, 3, 11, 101, 2999}) {
        const Array y = numbers(m.MovingAverage_f(column(x), vhInteger(w)));
        ASSERT_EQ(y.size(), n);
        const int half = (w - 1) / 2;
        for (std::size_t i = 0; i < n; i += 7) {
            long double s = 0.0L;
            double magnitude = 0.0;
            for (int j = int(i) - half; j <= int(i) + half; ++j)
                if (j >= 0 && j < int(n)) {
                    s += x[j];
                    magnitude += std::fabs(x[j]);
                }
            EXPECT_LE(std::fabs(y[i] - double(s / w)), 1e-14 * 2.0 * magnitude / w + 1e-300) << "w=" << w;
        }
    }
    // A matrix is smoothed row by row; the window may equal the size.
    vhMatrix mat(2, 3, true, false, false);
    const double values[] = {3, 6, 9, 1, 1, 1};
    std::memcpy(mat.numericValues(), values, sizeof values);
    const vhValue r = m.MovingAverage_f(mat, vhInteger(3));
    ASSERT_TRUE(r.isMatrix());
    EXPECT_EQ(numbers(r), (Array{3, 6, 5, 2.0 / 3.0, 1, 2.0 / 3.0}));
    const vhValue rowResult = m.MovingAverage_f(column({3, 3, 3}, true), vhInteger(3));
    EXPECT_TRUE(rowResult.isRowVector());
    EXPECT_EQ(numbers(rowResult), (Array{2, 3, 2}));
    EXPECT_TRUE(m.MovingAverage_f(column({1, 2, 3, 4}), vhInteger(2)).isNull());
    EXPECT_TRUE(m.MovingAverage_f(column({1, 2, 3}), vhInteger(5)).isNull());
    EXPECT_TRUE(m.MovingAverage_f(column({1, 2, 3}), vhInteger(0)).isNull());
    EXPECT_TRUE(m.MovingAverage_f(vhDouble(3), vhInteger(1)).isNull());
    EXPECT_TRUE(m.MovingAverage_f(vhVector(std::vector<vhValue>{vhSymbolicValue("a", true, {})}, false),
                                  vhInteger(1))
                    .isNull());
}

TEST(LmsAdaptive, IdentifiesAnUnknownFir)
{
    vhMath m;
    std::mt19937_64 rng(11);
    std::normal_distribution<double> noise(0.0, 1.0);
    const std::size_t n = 20000;
    Array x(n);
    for (double& v : x)
        v = noise(rng);
    Array plant(16);
    for (std::size_t k = 0; k < plant.size(); ++k)
        plant[k] = std::sin(0.7 * double(k + 1)) / double(k + 1);
    Array d(n, 0.0);
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t k = 0; k < plant.size() && k <= i; ++k)
            d[i] += plant[k] * x[i - k];
    const vhValue r = m.LMSAdaptive_f(column(d, true), column(x, true), vhDouble(0.01), vhInteger(16));
    ASSERT_TRUE(r.isVector());
    ASSERT_EQ(r.size(), 3u);
    EXPECT_TRUE(r.value(0).isRowVector());
    EXPECT_TRUE(r.value(1).isRowVector());
    EXPECT_FALSE(r.value(2).isRowVector());
    EXPECT_LE(maxDifference(numbers(r.value(2)), plant), 1e-6);
    const Array e = numbers(r.value(1));
    EXPECT_LE(std::fabs(e[n - 1]), 1e-6);
    // The step bound 2 / (p L) is accepted, just above it is not.
    const vhValue small = column({1, -1, 1, -1});
    EXPECT_FALSE(m.LMSAdaptive_f(small, small, vhDouble(1.0), vhInteger(2)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, small, vhDouble(1.0000001), vhInteger(2)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, small, vhDouble(0), vhInteger(2)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, small, vhDouble(0.1), vhInteger(5)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, small, vhDouble(0.1), vhInteger(0)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, column({1, -1, 1, -1}, true), vhDouble(0.1), vhInteger(2)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, column({1, -1, 1}), vhDouble(0.1), vhInteger(2)).isNull());
    EXPECT_TRUE(m.LMSAdaptive_f(small, vhDouble(1), vhDouble(0.1), vhInteger(1)).isNull());
}

} // namespace
