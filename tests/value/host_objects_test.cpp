// Method calls through a value, raw-pointer calls, the registration rules of
// the two method tables, the equality of the handle classes and member access
// through a pointer value.

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>

#include "value/value.h"

using namespace VarnholtMath::ValueTypes;

namespace {

vhValue str(const std::string& s) { return vhSymbolicValue(s, true, {}); }
template <class F>
void* address(F f)
{
    return reinterpret_cast<void*>(f);
}

typedef vhValue V;
typedef std::uint64_t W;

struct Methods {
    static vhValue* lastSelf;
    static vhValue none(V* self)
    {
        lastSelf = self;
        return vhInteger(-1);
    }
    // The arguments joined as decimal digits: their order shows.
    static vhValue ten(V* self, V a, V b, V c, V d, V e, V f, V g, V h, V i, V j)
    {
        lastSelf = self;
        int n = 0;
        for (const V* v : {&a, &b, &c, &d, &e, &f, &g, &h, &i, &j})
            n = n * 10 + (v->isNull() ? 0 : v->toInt());
        return vhInteger(n);
    }
    // Changes its copy; the caller's argument stays.
    static vhValue changes(V*, V a)
    {
        a = vhInteger(0);
        return a;
    }
    static vhValue throws(V*, V, V) { throw std::runtime_error("host failure"); }
    static vhValue one(V*, V a) { return a; }
    static vhValue two(V*, V a, V b) { return a + b; }

    static W rawNone(V* wrapper) { return wrapper ? 7 : 0; }
    static W rawTen(V*, W a, W b, W c, W d, W e, W f, W g, W h, W i, W j)
    {
        return a + 2 * b + 3 * c + 4 * d + 5 * e + 6 * f + 7 * g + 8 * h + 9 * i + 10 * j;
    }
    static W rawOne(V*, W a) { return a + 1; }
};
vhValue* Methods::lastSelf = nullptr;

} // namespace

TEST(HostObjects, CallPassesZeroToTenArgumentsAndRefusesMore)
{
    vhValue own = vhInteger(5);
    vhValue object = vhObject("Thing", nullptr);
    object.add_method("none", 0, address(&Methods::none));
    object.add_method("ten", 10, address(&Methods::ten));
    const vhValue noneName = str("none"), tenName = str("ten");

    // Without the host's own value there is nothing to call.
    EXPECT_TRUE(object.call(1, &noneName).isNull());
    object.set_mthis(&own);
    EXPECT_EQ(object.call(1, &noneName).toInt(), -1);
    EXPECT_EQ(Methods::lastSelf, &own);

    vhValue d[11];
    for (int i = 0; i < 11; ++i)
        d[i] = vhInteger(i % 9 + 1);
    EXPECT_EQ(object.call(11, &tenName, &d[0], &d[1], &d[2], &d[3], &d[4], &d[5], &d[6], &d[7], &d[8], &d[9]).toInt(),
              1234567891);
    // A missing argument is the undefined value.
    EXPECT_EQ(object.call(11, &tenName, &d[0], &d[1], &d[2], &d[3], &d[4], &d[5], &d[6], &d[7], &d[8],
                          static_cast<const vhValue*>(nullptr))
                  .toInt(),
              1234567890);
    // Eleven arguments are refused even when a method of that count exists.
    object.add_method("eleven", 11, address(&Methods::ten));
    const vhValue elevenName = str("eleven");
    EXPECT_TRUE(object.call(12, &elevenName, &d[0], &d[1], &d[2], &d[3], &d[4], &d[5], &d[6], &d[7], &d[8], &d[9],
                            &d[10])
                    .isNull());
    EXPECT_TRUE(object.call(0).isNull());
    const vhValue empty = str(""), symbol = vhSymbolicValue("none", false, {});
    EXPECT_TRUE(object.call(1, &empty).isNull());
    EXPECT_TRUE(object.call(1, &symbol).isNull());
    EXPECT_TRUE(object.call(1, static_cast<const vhValue*>(nullptr)).isNull());
    EXPECT_TRUE(vhObject().call(1, &noneName).isNull());

    object.add_method("changes", 1, address(&Methods::changes));
    const vhValue changesName = str("changes");
    EXPECT_EQ(object.call(2, &changesName, &d[3]).toInt(), 0);
    EXPECT_EQ(d[3].toInt(), 4);
}

