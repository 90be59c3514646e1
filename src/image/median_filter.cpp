// The median filter of images on byte planes.

#include "image/median_filter.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "image/pixel_kernels.h"

namespace VarnholtMath {
namespace imageKernels {

MedianFilter::MedianFilter(unsigned width, unsigned height) : m_width(width), m_height(height) {}

bool MedianFilter::setImage(const std::uint32_t* pixels, unsigned rows, unsigned columns)
{
    m_pixels = pixels;
    m_rows = rows;
    m_columns = columns;
    m_outRows = m_outColumns = 0;
    m_planes.reset();
    m_columnCounts.reset();
    m_columnRow = -1;
    m_columnsTried = false;
    const unsigned hw = m_width / 2, hh = m_height / 2;
    if (m_width == 0 || m_height == 0 || m_width > columns || m_height > rows || 2ull * hw >= columns ||
        2ull * hh >= rows)
        return false;
    const std::size_t n = std::size_t(rows) * columns;
    m_planes.reset(new (std::nothrow) std::uint8_t[3 * n]);
    if (!m_planes)
        return false;
    splitPlanes(pixels, n, m_planes.get(), m_planes.get() + n, m_planes.get() + 2 * n);
    m_outRows = rows - 2 * hh;
    m_outColumns = columns - 2 * hw;
    return true;
}

void MedianFilter::filterRow(unsigned y, std::uint32_t* dst)
{
    const unsigned count = m_width * m_height;
    if (count == 9)
        networkRow(y, dst);
    else if (count <= largestGatheredWindow)
        gatheredRow(y, dst);
    else if (useColumnHistograms())
        columnHistogramRow(y, dst);
    else
        histogramRow(y, dst);
}

namespace {

inline void order(std::uint8_t& a, std::uint8_t& b)
{
    const std::uint8_t lo = std::min(a, b), hi = std::max(a, b);
    a = lo;
    b = hi;
}

// The median of nine values by 19 exchanges.
inline std::uint8_t medianOf9(std::uint8_t p0, std::uint8_t p1, std::uint8_t p2, std::uint8_t p3, std::uint8_t p4,
                              std::uint8_t p5, std::uint8_t p6, std::uint8_t p7, std::uint8_t p8)
{
    order(p1, p2); order(p4, p5); order(p7, p8);
    order(p0, p1); order(p3, p4); order(p6, p7);
    order(p1, p2); order(p4, p5); order(p7, p8);
    order(p0, p3); order(p5, p8); order(p4, p7);
    order(p3, p6); order(p1, p4); order(p2, p5);
    order(p4, p7); order(p4, p2); order(p6, p4);
    order(p4, p2);
    return p4;
}

inline std::uint32_t pack(unsigned red, unsigned green, unsigned blue, std::uint32_t alphaSource)
{
    return (alphaSource & 0xFF000000u) | red << 16 | green << 8 | blue;
}

// The median of count values, partly reordering them.
inline unsigned medianOf(std::uint8_t* v, unsigned count)
{
    const unsigned mid = (count - 1) / 2;
    std::nth_element(v, v + mid, v + count);
    if (count % 2)
        return v[mid];
    const unsigned upper = *std::min_element(v + mid + 1, v + count);
    return (v[mid] + upper + 1) / 2;
}

// A histogram of the window with its median position kept: below counts the
// values less than level, and a query walks level from where it stood.
struct RunningHistogram {
    std::uint32_t count[256];
    unsigned level;
    std::uint32_t below;

