// Held functions: the argument-count check, classification, comparison, and
// the identities of their arithmetic with the trigonometric rules on and off.

#include <gtest/gtest.h>

#include <limits>

#include "frame/node_type.h"
#include "frame/switches.h"
#include "symbolic/symbolic_test_support.h"
#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

using symbolic_tests::sym;

namespace {

vhValue fn(int id, const vhValue& a) { return vhSymbolicFunction(id, {a}); }
vhValue power(const vhValue& base, const vhValue& e) { return vhSymbolicFunction(nt_pow, {base, e}); }
double coefficient(const vhValue& v) { return v.firstMultiplier() ? v.firstMultiplier()->toDouble() : NAN; }

// A held function of the given id and first argument, with coefficient c.
::testing::AssertionResult isCall(const vhValue& v, int id, const vhValue& argument, double c)
{
    if (v.valueType() != tagSymbolicFunction || v.functionID() != id)
        return ::testing::AssertionFailure() << "not a call of " << id << ": " << v.typeName();
    if (v.functionArguments().empty() || v.functionArguments()[0] != argument)
        return ::testing::AssertionFailure() << "argument differs: " << v.functionArguments()[0].toStringAll();
    if (coefficient(v) != c)
        return ::testing::AssertionFailure() << "coefficient " << coefficient(v);
    return ::testing::AssertionSuccess();
}

class TrigonometricRules : public ::testing::Test {
protected:
    void TearDown() override { setTrigonometricRulesOnPublic(true); }
    const vhValue x = sym("x"), y = sym("y"), a = sym("a"), b = sym("b");
    const vhValue sin2 = fn(nt_sin, x) * fn(nt_sin, x);
    const vhValue cos2 = fn(nt_cos, x) * fn(nt_cos, x);
};

} // namespace

TEST(SymbolicFunctions, WrongArgumentCountThrowsAfterMessage)
{
    testing::internal::CaptureStdout();
    EXPECT_THROW(vhSymbolicFunction(nt_sin, {sym("x"), sym("y")}), std::exception);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Error: number of arguments in function 70 is not aqual with numer in numberOffunctionArguments()\n");
    EXPECT_NO_THROW(vhSymbolicFunction(nt_pow, {sym("x"), vhInteger(2)}));
}

TEST(SymbolicFunctions, ClassificationAndComparison)
{
    const vhValue x = sym("x");
    EXPECT_TRUE(power(x, vhInteger(2)).isDerivativeFunction());
    EXPECT_FALSE(vhSymbolicFunction(nt_pow22, {x, vhInteger(2)}).isDerivativeFunction());
    EXPECT_TRUE(fn(nt_acsch, x).isDerivativeFunction());
    EXPECT_FALSE(fn(nt_log1p, x).isIntegrativeFunction());
    EXPECT_TRUE(fn(nt_asinh, x).isIntegrativeFunction());
    EXPECT_FALSE(vhSymbolicFunction().isIntegrativeFunction());

    EXPECT_TRUE(fn(nt_sin, vhVector(11, false, true, false)).functionOversized());
    EXPECT_FALSE(fn(nt_sin, vhVector(10, false, true, false)).functionOversized());

    const vhValue s = fn(nt_sin, x);
    EXPECT_TRUE((s * 2).functionEqual(s * s));
    EXPECT_FALSE(s.functionEqual(fn(nt_cos, x)));
    EXPECT_TRUE(s.functionArgumentsEqual(fn(nt_cos, x)));
    EXPECT_FALSE(s.functionArgumentsEqual(fn(nt_sin, x * 2)));
    EXPECT_TRUE((s * 2).stringEqual(s * 3));
    EXPECT_FALSE(s.stringEqual(s * s));
    EXPECT_TRUE(s * 2 == vhInteger(2) * s);
    EXPECT_FALSE(s * 2 == s * 3);
    EXPECT_FALSE(s == x);
    EXPECT_FALSE(x == s);
    EXPECT_TRUE(s * x == x * s);
    EXPECT_TRUE(s.symbolicEqual(s * s * 4));
    EXPECT_FALSE(s.symbolicEqual(fn(nt_sin, sym("y"))));
}

