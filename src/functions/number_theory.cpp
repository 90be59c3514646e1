// Divisors and counts of the worksheet language: gcd, lcm, the extended
// Euclid, the modular inverse, the Chinese remainder, binomials, Fibonacci,
// partitions, Bell and Stirling numbers and the Poisson coefficient. They
// compute in 32-bit signed integers that wrap silently, so that large
// arguments give wrapped values without notice.

#include <cmath>
#include <cstdint>

#include "frame/math.h"
#include "functions/integer_skeleton.h"
#include "functions/number_theory_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace nth = VarnholtMath::numbertheory;
using nth::wrap32;

namespace {

vhValue wrapped(std::uint32_t u) { return vhInteger(wrap32(u)); }

// A whole-number vector of the given entries.
vhValue integerVector(const std::vector<std::int64_t>& entries)
{
    vhVector v(static_cast<unsigned int>(entries.size()), false, true, false);
    double* data = v.numericValues();
    for (std::size_t i = 0; i < entries.size(); ++i)
        data[i] = wrap32(static_cast<std::uint32_t>(entries[i]));
    return v;
}

bool readReal(const vhValue& v, double& out)
{
    if (!v.isDouble())
        return false;
    out = v.toDouble();
    return !std::isnan(out);
}

} // namespace

vhValue vhMath::gcd_f(const vhValue& x, const vhValue& y)
{
    return integers::binary(x, y, nt_gcd, [](std::int32_t a, std::int32_t b) {
        return wrapped(nth::gcd(nth::magnitude(a), nth::magnitude(b)));
    });
}

vhValue vhMath::lcm_f(const vhValue& x, const vhValue& y)
{
    return integers::binary(x, y, nt_lcm, [](std::int32_t a, std::int32_t b) {
        if (a == 0 && b == 0)
            return vhValue(vhInteger(0));
        // |a / gcd * b| in 32 bits: the quotient is exact, the product wraps.
        const std::uint32_t g = nth::gcd(nth::magnitude(a), nth::magnitude(b));
        const std::int64_t quotient = std::int64_t(a) / std::int64_t(g);
        const std::int32_t product =
            wrap32(static_cast<std::uint32_t>(quotient) * static_cast<std::uint32_t>(b));
        return wrapped(nth::magnitude(product));
    });
}

vhValue vhMath::gcde_f(const vhValue& x, const vhValue& y)
{
    return integers::binary(x, y, nt_gcde, [](std::int32_t a, std::int32_t b) {
        std::uint32_t g;
        std::int64_t m, n;
        nth::extendedEuclid(nth::magnitude(a), nth::magnitude(b), g, m, n);
        // The coefficients take the signs of their arguments, so that
        // a m + b n is the gcd for any signs.
        if (a < 0)
            m = -m;
        if (b < 0)
            n = -n;
        return integerVector({std::int64_t(g), m, n});
    });
}

vhValue vhMath::pseudoinverse_f(const vhValue& p, const vhValue& x)
{
    return integers::binary(p, x, nt_pseudoinverse, [](std::int32_t modulus, std::int32_t a) {
        return vhValue(vhInteger(static_cast<std::int32_t>(nth::modularInverse(modulus, a))));
    });
}

vhValue vhMath::chineserem_f(const vhValue& p, const vhValue& r)
{
    if (p.isNull() || r.isNull())
        return vhValue();
    if (p.isSymbolic() || r.isSymbolic())
        return elementwise::symbolicCall(nt_chineserem, {p, r});
    if (!p.isVector() || !r.isVector() || p.vectorSize() != r.vectorSize())
        return vhValue();
    const unsigned int count = p.vectorSize();
    std::vector<std::int32_t> moduli(count), remainders(count);
    for (unsigned int i = 0; i < count; ++i) {
        const vhValue a = p.value(i), b = r.value(i);
        if (!integers::readInteger(a, moduli[i]) || !integers::readInteger(b, remainders[i]))
            return vhValue();
    }
    if (count == 0)
        return vhInteger(0);
    // The product of the moduli, and every step of the sum, in wrapping
    // 32-bit arithmetic.
    std::uint32_t product = 1;
    for (std::int32_t m : moduli)
        product *= static_cast<std::uint32_t>(m);
    const std::int32_t N = wrap32(product);
    if (N == 0)
        return vhValue();
    std::uint32_t sum = 0;
    for (unsigned int i = 0; i < count; ++i) {
        const std::int32_t m = moduli[i];
        if (m == 0 || (m == -1 && N == INT32_MIN))
            return vhValue();
        const std::int32_t cofactor = N / m;
        const std::uint32_t inverse = static_cast<std::uint32_t>(nth::modularInverse(m, cofactor));
        const std::int32_t term = wrap32(inverse * static_cast<std::uint32_t>(remainders[i]) * product);
        if (term == INT32_MIN && m == -1)
            return vhValue();
        sum += static_cast<std::uint32_t>(term / m);
    }
    // The smallest solution that is not negative.
    std::int64_t x = std::int64_t(wrap32(sum)) % std::int64_t(N);
    if (x < 0)
        x += N < 0 ? -std::int64_t(N) : std::int64_t(N);
    return vhInteger(static_cast<std::int32_t>(x));
}

