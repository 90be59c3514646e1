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
    case nt_DefinedTypes:
        result = math->DefinedTypes_f();
        break;
    case nt_TypeConstructors:
        result = math->TypeConstructors_f(a[0]);
        break;
    case nt_TypeMembers:
        result = math->TypeMembers_f(a[0]);
        break;
    case nt_TypeMethods:
        result = math->TypeMethods_f(a[0]);
        break;
    case nt_TypeMethodArguments:
        result = math->TypeMethodArguments_f(a[0], a[1]);
        break;

    // --- number theory and transforms ---
    case nt_gcd:
        result = math->gcd_f(a[0], a[1]);
        break;
    case nt_gcde:
        result = math->gcde_f(a[0], a[1]);
        break;
    case nt_lcm:
        result = math->lcm_f(a[0], a[1]);
        break;
    case nt_pseudoinverse:
        result = math->pseudoinverse_f(a[0], a[1]);
        break;
    case nt_chineserem:
        result = math->chineserem_f(a[0], a[1]);
        break;
    case nt_BinomialCoefficient:
        result = math->BinomialCoefficient_f(a[0], a[1]);
        break;
    case nt_FibonaciNumber:
        result = math->FibonaciNumber_f(a[0]);
        break;
    case nt_CountPartitions:
        result = math->CountPartitions_f(a[0]);
        break;
    case nt_CountkPartitions:
        result = math->CountkPartitions_f(a[0], a[1]);
        break;
    case nt_BellNumber:
        result = math->BellNumber_f(a[0]);
        break;
    case nt_StirlingNumber1stKindSigned:
        result = math->StirlingNumber1stKindSigned_f(a[0], a[1]);
        break;
    case nt_StirlingNumber1stKindUnsigned:
        result = math->StirlingNumber1stKindUnsigned_f(a[0], a[1]);
        break;
    case nt_StirlingNumber2ndKind:
        result = math->StirlingNumber2ndKind_f(a[0], a[1]);
        break;
    case nt_PoissonCoefficient:
        result = math->PoissonCoefficient_f(a[0], a[1]);
        break;
    case nt_isPrime:
        result = math->isPrime_f(a[0]);
        break;
    case nt_Factor:
        result = math->Factor_f(a[0], a[1]);
        break;
    case nt_FactorUnique:
        result = math->FactorUnique_f(a[0], a[1]);
        break;
    case nt_nextPrime:
        result = math->nextPrime_f(a[0]);
        break;
    case nt_previousPrime:
        result = math->previousPrime_f(a[0]);
        break;
    case nt_nthPrime:
        result = math->nthPrime_f(a[0]);
        break;
    case nt_FFT1:
        result = math->FFT1_f(a[0]);
        break;
    case nt_FFTI1:
        result = math->FFTI1_f(a[0]);
        break;
    case nt_FFT2:
        result = math->FFT2_f(a[0]);
        break;
    case nt_FFTI2:
        result = math->FFTI2_f(a[0]);
        break;
    case nt_FFTShift:
        result = math->FFTShift_f(a[0]);
        break;
    case nt_FFT1N:
        result = math->FFT1N_f(a[0], a[1]);
        break;
    case nt_FFTI1N:
        result = math->FFTI1N_f(a[0], a[1]);
        break;
    case nt_FFT2N:
        result = math->FFT2N_f(a[0], a[1], a[2]);
        break;
    case nt_FFTI2N:
        result = math->FFTI2N_f(a[0], a[1], a[2]);
        break;
    case nt_DCT1:
        result = math->DCT1_f(a[0], a[1]);
        break;
    case nt_DCTI1:
        result = math->DCTI1_f(a[0], a[1]);
        break;
    case nt_fwht:
        result = math->fwht_f(a[0], a[1], a[2]);
        break;
    case nt_ifwht:
        result = math->ifwht_f(a[0], a[1], a[2]);
        break;
    case nt_flip:
        result = math->flip_f(a[0], a[1]);
        break;
    case nt_complexRe:
        result = math->complexRe_f(a[0]);
        break;

    // --- images ---
    case nt_IsImage:
        result = math->IsImage_f(a[0]);
        break;
    case nt_ImageSetDPI:
        result = math->ImageSetDPI_f(a[0], a[1]);
        break;
    case nt_ImageDPI:
        result = math->ImageDPI_f(a[0]);
        break;
    case nt_ImageCreate:
        result = math->ImageCreate_f(a[0], a[1]);
        break;
    case nt_ImageWidth:
        result = math->ImageWidth_f(a[0]);
        break;
    case nt_ImageHeight:
        result = math->ImageHeight_f(a[0]);
        break;
    case nt_ImageFill:
        result = math->ImageFill_f(a[0], a[1]);
        break;
    case nt_ImageRed:
        result = math->ImageRed_f(a[0]);
        break;
    case nt_ImageGreen:
        result = math->ImageGreen_f(a[0]);
        break;
    case nt_ImageBlue:
        result = math->ImageBlue_f(a[0]);
        break;
    case nt_ImageAlpha:
        result = math->ImageAlpha_f(a[0]);
        break;
    case nt_ImageBGRA:
        result = math->ImageBGRA_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_ImageRedMul:
        result = math->ImageRedMul_f(a[0], a[1]);
        break;
    case nt_ImageGreenMul:
        result = math->ImageGreenMul_f(a[0], a[1]);
        break;
    case nt_ImageBlueMul:
        result = math->ImageBlueMul_f(a[0], a[1]);
        break;
    case nt_ImageAlphaMul:
        result = math->ImageAlphaMul_f(a[0], a[1]);
        break;
    case nt_ToRed:
        result = math->ToRed_f(a[0]);
        break;
    case nt_ToGreen:
        result = math->ToGreen_f(a[0]);
        break;
    case nt_ToBlue:
        result = math->ToBlue_f(a[0]);
        break;
    case nt_ToAlpha:
        result = math->ToAlpha_f(a[0]);
        break;
    case nt_ToBGRA:
        result = math->ToBGRA_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_Image2Matrix:
        result = math->Image2Matrix_f(a[0]);
        break;
    case nt_Matrix2Image:
        result = math->Matrix2Image_f(a[0]);
        break;
    case nt_ImageFilter:
        result = math->ImageFilter_f(a[0], a[1]);
        break;
    case nt_ImageSmooth:
        result = math->ImageSmooth_f(a[0]);
        break;
    case nt_ImageEdge:
        result = math->ImageEdge_f(a[0]);
        break;
    case nt_ImageMblur:
        result = math->ImageMblur_f(a[0]);
        break;
    case nt_ImageSharpen:
        result = math->ImageSharpen_f(a[0]);
        break;
    case nt_ImageRaised:
        result = math->ImageRaised_f(a[0]);
        break;
    case nt_ImageMedian:
        result = math->ImageMedian_f(a[0], a[1]);
        break;
    case nt_ImageAbsDiff:
        result = math->ImageAbsDiff_f(a[0], a[1]);
        break;
    case nt_ImageMsePsnr:
        result = math->ImageMsePsnr_f(a[0], a[1]);
        break;

    // --- filter design and running filters ---
    case nt_makeWindow:
        result = math->makeWindow_f(a[0], a[1]);
        break;
    case nt_FIRlowpass:
        result = math->FIRlowpass_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_FIRhighpass:
        result = math->FIRhighpass_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_FIRbandpass:
        result = math->FIRbandpass_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_FIRbandstop:
        result = math->FIRbandstop_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_FIRhilbert:
        result = math->FIRhilbert_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_InitFIRFilter:
        result = math->InitFIRFilter_f(a[0], a[1], a[2]);
        break;
    case nt_FIRFilter:
        result = math->FIRFilter_f(a[0], a[1], a[2]);
        break;
    case nt_InitIIRFilter:
        result = math->InitIIRFilter_f(a[0], a[1]);
        break;
    case nt_IIRFilter:
        result = math->IIRFilter_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_MovingAverage:
        result = math->MovingAverage_f(a[0], a[1]);
        break;
    case nt_LMSAdaptive:
        result = math->LMSAdaptive_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_buttlowhigh:
        result = math->buttlowhigh_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_buttband:
        result = math->buttband_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_cheby1lohi:
        result = math->cheby1lohi_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_cheby1band:
        result = math->cheby1band_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_cheby2lohi:
        result = math->cheby2lohi_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_cheby2band:
        result = math->cheby2band_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_elliplohi:
        result = math->elliplohi_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_ellipband:
        result = math->ellipband_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
        break;
    case nt_FIRFreqResponse:
        result = math->FIRFreqResponse_f(a[0], a[1], a[2]);
        break;
    case nt_IIRFreqResponse:
        result = math->IIRFreqResponse_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_iirgroupdelay:
        result = math->iirgroupdelay_f(a[0], a[1], a[2]);
        break;
    case nt_iirphasedelay:
        result = math->iirphasedelay_f(a[0], a[1], a[2]);
        break;
    case nt_firopt:
        result = math->firopt_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
        break;
    case nt_firoptord:
        result = math->firoptord_f(a[0], a[1], a[2], a[3], a[4]);
        break;
    case nt_firfreqsampl:
        result = math->firfreqsampl_f(a[0], a[1], a[2], a[3]);
        break;

    // --- distributions, random numbers and statistics ---
    case nt_average:
        result = math->average_f(a[0]);
        break;
    case nt_RowsAverage:
        result = math->RowsAverage_f(a[0]);
        break;
    case nt_ColumnsAverage:
        result = math->ColumnsAverage_f(a[0]);
        break;
    case nt_variance:
        result = math->variance_f(a[0]);
        break;
    case nt_rowVariance:
        result = math->rowVariance_f(a[0]);
        break;
    case nt_columnVariance:
        result = math->columnVariance_f(a[0]);
        break;
    case nt_varianceSample:
        result = math->varianceSample_f(a[0]);
        break;
    case nt_deviation:
        result = math->deviation_f(a[0]);
        break;
    case nt_RowsDeviation:
        result = math->RowsDeviation_f(a[0]);
        break;
    case nt_ColumnsDeviation:
        result = math->ColumnsDeviation_f(a[0]);
        break;
    case nt_deviationSample:
        result = math->deviationSample_f(a[0]);
        break;
    case nt_rowDeviationSample:
        result = math->rowDeviationSample_f(a[0]);
        break;
    case nt_columnDeviationSample:
        result = math->columnDeviationSample_f(a[0]);
        break;
    case nt_avgdev:
        result = math->avgdev_f(a[0]);
        break;
    case nt_rowAvgdev:
        result = math->rowAvgdev_f(a[0]);
        break;
    case nt_columnAvgdev:
        result = math->columnAvgdev_f(a[0]);
        break;
    case nt_asymmetry:
        result = math->asymmetry_f(a[0]);
        break;
    case nt_rowAsymmetry:
        result = math->rowAsymmetry_f(a[0]);
        break;
    case nt_columnAsymmetry:
        result = math->columnAsymmetry_f(a[0]);
        break;
    case nt_median:
        result = math->median_f(a[0]);
        break;
    case nt_rowMedian:
        result = math->rowMedian_f(a[0]);
        break;
    case nt_columnMedian:
        result = math->columnMedian_f(a[0]);
        break;
    case nt_modus:
        result = math->modus_f(a[0]);
        break;
    case nt_rowModus:
        result = math->rowModus_f(a[0]);
        break;
    case nt_columnModus:
        result = math->columnModus_f(a[0]);
        break;
    case nt_trimmean:
        result = math->trimmean_f(a[0], a[1]);
        break;
    case nt_rowTrimmean:
        result = math->rowTrimmean_f(a[0], a[1]);
        break;
    case nt_columnTrimmean:
        result = math->columnTrimmean_f(a[0], a[1]);
        break;
    case nt_percentile:
        result = math->percentile_f(a[0], a[1]);
        break;
    case nt_rowPercentile:
        result = math->rowPercentile_f(a[0], a[1]);
        break;
    case nt_columnPercentile:
        result = math->columnPercentile_f(a[0], a[1]);
        break;
    case nt_autocorrelation:
        result = math->autocorrelation_f(a[0], a[1]);
        break;
    case nt_rowAutocorrelation:
        result = math->rowAutocorrelation_f(a[0], a[1]);
        break;
    case nt_columnAutocorrelation:
        result = math->columnAutocorrelation_f(a[0], a[1]);
        break;
    case nt_correlation:
        result = math->correlation_f(a[0], a[1]);
        break;
    case nt_rowCorrelation:
        result = math->rowCorrelation_f(a[0], a[1]);
        break;
    case nt_columnCorrelation:
        result = math->columnCorrelation_f(a[0], a[1]);
        break;
    case nt_covariance:
        result = math->covariance_f(a[0], a[1]);
        break;
    case nt_rowCovariance:
        result = math->rowCovariance_f(a[0], a[1]);
        break;
    case nt_columnCovariance:
        result = math->columnCovariance_f(a[0], a[1]);
        break;
    case nt_MeanSquareError:
        result = math->MeanSquareError_f(a[0], a[1]);
        break;
    case nt_MeanAbsoluteError:
        result = math->MeanAbsoluteError_f(a[0], a[1]);
        break;
    case nt_MeanPercentageError:
        result = math->MeanPercentageError_f(a[0], a[1]);
        break;
    case nt_MeanAbsolutePercentageError:
        result = math->MeanAbsolutePercentageError_f(a[0], a[1]);
        break;
    case nt_tdens:
        result = math->tdens_f(a[0], a[1]);
        break;
    case nt_tdist:
        result = math->tdist_f(a[0], a[1]);
        break;
    case nt_tinv:
        result = math->tinv_f(a[0], a[1]);
        break;
    case nt_chidens:
        result = math->chidens_f(a[0], a[1]);
        break;
    case nt_chidist:
        result = math->chidist_f(a[0], a[1]);
        break;
    case nt_chiinv:
        result = math->chiinv_f(a[0], a[1]);
        break;
    case nt_poissondens:
        result = math->poissondens_f(a[0], a[1]);
        break;
    case nt_poissondist:
        result = math->poissondist_f(a[0], a[1]);
        break;
    case nt_poissoninv:
        result = math->poissoninv_f(a[0], a[1]);
        break;
    case nt_geometricdens:
        result = math->geometricdens_f(a[0], a[1]);
        break;
    case nt_geometricdist:
        result = math->geometricdist_f(a[0], a[1]);
        break;
    case nt_geometricinv:
        result = math->geometricinv_f(a[0], a[1]);
        break;
    case nt_logarithmicdens:
        result = math->logarithmicdens_f(a[0], a[1]);
        break;
    case nt_logarithmicdist:
        result = math->logarithmicdist_f(a[0], a[1]);
        break;
    case nt_logarithmicinv:
        result = math->logarithmicinv_f(a[0], a[1]);
        break;
    case nt_exponentialdens:
        result = math->exponentialdens_f(a[0], a[1]);
        break;
    case nt_exponentialdist:
        result = math->exponentialdist_f(a[0], a[1]);
        break;
    case nt_exponentialinv:
        result = math->exponentialinv_f(a[0], a[1]);
        break;
    case nt_normaldens:
        result = math->normaldens_f(a[0], a[1], a[2]);
        break;
    case nt_normaldist:
        result = math->normaldist_f(a[0], a[1], a[2]);
        break;
    case nt_normalinv:
        result = math->normalinv_f(a[0], a[1], a[2]);
        break;
    case nt_gammadens:
        result = math->gammadens_f(a[0], a[1], a[2]);
        break;
    case nt_gammadist:
        result = math->gammadist_f(a[0], a[1], a[2]);
        break;
    case nt_gammainv:
        result = math->gammainv_f(a[0], a[1], a[2]);
        break;
    case nt_betadens:
        result = math->betadens_f(a[0], a[1], a[2]);
        break;
    case nt_betadist:
        result = math->betadist_f(a[0], a[1], a[2]);
        break;
    case nt_betainv:
        result = math->betainv_f(a[0], a[1], a[2]);
        break;
    case nt_fdens:
        result = math->fdens_f(a[0], a[1], a[2]);
        break;
    case nt_fdist:
        result = math->fdist_f(a[0], a[1], a[2]);
        break;
    case nt_finv:
        result = math->finv_f(a[0], a[1], a[2]);
        break;
    case nt_dblexponentialdens:
        result = math->dblexponentialdens_f(a[0], a[1], a[2]);
        break;
    case nt_dblexponentialdist:
        result = math->dblexponentialdist_f(a[0], a[1], a[2]);
        break;
    case nt_dblexponentialinv:
        result = math->dblexponentialinv_f(a[0], a[1], a[2]);
        break;
    case nt_cauchydens:
        result = math->cauchydens_f(a[0], a[1], a[2]);
        break;
    case nt_cauchydist:
        result = math->cauchydist_f(a[0], a[1], a[2]);
        break;
    case nt_cauchyinv:
        result = math->cauchyinv_f(a[0], a[1], a[2]);
        break;
    case nt_uRandNum:
        result = math->uRandNum_f(a[0], a[1]);
        break;
    case nt_uRandVec:
        result = math->uRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_uRandMat:
        result = math->uRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_normRandNum:
        result = math->normRandNum_f(a[0], a[1]);
        break;
    case nt_normRandVec:
        result = math->normRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_normRandMat:
        result = math->normRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_expRandNum:
        result = math->expRandNum_f(a[0]);
        break;
    case nt_expRandVec:
        result = math->expRandVec_f(a[0], a[1]);
        break;
    case nt_expRandMat:
        result = math->expRandMat_f(a[0], a[1], a[2]);
        break;
    case nt_dblexpRandNum:
        result = math->dblexpRandNum_f(a[0]);
        break;
    case nt_dblexpRandVec:
        result = math->dblexpRandVec_f(a[0], a[1]);
        break;
    case nt_dblexpRandMat:
        result = math->dblexpRandMat_f(a[0], a[1], a[2]);
        break;
    case nt_gammaRandNum:
        result = math->gammaRandNum_f(a[0], a[1]);
        break;
    case nt_gammaRandVec:
        result = math->gammaRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_gammaRandMat:
        result = math->gammaRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_betaRandNum:
        result = math->betaRandNum_f(a[0], a[1]);
        break;
    case nt_betaRandVec:
        result = math->betaRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_betaRandMat:
        result = math->betaRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_chi2RandNum:
        result = math->chi2RandNum_f(a[0]);
        break;
    case nt_chi2RandVec:
        result = math->chi2RandVec_f(a[0], a[1]);
        break;
    case nt_chi2RandMat:
        result = math->chi2RandMat_f(a[0], a[1], a[2]);
        break;
    case nt_cauchyRandNum:
        result = math->cauchyRandNum_f(a[0], a[1]);
        break;
    case nt_cauchyRandVec:
        result = math->cauchyRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_cauchyRandMat:
        result = math->cauchyRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_fRandNum:
        result = math->fRandNum_f(a[0], a[1]);
        break;
    case nt_fRandVec:
        result = math->fRandVec_f(a[0], a[1], a[2]);
        break;
    case nt_fRandMat:
        result = math->fRandMat_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_tRandNum:
        result = math->tRandNum_f(a[0]);
        break;
    case nt_tRandVec:
        result = math->tRandVec_f(a[0], a[1]);
        break;
    case nt_tRandMat:
        result = math->tRandMat_f(a[0], a[1], a[2]);
        break;
    case nt_poissonRandNum:
        result = math->poissonRandNum_f(a[0]);
        break;
    case nt_poissonRandVec:
        result = math->poissonRandVec_f(a[0], a[1]);
        break;
    case nt_poissonRandMat:
        result = math->poissonRandMat_f(a[0], a[1], a[2]);
        break;
    case nt_geometricRandNum:
        result = math->geometricRandNum_f(a[0]);
        break;
    case nt_geometricRandVec:
        result = math->geometricRandVec_f(a[0], a[1]);
        break;
    case nt_geometricRandMat:
        result = math->geometricRandMat_f(a[0], a[1], a[2]);
        break;
    case nt_logarithmicRandNum:
        result = math->logarithmicRandNum_f(a[0]);
        break;
    case nt_logarithmicRandVec:
        result = math->logarithmicRandVec_f(a[0], a[1]);
        break;
    case nt_logarithmicRandMat:
        result = math->logarithmicRandMat_f(a[0], a[1], a[2]);
        break;

    // --- decompositions and linear equations ---
    case nt_decLU:
        result = math->decLU_f(a[0]);
        break;
    case nt_decLUL:
        result = math->decLUL_f(a[0]);
        break;
    case nt_decLUU:
        result = math->decLUU_f(a[0]);
        break;
    case nt_decLUPQ:
        result = math->decLUPQ_f(a[0]);
        break;
    case nt_decLUPQL:
        result = math->decLUPQL_f(a[0]);
        break;
    case nt_decLUPQU:
        result = math->decLUPQU_f(a[0]);
        break;
    case nt_decLUPQP:
        result = math->decLUPQP_f(a[0]);
        break;
    case nt_decLUPQQ:
        result = math->decLUPQQ_f(a[0]);
        break;
    case nt_decQR:
        result = math->decQR_f(a[0]);
        break;
    case nt_decQRQ:
        result = math->decQRQ_f(a[0]);
        break;
    case nt_decQRR:
        result = math->decQRR_f(a[0]);
        break;
    case nt_decQRP:
        result = math->decQRP_f(a[0]);
        break;
    case nt_decQRPQ:
        result = math->decQRPQ_f(a[0]);
        break;
    case nt_decQRPR:
        result = math->decQRPR_f(a[0]);
        break;
    case nt_decQRPP:
        result = math->decQRPP_f(a[0]);
        break;
    case nt_decHessenberg:
        result = math->decHessenberg_f(a[0]);
        break;
    case nt_decHessenbergH:
        result = math->decHessenbergH_f(a[0]);
        break;
    case nt_decHessenbergQ:
        result = math->decHessenbergQ_f(a[0]);
        break;
    case nt_decCholesky:
        result = math->decCholesky_f(a[0]);
        break;
    case nt_decCholeskyLDP:
        result = math->decCholeskyLDP_f(a[0]);
        break;
    case nt_decCholeskyLDPL:
        result = math->decCholeskyLDPL_f(a[0]);
        break;
    case nt_decCholeskyLDPD:
        result = math->decCholeskyLDPD_f(a[0]);
        break;
    case nt_decCholeskyLDPP:
        result = math->decCholeskyLDPP_f(a[0]);
        break;
    case nt_decSVD:
        result = math->decSVD_f(a[0]);
        break;
    case nt_decSVDU:
        result = math->decSVDU_f(a[0]);
        break;
    case nt_decSVDS:
        result = math->decSVDS_f(a[0]);
        break;
    case nt_decSVDV:
        result = math->decSVDV_f(a[0]);
        break;
    case nt_characteristicPolynomialRoots:
        result = math->characteristicPolynomialRoots_f(a[0]);
        break;
    case nt_diagonalization:
        result = math->diagonalization_f(a[0]);
        break;
    case nt_diagonalizationD:
        result = math->diagonalizationD_f(a[0]);
        break;
    case nt_diagonalizationP:
        result = math->diagonalizationP_f(a[0]);
        break;
    case nt_eigenVectors:
        result = math->eigenVectors_f(a[0]);
        break;
    case nt_rank:
        result = math->rank_f(a[0]);
        break;
    case nt_matRREForm:
        result = math->matRREForm_f(a[0]);
        break;
    case nt_matrixDeterminant:
        result = math->matrixDeterminant_f(a[0]);
        break;
    case nt_isHermitian:
        result = math->isHermitian_f(a[0]);
        break;
    case nt_positiveDefinite:
        result = math->positiveDefinite_f(a[0]);
        break;
    case nt_charpoly:
        result = math->charpoly_f(a[0], a[1]);
        break;
    case nt_linsolve:
        result = math->linsolve_f(a[0], a[1]);
        break;
    case nt_linsolvesys:
        result = math->linsolvesys_f(a[0], a[1]);
        break;
    case nt_linSysMatrix:
        result = math->linSysMatrix_f(a[0], a[1]);
        break;
    case nt_linSysTerms:
        result = math->linSysTerms_f(a[0], a[1]);
        break;
    case nt_linSysSplit:
        result = math->linSysSplit_f(a[0], a[1]);
        break;

    // --- finance, coordinates, geometry, conversions and chemistry ---
    case nt_Decimal2Binary:
        result = math->Decimal2Binary_f(a[0]);
        break;
    case nt_Binary2Decimal:
        result = math->Binary2Decimal_f(a[0]);
        break;
    case nt_Decimal2Hexadecimal:
        result = math->Decimal2Hexadecimal_f(a[0]);
        break;
    case nt_Hexadecimal2Decimal:
        result = math->Hexadecimal2Decimal_f(a[0]);
        break;
    case nt_Binary2Hexadecimal:
        result = math->Binary2Hexadecimal_f(a[0]);
        break;
    case nt_Hexadecimal2Binary:
        result = math->Hexadecimal2Binary_f(a[0]);
        break;
    case nt_Newton2Pound:
        result = math->Newton2Pound_f(a[0]);
        break;
    case nt_Pound2Newton:
        result = math->Pound2Newton_f(a[0]);
        break;
    case nt_Meter2Foot:
        result = math->Meter2Foot_f(a[0]);
        break;
    case nt_Foot2Meter:
        result = math->Foot2Meter_f(a[0]);
        break;
    case nt_Kilo2Pound:
        result = math->Kilo2Pound_f(a[0]);
        break;
    case nt_Pound2Kilo:
        result = math->Pound2Kilo_f(a[0]);
        break;
    case nt_Celsius2Fahrenheit:
        result = math->Celsius2Fahrenheit_f(a[0]);
        break;
    case nt_Fahrenheit2Celsius:
        result = math->Fahrenheit2Celsius_f(a[0]);
        break;
    case nt_grad2deg:
        result = math->grad2deg_f(a[0]);
        break;
    case nt_deg2grad:
        result = math->deg2grad_f(a[0]);
        break;
    case nt_isBitActive:
        result = math->isBitActive_f(a[0], a[1]);
        break;
    case nt_setBit:
        result = math->setBit_f(a[0], a[1], a[2]);
        break;
    case nt_complex:
        result = math->complex_f(a[0], a[1]);
        break;
    case nt_complexImg:
        result = math->complexImg_f(a[0]);
        break;
    case nt_phangle:
        result = math->phangle_f(a[0]);
        break;
    case nt_timeNow:
        result = math->timeNow_f();
        break;
    case nt_cartesian2polar:
        result = math->cartesian2polar_f(a[0], a[1]);
        break;
    case nt_cartesian2polarR:
        result = math->cartesian2polarR_f(a[0], a[1]);
        break;
    case nt_cartesian2polarF:
        result = math->cartesian2polarF_f(a[0], a[1]);
        break;
    case nt_polar2cartesian:
        result = math->polar2cartesian_f(a[0], a[1]);
        break;
    case nt_polar2cartesianX:
        result = math->polar2cartesianX_f(a[0], a[1]);
        break;
    case nt_polar2cartesianY:
        result = math->polar2cartesianY_f(a[0], a[1]);
        break;
    case nt_cartesian2sphere:
        result = math->cartesian2sphere_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2sphereR:
        result = math->cartesian2sphereR_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2sphereF:
        result = math->cartesian2sphereF_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2sphereT:
        result = math->cartesian2sphereT_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cartesian:
        result = math->sphere2cartesian_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cartesianX:
        result = math->sphere2cartesianX_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cartesianY:
        result = math->sphere2cartesianY_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cartesianZ:
        result = math->sphere2cartesianZ_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2cylinder:
        result = math->cartesian2cylinder_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2cylinderR:
        result = math->cartesian2cylinderR_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2cylinderF:
        result = math->cartesian2cylinderF_f(a[0], a[1], a[2]);
        break;
    case nt_cartesian2cylinderZ:
        result = math->cartesian2cylinderZ_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2cartesian:
        result = math->cylinder2cartesian_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2cartesianX:
        result = math->cylinder2cartesianX_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2cartesianY:
        result = math->cylinder2cartesianY_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2cartesianZ:
        result = math->cylinder2cartesianZ_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2sphere:
        result = math->cylinder2sphere_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2sphereR:
        result = math->cylinder2sphereR_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2sphereF:
        result = math->cylinder2sphereF_f(a[0], a[1], a[2]);
        break;
    case nt_cylinder2sphereT:
        result = math->cylinder2sphereT_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cylinder:
        result = math->sphere2cylinder_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cylinderR:
        result = math->sphere2cylinderR_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cylinderF:
        result = math->sphere2cylinderF_f(a[0], a[1], a[2]);
        break;
    case nt_sphere2cylinderZ:
        result = math->sphere2cylinderZ_f(a[0], a[1], a[2]);
        break;
    case nt_presentvalue:
        result = math->presentvalue_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_futurevalue:
        result = math->futurevalue_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_annualpayment:
        result = math->annualpayment_f(a[0], a[1], a[2]);
        break;
    case nt_interestpayment:
        result = math->interestpayment_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_capitalpayment:
        result = math->capitalpayment_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_rate:
        result = math->rate_f(a[0], a[1], a[2]);
        break;
    case nt_numberofperiods:
        result = math->numberofperiods_f(a[0], a[1], a[2]);
        break;
    case nt_bondprice:
        result = math->bondprice_f(a[0], a[1], a[2]);
        break;
    case nt_bondyieldtomaturity:
        result = math->bondyieldtomaturity_f(a[0], a[1], a[2]);
        break;
    case nt_bondduration:
        result = math->bondduration_f(a[0], a[1], a[2]);
        break;
    case nt_bonddurationmodified:
        result = math->bonddurationmodified_f(a[0], a[1], a[2], a[3]);
        break;
    case nt_bondconvexity:
        result = math->bondconvexity_f(a[0], a[1], a[2]);
        break;
    case nt_bondaccuredinterest:
        result = math->bondaccuredinterest_f(a[0], a[1], a[2]);
        break;
    case nt_areColinear:
        result = math->areColinear_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_areComplanar:
        result = math->areComplanar_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11]);
        break;
    case nt_areCocyclic:
        result = math->areCocyclic_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
        break;
    case nt_areConcurent:
        result = math->areConcurent_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_anglebtwlines:
        result = math->anglebtwlines_f(a[0], a[1]);
        break;
    case nt_areaofTriangle:
        result = math->areaofTriangle_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_angle:
        result = math->angle_f(a[0], a[1], a[2], a[3], a[4], a[5]);
        break;
    case nt_PlotArc:
        result = math->PlotArc_f(a[0], a[1]);
        break;
    case nt_PlotCircle:
        result = math->PlotCircle_f(a[0], a[1]);
        break;
    case nt_volumeOfTetrahedron:
        result = math->volumeOfTetrahedron_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11]);
        break;
    case nt_norm:
        result = math->norm_f(a[0]);
        break;
    case nt_vecangle:
        result = math->vecangle_f(a[0], a[1]);
        break;
    case nt_areOrthogonal:
        result = math->areOrthogonal_f(a[0], a[1]);
        break;
    case nt_scalproj:
        result = math->scalproj_f(a[0], a[1]);
        break;
    case nt_vecproj:
        result = math->vecproj_f(a[0], a[1]);
        break;
    case nt_crossprod:
        result = math->crossprod_f(a[0], a[1]);
        break;
    case nt_dotprod:
        result = math->dotprod_f(a[0], a[1]);
        break;
    case nt_areaofParal3D:
        result = math->areaofParal3D_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
        break;
    case nt_vecareaofParal3D:
        result = math->vecareaofParal3D_f(a[0], a[1]);
        break;
    case nt_areaofTriangle3D:
        result = math->areaofTriangle3D_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
        break;
    case nt_vecareaofTriangle3D:
        result = math->vecareaofTriangle3D_f(a[0], a[1]);
        break;
    case nt_distPointLine:
        result = math->distPointLine_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
        break;
    case nt_planeVector:
        result = math->planeVector_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
        break;
    case nt_intersecLinePlane:
        result = math->intersecLinePlane_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14]);
        break;
    case nt_intersecPlanes:
        result = math->intersecPlanes_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14], a[15], a[16], a[17]);
        break;
    case nt_intersecTriangles:
        result = math->intersecTriangles_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14], a[15], a[16], a[17]);
        break;
    case nt_chemSolver:
        result = math->chemSolver_f(a[0]);
        break;
    case nt_intersecsurface:
        result = math->surfaceIntersection_f(a[0], a[1]);
        break;

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
