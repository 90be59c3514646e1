// Geometry of the plane and of space: predicates on points and lines, areas
// and volumes, vectors and their products, planes and their intersections,
// and the points of arcs and circles for graphs.
//
// The arguments are real numbers (points) or vectors of real numbers; every
// other argument, a symbolic one included, gives the undefined value, and so
// do degenerate figures: a triangle without area where a plane is needed, a
// line through one point, a zero vector where a direction is needed.

#include "functions/geometry.h"

#include <cmath>
#include <vector>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "functions/real_rows.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace geometry {

double length(const Vec3& a)
{
    const double scale = std::fmax(std::fabs(a.x), std::fmax(std::fabs(a.y), std::fabs(a.z)));
    if (scale == 0.0 || !std::isfinite(scale))
        return scale;
    const Vec3 s = (1.0 / scale) * a;
    return scale * std::sqrt(dot(s, s));
}

bool planeIntersection(const Vec3& n1, double h1, const Vec3& n2, double h2, Vec3& point, Vec3& direction)
{
    const Vec3 dir = cross(n1, n2);
    const double dirLength = length(dir);
    if (!(dirLength > kRelativeTolerance * length(n1) * length(n2)))
        return false;
    // The point of the line nearest the origin is a combination of the two
    // normals; its weights solve a 2 x 2 system whose determinant is |n1 x n2|^2.
    const double n11 = dot(n1, n1), n22 = dot(n2, n2), n12 = dot(n1, n2);
    const double det = dot(dir, dir);
    const double c1 = (h1 * n22 - h2 * n12) / det, c2 = (h2 * n11 - h1 * n12) / det;
    point = c1 * n1 + c2 * n2;
    direction = (1.0 / dirLength) * dir;
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

bool triangleNormal(const Vec3 t[3], Vec3& n)
{
    const Vec3 a = t[1] - t[0], b = t[2] - t[0];
    n = cross(a, b);
    return length(n) > kRelativeTolerance * length(a) * length(b);
}

namespace {

// The part of triangle t on the plane n.x = h: false when the triangle lies
// wholly on one side. `lo` and `hi` are the two ends (equal when it touches).
bool triangleOnPlane(const Vec3 t[3], const Vec3& n, double h, Vec3& lo, Vec3& hi)
{
    double s[3];
    double scale = 0.0;
    for (int k = 0; k < 3; ++k) {
        s[k] = dot(n, t[k]) - h;
        scale = std::fmax(scale, length(n) * length(t[k]));
    }
    const double eps = kRelativeTolerance * std::fmax(scale, std::fabs(h));
    for (int k = 0; k < 3; ++k)
        if (std::fabs(s[k]) <= eps)
            s[k] = 0.0;
    if ((s[0] > 0 && s[1] > 0 && s[2] > 0) || (s[0] < 0 && s[1] < 0 && s[2] < 0))
        return false;
    std::vector<Vec3> points;
    for (int k = 0; k < 3; ++k) {
        const int j = (k + 1) % 3;
        if (s[k] == 0.0)
            points.push_back(t[k]);
        if ((s[k] < 0 && s[j] > 0) || (s[k] > 0 && s[j] < 0)) {
            const double u = s[k] / (s[k] - s[j]);
            points.push_back(t[k] + u * (t[j] - t[k]));
        }
    }
    if (points.empty())
        return false;
    lo = points.front();
    hi = points.back();
    return true;
}

} // namespace

bool triangleIntersection(const Vec3 t1[3], const Vec3 t2[3], Vec3& from, Vec3& to)
{
    Vec3 n1, n2;
    if (!triangleNormal(t1, n1) || !triangleNormal(t2, n2))
        return false;
    const double h1 = dot(n1, t1[0]), h2 = dot(n2, t2[0]);
    Vec3 p, dir;
    if (!planeIntersection(n1, h1, n2, h2, p, dir))
        return false;
    Vec3 a0, a1, b0, b1;
    if (!triangleOnPlane(t1, n2, h2, a0, a1) || !triangleOnPlane(t2, n1, h1, b0, b1))
        return false;
    // Both pieces lie on the common line: overlap their parameters along it.
    double sa0 = dot(a0 - p, dir), sa1 = dot(a1 - p, dir), sb0 = dot(b0 - p, dir), sb1 = dot(b1 - p, dir);
    if (sa0 > sa1)
        std::swap(sa0, sa1);
    if (sb0 > sb1)
        std::swap(sb0, sb1);
    const double lo = std::fmax(sa0, sb0), hi = std::fmin(sa1, sb1);
    const double scale = std::fmax(std::fmax(std::fabs(sa0), std::fabs(sa1)), std::fmax(std::fabs(sb0), std::fabs(sb1)));
    if (lo > hi + kRelativeTolerance * scale)
        return false;
    from = p + lo * dir;
    to = p + std::fmax(lo, hi) * dir;
    return true;
}

} // namespace geometry

