// The worksheet language's view of the host's types: the lists of the
// registry, and the creation of an object by the type's name.

#include <cstdarg>

#include "frame/math.h"
#include "value/type_registry.h"

namespace VarnholtMath {
namespace ValueTypes {

vhValue vhMath::DefinedTypes_f() { return MathDefinedTypes(); }

vhValue vhMath::TypeConstructors_f(const vhValue& name) { return MathTypeConstructors(name); }

vhValue vhMath::TypeMembers_f(const vhValue& name) { return MathTypeMembers(name); }

vhValue vhMath::TypeMethods_f(const vhValue& name) { return MathTypeMethods(name); }

vhValue vhMath::TypeMethodArguments_f(const vhValue& name, const vhValue& method)
{
    return MathTypeMethodArguments(name, method);
}

vhValue vhMath::ObjectCreate_f(unsigned int n, ...)
{
    // The name and at most ten arguments.
    if (n == 0 || n > 11)
        return vhValue();
    const vhValue* a[10];
    va_list args;
    va_start(args, n);
    const vhValue* name = va_arg(args, const vhValue*);
    for (unsigned int i = 0; i + 1 < n; ++i)
        a[i] = va_arg(args, const vhValue*);
    va_end(args);
    if (!name)
        return vhValue();
    // Kept in a local: create may change the registry while it runs.
    const TypeCreateFunction create = MathTypeCreateFunction(*name);
    if (!create)
        return vhValue();
    // A missing argument counts as the undefined value.
    static const vhValue undefinedArgument;
    for (unsigned int i = 0; i + 1 < n; ++i)
        if (!a[i])
            a[i] = &undefinedArgument;
    switch (n - 1) {
    case 0: return create(0);
    case 1: return create(1, a[0]);
    case 2: return create(2, a[0], a[1]);
    case 3: return create(3, a[0], a[1], a[2]);
    case 4: return create(4, a[0], a[1], a[2], a[3]);
    case 5: return create(5, a[0], a[1], a[2], a[3], a[4]);
    case 6: return create(6, a[0], a[1], a[2], a[3], a[4], a[5]);
    case 7: return create(7, a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case 8: return create(8, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
    case 9: return create(9, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8]);
    default: return create(10, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9]);
    }
}

} // namespace ValueTypes
} // namespace VarnholtMath
