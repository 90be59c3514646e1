// The door by number: a catalogue row and its arguments become one member
// call of vhMath. This is the one table of cases; every member that the
// engine reaches by number has its case here.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue callFunction(vhMath* math, NodeType id, const std::vector<vhValue>& arguments)
{
    if (!math)
        return vhValue();
    // The count must be the catalogue's; there is no variable argument count
    // in this door. The unknown numbers 56 and 425 throw from here.
    if (numberOfFunctionArguments(id) != arguments.size())
        return vhValue();

    // Eighteen is the largest argument count of any row.
    vhValue result;
    vhValue a[18];
    for (std::size_t i = 0; i < arguments.size() && i < 18; ++i)
        a[i] = arguments[i];

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
