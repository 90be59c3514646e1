// Random generators: the Lehmer stream against its known sequence, each
// family's draws tested statistically (first four moments against scipy's
// within 5 standard errors, and a Kolmogorov-Smirnov test at 1% against the
// engine's own cumulative functions), and the frame of sizes and parameters.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"
#include "statistics/distribution_kernels.h"
#include "statistics/random_stream.h"

using namespace VarnholtMath::ValueTypes;
namespace st = VarnholtMath::statistics;

namespace {

vhValue d(double v) { return vhDouble(v); }

constexpr unsigned int kDraws = 100000;

// Sum of twelve uniforms: the Irwin-Hall distribution of order 12.
double irwinHall12(double x)
{
    if (x <= 0.0)
        return 0.0;
    if (x >= 12.0)
        return 1.0;
    double s = 0.0, binomial = 1.0, factorial = 1.0;
    for (int k = 1; k <= 12; ++k)
        factorial *= k;
    for (int k = 0; k <= 12; ++k) {
        if (x > k)
            s += ((k % 2) ? -1.0 : 1.0) * binomial * std::pow(x - k, 12);
        binomial = binomial * (12 - k) / (k + 1);
    }
    return s / factorial;
}

struct Case {
    std::string family;
    std::vector<double> params;
    double mean, variance, skewness, kurtosis;
};

std::vector<Case> readCases()
{
    std::vector<Case> cases;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/statistics/data/random_moments.tsv");
    std::string text;
    while (std::getline(in, text)) {
        std::vector<std::string> f;
        std::stringstream ls(text);
        std::string cell;
        while (std::getline(ls, cell, '\t'))
            f.push_back(cell);
        if (f.size() != 7)
            continue;
        Case c;
        c.family = f[0];
        c.params.push_back(std::stod(f[1]));
        if (!f[2].empty())
            c.params.push_back(std::stod(f[2]));
        c.mean = std::stod(f[3]);
        c.variance = std::stod(f[4]);
        c.skewness = std::stod(f[5]);
        c.kurtosis = std::stod(f[6]);
        cases.push_back(c);
    }
    return cases;
}

vhValue drawVector(vhMath& m, const Case& c)
{
    const std::string& f = c.family;
    const vhValue n = vhInteger(static_cast<int>(kDraws));
    const vhValue a = d(c.params[0]);
    const vhValue b = c.params.size() > 1 ? d(c.params[1]) : vhValue();
    if (f == "u") return m.uRandVec_f(a, b, n);
    if (f == "norm") return m.normRandVec_f(a, b, n);
    if (f == "exp") return m.expRandVec_f(a, n);
    if (f == "dblexp") return m.dblexpRandVec_f(a, n);
    if (f == "gamma") return m.gammaRandVec_f(a, b, n);
    if (f == "beta") return m.betaRandVec_f(a, b, n);
    if (f == "chi2") return m.chi2RandVec_f(a, n);
    if (f == "f") return m.fRandVec_f(a, b, n);
    if (f == "t") return m.tRandVec_f(a, n);
    if (f == "poisson") return m.poissonRandVec_f(a, n);
    if (f == "geometric") return m.geometricRandVec_f(a, n);
    if (f == "logarithmic") return m.logarithmicRandVec_f(a, n);
    return vhValue();
}

// The cumulative of each family, by the engine's own distribution kernels.
std::function<double(double)> cumulative(const Case& c)
{
    const std::string& f = c.family;
    const double a = c.params[0], b = c.params.size() > 1 ? c.params[1] : 0.0;
    if (f == "u") return [=](double x) { return std::min(1.0, std::max(0.0, (x - a) / (b - a))); };
    if (f == "norm") return [=](double x) { return irwinHall12((x - a) / b + 6.0); };
    if (f == "exp") return [=](double x) { return st::exponentialDistribution(x, a); };
    if (f == "dblexp") return [=](double x) { return st::laplaceDistribution(x, 0.0, 1.0 / a); };
    if (f == "gamma") return [=](double x) { return st::gammadistnn(x, a, b); };
    if (f == "beta") return [=](double x) { return st::betaDistribution(x, a, b); };
    if (f == "chi2") return [=](double x) { return st::chidistn(x, a); };
    if (f == "f") return [=](double x) { return st::fDistribution(x, a, b); };
    if (f == "t") return [=](double x) { return st::tdist(x, a); };
    if (f == "poisson") return [=](double x) { return st::poissonDistribution(x, a); };
    if (f == "geometric") return [=](double x) { return st::geometricDistribution(x, a); };
    if (f == "logarithmic") return [=](double x) { return st::logarithmicDistribution(x, a); };
    return nullptr;
}

bool isDiscrete(const std::string& f) { return f == "poisson" || f == "geometric" || f == "logarithmic"; }

// The Kolmogorov-Smirnov distance of sorted samples from a cumulative. For
// a discrete family it is taken at the whole numbers, which makes the test
// conservative.
double ksDistance(const std::vector<double>& x, const std::function<double(double)>& cdf, bool discrete)
{
    const double n = static_cast<double>(x.size());
    double worst = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (discrete) {
            if (i + 1 < x.size() && x[i + 1] == x[i])
                continue;
            worst = std::max(worst, std::fabs((i + 1) / n - cdf(x[i])));
            continue;
        }
        const double f = cdf(x[i]);
        worst = std::max(worst, std::max((i + 1) / n - f, f - i / n));
    }
    return worst;
}

