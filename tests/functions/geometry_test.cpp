// Geometry: predicates on constructed figures and their perturbations,
// areas and volumes, vectors, planes and intersections.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "frame/math.h"
#include "functions/geometry.h"

using namespace VarnholtMath::ValueTypes;

namespace {
vhValue d(double v) { return vhDouble(v); }
std::vector<vhValue> ds(std::initializer_list<double> xs)
{
    std::vector<vhValue> v;
    for (double x : xs)
        v.push_back(d(x));
    return v;
}
vhValue vec(std::initializer_list<double> xs, bool row = true)
{
    std::vector<double> v(xs);
    return vhVector(v.data(), static_cast<unsigned int>(v.size()), row);
}
const double kPi = 3.141592653589793;
} // namespace

TEST(Geometry, PlanePredicatesOnConstructedPoints)
{
    vhMath m;
    std::mt19937 gen(5);
    std::uniform_real_distribution<double> u(-10.0, 10.0);
    for (int k = 0; k < 50; ++k) {
        // Points on a line y = a x + b, and one moved off it.
        const double a = u(gen), b = u(gen), x1 = u(gen), x2 = u(gen), x3 = u(gen);
        auto on = [&](double x) { return a * x + b; };
        EXPECT_TRUE(m.areColinear_f(d(x1), d(on(x1)), d(x2), d(on(x2)), d(x3), d(on(x3))).toBool());
        EXPECT_FALSE(m.areColinear_f(d(x1), d(on(x1)), d(x2), d(on(x2)), d(x3), d(on(x3) + 1e-6)).toBool());
        // Points on a circle, and one moved off it.
        const double cx = u(gen), cy = u(gen), r = 0.5 + std::fabs(u(gen));
        std::vector<vhValue> p;
        for (double t : {0.3, 1.9, 3.1, 4.4})
            for (double c : {cx + r * std::cos(t), cy + r * std::sin(t)})
                p.push_back(d(c));
        EXPECT_TRUE(m.areCocyclic_f(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]).toBool());
        p[7] = d(p[7].toDouble() + 1e-6 * r);
        EXPECT_FALSE(m.areCocyclic_f(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]).toBool());
        // Three lines through one point.
        const double px = u(gen), py = u(gen), k1 = u(gen), k2 = k1 + 1.0, k3 = k1 - 2.0;
        const double n1 = py - k1 * px, n2 = py - k2 * px, n3 = py - k3 * px;
        EXPECT_TRUE(m.areConcurent_f(d(k1), d(n1), d(k2), d(n2), d(k3), d(n3)).toBool());
        EXPECT_FALSE(m.areConcurent_f(d(k1), d(n1), d(k2), d(n2), d(k3), d(n3 + 1e-6)).toBool());
    }
    // Four points on a line lie on no circle; parallel lines meet nowhere,
    // one line repeated meets itself everywhere.
    EXPECT_FALSE(m.areCocyclic_f(d(0), d(0), d(1), d(1), d(2), d(2), d(3), d(3)).toBool());
    EXPECT_FALSE(m.areConcurent_f(d(1), d(0), d(1), d(1), d(1), d(2)).toBool());
    EXPECT_TRUE(m.areConcurent_f(d(2), d(1), d(2), d(1), d(2), d(1)).toBool());
    EXPECT_FALSE(m.areConcurent_f(d(2), d(1), d(2), d(1), d(2), d(3)).toBool());
    // Coincident points are on one line.
    EXPECT_TRUE(m.areColinear_f(d(1), d(1), d(1), d(1), d(5), d(-2)).toBool());
}

