// Absolute value, sign, rounding, remainders, factorials and the small
// functions of the calculator; and that callFunction reaches each member.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/math.h"
#include "function_tables.h"

using namespace VarnholtMath::ValueTypes;
using namespace elementwise_tests;

namespace {
const double kInf = std::numeric_limits<double>::infinity();
vhValue d(double v) { return vhDouble(v); }
vhValue symbol(const char* name) { return vhSymbolicValue(name, false, {}); }

int g_events = 0;
vhMath* g_stopper = nullptr;
void countEvents() { ++g_events; }
void stopAtFive()
{
    if (++g_events == 5)
        g_stopper->setStopCalculation(true);
}
} // namespace

TEST(ElementwiseMisc, AbsoluteValueAndSign)
{
    vhMath m;
    EXPECT_EQ(tagInteger, m.abs_f(vhBoolean(true)).valueType());
    EXPECT_EQ(1, m.abs_f(vhBoolean(true)).toInt());
    EXPECT_EQ(tagDouble, m.abs_f(vhInteger(-3)).valueType());
    EXPECT_EQ(5.0, m.abs_f(vhComplex(3.0, -4.0)).toDouble());
    EXPECT_EQ(nt_abs, m.abs_f(symbol("x")).functionID());
    EXPECT_EQ(nt_fabs, m.fabs_f(symbol("x")).functionID());
    EXPECT_EQ(-1.0, m.sgn_f(vhInteger(-7)).toDouble());
    const vhValue z = m.sgn_f(vhComplex(0.0, 0.0));
    ASSERT_TRUE(z.isComplex());
    EXPECT_EQ(0.0, z.complexRe());
    const vhValue u = m.sgn_f(vhComplex(3.0, 4.0));
    EXPECT_NEAR(0.6, u.complexRe(), 1e-16);
    EXPECT_NEAR(0.8, u.complexIm(), 1e-16);
    EXPECT_EQ(nt_sgn, m.sgn_f(symbol("x")).functionID());
    EXPECT_EQ(-1.0, m.sgnIm_f(vhInteger(4)).toDouble());
    EXPECT_EQ(1.0, m.sgnIm_f(vhComplex(-4.0, 0.5)).toDouble());
    EXPECT_EQ(0.0, m.sgnIm_f(vhInteger(0)).toDouble());
    EXPECT_EQ(2.220446049250313e-16, m.epsilon_f().toDouble());
    EXPECT_EQ(kInf, m.infinity_f().toDouble());
    EXPECT_EQ(2.0, m.epsilon_f(vhInteger(-2)).toDouble());
}

TEST(ElementwiseMisc, RoundingAndParts)
{
    vhMath m;
    EXPECT_EQ(3.0, m.round_f(d(2.5)).toDouble());
    EXPECT_EQ(-3.0, m.round_f(d(-2.5)).toDouble());
    EXPECT_EQ(-2.0, m.ceil_f(d(-2.5)).toDouble());
    EXPECT_EQ(-2.0, m.trunc_f(d(-2.7)).toDouble());
    const vhValue c = m.floor_f(vhComplex(1.5, -1.5));
    EXPECT_EQ(1.0, c.complexRe());
    EXPECT_EQ(-2.0, c.complexIm());
    EXPECT_TRUE(m.trunc_f(vhComplex(1.5, 1.5)).isNull());
    EXPECT_EQ(tagInteger, m.conj_f(vhInteger(4)).valueType());
    EXPECT_EQ(-2.0, m.conj_f(vhComplex(1.0, 2.0)).complexIm());
    const vhValue f = m.frexp_f(vhInteger(8));
    ASSERT_EQ(2u, f.vectorSize());
    EXPECT_EQ(0.5, f.value(0).toDouble());
    EXPECT_EQ(tagInteger, f.value(1).valueType());
    EXPECT_EQ(4, f.value(1).toInt());
    EXPECT_TRUE(m.frexp_f(d(kInf)).isNull());
    const vhValue p = m.modf_f(d(-2.25));
    EXPECT_EQ(-0.25, p.value(0).toDouble());
    EXPECT_EQ(-2.0, p.value(1).toDouble());
    EXPECT_TRUE(m.modf_f(d(-kInf)).isNull());
    const vhValue pc = m.modf_f(vhComplex(1.5, -2.75));
    EXPECT_EQ(-0.75, pc.value(0).complexIm());
    EXPECT_EQ(-2.0, pc.value(1).complexIm());
    // A numeric vector of parts becomes a vector of vectors.
    double v[] = {1.5, 2.25};
    const vhValue parts = m.modf_f(vhVector(v, 2, false));
    EXPECT_EQ(nullptr, parts.numericValues());
    EXPECT_EQ(0.25, parts.value(1).value(0).toDouble());
    // Scaling by powers of two, real and complex.
    EXPECT_EQ(12.0, m.ldexp_f(vhInteger(3), vhInteger(2)).toDouble());
    EXPECT_EQ(0.75, m.ldexp_f(vhInteger(3), vhInteger(-2)).toDouble());
    EXPECT_TRUE(m.ldexp_f(vhInteger(3), d(0.5)).isNull());
    EXPECT_EQ(-8.0, m.ldexp_f(vhComplex(1.0, -2.0), vhInteger(2)).complexIm());
    EXPECT_NEAR(12.0, m.scalbn_f(vhInteger(3), vhInteger(2)).toDouble(), 1e-14);
    EXPECT_NEAR(4.0, m.scalbn_f(vhComplex(0.0, 1.0), vhInteger(2)).complexIm(), 1e-14);
}