// The sample mean of (x - mean)^k against its expected value, in standard
// errors estimated from the same sample.
double momentErrorInStandardErrors(const std::vector<double>& x, double mean, int k, double expected)
{
    const double n = static_cast<double>(x.size());
    double s = 0.0, s2 = 0.0;
    for (double v : x) {
        const double t = std::pow(v - mean, k);
        s += t;
        s2 += t * t;
    }
    const double average = s / n;
    const double spread = std::sqrt(std::max(0.0, s2 / n - average * average) / n);
    return std::fabs(average - expected) / spread;
}

} // namespace

TEST(RandomStream, FollowsTheLehmerRecurrence)
{
    st::seedRandomStream(1);
    // The first values of the minimal standard generator from state 1.
    const std::uint32_t first[] = {16807u, 282475249u, 1622650073u, 984943658u, 1144108930u};
    for (std::uint32_t v : first)
        EXPECT_EQ(v, st::nextRandom());
    st::seedRandomStream(1);
    std::uint32_t last = 0;
    for (int i = 0; i < 10000; ++i)
        last = st::nextRandom();
    EXPECT_EQ(1043618065u, last);
    // Two uniform numbers in a row are consecutive states of the stream.
    vhMath m;
    st::seedRandomStream(123456789u);
    const double r1 = std::round(m.uRandNum_f(d(0.0), d(1.0)).toDouble() * 2147483647.0);
    const double r2 = std::round(m.uRandNum_f(d(0.0), d(1.0)).toDouble() * 2147483647.0);
    EXPECT_NE(r1, r2);
    EXPECT_EQ(std::fmod(r1 * 16807.0, 2147483647.0), r2);
    // A state of 0 stays 0.
    st::seedRandomStream(0);
    EXPECT_EQ(0u, st::nextRandom());
    EXPECT_EQ(0u, st::nextRandom());
}

TEST(RandomGenerators, DrawsFollowTheirDistributions)
{
    vhMath m;
    const std::vector<Case> cases = readCases();
    ASSERT_EQ(18u, cases.size());
    // The 1% point of the Kolmogorov distribution.
    const double critical = 1.6276 / std::sqrt(static_cast<double>(kDraws));
    std::uint32_t seed = 20261124u;
    for (const Case& c : cases) {
        // Each case starts from its own known state, so that its draws do
        // not depend on how many the cases before it took.
        st::seedRandomStream(seed += 7919u);
        const vhValue v = drawVector(m, c);
        ASSERT_EQ(kDraws, v.vectorSize()) << c.family;
        EXPECT_FALSE(v.isRowVector());
        std::vector<double> x(v.numericValues(), v.numericValues() + kDraws);
        const std::string what = c.family + "(" + std::to_string(c.params[0]) + ")";
        const double sd = std::sqrt(c.variance);
        const double expected[] = {0.0, c.variance, c.skewness * sd * sd * sd,
                                   (c.kurtosis + 3.0) * c.variance * c.variance};
        for (int k = 1; k <= 4; ++k)
            EXPECT_LT(momentErrorInStandardErrors(x, c.mean, k, expected[k - 1]), 5.0) << what << " moment " << k;
        std::sort(x.begin(), x.end());
        EXPECT_LT(ksDistance(x, cumulative(c), isDiscrete(c.family)), critical) << what;
    }
    // The heavy-tailed Cauchy family has no moments: the distance alone.
    std::vector<double> x(kDraws);
    const vhValue cauchy = m.cauchyRandVec_f(d(2.0), d(1.0), vhInteger(static_cast<int>(kDraws)));
    ASSERT_EQ(kDraws, cauchy.vectorSize());
    x.assign(cauchy.numericValues(), cauchy.numericValues() + kDraws);
    std::sort(x.begin(), x.end());
    EXPECT_LT(ksDistance(x, [](double t) { return st::cauchyDistribution(t, 1.0, 2.0); }, false), critical);
}

