#pragma once

// The calculation object. The host creates one per worksheet, sets its angle
// unit and switches, and asks it for results. Every function of the worksheet
// language that the engine computes is a member whose name ends in "_f"; it
// takes vhValue arguments and returns a vhValue, the undefined value on any
// failure. The members live in the source files of their subsystems.

#include <cstdint>
#include <vector>

#include "frame/catalogue.h"
#include "frame/switches.h"
#include "value/export.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// Unit of angles in the arguments and results of trigonometric functions.
// The conversions test for exactly 0 and exactly 2, so any other number
// behaves as radians.
enum AngleUnit : std::int32_t { angleDegrees = 0, angleRadians = 1, angleGradians = 2 };

enum MathUnitSystem : std::int32_t { unitSystemSI = 0, unitSystemUSCS = 1 };

class VH_EXPORT vhMath {
public:
    static const unsigned int filterSlots = 64;

    vhMath();
    vhMath(unsigned int decimals, AngleUnit unit);
    ~vhMath();
    // The filter slots are owned arrays: a calculation object is not copied.
    vhMath(const vhMath&) = delete;
    vhMath& operator=(const vhMath&) = delete;

    // --- settings ----------------------------------------------------------
    void setAngleUnit(AngleUnit unit);
    AngleUnit angleUnit() const;
    // Values above 14 are ignored.
    void setNumberOfDecimalPlaces(unsigned int decimals);
    unsigned int numberOfDecimalPlaces() const;
    void setConvertResultsToRadians(unsigned int n);
    unsigned int convertResultsToRadians() const;
    // The rule switches write this object's field and the process-wide
    // switch; the getters read the field.
    void setLimitsRulesOn(bool on);
    bool limitsRulesOn() const;
    void setTrigonometricRulesOn(bool on);
    bool trigonometricRulesOn() const;
    void setFractionsOn(bool on);
    bool fractionsOn() const;
    void setColectDividersOn(bool on);
    bool colectDividersOn() const;
    // Set by the host to abandon running work; the engine never clears it.
    void setStopCalculation(bool stop);
    bool stopCalculation() const;
    // Kept for the host; no computation reads it.
    void setPauseCalculation(bool pause);
    bool pauseCalculation() const;
    void setAppProcessEventsCallback(void (*callback)());
    void appProcessEvents();
    // True exactly when no events callback is installed.
    bool isInRuntime() const;
    int limitDepth() const;
    void setLimitDepth(int depth);

    // --- running filter state ------------------------------------------------
    void deinitializeFIRfilterBuffer();
    void deinitializeIIRfilterBuffer();

    // --- dividers --------------------------------------------------------------
    // Stores a symbolic divider once; anything else is ignored.
    void addDivider(const vhValue& v);
    std::vector<vhValue> dividersVector() const;
    void resetDividersVector();

    // --- members of the catalogue ------------------------------------------------
    vhValue InRuntime_f();
    vhValue SetDecPlaces_f(const vhValue& v);
    vhValue DecPlaces_f();
    vhValue staticValue_f(const vhValue& name, const vhValue& fallback);
    vhValue setStaticValue_f(const vhValue& name, const vhValue& value);
    vhValue joinMatrixRows_f(const vhValue& a, const vhValue& b);

    // --- equations and intervals ---
    vhValue equation_f(const vhValue& left, const vhValue& type, const vhValue& right);
    vhValue interval_f(const vhValue& start, const vhValue& startIncluded, const vhValue& end,
                       const vhValue& endIncluded);

    // --- elementwise functions ---------------------------------------------------
    // Trigonometric functions read the angle unit in their arguments, their
    // inverses give results in it. tan_f and cot_f set convertResultsToRadians
    // back to 0.
    vhValue sin_f(const vhValue& x);
    vhValue cos_f(const vhValue& x);
    vhValue tan_f(const vhValue& x);
    vhValue cot_f(const vhValue& x);
    vhValue sec_f(const vhValue& x);
    vhValue csc_f(const vhValue& x);
    vhValue acos_f(const vhValue& x);
    vhValue asin_f(const vhValue& x);
    vhValue atan_f(const vhValue& x);
    vhValue acot_f(const vhValue& x);
    vhValue asec_f(const vhValue& x);
    vhValue acsc_f(const vhValue& x);
    vhValue atan2_f(const vhValue& y, const vhValue& x);
    vhValue sinh_f(const vhValue& x);
    vhValue cosh_f(const vhValue& x);
    vhValue tanh_f(const vhValue& x);
    vhValue coth_f(const vhValue& x);
    vhValue sech_f(const vhValue& x);
    vhValue csch_f(const vhValue& x);
    vhValue acosh_f(const vhValue& x);
    vhValue asinh_f(const vhValue& x);
    vhValue atanh_f(const vhValue& x);
    vhValue acoth_f(const vhValue& x);
    vhValue asech_f(const vhValue& x);
    vhValue acsch_f(const vhValue& x);
    vhValue exp_f(const vhValue& x);
    vhValue exp2_f(const vhValue& x);
    vhValue expm1_f(const vhValue& x);
    vhValue log_f(const vhValue& x);
    vhValue log10_f(const vhValue& x);
    vhValue log2_f(const vhValue& x);
    vhValue log1p_f(const vhValue& x);
    vhValue logb_f(const vhValue& x);
    vhValue logax_f(const vhValue& a, const vhValue& x);
    vhValue pow_f(const vhValue& x, const vhValue& y);
    vhValue root_f(const vhValue& x, const vhValue& n);
    vhValue sqrt_f(const vhValue& x);
    vhValue cbrt_f(const vhValue& x);
    vhValue abs_f(const vhValue& x);
    vhValue fabs_f(const vhValue& x);
    vhValue sgn_f(const vhValue& x);
    vhValue sgnIm_f(const vhValue& x);
    vhValue ceil_f(const vhValue& x);
    vhValue floor_f(const vhValue& x);
    vhValue round_f(const vhValue& x);
    vhValue trunc_f(const vhValue& x);
    vhValue conj_f(const vhValue& x);
    vhValue frexp_f(const vhValue& x);
    vhValue modf_f(const vhValue& x);
    vhValue ldexp_f(const vhValue& x, const vhValue& y);
    vhValue scalbn_f(const vhValue& x, const vhValue& y);
    vhValue fmod_f(const vhValue& x, const vhValue& y);
    vhValue mod_f(const vhValue& x, const vhValue& y);
    vhValue remainder_f(const vhValue& x, const vhValue& y);
    vhValue remquo_f(const vhValue& x, const vhValue& y);
    vhValue fdim_f(const vhValue& x, const vhValue& y);
    vhValue fmax_f(const vhValue& x, const vhValue& y);
    vhValue fmin_f(const vhValue& x, const vhValue& y);
    vhValue max_f(const vhValue& x, const vhValue& y);
    vhValue min_f(const vhValue& x, const vhValue& y);
    vhValue hypot_f(const vhValue& x, const vhValue& y);
    vhValue nextafter_f(const vhValue& x, const vhValue& y);
    vhValue fact_f(const vhValue& n);
    vhValue factorial_f(const vhValue& n);
    vhValue heavyside_f(const vhValue& x);
    vhValue numofdigits_f(const vhValue& x);
    vhValue rand_f();
    vhValue epsilon_f();
    // abs_f(x), for a caller that compares it with the machine epsilon.
    vhValue epsilon_f(const vhValue& x);
    vhValue infinity_f();

