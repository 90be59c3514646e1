// The rules of the image functions: properties, pixel words, channels,
// conversions, the 3 x 3 and median filters, comparisons, the stop flag and
// the rows of the dispatcher. Filter and median values against independent
// references are in image_reference_test.cpp.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "image_test_support.h"

using namespace image_tests;

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

vhValue d(double v) { return vhDouble(v); }
vhValue text(const char* s) { return vhSymbolicValue(s, true, {}); }
vhValue pair(double a, double b)
{
    double v[2] = {a, b};
    return vhVector(v, 2, true);
}

vhValue uniformImage(unsigned rows, unsigned columns, unsigned pixel)
{
    return makeImage(std::vector<unsigned>(std::size_t(rows) * columns, pixel), rows, columns);
}

} // namespace

TEST(ImageFunctions, PropertiesAndResolution)
{
    vhMath m;
    const vhValue image = randomImage(2, 3, 1);
    EXPECT_TRUE(m.IsImage_f(image).toBool());
    EXPECT_EQ(tagBoolean, m.IsImage_f(d(1.0)).valueType());
    EXPECT_FALSE(m.IsImage_f(numericMatrix({1, 2, 3, 4}, 2, 2)).toBool());
    EXPECT_TRUE(m.IsImage_f(vhValue()).isNull());
    EXPECT_EQ(3, m.ImageWidth_f(image).toInt());
    EXPECT_EQ(2, m.ImageHeight_f(image).toInt());
    EXPECT_EQ(96, m.ImageDPI_f(image).toInt());
    EXPECT_TRUE(m.ImageDPI_f(d(3.0)).isNull());
    EXPECT_TRUE(m.ImageWidth_f(numericMatrix({1, 2}, 1, 2)).isNull());

    const vhValue sharp = m.ImageSetDPI_f(image, d(300));
    EXPECT_EQ(300, m.ImageDPI_f(sharp).toInt());
    EXPECT_EQ(pixelsOf(image), pixelsOf(sharp));
    EXPECT_EQ(96, m.ImageDPI_f(image).toInt()) << "the source keeps its resolution";
    // The largest word is a resolution too; it no longer fits an integer.
    const vhValue huge = m.ImageDPI_f(m.ImageSetDPI_f(image, d(4294967295.0)));
    EXPECT_EQ(tagDouble, huge.valueType());
    EXPECT_EQ(4294967295.0, huge.toDouble());
    for (const vhValue& bad : std::vector<vhValue>{d(0), d(-1), d(1.5), d(4294967296.0), d(kNaN), text("300"), vhValue()})
        EXPECT_TRUE(m.ImageSetDPI_f(image, bad).isNull()) << bad.toString();
    EXPECT_TRUE(m.ImageSetDPI_f(d(5), d(300)).isNull());
}

