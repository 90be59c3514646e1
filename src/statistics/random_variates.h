#pragma once

// Random variates of the worksheet's distributions, each drawn from the
// process-wide uniform stream (random_stream.h) on plain doubles. A variate
// takes as many uniform draws as its method needs, in a fixed order, so a
// known state gives a known sequence. The parameters are assumed checked by
// the caller; NaN comes back only when a rejection method gives up on a
// stuck stream.

namespace VarnholtMath {
namespace statistics {

// a + r (b - a) / 2147483647 with r the raw draw.
double uniformVariate(double a, double b);
// The sum of twelve uniforms, minus 6, scaled: never beyond 6 deviations.
double normalVariate(double mean, double deviation);
double exponentialVariate(double rate);
// An exponential whose sign a second draw flips with probability one half.
double laplaceVariate(double rate);
// Shape a, scale b: exponential for a = 1, Best's rejection below,
// Cheng's ratio of uniforms above.
double gammaVariate(double a, double b);
// Cheng's method.
double betaVariate(double a, double b);
double chiSquareVariate(double df);
double cauchyVariate(double scale, double location);
double fVariate(double d1, double d2);
// The polar method.
double tVariate(double df);
// Inversion of the cumulative for the three discrete families.
double poissonVariate(double rate);
double geometricVariate(double p);
double logarithmicVariate(double p);

} // namespace statistics
} // namespace VarnholtMath