vhValue vhMath::BinomialCoefficient_f(const vhValue& n, const vhValue& k)
{
    return integers::binary(n, k, nt_BinomialCoefficient, [this](std::int32_t a, std::int32_t b) {
        if (a < 0 || b < 0)
            return vhValue();
        std::uint32_t result;
        if (!nth::binomial(a, b, result, [this] {
                appProcessEvents();
                return stopCalculation();
            }))
            return vhValue();
        return wrapped(result);
    });
}

vhValue vhMath::FibonaciNumber_f(const vhValue& n)
{
    return integers::unary(n, nt_FibonaciNumber, [](std::int32_t k) {
        const std::int64_t m = k;
        if (m >= 0)
            return vhValue(vhDouble(double(nth::fibonacci(std::uint64_t(m)))));
        // F(-n) = (-1)^(n+1) F(n).
        const double f = double(nth::fibonacci(std::uint64_t(-m)));
        return vhValue(vhDouble(f * std::pow(-1.0, double(-m + 1))));
    });
}

vhValue vhMath::CountPartitions_f(const vhValue& n)
{
    return integers::unary(n, nt_CountPartitions, [this](std::int32_t k) {
        if (k < 0 || k > nth::kTableLimit)
            return vhValue();
        if (k < 2)
            return vhValue(vhInteger(1));
        std::uint32_t result;
        if (!nth::partitions(k, k, result, [this] {
                appProcessEvents();
                return stopCalculation();
            }))
            return vhValue();
        return wrapped(result);
    });
}

vhValue vhMath::CountkPartitions_f(const vhValue& k, const vhValue& n)
{
    return integers::binary(k, n, nt_CountkPartitions, [this](std::int32_t parts, std::int32_t total) {
        if (total < 0 || total > nth::kTableLimit)
            return vhValue();
        std::uint32_t result;
        if (!nth::partitions(total, parts, result, [this] {
                appProcessEvents();
                return stopCalculation();
            }))
            return vhValue();
        return wrapped(result);
    });
}

vhValue vhMath::BellNumber_f(const vhValue& n)
{
    return integers::unary(n, nt_BellNumber, [this](std::int32_t k) {
        if (k < 0 || k > nth::kTableLimit)
            return vhValue();
        std::uint32_t result;
        if (!nth::bell(k, result, [this] {
                appProcessEvents();
                return stopCalculation();
            }))
            return vhValue();
        return wrapped(result);
    });
}

namespace {

template <class Kernel> vhValue stirling(vhMath* math, const vhValue& n, const vhValue& k, int id, Kernel kernel)
{
    return integers::binary(n, k, id, [math, kernel](std::int32_t a, std::int32_t b) {
        if (a < 0 || b < 0 || a > nth::kTableLimit)
            return vhValue();
        std::uint32_t result;
        if (!kernel(a, b, result, [math] {
                math->appProcessEvents();
                return math->stopCalculation();
            }))
            return vhValue();
        return wrapped(result);
    });
}

} // namespace

vhValue vhMath::StirlingNumber1stKindSigned_f(const vhValue& n, const vhValue& k)
{
    return stirling(this, n, k, nt_StirlingNumber1stKindSigned, nth::stirling1Signed);
}

vhValue vhMath::StirlingNumber1stKindUnsigned_f(const vhValue& n, const vhValue& k)
{
    return stirling(this, n, k, nt_StirlingNumber1stKindUnsigned, nth::stirling1Unsigned);
}

vhValue vhMath::StirlingNumber2ndKind_f(const vhValue& n, const vhValue& k)
{
    return stirling(this, n, k, nt_StirlingNumber2ndKind, nth::stirling2);
}

vhValue vhMath::PoissonCoefficient_f(const vhValue& l, const vhValue& k)
{
    return integers::binaryWith(l, k, nt_PoissonCoefficient, readReal, integers::readInteger,
                                [](double lambda, std::int32_t events) {
                                    // k! as a wrapping 64-bit product; from 66! on it is 0.
                                    std::uint64_t factorial = 1;
                                    for (std::int32_t i = 2; i <= events && factorial != 0; ++i)
                                        factorial *= std::uint64_t(i);
                                    const double divisor = double(static_cast<std::int64_t>(factorial));
                                    if (divisor == 0.0)
                                        return vhValue();
                                    const double p = std::exp(-lambda) * std::pow(lambda, double(events)) / divisor;
                                    return std::isfinite(p) ? vhValue(vhDouble(p)) : vhValue();
                                });
}

} // namespace ValueTypes
} // namespace VarnholtMath
