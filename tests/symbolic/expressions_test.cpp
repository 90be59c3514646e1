// Sums of terms: the canonical form that + - * leave, products of sums,
// equality, perfect squares and cubes, ordering by powers, text forms, and
// algebraic identities of random polynomials compared term by term with
// integer arithmetic.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>
#include <utility>

#include "frame/node_type.h"
#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

using symbolic_tests::sym;

namespace {


// Exponents of x and y of a monomial, and its coefficient.
using Monomial = std::pair<int, int>;
using Polynomial = std::map<Monomial, long>;

// Reads an engine result back into a polynomial in x and y; false when a
// term is not a monomial with whole exponents and a whole coefficient, or
// when two terms are the same monomial or a term is zero.
bool readPolynomial(const vhValue& v, Polynomial& p)
{
    p.clear();
    if (v.isNull() && v.valueType() != tagExpression)
        return false;
    // The zero polynomial is the number 0.
    if (v.valueType() != tagExpression && v.isZero())
        return true;
    for (const vhValue& term : v.expressionValues()) {
        std::vector<vhValue> factors;
        term.multipliers(factors);
        double c = 1.0;
        Monomial m{0, 0};
        for (const vhValue& f : factors) {
            if (f.isSymbolicValue()) {
                const double e = f.exp();
                if (e != std::floor(e))
                    return false;
                if (f.toString() == "x")
                    m.first += int(e);
                else if (f.toString() == "y")
                    m.second += int(e);
                else
                    return false;
            } else {
                c *= f.toDouble();
            }
        }
        if (c != std::floor(c) || c == 0.0 || p.count(m))
            return false;
        p[m] = long(c);
    }
    return true;
}

vhValue build(const Polynomial& p)
{
    const vhValue x = sym("x"), y = sym("y");
    vhValue sum = vhInteger(0);
    for (const auto& [m, c] : p) {
        vhValue term = vhInteger(int(c));
        for (int i = 0; i < m.first; ++i)
            term = term * x;
        for (int j = 0; j < m.second; ++j)
            term = term * y;
        sum = sum + term;
    }
    return sum;
}

Polynomial withoutZeros(Polynomial p)
{
    for (auto it = p.begin(); it != p.end();)
        it = it->second == 0 ? p.erase(it) : std::next(it);
    return p;
}

Polynomial product(const Polynomial& p, const Polynomial& q)
{
    Polynomial r;
    for (const auto& [mp, cp] : p)
        for (const auto& [mq, cq] : q)
            r[{mp.first + mq.first, mp.second + mq.second}] += cp * cq;
    return withoutZeros(r);
}

Polynomial combine(const Polynomial& p, const Polynomial& q, int sign)
{
    Polynomial r = p;
    for (const auto& [m, c] : q)
        r[m] += sign * c;
    return withoutZeros(r);
}

Polynomial randomPolynomial(std::mt19937& random)
{
    std::uniform_int_distribution<int> count(1, 5), exponent(0, 3), coefficient(-4, 4);
    Polynomial p;
    const int n = count(random);
    for (int i = 0; i < n; ++i) {
        const int c = coefficient(random);
        if (c != 0)
            p[{exponent(random), exponent(random)}] += c;
    }
    return withoutZeros(p);
}

} // namespace

TEST(Expressions, CanonicalSums)
{
    const vhValue x = sym("x"), y = sym("y");
    const vhValue one = x + 1 - x;
    EXPECT_EQ(one.valueType(), tagInteger);
    EXPECT_EQ(one.toInt(), 1);
    const vhValue none = vhExpression(x) - x;
    EXPECT_EQ(none.valueType(), tagInteger);
    EXPECT_EQ(none.toInt(), 0);

    // Terms keep the order of first appearance; like terms merge into the
    // first.
    const vhValue sum = (x + y) + (vhInteger(3) + x * 2);
    ASSERT_EQ(sum.expressionValuesSize(), 3u);
    EXPECT_EQ(sum.expressionValues()[0], x * 3);
    EXPECT_EQ(sum.expressionValues()[1], y);
    EXPECT_EQ(sum.expressionValues()[2].toInt(), 3);
    const vhValue difference = (x + y) - (y * 2 + 5);
    ASSERT_EQ(difference.expressionValuesSize(), 3u);
    EXPECT_EQ(difference.expressionValues()[1], y * -1);
    EXPECT_EQ(difference.expressionValues()[2].toInt(), -5);

    // Zero and empty operands.
    EXPECT_EQ((x + y) + 0, x + y);
    EXPECT_TRUE(((x + y) + vhValue()).isNull());
    const vhValue fromEmpty = vhExpression() + x;
    EXPECT_EQ(fromEmpty.valueType(), tagExpression);
    EXPECT_EQ(fromEmpty.expressionValuesSize(), 1u);
    EXPECT_EQ(vhExpression() - x, vhExpression(x * -1));
    EXPECT_TRUE(vhExpression().isZero());

    // A number and text cannot be added.
    EXPECT_TRUE(((x + 1) + vhSymbolicValue("t", true, {})).isNull());
    EXPECT_EQ(((x + y) + vhSymbolicValue("t", true, {})).expressionValuesSize(), 3u);

    EXPECT_EQ(expressionToValue(vhExpression(x)), x);
    EXPECT_EQ(expressionToValue(vhExpression()).toInt(), 0);
    EXPECT_EQ(expressionToValue(x + y), x + y);
}

