// Member and method tables through which the host extends values with its
// own objects, and the equality of the handle classes.

#include <cstdarg>
#include <cstdint>

#include "value/class_macros.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {
int findName(const std::vector<std::string>& names, const std::string& name)
{
    for (std::size_t i = 0; i < names.size(); ++i)
        if (names[i].size() == name.size() && names[i] == name)
            return static_cast<int>(i);
    return -1;
}
} // namespace

std::vector<std::string> vhValue::members() const
{
    std::vector<std::string> list;
    if (isNull())
        return list;
    if (m_pointer)
        return m_pointer->members();
    if (m_mthis)
        list = m_mthis->members();
    list.insert(list.end(), m_memberNames.begin(), m_memberNames.end());
    return list;
}

vhValue vhValue::get(const std::string& name) const
{
    if (isNull() || name.empty())
        return vhValue();
    if (m_mthis) {
        vhValue answer = m_mthis->get(name);
        if (!answer.isNull())
            return answer;
    }
    const int i = findName(m_memberNames, name);
    if (i < 0 || std::size_t(i) >= m_memberValues.size())
        return vhValue();
    return m_memberValues[i];
}

vhValue vhValue::get_address(const std::string& name) const
{
    if (isNull())
        return vhValue();
    if (m_pointer)
        return m_pointer->get_address(name);
    if (name.empty())
        return vhValue();
    if (m_mthis) {
        vhValue answer = m_mthis->get_address(name);
        if (!answer.isNull())
            return answer;
    }
    const int i = findName(m_memberNames, name);
    if (i < 0 || std::size_t(i) >= m_memberValues.size())
        return vhValue();
    return vhInteger(const_cast<vhValue*>(&m_memberValues[i]));
}

vhValue vhValue::set(const std::string& name, const vhValue& value, bool create)
{
    if (isNull() || name.empty())
        return vhValue();
    if (m_mthis) {
        vhValue answer = m_mthis->set(name, value, create);
        if (!answer.isNull())
            return answer;
    }
    const int i = findName(m_memberNames, name);
    if (i >= 0 && std::size_t(i) < m_memberValues.size()) {
        m_memberValues[i] = value;
    } else if (create) {
        m_memberNames.push_back(name);
        m_memberValues.push_back(value);
    } else {
        return vhValue();
    }
    return *this;
}

void vhValue::add_method(const std::string& name, unsigned int argumentCount, ...)
{
    va_list args;
    va_start(args, argumentCount);
    void* function = va_arg(args, void*);
    va_end(args);
    if (isNull() || name.empty() || !function)
        return;
    // A name that stands with a non-zero count is not registered again.
    for (std::size_t i = 0; i < m_methodNames.size(); ++i)
        if (m_methodNames[i] == name && m_methodArgumentCounts[i] != 0)
            return;
    m_methodNames.push_back(name);
    m_methodArgumentCounts.push_back(argumentCount);
    m_methodFunctions.push_back(function);
}

void vhValue::add_method_ptr(const std::string& name, unsigned int argumentCount, ...)
{
    va_list args;
    va_start(args, argumentCount);
    void* function = va_arg(args, void*);
    va_end(args);
    if (isNull() || name.empty() || !function)
        return;
    if (findName(m_pointerMethodNames, name) >= 0)
        return;
    m_pointerMethodNames.push_back(name);
    m_pointerMethodArgumentCounts.push_back(argumentCount);
    m_pointerMethodFunctions.push_back(function);
}

namespace {

typedef vhValue V;
typedef V* P;

// Calls a host method that takes the object's own value and up to ten
// values. Each argument is copied once, into the method's parameter, so the
// method may change its copy freely.
vhValue callMethod(void* f, vhValue* self, const std::vector<const vhValue*>& a)
{
    switch (a.size()) {
    case 0: return reinterpret_cast<V (*)(P)>(f)(self);
    case 1: return reinterpret_cast<V (*)(P, V)>(f)(self, *a[0]);
    case 2: return reinterpret_cast<V (*)(P, V, V)>(f)(self, *a[0], *a[1]);
    case 3: return reinterpret_cast<V (*)(P, V, V, V)>(f)(self, *a[0], *a[1], *a[2]);
    case 4: return reinterpret_cast<V (*)(P, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3]);
    case 5: return reinterpret_cast<V (*)(P, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4]);
    case 6: return reinterpret_cast<V (*)(P, V, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4], *a[5]);
    case 7:
        return reinterpret_cast<V (*)(P, V, V, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4], *a[5],
                                                                   *a[6]);
    case 8:
        return reinterpret_cast<V (*)(P, V, V, V, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4], *a[5],
                                                                      *a[6], *a[7]);
    case 9:
        return reinterpret_cast<V (*)(P, V, V, V, V, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4],
                                                                         *a[5], *a[6], *a[7], *a[8]);
    case 10:
        return reinterpret_cast<V (*)(P, V, V, V, V, V, V, V, V, V, V)>(f)(self, *a[0], *a[1], *a[2], *a[3], *a[4],
                                                                            *a[5], *a[6], *a[7], *a[8], *a[9]);
    default: return vhValue();
    }
}

typedef std::uint64_t W;

