#pragma once

// The median filter of images on byte planes. A window of w columns and h
// rows reaches hw = w / 2 columns to the left and hh = h / 2 rows up from its
// centre, so an even size reaches one further up and left than down and
// right. Only centres whose window lies inside the image are kept: the result
// has (columns - 2 hw) columns and (rows - 2 hh) rows. Each of red, green and
// blue is the median of its window; an even count gives the mean of the two
// middle values, rounded half up. Alpha is the centre pixel's.
//
// Four ways to the median, by window size: a fixed exchange network for 9
// values, a partial sort of the gathered window for other small windows, a
// running histogram along the row for low windows (cost per pixel in
// proportion to the window height), and for tall windows histograms of the
// image columns that slide down the image, from which the window's histogram
// is kept in two levels, 16 coarse bins and 256 fine ones (cost per pixel
// independent of the window size).

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
    // Rows in increasing order are cheapest.
    void filterRow(unsigned y, std::uint32_t* dst);

    // Windows of more values than this run on histograms.
    static const unsigned largestGatheredWindow = 32;
    // Windows at least this high, of at most 65535 values, run on column
    // histograms.
    static const unsigned lowestColumnWindow = 12;

private:
    void networkRow(unsigned y, std::uint32_t* dst) const;
    void gatheredRow(unsigned y, std::uint32_t* dst) const;
    void histogramRow(unsigned y, std::uint32_t* dst) const;
    bool useColumnHistograms();
    void moveColumnHistograms(unsigned y);
    void columnHistogramRow(unsigned y, std::uint32_t* dst);

    unsigned m_width, m_height;
    const std::uint32_t* m_pixels = nullptr;
    unsigned m_rows = 0, m_columns = 0, m_outRows = 0, m_outColumns = 0;
    std::unique_ptr<std::uint8_t[]> m_planes;
    // Per plane and image column: 256 fine counts, then 16 coarse counts, of
    // the window's rows; m_columnRow is the output row they stand for.
    std::unique_ptr<std::uint16_t[]> m_columnCounts;
    long long m_columnRow = -1;
    bool m_columnsTried = false;
    std::unique_ptr<std::uint8_t[]> m_rowMedians;
};

} // namespace imageKernels
} // namespace VarnholtMath
