// Exponentials, logarithms, powers and roots: the exact whole powers, the
// snap of fractional powers, the refusals at 0, the moves to the complex
// plane, the symbolic forms, and the free twins for the value classes.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/math.h"
#include "functions/elementary.h"

using namespace VarnholtMath::ValueTypes;

namespace {
const double kPi = 3.141592653589793;
const double kInf = std::numeric_limits<double>::infinity();
vhValue d(double v) { return vhDouble(v); }
vhValue symbol(const char* name) { return vhSymbolicValue(name, false, {}); }
} // namespace

TEST(ElementwiseExpLog, ExponentialsAndTheirSymbolicForms)
{
    vhMath m;
    EXPECT_EQ(std::exp(1.5), m.exp_f(d(1.5)).toDouble());
    const vhValue c = m.exp_f(vhComplex(0.0, kPi / 2));
    ASSERT_TRUE(c.isComplex());
    EXPECT_NEAR(1.0, c.complexIm(), 1e-16);
    EXPECT_TRUE(m.exp_f(vhComplex(1.0, 0.0)).isComplex()) << "always complex";
    // exp of a symbol is a power of e, exp2 a power of 2; expm1 is held.
    const vhValue e = m.exp_f(symbol("x"));
    ASSERT_EQ(tagSymbolicFunction, e.valueType());
    EXPECT_EQ(nt_pow, e.functionID());
    ASSERT_EQ(2u, e.functionArguments().size());
    EXPECT_EQ(2.718281828459045, e.functionArguments()[0].toDouble());
    const vhValue e2 = m.exp2_f(symbol("x"));
    EXPECT_EQ(nt_pow, e2.functionID());
    EXPECT_EQ(tagInteger, e2.functionArguments()[0].valueType());
    EXPECT_EQ(nt_expm1, m.expm1_f(symbol("x")).functionID());
    EXPECT_EQ(8.0, m.exp2_f(vhInteger(3)).toDouble());
    const vhValue c2 = m.exp2_f(vhComplex(1.0, 1.0));
    EXPECT_NEAR(2.0 * std::cos(std::log(2.0)), c2.complexRe(), 1e-15);
    // expm1 subtracts plainly: no digits are recovered near 0.
    EXPECT_EQ(std::exp(1e-10) - 1.0, m.expm1_f(d(1e-10)).toDouble());
    EXPECT_EQ(-1.0, m.expm1_f(d(-kInf)).toDouble());
}

