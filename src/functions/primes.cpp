// Primes of the worksheet language: the primality test, the neighbouring
// and the n-th prime, and the prime factors of a whole number.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "frame/math.h"
#include "functions/integer_skeleton.h"
#include "functions/number_theory_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace nth = VarnholtMath::numbertheory;

namespace {

constexpr std::int64_t kLargestPrime = 2147483647; // 2^31 - 1 is prime

// Primality of the numbers of a real array, written into out: NaN where
// an element is no whole number, 0 for one below 1. With many elements
// close together a sieve answers them all at once.
void primesOfArray(const double* in, double* out, unsigned int n)
{
    // Whole numbers within 32 bits; NaN fails the range test.
    auto whole = [](double x, std::int64_t& k) {
        if (!(x >= -2147483648.0 && x <= 2147483647.0))
            return false;
        k = static_cast<std::int64_t>(x);
        return double(k) == x;
    };
    // The largest entry within 32 bits (NaN compares false).
    double top = 0;
    for (unsigned int i = 0; i < n; ++i) {
        const double x = in[i];
        top = (x > top && x <= 2147483647.0) ? x : top;
    }
    const std::int64_t largest = static_cast<std::int64_t>(top);
    const bool sieve = n >= 256 && double(largest) <= 64.0 * n + 65536.0;
    std::int64_t k;
    if (sieve) {
        const std::vector<unsigned char> flags = nth::primeFlags(static_cast<std::uint32_t>(largest));
        const unsigned char* f = flags.data();
        for (unsigned int i = 0; i < n; ++i) {
            if (!whole(in[i], k))
                out[i] = std::numeric_limits<double>::quiet_NaN();
            else
                out[i] = k < 1 ? 0.0 : double(f[k]);
        }
        return;
    }
    for (unsigned int i = 0; i < n; ++i) {
        if (!whole(in[i], k))
            out[i] = std::numeric_limits<double>::quiet_NaN();
        else
            out[i] = (k >= 1 && nth::isPrime(k)) ? 1.0 : 0.0;
    }
}

} // namespace

bool vhMath::isPrime(int n) { return nth::isPrime(n); }

bool vhMath::Factor(unsigned int n, std::vector<int>& out, unsigned int maxFactors, unsigned int& count)
{
    return nth::factor(n, out, maxFactors, count, false);
}

bool vhMath::FactorUnique(unsigned int n, std::vector<int>& out, unsigned int maxFactors, unsigned int& count)
{
    return nth::factor(n, out, maxFactors, count, true);
}

vhValue vhMath::isPrime_f(const vhValue& n)
{
    if (n.isNull())
        return vhValue();
    if (n.isSymbolic())
        return elementwise::symbolicCall(nt_isPrime, {n});
    if (elementwise::isArray(n)) {
        vhValue holder;
        const vhValue& array = elementwise::arrayOf(n, holder);
        if (array.numericValues() && !array.numericImValues()) {
            vhValue result = elementwise::sameShape(array);
            if (result.numericValues() && result.vectorSize() == array.vectorSize()) {
                primesOfArray(array.numericValues(), result.numericValues(), array.vectorSize());
                return result;
            }
        }
        return elementwise::mapElements(array, [this](const vhValue& e) { return isPrime_f(e); });
    }
    // Infinities are refused, also as a part of a complex number; any other
    // complex number is no prime.
    if (elementwise::isScalarInfinity(n))
        return vhValue();
    if (n.isComplex())
        return std::isnan(n.complexRe()) || std::isnan(n.complexIm()) ? vhValue() : vhValue(vhBoolean(false));
    if (!n.isInteger())
        return vhValue();
    const std::int32_t k = n.toInt();
    return vhBoolean(k > 0 && isPrime(k));
}

vhValue vhMath::nextPrime_f(const vhValue& n)
{
    return integers::unary(n, nt_nextPrime, [](std::int32_t k) {
        if (k < 2)
            return vhValue(vhInteger(2));
        if (k >= kLargestPrime)
            return vhValue();
        // Gaps between 32-bit primes are below 300.
        std::int64_t p = std::int64_t(k) + 1;
        while (!nth::isPrime(p))
            ++p;
        return vhValue(vhInteger(static_cast<std::int32_t>(p)));
    });
}

vhValue vhMath::previousPrime_f(const vhValue& n)
{
    return integers::unary(n, nt_previousPrime, [](std::int32_t k) {
        if (k <= 2)
            return vhValue();
        std::int64_t p = std::int64_t(k) - 1;
        while (!nth::isPrime(p))
            --p;
        return vhValue(vhInteger(static_cast<std::int32_t>(p)));
    });
}

vhValue vhMath::nthPrime_f(const vhValue& n)
{
    return integers::unary(n, nt_nthPrime, [this](std::int32_t k) {
        const std::int64_t p = nth::nthPrime(k, [this] {
            appProcessEvents();
            return stopCalculation();
        });
        return p == 0 ? vhValue() : vhValue(vhInteger(static_cast<std::int32_t>(p)));
    });
}

namespace {

vhValue factorsOf(std::int32_t n, std::int32_t limit, bool unique)
{
    // One has no prime factors, and an empty list is no worksheet value.
    if (n <= 1 || limit <= 0)
        return vhValue();
    std::vector<int> factors;
    std::uint32_t count = 0;
    if (!nth::factor(static_cast<std::uint32_t>(n), factors, static_cast<std::uint32_t>(limit), count, unique))
        return vhValue();
    vhVector v(count, false, true, false);
    double* data = v.numericValues();
    for (std::uint32_t i = 0; i < count; ++i)
        data[i] = factors[i];
    return v;
}

} // namespace

vhValue vhMath::Factor_f(const vhValue& n, const vhValue& k)
{
    return integers::binary(n, k, nt_Factor,
                            [](std::int32_t a, std::int32_t b) { return factorsOf(a, b, false); });
}

vhValue vhMath::FactorUnique_f(const vhValue& n, const vhValue& k)
{
    return integers::binary(n, k, nt_FactorUnique,
                            [](std::int32_t a, std::int32_t b) { return factorsOf(a, b, true); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
