// Fourier, cosine and Walsh-Hadamard transforms against NumPy and SciPy
// values made by tests/signal/data/make_transform_reference.py, and the
// properties that tie the kernels together.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "frame/math.h"
#include "signal/fft_kernels.h"

using namespace VarnholtMath::ValueTypes;
namespace fourier = VarnholtMath::fourier;

namespace {

struct Case {
    std::vector<double> inRe, inIm, outRe, outIm;
};

// case name -> its input and output, in file order.
std::map<std::string, Case> readCases(const std::string& file)
{
    std::map<std::string, Case> cases;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/signal/data/" + file);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::stringstream fields(line);
        std::string name, index, a, b, c, d;
        std::getline(fields, name, ',');
        std::getline(fields, index, ',');
        std::getline(fields, a, ',');
        std::getline(fields, b, ',');
        std::getline(fields, c, ',');
        std::getline(fields, d);
        Case& k = cases[name];
        k.inRe.push_back(std::stod(a));
        k.inIm.push_back(std::stod(b));
        k.outRe.push_back(std::stod(c));
        k.outIm.push_back(std::stod(d));
    }
    EXPECT_FALSE(cases.empty()) << file;
    return cases;
}

double norm(const std::vector<double>& re, const std::vector<double>& im)
{
    double s = 0;
    for (std::size_t k = 0; k < re.size(); ++k)
        s += re[k] * re[k] + im[k] * im[k];
    return std::sqrt(s);
}

// The largest distance between v's entries and the expected numbers.
double distance(const vhValue& v, const std::vector<double>& re, const std::vector<double>& im)
{
    if (v.vectorSize() != re.size())
        return std::numeric_limits<double>::infinity();
    double worst = 0;
    for (unsigned int k = 0; k < re.size(); ++k) {
        const vhValue e = v.value(k);
        const double r = e.isComplex() ? e.complexRe() : e.toDouble();
        const double i = e.isComplex() ? e.complexIm() : 0.0;
        worst = std::max(worst, std::hypot(r - re[k], i - im[k]));
    }
    return worst;
}

vhValue vectorOf(const std::vector<double>& re, const std::vector<double>& im, bool row = true)
{
    vhVector v(static_cast<unsigned int>(re.size()), row, true, true);
    std::copy(re.begin(), re.end(), v.numericValues());
    std::copy(im.begin(), im.end(), v.numericImValues());
    return v;
}

vhValue realVectorOf(const std::vector<double>& re, bool row = true)
{
    vhVector v(static_cast<unsigned int>(re.size()), row, true, false);
    std::copy(re.begin(), re.end(), v.numericValues());
    return v;
}

vhValue i(int v) { return vhInteger(v); }
vhValue text(const char* s) { return vhSymbolicValue(s, true, {}); }
vhValue symbol(const char* s) { return vhSymbolicValue(s, false, {}); }

} // namespace

TEST(Transforms, FourierAgainstReference)
{
    vhMath m;
    for (const auto& [name, c] : readCases("fft_reference.csv")) {
        const bool real = name[0] == 'r';
        const vhValue x = real ? realVectorOf(c.inRe) : vectorOf(c.inRe, c.inIm);
        const double scale = norm(c.inRe, c.inIm);
        EXPECT_LE(distance(m.FFT1_f(x), c.outRe, c.outIm), 1e-12 * scale) << name;
        EXPECT_LE(distance(m.FFT1M_f(x), c.outRe, c.outIm), 1e-12 * scale) << name;
        EXPECT_LE(distance(m.FFT1Old_f(x), c.outRe, c.outIm), 1e-12 * scale) << name;
        // The inverse undoes the transform.
        const vhValue back = m.FFTI1_f(m.FFT1_f(x));
        EXPECT_LE(distance(back, c.inRe, c.inIm), 1e-13 * scale) << name;
        EXPECT_EQ(x.isRowVector(), m.FFT1_f(x).isRowVector());
    }
}

