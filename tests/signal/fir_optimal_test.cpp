// Equiripple designs against scipy's remez, the equal ripple itself, the
// order estimate and the frequency-sampling design.

#include <gtest/gtest.h>

#include "filter_reference.h"
#include "signal/remez.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

TEST(EquirippleFir, MatchesRemezAndRipplesEqually)
{
    vhMath m;
    for (const Reference& r : references("remez")) {
        const int numtaps = int(r.params[0]);
        const int type = int(r.params[2]);
        const Array bands = r.arrays[0];
        const vhValue h = m.firopt_f(vhInteger(numtaps), vhInteger(int(r.arrays[2].size())), column(bands),
                                     column(r.arrays[1]), column(r.arrays[2]), vhInteger(type),
                                     vhInteger(int(r.params[1])));
        const Array taps = numbers(h);
        ASSERT_EQ(taps.size(), std::size_t(numtaps)) << "taps " << numtaps << " type " << type;
        EXPECT_LE(maxDifference(taps, r.arrays[3]), 1e-6) << "taps " << numtaps << " type " << type;
        for (int i = 0; i < numtaps; ++i)
            EXPECT_EQ(taps[i], type == 0 ? taps[numtaps - 1 - i] : -taps[numtaps - 1 - i] + 0.0);
        // The converged reference levels the weighted error: the extrema
        // alternate in sign and agree in size within 1e-4.
        Array errors;
        Array kernelTaps;
        ASSERT_TRUE(signal::remezDesign(numtaps, bands, r.arrays[1], r.arrays[2],
                                        static_cast<signal::RemezType>(type), int(r.params[1]), kernelTaps,
                                        signal::StopPoll{nullptr, nullptr}, &errors));
        EXPECT_EQ(kernelTaps, taps);
        ASSERT_FALSE(errors.empty());
        const double largest = maxAbs(errors);
        for (std::size_t i = 0; i < errors.size(); ++i) {
            EXPECT_LE(largest - std::fabs(errors[i]), 1e-4 * largest) << "taps " << numtaps << " type " << type;
            if (i > 0)
                EXPECT_LT(errors[i] * errors[i - 1], 0.0);
        }
    }
}

TEST(EquirippleFir, RefusedBandLayouts)
{
    vhMath m;
    const vhValue e = column({0, 0.2, 0.3, 0.5});
    const vhValue r = column({1, 1, 0, 0});
    const vhValue w = column({1, 1});
    const vhValue two = vhInteger(2);
    EXPECT_FALSE(m.firopt_f(vhInteger(21), two, e, r, w, vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(2), two, e, r, w, vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(4097), two, e, r, w, vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), vhInteger(0), e, r, w, vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), vhInteger(3), e, r, w, vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, e, r, column({1, 0}), vhInteger(0), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, column({0, 0.3, 0.2, 0.5}), r, w, vhInteger(0), vhInteger(16))
                    .isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, column({0, 0.2, 0.3, 0.6}), r, w, vhInteger(0), vhInteger(16))
                    .isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, e, r, w, vhInteger(3), vhInteger(16)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, e, r, w, vhInteger(0), vhInteger(65)).isNull());
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, e, column({1, 1, 0}), w, vhInteger(0), vhInteger(16)).isNull());
    setMaximumNumerOfMatrixElements(20);
    EXPECT_TRUE(m.firopt_f(vhInteger(21), two, e, r, w, vhInteger(0), vhInteger(16)).isNull());
    setMaximumNumerOfMatrixElements(2147483647u);
}

