// Pixel-word kernels: one pass each over the raw arrays.

#include "image/pixel_kernels.h"

#include <cmath>

namespace VarnholtMath {
namespace imageKernels {

void extractChannel(const std::uint32_t* src, std::size_t n, unsigned shift, std::uint32_t* dst)
{
    for (std::size_t i = 0; i < n; ++i)
        dst[i] = (src[i] >> shift) & 0xFFu;
}

void scaleChannel(const std::uint32_t* src, std::size_t n, unsigned shift, double factor, std::uint32_t* dst)
{
    // Only 256 channel values exist: the products are made once, in doubles,
    // and the pass over the pixels is a table look-up.
    std::uint32_t scaled[256];
    for (unsigned c = 0; c < 256; ++c) {
        const double v = double(c) * factor;
        scaled[c] = v >= 255.0 ? 255u : v > 0.0 ? std::uint32_t(v) : 0u;
        scaled[c] <<= shift;
    }
    const std::uint32_t keep = ~(0xFFu << shift);
    for (std::size_t i = 0; i < n; ++i)
        dst[i] = (src[i] & keep) | scaled[(src[i] >> shift) & 0xFFu];
}

void joinChannels(const std::uint32_t* b, const std::uint32_t* g, const std::uint32_t* r, const std::uint32_t* a,
                  std::size_t n, std::uint32_t* dst)
{
    for (std::size_t i = 0; i < n; ++i)
        dst[i] = (b[i] & 0xFFu) | (g[i] & 0xFFu) << 8 | (r[i] & 0xFFu) << 16 | (a[i] & 0xFFu) << 24;
}

void wordsToDoubles(const std::uint32_t* src, std::size_t n, double* dst)
{
    for (std::size_t i = 0; i < n; ++i)
        dst[i] = double(src[i]);
}

bool doublesToWords(const double* src, std::size_t n, std::uint32_t* dst)
{
    for (std::size_t i = 0; i < n; ++i) {
        const double v = src[i];
        if (v < 0.0) {
            dst[i] = 0;
            continue;
        }
        // NaN fails both comparisons; +inf and fractions fail the last.
        if (!(v <= 4294967295.0) || std::floor(v) != v)
            return false;
        dst[i] = std::uint32_t(v);
    }
    return true;
}

namespace {
inline std::uint32_t byteDifference(std::uint32_t a, std::uint32_t b, unsigned shift)
{
    const int x = int((a >> shift) & 0xFFu), y = int((b >> shift) & 0xFFu);
    return std::uint32_t(x > y ? x - y : y - x);
}
} // namespace

void absoluteDifference(const std::uint32_t* a, const std::uint32_t* b, std::size_t n, std::uint32_t* dst)
{
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint32_t p = a[i], q = b[i];
        dst[i] = byteDifference(p, q, blueShift) | byteDifference(p, q, greenShift) << 8 |
                 byteDifference(p, q, redShift) << 16 | (p & 0xFF000000u);
    }
}

std::uint64_t squaredDifferenceSum(const std::uint32_t* a, const std::uint32_t* b, std::size_t n)
{
    // Blocks of 4096 pixels keep the inner sum within 32 bits
    // (4096 * 3 * 65025 < 2^32), which lets the compiler vectorise it.
    std::uint64_t total = 0;
    for (std::size_t start = 0; start < n; start += 4096) {
        const std::size_t end = n - start < 4096 ? n : start + 4096;
        std::uint32_t block = 0;
        for (std::size_t i = start; i < end; ++i) {
            const std::uint32_t p = a[i], q = b[i];
            const int db = int(p & 0xFFu) - int(q & 0xFFu);
            const int dg = int((p >> 8) & 0xFFu) - int((q >> 8) & 0xFFu);
            const int dr = int((p >> 16) & 0xFFu) - int((q >> 16) & 0xFFu);
            block += std::uint32_t(db * db + dg * dg + dr * dr);
        }
        total += block;
    }
    return total;
}

void splitPlanes(const std::uint32_t* src, std::size_t n, std::uint8_t* red, std::uint8_t* green, std::uint8_t* blue)
{
    for (std::size_t i = 0; i < n; ++i) {
        const std::uint32_t p = src[i];
        blue[i] = std::uint8_t(p);
        green[i] = std::uint8_t(p >> 8);
        red[i] = std::uint8_t(p >> 16);
    }
}

} // namespace imageKernels
} // namespace VarnholtMath
