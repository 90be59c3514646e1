// The descriptive statistics of the worksheet: one number from all the
// numbers of a vector or matrix, or one number per row or per column.
//
// Data are read as a block of raw doubles when the array has numeric real
// storage, otherwise element by element; any element that is not a real
// number (text, a complex number, a nested array) makes the result
// undefined, and a symbolic element makes it the held call. A real scalar is
// a data set of one number.
//
// The row forms give a column vector with one entry per row, the column forms
// a row vector with one entry per column; a vector counts as one row (a row
// vector) or as one column (a column vector). An entry that cannot be
// computed is stored as an undefined element.

#include <cmath>
#include <vector>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "statistics/descriptive_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

namespace st = VarnholtMath::statistics;

enum class Read { ok, undefined, symbolic };

// The numbers of a data set in row order, with its shape.
struct Data {
    const double* p = nullptr;
    unsigned int rows = 0;
    unsigned int columns = 0;
    std::vector<double> held;

    std::size_t size() const { return static_cast<std::size_t>(rows) * columns; }
};

Read readData(const vhValue& v, Data& d)
{
    if (v.isNull())
        return Read::undefined;
    if (v.isSymbolic())
        return Read::symbolic;
    double x;
    if (elementwise::realOf(v, x)) {
        d.held.assign(1, x);
        d.p = d.held.data();
        d.rows = d.columns = 1;
        return Read::ok;
    }
    if (!elementwise::isArray(v))
        return Read::undefined;
    vhValue holder;
    const vhValue& a = elementwise::arrayOf(v, holder);
    const unsigned int n = a.vectorSize();
    if (n == 0)
        return Read::undefined;
    if (a.valueType() == tagMatrix) {
        d.rows = a.matrixRows();
        d.columns = a.matrixColumns();
    } else if (a.isRowVector()) {
        d.rows = 1;
        d.columns = n;
    } else {
        d.rows = n;
        d.columns = 1;
    }
    if (d.size() != n)
        return Read::undefined;
    if (a.numericImValues())
        return Read::undefined;
    // The block stays owned by the argument, which outlives the call, unless
    // it came out of a one-term expression.
    if (a.numericValues() && &a == &v) {
        d.p = a.numericValues();
        return Read::ok;
    }
    if (a.numericValues()) {
        d.held.assign(a.numericValues(), a.numericValues() + n);
        d.p = d.held.data();
        return Read::ok;
    }
    d.held.resize(n);
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue e = a.value(i);
        if (!e.isDouble())
            return e.isSymbolic() ? Read::symbolic : Read::undefined;
        d.held[i] = e.toDouble();
    }
    d.p = d.held.data();
    return Read::ok;
}

// A real scalar parameter: the number, or why there is none.
Read readParameter(const vhValue& v, double& x)
{
    if (v.isNull())
        return Read::undefined;
    if (v.isSymbolic())
        return Read::symbolic;
    return elementwise::realOf(v, x) ? Read::ok : Read::undefined;
}

vhValue held(int id, const std::vector<vhValue>& args) { return elementwise::symbolicCall(id, args); }

// One line (row or column) copied out of a data set.
void line(const Data& d, bool row, unsigned int k, std::vector<double>& out)
{
    if (row) {
        out.assign(d.p + static_cast<std::size_t>(k) * d.columns, d.p + static_cast<std::size_t>(k + 1) * d.columns);
        return;
    }
    out.resize(d.rows);
    for (unsigned int i = 0; i < d.rows; ++i)
        out[i] = d.p[static_cast<std::size_t>(i) * d.columns + k];
}

vhValue lineResult(bool row, const std::vector<double>& values)
{
    vhVector r(static_cast<unsigned int>(values.size()), !row, true, false);
    double* out = r.numericValues();
    for (std::size_t i = 0; i < values.size(); ++i)
        out[i] = std::isnan(values[i]) ? elementwise::kNaN : values[i];
    return r;
}

// --- frames -------------------------------------------------------------

// Kernel of one data set that leaves its data as it is.
template <class Kernel> vhValue whole(const vhValue& v, int id, Kernel kernel)
{
    Data d;
    switch (readData(v, d)) {
    case Read::symbolic:
        return held(id, {v});
    case Read::undefined:
        return vhValue();
    default:
        return elementwise::doubleOrUndefined(kernel(d.p, d.size()));
    }
}

// Kernel of one data set that reorders it: it works on a copy.
template <class Kernel> vhValue wholeReordering(const vhValue& v, int id, Kernel kernel)
{
    return whole(v, id, [&](const double* p, std::size_t n) {
        std::vector<double> copy(p, p + n);
        return kernel(copy.data(), n);
    });
}

