// Long division of sums, the way a polynomial is divided by hand: the terms
// of the rest are arranged by falling powers of the divisor's first symbol,
// the first term that the divisor's leading term divides gives the next term
// of the quotient, and that term times the divisor is taken off the rest. The
// division is exact when the rest comes out as zero.

#include <algorithm>

#include "value/value.h"

#include "frame/switches.h"
#include "functions/elementary.h"
#include "symbolic/atom_internal.h"
#include "symbolic/division_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace internal {

std::string firstSymbolName(const vhValue& v)
{
    std::vector<std::string> names;
    v.symbols(names, false);
    return names.empty() ? std::string() : names[0];
}

void topDegree(const vhValue* terms, std::size_t n, const vhValue& symbol, double& degree, std::size_t& count)
{
    degree = 0.0;
    count = 0;
    for (std::size_t i = 0; i < n; ++i) {
        double e = 0.0;
        if (symbol.isNull() || !terms[i].exponentForSymbol(symbol, e, false))
            e = 0.0;
        if (count == 0 || e > degree) {
            degree = e;
            count = 1;
        } else if (e == degree) {
            ++count;
        }
    }
}

} // namespace internal

namespace {

// How a loop of long division ended.
enum LoopEnd { endExact = 0, endExponent = 1, endOther = 2 };

// Neither form of division takes more steps than this; a loop that makes no
// progress ends here.
const int kStepBudget = 150;

enum class Verdict { accept, next, stop };

std::size_t symbolicFactorCount(const vhValue& v)
{
    internal::FactorList f;
    internal::symbolicChainFactors(v, f);
    return f.size();
}

// A factor of the leading term of higher power than the same factor in the
// term, or of a power below 1, can't divide it: the division ends.
bool exponentsAllow(const vhValue& term, const vhValue& leading)
{
    internal::FactorList ft, fd;
    internal::symbolicChainFactors(term, ft);
    internal::symbolicChainFactors(leading, fd);
    for (const vhValue* a : ft)
        for (const vhValue* b : fd)
            if (a->symbolicEqual(*b) && (b->exp() > a->exp() || b->exp() < 1.0))
                return false;
    return true;
}

// Whether the leading term d divides the term t, q being t / d. A quotient
// that brings in symbols the term didn't hold (x / y) means the next term.
Verdict judge(const vhValue& t, const vhValue& d, const vhValue& q)
{
    if (q.isNull())
        return Verdict::next;
    const bool tAtom = internal::isAtomTag(t.valueType());
    const bool dAtom = internal::isAtomTag(d.valueType());
    if (tAtom && dAtom) {
        if (symbolicFactorCount(q) > symbolicFactorCount(t))
            return Verdict::next;
        return exponentsAllow(t, d) ? Verdict::accept : Verdict::stop;
    }
    if (tAtom || !dAtom)
        return Verdict::accept;
    if (symbolicFactorCount(q) > symbolicFactorCount(d))
        return Verdict::next;
    return exponentsAllow(q, d) ? Verdict::accept : Verdict::stop;
}

// The leading term of the divisor: its first symbol, else its first held
// function, else its first unit, else its first term.
const vhValue& leadingTerm(const std::vector<vhValue>& terms)
{
    for (int tag : {tagSymbolicValue, tagSymbolicFunction, tagUnit})
        for (const vhValue& t : terms)
            if (t.valueType() == tag)
                return t;
    return terms[0];
}

} // namespace

vhValue vhExpression::withoutZeroTerms(const vhValue& quotient)
{
    const vhExpression wrapped(quotient);
    vhExpression result;
    result.m_expressionValues.reserve(wrapped.m_expressionValues.size());
    for (const vhValue& t : wrapped.m_expressionValues) {
        if (t.isNull())
            return vhValue();
        if (!t.isZero())
            result.m_expressionValues.push_back(t);
    }
    return result;
}