TEST(Geometry, PlaneMeasures)
{
    vhMath m(14, angleDegrees);
    EXPECT_EQ(6.0, m.areaofTriangle_f(d(0), d(0), d(4), d(0), d(0), d(3)).toDouble());
    EXPECT_EQ(6.0, m.areaofTriangle_f(d(0), d(0), d(0), d(3), d(4), d(0)).toDouble());
    EXPECT_EQ(0.0, m.areaofTriangle_f(d(0), d(0), d(1), d(1), d(2), d(2)).toDouble());
    EXPECT_DOUBLE_EQ(90.0, m.angle_f(d(1), d(1), d(5), d(1), d(1), d(-3)).toDouble());
    EXPECT_DOUBLE_EQ(180.0, m.angle_f(d(0), d(0), d(1), d(0), d(-2), d(0)).toDouble());
    EXPECT_DOUBLE_EQ(45.0, m.angle_f(d(0), d(0), d(1), d(1), d(3), d(0)).toDouble());
    EXPECT_TRUE(m.angle_f(d(0), d(0), d(0), d(0), d(3), d(0)).isNull());
    // The angle between lines is the acute one.
    EXPECT_DOUBLE_EQ(45.0, m.anglebtwlines_f(d(0), d(1)).toDouble());
    EXPECT_DOUBLE_EQ(45.0, m.anglebtwlines_f(d(0), d(-1)).toDouble());
    EXPECT_DOUBLE_EQ(90.0, m.anglebtwlines_f(d(2), d(-0.5)).toDouble());
    EXPECT_EQ(0.0, m.anglebtwlines_f(d(3), d(3)).toDouble());
    m.setAngleUnit(angleRadians);
    EXPECT_DOUBLE_EQ(kPi / 4, m.anglebtwlines_f(d(0), d(1)).toDouble());
}

TEST(Geometry, ArcsAndCircles)
{
    vhMath m(14, angleDegrees);
    const vhValue arc = m.PlotArc_f(vec({1, 2, 3}), vec({0, 90}));
    ASSERT_EQ(tagMatrix, arc.valueType());
    ASSERT_EQ(2u, arc.matrixColumns());
    const unsigned int n = arc.matrixRows();
    ASSERT_GT(n, 10u);
    EXPECT_DOUBLE_EQ(4.0, arc.valueToDouble(0, 0));
    EXPECT_DOUBLE_EQ(2.0, arc.valueToDouble(0, 1));
    EXPECT_NEAR(1.0, arc.valueToDouble(n - 1, 0), 1e-15);
    EXPECT_DOUBLE_EQ(5.0, arc.valueToDouble(n - 1, 1));
    for (unsigned int k = 0; k < n; ++k)
        EXPECT_NEAR(3.0, std::hypot(arc.valueToDouble(k, 0) - 1.0, arc.valueToDouble(k, 1) - 2.0), 1e-14);
    // The free twin reads radians.
    const vhValue twin = PlotArc_f(vec({1, 2, 3}), vec({0, kPi / 2}));
    EXPECT_NEAR(5.0, twin.valueToDouble(twin.matrixRows() - 1, 1), 1e-15);
    const vhValue circle = m.PlotCircle_f(vec({0, 0}), d(2));
    const unsigned int c = circle.matrixRows();
    EXPECT_DOUBLE_EQ(circle.valueToDouble(0, 0), circle.valueToDouble(c - 1, 0));
    EXPECT_NEAR(circle.valueToDouble(0, 1), circle.valueToDouble(c - 1, 1), 1e-15);
    EXPECT_TRUE(m.PlotCircle_f(vec({0, 0}), d(0)).isNull());
    EXPECT_TRUE(m.PlotCircle_f(vec({0, 0, 0}), d(1)).isNull());
    EXPECT_TRUE(m.PlotArc_f(vec({0, 0, -1}), vec({0, 1})).isNull());
    EXPECT_TRUE(m.PlotArc_f(vec({0, 0, 1}), d(1)).isNull());
}

