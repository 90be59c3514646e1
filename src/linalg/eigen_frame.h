#pragma once

// The conversion frame of the decompositions: a numeric vhMatrix becomes a
// dense complex Eigen matrix, the factors come back as vhMatrix values, and
// several factors are packed into a row vector of matrices. Every member of
// the family works in complex arithmetic, also for a real argument, so that
// one code path serves both.
//
// Failures inside the frame throw the integer 2; the members catch every
// exception and answer with the undefined value.

#include <utility>
#include <vector>

#include <Eigen/Dense>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace linalg {

typedef Eigen::MatrixXcd ComplexMatrix;
// The decompositions work in place on the converted copy, which is theirs.
typedef Eigen::Ref<ComplexMatrix> InPlace;

// The error a frame step throws; caught by the member's catch-all.
const int frameFailure = 2;

// A defined matrix with numeric storage; vectors do not qualify.
bool isNumericMatrix(const vhValue& A);

// Copies the numeric matrix into a complex working matrix. An infinite or
// NaN part, or storage that is missing, throws frameFailure.
ComplexMatrix toComplexMatrix(const vhValue& A);

// The factor as a numeric vhMatrix: real elements when no element has an
// imaginary part, complex ones otherwise. A failed allocation throws.
vhValue fromComplexMatrix(const ComplexMatrix& M);

// Throws frameFailure when a factor of rows x columns would exceed the
// process-wide limit of array elements: square factors of a wide or tall
// matrix grow with the square of its longer side.
void checkFactorSize(Eigen::Index rows, Eigen::Index columns);

// The row vector of factors, one matrix per element. The factors are moved
// into their places, not copied: they are as large as the argument.
vhValue packFactors(std::vector<vhValue>& factors);

template <class... Factors> vhValue factorVector(Factors&&... factors)
{
    std::vector<vhValue> list;
    list.reserve(sizeof...(factors));
    (list.push_back(std::forward<Factors>(factors)), ...);
    return packFactors(list);
}

// The members that hand out a single factor: they refuse an argument that
// is null or not numeric, and otherwise take element i of their parent's
// result when that is a vector. The parent's own tests are not repeated.
template <class Parent> vhValue factorOf(const vhValue& A, unsigned int i, Parent parent)
{
    if (A.isNull() || !A.isNumericVectorOrMatrix())
        return vhValue();
    const vhValue result = parent();
    if (result.isNull() || !result.isVector())
        return vhValue();
    return result.value(i);
}

// Runs body inside a block that catches everything: the result, or the
// undefined value on any exception (frameFailure, std::bad_alloc, ...).
template <class Body> vhValue guardedFactorisation(Body body)
{
    try {
        return body();
    } catch (...) {
        return vhValue();
    }
}

// The number of pivots of a column-pivoting QR whose magnitude exceeds 1e-6
// times the largest; the rank of the worksheet functions.
unsigned int relativeRank(const ComplexMatrix& M);

} // namespace linalg
} // namespace ValueTypes
} // namespace VarnholtMath
