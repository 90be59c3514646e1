// The registry of the host's types, its text forms, the catalogue rows that
// read it and the creation of objects by name. A fake host with three types
// records what reaches its functions.

#include <gtest/gtest.h>

#include <cstdarg>
#include <stdexcept>

#include "frame/math.h"
#include "frame/node_type.h"
#include "value/type_registry.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
vhValue strings(const std::vector<std::string>& list)
{
    std::vector<vhValue> v;
    for (const std::string& s : list)
        v.push_back(str(s));
    return vhVector(v, false);
}

// What the fake host's functions saw, and how they are told to misbehave.
struct HostLog {
    int creates = 0;
    unsigned int createCount = 0;
    std::vector<vhValue> createArguments;
    vhValue memberTypeArgument;
    vhValue methodArgumentsArgument;
    bool createThrows = false;
    bool membersThrows = false;
    bool createAnswersUndefined = false;
    bool createRebuildsRegistry = false;
};
HostLog host;

void defineAll();

struct Point {
    static vhValue create(unsigned int n, ...)
    {
        ++host.creates;
        host.createCount = n;
        host.createArguments.clear();
        va_list args;
        va_start(args, n);
        for (unsigned int i = 0; i < n; ++i)
            host.createArguments.push_back(*va_arg(args, const vhValue*));
        va_end(args);
        if (host.createThrows)
            throw std::runtime_error("no point");
        if (host.createRebuildsRegistry) {
            // Every record moves while this function runs.
            MathUndefineTypes();
            for (int i = 0; i < 50; ++i)
                MathDefineType("filler" + std::to_string(i), &Point::create, &Point::constructors, &Point::members,
                               &Point::memberType, &Point::methods, &Point::methodArguments);
            defineAll();
        }
        if (host.createAnswersUndefined)
            return vhValue();
        return vhObject("point", &host);
    }
    static vhValue constructors() { return strings({"point()", "point(x, y)"}); }
    static vhValue members()
    {
        if (host.membersThrows)
            throw std::runtime_error("no members");
        return strings({"x", "y", "length"});
    }
    static vhValue memberType(const vhValue& member)
    {
        host.memberTypeArgument = member;
        return str("double");
    }
    static vhValue methods() { return strings({"norm", "scale"}); }
    static vhValue methodArguments(const vhValue& method)
    {
        host.methodArgumentsArgument = method;
        return strings({"double factor", "bool inPlace"});
    }
};

// Answers that are no vector of strings: scalars, numbers, nested vectors.
struct Odd {
    static vhValue create(unsigned int, ...) { return vhInteger(1); }
    static vhValue constructors() { return str("odd()"); }
    static vhValue members() { return vhInteger(3); }
    static vhValue memberType(const vhValue&) { return vhValue(); }
    static vhValue methods()
    {
        return vhVector(std::vector<vhValue>{strings({"inner", "list"}), vhDouble(2.5), str("run")}, true);
    }
    static vhValue methodArguments(const vhValue&) { return vhVector(std::vector<vhValue>{}, false); }
};

struct Third {
    static vhValue create(unsigned int, ...) { return vhValue(); }
    static vhValue list() { return strings({"third"}); }
    static vhValue query(const vhValue& v) { return v; }
};

void defineAll()
{
    MathDefineType("point", &Point::create, &Point::constructors, &Point::members, &Point::memberType, &Point::methods,
                   &Point::methodArguments);
    MathDefineType("odd", &Odd::create, &Odd::constructors, &Odd::members, &Odd::memberType, &Odd::methods,
                   &Odd::methodArguments);
    MathDefineType("third", &Third::create, &Third::list, &Third::list, &Third::query, &Third::list, &Third::query);
}

std::vector<std::string> names(const vhValue& list)
{
    std::vector<std::string> result;
    for (unsigned int i = 0; i < list.vectorSize(); ++i)
        result.push_back(list.value(i).toString());
    return result;
}

// Each test starts and ends with an empty process-wide registry.
class TypeRegistry : public ::testing::Test {
protected:
    void SetUp() override
    {
        MathUndefineTypes();
        host = HostLog();
    }
    void TearDown() override
    {
        MathUndefineTypes();
        host = HostLog();
    }
    vhMath math;
};

} // namespace

