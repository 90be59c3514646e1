// Trigonometric and hyperbolic functions: exact zeros and poles, the angle
// units in arguments and results, the complex plane beyond the real domains.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
const double kPi = 3.141592653589793;
const double kInf = std::numeric_limits<double>::infinity();
vhValue d(double v) { return vhDouble(v); }
} // namespace

TEST(ElementwiseTrigonometric, ExactZerosAndPoles)
{
    vhMath m;
    EXPECT_EQ(0.0, m.sin_f(d(kPi)).toDouble());
    EXPECT_EQ(0.0, m.cos_f(d(kPi / 2)).toDouble());
    EXPECT_EQ(0.0, m.cos_f(d(3 * kPi / 2)).toDouble());
    EXPECT_EQ(1.0, m.sin_f(d(kPi / 2)).toDouble());
    EXPECT_EQ(tagDouble, m.sin_f(vhInteger(0)).valueType());
    // tan and cot have true poles, with the sign of the dividend.
    EXPECT_EQ(kInf, m.tan_f(d(kPi / 2)).toDouble());
    EXPECT_EQ(-kInf, m.tan_f(d(3 * kPi / 2)).toDouble());
    EXPECT_EQ(kInf, m.cot_f(vhInteger(0)).toDouble());
    EXPECT_EQ(-kInf, m.cot_f(d(kPi)).toDouble());
    // sec and csc divide the integer 1: an exact zero has no reciprocal.
    EXPECT_TRUE(m.sec_f(d(kPi / 2)).isNull());
    EXPECT_TRUE(m.csc_f(d(kPi)).isNull());
    // A NaN or an infinity has no sine.
    EXPECT_TRUE(m.sin_f(d(kInf)).isNull());
    EXPECT_TRUE(m.tan_f(d(-kInf)).isNull());
    // Complex arguments: on the real axis the result stays complex.
    const vhValue s = m.sin_f(vhComplex(kPi / 2, 0.0));
    ASSERT_TRUE(s.isComplex());
    EXPECT_EQ(1.0, s.complexRe());
    EXPECT_EQ(0.0, s.complexIm());
    const vhValue c = m.cos_f(vhComplex(1.0, 2.0));
    EXPECT_NEAR(std::cos(1.0) * std::cosh(2.0), c.complexRe(), 1e-15);
    EXPECT_NEAR(-std::sin(1.0) * std::sinh(2.0), c.complexIm(), 1e-15);
    const vhValue sc = m.sec_f(vhComplex(0.5, 0.0));
    ASSERT_TRUE(sc.isComplex());
    EXPECT_EQ(1.0 / std::cos(0.5), sc.complexRe());
}

TEST(ElementwiseTrigonometric, AngleUnitsInArgumentsAndResults)
{
    struct Unit {
        AngleUnit unit;
        double right; // a right angle in the unit
    };
    for (const Unit u : {Unit{angleDegrees, 90.0}, Unit{angleRadians, kPi / 2}, Unit{angleGradians, 100.0}}) {
        vhMath m;
        m.setAngleUnit(u.unit);
        const double r = u.right;
        SCOPED_TRACE(u.unit);
        EXPECT_EQ(0.0, m.sin_f(d(2 * r)).toDouble());
        EXPECT_EQ(0.0, m.cos_f(d(r)).toDouble());
        EXPECT_EQ(1.0, m.sin_f(d(r)).toDouble());
        EXPECT_NEAR(std::sqrt(0.5), m.sin_f(d(r / 2)).toDouble(), 1e-15);
        EXPECT_NEAR(1.0, m.tan_f(d(r / 2)).toDouble(), 1e-15);
        EXPECT_EQ(kInf, m.tan_f(d(r)).toDouble());
        EXPECT_NEAR(std::sqrt(2.0), m.sec_f(d(r / 2)).toDouble(), 1e-15);
        EXPECT_NEAR(2.0, m.csc_f(d(r / 3)).toDouble(), 1e-15);
        // Complex arguments are converted part by part.
        EXPECT_NEAR(std::sin(1.0) * std::cosh(0.5), m.sin_f(vhComplex(r * 2 / kPi, r / kPi)).complexRe(), 1e-15);
        // The inverses answer in the unit.
        EXPECT_NEAR(r, m.acos_f(vhInteger(0)).toDouble(), 1e-13);
        EXPECT_NEAR(r / 3, m.asin_f(d(0.5)).toDouble(), 1e-13);
        EXPECT_NEAR(r / 2, m.atan_f(vhInteger(1)).toDouble(), 1e-13);
        EXPECT_NEAR(r / 2, m.acot_f(vhInteger(1)).toDouble(), 1e-13);
        EXPECT_NEAR(2 * r / 3, m.asec_f(vhInteger(2)).toDouble(), 1e-13);
        EXPECT_NEAR(r / 3, m.acsc_f(vhInteger(2)).toDouble(), 1e-13);
        EXPECT_NEAR(-r / 2, m.atan2_f(vhInteger(-1), vhInteger(1)).toDouble(), 1e-13);
        // A complex inverse is converted in both parts.
        const vhValue ac = m.acos_f(vhInteger(2));
        ASSERT_TRUE(ac.isComplex());
        EXPECT_NEAR(-std::acosh(2.0) * r / (kPi / 2), ac.complexIm(), 1e-12);
        // While an integration asks for radians results, the inverses stay
        // in radians and the direct functions convert their results.
        m.setConvertResultsToRadians(1);
        EXPECT_NEAR(kPi / 2, m.acos_f(vhInteger(0)).toDouble(), 1e-15);
        EXPECT_NEAR(std::sin(0.5) * (kPi / 2) / r, m.sin_f(d(r / (kPi / 2) * 0.5)).toDouble(), 1e-15);
    }
    vhMath degrees(14, angleDegrees);
    EXPECT_EQ(0.0, degrees.sin_f(vhInteger(180)).toDouble());
    EXPECT_EQ(90.0, degrees.acos_f(vhInteger(0)).toDouble());
}

