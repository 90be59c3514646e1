// The Fourier kernels. The mixed-radix kernel runs its stages in
// self-sorting order (each stage reads one buffer and writes the other in
// the order the next stage needs), so that no permutation pass is needed and
// the inner loops run over consecutive elements.

#include "signal/fft_kernels.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

namespace VarnholtMath {
namespace fourier {

namespace {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kPi = 3.141592653589793;

std::uint32_t reverseBits(std::uint32_t v)
{
    v = ((v >> 1) & 0x55555555u) | ((v & 0x55555555u) << 1);
    v = ((v >> 2) & 0x33333333u) | ((v & 0x33333333u) << 2);
    v = ((v >> 4) & 0x0F0F0F0Fu) | ((v & 0x0F0F0F0Fu) << 4);
    v = ((v >> 8) & 0x00FF00FFu) | ((v & 0x00FF00FFu) << 8);
    return (v >> 16) | (v << 16);
}

unsigned int log2Of(std::size_t n)
{
    unsigned int bits = 0;
    while ((std::size_t(1) << bits) < n)
        ++bits;
    return bits;
}

} // namespace

void unitRoots(std::size_t n, std::size_t count, int sign, double* re, double* im)
{
    if (n == 0 || count == 0)
        return;
    // The half circle k <= n/2 first, from the eighth or the quarter by
    // reflection where n allows it; the rest by conjugation.
    const std::size_t half = n / 2;
    std::vector<double> c(half + 1), s(half + 1);
    std::size_t direct = half;
    if (n % 8 == 0)
        direct = n / 8;
    else if (n % 4 == 0)
        direct = n / 4;
    for (std::size_t k = 0; k <= direct; ++k) {
        const double a = kTwoPi * double(k) / double(n);
        c[k] = std::cos(a);
        s[k] = std::sin(a);
    }
    if (n % 8 == 0)
        for (std::size_t k = direct + 1; k <= n / 4; ++k) {
            c[k] = s[n / 4 - k];
            s[k] = c[n / 4 - k];
        }
    if (n % 4 == 0)
        for (std::size_t k = n / 4 + 1; k <= half; ++k) {
            c[k] = -c[half - k];
            s[k] = s[half - k];
        }
    const double flip = sign < 0 ? -1.0 : 1.0;
    const std::size_t first = std::min(count, half + 1);
    for (std::size_t k = 0; k < first; ++k) {
        re[k] = c[k];
        im[k] = flip * s[k];
    }
    for (std::size_t k = first; k < count && k < n; ++k) {
        re[k] = c[n - k];
        im[k] = -flip * s[n - k];
    }
}

Radix2::Radix2(std::size_t n) : m_n(n), m_bits(log2Of(n))
{
    if (n < 2)
        return;
    m_cos.resize(n / 2);
    m_sin.resize(n / 2);
    unitRoots(n, n / 2, 1, m_cos.data(), m_sin.data());
}

void Radix2::transform(double* re, double* im) const
{
    const std::size_t n = m_n;
    if (n < 2)
        return;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t r = reverseBits(static_cast<std::uint32_t>(i)) >> (32 - m_bits);
        if (i < r) {
            std::swap(re[i], re[r]);
            std::swap(im[i], im[r]);
        }
    }
    const double* cosTable = m_cos.data();
    const double* sinTable = m_sin.data();
    // The first stage needs no multiplications.
    for (std::size_t j = 0; j < n; j += 2) {
        const double ar = re[j], ai = im[j], br = re[j + 1], bi = im[j + 1];
        re[j] = ar + br;
        im[j] = ai + bi;
        re[j + 1] = ar - br;
        im[j + 1] = ai - bi;
    }
    for (std::size_t size = 4; size <= n; size *= 2) {
        const std::size_t half = size / 2, step = n / size;
        for (std::size_t start = 0; start < n; start += size) {
            double* __restrict xr = re + start;
            double* __restrict xi = im + start;
            double* __restrict yr = xr + half;
            double* __restrict yi = xi + half;
            for (std::size_t k = 0; k < half; ++k) {
                // t = x[k + half] * conj(w)
                const double wr = cosTable[k * step], wi = sinTable[k * step];
                const double tr = yr[k] * wr + yi[k] * wi;
                const double ti = yi[k] * wr - yr[k] * wi;
                yr[k] = xr[k] - tr;
                yi[k] = xi[k] - ti;
                xr[k] += tr;
                xi[k] += ti;
            }
        }
    }
}

void radix2(double* re, double* im, std::size_t n) { Radix2(n).transform(re, im); }

Bluestein::Bluestein(std::size_t n) : m_n(n), m_m(1)
{
    if (n < 2)
        return;
    while (m_m < 2 * n - 1)
        m_m *= 2;
    m_inner = std::make_shared<MixedRadix>(m_m, false);
    // The chirp exp(-pi i k^2 / n) = exp(-2 pi i (k^2 mod 2n) / 2n), with
    // the square reduced in integers so that large k lose no accuracy.
    std::vector<double> rootRe(2 * n), rootIm(2 * n);
    unitRoots(2 * n, 2 * n, -1, rootRe.data(), rootIm.data());
    m_chirpRe.resize(n);
    m_chirpIm.resize(n);
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t j = static_cast<std::size_t>((std::uint64_t(k) * k) % (2 * std::uint64_t(n)));
        m_chirpRe[k] = rootRe[j];
        m_chirpIm[k] = rootIm[j];
    }
    // The spectrum of the conjugate chirp, wrapped around so that the
    // circular convolution of length m is the linear one for the n outputs.
    m_spectrumRe.assign(m_m, 0.0);
    m_spectrumIm.assign(m_m, 0.0);
    m_spectrumRe[0] = m_chirpRe[0];
    m_spectrumIm[0] = -m_chirpIm[0];
    for (std::size_t k = 1; k < n; ++k) {
        m_spectrumRe[k] = m_spectrumRe[m_m - k] = m_chirpRe[k];
        m_spectrumIm[k] = m_spectrumIm[m_m - k] = -m_chirpIm[k];
    }
    m_inner->transform(m_spectrumRe.data(), m_spectrumIm.data());
    m_workRe.resize(m_m);
    m_workIm.resize(m_m);
}

