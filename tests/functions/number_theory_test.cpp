// Whole-number functions against tables made by
// tests/functions/data/make_number_theory_reference.py (SymPy, mpmath), and
// the identities that tie them together.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

struct Reference {
    std::string name;
    double a, b;
    std::string value;
};

std::vector<Reference> readReference()
{
    std::vector<Reference> rows;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/functions/data/number_theory_reference.csv");
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::stringstream fields(line);
        std::string name, a, b, value;
        std::getline(fields, name, ',');
        std::getline(fields, a, ',');
        std::getline(fields, b, ',');
        std::getline(fields, value);
        rows.push_back({name, std::stod(a), std::stod(b), value});
    }
    return rows;
}

vhValue i(int v) { return vhInteger(v); }
vhValue symbol(const char* name) { return vhSymbolicValue(name, false, {}); }
vhValue text(const char* s) { return vhSymbolicValue(s, true, {}); }

std::vector<int> entries(const vhValue& v)
{
    std::vector<int> out;
    for (unsigned int k = 0; k < v.vectorSize(); ++k)
        out.push_back(v.value(k).toInt());
    return out;
}

} // namespace

TEST(NumberTheory, CountsAgainstReference)
{
    vhMath m;
    const std::vector<Reference> rows = readReference();
    ASSERT_GT(rows.size(), 3000u);
    int checked = 0;
    for (const Reference& r : rows) {
        const vhValue a = i(static_cast<int>(r.a)), b = i(static_cast<int>(r.b));
        vhValue got;
        if (r.name == "binomial")
            got = m.BinomialCoefficient_f(a, b);
        else if (r.name == "bell")
            got = m.BellNumber_f(a);
        else if (r.name == "stirling1s")
            got = m.StirlingNumber1stKindSigned_f(a, b);
        else if (r.name == "stirling1u")
            got = m.StirlingNumber1stKindUnsigned_f(a, b);
        else if (r.name == "stirling2")
            got = m.StirlingNumber2ndKind_f(a, b);
        else if (r.name == "partitions")
            got = m.CountPartitions_f(a);
        else if (r.name == "kpartitions")
            got = m.CountkPartitions_f(b, a);
        else if (r.name == "nthprime")
            got = m.nthPrime_f(a);
        else if (r.name == "nextprime")
            got = m.nextPrime_f(a);
        else if (r.name == "prevprime")
            got = m.previousPrime_f(a);
        else
            continue;
        ++checked;
        ASSERT_TRUE(got.isInteger()) << r.name << "(" << r.a << ", " << r.b << ")";
        EXPECT_EQ(std::stoll(r.value), got.toInt()) << r.name << "(" << r.a << ", " << r.b << ")";
    }
    EXPECT_GT(checked, 3000);
}

TEST(NumberTheory, FibonacciFactorsAndPoissonAgainstReference)
{
    vhMath m;
    for (const Reference& r : readReference()) {
        if (r.name == "fibonacci") {
            // The 64-bit value, wrapped past F(92), is stored as a double.
            const vhValue f = m.FibonaciNumber_f(i(static_cast<int>(r.a)));
            EXPECT_EQ(double(std::stoll(r.value)), f.toDouble()) << "F(" << r.a << ")";
        } else if (r.name == "factor") {
            const int n = static_cast<int>(r.a), count = static_cast<int>(r.b);
            std::vector<int> expected;
            std::stringstream s(r.value);
            for (int p; s >> p;)
                expected.push_back(p);
            EXPECT_EQ(expected, entries(m.Factor_f(i(n), i(count)))) << n;
            // One factor fewer than needed is refused.
            EXPECT_TRUE(m.Factor_f(i(n), i(count - 1)).isNull()) << n;
            std::vector<int> distinct = expected;
            distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
            EXPECT_EQ(distinct, entries(m.FactorUnique_f(i(n), i(50)))) << n;
        } else if (r.name == "poisson") {
            const double expected = std::stod(r.value);
            const double got = m.PoissonCoefficient_f(vhDouble(r.a), i(static_cast<int>(r.b))).toDouble();
            EXPECT_NEAR(expected, got, 1e-14 * expected) << r.a << ", " << r.b;
        }
    }
}