TEST(Geometry, SpacePredicatesAndMeasures)
{
    vhMath m;
    // A unit cube's corner tetrahedron has volume 1/6.
    EXPECT_DOUBLE_EQ(1.0 / 6.0, m.volumeOfTetrahedron_f(d(0), d(0), d(0), d(1), d(0), d(0), d(0), d(1), d(0), d(0),
                                                        d(0), d(1))
                                    .toDouble());
    std::mt19937 gen(9);
    std::uniform_real_distribution<double> u(-5.0, 5.0);
    for (int k = 0; k < 50; ++k) {
        // Points on the plane z = a x + b y + c.
        const double a = u(gen), b = u(gen), c = u(gen);
        std::vector<vhValue> p;
        for (int j = 0; j < 4; ++j) {
            const double x = u(gen), y = u(gen);
            for (double v : {x, y, a * x + b * y + c})
                p.push_back(d(v));
        }
        EXPECT_TRUE(m.areComplanar_f(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11]).toBool());
        p[11] = d(p[11].toDouble() + 1e-5);
        EXPECT_FALSE(m.areComplanar_f(p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10], p[11]).toBool());
    }
    EXPECT_EQ(12.0, m.areaofParal3D_f(d(0), d(0), d(1), d(3), d(0), d(1), d(0), d(4), d(1)).toDouble());
    EXPECT_EQ(6.0, m.areaofTriangle3D_f(d(0), d(0), d(1), d(3), d(0), d(1), d(0), d(4), d(1)).toDouble());
    EXPECT_EQ(5.0, m.distPointLine_f(d(3), d(4), d(7), d(0), d(0), d(-1), d(0), d(0), d(2)).toDouble());
    EXPECT_TRUE(m.distPointLine_f(d(3), d(4), d(7), d(1), d(1), d(1), d(1), d(1), d(1)).isNull());
    const vhValue plane = m.planeVector_f(d(1), d(0), d(0), d(0), d(1), d(0), d(0), d(0), d(1));
    ASSERT_EQ(4u, plane.vectorSize());
    EXPECT_EQ(1.0, plane.valueToDouble(0));
    EXPECT_EQ(1.0, plane.valueToDouble(2));
    EXPECT_EQ(-1.0, plane.valueToDouble(3));
    EXPECT_TRUE(m.planeVector_f(d(0), d(0), d(0), d(1), d(1), d(1), d(2), d(2), d(2)).isNull());
}