    // --- special functions -------------------------------------------------------
    vhValue erf_f(const vhValue& x);
    vhValue erfc_f(const vhValue& x);
    vhValue lgamma_f(const vhValue& x);
    vhValue gamma_f(const vhValue& x);
    vhValue beta_f(const vhValue& x, const vhValue& y);
    vhValue zeta_f(const vhValue& p);
    vhValue struve_f(const vhValue& n, const vhValue& x);
    vhValue lambert_f(const vhValue& x);
    vhValue gausshypergeometric_f(const vhValue& a, const vhValue& b, const vhValue& c, const vhValue& z);
    vhValue BesselFirstKind_f(const vhValue& order, const vhValue& x);
    vhValue BesselFirstKindZero_f(const vhValue& order, const vhValue& index);
    vhValue BesselSecondKind_f(const vhValue& order, const vhValue& x);
    vhValue BesselSecondKindZero_f(const vhValue& order, const vhValue& index);
    vhValue ModifiedBesselFirstKind_f(const vhValue& order, const vhValue& x);
    vhValue ModifiedBesselSecondKind_f(const vhValue& order, const vhValue& x);
    vhValue SphericalBesselFirstKind_f(const vhValue& order, const vhValue& x);
    vhValue SphericalBesselSecondKind_f(const vhValue& order, const vhValue& x);
    vhValue bgamma_f(const vhValue& x);
    vhValue AiryAi_f(const vhValue& x);
    vhValue AiryAiZero_f(const vhValue& index);
    vhValue AiryBi_f(const vhValue& x);
    vhValue AiryBiZero_f(const vhValue& index);
    vhValue SphericalHarmonic_f(const vhValue& n, const vhValue& m, const vhValue& theta, const vhValue& phi);
    vhValue ExponentialIntegralEn_f(const vhValue& n, const vhValue& x);
    vhValue ExponentialIntegralEi_f(const vhValue& x);
    vhValue FresnelsIntegralS_f(const vhValue& x);
    vhValue FresnelsIntegralC_f(const vhValue& x);
    vhValue DawsonsIntegral_f(const vhValue& x);
    vhValue EllipticIntegralCarlsonRf_f(const vhValue& x, const vhValue& y, const vhValue& z);
    vhValue EllipticIntegralCarlsonRd_f(const vhValue& x, const vhValue& y, const vhValue& z);
    vhValue EllipticIntegralCarlsonRj_f(const vhValue& x, const vhValue& y, const vhValue& z, const vhValue& p);
    vhValue EllipticIntegralCarlsonRc_f(const vhValue& x, const vhValue& y);
    vhValue JacobiEllipticSn_f(const vhValue& k, const vhValue& u);
    vhValue JacobiEllipticCn_f(const vhValue& k, const vhValue& u);
    vhValue JacobiEllipticDn_f(const vhValue& k, const vhValue& u);
    vhValue JacobiCd_f(const vhValue& k, const vhValue& u);
    vhValue JacobiCn_f(const vhValue& k, const vhValue& u);
    vhValue JacobiCs_f(const vhValue& k, const vhValue& u);
    vhValue JacobiDc_f(const vhValue& k, const vhValue& u);
    vhValue JacobiDn_f(const vhValue& k, const vhValue& u);
    vhValue JacobiDs_f(const vhValue& k, const vhValue& u);
    vhValue JacobiNc_f(const vhValue& k, const vhValue& u);
    vhValue JacobiNd_f(const vhValue& k, const vhValue& u);
    vhValue JacobiNs_f(const vhValue& k, const vhValue& u);
    vhValue JacobiSc_f(const vhValue& k, const vhValue& u);
    vhValue JacobiSd_f(const vhValue& k, const vhValue& u);
    vhValue JacobiSn_f(const vhValue& k, const vhValue& u);
    vhValue FermiDirac_f(const vhValue& j, const vhValue& x);

