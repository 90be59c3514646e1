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
    // (end of host types)

    // --- fractions, division and substitution ---
    // The symbols of a value as a column vector, undefined when it has none.
    vhValue symbols_f(const vhValue& v);
    // Whether the value holds the plain symbol; undefined for anything else
    // as the second argument.
    vhValue containSymbol_f(const vhValue& v, const vhValue& symbol);
    // The value with symbols replaced: a plain symbol and one value, or two
    // vectors of equal size. Units are not replaced.
    vhValue replaceSymbols_f(const vhValue& v, const vhValue& symbols, const vhValue& values);
    // (end of fractions, division and substitution)

    // --- number theory and transforms ---
    // (end of number theory and transforms)

    // --- images ---
    // (end of images)

    // --- filter design and running filters ---
    // (end of filter design and running filters)

    // --- distributions, random numbers, statistics and numeric calculus ---
    // (end of distributions, random numbers, statistics and numeric calculus)

    // --- decompositions and linear equations ---
    // (end of decompositions and linear equations)

    // --- finance, coordinates, geometry, conversions and chemistry ---
    // (end of finance, coordinates, geometry, conversions and chemistry)

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

    // --- state: host types ---
    // (end of state: host types)

    // --- state: fractions, division and substitution ---
    // (end of state: fractions, division and substitution)

    // --- state: number theory and transforms ---
    // (end of state: number theory and transforms)

    // --- state: images ---
    // (end of state: images)

    // --- state: filter design and running filters ---
    // (end of state: filter design and running filters)

    // --- state: distributions, random numbers, statistics and numeric calculus ---
    // (end of state: distributions, random numbers, statistics and numeric calculus)

    // --- state: decompositions and linear equations ---
    // (end of state: decompositions and linear equations)

    // --- state: finance, coordinates, geometry, conversions and chemistry ---
    // (end of state: finance, coordinates, geometry, conversions and chemistry)
};

// Calls the member of the catalogue row id with the arguments. The count of
// arguments must be the catalogue's; the member checks their types. A null
// math object, a wrong count or a row that the engine does not compute give
// the undefined value.
VH_EXPORT vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments);

} // namespace ValueTypes
} // namespace VarnholtMath