TEST(ElementwiseMisc, Remainders)
{
    vhMath m;
    EXPECT_TRUE(m.fmod_f(vhInteger(1), vhInteger(0)).isNull());
    EXPECT_TRUE(m.fmod_f(d(kInf), vhInteger(2)).isNull());
    EXPECT_TRUE(m.fmod_f(vhInteger(2), d(kInf)).isNull());
    EXPECT_EQ(1.5, m.fmod_f(d(7.5), vhInteger(2)).toDouble());
    EXPECT_EQ(-1.5, m.fmod_f(d(-7.5), vhInteger(2)).toDouble());
    // A remainder below 1e-15 is rounding noise and becomes 0.
    EXPECT_EQ(0.0, m.fmod_f(d(3.0000000000000004), vhInteger(1)).toDouble());
    EXPECT_EQ(std::fmod(0.3, 0.1), m.fmod_f(d(0.3), d(0.1)).toDouble());
    // mod: the sign of the divisor; 0 as divisor gives x back.
    EXPECT_EQ(5, m.mod_f(vhInteger(5), vhInteger(0)).toInt());
    EXPECT_EQ(2, m.mod_f(vhInteger(-1), vhInteger(3)).toInt());
    EXPECT_EQ(tagInteger, m.mod_f(vhInteger(-1), vhInteger(3)).valueType());
    EXPECT_EQ(-1, m.mod_f(vhInteger(5), vhInteger(-3)).toInt());
    EXPECT_NEAR(0.5, m.mod_f(d(-5.5), vhInteger(3)).toDouble(), 1e-15);
    EXPECT_TRUE(m.mod_f(vhComplex(1, 1), vhComplex(1, 1)).isNull());
    EXPECT_EQ(nt_mod, m.mod_f(symbol("x"), vhInteger(3)).functionID());
    // The nearest-integer remainder, for both names.
    EXPECT_EQ(-1.0, m.remainder_f(vhInteger(5), vhInteger(3)).toDouble());
    EXPECT_TRUE(m.remainder_f(vhInteger(5), vhInteger(0)).isNull());
    // Pairs of vectors map; a scalar beside a vector is not aligned.
    double x[] = {5.0, 7.0}, y[] = {3.0, 4.0};
    const vhValue r = m.fmod_f(vhVector(x, 2, false), vhVector(y, 2, false));
    EXPECT_EQ(3.0, r.numericValues()[1]);
    EXPECT_TRUE(m.fmod_f(vhVector(x, 2, false), vhInteger(3)).isNull());
}

TEST(ElementwiseMisc, FactorialPollsAndStops)
{
    vhMath m;
    EXPECT_EQ(1, m.fact_f(vhInteger(0)).toInt());
    EXPECT_EQ(120, m.fact_f(vhInteger(5)).toInt());
    EXPECT_EQ(1932053504, m.fact_f(vhInteger(13)).toInt()) << "the 32-bit product wraps";
    EXPECT_EQ(0, m.fact_f(d(2147483647.0)).toInt());
    EXPECT_TRUE(m.fact_f(vhInteger(-1)).isNull());
    EXPECT_TRUE(m.fact_f(d(2.5)).isNull());
    EXPECT_EQ(1, m.fact_f(vhBoolean(true)).toInt());
    EXPECT_EQ(nt_factorial, m.factorial_f(symbol("n")).functionID());
    EXPECT_EQ(nt_fact, m.fact_f(symbol("n")).functionID());
    EXPECT_EQ(6, m.factorial_f(vhInteger(3)).toInt());
    // Every step runs the host's events, then reads the stop flag.
    g_events = 0;
    m.setAppProcessEventsCallback(countEvents);
    EXPECT_EQ(720, m.fact_f(vhInteger(6)).toInt());
    EXPECT_EQ(6, g_events);
    g_events = 0;
    g_stopper = &m;
    m.setAppProcessEventsCallback(stopAtFive);
    EXPECT_TRUE(m.fact_f(vhInteger(10)).isNull());
    EXPECT_EQ(5, g_events);
    EXPECT_TRUE(m.fact_f(vhInteger(3)).isNull()) << "the flag stays set";
    m.setStopCalculation(false);
    m.setAppProcessEventsCallback(nullptr);
}

