// The 3 x 3 image filter on byte planes.

#include "image/filter3x3.h"

#include <cstring>
#include <new>

#include "image/pixel_kernels.h"

namespace VarnholtMath {
namespace imageKernels {

Filter3x3::Filter3x3(const double kernel[9])
{
    double sum = 0.0;
    for (int i = 0; i < 9; ++i) {
        m_kernel[i] = kernel[i];
        sum += kernel[i];
    }
    m_divisor = sum == 0.0 ? 1.0 : sum;
}

bool Filter3x3::setImage(const std::uint32_t* pixels, unsigned rows, unsigned columns)
{
    m_pixels = pixels;
    m_rows = rows;
    m_columns = columns;
    m_planes.reset();
    if (!hasInterior())
        return true;
    const std::size_t n = std::size_t(rows) * columns;
    m_planes.reset(new (std::nothrow) std::uint8_t[3 * n]);
    if (!m_planes)
        return false;
    splitPlanes(pixels, n, m_planes.get(), m_planes.get() + n, m_planes.get() + 2 * n);
    return true;
}

void Filter3x3::copyBorder(std::uint32_t* dst) const
{
    const std::size_t w = m_columns;
    if (!hasInterior()) {
        std::memcpy(dst, m_pixels, sizeof(std::uint32_t) * w * m_rows);
        return;
    }
    std::memcpy(dst, m_pixels, sizeof(std::uint32_t) * w);
    const std::size_t last = (m_rows - 1) * w;
    std::memcpy(dst + last, m_pixels + last, sizeof(std::uint32_t) * w);
    for (std::size_t y = 1; y + 1 < m_rows; ++y) {
        dst[y * w] = m_pixels[y * w];
        dst[y * w + w - 1] = m_pixels[y * w + w - 1];
    }
}

namespace {

// One output channel: the sum in kernel order, then the division, the cap,
// the floor at 0 and the rounding. A kernel so large that its products
// overflow can give NaN; it reads as 0.
inline std::uint32_t filtered(const double* k, double divisor, const std::uint8_t* above, const std::uint8_t* here,
                              const std::uint8_t* below)
{
    double s = k[0] * above[-1];
    s += k[1] * above[0];
    s += k[2] * above[1];
    s += k[3] * here[-1];
    s += k[4] * here[0];
    s += k[5] * here[1];
    s += k[6] * below[-1];
    s += k[7] * below[0];
    s += k[8] * below[1];
    double v = s / divisor;
    if (v > 255.0)
        v = 255.0;
    // For v >= 0, v + 0.5 cut toward zero is the half-up rounding.
    return v >= 0.0 ? std::uint32_t(v + 0.5) : 0u;
}

} // namespace

void Filter3x3::filterRow(unsigned row, std::uint32_t* dst) const
{
    const std::size_t w = m_columns;
    const std::size_t n = w * m_rows;
    const std::size_t start = std::size_t(row) * w;
    const double* k = m_kernel;
    const double d = m_divisor;
    const std::uint32_t* src = m_pixels + start;
    std::uint32_t* out = dst + start;
    for (unsigned plane = 0; plane < 3; ++plane) {
        // red, green, blue planes hold bytes 16, 8 and 0 of the word.
        const unsigned shift = 16 - 8 * plane;
        const std::uint8_t* here = m_planes.get() + plane * n + start;
        const std::uint8_t* above = here - w;
        const std::uint8_t* below = here + w;
        if (plane == 0) {
            for (std::size_t x = 1; x + 1 < w; ++x)
                out[x] = (src[x] & 0xFF000000u) | filtered(k, d, above + x, here + x, below + x) << shift;
        } else {
            for (std::size_t x = 1; x + 1 < w; ++x)
                out[x] |= filtered(k, d, above + x, here + x, below + x) << shift;
        }
    }
}

} // namespace imageKernels
} // namespace VarnholtMath
