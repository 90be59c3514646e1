#pragma once

// Kernels on packed pixel words. A pixel is one 32-bit word, blue in bits
// 0-7, green in 8-15, red in 16-23 and alpha in 24-31. Each kernel is one pass
// over raw arrays; none allocates, none knows the value classes.

#include <cstddef>
#include <cstdint>

namespace VarnholtMath {
namespace imageKernels {

// Bit position of a channel within the pixel word.
enum ChannelShift : unsigned { blueShift = 0, greenShift = 8, redShift = 16, alphaShift = 24 };

// dst[i] = the channel's byte of src[i], as the whole word (0 to 255).
void extractChannel(const std::uint32_t* src, std::size_t n, unsigned shift, std::uint32_t* dst);

// dst[i] = src[i] with the channel c replaced by c * factor, cut toward zero
// and held within 0..255; the other three bytes stay. factor is finite, >= 0.
void scaleChannel(const std::uint32_t* src, std::size_t n, unsigned shift, double factor, std::uint32_t* dst);

// dst[i] = the low bytes of b[i], g[i], r[i], a[i], packed in that order.
void joinChannels(const std::uint32_t* b, const std::uint32_t* g, const std::uint32_t* r, const std::uint32_t* a,
                  std::size_t n, std::uint32_t* dst);

// Each word as an unsigned number.
void wordsToDoubles(const std::uint32_t* src, std::size_t n, double* dst);

// Each value as a pixel word: below 0 (minus infinity too) gives 0, else it
// must be whole and at most 4294967295. False, with dst partly written, at
// the first value that is not.
bool doublesToWords(const double* src, std::size_t n, std::uint32_t* dst);

// dst[i]: |red a - red b|, |green a - green b|, |blue a - blue b|, alpha of a.
void absoluteDifference(const std::uint32_t* a, const std::uint32_t* b, std::size_t n, std::uint32_t* dst);

// The sum over all pixels of the squared differences of red, green and
// blue; exact (at most 3 * 65025 per pixel).
std::uint64_t squaredDifferenceSum(const std::uint32_t* a, const std::uint32_t* b, std::size_t n);

// Splits red, green and blue into byte planes of n bytes each.
void splitPlanes(const std::uint32_t* src, std::size_t n, std::uint8_t* red, std::uint8_t* green, std::uint8_t* blue);

} // namespace imageKernels
} // namespace VarnholtMath
