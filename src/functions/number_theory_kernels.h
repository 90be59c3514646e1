#pragma once

// Integer kernels of the number theory functions, on plain integers. The
// worksheet functions compute in 32-bit signed integers that wrap silently:
// every kernel here gives the true value reduced modulo 2^32, which is what
// the wrapping arithmetic gives, without undefined signed overflow.

#include <cstdint>
#include <functional>
#include <vector>

namespace VarnholtMath {
namespace numbertheory {

// Polled now and then by the long kernels; true abandons the work.
using StopPoll = std::function<bool()>;

// The largest argument of the table and triangle kernels (partitions, Bell
// and Stirling numbers): their counts wrap from small arguments on, and the
// tables grow with the square of the argument.
constexpr std::int32_t kTableLimit = 10000;

inline std::int32_t wrap32(std::uint32_t u) { return static_cast<std::int32_t>(u); }
inline std::uint32_t magnitude(std::int32_t x)
{
    return x < 0 ? 0u - static_cast<std::uint32_t>(x) : static_cast<std::uint32_t>(x);
}

std::uint32_t gcd(std::uint32_t a, std::uint32_t b);

// Extended Euclid on a and b: g = a m + b n.
void extendedEuclid(std::uint32_t a, std::uint32_t b, std::uint32_t& g, std::int64_t& m, std::int64_t& n);

// The inverse of x modulo p reduced into [0, |p|); 0 when either is 0 or
// they have a common divisor.
std::int64_t modularInverse(std::int32_t p, std::int32_t x);

// Trial division by 2, 3 and the numbers 6k +- 1. 1 is no prime; callers sort
// out numbers below 1.
bool isPrime(std::int64_t n);

// The prime factors of n in ascending order, at most maxFactors of them
// (distinct ones when unique). False when the limit is reached before all
// factors are found.
bool factor(std::uint32_t n, std::vector<int>& out, std::uint32_t maxFactors, std::uint32_t& count, bool unique);

// C(n, k) modulo 2^32 for 0 <= k <= n; false when stopped.
bool binomial(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop);

// F(n) modulo 2^64, read as a signed 64-bit number.
std::int64_t fibonacci(std::uint64_t n);

// Partitions of n into parts no larger than k, modulo 2^32; n >= 0.
bool partitions(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop);

// Bell and Stirling numbers modulo 2^32; n, k >= 0.
bool bell(std::int32_t n, std::uint32_t& result, const StopPoll& stop);
bool stirling1Signed(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop);
bool stirling1Unsigned(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop);
bool stirling2(std::int32_t n, std::int32_t k, std::uint32_t& result, const StopPoll& stop);

// The n-th prime (the first is 2) by a segmented sieve; 0 when it does not
// fit in 32 signed bits or when stopped.
std::int64_t nthPrime(std::int64_t n, const StopPoll& stop);

// The primes table up to limit: flags[i] is 1 when i is prime.
std::vector<unsigned char> primeFlags(std::uint32_t limit);

} // namespace numbertheory
} // namespace VarnholtMath