    // --- host types ---
    // The registry of the host's types (value/type_registry.h), seen from the
    // worksheet language.
    vhValue DefinedTypes_f();
    vhValue TypeConstructors_f(const vhValue& name);
    vhValue TypeMembers_f(const vhValue& name);
    vhValue TypeMethods_f(const vhValue& name);
    vhValue TypeMethodArguments_f(const vhValue& name, const vhValue& method);
    // Creates an object of a registered type. The variable arguments are
    // const vhValue*: the type's name, then the n - 1 arguments (at most ten)
    // of the type's create function, which gets them in order. A null
    // argument arrives as the undefined value; the answer of create is
    // returned as it is.
    vhValue ObjectCreate_f(unsigned int n, ...);

    // --- fractions, division and substitution ---
    // The symbols of a value as a column vector, undefined when it has none.
    vhValue symbols_f(const vhValue& v);
    // Whether the value holds the plain symbol; undefined for anything else
    // as the second argument.
    vhValue containSymbol_f(const vhValue& v, const vhValue& symbol);
    // The value with symbols replaced: a plain symbol and one value, or two
    // vectors of equal size. Units are not replaced.
    vhValue replaceSymbols_f(const vhValue& v, const vhValue& symbols, const vhValue& values);

    // --- number theory and transforms ---
    // Whole-number functions compute in 32-bit signed integers that wrap
    // silently.
    vhValue gcd_f(const vhValue& x, const vhValue& y);
    vhValue gcde_f(const vhValue& x, const vhValue& y);
    vhValue lcm_f(const vhValue& x, const vhValue& y);
    // The inverse of x modulo p, in [0, |p|); 0 when there is none.
    vhValue pseudoinverse_f(const vhValue& p, const vhValue& x);
    vhValue chineserem_f(const vhValue& p, const vhValue& r);
    vhValue BinomialCoefficient_f(const vhValue& n, const vhValue& k);
    vhValue FibonaciNumber_f(const vhValue& n);
    vhValue CountPartitions_f(const vhValue& n);
    vhValue CountkPartitions_f(const vhValue& k, const vhValue& n);
    vhValue BellNumber_f(const vhValue& n);
    vhValue StirlingNumber1stKindSigned_f(const vhValue& n, const vhValue& k);
    vhValue StirlingNumber1stKindUnsigned_f(const vhValue& n, const vhValue& k);
    vhValue StirlingNumber2ndKind_f(const vhValue& n, const vhValue& k);
    vhValue PoissonCoefficient_f(const vhValue& l, const vhValue& k);
    vhValue isPrime_f(const vhValue& n);
    vhValue nextPrime_f(const vhValue& n);
    vhValue previousPrime_f(const vhValue& n);
    vhValue nthPrime_f(const vhValue& n);
    vhValue Factor_f(const vhValue& n, const vhValue& k);
    vhValue FactorUnique_f(const vhValue& n, const vhValue& k);
    bool isPrime(int n);
    // The prime factors of n in ascending order, all of them or the distinct
    // ones, at most maxFactors; false when the limit comes before the end.
    bool Factor(unsigned int n, std::vector<int>& out, unsigned int maxFactors, unsigned int& count);
    bool FactorUnique(unsigned int n, std::vector<int>& out, unsigned int maxFactors, unsigned int& count);
    // The Fourier kernel for a length n: 1 the power-of-two and chirp kernel
    // (for a prime factor above 10000), 2 the mixed-radix kernel, 0 none.
    int FFTChoose(unsigned int n);
    vhValue FFT1_f(const vhValue& v);
    vhValue FFTI1_f(const vhValue& v);
    vhValue FFT1N_f(const vhValue& v, const vhValue& n);
    vhValue FFTI1N_f(const vhValue& v, const vhValue& n);
    vhValue FFT2_f(const vhValue& m);
    vhValue FFTI2_f(const vhValue& m);
    vhValue FFT2N_f(const vhValue& m, const vhValue& rows, const vhValue& columns);
    vhValue FFTI2N_f(const vhValue& m, const vhValue& rows, const vhValue& columns);
    vhValue FFT1M_f(const vhValue& v);
    vhValue FFT1Old_f(const vhValue& v);
    vhValue FFTShift_f(const vhValue& v);
    vhValue DCT1_f(const vhValue& v, const vhValue& n);
    // Runs its transform on a worker thread and polls the stop flag.
    vhValue DCTI1_f(const vhValue& v, const vhValue& n);
    vhValue dct1_f(const vhValue& x, const vhValue& n);
    vhValue idct1_f(const vhValue& x, const vhValue& n);
    vhValue fwht_f(const vhValue& X, const vhValue& n, const vhValue& order);
    vhValue ifwht_f(const vhValue& Y, const vhValue& n, const vhValue& order);
    vhValue flip_f(const vhValue& v, const vhValue& direction);
    vhValue complexRe_f(const vhValue& z);

