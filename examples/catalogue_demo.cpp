// A small host: creates a calculation object, reads catalogue rows and calls
// functions by number.

#include <iostream>

#include <VhMathLib.h>

using namespace VarnholtMath::ValueTypes;

int main()
{
    vhMath math(6, angleRadians);

    for (NodeType id : {nt_sin, nt_staticValue, nt_DecPlaces}) {
        std::cout << id << "  " << functionName(id) << "  arguments: " << numberOfFunctionArguments(id) << "\n";
        for (const std::string& line : functionDescription(id))
            std::cout << "    " << line << "\n";
    }

    vhValue name = vhSymbolicValue("counter", true, {});
    callFunction(&math, nt_setStaticValue, {name, vhInteger(41)});
    vhValue stored = callFunction(&math, nt_staticValue, {name, vhInteger(0)});
    std::cout << "staticValue(\"counter\") = " << stored.toInt() << "\n";
    std::cout << "DecPlaces() = " << callFunction(&math, nt_DecPlaces, {}).toInt() << "\n";
    return 0;
}
