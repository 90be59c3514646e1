// Systems whose coefficients are symbols: the solution, put back into the
// equations with numbers for every symbol, satisfies them.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "frame/math.h"
#include "linalg/linalg_test_support.h"

using namespace VarnholtMath::ValueTypes;
using linalg_tests::evaluate;

namespace {

vhValue sym(const std::string& s) { return vhSymbolicValue(s, false, {}); }
vhValue column(const std::vector<vhValue>& items) { return vhVector(items, false); }

typedef std::map<std::string, std::complex<double>> Point;

// Solves the system, then checks each equation at the given values of the
// parameters with the solution's values for the unknowns.
void expectSolves(const std::vector<vhValue>& equations, const std::vector<vhValue>& unknowns,
                  const std::vector<Point>& points)
{
    vhMath math;
    const vhValue x = math.linsolvesys_f(column(equations), column(unknowns));
    ASSERT_FALSE(x.isNull());
    ASSERT_EQ(x.vectorSize(), unknowns.size());
    for (Point at : points) {
        for (unsigned j = 0; j < unknowns.size(); ++j)
            at[unknowns[j].toString()] = evaluate(x.value(j), at);
        for (const vhValue& e : equations) {
            const std::complex<double> left = evaluate(e.leftExpression(), at);
            const std::complex<double> right = evaluate(e.rightExpression(), at);
            EXPECT_LE(std::abs(left - right), 1e-12 * (1.0 + std::abs(right))) << e.toString();
        }
    }
}

} // namespace

TEST(LinearEquationsSymbolic, TwoUnknownsWithSymbolicCoefficients)
{
    const vhValue x = sym("x"), y = sym("y"), a = sym("a"), b = sym("b");
    // a x + y == 1, x - y == b
    expectSolves({vhEquation(a * x + y, "==", vhInteger(1)), vhEquation(vhExpression(x) - y, "==", b)}, {x, y},
                 {{{"a", 2.0}, {"b", 3.0}}, {{"a", -0.5}, {"b", 1.25}}});
    // a x + b y == 1, b x + a y == 0
    expectSolves({vhEquation(a * x + b * y, "==", vhInteger(1)), vhEquation(b * x + a * y, "==", vhInteger(0))},
                 {x, y}, {{{"a", 2.0}, {"b", 3.0}}, {{"a", 5.0}, {"b", -1.0}}});
}

TEST(LinearEquationsSymbolic, NumericCoefficientsSymbolicRightSides)
{
    const vhValue x = sym("x"), y = sym("y"), z = sym("z"), p = sym("p"), q = sym("q");
    // x + y + z == p, 2 x - y == q, y + 3 z == 1 + p
    expectSolves({vhEquation(vhExpression(x) + y + z, "==", p),
                  vhEquation(x * vhInteger(2) - y, "==", q),
                  vhEquation(vhExpression(y) + z * vhInteger(3), "==", vhExpression(p) + vhInteger(1))},
                 {x, y, z}, {{{"p", 1.0}, {"q", 2.0}}, {{"p", -4.0}, {"q", 0.5}}});
}

TEST(LinearEquationsSymbolic, ThreeUnknownsWithASymbolicCoefficientInEveryRow)
{
    const vhValue x = sym("x"), y = sym("y"), z = sym("z"), k = sym("k");
    expectSolves({vhEquation(k * x + y, "==", vhInteger(1)), vhEquation(vhExpression(x) + k * y + z, "==", vhInteger(2)),
                  vhEquation(y + k * z, "==", vhInteger(3))},
                 {x, y, z}, {{{"k", 3.0}}, {{"k", -2.5}}});
}