    void reset()
    {
        std::memset(count, 0, sizeof count);
        level = 0;
        below = 0;
    }
    void add(std::uint8_t v)
    {
        ++count[v];
        below += v < level;
    }
    void remove(std::uint8_t v)
    {
        --count[v];
        below -= v < level;
    }
    // The value of rank k (0-based) in the ordered window.
    unsigned rank(std::uint32_t k)
    {
        while (below > k)
            below -= count[--level];
        while (below + count[level] <= k)
            below += count[level++];
        return level;
    }
    unsigned median(std::uint32_t total)
    {
        const std::uint32_t mid = (total - 1) / 2;
        const unsigned lower = rank(mid);
        if (total % 2)
            return lower;
        unsigned upper = lower;
        if (below + count[lower] <= mid + 1)
            do
                ++upper;
            while (count[upper] == 0);
        return (lower + upper + 1) / 2;
    }
};

} // namespace

void MedianFilter::networkRow(unsigned y, std::uint32_t* dst) const
{
    const std::size_t w = m_columns, n = w * m_rows;
    const std::uint32_t* alpha = m_pixels + (y + m_height / 2) * w + m_width / 2;
    // The nine window positions, top-left first, relative to the output's
    // top-left source pixel.
    std::size_t offset[9];
    for (unsigned i = 0, r = 0; r < m_height; ++r)
        for (unsigned c = 0; c < m_width; ++c)
            offset[i++] = r * w + c;
    std::uint8_t medians[3][4096];
    for (std::size_t x0 = 0; x0 < m_outColumns; x0 += 4096) {
        const std::size_t len = std::min<std::size_t>(4096, m_outColumns - x0);
        for (unsigned plane = 0; plane < 3; ++plane) {
            const std::uint8_t* base = m_planes.get() + plane * n + y * w + x0;
            const std::uint8_t *q0 = base + offset[0], *q1 = base + offset[1], *q2 = base + offset[2],
                               *q3 = base + offset[3], *q4 = base + offset[4], *q5 = base + offset[5],
                               *q6 = base + offset[6], *q7 = base + offset[7], *q8 = base + offset[8];
            std::uint8_t* out = medians[plane];
            for (std::size_t x = 0; x < len; ++x)
                out[x] = medianOf9(q0[x], q1[x], q2[x], q3[x], q4[x], q5[x], q6[x], q7[x], q8[x]);
        }
        for (std::size_t x = 0; x < len; ++x)
            dst[x0 + x] = pack(medians[0][x], medians[1][x], medians[2][x], alpha[x0 + x]);
    }
}

void MedianFilter::gatheredRow(unsigned y, std::uint32_t* dst) const
{
    const std::size_t w = m_columns, n = w * m_rows;
    const unsigned count = m_width * m_height;
    const std::uint32_t* alpha = m_pixels + (y + m_height / 2) * w + m_width / 2;
    std::size_t offset[largestGatheredWindow];
    for (unsigned i = 0, r = 0; r < m_height; ++r)
        for (unsigned c = 0; c < m_width; ++c)
            offset[i++] = r * w + c;
    std::uint8_t window[largestGatheredWindow];
    const std::uint8_t* planes[3];
    for (unsigned plane = 0; plane < 3; ++plane)
        planes[plane] = m_planes.get() + plane * n + y * w;
    for (std::size_t x = 0; x < m_outColumns; ++x) {
        unsigned m[3];
        for (unsigned plane = 0; plane < 3; ++plane) {
            const std::uint8_t* base = planes[plane] + x;
            for (unsigned i = 0; i < count; ++i)
                window[i] = base[offset[i]];
            m[plane] = medianOf(window, count);
        }
        dst[x] = pack(m[0], m[1], m[2], alpha[x]);
    }
}

void MedianFilter::histogramRow(unsigned y, std::uint32_t* dst) const
{
    const std::size_t w = m_columns, n = w * m_rows;
    const std::uint32_t count = m_width * m_height;
    const std::uint32_t* alpha = m_pixels + (y + m_height / 2) * w + m_width / 2;
    RunningHistogram histogram[3];
    for (unsigned plane = 0; plane < 3; ++plane) {
        RunningHistogram& h = histogram[plane];
        h.reset();
        const std::uint8_t* top = m_planes.get() + plane * n + y * w;
        for (unsigned r = 0; r < m_height; ++r)
            for (unsigned c = 0; c < m_width; ++c)
                h.add(top[r * w + c]);
    }
    for (std::size_t x = 0;; ++x) {
        dst[x] = pack(histogram[0].median(count), histogram[1].median(count), histogram[2].median(count), alpha[x]);
        if (x + 1 == m_outColumns)
            break;
        // Slide right: the window's left column leaves, the next one enters.
        for (unsigned plane = 0; plane < 3; ++plane) {
            RunningHistogram& h = histogram[plane];
            const std::uint8_t* top = m_planes.get() + plane * n + y * w;
            for (unsigned r = 0; r < m_height; ++r) {
                h.remove(top[r * w + x]);
                h.add(top[r * w + x + m_width]);
            }
        }
    }
}

// --- column histograms ---------------------------------------------------------

namespace {

const std::size_t kColumnStride = 256 + 16;

// The window's histogram in two levels, for one plane along one row. The
// coarse counts are always current; a fine segment of 16 bins is brought to
// the window's position only when a query needs it.
struct TwoLevelHistogram {
    std::uint16_t coarse[16];
    std::uint16_t fine[256];
    long long segmentAt[16];
    const std::uint16_t* columns;  // the columns' counts, kColumnStride apart
    unsigned width;

