#pragma once

// The median filter of images on byte planes. A window of w columns and h
// rows reaches hw = w / 2 columns to the left and hh = h / 2 rows up from its
// centre, so an even size reaches one further up and left than down and
// right. Only centres whose window lies inside the image are kept: the result
// has (columns - 2 hw) columns and (rows - 2 hh) rows. Each of red, green and
// blue is the median of its window; an even count gives the mean of the two
// middle values, rounded half up. Alpha is the centre pixel's.
//
// Three ways to the median, by window size: a fixed exchange network for 9
// values, a partial sort of the gathered window for other small windows, and
// a running histogram along the row (cost per pixel in proportion to the
// window height, not its area) for large ones.

#include <cstdint>
#include <memory>

namespace VarnholtMath {
namespace imageKernels {

class MedianFilter {
public:
    // Window width and height, both at least 1.
    MedianFilter(unsigned width, unsigned height);

    // False when the window doesn't fit or the planes can't be allocated.
    // The source must outlive the filtering.
    bool setImage(const std::uint32_t* pixels, unsigned rows, unsigned columns);
    unsigned outputRows() const { return m_outRows; }
    unsigned outputColumns() const { return m_outColumns; }

    // Writes output row y (0 <= y < outputRows) to dst, outputColumns words.
    void filterRow(unsigned y, std::uint32_t* dst) const;

    // Windows of more values than this run on histograms.
    static const unsigned largestGatheredWindow = 32;

private:
    void networkRow(unsigned y, std::uint32_t* dst) const;
    void gatheredRow(unsigned y, std::uint32_t* dst) const;
    void histogramRow(unsigned y, std::uint32_t* dst) const;

    unsigned m_width, m_height;
    const std::uint32_t* m_pixels = nullptr;
    unsigned m_rows = 0, m_columns = 0, m_outRows = 0, m_outColumns = 0;
    std::unique_ptr<std::uint8_t[]> m_planes;
};

} // namespace imageKernels
} // namespace VarnholtMath
