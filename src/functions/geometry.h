#pragma once

// Geometry of points, lines, planes and vectors on plain doubles, and the
// free twin of the arc of the graphs.

#include "value/export.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace geometry {

struct Vec3 {
    double x, y, z;
};

inline Vec3 operator-(const Vec3& a, const Vec3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Vec3 operator+(const Vec3& a, const Vec3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Vec3 operator*(double s, const Vec3& a) { return {s * a.x, s * a.y, s * a.z}; }
inline double dot(const Vec3& a, const Vec3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Vec3 cross(const Vec3& a, const Vec3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double length(const Vec3& a);

// Relative tolerance of the predicates: a quantity counts as zero when it is
// below this fraction of the scale its inputs give it, so that points built
// from rounded decimals still lie on their line, circle or plane.
const double kRelativeTolerance = 1e-10;

// The segment where two triangles meet: false when they miss each other or
// lie in one plane.
bool triangleIntersection(const Vec3 t1[3], const Vec3 t2[3], Vec3& from, Vec3& to);

// The line where two planes n.x = h meet: a point and a unit direction;
// false for parallel planes.
bool planeIntersection(const Vec3& n1, double h1, const Vec3& n2, double h2, Vec3& point, Vec3& direction);

// The normal of the plane through the three points t, false when they span no
// plane (relative to the lengths of the two edges from t[0]).
bool triangleNormal(const Vec3 t[3], Vec3& n);

} // namespace geometry

// The arc points of the graphs with angles in radians: `circle` is
// [x, y, r], `angles` [start, end].
VH_EXPORT vhValue PlotArc_f(const vhValue& circle, const vhValue& angles);

} // namespace ValueTypes
} // namespace VarnholtMath
