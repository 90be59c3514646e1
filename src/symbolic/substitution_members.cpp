// The worksheet's view of symbol inspection and substitution.

#include "frame/math.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue vhMath::symbols_f(const vhValue& v) { return v.symbols(false); }

vhValue vhMath::containSymbol_f(const vhValue& v, const vhValue& symbol)
{
    if (v.isNull() || !symbol.isSymbol())
        return vhValue();
    return vhBoolean(v.containSymbol(symbol));
}

vhValue vhMath::replaceSymbols_f(const vhValue& v, const vhValue& symbols, const vhValue& values)
{
    if (v.isNull() || symbols.isNull() || values.isNull())
        return vhValue();
    // A single symbol takes a single value.
    if (symbols.isSymbol())
        return v.replaceSymbolicValueConst(this, symbols, values, false);
    if (symbols.valueType() != tagVector || values.valueType() != tagVector ||
        symbols.vectorSize() != values.vectorSize())
        return vhValue();
    return v.replaceSymbolicValuesConst(this, symbols, values, false);
}

} // namespace ValueTypes
} // namespace VarnholtMath
