// IIR designs against scipy's butter, cheby1, cheby2 and ellip, and the
// gains and ripples that define each family.

#include <gtest/gtest.h>

#include <complex>

#include "filter_reference.h"

namespace {

using namespace filtertest;
using namespace VarnholtMath::ValueTypes;

vhValue word(const char* s) { return vhSymbolicValue(s, true, {}); }

vhValue design(vhMath& m, int family, int kind, int order, double e1, double e2, double r1, double r2, double rate)
{
    const bool band = e2 != 0.0;
    const vhValue k = band ? word(kind ? "stop" : "pass") : word(kind ? "high" : "low");
    const vhValue n = vhInteger(order);
    const vhValue f = vhDouble(rate);
    switch (family) {
    case 0:
        return band ? m.buttband_f(n, k, vhDouble(e1), vhDouble(e2), f) : m.buttlowhigh_f(n, k, vhDouble(e1), f);
    case 1:
        return band ? m.cheby1band_f(n, k, vhDouble(e1), vhDouble(e2), vhDouble(r1), f)
                    : m.cheby1lohi_f(n, k, vhDouble(e1), vhDouble(r1), f);
    case 2:
        return band ? m.cheby2band_f(n, k, vhDouble(e1), vhDouble(e2), vhDouble(r1), f)
                    : m.cheby2lohi_f(n, k, vhDouble(e1), vhDouble(r1), f);
    default:
        return band ? m.ellipband_f(n, k, vhDouble(e1), vhDouble(e2), vhDouble(r1), vhDouble(r2), f)
                    : m.elliplohi_f(n, k, vhDouble(e1), vhDouble(r1), vhDouble(r2), f);
    }
}

Array columnOf(const vhValue& mat, unsigned int c)
{
    Array r;
    for (unsigned int i = 0; i < mat.matrixRows(); ++i)
        r.push_back(mat.valueToDouble(i, c));
    return r;
}

// |B / A| at w radians per sample, summed in long double so that the
// evaluation adds little to the coefficients' own rounding.
double gainAt(const Array& b, const Array& a, double w)
{
    std::complex<long double> B = 0.0L;
    std::complex<long double> A = 0.0L;
    for (std::size_t n = 0; n < b.size(); ++n) {
        const std::complex<long double> z = std::polar(1.0L, -(long double)w * (long double)n);
        B += (long double)b[n] * z;
        A += (long double)a[n] * z;
    }
    return double(std::abs(B / A));
}

TEST(IirDesign, MatchesScipyForAllFamiliesAndKinds)
{
    vhMath m;
    const char* families[] = {"butter", "cheby1", "cheby2", "ellip"};
    for (const Reference& r : references("iir")) {
        const int family = int(r.params[0]);
        const int kind = int(r.params[1]);
        const int order = int(r.params[2]);
        const vhValue c = design(m, family, kind, order, r.params[3], r.params[4], r.params[5], r.params[6],
                                 r.params[7]);
        ASSERT_TRUE(c.isMatrix()) << families[family] << " kind " << kind << " order " << order;
        const Array b = columnOf(c, 0);
        const Array a = columnOf(c, 1);
        const double scale = std::fmax(maxAbs(r.arrays[0]), maxAbs(r.arrays[1]));
        EXPECT_LE(maxDifference(b, r.arrays[0]), 1e-9 * scale)
            << families[family] << " kind " << kind << " band " << r.params[4] << " order " << order;
        EXPECT_LE(maxDifference(a, r.arrays[1]), 1e-9 * scale)
            << families[family] << " kind " << kind << " band " << r.params[4] << " order " << order;
        EXPECT_EQ(a[0], 1.0);
    }
}

TEST(IirDesign, GainsAndRipplesOfTheFamilies)
{
    vhMath m;
    const double pi = 3.141592653589793;
    // Up to order 8 the direct-form coefficients of these edges still carry
    // the gains to 1e-12; higher orders lose digits to their conditioning.
    for (int order = 1; order <= 8; ++order) {
        const vhValue low = m.buttlowhigh_f(vhInteger(order), word("low"), vhDouble(100), vhDouble(1000));
        EXPECT_NEAR(gainAt(columnOf(low, 0), columnOf(low, 1), 0.0), 1.0, 1e-12);
        const vhValue high = m.buttlowhigh_f(vhInteger(order), vhInteger(1), vhDouble(100), vhDouble(1000));
        EXPECT_NEAR(gainAt(columnOf(high, 0), columnOf(high, 1), pi), 1.0, 1e-12);
        // The band-pass has gain 1 where the band's warped edges have their
        // geometric mean.
        const vhValue band = m.buttband_f(vhInteger(order), word("pass"), vhDouble(100), vhDouble(300),
                                          vhDouble(1000));
        const double centre = 2.0 * std::atan(std::sqrt(std::tan(pi * 0.1) * std::tan(pi * 0.3)));
        EXPECT_NEAR(gainAt(columnOf(band, 0), columnOf(band, 1), centre), 1.0, 1e-10);
        // Half power at the cut-off.
        EXPECT_NEAR(gainAt(columnOf(low, 0), columnOf(low, 1), 2 * pi * 0.1), std::sqrt(0.5), 1e-10);

        // Elliptic: ripple within rp in the pass band, attenuation of at
        // least rs beyond the stop edge.
        const double rp = 0.5;
        const double rs = 50.0;
        const vhValue e = m.elliplohi_f(vhInteger(order), word("low"), vhDouble(100), vhDouble(rp), vhDouble(rs),
                                        vhDouble(1000));
        const Array b = columnOf(e, 0);
        const Array a = columnOf(e, 1);
        double worstPass = 0.0;
        for (int i = 0; i <= 200; ++i) {
            const double g = gainAt(b, a, 2 * pi * 0.1 * i / 200.0);
            worstPass = std::fmax(worstPass, -20.0 * std::log10(g));
            EXPECT_LE(g, 1.0 + 1e-9);
        }
        EXPECT_LE(worstPass, rp + 1e-6) << "order " << order;
        // The stop band begins where the gain first falls to -rs dB; beyond it
        // the gain stays below.
        int first = -1;
        for (int i = 0; i <= 4000 && first < 0; ++i)
            if (-20.0 * std::log10(gainAt(b, a, 2 * pi * (0.1 + 0.4 * i / 4000.0))) >= rs - 1e-6)
                first = i;
        if (first >= 0)
            for (int i = first; i <= 4000; ++i)
                EXPECT_GE(-20.0 * std::log10(gainAt(b, a, 2 * pi * (0.1 + 0.4 * i / 4000.0))), rs - 1e-6);
    }
}

TEST(IirDesign, RefusedArguments)
{
    vhMath m;
    const vhValue n = vhInteger(4);
    const vhValue r = vhDouble(1000);
    EXPECT_TRUE(m.buttlowhigh_f(vhInteger(0), word("low"), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(vhInteger(1001), word("low"), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(vhDouble(2.5), word("low"), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, word("Low"), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, word("pass"), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, vhInteger(2), vhDouble(100), r).isNull());
    EXPECT_FALSE(m.buttlowhigh_f(n, vhBoolean(true), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, word("low"), vhDouble(500), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, word("low"), vhDouble(0), r).isNull());
    EXPECT_TRUE(m.buttlowhigh_f(n, word("low"), vhDouble(100), vhDouble(INFINITY)).isNull());
    EXPECT_TRUE(m.buttband_f(n, word("pass"), vhDouble(300), vhDouble(100), r).isNull());
    EXPECT_TRUE(m.buttband_f(n, word("low"), vhDouble(100), vhDouble(300), r).isNull());
    EXPECT_TRUE(m.cheby1lohi_f(n, word("low"), vhDouble(100), vhDouble(0), r).isNull());
    EXPECT_TRUE(m.cheby2lohi_f(n, word("low"), vhDouble(100), vhDouble(-3), r).isNull());
    EXPECT_TRUE(m.elliplohi_f(n, word("low"), vhDouble(100), vhDouble(40), vhDouble(1), r).isNull());
    EXPECT_TRUE(m.ellipband_f(n, word("stop"), vhDouble(100), vhDouble(200), vhDouble(1), vhDouble(NAN), r).isNull());
    // Huge orders that the doubles cannot carry give undefined, not NaN.
    const vhValue big = m.buttband_f(vhInteger(1000), word("stop"), vhDouble(100), vhDouble(300), r);
    if (!big.isNull())
        for (double v : numbers(big))
            EXPECT_TRUE(std::isfinite(v));
    setMaximumNumerOfMatrixElements(1000);
    EXPECT_TRUE(m.buttband_f(vhInteger(250), word("pass"), vhDouble(100), vhDouble(300), r).isNull());
    EXPECT_FALSE(m.buttlowhigh_f(vhInteger(499), word("low"), vhDouble(100), r).isNull());
    setMaximumNumerOfMatrixElements(2147483647u);
}

} // namespace
