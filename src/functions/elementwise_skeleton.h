#pragma once

// The common frame of the calculator-key functions. A function of one
// argument answers, in this order: undefined for an undefined argument, a held
// symbolic call for a symbolic one, an array of results for a vector or a
// matrix, then the complex formula, then the real formula; anything else
// (strings, units inside arrays, handles) stays undefined. A function of two
// arguments first asks that the two can be used side by side.
//
// Arrays are mapped element by element. The result has the argument's shape
// and keeps numeric storage when the argument has it; an undefined element is
// stored as NaN. Each element keeps the type its function gives it: when the
// results of a real array leave the reals, the result holds its elements one
// by one, so that [4, -4] under sqrt gives a real 2 beside a complex 2i.
// A numeric real array takes a fast path over its raw doubles that gives the
// very same bits; only the elements whose result leaves the reals go through
// the element path.

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "frame/math.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace elementwise {

// The stored pi and half pi that the exact-zero tests divide by.
constexpr double kPi = 3.141592653589793;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kLn2 = 0.6931471805599453;
constexpr double kLn10 = 2.302585092994046;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

// --- angle units ------------------------------------------------------------

// Degrees and gradians are the only units that convert; every other number
// behaves as radians.
inline double toRadians(double x, AngleUnit unit)
{
    if (unit == angleDegrees)
        return x * kPi / 180.0;
    if (unit == angleGradians)
        return x * kPi / 200.0;
    return x;
}

inline double fromRadians(double x, AngleUnit unit)
{
    if (unit == angleDegrees)
        return x * 180.0 / kPi;
    if (unit == angleGradians)
        return x * 200.0 / kPi;
    return x;
}

// The result conversion of the direct trigonometric functions: repeated
// `count` times, from the argument's unit into radians.
inline double repeatToRadians(double x, AngleUnit unit, unsigned int count)
{
    if (unit != angleDegrees && unit != angleGradians)
        return x;
    for (unsigned int k = 0; k < count; ++k)
        x = toRadians(x, unit);
    return x;
}

// The conversion of an inverse function's result: only while no integration
// asks for radians results.
inline double inverseAngle(double x, AngleUnit unit, unsigned int convertResultsToRadians)
{
    return convertResultsToRadians == 0 ? fromRadians(x, unit) : x;
}

// --- reading values ---------------------------------------------------------

// True for a vector or a matrix, also inside a one-term expression.
bool isArray(const vhValue& v);

// The array itself, without the one-term expressions around it. The value
// returned refers to v or to holder.
const vhValue& arrayOf(const vhValue& v, vhValue& holder);

// A real scalar that is no NaN.
inline bool realOf(const vhValue& v, double& d)
{
    if (!v.isDouble())
        return false;
    d = v.toDouble();
    return !std::isnan(d);
}

// A complex scalar whose parts are no NaN.
inline bool complexOf(const vhValue& v, double& a, double& b)
{
    if (!v.isComplex())
        return false;
    a = v.complexRe();
    b = v.complexIm();
    return !std::isnan(a) && !std::isnan(b);
}

// The tag of the value behind one-term expressions.
int innerTag(const vhValue& v);

// A real zero (Boolean, integer or double).
inline bool isRealZero(const vhValue& v)
{
    double d;
    return realOf(v, d) && d == 0.0;
}

// A real or complex scalar with an infinite part.
bool isScalarInfinity(const vhValue& v);

// A double that is undefined, or the double itself. The result is built in
// its return slot, with no record in between.
inline vhValue doubleOrUndefined(double d)
{
    vhValue r;
    if (!std::isnan(d))
        r.setDouble(d);
    return r;
}

// A complex number that is undefined when a part is NaN.
inline vhValue complexOrUndefined(double re, double im)
{
    vhValue r;
    if (!std::isnan(re) && !std::isnan(im))
        r.setComplex(re, im);
    return r;
}

// The held call of catalogue function `id`.
vhValue symbolicCall(int id, const std::vector<vhValue>& arguments);