void Bluestein::transform(double* re, double* im)
{
    const std::size_t n = m_n, m = m_m;
    if (n < 2)
        return;
    double* ar = m_workRe.data();
    double* ai = m_workIm.data();
    for (std::size_t k = 0; k < n; ++k) {
        ar[k] = re[k] * m_chirpRe[k] - im[k] * m_chirpIm[k];
        ai[k] = re[k] * m_chirpIm[k] + im[k] * m_chirpRe[k];
    }
    std::fill(ar + n, ar + m, 0.0);
    std::fill(ai + n, ai + m, 0.0);
    m_inner->transform(ar, ai);
    for (std::size_t k = 0; k < m; ++k) {
        const double r = ar[k] * m_spectrumRe[k] - ai[k] * m_spectrumIm[k];
        const double i = ar[k] * m_spectrumIm[k] + ai[k] * m_spectrumRe[k];
        ar[k] = r;
        ai[k] = i;
    }
    // The inverse transform: the same kernel with the parts swapped.
    m_inner->transform(ai, ar);
    const double scale = 1.0 / double(m);
    for (std::size_t k = 0; k < n; ++k) {
        const double cr = ar[k] * scale, ci = ai[k] * scale;
        re[k] = cr * m_chirpRe[k] - ci * m_chirpIm[k];
        im[k] = cr * m_chirpIm[k] + ci * m_chirpRe[k];
    }
}

void bluestein(double* re, double* im, std::size_t n) { Bluestein(n).transform(re, im); }

std::vector<std::size_t> factorize(std::size_t n)
{
    std::vector<std::size_t> factors;
    std::size_t p = 4;
    while (n > 1) {
        while (n % p != 0) {
            if (p == 4)
                p = 2;
            else if (p == 2)
                p = 3;
            else
                p += 2;
            // Past the square root, the remainder is the last factor.
            if (p * p > n)
                p = n;
        }
        factors.push_back(p);
        n /= p;
    }
    return factors;
}

