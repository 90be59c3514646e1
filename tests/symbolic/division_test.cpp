// Polynomial division against reference quotients, fractions and their
// reduction, common factors, and products and quotients of equations.

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>

#include "frame/math.h"
#include "frame/switches.h"
#include "functions/elementary.h"
#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;
using symbolic_tests::sym;

namespace {

const vhValue x = sym("x");
const vhValue y = sym("y");

vhValue power(const vhValue& base, int n)
{
    vhValue p = vhInteger(1);
    for (int i = 0; i < n; ++i)
        p = p * base;
    return p;
}

// "c,a,b;..." is the sum of c x^a y^b, built by the engine's own operators.
vhValue polynomial(const std::string& text)
{
    vhValue sum = vhInteger(0);
    std::stringstream terms(text);
    std::string term;
    while (std::getline(terms, term, ';')) {
        double c;
        int a = 0, b = 0;
        char comma;
        std::stringstream t(term);
        t >> c >> comma >> a >> comma >> b;
        const vhValue coefficient = c == std::floor(c) ? vhValue(vhInteger(int(c))) : vhValue(vhDouble(c));
        sum = sum + coefficient * power(x, a) * power(y, b);
    }
    return sum;
}

// The largest coefficient of a sum of monomials; NaN when a term is no
// monomial.
double largestCoefficient(const vhValue& v)
{
    if (v.valueType() != tagExpression && v.isZero())
        return 0.0;
    double largest = 0.0;
    for (const vhValue& term : v.expressionValues()) {
        const vhValue* c = term.isSymbolicValue() ? term.firstMultiplier() : &term;
        if (!c || !c->isDouble())
            return std::numeric_limits<double>::quiet_NaN();
        largest = std::max(largest, std::fabs(c->toDouble()));
    }
    return largest;
}

// Restores the process-wide switches that a test changes.
struct Switches {
    Switches() : fractions(fractionsOn()), limits(limitsRulesOn()) {}
    ~Switches()
    {
        setFractionsOnPublic(fractions);
        setLimitsRulesOnPublic(limits);
    }
    bool fractions, limits;
};

} // namespace

TEST(PolynomialDivision, AgreesWithReferenceQuotients)
{
    std::ifstream in(VH_TEST_DATA_DIR "/symbolic/data/division_reference.tsv");
    ASSERT_TRUE(in.good());
    std::string line;
    int pairs = 0, quotients = 0, exactCases = 0;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::stringstream fields(line);
        std::string name, a, b, q, r, exactExpected;
        std::getline(fields, name, '\t');
        std::getline(fields, a, '\t');
        std::getline(fields, b, '\t');
        std::getline(fields, q, '\t');
        std::getline(fields, r, '\t');
        std::getline(fields, exactExpected, '\t');
        SCOPED_TRACE(name);
        ++pairs;
        const vhValue dividend = polynomial(a);
        const vhValue divisor = polynomial(b);
        vhValue remainder;
        const vhValue quotient = vhExpression(dividend).division(divisor, remainder, 0);
        if (!quotient.isNull()) {
            ++quotients;
            // Whatever the engine found, it is a true division: A = Q B + R.
            const vhValue rest = remainder.isNull() ? vhValue(vhInteger(0)) : remainder;
            const vhValue difference = quotient * divisor + rest - dividend;
            EXPECT_LE(largestCoefficient(difference), 1e-12 * std::max(1.0, largestCoefficient(dividend)))
                << quotient.toStringAll() << " / " << rest.toStringAll();
        }
        if (exactExpected == "1") {
            ++exactCases;
            ASSERT_FALSE(quotient.isNull());
            EXPECT_TRUE(remainder.isNull()) << remainder.toStringAll();
            EXPECT_TRUE((quotient - polynomial(q)).isZero()) << quotient.toStringAll() << " vs " << q;
            // The operator gives the same quotient.
            EXPECT_TRUE((vhExpression(dividend) / divisor - polynomial(q)).isZero());
        }
    }
    EXPECT_EQ(pairs, 150);
    EXPECT_GT(exactCases, 40);
    EXPECT_GT(quotients, exactCases);
}