// Two values that can be used side by side: two real numbers, two complex
// numbers, two vectors of one size and orientation, two matrices of one
// shape, or two symbolic atoms of one tag.
bool aligned(const vhValue& x, const vhValue& y);

// --- arrays -----------------------------------------------------------------

// An empty result of the array's tag and shape: numeric storage for a
// numeric array or an image, elements otherwise.
vhValue sameShape(const vhValue& array);

// After mapping a real array: a result that turned complex holds its
// elements one by one instead, real ones as reals and complex ones as
// complex numbers.
void keepElementTypes(const vhValue& argument, vhValue& result);

// The element path: f on every element, each result stored at its place.
template <class Element> vhValue mapElements(const vhValue& array, Element f)
{
    const unsigned int n = array.vectorSize();
    vhValue result = sameShape(array);
    for (unsigned int i = 0; i < n; ++i)
        result.setValue(f(array.value(i)), i);
    keepElementTypes(array, result);
    return result;
}

// The fast path for a numeric real array. kernel(x, out) computes one
// element in the reals, out NaN meaning undefined, and returns false when the
// element leaves the reals; such elements go through f. The argument given to
// the kernel is the number that the element path would read: a whole number
// reads as an integer, so a negative zero reads as 0.
template <class Kernel, class Element> vhValue mapReal(const vhValue& array, Kernel kernel, Element f)
{
    const double* in = array.numericValues();
    if (!in || array.numericImValues())
        return mapElements(array, f);
    const unsigned int n = array.vectorSize();
    vhValue result = sameShape(array);
    double* out = result.numericValues();
    if (!out || result.vectorSize() != n)
        return mapElements(array, f);
    std::vector<unsigned int> others;
    for (unsigned int i = 0; i < n; ++i) {
        double x = in[i];
        if (std::isnan(x)) {
            out[i] = kNaN;
            continue;
        }
        if (x == 0.0)
            x = 0.0;
        double r;
        if (!kernel(x, r)) {
            others.push_back(i);
            continue;
        }
        // Every undefined element is stored as the same quiet NaN.
        out[i] = std::isnan(r) ? kNaN : r;
    }
    for (unsigned int i : others)
        result.setValue(f(array.value(i)), i);
    keepElementTypes(array, result);
    return result;
}

// The fast path for a numeric real array with a block kernel: block(x, out, n)
// computes every element in the reals at once (reading a negative zero as 0,
// out NaN meaning undefined), and leaves(x) tells the elements whose result is
// not real; those go through f, as in mapReal. The scalar path of the same
// function calls the same block with one number, so both give the same bits.
template <class Block, class Leaves, class Element>
vhValue mapRealBlock(const vhValue& array, Block block, Leaves leaves, Element f)
{
    const double* in = array.numericValues();
    if (!in || array.numericImValues())
        return mapElements(array, f);
    const unsigned int n = array.vectorSize();
    vhValue result = sameShape(array);
    double* out = result.numericValues();
    if (!out || result.vectorSize() != n)
        return mapElements(array, f);
    block(in, out, n);
    // One pass without branches, which the compiler vectorises: every
    // undefined element becomes the same quiet NaN.
    bool anyLeaves = false;
    for (unsigned int i = 0; i < n; ++i) {
        const double x = in[i], r = out[i];
        anyLeaves |= !std::isnan(x) && leaves(x == 0.0 ? 0.0 : x);
        out[i] = (std::isnan(x) || std::isnan(r)) ? kNaN : r;
    }
    if (!anyLeaves) {
        keepElementTypes(array, result);
        return result;
    }
    std::vector<unsigned int> others;
    for (unsigned int i = 0; i < n; ++i) {
        const double x = in[i];
        if (!std::isnan(x) && leaves(x == 0.0 ? 0.0 : x)) {
            out[i] = 0.0;
            others.push_back(i);
        }
    }
    for (unsigned int i : others)
        result.setValue(f(array.value(i)), i);
    keepElementTypes(array, result);
    return result;
}