MixedRadix::MixedRadix(std::size_t n, bool inverse) : m_n(n), m_sign(inverse ? 1 : -1)
{
    if (n < 2)
        return;
    m_rootRe.resize(n);
    m_rootIm.resize(n);
    unitRoots(n, n, m_sign, m_rootRe.data(), m_rootIm.data());
    std::size_t stride = 1, length = n, largest = 0;
    for (std::size_t p : factorize(n)) {
        Stage stage;
        stage.radix = p;
        stage.stride = stride;
        stage.count = length / p;
        largest = std::max(largest, p);
        m_stages.push_back(std::move(stage));
        stride *= p;
        length /= p;
    }
    m_workRe.resize(n);
    m_workIm.resize(n);
    m_scratch.resize(4 * largest);
}

namespace {

// One stage: count butterflies of radix P over stride consecutive columns.
// Input r of butterfly j, column q is x[q + stride (j + r count)]; its
// output t goes, times the twiddle exp(sign 2 pi i j t stride / n) from the
// roots table, to y[q + stride (P j + t)]. The columns are the inner loop,
// so that later stages run over long runs of consecutive elements.
template <std::size_t P, class Butterfly>
void runStage(const double* __restrict xr, const double* __restrict xi, double* __restrict yr,
              double* __restrict yi, std::size_t stride, std::size_t count, const double* rootRe,
              const double* rootIm, Butterfly butterfly)
{
    const std::size_t jump = stride * count;
    for (std::size_t j = 0; j < count; ++j) {
        double wr[P], wi[P];
        for (std::size_t t = 1; t < P; ++t) {
            wr[t] = rootRe[j * t * stride];
            wi[t] = rootIm[j * t * stride];
        }
        const double* __restrict inR = xr + stride * j;
        const double* __restrict inI = xi + stride * j;
        double* __restrict outR = yr + stride * P * j;
        double* __restrict outI = yi + stride * P * j;
        if (j == 0) {
            for (std::size_t q = 0; q < stride; ++q) {
                double ar[P], ai[P], br[P], bi[P];
                for (std::size_t r = 0; r < P; ++r) {
                    ar[r] = inR[q + r * jump];
                    ai[r] = inI[q + r * jump];
                }
                butterfly(ar, ai, br, bi);
                for (std::size_t t = 0; t < P; ++t) {
                    outR[q + stride * t] = br[t];
                    outI[q + stride * t] = bi[t];
                }
            }
            continue;
        }
        for (std::size_t q = 0; q < stride; ++q) {
            double ar[P], ai[P], br[P], bi[P];
            for (std::size_t r = 0; r < P; ++r) {
                ar[r] = inR[q + r * jump];
                ai[r] = inI[q + r * jump];
            }
            butterfly(ar, ai, br, bi);
            outR[q] = br[0];
            outI[q] = bi[0];
            for (std::size_t t = 1; t < P; ++t) {
                outR[q + stride * t] = br[t] * wr[t] - bi[t] * wi[t];
                outI[q + stride * t] = br[t] * wi[t] + bi[t] * wr[t];
            }
        }
    }
}

} // namespace