TEST(NumberTheory, DivisorsAndIdentities)
{
    vhMath m;
    EXPECT_EQ(0, m.gcd_f(i(0), i(0)).toInt());
    EXPECT_EQ(6, m.gcd_f(i(-12), i(18)).toInt());
    EXPECT_EQ(12, m.lcm_f(i(4), i(6)).toInt());
    EXPECT_EQ(0, m.lcm_f(i(0), i(0)).toInt());
    EXPECT_EQ(5, m.pseudoinverse_f(i(7), i(3)).toInt());
    EXPECT_EQ(0, m.pseudoinverse_f(i(12), i(4)).toInt());
    EXPECT_EQ(0, m.pseudoinverse_f(i(0), i(4)).toInt());
    EXPECT_EQ(8, m.chineserem_f(vhVector({i(3), i(5)}, true), vhVector({i(2), i(3)}, true)).toInt());
    const int values[] = {0, 1, -1, 7, -12, 18, 35, -64, 97, 1000, 46340, -999983, 123456789};
    for (int a : values)
        for (int b : values) {
            const int g = m.gcd_f(i(a), i(b)).toInt();
            // gcd * lcm = |a b| while the product fits.
            if (std::llabs(std::int64_t(a) * b) < 2147483647LL && (a != 0 || b != 0))
                EXPECT_EQ(std::llabs(std::int64_t(a) * b), std::int64_t(g) * m.lcm_f(i(a), i(b)).toInt())
                    << a << ", " << b;
            const std::vector<int> e = entries(m.gcde_f(i(a), i(b)));
            ASSERT_EQ(3u, e.size());
            EXPECT_EQ(g, e[0]);
            EXPECT_EQ(std::int64_t(g), std::int64_t(a) * e[1] + std::int64_t(b) * e[2]) << a << ", " << b;
            const int inverse = m.pseudoinverse_f(i(a), i(b)).toInt();
            if (g == 1 && std::abs(a) > 1 && b != 0) {
                EXPECT_GE(inverse, 0);
                EXPECT_LT(inverse, std::abs(a));
                EXPECT_EQ(1, ((std::int64_t(b) * inverse) % a + std::abs(a)) % std::abs(a)) << a << ", " << b;
            }
        }
    // Chinese remainders satisfy every congruence and are the least such.
    const std::vector<int> moduli = {7, 11, 13, 17, 19};
    for (int seed = 0; seed < 20; ++seed) {
        std::vector<vhValue> p, r;
        std::vector<int> rest;
        for (std::size_t k = 0; k < moduli.size(); ++k) {
            rest.push_back((seed * 37 + int(k) * 11) % moduli[k]);
            p.push_back(i(moduli[k]));
            r.push_back(i(rest.back()));
        }
        const int x = m.chineserem_f(vhVector(p, false), vhVector(r, false)).toInt();
        EXPECT_GE(x, 0);
        EXPECT_LT(x, 7 * 11 * 13 * 17 * 19);
        for (std::size_t k = 0; k < moduli.size(); ++k)
            EXPECT_EQ(rest[k], x % moduli[k]);
    }
    EXPECT_EQ(0, m.chineserem_f(vhVector(), vhVector()).toInt());
}

TEST(NumberTheory, TrianglesAgreeWithEachOther)
{
    vhMath m;
    std::int64_t factorial = 1;
    for (int n = 0; n <= 12; ++n) {
        factorial *= n == 0 ? 1 : n;
        std::int64_t sum = 0, unsignedSum = 0;
        for (int k = 0; k <= n; ++k) {
            sum += m.StirlingNumber2ndKind_f(i(n), i(k)).toInt();
            unsignedSum += m.StirlingNumber1stKindUnsigned_f(i(n), i(k)).toInt();
            EXPECT_EQ(std::abs(m.StirlingNumber1stKindSigned_f(i(n), i(k)).toInt()),
                      m.StirlingNumber1stKindUnsigned_f(i(n), i(k)).toInt());
        }
        EXPECT_EQ(m.BellNumber_f(i(n)).toInt(), sum) << n;
        // The cycles of all permutations: n!.
        EXPECT_EQ(factorial, unsignedSum) << n;
        EXPECT_EQ(m.CountPartitions_f(i(n)).toInt(), m.CountkPartitions_f(i(n), i(n)).toInt());
    }
    EXPECT_EQ(7, m.CountPartitions_f(i(5)).toInt());
    EXPECT_EQ(55.0, m.FibonaciNumber_f(i(10)).toDouble());
    EXPECT_EQ(-55.0, m.FibonaciNumber_f(i(-10)).toDouble());
    EXPECT_EQ(34.0, m.FibonaciNumber_f(i(-9)).toDouble());
}