TEST(Geometry, Vectors)
{
    vhMath m(14, angleRadians);
    EXPECT_EQ(5.0, m.norm_f(vec({3, -4})).toDouble());
    EXPECT_EQ(5.0, m.norm_f(vhVector(std::vector<vhValue>{vhComplex(3, 4)}, true)).toDouble());
    EXPECT_DOUBLE_EQ(5e300, m.norm_f(vec({3e300, 4e300})).toDouble());
    EXPECT_DOUBLE_EQ(kPi / 2, m.vecangle_f(vec({1, 0, 0}), vec({0, 2, 0})).toDouble());
    EXPECT_DOUBLE_EQ(kPi, m.vecangle_f(vec({1, 1}), vec({-2, -2})).toDouble());
    // Nearly parallel vectors keep a tiny angle, not 0 or NaN.
    EXPECT_NEAR(1e-9, m.vecangle_f(vec({1, 0}), vec({1, 1e-9})).toDouble(), 1e-22);
    m.setAngleUnit(angleDegrees);
    EXPECT_DOUBLE_EQ(60.0, m.vecangle_f(vec({1, 0}), vec({0.5, std::sqrt(3.0) / 2})).toDouble());
    EXPECT_TRUE(m.areOrthogonal_f(vec({1, 2, 3}), vec({-2, 1, 0})).toBool());
    EXPECT_FALSE(m.areOrthogonal_f(vec({1, 2, 3}), vec({-2, 1, 1e-6})).toBool());
    EXPECT_EQ(2.0, m.scalproj_f(vec({2, 5}), vec({3, 0})).toDouble());
    const vhValue p = m.vecproj_f(vec({2, 5}), vec({0, 3}, false));
    EXPECT_FALSE(p.isRowVector());
    EXPECT_EQ(0.0, p.valueToDouble(0));
    EXPECT_EQ(5.0, p.valueToDouble(1));
    const vhValue c = m.crossprod_f(vec({1, 0, 0}), vec({0, 1, 0}));
    ASSERT_EQ(3u, c.vectorSize());
    EXPECT_EQ(1.0, c.valueToDouble(2));
    EXPECT_EQ(0.0, c.valueToDouble(0));
    EXPECT_EQ(32.0, m.dotprod_f(vec({1, 2, 3}), vec({4, 5, 6})).toDouble());
    const vhValue z = m.dotprod_f(vhVector(std::vector<vhValue>{vhComplex(0, 1), d(1)}, true), vec({0, 0}, true));
    EXPECT_EQ(0.0, z.toDouble());
    const vhValue zz =
        m.dotprod_f(vhVector(std::vector<vhValue>{vhComplex(0, 1)}, true), vhVector(std::vector<vhValue>{vhComplex(0, 1)}, true));
    EXPECT_EQ(-1.0, zz.complexRe());
    EXPECT_EQ(6.0, m.vecareaofParal3D_f(vec({2, 0, 0}), vec({0, 3, 0})).toDouble());
    EXPECT_EQ(3.0, m.vecareaofTriangle3D_f(vec({2, 0, 0}), vec({0, 3, 0})).toDouble());
    // Zero, empty, mismatched and non-numeric vectors.
    EXPECT_TRUE(m.vecangle_f(vec({0, 0}), vec({1, 0})).isNull());
    EXPECT_TRUE(m.scalproj_f(vec({1, 0}), vec({0, 0})).isNull());
    EXPECT_TRUE(m.dotprod_f(vec({1, 2}), vec({1, 2, 3})).isNull());
    EXPECT_TRUE(m.crossprod_f(vec({1, 2}), vec({1, 2})).isNull());
    EXPECT_TRUE(m.norm_f(vhVector()).isNull());
    EXPECT_TRUE(m.norm_f(d(3)).isNull());
    EXPECT_TRUE(m.norm_f(vhVector(std::vector<vhValue>{vhSymbolicValue("a", true, {})}, true)).isNull());
    EXPECT_TRUE(m.norm_f(vec({1, std::numeric_limits<double>::quiet_NaN()})).isNull());
}

