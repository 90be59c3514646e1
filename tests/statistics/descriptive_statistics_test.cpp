// Descriptive statistics: values against NumPy/SciPy references on fixed
// data (one and two numbers, constant data, ties, wide ranges), the row and
// column forms against the whole form on slices, and the frame (symbols,
// text, empty and mismatched data).

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"

using namespace VarnholtMath::ValueTypes;

namespace {

std::vector<double> parseList(const std::string& s)
{
    std::vector<double> r;
    std::stringstream in(s);
    std::string item;
    while (std::getline(in, item, ','))
        r.push_back(std::strtod(item.c_str(), nullptr));
    return r;
}

vhValue column(std::vector<double> v) { return vhVector(v.data(), static_cast<unsigned int>(v.size()), false); }
vhValue row(std::vector<double> v) { return vhVector(v.data(), static_cast<unsigned int>(v.size()), true); }
vhValue matrix(std::vector<double> v, unsigned int rows, unsigned int columns)
{
    return vhMatrix(v.data(), rows, columns);
}

using Call = std::function<vhValue(vhMath&, const vhValue&, const vhValue&, const vhValue&)>;

std::map<std::string, Call> wholeForms()
{
    std::map<std::string, Call> m;
    auto one = [](vhValue (vhMath::*f)(const vhValue&)) {
        return [f](vhMath& s, const vhValue& a, const vhValue&, const vhValue&) { return (s.*f)(a); };
    };
    auto withParameter = [](vhValue (vhMath::*f)(const vhValue&, const vhValue&)) {
        return [f](vhMath& s, const vhValue& a, const vhValue&, const vhValue& p) { return (s.*f)(a, p); };
    };
    auto pairOf = [](vhValue (vhMath::*f)(const vhValue&, const vhValue&)) {
        return [f](vhMath& s, const vhValue& a, const vhValue& b, const vhValue&) { return (s.*f)(a, b); };
    };
    m["average"] = one(&vhMath::average_f);
    m["variance"] = one(&vhMath::variance_f);
    m["deviation"] = one(&vhMath::deviation_f);
    m["varianceSample"] = one(&vhMath::varianceSample_f);
    m["deviationSample"] = one(&vhMath::deviationSample_f);
    m["avgdev"] = one(&vhMath::avgdev_f);
    m["median"] = one(&vhMath::median_f);
    m["modus"] = one(&vhMath::modus_f);
    m["asymmetry"] = one(&vhMath::asymmetry_f);
    m["autocorrelation"] = withParameter(&vhMath::autocorrelation_f);
    m["trimmean"] = withParameter(&vhMath::trimmean_f);
    m["percentile"] = withParameter(&vhMath::percentile_f);
    m["correlation"] = pairOf(&vhMath::correlation_f);
    m["covariance"] = pairOf(&vhMath::covariance_f);
    m["MeanSquareError"] = pairOf(&vhMath::MeanSquareError_f);
    m["MeanAbsoluteError"] = pairOf(&vhMath::MeanAbsoluteError_f);
    m["MeanPercentageError"] = pairOf(&vhMath::MeanPercentageError_f);
    m["MeanAbsolutePercentageError"] = pairOf(&vhMath::MeanAbsolutePercentageError_f);
    return m;
}

// The raw-sum formulas lose digits relative to the size of the squares, not
// of the result: the error bound scales with the mean square of the data.
double scaleOf(const std::vector<double>& x)
{
    double s = 0.0;
    for (double v : x)
        s += v * v;
    return s / static_cast<double>(x.size());
}

} // namespace

TEST(DescriptiveStatistics, MatchReferenceValues)
{
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/statistics/data/descriptive_reference.tsv");
    ASSERT_TRUE(in.good());
    const auto forms = wholeForms();
    vhMath math;
    std::string lineText;
    int checked = 0;
    while (std::getline(in, lineText)) {
        std::vector<std::string> f;
        std::stringstream ls(lineText);
        std::string cell;
        while (std::getline(ls, cell, '\t'))
            f.push_back(cell);
        while (f.size() < 5)
            f.push_back("");
        const auto it = forms.find(f[0]);
        ASSERT_NE(it, forms.end()) << f[0];
        const std::vector<double> a = parseList(f[2]);
        const std::vector<double> b = parseList(f[3]);
        const vhValue p = f[1].empty() ? vhValue() : vhValue(vhDouble(std::strtod(f[1].c_str(), nullptr)));
        const double expected = std::strtod(f[4].c_str(), nullptr);
        // Whole forms read vectors of both orientations and matrices alike.
        for (int shape = 0; shape < 3; ++shape) {
            vhValue va, vb;
            if (shape == 0) {
                va = column(a);
                vb = b.empty() ? vhValue() : column(b);
            } else if (shape == 1) {
                va = row(a);
                vb = b.empty() ? vhValue() : row(b);
            } else {
                if (a.size() % 2 != 0)
                    continue;
                const unsigned int r = static_cast<unsigned int>(a.size() / 2);
                va = matrix(a, r, 2);
                vb = b.empty() ? vhValue() : matrix(b, r, 2);
            }
            const vhValue r = it->second(math, va, vb, p);
            ASSERT_TRUE(r.isDouble()) << f[0] << " p=" << f[1] << " n=" << a.size() << " shape " << shape;
            // Rounding is relative to the result, plus a residue of the
            // size of the data that cancellation leaves; a root of the raw
            // variance turns a residue of eps * scale into its square root.
            const double scale = scaleOf(a);
            double bound = 1e-12 * std::fabs(expected) + 1e-14 * std::sqrt(scale);
            if (f[0].compare(0, 9, "deviation") == 0)
                bound += std::sqrt(4.0 * 2.2e-16 * scale);
            EXPECT_NEAR(r.toDouble(), expected, bound) << f[0] << " p=" << f[1] << " n=" << a.size();
            ++checked;
        }
    }
    EXPECT_GT(checked, 300);
}