TEST(Transforms, KernelsAgreeAndKeepEnergy)
{
    // Sizes with every butterfly: 2, 3, 4, 5, 7, larger odd factors, a
    // prime below and one above the chirp threshold.
    for (std::size_t n : {2u, 6u, 30u, 49u, 77u, 128u, 243u, 1331u, 2310u, 997u, 10007u}) {
        std::vector<double> re(n), im(n);
        for (std::size_t k = 0; k < n; ++k) {
            re[k] = std::sin(0.37 * double(k * k % 101)) + 0.1;
            im[k] = std::cos(1.3 * double(k) + 0.2);
        }
        std::vector<double> aRe = re, aIm = im, bRe = re, bIm = im;
        fourier::MixedRadix(n, false).transform(aRe.data(), aIm.data());
        fourier::bluestein(bRe.data(), bIm.data(), n);
        const double energy = norm(re, im);
        double worst = 0;
        for (std::size_t k = 0; k < n; ++k)
            worst = std::max(worst, std::hypot(aRe[k] - bRe[k], aIm[k] - bIm[k]));
        EXPECT_LE(worst, 1e-12 * energy * std::sqrt(double(n))) << n;
        // Parseval: the transform multiplies the norm by sqrt(n).
        EXPECT_NEAR(energy * std::sqrt(double(n)), norm(aRe, aIm), 1e-12 * energy * double(n)) << n;
        // Inverse kernels bring the input back once divided by n.
        fourier::MixedRadix(n, true).transform(aRe.data(), aIm.data());
        fourier::bluesteinInverse(bRe.data(), bIm.data(), n);
        for (std::size_t k = 0; k < n; ++k) {
            EXPECT_NEAR(re[k], aRe[k] / double(n), 1e-13 * energy) << n;
            EXPECT_NEAR(re[k], bRe[k] / double(n), 1e-13 * energy) << n;
            EXPECT_NEAR(im[k], bIm[k] / double(n), 1e-13 * energy) << n;
        }
    }
    std::vector<double> re(1024), im(1024, 0.0), dRe, dIm;
    for (std::size_t k = 0; k < re.size(); ++k)
        re[k] = std::cos(0.01 * double(k * k));
    dRe = re;
    dIm = im;
    fourier::radix2(re.data(), im.data(), 1024);
    fourier::danielsonLanczos(dRe.data(), dIm.data(), 1024, false);
    for (std::size_t k = 0; k < re.size(); ++k)
        EXPECT_NEAR(re[k], dRe[k], 1e-11) << k;
}

TEST(Transforms, KernelChoiceAndFactors)
{
    vhMath m;
    EXPECT_EQ(1, m.FFTChoose(10007));
    EXPECT_EQ(2, m.FFTChoose(9973));
    EXPECT_EQ(1, m.FFTChoose(2 * 65537));
    EXPECT_EQ(2, m.FFTChoose(1 << 20));
    EXPECT_EQ((std::vector<std::size_t>{4, 4, 4, 2}), fourier::factorize(128));
    EXPECT_EQ((std::vector<std::size_t>{4, 2, 3, 5, 7}), fourier::factorize(840));
    EXPECT_EQ((std::vector<std::size_t>{3, 3, 101}), fourier::factorize(909));
    EXPECT_EQ((std::vector<std::size_t>{9973}), fourier::factorize(9973));
}

TEST(Transforms, TwoDimensionalAgainstReference)
{
    vhMath m;
    for (const auto& [name, c] : readCases("fft2_reference.csv")) {
        unsigned int rows = 0, columns = 0;
        std::sscanf(name.c_str(), "fft2_%ux%u", &rows, &columns);
        vhMatrix x(rows, columns, true, false, true);
        std::copy(c.inRe.begin(), c.inRe.end(), x.numericValues());
        std::copy(c.inIm.begin(), c.inIm.end(), x.numericImValues());
        const double scale = norm(c.inRe, c.inIm);
        const vhValue y = m.FFT2_f(x);
        ASSERT_EQ(rows, y.matrixRows()) << name;
        EXPECT_LE(distance(y, c.outRe, c.outIm), 1e-12 * scale) << name;
        EXPECT_LE(distance(m.FFTI2_f(y), c.inRe, c.inIm), 1e-13 * scale) << name;
        // Resizing to the same shape changes nothing; padding adds zeros.
        EXPECT_LE(distance(m.FFT2N_f(x, i(int(rows)), i(int(columns))), c.outRe, c.outIm), 1e-12 * scale);
        const vhValue padded = m.FFT2N_f(x, i(int(rows) + 3), i(int(columns)));
        EXPECT_EQ(rows + 3, padded.matrixRows());
        EXPECT_NEAR(c.outRe[0], padded.value(0, 0).complexRe(), 1e-12 * scale);
    }
    EXPECT_TRUE(m.FFT2_f(vhMatrix(vhDouble(1.0), 3, 8)).isNull());
    EXPECT_TRUE(m.FFT2_f(realVectorOf({1, 2, 3, 4, 5})).isNull());
    EXPECT_TRUE(m.FFT2N_f(vhMatrix(vhDouble(1.0), 4, 4), i(0), i(4)).isNull());
}

