#pragma once

// Helpers of the image tests: images from pixel lists and back.

#include <cstdint>
#include <random>
#include <vector>

#include "frame/math.h"

namespace image_tests {

using namespace VarnholtMath::ValueTypes;

inline vhValue makeImage(std::vector<unsigned int> pixels, unsigned rows, unsigned columns)
{
    return vhMatrix(pixels.data(), rows, columns);
}

inline std::vector<unsigned int> randomPixels(std::size_t n, unsigned seed)
{
    std::mt19937 engine(seed);
    std::vector<unsigned int> p(n);
    for (unsigned int& x : p)
        x = engine();
    return p;
}

inline vhValue randomImage(unsigned rows, unsigned columns, unsigned seed)
{
    return makeImage(randomPixels(std::size_t(rows) * columns, seed), rows, columns);
}

// The pixels of an image result; empty for anything that isn't a matrix
// with image storage.
inline std::vector<unsigned int> pixelsOf(const vhValue& v)
{
    const unsigned int* p = v.imageValues();
    if (!p)
        return {};
    return std::vector<unsigned int>(p, p + std::size_t(v.matrixRows()) * v.matrixColumns());
}

inline vhValue numericMatrix(std::vector<double> values, unsigned rows, unsigned columns)
{
    return vhMatrix(values.data(), rows, columns);
}

} // namespace image_tests