    // --- images ---
    // Pixels are packed words: blue in bits 0-7, green 8-15, red 16-23,
    // alpha 24-31. Members that read pixels need a matrix with image storage.
    vhValue IsImage_f(const vhValue& v);
    vhValue ImageWidth_f(const vhValue& image);
    vhValue ImageHeight_f(const vhValue& image);
    vhValue ImageDPI_f(const vhValue& image);
    vhValue ImageSetDPI_f(const vhValue& image, const vhValue& dpi);
    vhValue ImageCreate_f(const vhValue& width, const vhValue& height);
    vhValue ImageFill_f(const vhValue& shape, const vhValue& pixel);
    vhValue ImageRed_f(const vhValue& image);
    vhValue ImageGreen_f(const vhValue& image);
    vhValue ImageBlue_f(const vhValue& image);
    vhValue ImageAlpha_f(const vhValue& image);
    vhValue ImageBGRA_f(const vhValue& blue, const vhValue& green, const vhValue& red, const vhValue& alpha);
    vhValue ImageRedMul_f(const vhValue& image, const vhValue& factor);
    vhValue ImageGreenMul_f(const vhValue& image, const vhValue& factor);
    vhValue ImageBlueMul_f(const vhValue& image, const vhValue& factor);
    vhValue ImageAlphaMul_f(const vhValue& image, const vhValue& factor);
    vhValue ToRed_f(const vhValue& pixel);
    vhValue ToGreen_f(const vhValue& pixel);
    vhValue ToBlue_f(const vhValue& pixel);
    vhValue ToAlpha_f(const vhValue& pixel);
    vhValue ToBGRA_f(const vhValue& blue, const vhValue& green, const vhValue& red, const vhValue& alpha);
    vhValue Image2Matrix_f(const vhValue& image);
    vhValue Matrix2Image_f(const vhValue& matrix);
    // The 3 x 3 filters and the median filter run the events callback between
    // rows and give the undefined value when the host stops the calculation.
    vhValue ImageFilter_f(const vhValue& image, const vhValue& kernel);
    vhValue ImageSmooth_f(const vhValue& image);
    vhValue ImageEdge_f(const vhValue& image);
    vhValue ImageMblur_f(const vhValue& image);
    vhValue ImageSharpen_f(const vhValue& image);
    vhValue ImageRaised_f(const vhValue& image);
    vhValue ImageMedian_f(const vhValue& image, const vhValue& size);
    vhValue ImageAbsDiff_f(const vhValue& a, const vhValue& b);
    vhValue ImageMsePsnr_f(const vhValue& a, const vhValue& b);