using geometry::Vec3;
using geometry::cross;
using geometry::dot;
using geometry::kRelativeTolerance;
using geometry::length;

namespace {

// Real, finite scalars.
bool reals(std::initializer_list<const vhValue*> args, double* out)
{
    std::size_t k = 0;
    for (const vhValue* a : args) {
        if (!realrows::realArgument(*a, out[k]) || std::isinf(out[k]))
            return false;
        ++k;
    }
    return true;
}

// Points of space from their coordinates, three arguments each.
bool points(std::initializer_list<const vhValue*> args, Vec3* out)
{
    double c[18];
    if (args.size() > 18 || !reals(args, c))
        return false;
    for (std::size_t k = 0; k * 3 < args.size(); ++k)
        out[k] = {c[3 * k], c[3 * k + 1], c[3 * k + 2]};
    return true;
}

// The elements of a vector (also inside a one-term expression), as real
// finite numbers or as complex ones.
bool vectorElements(const vhValue& v, std::vector<double>& re, std::vector<double>& im)
{
    if (!elementwise::isArray(v))
        return false;
    vhValue holder;
    const vhValue& a = elementwise::arrayOf(v, holder);
    if (a.valueType() != tagVector || a.isImage() || a.vectorSize() == 0)
        return false;
    const unsigned int n = a.vectorSize();
    re.assign(n, 0.0);
    im.assign(n, 0.0);
    const double* raw = a.numericValues();
    const double* rawIm = a.numericImValues();
    for (unsigned int i = 0; i < n; ++i) {
        if (raw) {
            re[i] = raw[i];
            im[i] = rawIm ? rawIm[i] : 0.0;
        } else {
            const vhValue e = a.value(i);
            if (e.isComplex()) {
                re[i] = e.complexRe();
                im[i] = e.complexIm();
            } else if (!realrows::realArgument(e, re[i])) {
                return false;
            }
        }
        if (!std::isfinite(re[i]) || !std::isfinite(im[i]))
            return false;
    }
    return true;
}

bool realVector(const vhValue& v, std::vector<double>& out)
{
    std::vector<double> im;
    if (!vectorElements(v, out, im))
        return false;
    for (double x : im)
        if (x != 0.0)
            return false;
    return true;
}

bool vector3(const vhValue& v, Vec3& out)
{
    std::vector<double> e;
    if (!realVector(v, e) || e.size() != 3)
        return false;
    out = {e[0], e[1], e[2]};
    return true;
}

bool rowOrientation(const vhValue& v)
{
    vhValue holder;
    return elementwise::arrayOf(v, holder).isRowVector();
}

// The Euclidean norm without overflow for large elements.
double norm(const std::vector<double>& re, const std::vector<double>& im)
{
    double scale = 0.0;
    for (std::size_t i = 0; i < re.size(); ++i)
        scale = std::fmax(scale, std::fmax(std::fabs(re[i]), std::fabs(im[i])));
    if (scale == 0.0)
        return 0.0;
    double sum = 0.0;
    for (std::size_t i = 0; i < re.size(); ++i) {
        const double a = re[i] / scale, b = im[i] / scale;
        sum += a * a + b * b;
    }
    return scale * std::sqrt(sum);
}

double dotReal(const std::vector<double>& a, const std::vector<double>& b)
{
    double s = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        s += a[i] * b[i];
    return s;
}

vhValue numbers(std::initializer_list<double> values, bool row)
{
    vhValue v = vhVector(static_cast<unsigned int>(values.size()), row, true, false);
    double* out = v.numericValues();
    if (!out)
        return vhValue();
    std::size_t k = 0;
    for (double x : values) {
        if (!std::isfinite(x))
            return vhValue();
        out[k++] = x;
    }
    return v;
}

vhValue point3(const Vec3& p, bool row = true) { return numbers({p.x, p.y, p.z}, row); }

vhValue finiteDouble(double d) { return std::isfinite(d) ? vhValue(vhDouble(d)) : vhValue(); }

// The matrix of two points of space, one per row.
vhValue twoRows(const Vec3& a, const Vec3& b)
{
    const double v[6] = {a.x, a.y, a.z, b.x, b.y, b.z};
    vhValue m = vhMatrix(2, 3, true, false, false);
    double* out = m.numericValues();
    if (!out)
        return vhValue();
    // Numeric matrices are stored row after row.
    for (int k = 0; k < 6; ++k) {
        if (!std::isfinite(v[k]))
            return vhValue();
        out[k] = v[k];
    }
    return m;
}

// A 3 x 3 determinant and the Hadamard bound of its rows, which is the
// scale that its rounding error is measured against.
double det3(const Vec3& a, const Vec3& b, const Vec3& c, double& bound)
{
    bound = length(a) * length(b) * length(c);
    return dot(a, cross(b, c));
}

bool nearZero(double value, double scale) { return std::fabs(value) <= kRelativeTolerance * scale; }

// Two plane points are on a line through a third when the parallelogram
// they span has no area.
bool colinear2D(double x1, double y1, double x2, double y2, double x3, double y3)
{
    const Vec3 a{x2 - x1, y2 - y1, 0.0}, b{x3 - x1, y3 - y1, 0.0};
    return nearZero(cross(a, b).z, length(a) * length(b));
}

const unsigned int kCurvePoints = 101;

// Points on the circle around (cx, cy) from angle `from` to `to` (radians),
// evenly spaced, one per row.
vhValue arcPoints(double cx, double cy, double r, double from, double to)
{
    if (!(r > 0.0) || !std::isfinite(r) || !std::isfinite(from) || !std::isfinite(to) || !std::isfinite(cx) ||
        !std::isfinite(cy))
        return vhValue();
    vhValue m = vhMatrix(kCurvePoints, 2, true, false, false);
    double* out = m.numericValues();
    if (!out)
        return vhValue();
    for (unsigned int k = 0; k < kCurvePoints; ++k) {
        const double t = from + (to - from) * k / (kCurvePoints - 1);
        out[2 * k] = cx + r * std::cos(t);
        out[2 * k + 1] = cy + r * std::sin(t);
    }
    return m;
}

vhValue plotArc(const vhValue& circle, const vhValue& angles, AngleUnit unit)
{
    std::vector<double> c, a;
    if (!realVector(circle, c) || !realVector(angles, a) || c.size() != 3 || a.size() != 2)
        return vhValue();
    return arcPoints(c[0], c[1], c[2], elementwise::toRadians(a[0], unit), elementwise::toRadians(a[1], unit));
}

} // namespace

