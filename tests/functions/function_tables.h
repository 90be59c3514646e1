#pragma once

// The members of the elementwise and special families with their catalogue
// numbers, for the tests that run over all of them.

#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "frame/math.h"

namespace elementwise_tests {

using namespace VarnholtMath::ValueTypes;

// The rows of a reference table under tests/functions/data, split at commas;
// comment lines start with '#', and a trailing comma gives an empty cell.
inline std::vector<std::vector<std::string>> readCsv(const std::string& file)
{
    std::vector<std::vector<std::string>> rows;
    std::ifstream in(std::string(VH_TEST_DATA_DIR) + "/functions/data/" + file);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::vector<std::string> cells;
        std::stringstream row(line);
        std::string cell;
        while (std::getline(row, cell, ','))
            cells.push_back(cell);
        if (!line.empty() && line.back() == ',')
            cells.push_back("");
        rows.push_back(cells);
    }
    return rows;
}

typedef vhValue (vhMath::*UnaryMember)(const vhValue&);
typedef vhValue (vhMath::*BinaryMember)(const vhValue&, const vhValue&);

struct Unary {
    NodeType id;
    UnaryMember f;
};

struct Binary {
    NodeType id;
    BinaryMember f;
};

// The trigonometric functions come first: they read the angle unit.
inline const std::vector<Unary>& unaryMembers()
{
    static const std::vector<Unary> table = {
        {nt_sin, &vhMath::sin_f}, {nt_cos, &vhMath::cos_f}, {nt_tan, &vhMath::tan_f}, {nt_cot, &vhMath::cot_f},
        {nt_sec, &vhMath::sec_f}, {nt_csc, &vhMath::csc_f}, {nt_acos, &vhMath::acos_f}, {nt_asin, &vhMath::asin_f},
        {nt_atan, &vhMath::atan_f}, {nt_acot, &vhMath::acot_f}, {nt_asec, &vhMath::asec_f},
        {nt_acsc, &vhMath::acsc_f}, {nt_sinh, &vhMath::sinh_f}, {nt_cosh, &vhMath::cosh_f},
        {nt_tanh, &vhMath::tanh_f}, {nt_coth, &vhMath::coth_f}, {nt_sech, &vhMath::sech_f},
        {nt_csch, &vhMath::csch_f}, {nt_acosh, &vhMath::acosh_f}, {nt_asinh, &vhMath::asinh_f},
        {nt_atanh, &vhMath::atanh_f}, {nt_acoth, &vhMath::acoth_f}, {nt_asech, &vhMath::asech_f},
        {nt_acsch, &vhMath::acsch_f}, {nt_exp, &vhMath::exp_f}, {nt_exp2, &vhMath::exp2_f},
        {nt_expm1, &vhMath::expm1_f}, {nt_log, &vhMath::log_f}, {nt_log10, &vhMath::log10_f},
        {nt_log2, &vhMath::log2_f}, {nt_log1p, &vhMath::log1p_f}, {nt_logb, &vhMath::logb_f},
        {nt_sqrt, &vhMath::sqrt_f}, {nt_cbrt, &vhMath::cbrt_f}, {nt_abs, &vhMath::abs_f},
        {nt_abs24, &vhMath::abs_f}, {nt_fabs, &vhMath::fabs_f}, {nt_sgn, &vhMath::sgn_f},
        {nt_sgnIm, &vhMath::sgnIm_f}, {nt_ceil, &vhMath::ceil_f}, {nt_floor, &vhMath::floor_f},
        {nt_round, &vhMath::round_f}, {nt_trunc, &vhMath::trunc_f}, {nt_conj, &vhMath::conj_f},
        {nt_frexp, &vhMath::frexp_f}, {nt_modf, &vhMath::modf_f}, {nt_fact, &vhMath::fact_f},
        {nt_factorial, &vhMath::factorial_f}, {nt_heavyside, &vhMath::heavyside_f},
        {nt_numofdigits, &vhMath::numofdigits_f}, {nt_erf, &vhMath::erf_f}, {nt_erfc, &vhMath::erfc_f},
        {nt_lgamma, &vhMath::lgamma_f}, {nt_gamma, &vhMath::gamma_f}, {nt_zeta, &vhMath::zeta_f},
        {nt_lambert, &vhMath::lambert_f}, {nt_bgamma, &vhMath::bgamma_f}, {nt_AiryAi, &vhMath::AiryAi_f},
        {nt_AiryAiZero, &vhMath::AiryAiZero_f}, {nt_AiryBi, &vhMath::AiryBi_f},
        {nt_AiryBiZero, &vhMath::AiryBiZero_f}, {nt_ExponentialIntegralEi, &vhMath::ExponentialIntegralEi_f},
        {nt_FresnelsIntegralS, &vhMath::FresnelsIntegralS_f}, {nt_FresnelsIntegralC, &vhMath::FresnelsIntegralC_f},
        {nt_DawsonsIntegral, &vhMath::DawsonsIntegral_f}};
    return table;
}

const std::size_t kTrigonometricMembers = 12;