// Pairs of elements of two arrays of one shape.
template <class Element> vhValue mapPairs(const vhValue& x, const vhValue& y, Element f)
{
    const unsigned int n = x.vectorSize();
    vhValue result = sameShape(x);
    for (unsigned int i = 0; i < n; ++i)
        result.setValue(f(x.value(i), y.value(i)), i);
    keepElementTypes(x, result);
    return result;
}

// --- skeletons --------------------------------------------------------------

// The skeleton of a function of one argument. element(v) is the function
// itself, complexPart(a, b) and realPart(d) its formulas; the parts handed to
// them are no NaN.
template <class Element, class ComplexPart, class RealPart>
vhValue unary(const vhValue& x, int id, Element element, ComplexPart complexPart, RealPart realPart)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(id, {x});
    if (isArray(x)) {
        vhValue holder;
        return mapElements(arrayOf(x, holder), element);
    }
    double a, b;
    if (x.isComplex())
        return complexOf(x, a, b) ? complexPart(a, b) : vhValue();
    if (realOf(x, a))
        return realPart(a);
    return vhValue();
}

// The same with a fast kernel for numeric real arrays.
template <class Element, class ComplexPart, class RealPart, class Kernel>
vhValue unaryFast(const vhValue& x, int id, Element element, ComplexPart complexPart, RealPart realPart,
                  Kernel kernel)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(id, {x});
    if (isArray(x)) {
        vhValue holder;
        const vhValue& array = arrayOf(x, holder);
        if (array.numericValues() && !array.numericImValues())
            return mapReal(array, kernel, element);
        return mapElements(array, element);
    }
    double a, b;
    if (x.isComplex())
        return complexOf(x, a, b) ? complexPart(a, b) : vhValue();
    if (realOf(x, a))
        return realPart(a);
    return vhValue();
}

// The same with a block kernel for numeric real arrays (see mapRealBlock).
template <class Element, class ComplexPart, class RealPart, class Block, class Leaves>
vhValue unaryBlock(const vhValue& x, int id, Element element, ComplexPart complexPart, RealPart realPart,
                   Block block, Leaves leaves)
{
    if (x.isNull())
        return vhValue();
    if (x.isSymbolic())
        return symbolicCall(id, {x});
    if (isArray(x)) {
        vhValue holder;
        const vhValue& array = arrayOf(x, holder);
        if (array.numericValues() && !array.numericImValues())
            return mapRealBlock(array, block, leaves, element);
        return mapElements(array, element);
    }
    double a, b;
    if (x.isComplex())
        return complexOf(x, a, b) ? complexPart(a, b) : vhValue();
    if (realOf(x, a))
        return realPart(a);
    return vhValue();
}

// A real formula given as a kernel: its value, or `outside(d)` where the
// kernel leaves the reals.
template <class Kernel, class Outside> vhValue realByKernel(double d, Kernel kernel, Outside outside)
{
    double r;
    if (kernel(d, r))
        return doubleOrUndefined(r);
    return outside(d);
}

// The skeleton of a function of two arguments. realPart(x, y) gets two real
// numbers; complexPart(x, y) gets every other aligned pair of scalars and
// answers undefined where the function has no such formula.
template <class Element, class RealPart, class ComplexPart>
vhValue binary(const vhValue& x, const vhValue& y, int id, Element element, RealPart realPart,
               ComplexPart complexPart)
{
    if (x.isNull() || y.isNull())
        return vhValue();
    if (x.isSymbolic() || y.isSymbolic())
        return symbolicCall(id, {x, y});
    if (!aligned(x, y))
        return vhValue();
    double a, b;
    if (realOf(x, a) && realOf(y, b))
        return realPart(a, b);
    if (isArray(x)) {
        vhValue hx, hy;
        return mapPairs(arrayOf(x, hx), arrayOf(y, hy), element);
    }
    return complexPart(x, y);
}

// The two-argument skeleton for functions without a complex formula.
template <class Element, class RealPart>
vhValue binaryReal(const vhValue& x, const vhValue& y, int id, Element element, RealPart realPart)
{
    return binary(x, y, id, element, realPart, [](const vhValue&, const vhValue&) { return vhValue(); });
}

} // namespace elementwise
} // namespace ValueTypes
} // namespace VarnholtMath