TEST_F(TrigonometricRules, SquaresOfSineAndCosine)
{
    const vhValue one = sin2 + cos2;
    EXPECT_TRUE(one.isDouble());
    EXPECT_EQ(one.toDouble(), 1.0);
    EXPECT_EQ((cos2 + sin2).toDouble(), 1.0);
    EXPECT_EQ((sin2 * -1 - cos2).toDouble(), -1.0);

    const vhValue twoX = x * 2;
    EXPECT_TRUE(isCall(sin2 - cos2, nt_cos, twoX, -1.0));
    EXPECT_TRUE(isCall(cos2 - sin2, nt_cos, twoX, 1.0));

    // Only coefficients 1 and -1, equal arguments and squares qualify.
    EXPECT_EQ((sin2 * 2 + cos2 * 2).expressionValuesSize(), 2u);
    EXPECT_EQ((sin2 + fn(nt_cos, y) * fn(nt_cos, y)).expressionValuesSize(), 2u);
    EXPECT_EQ((sin2 + fn(nt_cos, x)).expressionValuesSize(), 2u);

    // The number that two functions became joins another term.
    const vhValue folded = sin2 + y + cos2;
    ASSERT_EQ(folded.valueType(), tagExpression);
    ASSERT_EQ(folded.expressionValuesSize(), 2u);
    EXPECT_EQ(folded.expressionValues()[0], y);
    EXPECT_EQ(folded.expressionValues()[1].toDouble(), 1.0);
    EXPECT_EQ((sin2 + 5 + cos2).toDouble(), 6.0);

    setTrigonometricRulesOnPublic(false);
    EXPECT_EQ((sin2 + cos2).expressionValuesSize(), 2u);
    EXPECT_EQ((sin2 - sin2).isZero(), true);
}

TEST_F(TrigonometricRules, Logarithms)
{
    const vhValue la = fn(nt_log, a), lb = fn(nt_log, b);
    EXPECT_TRUE(isCall(la + lb, nt_log, a * b, 1.0));
    EXPECT_TRUE(isCall(la - lb, nt_log, a / b, 1.0));
    EXPECT_TRUE(isCall(la * -1 + lb, nt_log, b / a, 1.0));
    EXPECT_TRUE(isCall(la * -1 - lb, nt_log, a * b, -1.0));
    EXPECT_TRUE(isCall(fn(nt_log2, a) + fn(nt_log2, b), nt_log2, a * b, 1.0));
    // Equal arguments take the coefficient rule instead.
    EXPECT_TRUE(isCall(la + la, nt_log, a, 2.0));
    EXPECT_TRUE((la - la).isZero());
    // Different bases take no rule.
    EXPECT_EQ((la + fn(nt_log10, b)).expressionValuesSize(), 2u);
    EXPECT_EQ((la * 3 + lb).expressionValuesSize(), 2u);

    setTrigonometricRulesOnPublic(false);
    EXPECT_EQ((la + lb).expressionValuesSize(), 2u);
}

TEST_F(TrigonometricRules, ProductsAndQuotients)
{
    const vhValue s = fn(nt_sin, x), c = fn(nt_cos, x);
    EXPECT_TRUE(isCall(s * c, nt_sin, x * 2, 0.5));
    EXPECT_TRUE(isCall((c * -1) * s, nt_sin, x * 2, -0.5));
    EXPECT_EQ((fn(nt_tan, x) * fn(nt_cot, x)).toDouble(), 1.0);
    // Different arguments keep both factors.
    std::vector<vhValue> factors;
    EXPECT_EQ((s * fn(nt_cos, y)).multipliers(factors), 3u);

    EXPECT_TRUE(isCall(fn(nt_sin, x * 2) / s, nt_cos, x, 2.0));
    EXPECT_TRUE(isCall(fn(nt_sin, x * 2) / c, nt_sin, x, 2.0));
    EXPECT_EQ((s / s).toDouble(), 1.0);
    EXPECT_EQ(coefficient(s / 4), 0.25);
    EXPECT_TRUE((s / 0).isNull());
    EXPECT_EQ((s * s).exp(), 2.0);
    EXPECT_EQ((s * s / s), s);

    setTrigonometricRulesOnPublic(false);
    EXPECT_EQ((s * c).multipliers(factors), 6u);
    EXPECT_EQ((fn(nt_sin, x * 2) / s).valueType(), tagSymbolicFunction);
    EXPECT_EQ((fn(nt_sin, x * 2) / s).functionID(), nt_sin);
}