inline const std::vector<Binary>& binaryMembers()
{
    static const std::vector<Binary> table = {
        {nt_root, &vhMath::root_f}, {nt_pow, &vhMath::pow_f}, {nt_pow22, &vhMath::pow_f},
        {nt_atan2, &vhMath::atan2_f}, {nt_logax, &vhMath::logax_f}, {nt_fmod, &vhMath::fmod_f},
        {nt_mod, &vhMath::mod_f}, {nt_ldexp, &vhMath::ldexp_f}, {nt_scalbn, &vhMath::scalbn_f},
        {nt_fdim, &vhMath::fdim_f}, {nt_fmin, &vhMath::fmin_f}, {nt_fmax, &vhMath::fmax_f},
        {nt_min, &vhMath::min_f}, {nt_max, &vhMath::max_f}, {nt_hypot, &vhMath::hypot_f},
        {nt_remainder, &vhMath::remainder_f}, {nt_remquo, &vhMath::remquo_f},
        {nt_nextafter, &vhMath::nextafter_f}, {nt_beta, &vhMath::beta_f}, {nt_struve, &vhMath::struve_f},
        {nt_BesselFirstKind, &vhMath::BesselFirstKind_f}, {nt_BesselFirstKindZero, &vhMath::BesselFirstKindZero_f},
        {nt_BesselSecondKind, &vhMath::BesselSecondKind_f},
        {nt_BesselSecondKindZero, &vhMath::BesselSecondKindZero_f},
        {nt_ModifiedBesselFirstKind, &vhMath::ModifiedBesselFirstKind_f},
        {nt_ModifiedBesselSecondKind, &vhMath::ModifiedBesselSecondKind_f},
        {nt_SphericalBesselFirstKind, &vhMath::SphericalBesselFirstKind_f},
        {nt_SphericalBesselSecondKind, &vhMath::SphericalBesselSecondKind_f},
        {nt_ExponentialIntegralEn, &vhMath::ExponentialIntegralEn_f},
        {nt_EllipticIntegralCarlsonRc, &vhMath::EllipticIntegralCarlsonRc_f},
        {nt_JacobiEllipticSn, &vhMath::JacobiEllipticSn_f}, {nt_JacobiEllipticCn, &vhMath::JacobiEllipticCn_f},
        {nt_JacobiEllipticDn, &vhMath::JacobiEllipticDn_f}, {nt_JacobiCd, &vhMath::JacobiCd_f},
        {nt_JacobiCn, &vhMath::JacobiCn_f}, {nt_JacobiCs, &vhMath::JacobiCs_f}, {nt_JacobiDc, &vhMath::JacobiDc_f},
        {nt_JacobiDn, &vhMath::JacobiDn_f}, {nt_JacobiDs, &vhMath::JacobiDs_f}, {nt_JacobiNc, &vhMath::JacobiNc_f},
        {nt_JacobiNd, &vhMath::JacobiNd_f}, {nt_JacobiNs, &vhMath::JacobiNs_f}, {nt_JacobiSc, &vhMath::JacobiSc_f},
        {nt_JacobiSd, &vhMath::JacobiSd_f}, {nt_JacobiSn, &vhMath::JacobiSn_f},
        {nt_FermiDirac, &vhMath::FermiDirac_f}};
    return table;
}

// The members of three and four arguments, called with a full list.
inline vhValue callMany(vhMath& m, NodeType id, const std::vector<vhValue>& a)
{
    switch (id) {
    case nt_EllipticIntegralCarlsonRf: return m.EllipticIntegralCarlsonRf_f(a[0], a[1], a[2]);
    case nt_EllipticIntegralCarlsonRd: return m.EllipticIntegralCarlsonRd_f(a[0], a[1], a[2]);
    case nt_EllipticIntegralCarlsonRj: return m.EllipticIntegralCarlsonRj_f(a[0], a[1], a[2], a[3]);
    case nt_SphericalHarmonic: return m.SphericalHarmonic_f(a[0], a[1], a[2], a[3]);
    case nt_gausshypergeometric: return m.gausshypergeometric_f(a[0], a[1], a[2], a[3]);
    default: return vhValue();
    }
}

const NodeType kManyArguments[] = {nt_EllipticIntegralCarlsonRf, nt_EllipticIntegralCarlsonRd,
                                   nt_EllipticIntegralCarlsonRj, nt_SphericalHarmonic, nt_gausshypergeometric};

typedef std::function<vhValue(vhMath&, const std::vector<vhValue>&)> Caller;

// The member behind a catalogue name and a count of arguments, for reference
// tables keyed by name; an empty caller when there is none.
inline Caller callerByName(const std::string& name, std::size_t count)
{
    for (const Unary& u : unaryMembers())
        if (count == 1 && functionName(u.id) == name) {
            const UnaryMember f = u.f;
            return [f](vhMath& m, const std::vector<vhValue>& a) { return (m.*f)(a[0]); };
        }
    for (const Binary& b : binaryMembers())
        if (count == 2 && functionName(b.id) == name) {
            const BinaryMember f = b.f;
            return [f](vhMath& m, const std::vector<vhValue>& a) { return (m.*f)(a[0], a[1]); };
        }
    for (NodeType id : kManyArguments)
        if (count == numberOfFunctionArguments(id) && functionName(id) == name)
            return [id](vhMath& m, const std::vector<vhValue>& a) { return callMany(m, id, a); };
    return Caller();
}

} // namespace elementwise_tests