int vhExpression::longDivision(const vhExpression& divisor, bool shrinkTest, vhValue& quotient, vhValue& rest) const
{
    // The terms of the quotient are collected and added up once at the end:
    // adding each to the growing sum would copy the sum every step.
    std::vector<vhValue> steps;
    struct Sum {
        std::vector<vhValue>& steps;
        vhValue& quotient;
        ~Sum()
        {
            quotient = vhExpression();
            if (steps.empty())
                return;
            vhExpression first(steps[0]);
            vhExpression others;
            others.m_expressionValues.assign(steps.begin() + 1, steps.end());
            quotient = others.m_expressionValues.empty() ? vhValue(first) : first + others;
        }
    } sum{steps, quotient};
    vhExpression r(*this);
    for (const vhValue& t : r.m_expressionValues)
        if (t.isString()) {
            rest = r;
            return endOther;
        }
    const std::vector<vhValue>& b = divisor.m_expressionValues;
    const vhValue& d = leadingTerm(b);
    const std::string name = internal::firstSymbolName(divisor);
    const vhValue symbol = name.empty() ? vhValue() : vhValue(vhSymbolicValue(name, false, {}));
    const bool richLeading = d.valueType() > tagUnit;

    // Each walk sees the rest arranged as the dividend was: by falling power
    // of the symbol, equal powers in their order, terms without it last. The
    // walk follows that order by index; the rest itself is arranged once, when
    // it is handed out, so that a step does not move every record.
    std::vector<std::size_t> order;
    std::vector<double> powers;
    std::vector<char> holds;
    auto arrangedOrder = [&]() {
        const std::size_t n = r.m_expressionValues.size();
        order.clear();
        powers.assign(n, 0.0);
        holds.assign(n, 0);
        for (std::size_t i = 0; i < n; ++i)
            holds[i] = !symbol.isNull() && r.m_expressionValues[i].exponentForSymbol(symbol, powers[i], false);
        for (std::size_t i = 0; i < n; ++i)
            if (holds[i])
                order.push_back(i);
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return powers[a] > powers[b]; });
        for (std::size_t i = 0; i < n; ++i)
            if (!holds[i])
                order.push_back(i);
    };
    struct Arranged {
        vhExpression& r;
        const vhValue& symbol;
        vhValue& rest;
        ~Arranged()
        {
            if (!rest.isNull() && !symbol.isNull())
                rest.arrangeExponents(symbol);
        }
    } arrangeRest{r, symbol, rest};

    for (int accepted = 0; accepted < kStepBudget && !internal::RecursionGuard::spent();) {
        arrangedOrder();
        vhValue q;
        Verdict verdict = Verdict::next;
        for (std::size_t index : order) {
            const vhValue& t = r.m_expressionValues[index];
            // Arrays and richer values divide only among themselves.
            if ((t.valueType() > tagUnit) != richLeading) {
                rest = r;
                return endOther;
            }
            q = t / d;
            verdict = judge(t, d, q);
            if (verdict != Verdict::next)
                break;
        }
        if (verdict != Verdict::accept) {
            rest = r;
            return verdict == Verdict::stop ? endExponent : endOther;
        }
        // The rest less q times the divisor: one term addition per divisor
        // term. The products need no merging among themselves: the rest's
        // walk merges each.
        vhExpression product;
        product.m_expressionValues.reserve(b.size());
        for (const vhValue& bt : b) {
            vhValue p = bt * q;
            if (p.isNull()) {
                rest = r;
                return endOther;
            }
            product.m_expressionValues.push_back(std::move(p));
        }
        vhValue next = r.sumWith(product, true);
        if (next.isNull()) {
            rest = r;
            return endOther;
        }
        if (next.isZero()) {
            steps.push_back(q);
            rest = vhValue();
            return endExact;
        }
        vhExpression nextRest;
        if (next.m_valueType == tagExpression)
            nextRest.m_expressionValues.swap(next.m_expressionValues);
        else
            nextRest.m_expressionValues.push_back(std::move(next));
        if (shrinkTest) {
            // A step must lower the top power of the symbol, or leave fewer
            // terms of that power; anything else makes no progress.
            double before, after;
            std::size_t countBefore, countAfter;
            internal::topDegree(r.m_expressionValues.data(), r.m_expressionValues.size(), symbol, before, countBefore);
            internal::topDegree(nextRest.m_expressionValues.data(), nextRest.m_expressionValues.size(), symbol,
                                after, countAfter);
            if (!(after < before || (after == before && countAfter < countBefore))) {
                rest = r;
                return endOther;
            }
        }
        steps.push_back(std::move(q));
        r.m_expressionValues.swap(nextRest.m_expressionValues);
        ++accepted;
    }
    rest = r;
    return endOther;
}

