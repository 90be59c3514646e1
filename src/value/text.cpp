// Text forms of values.

#include <ostream>

#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// PENDING(text forms)
std::string vhValue::toString() const { return isNull() ? "undefined" : std::string(); }
std::string vhValue::toStringAll() const { return std::string(); }

void vhValue::print(bool, std::ostream& stream)
{
    if (isNull())
        stream << "undefined ";
}

} // namespace ValueTypes
} // namespace VarnholtMath