    // --- filter design and running filters ---
    // Windows and windowed-sinc FIR designs: numeric column vectors.
    vhValue makeWindow_f(const vhValue& name, const vhValue& size);
    vhValue FIRlowpass_f(const vhValue& cutoff, const vhValue& rate, const vhValue& order, const vhValue& window);
    vhValue FIRhighpass_f(const vhValue& cutoff, const vhValue& rate, const vhValue& order, const vhValue& window);
    vhValue FIRbandpass_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                          const vhValue& window);
    vhValue FIRbandstop_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                          const vhValue& window);
    vhValue FIRhilbert_f(const vhValue& start, const vhValue& end, const vhValue& rate, const vhValue& order,
                         const vhValue& window);
    // The signal through the low-pass, its length and orientation kept.
    vhValue FIRFILlowpass_f(const vhValue& signal, const vhValue& cutoff, const vhValue& rate, const vhValue& order,
                            const vhValue& window);
    // Running filters over numbered slots (0..63) that keep the history
    // between blocks. Only Init's overflow answers false.
    vhValue InitFIRFilter_f(const vhValue& slot, const vhValue& blockSize, const vhValue& taps);
    vhValue FIRFilter_f(const vhValue& slot, const vhValue& block, const vhValue& coefficients);
    vhValue InitIIRFilter_f(const vhValue& slot, const vhValue& taps);
    vhValue IIRFilter_f(const vhValue& slot, const vhValue& block, const vhValue& denominator,
                        const vhValue& numerator);
    vhValue MovingAverage_f(const vhValue& x, const vhValue& window);
    // [y, e, w]: output and error shaped as the signal, weights a column.
    vhValue LMSAdaptive_f(const vhValue& desired, const vhValue& input, const vhValue& mu, const vhValue& length);
    // Read-only views of the slots for the host: null and 0 when free or out
    // of range.
    const double* firFilterBuffer(int slot) const;
    unsigned int firFilterBufferSize(int slot) const;
    const double* iirFilterBuffer(int slot) const;
    unsigned int iirFilterBufferSize(int slot) const;
    // IIR designs: a matrix, numerator in column 0, denominator (a[0] = 1) in
    // column 1. The kind is "low"/"high" or "pass"/"stop", or 0/1.
    vhValue buttlowhigh_f(const vhValue& order, const vhValue& kind, const vhValue& cutoff, const vhValue& rate);
    vhValue buttband_f(const vhValue& order, const vhValue& kind, const vhValue& start, const vhValue& end,
                       const vhValue& rate);
    vhValue cheby1lohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge, const vhValue& ripple,
                         const vhValue& rate);
    vhValue cheby1band_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                         const vhValue& ripple, const vhValue& rate);
    vhValue cheby2lohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge, const vhValue& attenuation,
                         const vhValue& rate);
    vhValue cheby2band_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                         const vhValue& attenuation, const vhValue& rate);
    vhValue elliplohi_f(const vhValue& order, const vhValue& kind, const vhValue& edge, const vhValue& ripple,
                        const vhValue& attenuation, const vhValue& rate);
    vhValue ellipband_f(const vhValue& order, const vhValue& kind, const vhValue& lower, const vhValue& upper,
                        const vhValue& ripple, const vhValue& attenuation, const vhValue& rate);
    // Responses at w_k = k pi omega / size, k < size: magnitudes clipped
    // below at 1e-12; delays in samples with omega 1.
    vhValue FIRFreqResponse_f(const vhValue& coefficients, const vhValue& size, const vhValue& omega);
    vhValue IIRFreqResponse_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size,
                              const vhValue& omega);
    vhValue iirgroupdelay_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size);
    vhValue iirphasedelay_f(const vhValue& denominator, const vhValue& numerator, const vhValue& size);
    // Equiripple FIR by the Parks-McClellan exchange; type 0 ordinary, 1
    // differentiator, 2 Hilbert.
    vhValue firopt_f(const vhValue& length, const vhValue& bands, const vhValue& edges, const vhValue& responses,
                     const vhValue& weights, const vhValue& type, const vhValue& density);
    vhValue firoptord_f(const vhValue& passEdge, const vhValue& stopEdge, const vhValue& passRipple,
                        const vhValue& stopRipple, const vhValue& rate);
    vhValue firfreqsampl_f(const vhValue& samples, const vhValue& count, const vhValue& type, const vhValue& length);

    // --- distributions, random numbers and statistics ---
    // Descriptive statistics: one number from the numbers of a vector or
    // matrix; the row and column forms give one per row or column.
    vhValue average_f(const vhValue& v);
    vhValue RowsAverage_f(const vhValue& v);
    vhValue ColumnsAverage_f(const vhValue& v);
    vhValue variance_f(const vhValue& v);
    vhValue rowVariance_f(const vhValue& v);
    vhValue columnVariance_f(const vhValue& v);
    vhValue varianceSample_f(const vhValue& v);
    vhValue deviation_f(const vhValue& v);
    vhValue RowsDeviation_f(const vhValue& v);
    vhValue ColumnsDeviation_f(const vhValue& v);
    vhValue deviationSample_f(const vhValue& v);
    vhValue rowDeviationSample_f(const vhValue& v);
    vhValue columnDeviationSample_f(const vhValue& v);
    vhValue avgdev_f(const vhValue& v);
    vhValue rowAvgdev_f(const vhValue& v);
    vhValue columnAvgdev_f(const vhValue& v);
    vhValue asymmetry_f(const vhValue& v);
    vhValue rowAsymmetry_f(const vhValue& v);
    vhValue columnAsymmetry_f(const vhValue& v);
    vhValue median_f(const vhValue& v);
    vhValue rowMedian_f(const vhValue& v);
    vhValue columnMedian_f(const vhValue& v);
    vhValue modus_f(const vhValue& v);
    vhValue rowModus_f(const vhValue& v);
    vhValue columnModus_f(const vhValue& v);
    vhValue trimmean_f(const vhValue& v, const vhValue& percentage);
    vhValue rowTrimmean_f(const vhValue& v, const vhValue& percentage);
    vhValue columnTrimmean_f(const vhValue& v, const vhValue& percentage);
    vhValue percentile_f(const vhValue& v, const vhValue& percentage);
    vhValue rowPercentile_f(const vhValue& v, const vhValue& percentage);
    vhValue columnPercentile_f(const vhValue& v, const vhValue& percentage);
    vhValue autocorrelation_f(const vhValue& v, const vhValue& lag);
    vhValue rowAutocorrelation_f(const vhValue& v, const vhValue& lag);
    vhValue columnAutocorrelation_f(const vhValue& v, const vhValue& lag);
    vhValue correlation_f(const vhValue& a, const vhValue& b);
    vhValue rowCorrelation_f(const vhValue& a, const vhValue& b);
    vhValue columnCorrelation_f(const vhValue& a, const vhValue& b);
    vhValue covariance_f(const vhValue& a, const vhValue& b);
    vhValue rowCovariance_f(const vhValue& a, const vhValue& b);
    vhValue columnCovariance_f(const vhValue& a, const vhValue& b);
    vhValue MeanSquareError_f(const vhValue& a, const vhValue& b);
    vhValue MeanAbsoluteError_f(const vhValue& a, const vhValue& b);
    vhValue MeanPercentageError_f(const vhValue& a, const vhValue& b);
    vhValue MeanAbsolutePercentageError_f(const vhValue& a, const vhValue& b);
    // Probability distributions: density, cumulative function and inverse of
    // each family; x first, then the parameters. Arrays of x are mapped.
    vhValue tdens_f(const vhValue& t, const vhValue& df);
    vhValue tdist_f(const vhValue& t, const vhValue& df);
    vhValue tinv_f(const vhValue& p, const vhValue& df);
    vhValue chidens_f(const vhValue& x, const vhValue& df);
    vhValue chidist_f(const vhValue& x, const vhValue& df);
    vhValue chiinv_f(const vhValue& p, const vhValue& df);
    vhValue poissondens_f(const vhValue& k, const vhValue& rate);
    vhValue poissondist_f(const vhValue& k, const vhValue& rate);
    vhValue poissoninv_f(const vhValue& p, const vhValue& rate);
    vhValue geometricdens_f(const vhValue& k, const vhValue& p);
    vhValue geometricdist_f(const vhValue& k, const vhValue& p);
    vhValue geometricinv_f(const vhValue& q, const vhValue& p);
    vhValue logarithmicdens_f(const vhValue& k, const vhValue& p);
    vhValue logarithmicdist_f(const vhValue& k, const vhValue& p);
    vhValue logarithmicinv_f(const vhValue& q, const vhValue& p);
    vhValue exponentialdens_f(const vhValue& x, const vhValue& rate);
    vhValue exponentialdist_f(const vhValue& x, const vhValue& rate);
    vhValue exponentialinv_f(const vhValue& p, const vhValue& rate);
    vhValue normaldens_f(const vhValue& x, const vhValue& mean, const vhValue& sigma);
    vhValue normaldist_f(const vhValue& x, const vhValue& mean, const vhValue& sigma);
    vhValue normalinv_f(const vhValue& p, const vhValue& mean, const vhValue& sigma);
    vhValue gammadens_f(const vhValue& x, const vhValue& shape, const vhValue& scale);
    vhValue gammadist_f(const vhValue& x, const vhValue& shape, const vhValue& scale);
    vhValue gammainv_f(const vhValue& p, const vhValue& shape, const vhValue& scale);
    vhValue betadens_f(const vhValue& x, const vhValue& a, const vhValue& b);
    vhValue betadist_f(const vhValue& x, const vhValue& a, const vhValue& b);
    vhValue betainv_f(const vhValue& p, const vhValue& a, const vhValue& b);
    vhValue fdens_f(const vhValue& x, const vhValue& d1, const vhValue& d2);
    vhValue fdist_f(const vhValue& x, const vhValue& d1, const vhValue& d2);
    vhValue finv_f(const vhValue& p, const vhValue& d1, const vhValue& d2);
    vhValue dblexponentialdens_f(const vhValue& x, const vhValue& location, const vhValue& scale);
    vhValue dblexponentialdist_f(const vhValue& x, const vhValue& location, const vhValue& scale);
    vhValue dblexponentialinv_f(const vhValue& p, const vhValue& location, const vhValue& scale);
    vhValue cauchydens_f(const vhValue& x, const vhValue& location, const vhValue& scale);
    vhValue cauchydist_f(const vhValue& x, const vhValue& location, const vhValue& scale);
    vhValue cauchyinv_f(const vhValue& p, const vhValue& location, const vhValue& scale);
    // The twelve families by name ("normal", "t", "chi", "gamma", "beta", "f",
    // "poisson", "geometric", "logarithmic", "exponential", "dblexponential",
    // "cauchy", any case); b is left out for the families of one parameter.
    vhValue dens_f(const vhValue& family, const vhValue& x, const vhValue& a, const vhValue& b = vhValue());
    vhValue dist_f(const vhValue& family, const vhValue& x, const vhValue& a, const vhValue& b = vhValue());
    vhValue inv_f(const vhValue& family, const vhValue& p, const vhValue& a, const vhValue& b = vhValue());
    // Random numbers, vectors (columns) and matrices of thirteen
    // distributions, all drawn from one process-wide uniform stream.
    vhValue uRandNum_f(const vhValue& a, const vhValue& b);
    vhValue uRandVec_f(const vhValue& a, const vhValue& b, const vhValue& size);
    vhValue uRandMat_f(const vhValue& a, const vhValue& b, const vhValue& rows, const vhValue& columns);
    vhValue normRandNum_f(const vhValue& mean, const vhValue& deviation);
    vhValue normRandVec_f(const vhValue& mean, const vhValue& deviation, const vhValue& size);
    vhValue normRandMat_f(const vhValue& mean, const vhValue& deviation, const vhValue& rows, const vhValue& columns);
    vhValue expRandNum_f(const vhValue& rate);
    vhValue expRandVec_f(const vhValue& rate, const vhValue& size);
    vhValue expRandMat_f(const vhValue& rate, const vhValue& rows, const vhValue& columns);
    vhValue dblexpRandNum_f(const vhValue& rate);
    vhValue dblexpRandVec_f(const vhValue& rate, const vhValue& size);
    vhValue dblexpRandMat_f(const vhValue& rate, const vhValue& rows, const vhValue& columns);
    vhValue gammaRandNum_f(const vhValue& shape, const vhValue& scale);
    vhValue gammaRandVec_f(const vhValue& shape, const vhValue& scale, const vhValue& size);
    vhValue gammaRandMat_f(const vhValue& shape, const vhValue& scale, const vhValue& rows, const vhValue& columns);
    vhValue betaRandNum_f(const vhValue& a, const vhValue& b);
    vhValue betaRandVec_f(const vhValue& a, const vhValue& b, const vhValue& size);
    vhValue betaRandMat_f(const vhValue& a, const vhValue& b, const vhValue& rows, const vhValue& columns);
    vhValue chi2RandNum_f(const vhValue& df);
    vhValue chi2RandVec_f(const vhValue& df, const vhValue& size);
    vhValue chi2RandMat_f(const vhValue& df, const vhValue& rows, const vhValue& columns);
    vhValue cauchyRandNum_f(const vhValue& scale, const vhValue& location);
    vhValue cauchyRandVec_f(const vhValue& scale, const vhValue& location, const vhValue& size);
    vhValue cauchyRandMat_f(const vhValue& scale, const vhValue& location, const vhValue& rows, const vhValue& columns);
    vhValue fRandNum_f(const vhValue& d1, const vhValue& d2);
    vhValue fRandVec_f(const vhValue& d1, const vhValue& d2, const vhValue& size);
    vhValue fRandMat_f(const vhValue& d1, const vhValue& d2, const vhValue& rows, const vhValue& columns);
    vhValue tRandNum_f(const vhValue& df);
    vhValue tRandVec_f(const vhValue& df, const vhValue& size);
    vhValue tRandMat_f(const vhValue& df, const vhValue& rows, const vhValue& columns);
    vhValue poissonRandNum_f(const vhValue& rate);
    vhValue poissonRandVec_f(const vhValue& rate, const vhValue& size);
    vhValue poissonRandMat_f(const vhValue& rate, const vhValue& rows, const vhValue& columns);
    vhValue geometricRandNum_f(const vhValue& p);
    vhValue geometricRandVec_f(const vhValue& p, const vhValue& size);
    vhValue geometricRandMat_f(const vhValue& p, const vhValue& rows, const vhValue& columns);
    vhValue logarithmicRandNum_f(const vhValue& p);
    vhValue logarithmicRandVec_f(const vhValue& p, const vhValue& size);
    vhValue logarithmicRandMat_f(const vhValue& p, const vhValue& rows, const vhValue& columns);

    // --- decompositions and linear equations ---
    // Decompositions of a numeric matrix, computed in complex arithmetic.
    // A member with several factors returns them as a row vector of
    // matrices; the members named after one factor return that element.
    vhValue decLU_f(const vhValue& A);
    vhValue decLUL_f(const vhValue& A);
    vhValue decLUU_f(const vhValue& A);
    vhValue decLUPQ_f(const vhValue& A);
    vhValue decLUPQL_f(const vhValue& A);
    vhValue decLUPQU_f(const vhValue& A);
    vhValue decLUPQP_f(const vhValue& A);
    vhValue decLUPQQ_f(const vhValue& A);
    vhValue decQR_f(const vhValue& A);
    vhValue decQRQ_f(const vhValue& A);
    vhValue decQRR_f(const vhValue& A);
    vhValue decQRP_f(const vhValue& A);
    vhValue decQRPQ_f(const vhValue& A);
    vhValue decQRPR_f(const vhValue& A);
    vhValue decQRPP_f(const vhValue& A);
    vhValue decHessenberg_f(const vhValue& A);
    vhValue decHessenbergH_f(const vhValue& A);
    vhValue decHessenbergQ_f(const vhValue& A);
    vhValue decCholesky_f(const vhValue& A);
    vhValue decCholeskyLDP_f(const vhValue& A);
    vhValue decCholeskyLDPL_f(const vhValue& A);
    vhValue decCholeskyLDPD_f(const vhValue& A);
    vhValue decCholeskyLDPP_f(const vhValue& A);
    vhValue decSVD_f(const vhValue& A);
    vhValue decSVDU_f(const vhValue& A);
    vhValue decSVDS_f(const vhValue& A);
    vhValue decSVDV_f(const vhValue& A);
    vhValue characteristicPolynomialRoots_f(const vhValue& A);
    vhValue diagonalization_f(const vhValue& A);
    vhValue diagonalizationD_f(const vhValue& A);
    vhValue diagonalizationP_f(const vhValue& A);
    vhValue eigenVectors_f(const vhValue& A);
    vhValue rank_f(const vhValue& A);
    vhValue charpoly_f(const vhValue& A, const vhValue& symbol);
    vhValue matRREForm_f(const vhValue& A);
    vhValue matrixDeterminant_f(const vhValue& A);
    vhValue isHermitian_f(const vhValue& A);
    vhValue positiveDefinite_f(const vhValue& A);
    // Systems of linear equations "==" in as many unknowns as equations.
    vhValue linsolve_f(const vhValue& equation, const vhValue& symbol);
    vhValue linsolvesys_f(const vhValue& equations, const vhValue& symbols);
    vhValue linSysMatrix_f(const vhValue& equations, const vhValue& symbols);
    vhValue linSysTerms_f(const vhValue& equations, const vhValue& symbols);
    vhValue linSysSplit_f(const vhValue& equations, const vhValue& symbols);

    // --- finance, coordinates, geometry, conversions and chemistry ---
    // Conversions of bases, units and angles; bits of integers.
    vhValue Decimal2Binary_f(const vhValue& x);
    vhValue Binary2Decimal_f(const vhValue& x);
    vhValue Decimal2Hexadecimal_f(const vhValue& x);
    vhValue Hexadecimal2Decimal_f(const vhValue& x);
    vhValue Binary2Hexadecimal_f(const vhValue& x);
    vhValue Hexadecimal2Binary_f(const vhValue& x);
    vhValue Newton2Pound_f(const vhValue& x);
    vhValue Pound2Newton_f(const vhValue& x);
    vhValue Meter2Foot_f(const vhValue& x);
    vhValue Foot2Meter_f(const vhValue& x);
    vhValue Kilo2Pound_f(const vhValue& x);
    vhValue Pound2Kilo_f(const vhValue& x);
    vhValue Celsius2Fahrenheit_f(const vhValue& x);
    vhValue Fahrenheit2Celsius_f(const vhValue& x);
    vhValue grad2deg_f(const vhValue& x);
    vhValue deg2grad_f(const vhValue& x);
    vhValue isBitActive_f(const vhValue& x, const vhValue& position);
    vhValue setBit_f(const vhValue& x, const vhValue& position, const vhValue& on);
    // Values, strings and complex numbers.
    vhValue typeName_f(const vhValue& x);
    vhValue toString_f(const vhValue& x);
    vhValue toNumber_f(const vhValue& x);
    vhValue strlen_f(const vhValue& x);
    vhValue strat_f(const vhValue& x, const vhValue& position);
    vhValue complex_f(const vhValue& re, const vhValue& im);
    vhValue complexImg_f(const vhValue& z);
    vhValue phangle_f(const vhValue& z);
    vhValue row2Vector_f(const vhValue& x, const vhValue& row);
    vhValue matrixSDiv_f(const vhValue& a, const vhValue& b);
    vhValue timeNow_f();
    // Coordinates; angles in the worksheet's angle unit.
    vhValue cartesian2polar_f(const vhValue& x, const vhValue& y);
    vhValue cartesian2polarR_f(const vhValue& x, const vhValue& y);
    vhValue cartesian2polarF_f(const vhValue& x, const vhValue& y);
    vhValue polar2cartesian_f(const vhValue& r, const vhValue& phi);
    vhValue polar2cartesianX_f(const vhValue& r, const vhValue& phi);
    vhValue polar2cartesianY_f(const vhValue& r, const vhValue& phi);
    vhValue cartesian2sphere_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2sphereR_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2sphereF_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2sphereT_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cartesian_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cartesianX_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cartesianY_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cartesianZ_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2cylinder_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2cylinderR_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2cylinderF_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cartesian2cylinderZ_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2cartesian_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2cartesianX_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2cartesianY_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2cartesianZ_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2sphere_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2sphereR_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2sphereF_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue cylinder2sphereT_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cylinder_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cylinderR_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cylinderF_f(const vhValue& a, const vhValue& b, const vhValue& c);
    vhValue sphere2cylinderZ_f(const vhValue& a, const vhValue& b, const vhValue& c);
    // Finance: rates and periods per period, cash paid out negative.
    vhValue presentvalue_f(const vhValue& rate, const vhValue& periods, const vhValue& payment, const vhValue& futureValue);
    vhValue futurevalue_f(const vhValue& rate, const vhValue& periods, const vhValue& payment, const vhValue& presentValue);
    vhValue annualpayment_f(const vhValue& rate, const vhValue& periods, const vhValue& presentValue);
    vhValue interestpayment_f(const vhValue& rate, const vhValue& period, const vhValue& periods, const vhValue& presentValue);
    vhValue capitalpayment_f(const vhValue& rate, const vhValue& period, const vhValue& periods, const vhValue& presentValue);
    vhValue rate_f(const vhValue& periods, const vhValue& payment, const vhValue& presentValue);
    vhValue numberofperiods_f(const vhValue& rate, const vhValue& payment, const vhValue& presentValue);
    vhValue bondprice_f(const vhValue& coupon, const vhValue& yield, const vhValue& periods);
    vhValue bondyieldtomaturity_f(const vhValue& price, const vhValue& coupon, const vhValue& periods);
    vhValue bondduration_f(const vhValue& coupon, const vhValue& yield, const vhValue& periods);
    vhValue bonddurationmodified_f(const vhValue& coupon, const vhValue& yield, const vhValue& years, const vhValue& paymentsPerYear);
    vhValue bondconvexity_f(const vhValue& coupon, const vhValue& yield, const vhValue& periods);
    vhValue bondaccuredinterest_f(const vhValue& coupon, const vhValue& daysSinceCoupon, const vhValue& daysInPeriod);
    // Geometry of the plane and of space, and vectors.
    vhValue areColinear_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2, const vhValue& x3, const vhValue& y3);
    vhValue areComplanar_f(const vhValue& x1, const vhValue& y1, const vhValue& z1, const vhValue& x2, const vhValue& y2, const vhValue& z2, const vhValue& x3, const vhValue& y3, const vhValue& z3, const vhValue& x4, const vhValue& y4, const vhValue& z4);
    vhValue areCocyclic_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2, const vhValue& x3, const vhValue& y3, const vhValue& x4, const vhValue& y4);
    vhValue areConcurent_f(const vhValue& k1, const vhValue& n1, const vhValue& k2, const vhValue& n2, const vhValue& k3, const vhValue& n3);
    vhValue anglebtwlines_f(const vhValue& k1, const vhValue& k2);
    vhValue areaofTriangle_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2, const vhValue& x3, const vhValue& y3);
    vhValue angle_f(const vhValue& x1, const vhValue& y1, const vhValue& x2, const vhValue& y2, const vhValue& x3, const vhValue& y3);
    vhValue PlotArc_f(const vhValue& circle, const vhValue& angles);
    vhValue PlotCircle_f(const vhValue& centre, const vhValue& radius);
    vhValue volumeOfTetrahedron_f(const vhValue& x1, const vhValue& y1, const vhValue& z1, const vhValue& x2, const vhValue& y2, const vhValue& z2, const vhValue& x3, const vhValue& y3, const vhValue& z3, const vhValue& x4, const vhValue& y4, const vhValue& z4);
    vhValue norm_f(const vhValue& a);
    vhValue vecangle_f(const vhValue& a, const vhValue& b);
    vhValue areOrthogonal_f(const vhValue& a, const vhValue& b);
    vhValue scalproj_f(const vhValue& a, const vhValue& b);
    vhValue vecproj_f(const vhValue& a, const vhValue& b);
    vhValue crossprod_f(const vhValue& a, const vhValue& b);
    vhValue dotprod_f(const vhValue& a, const vhValue& b);
    vhValue vecareaofParal3D_f(const vhValue& a, const vhValue& b);
    vhValue vecareaofTriangle3D_f(const vhValue& a, const vhValue& b);
    vhValue areaofParal3D_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC);
    vhValue areaofTriangle3D_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC);
    vhValue distPointLine_f(const vhValue& xP, const vhValue& yP, const vhValue& zP, const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB);
    vhValue planeVector_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC);
    vhValue intersecLinePlane_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD, const vhValue& xE, const vhValue& yE, const vhValue& zE);
    vhValue intersecPlanes_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD, const vhValue& xE, const vhValue& yE, const vhValue& zE, const vhValue& xF, const vhValue& yF, const vhValue& zF);
    vhValue intersecTriangles_f(const vhValue& xA, const vhValue& yA, const vhValue& zA, const vhValue& xB, const vhValue& yB, const vhValue& zB, const vhValue& xC, const vhValue& yC, const vhValue& zC, const vhValue& xD, const vhValue& yD, const vhValue& zD, const vhValue& xE, const vhValue& yE, const vhValue& zE, const vhValue& xF, const vhValue& yF, const vhValue& zF);
    vhValue surfaceIntersection_f(const vhValue& first, const vhValue& second);
    // Chemistry: coefficients of a reaction from its element-count matrix.
    vhValue chemSolver_f(const vhValue& reactionMatrix);