TEST(ImageFunctions, CreateAndFill)
{
    vhMath m;
    const vhValue created = m.ImageCreate_f(vhInteger(3), d(2));
    ASSERT_TRUE(created.isImage());
    EXPECT_EQ(2u, created.matrixRows());
    EXPECT_EQ(3u, created.matrixColumns());
    EXPECT_EQ(std::vector<unsigned>(6, 0xFFFFFFFFu), pixelsOf(created));
    EXPECT_EQ(96, m.ImageDPI_f(created).toInt());
    for (const vhValue& bad : std::vector<vhValue>{d(0), d(-2), d(2.5), d(kInf), text("2"), vhValue()}) {
        EXPECT_TRUE(m.ImageCreate_f(bad, d(2)).isNull()) << bad.toString();
        EXPECT_TRUE(m.ImageCreate_f(d(2), bad).isNull()) << bad.toString();
    }
    // The size limit counts pixels, in 64 bits.
    const unsigned limit = maximumNumerOfMatrixElements();
    setMaximumNumerOfMatrixElements(100);
    EXPECT_TRUE(m.ImageCreate_f(d(10), d(10)).isImage());
    EXPECT_TRUE(m.ImageCreate_f(d(11), d(10)).isNull());
    EXPECT_TRUE(m.ImageCreate_f(d(65536), d(65536)).isNull());
    setMaximumNumerOfMatrixElements(limit);

    // Fill takes the size and resolution of its first argument; a pixel
    // with alpha 128 or more is a word like any other.
    const vhValue source = m.ImageSetDPI_f(randomImage(2, 3, 2), d(150));
    const vhValue filled = m.ImageFill_f(source, d(0x80FF0000u));
    EXPECT_EQ(std::vector<unsigned>(6, 0x80FF0000u), pixelsOf(filled));
    EXPECT_EQ(2u, filled.matrixRows());
    EXPECT_EQ(150, m.ImageDPI_f(filled).toInt());
    const vhValue fromMatrix = m.ImageFill_f(numericMatrix({1, 2, 3, 4, 5, 6}, 3, 2), d(7));
    EXPECT_EQ(std::vector<unsigned>(6, 7u), pixelsOf(fromMatrix));
    EXPECT_EQ(3u, fromMatrix.matrixRows());
    EXPECT_EQ(96, m.ImageDPI_f(fromMatrix).toInt());
    EXPECT_TRUE(m.ImageFill_f(d(4), d(7)).isNull());
    EXPECT_TRUE(m.ImageFill_f(vhVector(), d(7)).isNull());
    for (const vhValue& bad : std::vector<vhValue>{d(-1), d(0.5), d(4294967296.0), d(kNaN), vhComplex(1, 1), vhValue()})
        EXPECT_TRUE(m.ImageFill_f(source, bad).isNull()) << bad.toString();
}

TEST(ImageFunctions, PixelWords)
{
    vhMath m;
    const vhValue p = d(0x80402010u);
    EXPECT_EQ(0x40, m.ToRed_f(p).toInt());
    EXPECT_EQ(0x20, m.ToGreen_f(p).toInt());
    EXPECT_EQ(0x10, m.ToBlue_f(p).toInt());
    EXPECT_EQ(0x80, m.ToAlpha_f(p).toInt());
    EXPECT_EQ(tagInteger, m.ToAlpha_f(p).valueType());

    std::vector<unsigned> words = randomPixels(50, 3);
    words.push_back(0);
    words.push_back(0xFFFFFFFFu);
    words.push_back(0x7FFFFFFFu);
    words.push_back(0x80000000u);
    for (unsigned w : words) {
        const vhValue x = d(w);
        const vhValue back = m.ToBGRA_f(m.ToBlue_f(x), m.ToGreen_f(x), m.ToRed_f(x), m.ToAlpha_f(x));
        EXPECT_EQ(double(w), back.toDouble()) << w;
        // Words from 2^31 up no longer fit an integer.
        EXPECT_EQ(w < 0x80000000u ? tagInteger : tagDouble, back.valueType()) << w;
    }
    for (const vhValue& bad : std::vector<vhValue>{d(-1), d(0.5), d(4294967296.0), d(kNaN), d(kInf), text("1"), vhValue()}) {
        EXPECT_TRUE(m.ToRed_f(bad).isNull()) << bad.toString();
        EXPECT_TRUE(m.ToAlpha_f(bad).isNull()) << bad.toString();
    }
    EXPECT_TRUE(m.ToBGRA_f(d(256), d(0), d(0), d(0)).isNull());
    EXPECT_TRUE(m.ToBGRA_f(d(0), d(0), d(0), d(-1)).isNull());
    EXPECT_TRUE(m.ToBGRA_f(d(0), d(0), d(1.5), d(0)).isNull());
    EXPECT_EQ(255, m.ToBGRA_f(d(255), d(0), d(0), d(0)).toInt());
}

