// Linear systems with numeric coefficients, written as equations in
// symbols: solutions, the split into matrix and right sides, and the
// conditions under which there is no answer.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "frame/math.h"
#include "frame/node_type.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }

vhValue eq(const vhValue& left, const std::string& relation, const vhValue& right)
{
    return vhEquation(left, relation, right);
}

vhValue column(const std::vector<vhValue>& items) { return vhVector(items, false); }

} // namespace

TEST(LinearEquations, OneUnknown)
{
    vhMath math;
    const vhValue x = sym("x");
    // x + 1 == 3
    const vhValue r = math.linsolve_f(eq(vhExpression(x) + vhInteger(1), "==", vhInteger(3)), x);
    ASSERT_FALSE(r.isNull());
    EXPECT_EQ(r.toDouble(), 2.0);
    // 4 == 2 x - 6: the unknown on the right side.
    EXPECT_EQ(math.linsolve_f(eq(vhInteger(4), "==", x * vhInteger(2) - vhInteger(6)), x).toDouble(), 5.0);
    // 3 x + 1 == x + 7
    EXPECT_EQ(math.linsolve_f(eq(x * vhInteger(3) + vhInteger(1), "==", vhExpression(x) + vhInteger(7)), x).toDouble(),
              3.0);
    // A system of one equation is a scalar too.
    EXPECT_EQ(math.linsolvesys_f(column({eq(x * vhInteger(2), "==", vhInteger(5))}), column({x})).toDouble(), 2.5);
    // 0 x == 1 has no solution; x == x has many: neither has an answer.
    EXPECT_TRUE(math.linsolve_f(eq(x * vhInteger(2), "==", x * vhInteger(2) + vhInteger(1)), x).isNull());
    EXPECT_TRUE(math.linsolve_f(eq(vhExpression(x), "==", vhExpression(x)), x).isNull());
}

TEST(LinearEquations, SymbolicCoefficientOfOneUnknown)
{
    vhMath math;
    const vhValue x = sym("x"), a = sym("a"), b = sym("b");
    // a x == b gives the quotient b / a, which times a is b again.
    const vhValue r = math.linsolve_f(eq(a * x, "==", b), x);
    ASSERT_FALSE(r.isNull());
    EXPECT_TRUE(r.isSymbolic());
    EXPECT_TRUE(r * a == b) << r.toString();
    // a x + 2 == b + 5
    const vhValue s = math.linsolve_f(eq(a * x + vhInteger(2), "==", vhExpression(b) + vhInteger(5)), x);
    ASSERT_FALSE(s.isNull());
    EXPECT_TRUE(s.isSymbolic());
}

TEST(LinearEquations, UnknownsOnBothSidesAndConstantsOnTheLeft)
{
    vhMath math;
    const vhValue x = sym("x"), y = sym("y");
    // 2 x + 3 == y + 7 and x - y == 1: x = 3, y = 2.
    const vhValue equations = column({eq(x * vhInteger(2) + vhInteger(3), "==", vhExpression(y) + vhInteger(7)),
                                      eq(vhExpression(x) - y, "==", vhInteger(1))});
    const vhValue unknowns = column({x, y});
    const vhValue A = math.linSysMatrix_f(equations, unknowns);
    ASSERT_TRUE(A.isMatrix());
    EXPECT_EQ(A.value(0, 0).toDouble(), 2.0);
    EXPECT_EQ(A.value(0, 1).toDouble(), -1.0);
    EXPECT_EQ(A.value(1, 0).toDouble(), 1.0);
    EXPECT_EQ(A.value(1, 1).toDouble(), -1.0);
    const vhValue b = math.linSysTerms_f(equations, unknowns);
    ASSERT_TRUE(b.isVector());
    EXPECT_EQ(b.value(0).toDouble(), 4.0);
    EXPECT_EQ(b.value(1).toDouble(), 1.0);
    const vhValue split = math.linSysSplit_f(equations, unknowns);
    ASSERT_TRUE(split.isVector());
    ASSERT_EQ(split.vectorSize(), 2u);
    EXPECT_TRUE(split.isRowVector());
    EXPECT_TRUE(split.value(0).isMatrix());
    EXPECT_TRUE(split.value(1).isVector());

    const vhValue s = math.linsolvesys_f(equations, unknowns);
    ASSERT_TRUE(s.isVector());
    EXPECT_DOUBLE_EQ(s.value(0).toDouble(), 3.0);
    EXPECT_DOUBLE_EQ(s.value(1).toDouble(), 2.0);
    // The order of the solutions is the order of the symbols.
    const vhValue swapped = math.linsolvesys_f(equations, column({y, x}));
    EXPECT_DOUBLE_EQ(swapped.value(0).toDouble(), 2.0);
    EXPECT_DOUBLE_EQ(swapped.value(1).toDouble(), 3.0);
}