TEST(HostObjects, AnExceptionOfTheHostPassesThroughCall)
{
    vhValue own = vhInteger(0);
    vhValue object = vhObject("Thing", nullptr);
    object.set_mthis(&own);
    object.add_method("throws", 2, address(&Methods::throws));
    const vhValue name = str("throws");
    // Values that own blocks: a copy left behind would be reported as a leak.
    double data[256] = {};
    const vhValue big = vhVector(data, 256, false);
    const vhValue text = str(std::string(100, 'a'));
    EXPECT_THROW(object.call(3, &name, &big, &text), std::runtime_error);
    EXPECT_EQ(big.vectorSize(), 256u);
    EXPECT_EQ(object.call(1, &name).isNull(), true);
}

TEST(HostObjects, RegistrationRulesOfTheTwoTables)
{
    vhValue object = vhObject("Thing", nullptr);
    vhValue own = vhInteger(0);
    object.set_mthis(&own);
    const vhValue f = str("f"), one = vhInteger(1), two = vhInteger(2);

    // A name that stands with no arguments may come again with a count.
    object.add_method("f", 0, address(&Methods::none));
    object.add_method("f", 1, address(&Methods::one));
    object.add_method("f", 2, address(&Methods::two));
    EXPECT_EQ(object.call(1, &f).toInt(), -1);
    EXPECT_EQ(object.call(2, &f, &two).toInt(), 2);
    EXPECT_TRUE(object.call(3, &f, &one, &two).isNull());
    // Nothing is registered on a null value, for an empty name or a null
    // function.
    object.add_method("", 1, address(&Methods::one));
    object.add_method("g", 1, nullptr);
    vhObject nothing;
    nothing.add_method("f", 1, address(&Methods::one));
    nothing.add_method_ptr("f", 1, address(&Methods::rawOne));
    EXPECT_TRUE(nothing.call(2, &f, &one).isNull());
    const vhValue g = str("g");
    EXPECT_TRUE(object.call(2, &g, &one).isNull());

    // The raw table takes any name once, whatever the counts.
    vhValue wrapper = vhInteger(0);
    object.set_wrapper_type(&wrapper);
    object.add_method_ptr("r", 1, address(&Methods::rawOne));
    object.add_method_ptr("r", 0, address(&Methods::rawNone));
    object.add_method_ptr("r", 1, address(&Methods::rawNone));
    const vhValue r = str("r");
    EXPECT_EQ(object.call_ptr(2, &r, W(41)), 42u);
    EXPECT_EQ(object.call_ptr(1, &r), 0u);
}

TEST(HostObjects, RawCallsPassWordsAndGiveZeroOnEveryFailure)
{
    vhValue object = vhObject("Thing", nullptr);
    object.add_method_ptr("none", 0, address(&Methods::rawNone));
    object.add_method_ptr("ten", 10, address(&Methods::rawTen));
    object.add_method_ptr("eleven", 11, address(&Methods::rawTen));
    const vhValue none = str("none"), ten = str("ten"), eleven = str("eleven");

    // The wrapper is needed, not the host's own value.
    vhValue own = vhInteger(0);
    object.set_mthis(&own);
    EXPECT_EQ(object.call_ptr(1, &none), 0u);
    vhValue wrapper = vhInteger(0);
    object.set_wrapper_type(&wrapper);
    EXPECT_EQ(object.call_ptr(1, &none), 7u);
    EXPECT_EQ(object.call_ptr(11, &ten, W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1) << 40),
              45u + (W(10) << 40));
    EXPECT_EQ(object.call_ptr(12, &eleven, W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1), W(1)), 0u);

    const vhValue empty = str(""), symbol = vhSymbolicValue("none", false, {}), unknown = str("other");
    EXPECT_EQ(object.call_ptr(0), 0u);
    EXPECT_EQ(object.call_ptr(1, static_cast<const vhValue*>(nullptr)), 0u);
    EXPECT_EQ(object.call_ptr(1, &empty), 0u);
    EXPECT_EQ(object.call_ptr(1, &symbol), 0u);
    EXPECT_EQ(object.call_ptr(1, &unknown), 0u);
    EXPECT_EQ(object.call_ptr(2, &none, W(1)), 0u);
    vhObject nothing;
    nothing.set_wrapper_type(&wrapper);
    EXPECT_EQ(nothing.call_ptr(1, &none), 0u);
}