TEST_F(TypeRegistry, DefinesListsAndAnswersThroughTheCatalogueRows)
{
    EXPECT_FALSE(MathDefinedTypes().isNull());
    EXPECT_TRUE(MathDefinedTypes().isVector());
    EXPECT_EQ(MathDefinedTypes().vectorSize(), 0u);
    defineAll();

    const vhValue list = callFunction(&math, nt_DefinedTypes, {});
    EXPECT_EQ(names(list), (std::vector<std::string>{"point", "odd", "third"}));
    EXPECT_FALSE(list.isRowVector());
    EXPECT_TRUE(list.value(0).isString());

    EXPECT_EQ(names(callFunction(&math, nt_TypeConstructors, {str("point")})),
              (std::vector<std::string>{"point()", "point(x, y)"}));
    EXPECT_EQ(names(callFunction(&math, nt_TypeMembers, {str("point")})),
              (std::vector<std::string>{"x", "y", "length"}));
    EXPECT_EQ(names(callFunction(&math, nt_TypeMethods, {str("point")})), (std::vector<std::string>{"norm", "scale"}));
    EXPECT_EQ(callFunction(&math, nt_TypeMethodArguments, {str("point"), str("scale")}).vectorSize(), 2u);
    EXPECT_EQ(host.methodArgumentsArgument.toString(), "scale");
    EXPECT_EQ(callFunction(&math, nt_TypeMembers, {str("third")}).value(0).toString(), "third");

    // The rows take exactly their catalogue counts.
    EXPECT_TRUE(callFunction(&math, nt_DefinedTypes, {str("point")}).isNull());
    EXPECT_TRUE(callFunction(&math, nt_TypeMembers, {}).isNull());
    EXPECT_TRUE(callFunction(&math, nt_TypeMethods, {str("point"), str("x")}).isNull());
    EXPECT_TRUE(callFunction(&math, nt_TypeMethodArguments, {str("point")}).isNull());

    MathUndefineTypes();
    EXPECT_EQ(math.DefinedTypes_f().vectorSize(), 0u);
    EXPECT_TRUE(math.TypeMembers_f(str("point")).isNull());
}

TEST_F(TypeRegistry, IgnoresNullFunctionsEmptyNamesAndDuplicates)
{
    const TypeCreateFunction c = &Third::create;
    const TypeListFunction l = &Third::list;
    const TypeQueryFunction q = &Third::query;
    MathDefineType("t", nullptr, l, l, q, l, q);
    MathDefineType("t", c, nullptr, l, q, l, q);
    MathDefineType("t", c, l, nullptr, q, l, q);
    MathDefineType("t", c, l, l, nullptr, l, q);
    MathDefineType("t", c, l, l, q, nullptr, q);
    MathDefineType("t", c, l, l, q, l, nullptr);
    MathDefineType("", c, l, l, q, l, q);
    EXPECT_EQ(MathDefinedTypes().vectorSize(), 0u);

    defineAll();
    // A second "point" is ignored: the first record keeps answering.
    MathDefineType("point", c, l, l, q, l, q);
    EXPECT_EQ(MathDefinedTypes().vectorSize(), 3u);
    EXPECT_EQ(MathTypeMembers(str("point")).vectorSize(), 3u);
    const vhValue name = str("point");
    EXPECT_EQ(math.ObjectCreate_f(1, &name).objectTypeName(), "point");
}

