// Conversions of points between Cartesian, polar, cylindrical and spherical
// coordinates. Angles in the arguments and results are in the worksheet's
// angle unit: phi is the azimuth from the positive x axis, theta the polar
// angle from the positive z axis. The angles are taken with atan2, so that
// every quadrant and the axes give the angle a user expects, and the origin
// gives angles of 0.
//
// A whole conversion gives a row vector of the coordinates and takes real
// numbers; a single coordinate maps over vectors and matrices as well.

#include <cmath>

#include "frame/math.h"
#include "functions/real_rows.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

struct Angles {
    AngleUnit unit;
    unsigned int resultsInRadians;
    double in(double a) const { return elementwise::toRadians(a, unit); }
    double out(double a) const { return elementwise::inverseAngle(a, unit, resultsInRadians); }
};

// The kernels: each fills c[0..2] from the arguments a[0..2].
void toPolar(const double* a, double* c, const Angles& u)
{
    c[0] = std::hypot(a[0], a[1]);
    c[1] = u.out(std::atan2(a[1], a[0]));
}

void fromPolar(const double* a, double* c, const Angles& u)
{
    const double phi = u.in(a[1]);
    c[0] = a[0] * std::cos(phi);
    c[1] = a[0] * std::sin(phi);
}

void toSphere(const double* a, double* c, const Angles& u)
{
    const double rho = std::hypot(a[0], a[1]);
    c[0] = std::hypot(rho, a[2]);
    c[1] = u.out(std::atan2(a[1], a[0]));
    c[2] = u.out(std::atan2(rho, a[2]));
}

void fromSphere(const double* a, double* c, const Angles& u)
{
    const double phi = u.in(a[1]), theta = u.in(a[2]);
    const double rho = a[0] * std::sin(theta);
    c[0] = rho * std::cos(phi);
    c[1] = rho * std::sin(phi);
    c[2] = a[0] * std::cos(theta);
}

void toCylinder(const double* a, double* c, const Angles& u)
{
    c[0] = std::hypot(a[0], a[1]);
    c[1] = u.out(std::atan2(a[1], a[0]));
    c[2] = a[2];
}

void fromCylinder(const double* a, double* c, const Angles& u)
{
    const double phi = u.in(a[1]);
    c[0] = a[0] * std::cos(phi);
    c[1] = a[0] * std::sin(phi);
    c[2] = a[2];
}

// The azimuth passes through unchanged, also in its unit.
void cylinderToSphere(const double* a, double* c, const Angles& u)
{
    c[0] = std::hypot(a[0], a[2]);
    c[1] = a[1];
    c[2] = u.out(std::atan2(a[0], a[2]));
}

void sphereToCylinder(const double* a, double* c, const Angles& u)
{
    const double theta = u.in(a[2]);
    c[0] = a[0] * std::sin(theta);
    c[1] = a[1];
    c[2] = a[0] * std::cos(theta);
}

typedef void (*Kernel)(const double*, double*, const Angles&);

// The whole point as a row vector; real numbers only.
vhValue point(const std::vector<const vhValue*>& args, unsigned int size, Kernel kernel, const Angles& u)
{
    double a[3] = {0.0, 0.0, 0.0}, c[3] = {0.0, 0.0, 0.0};
    for (std::size_t k = 0; k < args.size(); ++k)
        if (!realrows::realArgument(*args[k], a[k]) || std::isinf(a[k]))
            return vhValue();
    kernel(a, c, u);
    vhValue result = vhVector(size, true, true, false);
    double* out = result.numericValues();
    if (!out)
        return vhValue();
    for (unsigned int k = 0; k < size; ++k) {
        if (std::isnan(c[k]))
            return vhValue();
        out[k] = c[k];
    }
    return result;
}

// One coordinate, mapped over arrays.
vhValue coordinate(const std::vector<const vhValue*>& args, int id, Kernel kernel, unsigned int index,
                   const Angles& u)
{
    return realrows::map(args, id, [kernel, index, &u](const double* a) {
        double c[3] = {0.0, 0.0, 0.0};
        kernel(a, c, u);
        return c[index];
    });
}

} // namespace

