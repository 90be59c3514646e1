#pragma once

// The frame of the special functions: the Boost.Math error policy, which
// throws on every error, and the wrappers that turn any exception of a kernel
// into the undefined value. Values out of a kernel's domain stay undefined;
// they do not move to the complex plane.

#include <cmath>
#include <vector>

#include <boost/math/policies/policy.hpp>

#include "functions/elementwise_skeleton.h"
#include "value/value_internal.h"

namespace VarnholtMath {
namespace ValueTypes {
namespace special {

typedef boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::throw_on_error>,
    boost::math::policies::pole_error<boost::math::policies::throw_on_error>,
    boost::math::policies::overflow_error<boost::math::policies::throw_on_error>,
    boost::math::policies::evaluation_error<boost::math::policies::throw_on_error>,
    boost::math::policies::rounding_error<boost::math::policies::throw_on_error>,
    boost::math::policies::indeterminate_result_error<boost::math::policies::throw_on_error>,
    boost::math::policies::underflow_error<boost::math::policies::ignore_error>,
    boost::math::policies::denorm_error<boost::math::policies::ignore_error>>
    ThrowingPolicy;

// A kernel value, NaN for any exception or failure.
template <class Kernel> double guarded(Kernel kernel)
{
    try {
        return kernel();
    } catch (...) {
        return elementwise::kNaN;
    }
}

// A whole order or index read the way orders are read: cut to 32 bits.
inline int orderOf(double v) { return internal::cutToInt32(v); }

// Orders of Bessel-type kernels. Their recurrences take a step per unit of
// order, so an order beyond 100000 would hold the calculation for minutes;
// such orders are refused, which also keeps the kernels' 32-bit arithmetic
// of orders in range.
inline bool isOrderInRange(double v) { return v >= -100000.0 && v <= 100000.0; }

// The skeleton of a special function of one real argument.
template <class Self, class Kernel> vhValue realUnary(const vhValue& x, int id, Self self, Kernel kernel)
{
    auto fast = [&](double v, double& out) {
        out = guarded([&] { return kernel(v); });
        return true;
    };
    return elementwise::unaryFast(
        x, id, self, [](double, double) { return vhValue(); },
        [&](double d) { return elementwise::realByKernel(d, fast, [](double) { return vhValue(); }); }, fast);
}

// The skeleton of a special function of two real arguments.
template <class Self, class Kernel>
vhValue realBinary(const vhValue& x, const vhValue& y, int id, Self self, Kernel kernel)
{
    return elementwise::binaryReal(x, y, id, self, [&](double a, double b) {
        return elementwise::doubleOrUndefined(guarded([&] { return kernel(a, b); }));
    });
}

// The skeleton of a function of several real arguments: every argument
// defined, no symbols (else the held call), all of one kind - real numbers,
// or arrays of one shape that are mapped position by position.
template <class Self, class Kernel>
vhValue realNary(const std::vector<vhValue>& args, int id, Self self, Kernel kernel)
{
    for (const vhValue& a : args)
        if (a.isNull())
            return vhValue();
    for (const vhValue& a : args)
        if (a.isSymbolic())
            return elementwise::symbolicCall(id, args);
    for (std::size_t i = 1; i < args.size(); ++i)
        if (!elementwise::aligned(args[0], args[i]))
            return vhValue();
    std::vector<double> values(args.size());
    bool real = true;
    for (std::size_t i = 0; i < args.size() && real; ++i)
        real = elementwise::realOf(args[i], values[i]);
    if (real)
        return elementwise::doubleOrUndefined(guarded([&] { return kernel(values); }));
    if (!elementwise::isArray(args[0]))
        return vhValue();
    std::vector<vhValue> holders(args.size());
    std::vector<const vhValue*> arrays(args.size());
    for (std::size_t i = 0; i < args.size(); ++i)
        arrays[i] = &elementwise::arrayOf(args[i], holders[i]);
    vhValue result = elementwise::sameShape(*arrays[0]);
    const unsigned int n = arrays[0]->vectorSize();
    std::vector<vhValue> at(args.size());
    for (unsigned int k = 0; k < n; ++k) {
        for (std::size_t i = 0; i < args.size(); ++i)
            at[i] = arrays[i]->value(k);
        result.setValue(self(at), k);
    }
    elementwise::keepElementTypes(*arrays[0], result);
    return result;
}

} // namespace special
} // namespace ValueTypes
} // namespace VarnholtMath
