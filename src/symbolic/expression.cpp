// Sums: a flat list of terms, each a number or a symbolic atom with its
// multiplier chain. There is no product node: a product of sums is expanded
// at once, and like terms merge while the product is being produced. The
// terms keep the order in which they first appeared, no two of them merge, and
// none is zero.

#include <algorithm>

#include "value/class_macros.h"
#include "value/value.h"

#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

vhExpression::vhExpression() { m_valueType = tagExpression; }

vhExpression::vhExpression(const vhValue& v)
{
    if (v.valueType() == tagExpression) {
        setValue(v);
        return;
    }
    m_valueType = tagExpression;
    if (!v.isNull())
        m_expressionValues.push_back(v);
}

vhExpression::vhExpression(const vhExpression& v) : vhValue(v) {}

vhExpression::vhExpression(const std::string& symbol)
{
    m_valueType = tagExpression;
    if (!symbol.empty())
        m_expressionValues.push_back(vhSymbolicValue(symbol, false, std::vector<CharFormat>()));
}

vhValue expressionToValue(const vhValue& value)
{
    if (value.valueType() == tagExpression) {
        const unsigned int n = value.expressionValuesSize();
        if (n == 0)
            return vhInteger(0);
        if (n == 1)
            return value.expressionValues()[0];
    }
    return value;
}

namespace {

// Moves the record of src into dst without copying; src is left with dst's
// old content. The expression class passes its own access to the record.
template <class Move> void takeOver(vhValue& dst, vhValue& src, Move move) { move(dst, src); }

// Adds (or subtracts) the terms of b into the list a, term by term: each term
// of b is offered to the terms of a in order, and the first that merges with
// it takes the result. The terms of b are used up. False when two terms can't
// be added at all.
template <class Move>
bool addTerms(std::vector<vhValue>& a, std::vector<vhValue>& b, bool subtract, Move move)
{
    for (vhValue& term : b) {
        if (term.isZero())
            continue;
        // Marked, so that a pair that does not merge answers null at once
        // instead of building an expression of the two first.
        term.setTemp(true);
        bool merged = false;
        for (std::size_t i = 0; i < a.size(); ++i) {
            // A term that cancelled earlier in this walk is dropped at the
            // end; it must not take in a later term, or (1 + x) + (-1 - x)
            // would keep -x beside x.
            if (a[i].isZero())
                continue;
            vhValue r;
            if (!internal::markedPairCannotMerge(a[i], term))
                r = subtract ? a[i] - term : a[i] + term;
            if (!r.isNull() && r.valueType() != tagExpression) {
                // The mark belongs to the left term only.
                if (!a[i].temp())
                    r.setTemp(false);
                // Two functions that became a number (sin^2 + cos^2 = 1): the
                // number looks for another term to join.
                if (a[i].valueType() == tagSymbolicFunction && term.valueType() == tagSymbolicFunction &&
                    r.valueType() != tagSymbolicFunction) {
                    for (std::size_t j = 0; j < a.size(); ++j) {
                        if (j == i)
                            continue;
                        vhValue s = a[j] + r;
                        if (!s.isNull()) {
                            takeOver(a[j], s, move);
                            r = vhInteger(0);
                            break;
                        }
                    }
                }
                takeOver(a[i], r, move);
                merged = true;
                break;
            }
            if (!a[i].isSymbolic() && !term.isSymbolic())
                return false;
        }
        if (merged || term.isNull())
            continue;
        term.setTemp(false);
        a.emplace_back();
        if (subtract) {
            vhValue negated = term * vhInteger(-1);
            takeOver(a.back(), negated, move);
        } else {
            takeOver(a.back(), term, move);
        }
    }
    return true;
}

// Drops zero terms and clears the marks; false when a term has no value.
template <class Move> bool cleanTerms(std::vector<vhValue>& terms, Move move)
{
    std::size_t kept = 0;
    for (std::size_t i = 0; i < terms.size(); ++i) {
        if (terms[i].isNull())
            return false;
        if (terms[i].isZero())
            continue;
        terms[i].setTemp(false);
        if (kept != i)
            takeOver(terms[kept], terms[i], move);
        ++kept;
    }
    terms.resize(kept);
    return true;
}

} // namespace

