// Ordering the terms of a sum by falling powers of a symbol, the way a
// polynomial is written: x^3 + x - 2 + y.

#include "value/value.h"

#include "symbolic/atom_internal.h"

namespace VarnholtMath {
namespace ValueTypes {

void vhValue::arrangeExponents(const vhValue& symbol)
{
    if (isNull() || !symbol.isSymbol())
        return;
    switch (m_valueType) {
    case tagVector:
    case tagMatrix:
        for (vhValue& e : m_elements)
            e.arrangeExponents(symbol);
        return;
    case tagFraction:
    case tagEquation:
        if (m_numerator)
            m_numerator->arrangeExponents(symbol);
        if (m_denominator)
            m_denominator->arrangeExponents(symbol);
        return;
    case tagExpression:
        break;
    default:
        return;
    }
    for (vhValue& t : m_expressionValues)
        t.arrangeExponents(symbol);

    const std::size_t n = m_expressionValues.size();
    std::vector<double> power(n, 0.0);
    std::vector<bool> holds(n, false);
    for (std::size_t i = 0; i < n; ++i)
        holds[i] = m_expressionValues[i].exponentForSymbol(symbol, power[i], false);
    const std::vector<bool> sorted(holds);

    std::vector<vhValue> arranged;
    arranged.reserve(n);
    // The highest power first; of equal powers the earlier term stays first.
    for (;;) {
        std::size_t best = n;
        for (std::size_t i = 0; i < n; ++i)
            if (holds[i] && (best == n || power[i] > power[best]))
                best = i;
        if (best == n)
            break;
        holds[best] = false;
        arranged.emplace_back();
        arranged.back().swapRecord(m_expressionValues[best]);
    }
    // The terms without the symbol follow in their order.
    for (std::size_t i = 0; i < n; ++i) {
        if (sorted[i])
            continue;
        arranged.emplace_back();
        arranged.back().swapRecord(m_expressionValues[i]);
    }
    m_expressionValues.swap(arranged);
}

void vhValue::arrangeExponentsForFirstSymbol(bool onlyOneSymbol)
{
    if (isNull())
        return;
    std::vector<std::string> names;
    symbols(names, false);
    if (names.empty() || (onlyOneSymbol && names.size() > 1))
        return;
    arrangeExponents(vhSymbolicValue(names[0], false, std::vector<CharFormat>()));
}

vhValue vhValue::arrangeExponentsConst(const vhValue& symbol) const
{
    vhValue copy(*this);
    copy.arrangeExponents(symbol);
    return copy;
}

vhValue vhValue::arrangeExponentsForFirstSymbolConst(bool onlyOneSymbol) const
{
    vhValue copy(*this);
    copy.arrangeExponentsForFirstSymbol(onlyOneSymbol);
    return copy;
}

} // namespace ValueTypes
} // namespace VarnholtMath