TEST(LinearEquations, RandomWellConditionedSystems)
{
    vhMath math;
    std::mt19937 gen(3);
    std::uniform_int_distribution<int> coefficient(-9, 9);
    for (unsigned n = 1; n <= 4; ++n)
        for (int trial = 0; trial < 4; ++trial) {
            std::vector<vhValue> unknowns;
            for (unsigned j = 0; j < n; ++j)
                unknowns.push_back(sym("x" + std::to_string(j)));
            // Diagonally dominant integer matrices are far from singular.
            std::vector<std::vector<double>> a(n, std::vector<double>(n));
            std::vector<double> b(n);
            std::vector<vhValue> equations;
            for (unsigned i = 0; i < n; ++i) {
                vhValue left = vhExpression(vhInteger(0));
                for (unsigned j = 0; j < n; ++j) {
                    a[i][j] = coefficient(gen) + (i == j ? 40.0 : 0.0);
                    if (a[i][j] != 0.0)
                        left += unknowns[j] * vhDouble(a[i][j]);
                }
                b[i] = coefficient(gen) * 1.25;
                equations.push_back(eq(left, "==", vhDouble(b[i])));
            }
            SCOPED_TRACE(n);
            const vhValue x = math.linsolvesys_f(column(equations), column(unknowns));
            ASSERT_FALSE(x.isNull());
            std::vector<double> xs(n);
            for (unsigned j = 0; j < n; ++j)
                xs[j] = n == 1 ? x.toDouble() : x.value(j).toDouble();
            double normB = 0.0, residual = 0.0;
            for (unsigned i = 0; i < n; ++i) {
                double r = -b[i];
                for (unsigned j = 0; j < n; ++j)
                    r += a[i][j] * xs[j];
                residual += r * r;
                normB += b[i] * b[i];
            }
            EXPECT_LE(std::sqrt(residual), 1e-12 * std::sqrt(normB) + 1e-300);
        }
}

TEST(LinearEquations, MalformedSystemsHaveNoAnswer)
{
    vhMath math;
    const vhValue x = sym("x"), y = sym("y");
    const vhValue one = eq(vhExpression(x), "==", vhInteger(1));
    const vhValue two = eq(vhExpression(x), "==", vhInteger(2));
    // Singular: x == 1 and x == 2 say nothing about y.
    EXPECT_TRUE(math.linsolvesys_f(column({one, two}), column({x, y})).isNull());
    // A relation other than "==".
    EXPECT_TRUE(math.linsolve_f(eq(vhExpression(x), "<", vhInteger(1)), x).isNull());
    EXPECT_TRUE(math.linsolve_f(eq(vhExpression(x), "=", vhInteger(1)), x).isNull());
    // A repeated unknown.
    const vhValue xy = eq(vhExpression(x) + y, "==", vhInteger(3));
    EXPECT_TRUE(math.linsolvesys_f(column({one, xy}), column({x, x})).isNull());
    EXPECT_TRUE(math.linSysMatrix_f(column({one, xy}), column({x, x})).isNull());
    // Counts that differ, unknowns that are no symbols, entries that are no
    // equations, and arguments that are no vectors.
    EXPECT_TRUE(math.linsolvesys_f(column({one, xy}), column({x})).isNull());
    EXPECT_TRUE(math.linsolvesys_f(column({one}), column({vhInteger(1)})).isNull());
    EXPECT_TRUE(math.linsolvesys_f(column({one}), column({vhSymbolicValue("x", true, {})})).isNull());
    EXPECT_TRUE(math.linsolvesys_f(column({vhExpression(x)}), column({x})).isNull());
    EXPECT_TRUE(math.linsolvesys_f(one, x).isNull());
    EXPECT_TRUE(math.linSysTerms_f(vhVector(), vhVector()).isNull());
    EXPECT_TRUE(math.linsolve_f(one, vhInteger(2)).isNull());
    EXPECT_TRUE(math.linsolve_f(vhInteger(2), x).isNull());
    EXPECT_TRUE(math.linsolve_f(vhValue(), x).isNull());
    EXPECT_TRUE(math.linsolve_f(one, vhValue()).isNull());
    // Through the catalogue's door.
    EXPECT_EQ(callFunction(&math, nt_linsolve, {one, x}).toDouble(), 1.0);
    EXPECT_TRUE(callFunction(&math, nt_linSysSplit, {vhValue(), vhValue()}).isNull());
}