TEST(Geometry, Intersections)
{
    vhMath m;
    // The z axis through the plane z = 2.
    const vhValue p = m.intersecLinePlane_f(d(0), d(0), d(0), d(0), d(0), d(1), d(0), d(0), d(2), d(1), d(0), d(2), d(0),
                                            d(1), d(2));
    ASSERT_EQ(3u, p.vectorSize());
    EXPECT_EQ(2.0, p.valueToDouble(2));
    EXPECT_TRUE(m.intersecLinePlane_f(d(0), d(0), d(0), d(1), d(0), d(0), d(0), d(0), d(2), d(1), d(0), d(2), d(0),
                                      d(1), d(2))
                    .isNull());
    // The planes z = 0 and x = 1 meet in the line x = 1, z = 0.
    const std::vector<vhValue> a = ds({0, 0, 0, 1, 0, 0, 0, 1, 0, 1, 0, 0, 1, 1, 0, 1, 0, 5});
    const vhValue line = m.intersecPlanes_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11],
                                            a[12], a[13], a[14], a[15], a[16], a[17]);
    ASSERT_EQ(tagMatrix, line.valueType());
    EXPECT_EQ(1.0, line.valueToDouble(0, 0));
    EXPECT_EQ(0.0, line.valueToDouble(0, 2));
    EXPECT_EQ(1.0, std::fabs(line.valueToDouble(1, 1)));
    // The same line from the plane coefficients.
    const vhValue same = m.surfaceIntersection_f(vec({0, 0, 1, 0}), vec({1, 0, 0, -1}));
    EXPECT_EQ(1.0, same.valueToDouble(0, 0));
    EXPECT_EQ(1.0, std::fabs(same.valueToDouble(1, 1)));
    EXPECT_TRUE(m.surfaceIntersection_f(vec({0, 0, 1, 0}), vec({0, 0, 2, 5})).isNull());
    // Parallel planes.
    const std::vector<vhValue> b = ds({0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 0, 1, 0, 1, 1});
    EXPECT_TRUE(m.intersecPlanes_f(b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12],
                                   b[13], b[14], b[15], b[16], b[17])
                    .isNull());
    // A triangle in z = 0 pierced by a vertical triangle in y = 0.5.
    const std::vector<vhValue> t = ds({0, 0, 0, 4, 0, 0, 0, 4, 0, 1, 0.5, -1, 3, 0.5, -1, 1, 0.5, 1});
    const vhValue seg = m.intersecTriangles_f(t[0], t[1], t[2], t[3], t[4], t[5], t[6], t[7], t[8], t[9], t[10], t[11],
                                              t[12], t[13], t[14], t[15], t[16], t[17]);
    ASSERT_EQ(tagMatrix, seg.valueType());
    ASSERT_EQ(2u, seg.matrixRows());
    const double x0 = seg.valueToDouble(0, 0), x1 = seg.valueToDouble(1, 0);
    EXPECT_NEAR(1.0, std::fmin(x0, x1), 1e-12);
    EXPECT_NEAR(2.0, std::fmax(x0, x1), 1e-12);
    for (int r = 0; r < 2; ++r) {
        EXPECT_NEAR(0.5, seg.valueToDouble(r, 1), 1e-12);
        EXPECT_NEAR(0.0, seg.valueToDouble(r, 2), 1e-12);
    }
    // Moved away along x, the second triangle misses the first.
    std::vector<vhValue> far = t;
    for (int k : {9, 12, 15})
        far[k] = d(far[k].toDouble() + 10.0);
    EXPECT_TRUE(m.intersecTriangles_f(far[0], far[1], far[2], far[3], far[4], far[5], far[6], far[7], far[8], far[9],
                                      far[10], far[11], far[12], far[13], far[14], far[15], far[16], far[17])
                    .isNull());
}

TEST(Geometry, RefusalsAndDispatch)
{
    vhMath m;
    const vhValue s = vhSymbolicValue("x", false, {});
    EXPECT_TRUE(m.areColinear_f(s, d(0), d(1), d(1), d(2), d(2)).isNull());
    EXPECT_TRUE(m.areaofTriangle_f(d(std::numeric_limits<double>::infinity()), d(0), d(1), d(1), d(2), d(2)).isNull());
    EXPECT_TRUE(m.areaofTriangle_f(vhValue(), d(0), d(1), d(1), d(2), d(2)).isNull());
    EXPECT_TRUE(m.volumeOfTetrahedron_f(vhComplex(1, 1), d(0), d(0), d(1), d(0), d(0), d(0), d(1), d(0), d(0), d(0), d(1))
                    .isNull());
    EXPECT_TRUE(callFunction(&m, nt_areColinear, ds({0, 0, 1, 1, 2, 2})).toBool());
    EXPECT_EQ(5.0, callFunction(&m, nt_norm, {vec({3, 4})}).toDouble());
    EXPECT_EQ(32.0, callFunction(&m, nt_dotprod, {vec({1, 2, 3}), vec({4, 5, 6})}).toDouble());
    EXPECT_EQ(tagMatrix, callFunction(&m, nt_intersecsurface, {vec({0, 0, 1, 0}), vec({1, 0, 0, -1})}).valueType());
    EXPECT_EQ(4u, callFunction(&m, nt_planeVector, ds({1, 0, 0, 0, 1, 0, 0, 0, 1})).vectorSize());
}