void MixedRadix::transform(double* re, double* im)
{
    if (m_n < 2)
        return;
    const std::size_t n = m_n;
    double* xr = re;
    double* xi = im;
    double* yr = m_workRe.data();
    double* yi = m_workIm.data();
    const double sign = double(m_sign);
    for (const Stage& st : m_stages) {
        const double* twr = m_rootRe.data();
        const double* twi = m_rootIm.data();
        switch (st.radix) {
        case 2:
            runStage<2>(xr, xi, yr, yi, st.stride, st.count, twr, twi,
                        [](const double* ar, const double* ai, double* br, double* bi) {
                            br[0] = ar[0] + ar[1];
                            bi[0] = ai[0] + ai[1];
                            br[1] = ar[0] - ar[1];
                            bi[1] = ai[0] - ai[1];
                        });
            break;
        case 4:
            runStage<4>(xr, xi, yr, yi, st.stride, st.count, twr, twi,
                        [sign](const double* ar, const double* ai, double* br, double* bi) {
                            const double t0r = ar[0] + ar[2], t0i = ai[0] + ai[2];
                            const double t1r = ar[0] - ar[2], t1i = ai[0] - ai[2];
                            const double t2r = ar[1] + ar[3], t2i = ai[1] + ai[3];
                            const double t3r = ar[1] - ar[3], t3i = ai[1] - ai[3];
                            // (sign i) t3
                            const double ur = -sign * t3i, ui = sign * t3r;
                            br[0] = t0r + t2r;
                            bi[0] = t0i + t2i;
                            br[2] = t0r - t2r;
                            bi[2] = t0i - t2i;
                            br[1] = t1r + ur;
                            bi[1] = t1i + ui;
                            br[3] = t1r - ur;
                            bi[3] = t1i - ui;
                        });
            break;
        case 3: {
            const double c = m_rootRe[n / 3], w = m_rootIm[n / 3];
            runStage<3>(xr, xi, yr, yi, st.stride, st.count, twr, twi,
                        [c, w](const double* ar, const double* ai, double* br, double* bi) {
                            const double sr = ar[1] + ar[2], si = ai[1] + ai[2];
                            const double dr = ar[1] - ar[2], di = ai[1] - ai[2];
                            const double mr = ar[0] + c * sr, mi = ai[0] + c * si;
                            br[0] = ar[0] + sr;
                            bi[0] = ai[0] + si;
                            br[1] = mr - w * di;
                            bi[1] = mi + w * dr;
                            br[2] = mr + w * di;
                            bi[2] = mi - w * dr;
                        });
            break;
        }
        case 5: {
            const double c1 = m_rootRe[n / 5], w1 = m_rootIm[n / 5];
            const double c2 = m_rootRe[2 * n / 5], w2 = m_rootIm[2 * n / 5];
            runStage<5>(xr, xi, yr, yi, st.stride, st.count, twr, twi,
                        [c1, w1, c2, w2](const double* ar, const double* ai, double* br, double* bi) {
                            const double s1r = ar[1] + ar[4], s1i = ai[1] + ai[4];
                            const double d1r = ar[1] - ar[4], d1i = ai[1] - ai[4];
                            const double s2r = ar[2] + ar[3], s2i = ai[2] + ai[3];
                            const double d2r = ar[2] - ar[3], d2i = ai[2] - ai[3];
                            br[0] = ar[0] + s1r + s2r;
                            bi[0] = ai[0] + s1i + s2i;
                            const double m1r = ar[0] + c1 * s1r + c2 * s2r, m1i = ai[0] + c1 * s1i + c2 * s2i;
                            const double m2r = ar[0] + c2 * s1r + c1 * s2r, m2i = ai[0] + c2 * s1i + c1 * s2i;
                            // i (w1 d1 + w2 d2) and i (w2 d1 - w1 d2)
                            const double e1r = -(w1 * d1i + w2 * d2i), e1i = w1 * d1r + w2 * d2r;
                            const double e2r = -(w2 * d1i - w1 * d2i), e2i = w2 * d1r - w1 * d2r;
                            br[1] = m1r + e1r;
                            bi[1] = m1i + e1i;
                            br[4] = m1r - e1r;
                            bi[4] = m1i - e1i;
                            br[2] = m2r + e2r;
                            bi[2] = m2i + e2i;
                            br[3] = m2r - e2r;
                            bi[3] = m2i - e2i;
                        });
            break;
        }
        default: {
            // Any other factor: the plain sum over the p inputs, with the
            // p-th roots of unity taken from the table.
            const std::size_t p = st.radix, stride = st.stride, count = st.count, rootStep = n / p;
            double* ar = m_scratch.data();
            double* ai = ar + p;
            double* cr = ai + p;
            double* ci = cr + p;
            for (std::size_t t = 0; t < p; ++t) {
                cr[t] = m_rootRe[t * rootStep];
                ci[t] = m_rootIm[t * rootStep];
            }
            const std::size_t jump = stride * count;
            for (std::size_t j = 0; j < count; ++j) {
                for (std::size_t q = 0; q < stride; ++q) {
                    for (std::size_t r = 0; r < p; ++r) {
                        ar[r] = xr[q + stride * j + r * jump];
                        ai[r] = xi[q + stride * j + r * jump];
                    }
                    for (std::size_t t = 0; t < p; ++t) {
                        double sr = ar[0], si = ai[0];
                        std::size_t k = 0;
                        for (std::size_t r = 1; r < p; ++r) {
                            k += t;
                            if (k >= p)
                                k -= p;
                            sr += ar[r] * cr[k] - ai[r] * ci[k];
                            si += ar[r] * ci[k] + ai[r] * cr[k];
                        }
                        const std::size_t out = q + stride * (p * j + t);
                        if (t == 0 || j == 0) {
                            yr[out] = sr;
                            yi[out] = si;
                        } else {
                            const double wr = twr[j * t * stride], wi = twi[j * t * stride];
                            yr[out] = sr * wr - si * wi;
                            yi[out] = sr * wi + si * wr;
                        }
                    }
                }
            }
            break;
        }
        }
        std::swap(xr, yr);
        std::swap(xi, yi);
    }
    if (xr != re) {
        std::memcpy(re, xr, sizeof(double) * n);
        std::memcpy(im, xi, sizeof(double) * n);
    }
}

