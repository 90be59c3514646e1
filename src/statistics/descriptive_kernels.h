#pragma once

// Kernels of the descriptive statistics on plain doubles. Each takes the n
// numbers of a data set and gives one number; NaN means undefined (an empty
// set, a division by zero, a parameter out of range). They know nothing of
// the value classes. The formulas work from raw sums, as a calculator does:
// the variance is sum(x^2)/n - (sum(x)/n)^2, not a two-pass form.

#include <cstddef>

namespace VarnholtMath {
namespace statistics {

double mean(const double* x, std::size_t n);
// Population variance from raw sums; a negative value, which only rounding
// can produce, is read as 0.
double variance(const double* x, std::size_t n);
double deviation(const double* x, std::size_t n);
// (sum(x^2) - sum(x)^2 / n) / (n - 1): undefined for a single number.
double varianceSample(const double* x, std::size_t n);
double deviationSample(const double* x, std::size_t n);
double averageDeviation(const double* x, std::size_t n);
// sum((x - mean)^3) / (n s^3) with s the population deviation.
double asymmetry(const double* x, std::size_t n);
// sum_i (x[i + lag] - mean)(x[i] - mean) / (sum(x^2) - sum(x) mean); the lag
// is a whole number in [0, n).
double autocorrelation(const double* x, std::size_t n, double lag);

// The order statistics reorder their data in place.
double median(double* x, std::size_t n);
// The entry at ceil(n p / 100), counted from 1 on the sorted data; p = 0
// gives the smallest entry. 0 <= p <= 100.
double percentile(double* x, std::size_t n, double p);
// Mean of the sorted data with k = floor(n p / 100) entries dropped at each
// end. 0 <= p < 50.
double trimmedMean(double* x, std::size_t n, double p);
// The value of the longest run of equal entries of the sorted data; among
// runs of one length the first, i.e. the smallest value.
double modus(double* x, std::size_t n);

// Two data sets of n numbers each.
double correlation(const double* x, const double* y, std::size_t n);
// The sample covariance (n sum(xy) - sum(x) sum(y)) / (n (n - 1)).
double covariance(const double* x, const double* y, std::size_t n);
double meanSquareError(const double* a, const double* b, std::size_t n);
double meanAbsoluteError(const double* a, const double* b, std::size_t n);
// Relative to the first set: sum((a - b) / a) / n.
double meanPercentageError(const double* a, const double* b, std::size_t n);
double meanAbsolutePercentageError(const double* a, const double* b, std::size_t n);

// Sorts ascending: std::sort, whose last pass is an insertion sort.
void sortAscending(double* x, std::size_t n);

} // namespace statistics
} // namespace VarnholtMath