TEST(ImageFunctions, ChannelsSplitJoinAndScale)
{
    vhMath m;
    const vhValue image = m.ImageSetDPI_f(randomImage(5, 7, 4), d(72));
    const std::vector<unsigned> source = pixelsOf(image);
    const vhValue b = m.ImageBlue_f(image), g = m.ImageGreen_f(image), r = m.ImageRed_f(image),
                  a = m.ImageAlpha_f(image);
    const std::vector<unsigned> red = pixelsOf(r);
    ASSERT_EQ(source.size(), red.size());
    for (std::size_t i = 0; i < source.size(); ++i)
        EXPECT_EQ((source[i] >> 16) & 255u, red[i]);
    EXPECT_EQ(72, m.ImageDPI_f(a).toInt());
    const vhValue joined = m.ImageBGRA_f(b, g, r, a);
    EXPECT_EQ(source, pixelsOf(joined));
    EXPECT_EQ(72, m.ImageDPI_f(joined).toInt());
    // Only the low byte of each channel image counts.
    EXPECT_EQ(std::vector<unsigned>{0x44332211u},
              pixelsOf(m.ImageBGRA_f(uniformImage(1, 1, 0xAB11u), uniformImage(1, 1, 0x22u),
                                     uniformImage(1, 1, 0xFFFFFF33u), uniformImage(1, 1, 0x144u))));
    EXPECT_TRUE(m.ImageBGRA_f(b, g, r, randomImage(7, 5, 5)).isNull());
    EXPECT_TRUE(m.ImageBGRA_f(b, g, numericMatrix(std::vector<double>(35, 1.0), 5, 7), a).isNull());
    EXPECT_TRUE(m.ImageRed_f(numericMatrix({1, 2}, 1, 2)).isNull());

    // A factor 1 changes nothing; 0 clears only its channel.
    EXPECT_EQ(source, pixelsOf(m.ImageGreenMul_f(image, d(1))));
    const std::vector<unsigned> noBlue = pixelsOf(m.ImageBlueMul_f(image, d(0)));
    ASSERT_EQ(source.size(), noBlue.size());
    for (std::size_t i = 0; i < source.size(); ++i)
        EXPECT_EQ(source[i] & 0xFFFFFF00u, noBlue[i]);
    // Products are cut toward zero and held at 255.
    const vhValue grey = uniformImage(1, 2, 0xC8C8C8C8u);  // 200 in every channel
    EXPECT_EQ(0xC8C8C864u, pixelsOf(m.ImageBlueMul_f(grey, d(0.5)))[0]);
    EXPECT_EQ(0xC8C8C863u, pixelsOf(m.ImageBlueMul_f(grey, d(0.499)))[0]);
    EXPECT_EQ(0xC8FFC8C8u, pixelsOf(m.ImageRedMul_f(grey, d(2)))[0]);
    EXPECT_EQ(0xFFC8C8C8u, pixelsOf(m.ImageAlphaMul_f(grey, d(1e300)))[0]);
    for (const vhValue& bad : std::vector<vhValue>{d(-0.5), d(kInf), d(kNaN), vhComplex(1, 1), text("2"), vhValue()})
        EXPECT_TRUE(m.ImageRedMul_f(image, bad).isNull()) << bad.toString();
}

