// The Fourier transforms of the worksheet language: one- and
// two-dimensional, their inverses, resized forms and the centring shift.
// A vector needs at least 4 entries and a matrix at least 4 x 4. The
// transform is unscaled; the inverse divides by the length.

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <cstring>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "functions/number_theory_kernels.h"
#include "signal/fft_kernels.h"
#include "signal/signal_arrays.h"

namespace VarnholtMath {
namespace ValueTypes {

using signal::Read;
using signal::Samples;

namespace {

bool isPowerOfTwo(std::size_t n) { return n != 0 && (n & (n - 1)) == 0; }

// Kernel choices of FFTChoose.
constexpr int kChirpKernel = 1;
constexpr int kMixedKernel = 2;

// One transform of length n in place by the chosen kernel; false for no
// kernel.
bool transformWith(int kernel, double* re, double* im, std::size_t n, bool inverse)
{
    // The inverse of the power-of-two and chirp kernels is the forward one
    // with the real and imaginary parts swapped on both sides.
    if (kernel == kChirpKernel) {
        if (isPowerOfTwo(n))
            inverse ? fourier::radix2Plan(n)->transform(im, re) : fourier::radix2Plan(n)->transform(re, im);
        else
            inverse ? fourier::bluesteinPlan(n)->transform(im, re) : fourier::bluesteinPlan(n)->transform(re, im);
        return true;
    }
    if (kernel == kMixedKernel) {
        fourier::mixedRadixPlan(n, inverse)->transform(re, im);
        return true;
    }
    return false;
}

void scale(std::vector<double>& re, std::vector<double>& im, double factor)
{
    for (std::size_t i = 0; i < re.size(); ++i) {
        re[i] /= factor;
        im[i] /= factor;
    }
}

// Reads a vector of at least 4 entries. held and undefined end the call.
Read readVector(const vhValue& v, Samples& s)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(v, holder);
    if (!array || !array->isVector() || array->vectorSize() < 4)
        return Read::undefined;
    return signal::readSamples(*array, s);
}

// Reads a vector and resizes it to n entries: new entries are 0, entries
// beyond n are dropped.
Read readResizedVector(const vhValue& v, const vhValue& n, Samples& s)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(v, holder);
    unsigned int length;
    if (!array || !array->isVector() || !signal::readCount(n, signal::kLengthLimit, length))
        return Read::undefined;
    const Read r = signal::readSamples(*array, s);
    if (r != Read::ok)
        return r;
    s.re.resize(length, 0.0);
    s.im.resize(length, 0.0);
    return Read::ok;
}

Read readMatrix(const vhValue& m, Samples& s)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(m, holder);
    if (!array || array->valueType() != tagMatrix || array->matrixRows() < 4 || array->matrixColumns() < 4)
        return Read::undefined;
    return signal::readSamples(*array, s);
}

Read readResizedMatrix(const vhValue& m, const vhValue& rows, const vhValue& columns, Samples& s)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(m, holder);
    unsigned int r, c;
    if (!array || array->valueType() != tagMatrix || !signal::readCount(rows, signal::kLengthLimit, r) ||
        !signal::readCount(columns, signal::kLengthLimit, c) ||
        std::uint64_t(r) * c > signal::kLengthLimit)
        return Read::undefined;
    Samples in;
    const Read result = signal::readSamples(*array, in);
    if (result != Read::ok)
        return result;
    s.rows = r;
    s.columns = c;
    s.complex = in.complex;
    s.re.assign(std::size_t(r) * c, 0.0);
    s.im.assign(std::size_t(r) * c, 0.0);
    const unsigned int keepRows = std::min(r, in.rows), keepColumns = std::min(c, in.columns);
    for (unsigned int i = 0; i < keepRows; ++i)
        for (unsigned int j = 0; j < keepColumns; ++j) {
            s.re[std::size_t(i) * c + j] = in.re[std::size_t(i) * in.columns + j];
            s.im[std::size_t(i) * c + j] = in.im[std::size_t(i) * in.columns + j];
        }
    return Read::ok;
}

} // namespace