TEST(ElementwiseExpLog, LogarithmsRefuseZeroAndMoveNegativesToTheComplexPlane)
{
    vhMath m;
    EXPECT_TRUE(m.log_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.log10_f(d(0.0)).isNull());
    EXPECT_TRUE(m.log_f(vhComplex(0.0, 0.0)).isNull());
    const vhValue l = m.log_f(vhInteger(-1));
    ASSERT_TRUE(l.isComplex());
    EXPECT_EQ(0.0, l.complexRe());
    EXPECT_EQ(kPi, l.complexIm());
    EXPECT_EQ(2.0, m.log10_f(vhInteger(100)).toDouble());
    EXPECT_EQ(10.0, m.log2_f(vhInteger(1024)).toDouble());
    EXPECT_NEAR(kPi / std::log(10.0), m.log10_f(vhInteger(-1)).complexIm(), 1e-15);
    // The complex logarithm neither overflows nor underflows.
    const vhValue big = m.log_f(vhComplex(1e300, 1e300));
    EXPECT_NEAR(std::log(1e300) + 0.5 * std::log(2.0), big.complexRe(), 1e-12);
    const vhValue small = m.log_f(vhComplex(1e-300, -1e-300));
    EXPECT_NEAR(-kPi / 4, small.complexIm(), 1e-15);
    // log1p: below -1 complex; -1 itself is -inf.
    EXPECT_TRUE(m.log1p_f(d(-2.0)).isComplex());
    EXPECT_EQ(-kInf, m.log1p_f(vhInteger(-1)).toDouble());
    // logb: the binary exponent, -inf at 0; by number it runs into logax and
    // ends undefined.
    EXPECT_EQ(3.0, m.logb_f(vhInteger(10)).toDouble());
    EXPECT_EQ(-kInf, m.logb_f(vhInteger(0)).toDouble());
    EXPECT_TRUE(m.logb_f(vhComplex(1, 1)).isNull());
    EXPECT_TRUE(callFunction(&m, nt_logb, {vhInteger(10)}).isNull());
    // logax: base first; bases 0 and 1 refused; negatives complex.
    EXPECT_NEAR(3.0, m.logax_f(vhInteger(2), vhInteger(8)).toDouble(), 1e-15);
    EXPECT_NEAR(3.0, callFunction(&m, nt_logax, {vhInteger(2), vhInteger(8)}).toDouble(), 1e-15);
    EXPECT_TRUE(m.logax_f(vhInteger(1), vhInteger(8)).isNull());
    EXPECT_TRUE(m.logax_f(vhInteger(0), vhInteger(8)).isNull());
    EXPECT_TRUE(m.logax_f(vhInteger(2), vhInteger(-8)).isComplex());
    EXPECT_EQ(nt_logax, m.logax_f(vhInteger(2), symbol("x")).functionID());
    EXPECT_EQ(nt_log, m.log_f(symbol("x")).functionID());
}

TEST(ElementwisePower, ScalarRules)
{
    vhMath m;
    EXPECT_TRUE(m.pow_f(vhInteger(0), vhInteger(0)).isNull());
    EXPECT_TRUE(m.pow_f(vhInteger(0), vhInteger(-1)).isNull());
    m.setLimitsRulesOn(true);
    EXPECT_EQ(kInf, m.pow_f(vhInteger(0), vhInteger(-1)).toDouble());
    m.setLimitsRulesOn(false);
    // The free twin never reads the rules of limits.
    setLimitsRulesOnPublic(true);
    EXPECT_TRUE(pow_f(vhInteger(0), vhInteger(-1)).isNull());
    setLimitsRulesOnPublic(false);
    // Whole exponents multiply exactly; the exponent 0 gives the integer 1.
    EXPECT_EQ(8.0, m.pow_f(vhInteger(2), vhInteger(3)).toDouble());
    EXPECT_EQ(0.5, m.pow_f(vhInteger(2), vhInteger(-1)).toDouble());
    EXPECT_EQ(tagInteger, m.pow_f(d(7.5), vhInteger(0)).valueType());
    EXPECT_TRUE(m.pow_f(d(kInf), vhInteger(0)).isNull());
    EXPECT_EQ(-kInf, m.pow_f(d(-10.0), vhInteger(1001)).toDouble());
    EXPECT_EQ(-1.0, m.pow_f(vhInteger(-1), d(2147483647.0)).toDouble());
    EXPECT_EQ(0.0, m.pow_f(d(0.5), d(2147483647.0)).toDouble());
    // The product is taken step by step, not by a library pow.
    double p = 1.0;
    for (int i = 0; i < 7; ++i)
        p *= 1.1;
    EXPECT_EQ(p, m.pow_f(d(1.1), vhInteger(7)).toDouble());
    // Powers of i come round exactly.
    const vhValue i4 = m.pow_f(vhComplex(0.0, 1.0), d(2000000001.0));
    ASSERT_TRUE(i4.isComplex());
    EXPECT_EQ(0.0, i4.complexRe());
    EXPECT_EQ(1.0, i4.complexIm());
    const vhValue inv = m.pow_f(vhComplex(0.0, 2.0), vhInteger(-2));
    EXPECT_EQ(-0.25, inv.complexRe());
    // Fractional powers: exp(y log x), snapped up when just below a whole
    // number; complex for a negative base.
    EXPECT_EQ(2.0, m.pow_f(vhInteger(8), d(1.0 / 3.0)).toDouble());
    EXPECT_EQ(5.0, m.pow_f(vhInteger(25), d(0.5)).toDouble());
    EXPECT_TRUE(m.pow_f(vhInteger(-8), d(0.5)).isComplex());
    const vhValue cube = m.pow_f(vhInteger(-8), d(1.0 / 3.0));
    EXPECT_NEAR(1.0, cube.complexRe(), 1e-15);
    EXPECT_NEAR(std::sqrt(3.0), cube.complexIm(), 1e-15);
    // Complex exponents.
    EXPECT_TRUE(m.pow_f(vhInteger(0), vhComplex(0.0, 1.0)).isNull());
    EXPECT_EQ(0.0, m.pow_f(vhInteger(0), vhComplex(1.0, 1.0)).toDouble());
    EXPECT_TRUE(m.pow_f(d(kInf), vhComplex(1.0, 1.0)).isNull());
    const vhValue ii = m.pow_f(vhComplex(0.0, 1.0), vhComplex(0.0, 1.0));
    EXPECT_NEAR(std::exp(-kPi / 2), ii.complexRe(), 1e-16);
    // Bad operands.
    EXPECT_TRUE(m.pow_f(d(std::nan("")), vhInteger(2)).isNull());
    EXPECT_TRUE(m.pow_f(vhSymbolicValue("text", true, {}), vhInteger(2)).isNull());
    EXPECT_TRUE(m.pow_f(vhInteger(2), vhSymbolicValue("text", true, {})).isNull());
}