TEST(SymbolicFunctions, PowersMerge)
{
    const vhValue x = sym("x"), y = sym("y");
    const vhValue p5 = power(x, vhInteger(2)) * power(x, vhInteger(3));
    ASSERT_EQ(p5.functionID(), nt_pow);
    EXPECT_EQ(p5.functionArguments()[1].toInt(), 5);
    EXPECT_EQ(p5.exp(), 5.0);
    // Back at the first power a power is its base.
    EXPECT_EQ(power(x, vhInteger(2)) * power(x, vhInteger(-1)), x);
    EXPECT_EQ((power(x, vhInteger(2)) * power(x, vhInteger(-2))).toDouble(), 1.0);

    const vhValue six = power(vhInteger(2), x) * power(vhInteger(3), x);
    ASSERT_EQ(six.functionID(), nt_pow);
    EXPECT_EQ(six.functionArguments()[0].toDouble(), 6.0);
    EXPECT_EQ(six.functionArguments()[1], x);

    const vhValue ratio = power(vhInteger(2), x) * power(vhInteger(3), x * -1);
    ASSERT_EQ(ratio.functionID(), nt_pow);
    EXPECT_EQ(ratio.functionArguments()[0].toDouble(), 2.0 / 3.0);
    EXPECT_EQ(ratio.functionArguments()[1], x);
    const vhValue ratio2 = power(vhInteger(2), x * -1) * power(vhInteger(3), x);
    EXPECT_EQ(ratio2.functionArguments()[0].toDouble(), 1.5);
    EXPECT_EQ(ratio2.functionArguments()[1], x);

    // 2^x * 2 = 2^(x+1)
    const vhValue shifted = power(vhInteger(2), x) * 2;
    ASSERT_EQ(shifted.functionID(), nt_pow);
    EXPECT_EQ(shifted.functionArguments()[0].toInt(), 2);
    EXPECT_EQ(shifted.functionArguments()[1], x + 1);
    EXPECT_EQ(coefficient(power(vhInteger(2), x) * 3), 3.0);

    // 1/x times 2 folds into the base.
    const vhValue folded = power(x, vhInteger(-1)) * 2;
    ASSERT_EQ(folded.functionID(), nt_pow);
    EXPECT_EQ(folded.functionArguments()[0], x * 0.5);
    EXPECT_EQ(folded.functionArguments()[1].toInt(), -1);

    // Different symbolic bases stay apart.
    std::vector<vhValue> factors;
    EXPECT_EQ((power(x, y) * power(y, y)).multipliers(factors), 3u);

    vhValue inverted = power(x, vhInteger(3)) * 2;
    inverted.invertExponent();
    EXPECT_EQ(inverted.functionArguments()[1].toInt(), -3);
    EXPECT_EQ(coefficient(inverted), 0.5);

    vhValue reset = power(x * 3, vhInteger(4)) * 2;
    reset.resetExponent();
    EXPECT_EQ(reset, x * 6);

    std::vector<vhValue> spread;
    EXPECT_EQ((power(x * y, vhInteger(3)) * 5).powmultipliers(spread), 4u);
    EXPECT_EQ(spread[0].toDouble(), 5.0);
}

TEST(SymbolicFunctions, UndefinedAndForeignOperands)
{
    const vhValue s = fn(nt_sin, sym("x"));
    const vhValue inf = vhDouble(std::numeric_limits<double>::infinity());
    EXPECT_EQ((s * 3 * inf).toDouble(), std::numeric_limits<double>::infinity());
    const vhValue zero = s * 0;
    EXPECT_EQ(zero.valueType(), tagInteger);
    EXPECT_EQ(s + 0, s);

    const vhValue text = vhSymbolicValue("t", true, {});
    EXPECT_TRUE((s * text).isNull());
    EXPECT_TRUE((s / text).isNull());
    EXPECT_EQ((s + text).expressionValuesSize(), 2u);
    for (const vhValue& bad : {vhValue(), vhValue(vhDouble(std::nan(""))), vhValue(vhObject("Thing", nullptr))}) {
        EXPECT_TRUE((s + bad).isNull());
        EXPECT_TRUE((s - bad).isNull());
        EXPECT_TRUE((s * bad).isNull());
        EXPECT_TRUE((s / bad).isNull());
        EXPECT_FALSE(s == bad);
    }
    const vhSymbolicFunction empty;
    EXPECT_TRUE((empty * 2).isNull());
    EXPECT_TRUE((s * empty).isNull());
    EXPECT_TRUE((empty + s).isNull());
    // A power record without two arguments stays unchanged by setExponent.
    vhValue broken = empty;
    broken.setExponent(vhInteger(2));
    EXPECT_TRUE(broken.isNull());
}
