// Image members of vhMath that look at neighbourhoods or compare images: the
// 3 x 3 filters, the median filter, the absolute difference, and the mean
// square error with the peak signal-to-noise ratio.

#include <cmath>

#include "frame/math.h"
#include "image/filter3x3.h"
#include "image/image_arguments.h"
#include "image/median_filter.h"
#include "image/pixel_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace imageKernels;

namespace {

// The fixed kernels, row by row.
const double kSmooth[9] = {1, 1, 1, 1, 2, 1, 1, 1, 1};
const double kEdge[9] = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
// The pixel itself takes no part in its motion blur.
const double kMotionBlur[9] = {0, 0, 1, 0, 0, 0, 1, 0, 0};
const double kSharpen[9] = {-1, -1, -1, -1, 9, -1, -1, -1, -1};
// Not a zero-sum kernel: the diagonal weights are -2 and 1.
const double kRaised[9] = {0, 0, -2, 0, 2, 0, 1, 0, 0};

bool sameShape(const ImageArgument& a, const ImageArgument& b)
{
    return a.rows == b.rows && a.columns == b.columns;
}

} // namespace

namespace {

// Filtered image of a checked kernel; the events callback runs after every
// filtered row, and a stop gives the undefined value. The result has the
// resolution 96, whatever the source's.
vhValue filter3x3(vhMath& math, const vhValue& v, const double kernel[9])
{
    ImageArgument image;
    if (!readImage(v, image))
        return vhValue();
    Filter3x3 filter(kernel);
    if (!filter.setImage(image.pixels, image.rows, image.columns))
        return vhValue();
    FreshImage result(image.rows, image.columns, 96);
    if (!result.data())
        return vhValue();
    filter.copyBorder(result.data());
    if (filter.hasInterior()) {
        for (unsigned row = 1; row + 1 < image.rows; ++row) {
            filter.filterRow(row, result.data());
            math.appProcessEvents();
            if (math.stopCalculation())
                return vhValue();
        }
    }
    return std::move(result);
}

} // namespace

vhValue vhMath::ImageFilter_f(const vhValue& image, const vhValue& kernel)
{
    std::vector<double> k;
    unsigned rows, columns;
    if (!image.imageValues() || !readRealArray(kernel, k, rows, columns) || rows != 3 || columns != 3)
        return vhValue();
    for (double x : k)
        if (!std::isfinite(x))
            return vhValue();
    return filter3x3(*this, image, k.data());
}

vhValue vhMath::ImageSmooth_f(const vhValue& image) { return filter3x3(*this, image, kSmooth); }
vhValue vhMath::ImageEdge_f(const vhValue& image) { return filter3x3(*this, image, kEdge); }
vhValue vhMath::ImageMblur_f(const vhValue& image) { return filter3x3(*this, image, kMotionBlur); }
vhValue vhMath::ImageSharpen_f(const vhValue& image) { return filter3x3(*this, image, kSharpen); }
vhValue vhMath::ImageRaised_f(const vhValue& image) { return filter3x3(*this, image, kRaised); }

vhValue vhMath::ImageMedian_f(const vhValue& image, const vhValue& size)
{
    ImageArgument source;
    std::vector<double> wh;
    unsigned rows, columns;
    if (!readImage(image, source) || !readRealArray(size, wh, rows, columns) || wh.size() != 2)
        return vhValue();
    // Whole window sizes from 1 up to the image's own size; NaN fails here.
    const double w = wh[0], h = wh[1];
    if (!(w >= 1.0 && w <= source.columns && std::floor(w) == w && h >= 1.0 && h <= source.rows &&
          std::floor(h) == h))
        return vhValue();
    MedianFilter filter{unsigned(w), unsigned(h)};
    if (!filter.setImage(source.pixels, source.rows, source.columns))
        return vhValue();
    FreshImage result(filter.outputRows(), filter.outputColumns(), source.dpi);
    if (!result.data())
        return vhValue();
    for (unsigned y = 0; y < filter.outputRows(); ++y) {
        filter.filterRow(y, result.data() + std::size_t(y) * filter.outputColumns());
        appProcessEvents();
        if (stopCalculation())
            return vhValue();
    }
    return std::move(result);
}

vhValue vhMath::ImageAbsDiff_f(const vhValue& a, const vhValue& b)
{
    ImageArgument x, y;
    if (!readImage(a, x) || !readImage(b, y) || !sameShape(x, y))
        return vhValue();
    FreshImage result(x.rows, x.columns, x.dpi);
    if (!result.data())
        return vhValue();
    absoluteDifference(x.pixels, y.pixels, x.size(), result.data());
    return std::move(result);
}

vhValue vhMath::ImageMsePsnr_f(const vhValue& a, const vhValue& b)
{
    ImageArgument x, y;
    if (!readImage(a, x) || !readImage(b, y) || !sameShape(x, y))
        return vhValue();
    // The sum is exact and below 2^53, so mse is the correctly rounded
    // quotient.
    const std::uint64_t sum = squaredDifferenceSum(x.pixels, y.pixels, x.size());
    const double mse = double(sum) / (3.0 * double(x.size()));
    // Equal images divide by an exact zero, which is no number.
    vhValue psnr;
    if (mse != 0.0)
        psnr = vhDouble(10.0 * std::log10(65025.0 / mse));
    return vhVector(std::vector<vhValue>{vhDouble(mse), psnr}, false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
