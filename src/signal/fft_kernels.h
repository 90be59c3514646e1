#pragma once

// The Fourier kernels, on split arrays of real and imaginary doubles. All
// of them are unscaled; "forward" has the sign exp(-2 pi i j k / n).
//
// - radix2: power-of-two lengths, in place, with cosine and sine tables and
//   a bit-reversal permutation.
// - bluestein: any length, as a chirp convolution of a power-of-two length
//   at least 2n - 1; its cost does not depend on the factors of n.
// - MixedRadix: any length, factored into 4, 2, 3, 5 and odd factors, with
//   a table of the n roots of unity. Lengths with a large prime factor cost
//   n times that factor.
// - danielsonLanczos: power-of-two lengths, with the twiddles advanced by a
//   trigonometric recurrence; the kernel of the two-dimensional transform.

#include <cstddef>
#include <memory>
#include <vector>

namespace VarnholtMath {
namespace fourier {

// exp(sign 2 pi i k / n) for k < count, with the symmetries of the circle
// so that quarter and eighth turns are exact.
void unitRoots(std::size_t n, std::size_t count, int sign, double* re, double* im);

// The power-of-two kernel with its cosine and sine tables.
class Radix2 {
public:
    explicit Radix2(std::size_t n);
    void transform(double* re, double* im) const;

private:
    std::size_t m_n;
    unsigned int m_bits;
    std::vector<double> m_cos, m_sin;
};

void radix2(double* re, double* im, std::size_t n);

// The inverse of radix2, unscaled: the same kernel with the real and
// imaginary parts swapped on both sides.
inline void radix2Inverse(double* re, double* im, std::size_t n) { radix2(im, re, n); }

class MixedRadix;

// The chirp kernel with its chirp, the spectrum of the conjugate chirp and
// the power-of-two transform of the convolution (the mixed-radix kernel,
// whose stages of 4 are the fastest).
class Bluestein {
public:
    explicit Bluestein(std::size_t n);
    void transform(double* re, double* im);

private:
    std::size_t m_n, m_m;
    std::shared_ptr<MixedRadix> m_inner;
    std::vector<double> m_chirpRe, m_chirpIm, m_spectrumRe, m_spectrumIm, m_workRe, m_workIm;
};

void bluestein(double* re, double* im, std::size_t n);
inline void bluesteinInverse(double* re, double* im, std::size_t n) { bluestein(im, re, n); }

// The factors of n in the order the mixed-radix stages use them: fours,
// then a two, then threes, fives, sevens and larger odd numbers.
std::vector<std::size_t> factorize(std::size_t n);

class MixedRadix {
public:
    MixedRadix(std::size_t n, bool inverse);
    // In place; the output is in natural order.
    void transform(double* re, double* im);
    std::size_t size() const { return m_n; }

private:
    struct Stage {
        std::size_t radix, stride, count; // count butterflies of stride consecutive inputs
    };
    std::size_t m_n;
    int m_sign;
    std::vector<double> m_rootRe, m_rootIm;
    std::vector<Stage> m_stages;
    std::vector<double> m_workRe, m_workIm, m_scratch;
};

void danielsonLanczos(double* re, double* im, std::size_t n, bool inverse);

// Plans of the lengths last used in the calling thread, so that repeated
// transforms of one length build their tables once. A plan is used by one
// call at a time; a few plans of up to 2^21 entries together are kept.
std::shared_ptr<MixedRadix> mixedRadixPlan(std::size_t n, bool inverse);
std::shared_ptr<Bluestein> bluesteinPlan(std::size_t n);
std::shared_ptr<Radix2> radix2Plan(std::size_t n);

} // namespace fourier
} // namespace VarnholtMath