std::uint64_t callPointerMethod(void* f, vhValue* wrapper, const std::vector<W>& a)
{
    switch (a.size()) {
    case 0: return reinterpret_cast<W (*)(P)>(f)(wrapper);
    case 1: return reinterpret_cast<W (*)(P, W)>(f)(wrapper, a[0]);
    case 2: return reinterpret_cast<W (*)(P, W, W)>(f)(wrapper, a[0], a[1]);
    case 3: return reinterpret_cast<W (*)(P, W, W, W)>(f)(wrapper, a[0], a[1], a[2]);
    case 4: return reinterpret_cast<W (*)(P, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3]);
    case 5: return reinterpret_cast<W (*)(P, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4]);
    case 6: return reinterpret_cast<W (*)(P, W, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4], a[5]);
    case 7:
        return reinterpret_cast<W (*)(P, W, W, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4], a[5], a[6]);
    case 8:
        return reinterpret_cast<W (*)(P, W, W, W, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4], a[5],
                                                                      a[6], a[7]);
    case 9:
        return reinterpret_cast<W (*)(P, W, W, W, W, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4], a[5],
                                                                         a[6], a[7], a[8]);
    case 10:
        return reinterpret_cast<W (*)(P, W, W, W, W, W, W, W, W, W, W)>(f)(wrapper, a[0], a[1], a[2], a[3], a[4],
                                                                            a[5], a[6], a[7], a[8], a[9]);
    default: return 0;
    }
}

} // namespace

vhValue vhValue::call(unsigned int n, ...)
{
    if (isNull() || !m_mthis || n == 0 || n > 11)
        return vhValue();
    va_list args;
    va_start(args, n);
    const vhValue* nameValue = va_arg(args, const vhValue*);
    std::vector<const vhValue*> pointers;
    for (unsigned int i = 1; i < n; ++i)
        pointers.push_back(va_arg(args, const vhValue*));
    va_end(args);
    if (!nameValue || !nameValue->isString() || nameValue->fullGrade().m_text.empty())
        return vhValue();
    const std::string name = nameValue->fullGrade().m_text;
    void* function = nullptr;
    bool found = false;
    for (std::size_t i = 0; i < m_methodNames.size() && !found; ++i) {
        if (m_methodNames[i] == name && m_methodArgumentCounts[i] == n - 1) {
            function = m_methodFunctions[i];
            found = true;
        }
    }
    if (!function)
        return vhValue();
    // A missing argument counts as the undefined value.
    static const vhValue undefinedArgument;
    for (const vhValue*& p : pointers)
        if (!p)
            p = &undefinedArgument;
    return callMethod(function, m_mthis, pointers);
}

std::uint64_t vhValue::call_ptr(unsigned int n, ...)
{
    if (isNull() || !m_wrapper_type || n == 0 || n > 11)
        return 0;
    va_list args;
    va_start(args, n);
    const vhValue* nameValue = va_arg(args, const vhValue*);
    std::vector<std::uint64_t> words;
    for (unsigned int i = 1; i < n; ++i)
        words.push_back(va_arg(args, std::uint64_t));
    va_end(args);
    if (!nameValue || !nameValue->isString() || nameValue->fullGrade().m_text.empty())
        return 0;
    const std::string name = nameValue->fullGrade().m_text;
    for (std::size_t i = 0; i < m_pointerMethodNames.size(); ++i) {
        if (m_pointerMethodNames[i] == name && m_pointerMethodArgumentCounts[i] == n - 1) {
            if (!m_pointerMethodFunctions[i])
                return 0;
            return callPointerMethod(m_pointerMethodFunctions[i], m_wrapper_type, words);
        }
    }
    return 0;
}

// --- handles -----------------------------------------------------------------

#define VH_HANDLE_CONSTRUCTORS(CLASS, TAG)                                                           \
    CLASS::CLASS() { m_valueType = TAG; }                                                            \
    CLASS::CLASS(std::string objectTypeName, void* objectPointer)                                    \
    {                                                                                                \
        m_valueType = TAG;                                                                           \
        m_undefined = false;                                                                         \
        m_objectTypeName = std::move(objectTypeName);                                                \
        m_objectPointer = objectPointer;                                                             \
    }                                                                                                \
    CLASS::CLASS(const vhValue& v) : vhValue(v) {}

VH_HANDLE_CONSTRUCTORS(vhObject, tagObject)
VH_HANDLE_CONSTRUCTORS(vhChannel, tagChannel)
VH_HANDLE_CONSTRUCTORS(vhWidget, tagWidget)
VH_HANDLE_CONSTRUCTORS(vhFile, tagFile)
#undef VH_HANDLE_CONSTRUCTORS

bool vhObject::operator==(const vhValue& other) const
{
    if (m_valueType != tagObject)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagObject)
        return false;
    if (m_objectTypeName != other.objectTypeName())
        return false;
    // Two host objects are the same when they share their own value, else
    // their wrapper.
    if (m_mthis && other.mthis())
        return m_mthis == other.mthis();
    if (m_wrapper_type && other.wrapper_type())
        return m_wrapper_type == other.wrapper_type();
    return false;
}

bool vhChannel::operator==(const vhValue& other) const
{
    if (m_valueType != tagChannel)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagChannel)
        return false;
    return m_objectTypeName == other.objectTypeName() && m_objectPointer == other.objectPointer();
}

bool vhWidget::operator==(const vhValue& other) const
{
    if (m_valueType != tagWidget)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagWidget)
        return false;
    return m_objectTypeName == other.objectTypeName() && m_objectPointer == other.objectPointer() &&
           m_widgetDocument == other.widgetDocument();
}

bool vhFile::operator==(const vhValue& other) const
{
    if (m_valueType != tagFile)
        return vhValue::operator==(other);
    if (isNull() || other.isNull() || other.valueType() != tagFile)
        return false;
    return m_objectTypeName == other.objectTypeName() && m_objectPointer == other.objectPointer();
}

VH_DEFINE_NOT_EQUAL(vhObject, tagObject)
VH_DEFINE_NOT_EQUAL(vhChannel, tagChannel)
VH_DEFINE_NOT_EQUAL(vhWidget, tagWidget)
VH_DEFINE_NOT_EQUAL(vhFile, tagFile)

} // namespace ValueTypes
} // namespace VarnholtMath
