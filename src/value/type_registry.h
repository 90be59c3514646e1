#pragma once

// The process-wide registry of the host's own types. The host registers each
// type once, by name, with six functions; the worksheet language then creates
// objects of the type and lists its constructors, members and methods.
//
// A type name is looked up only in a value that is a non-empty string,
// compared byte for byte: a symbol, another case or a trailing blank finds
// nothing. Every failed lookup gives the undefined value (or "" in the text
// forms). The registry has no lock: it belongs to the thread that calculates.

#include <string>

#include "value/export.h"
#include "value/value.h"

namespace VarnholtMath {
namespace ValueTypes {

// Makes an object from a count and that many arguments, each passed as a
// const vhValue* (never null: a missing argument arrives as a pointer to the
// undefined value).
typedef vhValue (*TypeCreateFunction)(unsigned int, ...);
// The type's constructors, members or methods: a vector, usually of strings.
typedef vhValue (*TypeListFunction)();
// The type of a member, or the arguments of a method, given its name.
typedef vhValue (*TypeQueryFunction)(const vhValue&);

// Appends the type. Ignored when the name is empty, when any function is null
// or when the name is already registered: the first record keeps answering.
VH_EXPORT void MathDefineType(const std::string& name, TypeCreateFunction create, TypeListFunction constructors,
                              TypeListFunction members, TypeQueryFunction memberType, TypeListFunction methods,
                              TypeQueryFunction methodArguments);
// Forgets every type.
VH_EXPORT void MathUndefineTypes();

// The registered names, a column vector of strings in the order of
// registration; the empty vector when there are none.
VH_EXPORT vhValue MathDefinedTypes();
// The answers of the type's functions; the undefined value for a name that
// is no registered type. The second argument of the last two reaches the
// host's function unchanged, whatever it holds.
VH_EXPORT vhValue MathTypeConstructors(const vhValue& name);
VH_EXPORT vhValue MathTypeMembers(const vhValue& name);
VH_EXPORT vhValue MathTypeMethods(const vhValue& name);
VH_EXPORT vhValue MathTypeMemberType(const vhValue& name, const vhValue& member);
VH_EXPORT vhValue MathTypeMethodArguments(const vhValue& name, const vhValue& method);

// Inside the library: the create function of the type, or null for a name
// that is no registered type. The caller keeps the pointer for its call, so
// that a create that changes the registry while it runs leaves nothing
// dangling.
TypeCreateFunction MathTypeCreateFunction(const vhValue& name);

// Text forms for the host's editor. An answer that is a vector gives one
// entry per element, any other defined answer one entry, the undefined value
// none. A string entry is its text without quotes, any other its toString().
// Entries are joined by "\n", with no newline after the last;
// MathTypeMethodArgsString joins them by ", ", as a hint for a call. The
// Contains forms keep the entries whose text contains text (case-sensitive;
// an empty text keeps all). An unknown type gives "".
VH_EXPORT std::string MathDefinedTypesString();
VH_EXPORT std::string MathDefinedTypesStringContains(const std::string& text);
VH_EXPORT std::string MathTypeConstructorsString(const std::string& type);
VH_EXPORT std::string MathTypeMethodsString(const std::string& type);
VH_EXPORT std::string MathTypeMembersString(const std::string& type);
VH_EXPORT std::string MathTypeMembersStringContains(const std::string& type, const std::string& text);
VH_EXPORT std::string MathTypeMemberTypeString(const std::string& type, const std::string& member);
VH_EXPORT std::string MathTypeMethodArgumentsString(const std::string& type, const std::string& method);
VH_EXPORT std::string MathTypeMethodArgsString(const std::string& type, const std::string& method);

} // namespace ValueTypes
} // namespace VarnholtMath
