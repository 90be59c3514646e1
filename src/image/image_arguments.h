#pragma once

// The type work shared by the image members: reading an image argument or a
// real array argument, and making result arrays whose content the caller
// writes in full.

#include <cstdint>
#include <vector>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// An image argument whose pixels can be read: a matrix with image storage
// (a vector holding pixels gives none) and a pixel count that matches its
// shape.
struct ImageArgument {
    const std::uint32_t* pixels = nullptr;
    unsigned rows = 0, columns = 0;
    unsigned dpi = 0;
    std::size_t size() const { return std::size_t(rows) * columns; }
};
bool readImage(const vhValue& v, ImageArgument& image);

// The resolution of an image value, also through a one-term expression that
// holds it.
unsigned imageDpi(const vhValue& v);

// A vector or matrix of real numbers, in numeric storage or as elements, not
// empty; its values row-major in values. Images, complex arrays and elements
// that aren't real numbers are refused.
bool readRealArray(const vhValue& v, std::vector<double>& values, unsigned& rows, unsigned& columns);

// rows x columns within the limit of array sizes, both above 0.
bool sizeAllowed(std::uint64_t rows, std::uint64_t columns);

// A whole number, as vhInteger when it fits, else vhDouble.
vhValue wholeNumber(std::uint64_t n);

// A matrix with fresh storage: image pixels left for the caller to write, or
// numeric doubles, all zero. data() is null when the storage could not be
// made.
class FreshImage : public vhMatrix {
public:
    FreshImage(unsigned rows, unsigned columns, unsigned dpi);
    std::uint32_t* data() const { return m_imageData; }
};

class FreshNumericMatrix : public vhMatrix {
public:
    FreshNumericMatrix(unsigned rows, unsigned columns);
    double* data() const { return m_numericData; }
};

} // namespace ValueTypes
} // namespace VarnholtMath