vhValue PlotArc_f(const vhValue& circle, const vhValue& angles) { return plotArc(circle, angles, angleRadians); }

// --- the plane ----------------------------------------------------------------

vhValue vhMath::areColinear_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2,
                              const vhValue& x3, const vhValue& y3)
{
    double c[6];
    if (!reals({&x1, &y1, &x2, &y2, &x3, &y3}, c))
        return vhValue();
    return vhBoolean(colinear2D(c[0], c[1], c[2], c[3], c[4], c[5]));
}

// Four points lie on one circle when the determinant of the rows
// (x^2 + y^2, x, y) taken from the first point vanishes; that also holds for
// four points on one line, which no circle passes through, so the first
// three points must not be on a line.
vhValue vhMath::areCocyclic_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2,
                              const vhValue& x3, const vhValue& y3, const vhValue& x4, const vhValue& y4)
{
    double c[8];
    if (!reals({&x1, &y1, &x2, &y2, &x3, &y3, &x4, &y4}, c))
        return vhValue();
    if (colinear2D(c[0], c[1], c[2], c[3], c[4], c[5]))
        return vhBoolean(false);
    Vec3 rows[3];
    for (int k = 0; k < 3; ++k) {
        const double dx = c[2 * k + 2] - c[0], dy = c[2 * k + 3] - c[1];
        rows[k] = {dx * dx + dy * dy, dx, dy};
    }
    double bound;
    const double det = det3(rows[0], rows[1], rows[2], bound);
    return vhBoolean(nearZero(det, bound));
}