int vhMath::FFTChoose(unsigned int n)
{
    std::vector<int> factors;
    unsigned int count = 0;
    if (!FactorUnique(n, factors, 50, count))
        return 0;
    // A large prime factor would make the mixed-radix kernel quadratic in it.
    for (unsigned int i = 0; i < count; ++i)
        if (factors[i] > 10000 && isPrime(factors[i]))
            return kChirpKernel;
    return kMixedKernel;
}

namespace {

using Arguments = std::initializer_list<const vhValue*>;

vhValue held(int id, Arguments arguments)
{
    std::vector<vhValue> copies;
    for (const vhValue* a : arguments)
        copies.push_back(*a);
    return elementwise::symbolicCall(id, copies);
}

// A numeric vector of at least 4 finite entries, transformed in the
// storage of the result itself: no other copy of the samples is made.
bool transformInResult(vhMath& math, const vhValue& v, int kernel, bool inverse, vhValue& result)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(v, holder);
    if (!array || !array->isVector() || !array->numericValues())
        return false;
    const unsigned int n = array->vectorSize();
    if (n < 4)
        return false;
    const double* inRe = array->numericValues();
    const double* inIm = array->numericImValues();
    vhVector out(n, array->matrixRows() == 1, true, true);
    double* re = out.numericValues();
    double* im = out.numericImValues();
    if (!re || !im)
        return false;
    std::memcpy(re, inRe, sizeof(double) * n);
    if (inIm)
        std::memcpy(im, inIm, sizeof(double) * n);
    for (unsigned int k = 0; k < n; ++k)
        if (!std::isfinite(re[k]) || !std::isfinite(im[k]))
            return true; // result stays undefined
    if (kernel == 0)
        kernel = math.FFTChoose(n);
    if (!transformWith(kernel, re, im, n, inverse))
        return true;
    if (inverse)
        for (unsigned int k = 0; k < n; ++k) {
            re[k] /= double(n);
            im[k] /= double(n);
        }
    result = std::move(out);
    return true;
}

// The one-dimensional transforms share this frame: read, transform with
// the kernel (0 for FFTChoose's), scale, build. direct, when given, is a
// vector to transform as it is.
template <class ReadInput>
vhValue oneDimensional(vhMath& math, int id, Arguments arguments, const vhValue* direct, int kernel, bool inverse,
                       ReadInput read)
{
    for (const vhValue* a : arguments)
        if (a->isNull())
            return vhValue();
    if ((*arguments.begin())->isSymbolic())
        return held(id, arguments);
    vhValue result;
    if (direct && transformInResult(math, *direct, kernel, inverse, result))
        return result;
    Samples s;
    const Read r = read(s);
    if (r == Read::held)
        return held(id, arguments);
    const std::size_t n = s.re.size();
    if (r != Read::ok || n < 4)
        return vhValue();
    if (kernel == 0)
        kernel = math.FFTChoose(static_cast<unsigned int>(n));
    if (!transformWith(kernel, s.re.data(), s.im.data(), n, inverse))
        return vhValue();
    if (inverse)
        scale(s.re, s.im, double(n));
    return signal::complexVector(s.re.data(), s.im.data(), static_cast<unsigned int>(n), s.rowVector);
}

} // namespace

vhValue vhMath::FFT1_f(const vhValue& v)
{
    return oneDimensional(*this, nt_FFT1, {&v}, &v, 0, false, [&](Samples& s) { return readVector(v, s); });
}

vhValue vhMath::FFTI1_f(const vhValue& v)
{
    return oneDimensional(*this, nt_FFTI1, {&v}, &v, 0, true, [&](Samples& s) { return readVector(v, s); });
}

vhValue vhMath::FFT1M_f(const vhValue& v)
{
    return oneDimensional(*this, nt_FFT1, {&v}, &v, kChirpKernel, false, [&](Samples& s) { return readVector(v, s); });
}

vhValue vhMath::FFT1Old_f(const vhValue& v)
{
    return oneDimensional(*this, nt_FFT1, {&v}, &v, kMixedKernel, false, [&](Samples& s) { return readVector(v, s); });
}

vhValue vhMath::FFT1N_f(const vhValue& v, const vhValue& n)
{
    return oneDimensional(*this, nt_FFT1N, {&v, &n}, nullptr, 0, false,
                          [&](Samples& s) { return readResizedVector(v, n, s); });
}