void danielsonLanczos(double* re, double* im, std::size_t n, bool inverse)
{
    if (n < 2)
        return;
    const unsigned int bits = log2Of(n);
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t r = reverseBits(static_cast<std::uint32_t>(i)) >> (32 - bits);
        if (i < r) {
            std::swap(re[i], re[r]);
            std::swap(im[i], im[r]);
        }
    }
    const double sign = inverse ? 1.0 : -1.0;
    for (std::size_t half = 1; half < n; half *= 2) {
        // w advances by w <- w + w (alpha + i beta), alpha = -2 sin^2(theta/2),
        // beta = sin(theta): a recurrence that keeps its rounding small.
        const double theta = sign * kPi / double(half);
        const double h = std::sin(0.5 * theta);
        const double alpha = -2.0 * h * h, beta = std::sin(theta);
        double wr = 1.0, wi = 0.0;
        for (std::size_t k = 0; k < half; ++k) {
            for (std::size_t i = k; i < n; i += 2 * half) {
                const std::size_t j = i + half;
                const double tr = wr * re[j] - wi * im[j];
                const double ti = wr * im[j] + wi * re[j];
                re[j] = re[i] - tr;
                im[j] = im[i] - ti;
                re[i] += tr;
                im[i] += ti;
            }
            const double t = wr;
            wr = wr * alpha - wi * beta + wr;
            wi = wi * alpha + t * beta + wi;
        }
    }
}

namespace {

// At most four plans, of 2^21 entries together (some 64 MB of tables and
// work buffers), are kept per kernel and thread.
constexpr std::size_t kKeptEntries = std::size_t(1) << 21;
constexpr std::size_t kKeptPlans = 4;

// The last few plans of one kind, the newest at the end.
template <class Plan> struct PlanShelf {
    struct Entry {
        std::size_t n;
        bool inverse;
        std::shared_ptr<Plan> plan;
    };
    std::vector<Entry> entries;

    template <class Make> std::shared_ptr<Plan> get(std::size_t n, bool inverse, Make make)
    {
        for (std::size_t k = 0; k < entries.size(); ++k)
            if (entries[k].n == n && entries[k].inverse == inverse) {
                Entry e = entries[k];
                entries.erase(entries.begin() + std::ptrdiff_t(k));
                entries.push_back(e);
                return e.plan;
            }
        std::shared_ptr<Plan> plan = make();
        if (n <= kKeptEntries) {
            entries.push_back({n, inverse, plan});
            std::size_t total = 0;
            for (const Entry& e : entries)
                total += e.n;
            while (entries.size() > kKeptPlans || total > kKeptEntries) {
                total -= entries.front().n;
                entries.erase(entries.begin());
            }
        }
        return plan;
    }
};

} // namespace

std::shared_ptr<MixedRadix> mixedRadixPlan(std::size_t n, bool inverse)
{
    thread_local PlanShelf<MixedRadix> shelf;
    return shelf.get(n, inverse, [&] { return std::make_shared<MixedRadix>(n, inverse); });
}

std::shared_ptr<Bluestein> bluesteinPlan(std::size_t n)
{
    thread_local PlanShelf<Bluestein> shelf;
    return shelf.get(n, false, [&] { return std::make_shared<Bluestein>(n); });
}

std::shared_ptr<Radix2> radix2Plan(std::size_t n)
{
    thread_local PlanShelf<Radix2> shelf;
    return shelf.get(n, false, [&] { return std::make_shared<Radix2>(n); });
}

} // namespace fourier
} // namespace VarnholtMath