TEST(Transforms, ResizeShiftAndBadInput)
{
    vhMath m;
    const vhValue x = realVectorOf({1, 2, 3, 4, 5});
    // Padding with zeros and cutting.
    const vhValue padded = m.FFT1N_f(x, i(8));
    const vhValue direct = m.FFT1_f(realVectorOf({1, 2, 3, 4, 5, 0, 0, 0}));
    for (unsigned int k = 0; k < 8; ++k)
        EXPECT_EQ(direct.value(k).complexRe(), padded.value(k).complexRe());
    EXPECT_EQ(4u, m.FFT1N_f(x, i(4)).vectorSize());
    EXPECT_NEAR(10.0, m.FFT1N_f(x, i(4)).value(0).complexRe(), 1e-15);
    EXPECT_NEAR(4.0, m.FFTI1N_f(realVectorOf({4, 4, 4, 4}), i(4)).value(0).complexRe(), 1e-15);
    EXPECT_NEAR(1.0, m.FFTI1N_f(realVectorOf({4}), i(4)).value(3).complexRe(), 1e-15);
    EXPECT_TRUE(m.FFT1N_f(x, i(0)).isNull());
    EXPECT_TRUE(m.FFT1N_f(x, i(3)).isNull());
    EXPECT_TRUE(m.FFT1N_f(x, vhDouble(std::nan(""))).isNull());
    EXPECT_TRUE(m.FFT1N_f(x, i(2000000000)).isNull());

    // The shift puts the second half in front: even and odd lengths.
    const vhValue even = m.FFTShift_f(realVectorOf({1, 2, 3, 4, 5, 6}));
    const vhValue evenDirect = m.FFT1_f(realVectorOf({4, 5, 6, 1, 2, 3}));
    const vhValue odd = m.FFTShift_f(realVectorOf({1, 2, 3, 4, 5}));
    const vhValue oddDirect = m.FFT1_f(realVectorOf({4, 5, 1, 2, 3}));
    for (unsigned int k = 0; k < 5; ++k) {
        EXPECT_EQ(evenDirect.value(k).complexIm(), even.value(k).complexIm());
        EXPECT_EQ(oddDirect.value(k).complexIm(), odd.value(k).complexIm());
    }

    // Minimal size, non-numbers and non-finite entries.
    EXPECT_TRUE(m.FFT1_f(realVectorOf({1, 2, 3})).isNull());
    EXPECT_EQ(4u, m.FFT1_f(realVectorOf({1, 2, 3, 4})).vectorSize());
    EXPECT_TRUE(m.FFT1_f(realVectorOf({1, 2, std::numeric_limits<double>::infinity(), 4})).isNull());
    EXPECT_TRUE(m.FFT1_f(vhVector({i(1), i(2), text("a"), i(4)}, true)).isNull());
    EXPECT_TRUE(m.FFT1_f(vhValue()).isNull());
    EXPECT_TRUE(m.FFT1_f(i(4)).isNull());
    EXPECT_TRUE(m.FFTI1_f(text("abcd")).isNull());
    EXPECT_EQ(nt_FFT1, m.FFT1_f(vhVector({i(1), symbol("x"), i(3), i(4)}, true)).functionID());
    EXPECT_EQ(nt_FFT1N, m.FFT1N_f(symbol("v"), i(4)).functionID());
    // An array of elements reads like a numeric one.
    const vhValue elements = m.FFT1_f(vhVector({i(1), vhComplex(0, 1), vhDouble(2.5), i(4)}, false));
    const vhValue numeric = m.FFT1_f(vectorOf({1, 0, 2.5, 4}, {0, 1, 0, 0}, false));
    EXPECT_LE(distance(elements, {7.5, -0.5, -0.5, -2.5}, {1, 4, -1, -4}), 1e-15);
    EXPECT_LE(distance(numeric, {7.5, -0.5, -0.5, -2.5}, {1, 4, -1, -4}), 1e-15);
    EXPECT_FALSE(elements.isRowVector());
}