TEST(ElementwiseTrigonometric, TangentClearsTheResultConversion)
{
    vhMath m;
    m.setAngleUnit(angleDegrees);
    m.setConvertResultsToRadians(1);
    // The count is read once: this tan converts its result, and the setting
    // is 0 afterwards.
    EXPECT_NEAR(kPi / 180.0, m.tan_f(vhInteger(45)).toDouble(), 1e-15);
    EXPECT_EQ(0u, m.convertResultsToRadians());
    EXPECT_NEAR(1.0, m.tan_f(vhInteger(45)).toDouble(), 1e-15);
    m.setConvertResultsToRadians(1);
    EXPECT_NEAR(kPi / 180.0, m.cot_f(vhInteger(45)).toDouble(), 1e-15);
    EXPECT_EQ(0u, m.convertResultsToRadians());
    // A vector: only its first defined element is converted.
    m.setConvertResultsToRadians(1);
    double angles[] = {std::nan(""), 45.0, 45.0};
    const vhValue t = m.tan_f(vhVector(angles, 3, false));
    EXPECT_TRUE(std::isnan(t.numericValues()[0]));
    EXPECT_NEAR(kPi / 180.0, t.numericValues()[1], 1e-15);
    EXPECT_NEAR(1.0, t.numericValues()[2], 1e-15);
    // sin converts without clearing.
    m.setConvertResultsToRadians(2);
    EXPECT_NEAR(std::pow(kPi / 180.0, 2), m.sin_f(vhInteger(90)).toDouble(), 1e-18);
    EXPECT_EQ(2u, m.convertResultsToRadians());
}

TEST(ElementwiseTrigonometric, InverseFunctionsLeaveTheRealDomain)
{
    vhMath m;
    const vhValue a = m.acos_f(vhInteger(2));
    ASSERT_TRUE(a.isComplex());
    EXPECT_EQ(0.0, a.complexRe());
    EXPECT_NEAR(-std::acosh(2.0), a.complexIm(), 1e-15);
    const vhValue b = m.asin_f(d(-3.0));
    ASSERT_TRUE(b.isComplex());
    EXPECT_NEAR(-kPi / 2, b.complexRe(), 1e-15);
    EXPECT_TRUE(m.asin_f(d(0.5)).isDouble());
    EXPECT_TRUE(m.asec_f(d(0.5)).isComplex());
    EXPECT_TRUE(m.asec_f(vhInteger(0)).isNull());
    EXPECT_EQ(0.0, m.acsc_f(d(kInf)).toDouble());
    EXPECT_EQ(0.0, m.acsc_f(vhComplex(kInf, 1.0)).complexRe());
    EXPECT_NEAR(kPi / 2, m.asec_f(d(-kInf)).toDouble(), 1e-15);
    // The arc tangent has no value at i and -i.
    EXPECT_TRUE(m.atan_f(vhComplex(0.0, 1.0)).isNull());
    EXPECT_TRUE(m.acot_f(vhComplex(0.0, -1.0)).isNull());
    const vhValue t = m.atan_f(vhComplex(0.5, 0.5));
    EXPECT_NEAR(std::atan(std::complex<double>(0.5, 0.5)).real(), t.complexRe(), 1e-15);
    EXPECT_NEAR(std::atan(std::complex<double>(0.5, 0.5)).imag(), t.complexIm(), 1e-15);
    // acot follows pi/2 - atan on the real line: values in (0, pi).
    EXPECT_NEAR(3 * kPi / 4, m.acot_f(vhInteger(-1)).toDouble(), 1e-15);
    EXPECT_NEAR(3 * kPi / 4, m.acot_f(vhComplex(-1.0, 1e-300)).complexRe(), 1e-15);
    EXPECT_TRUE(m.atan2_f(vhComplex(1, 1), vhComplex(1, 1)).isNull());
    EXPECT_EQ(kPi, m.atan2_f(vhInteger(0), vhInteger(-1)).toDouble());
}

