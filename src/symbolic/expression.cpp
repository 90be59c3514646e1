// Sums: a flat list of terms, each a number or a symbolic atom with its
// multiplier chain. There is no product node: a product of sums is expanded
// at once, and like terms merge while the product is being produced. The
// terms keep the order in which they first appeared, no two of them merge, and
// none is zero.

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <unordered_map>

#include "frame/switches.h"
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

std::uint64_t mix(std::uint64_t h, std::uint64_t v)
{
    h ^= v + 0x9e3779b97f4a7c15ULL + (h << 6) + (h >> 2);
    return h;
}

// The key of a term's symbolic part: its tag, its number of atoms and, for
// each atom, its tag, name (or function) and real exponent. Two terms that
// are equal but for the coefficient always have the same key. A term gets no
// key when that could fail or when it may merge with terms of another
// symbolic part: numbers, texts, undefined atoms, atoms whose exponent is not
// a plain real number, or a chain that holds the same atom twice.
bool likeTermKey(const vhValue& v, std::uint64_t& key)
{
    const int tag = v.valueType();
    if (!internal::isAtomTag(tag) || v.isNull() || v.isString() || !v.exponent())
        return false;
    internal::FactorList factors;
    internal::symbolicChainFactors(v, factors);
    std::vector<std::uint64_t> keys;
    keys.reserve(factors.size());
    for (const vhValue* f : factors) {
        std::uint64_t h = static_cast<std::uint64_t>(f->valueType());
        const vhValue* e = f->exponent();
        if (e) {
            if (!internal::isRealNumberTag(e->valueType()) || e->isNull() || e->isPointer())
                return false;
            double d = e->toDouble();
            if (d == 0.0)
                d = 0.0;
            std::uint64_t bits;
            std::memcpy(&bits, &d, sizeof bits);
            h = mix(h, bits);
        } else {
            h = mix(h, 1);
        }
        if (f->valueType() == tagSymbolicFunction)
            h = mix(h, static_cast<std::uint64_t>(f->functionID()));
        else
            h = mix(h, std::hash<std::string>()(f->toString()));
        keys.push_back(h);
    }
    std::sort(keys.begin(), keys.end());
    if (std::adjacent_find(keys.begin(), keys.end()) != keys.end())
        return false;
    key = mix(static_cast<std::uint64_t>(tag), keys.size());
    for (std::uint64_t k : keys)
        key = mix(key, k);
    return true;
}

// The like-term index of a list of terms. A term with a key can only merge
// with a term of the same key or with a term without one, so a new term is
// offered only to those, still in the order of the list.
class LikeTermIndex {
public:
    void rebuild(const std::vector<vhValue>& terms)
    {
        m_byKey.clear();
        m_open.clear();
        m_keys.clear();
        m_hasKey.clear();
        for (std::size_t i = 0; i < terms.size(); ++i)
            add(terms[i]);
    }
    // Files the term at the end of the list.
    void add(const vhValue& term)
    {
        std::uint64_t key = 0;
        const bool has = likeTermKey(term, key);
        const std::size_t i = m_keys.size();
        m_keys.push_back(key);
        m_hasKey.push_back(has);
        if (has)
            m_byKey[key].push_back(i);
        else
            m_open.push_back(i);
    }
    // Whether the term at i still has the key it was filed under.
    bool unchanged(const vhValue& term, std::size_t i) const
    {
        std::uint64_t key = 0;
        const bool has = likeTermKey(term, key);
        return has == bool(m_hasKey[i]) && (!has || key == m_keys[i]);
    }
    // The positions a new term is offered to, in increasing order; false
    // when it must be offered to every term.
    bool candidates(const vhValue& term, std::vector<std::size_t>& out) const
    {
        out.clear();
        std::uint64_t key;
        // Functions may merge by the trigonometric rules across their keys.
        if ((term.valueType() == tagSymbolicFunction && trigonometricRulesOn()) || !likeTermKey(term, key))
            return false;
        static const std::vector<std::size_t> none;
        const auto found = m_byKey.find(key);
        const std::vector<std::size_t>& same = found == m_byKey.end() ? none : found->second;
        out.resize(same.size() + m_open.size());
        std::merge(same.begin(), same.end(), m_open.begin(), m_open.end(), out.begin());
        return true;
    }

    // The positions that addTerms changed or appended since the last
    // clearTouched, or all of them.
    void clearTouched()
    {
        touched.clear();
        touchedAll = false;
    }
    std::vector<std::size_t> touched;
    bool touchedAll = false;

private:
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> m_byKey;
    std::vector<std::size_t> m_open;
    std::vector<std::uint64_t> m_keys;
    std::vector<char> m_hasKey;
};

// Adds (or subtracts) the terms of b into the list a, term by term: each term
// of b is offered to the terms of a in order, and the first that merges with
// it takes the result. The terms of b are used up. False when two terms can't
// be added at all. With an index of a, a term with a key skips the terms that
// cannot merge with it; the index is kept up to date.
template <class Move>
bool addTerms(std::vector<vhValue>& a, std::vector<vhValue>& b, bool subtract, Move move,
              LikeTermIndex* index = nullptr)
{
    std::vector<std::size_t> order;
    for (vhValue& term : b) {
        if (term.isZero())
            continue;
        // Marked, so that a pair that does not merge answers null at once
        // instead of building an expression of the two first.
        term.setTemp(true);
        bool merged = false;
        if (!index || !index->candidates(term, order)) {
            order.resize(a.size());
            for (std::size_t i = 0; i < a.size(); ++i)
                order[i] = i;
        }
        for (const std::size_t i : order) {
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
                bool others = false;
                if (a[i].valueType() == tagSymbolicFunction && term.valueType() == tagSymbolicFunction &&
                    r.valueType() != tagSymbolicFunction) {
                    for (std::size_t j = 0; j < a.size(); ++j) {
                        if (j == i)
                            continue;
                        vhValue s = a[j] + r;
                        if (!s.isNull()) {
                            takeOver(a[j], s, move);
                            r = vhInteger(0);
                            others = true;
                            break;
                        }
                    }
                }
                takeOver(a[i], r, move);
                if (index) {
                    index->touched.push_back(i);
                    index->touchedAll = index->touchedAll || others;
                    if (others || !index->unchanged(a[i], i))
                        index->rebuild(a);
                }
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
        if (index) {
            index->add(a.back());
            index->touched.push_back(a.size() - 1);
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
    // The like terms of the growing product are found through an index of
    // their symbolic parts instead of by offering each new term to all.
    LikeTermIndex index;
    for (const vhValue& b : wrapped.m_expressionValues) {
        for (const vhValue& a : m_expressionValues) {
            vhValue p = a * b;
            if (p.isNull())
                return vhValue();
            bool ok;
            index.clearTouched();
            if (p.m_valueType == tagExpression) {
                ok = addTerms(product, p.m_expressionValues, false, move, &index);
            } else {
                takeOver(single[0], p, move);
                ok = addTerms(product, single, false, move, &index);
            }
            if (!ok)
                return vhValue();
            // The terms that were not touched were clean already; when the
            // touched ones are too, only their marks need clearing.
            bool clean = !index.touchedAll;
            for (std::size_t i = 0; clean && i < index.touched.size(); ++i)
                clean = !product[index.touched[i]].isNull() && !product[index.touched[i]].isZero();
            if (clean) {
                for (std::size_t i : index.touched)
                    product[i].setTemp(false);
                continue;
            }
            const std::size_t before = product.size();
            if (!cleanTerms(product, move))
                return vhValue();
            if (product.size() != before)
                index.rebuild(product);
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
