// Equations take opposite operations on their two sides and are solved when
// the left side becomes a plain symbol; intervals snap near-whole bounds.

#include <gtest/gtest.h>

#include "frame/math.h"
#include "symbolic/symbolic_test_support.h"

using namespace VarnholtMath::ValueTypes;
using symbolic_tests::sym;

namespace {
vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
} // namespace

TEST(Equations, SidesTakeOppositeOperations)
{
    EXPECT_TRUE(vhEquation(sym("x"), "", vhInteger(5)).isNull());
    EXPECT_EQ(vhEquation(sym("x"), "", vhInteger(5)).valueType(), tagNull);

    const vhEquation x5(sym("x"), "=", vhInteger(5));
    ASSERT_FALSE(x5.isNull());
    // (x = 5) + 1 is x + 1 = 4, not an equivalent equation.
    const vhValue shifted = x5 + vhInteger(1);
    ASSERT_EQ(shifted.valueType(), tagEquation);
    EXPECT_EQ(shifted.leftExpression().toStringAll(), "x+1");
    EXPECT_EQ(shifted.rightExpression().toInt(), 4);
    EXPECT_EQ(shifted.equationType(), "=");
    EXPECT_TRUE(shifted == vhEquation(sym("x") + vhInteger(1), "=", vhInteger(4)));
    EXPECT_FALSE(shifted == vhEquation(sym("x") + vhInteger(1), "<", vhInteger(4)));

    // A left side that becomes a plain symbol solves the equation.
    const vhValue solved = vhEquation(sym("x") + vhInteger(1), "=", vhInteger(5)) - vhInteger(1);
    EXPECT_EQ(solved.valueType(), tagInteger);
    EXPECT_EQ(solved.toInt(), 6);

    // Compound forms can turn the equation into its right side.
    vhValue e = vhEquation(sym("x") + vhInteger(1), "=", vhInteger(5));
    e -= vhInteger(1);
    EXPECT_EQ(e.toInt(), 6);

    EXPECT_TRUE((x5 + vhValue()).isNull());
    EXPECT_TRUE((x5 + vhInterval(0, true, 1, true)).isNull());
    EXPECT_TRUE((x5 * x5).isNull());
}

TEST(Equations, LanguageConstructors)
{
    vhMath math;
    EXPECT_EQ(math.equation_f(sym("x"), str("<="), vhInteger(2)).equationType(), "<=");
    EXPECT_TRUE(math.equation_f(sym("x"), str(""), vhInteger(2)).isNull());
    EXPECT_TRUE(math.equation_f(vhValue(), str("="), vhInteger(2)).isNull());
    EXPECT_TRUE(math.equation_f(sym("x"), vhInteger(1), vhInteger(2)).isNull());

    const vhValue i = math.interval_f(vhInteger(1), vhBoolean(true), vhDouble(2.5), vhBoolean(false));
    ASSERT_TRUE(i.isInterval());
    EXPECT_TRUE(i.intervalStartIncuded());
    EXPECT_FALSE(i.intervalEndIncluded());
    EXPECT_EQ(i.intervalEnd(), 2.5);
    EXPECT_TRUE(math.interval_f(vhComplex(1, 1), vhBoolean(true), vhDouble(2), vhBoolean(true)).isNull());
    EXPECT_TRUE(math.interval_f(str("a"), vhBoolean(true), vhDouble(2), vhBoolean(true)).isNull());
}

TEST(Intervals, NearWholeBoundsSnapAwayFromZero)
{
    const vhInterval a(0.9999999999999999, true, -1.9999999999999998, false);
    EXPECT_EQ(a.intervalStart(), 1.0);
    EXPECT_EQ(a.intervalEnd(), -2.0);
    const vhInterval b(0.5, true, 1e300, true);
    EXPECT_EQ(b.intervalStart(), 0.5);
    EXPECT_EQ(b.intervalEnd(), 1e300);
    EXPECT_EQ(vhInterval(-1e-20, true, 0.0, true).intervalStart(), -1e-20);

    EXPECT_TRUE(vhInterval(0.5, true, 2.5, false) == vhInterval(0.5 + 1e-15, true, 2.5, false));
    EXPECT_FALSE(vhInterval(0.5, true, 2.5, false) == vhInterval(0.5, false, 2.5, false));
    EXPECT_FALSE(vhInterval(0.5, true, 2.5, false) == vhInterval(0.6, true, 2.5, false));
    EXPECT_TRUE(vhInfiniteSolution(0, 3.141592653589793) == vhInfiniteSolution(0, 3.141592653589793));
    EXPECT_FALSE(vhInfiniteSolution(0, 1) == vhInfiniteSolution(1e-300, 1));
}