template <class Kernel> vhValue lines(const vhValue& v, int id, bool row, Kernel kernel)
{
    Data d;
    switch (readData(v, d)) {
    case Read::symbolic:
        return held(id, {v});
    case Read::undefined:
        return vhValue();
    default:
        break;
    }
    const unsigned int count = row ? d.rows : d.columns;
    std::vector<double> values(count), buffer;
    for (unsigned int k = 0; k < count; ++k) {
        line(d, row, k, buffer);
        values[k] = kernel(buffer.data(), buffer.size());
    }
    return lineResult(row, values);
}

// The same with a real parameter after the data.
template <class Kernel> vhValue wholeWith(const vhValue& v, const vhValue& q, int id, Kernel kernel)
{
    double p = 0.0;
    const Read r = readParameter(q, p);
    Data d;
    const Read s = readData(v, d);
    if (r == Read::symbolic || s == Read::symbolic)
        return held(id, {v, q});
    if (r != Read::ok || s != Read::ok)
        return vhValue();
    std::vector<double> copy(d.p, d.p + d.size());
    return elementwise::doubleOrUndefined(kernel(copy.data(), copy.size(), p));
}

template <class Kernel> vhValue linesWith(const vhValue& v, const vhValue& q, int id, bool row, Kernel kernel)
{
    double p = 0.0;
    const Read r = readParameter(q, p);
    Data d;
    const Read s = readData(v, d);
    if (r == Read::symbolic || s == Read::symbolic)
        return held(id, {v, q});
    if (r != Read::ok || s != Read::ok)
        return vhValue();
    return lines(v, id, row, [&](double* x, std::size_t n) { return kernel(x, n, p); });
}

// Two data sets of one shape.
template <class Kernel> vhValue pair(const vhValue& a, const vhValue& b, int id, Kernel kernel)
{
    Data da, db;
    const Read ra = readData(a, da), rb = readData(b, db);
    if (ra == Read::symbolic || rb == Read::symbolic)
        return held(id, {a, b});
    if (ra != Read::ok || rb != Read::ok || da.rows != db.rows || da.columns != db.columns)
        return vhValue();
    return elementwise::doubleOrUndefined(kernel(da.p, db.p, da.size()));
}

template <class Kernel> vhValue pairLines(const vhValue& a, const vhValue& b, int id, bool row, Kernel kernel)
{
    Data da, db;
    const Read ra = readData(a, da), rb = readData(b, db);
    if (ra == Read::symbolic || rb == Read::symbolic)
        return held(id, {a, b});
    if (ra != Read::ok || rb != Read::ok || da.rows != db.rows || da.columns != db.columns)
        return vhValue();
    const unsigned int count = row ? da.rows : da.columns;
    std::vector<double> values(count), x, y;
    for (unsigned int k = 0; k < count; ++k) {
        line(da, row, k, x);
        line(db, row, k, y);
        values[k] = kernel(x.data(), y.data(), x.size());
    }
    return lineResult(row, values);
}

constexpr bool kRows = true;
constexpr bool kColumns = false;

} // namespace

// --- averages and spreads --------------------------------------------------

vhValue vhMath::average_f(const vhValue& v) { return whole(v, nt_average, st::mean); }
vhValue vhMath::RowsAverage_f(const vhValue& v) { return lines(v, nt_RowsAverage, kRows, st::mean); }
vhValue vhMath::ColumnsAverage_f(const vhValue& v) { return lines(v, nt_ColumnsAverage, kColumns, st::mean); }

vhValue vhMath::variance_f(const vhValue& v) { return whole(v, nt_variance, st::variance); }
vhValue vhMath::rowVariance_f(const vhValue& v) { return lines(v, nt_rowVariance, kRows, st::variance); }
vhValue vhMath::columnVariance_f(const vhValue& v) { return lines(v, nt_columnVariance, kColumns, st::variance); }

vhValue vhMath::varianceSample_f(const vhValue& v) { return whole(v, nt_varianceSample, st::varianceSample); }

vhValue vhMath::deviation_f(const vhValue& v) { return whole(v, nt_deviation, st::deviation); }
vhValue vhMath::RowsDeviation_f(const vhValue& v) { return lines(v, nt_RowsDeviation, kRows, st::deviation); }
vhValue vhMath::ColumnsDeviation_f(const vhValue& v)
{
    return lines(v, nt_ColumnsDeviation, kColumns, st::deviation);
}

vhValue vhMath::deviationSample_f(const vhValue& v) { return whole(v, nt_deviationSample, st::deviationSample); }
vhValue vhMath::rowDeviationSample_f(const vhValue& v)
{
    return lines(v, nt_rowDeviationSample, kRows, st::deviationSample);
}
vhValue vhMath::columnDeviationSample_f(const vhValue& v)
{
    return lines(v, nt_columnDeviationSample, kColumns, st::deviationSample);
}

vhValue vhMath::avgdev_f(const vhValue& v) { return whole(v, nt_avgdev, st::averageDeviation); }
vhValue vhMath::rowAvgdev_f(const vhValue& v) { return lines(v, nt_rowAvgdev, kRows, st::averageDeviation); }
vhValue vhMath::columnAvgdev_f(const vhValue& v) { return lines(v, nt_columnAvgdev, kColumns, st::averageDeviation); }

