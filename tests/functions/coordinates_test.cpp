// Coordinates of points: round trips between the systems in every unit of
// angles, the angles of the axes, and what is refused.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue d(double v) { return vhDouble(v); }
const double kPi = 3.141592653589793;

void expectPoint(const vhValue& p, double x, double y, double z, double tolerance)
{
    ASSERT_EQ(3u, p.vectorSize());
    EXPECT_NEAR(x, p.valueToDouble(0), tolerance);
    EXPECT_NEAR(y, p.valueToDouble(1), tolerance);
    EXPECT_NEAR(z, p.valueToDouble(2), tolerance);
}
} // namespace

TEST(Coordinates, RoundTripsInEveryOctantAndUnit)
{
    std::mt19937 gen(11);
    std::uniform_real_distribution<double> u(0.01, 10.0);
    for (AngleUnit unit : {angleRadians, angleDegrees, angleGradians}) {
        vhMath m(14, unit);
        for (int k = 0; k < 80; ++k) {
            const double x = (k & 1 ? -1 : 1) * u(gen), y = (k & 2 ? -1 : 1) * u(gen), z = (k & 4 ? -1 : 1) * u(gen);
            const vhValue s = m.cartesian2sphere_f(d(x), d(y), d(z));
            expectPoint(m.sphere2cartesian_f(s.value(0), s.value(1), s.value(2)), x, y, z, 1e-12);
            const vhValue c = m.cartesian2cylinder_f(d(x), d(y), d(z));
            expectPoint(m.cylinder2cartesian_f(c.value(0), c.value(1), c.value(2)), x, y, z, 1e-12);
            const vhValue cs = m.cylinder2sphere_f(c.value(0), c.value(1), c.value(2));
            expectPoint(cs, s.valueToDouble(0), s.valueToDouble(1), s.valueToDouble(2), 1e-12);
            const vhValue sc = m.sphere2cylinder_f(s.value(0), s.value(1), s.value(2));
            expectPoint(sc, c.valueToDouble(0), c.valueToDouble(1), c.valueToDouble(2), 1e-12);
            const vhValue p = m.cartesian2polar_f(d(x), d(y));
            const vhValue q = m.polar2cartesian_f(p.value(0), p.value(1));
            ASSERT_EQ(2u, q.vectorSize());
            EXPECT_NEAR(x, q.valueToDouble(0), 1e-12);
            EXPECT_NEAR(y, q.valueToDouble(1), 1e-12);
            // The single coordinates agree with the whole point.
            EXPECT_EQ(s.valueToDouble(2), m.cartesian2sphereT_f(d(x), d(y), d(z)).toDouble());
            EXPECT_EQ(c.valueToDouble(1), m.cartesian2cylinderF_f(d(x), d(y), d(z)).toDouble());
            EXPECT_NEAR(z, m.sphere2cylinderZ_f(s.value(0), s.value(1), s.value(2)).toDouble(), 1e-12);
            EXPECT_NEAR(y, m.polar2cartesianY_f(p.value(0), p.value(1)).toDouble(), 1e-12);
        }
    }
}

TEST(Coordinates, AnglesFollowTheUnit)
{
    vhMath m(14, angleDegrees);
    EXPECT_DOUBLE_EQ(90.0, m.cartesian2polarF_f(d(0.0), d(2.0)).toDouble());
    EXPECT_DOUBLE_EQ(180.0, m.cartesian2polarF_f(d(-1.0), d(0.0)).toDouble());
    EXPECT_DOUBLE_EQ(-45.0, m.cartesian2polarF_f(d(1.0), d(-1.0)).toDouble());
    EXPECT_EQ(5.0, m.cartesian2polarR_f(d(3.0), d(-4.0)).toDouble());
    EXPECT_DOUBLE_EQ(180.0, m.cartesian2sphereT_f(d(0.0), d(0.0), d(-1.0)).toDouble());
    EXPECT_NEAR(0.0, m.sphere2cartesianZ_f(d(2.0), d(10.0), d(90.0)).toDouble(), 1e-15);
    EXPECT_DOUBLE_EQ(-1.0, m.polar2cartesianX_f(d(1.0), d(180.0)).toDouble());
    m.setAngleUnit(angleGradians);
    EXPECT_DOUBLE_EQ(100.0, m.cylinder2sphereT_f(d(1.0), d(0.0), d(0.0)).toDouble());
    EXPECT_DOUBLE_EQ(50.0, m.cartesian2sphereF_f(d(1.0), d(1.0), d(7.0)).toDouble());
    m.setAngleUnit(angleRadians);
    EXPECT_DOUBLE_EQ(kPi / 2, m.cartesian2sphereF_f(d(0.0), d(1.0), d(0.0)).toDouble());
    // The origin has angles of 0.
    const vhValue o = m.cartesian2sphere_f(d(0.0), d(0.0), d(0.0));
    expectPoint(o, 0.0, 0.0, 0.0, 0.0);
    // The azimuth passes between cylinder and sphere unchanged.
    EXPECT_EQ(7.5, m.cylinder2sphereF_f(d(1.0), d(7.5), d(1.0)).toDouble());
    EXPECT_EQ(-2.0, m.sphere2cylinderF_f(d(1.0), d(-2.0), d(1.0)).toDouble());
    EXPECT_EQ(4.0, m.cartesian2cylinderZ_f(d(1.0), d(2.0), d(4.0)).toDouble());
}

TEST(Coordinates, ArraysAndRefusals)
{
    vhMath m(14, angleDegrees);
    double xs[3] = {1.0, 0.0, -1.0};
    const vhValue r = m.cartesian2polarF_f(vhVector(xs, 3, true), d(0.0));
    ASSERT_EQ(3u, r.vectorSize());
    EXPECT_EQ(0.0, r.valueToDouble(0));
    EXPECT_EQ(180.0, r.valueToDouble(2));
    EXPECT_TRUE(m.cartesian2polarR_f(vhVector(xs, 3, true), vhVector(xs, 3, false)).isNull());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(m.cartesian2polar_f(d(nan), d(1.0)).isNull());
    EXPECT_TRUE(m.cartesian2sphere_f(d(inf), d(1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.polar2cartesian_f(vhComplex(1.0, 1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.sphere2cartesian_f(vhSymbolicValue("r", true, {}), d(1.0), d(1.0)).isNull());
    EXPECT_TRUE(m.cylinder2cartesian_f(vhVector(xs, 3, true), d(1.0), d(1.0)).isNull());
    EXPECT_EQ(nt_cartesian2polarR, m.cartesian2polarR_f(vhSymbolicValue("x", false, {}), d(1.0)).functionID());
    EXPECT_TRUE(m.sphere2cylinderR_f(vhValue(), d(1.0), d(1.0)).isNull());
}

TEST(Coordinates, ReachedByNumber)
{
    vhMath m(14, angleDegrees);
    const vhValue p = callFunction(&m, nt_cartesian2polar, {d(0.0), d(-2.0)});
    ASSERT_EQ(2u, p.vectorSize());
    EXPECT_EQ(-90.0, p.valueToDouble(1));
    expectPoint(callFunction(&m, nt_cylinder2cartesian, {d(2.0), d(0.0), d(3.0)}), 2.0, 0.0, 3.0, 0.0);
    EXPECT_EQ(3.0, callFunction(&m, nt_sphere2cartesianZ, {d(3.0), d(45.0), d(0.0)}).toDouble());
}