// Three lines y = k x + n meet in one point when the third passes through
// the crossing of the two that cross at the widest angle; the miss is
// measured against the size of the terms that make it. Three parallel lines
// share a point only when they are one line.
vhValue vhMath::areConcurent_f(const vhValue& k1, const vhValue& n1, const vhValue& k2, const vhValue& n2,
                               const vhValue& k3, const vhValue& n3)
{
    double c[6];
    if (!reals({&k1, &n1, &k2, &n2, &k3, &n3}, c))
        return vhValue();
    const double k[3] = {c[0], c[2], c[4]}, n[3] = {c[1], c[3], c[5]};
    if (k[0] == k[1] && k[1] == k[2])
        return vhBoolean(n[0] == n[1] && n[1] == n[2]);
    int i = 0, j = 1, l = 2;
    if (std::fabs(k[0] - k[2]) > std::fabs(k[i] - k[j])) {
        j = 2;
        l = 1;
    }
    if (std::fabs(k[1] - k[2]) > std::fabs(k[i] - k[j])) {
        i = 1;
        j = 2;
        l = 0;
    }
    const double x = (n[j] - n[i]) / (k[i] - k[j]);
    const double y = k[i] * x + n[i];
    const double miss = k[l] * x + n[l] - y;
    if (!std::isfinite(miss))
        return vhValue();
    return vhBoolean(nearZero(miss, std::fabs(k[l] * x) + std::fabs(n[l]) + std::fabs(y)));
}

// The acute angle between two lines, from 0 to a right angle.
vhValue vhMath::anglebtwlines_f(const vhValue& k1, const vhValue& k2)
{
    double c[2];
    if (!reals({&k1, &k2}, c))
        return vhValue();
    const double a = std::atan2(std::fabs(c[1] - c[0]), std::fabs(1.0 + c[0] * c[1]));
    return finiteDouble(elementwise::inverseAngle(a, m_angleUnit, m_convertResultsToRadians));
}

vhValue vhMath::areaofTriangle_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2,
                                 const vhValue& x3, const vhValue& y3)
{
    double c[6];
    if (!reals({&x1, &y1, &x2, &y2, &x3, &y3}, c))
        return vhValue();
    const Vec3 a{c[2] - c[0], c[3] - c[1], 0.0}, b{c[4] - c[0], c[5] - c[1], 0.0};
    return finiteDouble(std::fabs(cross(a, b).z) / 2.0);
}