TEST(ImageFunctions, MatrixConversions)
{
    vhMath m;
    const vhValue image = m.ImageSetDPI_f(randomImage(4, 6, 6), d(200));
    const vhValue matrix = m.Image2Matrix_f(image);
    ASSERT_TRUE(matrix.isNumericVectorOrMatrix());
    EXPECT_FALSE(matrix.isImage());
    EXPECT_EQ(nullptr, matrix.numericImValues());
    const std::vector<unsigned> source = pixelsOf(image);
    for (std::size_t i = 0; i < source.size(); ++i)
        EXPECT_EQ(double(source[i]), matrix.numericValues()[i]);
    const vhValue back = m.Matrix2Image_f(matrix);
    EXPECT_EQ(source, pixelsOf(back));
    EXPECT_EQ(4u, back.matrixRows());
    EXPECT_EQ(96, m.ImageDPI_f(back).toInt());

    // Values below 0 store 0; others must be whole words. A vector gives an
    // image of one row or one column.
    double row[] = {-1, -kInf, 0, 4294967295.0};
    const vhValue fromRow = m.Matrix2Image_f(vhVector(row, 4, true));
    EXPECT_EQ((std::vector<unsigned>{0, 0, 0, 0xFFFFFFFFu}), pixelsOf(fromRow));
    EXPECT_EQ(1u, fromRow.matrixRows());
    EXPECT_EQ(4u, m.Matrix2Image_f(vhVector(row, 4, false)).matrixRows());
    vhValue elements = vhMatrix(text("x"), 2, 2);
    for (unsigned i = 0; i < 4; ++i)
        elements.setValue(vhInteger(5), i);
    EXPECT_EQ(std::vector<unsigned>(4, 5u), pixelsOf(m.Matrix2Image_f(elements)));
    for (double bad : {0.5, kNaN, kInf, 4294967296.0})
        EXPECT_TRUE(m.Matrix2Image_f(numericMatrix({1, bad, 2, 3}, 2, 2)).isNull()) << bad;
    vhValue complex = vhMatrix(2, 2, true, false, true);
    EXPECT_TRUE(m.Matrix2Image_f(complex).isNull());
    EXPECT_TRUE(m.Matrix2Image_f(vhMatrix(text("x"), 2, 2)).isNull());
    EXPECT_TRUE(m.Matrix2Image_f(image).isNull());
    EXPECT_TRUE(m.Matrix2Image_f(vhMatrix()).isNull());
    EXPECT_TRUE(m.Image2Matrix_f(matrix).isNull());
}

TEST(ImageFunctions, FilterRules)
{
    vhMath m;
    const vhValue image = m.ImageSetDPI_f(randomImage(6, 8, 7), d(300));
    const std::vector<unsigned> source = pixelsOf(image);
    // The identity kernel keeps the image; the border ring is the source's,
    // and a kernel times 4 divides out. The result has resolution 96.
    const vhValue identity = numericMatrix({0, 0, 0, 0, 1, 0, 0, 0, 0}, 3, 3);
    EXPECT_EQ(source, pixelsOf(m.ImageFilter_f(image, identity)));
    EXPECT_EQ(96, m.ImageDPI_f(m.ImageFilter_f(image, identity)).toInt());
    const std::vector<double> k = {1, -2, 3, 0.5, 4, 0, -1, 2, 1};
    std::vector<double> k4 = k;
    for (double& x : k4)
        x *= 4;
    const std::vector<unsigned> once = pixelsOf(m.ImageFilter_f(image, numericMatrix(k, 3, 3)));
    EXPECT_EQ(once, pixelsOf(m.ImageFilter_f(image, numericMatrix(k4, 3, 3))));
    for (unsigned x = 0; x < 8; ++x) {
        EXPECT_EQ(source[x], once[x]);
        EXPECT_EQ(source[40 + x], once[40 + x]);
    }
    // A kernel in element storage is as good; a negative divisor stands.
    EXPECT_EQ(pixelsOf(uniformImage(4, 4, 0x12345678u)),
              pixelsOf(m.ImageFilter_f(uniformImage(4, 4, 0x12345678u), vhMatrix(vhInteger(-1), 3, 3))));

    // Smoothing white stays white; edges of a uniform image are black inside
    // with alpha kept; sharpening caps at 255 and floors at 0.
    EXPECT_EQ(pixelsOf(uniformImage(5, 5, 0xFFFFFFFFu)), pixelsOf(m.ImageSmooth_f(uniformImage(5, 5, 0xFFFFFFFFu))));
    const std::vector<unsigned> edge = pixelsOf(m.ImageEdge_f(uniformImage(4, 5, 0x7F102030u)));
    EXPECT_EQ(0x7F000000u, edge[6]);
    EXPECT_EQ(0x7F102030u, edge[0]);
    std::vector<unsigned> spot(9, 0x00808080u);
    spot[4] = 0x00FF0000u;
    EXPECT_EQ(0x00FF0000u, pixelsOf(m.ImageSharpen_f(makeImage(spot, 3, 3)))[4]);
    // Halves round up: motion blur averages the two diagonal neighbours.
    std::vector<unsigned> diagonal(9, 0);
    diagonal[2] = 0x000201u;
    diagonal[6] = 0x000102u;
    EXPECT_EQ(0x000202u, pixelsOf(m.ImageMblur_f(makeImage(diagonal, 3, 3)))[4]);
    // Images too small for an interior come back unchanged.
    EXPECT_EQ(pixelsOf(randomImage(2, 9, 8)), pixelsOf(m.ImageRaised_f(randomImage(2, 9, 8))));

    for (const vhValue& bad : std::vector<vhValue>{numericMatrix({1, 1, 1, 1, 1, 1}, 2, 3), numericMatrix(std::vector<double>(16, 1), 4, 4),
                               numericMatrix({1, 1, 1, 1, kNaN, 1, 1, 1, 1}, 3, 3),
                               numericMatrix({1, 1, 1, 1, kInf, 1, 1, 1, 1}, 3, 3), vhMatrix(3, 3, true, false, true),
                               vhMatrix(text("k"), 3, 3), uniformImage(3, 3, 1), d(1), vhValue()})
        EXPECT_TRUE(m.ImageFilter_f(image, bad).isNull()) << bad.toString();
    EXPECT_TRUE(m.ImageFilter_f(numericMatrix(std::vector<double>(9, 1), 3, 3), identity).isNull());
    EXPECT_TRUE(m.ImageSmooth_f(d(3)).isNull());
}

