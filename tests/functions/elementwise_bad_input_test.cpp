// Every elementwise and special function, given values of every kind that
// are no numbers - undefined values, strings, handles, intervals, empty and
// image arrays, NaN, infinities, extreme numbers - ends without an exception
// and, for a scalar that is no number, with the undefined value.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "frame/math.h"
#include "function_tables.h"

using namespace VarnholtMath::ValueTypes;
using namespace elementwise_tests;

namespace {

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Sample {
    std::string name;
    vhValue value;
    bool noNumber; // a scalar that every function must refuse
};

std::vector<Sample> samples()
{
    static vhValue pointee = vhInteger(3);
    unsigned int pixels[] = {0xFF000000u, 0xFFFFFFFFu};
    double numbers[] = {1.0, -2.0, 0.5};
    std::vector<Sample> s = {
        {"undefined", vhValue(), true},
        {"string", vhSymbolicValue("text", true, {}), true},
        {"empty string", vhSymbolicValue("", true, {}), true},
        {"object", vhObject("Widget", nullptr), true},
        {"channel", vhChannel("Port", nullptr), true},
        {"file", vhFile("Log", nullptr), true},
        {"interval", vhInterval(0.0, true, 1.0, false), true},
        {"infinite solution", vhInfiniteSolution(0.0, 3.14), true},
        {"empty equation", vhEquation(), true},
        {"empty fraction", vhFraction(), true},
        {"empty expression", vhExpression(), true},
        {"NaN", vhDouble(kNaN), true},
        {"complex NaN", vhComplex(1.0, kNaN), true},
        {"empty vector", vhVector(), false},
        {"empty matrix", vhMatrix(), true},
        {"image", vhMatrix(pixels, 1, 2), false},
        {"strings", vhVector(std::vector<vhValue>{vhSymbolicValue("a", true, {}), vhValue()}, false), false},
        {"numbers", vhVector(numbers, 3, true), false},
        {"pointer", vhInteger(&pointee), false},
        {"true", vhBoolean(true), false},
        {"+inf", vhDouble(kInf), false},
        {"-inf", vhDouble(-kInf), false},
        {"complex inf", vhComplex(kInf, -kInf), false},
        {"huge", vhDouble(1.7e308), false},
        {"tiny", vhDouble(4.9e-324), false},
        {"lowest integer", vhDouble(-2147483648.0), false},
        {"beyond 32 bits", vhDouble(-3e10), false},
        {"zero", vhInteger(0), false},
        {"minus one", vhInteger(-1), false},
    };
    return s;
}

typedef std::function<vhValue(vhMath&, const vhValue&, const vhValue&)> Call;

// Every member, with the sample as its first argument (and, for members of
// more arguments, as the second one too).
std::vector<std::pair<std::string, Call>> functions()
{
    std::vector<std::pair<std::string, Call>> f;
    for (const Unary& u : unaryMembers()) {
        const UnaryMember fn = u.f;
        f.push_back({functionName(u.id), [fn](vhMath& m, const vhValue& x, const vhValue&) { return (m.*fn)(x); }});
    }
    f.push_back({"epsilon", [](vhMath& m, const vhValue& x, const vhValue&) { return m.epsilon_f(x); }});
    for (const Binary& b : binaryMembers()) {
        const BinaryMember fn = b.f;
        f.push_back({functionName(b.id), [fn](vhMath& m, const vhValue& x, const vhValue& y) { return (m.*fn)(x, y); }});
        f.push_back({functionName(b.id) + " swapped",
                     [fn](vhMath& m, const vhValue& x, const vhValue& y) { return (m.*fn)(y, x); }});
    }
    for (NodeType id : kManyArguments) {
        f.push_back({functionName(id), [id](vhMath& m, const vhValue& x, const vhValue& y) {
                         return callMany(m, id, {x, y, vhDouble(2.0), x});
                     }});
        f.push_back({functionName(id) + " last", [id](vhMath& m, const vhValue& x, const vhValue& y) {
                         return callMany(m, id, {vhDouble(0.5), y, x, x});
                     }});
    }
    return f;
}

} // namespace

TEST(ElementwiseBadInput, EveryFunctionWithEveryKindOfValue)
{
    const std::vector<Sample> all = samples();
    const vhValue ordinary = vhDouble(0.75);
    for (const auto& fn : functions()) {
        for (const Sample& s : all) {
            for (const Sample* other : {static_cast<const Sample*>(nullptr), &s}) {
                vhMath m;
                m.setAngleUnit(angleDegrees);
                const vhValue& second = other ? other->value : ordinary;
                vhValue r;
                EXPECT_NO_THROW(r = fn.second(m, s.value, second)) << fn.first << " of " << s.name;
                if (s.noNumber)
                    EXPECT_TRUE(r.isNull()) << fn.first << " of " << s.name << " gave " << r.typeName();
                // Whatever came back can be copied and printed.
                vhValue copy(r);
                EXPECT_NO_THROW(copy.toString()) << fn.first << " of " << s.name;
            }
        }
    }
}
