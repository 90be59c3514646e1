#pragma once

// The 3 x 3 filter of images: correlation of the red, green and blue planes
// with a kernel of nine doubles, without flipping the kernel.
//
// The kernel's nine elements, row by row, meet the neighbours above-left,
// above, above-right, left, the pixel itself, right, below-left, below and
// below-right. Each sum runs in that order in doubles, is divided by the sum
// of the kernel (1 when that sum is 0), held at 255 at the top and rounded to
// the nearest whole number with halves going up; a negative value gives 0.
// The alpha byte is the source pixel's. Only the interior is filtered: the
// outer ring of pixels is the source's.

#include <cstdint>
#include <memory>

namespace VarnholtMath {
namespace imageKernels {

class Filter3x3 {
public:
    explicit Filter3x3(const double kernel[9]);
    double divisor() const { return m_divisor; }

    // Splits the source into byte planes; false when the planes can't be
    // allocated. The source must outlive the filtering.
    bool setImage(const std::uint32_t* pixels, unsigned rows, unsigned columns);

    // Writes the rows that are not filtered: all rows of an image with fewer
    // than 3 rows or columns, else the outer ring.
    void copyBorder(std::uint32_t* dst) const;
    // Filters one interior row, 1 <= row <= rows - 2; dst is the whole image.
    void filterRow(unsigned row, std::uint32_t* dst) const;
    bool hasInterior() const { return m_rows >= 3 && m_columns >= 3; }

private:
    double m_kernel[9];
    double m_divisor;
    const std::uint32_t* m_pixels = nullptr;
    unsigned m_rows = 0, m_columns = 0;
    std::unique_ptr<std::uint8_t[]> m_planes;
};

} // namespace imageKernels
} // namespace VarnholtMath