vhValue vhExpression::division(const vhValue& divisor, vhValue& remainder, int depth) const
{
    if (m_valueType != tagExpression)
        return vhExpression(*this).division(divisor, remainder, 0);
    if (depth > 1)
        return vhValue();
    remainder = vhValue();
    if (divisor.valueType() != tagExpression && divisor.isNull())
        return vhValue();
    if (divisor.isZero())
        return vhValue();
    if (isNull() || divisor.isNull())
        return vhExpression();
    internal::RecursionGuard guard;
    if (guard.exceeded())
        return vhValue();

    vhExpression a(*this);
    vhExpression b(divisor);
    a.arrangeExponentsForFirstSymbol(false);
    b.arrangeExponentsForFirstSymbol(false);
    if (a == b)
        return vhInteger(1);
    if (b.m_expressionValues.size() == 1) {
        vhValue sum = vhExpression();
        for (const vhValue& t : a.m_expressionValues) {
            const vhValue q = t / b.m_expressionValues[0];
            if (q.isNull()) {
                remainder = a;
                return vhExpression();
            }
            sum += q;
        }
        return sum;
    }
    if (a.m_expressionValues.size() == 1)
        return vhExpression();
    vhValue quotient;
    a.longDivision(b, true, quotient, remainder);
    return withoutZeroTerms(quotient);
}

vhValue vhValue::division(const vhValue& divisor, vhValue& remainder) const
{
    remainder = vhValue();
    if (m_valueType != tagExpression)
        return vhValue();
    return vhExpression(*this).division(divisor, remainder, 0);
}

vhValue vhExpression::operator/(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator/(other);
    const int t = other.valueType();
    if (t > tagExpression) {
        if (t == tagFraction && other.numerator() && other.denominator())
            return vhFraction(*this * *other.denominator(), *other.numerator());
        return vhValue();
    }
    if (t <= tagMatrix && other.isNull())
        return vhValue();
    if (isNull() || (t == tagExpression && other.isNull()))
        return vhExpression();
    if (other.isZero())
        return vhValue();

    // What does not divide out: a fraction, or while fractions are off the
    // product with the divisor's reciprocal power.
    auto fallback = [&]() -> vhValue {
        if (fractionsOn())
            return vhFraction(*this, other);
        return *this * pow_f(other, vhInteger(-1));
    };
    internal::RecursionGuard guard;
    if (guard.exceeded())
        return vhValue();

    vhExpression a(*this);
    vhExpression b(other);
    a.arrangeExponentsForFirstSymbol(false);
    b.arrangeExponentsForFirstSymbol(false);
    if (a == b)
        return vhInteger(1);
    if (b.m_expressionValues.size() == 1) {
        vhValue sum = vhExpression();
        for (const vhValue& term : a.m_expressionValues) {
            const vhValue q = term / b.m_expressionValues[0];
            if (q.isNull())
                return fallback();
            sum += q;
        }
        return sum;
    }
    if (a.m_expressionValues.size() == 1)
        return fallback();

    vhValue quotient, rest;
    const int end = a.longDivision(b, false, quotient, rest);
    if (end == endExact)
        return withoutZeroTerms(quotient);
    if (end == endExponent) {
        // The divisor is of higher degree: the other way round may divide,
        // (x - 1)/(x^2 - 1) being 1/(x + 1).
        vhValue remainder;
        const vhValue reverse = b.division(*this, remainder, 0);
        if (reverse.valueType() == tagExpression && !reverse.isNull() && remainder.isNull()) {
            if (fractionsOn())
                return vhFraction(vhInteger(1), reverse);
            return vhInteger(1) * pow_f(reverse, vhInteger(-1));
        }
    }
    return fallback();
}

} // namespace ValueTypes
} // namespace VarnholtMath