TEST(Transforms, CosineAgainstReference)
{
    vhMath m;
    for (const auto& [name, c] : readCases("dct_reference.csv")) {
        const int n = static_cast<int>(c.inRe.size());
        const vhValue x = realVectorOf(c.inRe);
        const double scale = norm(c.inRe, c.inIm);
        std::vector<double> twice(c.outRe), zeros(c.outRe.size(), 0.0);
        for (double& d : twice)
            d *= 2;
        EXPECT_LE(distance(m.DCT1_f(x, i(n)), twice, zeros), 2e-12 * scale) << name;
        EXPECT_LE(distance(m.DCTI1_f(realVectorOf(twice), i(n)), c.inRe, zeros), 1e-13 * scale) << name;
        if (n >= 2) {
            EXPECT_LE(distance(m.dct1_f(x, i(n)), c.outRe, zeros), 1e-12 * scale) << name;
            EXPECT_LE(distance(m.idct1_f(realVectorOf(c.outRe), i(n)), c.inRe, zeros), 1e-13 * scale) << name;
        }
    }
    // dct1 pads with zeros and cuts.
    const vhValue cut = m.dct1_f(realVectorOf({1, 2, 3, 4, 5}), i(3));
    const vhValue whole = m.dct1_f(realVectorOf({1, 2, 3}), i(3));
    ASSERT_EQ(3u, cut.vectorSize());
    for (unsigned int k = 0; k < 3; ++k)
        EXPECT_EQ(whole.value(k).toDouble(), cut.value(k).toDouble());
    EXPECT_TRUE(m.DCT1_f(realVectorOf({1, 2}), i(0)).isNull());
    EXPECT_TRUE(m.dct1_f(vectorOf({1, 2}, {1, 0}), i(2)).isNull());
    EXPECT_TRUE(m.DCTI1_f(text("ab"), i(2)).isNull());
    EXPECT_EQ(nt_DCT1, m.DCT1_f(symbol("x"), i(2)).functionID());
}

namespace {
vhMath* g_stopped = nullptr;
void stopNow() { g_stopped->setStopCalculation(true); }
} // namespace

TEST(Transforms, BackgroundInverseMatchesForeground)
{
    vhMath m;
    std::vector<double> x(3000);
    for (std::size_t k = 0; k < x.size(); ++k)
        x[k] = std::sin(0.001 * double(k * k)) + 0.25;
    const vhValue v = realVectorOf(x);
    const vhValue background = m.DCTI1_f(v, i(3000));
    // The same transform in this thread gives the same bits.
    const std::size_t n = x.size();
    std::vector<double> re(n), im(n);
    for (std::size_t k = 0; k < n; ++k) {
        const double a = double(k) * 3.141592653589793 / (2.0 * double(n));
        const double e = k == 0 ? x[k] / 1.4142135623730951 : x[k];
        re[k] = e * std::cos(a);
        im[k] = -e * std::sin(a);
    }
    fourier::MixedRadix(n, false).transform(re.data(), im.data());
    const double r = std::sqrt(2.0 * double(n));
    for (std::size_t k = 0; k < n / 2; ++k) {
        EXPECT_EQ(re[k] / r, background.value(unsigned(2 * k)).toDouble());
        EXPECT_EQ(re[n - 1 - k] / r, background.value(unsigned(2 * k + 1)).toDouble());
    }
    // A stop request abandons the wait; the worker ends with the object.
    {
        vhMath stopped;
        g_stopped = &stopped;
        stopped.setAppProcessEventsCallback(stopNow);
        std::vector<double> big(1 << 16, 1.0);
        const vhValue result = stopped.DCTI1_f(realVectorOf(big), i(4));
        // Either finished before the first poll or abandoned.
        EXPECT_TRUE(result.isNull() || result.vectorSize() == big.size());
        stopped.setStopCalculation(false);
        stopped.setAppProcessEventsCallback(nullptr);
        // A second job waits for the first worker and then runs.
        EXPECT_EQ(4u, stopped.DCTI1_f(realVectorOf({1, 2, 3, 4}), i(4)).vectorSize());
        stopped.setAppProcessEventsCallback(stopNow);
        stopped.DCTI1_f(realVectorOf(big), i(4));
    }
}