vhValue vhMath::FFTI1N_f(const vhValue& v, const vhValue& n)
{
    return oneDimensional(*this, nt_FFTI1N, {&v, &n}, nullptr, 0, true,
                          [&](Samples& s) { return readResizedVector(v, n, s); });
}

vhValue vhMath::FFTShift_f(const vhValue& v)
{
    return oneDimensional(*this, nt_FFTShift, {&v}, nullptr, 0, false, [&](Samples& s) {
        const Read r = readVector(v, s);
        if (r != Read::ok)
            return r;
        // The second half goes in front; for an odd length the middle
        // entry stays with the first half.
        const std::size_t n = s.re.size(), front = n / 2 + (n % 2);
        std::rotate(s.re.begin(), s.re.begin() + front, s.re.end());
        std::rotate(s.im.begin(), s.im.begin() + front, s.im.end());
        return Read::ok;
    });
}

namespace {

// Rows first, then columns, each as a one-dimensional transform of its
// own length. Power-of-two sides take the recurrence kernel.
bool twoDimensional(vhMath& math, Samples& s, bool inverse)
{
    const std::size_t rows = s.rows, columns = s.columns;
    const bool powers = isPowerOfTwo(rows) && isPowerOfTwo(columns);
    const int rowKernel = powers ? 0 : math.FFTChoose(static_cast<unsigned int>(columns));
    const int columnKernel = powers ? 0 : math.FFTChoose(static_cast<unsigned int>(rows));
    if (!powers && (rowKernel == 0 || columnKernel == 0))
        return false;
    for (std::size_t i = 0; i < rows; ++i) {
        double* re = s.re.data() + i * columns;
        double* im = s.im.data() + i * columns;
        if (powers)
            fourier::danielsonLanczos(re, im, columns, inverse);
        else
            transformWith(rowKernel, re, im, columns, inverse);
    }
    std::vector<double> re(rows), im(rows);
    for (std::size_t j = 0; j < columns; ++j) {
        for (std::size_t i = 0; i < rows; ++i) {
            re[i] = s.re[i * columns + j];
            im[i] = s.im[i * columns + j];
        }
        if (powers)
            fourier::danielsonLanczos(re.data(), im.data(), rows, inverse);
        else
            transformWith(columnKernel, re.data(), im.data(), rows, inverse);
        for (std::size_t i = 0; i < rows; ++i) {
            s.re[i * columns + j] = re[i];
            s.im[i * columns + j] = im[i];
        }
    }
    if (inverse)
        scale(s.re, s.im, double(rows) * double(columns));
    return true;
}

template <class ReadInput>
vhValue twoDimensionalCall(vhMath& math, int id, Arguments arguments, bool inverse, ReadInput read)
{
    for (const vhValue* a : arguments)
        if (a->isNull())
            return vhValue();
    if ((*arguments.begin())->isSymbolic())
        return held(id, arguments);
    Samples s;
    const Read r = read(s);
    if (r == Read::held)
        return held(id, arguments);
    if (r != Read::ok || s.rows < 4 || s.columns < 4 || !twoDimensional(math, s, inverse))
        return vhValue();
    return signal::complexMatrix(s.re.data(), s.im.data(), s.rows, s.columns);
}

} // namespace

vhValue vhMath::FFT2_f(const vhValue& m)
{
    return twoDimensionalCall(*this, nt_FFT2, {&m}, false, [&](Samples& s) { return readMatrix(m, s); });
}

vhValue vhMath::FFTI2_f(const vhValue& m)
{
    return twoDimensionalCall(*this, nt_FFTI2, {&m}, true, [&](Samples& s) { return readMatrix(m, s); });
}

vhValue vhMath::FFT2N_f(const vhValue& m, const vhValue& rows, const vhValue& columns)
{
    return twoDimensionalCall(*this, nt_FFT2N, {&m, &rows, &columns}, false,
                              [&](Samples& s) { return readResizedMatrix(m, rows, columns, s); });
}

vhValue vhMath::FFTI2N_f(const vhValue& m, const vhValue& rows, const vhValue& columns)
{
    return twoDimensionalCall(*this, nt_FFTI2N, {&m, &rows, &columns}, true,
                              [&](Samples& s) { return readResizedMatrix(m, rows, columns, s); });
}

} // namespace ValueTypes
} // namespace VarnholtMath
