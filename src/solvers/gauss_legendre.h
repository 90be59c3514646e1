#pragma once

// The fixed 64-point Gauss-Legendre rule of the numeric integrals, on plain
// doubles. Its nodes and weights are the standard rule's, rounded to ten
// decimals: integrals of smooth functions come out to about that precision,
// not to double precision, and every caller of the rule shares it, so that a
// distribution and a worksheet integral of the same function agree.

#include <cstddef>

namespace VarnholtMath {
namespace solvers {

struct GaussNode {
    double x;
    double w;
};

// The 32 positive nodes from the centre outward; each is used with its
// mirror image, the negative one first.
extern const GaussNode gaussLegendre64Nodes[32];

// The rule on [a, b]: f at (x_i + 1) (b - a) / 2 + a for the 64 nodes, in
// centre-outward pairs, and (b - a) / 2 times the weighted sum.
template <class F> double gaussLegendre64(F f, double a, double b)
{
    const double half = (b - a) / 2.0;
    double sum = 0.0;
    for (std::size_t i = 0; i < 32; ++i) {
        const GaussNode& n = gaussLegendre64Nodes[i];
        sum += n.w * f((1.0 - n.x) * half + a);
        sum += n.w * f((n.x + 1.0) * half + a);
    }
    return half * sum;
}

} // namespace solvers
} // namespace VarnholtMath