TEST(RandomGenerators, ShapesSizesAndParameters)
{
    vhMath m;
    st::seedRandomStream(42u);
    // The normal generator never leaves 6 deviations around the mean.
    const vhValue normal = m.normRandVec_f(d(10.0), d(0.5), vhInteger(20000));
    ASSERT_EQ(20000u, normal.vectorSize());
    for (unsigned int i = 0; i < normal.vectorSize(); ++i)
        ASSERT_LE(std::fabs(normal.valueToDouble(i) - 10.0), 3.0);
    // A matrix is filled row by row from the same stream as a vector.
    st::seedRandomStream(7u);
    const vhValue mat = m.gammaRandMat_f(d(2.5), d(1.0), vhInteger(2), vhDouble(3.0));
    st::seedRandomStream(7u);
    const vhValue vec = m.gammaRandVec_f(d(2.5), d(1.0), vhInteger(6));
    ASSERT_EQ(2u, mat.matrixRows());
    ASSERT_EQ(3u, mat.matrixColumns());
    for (unsigned int i = 0; i < 6; ++i)
        EXPECT_EQ(vec.valueToDouble(i), mat.valueToDouble(i / 3, i % 3));
    // Discrete draws are whole numbers held as doubles.
    const vhValue k = m.poissonRandNum_f(d(4.0));
    EXPECT_EQ(tagDouble, k.valueType());
    EXPECT_EQ(std::floor(k.toDouble()), k.toDouble());
    // Sizes: whole numbers above 0 within the element limit.
    EXPECT_TRUE(m.expRandVec_f(d(1.0), vhInteger(0)).isNull());
    EXPECT_TRUE(m.expRandVec_f(d(1.0), d(2.5)).isNull());
    EXPECT_TRUE(m.expRandVec_f(d(1.0), d(1e12)).isNull());
    EXPECT_TRUE(m.expRandVec_f(d(1.0), vhInteger(2147483647)).isNull());
    // Huge rates draw in bounded time.
    EXPECT_TRUE(m.poissonRandNum_f(d(1e300)).isDouble());
    EXPECT_TRUE(m.poissonRandNum_f(vhInteger(2147483647)).isDouble());
    EXPECT_TRUE(m.uRandMat_f(d(0.0), d(1.0), vhInteger(-3), vhInteger(2)).isNull());
    setMaximumNumerOfMatrixElements(1000);
    EXPECT_TRUE(m.uRandMat_f(d(0.0), d(1.0), vhInteger(100000), vhInteger(100000)).isNull());
    EXPECT_EQ(1000u, m.uRandVec_f(d(0.0), d(1.0), vhInteger(1000)).vectorSize());
    setMaximumNumerOfMatrixElements(2147483647u);
    // Parameters: finite real numbers in their family's range.
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(m.uRandNum_f(d(0.0), d(inf)).isNull());
    EXPECT_TRUE(m.normRandNum_f(d(std::nan("")), d(1.0)).isNull());
    EXPECT_TRUE(m.gammaRandNum_f(d(0.0), d(1.0)).isNull());
    EXPECT_TRUE(m.betaRandNum_f(d(1.0), d(-1.0)).isNull());
    EXPECT_TRUE(m.chi2RandNum_f(d(0.0)).isNull());
    EXPECT_TRUE(m.tRandVec_f(d(-1.0), vhInteger(3)).isNull());
    EXPECT_TRUE(m.geometricRandNum_f(d(1.5)).isNull());
    EXPECT_TRUE(m.logarithmicRandNum_f(d(1.0)).isNull());
    EXPECT_TRUE(m.expRandNum_f(vhValue(vhSymbolicValue("x", false, {}))).isNull());
    EXPECT_TRUE(m.cauchyRandNum_f(vhValue(), d(1.0)).isNull());
    // Whole numbers of any real type count as numbers.
    EXPECT_TRUE(m.betaRandNum_f(vhInteger(2), vhBoolean(true)).isDouble());
    // A stuck stream ends the rejection methods instead of hanging.
    st::seedRandomStream(0);
    EXPECT_TRUE(m.tRandNum_f(d(3.0)).isNull());
    st::seedRandomStream(99u);
    // The dispatcher reaches every form by number.
    EXPECT_EQ(5u, callFunction(&m, nt_chi2RandVec, {d(3.0), vhInteger(5)}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_fRandMat, {d(3.0), d(4.0), vhInteger(2), vhInteger(2)}).vectorSize());
    EXPECT_TRUE(callFunction(&m, nt_logarithmicRandNum, {d(0.5)}).isDouble());
}
