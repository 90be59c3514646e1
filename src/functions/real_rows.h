#pragma once

// The frame of the small real functions of several arguments: unit and base
// conversions, coordinates, finance. Each is a formula on plain doubles. The
// arguments are real numbers (Boolean, integer or double); a vector or a
// matrix maps the formula over its elements, with the real numbers beside it
// used for every element and other arrays of the same shape read element by
// element. The result of an array is a numeric array of the first array's
// shape, written in place without a value per element. Anything else is the
// undefined value; a formula signals undefined with NaN.

#include <cmath>
#include <cstddef>
#include <vector>

#include "functions/elementwise_skeleton.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace realrows {

const unsigned int kMaxArguments = 4;

// A real scalar argument that is no NaN.
inline bool realArgument(const vhValue& v, double& d)
{
    if (v.isBoolean() || v.isInteger() || v.isDouble()) {
        d = v.toDouble();
        return !std::isnan(d);
    }
    return false;
}

// An element of an array read as a real number; NaN when it is none.
inline double realElement(const vhValue& array, unsigned int i)
{
    const double* raw = array.numericValues();
    if (raw && !array.numericImValues())
        return raw[i];
    double d;
    return realArgument(array.value(i), d) ? d : std::nan("");
}

// The frame itself. `heldId` is the row whose held call a symbolic argument
// gets, or 0 when symbolic arguments give the undefined value. f takes a
// pointer to the argument values and returns the result, NaN for undefined.
template <class Formula>
vhValue map(const std::vector<const vhValue*>& args, int heldId, Formula f)
{
    const std::size_t n = args.size();
    if (n == 0 || n > kMaxArguments)
        return vhValue();
    bool symbolic = false;
    for (const vhValue* a : args) {
        if (a->isNull())
            return vhValue();
        symbolic = symbolic || a->isSymbolic();
    }
    if (symbolic) {
        if (heldId == 0)
            return vhValue();
        std::vector<vhValue> copies;
        for (const vhValue* a : args)
            copies.push_back(*a);
        return elementwise::symbolicCall(heldId, copies);
    }
    double x[kMaxArguments];
    vhValue holders[kMaxArguments];
    const vhValue* arrays[kMaxArguments] = {nullptr, nullptr, nullptr, nullptr};
    const vhValue* shape = nullptr;
    for (std::size_t k = 0; k < n; ++k) {
        if (elementwise::isArray(*args[k])) {
            const vhValue& a = elementwise::arrayOf(*args[k], holders[k]);
            if (a.isTable() || a.isImage())
                return vhValue();
            if (shape && (shape->valueType() != a.valueType() || shape->matrixRows() != a.matrixRows() ||
                          shape->matrixColumns() != a.matrixColumns()))
                return vhValue();
            if (!shape)
                shape = &a;
            arrays[k] = &a;
        } else if (!realArgument(*args[k], x[k])) {
            return vhValue();
        }
    }
    if (!shape) {
        const double r = f(x);
        return std::isnan(r) ? vhValue() : vhValue(vhDouble(r));
    }
    const unsigned int count = shape->vectorSize();
    vhValue result = shape->valueType() == tagMatrix
                         ? vhValue(vhMatrix(shape->matrixRows(), shape->matrixColumns(), true, false, false))
                         : vhValue(vhVector(count, shape->matrixRows() == 1 && count != 0, true, false));
    double* out = result.numericValues();
    if (count == 0 || !out)
        return count == 0 ? result : vhValue();
    for (unsigned int i = 0; i < count; ++i) {
        bool defined = true;
        for (std::size_t k = 0; k < n; ++k) {
            if (arrays[k]) {
                x[k] = realElement(*arrays[k], i);
                defined = defined && !std::isnan(x[k]);
            }
        }
        const double r = defined ? f(x) : std::nan("");
        out[i] = std::isnan(r) ? std::nan("") : r;
    }
    return result;
}

} // namespace realrows
} // namespace ValueTypes
} // namespace VarnholtMath
