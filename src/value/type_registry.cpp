// The registry of the host's own types: an ordered list of records, a name
// index beside it so that registering and finding a type cost the same with
// ten types or ten thousand, and the list of names, built when first asked
// for and kept until the registry changes.

#include "value/type_registry.h"

#include <unordered_map>
#include <vector>

namespace VarnholtMath {
namespace ValueTypes {

namespace {

struct TypeRecord {
    std::string name;
    TypeCreateFunction create;
    TypeListFunction constructors;
    TypeListFunction members;
    TypeQueryFunction memberType;
    TypeListFunction methods;
    TypeQueryFunction methodArguments;
};

struct TypeRegistry {
    std::vector<TypeRecord> records;
    std::unordered_map<std::string, std::size_t> index;
    vhValue names;
    bool namesValid = false;
};

TypeRegistry& registry()
{
    static TypeRegistry theRegistry;
    return theRegistry;
}

// The text of a name value: a non-empty string, also inside one-term
// expressions. Symbols, numbers and everything else are no names.
bool nameText(const vhValue& name, std::string& text)
{
    if (!name.isString())
        return false;
    if (name.valueType() == tagSymbolicValue) {
        text = name.toString();
    } else {
        vhValue term = expressionToValue(name);
        while (term.valueType() == tagExpression)
            term = expressionToValue(term);
        text = term.toString();
    }
    return !text.empty();
}

const TypeRecord* findType(const vhValue& name)
{
    std::string text;
    if (!nameText(name, text))
        return nullptr;
    const TypeRegistry& r = registry();
    const auto it = r.index.find(text);
    return it == r.index.end() ? nullptr : &r.records[it->second];
}

// Each query copies the function out of the record before it calls it: the
// host's function may define or undefine types, which moves the records.
vhValue askList(const vhValue& name, TypeListFunction TypeRecord::*field)
{
    const TypeRecord* record = findType(name);
    if (!record)
        return vhValue();
    const TypeListFunction function = record->*field;
    return function();
}

vhValue askQuery(const vhValue& name, TypeQueryFunction TypeRecord::*field, const vhValue& argument)
{
    const TypeRecord* record = findType(name);
    if (!record)
        return vhValue();
    const TypeQueryFunction function = record->*field;
    return function(argument);
}

vhValue stringValue(const std::string& text) { return vhSymbolicValue(text, true, {}); }

std::string entryText(const vhValue& entry)
{
    std::string text;
    if (!entry.isString())
        return entry.toString();
    nameText(entry, text);
    return text;
}

std::vector<std::string> entries(const vhValue& answer)
{
    std::vector<std::string> list;
    if (answer.isNull())
        return list;
    if (!answer.isVector()) {
        list.push_back(entryText(answer));
        return list;
    }
    const unsigned int n = answer.vectorSize();
    list.reserve(n);
    for (unsigned int i = 0; i < n; ++i)
        list.push_back(entryText(answer.value(i)));
    return list;
}

std::string joined(const std::vector<std::string>& list, const char* separator, const std::string& filter)
{
    std::string text;
    bool first = true;
    for (const std::string& entry : list) {
        if (!filter.empty() && entry.find(filter) == std::string::npos)
            continue;
        if (!first)
            text += separator;
        text += entry;
        first = false;
    }
    return text;
}

std::string lines(const vhValue& answer, const std::string& filter = std::string())
{
    return joined(entries(answer), "\n", filter);
}

} // namespace

void MathDefineType(const std::string& name, TypeCreateFunction create, TypeListFunction constructors,
                    TypeListFunction members, TypeQueryFunction memberType, TypeListFunction methods,
                    TypeQueryFunction methodArguments)
{
    if (name.empty() || !create || !constructors || !members || !memberType || !methods || !methodArguments)
        return;
    TypeRegistry& r = registry();
    if (r.index.count(name))
        return;
    r.records.push_back({name, create, constructors, members, memberType, methods, methodArguments});
    try {
        r.index.emplace(name, r.records.size() - 1);
    } catch (...) {
        r.records.pop_back();
        throw;
    }
    r.namesValid = false;
    r.names = vhValue();
}

void MathUndefineTypes()
{
    TypeRegistry& r = registry();
    r.records.clear();
    r.index.clear();
    r.namesValid = false;
    r.names = vhValue();
}

vhValue MathDefinedTypes()
{
    TypeRegistry& r = registry();
    if (!r.namesValid) {
        std::vector<vhValue> names;
        names.reserve(r.records.size());
        for (const TypeRecord& record : r.records)
            names.push_back(stringValue(record.name));
        r.names = vhVector(names, false);
        r.namesValid = true;
    }
    return r.names;
}

vhValue MathTypeConstructors(const vhValue& name) { return askList(name, &TypeRecord::constructors); }

vhValue MathTypeMembers(const vhValue& name) { return askList(name, &TypeRecord::members); }

vhValue MathTypeMethods(const vhValue& name) { return askList(name, &TypeRecord::methods); }

vhValue MathTypeMemberType(const vhValue& name, const vhValue& member)
{
    return askQuery(name, &TypeRecord::memberType, member);
}

vhValue MathTypeMethodArguments(const vhValue& name, const vhValue& method)
{
    return askQuery(name, &TypeRecord::methodArguments, method);
}

TypeCreateFunction MathTypeCreateFunction(const vhValue& name)
{
    const TypeRecord* record = findType(name);
    return record ? record->create : nullptr;
}

std::string MathDefinedTypesString() { return lines(MathDefinedTypes()); }

std::string MathDefinedTypesStringContains(const std::string& text) { return lines(MathDefinedTypes(), text); }

std::string MathTypeConstructorsString(const std::string& type)
{
    return lines(MathTypeConstructors(stringValue(type)));
}

std::string MathTypeMethodsString(const std::string& type) { return lines(MathTypeMethods(stringValue(type))); }

std::string MathTypeMembersString(const std::string& type) { return lines(MathTypeMembers(stringValue(type))); }

std::string MathTypeMembersStringContains(const std::string& type, const std::string& text)
{
    return lines(MathTypeMembers(stringValue(type)), text);
}

std::string MathTypeMemberTypeString(const std::string& type, const std::string& member)
{
    return lines(MathTypeMemberType(stringValue(type), stringValue(member)));
}

std::string MathTypeMethodArgumentsString(const std::string& type, const std::string& method)
{
    return lines(MathTypeMethodArguments(stringValue(type), stringValue(method)));
}

std::string MathTypeMethodArgsString(const std::string& type, const std::string& method)
{
    return joined(entries(MathTypeMethodArguments(stringValue(type), stringValue(method))), ", ", std::string());
}

} // namespace ValueTypes
} // namespace VarnholtMath
