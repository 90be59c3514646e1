// Responses and delays against scipy's freqz and group_delay, and the
// stop flag in long evaluations.

#include <gtest/gtest.h>

#include "filter_reference.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

TEST(FilterResponses, MatchFreqzAndGroupDelay)
{
    vhMath m;
    for (const Reference& r : references("freqz")) {
        const Array h = numbers(m.FIRFreqResponse_f(column(r.arrays[0]), vhInteger(int(r.params[0])),
                                                    vhDouble(r.params[1])));
        EXPECT_LE(maxDifference(h, r.arrays[1]), 1e-10);
    }
    for (const Reference& r : references("iirfreqz")) {
        const Array h = numbers(m.IIRFreqResponse_f(column(r.arrays[1]), column(r.arrays[0]),
                                                    vhInteger(int(r.params[0])), vhDouble(r.params[1])));
        EXPECT_LE(maxDifference(h, r.arrays[2]), 1e-10);
    }
    for (const Reference& r : references("groupdelay")) {
        const Array g = numbers(m.iirgroupdelay_f(column(r.arrays[1]), column(r.arrays[0]),
                                                  vhInteger(int(r.params[0]))));
        EXPECT_LE(maxDifference(g, r.arrays[2]), 1e-10);
    }
    for (const Reference& r : references("phasedelay")) {
        const Array p = numbers(m.iirphasedelay_f(column(r.arrays[1]), column(r.arrays[0]),
                                                  vhInteger(int(r.params[0]))));
        EXPECT_LE(maxDifference(p, r.arrays[2]), 1e-10);
    }
    // A pure delay of 3 samples: both delays are 3 everywhere, the gain 1.
    const Array d = {0, 0, 0, 1};
    const Array one = {1};
    for (double v : numbers(m.iirgroupdelay_f(column(one), column(d), vhInteger(9))))
        EXPECT_NEAR(v, 3.0, 1e-13);
    for (double v : numbers(m.iirphasedelay_f(column(one), column(d), vhInteger(9))))
        EXPECT_NEAR(v, 3.0, 1e-13);
    for (double v : numbers(m.FIRFreqResponse_f(column(d), vhInteger(9), vhInteger(2))))
        EXPECT_NEAR(v, 1.0, 1e-15);
    // A zero response is clipped to 1e-12.
    EXPECT_EQ(numbers(m.FIRFreqResponse_f(column({1, 1}), vhInteger(2), vhInteger(2)))[1], 1e-12);
}

int g_calls = 0;
vhMath* g_math = nullptr;
void stopAtOnce()
{
    ++g_calls;
    g_math->setStopCalculation(true);
}

TEST(FilterResponses, RefusalsAndStop)
{
    vhMath m;
    const vhValue c = column({1, 0.5});
    EXPECT_TRUE(m.FIRFreqResponse_f(c, vhInteger(0), vhInteger(1)).isNull());
    EXPECT_TRUE(m.FIRFreqResponse_f(c, vhInteger(4), vhDouble(-1)).isNull());
    EXPECT_TRUE(m.FIRFreqResponse_f(c, vhInteger(4), vhDouble(INFINITY)).isNull());
    EXPECT_TRUE(m.FIRFreqResponse_f(vhVector(2, false, true, true), vhInteger(4), vhInteger(1)).isNull());
    EXPECT_TRUE(m.IIRFreqResponse_f(c, vhDouble(1), vhInteger(4), vhInteger(1)).isNull());
    EXPECT_TRUE(m.iirgroupdelay_f(c, c, vhDouble(3.5)).isNull());
    EXPECT_TRUE(m.iirphasedelay_f(vhVector(), c, vhInteger(3)).isNull());
    setMaximumNumerOfMatrixElements(1000);
    EXPECT_TRUE(m.FIRFreqResponse_f(c, vhInteger(1001), vhInteger(1)).isNull());
    setMaximumNumerOfMatrixElements(2147483647u);

    g_math = &m;
    g_calls = 0;
    m.setAppProcessEventsCallback(stopAtOnce);
    // 500 points of 2 taps stay under 1000 multiply-adds: no polling.
    EXPECT_FALSE(m.FIRFreqResponse_f(c, vhInteger(500), vhInteger(1)).isNull());
    EXPECT_EQ(g_calls, 0);
    EXPECT_TRUE(m.FIRFreqResponse_f(c, vhInteger(501), vhInteger(1)).isNull());
    EXPECT_TRUE(m.IIRFreqResponse_f(c, c, vhInteger(501), vhInteger(1)).isNull());
    EXPECT_TRUE(m.iirgroupdelay_f(c, c, vhInteger(501)).isNull());
    EXPECT_TRUE(m.iirphasedelay_f(c, c, vhInteger(501)).isNull());
    EXPECT_EQ(g_calls, 4);
    m.setAppProcessEventsCallback(nullptr);
    m.setStopCalculation(false);
}

} // namespace
