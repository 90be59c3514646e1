// Windows and windowed-sinc FIR designs against formulas evaluated in NumPy
// and scipy's firwin, and their symmetry and argument checks.

#include <gtest/gtest.h>

#include <cstring>

#include "filter_reference.h"
#include "signal/filter_windows.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

const char* const kWindowNames[] = {"rectangular", "hanning",   "welch",       "parzen",  "bartlett",
                                    "hamming",     "blackman2", "blackman3",   "blackman4", "exponential",
                                    "riemann",     "blackmanharris", "nuttall"};

// a[i] and sign * a[n - 1 - i] are the same bits (a zero centre of odd taps
// may carry either sign).
bool bitwiseMirrored(const Array& a, double sign)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        const double mirrored = sign * a[a.size() - 1 - i];
        if (2 * i + 1 == a.size() && a[i] == 0.0 && mirrored == 0.0)
            continue;
        if (std::memcmp(&a[i], &mirrored, sizeof(double)) != 0)
            return false;
    }
    return true;
}

TEST(FilterWindows, MatchFormulasAndAreBitwiseSymmetric)
{
    vhMath m;
    for (const Reference& r : references("window")) {
        const int type = int(r.params[0]);
        const int n = int(r.params[1]);
        const Array w = numbers(m.makeWindow_f(vhSymbolicValue(kWindowNames[type], true, {}), vhInteger(n)));
        EXPECT_LE(maxDifference(w, r.arrays[0]), 1e-15) << kWindowNames[type] << " n=" << n;
        if (type != 11 && type != 12)
            EXPECT_TRUE(bitwiseMirrored(w, 1.0)) << kWindowNames[type] << " n=" << n;
    }
    // Riemann's centre is exactly 1 at odd sizes; Bartlett climbs in steps of
    // 1 / floor(n / 2).
    const Array riemann = numbers(m.makeWindow_f(vhSymbolicValue("riemann", true, {}), vhInteger(9)));
    ASSERT_EQ(riemann.size(), 9u);
    EXPECT_EQ(riemann[4], 1.0);
    const Array bartlett = numbers(m.makeWindow_f(vhSymbolicValue("bartlett", true, {}), vhInteger(9)));
    EXPECT_EQ(bartlett[0], 0.0);
    EXPECT_EQ(bartlett[4], 0.25 + 0.25 + 0.25 + 0.25);
}

TEST(FilterWindows, RefusedNamesAndSizes)
{
    vhMath m;
    auto name = [](const char* s) { return vhSymbolicValue(s, true, {}); };
    EXPECT_TRUE(m.makeWindow_f(name("barlett"), vhInteger(8)).isNull());
    EXPECT_TRUE(m.makeWindow_f(name("hanning"), vhInteger(0)).isNull());
    EXPECT_TRUE(m.makeWindow_f(name("hanning"), vhDouble(7.5)).isNull());
    EXPECT_TRUE(m.makeWindow_f(name("nuttall"), vhInteger(1)).isNull());
    EXPECT_TRUE(m.makeWindow_f(vhInteger(1), vhInteger(8)).isNull());
    EXPECT_TRUE(m.makeWindow_f(name("hanning"), vhDouble(NAN)).isNull());
    const vhValue one = m.makeWindow_f(name("hanning"), vhInteger(1));
    EXPECT_EQ(numbers(one), Array{0.0});
    EXPECT_FALSE(m.makeWindow_f(name("hanning"), vhInteger(2)).isRowVector());
    // The array cap bounds the size.
    setMaximumNumerOfMatrixElements(1000);
    EXPECT_TRUE(m.makeWindow_f(name("hamming"), vhInteger(1001)).isNull());
    EXPECT_EQ(numbers(m.makeWindow_f(name("hamming"), vhInteger(1000))).size(), 1000u);
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(10), vhDouble(100), vhInteger(1001), vhInteger(0)).isNull());
    setMaximumNumerOfMatrixElements(2147483647u);
}

TEST(FirWindowDesign, RectangularDesignsMatchFirwin)
{
    vhMath m;
    const double rate = 8000.0;
    for (const Reference& r : references("firwin")) {
        const int kind = int(r.params[0]);
        const vhValue f1(vhDouble(r.params[1] * rate));
        const vhValue f2(vhDouble(r.params[2] * rate));
        const vhValue order(vhInteger(int(r.params[3])));
        const vhValue window(vhSymbolicValue("rectangular", true, {}));
        vhValue h;
        switch (kind) {
        case 1: h = m.FIRlowpass_f(f1, vhDouble(rate), order, window); break;
        case 3: h = m.FIRhighpass_f(f1, vhDouble(rate), order, window); break;
        case 2: h = m.FIRbandpass_f(f1, f2, vhDouble(rate), order, window); break;
        default: h = m.FIRbandstop_f(f1, f2, vhDouble(rate), order, window); break;
        }
        const Array taps = numbers(h);
        EXPECT_LE(maxDifference(taps, r.arrays[0]), 1e-13) << "kind " << kind << " order " << r.params[3];
        EXPECT_TRUE(bitwiseMirrored(taps, 1.0)) << "kind " << kind << " order " << r.params[3] << " " << r.params[1];
        if (taps.size() > 1)
            EXPECT_FALSE(h.isRowVector());
    }
}

