// An outside host that only sees the installed headers and library.
#include <VhMathLib.h>

#include <cstdio>

using namespace VarnholtMath::ValueTypes;

int main()
{
    vhMath math;
    if (functionName(nt_sin) != "sin" || numberOfFunctionArguments(nt_sin) != 1)
        return 1;
    vhValue r = callFunction(&math, nt_SetDecPlaces, {vhInteger(3)});
    if (r.toInt() != 3 || math.numberOfDecimalPlaces() != 3)
        return 2;
    std::puts("consumer ok");
    return 0;
}