TEST(ImageFunctions, MedianRules)
{
    vhMath m;
    const vhValue image = m.ImageSetDPI_f(randomImage(10, 10, 9), d(120));
    const vhValue filtered = m.ImageMedian_f(image, pair(3, 3));
    EXPECT_EQ(8u, filtered.matrixRows());
    EXPECT_EQ(8u, filtered.matrixColumns());
    EXPECT_EQ(120, m.ImageDPI_f(filtered).toInt());
    // Alpha comes from the window's centre pixel.
    const std::vector<unsigned> source = pixelsOf(image), out = pixelsOf(filtered);
    EXPECT_EQ(source[11] >> 24, out[0] >> 24);
    // An even window reaches one further left: [2, 1] over a row of three
    // keeps one pixel, the centre second, and 1 and 2 have the median 2.
    const vhValue row = makeImage({0x00000001u, 0xFF000002u, 0x00000009u}, 1, 3);
    EXPECT_EQ(std::vector<unsigned>{0xFF000002u}, pixelsOf(m.ImageMedian_f(row, pair(2, 1))));
    // A window as large as the image gives one pixel for odd sizes.
    EXPECT_EQ(1u, m.ImageMedian_f(randomImage(9, 9, 21), pair(9, 9)).matrixRows());
    double column[] = {3, 3};
    EXPECT_EQ(8u, m.ImageMedian_f(image, vhVector(column, 2, false)).matrixRows());

    double three[] = {3, 3, 3};
    for (const vhValue& bad : std::vector<vhValue>{pair(2.5, 3), pair(0, 3), pair(3, -1), pair(kInf, 3), pair(3, kNaN), pair(11, 3),
                               pair(10, 3), vhVector(three, 3, true), vhVector(three, 1, true), d(3),
                               vhVector(std::vector<vhValue>{vhComplex(3, 1), d(3)}, true),
                               vhVector(std::vector<vhValue>{text("3"), d(3)}, true), vhValue()})
        EXPECT_TRUE(m.ImageMedian_f(image, bad).isNull()) << bad.toString();
    EXPECT_TRUE(m.ImageMedian_f(numericMatrix(std::vector<double>(9, 1), 3, 3), pair(1, 1)).isNull());
}