TEST(NumberTheory, PrimesAndFactorLimits)
{
    vhMath m;
    EXPECT_FALSE(m.isPrime_f(i(1)).toBool());
    EXPECT_TRUE(m.isPrime_f(i(2)).toBool());
    EXPECT_FALSE(m.isPrime_f(i(25)).toBool());
    EXPECT_FALSE(m.isPrime_f(i(121)).toBool());
    EXPECT_FALSE(m.isPrime_f(i(-7)).toBool());
    EXPECT_FALSE(m.isPrime_f(i(0)).toBool());
    EXPECT_TRUE(m.isPrime_f(i(2147483647)).toBool());
    EXPECT_FALSE(m.isPrime_f(i(2147395600)).toBool()); // 46340^2
    EXPECT_TRUE(m.isPrime_f(vhDouble(7.0)).toBool());
    EXPECT_TRUE(m.isPrime_f(vhDouble(7.5)).isNull());
    EXPECT_TRUE(m.isPrime_f(vhDouble(std::numeric_limits<double>::infinity())).isNull());
    EXPECT_TRUE(m.isPrime_f(vhComplex(std::numeric_limits<double>::infinity(), 0)).isNull());
    EXPECT_FALSE(m.isPrime_f(vhComplex(7, 1)).toBool());
    EXPECT_EQ(nt_isPrime, m.isPrime_f(symbol("x")).functionID());

    // A long array takes the sieve, a short one trial division: both agree
    // with the scalar test.
    for (unsigned int n : {50u, 5000u}) {
        vhVector v(n, true, true, false);
        for (unsigned int k = 0; k < n; ++k)
            v.numericValues()[k] = double(k) * 3 - 40;
        v.numericValues()[3] = 2.5;
        const vhValue flags = m.isPrime_f(v);
        ASSERT_EQ(n, flags.vectorSize());
        EXPECT_TRUE(std::isnan(flags.numericValues()[3]));
        for (unsigned int k = 0; k < n; ++k)
            if (k != 3)
                EXPECT_EQ(m.isPrime_f(v.value(k)).toBool() ? 1.0 : 0.0, flags.numericValues()[k]) << k;
    }

    EXPECT_EQ((std::vector<int>{2, 2, 3}), entries(m.Factor_f(i(12), i(3))));
    EXPECT_TRUE(m.Factor_f(i(12), i(2)).isNull());
    EXPECT_EQ((std::vector<int>{2, 3}), entries(m.FactorUnique_f(i(12), i(2))));
    EXPECT_TRUE(m.FactorUnique_f(i(8), i(1)).isNull());
    EXPECT_TRUE(m.Factor_f(i(0), i(5)).isNull());
    EXPECT_TRUE(m.Factor_f(i(-12), i(5)).isNull());
    EXPECT_TRUE(m.Factor_f(i(12), i(0)).isNull());
    EXPECT_TRUE(m.Factor_f(i(12), i(-3)).isNull());

    EXPECT_EQ(2, m.nthPrime_f(i(1)).toInt());
    EXPECT_EQ(2, m.nextPrime_f(i(-100)).toInt());
    EXPECT_TRUE(m.nextPrime_f(i(2147483647)).isNull());
    EXPECT_TRUE(m.previousPrime_f(i(2)).isNull());
    EXPECT_TRUE(m.nthPrime_f(i(0)).isNull());
    EXPECT_TRUE(m.nthPrime_f(i(-3)).isNull());
}

