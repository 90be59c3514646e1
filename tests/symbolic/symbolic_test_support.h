#pragma once

// Shared by the tests of symbols and expressions.

#include <ostream>
#include <string>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {
// Failures show the text form of a value.
inline void PrintTo(const vhValue& v, std::ostream* os) { *os << v.toStringAll() << " (" << v.typeName() << ")"; }
} // namespace ValueTypes
} // namespace VarnholtMath

namespace symbolic_tests {
inline VarnholtMath::ValueTypes::vhValue sym(const std::string& s)
{
    return VarnholtMath::ValueTypes::vhSymbolicValue(s, false, {});
}
} // namespace symbolic_tests