TEST(Expressions, ProductsExpandAndMerge)
{
    const vhValue x = sym("x"), y = sym("y");
    // One symbol: falling powers.
    const vhValue squareMinusOne = (x + 1) * (x - 1);
    ASSERT_EQ(squareMinusOne.valueType(), tagExpression);
    ASSERT_EQ(squareMinusOne.expressionValuesSize(), 2u);
    EXPECT_EQ(squareMinusOne.expressionValues()[0], x * x);
    EXPECT_EQ(squareMinusOne.expressionValues()[1].toInt(), -1);
    const vhValue cubic = (vhInteger(1) + x) * (vhInteger(2) + x * x);
    ASSERT_EQ(cubic.expressionValuesSize(), 4u);
    EXPECT_EQ(cubic.expressionValues()[0].exp(), 3.0);
    EXPECT_EQ(cubic.expressionValues()[1].exp(), 2.0);
    EXPECT_EQ(cubic.expressionValues()[2].exp(), 1.0);
    EXPECT_EQ(cubic.expressionValues()[3].toInt(), 2);

    // Two symbols: the order of production.
    const vhValue squares = (x + y) * (x - y);
    ASSERT_EQ(squares.expressionValuesSize(), 2u);
    EXPECT_EQ(squares.expressionValues()[0], x * x);
    EXPECT_EQ(squares.expressionValues()[1], y * y * -1);

    // Products stay expressions, however short.
    const vhValue single = (x + y) * (x - y + y);
    ASSERT_EQ(single.valueType(), tagExpression);
    const vhValue cancelled = (x + 1) * vhExpression(vhInteger(0) * x + 0);
    EXPECT_TRUE(cancelled.isZero());

    const vhValue zero = vhInteger(0);
    EXPECT_EQ((x + y) * zero, zero);
    EXPECT_EQ(((x + y) * zero).valueType(), tagInteger);
    const vhValue empty = vhExpression() * (x + y);
    EXPECT_EQ(empty.valueType(), tagExpression);
    EXPECT_TRUE(empty.isNull());
    EXPECT_TRUE((vhExpression(x) * vhExpression()).isNull());
    EXPECT_TRUE(((x + y) * vhValue()).isNull());
    EXPECT_TRUE(((x + y) * vhSymbolicValue("t", true, {})).isNull());
    // A scalar factor goes to every term.
    EXPECT_EQ((x + y) * 3, x * 3 + y * 3);
    EXPECT_EQ(vhInteger(3) * (x + y), x * 3 + y * 3);
}

TEST(Expressions, EqualityIgnoresOrder)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_TRUE(x + y == y + x);
    EXPECT_FALSE(x + y == x + y + 1);
    EXPECT_FALSE(x + y == x - y);
    EXPECT_TRUE(vhExpression(x) == x);
    EXPECT_FALSE(vhExpression() == vhExpression());
    EXPECT_FALSE(x + y == vhValue());
    EXPECT_TRUE(x + y != x);
}

TEST(Expressions, PerfectSquaresAndCubes)
{
    const vhValue x = sym("x"), y = sym("y");
    const vhValue square = x * x + x * y * 2 + y * y;
    std::vector<vhValue> s = square.simplify();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_TRUE(s[0].bracket());
    EXPECT_EQ(s[0].bracketExponent(), 2.0);
    EXPECT_EQ(s[0], x + y);

    // The symbols come in order of first appearance: y, then x.
    s = (y * y - x * y * 2 + x * x).simplify();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0], y - x);

    EXPECT_TRUE((x * x * 4 + x * y * 4 + y * y).simplify().empty());
    EXPECT_TRUE((x + y).simplify().empty());
    EXPECT_TRUE(vhExpression().simplify().empty());
    EXPECT_TRUE(x.simplify().empty());

    const vhValue cube = (x + y) * (x + y) * (x + y);
    s = cube.simplify();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].bracketExponent(), 3.0);
    EXPECT_EQ(s[0], x + y);

    const vhValue cubeOfDifference = x * x * x - x * x * y * 3 + x * y * y * 3 - y * y * y;
    s = cubeOfDifference.simplify();
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].bracketExponent(), 3.0);
    EXPECT_EQ(s[0], x - y);
}