vhValue vhExpression::sumWith(const vhValue& other, bool subtract) const
{
    auto move = [](vhValue& dst, vhValue& src) { dst.swapRecord(src); };
    if (other.valueType() <= tagMatrix && other.isNull())
        return vhValue();
    if (other.isZero())
        return *this;
    vhExpression wrapped(other);
    if (isNull())
        return subtract ? wrapped * vhInteger(-1) : vhValue(wrapped);
    if (wrapped.isNull())
        return *this;
    std::vector<vhValue> terms;
    terms.reserve(m_expressionValues.size() + wrapped.m_expressionValues.size());
    terms = m_expressionValues;
    if (!addTerms(terms, wrapped.m_expressionValues, subtract, move) || !cleanTerms(terms, move))
        return vhValue();
    if (terms.empty())
        return vhInteger(0);
    if (terms.size() == 1)
        return terms[0];
    vhExpression result;
    result.m_expressionValues.swap(terms);
    return result;
}

vhValue vhExpression::operator+(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator+(other);
    return sumWith(other, false);
}

vhValue vhExpression::operator-(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator-(other);
    return sumWith(other, true);
}

vhValue vhExpression::operator*(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator*(other);
    auto move = [](vhValue& dst, vhValue& src) { dst.swapRecord(src); };
    if (other.valueType() > tagExpression)
        return other * *this;
    if (other.valueType() <= tagMatrix && other.isNull())
        return vhValue();
    if (other.isZero())
        return other;
    vhExpression wrapped(other);
    if (isNull() || wrapped.isNull())
        return vhExpression();
    // Each product joins the sum at once, so like terms merge while the
    // product is being produced and the list stays short.
    std::vector<vhValue> product;
    // Room for the usual sizes; a record is large, so the guess is capped.
    product.reserve(std::min<std::size_t>(m_expressionValues.size() * wrapped.m_expressionValues.size(), 256));
    std::vector<vhValue> single(1);
    for (const vhValue& b : wrapped.m_expressionValues) {
        for (const vhValue& a : m_expressionValues) {
            vhValue p = a * b;
            if (p.isNull())
                return vhValue();
            bool ok;
            if (p.m_valueType == tagExpression) {
                ok = addTerms(product, p.m_expressionValues, false, move);
            } else {
                takeOver(single[0], p, move);
                ok = addTerms(product, single, false, move);
            }
            if (!ok || !cleanTerms(product, move))
                return vhValue();
        }
    }
    vhExpression result;
    result.m_expressionValues.swap(product);
    result.arrangeExponentsForFirstSymbol(true);
    return result;
}

bool vhExpression::operator==(const vhValue& other) const
{
    if (m_valueType != tagExpression)
        return vhValue::operator==(other);
    if (isNull() || other.isNull())
        return false;
    if (m_expressionValues.size() == 1) {
        if (other.m_valueType == tagExpression && other.m_expressionValues.size() == 1)
            return m_expressionValues[0] == other.m_expressionValues[0];
        return m_expressionValues[0] == other;
    }
    const vhExpression wrapped(other);
    if (wrapped.m_expressionValues.size() != m_expressionValues.size())
        return false;
    // Order does not matter. Terms of the other side are not ticked off; the
    // canonical form has no two equal terms.
    for (const vhValue& t : m_expressionValues) {
        bool found = false;
        for (const vhValue& u : wrapped.m_expressionValues) {
            if (t == u) {
                found = true;
                break;
            }
        }
        if (!found)
            return false;
    }
    return true;
}

VH_DEFINE_COMPOUND_OPERATORS(vhExpression, tagExpression)
VH_DEFINE_NOT_EQUAL(vhExpression, tagExpression)

} // namespace ValueTypes
} // namespace VarnholtMath