private:
    void (*m_appProcessEventsCallback)();
    AngleUnit m_angleUnit;
    bool m_stopCalculation;
    bool m_pauseCalculation;
    unsigned int m_numberOfDecimalPlaces;
    unsigned int m_convertResultsToRadians;
    bool m_limitsRulesOn;
    bool m_trigonometricRulesOn;
    bool m_fractionsOn;
    int m_limitDepth;
    bool m_colectDividersOn;
    std::vector<vhValue> m_dividers;
    vhValue m_staticValues;
    double* m_firFilterBuffers[filterSlots];
    unsigned int m_firFilterBufferSizes[filterSlots];
    double* m_iirFilterBuffers[filterSlots];
    unsigned int m_iirFilterBufferSizes[filterSlots];

    // The background transform: one job at a time. fftJobsRunning is 1
    // while the worker runs; it is read and written atomically.
    std::int32_t fftJobsRunning = 0;
    std::int32_t fftSize = 0;
    bool fftInverse = false;
    double* fftInRe = nullptr;
    double* fftInIm = nullptr;
    double* fftOutRe = nullptr;
    double* fftOutIm = nullptr;
    // The worker thread and the job's arrays, which outlive an abandoned call.
    struct FourierWorker;
    FourierWorker* m_fourierWorker = nullptr;
    void runFourierJob();
    // Waits for a started worker and releases it; the destructor calls it.
    void finishFourierJob();
};

// Calls the member of the catalogue row id with the arguments. The count of
// arguments must be the catalogue's; the member checks their types. A null
// math object, a wrong count or a row that the engine does not compute give
// the undefined value.
VH_EXPORT vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments);

} // namespace ValueTypes
} // namespace VarnholtMath