TEST(Transforms, WalshHadamardAgainstReference)
{
    vhMath m;
    for (const auto& [name, c] : readCases("fwht_reference.csv")) {
        const int n = static_cast<int>(c.inRe.size());
        const vhValue order = name.substr(0, 3) == "seq" ? text("seq") : text("had");
        const vhValue orderNumber = name.substr(0, 3) == "seq" ? i(0) : i(1);
        const std::vector<double> zeros(c.inRe.size(), 0.0);
        const vhValue y = m.fwht_f(realVectorOf(c.inRe), i(n), order);
        EXPECT_LE(distance(y, c.outRe, zeros), 1e-14) << name;
        EXPECT_LE(distance(m.fwht_f(realVectorOf(c.inRe), i(n), orderNumber), c.outRe, zeros), 1e-14) << name;
        EXPECT_LE(distance(m.ifwht_f(y, i(n), order), c.inRe, zeros), 1e-14) << name;
    }
    // A known signal; padding to a power of two.
    const vhValue y = m.fwht_f(realVectorOf({19, -1, 11, -9, -7, 13, -15, 5}), i(8), text("seq"));
    EXPECT_LE(distance(y, {2, 3, 0, 4, 0, 0, 10, 0}, std::vector<double>(8, 0.0)), 1e-15);
    EXPECT_EQ(8u, m.fwht_f(realVectorOf({1, 2, 3}), i(8), text("had")).vectorSize());
    EXPECT_TRUE(m.fwht_f(realVectorOf({1, 2, 3}), i(6), text("had")).isNull());
    EXPECT_TRUE(m.fwht_f(realVectorOf({1, 2, 3}), i(0), text("had")).isNull());
    EXPECT_TRUE(m.fwht_f(realVectorOf({1, 2, 3}), i(4), text("dyadic")).isNull());
    EXPECT_TRUE(m.fwht_f(realVectorOf({1, 2, 3}), i(4), i(2)).isNull());
    EXPECT_TRUE(m.fwht_f(realVectorOf({1, 2, 3}), i(1 << 30), i(0)).isNull());
}

TEST(Transforms, FlipAndRealPart)
{
    vhMath m;
    vhMatrix a(2, 3, true, false, false);
    for (unsigned int k = 0; k < 6; ++k)
        a.numericValues()[k] = k + 1;
    const vhValue up = m.flip_f(a, i(1));
    const vhValue side = m.flip_f(a, i(2));
    EXPECT_EQ(4, up.value(0, 0).toInt());
    EXPECT_EQ(3, up.value(1, 2).toInt());
    EXPECT_EQ(3, side.value(0, 0).toInt());
    EXPECT_EQ(4, side.value(1, 2).toInt());
    const vhValue v = m.flip_f(vhVector({i(1), symbol("x"), vhComplex(0, 2)}, true), i(1));
    EXPECT_TRUE(v.value(0).isComplex());
    EXPECT_EQ(1, v.value(2).toInt());
    EXPECT_TRUE(m.flip_f(a, i(3)).isNull());
    EXPECT_TRUE(m.flip_f(i(5), i(1)).isNull());

    EXPECT_EQ(3.0, m.complexRe_f(vhComplex(3, -4)).toDouble());
    EXPECT_EQ(tagInteger, m.complexRe_f(i(7)).valueType());
    const vhValue re = m.complexRe_f(vectorOf({1, 2}, {5, 6}));
    EXPECT_EQ(nullptr, re.numericImValues());
    EXPECT_EQ(2.0, re.value(1).toDouble());
    EXPECT_TRUE(m.complexRe_f(text("z")).isNull());
    EXPECT_EQ(nt_complexRe, m.complexRe_f(symbol("z")).functionID());
}

TEST(Transforms, ReachableByNumber)
{
    vhMath m;
    const vhValue x = realVectorOf({1, 2, 3, 4});
    EXPECT_EQ(10.0, callFunction(&m, nt_FFT1, {x}).value(0).complexRe());
    EXPECT_EQ(4u, callFunction(&m, nt_FFTI1, {x}).vectorSize());
    EXPECT_EQ(8u, callFunction(&m, nt_FFT1N, {x, i(8)}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_FFTShift, {x}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_DCT1, {x, i(4)}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_DCTI1, {x, i(4)}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_fwht, {x, i(4), text("seq")}).vectorSize());
    EXPECT_EQ(4u, callFunction(&m, nt_flip, {x, i(1)}).vectorSize());
    EXPECT_EQ(16u, callFunction(&m, nt_FFT2, {vhMatrix(vhDouble(1.0), 4, 4)}).vectorSize());
}
