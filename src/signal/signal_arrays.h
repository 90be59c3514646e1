#pragma once

// Reading the numbers of a vector or a matrix into split arrays of real and
// imaginary doubles, and building complex results from such arrays. A
// numeric array is copied as a block; only an array of elements is read
// element by element.

#include <vector>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

enum class Read {
    ok,
    undefined, // an element that is no finite number
    held       // a symbolic element: the call stays unevaluated
};

struct Samples {
    std::vector<double> re, im;
    unsigned int rows = 0, columns = 0;
    bool rowVector = false;
    bool complex = false; // some element has an imaginary part
};

// The numbers of an array in row-major order. Elements richer than complex
// numbers, NaN and infinite parts give undefined; the first symbolic
// element gives held.
Read readSamples(const vhValue& array, Samples& out);

// The array behind one-term expressions, or null when v is none.
const vhValue* arrayBehind(const vhValue& v, vhValue& holder);

vhValue complexVector(const double* re, const double* im, unsigned int n, bool row);
vhValue complexMatrix(const double* re, const double* im, unsigned int rows, unsigned int columns);
vhValue realVector(const double* re, unsigned int n, bool row);

// A whole number above 0 and at most limit.
bool readCount(const vhValue& v, unsigned int limit, unsigned int& out);

// The largest length of a resized or padded array: larger lengths are
// refused rather than allocated.
constexpr unsigned int kLengthLimit = 1u << 24;

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