TEST(ImageFunctions, Comparisons)
{
    vhMath m;
    const vhValue a = randomImage(4, 5, 10), b = randomImage(4, 5, 11);
    const std::vector<unsigned> pa = pixelsOf(a);
    const std::vector<unsigned> self = pixelsOf(m.ImageAbsDiff_f(a, a));
    ASSERT_EQ(pa.size(), self.size());
    for (std::size_t i = 0; i < pa.size(); ++i)
        EXPECT_EQ(pa[i] & 0xFF000000u, self[i]);
    const std::vector<unsigned> ab = pixelsOf(m.ImageAbsDiff_f(a, b)), ba = pixelsOf(m.ImageAbsDiff_f(b, a));
    for (std::size_t i = 0; i < ab.size(); ++i)
        EXPECT_EQ(ab[i] & 0xFFFFFFu, ba[i] & 0xFFFFFFu);

    // One channel off by 255 in one pixel of one: mse 65025 / 3, psnr
    // 10 log10(3).
    const vhValue r = m.ImageMsePsnr_f(uniformImage(1, 1, 0), uniformImage(1, 1, 0xFFu));
    ASSERT_EQ(2u, r.vectorSize());
    EXPECT_DOUBLE_EQ(21675.0, r.value(0).toDouble());
    EXPECT_DOUBLE_EQ(10.0 * std::log10(3.0), r.value(1).toDouble());
    EXPECT_EQ(m.ImageMsePsnr_f(a, b).value(0).toDouble(), m.ImageMsePsnr_f(b, a).value(0).toDouble());
    const vhValue same = m.ImageMsePsnr_f(a, a);
    EXPECT_EQ(tagDouble, same.value(0).valueType());
    EXPECT_EQ(0.0, same.value(0).toDouble());
    EXPECT_TRUE(same.value(1).isNull());

    const vhValue other = randomImage(5, 4, 12);
    EXPECT_TRUE(m.ImageAbsDiff_f(a, other).isNull());
    EXPECT_TRUE(m.ImageMsePsnr_f(a, other).isNull());
    EXPECT_TRUE(m.ImageMsePsnr_f(a, m.Image2Matrix_f(a)).isNull());
}

namespace {
vhMath* g_stopping = nullptr;
int g_calls = 0;
void stopOnThirdCall()
{
    if (++g_calls == 3)
        g_stopping->setStopCalculation(true);
}
} // namespace

TEST(ImageFunctions, FiltersStopWhenTheHostAsks)
{
    vhMath m;
    g_stopping = &m;
    m.setAppProcessEventsCallback(stopOnThirdCall);
    const vhValue image = randomImage(10, 10, 13);
    g_calls = 0;
    EXPECT_TRUE(m.ImageFilter_f(image, vhMatrix(vhInteger(1), 3, 3)).isNull());
    EXPECT_EQ(3, g_calls);
    m.setStopCalculation(false);
    g_calls = 0;
    EXPECT_TRUE(m.ImageMedian_f(image, pair(3, 3)).isNull());
    EXPECT_EQ(3, g_calls);
    // Without a stop the callback runs once per row and the result stands.
    m.setStopCalculation(false);
    g_calls = 10;
    EXPECT_TRUE(m.ImageSmooth_f(image).isImage());
    EXPECT_EQ(18, g_calls);
    g_stopping = nullptr;
}