TEST(HostObjects, HandlesCompareByTheirIdentity)
{
    vhValue ownA = vhInteger(1), ownB = vhInteger(1), wrapA = vhInteger(2), wrapB = vhInteger(2);
    int thing = 0, other = 0, docA = 0, docB = 0;

    vhObject a("Thing", &thing), b("Thing", &other);
    // Without mthis or wrapper on both sides two objects are never equal,
    // not even a handle and itself.
    EXPECT_FALSE(a == a);
    a.set_wrapper_type(&wrapA);
    b.set_wrapper_type(&wrapA);
    EXPECT_TRUE(a == b);
    b.set_wrapper_type(&wrapB);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    // mthis on both sides decides before the wrapper.
    a.set_mthis(&ownA);
    b.set_mthis(&ownA);
    EXPECT_TRUE(a == b);
    b.set_mthis(&ownB);
    EXPECT_FALSE(a == b);
    b.set_mthis(nullptr);
    b.set_wrapper_type(&wrapA);
    EXPECT_TRUE(a == b);
    vhObject renamed(b);
    renamed.setObjectTypeName("Other");
    EXPECT_FALSE(a == renamed);
    EXPECT_FALSE(a == vhObject());

    EXPECT_TRUE(vhChannel("Serial", &thing) == vhChannel("Serial", &thing));
    EXPECT_FALSE(vhChannel("Serial", &thing) == vhChannel("Serial", &other));
    EXPECT_FALSE(vhChannel("Serial", &thing) == vhChannel("USB", &thing));
    EXPECT_TRUE(vhFile("Text", &thing) == vhFile("Text", &thing));
    EXPECT_TRUE(vhFile("Text", &thing) != vhFile("Text", &other));
    EXPECT_FALSE(vhFile("Text", &thing) == vhChannel("Text", &thing));

    vhWidget w1("Button", &thing), w2("Button", &thing);
    w1.setWidgetDocument(&docA);
    w2.setWidgetDocument(&docA);
    EXPECT_TRUE(w1 == w2);
    w2.setWidgetDocument(&docB);
    EXPECT_FALSE(w1 == w2);
    EXPECT_TRUE(w1 != w2);

    // An empty type name makes a null handle, with no text.
    EXPECT_TRUE(vhWidget("", &thing).isNull());
    EXPECT_FALSE(vhWidget("", &thing) == vhWidget("", &thing));
    EXPECT_EQ(vhFile("", &thing).toStringAll(), "");
}

TEST(HostObjects, MembersAndAddressesThroughAPointer)
{
    vhValue own = vhObject("Own", nullptr);
    own.set("inner", vhInteger(1), true);
    vhValue target = vhObject("Thing", nullptr);
    target.set("a", vhInteger(2), true);
    target.set("b", vhInteger(3), true);
    target.set_mthis(&own);
    EXPECT_EQ(target.members(), (std::vector<std::string>{"inner", "a", "b"}));

    const vhValue pointer = vhInteger(&target);
    EXPECT_EQ(pointer.members(), (std::vector<std::string>{"inner", "a", "b"}));
    vhValue at = pointer.get_address("b");
    ASSERT_TRUE(at.isPointer());
    *at.pointer() = vhInteger(30);
    EXPECT_EQ(target.get("b").toInt(), 30);
    // The host's own value answers first, also for an address.
    vhValue inner = pointer.get_address("inner");
    ASSERT_TRUE(inner.isPointer());
    *inner.pointer() = vhInteger(10);
    EXPECT_EQ(own.get("inner").toInt(), 10);
    EXPECT_TRUE(pointer.get_address("missing").isNull());
    EXPECT_TRUE(pointer.get_address("").isNull());
    EXPECT_TRUE(vhValue().members().empty());
}