vhValue vhMath::angle_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2,
                        const vhValue& x3, const vhValue& y3)
{
    double c[6];
    if (!reals({&x1, &y1, &x2, &y2, &x3, &y3}, c))
        return vhValue();
    const Vec3 a{c[2] - c[0], c[3] - c[1], 0.0}, b{c[4] - c[0], c[5] - c[1], 0.0};
    if (length(a) == 0.0 || length(b) == 0.0)
        return vhValue();
    const double angle = std::atan2(std::fabs(cross(a, b).z), dot(a, b));
    return finiteDouble(elementwise::inverseAngle(angle, m_angleUnit, m_convertResultsToRadians));
}

vhValue vhMath::PlotArc_f(const vhValue& circle, const vhValue& angles)
{
    return plotArc(circle, angles, m_angleUnit);
}

// The first point is repeated at the end, so that the drawn circle closes.
vhValue vhMath::PlotCircle_f(const vhValue& centre, const vhValue& radius)
{
    std::vector<double> c;
    double r;
    if (!realVector(centre, c) || c.size() != 2 || !realrows::realArgument(radius, r))
        return vhValue();
    return arcPoints(c[0], c[1], r, 0.0, 2.0 * elementwise::kPi);
}

// --- space ----------------------------------------------------------------------

vhValue vhMath::areComplanar_f(const vhValue& x1, const vhValue& y1, const vhValue& z1, const vhValue& x2,
                               const vhValue& y2, const vhValue& z2, const vhValue& x3, const vhValue& y3,
                               const vhValue& z3, const vhValue& x4, const vhValue& y4, const vhValue& z4)
{
    Vec3 p[4];
    if (!points({&x1, &y1, &z1, &x2, &y2, &z2, &x3, &y3, &z3, &x4, &y4, &z4}, p))
        return vhValue();
    double bound;
    const double det = det3(p[1] - p[0], p[2] - p[0], p[3] - p[0], bound);
    return vhBoolean(nearZero(det, bound));
}

vhValue vhMath::volumeOfTetrahedron_f(const vhValue& x1, const vhValue& y1, const vhValue& z1, const vhValue& x2,
                                      const vhValue& y2, const vhValue& z2, const vhValue& x3, const vhValue& y3,
                                      const vhValue& z3, const vhValue& x4, const vhValue& y4, const vhValue& z4)
{
    Vec3 p[4];
    if (!points({&x1, &y1, &z1, &x2, &y2, &z2, &x3, &y3, &z3, &x4, &y4, &z4}, p))
        return vhValue();
    double bound;
    return finiteDouble(std::fabs(det3(p[1] - p[0], p[2] - p[0], p[3] - p[0], bound)) / 6.0);
}

vhValue vhMath::areaofParal3D_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                                const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                                const vhValue& zC)
{
    Vec3 p[3];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC}, p))
        return vhValue();
    return finiteDouble(length(cross(p[1] - p[0], p[2] - p[0])));
}

vhValue vhMath::areaofTriangle3D_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                                   const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                                   const vhValue& zC)
{
    Vec3 p[3];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC}, p))
        return vhValue();
    return finiteDouble(length(cross(p[1] - p[0], p[2] - p[0])) / 2.0);
}

vhValue vhMath::distPointLine_f(const vhValue& xP, const vhValue& yP, const vhValue& zP, const vhValue& xA,
                                const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB,
                                const vhValue& zB)
{
    Vec3 p[3];
    if (!points({&xP, &yP, &zP, &xA, &yA, &zA, &xB, &yB, &zB}, p))
        return vhValue();
    const Vec3 dir = p[2] - p[1];
    const double l = length(dir);
    if (l == 0.0)
        return vhValue();
    return finiteDouble(length(cross(p[0] - p[1], dir)) / l);
}

vhValue vhMath::planeVector_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                              const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                              const vhValue& zC)
{
    Vec3 p[3];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC}, p))
        return vhValue();
    Vec3 n;
    if (!geometry::triangleNormal(p, n))
        return vhValue();
    return numbers({n.x, n.y, n.z, -dot(n, p[0])}, true);
}