TEST(NumberTheory, BadInputAndArrays)
{
    vhMath m;
    const vhValue bad[] = {vhValue(), vhDouble(2.5), vhDouble(std::nan("")), vhDouble(1e300), text("12"),
                           vhComplex(2, 1)};
    for (const vhValue& b : bad) {
        EXPECT_TRUE(m.gcd_f(b, i(4)).isNull());
        EXPECT_TRUE(m.lcm_f(i(4), b).isNull());
        EXPECT_TRUE(m.BinomialCoefficient_f(b, i(2)).isNull());
        EXPECT_TRUE(m.BellNumber_f(b).isNull());
        EXPECT_TRUE(m.Factor_f(b, i(4)).isNull());
        EXPECT_TRUE(m.nthPrime_f(b).isNull());
        EXPECT_TRUE(m.chineserem_f(b, vhVector({i(1)}, true)).isNull());
    }
    // Refused signs and sizes beyond the tables.
    EXPECT_TRUE(m.BinomialCoefficient_f(i(-5), i(2)).isNull());
    EXPECT_EQ(0, m.BinomialCoefficient_f(i(5), i(7)).toInt());
    EXPECT_TRUE(m.BellNumber_f(i(-1)).isNull());
    EXPECT_TRUE(m.BellNumber_f(i(2000000000)).isNull());
    EXPECT_TRUE(m.CountPartitions_f(i(-1)).isNull());
    EXPECT_EQ(1, m.CountPartitions_f(i(0)).toInt());
    EXPECT_TRUE(m.CountkPartitions_f(i(3), i(2000000000)).isNull());
    EXPECT_TRUE(m.StirlingNumber2ndKind_f(i(-3), i(1)).isNull());
    EXPECT_TRUE(m.StirlingNumber1stKindSigned_f(i(3), i(-1)).isNull());
    EXPECT_TRUE(m.PoissonCoefficient_f(vhDouble(2.0), i(70)).isNull()); // 70! wraps to 0 in 64 bits
    EXPECT_TRUE(m.chineserem_f(vhVector({i(3), i(0)}, true), vhVector({i(1), i(0)}, true)).isNull());
    EXPECT_TRUE(m.chineserem_f(vhVector({i(3), i(5)}, true), vhVector({i(1)}, true)).isNull());
    EXPECT_TRUE(m.chineserem_f(vhVector({i(3), vhDouble(5.5)}, true), vhVector({i(1), i(2)}, true)).isNull());
    // Huge arguments finish: binomials beyond 32 bits wrap.
    EXPECT_TRUE(m.BinomialCoefficient_f(i(2147483647), i(3000000)).isInteger());
    EXPECT_TRUE(m.FibonaciNumber_f(i(2147483647)).isDouble());

    // Symbolic arguments hold the call; arrays map element by element.
    EXPECT_EQ(nt_gcd, m.gcd_f(symbol("x"), i(4)).functionID());
    EXPECT_EQ(nt_BellNumber, m.BellNumber_f(symbol("n")).functionID());
    const vhValue g = m.gcd_f(vhVector({i(12), i(9), i(7)}, true), vhVector({i(18), i(6), i(0)}, true));
    EXPECT_EQ((std::vector<int>{6, 3, 7}), entries(g));
    EXPECT_TRUE(m.gcd_f(vhVector({i(12), i(9)}, true), vhVector({i(18), i(6), i(0)}, true)).isNull());
    const vhValue primes = m.nthPrime_f(vhVector({i(1), i(2), i(3), i(0)}, false));
    ASSERT_EQ(4u, primes.vectorSize());
    EXPECT_EQ(5, primes.value(2).toInt());
    EXPECT_TRUE(primes.value(3).isNull());
}

namespace {
int g_polls = 0;
vhMath* g_math = nullptr;
void stopAtOnce()
{
    ++g_polls;
    g_math->setStopCalculation(true);
}
} // namespace

TEST(NumberTheory, LongCountsStopWhenAsked)
{
    vhMath m;
    g_math = &m;
    m.setAppProcessEventsCallback(stopAtOnce);
    EXPECT_TRUE(m.nthPrime_f(i(5000000)).isNull());
    EXPECT_TRUE(m.BellNumber_f(i(5000)).isNull());
    EXPECT_TRUE(m.StirlingNumber2ndKind_f(i(9000), i(300)).isNull());
    EXPECT_GE(g_polls, 3);
}

TEST(NumberTheory, ReachableByNumber)
{
    vhMath m;
    EXPECT_EQ(7919, callFunction(&m, nt_nthPrime, {i(1000)}).toInt());
    EXPECT_EQ(3u, callFunction(&m, nt_Factor, {i(12), i(5)}).vectorSize());
    EXPECT_EQ(6, callFunction(&m, nt_gcd, {i(12), i(18)}).toInt());
    EXPECT_EQ(52, callFunction(&m, nt_BellNumber, {i(5)}).toInt());
    EXPECT_TRUE(callFunction(&m, nt_isPrime, {i(13)}).toBool());
    EXPECT_EQ(11, callFunction(&m, nt_nextPrime, {i(7)}).toInt());
    EXPECT_EQ(5, callFunction(&m, nt_previousPrime, {i(7)}).toInt());
}