TEST(PolynomialDivision, ExactReverseAndFailedDivisions)
{
    Switches keep;
    setFractionsOnPublic(true);
    const vhValue xm1 = x - vhInteger(1);
    const vhValue x2m1 = x * x - vhInteger(1);

    // (x^2 - 1)/(x - 1) is x + 1 with nothing left.
    vhValue remainder = vhInteger(7);
    const vhValue q = x2m1.division(xm1, remainder);
    EXPECT_TRUE(remainder.isNull());
    EXPECT_TRUE(q == x + vhInteger(1));
    EXPECT_TRUE(x2m1 / xm1 == x + vhInteger(1));

    // The other way round the reverse division finds 1/(x + 1).
    const vhValue reverse = xm1 / x2m1;
    ASSERT_EQ(reverse.valueType(), tagFraction);
    EXPECT_TRUE(reverse.numerator()->toInt() == 1);
    EXPECT_TRUE(*reverse.denominator() == x + vhInteger(1));

    // x/(x + 1) does not divide: a fraction, or with fractions off the
    // product with a reciprocal power, which still evaluates to 2/3.
    const vhValue kept = vhExpression(x) / (x + vhInteger(1));
    ASSERT_EQ(kept.valueType(), tagFraction);
    EXPECT_EQ(kept.toStringAll(), "(x)/(x+1)");
    setFractionsOnPublic(false);
    const vhValue product = vhExpression(x) / (x + vhInteger(1));
    EXPECT_NE(product.valueType(), tagFraction);
    vhMath math;
    EXPECT_DOUBLE_EQ(product.replaceSymbolicValueConst(&math, "x", 2.0, false).toDouble(), 2.0 / 3.0);
    setFractionsOnPublic(true);

    // A divisor whose other terms bring the leading power back makes no
    // progress: division stops at once by its shrink test and leaves the
    // dividend as remainder; the operator spends its step budget and keeps
    // the fraction.
    const vhValue a = x + vhInteger(1);
    const vhValue b = x + x * y;
    const vhValue none = a.division(b, remainder);
    EXPECT_TRUE(none.isNull());
    EXPECT_TRUE(remainder == a);
    const vhValue f = a / b;
    ASSERT_EQ(f.valueType(), tagFraction);
    EXPECT_TRUE(*f.numerator() == a);

    // Bad divisors: nothing, not a crash.
    EXPECT_TRUE(x2m1.division(vhInteger(0), remainder).isNull());
    EXPECT_TRUE(x2m1.division(vhValue(), remainder).isNull());
    EXPECT_TRUE(vhInteger(3).division(x, remainder).isNull());
    EXPECT_TRUE((x2m1 / vhInteger(0)).isNull());
    EXPECT_TRUE((x2m1 / (x - x)).isNull());
    EXPECT_TRUE((x2m1 / vhValue()).isNull());
    EXPECT_TRUE((x2m1 / vhInterval(0, true, 1, true)).isNull());
    EXPECT_TRUE(vhExpression().division(x, remainder, 0).isNull());
    EXPECT_TRUE(x2m1.division(vhSymbolicValue("s", true, {}) + x, remainder).isNull());
    const vhValue withNaN = x * vhDouble(std::nan("")) + vhInteger(1);
    x2m1.division(withNaN, remainder);
    (x2m1 / withNaN).isNull();
    const vhValue byVector = x2m1 / vhVector(std::vector<vhValue>{vhInteger(1), vhInteger(2)}, false);
    EXPECT_EQ(byVector.valueType(), tagVector);
}

