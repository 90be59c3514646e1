#pragma once

// Shared by the tests of the decompositions and the linear systems: numeric
// matrices between vhValue and Eigen, read element by element through the
// public accessors so that the frame under test is not used to check itself.

#include <complex>
#include <random>

#include <Eigen/Dense>

#include "value/value.h"

namespace linalg_tests {

using VarnholtMath::ValueTypes::vhMatrix;
using VarnholtMath::ValueTypes::vhValue;
typedef Eigen::MatrixXcd CM;

inline vhValue toValue(const CM& a, bool complex)
{
    vhMatrix m(unsigned(a.rows()), unsigned(a.cols()), true, false, complex);
    double* re = m.numericValues();
    double* im = m.numericImValues();
    for (Eigen::Index i = 0; i < a.rows(); ++i)
        for (Eigen::Index j = 0; j < a.cols(); ++j) {
            re[i * a.cols() + j] = a(i, j).real();
            if (complex)
                im[i * a.cols() + j] = a(i, j).imag();
        }
    return m;
}

// The matrix in v, or an empty matrix when v is no matrix.
inline CM toEigen(const vhValue& v)
{
    if (v.isNull() || !v.isMatrix())
        return CM();
    CM a(v.matrixRows(), v.matrixColumns());
    for (unsigned i = 0; i < v.matrixRows(); ++i)
        for (unsigned j = 0; j < v.matrixColumns(); ++j)
            a(i, j) = v.value(i, j).toComplex();
    return a;
}

inline CM randomMatrix(std::mt19937& gen, Eigen::Index m, Eigen::Index n, bool complex)
{
    std::normal_distribution<double> d;
    CM a(m, n);
    for (Eigen::Index i = 0; i < m; ++i)
        for (Eigen::Index j = 0; j < n; ++j)
            a(i, j) = std::complex<double>(d(gen), complex ? d(gen) : 0.0);
    return a;
}

inline bool isUnitary(const CM& q, double tol)
{
    return (q.adjoint() * q - CM::Identity(q.cols(), q.cols())).norm() <= tol;
}

} // namespace linalg_tests
