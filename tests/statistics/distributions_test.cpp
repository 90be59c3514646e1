// Probability distributions: densities, cumulatives and inverses against
// scipy.stats on grids with tails, modes and small to large parameters; the
// round trip of inverse and cumulative; the frame (symbols, arrays, bad
// parameters).

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "statistics/distribution_kernels.h"

using namespace VarnholtMath::ValueTypes;

namespace {

const double kInf = std::numeric_limits<double>::infinity();

vhValue d(double v) { return vhDouble(v); }

struct Row {
    std::string name;
    double x;
    std::vector<double> params;
    double expected;
};

std::vector<Row> readRows()
{
    std::vector<Row> rows;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/statistics/data/distribution_reference.tsv");
    std::string text;
    while (std::getline(in, text)) {
        std::vector<std::string> f;
        std::stringstream ls(text);
        std::string cell;
        while (std::getline(ls, cell, '\t'))
            f.push_back(cell);
        if (f.size() != 5)
            continue;
        Row r;
        r.name = f[0];
        r.x = std::strtod(f[1].c_str(), nullptr);
        r.params.push_back(std::strtod(f[2].c_str(), nullptr));
        if (!f[3].empty())
            r.params.push_back(std::strtod(f[3].c_str(), nullptr));
        r.expected = std::strtod(f[4].c_str(), nullptr);
        rows.push_back(r);
    }
    return rows;
}

vhValue call(vhMath& m, const std::string& name, double x, const std::vector<double>& p)
{
    typedef vhValue (vhMath::*Two)(const vhValue&, const vhValue&);
    typedef vhValue (vhMath::*Three)(const vhValue&, const vhValue&, const vhValue&);
    static const std::map<std::string, Two> twos = {
        {"tdens", &vhMath::tdens_f}, {"tdist", &vhMath::tdist_f}, {"tinv", &vhMath::tinv_f},
        {"chidens", &vhMath::chidens_f}, {"chidist", &vhMath::chidist_f}, {"chiinv", &vhMath::chiinv_f},
        {"poissondens", &vhMath::poissondens_f}, {"poissondist", &vhMath::poissondist_f},
        {"poissoninv", &vhMath::poissoninv_f}, {"geometricdens", &vhMath::geometricdens_f},
        {"geometricdist", &vhMath::geometricdist_f}, {"geometricinv", &vhMath::geometricinv_f},
        {"logarithmicdens", &vhMath::logarithmicdens_f}, {"logarithmicdist", &vhMath::logarithmicdist_f},
        {"logarithmicinv", &vhMath::logarithmicinv_f}, {"exponentialdens", &vhMath::exponentialdens_f},
        {"exponentialdist", &vhMath::exponentialdist_f}, {"exponentialinv", &vhMath::exponentialinv_f},
    };
    static const std::map<std::string, Three> threes = {
        {"normaldens", &vhMath::normaldens_f}, {"normaldist", &vhMath::normaldist_f},
        {"normalinv", &vhMath::normalinv_f}, {"gammadens", &vhMath::gammadens_f},
        {"gammadist", &vhMath::gammadist_f}, {"gammainv", &vhMath::gammainv_f},
        {"betadens", &vhMath::betadens_f}, {"betadist", &vhMath::betadist_f}, {"betainv", &vhMath::betainv_f},
        {"fdens", &vhMath::fdens_f}, {"fdist", &vhMath::fdist_f}, {"finv", &vhMath::finv_f},
        {"dblexponentialdens", &vhMath::dblexponentialdens_f},
        {"dblexponentialdist", &vhMath::dblexponentialdist_f},
        {"dblexponentialinv", &vhMath::dblexponentialinv_f}, {"cauchydens", &vhMath::cauchydens_f},
        {"cauchydist", &vhMath::cauchydist_f}, {"cauchyinv", &vhMath::cauchyinv_f},
    };
    if (p.size() == 1) {
        const auto it = twos.find(name);
        return it == twos.end() ? vhValue() : (m.*(it->second))(d(x), d(p[0]));
    }
    const auto it = threes.find(name);
    return it == threes.end() ? vhValue() : (m.*(it->second))(d(x), d(p[0]), d(p[1]));
}

bool endsWith(const std::string& s, const std::string& tail)
{
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// The precision each method is built for.
//  - Closed forms: relative 1e-12; those of the form 0.5 + something keep
//    an absolute rounding error of the size of 0.5 eps, and inverses near
//    p = 0 or 1 inherit eps / min(p, 1 - p) from the rounding of p.
//  - Cumulatives integrated by the ten-decimal Gauss rule in one panel:
//    absolute 1e-7, the rule's error on integrands with a fractional power
//    near the start of the panel over up to ten scale lengths.
//  - The normal cumulative: its power series loses digits to cancellation
//    as z grows, and below z = -6 it is the leading asymptotic term, whose
//    relative error is 1 / z^2.
//  - The incomplete beta series: absolute 1e-12 on these parameters.
//  - Bisections to 1e-6 (t, chi-square, gamma): 1e-6 plus the rule's error
//    over the density; the t search is clipped at 128.
//  - The beta and F searches stop when the cumulative matches within 1e-10:
//    the quantile is as close as 1e-10 over the density allows.
constexpr double kRuleError = 1e-7;

double densityAt(vhMath& m, const std::string& family, double x, const std::vector<double>& p)
{
    return call(m, family + "dens", x, p).toDouble();
}

double allowed(vhMath& m, const Row& r)
{
    const std::string& n = r.name;
    const double e = std::fabs(r.expected);
    const std::string family = n.substr(0, n.size() - (endsWith(n, "dens") || endsWith(n, "dist") ? 4 : 3));
    if (n == "normaldist") {
        const double z = (r.x - r.params[0]) / r.params[1];
        if (z < -6.0)
            return 1.5 * e / (z * z);
        return 1e-12 * e + 1e-16 * std::exp(z * z / 2.0);
    }
    if (n == "normalinv") {
        // The quantile inherits the cumulative's relative error divided by
        // the slope of its logarithm, about |z|.
        const double z = (r.expected - r.params[0]) / r.params[1];
        if (z < -6.0 || z > 6.0)
            return r.params[1] * 1.5 / std::pow(std::fabs(z), 3.0);
        return 1e-12 * e + 1e-9 * r.params[1];
    }
    if (n == "tdist" || n == "chidist" || n == "gammadist")
        return kRuleError;
    if (n == "betadist" || n == "fdist")
        return 1e-12;
    if (n == "tinv" || n == "chiinv" || n == "gammainv")
        return 1e-6 + 1e-9 * e + kRuleError / densityAt(m, family, r.expected, r.params);
    if (n == "betainv" || n == "finv")
        return 1.01e-10 / densityAt(m, family, r.expected, r.params) + 1e-12 * e;
    if (endsWith(n, "inv") && (n[0] == 'p' || n[0] == 'g' || n[0] == 'l'))
        return 0.0;
    if (endsWith(n, "inv"))
        return e * (1e-12 + 2.5e-16 / std::min(r.x, 1.0 - r.x));
    if (endsWith(n, "dist"))
        return 1e-12 * e + 1.2e-16;
    return 1e-12 * e + 1e-300;
}

} // namespace

TEST(Distributions, MatchReferenceValues)
{
    vhMath m;
    const std::vector<Row> rows = readRows();
    ASSERT_GT(rows.size(), 1000u);
    std::map<std::string, std::pair<double, int>> worst;
    for (const Row& r : rows) {
        const vhValue v = call(m, r.name, r.x, r.params);
        ASSERT_TRUE(v.isDouble()) << r.name << "(" << r.x << ")";
        const double got = v.toDouble();
        if (std::isinf(r.expected)) {
            EXPECT_EQ(r.expected, got) << r.name << "(" << r.x << ", " << r.params[0] << ")";
            continue;
        }
        if (r.name == "tinv" && std::fabs(r.expected) > 128.0) {
            EXPECT_NEAR(std::copysign(128.0, r.expected), got, 1e-6) << "t quantile beyond 128 at " << r.x;
            continue;
        }
        const double bound = allowed(m, r);
        const double error = std::fabs(got - r.expected);
        auto& w = worst[r.name];
        w.first = std::max(w.first, bound > 0.0 ? error / bound : error);
        if (!(error <= bound) && w.second++ < 3)
            ADD_FAILURE() << r.name << "(" << r.x << ", " << r.params[0]
                          << (r.params.size() > 1 ? ", " + std::to_string(r.params[1]) : std::string()) << ") = "
                          << got << " against " << r.expected << ", error " << error << " > " << bound;
    }
    EXPECT_EQ(36u, worst.size());
}

TEST(Distributions, InverseUndoesCumulative)
{
    vhMath m;
    // Continuous families to each method's precision.
    for (double x : {-2.5, -0.3, 0.0, 1.7, 4.0}) {
        EXPECT_NEAR(x, m.normalinv_f(m.normaldist_f(d(x), d(0.5), d(2.0)), d(0.5), d(2.0)).toDouble(), 1e-12);
        EXPECT_NEAR(x, m.tinv_f(m.tdist_f(d(x), d(3.0)), d(3.0)).toDouble(), 1e-6);
        EXPECT_NEAR(x, m.cauchyinv_f(m.cauchydist_f(d(x), d(1.0), d(2.0)), d(1.0), d(2.0)).toDouble(), 1e-12);
        EXPECT_NEAR(x, m.dblexponentialinv_f(m.dblexponentialdist_f(d(x), d(1.0), d(2.0)), d(1.0), d(2.0)).toDouble(),
                    1e-12);
    }
    for (double x : {0.2, 1.0, 3.3, 9.0}) {
        EXPECT_NEAR(x, m.chiinv_f(m.chidist_f(d(x), d(3.0)), d(3.0)).toDouble(), 1e-6);
        EXPECT_NEAR(x, m.gammainv_f(m.gammadist_f(d(x), d(0.7), d(2.0)), d(0.7), d(2.0)).toDouble(), 1e-6);
        EXPECT_NEAR(x, m.exponentialinv_f(m.exponentialdist_f(d(x), d(0.4)), d(0.4)).toDouble(), 1e-12);
        const double p = m.fdist_f(d(x), d(4.0), d(9.0)).toDouble();
        EXPECT_NEAR(p, m.fdist_f(m.finv_f(d(p), d(4.0), d(9.0)), d(4.0), d(9.0)).toDouble(), 1e-10);
    }
    for (double p : {0.01, 0.4, 0.93}) {
        const double x = m.betainv_f(d(p), d(2.0), d(3.5)).toDouble();
        EXPECT_NEAR(p, m.betadist_f(d(x), d(2.0), d(3.5)).toDouble(), 1e-10);
    }
    // Discrete inverses give the smallest whole number whose cumulative
    // reaches p, held as a double.
    for (double k : {0.0, 2.0, 6.0}) {
        const vhValue r = m.poissoninv_f(m.poissondist_f(d(k), d(3.0)), d(3.0));
        EXPECT_EQ(tagDouble, r.valueType());
        EXPECT_EQ(k, r.toDouble());
        EXPECT_EQ(k + 1.0, m.geometricinv_f(m.geometricdist_f(d(k + 1.0), d(0.3)), d(0.3)).toDouble());
        EXPECT_EQ(k + 1.0, m.logarithmicinv_f(m.logarithmicdist_f(d(k + 1.0), d(0.6)), d(0.6)).toDouble());
    }
}

TEST(Distributions, LimitsAndDocumentedValues)
{
    vhMath m;
    EXPECT_EQ(0.5, m.tdist_f(d(0.0), d(4.0)).toDouble());
    EXPECT_EQ(0.0, m.tinv_f(d(0.5), d(4.0)).toDouble());
    EXPECT_EQ(-kInf, m.tinv_f(d(0.0), d(4.0)).toDouble());
    EXPECT_EQ(kInf, m.tinv_f(d(1.0), d(4.0)).toDouble());
    // The t search stays in [0, 128]: a farther quantile is clipped.
    const double clipped = m.tinv_f(d(1.0 - 1e-12), d(1.0)).toDouble();
    EXPECT_NEAR(128.0, clipped, 1e-6);
    EXPECT_LE(clipped, 128.0);
    EXPECT_EQ(0.0, m.chidist_f(d(0.0), d(3.0)).toDouble());
    EXPECT_EQ(0.0, m.chidist_f(d(-2.0), d(1.0)).toDouble());
    // Below 0.1 the one-degree chi-square is the series alone.
    const double series = m.chidist_f(d(0.05), d(1.0)).toDouble();
    EXPECT_NEAR(0.17693672624187864, series, 1e-12);
    // The beta ends are limits, not the series.
    EXPECT_EQ(0.0, m.betadist_f(d(0.0), d(0.5), d(2.0)).toDouble());
    EXPECT_EQ(1.0, m.betadist_f(d(1.0), d(0.5), d(2.0)).toDouble());
    EXPECT_EQ(kInf, m.betadens_f(d(0.0), d(0.5), d(2.0)).toDouble());
    EXPECT_DOUBLE_EQ(2.0, m.betadens_f(d(0.0), d(1.0), d(2.0)).toDouble());
    EXPECT_EQ(0.0, m.betadens_f(d(1.0), d(0.5), d(2.0)).toDouble());
    EXPECT_TRUE(m.betadens_f(d(1.5), d(0.5), d(2.0)).isNull());
    // The normal cumulative reaches its limits at infinite x; its inverse is
    // exact to the last bit of the kernel.
    EXPECT_EQ(1.0, m.normaldist_f(d(kInf), d(0.0), d(1.0)).toDouble());
    EXPECT_EQ(0.0, m.normaldist_f(d(-kInf), d(0.0), d(1.0)).toDouble());
    EXPECT_EQ(kInf, m.normalinv_f(d(1.0), d(0.0), d(1.0)).toDouble());
    EXPECT_EQ(3.0, m.normalinv_f(d(0.5), d(3.0), d(2.0)).toDouble());
    // Discrete x is cut to a whole number; the geometric count starts at 1.
    EXPECT_EQ(m.poissondens_f(d(3.0), d(2.0)).toDouble(), m.poissondens_f(d(3.9), d(2.0)).toDouble());
    EXPECT_EQ(0.0, m.poissondens_f(d(-1.0), d(2.0)).toDouble());
    EXPECT_EQ(1.0, m.poissondens_f(d(0.0), d(0.0)).toDouble());
    EXPECT_EQ(0.0, m.poissondens_f(d(2.0), d(-1.0)).toDouble());
    EXPECT_TRUE(m.geometricdens_f(d(0.0), d(0.5)).isNull());
    EXPECT_EQ(0.25, m.geometricdens_f(vhInteger(2), d(0.5)).toDouble());
    EXPECT_EQ(kInf, m.poissoninv_f(d(1.0), d(2.0)).toDouble());
    EXPECT_EQ(0.0, m.poissoninv_f(d(0.0), d(2.0)).toDouble());
    // Large rates keep their values where the products would overflow.
    EXPECT_NEAR(0.012614611348721475, m.poissondens_f(d(1000.0), d(1000.0)).toDouble(), 1e-14);
    EXPECT_NEAR(0.5, m.poissondist_f(d(1000.0), d(1000.0)).toDouble(), 0.01);
    EXPECT_EQ(1000.0, m.poissoninv_f(d(0.5), d(1000.0)).toDouble());
}

TEST(Distributions, FrameMapsArraysAndRefusesBadInput)
{
    vhMath m;
    double xs[] = {-1.0, 0.0, 2.5, 4.0};
    const vhValue v = vhVector(xs, 4, true);
    // Arrays of x map with scalar parameters or with parameters of x's shape.
    const vhValue r = m.normaldist_f(v, d(1.0), d(2.0));
    ASSERT_EQ(4u, r.vectorSize());
    EXPECT_TRUE(r.isRowVector());
    for (unsigned int i = 0; i < 4; ++i)
        EXPECT_EQ(m.normaldist_f(d(xs[i]), d(1.0), d(2.0)).toDouble(), r.valueToDouble(i));
    double sigmas[] = {1.0, 2.0, -1.0, 3.0};
    const vhValue s = m.normaldens_f(v, d(0.0), vhVector(sigmas, 4, true));
    EXPECT_EQ(m.normaldens_f(d(2.5), d(0.0), d(-1.0)).isNull(), s.value(2).isNull());
    EXPECT_EQ(m.normaldens_f(d(4.0), d(0.0), d(3.0)).toDouble(), s.valueToDouble(3));
    EXPECT_TRUE(m.normaldens_f(v, d(0.0), vhVector(sigmas, 4, false)).isNull());
    EXPECT_TRUE(m.normaldens_f(d(1.0), d(0.0), vhVector(sigmas, 4, true)).isNull());
    double ks[] = {0.0, 1.0, 2.7};
    const vhValue g = m.geometricdens_f(vhVector(ks, 3, false), d(0.5));
    EXPECT_TRUE(g.value(0).isNull());
    EXPECT_EQ(0.25, g.valueToDouble(2));
    // Symbols give the held call of the row.
    const vhValue x = vhExpression(std::string("x"));
    EXPECT_EQ(nt_tdist, m.tdist_f(x, d(3.0)).functionID());
    EXPECT_EQ(nt_gammainv, m.gammainv_f(d(0.5), x, d(1.0)).functionID());
    // Parameters out of range, NaN, infinities and non-numbers.
    const double nan = std::nan("");
    EXPECT_TRUE(m.normaldist_f(d(1.0), d(0.0), d(0.0)).isNull());
    EXPECT_TRUE(m.normaldist_f(d(1.0), d(kInf), d(1.0)).isNull());
    EXPECT_TRUE(m.normaldist_f(d(nan), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.tdist_f(d(1.0), d(0.0)).isNull());
    EXPECT_TRUE(m.chiinv_f(d(1.5), d(2.0)).isNull());
    EXPECT_TRUE(m.chiinv_f(d(-0.1), d(2.0)).isNull());
    EXPECT_TRUE(m.gammadist_f(d(1.0), d(-1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.betainv_f(d(0.5), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.finv_f(d(0.5), d(1.0), d(kInf)).isNull());
    EXPECT_TRUE(m.geometricdist_f(d(2.0), d(0.0)).isNull());
    EXPECT_TRUE(m.logarithmicdens_f(d(2.0), d(1.0)).isNull());
    EXPECT_TRUE(m.exponentialdens_f(d(1.0), d(-2.0)).isNull());
    EXPECT_TRUE(m.cauchydist_f(d(1.0), d(0.0), d(-1.0)).isNull());
    EXPECT_TRUE(m.dblexponentialinv_f(d(2.0), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.normaldist_f(vhValue(vhSymbolicValue("t", true, {})), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.normaldist_f(vhComplex(1.0, 1.0), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.tinv_f(vhValue(), d(1.0)).isNull());
    // Searches with far quantiles stay bounded.
    EXPECT_TRUE(m.gammainv_f(d(0.999), d(2.0), d(1e6)).isDouble());
    EXPECT_TRUE(m.logarithmicdist_f(d(2e9), d(1.0 - 1e-15)).isDouble());
    // The dispatcher reaches the rows by number.
    EXPECT_EQ(0.5, callFunction(&m, nt_tdist, {d(0.0), d(2.0)}).toDouble());
    EXPECT_EQ(0.5, callFunction(&m, nt_cauchydist, {d(0.0), d(0.0), d(1.0)}).toDouble());
}

TEST(Distributions, SecondKernelsBesideTheWorksheetOnes)
{
    namespace st = VarnholtMath::statistics;
    // From shape 1 on both gamma cumulatives integrate from 0; below, the
    // plain one integrates the singular density from 0 and is less exact.
    EXPECT_EQ(st::gammadistnn(3.0, 2.5, 1.5), st::gammadistn(3.0, 2.5, 1.5));
    EXPECT_NEAR(st::gammadistnn(3.0, 0.6, 1.5), st::gammadistn(3.0, 0.6, 1.5), 1e-2);
    for (double p : {0.05, 0.5, 0.95}) {
        const double x = st::gammainvn(p, 2.5, 1.5);
        EXPECT_NEAR(p, st::gammadistn(x, 2.5, 1.5), 1e-6 * st::gammadensn(x, 2.5, 1.5) + 1e-12);
        // The doubling bracket and the unit steps find the same quantile to
        // the search's width.
        EXPECT_NEAR(st::gammainvnn(p, 2.5, 1.5), x, 1e-6);
        // The second chi-square inverse: the same from 2 degrees on. Below,
        // one panel of the rule from 0.001 meets the near-singular density
        // and keeps about two digits, which is why the worksheet uses the
        // series form.
        EXPECT_EQ(st::chiinvn(p, 4.0), st::chiinvnn(p, 4.0));
        EXPECT_NEAR(st::chiinvn(p, 1.0), st::chiinvnn(p, 1.0), 1e-2 * st::chiinvn(p, 1.0));
    }
}

TEST(Distributions, ByFamilyNameReachTheFamilyMembers)
{
    vhMath m;
    const vhValue normal = vhSymbolicValue("Normal", true, {});
    EXPECT_EQ(m.normaldist_f(d(1.0), d(0.5), d(2.0)).toDouble(), m.dist_f(normal, d(1.0), d(0.5), d(2.0)).toDouble());
    EXPECT_EQ(m.betainv_f(d(0.3), d(2.0), d(5.0)).toDouble(),
              m.inv_f(vhSymbolicValue("beta", true, {}), d(0.3), d(2.0), d(5.0)).toDouble());
    EXPECT_EQ(m.poissondens_f(d(3.0), d(2.0)).toDouble(),
              m.dens_f(vhSymbolicValue("poisson", true, {}), d(3.0), d(2.0)).toDouble());
    // A family of one parameter refuses a second one; a family of two needs it.
    EXPECT_TRUE(m.dens_f(vhSymbolicValue("t", true, {}), d(1.0), d(3.0), d(1.0)).isNull());
    EXPECT_TRUE(m.dist_f(normal, d(1.0), d(0.0)).isNull());
    // Unknown names, symbols that are no text, and the undefined value.
    EXPECT_TRUE(m.dist_f(vhSymbolicValue("lognormal", true, {}), d(1.0), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.dist_f(vhSymbolicValue("normal", false, {}), d(1.0), d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.inv_f(vhValue(), d(0.5), d(0.0), d(1.0)).isNull());
}