vhValue vhMath::intersecLinePlane_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                                    const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                                    const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD,
                                    const vhValue& xE, const vhValue& yE, const vhValue& zE)
{
    Vec3 p[5];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC, &xD, &yD, &zD, &xE, &yE, &zE}, p))
        return vhValue();
    const Vec3 plane[3] = {p[2], p[3], p[4]};
    Vec3 n;
    const Vec3 dir = p[1] - p[0];
    if (!geometry::triangleNormal(plane, n) || length(dir) == 0.0)
        return vhValue();
    const double along = dot(n, dir);
    if (nearZero(along, length(n) * length(dir)))
        return vhValue();
    const double t = dot(n, plane[0] - p[0]) / along;
    return point3(p[0] + t * dir);
}

vhValue vhMath::intersecPlanes_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                                 const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                                 const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD,
                                 const vhValue& xE, const vhValue& yE, const vhValue& zE, const vhValue& xF,
                                 const vhValue& yF, const vhValue& zF)
{
    Vec3 p[6];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC, &xD, &yD, &zD, &xE, &yE, &zE, &xF, &yF, &zF}, p))
        return vhValue();
    Vec3 n1, n2;
    if (!geometry::triangleNormal(p, n1) || !geometry::triangleNormal(p + 3, n2))
        return vhValue();
    Vec3 point, direction;
    if (!geometry::planeIntersection(n1, dot(n1, p[0]), n2, dot(n2, p[3]), point, direction))
        return vhValue();
    return twoRows(point, direction);
}

vhValue vhMath::intersecTriangles_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB,
                                    const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC,
                                    const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD,
                                    const vhValue& xE, const vhValue& yE, const vhValue& zE, const vhValue& xF,
                                    const vhValue& yF, const vhValue& zF)
{
    Vec3 p[6];
    if (!points({&xA, &yA, &zA, &xB, &yB, &zB, &xC, &yC, &zC, &xD, &yD, &zD, &xE, &yE, &zE, &xF, &yF, &zF}, p))
        return vhValue();
    Vec3 from, to;
    if (!geometry::triangleIntersection(p, p + 3, from, to))
        return vhValue();
    return twoRows(from, to);
}

// Two planes given by the coefficients [a, b, c, d] of a x + b y + c z + d = 0,
// as planeVector gives them: their line as in intersecPlanes.
vhValue vhMath::surfaceIntersection_f(const vhValue& first, const vhValue& second)
{
    std::vector<double> f, s;
    if (!realVector(first, f) || !realVector(second, s) || f.size() != 4 || s.size() != 4)
        return vhValue();
    const Vec3 n1{f[0], f[1], f[2]}, n2{s[0], s[1], s[2]};
    if (length(n1) == 0.0 || length(n2) == 0.0)
        return vhValue();
    Vec3 point, direction;
    if (!geometry::planeIntersection(n1, -f[3], n2, -s[3], point, direction))
        return vhValue();
    return twoRows(point, direction);
}

// --- vectors ---------------------------------------------------------------------

vhValue vhMath::norm_f(const vhValue& a)
{
    std::vector<double> re, im;
    if (!vectorElements(a, re, im))
        return vhValue();
    return finiteDouble(norm(re, im));
}

// The dot product multiplies the elements as they are, without conjugating
// either vector.
vhValue vhMath::dotprod_f(const vhValue& a, const vhValue& b)
{
    std::vector<double> ar, ai, br, bi;
    if (!vectorElements(a, ar, ai) || !vectorElements(b, br, bi) || ar.size() != br.size())
        return vhValue();
    double re = 0.0, im = 0.0;
    bool complex = false;
    for (std::size_t i = 0; i < ar.size(); ++i) {
        re += ar[i] * br[i] - ai[i] * bi[i];
        im += ar[i] * bi[i] + ai[i] * br[i];
        complex = complex || ai[i] != 0.0 || bi[i] != 0.0;
    }
    if (!std::isfinite(re) || !std::isfinite(im))
        return vhValue();
    return complex ? vhValue(vhComplex(re, im)) : vhValue(vhDouble(re));
}

