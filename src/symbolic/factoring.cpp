// Pulling the common factor out of a sum: the symbols that every term holds,
// each to its lowest power, and the greatest common divisor of the
// coefficients, read in tenths: 0.5x + 1.5y is 0.5(x + 3y).

#include <cmath>
#include <cstdint>

#include "value/value.h"

#include "functions/number_theory_kernels.h"
#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

std::vector<vhValue> vhValue::factorize() const
{
    if (m_valueType != tagExpression)
        return std::vector<vhValue>();
    return vhExpression(*this).factorize();
}

std::vector<vhValue> vhValue::simplify() const
{
    if (m_valueType != tagExpression)
        return std::vector<vhValue>();
    return vhExpression(*this).simplify();
}

namespace {

// Coefficients are compared in tenths; more terms than this skip the
// numeric factor, whose cost would grow with them for little gain.
const std::size_t kMaxNumericTerms = 100;


// The greatest common divisor of the tenfold coefficients, cut to whole
// numbers; false when a coefficient is no real number or its tenfold leaves
// 32 bits.
bool tenthsDivisor(const std::vector<vhValue>& terms, std::uint32_t& g)
{
    g = 0;
    for (const vhValue& t : terms) {
        const vhValue* c = internal::isAtomTag(t.valueType()) ? t.firstMultiplier() : &t;
        if (!c || !c->isDouble())
            return false;
        const double tenfold = std::fabs(std::trunc(c->toDouble() * 10.0));
        if (!(tenfold <= 2147483647.0))
            return false;
        g = numbertheory::gcd(g, static_cast<std::uint32_t>(tenfold));
    }
    return true;
}

} // namespace

std::vector<vhValue> vhExpression::factorize() const
{
    const std::vector<vhValue>& terms = m_expressionValues;
    if (isNull() || m_valueType != tagExpression || terms.size() < 2)
        return std::vector<vhValue>();

    // The symbols common to all terms, each to the lowest power met.
    vhValue common;
    bool allAtoms = true;
    for (const vhValue& t : terms)
        allAtoms = allAtoms && t.isSymbolicValue();
    if (allAtoms) {
        common = vhInteger(1);
        std::vector<vhValue> candidates;
        terms[0].symbolicMultipliers(candidates);
        for (vhValue s : candidates) {
            bool everywhere = true;
            for (const vhValue& t : terms) {
                internal::FactorList factors;
                internal::symbolicChainFactors(t, factors);
                const vhValue* match = nullptr;
                for (const vhValue* f : factors)
                    if (f->symbolicEqual(s)) {
                        match = f;
                        break;
                    }
                if (!match) {
                    everywhere = false;
                    break;
                }
                if (match->exponent() && s.exponent() && match->exp() < s.exp()) {
                    s = *match;
                    s.resetMultiplier();
                }
            }
            if (everywhere)
                common *= s;
        }
        if (common.valueType() == tagInteger)
            common = vhValue();
    }

    // The numeric factor; a tenths divisor of 10 is the factor 1.
    vhValue numeric;
    std::uint32_t g = 0;
    if (terms.size() <= kMaxNumericTerms && tenthsDivisor(terms, g) && g != 0 && g != 10) {
        numeric = vhDouble(g / 10.0);
        if (common.isNull())
            common = numeric;
        else
            common *= numeric;
    }

    if (common.isNull())
        return std::vector<vhValue>();
    vhValue rest = vhExpression();
    if (!common.isSymbolicValue()) {
        for (const vhValue& t : terms)
            rest += t / common;
    } else {
        std::vector<vhValue> symbolsOfCommon;
        common.symbolicMultipliers(symbolsOfCommon);
        for (const vhValue& t : terms) {
            vhValue q(t);
            if (!numeric.isNull())
                q /= numeric;
            for (const vhValue& l : symbolsOfCommon)
                q /= l;
            rest += q;
        }
    }
    rest.setBracket(true);
    return std::vector<vhValue>{common, rest};
}

} // namespace ValueTypes
} // namespace VarnholtMath