TEST_F(TypeRegistry, TheListOfNamesFollowsEveryChange)
{
    const vhValue empty = MathDefinedTypes();
    MathDefineType("a", &Third::create, &Third::list, &Third::list, &Third::query, &Third::list, &Third::query);
    EXPECT_EQ(names(MathDefinedTypes()), std::vector<std::string>{"a"});
    EXPECT_EQ(names(MathDefinedTypes()), std::vector<std::string>{"a"});
    MathDefineType("b", &Third::create, &Third::list, &Third::list, &Third::query, &Third::list, &Third::query);
    EXPECT_EQ(names(MathDefinedTypes()), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(MathDefinedTypesString(), "a\nb");
    MathUndefineTypes();
    EXPECT_EQ(MathDefinedTypes().vectorSize(), 0u);
    EXPECT_EQ(MathDefinedTypesString(), "");
    MathDefineType("c", &Third::create, &Third::list, &Third::list, &Third::query, &Third::list, &Third::query);
    EXPECT_EQ(names(MathDefinedTypes()), std::vector<std::string>{"c"});
    EXPECT_EQ(empty.vectorSize(), 0u);
}

TEST_F(TypeRegistry, NamesMatchExactlyAndOnlyAsStrings)
{
    defineAll();
    EXPECT_FALSE(MathTypeMembers(str("point")).isNull());
    // A one-term expression holding the string is that string.
    EXPECT_FALSE(MathTypeMembers(vhExpression(str("point"))).isNull());
    const std::vector<vhValue> others = {str("Point"), str("point "), str(" point"), str("poin"), str("pointx"),
                                         str(""), vhSymbolicValue("point", false, {}), vhValue(), vhInteger(0),
                                         vhObject("point", nullptr), strings({"point"})};
    for (const vhValue& name : others) {
        EXPECT_TRUE(MathTypeMembers(name).isNull()) << name.toStringAll();
        EXPECT_TRUE(MathTypeConstructors(name).isNull());
        EXPECT_TRUE(MathTypeMethods(name).isNull());
        EXPECT_TRUE(MathTypeMemberType(name, str("x")).isNull());
        EXPECT_TRUE(MathTypeMethodArguments(name, str("norm")).isNull());
        EXPECT_TRUE(math.ObjectCreate_f(1, &name).isNull());
    }
    EXPECT_EQ(host.creates, 0);
    EXPECT_TRUE(host.memberTypeArgument.isNull());
}

TEST_F(TypeRegistry, TheSecondArgumentReachesTheHostUnchanged)
{
    defineAll();
    double data[] = {1, 2, 3, 4};
    const vhValue matrix = vhMatrix(data, 2, 2);
    EXPECT_EQ(MathTypeMemberType(str("point"), matrix).toString(), "double");
    EXPECT_TRUE(host.memberTypeArgument == matrix);
    EXPECT_EQ(host.memberTypeArgument.valueType(), tagMatrix);

    const vhValue symbol = vhSymbolicValue("x", false, {});
    math.TypeMethodArguments_f(str("point"), symbol);
    EXPECT_TRUE(host.methodArgumentsArgument.isSymbol());

    // Even the undefined value and an empty string are passed on.
    host.memberTypeArgument = vhInteger(1);
    MathTypeMemberType(str("point"), vhValue());
    EXPECT_TRUE(host.memberTypeArgument.isNull());
    EXPECT_EQ(MathTypeMethodArguments(str("third"), vhInteger(7)).toInt(), 7);
}

TEST_F(TypeRegistry, TextFormsForTheEditor)
{
    defineAll();
    EXPECT_EQ(MathDefinedTypesString(), "point\nodd\nthird");
    EXPECT_EQ(MathDefinedTypesStringContains("o"), "point\nodd");
    EXPECT_EQ(MathDefinedTypesStringContains(""), "point\nodd\nthird");
    EXPECT_EQ(MathDefinedTypesStringContains("O"), "");
    EXPECT_EQ(MathTypeConstructorsString("point"), "point()\npoint(x, y)");
    EXPECT_EQ(MathTypeMembersString("point"), "x\ny\nlength");
    EXPECT_EQ(MathTypeMembersStringContains("point", "l"), "length");
    EXPECT_EQ(MathTypeMembersStringContains("point", "x"), "x");
    EXPECT_EQ(MathTypeMethodsString("point"), "norm\nscale");
    EXPECT_EQ(MathTypeMemberTypeString("point", "x"), "double");
    EXPECT_EQ(host.memberTypeArgument.toString(), "x");
    EXPECT_TRUE(host.memberTypeArgument.isString());
    EXPECT_EQ(MathTypeMethodArgumentsString("point", "scale"), "double factor\nbool inPlace");
    EXPECT_EQ(MathTypeMethodArgsString("point", "scale"), "double factor, bool inPlace");

    // Scalars give one entry, a nested vector one entry per element, an
    // empty or undefined answer nothing.
    EXPECT_EQ(MathTypeConstructorsString("odd"), "odd()");
    EXPECT_EQ(MathTypeMembersString("odd"), "3");
    EXPECT_EQ(MathTypeMembersStringContains("odd", "3"), "3");
    const std::string inner = strings({"inner", "list"}).toString();
    EXPECT_EQ(MathTypeMethodsString("odd"), inner + "\n2.5\nrun");
    EXPECT_EQ(MathTypeMemberTypeString("odd", "x"), "");
    EXPECT_EQ(MathTypeMethodArgsString("odd", "run"), "");

    for (const std::string& unknown : {"", "Point", "nothing"}) {
        EXPECT_EQ(MathTypeConstructorsString(unknown), "");
        EXPECT_EQ(MathTypeMembersString(unknown), "");
        EXPECT_EQ(MathTypeMembersStringContains(unknown, ""), "");
        EXPECT_EQ(MathTypeMethodsString(unknown), "");
        EXPECT_EQ(MathTypeMemberTypeString(unknown, "x"), "");
        EXPECT_EQ(MathTypeMethodArgumentsString(unknown, "scale"), "");
        EXPECT_EQ(MathTypeMethodArgsString(unknown, "scale"), "");
    }
}

TEST_F(TypeRegistry, ObjectCreateForwardsUpToTenArgumentsInOrder)
{
    defineAll();
    const vhValue name = str("point");
    vhValue v[11];
    for (int i = 0; i < 11; ++i)
        v[i] = vhInteger(i + 1);
    const vhValue* p[11];
    for (int i = 0; i < 11; ++i)
        p[i] = &v[i];
    const vhValue* n = &name;
    const auto create = [&](unsigned int k) {
        switch (k) {
        case 0: return math.ObjectCreate_f(1, n);
        case 1: return math.ObjectCreate_f(2, n, p[0]);
        case 2: return math.ObjectCreate_f(3, n, p[0], p[1]);
        case 3: return math.ObjectCreate_f(4, n, p[0], p[1], p[2]);
        case 4: return math.ObjectCreate_f(5, n, p[0], p[1], p[2], p[3]);
        case 5: return math.ObjectCreate_f(6, n, p[0], p[1], p[2], p[3], p[4]);
        case 6: return math.ObjectCreate_f(7, n, p[0], p[1], p[2], p[3], p[4], p[5]);
        case 7: return math.ObjectCreate_f(8, n, p[0], p[1], p[2], p[3], p[4], p[5], p[6]);
        case 8: return math.ObjectCreate_f(9, n, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7]);
        case 9: return math.ObjectCreate_f(10, n, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8]);
        case 10: return math.ObjectCreate_f(11, n, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9]);
        default: return math.ObjectCreate_f(12, n, p[0], p[1], p[2], p[3], p[4], p[5], p[6], p[7], p[8], p[9], p[10]);
        }
    };
    for (unsigned int k = 0; k <= 10; ++k) {
        const vhValue object = create(k);
        EXPECT_EQ(object.valueType(), tagObject);
        EXPECT_EQ(object.objectPointer(), &host);
        ASSERT_EQ(host.createCount, k);
        ASSERT_EQ(host.createArguments.size(), k);
        for (unsigned int i = 0; i < k; ++i)
            EXPECT_EQ(host.createArguments[i].toInt(), static_cast<int>(i + 1));
    }
    EXPECT_EQ(host.creates, 11);
    // Eleven arguments are too many, and no count at all is nothing.
    EXPECT_TRUE(create(11).isNull());
    EXPECT_TRUE(math.ObjectCreate_f(0).isNull());
    EXPECT_TRUE(math.ObjectCreate_f(1, static_cast<const vhValue*>(nullptr)).isNull());
    EXPECT_EQ(host.creates, 11);

    // A missing argument arrives as the undefined value.
    math.ObjectCreate_f(3, n, static_cast<const vhValue*>(nullptr), p[4]);
    ASSERT_EQ(host.createArguments.size(), 2u);
    EXPECT_TRUE(host.createArguments[0].isNull());
    EXPECT_EQ(host.createArguments[1].toInt(), 5);

    host.createAnswersUndefined = true;
    EXPECT_TRUE(math.ObjectCreate_f(2, n, p[0]).isNull());
    EXPECT_EQ(host.createCount, 1u);
}