TEST(ElementwiseMisc, SmallFunctions)
{
    vhMath m;
    EXPECT_EQ(tagInteger, m.heavyside_f(d(-0.5)).valueType());
    EXPECT_EQ(tagDouble, m.heavyside_f(vhInteger(0)).valueType());
    EXPECT_EQ(1.0, m.heavyside_f(vhInteger(0)).toDouble());
    EXPECT_TRUE(m.heavyside_f(vhComplex(1, 1)).isNull());
    EXPECT_EQ(3, m.numofdigits_f(vhInteger(-123)).toInt());
    EXPECT_EQ(1, m.numofdigits_f(vhInteger(0)).toInt());
    EXPECT_EQ(3, m.numofdigits_f(d(3.25)).toInt());
    // A fraction counts to six decimal places.
    EXPECT_EQ(1, m.numofdigits_f(d(1.0000001)).toInt());
    EXPECT_EQ(7, m.numofdigits_f(d(1.000001)).toInt());
    EXPECT_EQ(7, m.numofdigits_f(d(0.123456)).toInt());
    EXPECT_EQ(11, m.numofdigits_f(d(3e10)).toInt());
    EXPECT_TRUE(m.numofdigits_f(d(kInf)).isNull());
    EXPECT_GE(m.rand_f().toDouble(), 0.0);
    EXPECT_EQ(3.0, m.fdim_f(vhInteger(5), vhInteger(2)).toDouble());
    EXPECT_EQ(5.0, m.max_f(vhInteger(5), vhInteger(2)).toDouble());
    EXPECT_EQ(nt_max, m.max_f(symbol("x"), vhInteger(2)).functionID());
    EXPECT_EQ(nt_fmax, m.fmax_f(symbol("x"), vhInteger(2)).functionID());
    EXPECT_EQ(5.0, m.hypot_f(vhInteger(3), vhInteger(4)).toDouble());
    // Complex pairs go through the value operators: sqrt(i*i + 1) is 0.
    EXPECT_TRUE(m.hypot_f(vhComplex(0.0, 1.0), vhComplex(1.0, 0.0)).isZero());
    EXPECT_TRUE(m.hypot_f(vhComplex(3.0, 0.0), vhInteger(4)).isNull());
    EXPECT_EQ(std::nextafter(1.0, 2.0), m.nextafter_f(vhInteger(1), vhInteger(2)).toDouble());
}

TEST(ElementwiseMisc, CallFunctionReachesEveryMember)
{
    vhMath m;
    const vhValue a = d(0.3), b = d(1.7), n = vhInteger(3);
    auto same = [](const vhValue& expected, const vhValue& actual, NodeType id) {
        EXPECT_EQ(expected.valueType(), actual.valueType()) << id;
        EXPECT_EQ(expected.toString(), actual.toString()) << id;
    };
    for (const Unary& u : unaryMembers()) {
        if (u.id == nt_logb)
            continue;
        for (const vhValue& x : {a, b})
            same((m.*u.f)(x), callFunction(&m, u.id, {x}), u.id);
    }
    for (const Binary& f : binaryMembers())
        same((m.*f.f)(b, n), callFunction(&m, f.id, {b, n}), f.id);
    for (NodeType id : kManyArguments) {
        const std::vector<vhValue> args = {n, vhInteger(1), a, b};
        const std::vector<vhValue> given(args.begin(), args.begin() + numberOfFunctionArguments(id));
        same(callMany(m, id, args), callFunction(&m, id, given), id);
    }
    EXPECT_FALSE(callFunction(&m, nt_rand, {}).isNull());
    EXPECT_TRUE(callFunction(&m, nt_sin, {a, b}).isNull());
}