// The angle from the difference and the sum of the unit vectors stays
// accurate for nearly parallel and nearly opposite vectors.
vhValue vhMath::vecangle_f(const vhValue& a, const vhValue& b)
{
    std::vector<double> x, y;
    if (!realVector(a, x) || !realVector(b, y) || x.size() != y.size())
        return vhValue();
    const std::vector<double> zero(x.size(), 0.0);
    const double nx = norm(x, zero), ny = norm(y, zero);
    if (nx == 0.0 || ny == 0.0 || !std::isfinite(nx) || !std::isfinite(ny))
        return vhValue();
    std::vector<double> diff(x.size()), sum(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        diff[i] = x[i] / nx - y[i] / ny;
        sum[i] = x[i] / nx + y[i] / ny;
    }
    const double angle = 2.0 * std::atan2(norm(diff, zero), norm(sum, zero));
    return finiteDouble(elementwise::inverseAngle(angle, m_angleUnit, m_convertResultsToRadians));
}

vhValue vhMath::areOrthogonal_f(const vhValue& a, const vhValue& b)
{
    std::vector<double> x, y;
    if (!realVector(a, x) || !realVector(b, y) || x.size() != y.size())
        return vhValue();
    const std::vector<double> zero(x.size(), 0.0);
    return vhBoolean(nearZero(dotReal(x, y), norm(x, zero) * norm(y, zero)));
}

vhValue vhMath::scalproj_f(const vhValue& a, const vhValue& b)
{
    std::vector<double> x, y;
    if (!realVector(a, x) || !realVector(b, y) || x.size() != y.size())
        return vhValue();
    const double ny = norm(y, std::vector<double>(y.size(), 0.0));
    if (ny == 0.0)
        return vhValue();
    return finiteDouble(dotReal(x, y) / ny);
}

// The projection lies along b and keeps b's orientation.
vhValue vhMath::vecproj_f(const vhValue& a, const vhValue& b)
{
    std::vector<double> x, y;
    if (!realVector(a, x) || !realVector(b, y) || x.size() != y.size())
        return vhValue();
    const double ny = norm(y, std::vector<double>(y.size(), 0.0));
    if (ny == 0.0)
        return vhValue();
    // (a.u) u with the unit vector u of b, which cannot overflow b.b.
    double s = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i)
        s += x[i] * (y[i] / ny);
    vhValue result = vhVector(static_cast<unsigned int>(y.size()), rowOrientation(b), true, false);
    double* out = result.numericValues();
    if (!out)
        return vhValue();
    for (std::size_t i = 0; i < y.size(); ++i) {
        out[i] = s * (y[i] / ny);
        if (!std::isfinite(out[i]))
            return vhValue();
    }
    return result;
}

// The product keeps the orientation of a.
vhValue vhMath::crossprod_f(const vhValue& a, const vhValue& b)
{
    Vec3 x, y;
    if (!vector3(a, x) || !vector3(b, y))
        return vhValue();
    return point3(cross(x, y), rowOrientation(a));
}

vhValue vhMath::vecareaofParal3D_f(const vhValue& a, const vhValue& b)
{
    Vec3 x, y;
    if (!vector3(a, x) || !vector3(b, y))
        return vhValue();
    return finiteDouble(length(cross(x, y)));
}

vhValue vhMath::vecareaofTriangle3D_f(const vhValue& a, const vhValue& b)
{
    Vec3 x, y;
    if (!vector3(a, x) || !vector3(b, y))
        return vhValue();
    return finiteDouble(length(cross(x, y)) / 2.0);
}

} // namespace ValueTypes
} // namespace VarnholtMath
