#include "demo_type.h"

#include <cmath>
#include <cstdarg>

namespace vhcalc {

using namespace VarnholtMath::ValueTypes;

namespace {

ObjectStore* currentStore = nullptr;

vhValue text(const char* s) { return vhSymbolicValue(s, true, {}); }

vhValue texts(std::initializer_list<const char*> list)
{
    std::vector<vhValue> elements;
    for (const char* s : list)
        elements.push_back(text(s));
    return vhVector(elements, false);
}

bool realNumber(const vhValue& v)
{
    return !v.isNull() && (v.valueType() == tagInteger || v.valueType() == tagDouble) && v.pointer() == nullptr;
}

// The method gets the object's own value, where the coordinates live.
vhValue pointNorm(vhValue* self)
{
    if (!self)
        return vhValue();
    return vhDouble(std::hypot(self->get("x").toDouble(), self->get("y").toDouble()));
}

// point() is the origin, point(x, y) the point at x, y; any other arguments
// make no point.
vhValue pointCreate(unsigned int n, ...)
{
    if (!currentStore || (n != 0 && n != 2))
        return vhValue();
    double xy[2] = {0.0, 0.0};
    va_list args;
    va_start(args, n);
    bool numbers = true;
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue* a = va_arg(args, const vhValue*);
        numbers = numbers && a && realNumber(*a);
        if (numbers)
            xy[i] = a->toDouble();
    }
    va_end(args);
    if (!numbers)
        return vhValue();
    // The object's own value holds the members; the handle that the
    // worksheet gets carries the methods and forwards member access to it.
    vhValue own = vhObject("point", nullptr);
    own.set("x", vhDouble(xy[0]), true);
    own.set("y", vhDouble(xy[1]), true);
    vhValue& stored = currentStore->add(own);
    vhValue handle = vhObject("point", &stored);
    handle.set_mthis(&stored);
    handle.add_method("norm", 0, reinterpret_cast<void*>(&pointNorm));
    return handle;
}

vhValue pointConstructors() { return texts({"point()", "point(x, y)"}); }
vhValue pointMembers() { return texts({"x", "y"}); }
vhValue pointMethods() { return texts({"norm"}); }

vhValue pointMemberType(const vhValue& member)
{
    const std::string name = member.isString() ? member.toString() : std::string();
    return name == "x" || name == "y" ? text("double") : vhValue();
}

// norm takes no argument: the empty list.
vhValue pointMethodArguments(const vhValue& method)
{
    if (method.isString() && method.toString() == "norm")
        return vhVector(std::vector<vhValue>{}, false);
    return vhValue();
}

} // namespace

vhValue& ObjectStore::add(const vhValue& own)
{
    m_objects.push_back(own);
    return m_objects.back();
}

void registerDemoType(ObjectStore& store)
{
    currentStore = &store;
    MathDefineType("point", &pointCreate, &pointConstructors, &pointMembers, &pointMemberType, &pointMethods,
                   &pointMethodArguments);
}

void unregisterDemoType()
{
    MathUndefineTypes();
    currentStore = nullptr;
}

} // namespace vhcalc