TEST(ImageFunctions, EveryRowByNumberAndTinyImages)
{
    vhMath m;
    for (unsigned size : {1u, 2u}) {
        const vhValue im = randomImage(size, size, 14 + size);
        const vhValue one = d(1), word = d(0x80402010u);
        const std::vector<std::pair<NodeType, std::vector<vhValue>>> calls = {
            {nt_IsImage, {im}}, {nt_ImageSetDPI, {im, one}}, {nt_ImageDPI, {im}}, {nt_ImageCreate, {one, one}},
            {nt_ImageWidth, {im}}, {nt_ImageHeight, {im}}, {nt_ImageFill, {im, word}}, {nt_ImageRed, {im}},
            {nt_ImageGreen, {im}}, {nt_ImageBlue, {im}}, {nt_ImageAlpha, {im}}, {nt_ImageBGRA, {im, im, im, im}},
            {nt_ImageRedMul, {im, one}}, {nt_ImageGreenMul, {im, one}}, {nt_ImageBlueMul, {im, one}},
            {nt_ImageAlphaMul, {im, one}}, {nt_ToRed, {word}}, {nt_ToGreen, {word}}, {nt_ToBlue, {word}},
            {nt_ToAlpha, {word}}, {nt_ToBGRA, {one, one, one, one}}, {nt_Image2Matrix, {im}},
            {nt_Matrix2Image, {m.Image2Matrix_f(im)}}, {nt_ImageFilter, {im, vhMatrix(vhInteger(1), 3, 3)}},
            {nt_ImageSmooth, {im}}, {nt_ImageEdge, {im}}, {nt_ImageMblur, {im}}, {nt_ImageSharpen, {im}},
            {nt_ImageRaised, {im}}, {nt_ImageMedian, {im, pair(1, 1)}}, {nt_ImageAbsDiff, {im, im}},
            {nt_ImageMsePsnr, {im, randomImage(size, size, 20)}}};
        EXPECT_EQ(32u, calls.size());
        for (const auto& call : calls) {
            const vhValue r = callFunction(&m, call.first, call.second);
            EXPECT_FALSE(r.isNull()) << "row " << call.first << ", size " << size;
            EXPECT_EQ(r.toStringAll(), vhValue(r).toStringAll());
        }
        // The filters of images without interior and the median of a 1 x 1
        // window give the image back.
        EXPECT_EQ(pixelsOf(im), pixelsOf(callFunction(&m, nt_ImageSharpen, {im})));
        EXPECT_EQ(pixelsOf(im), pixelsOf(callFunction(&m, nt_ImageMedian, {im, pair(1, 1)})));
    }
    // Reading, writing, capturing, showing and transforming images are the
    // host's rows.
    for (NodeType id : {nt_ImageRead, nt_ImageCapture, nt_ImageRotate, nt_ImageScale, nt_ImageMirror, nt_ImageShear})
        EXPECT_TRUE(callFunction(&m, id, std::vector<vhValue>(numberOfFunctionArguments(id), d(1))).isNull()) << id;
}

namespace {

// The median filter by sorting each window.
std::vector<unsigned> sortedWindowMedians(const std::vector<unsigned>& p, unsigned rows, unsigned columns, unsigned w,
                                          unsigned h)
{
    const unsigned outRows = rows - 2 * (h / 2), outColumns = columns - 2 * (w / 2), n = w * h;
    std::vector<unsigned> out;
    std::vector<unsigned> v(n);
    for (unsigned y = 0; y < outRows; ++y)
        for (unsigned x = 0; x < outColumns; ++x) {
            unsigned pixel = p[(y + h / 2) * columns + x + w / 2] & 0xFF000000u;
            for (unsigned shift : {0u, 8u, 16u}) {
                for (unsigned r = 0; r < h; ++r)
                    for (unsigned c = 0; c < w; ++c)
                        v[r * w + c] = (p[(y + r) * columns + x + c] >> shift) & 255u;
                std::sort(v.begin(), v.end());
                pixel |= ((v[(n - 1) / 2] + v[n / 2] + 1) / 2) << shift;
            }
            out.push_back(pixel);
        }
    return out;
}

} // namespace

TEST(ImageFunctions, LargeMedianWindowsAgreeWithSorting)
{
    vhMath m;
    // Few channel levels make many ties.
    std::vector<unsigned> p = randomPixels(45 * 70, 30);
    for (std::size_t i = 0; i < p.size(); i += 3)
        p[i] &= 0xFF030303u;
    const vhValue image = makeImage(p, 45, 70);
    // Low and tall, odd and even windows; more than 65535 values below.
    const unsigned sizes[][2] = {{40, 3}, {33, 2}, {31, 31}, {9, 40}, {12, 12}, {70, 13}, {2, 45}, {64, 44}};
    for (const auto& s : sizes) {
        const vhValue r = m.ImageMedian_f(image, pair(s[0], s[1]));
        EXPECT_EQ(sortedWindowMedians(p, 45, 70, s[0], s[1]), pixelsOf(r)) << s[0] << " x " << s[1];
    }
    const std::vector<unsigned> big = randomPixels(258 * 260, 31);
    EXPECT_EQ(sortedWindowMedians(big, 258, 260, 257, 256),
              pixelsOf(m.ImageMedian_f(makeImage(big, 258, 260), pair(257, 256))));
}
