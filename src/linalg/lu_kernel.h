#pragma once

// The Doolittle elimination without pivoting, on plain complex numbers.

#include "linalg/eigen_frame.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace linalg {

// Factors the square matrix A as L U, L with a unit diagonal, taking the
// rows in their given order. False when a pivot that must divide is zero, or
// when a partial sum before a division is no longer finite: such a matrix
// needs row exchanges, or has no usable factors.
bool doolittle(const ComplexMatrix& A, ComplexMatrix& L, ComplexMatrix& U);

} // namespace linalg
} // namespace ValueTypes
} // namespace VarnholtMath