TEST(DescriptiveStatistics, DocumentedValuesOfSmallSets)
{
    vhMath math;
    const vhValue one = column({4.5});
    EXPECT_EQ(0.0, math.variance_f(one).toDouble());
    // The sample forms divide by n - 1 = 0.
    EXPECT_TRUE(math.deviationSample_f(one).isNull());
    EXPECT_TRUE(math.varianceSample_f(one).isNull());
    const vhValue four = row({7.0, 1.0, 4.0, 2.0});
    EXPECT_EQ(3.0, math.median_f(four).toDouble());
    EXPECT_EQ(7.0, math.percentile_f(four, vhDouble(100.0)).toDouble());
    EXPECT_EQ(1.0, math.percentile_f(four, vhInteger(0)).toDouble());
    EXPECT_EQ(2.0, math.percentile_f(four, vhDouble(50.0)).toDouble());
    EXPECT_EQ(4.0, math.percentile_f(four, vhDouble(50.1)).toDouble());
    // Constant data have no spread; the rounding residue of the raw sums
    // never reads as a negative variance.
    const vhValue same = column(std::vector<double>(9, 0.1));
    ASSERT_TRUE(math.deviation_f(same).isDouble());
    EXPECT_NEAR(0.0, math.deviation_f(same).toDouble(), 1e-8);
    // A real scalar is a data set of one number; whole numbers are numbers.
    EXPECT_EQ(2.5, math.average_f(vhDouble(2.5)).toDouble());
    vhVector mixed(3, false, false, false);
    mixed.setValue(vhInteger(1), 0);
    mixed.setValue(vhDouble(2.5), 1);
    mixed.setValue(vhBoolean(true), 2);
    EXPECT_DOUBLE_EQ(1.5, math.average_f(mixed).toDouble());
    // Ties go to the smallest value.
    EXPECT_EQ(2.0, math.modus_f(row({5.0, 2.0, 5.0, 2.0, 9.0})).toDouble());
}

