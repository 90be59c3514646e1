// Balancing a chemical reaction. The reaction matrix has one row per element
// and one column per species, each entry the number of atoms of the element
// in the species; products are entered with negative counts. The
// coefficients are the integer vector of the matrix's null space, reduced to
// the smallest whole numbers, the first one positive: with products entered
// negative, all are positive. A reaction with no balance, with several
// independent balances, or with a species that takes no part has no
// coefficients.
//
// The elimination works on exact fractions, so that the coefficients are
// exact whole numbers; counts beyond the range of the fractions give the
// undefined value rather than a rounded answer.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <vector>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

const unsigned int kMaxSize = 64;
const double kMaxCount = 1e6;

struct Fraction {
    std::int64_t num = 0, den = 1;
};

bool normalise(__int128 num, __int128 den, Fraction& out)
{
    if (den == 0)
        return false;
    if (den < 0) {
        num = -num;
        den = -den;
    }
    __int128 a = num < 0 ? -num : num, b = den;
    while (b != 0) {
        const __int128 t = a % b;
        a = b;
        b = t;
    }
    if (a > 1) {
        num /= a;
        den /= a;
    }
    const __int128 limit = INT64_MAX;
    if (num > limit || num < -limit || den > limit)
        return false;
    out.num = static_cast<std::int64_t>(num);
    out.den = static_cast<std::int64_t>(den);
    return true;
}

// a - f * b
bool subtractMultiple(const Fraction& a, const Fraction& f, const Fraction& b, Fraction& out)
{
    Fraction fb;
    if (!normalise(static_cast<__int128>(f.num) * b.num, static_cast<__int128>(f.den) * b.den, fb))
        return false;
    return normalise(static_cast<__int128>(a.num) * fb.den - static_cast<__int128>(fb.num) * a.den,
                     static_cast<__int128>(a.den) * fb.den, out);
}

bool divide(const Fraction& a, const Fraction& b, Fraction& out)
{
    return normalise(static_cast<__int128>(a.num) * b.den, static_cast<__int128>(a.den) * b.num, out);
}

std::int64_t gcd64(std::int64_t a, std::int64_t b) { return std::gcd(a < 0 ? -a : a, b < 0 ? -b : b); }

// The one-dimensional null space of the matrix as smallest whole numbers;
// false when the null space has another dimension or a zero entry.
bool integerNullVector(std::vector<std::vector<Fraction>> m, unsigned int columns, std::vector<std::int64_t>& x)
{
    const unsigned int rows = static_cast<unsigned int>(m.size());
    std::vector<int> pivotColumn;
    unsigned int r = 0;
    for (unsigned int c = 0; c < columns && r < rows; ++c) {
        unsigned int p = r;
        while (p < rows && m[p][c].num == 0)
            ++p;
        if (p == rows)
            continue;
        std::swap(m[p], m[r]);
        const Fraction pivot = m[r][c];
        for (unsigned int j = 0; j < columns; ++j)
            if (!divide(m[r][j], pivot, m[r][j]))
                return false;
        for (unsigned int i = 0; i < rows; ++i) {
            if (i == r || m[i][c].num == 0)
                continue;
            const Fraction f = m[i][c];
            for (unsigned int j = 0; j < columns; ++j)
                if (!subtractMultiple(m[i][j], f, m[r][j], m[i][j]))
                    return false;
        }
        pivotColumn.push_back(static_cast<int>(c));
        ++r;
    }
    if (r + 1 != columns)
        return false;
    unsigned int freeColumn = 0;
    for (unsigned int k = 0; k < columns; ++k, ++freeColumn)
        if (k >= pivotColumn.size() || pivotColumn[k] != static_cast<int>(k))
            break;
    // x_free = 1 and each pivot variable is minus its row's entry in the
    // free column; then clear the denominators.
    std::vector<Fraction> value(columns);
    value[freeColumn] = Fraction{1, 1};
    for (unsigned int i = 0; i < r; ++i)
        value[pivotColumn[i]] = Fraction{-m[i][freeColumn].num, m[i][freeColumn].den};
    __int128 common = 1;
    for (const Fraction& v : value) {
        common = common / std::gcd(static_cast<std::int64_t>(common), v.den) * v.den;
        if (common > INT64_MAX)
            return false;
    }
    x.assign(columns, 0);
    std::int64_t g = 0;
    for (unsigned int k = 0; k < columns; ++k) {
        const __int128 whole = static_cast<__int128>(value[k].num) * (common / value[k].den);
        if (whole == 0 || whole > INT64_MAX || whole < -INT64_MAX)
            return false;
        x[k] = static_cast<std::int64_t>(whole);
        g = gcd64(g, x[k]);
    }
    const std::int64_t sign = x[0] < 0 ? -1 : 1;
    for (std::int64_t& v : x)
        v = v / g * sign;
    return true;
}

} // namespace

vhValue vhMath::chemSolver_f(const vhValue& reactionMatrix)
{
    if (!elementwise::isArray(reactionMatrix))
        return vhValue();
    vhValue holder;
    const vhValue& a = elementwise::arrayOf(reactionMatrix, holder);
    if (a.valueType() != tagMatrix || a.isImage())
        return vhValue();
    const unsigned int rows = a.matrixRows(), columns = a.matrixColumns();
    if (rows == 0 || columns < 2 || rows > kMaxSize || columns > kMaxSize)
        return vhValue();
    std::vector<std::vector<Fraction>> m(rows, std::vector<Fraction>(columns));
    for (unsigned int i = 0; i < rows; ++i) {
        for (unsigned int j = 0; j < columns; ++j) {
            const vhValue e = a.value(i, j);
            if (!(e.isBoolean() || e.isInteger() || e.isDouble()))
                return vhValue();
            const double d = e.toDouble();
            if (!std::isfinite(d) || std::floor(d) != d || std::fabs(d) > kMaxCount)
                return vhValue();
            m[i][j].num = static_cast<std::int64_t>(d);
        }
    }
    std::vector<std::int64_t> x;
    if (!integerNullVector(m, columns, x))
        return vhValue();
    vhValue result = vhVector(columns, true, true, false);
    double* out = result.numericValues();
    if (!out)
        return vhValue();
    for (unsigned int k = 0; k < columns; ++k) {
        if (std::llabs(x[k]) > (std::int64_t(1) << 53))
            return vhValue();
        out[k] = static_cast<double>(x[k]);
    }
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