    void start()
    {
        std::memset(coarse, 0, sizeof coarse);
        for (unsigned c = 0; c < width; ++c) {
            const std::uint16_t* col = columns + c * kColumnStride + 256;
            for (unsigned j = 0; j < 16; ++j)
                coarse[j] += col[j];
        }
        for (long long& s : segmentAt)
            s = -1;
        level = 8;
        for (unsigned& l : fineLevel)
            l = 8;
    }
    // From the window at x - 1 to the window at x.
    void step(std::size_t x)
    {
        const std::uint16_t* in = columns + (x - 1 + width) * kColumnStride + 256;
        const std::uint16_t* out = columns + (x - 1) * kColumnStride + 256;
        for (unsigned j = 0; j < 16; ++j)
            coarse[j] += std::uint16_t(in[j] - out[j]);
    }
    void refresh(unsigned s, std::size_t x)
    {
        std::uint16_t* f = fine + 16 * s;
        const long long at = segmentAt[s];
        if (at == (long long)x)
            return;
        if (at >= 0 && 2 * (x - std::size_t(at)) < width) {
            for (std::size_t p = std::size_t(at); p < x; ++p) {
                const std::uint16_t* in = columns + (p + width) * kColumnStride + 16 * s;
                const std::uint16_t* out = columns + p * kColumnStride + 16 * s;
                for (unsigned j = 0; j < 16; ++j)
                    f[j] += std::uint16_t(in[j] - out[j]);
            }
        } else {
            std::memset(f, 0, 16 * sizeof(std::uint16_t));
            for (std::size_t c = x; c < x + width; ++c) {
                const std::uint16_t* col = columns + c * kColumnStride + 16 * s;
                for (unsigned j = 0; j < 16; ++j)
                    f[j] += col[j];
            }
        }
        segmentAt[s] = (long long)x;
    }
    // The value of rank k (0-based) in the window at x. The walk starts from
    // where the last query ended: the median moves little from one window
    // to the next.
    unsigned rank(std::uint32_t k, std::size_t x)
    {
        std::uint32_t before = countBelow(coarse, level);
        while (before > k)
            before -= coarse[--level];
        while (before + coarse[level] <= k)
            before += coarse[level++];
        refresh(level, x);
        const std::uint16_t* f = fine + 16 * level;
        const std::uint32_t kk = k - before;
        unsigned& fl = fineLevel[level];
        std::uint32_t below = countBelow(f, fl);
        while (below > kk)
            below -= f[--fl];
        while (below + f[fl] <= kk)
            below += f[fl++];
        return 16 * level + fl;
    }
    // The sum of the first `end` of 16 counts, without branches.
    static std::uint32_t countBelow(const std::uint16_t* counts, unsigned end)
    {
        std::uint32_t sum = 0;
        for (unsigned j = 0; j < 16; ++j)
            sum += j < end ? counts[j] : 0u;
        return sum;
    }
    // Where the last walks ended: the coarse bin, and in each segment the
    // fine bin.
    unsigned level = 8;
    unsigned fineLevel[16];
};

} // namespace

bool MedianFilter::useColumnHistograms()
{
    const unsigned count = m_width * m_height;
    if (m_height < lowestColumnWindow || count > 65535)
        return false;
    if (!m_columnsTried) {
        m_columnsTried = true;
        // Wide images would need too much memory; they stay on the running
        // histogram.
        if (m_columns <= 65536) {
            m_columnCounts.reset(new (std::nothrow) std::uint16_t[3 * std::size_t(m_columns) * kColumnStride]);
            m_rowMedians.reset(new (std::nothrow) std::uint8_t[3 * std::size_t(m_outColumns)]);
            if (!m_rowMedians)
                m_columnCounts.reset();
        }
    }
    return m_columnCounts != nullptr;
}

void MedianFilter::moveColumnHistograms(unsigned y)
{
    const std::size_t w = m_columns, n = w * m_rows;
    const bool slide = m_columnRow >= 0 && (unsigned long long)(m_columnRow + 1) == y;
    for (unsigned plane = 0; plane < 3; ++plane) {
        const std::uint8_t* p = m_planes.get() + plane * n;
        std::uint16_t* counts = m_columnCounts.get() + plane * w * kColumnStride;
        if (slide) {
            // Row y - 1 leaves the window, row y + height - 1 enters.
            const std::uint8_t* leaving = p + std::size_t(y - 1) * w;
            const std::uint8_t* entering = p + std::size_t(y + m_height - 1) * w;
            for (std::size_t c = 0; c < w; ++c) {
                std::uint16_t* col = counts + c * kColumnStride;
                --col[leaving[c]];
                --col[256 + (leaving[c] >> 4)];
                ++col[entering[c]];
                ++col[256 + (entering[c] >> 4)];
            }
        } else {
            std::memset(counts, 0, sizeof(std::uint16_t) * w * kColumnStride);
            for (unsigned r = 0; r < m_height; ++r) {
                const std::uint8_t* row = p + std::size_t(y + r) * w;
                for (std::size_t c = 0; c < w; ++c) {
                    std::uint16_t* col = counts + c * kColumnStride;
                    ++col[row[c]];
                    ++col[256 + (row[c] >> 4)];
                }
            }
        }
    }
    m_columnRow = y;
}

void MedianFilter::columnHistogramRow(unsigned y, std::uint32_t* dst)
{
    moveColumnHistograms(y);
    const std::size_t w = m_columns;
    const std::uint32_t count = m_width * m_height, mid = (count - 1) / 2;
    const std::uint32_t* alpha = m_pixels + (y + m_height / 2) * w + m_width / 2;
    TwoLevelHistogram h;
    h.width = m_width;
    for (unsigned plane = 0; plane < 3; ++plane) {
        h.columns = m_columnCounts.get() + plane * w * kColumnStride;
        h.start();
        std::uint8_t* out = m_rowMedians.get() + plane * std::size_t(m_outColumns);
        for (std::size_t x = 0; x < m_outColumns; ++x) {
            if (x > 0)
                h.step(x);
            const unsigned lower = h.rank(mid, x);
            out[x] = std::uint8_t(count % 2 ? lower : (lower + h.rank(mid + 1, x) + 1) / 2);
        }
    }
    const std::uint8_t* red = m_rowMedians.get();
    const std::uint8_t* green = red + m_outColumns;
    const std::uint8_t* blue = green + m_outColumns;
    for (std::size_t x = 0; x < m_outColumns; ++x)
        dst[x] = pack(red[x], green[x], blue[x], alpha[x]);
}

} // namespace imageKernels
} // namespace VarnholtMath
