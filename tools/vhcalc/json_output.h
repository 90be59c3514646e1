#pragma once

// One result as one line of JSON:
//   {"type": T, "text": S, "value": V}
// T is the engine's type name, S the printed text, and V the value itself:
// a number with 17 significant digits, "inf" or "-inf", null for the
// undefined value, true or false, {"re": a, "im": b} for a complex number,
// {"rows": r, "cols": c, "data": [...]} row-major for vectors and matrices,
// the characters of a string (without the quotes of its text form), and the
// text for symbolic values and everything else.

#include <string>

#include <VhMathLib.h>

namespace vhcalc {

std::string jsonString(const std::string& text);
std::string jsonNumber(double x);
std::string jsonValue(const VarnholtMath::ValueTypes::vhValue& value);
std::string jsonResult(const VarnholtMath::ValueTypes::vhValue& value, const std::string& text);

} // namespace vhcalc