vhValue vhMath::asymmetry_f(const vhValue& v) { return whole(v, nt_asymmetry, st::asymmetry); }
vhValue vhMath::rowAsymmetry_f(const vhValue& v) { return lines(v, nt_rowAsymmetry, kRows, st::asymmetry); }
vhValue vhMath::columnAsymmetry_f(const vhValue& v) { return lines(v, nt_columnAsymmetry, kColumns, st::asymmetry); }

// --- order statistics --------------------------------------------------------

vhValue vhMath::median_f(const vhValue& v) { return wholeReordering(v, nt_median, st::median); }
vhValue vhMath::rowMedian_f(const vhValue& v) { return lines(v, nt_rowMedian, kRows, st::median); }
vhValue vhMath::columnMedian_f(const vhValue& v) { return lines(v, nt_columnMedian, kColumns, st::median); }

vhValue vhMath::modus_f(const vhValue& v) { return wholeReordering(v, nt_modus, st::modus); }
vhValue vhMath::rowModus_f(const vhValue& v) { return lines(v, nt_rowModus, kRows, st::modus); }
vhValue vhMath::columnModus_f(const vhValue& v) { return lines(v, nt_columnModus, kColumns, st::modus); }

vhValue vhMath::trimmean_f(const vhValue& v, const vhValue& p)
{
    return wholeWith(v, p, nt_trimmean, st::trimmedMean);
}
vhValue vhMath::rowTrimmean_f(const vhValue& v, const vhValue& p)
{
    return linesWith(v, p, nt_rowTrimmean, kRows, st::trimmedMean);
}
vhValue vhMath::columnTrimmean_f(const vhValue& v, const vhValue& p)
{
    return linesWith(v, p, nt_columnTrimmean, kColumns, st::trimmedMean);
}

vhValue vhMath::percentile_f(const vhValue& v, const vhValue& p)
{
    return wholeWith(v, p, nt_percentile, st::percentile);
}
vhValue vhMath::rowPercentile_f(const vhValue& v, const vhValue& p)
{
    return linesWith(v, p, nt_rowPercentile, kRows, st::percentile);
}
vhValue vhMath::columnPercentile_f(const vhValue& v, const vhValue& p)
{
    return linesWith(v, p, nt_columnPercentile, kColumns, st::percentile);
}

// --- dependence ---------------------------------------------------------------

vhValue vhMath::autocorrelation_f(const vhValue& v, const vhValue& lag)
{
    return wholeWith(v, lag, nt_autocorrelation, st::autocorrelation);
}
vhValue vhMath::rowAutocorrelation_f(const vhValue& v, const vhValue& lag)
{
    return linesWith(v, lag, nt_rowAutocorrelation, kRows, st::autocorrelation);
}
vhValue vhMath::columnAutocorrelation_f(const vhValue& v, const vhValue& lag)
{
    return linesWith(v, lag, nt_columnAutocorrelation, kColumns, st::autocorrelation);
}

vhValue vhMath::correlation_f(const vhValue& a, const vhValue& b) { return pair(a, b, nt_correlation, st::correlation); }
vhValue vhMath::rowCorrelation_f(const vhValue& a, const vhValue& b)
{
    return pairLines(a, b, nt_rowCorrelation, kRows, st::correlation);
}
vhValue vhMath::columnCorrelation_f(const vhValue& a, const vhValue& b)
{
    return pairLines(a, b, nt_columnCorrelation, kColumns, st::correlation);
}

vhValue vhMath::covariance_f(const vhValue& a, const vhValue& b) { return pair(a, b, nt_covariance, st::covariance); }
vhValue vhMath::rowCovariance_f(const vhValue& a, const vhValue& b)
{
    return pairLines(a, b, nt_rowCovariance, kRows, st::covariance);
}
vhValue vhMath::columnCovariance_f(const vhValue& a, const vhValue& b)
{
    return pairLines(a, b, nt_columnCovariance, kColumns, st::covariance);
}

// --- errors of a fit -----------------------------------------------------------

vhValue vhMath::MeanSquareError_f(const vhValue& a, const vhValue& b)
{
    return pair(a, b, nt_MeanSquareError, st::meanSquareError);
}
vhValue vhMath::MeanAbsoluteError_f(const vhValue& a, const vhValue& b)
{
    return pair(a, b, nt_MeanAbsoluteError, st::meanAbsoluteError);
}
vhValue vhMath::MeanPercentageError_f(const vhValue& a, const vhValue& b)
{
    return pair(a, b, nt_MeanPercentageError, st::meanPercentageError);
}
vhValue vhMath::MeanAbsolutePercentageError_f(const vhValue& a, const vhValue& b)
{
    return pair(a, b, nt_MeanAbsolutePercentageError, st::meanAbsolutePercentageError);
}

} // namespace ValueTypes
} // namespace VarnholtMath
