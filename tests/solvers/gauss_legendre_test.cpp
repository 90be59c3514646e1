// The 64-point Gauss-Legendre rule with its ten-decimal table: exact for
// polynomials up to the table's rounding, symmetric in its pairs.

#include <gtest/gtest.h>

#include <cmath>

#include "solvers/gauss_legendre.h"

using VarnholtMath::solvers::gaussLegendre64;
using VarnholtMath::solvers::gaussLegendre64Nodes;

TEST(GaussLegendre64, PolynomialsToTheTablesPrecision)
{
    // Degree 10 on [0, 1] and on a shifted, reversed interval.
    EXPECT_NEAR(1.0 / 11.0, gaussLegendre64([](double x) { return std::pow(x, 10); }, 0.0, 1.0), 1e-10);
    EXPECT_NEAR(-(std::pow(3.0, 4) - 1.0) / 4.0, gaussLegendre64([](double x) { return x * x * x; }, 3.0, 1.0),
                20.0 * 2.5e-10);
    // A constant shows the weights' sum: 2 to the table's rounding.
    EXPECT_NEAR(5.0, gaussLegendre64([](double) { return 1.0; }, -2.0, 3.0), 1e-9);
    // Smooth functions converge to the table's precision, not to doubles.
    EXPECT_NEAR(std::exp(1.0) - 1.0, gaussLegendre64([](double x) { return std::exp(x); }, 0.0, 1.0), 1e-9);
    // The table holds the standard nodes from the centre outward.
    EXPECT_EQ(0.0243502927, gaussLegendre64Nodes[0].x);
    EXPECT_EQ(0.048690957, gaussLegendre64Nodes[0].w);
    EXPECT_EQ(0.9993050417, gaussLegendre64Nodes[31].x);
    for (int i = 1; i < 32; ++i) {
        EXPECT_GT(gaussLegendre64Nodes[i].x, gaussLegendre64Nodes[i - 1].x);
        EXPECT_LT(gaussLegendre64Nodes[i].w, gaussLegendre64Nodes[i - 1].w);
    }
}