TEST(ElementwisePower, ArraysAndSymbols)
{
    vhMath m;
    double a[] = {1.0, 2.0, 3.0, 4.0};
    // Elementwise: a matrix squared is the matrix of squares.
    const vhValue sq = m.pow_f(vhMatrix(a, 2, 2), vhInteger(2));
    EXPECT_EQ(tagMatrix, sq.valueType());
    EXPECT_EQ(4.0, sq.numericValues()[1]);
    EXPECT_TRUE(m.pow_f(vhVector(a, 4, false), vhVector(a, 4, false)).isNull());
    // A number to a vector of exponents: a vector of the exponents' shape.
    const vhValue powers = m.pow_f(vhInteger(2), vhVector(a, 4, true));
    EXPECT_TRUE(powers.isRowVector());
    EXPECT_EQ(16.0, powers.numericValues()[3]);
    // Symbolic exponents: 0 and infinity answer at once, others are held.
    const vhValue x = symbol("x");
    EXPECT_EQ(kInf, m.pow_f(vhInteger(0), vhExpression(x) * vhInteger(-1)).toDouble());
    EXPECT_EQ(0.0, m.pow_f(d(kInf), vhExpression(x) * vhInteger(-1)).toDouble());
    const vhValue held = m.pow_f(vhInteger(3), x);
    EXPECT_EQ(nt_pow, held.functionID());
    EXPECT_EQ(1.0, m.pow_f(d(1.0), x).toDouble());
    EXPECT_TRUE(m.pow_f(vhUnit(), x).isNull());
    // A symbolic base: exponent 0 is 1 and 1 is the base itself.
    EXPECT_EQ(tagInteger, m.pow_f(x, vhInteger(0)).valueType());
    EXPECT_EQ(x.toString(), m.pow_f(x, vhInteger(1)).toString());
    // A numeric exponent walks the factors: x^2 is x with exponent 2, and the
    // square root of x^2 is abs(x).
    const vhValue x2 = m.pow_f(x, vhInteger(2));
    ASSERT_EQ(tagSymbolicValue, x2.valueType());
    EXPECT_EQ(2.0, x2.exp());
    EXPECT_EQ(nt_abs, m.sqrt_f(x2).functionID());
    EXPECT_EQ(1, m.sgn_f(x2).toInt());
    // A held call with an exponent is raised when it is evaluated.
    vhValue held2 = vhSymbolicFunction(nt_sin, {d(0.5)});
    held2.setExponent(vhInteger(2));
    EXPECT_NEAR(std::sin(0.5) * std::sin(0.5), vhSymbolicFunction(held2).calculateFromSymbolic(&m).toDouble(),
                1e-16);
    // Free twins: the same rules, no calculation object.
    EXPECT_EQ(8.0, pow_f(vhInteger(2), vhInteger(3)).toDouble());
    EXPECT_EQ(2.0, root_f(vhInteger(8), vhInteger(3)).toDouble());
    // A result just above a whole number is not snapped back.
    EXPECT_EQ(std::exp(0.5 * std::log(9.0)), sqrt_f(vhInteger(9)).toDouble());
    EXPECT_GT(sqrt_f(vhInteger(9)).toDouble(), 3.0);
    EXPECT_EQ(kPi, log_f(vhInteger(-1)).complexIm());
    EXPECT_EQ(std::exp(2.0), exp_f(vhInteger(2)).toDouble());
    EXPECT_EQ(5.0, abs_f(vhComplex(3.0, 4.0)).toDouble());
    EXPECT_EQ(nt_fabs, fabs_f(x).functionID());
    EXPECT_EQ(-1.0, sgn_f(d(-0.1)).toDouble());
}