TEST(Expressions, ArrangeByPowers)
{
    const vhValue x = sym("x"), y = sym("y");
    vhValue e = y + x + x * x * x + 7 + x * x * y;
    e.arrangeExponents(x);
    ASSERT_EQ(e.expressionValuesSize(), 5u);
    const std::vector<vhValue> t = e.expressionValues();
    EXPECT_EQ(t[0], x * x * x);
    EXPECT_EQ(t[1], x * x * y);
    EXPECT_EQ(t[2], x);
    EXPECT_EQ(t[3], y);
    EXPECT_EQ(t[4].toInt(), 7);

    // Equal powers keep their order; a non-symbol changes nothing.
    const vhValue tied = x * y + x * 3 + y;
    EXPECT_EQ(tied.arrangeExponentsConst(x).expressionValues()[0], x * y);
    EXPECT_EQ(tied.arrangeExponentsConst(x * 2).expressionValues()[2], y);

    const vhValue byFirst = (vhInteger(1) + x + x * x).arrangeExponentsForFirstSymbolConst(true);
    EXPECT_EQ(byFirst.expressionValues()[0], x * x);
    // y is met first in y + x y^2; with two symbols only the forced call
    // sorts.
    const vhValue two = (y + x * y * y).arrangeExponentsForFirstSymbolConst(true);
    EXPECT_EQ(two.expressionValues()[0], y);
    const vhValue forced = (y + x * y * y).arrangeExponentsForFirstSymbolConst(false);
    EXPECT_EQ(forced.expressionValues()[0], x * y * y);
}

TEST(Expressions, TextForms)
{
    const vhValue x = sym("x"), y = sym("y");
    EXPECT_EQ((x * -1).toStringAll(), "-x");
    EXPECT_EQ((x - x).toStringAll(), "0");
    EXPECT_EQ((vhExpression(x) - x).toStringAll(), "0");
    EXPECT_EQ((x + 1).toStringAll(), "x+1");
    EXPECT_EQ((x - y).toStringAll(), "x-y");
    EXPECT_EQ(((x + 1) * (x - 1)).toStringAll(), "x^2-1");
    EXPECT_EQ((vhInteger(3) * x * y).toStringAll(), "3 y x");
    EXPECT_EQ((x * x * y * -2 + y).toStringAll(), "-2 y x^2+y");
}

TEST(Expressions, PolynomialIdentities)
{
    std::mt19937 random(20240617);
    for (int round = 0; round < 40; ++round) {
        const Polynomial p = randomPolynomial(random), q = randomPolynomial(random);
        const vhValue ep = build(p), eq = build(q);
        SCOPED_TRACE("p = " + ep.toStringAll() + ", q = " + eq.toStringAll());

        const struct {
            vhValue engine;
            Polynomial expected;
        } cases[] = {{ep * eq, product(p, q)}, {ep + eq, combine(p, q, 1)}, {ep - eq, combine(p, q, -1)}};
        for (const auto& c : cases) {
            Polynomial got;
            ASSERT_TRUE(readPolynomial(c.engine, got)) << c.engine.toStringAll();
            EXPECT_EQ(got, c.expected) << c.engine.toStringAll();
        }
    }
}

TEST(Expressions, BadAndNestedOperands)
{
    const vhValue x = sym("x"), y = sym("y");
    const vhValue handle = vhObject("Thing", nullptr);
    // A foreign value that is no number joins as a term.
    EXPECT_EQ(((x + y) + handle).expressionValuesSize(), 3u);
    EXPECT_TRUE(((x + y) * handle).isNull());
    EXPECT_TRUE(((x + y) - vhDouble(std::nan(""))).isNull());

    // A deep nest of one-term expressions behaves as its term.
    vhValue nested = x;
    for (int i = 0; i < 200; ++i)
        nested = vhExpression(nested);
    EXPECT_EQ(nested.valueType(), tagExpression);
    EXPECT_EQ((nested + x).valueType(), tagSymbolicValue);
    EXPECT_EQ(nested + x, x * 2);
    EXPECT_TRUE(nested == x);

    // A long product of distinct symbols keeps every factor once.
    vhValue product = x;
    for (int i = 0; i < 12; ++i)
        product = product * sym("s" + std::to_string(i));
    std::vector<vhValue> factors;
    EXPECT_EQ(product.multipliers(factors), 14u);
    EXPECT_EQ((product + product).firstMultiplier()->toDouble(), 2.0);
    EXPECT_EQ((product / sym("s0")).multipliers(factors), 14u + 13u);

    // Coefficients that overflow: inf x - inf x has no number, so the two
    // terms stay apart.
    const vhValue huge = x * 1e308 * 10;
    EXPECT_EQ((huge - huge).expressionValuesSize(), 2u);

    // An array term multiplies element by element.
    const vhValue v = vhVector(std::vector<vhValue>{vhInteger(1), vhInteger(2)}, false);
    EXPECT_TRUE((x + 1) * v == vhVector(std::vector<vhValue>{x + 1, x * 2 + 2}, false));
}