TEST(ElementwiseTrigonometric, HyperbolicPolesLimitsAndBranches)
{
    vhMath m;
    EXPECT_EQ(0.0, m.sinh_f(vhInteger(0)).toDouble());
    EXPECT_TRUE(m.coth_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.csch_f(vhInteger(0)).isNull());
    EXPECT_EQ(1.0, m.coth_f(d(kInf)).toDouble());
    EXPECT_EQ(-1.0, m.coth_f(d(-kInf)).toDouble());
    EXPECT_EQ(-kInf, m.asinh_f(d(-kInf)).toDouble());
    // sinh / cosh: where both overflow the quotient has no value.
    EXPECT_TRUE(m.tanh_f(d(800.0)).isNull());
    EXPECT_NEAR(std::tanh(0.5), m.tanh_f(d(0.5)).toDouble(), 1e-16);
    // Poles of the inverses: an infinity with the sign of x.
    EXPECT_EQ(kInf, m.atanh_f(vhInteger(1)).toDouble());
    EXPECT_EQ(kInf, m.acoth_f(vhInteger(1)).toDouble());
    EXPECT_EQ(kInf, m.asech_f(vhInteger(0)).toDouble());
    EXPECT_TRUE(m.acsch_f(vhInteger(0)).isNull());
    EXPECT_EQ(0.0, m.acsch_f(d(-kInf)).toDouble());
    const vhValue asechInf = m.asech_f(d(kInf));
    ASSERT_TRUE(asechInf.isComplex());
    EXPECT_NEAR(kPi / 2, asechInf.complexIm(), 1e-15);
    // Below the real domain, the complex plane.
    const vhValue ach = m.acosh_f(d(0.5));
    ASSERT_TRUE(ach.isComplex());
    EXPECT_EQ(0.0, ach.complexRe());
    EXPECT_NEAR(std::acos(0.5), ach.complexIm(), 1e-15);
    const vhValue ach2 = m.acosh_f(vhInteger(-2));
    EXPECT_NEAR(std::acosh(2.0), ach2.complexRe(), 1e-15);
    EXPECT_NEAR(kPi, ach2.complexIm(), 1e-15);
    const vhValue ath = m.atanh_f(vhInteger(2));
    ASSERT_TRUE(ath.isComplex());
    EXPECT_NEAR(std::atanh(0.5), ath.complexRe(), 1e-15);
    EXPECT_NEAR(kPi / 2, ath.complexIm(), 1e-15);
    EXPECT_TRUE(m.acoth_f(d(0.5)).isComplex());
    EXPECT_TRUE(m.acoth_f(vhInteger(0)).isNull());
    EXPECT_TRUE(m.asech_f(vhInteger(-2)).isComplex());
    // Complex formulas.
    const vhValue sh = m.sinh_f(vhComplex(1.0, 1.0));
    EXPECT_NEAR(std::sinh(std::complex<double>(1, 1)).real(), sh.complexRe(), 1e-15);
    EXPECT_NEAR(std::sinh(std::complex<double>(1, 1)).imag(), sh.complexIm(), 1e-15);
    const vhValue csch = m.csch_f(vhComplex(1.0, 0.0));
    ASSERT_TRUE(csch.isComplex());
    EXPECT_NEAR(1.0 / std::sinh(1.0), csch.complexRe(), 1e-15);
    EXPECT_TRUE(m.sech_f(vhComplex(0.0, kPi / 2)).isNull()) << "cosh(i pi/2) is exactly 0";
    // A degree setting does not reach the hyperbolic functions.
    vhMath degrees(14, angleDegrees);
    EXPECT_EQ(m.sinh_f(d(0.7)).toDouble(), degrees.sinh_f(d(0.7)).toDouble());
    EXPECT_EQ(m.csch_f(vhComplex(0.7, 0.2)).complexIm(), degrees.csch_f(vhComplex(0.7, 0.2)).complexIm());
    EXPECT_EQ(m.acosh_f(vhComplex(0.7, 0.2)).complexIm(), degrees.acosh_f(vhComplex(0.7, 0.2)).complexIm());
}