TEST(ElementwiseRoot, RealAndComplexRoots)
{
    vhMath m;
    const vhValue s = m.sqrt_f(vhInteger(-4));
    ASSERT_TRUE(s.isComplex());
    EXPECT_EQ(0.0, s.complexRe());
    EXPECT_EQ(2.0, s.complexIm());
    EXPECT_EQ(2.0, m.sqrt_f(vhInteger(4)).toDouble());
    EXPECT_EQ(-2.0, m.root_f(vhInteger(-8), vhInteger(3)).toDouble());
    EXPECT_TRUE(m.root_f(vhInteger(-8), vhInteger(2)).isComplex());
    EXPECT_TRUE(m.root_f(vhInteger(0), vhInteger(-2)).isNull());
    EXPECT_TRUE(m.root_f(vhInteger(5), vhInteger(0)).isNull());
    EXPECT_EQ(-3.0, m.cbrt_f(vhInteger(-27)).toDouble());
    const vhValue r = m.root_f(vhInteger(-4), vhInteger(-2));
    EXPECT_EQ(0.0, r.complexRe());
    EXPECT_EQ(-0.5, r.complexIm());
    // A fractional order is a fractional power.
    EXPECT_EQ(m.pow_f(vhInteger(5), d(1.0 / 2.5)).toDouble(), m.root_f(vhInteger(5), d(2.5)).toDouble());
    // A complex radicand: the principal root.
    const vhValue c = m.sqrt_f(vhComplex(0.0, 2.0));
    EXPECT_NEAR(1.0, c.complexRe(), 1e-15);
    EXPECT_NEAR(1.0, c.complexIm(), 1e-15);
    EXPECT_TRUE(m.root_f(vhInteger(4), vhComplex(2.0, 0.0)).isNull());
    double v[] = {4.0, 9.0};
    EXPECT_TRUE(m.root_f(vhInteger(4), vhVector(v, 2, false)).isNull());
    // Symbolic radicands become powers; a symbolic order a power 1/n.
    EXPECT_TRUE(m.root_f(symbol("x"), vhInteger(0)).isNull());
    EXPECT_EQ(symbol("x").toString(), m.root_f(symbol("x"), vhInteger(1)).toString());
    EXPECT_EQ(nt_pow, m.sqrt_f(vhInteger(3) * 0 + vhExpression(symbol("x")) + vhInteger(1)).functionID());
    EXPECT_EQ(nt_pow, m.root_f(vhInteger(3), symbol("n")).functionID());
}
