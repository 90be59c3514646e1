// Integer kernels of the number theory functions. The counting kernels work
// modulo 2^32 in unsigned arithmetic: that is exactly the value that the
// wrapping 32-bit computation gives, and it keeps signed overflow out.

#include "functions/number_theory_kernels.h"

#include <algorithm>
#include <cstring>

namespace VarnholtMath {
namespace numbertheory {

namespace {

// How many inner steps the long kernels take between two polls.
constexpr std::uint64_t kPollSteps = 1u << 20;

bool stopped(const StopPoll& stop) { return stop && stop(); }

// The inverse of an odd number modulo 2^32, by Newton's iteration: each
// step doubles the number of correct low bits.
std::uint32_t inverseOdd(std::uint32_t a)
{
    std::uint32_t x = a; // correct to 3 bits for odd a
    for (int i = 0; i < 5; ++i)
        x *= 2u - a * x;
    return x;
}

int popcount(std::uint32_t v) { return __builtin_popcount(v); }

} // namespace

std::uint32_t gcd(std::uint32_t a, std::uint32_t b)
{
    while (b != 0) {
        const std::uint32_t r = a % b;
        a = b;
        b = r;
    }
    return a;
}

void extendedEuclid(std::uint32_t a, std::uint32_t b, std::uint32_t& g, std::int64_t& m, std::int64_t& n)
{
    std::int64_t oldR = a, r = b;
    std::int64_t oldS = 1, s = 0;
    std::int64_t oldT = 0, t = 1;
    while (r != 0) {
        const std::int64_t q = oldR / r;
        std::int64_t tmp = oldR - q * r;
        oldR = r;
        r = tmp;
        tmp = oldS - q * s;
        oldS = s;
        s = tmp;
        tmp = oldT - q * t;
        oldT = t;
        t = tmp;
    }
    g = static_cast<std::uint32_t>(oldR);
    m = oldS;
    n = oldT;
}

std::int64_t modularInverse(std::int32_t p, std::int32_t x)
{
    if (p == 0 || x == 0)
        return 0;
    std::uint32_t g;
    std::int64_t m, n;
    extendedEuclid(magnitude(p), magnitude(x), g, m, n);
    if (g != 1)
        return 0;
    if (x < 0)
        n = -n;
    const std::int64_t modulus = magnitude(p);
    n %= modulus;
    return n < 0 ? n + modulus : n;
}

bool isPrime(std::int64_t n)
{
    if (n < 2)
        return false;
    if (n < 4)
        return true;
    if (n % 2 == 0 || n % 3 == 0)
        return false;
    if (n < 25)
        return true;
    if (n % 5 == 0 || n % 7 == 0)
        return false;
    for (std::int64_t d = 11; d * d <= n; d += 6)
        if (n % d == 0 || n % (d + 2) == 0)
            return false;
    return true;
}

bool factor(std::uint32_t n, std::vector<int>& out, std::uint32_t maxFactors, std::uint32_t& count, bool unique)
{
    std::uint32_t m = n, c = 0;
    std::uint32_t d = 2;
    out.clear();
    while (m > 1 && c < maxFactors) {
        // The divisors are tried upward from the last one found; once d*d
        // exceeds m, m itself is the smallest divisor left.
        if (m % 2 != 0) {
            if (d < 3)
                d = 3;
            while (std::uint64_t(d) * d <= m && m % d != 0)
                ++d;
            if (std::uint64_t(d) * d > m)
                d = m;
        } else {
            d = 2;
        }
        if (!unique || out.empty() || out.back() != static_cast<int>(d)) {
            out.push_back(static_cast<int>(d));
            ++c;
        }
        m /= d;
    }
    if (m > 1 && c == maxFactors)
        return false;
    count = c;
    return true;
}

bool binomial(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop)
{
    if (k < 0 || n < 0 || k > n) {
        result = 0;
        return true;
    }
    if (k > n - k)
        k = n - k;
    // Kummer: the power of 2 in C(n, k) is the number of carries when k and
    // n - k are added in base 2.
    const int twos = popcount(static_cast<std::uint32_t>(k)) + popcount(static_cast<std::uint32_t>(n - k)) -
                     popcount(static_cast<std::uint32_t>(n));
    if (twos >= 32) {
        result = 0;
        return true;
    }
    // The odd parts of the factors are units modulo 2^32, so the quotient
    // of their products is exact there.
    std::uint32_t numerator = 1, denominator = 1;
    for (std::int32_t i = 1; i <= k; ++i) {
        std::uint32_t a = static_cast<std::uint32_t>(n - k + i), b = static_cast<std::uint32_t>(i);
        a >>= __builtin_ctz(a);
        b >>= __builtin_ctz(b);
        numerator *= a;
        denominator *= b;
        if ((static_cast<std::uint64_t>(i) % kPollSteps) == 0 && stopped(stop))
            return false;
    }
    result = (numerator * inverseOdd(denominator)) << twos;
    return true;
}

std::int64_t fibonacci(std::uint64_t n)
{
    // Fast doubling modulo 2^64: F(2k) = F(k) (2 F(k+1) - F(k)),
    // F(2k+1) = F(k)^2 + F(k+1)^2.
    std::uint64_t a = 0, b = 1; // F(0), F(1)
    for (int bit = 63; bit >= 0; --bit) {
        const std::uint64_t c = a * (2 * b - a);
        const std::uint64_t d = a * a + b * b;
        if ((n >> bit) & 1u) {
            a = d;
            b = c + d;
        } else {
            a = c;
            b = d;
        }
    }
    return static_cast<std::int64_t>(a);
}

bool partitions(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop)
{
    if (n == 0 || k == 1) {
        result = 1;
        return true;
    }
    const std::int32_t m = std::min(n, k);
    if (m < 1) {
        result = 0;
        return true;
    }
    std::vector<std::uint32_t> p(std::size_t(n) + 1, 0);
    p[0] = 1;
    if (m == n) {
        // All part sizes: Euler's pentagonal recurrence.
        for (std::int32_t i = 1; i <= n; ++i) {
            std::uint32_t sum = 0;
            for (std::int64_t j = 1;; ++j) {
                const std::int64_t g1 = j * (3 * j - 1) / 2, g2 = j * (3 * j + 1) / 2;
                if (g1 > i)
                    break;
                const std::uint32_t term = p[std::size_t(i - g1)] + (g2 <= i ? p[std::size_t(i - g2)] : 0u);
                sum = (j % 2 == 1) ? sum + term : sum - term;
            }
            p[std::size_t(i)] = sum;
        }
    } else {
        for (std::int32_t part = 1; part <= m; ++part) {
            for (std::int32_t j = part; j <= n; ++j)
                p[std::size_t(j)] += p[std::size_t(j - part)];
            if (stopped(stop))
                return false;
        }
    }
    result = p[std::size_t(n)];
    return true;
}

bool bell(std::int32_t n, std::uint32_t& result, const StopPoll& stop)
{
    // The Bell triangle: each row starts with the last entry of the row
    // above, and each next entry adds the entry above its left neighbour.
    std::vector<std::uint32_t> previous(std::size_t(n) + 1, 0), row(std::size_t(n) + 1, 0);
    previous[0] = 1;
    for (std::int32_t i = 1; i <= n; ++i) {
        row[0] = previous[std::size_t(i - 1)];
        for (std::int32_t j = 1; j <= i; ++j)
            row[std::size_t(j)] = row[std::size_t(j - 1)] + previous[std::size_t(j - 1)];
        previous.swap(row);
        if ((i & 255) == 0 && stopped(stop))
            return false;
    }
    result = previous[0];
    return true;
}

namespace {

// One triangle of the three Stirling recurrences, row by row, each row
// kept up to column k.
template <class Step>
bool stirlingTriangle(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop, Step step)
{
    if (k > n) {
        result = 0;
        return true;
    }
    std::vector<std::uint32_t> s(std::size_t(k) + 1, 0);
    s[0] = 1;
    for (std::int32_t i = 1; i <= n; ++i) {
        const std::int32_t top = std::min(i, k);
        for (std::int32_t j = top; j >= 1; --j)
            s[std::size_t(j)] = step(s[std::size_t(j - 1)], s[std::size_t(j)], static_cast<std::uint32_t>(i),
                                     static_cast<std::uint32_t>(j));
        s[0] = 0;
        if ((i & 255) == 0 && stopped(stop))
            return false;
    }
    result = s[std::size_t(k)];
    return true;
}

} // namespace

bool stirling1Signed(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop)
{
    return stirlingTriangle(n, k, result, stop, [](std::uint32_t left, std::uint32_t above, std::uint32_t i,
                                                   std::uint32_t) { return left - (i - 1) * above; });
}

bool stirling1Unsigned(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop)
{
    return stirlingTriangle(n, k, result, stop, [](std::uint32_t left, std::uint32_t above, std::uint32_t i,
                                                   std::uint32_t) { return left + (i - 1) * above; });
}

bool stirling2(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop)
{
    return stirlingTriangle(n, k, result, stop, [](std::uint32_t left, std::uint32_t above, std::uint32_t,
                                                   std::uint32_t j) { return left + j * above; });
}

std::vector<unsigned char> primeFlags(std::uint32_t limit)
{
    std::vector<unsigned char> flags(std::size_t(limit) + 1, 1);
    flags[0] = 0;
    if (limit >= 1)
        flags[1] = 0;
    for (std::uint64_t i = 4; i <= limit; i += 2)
        flags[i] = 0;
    for (std::uint64_t p = 3; p * p <= limit; p += 2)
        if (flags[p])
            for (std::uint64_t q = p * p; q <= limit; q += 2 * p)
                flags[q] = 0;
    return flags;
}

std::int64_t nthPrime(std::int64_t n, const StopPoll& stop)
{
    // 105097565 primes lie below 2^31; the next one needs 32 bits.
    if (n < 1 || n > 105097565)
        return 0;
    if (n == 1)
        return 2;
    const std::int64_t top = 2147483647; // the largest 32-bit signed number
    // Odd base primes up to the square root of the top.
    std::vector<std::uint32_t> base;
    {
        const std::vector<unsigned char> small = primeFlags(46341);
        for (std::uint32_t p = 3; p <= 46341; p += 2)
            if (small[p])
                base.push_back(p);
    }
    // Segments of odd numbers: entry i stands for low + 2 i.
    const std::int64_t span = 1 << 16;
    std::vector<unsigned char> segment(static_cast<std::size_t>(span));
    std::vector<std::int64_t> next(base.size(), 0);
    for (std::size_t b = 0; b < base.size(); ++b)
        next[b] = std::int64_t(base[b]) * base[b];
    std::int64_t count = 1; // the prime 2
    for (std::int64_t low = 3; low <= top; low += 2 * span) {
        const std::int64_t high = std::min(low + 2 * (span - 1), top); // last odd number covered
        const std::int64_t entries = (high - low) / 2 + 1;
        std::memset(segment.data(), 1, static_cast<std::size_t>(entries));
        for (std::size_t b = 0; b < base.size(); ++b) {
            const std::int64_t p = base[b];
            if (p * p > high)
                break;
            std::int64_t q = next[b];
            for (; q <= high; q += 2 * p)
                segment[static_cast<std::size_t>((q - low) / 2)] = 0;
            next[b] = q;
        }
        // Base primes mark their own squares and above, so the primes among
        // them stay flagged in the first segment.
        for (std::int64_t i = 0; i < entries; ++i) {
            count += segment[static_cast<std::size_t>(i)];
            if (count == n)
                return low + 2 * i;
        }
        if (stopped(stop))
            return 0;
    }
    return 0;
}

} // namespace numbertheory
} // namespace VarnholtMath