TEST(FirWindowDesign, HilbertTapsAreOddAndMatchTheFormula)
{
    vhMath m;
    for (const Reference& r : references("hilbert")) {
        const Array taps = numbers(m.FIRhilbert_f(vhDouble(r.params[0] * 100.0), vhDouble(r.params[1] * 100.0),
                                                 vhDouble(100.0), vhInteger(int(r.params[2])),
                                                 vhInteger(int(r.params[3]))));
        EXPECT_LE(maxDifference(taps, r.arrays[0]), 1e-15);
        EXPECT_TRUE(bitwiseMirrored(taps, -1.0));
    }
}

TEST(FirWindowDesign, CentreTapAndEdges)
{
    vhMath m;
    const vhValue hann(vhSymbolicValue("hanning", true, {}));
    // The middle tap of an odd order keeps 2 f unwindowed; an even order has
    // no middle tap.
    const Array odd = numbers(m.FIRlowpass_f(vhDouble(100), vhDouble(1000), vhInteger(11), hann));
    ASSERT_EQ(odd.size(), 11u);
    EXPECT_EQ(odd[5], 0.2);
    const Array even = numbers(m.FIRlowpass_f(vhDouble(100), vhDouble(1000), vhInteger(10), hann));
    ASSERT_EQ(even.size(), 10u);
    for (double v : even)
        EXPECT_NE(v, 0.2);
    // A cut-off of half the rate passes everything: the impulse.
    const Array all = numbers(m.FIRlowpass_f(vhDouble(500), vhDouble(1000), vhInteger(7), vhInteger(0)));
    ASSERT_EQ(all.size(), 7u);
    EXPECT_EQ(all[3], 1.0);
    EXPECT_LT(maxAbs({all[0], all[1], all[2]}), 1e-15);
    // The windowed taps are the rectangular taps times the window.
    const Array rect = numbers(m.FIRbandstop_f(vhDouble(50), vhDouble(200), vhDouble(1000), vhInteger(9),
                                               vhInteger(0)));
    const Array hamm = numbers(m.FIRbandstop_f(vhDouble(50), vhDouble(200), vhDouble(1000), vhInteger(9),
                                               vhSymbolicValue("hamming", true, {})));
    const Array w = numbers(m.makeWindow_f(vhSymbolicValue("hamming", true, {}), vhInteger(9)));
    ASSERT_EQ(hamm.size(), 9u);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(hamm[i], i == 4 ? rect[i] : rect[i] * w[i]);
}

TEST(FirWindowDesign, RefusedArguments)
{
    vhMath m;
    const vhValue r(vhDouble(1000));
    const vhValue o(vhInteger(11));
    const vhValue w(vhInteger(1));
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(501), r, o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(-1), r, o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), vhDouble(0), o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), vhDouble(INFINITY), o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(NAN), r, o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, vhInteger(0), w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, vhInteger(-3), w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, vhDouble(4.5), w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, o, vhInteger(13)).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, o, vhSymbolicValue("barlett", true, {})).isNull());
    // The three Blackman sums are reached by number only.
    EXPECT_TRUE(m.FIRlowpass_f(vhDouble(100), r, o, vhSymbolicValue("blackman2", true, {})).isNull());
    EXPECT_FALSE(m.FIRlowpass_f(vhDouble(100), r, o, vhInteger(6)).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhSymbolicValue("a", true, {}), r, o, w).isNull());
    EXPECT_TRUE(m.FIRlowpass_f(vhComplex(1, 1), r, o, w).isNull());
    EXPECT_TRUE(m.FIRbandpass_f(vhDouble(200), vhDouble(100), r, o, w).isNull());
    EXPECT_TRUE(m.FIRbandpass_f(vhDouble(100), vhDouble(100), r, o, w).isNull());
    EXPECT_TRUE(m.FIRbandstop_f(vhDouble(100), vhDouble(600), r, o, w).isNull());
    EXPECT_TRUE(m.FIRhilbert_f(vhDouble(-1), vhDouble(100), r, o, w).isNull());
    EXPECT_TRUE(m.FIRFILlowpass_f(vhDouble(1), vhDouble(100), r, o, w).isNull());
}

TEST(FirWindowDesign, FilteringKeepsLengthAndOrientation)
{
    vhMath m;
    Array x(40);
    for (std::size_t i = 0; i < x.size(); ++i)
        x[i] = std::sin(0.3 * double(i)) + (i % 3 == 0 ? 1.0 : 0.0);
    const vhValue h = m.FIRlowpass_f(vhDouble(100), vhDouble(1000), vhInteger(9), vhInteger(1));
    const Array taps = numbers(h);
    const vhValue y = m.FIRFILlowpass_f(column(x, true), vhDouble(100), vhDouble(1000), vhInteger(9), vhInteger(1));
    ASSERT_TRUE(y.isRowVector());
    const Array out = numbers(y);
    ASSERT_EQ(out.size(), x.size());
    for (std::size_t n = 0; n < x.size(); ++n) {
        double s = 0.0;
        for (std::size_t k = 0; k < taps.size() && k <= n; ++k)
            s += taps[k] * x[n - k];
        EXPECT_NEAR(out[n], s, 1e-15);
    }
}

} // namespace
