// Image members of vhMath: properties, creation, pixel words, channels and
// the conversions between images and number matrices.

#include <algorithm>
#include <cmath>

#include "frame/math.h"
#include "image/image_arguments.h"
#include "image/pixel_kernels.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace imageKernels;

namespace {

// A pixel word is a whole number from 0 to 4294967295: every word is a
// pixel, including those with an alpha of 128 or more.
bool readWord(const vhValue& v, std::uint32_t& word)
{
    if (!v.isUnsignedInteger())
        return false;
    word = std::uint32_t(v.toDouble());
    return true;
}

bool readChannelByte(const vhValue& v, std::uint32_t& byte)
{
    return readWord(v, byte) && byte <= 255;
}

vhValue channelImage(const vhValue& v, unsigned shift)
{
    ImageArgument image;
    if (!readImage(v, image))
        return vhValue();
    FreshImage result(image.rows, image.columns, image.dpi);
    if (!result.data())
        return vhValue();
    extractChannel(image.pixels, image.size(), shift, result.data());
    return std::move(result);
}

vhValue scaledChannel(const vhValue& v, const vhValue& factor, unsigned shift)
{
    ImageArgument image;
    if (!readImage(v, image) || !factor.isDouble())
        return vhValue();
    const double f = factor.toDouble();
    if (!(f >= 0.0) || std::isinf(f))
        return vhValue();
    FreshImage result(image.rows, image.columns, image.dpi);
    if (!result.data())
        return vhValue();
    scaleChannel(image.pixels, image.size(), shift, f, result.data());
    return std::move(result);
}

vhValue channelOfWord(const vhValue& pixel, unsigned shift)
{
    std::uint32_t word;
    if (!readWord(pixel, word))
        return vhValue();
    return vhInteger(int((word >> shift) & 0xFFu));
}

} // namespace

// --- properties ------------------------------------------------------------

vhValue vhMath::IsImage_f(const vhValue& v)
{
    if (v.isNull())
        return vhValue();
    return vhBoolean(v.isImage());
}

vhValue vhMath::ImageWidth_f(const vhValue& image)
{
    if (!image.isImage())
        return vhValue();
    return wholeNumber(image.matrixColumns());
}

vhValue vhMath::ImageHeight_f(const vhValue& image)
{
    if (!image.isImage())
        return vhValue();
    return wholeNumber(image.matrixRows());
}

vhValue vhMath::ImageDPI_f(const vhValue& image)
{
    if (!image.isImage())
        return vhValue();
    return wholeNumber(imageDpi(image));
}

vhValue vhMath::ImageSetDPI_f(const vhValue& image, const vhValue& dpi)
{
    std::uint32_t d;
    if (!image.isImage() || !readWord(dpi, d) || d == 0)
        return vhValue();
    // The copy is of the image itself, not of an expression around it.
    vhValue result = image;
    while (result.valueType() == tagExpression && result.expressionValuesSize() == 1)
        result = result.expressionValues().front();
    result.setDpi(d);
    return result;
}

// --- creation --------------------------------------------------------------

vhValue vhMath::ImageCreate_f(const vhValue& width, const vhValue& height)
{
    std::uint32_t w, h;
    if (!readWord(width, w) || !readWord(height, h) || !sizeAllowed(h, w))
        return vhValue();
    vhMatrix image(h, w, false, true, false);
    if (!image.imageValues())
        return vhValue();
    return std::move(image);
}

vhValue vhMath::ImageFill_f(const vhValue& shape, const vhValue& pixel)
{
    std::uint32_t word;
    if (shape.isNull() || !readWord(pixel, word))
        return vhValue();
    // Any value with rows and columns gives the size; an image also gives
    // its resolution.
    const unsigned rows = shape.matrixRows(), columns = shape.matrixColumns();
    if (!sizeAllowed(rows, columns))
        return vhValue();
    FreshImage result(rows, columns, shape.isImage() ? imageDpi(shape) : 96u);
    if (!result.data())
        return vhValue();
    std::fill(result.data(), result.data() + std::size_t(rows) * columns, word);
    return std::move(result);
}

// --- channels --------------------------------------------------------------

vhValue vhMath::ImageRed_f(const vhValue& image) { return channelImage(image, redShift); }
vhValue vhMath::ImageGreen_f(const vhValue& image) { return channelImage(image, greenShift); }
vhValue vhMath::ImageBlue_f(const vhValue& image) { return channelImage(image, blueShift); }
vhValue vhMath::ImageAlpha_f(const vhValue& image) { return channelImage(image, alphaShift); }

vhValue vhMath::ImageBGRA_f(const vhValue& blue, const vhValue& green, const vhValue& red, const vhValue& alpha)
{
    ImageArgument b, g, r, a;
    if (!readImage(blue, b) || !readImage(green, g) || !readImage(red, r) || !readImage(alpha, a))
        return vhValue();
    for (const ImageArgument* other : {&g, &r, &a})
        if (other->rows != b.rows || other->columns != b.columns)
            return vhValue();
    FreshImage result(b.rows, b.columns, b.dpi);
    if (!result.data())
        return vhValue();
    joinChannels(b.pixels, g.pixels, r.pixels, a.pixels, b.size(), result.data());
    return std::move(result);
}

vhValue vhMath::ImageRedMul_f(const vhValue& image, const vhValue& factor)
{
    return scaledChannel(image, factor, redShift);
}

vhValue vhMath::ImageGreenMul_f(const vhValue& image, const vhValue& factor)
{
    return scaledChannel(image, factor, greenShift);
}

vhValue vhMath::ImageBlueMul_f(const vhValue& image, const vhValue& factor)
{
    return scaledChannel(image, factor, blueShift);
}

vhValue vhMath::ImageAlphaMul_f(const vhValue& image, const vhValue& factor)
{
    return scaledChannel(image, factor, alphaShift);
}

// --- pixel words -----------------------------------------------------------

vhValue vhMath::ToRed_f(const vhValue& pixel) { return channelOfWord(pixel, redShift); }
vhValue vhMath::ToGreen_f(const vhValue& pixel) { return channelOfWord(pixel, greenShift); }
vhValue vhMath::ToBlue_f(const vhValue& pixel) { return channelOfWord(pixel, blueShift); }
vhValue vhMath::ToAlpha_f(const vhValue& pixel) { return channelOfWord(pixel, alphaShift); }

vhValue vhMath::ToBGRA_f(const vhValue& blue, const vhValue& green, const vhValue& red, const vhValue& alpha)
{
    std::uint32_t b, g, r, a;
    if (!readChannelByte(blue, b) || !readChannelByte(green, g) || !readChannelByte(red, r) ||
        !readChannelByte(alpha, a))
        return vhValue();
    return wholeNumber(b | g << 8 | r << 16 | a << 24);
}

// --- images and number matrices --------------------------------------------

vhValue vhMath::Image2Matrix_f(const vhValue& image)
{
    ImageArgument source;
    if (!readImage(image, source))
        return vhValue();
    FreshNumericMatrix result(source.rows, source.columns);
    if (!result.data())
        return vhValue();
    wordsToDoubles(source.pixels, source.size(), result.data());
    return std::move(result);
}

vhValue vhMath::Matrix2Image_f(const vhValue& matrix)
{
    std::vector<double> values;
    unsigned rows, columns;
    if (!readRealArray(matrix, values, rows, columns))
        return vhValue();
    FreshImage result(rows, columns, 96);
    if (!result.data() || !doublesToWords(values.data(), values.size(), result.data()))
        return vhValue();
    return std::move(result);
}

} // namespace ValueTypes
} // namespace VarnholtMath