TEST_F(TypeRegistry, HostExceptionsPassThroughAndLeaveTheRegistryIntact)
{
    defineAll();
    const vhValue name = str("point");
    double data[64] = {};
    const vhValue big = vhVector(data, 64, true);
    host.createThrows = true;
    EXPECT_THROW(math.ObjectCreate_f(2, &name, &big), std::runtime_error);
    host.membersThrows = true;
    EXPECT_THROW(math.TypeMembers_f(name), std::runtime_error);
    EXPECT_THROW(callFunction(&math, nt_TypeMembers, {name}), std::runtime_error);
    EXPECT_THROW(MathTypeMembersString("point"), std::runtime_error);

    host = HostLog();
    EXPECT_EQ(MathDefinedTypesString(), "point\nodd\nthird");
    EXPECT_EQ(math.ObjectCreate_f(1, &name).objectTypeName(), "point");
    EXPECT_EQ(MathTypeMembers(name).vectorSize(), 3u);
}

TEST_F(TypeRegistry, CreateMayRebuildTheRegistryWhileItRuns)
{
    defineAll();
    const vhValue name = str("point");
    const vhValue x = vhDouble(1.5);
    host.createRebuildsRegistry = true;
    for (int round = 0; round < 3; ++round) {
        const vhValue object = math.ObjectCreate_f(2, &name, &x);
        EXPECT_EQ(object.objectTypeName(), "point");
        EXPECT_EQ(host.createArguments.at(0).toDouble(), 1.5);
    }
    EXPECT_EQ(MathDefinedTypes().vectorSize(), 53u);
    EXPECT_EQ(MathDefinedTypes().value(50).toString(), "point");
    EXPECT_EQ(MathTypeMembersString("odd"), "3");
}