TEST(EquirippleFir, OrderEstimate)
{
    vhMath m;
    // Herrmann, Rabiner and Chan, worked by hand for d1 = 0.01, d2 = 0.001,
    // df = 0.05: p = -2, q = -3.
    const double d = (0.005309 * 4 - 0.07114 * 2 - 0.4761) * -3 - (0.00266 * 4 - 0.5941 * 2 + 0.4278);
    const double f = (-2 + 3) * 0.51244 + 11.012;
    const vhValue n = m.firoptord_f(vhDouble(100), vhDouble(150), vhDouble(0.01), vhDouble(0.001), vhDouble(1000));
    ASSERT_TRUE(n.isDouble());
    EXPECT_NEAR(n.toDouble(), (d - f * 0.05 * 0.05) / 0.05 + 1, 1e-12);
    EXPECT_NEAR(m.firoptord_f(vhDouble(150), vhDouble(100), vhDouble(0.01), vhDouble(0.001), vhDouble(1000))
                    .toDouble(),
                n.toDouble(), 1e-12);
    // Kaiser's estimate below 1e-5: -20 log10(1e-6) - 7.95 = 112.05 rounds to 112.
    EXPECT_NEAR(m.firoptord_f(vhDouble(0), vhDouble(100), vhDouble(1e-6), vhDouble(1e-7), vhDouble(1000))
                    .toDouble(),
                112.0 / (14.26 * 0.1), 1e-12);
    EXPECT_TRUE(m.firoptord_f(vhDouble(100), vhDouble(100), vhDouble(0.01), vhDouble(0.01), vhDouble(1000)).isNull());
    EXPECT_TRUE(m.firoptord_f(vhDouble(100), vhDouble(600), vhDouble(0.01), vhDouble(0.01), vhDouble(1000)).isNull());
    EXPECT_TRUE(m.firoptord_f(vhDouble(100), vhDouble(150), vhDouble(1), vhDouble(0.01), vhDouble(1000)).isNull());
    EXPECT_TRUE(m.firoptord_f(vhDouble(100), vhDouble(150), vhDouble(0.01), vhDouble(0), vhDouble(1000)).isNull());
}

TEST(FrequencySampling, LinearPhaseTapsFromSamples)
{
    vhMath m;
    // A flat response of odd count gives the impulse at the middle tap,
    // since the phase turns by -pi per sample.
    const Array flat(5, 1.0);
    const Array h = numbers(m.firfreqsampl_f(column(flat), vhInteger(5), vhInteger(0), vhInteger(5)));
    ASSERT_EQ(h.size(), 5u);
    // sum over k of e^{i k (2 pi t / 5 - pi)} / 5 is 0 unless...
    for (std::size_t t = 0; t < 5; ++t) {
        double s = 0.0;
        for (int k = 0; k < 5; ++k)
            s += std::cos(-3.141592653589793 * k + 2 * 3.141592653589793 * k * double(t) / 5.0);
        EXPECT_NEAR(h[t], s / 5.0, 1e-15);
    }
    // Counts above 32 use 32 samples; the antisymmetric form rotates by i.
    Array many(40);
    for (std::size_t i = 0; i < many.size(); ++i)
        many[i] = 1.0 / double(i + 1);
    const Array a = numbers(m.firfreqsampl_f(column(many), vhInteger(40), vhInteger(1), vhInteger(32)));
    const Array b = numbers(m.firfreqsampl_f(column(many), vhInteger(32), vhInteger(1), vhInteger(32)));
    ASSERT_EQ(a.size(), 32u);
    EXPECT_EQ(a, b);
    double s = 0.0;
    for (int k = 0; k < 32; ++k)
        s -= many[k] * std::sin(-3.043417883165112 * k + 2 * 3.141592653589793 * k * 3.0 / 32.0);
    EXPECT_NEAR(a[3], s / 32.0, 1e-15);
    EXPECT_TRUE(m.firfreqsampl_f(column(flat), vhInteger(6), vhInteger(0), vhInteger(5)).isNull());
    EXPECT_TRUE(m.firfreqsampl_f(column(flat), vhInteger(5), vhInteger(0), vhInteger(6)).isNull());
    EXPECT_TRUE(m.firfreqsampl_f(column(flat), vhInteger(5), vhInteger(3), vhInteger(5)).isNull());
    EXPECT_TRUE(m.firfreqsampl_f(column(flat), vhInteger(0), vhInteger(0), vhInteger(1)).isNull());
}

} // namespace
