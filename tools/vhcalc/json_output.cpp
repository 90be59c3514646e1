#include "json_output.h"

#include <cmath>
#include <cstdio>

namespace vhcalc {

using namespace VarnholtMath::ValueTypes;

namespace {

// Elements nested deeper than this (arrays of arrays of ...) print as their
// text; the parser's nesting limit keeps typed input far below it.
constexpr int maximumDepth = 64;

std::string complexJson(double re, double im)
{
    return "{\"re\": " + jsonNumber(re) + ", \"im\": " + jsonNumber(im) + "}";
}

std::string valueJson(const vhValue& value, int depth);

std::string arrayJson(const vhValue& value, int depth)
{
    const unsigned int n = value.vectorSize();
    std::string data;
    data.reserve(n * 4);
    const double* re = value.numericValues();
    const double* im = value.numericImValues();
    for (unsigned int i = 0; i < n; ++i) {
        if (i > 0)
            data += ", ";
        // Numeric storage is read directly; a vhValue per element would make
        // a large array slow.
        if (re)
            data += im ? complexJson(re[i], im[i]) : jsonNumber(re[i]);
        else
            data += valueJson(value.value(i), depth + 1);
    }
    return "{\"rows\": " + std::to_string(value.matrixRows()) + ", \"cols\": " + std::to_string(value.matrixColumns()) +
           ", \"data\": [" + data + "]}";
}

std::string valueJson(const vhValue& value, int depth)
{
    if (value.isNull())
        return "null";
    switch (value.valueType()) {
    case tagBoolean:
        return value.toBool() ? "true" : "false";
    case tagInteger:
        return value.pointer() ? "null" : jsonNumber(value.toDouble());
    case tagDouble:
        return jsonNumber(value.toDouble());
    case tagComplex:
        return complexJson(value.complexRe(), value.complexIm());
    case tagVector:
    case tagMatrix:
        if (depth < maximumDepth)
            return arrayJson(value, depth);
        break;
    case tagSymbolicValue:
        // A string is its characters, without the quotes of its text form.
        if (value.isString())
            return jsonString(value.toString());
        break;
    default:
        break;
    }
    return jsonString(value.toStringAll());
}

} // namespace

std::string jsonString(const std::string& text)
{
    std::string out = "\"";
    for (const char ch : text) {
        const unsigned char c = static_cast<unsigned char>(ch);
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20 || c == 0x7F) {
                char buffer[8];
                std::snprintf(buffer, sizeof buffer, "\\u%04x", c);
                out += buffer;
            } else {
                out += ch;
            }
        }
    }
    return out + "\"";
}

std::string jsonNumber(double x)
{
    if (std::isnan(x))
        return "null";
    if (std::isinf(x))
        return x > 0 ? "\"inf\"" : "\"-inf\"";
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.17g", x);
    return buffer;
}

std::string jsonValue(const vhValue& value) { return valueJson(value, 0); }

std::string jsonResult(const vhValue& value, const std::string& text)
{
    return "{\"type\": " + jsonString(value.typeName()) + ", \"text\": " + jsonString(text) +
           ", \"value\": " + jsonValue(value) + "}";
}

} // namespace vhcalc
