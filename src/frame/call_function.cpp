// The door by number: a catalogue row and its arguments become one member
// call of vhMath. This is the one table of cases; every member that the
// engine reaches by number has its case here.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

// The caller's arguments as the cases read them. a[i] is the caller's own
// value, handed on without a copy: the members take their arguments by const
// reference and keep none. An index past the count reads the undefined value.
class ArgumentList {
public:
    explicit ArgumentList(const std::vector<vhValue>& arguments)
        : m_data(arguments.data()), m_size(arguments.size())
    {
    }
    const vhValue& operator[](std::size_t i) const { return i < m_size ? m_data[i] : undefinedValue(); }

private:
    static const vhValue& undefinedValue()
    {
        static const vhValue undefined;
        return undefined;
    }
    const vhValue* m_data;
    std::size_t m_size;
};

} // namespace

vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments)
{
    if (!math)
        return vhValue();
    // The count must be the catalogue's; there is no variable argument count
    // in this door. The unknown numbers 56 and 425 throw from here.
    if (numberOfFunctionArguments(id) != arguments.size())
        return vhValue();

    vhValue result;
    const ArgumentList a(arguments);

    // Operators, constructors, constants, statements and the newest rows
    // have no case here.
    if (id < 20 || id > 1125)
        return result;

    switch (id) {
    case nt_staticValue:
        result = math->staticValue_f(a[0], a[1]);
        break;
    case nt_setStaticValue:
        result = math->setStaticValue_f(a[0], a[1]);
        break;
    case nt_InRuntime:
        result = math->InRuntime_f();
        break;
    case nt_SetDecPlaces:
        result = math->SetDecPlaces_f(a[0]);
        break;
    case nt_DecPlaces:
        result = math->DecPlaces_f();
        break;
    // --- elementwise and special functions ---
    case nt_pow:
    case nt_pow22:
        result = math->pow_f(a[0], a[1]);
        break;
    case nt_abs:
    case nt_abs24:
        result = math->abs_f(a[0]);
        break;
    case nt_factorial:
        result = math->factorial_f(a[0]);
        break;
    case nt_acos:
        result = math->acos_f(a[0]);
        break;
    case nt_asin:
        result = math->asin_f(a[0]);
        break;
    case nt_atan:
        result = math->atan_f(a[0]);
        break;
    case nt_ceil:
        result = math->ceil_f(a[0]);
        break;
    case nt_cos:
        result = math->cos_f(a[0]);
        break;
    case nt_cosh:
        result = math->cosh_f(a[0]);
        break;
    case nt_fabs:
        result = math->fabs_f(a[0]);
        break;
    case nt_floor:
        result = math->floor_f(a[0]);
        break;
    case nt_log:
        result = math->log_f(a[0]);
        break;
    case nt_log10:
        result = math->log10_f(a[0]);
        break;
    case nt_log2:
        result = math->log2_f(a[0]);
        break;
    case nt_log1p:
        result = math->log1p_f(a[0]);
        break;
    case nt_sin:
        result = math->sin_f(a[0]);
        break;
    case nt_sinh:
        result = math->sinh_f(a[0]);
        break;
    case nt_tan:
        result = math->tan_f(a[0]);
        break;
    case nt_cot:
        result = math->cot_f(a[0]);
        break;
    case nt_tanh:
        result = math->tanh_f(a[0]);
        break;
    case nt_acosh:
        result = math->acosh_f(a[0]);
        break;
    case nt_asinh:
        result = math->asinh_f(a[0]);
        break;
    case nt_atanh:
        result = math->atanh_f(a[0]);
        break;
    case nt_cbrt:
        result = math->cbrt_f(a[0]);
        break;
    case nt_exp2:
        result = math->exp2_f(a[0]);
        break;
    case nt_expm1:
        result = math->expm1_f(a[0]);
        break;
    case nt_round:
        result = math->round_f(a[0]);
        break;
    case nt_trunc:
        result = math->trunc_f(a[0]);
        break;
    case nt_coth:
        result = math->coth_f(a[0]);
        break;
    case nt_acot:
        result = math->acot_f(a[0]);
        break;
    case nt_acoth:
        result = math->acoth_f(a[0]);
        break;
    case nt_exp:
        result = math->exp_f(a[0]);
        break;
    case nt_sqrt:
        result = math->sqrt_f(a[0]);
        break;
    case nt_sgn:
        result = math->sgn_f(a[0]);
        break;
    case nt_conj:
        result = math->conj_f(a[0]);
        break;
    case nt_fact:
        result = math->fact_f(a[0]);
        break;
    case nt_frexp:
        result = math->frexp_f(a[0]);
        break;
    case nt_modf:
        result = math->modf_f(a[0]);
        break;
    case nt_sec:
        result = math->sec_f(a[0]);
        break;
    case nt_csc:
        result = math->csc_f(a[0]);
        break;
    case nt_asec:
        result = math->asec_f(a[0]);
        break;
    case nt_acsc:
        result = math->acsc_f(a[0]);
        break;
    case nt_sech:
        result = math->sech_f(a[0]);
        break;
    case nt_csch:
        result = math->csch_f(a[0]);
        break;
    case nt_asech:
        result = math->asech_f(a[0]);
        break;
    case nt_acsch:
        result = math->acsch_f(a[0]);
        break;
    case nt_sgnIm:
        result = math->sgnIm_f(a[0]);
        break;
    case nt_numofdigits:
        result = math->numofdigits_f(a[0]);
        break;
    case nt_erf:
        result = math->erf_f(a[0]);
        break;
    case nt_erfc:
        result = math->erfc_f(a[0]);
        break;
    case nt_lgamma:
        result = math->lgamma_f(a[0]);
        break;
    case nt_gamma:
        result = math->gamma_f(a[0]);
        break;
    case nt_zeta:
        result = math->zeta_f(a[0]);
        break;
    case nt_lambert:
        result = math->lambert_f(a[0]);
        break;
    case nt_heavyside:
        result = math->heavyside_f(a[0]);
        break;
    case nt_bgamma:
        result = math->bgamma_f(a[0]);
        break;
    case nt_AiryAi:
        result = math->AiryAi_f(a[0]);
        break;
    case nt_AiryAiZero:
        result = math->AiryAiZero_f(a[0]);
        break;
    case nt_AiryBi:
        result = math->AiryBi_f(a[0]);
        break;
    case nt_AiryBiZero:
        result = math->AiryBiZero_f(a[0]);
        break;
    case nt_ExponentialIntegralEi:
        result = math->ExponentialIntegralEi_f(a[0]);
        break;
    case nt_FresnelsIntegralS:
        result = math->FresnelsIntegralS_f(a[0]);
        break;
    case nt_FresnelsIntegralC:
        result = math->FresnelsIntegralC_f(a[0]);
        break;
    case nt_DawsonsIntegral:
        result = math->DawsonsIntegral_f(a[0]);
        break;
    case nt_root:
        result = math->root_f(a[0], a[1]);
        break;
    case nt_atan2:
        result = math->atan2_f(a[0], a[1]);
        break;
    case nt_fmod:
        result = math->fmod_f(a[0], a[1]);
        break;
    case nt_ldexp:
        result = math->ldexp_f(a[0], a[1]);
        break;
    case nt_fdim:
        result = math->fdim_f(a[0], a[1]);
        break;
    case nt_fmin:
        result = math->fmin_f(a[0], a[1]);
        break;
    case nt_fmax:
        result = math->fmax_f(a[0], a[1]);
        break;
    case nt_hypot:
        result = math->hypot_f(a[0], a[1]);
        break;
    case nt_remainder:
        result = math->remainder_f(a[0], a[1]);
        break;
    case nt_min:
        result = math->min_f(a[0], a[1]);
        break;
    case nt_max:
        result = math->max_f(a[0], a[1]);
        break;
    case nt_nextafter:
        result = math->nextafter_f(a[0], a[1]);
        break;
    case nt_scalbn:
        result = math->scalbn_f(a[0], a[1]);
        break;
    case nt_remquo:
        result = math->remquo_f(a[0], a[1]);
        break;
    case nt_mod:
        result = math->mod_f(a[0], a[1]);
        break;
    case nt_beta:
        result = math->beta_f(a[0], a[1]);
        break;
    case nt_struve:
        result = math->struve_f(a[0], a[1]);
        break;
    case nt_BesselFirstKind:
        result = math->BesselFirstKind_f(a[0], a[1]);
        break;
    case nt_BesselFirstKindZero:
        result = math->BesselFirstKindZero_f(a[0], a[1]);
        break;
    case nt_BesselSecondKind:
        result = math->BesselSecondKind_f(a[0], a[1]);
        break;
    case nt_BesselSecondKindZero:
        result = math->BesselSecondKindZero_f(a[0], a[1]);
        break;
    case nt_ModifiedBesselFirstKind:
        result = math->ModifiedBesselFirstKind_f(a[0], a[1]);
        break;
    case nt_ModifiedBesselSecondKind:
        result = math->ModifiedBesselSecondKind_f(a[0], a[1]);
        break;
    case nt_SphericalBesselFirstKind:
        result = math->SphericalBesselFirstKind_f(a[0], a[1]);
        break;
    case nt_SphericalBesselSecondKind:
        result = math->SphericalBesselSecondKind_f(a[0], a[1]);
        break;
    case nt_ExponentialIntegralEn:
        result = math->ExponentialIntegralEn_f(a[0], a[1]);
        break;
    case nt_EllipticIntegralCarlsonRc:
        result = math->EllipticIntegralCarlsonRc_f(a[0], a[1]);
        break;
    case nt_JacobiEllipticSn:
        result = math->JacobiEllipticSn_f(a[0], a[1]);
        break;
    case nt_JacobiEllipticCn:
        result = math->JacobiEllipticCn_f(a[0], a[1]);
        break;
    case nt_JacobiEllipticDn:
        result = math->JacobiEllipticDn_f(a[0], a[1]);
        break;
    case nt_JacobiCd:
        result = math->JacobiCd_f(a[0], a[1]);
        break;
    case nt_JacobiCn:
        result = math->JacobiCn_f(a[0], a[1]);
        break;
    case nt_JacobiCs:
        result = math->JacobiCs_f(a[0], a[1]);
        break;
    case nt_JacobiDc:
        result = math->JacobiDc_f(a[0], a[1]);
        break;
    case nt_JacobiDn:
        result = math->JacobiDn_f(a[0], a[1]);
        break;
    case nt_JacobiDs:
        result = math->JacobiDs_f(a[0], a[1]);
        break;
    case nt_JacobiNc:
        result = math->JacobiNc_f(a[0], a[1]);
        break;
    case nt_JacobiNd:
        result = math->JacobiNd_f(a[0], a[1]);
        break;
    case nt_JacobiNs:
        result = math->JacobiNs_f(a[0], a[1]);
        break;
    case nt_JacobiSc:
        result = math->JacobiSc_f(a[0], a[1]);
        break;
    case nt_JacobiSd:
        result = math->JacobiSd_f(a[0], a[1]);
        break;
    case nt_JacobiSn:
        result = math->JacobiSn_f(a[0], a[1]);
        break;
    case nt_FermiDirac:
        result = math->FermiDirac_f(a[0], a[1]);
        break;
    // logb has no end of its own: it runs on into logax, whose second
    // argument is then undefined, so by number logb always gives undefined.
    case nt_logb:
        result = math->logb_f(a[0]);
        [[fallthrough]];
    case nt_logax:
        result = math->logax_f(a[0], a[1]);
        break;
    case nt_EllipticIntegralCarlsonRf:
        result = math->EllipticIntegralCarlsonRf_f(a[0], a[1], a[2]);
        break;
    case nt_EllipticIntegralCarlsonRd:
        result = math->EllipticIntegralCarlsonRd_f(a[0], a[1], a[2]);
        break;
    case nt_EllipticIntegralCarlsonRj:
        result = math->EllipticIntegralCarlsonRj_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_SphericalHarmonic:
        result = math->SphericalHarmonic_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_gausshypergeometric:
        result = math->gausshypergeometric_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_rand:
        result = math->rand_f();
        break;
    // --- end of elementwise and special functions ---

    // --- host types ---
    // (end of host types)

    // --- fractions, division and substitution ---
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

    default:
        break;
    }
    return result;
}

vhValue vhSymbolicFunction::calculateFromSymbolic(vhMath* math) const
{
    if (isNull() || m_valueType != tagSymbolicFunction)
        return vhValue();
    vhValue result = callFunction(math, static_cast<NodeType>(m_functionID), m_elements);
    // A power carries its exponent as an argument.
    if (m_functionID == nt_pow || m_functionID == nt_pow22)
        return result;
    // A held call with an exponent, such as sin(x)^2, is raised by it.
    const vhValue* e = exponent();
    if (e && e->toDouble() != 1.0)
        result = math ? math->pow_f(result, *e) : vhValue();
    return result;
}

} // namespace ValueTypes
} // namespace VarnholtMath
