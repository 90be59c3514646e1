// The discrete cosine transforms (type II and its inverse) on the Fourier
// kernels. DCT1 is twice the orthonormal transform and DCTI1 inverts it
// exactly, the inverse running on a worker thread while the caller serves
// the host's events and its stop requests; dct1 and idct1 are the
// orthonormal pair, computed through the transform of the signal joined
// with its mirror image.

#include <chrono>
#include <cmath>
#include <thread>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "signal/fft_kernels.h"
#include "signal/signal_arrays.h"

namespace VarnholtMath {
namespace ValueTypes {

using signal::Read;
using signal::Samples;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kSqrt2 = 1.4142135623730951;

// A real vector of at least one entry, and a count argument.
Read readRealVector(const vhValue& v, Samples& s)
{
    vhValue holder;
    const vhValue* array = signal::arrayBehind(v, holder);
    if (!array || !array->isVector() || array->vectorSize() < 1)
        return Read::undefined;
    const Read r = signal::readSamples(*array, s);
    if (r == Read::ok && s.complex)
        return Read::undefined;
    return r;
}

// The transform of length n by the kernel FFTChoose picks.
bool forwardTransform(vhMath& math, double* re, double* im, std::size_t n)
{
    const int kernel = math.FFTChoose(static_cast<unsigned int>(n));
    if (kernel == 1) {
        if ((n & (n - 1)) == 0)
            fourier::radix2Plan(n)->transform(re, im);
        else
            fourier::bluesteinPlan(n)->transform(re, im);
        return true;
    }
    if (kernel == 2) {
        fourier::mixedRadixPlan(n, false)->transform(re, im);
        return true;
    }
    return false;
}

template <class Body>
vhValue cosineCall(int id, const vhValue& v, const vhValue& n, unsigned int lengthLimit, Body body)
{
    if (v.isNull() || n.isNull())
        return vhValue();
    if (v.isSymbolic() || n.isSymbolic())
        return elementwise::symbolicCall(id, {v, n});
    unsigned int length;
    if (!signal::readCount(n, lengthLimit, length))
        return vhValue();
    Samples s;
    const Read r = readRealVector(v, s);
    if (r == Read::held)
        return elementwise::symbolicCall(id, {v, n});
    if (r != Read::ok)
        return vhValue();
    return body(s, length);
}

} // namespace

struct vhMath::FourierWorker {
    std::thread thread;
    std::vector<double> inRe, inIm, outRe, outIm;
};

void vhMath::runFourierJob()
{
    const std::size_t n = static_cast<std::size_t>(fftSize);
    std::copy(fftInRe, fftInRe + n, fftOutRe);
    std::copy(fftInIm, fftInIm + n, fftOutIm);
    forwardTransform(*this, fftOutRe, fftOutIm, n);
    __atomic_fetch_sub(&fftJobsRunning, 1, __ATOMIC_RELEASE);
}

void vhMath::finishFourierJob()
{
    if (!m_fourierWorker)
        return;
    if (m_fourierWorker->thread.joinable())
        m_fourierWorker->thread.join();
    delete m_fourierWorker;
    m_fourierWorker = nullptr;
    fftInRe = fftInIm = fftOutRe = fftOutIm = nullptr;
    fftSize = 0;
}

vhValue vhMath::DCT1_f(const vhValue& v, const vhValue& n)
{
    return cosineCall(nt_DCT1, v, n, 0x7fffffffu, [this](Samples& s, unsigned int) {
        // Even entries in order, then odd ones backwards: the transform of
        // this sequence holds the cosine sums once rotated by
        // exp(-i pi k / 2N).
        const std::size_t N = s.re.size();
        std::vector<double> re(N), im(N, 0.0);
        for (std::size_t k = 0; 2 * k < N; ++k)
            re[k] = s.re[2 * k];
        for (std::size_t k = 0; 2 * k + 1 < N; ++k)
            re[N - 1 - k] = s.re[2 * k + 1];
        if (!forwardTransform(*this, re.data(), im.data(), N))
            return vhValue();
        std::vector<double> out(N);
        const double scale = 2.0 * std::sqrt(2.0 / double(N));
        for (std::size_t k = 0; k < N; ++k) {
            const double a = -0.5 * kPi * double(k) / double(N);
            const double c = re[k] * std::cos(a) - im[k] * std::sin(a);
            out[k] = (k == 0 ? scale / kSqrt2 : scale) * c;
        }
        return signal::realVector(out.data(), static_cast<unsigned int>(N), s.rowVector);
    });
}

vhValue vhMath::DCTI1_f(const vhValue& v, const vhValue& n)
{
    return cosineCall(nt_DCTI1, v, n, 0x7fffffffu, [this](Samples& s, unsigned int) {
        const std::size_t N = s.re.size();
        // A previous worker, abandoned by a stop request, ends first: there
        // is one set of job fields.
        finishFourierJob();
        m_fourierWorker = new FourierWorker;
        FourierWorker& job = *m_fourierWorker;
        job.inRe.resize(N);
        job.inIm.resize(N);
        job.outRe.assign(N, 0.0);
        job.outIm.assign(N, 0.0);
        for (std::size_t k = 0; k < N; ++k) {
            const double x = k == 0 ? s.re[k] / kSqrt2 : s.re[k];
            const double a = double(k) * kPi / (2.0 * double(N));
            job.inRe[k] = x * std::cos(a);
            job.inIm[k] = -x * std::sin(a);
            if (!std::isfinite(job.inRe[k]) || !std::isfinite(job.inIm[k])) {
                finishFourierJob();
                return vhValue();
            }
        }
        fftSize = static_cast<std::int32_t>(N);
        fftInverse = false;
        fftInRe = job.inRe.data();
        fftInIm = job.inIm.data();
        fftOutRe = job.outRe.data();
        fftOutIm = job.outIm.data();
        __atomic_store_n(&fftJobsRunning, 1, __ATOMIC_RELEASE);
        try {
            job.thread = std::thread([this] { runFourierJob(); });
        } catch (...) {
            // No thread to be had: the job runs here.
            runFourierJob();
        }
        while (__atomic_load_n(&fftJobsRunning, __ATOMIC_ACQUIRE) != 0) {
            appProcessEvents();
            // The worker runs to its end; it is joined by the next job or
            // by the destructor.
            if (stopCalculation())
                return vhValue();
            std::this_thread::sleep_for(std::chrono::microseconds(50));
        }
        if (job.thread.joinable())
            job.thread.join();
        const double r = std::sqrt(2.0 * double(N));
        std::vector<double> out(N);
        for (std::size_t k = 0; k < N / 2; ++k) {
            out[2 * k] = job.outRe[k] / r;
            out[2 * k + 1] = job.outRe[N - 1 - k] / r;
        }
        if (N % 2 == 1)
            out[N - 1] = job.outRe[N / 2] / r;
        finishFourierJob();
        return signal::realVector(out.data(), static_cast<unsigned int>(N), s.rowVector);
    });
}

vhValue vhMath::dct1_f(const vhValue& x, const vhValue& n)
{
    return cosineCall(nt_DCT1, x, n, signal::kLengthLimit, [this](Samples& s, unsigned int N) {
        // [x, flip(x)] has the transform 2 exp(i pi k / 2N) C_k, C_k the
        // cosine sums; the weights undo the rotation and normalise.
        s.re.resize(N, 0.0);
        std::vector<double> re(2 * std::size_t(N)), im(2 * std::size_t(N), 0.0);
        for (std::size_t j = 0; j < N; ++j)
            re[j] = re[2 * std::size_t(N) - 1 - j] = s.re[j];
        if (2 * std::size_t(N) < 4 || !forwardTransform(*this, re.data(), im.data(), 2 * std::size_t(N)))
            return vhValue();
        std::vector<double> out(N);
        out[0] = re[0] * std::sqrt(1.0 / (4.0 * N));
        const double w = std::sqrt(1.0 / (2.0 * N));
        for (std::size_t k = 1; k < N; ++k) {
            const double a = -kPi * double(k) / (2.0 * N);
            out[k] = (re[k] * std::cos(a) - im[k] * std::sin(a)) * w;
        }
        return signal::realVector(out.data(), N, s.rowVector);
    });
}

vhValue vhMath::idct1_f(const vhValue& x, const vhValue& n)
{
    return cosineCall(nt_DCTI1, x, n, signal::kLengthLimit, [this](Samples& s, unsigned int N) {
        // x_j = Re sum_k w_k X_k exp(-i pi k / 2N) exp(-2 pi i j k / 2N): the
        // transform of length 2N of the weighted, rotated coefficients.
        s.re.resize(N, 0.0);
        std::vector<double> re(2 * std::size_t(N), 0.0), im(2 * std::size_t(N), 0.0);
        for (std::size_t k = 0; k < N; ++k) {
            const double w = k == 0 ? std::sqrt(1.0 / N) : std::sqrt(2.0 / N);
            const double a = -kPi * double(k) / (2.0 * N);
            re[k] = w * s.re[k] * std::cos(a);
            im[k] = w * s.re[k] * std::sin(a);
        }
        if (2 * std::size_t(N) < 4 || !forwardTransform(*this, re.data(), im.data(), 2 * std::size_t(N)))
            return vhValue();
        return signal::realVector(re.data(), N, s.rowVector);
    });
}

} // namespace ValueTypes
} // namespace VarnholtMath