TEST(DescriptiveStatistics, LineFormsAgreeWithSlices)
{
    vhMath math;
    std::vector<double> a(12), b(12);
    for (int i = 0; i < 12; ++i) {
        a[i] = std::sin(1.3 * i) * 10.0 + i;
        b[i] = std::cos(0.7 * i) * 3.0 - 0.5 * i;
    }
    const vhValue ma = matrix(a, 3, 4), mb = matrix(b, 3, 4);
    typedef vhValue (vhMath::*One)(const vhValue&);
    typedef vhValue (vhMath::*Two)(const vhValue&, const vhValue&);
    struct OneForm {
        One whole, rows, columns;
    };
    const OneForm ones[] = {
        {&vhMath::average_f, &vhMath::RowsAverage_f, &vhMath::ColumnsAverage_f},
        {&vhMath::variance_f, &vhMath::rowVariance_f, &vhMath::columnVariance_f},
        {&vhMath::deviation_f, &vhMath::RowsDeviation_f, &vhMath::ColumnsDeviation_f},
        {&vhMath::deviationSample_f, &vhMath::rowDeviationSample_f, &vhMath::columnDeviationSample_f},
        {&vhMath::avgdev_f, &vhMath::rowAvgdev_f, &vhMath::columnAvgdev_f},
        {&vhMath::asymmetry_f, &vhMath::rowAsymmetry_f, &vhMath::columnAsymmetry_f},
        {&vhMath::median_f, &vhMath::rowMedian_f, &vhMath::columnMedian_f},
        {&vhMath::modus_f, &vhMath::rowModus_f, &vhMath::columnModus_f},
    };
    struct TwoForm {
        Two whole, rows, columns;
        bool dataPair;
        double parameter;
    };
    const TwoForm twos[] = {
        {&vhMath::trimmean_f, &vhMath::rowTrimmean_f, &vhMath::columnTrimmean_f, false, 30.0},
        {&vhMath::percentile_f, &vhMath::rowPercentile_f, &vhMath::columnPercentile_f, false, 40.0},
        {&vhMath::autocorrelation_f, &vhMath::rowAutocorrelation_f, &vhMath::columnAutocorrelation_f, false, 1.0},
        {&vhMath::correlation_f, &vhMath::rowCorrelation_f, &vhMath::columnCorrelation_f, true, 0.0},
        {&vhMath::covariance_f, &vhMath::rowCovariance_f, &vhMath::columnCovariance_f, true, 0.0},
    };
    for (int form = 0; form < 2; ++form) {
        const bool rows = form == 0;
        const unsigned int count = rows ? 3 : 4;
        auto slice = [&](const vhValue& m, unsigned int k) {
            return rows ? m.getMatrixRowAsVector(k) : m.getMatrixColumnAsVector(k);
        };
        for (const OneForm& f : ones) {
            const vhValue r = (math.*(rows ? f.rows : f.columns))(ma);
            ASSERT_EQ(count, r.vectorSize());
            // One entry per row stacks vertically, one per column lies flat.
            EXPECT_EQ(!rows, r.isRowVector());
            for (unsigned int k = 0; k < count; ++k)
                EXPECT_DOUBLE_EQ((math.*f.whole)(slice(ma, k)).toDouble(), r.valueToDouble(k));
        }
        for (const TwoForm& f : twos) {
            const vhValue second = f.dataPair ? mb : vhValue(vhDouble(f.parameter));
            const vhValue r = (math.*(rows ? f.rows : f.columns))(ma, second);
            ASSERT_EQ(count, r.vectorSize());
            for (unsigned int k = 0; k < count; ++k) {
                const vhValue s = f.dataPair ? slice(mb, k) : second;
                EXPECT_DOUBLE_EQ((math.*f.whole)(slice(ma, k), s).toDouble(), r.valueToDouble(k));
            }
        }
    }
    // A line that cannot be computed is an undefined entry beside the others.
    const vhValue oneColumn = math.columnDeviationSample_f(matrix({1.0, 2.0, 3.0}, 1, 3));
    ASSERT_EQ(3u, oneColumn.vectorSize());
    EXPECT_TRUE(oneColumn.value(1).isNull());
}

TEST(DescriptiveStatistics, FrameRefusesWhatIsNoData)
{
    vhMath math;
    const vhValue x = vhExpression(std::string("x"));
    const vhValue data = column({1.0, 2.0, 3.0, 4.0});
    // Symbols are held as the unevaluated call of the row.
    vhVector symbolic(2, false, false, false);
    symbolic.setValue(vhInteger(1), 0);
    symbolic.setValue(x, 1);
    const vhValue h = math.percentile_f(symbolic, vhDouble(50.0));
    EXPECT_EQ(nt_percentile, h.functionID());
    EXPECT_EQ(nt_average, math.average_f(symbolic).functionID());
    EXPECT_EQ(nt_trimmean, math.trimmean_f(data, x).functionID());
    const vhValue rowHeld = math.rowPercentile_f(symbolic, vhDouble(50.0));
    EXPECT_EQ(nt_rowPercentile, rowHeld.functionID());
    EXPECT_EQ(2u, rowHeld.functionArguments().size());
    // Text, complex numbers, empty arrays, undefined and out-of-range
    // parameters give the undefined value.
    vhVector text(2, false, false, false);
    text.setValue(vhInteger(1), 0);
    text.setValue(vhValue(vhSymbolicValue("abc", true, {})), 1);
    EXPECT_TRUE(math.median_f(text).isNull());
    EXPECT_TRUE(math.average_f(vhVector()).isNull());
    EXPECT_TRUE(math.average_f(vhValue()).isNull());
    EXPECT_TRUE(math.variance_f(vhComplex(1.0, 2.0)).isNull());
    vhVector complexData(2, false, true, true);
    EXPECT_TRUE(math.average_f(complexData).isNull());
    EXPECT_TRUE(math.median_f(column({1.0, std::nan(""), 3.0})).isNull());
    EXPECT_TRUE(math.percentile_f(data, vhDouble(100.5)).isNull());
    EXPECT_TRUE(math.percentile_f(data, vhDouble(-1.0)).isNull());
    EXPECT_TRUE(math.trimmean_f(data, vhDouble(50.0)).isNull());
    EXPECT_TRUE(math.autocorrelation_f(data, vhDouble(4.0)).isNull());
    EXPECT_TRUE(math.autocorrelation_f(data, vhDouble(0.5)).isNull());
    EXPECT_TRUE(math.correlation_f(data, column({1.0, 2.0, 3.0})).isNull());
    EXPECT_TRUE(math.covariance_f(data, row({1.0, 2.0, 3.0, 4.0})).isNull());
    EXPECT_TRUE(math.RowsAverage_f(text).isNull());
    // The dispatcher reaches the rows by number.
    EXPECT_EQ(2.5, callFunction(&math, nt_average, {data}).toDouble());
    EXPECT_EQ(4.0, callFunction(&math, nt_columnPercentile, {data, vhDouble(100.0)}).valueToDouble(0));
}