#define VH_ANGLES Angles{m_angleUnit, m_convertResultsToRadians}

vhValue vhMath::cartesian2polar_f(const vhValue& x, const vhValue& y) { return point({&x, &y}, 2, toPolar, VH_ANGLES); }
vhValue vhMath::cartesian2polarR_f(const vhValue& x, const vhValue& y)
{
    return coordinate({&x, &y}, nt_cartesian2polarR, toPolar, 0, VH_ANGLES);
}
vhValue vhMath::cartesian2polarF_f(const vhValue& x, const vhValue& y)
{
    return coordinate({&x, &y}, nt_cartesian2polarF, toPolar, 1, VH_ANGLES);
}

vhValue vhMath::polar2cartesian_f(const vhValue& r, const vhValue& phi) { return point({&r, &phi}, 2, fromPolar, VH_ANGLES); }
vhValue vhMath::polar2cartesianX_f(const vhValue& r, const vhValue& phi)
{
    return coordinate({&r, &phi}, nt_polar2cartesianX, fromPolar, 0, VH_ANGLES);
}
vhValue vhMath::polar2cartesianY_f(const vhValue& r, const vhValue& phi)
{
    return coordinate({&r, &phi}, nt_polar2cartesianY, fromPolar, 1, VH_ANGLES);
}

#define VH_POINT3(NAME, KERNEL)                                                                    \
    vhValue vhMath::NAME##_f(const vhValue& a, const vhValue& b, const vhValue& c)                 \
    {                                                                                              \
        return point({&a, &b, &c}, 3, KERNEL, VH_ANGLES);                                          \
    }
#define VH_COORDINATE3(NAME, KERNEL, INDEX)                                                        \
    vhValue vhMath::NAME##_f(const vhValue& a, const vhValue& b, const vhValue& c)                 \
    {                                                                                              \
        return coordinate({&a, &b, &c}, nt_##NAME, KERNEL, INDEX, VH_ANGLES);                      \
    }

VH_POINT3(cartesian2sphere, toSphere)
VH_COORDINATE3(cartesian2sphereR, toSphere, 0)
VH_COORDINATE3(cartesian2sphereF, toSphere, 1)
VH_COORDINATE3(cartesian2sphereT, toSphere, 2)
VH_POINT3(sphere2cartesian, fromSphere)
VH_COORDINATE3(sphere2cartesianX, fromSphere, 0)
VH_COORDINATE3(sphere2cartesianY, fromSphere, 1)
VH_COORDINATE3(sphere2cartesianZ, fromSphere, 2)
VH_POINT3(cartesian2cylinder, toCylinder)
VH_COORDINATE3(cartesian2cylinderR, toCylinder, 0)
VH_COORDINATE3(cartesian2cylinderF, toCylinder, 1)
VH_COORDINATE3(cartesian2cylinderZ, toCylinder, 2)
VH_POINT3(cylinder2cartesian, fromCylinder)
VH_COORDINATE3(cylinder2cartesianX, fromCylinder, 0)
VH_COORDINATE3(cylinder2cartesianY, fromCylinder, 1)
VH_COORDINATE3(cylinder2cartesianZ, fromCylinder, 2)
VH_POINT3(cylinder2sphere, cylinderToSphere)
VH_COORDINATE3(cylinder2sphereR, cylinderToSphere, 0)
VH_COORDINATE3(cylinder2sphereF, cylinderToSphere, 1)
VH_COORDINATE3(cylinder2sphereT, cylinderToSphere, 2)
VH_POINT3(sphere2cylinder, sphereToCylinder)
VH_COORDINATE3(sphere2cylinderR, sphereToCylinder, 0)
VH_COORDINATE3(sphere2cylinderF, sphereToCylinder, 1)
VH_COORDINATE3(sphere2cylinderZ, sphereToCylinder, 2)

#undef VH_POINT3
#undef VH_COORDINATE3
#undef VH_ANGLES

} // namespace ValueTypes
} // namespace VarnholtMath
