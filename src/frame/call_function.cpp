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

    const ArgumentList a(arguments);

    // Operators, constructors, constants, statements and the newest rows
    // have no case here.
    if (id < 20 || id > 1125)
        return vhValue();

    // Each case returns the member's result as it is built: no record in
    // between to assign into and destroy.

    switch (id) {
    case nt_staticValue:
        return math->staticValue_f(a[0], a[1]);
    case nt_setStaticValue:
        return math->setStaticValue_f(a[0], a[1]);
    case nt_InRuntime:
        return math->InRuntime_f();
    case nt_SetDecPlaces:
        return math->SetDecPlaces_f(a[0]);
    case nt_DecPlaces:
        return math->DecPlaces_f();
    // --- elementwise and special functions ---
    case nt_pow:
    case nt_pow22:
        return math->pow_f(a[0], a[1]);
    case nt_abs:
    case nt_abs24:
        return math->abs_f(a[0]);
    case nt_factorial:
        return math->factorial_f(a[0]);
    case nt_acos:
        return math->acos_f(a[0]);
    case nt_asin:
        return math->asin_f(a[0]);
    case nt_atan:
        return math->atan_f(a[0]);
    case nt_ceil:
        return math->ceil_f(a[0]);
    case nt_cos:
        return math->cos_f(a[0]);
    case nt_cosh:
        return math->cosh_f(a[0]);
    case nt_fabs:
        return math->fabs_f(a[0]);
    case nt_floor:
        return math->floor_f(a[0]);
    case nt_log:
        return math->log_f(a[0]);
    case nt_log10:
        return math->log10_f(a[0]);
    case nt_log2:
        return math->log2_f(a[0]);
    case nt_log1p:
        return math->log1p_f(a[0]);
    case nt_sin:
        return math->sin_f(a[0]);
    case nt_sinh:
        return math->sinh_f(a[0]);
    case nt_tan:
        return math->tan_f(a[0]);
    case nt_cot:
        return math->cot_f(a[0]);
    case nt_tanh:
        return math->tanh_f(a[0]);
    case nt_acosh:
        return math->acosh_f(a[0]);
    case nt_asinh:
        return math->asinh_f(a[0]);
    case nt_atanh:
        return math->atanh_f(a[0]);
    case nt_cbrt:
        return math->cbrt_f(a[0]);
    case nt_exp2:
        return math->exp2_f(a[0]);
    case nt_expm1:
        return math->expm1_f(a[0]);
    case nt_round:
        return math->round_f(a[0]);
    case nt_trunc:
        return math->trunc_f(a[0]);
    case nt_coth:
        return math->coth_f(a[0]);
    case nt_acot:
        return math->acot_f(a[0]);
    case nt_acoth:
        return math->acoth_f(a[0]);
    case nt_exp:
        return math->exp_f(a[0]);
    case nt_sqrt:
        return math->sqrt_f(a[0]);
    case nt_sgn:
        return math->sgn_f(a[0]);
    case nt_conj:
        return math->conj_f(a[0]);
    case nt_fact:
        return math->fact_f(a[0]);
    case nt_frexp:
        return math->frexp_f(a[0]);
    case nt_modf:
        return math->modf_f(a[0]);
    case nt_sec:
        return math->sec_f(a[0]);
    case nt_csc:
        return math->csc_f(a[0]);
    case nt_asec:
        return math->asec_f(a[0]);
    case nt_acsc:
        return math->acsc_f(a[0]);
    case nt_sech:
        return math->sech_f(a[0]);
    case nt_csch:
        return math->csch_f(a[0]);
    case nt_asech:
        return math->asech_f(a[0]);
    case nt_acsch:
        return math->acsch_f(a[0]);
    case nt_sgnIm:
        return math->sgnIm_f(a[0]);
    case nt_numofdigits:
        return math->numofdigits_f(a[0]);
    case nt_erf:
        return math->erf_f(a[0]);
    case nt_erfc:
        return math->erfc_f(a[0]);
    case nt_lgamma:
        return math->lgamma_f(a[0]);
    case nt_gamma:
        return math->gamma_f(a[0]);
    case nt_zeta:
        return math->zeta_f(a[0]);
    case nt_lambert:
        return math->lambert_f(a[0]);
    case nt_heavyside:
        return math->heavyside_f(a[0]);
    case nt_bgamma:
        return math->bgamma_f(a[0]);
    case nt_AiryAi:
        return math->AiryAi_f(a[0]);
    case nt_AiryAiZero:
        return math->AiryAiZero_f(a[0]);
    case nt_AiryBi:
        return math->AiryBi_f(a[0]);
    case nt_AiryBiZero:
        return math->AiryBiZero_f(a[0]);
    case nt_ExponentialIntegralEi:
        return math->ExponentialIntegralEi_f(a[0]);
    case nt_FresnelsIntegralS:
        return math->FresnelsIntegralS_f(a[0]);
    case nt_FresnelsIntegralC:
        return math->FresnelsIntegralC_f(a[0]);
    case nt_DawsonsIntegral:
        return math->DawsonsIntegral_f(a[0]);
    case nt_root:
        return math->root_f(a[0], a[1]);
    case nt_atan2:
        return math->atan2_f(a[0], a[1]);
    case nt_fmod:
        return math->fmod_f(a[0], a[1]);
    case nt_ldexp:
        return math->ldexp_f(a[0], a[1]);
    case nt_fdim:
        return math->fdim_f(a[0], a[1]);
    case nt_fmin:
        return math->fmin_f(a[0], a[1]);
    case nt_fmax:
        return math->fmax_f(a[0], a[1]);
    case nt_hypot:
        return math->hypot_f(a[0], a[1]);
    case nt_remainder:
        return math->remainder_f(a[0], a[1]);
    case nt_min:
        return math->min_f(a[0], a[1]);
    case nt_max:
        return math->max_f(a[0], a[1]);
    case nt_nextafter:
        return math->nextafter_f(a[0], a[1]);
    case nt_scalbn:
        return math->scalbn_f(a[0], a[1]);
    case nt_remquo:
        return math->remquo_f(a[0], a[1]);
    case nt_mod:
        return math->mod_f(a[0], a[1]);
    case nt_beta:
        return math->beta_f(a[0], a[1]);
    case nt_struve:
        return math->struve_f(a[0], a[1]);
    case nt_BesselFirstKind:
        return math->BesselFirstKind_f(a[0], a[1]);
    case nt_BesselFirstKindZero:
        return math->BesselFirstKindZero_f(a[0], a[1]);
    case nt_BesselSecondKind:
        return math->BesselSecondKind_f(a[0], a[1]);
    case nt_BesselSecondKindZero:
        return math->BesselSecondKindZero_f(a[0], a[1]);
    case nt_ModifiedBesselFirstKind:
        return math->ModifiedBesselFirstKind_f(a[0], a[1]);
    case nt_ModifiedBesselSecondKind:
        return math->ModifiedBesselSecondKind_f(a[0], a[1]);
    case nt_SphericalBesselFirstKind:
        return math->SphericalBesselFirstKind_f(a[0], a[1]);
    case nt_SphericalBesselSecondKind:
        return math->SphericalBesselSecondKind_f(a[0], a[1]);
    case nt_ExponentialIntegralEn:
        return math->ExponentialIntegralEn_f(a[0], a[1]);
    case nt_EllipticIntegralCarlsonRc:
        return math->EllipticIntegralCarlsonRc_f(a[0], a[1]);
    case nt_JacobiEllipticSn:
        return math->JacobiEllipticSn_f(a[0], a[1]);
    case nt_JacobiEllipticCn:
        return math->JacobiEllipticCn_f(a[0], a[1]);
    case nt_JacobiEllipticDn:
        return math->JacobiEllipticDn_f(a[0], a[1]);
    case nt_JacobiCd:
        return math->JacobiCd_f(a[0], a[1]);
    case nt_JacobiCn:
        return math->JacobiCn_f(a[0], a[1]);
    case nt_JacobiCs:
        return math->JacobiCs_f(a[0], a[1]);
    case nt_JacobiDc:
        return math->JacobiDc_f(a[0], a[1]);
    case nt_JacobiDn:
        return math->JacobiDn_f(a[0], a[1]);
    case nt_JacobiDs:
        return math->JacobiDs_f(a[0], a[1]);
    case nt_JacobiNc:
        return math->JacobiNc_f(a[0], a[1]);
    case nt_JacobiNd:
        return math->JacobiNd_f(a[0], a[1]);
    case nt_JacobiNs:
        return math->JacobiNs_f(a[0], a[1]);
    case nt_JacobiSc:
        return math->JacobiSc_f(a[0], a[1]);
    case nt_JacobiSd:
        return math->JacobiSd_f(a[0], a[1]);
    case nt_JacobiSn:
        return math->JacobiSn_f(a[0], a[1]);
    case nt_FermiDirac:
        return math->FermiDirac_f(a[0], a[1]);
    // logb has no end of its own: it runs on into logax, whose second
    // argument is then undefined, so by number logb always gives undefined.
    case nt_logb:
        math->logb_f(a[0]);
        [[fallthrough]];
    case nt_logax:
        return math->logax_f(a[0], a[1]);
    case nt_EllipticIntegralCarlsonRf:
        return math->EllipticIntegralCarlsonRf_f(a[0], a[1], a[2]);
    case nt_EllipticIntegralCarlsonRd:
        return math->EllipticIntegralCarlsonRd_f(a[0], a[1], a[2]);
    case nt_EllipticIntegralCarlsonRj:
        return math->EllipticIntegralCarlsonRj_f(a[0], a[1], a[2], a[3]);
    case nt_SphericalHarmonic:
        return math->SphericalHarmonic_f(a[0], a[1], a[2], a[3]);
    case nt_gausshypergeometric:
        return math->gausshypergeometric_f(a[0], a[1], a[2], a[3]);
    case nt_rand:
        return math->rand_f();
    // --- end of elementwise and special functions ---

    // --- host types ---
    case nt_DefinedTypes:
        return math->DefinedTypes_f();
    case nt_TypeConstructors:
        return math->TypeConstructors_f(a[0]);
    case nt_TypeMembers:
        return math->TypeMembers_f(a[0]);
    case nt_TypeMethods:
        return math->TypeMethods_f(a[0]);
    case nt_TypeMethodArguments:
        return math->TypeMethodArguments_f(a[0], a[1]);

    // --- number theory and transforms ---
    case nt_gcd:
        return math->gcd_f(a[0], a[1]);
    case nt_gcde:
        return math->gcde_f(a[0], a[1]);
    case nt_lcm:
        return math->lcm_f(a[0], a[1]);
    case nt_pseudoinverse:
        return math->pseudoinverse_f(a[0], a[1]);
    case nt_chineserem:
        return math->chineserem_f(a[0], a[1]);
    case nt_BinomialCoefficient:
        return math->BinomialCoefficient_f(a[0], a[1]);
    case nt_FibonaciNumber:
        return math->FibonaciNumber_f(a[0]);
    case nt_CountPartitions:
        return math->CountPartitions_f(a[0]);
    case nt_CountkPartitions:
        return math->CountkPartitions_f(a[0], a[1]);
    case nt_BellNumber:
        return math->BellNumber_f(a[0]);
    case nt_StirlingNumber1stKindSigned:
        return math->StirlingNumber1stKindSigned_f(a[0], a[1]);
    case nt_StirlingNumber1stKindUnsigned:
        return math->StirlingNumber1stKindUnsigned_f(a[0], a[1]);
    case nt_StirlingNumber2ndKind:
        return math->StirlingNumber2ndKind_f(a[0], a[1]);
    case nt_PoissonCoefficient:
        return math->PoissonCoefficient_f(a[0], a[1]);
    case nt_isPrime:
        return math->isPrime_f(a[0]);
    case nt_Factor:
        return math->Factor_f(a[0], a[1]);
    case nt_FactorUnique:
        return math->FactorUnique_f(a[0], a[1]);
    case nt_nextPrime:
        return math->nextPrime_f(a[0]);
    case nt_previousPrime:
        return math->previousPrime_f(a[0]);
    case nt_nthPrime:
        return math->nthPrime_f(a[0]);
    case nt_FFT1:
        return math->FFT1_f(a[0]);
    case nt_FFTI1:
        return math->FFTI1_f(a[0]);
    case nt_FFT2:
        return math->FFT2_f(a[0]);
    case nt_FFTI2:
        return math->FFTI2_f(a[0]);
    case nt_FFTShift:
        return math->FFTShift_f(a[0]);
    case nt_FFT1N:
        return math->FFT1N_f(a[0], a[1]);
    case nt_FFTI1N:
        return math->FFTI1N_f(a[0], a[1]);
    case nt_FFT2N:
        return math->FFT2N_f(a[0], a[1], a[2]);
    case nt_FFTI2N:
        return math->FFTI2N_f(a[0], a[1], a[2]);
    case nt_DCT1:
        return math->DCT1_f(a[0], a[1]);
    case nt_DCTI1:
        return math->DCTI1_f(a[0], a[1]);
    case nt_fwht:
        return math->fwht_f(a[0], a[1], a[2]);
    case nt_ifwht:
        return math->ifwht_f(a[0], a[1], a[2]);
    case nt_flip:
        return math->flip_f(a[0], a[1]);
    case nt_complexRe:
        return math->complexRe_f(a[0]);

    // --- images ---
    case nt_IsImage:
        return math->IsImage_f(a[0]);
    case nt_ImageSetDPI:
        return math->ImageSetDPI_f(a[0], a[1]);
    case nt_ImageDPI:
        return math->ImageDPI_f(a[0]);
    case nt_ImageCreate:
        return math->ImageCreate_f(a[0], a[1]);
    case nt_ImageWidth:
        return math->ImageWidth_f(a[0]);
    case nt_ImageHeight:
        return math->ImageHeight_f(a[0]);
    case nt_ImageFill:
        return math->ImageFill_f(a[0], a[1]);
    case nt_ImageRed:
        return math->ImageRed_f(a[0]);
    case nt_ImageGreen:
        return math->ImageGreen_f(a[0]);
    case nt_ImageBlue:
        return math->ImageBlue_f(a[0]);
    case nt_ImageAlpha:
        return math->ImageAlpha_f(a[0]);
    case nt_ImageBGRA:
        return math->ImageBGRA_f(a[0], a[1], a[2], a[3]);
    case nt_ImageRedMul:
        return math->ImageRedMul_f(a[0], a[1]);
    case nt_ImageGreenMul:
        return math->ImageGreenMul_f(a[0], a[1]);
    case nt_ImageBlueMul:
        return math->ImageBlueMul_f(a[0], a[1]);
    case nt_ImageAlphaMul:
        return math->ImageAlphaMul_f(a[0], a[1]);
    case nt_ToRed:
        return math->ToRed_f(a[0]);
    case nt_ToGreen:
        return math->ToGreen_f(a[0]);
    case nt_ToBlue:
        return math->ToBlue_f(a[0]);
    case nt_ToAlpha:
        return math->ToAlpha_f(a[0]);
    case nt_ToBGRA:
        return math->ToBGRA_f(a[0], a[1], a[2], a[3]);
    case nt_Image2Matrix:
        return math->Image2Matrix_f(a[0]);
    case nt_Matrix2Image:
        return math->Matrix2Image_f(a[0]);
    case nt_ImageFilter:
        return math->ImageFilter_f(a[0], a[1]);
    case nt_ImageSmooth:
        return math->ImageSmooth_f(a[0]);
    case nt_ImageEdge:
        return math->ImageEdge_f(a[0]);
    case nt_ImageMblur:
        return math->ImageMblur_f(a[0]);
    case nt_ImageSharpen:
        return math->ImageSharpen_f(a[0]);
    case nt_ImageRaised:
        return math->ImageRaised_f(a[0]);
    case nt_ImageMedian:
        return math->ImageMedian_f(a[0], a[1]);
    case nt_ImageAbsDiff:
        return math->ImageAbsDiff_f(a[0], a[1]);
    case nt_ImageMsePsnr:
        return math->ImageMsePsnr_f(a[0], a[1]);

    // --- filter design and running filters ---
    case nt_makeWindow:
        return math->makeWindow_f(a[0], a[1]);
    case nt_FIRlowpass:
        return math->FIRlowpass_f(a[0], a[1], a[2], a[3]);
    case nt_FIRhighpass:
        return math->FIRhighpass_f(a[0], a[1], a[2], a[3]);
    case nt_FIRbandpass:
        return math->FIRbandpass_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_FIRbandstop:
        return math->FIRbandstop_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_FIRhilbert:
        return math->FIRhilbert_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_InitFIRFilter:
        return math->InitFIRFilter_f(a[0], a[1], a[2]);
    case nt_FIRFilter:
        return math->FIRFilter_f(a[0], a[1], a[2]);
    case nt_InitIIRFilter:
        return math->InitIIRFilter_f(a[0], a[1]);
    case nt_IIRFilter:
        return math->IIRFilter_f(a[0], a[1], a[2], a[3]);
    case nt_MovingAverage:
        return math->MovingAverage_f(a[0], a[1]);
    case nt_LMSAdaptive:
        return math->LMSAdaptive_f(a[0], a[1], a[2], a[3]);
    case nt_buttlowhigh:
        return math->buttlowhigh_f(a[0], a[1], a[2], a[3]);
    case nt_buttband:
        return math->buttband_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_cheby1lohi:
        return math->cheby1lohi_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_cheby1band:
        return math->cheby1band_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_cheby2lohi:
        return math->cheby2lohi_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_cheby2band:
        return math->cheby2band_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_elliplohi:
        return math->elliplohi_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_ellipband:
        return math->ellipband_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case nt_FIRFreqResponse:
        return math->FIRFreqResponse_f(a[0], a[1], a[2]);
    case nt_IIRFreqResponse:
        return math->IIRFreqResponse_f(a[0], a[1], a[2], a[3]);
    case nt_iirgroupdelay:
        return math->iirgroupdelay_f(a[0], a[1], a[2]);
    case nt_iirphasedelay:
        return math->iirphasedelay_f(a[0], a[1], a[2]);
    case nt_firopt:
        return math->firopt_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case nt_firoptord:
        return math->firoptord_f(a[0], a[1], a[2], a[3], a[4]);
    case nt_firfreqsampl:
        return math->firfreqsampl_f(a[0], a[1], a[2], a[3]);

    // --- distributions, random numbers and statistics ---
    case nt_average:
        return math->average_f(a[0]);
    case nt_RowsAverage:
        return math->RowsAverage_f(a[0]);
    case nt_ColumnsAverage:
        return math->ColumnsAverage_f(a[0]);
    case nt_variance:
        return math->variance_f(a[0]);
    case nt_rowVariance:
        return math->rowVariance_f(a[0]);
    case nt_columnVariance:
        return math->columnVariance_f(a[0]);
    case nt_varianceSample:
        return math->varianceSample_f(a[0]);
    case nt_deviation:
        return math->deviation_f(a[0]);
    case nt_RowsDeviation:
        return math->RowsDeviation_f(a[0]);
    case nt_ColumnsDeviation:
        return math->ColumnsDeviation_f(a[0]);
    case nt_deviationSample:
        return math->deviationSample_f(a[0]);
    case nt_rowDeviationSample:
        return math->rowDeviationSample_f(a[0]);
    case nt_columnDeviationSample:
        return math->columnDeviationSample_f(a[0]);
    case nt_avgdev:
        return math->avgdev_f(a[0]);
    case nt_rowAvgdev:
        return math->rowAvgdev_f(a[0]);
    case nt_columnAvgdev:
        return math->columnAvgdev_f(a[0]);
    case nt_asymmetry:
        return math->asymmetry_f(a[0]);
    case nt_rowAsymmetry:
        return math->rowAsymmetry_f(a[0]);
    case nt_columnAsymmetry:
        return math->columnAsymmetry_f(a[0]);
    case nt_median:
        return math->median_f(a[0]);
    case nt_rowMedian:
        return math->rowMedian_f(a[0]);
    case nt_columnMedian:
        return math->columnMedian_f(a[0]);
    case nt_modus:
        return math->modus_f(a[0]);
    case nt_rowModus:
        return math->rowModus_f(a[0]);
    case nt_columnModus:
        return math->columnModus_f(a[0]);
    case nt_trimmean:
        return math->trimmean_f(a[0], a[1]);
    case nt_rowTrimmean:
        return math->rowTrimmean_f(a[0], a[1]);
    case nt_columnTrimmean:
        return math->columnTrimmean_f(a[0], a[1]);
    case nt_percentile:
        return math->percentile_f(a[0], a[1]);
    case nt_rowPercentile:
        return math->rowPercentile_f(a[0], a[1]);
    case nt_columnPercentile:
        return math->columnPercentile_f(a[0], a[1]);
    case nt_autocorrelation:
        return math->autocorrelation_f(a[0], a[1]);
    case nt_rowAutocorrelation:
        return math->rowAutocorrelation_f(a[0], a[1]);
    case nt_columnAutocorrelation:
        return math->columnAutocorrelation_f(a[0], a[1]);
    case nt_correlation:
        return math->correlation_f(a[0], a[1]);
    case nt_rowCorrelation:
        return math->rowCorrelation_f(a[0], a[1]);
    case nt_columnCorrelation:
        return math->columnCorrelation_f(a[0], a[1]);
    case nt_covariance:
        return math->covariance_f(a[0], a[1]);
    case nt_rowCovariance:
        return math->rowCovariance_f(a[0], a[1]);
    case nt_columnCovariance:
        return math->columnCovariance_f(a[0], a[1]);
    case nt_MeanSquareError:
        return math->MeanSquareError_f(a[0], a[1]);
    case nt_MeanAbsoluteError:
        return math->MeanAbsoluteError_f(a[0], a[1]);
    case nt_MeanPercentageError:
        return math->MeanPercentageError_f(a[0], a[1]);
    case nt_MeanAbsolutePercentageError:
        return math->MeanAbsolutePercentageError_f(a[0], a[1]);
    case nt_tdens:
        return math->tdens_f(a[0], a[1]);
    case nt_tdist:
        return math->tdist_f(a[0], a[1]);
    case nt_tinv:
        return math->tinv_f(a[0], a[1]);
    case nt_chidens:
        return math->chidens_f(a[0], a[1]);
    case nt_chidist:
        return math->chidist_f(a[0], a[1]);
    case nt_chiinv:
        return math->chiinv_f(a[0], a[1]);
    case nt_poissondens:
        return math->poissondens_f(a[0], a[1]);
    case nt_poissondist:
        return math->poissondist_f(a[0], a[1]);
    case nt_poissoninv:
        return math->poissoninv_f(a[0], a[1]);
    case nt_geometricdens:
        return math->geometricdens_f(a[0], a[1]);
    case nt_geometricdist:
        return math->geometricdist_f(a[0], a[1]);
    case nt_geometricinv:
        return math->geometricinv_f(a[0], a[1]);
    case nt_logarithmicdens:
        return math->logarithmicdens_f(a[0], a[1]);
    case nt_logarithmicdist:
        return math->logarithmicdist_f(a[0], a[1]);
    case nt_logarithmicinv:
        return math->logarithmicinv_f(a[0], a[1]);
    case nt_exponentialdens:
        return math->exponentialdens_f(a[0], a[1]);
    case nt_exponentialdist:
        return math->exponentialdist_f(a[0], a[1]);
    case nt_exponentialinv:
        return math->exponentialinv_f(a[0], a[1]);
    case nt_normaldens:
        return math->normaldens_f(a[0], a[1], a[2]);
    case nt_normaldist:
        return math->normaldist_f(a[0], a[1], a[2]);
    case nt_normalinv:
        return math->normalinv_f(a[0], a[1], a[2]);
    case nt_gammadens:
        return math->gammadens_f(a[0], a[1], a[2]);
    case nt_gammadist:
        return math->gammadist_f(a[0], a[1], a[2]);
    case nt_gammainv:
        return math->gammainv_f(a[0], a[1], a[2]);
    case nt_betadens:
        return math->betadens_f(a[0], a[1], a[2]);
    case nt_betadist:
        return math->betadist_f(a[0], a[1], a[2]);
    case nt_betainv:
        return math->betainv_f(a[0], a[1], a[2]);
    case nt_fdens:
        return math->fdens_f(a[0], a[1], a[2]);
    case nt_fdist:
        return math->fdist_f(a[0], a[1], a[2]);
    case nt_finv:
        return math->finv_f(a[0], a[1], a[2]);
    case nt_dblexponentialdens:
        return math->dblexponentialdens_f(a[0], a[1], a[2]);
    case nt_dblexponentialdist:
        return math->dblexponentialdist_f(a[0], a[1], a[2]);
    case nt_dblexponentialinv:
        return math->dblexponentialinv_f(a[0], a[1], a[2]);
    case nt_cauchydens:
        return math->cauchydens_f(a[0], a[1], a[2]);
    case nt_cauchydist:
        return math->cauchydist_f(a[0], a[1], a[2]);
    case nt_cauchyinv:
        return math->cauchyinv_f(a[0], a[1], a[2]);
    case nt_uRandNum:
        return math->uRandNum_f(a[0], a[1]);
    case nt_uRandVec:
        return math->uRandVec_f(a[0], a[1], a[2]);
    case nt_uRandMat:
        return math->uRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_normRandNum:
        return math->normRandNum_f(a[0], a[1]);
    case nt_normRandVec:
        return math->normRandVec_f(a[0], a[1], a[2]);
    case nt_normRandMat:
        return math->normRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_expRandNum:
        return math->expRandNum_f(a[0]);
    case nt_expRandVec:
        return math->expRandVec_f(a[0], a[1]);
    case nt_expRandMat:
        return math->expRandMat_f(a[0], a[1], a[2]);
    case nt_dblexpRandNum:
        return math->dblexpRandNum_f(a[0]);
    case nt_dblexpRandVec:
        return math->dblexpRandVec_f(a[0], a[1]);
    case nt_dblexpRandMat:
        return math->dblexpRandMat_f(a[0], a[1], a[2]);
    case nt_gammaRandNum:
        return math->gammaRandNum_f(a[0], a[1]);
    case nt_gammaRandVec:
        return math->gammaRandVec_f(a[0], a[1], a[2]);
    case nt_gammaRandMat:
        return math->gammaRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_betaRandNum:
        return math->betaRandNum_f(a[0], a[1]);
    case nt_betaRandVec:
        return math->betaRandVec_f(a[0], a[1], a[2]);
    case nt_betaRandMat:
        return math->betaRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_chi2RandNum:
        return math->chi2RandNum_f(a[0]);
    case nt_chi2RandVec:
        return math->chi2RandVec_f(a[0], a[1]);
    case nt_chi2RandMat:
        return math->chi2RandMat_f(a[0], a[1], a[2]);
    case nt_cauchyRandNum:
        return math->cauchyRandNum_f(a[0], a[1]);
    case nt_cauchyRandVec:
        return math->cauchyRandVec_f(a[0], a[1], a[2]);
    case nt_cauchyRandMat:
        return math->cauchyRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_fRandNum:
        return math->fRandNum_f(a[0], a[1]);
    case nt_fRandVec:
        return math->fRandVec_f(a[0], a[1], a[2]);
    case nt_fRandMat:
        return math->fRandMat_f(a[0], a[1], a[2], a[3]);
    case nt_tRandNum:
        return math->tRandNum_f(a[0]);
    case nt_tRandVec:
        return math->tRandVec_f(a[0], a[1]);
    case nt_tRandMat:
        return math->tRandMat_f(a[0], a[1], a[2]);
    case nt_poissonRandNum:
        return math->poissonRandNum_f(a[0]);
    case nt_poissonRandVec:
        return math->poissonRandVec_f(a[0], a[1]);
    case nt_poissonRandMat:
        return math->poissonRandMat_f(a[0], a[1], a[2]);
    case nt_geometricRandNum:
        return math->geometricRandNum_f(a[0]);
    case nt_geometricRandVec:
        return math->geometricRandVec_f(a[0], a[1]);
    case nt_geometricRandMat:
        return math->geometricRandMat_f(a[0], a[1], a[2]);
    case nt_logarithmicRandNum:
        return math->logarithmicRandNum_f(a[0]);
    case nt_logarithmicRandVec:
        return math->logarithmicRandVec_f(a[0], a[1]);
    case nt_logarithmicRandMat:
        return math->logarithmicRandMat_f(a[0], a[1], a[2]);

    // --- decompositions and linear equations ---
    case nt_decLU:
        return math->decLU_f(a[0]);
    case nt_decLUL:
        return math->decLUL_f(a[0]);
    case nt_decLUU:
        return math->decLUU_f(a[0]);
    case nt_decLUPQ:
        return math->decLUPQ_f(a[0]);
    case nt_decLUPQL:
        return math->decLUPQL_f(a[0]);
    case nt_decLUPQU:
        return math->decLUPQU_f(a[0]);
    case nt_decLUPQP:
        return math->decLUPQP_f(a[0]);
    case nt_decLUPQQ:
        return math->decLUPQQ_f(a[0]);
    case nt_decQR:
        return math->decQR_f(a[0]);
    case nt_decQRQ:
        return math->decQRQ_f(a[0]);
    case nt_decQRR:
        return math->decQRR_f(a[0]);
    case nt_decQRP:
        return math->decQRP_f(a[0]);
    case nt_decQRPQ:
        return math->decQRPQ_f(a[0]);
    case nt_decQRPR:
        return math->decQRPR_f(a[0]);
    case nt_decQRPP:
        return math->decQRPP_f(a[0]);
    case nt_decHessenberg:
        return math->decHessenberg_f(a[0]);
    case nt_decHessenbergH:
        return math->decHessenbergH_f(a[0]);
    case nt_decHessenbergQ:
        return math->decHessenbergQ_f(a[0]);
    case nt_decCholesky:
        return math->decCholesky_f(a[0]);
    case nt_decCholeskyLDP:
        return math->decCholeskyLDP_f(a[0]);
    case nt_decCholeskyLDPL:
        return math->decCholeskyLDPL_f(a[0]);
    case nt_decCholeskyLDPD:
        return math->decCholeskyLDPD_f(a[0]);
    case nt_decCholeskyLDPP:
        return math->decCholeskyLDPP_f(a[0]);
    case nt_decSVD:
        return math->decSVD_f(a[0]);
    case nt_decSVDU:
        return math->decSVDU_f(a[0]);
    case nt_decSVDS:
        return math->decSVDS_f(a[0]);
    case nt_decSVDV:
        return math->decSVDV_f(a[0]);
    case nt_characteristicPolynomialRoots:
        return math->characteristicPolynomialRoots_f(a[0]);
    case nt_diagonalization:
        return math->diagonalization_f(a[0]);
    case nt_diagonalizationD:
        return math->diagonalizationD_f(a[0]);
    case nt_diagonalizationP:
        return math->diagonalizationP_f(a[0]);
    case nt_eigenVectors:
        return math->eigenVectors_f(a[0]);
    case nt_rank:
        return math->rank_f(a[0]);
    case nt_matRREForm:
        return math->matRREForm_f(a[0]);
    case nt_matrixDeterminant:
        return math->matrixDeterminant_f(a[0]);
    case nt_isHermitian:
        return math->isHermitian_f(a[0]);
    case nt_positiveDefinite:
        return math->positiveDefinite_f(a[0]);
    case nt_charpoly:
        return math->charpoly_f(a[0], a[1]);
    case nt_linsolve:
        return math->linsolve_f(a[0], a[1]);
    case nt_linsolvesys:
        return math->linsolvesys_f(a[0], a[1]);
    case nt_linSysMatrix:
        return math->linSysMatrix_f(a[0], a[1]);
    case nt_linSysTerms:
        return math->linSysTerms_f(a[0], a[1]);
    case nt_linSysSplit:
        return math->linSysSplit_f(a[0], a[1]);

    // --- finance, coordinates, geometry, conversions and chemistry ---
    case nt_Decimal2Binary:
        return math->Decimal2Binary_f(a[0]);
    case nt_Binary2Decimal:
        return math->Binary2Decimal_f(a[0]);
    case nt_Decimal2Hexadecimal:
        return math->Decimal2Hexadecimal_f(a[0]);
    case nt_Hexadecimal2Decimal:
        return math->Hexadecimal2Decimal_f(a[0]);
    case nt_Binary2Hexadecimal:
        return math->Binary2Hexadecimal_f(a[0]);
    case nt_Hexadecimal2Binary:
        return math->Hexadecimal2Binary_f(a[0]);
    case nt_Newton2Pound:
        return math->Newton2Pound_f(a[0]);
    case nt_Pound2Newton:
        return math->Pound2Newton_f(a[0]);
    case nt_Meter2Foot:
        return math->Meter2Foot_f(a[0]);
    case nt_Foot2Meter:
        return math->Foot2Meter_f(a[0]);
    case nt_Kilo2Pound:
        return math->Kilo2Pound_f(a[0]);
    case nt_Pound2Kilo:
        return math->Pound2Kilo_f(a[0]);
    case nt_Celsius2Fahrenheit:
        return math->Celsius2Fahrenheit_f(a[0]);
    case nt_Fahrenheit2Celsius:
        return math->Fahrenheit2Celsius_f(a[0]);
    case nt_grad2deg:
        return math->grad2deg_f(a[0]);
    case nt_deg2grad:
        return math->deg2grad_f(a[0]);
    case nt_isBitActive:
        return math->isBitActive_f(a[0], a[1]);
    case nt_setBit:
        return math->setBit_f(a[0], a[1], a[2]);
    case nt_complex:
        return math->complex_f(a[0], a[1]);
    case nt_complexImg:
        return math->complexImg_f(a[0]);
    case nt_phangle:
        return math->phangle_f(a[0]);
    case nt_timeNow:
        return math->timeNow_f();
    case nt_cartesian2polar:
        return math->cartesian2polar_f(a[0], a[1]);
    case nt_cartesian2polarR:
        return math->cartesian2polarR_f(a[0], a[1]);
    case nt_cartesian2polarF:
        return math->cartesian2polarF_f(a[0], a[1]);
    case nt_polar2cartesian:
        return math->polar2cartesian_f(a[0], a[1]);
    case nt_polar2cartesianX:
        return math->polar2cartesianX_f(a[0], a[1]);
    case nt_polar2cartesianY:
        return math->polar2cartesianY_f(a[0], a[1]);
    case nt_cartesian2sphere:
        return math->cartesian2sphere_f(a[0], a[1], a[2]);
    case nt_cartesian2sphereR:
        return math->cartesian2sphereR_f(a[0], a[1], a[2]);
    case nt_cartesian2sphereF:
        return math->cartesian2sphereF_f(a[0], a[1], a[2]);
    case nt_cartesian2sphereT:
        return math->cartesian2sphereT_f(a[0], a[1], a[2]);
    case nt_sphere2cartesian:
        return math->sphere2cartesian_f(a[0], a[1], a[2]);
    case nt_sphere2cartesianX:
        return math->sphere2cartesianX_f(a[0], a[1], a[2]);
    case nt_sphere2cartesianY:
        return math->sphere2cartesianY_f(a[0], a[1], a[2]);
    case nt_sphere2cartesianZ:
        return math->sphere2cartesianZ_f(a[0], a[1], a[2]);
    case nt_cartesian2cylinder:
        return math->cartesian2cylinder_f(a[0], a[1], a[2]);
    case nt_cartesian2cylinderR:
        return math->cartesian2cylinderR_f(a[0], a[1], a[2]);
    case nt_cartesian2cylinderF:
        return math->cartesian2cylinderF_f(a[0], a[1], a[2]);
    case nt_cartesian2cylinderZ:
        return math->cartesian2cylinderZ_f(a[0], a[1], a[2]);
    case nt_cylinder2cartesian:
        return math->cylinder2cartesian_f(a[0], a[1], a[2]);
    case nt_cylinder2cartesianX:
        return math->cylinder2cartesianX_f(a[0], a[1], a[2]);
    case nt_cylinder2cartesianY:
        return math->cylinder2cartesianY_f(a[0], a[1], a[2]);
    case nt_cylinder2cartesianZ:
        return math->cylinder2cartesianZ_f(a[0], a[1], a[2]);
    case nt_cylinder2sphere:
        return math->cylinder2sphere_f(a[0], a[1], a[2]);
    case nt_cylinder2sphereR:
        return math->cylinder2sphereR_f(a[0], a[1], a[2]);
    case nt_cylinder2sphereF:
        return math->cylinder2sphereF_f(a[0], a[1], a[2]);
    case nt_cylinder2sphereT:
        return math->cylinder2sphereT_f(a[0], a[1], a[2]);
    case nt_sphere2cylinder:
        return math->sphere2cylinder_f(a[0], a[1], a[2]);
    case nt_sphere2cylinderR:
        return math->sphere2cylinderR_f(a[0], a[1], a[2]);
    case nt_sphere2cylinderF:
        return math->sphere2cylinderF_f(a[0], a[1], a[2]);
    case nt_sphere2cylinderZ:
        return math->sphere2cylinderZ_f(a[0], a[1], a[2]);
    case nt_presentvalue:
        return math->presentvalue_f(a[0], a[1], a[2], a[3]);
    case nt_futurevalue:
        return math->futurevalue_f(a[0], a[1], a[2], a[3]);
    case nt_annualpayment:
        return math->annualpayment_f(a[0], a[1], a[2]);
    case nt_interestpayment:
        return math->interestpayment_f(a[0], a[1], a[2], a[3]);
    case nt_capitalpayment:
        return math->capitalpayment_f(a[0], a[1], a[2], a[3]);
    case nt_rate:
        return math->rate_f(a[0], a[1], a[2]);
    case nt_numberofperiods:
        return math->numberofperiods_f(a[0], a[1], a[2]);
    case nt_bondprice:
        return math->bondprice_f(a[0], a[1], a[2]);
    case nt_bondyieldtomaturity:
        return math->bondyieldtomaturity_f(a[0], a[1], a[2]);
    case nt_bondduration:
        return math->bondduration_f(a[0], a[1], a[2]);
    case nt_bonddurationmodified:
        return math->bonddurationmodified_f(a[0], a[1], a[2], a[3]);
    case nt_bondconvexity:
        return math->bondconvexity_f(a[0], a[1], a[2]);
    case nt_bondaccuredinterest:
        return math->bondaccuredinterest_f(a[0], a[1], a[2]);
    case nt_areColinear:
        return math->areColinear_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_areComplanar:
        return math->areComplanar_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11]);
    case nt_areCocyclic:
        return math->areCocyclic_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
    case nt_areConcurent:
        return math->areConcurent_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_anglebtwlines:
        return math->anglebtwlines_f(a[0], a[1]);
    case nt_areaofTriangle:
        return math->areaofTriangle_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_angle:
        return math->angle_f(a[0], a[1], a[2], a[3], a[4], a[5]);
    case nt_PlotArc:
        return math->PlotArc_f(a[0], a[1]);
    case nt_PlotCircle:
        return math->PlotCircle_f(a[0], a[1]);
    case nt_volumeOfTetrahedron:
        return math->volumeOfTetrahedron_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11]);
    case nt_norm:
        return math->norm_f(a[0]);
    case nt_vecangle:
        return math->vecangle_f(a[0], a[1]);
    case nt_areOrthogonal:
        return math->areOrthogonal_f(a[0], a[1]);
    case nt_scalproj:
        return math->scalproj_f(a[0], a[1]);
    case nt_vecproj:
        return math->vecproj_f(a[0], a[1]);
    case nt_crossprod:
        return math->crossprod_f(a[0], a[1]);
    case nt_dotprod:
        return math->dotprod_f(a[0], a[1]);
    case nt_areaofParal3D:
        return math->areaofParal3D_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    case nt_vecareaofParal3D:
        return math->vecareaofParal3D_f(a[0], a[1]);
    case nt_areaofTriangle3D:
        return math->areaofTriangle3D_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    case nt_vecareaofTriangle3D:
        return math->vecareaofTriangle3D_f(a[0], a[1]);
    case nt_distPointLine:
        return math->distPointLine_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    case nt_planeVector:
        return math->planeVector_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    case nt_intersecLinePlane:
        return math->intersecLinePlane_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14]);
    case nt_intersecPlanes:
        return math->intersecPlanes_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14], a[15], a[16], a[17]);
    case nt_intersecTriangles:
        return math->intersecTriangles_f(a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14], a[15], a[16], a[17]);
    case nt_chemSolver:
        return math->chemSolver_f(a[0]);
    case nt_intersecsurface:
        return math->surfaceIntersection_f(a[0], a[1]);

    default:
        break;
    }
    return vhValue();
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
