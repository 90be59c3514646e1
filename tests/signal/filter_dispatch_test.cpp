// Every filter row is reached by its number with the catalogue's argument
// count and gives the member's own result.

#include <gtest/gtest.h>

#include "filter_reference.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

vhValue word(const char* s) { return vhSymbolicValue(s, true, {}); }

TEST(FilterDispatch, EveryRowByNumber)
{
    vhMath m;
    const vhValue taps = column({0.25, 0.5, 0.25});
    const vhValue a = column({1, -0.5});
    const vhValue b = column({0.5, 0.5});
    const vhValue signal = column({1, 2, 3, 4, 5});
    const vhValue d = vhDouble(100);
    const vhValue r = vhDouble(1000);
    const vhValue four = vhInteger(4);
    struct Row {
        NodeType id;
        std::vector<vhValue> arguments;
    };
    const std::vector<Row> rows = {
        {nt_makeWindow, {word("hamming"), four}},
        {nt_FIRlowpass, {d, r, vhInteger(5), vhInteger(1)}},
        {nt_FIRhighpass, {d, r, vhInteger(5), vhInteger(1)}},
        {nt_FIRbandpass, {d, vhDouble(200), r, vhInteger(5), vhInteger(1)}},
        {nt_FIRbandstop, {d, vhDouble(200), r, vhInteger(5), vhInteger(1)}},
        {nt_FIRhilbert, {d, vhDouble(200), r, vhInteger(5), vhInteger(1)}},
        {nt_firopt, {vhInteger(11), vhInteger(2), column({0, 0.2, 0.3, 0.5}), column({1, 1, 0, 0}),
                     column({1, 1}), vhInteger(0), vhInteger(16)}},
        {nt_firoptord, {d, vhDouble(150), vhDouble(0.01), vhDouble(0.001), r}},
        {nt_firfreqsampl, {signal, vhInteger(5), vhInteger(0), vhInteger(5)}},
        {nt_buttlowhigh, {four, word("low"), d, r}},
        {nt_buttband, {four, word("pass"), d, vhDouble(200), r}},
        {nt_cheby1lohi, {four, word("high"), d, vhDouble(1), r}},
        {nt_cheby1band, {four, word("stop"), d, vhDouble(200), vhDouble(1), r}},
        {nt_cheby2lohi, {four, word("low"), d, vhDouble(40), r}},
        {nt_cheby2band, {four, word("pass"), d, vhDouble(200), vhDouble(40), r}},
        {nt_elliplohi, {four, word("low"), d, vhDouble(1), vhDouble(40), r}},
        {nt_ellipband, {four, word("pass"), d, vhDouble(200), vhDouble(1), vhDouble(40), r}},
        {nt_FIRFreqResponse, {taps, vhInteger(8), vhInteger(1)}},
        {nt_IIRFreqResponse, {a, b, vhInteger(8), vhInteger(1)}},
        {nt_iirgroupdelay, {a, b, vhInteger(8)}},
        {nt_iirphasedelay, {a, b, vhInteger(8)}},
        {nt_InitFIRFilter, {vhInteger(2), vhInteger(5), vhInteger(3)}},
        {nt_FIRFilter, {vhInteger(2), signal, taps}},
        {nt_InitIIRFilter, {vhInteger(2), vhInteger(2)}},
        {nt_IIRFilter, {vhInteger(2), signal, a, b}},
        {nt_MovingAverage, {signal, vhInteger(3)}},
        {nt_LMSAdaptive, {signal, signal, vhDouble(0.01), vhInteger(2)}},
    };
    vhMath direct;
    for (const Row& row : rows) {
        const vhValue viaNumber = callFunction(&m, row.id, row.arguments);
        EXPECT_FALSE(viaNumber.isNull()) << "row " << int(row.id);
        EXPECT_EQ(viaNumber.toStringAll(), callFunction(&direct, row.id, row.arguments).toStringAll());
    }
    // The direct member gives the same as the row.
    EXPECT_EQ(numbers(callFunction(&m, nt_FIRlowpass, {d, r, vhInteger(5), vhInteger(1)})),
              numbers(m.FIRlowpass_f(d, r, vhInteger(5), vhInteger(1))));
}

} // namespace