TEST(Fractions, ReductionRules)
{
    Switches keep;
    setFractionsOnPublic(true);
    setLimitsRulesOnPublic(false);
    // Zero denominators: no value, or infinity by the rules of limits
    // whatever the sign; 0/0 never has one.
    EXPECT_TRUE(vhFraction(vhInteger(5), vhInteger(0)).isNull());
    setLimitsRulesOnPublic(true);
    EXPECT_EQ(vhFraction(vhInteger(5), vhInteger(0)).toDouble(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(vhFraction(vhInteger(-5), vhInteger(0)).toDouble(), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(vhFraction(vhInteger(0), vhInteger(0)).isNull());
    EXPECT_TRUE(vhFraction(x, vhInteger(0)).isNull());
    setLimitsRulesOnPublic(false);

    // Reduced at once: numbers, single terms, equal parts, zero over x.
    EXPECT_EQ(vhFraction(vhInteger(3), vhInteger(4)).toDouble(), 0.75);
    EXPECT_EQ(vhFraction(vhInteger(1), x).toStringAll(), "x^-1");
    EXPECT_EQ(vhFraction(x + vhInteger(1), vhInteger(1) + x).toInt(), 1);
    EXPECT_EQ(vhFraction(x - x, x + vhInteger(1)).valueType(), tagInteger);
    // The bases of a binomial divide both sides: (x^2 - 2x + 1)/(x^2 - 1) is
    // (x - 1)/(x + 1).
    const vhValue square = (x - vhInteger(1)) * (x - vhInteger(1));
    const vhValue reduced = vhFraction(square, x * x - vhInteger(1));
    ASSERT_EQ(reduced.valueType(), tagFraction);
    EXPECT_TRUE(*reduced.numerator() == x - vhInteger(1));
    EXPECT_TRUE(*reduced.denominator() == x + vhInteger(1));
    // A common factor cancels: x/(x^2 + x) is 1/(x + 1).
    const vhValue common = vhFraction(x, x * x + x);
    ASSERT_EQ(common.valueType(), tagFraction);
    EXPECT_EQ(common.toStringAll(), "(1)/(x+1)");

    // Sums need equal denominators; products and quotients reduce.
    const vhValue f1 = vhFraction(vhInteger(1), x + vhInteger(1));
    const vhValue f2 = vhFraction(x, x + vhInteger(1));
    EXPECT_EQ((f1 + f2).toInt(), 1);
    EXPECT_TRUE((f2 - f1) == vhFraction(x - vhInteger(1), x + vhInteger(1)));
    EXPECT_TRUE((f1 + vhFraction(vhInteger(1), x + vhInteger(2))).isNull());
    EXPECT_TRUE((f1 + vhInteger(1)).isNull());
    EXPECT_TRUE((f2 * (x + vhInteger(1))) == x);
    EXPECT_TRUE((f2 / f2) == vhInteger(1));
    EXPECT_TRUE((f2 / x) == f1);
    vhValue compound = f2;
    compound *= x + vhInteger(1);
    EXPECT_TRUE(compound == x);

    // Without reduction, 1/2 and 1/3 don't add, and equality is as stored.
    setFractionsOnPublic(false);
    const vhValue half = vhFraction(vhInteger(1), vhInteger(2));
    EXPECT_EQ(half.valueType(), tagFraction);
    EXPECT_TRUE((half + vhFraction(vhInteger(1), vhInteger(3))).isNull());
    EXPECT_FALSE(vhFraction(vhInteger(2), vhInteger(4)) == half);
    EXPECT_TRUE(vhFraction(vhInteger(1), vhInteger(2)) == half);
}

TEST(Fractions, JoiningAndSplitting)
{
    Switches keep;
    // 1/x + 1/y are two terms only while fractions don't reduce; joining
    // them leaves the switch on.
    setFractionsOnPublic(false);
    const vhValue sum = vhExpression(vhFraction(vhInteger(1), x)) + vhFraction(vhInteger(1), y);
    ASSERT_EQ(sum.expressionValuesSize(), 2u);
    const vhValue joined = sum.expressionToFractionConst();
    EXPECT_TRUE(fractionsOn());
    ASSERT_EQ(joined.valueType(), tagFraction);
    EXPECT_TRUE(*joined.numerator() == y + x);
    EXPECT_TRUE(*joined.denominator() == x * y);
    EXPECT_EQ(vhExpression(x).expressionToFractionConst().valueType(), tagFraction);

    // A fraction becomes a product with a reciprocal power, also inside an
    // array; the value stays the same. (While fractions reduce, the power
    // -1 of a sum is a fraction again.)
    const vhValue f = vhFraction(x, x + vhInteger(1));
    setFractionsOnPublic(false);
    const vhValue split = vhVector(std::vector<vhValue>{f, vhInteger(2)}, false).fractionToExpressionConst();
    EXPECT_NE(split.value(0).valueType(), tagFraction);
    vhMath math;
    EXPECT_DOUBLE_EQ(split.value(0).replaceSymbolicValueConst(&math, "x", 3.0, false).toDouble(), 0.75);
    EXPECT_EQ(split.value(1).toInt(), 2);
}

TEST(Factoring, CommonFactorsMultiplyBack)
{
    const vhValue a = vhInteger(2) * x + vhInteger(4) * y;
    const std::vector<vhValue> f = a.factorize();
    ASSERT_EQ(f.size(), 2u);
    EXPECT_EQ(f[0].toDouble(), 2.0);
    EXPECT_TRUE(f[1] == x + vhInteger(2) * y);
    EXPECT_TRUE(f[1].bracket());
    EXPECT_TRUE(f[0] * f[1] == a);

    // Coefficients compare in tenths: g = 10 is no factor.
    EXPECT_TRUE((vhInteger(3) * x + vhInteger(5) * y).factorize().empty());
    const vhValue halves = vhDouble(0.5) * x + vhDouble(1.5) * y;
    const std::vector<vhValue> h = halves.factorize();
    ASSERT_EQ(h.size(), 2u);
    EXPECT_EQ(h[0].toDouble(), 0.5);
    EXPECT_TRUE(h[0] * h[1] == halves);

    // The lowest power of a common symbol, with the numeric factor.
    const vhValue b = vhInteger(6) * x * x * y + vhInteger(9) * x * x * x;
    const std::vector<vhValue> g = b.factorize();
    ASSERT_EQ(g.size(), 2u);
    EXPECT_EQ(g[0].toStringAll(), "3 x^2");
    EXPECT_TRUE(g[0] * g[1] == b);
    const std::vector<vhValue> c = (x * x + x).factorize();
    ASSERT_EQ(c.size(), 2u);
    EXPECT_TRUE(c[0] == x);
    EXPECT_TRUE(c[1] == x + vhInteger(1));

    // Nothing to pull out, or no sum at all.
    EXPECT_TRUE((x + vhInteger(1)).factorize().empty());
    EXPECT_TRUE(x.factorize().empty());
    EXPECT_TRUE(vhExpression().factorize().empty());
    // A coefficient beyond 32 bits in tenths skips the numeric factor.
    EXPECT_TRUE((vhDouble(1e12) * x + vhDouble(2e12) * y).factorize().empty());
}

TEST(Fractions, CoefficientsOfASymbol)
{
    const vhValue a = sym("a"), b = sym("b"), c = sym("c");
    const vhValue quadratic = a * x * x + b * x + c;
    EXPECT_TRUE(quadratic.coefficientForSymbol(x) == a * x + b);
    EXPECT_TRUE(quadratic.coefficientFirstDegreeForSymbol(x).isNull());
    EXPECT_TRUE((b * x + c).coefficientFirstDegreeForSymbol(x) == b);
    EXPECT_EQ(c.coefficientForSymbol(x).toInt(), 0);
    EXPECT_TRUE(quadratic.coefficientForSymbol(vhInteger(2) * x).isNull());
    const vhValue notSymbol = quadratic.coefficientFirstDegreeForSymbol(vhInteger(1));
    EXPECT_EQ(notSymbol.valueType(), tagExpression);
    EXPECT_TRUE(notSymbol.isNull());
}

TEST(Equations, ProductsAndQuotientsDivideTheOtherSide)
{
    // (2x = 6)/2: the left side becomes x, and the right side 12 is the
    // answer.
    const vhValue solved = vhEquation(vhInteger(2) * x, "=", vhInteger(6)) / vhInteger(2);
    EXPECT_EQ(solved.valueType(), tagInteger);
    EXPECT_EQ(solved.toInt(), 12);
    // (x = 5)*2 is 2x = 5/2.
    const vhValue doubled = vhEquation(x, "=", vhInteger(5)) * vhInteger(2);
    ASSERT_EQ(doubled.valueType(), tagEquation);
    EXPECT_TRUE(doubled.leftExpression() == vhInteger(2) * x);
    EXPECT_EQ(doubled.rightExpression().toDouble(), 2.5);
    EXPECT_EQ(doubled.equationType(), "=");
    EXPECT_TRUE((vhEquation(x, "=", vhInteger(5)) / vhInteger(0)).isNull());
    // Sums on a side divide too: (x^2 - 1 = 3) / (x - 1).
    const vhValue q = vhEquation(x * x - vhInteger(1), "<", vhInteger(3)) / (x - vhInteger(1));
    ASSERT_EQ(q.valueType(), tagEquation);
    EXPECT_TRUE(q.leftExpression() == x + vhInteger(1));
    EXPECT_EQ(q.equationType(), "<");
    vhValue compound = vhEquation(vhInteger(3) * x, "=", vhInteger(1));
    compound /= vhInteger(3);
    EXPECT_EQ(compound.toInt(), 3);
}

TEST(Fractions, DeepValuesEndQuietly)
{
    Switches keep;
    // Quotients nested deep, left unreduced.
    setFractionsOnPublic(false);
    vhValue nested = x + vhInteger(1);
    for (int i = 0; i < 100; ++i)
        nested = vhFraction(nested, x + vhInteger(i + 2));
    EXPECT_EQ(nested.valueType(), tagFraction);
    vhValue remainder;
    (x * x + vhInteger(3)).division(nested, remainder);
    EXPECT_FALSE((vhExpression(nested) / (x + vhInteger(1))).isNull());
    EXPECT_EQ(nested.symbols(false).vectorSize(), 1u);
    nested.replaceSymbolicValueConst(nullptr, "x", 2.0, false);
    nested.expressionToFractionConst();

    // A few levels reduce, with every reduction inside another.
    vhValue shallow = x + vhInteger(1);
    for (int i = 0; i < 4; ++i)
        shallow = vhFraction(shallow, x + vhInteger(i + 2));
    setFractionsOnPublic(true);
    (x * x + vhInteger(3)).division(shallow, remainder);
    EXPECT_FALSE(vhFraction(shallow, x * x - vhInteger(1)).isNull());
}
