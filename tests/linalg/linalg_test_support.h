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

#include <cmath>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace linalg_tests {

// The number a symbolic result stands for when its symbols take the values
// of the map: sums, quotients and products of powers of symbols. Anything
// else, or a symbol missing from the map, gives NaN, which fails every
// comparison. Written for the tests, independent of the engine's own
// substitution.
inline std::complex<double> evaluate(const vhValue& v, const std::map<std::string, std::complex<double>>& at)
{
    using namespace VarnholtMath::ValueTypes;
    const std::complex<double> nan(std::numeric_limits<double>::quiet_NaN(), 0.0);
    if (v.isNull())
        return nan;
    const int tag = v.valueType();
    if (tag <= tagComplex)
        return v.toComplex();
    if (tag == tagExpression) {
        std::complex<double> sum = 0.0;
        for (const vhValue& t : v.expressionValues())
            sum += evaluate(t, at);
        return sum;
    }
    if (tag == tagFraction)
        return v.numerator() && v.denominator() ? evaluate(*v.numerator(), at) / evaluate(*v.denominator(), at)
                                                : nan;
    if (tag != tagSymbolicValue || v.isString())
        return nan;
    // The factors: the coefficient and each atom alone, its own chain cut.
    std::vector<vhValue> factors;
    v.multipliers(factors);
    std::complex<double> product = 1.0;
    for (const vhValue& f : factors) {
        if (f.isNull())
            return nan;
        if (f.valueType() <= tagComplex) {
            product *= f.toComplex();
            continue;
        }
        if (f.valueType() != tagSymbolicValue)
            return nan;
        vhValue base(f);
        base.resetExponent();
        const auto found = at.find(base.toString());
        if (found == at.end())
            return nan;
        const std::complex<double> e = f.exponent() ? evaluate(*f.exponent(), at) : std::complex<double>(1.0);
        product *= std::pow(found->second, e);
    }
    return product;
}

} // namespace linalg_tests
