// The Parks-McClellan exchange on a dense grid. The amplitude is written as
// Q(f) P(cos 2 pi f), Q fixed by the symmetry and length (1, cos pi f,
// sin 2 pi f, sin pi f), so that the weighted Chebyshev problem for P is a
// polynomial one; P is carried in barycentric form through its values at the
// current reference. After at most 40 exchanges the taps come from sampling
// the amplitude at length points and an inverse transform.

#include "signal/remez.h"

#include <cmath>

namespace VarnholtMath {
namespace ValueTypes {
namespace signal {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr int kMaximumIterations = 40;

struct Interpolant {
    std::vector<double> x;
    std::vector<double> weight;
    std::vector<double> value;

    double at(double xc) const
    {
        double numerator = 0.0;
        double denominator = 0.0;
        for (std::size_t i = 0; i < x.size(); ++i) {
            const double d = xc - x[i];
            if (d == 0.0)
                return value[i];
            const double c = weight[i] / d;
            numerator += c * value[i];
            denominator += c;
        }
        return numerator / denominator;
    }
};

// The interpolant through the reference, with the levelled deviation delta.
Interpolant fit(const std::vector<int>& ext, const std::vector<double>& grid, const std::vector<double>& des,
                const std::vector<double>& wt, double& delta)
{
    const std::size_t n = ext.size();
    Interpolant p;
    p.x.resize(n);
    p.weight.resize(n);
    p.value.resize(n);
    for (std::size_t i = 0; i < n; ++i)
        p.x[i] = std::cos(kTwoPi * grid[ext[i]]);
    // The products of long references leave the range of doubles, so each
    // is carried as a mantissa and a power of two; the weights only matter
    // up to a common factor, which the largest power sets.
    std::vector<int> exponents(n);
    int largest = -2147483647;
    for (std::size_t i = 0; i < n; ++i) {
        double d = 1.0;
        int e = 0;
        for (std::size_t k = 0; k < n; ++k) {
            if (k == i)
                continue;
            int step = 0;
            d = std::frexp(d * (2.0 * (p.x[i] - p.x[k])), &step);
            e += step;
        }
        p.weight[i] = 1.0 / d;
        exponents[i] = -e;
        largest = exponents[i] > largest ? exponents[i] : largest;
    }
    for (std::size_t i = 0; i < n; ++i)
        p.weight[i] = std::ldexp(p.weight[i], exponents[i] - largest);
    double numerator = 0.0;
    double denominator = 0.0;
    double sign = 1.0;
    for (std::size_t i = 0; i < n; ++i) {
        numerator += p.weight[i] * des[ext[i]];
        denominator += sign * p.weight[i] / wt[ext[i]];
        sign = -sign;
    }
    delta = numerator / denominator;
    sign = 1.0;
    for (std::size_t i = 0; i < n; ++i) {
        p.value[i] = des[ext[i]] - sign * delta / wt[ext[i]];
        sign = -sign;
    }
    return p;
}

// The new reference: the largest |E| of each run of one sign, reduced to
// r + 1 alternating points. False when fewer alternations exist.
bool searchExtrema(const std::vector<double>& e, std::size_t count, std::vector<int>& ext)
{
    std::vector<int> found;
    std::size_t j = 0;
    while (j < e.size()) {
        const bool positive = e[j] > 0.0;
        std::size_t best = j;
        while (j < e.size() && (e[j] > 0.0) == positive) {
            if (std::fabs(e[j]) > std::fabs(e[best]))
                best = j;
            ++j;
        }
        found.push_back(static_cast<int>(best));
    }
    // Surplus extrema go smallest first: one at an end is dropped alone; one
    // inside is dropped with the smaller of its neighbours, so that the signs
    // still alternate. Runs of rounding noise around a tiny deviation are
    // the smallest and leave first.
    while (found.size() > count) {
        std::size_t smallest = 0;
        for (std::size_t i = 1; i < found.size(); ++i)
            if (std::fabs(e[found[i]]) < std::fabs(e[found[smallest]]))
                smallest = i;
        if (smallest == 0 || smallest + 1 == found.size() || found.size() == count + 1) {
            if (smallest != 0 && smallest + 1 != found.size())
                smallest = std::fabs(e[found.front()]) < std::fabs(e[found.back()]) ? 0 : found.size() - 1;
            found.erase(found.begin() + static_cast<std::ptrdiff_t>(smallest));
            continue;
        }
        const std::size_t neighbour =
            std::fabs(e[found[smallest - 1]]) < std::fabs(e[found[smallest + 1]]) ? smallest - 1 : smallest + 1;
        const std::size_t from = smallest < neighbour ? smallest : neighbour;
        found.erase(found.begin() + static_cast<std::ptrdiff_t>(from),
                    found.begin() + static_cast<std::ptrdiff_t>(from) + 2);
    }
    if (found.size() < count)
        return false;
    ext.assign(found.begin(), found.end());
    return true;
}

// The search when the error has too few sign changes, as it has while the
// levelled deviation is still below the rounding of the interpolant (long
// filters from a poor start): each reference point moves to the largest
// error of its expected sign between its neighbours. It always keeps r + 1
// ordered points; false only when the reference cannot move at all.
bool searchNeighbourhoods(const std::vector<double>& e, double delta, std::vector<int>& ext)
{
    const std::size_t count = ext.size();
    std::vector<int> next(ext);
    bool moved = false;
    double sign = delta >= 0.0 ? 1.0 : -1.0;
    for (std::size_t i = 0; i < count; ++i) {
        const int lo = i == 0 ? 0 : next[i - 1] + 1;
        const int hi = i + 1 == count ? static_cast<int>(e.size()) - 1 : ext[i + 1] - 1;
        int best = ext[i] < lo ? lo : ext[i];
        for (int j = lo; j <= hi; ++j)
            if (sign * e[j] > sign * e[best])
                best = j;
        if (best > hi && i + 1 < count)
            return false;
        moved = moved || best != ext[i];
        next[i] = best;
        sign = -sign;
    }
    ext = next;
    return moved;
}

} // namespace

bool remezDesign(int length, const std::vector<double>& edges, const std::vector<double>& responses,
                 const std::vector<double>& weights, RemezType type, int density, std::vector<double>& taps,
                 const StopPoll& poll, std::vector<double>* extremalErrors)
{
    const bool negative = type != remezOrdinary;
    const bool odd = length % 2 == 1;
    int r = length / 2;
    if (!negative && odd)
        ++r;
    const std::size_t bands = weights.size();
    if (r < 1 || bands == 0)
        return false;

    // The dense grid, band by band, each band ending exactly at its edge.
    const double delf = 0.5 / (double(density) * double(r));
    std::vector<double> grid;
    std::vector<double> des;
    std::vector<double> wt;
    auto addPoint = [&](double f, std::size_t band) {
        const double lo = edges[2 * band];
        const double hi = edges[2 * band + 1];
        const double r0 = responses[2 * band];
        const double r1 = responses[2 * band + 1];
        const double gain = hi > lo ? r0 + (r1 - r0) * (f - lo) / (hi - lo) : r0;
        double d = gain;
        double w = weights[band];
        if (type == remezDifferentiator) {
            d = gain * f;
            if (f > 1e-5)
                w /= f;
        }
        grid.push_back(f);
        des.push_back(d);
        wt.push_back(w);
    };
    double f = edges[0];
    if (negative && f < delf)
        f = delf;
    for (std::size_t band = 0; band < bands; ++band) {
        const double hi = edges[2 * band + 1];
        if (band > 0)
            f = edges[2 * band];
        do {
            addPoint(f, band);
            f += delf;
        } while (f <= hi);
        // The band's last point moves onto its upper edge.
        grid.pop_back();
        des.pop_back();
        wt.pop_back();
        addPoint(hi, band);
    }
    // Where Q vanishes at 0.5 the point is dropped.
    if (negative == odd && grid.back() > 0.5 - delf) {
        grid.pop_back();
        des.pop_back();
        wt.pop_back();
    }
    const std::size_t n = grid.size();
    if (n < std::size_t(r) + 1)
        return false;
    for (std::size_t j = 0; j < n; ++j) {
        double q = 1.0;
        if (!negative && !odd)
            q = std::cos(kPi * grid[j]);
        else if (negative && !odd)
            q = std::sin(kPi * grid[j]);
        else if (negative)
            q = std::sin(kTwoPi * grid[j]);
        if (q == 1.0)
            continue;
        des[j] /= q;
        wt[j] *= q;
    }

    std::vector<int> ext(std::size_t(r) + 1);
    const double spacing = double(n - 1) / double(r);
    for (int j = 0; j < r; ++j)
        ext[j] = static_cast<int>(double(j) * spacing);
    ext[r] = static_cast<int>(n - 1);

    std::vector<double> e(n);
    double delta = 0.0;
    for (int iteration = 0; iteration < kMaximumIterations; ++iteration) {
        const Interpolant p = fit(ext, grid, des, wt, delta);
        if (!std::isfinite(delta))
            return false;
        for (std::size_t j = 0; j < n; ++j)
            e[j] = wt[j] * (des[j] - p.at(std::cos(kTwoPi * grid[j])));
        if (!searchExtrema(e, std::size_t(r) + 1, ext) && !searchNeighbourhoods(e, delta, ext))
            return false;
        double largest = 0.0;
        double smallest = INFINITY;
        for (int i : ext) {
            largest = std::fmax(largest, std::fabs(e[i]));
            smallest = std::fmin(smallest, std::fabs(e[i]));
        }
        if (extremalErrors) {
            extremalErrors->clear();
            for (int i : ext)
                extremalErrors->push_back(e[i]);
        }
        if (largest > 0.0 && (largest - smallest) / largest < 0.0001)
            break;
        if (poll.ask())
            return false;
    }
    const Interpolant p = fit(ext, grid, des, wt, delta);

    // The amplitude at f = i / length, times Q, for i = 0..length/2.
    const int half = length / 2;
    std::vector<double> a(std::size_t(half) + 1);
    for (int i = 0; i <= half; ++i) {
        const double fi = double(i) / double(length);
        double q = 1.0;
        if (!negative)
            q = odd ? 1.0 : std::cos(kPi * fi);
        else
            q = odd ? std::sin(kTwoPi * fi) : std::sin(kPi * fi);
        a[i] = p.at(std::cos(kTwoPi * fi)) * q;
    }

    // Inverse transform of the real (or imaginary) amplitude, as a direct
    // sum; the first half is computed and mirrored.
    taps.assign(std::size_t(length), 0.0);
    const double m = (double(length) - 1.0) / 2.0;
    const int top = odd ? (length - 1) / 2 : half - 1;
    for (int t = 0; t <= (length - 1) / 2; ++t) {
        const double x = kTwoPi * (double(t) - m) / double(length);
        double v = 0.0;
        if (!negative) {
            v = a[0];
            for (int k = 1; k <= top; ++k)
                v += 2.0 * a[k] * std::cos(x * double(k));
        } else {
            // The amplitude is the imaginary part with the sign of
            // e^{-i pi/2}: h = -(1/N) sum of 2 a_k sin(k x).
            if (!odd)
                v = -a[half] * std::sin(kPi * (double(t) - m));
            for (int k = 1; k <= top; ++k)
                v -= 2.0 * a[k] * std::sin(x * double(k));
        }
        v /= double(length);
        taps[t] = v;
        taps[length - 1 - t] = negative ? -v : v;
    }
    if (negative && odd)
        taps[(length - 1) / 2] = 0.0;
    return true;
}

} // namespace signal
} // namespace ValueTypes
} // namespace VarnholtMath
