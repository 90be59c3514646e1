// Small functions on values: type names and text forms, strings, building
// and taking apart complex numbers, rows of arrays, element-by-element
// division, and the clock.

#include <charconv>
#include <cmath>
#include <ctime>
#include <string>
#include <system_error>

#include "frame/math.h"
#include "functions/elementwise_skeleton.h"
#include "functions/real_rows.h"

namespace VarnholtMath {
namespace ValueTypes {

using namespace elementwise;

namespace {

vhValue text(const std::string& s) { return vhSymbolicValue(s, true, {}); }

// Characters are counted as UTF-8 code points, so that a letter with an
// accent is one character.
bool startsCharacter(unsigned char c) { return (c & 0xC0) != 0x80; }

std::size_t characterCount(const std::string& s)
{
    std::size_t n = 0;
    for (unsigned char c : s)
        n += startsCharacter(c) ? 1 : 0;
    return n;
}

// A real number written in full, with nothing left over. The reading does
// not depend on the host's locale: the decimal mark is always a point.
// Numbers beyond the range of doubles are refused rather than made infinite.
bool parseReal(const std::string& s, double& d)
{
    std::size_t start = s.size() > 1 && s[0] == '+' && s[1] != '-' && s[1] != '+' ? 1 : 0;
    if (start >= s.size())
        return false;
    const char* first = s.data() + start;
    const char* last = s.data() + s.size();
    const std::from_chars_result r = std::from_chars(first, last, d);
    return r.ec == std::errc() && r.ptr == last && !std::isnan(d);
}

bool parseWhole(const std::string& s, int& n)
{
    std::size_t start = s.size() > 1 && s[0] == '+' && s[1] != '-' && s[1] != '+' ? 1 : 0;
    if (start >= s.size())
        return false;
    const char* last = s.data() + s.size();
    const std::from_chars_result r = std::from_chars(s.data() + start, last, n);
    return r.ec == std::errc() && r.ptr == last;
}

// The coefficient of i: empty or a sign alone stand for 1 or -1.
bool parseImaginary(const std::string& s, double& d)
{
    if (s.empty() || s == "+") {
        d = 1.0;
        return true;
    }
    if (s == "-") {
        d = -1.0;
        return true;
    }
    return parseReal(s, d);
}

// "a+bi", "a-bi" and "bi", with i or j; blanks around the text are ignored.
vhValue parseNumber(std::string s)
{
    const std::size_t first = s.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return vhValue();
    s = s.substr(first, s.find_last_not_of(" \t\r\n") - first + 1);
    int n;
    if (parseWhole(s, n))
        return vhInteger(n);
    double d;
    if (parseReal(s, d))
        return vhDouble(d);
    const char last = s.back();
    if (last != 'i' && last != 'j')
        return vhValue();
    s.pop_back();
    // The sign that separates the parts is the last one not at the start and
    // not of an exponent.
    std::size_t split = std::string::npos;
    for (std::size_t k = s.size(); k-- > 1;) {
        if ((s[k] == '+' || s[k] == '-') && s[k - 1] != 'e' && s[k - 1] != 'E') {
            split = k;
            break;
        }
    }
    double re = 0.0, im = 0.0;
    if (split == std::string::npos) {
        if (!parseImaginary(s, im))
            return vhValue();
    } else if (!parseReal(s.substr(0, split), re) || !parseImaginary(s.substr(split), im)) {
        return vhValue();
    }
    return vhComplex(re, im);
}

} // namespace

vhValue vhMath::typeName_f(const vhValue& x) { return text(x.typeName()); }

// A string is its own text, without the quotes that mark it inside the
// text of larger values.
vhValue vhMath::toString_f(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isString())
        return text(x.toString());
    return text(x.toStringAll());
}

// Numbers are already numbers and stay as they are.
vhValue vhMath::toNumber_f(const vhValue& x)
{
    if (x.isNull())
        return vhValue();
    if (x.isBoolean() || x.isInteger() || x.isDouble() || x.isComplex())
        return x;
    if (!x.isString())
        return vhValue();
    return parseNumber(x.toString());
}

vhValue vhMath::strlen_f(const vhValue& x)
{
    if (!x.isString())
        return vhValue();
    return vhInteger(static_cast<int>(characterCount(x.toString())));
}

vhValue vhMath::strat_f(const vhValue& x, const vhValue& position)
{
    double p;
    if (!x.isString() || !realrows::realArgument(position, p) || p < 0.0 || std::floor(p) != p)
        return vhValue();
    const std::string s = x.toString();
    if (p >= static_cast<double>(characterCount(s)))
        return vhValue();
    std::size_t wanted = static_cast<std::size_t>(p), index = 0, start = 0;
    for (std::size_t k = 0; k < s.size(); ++k) {
        if (!startsCharacter(static_cast<unsigned char>(s[k])))
            continue;
        if (index == wanted) {
            start = k;
            std::size_t end = k + 1;
            while (end < s.size() && !startsCharacter(static_cast<unsigned char>(s[end])))
                ++end;
            return text(s.substr(start, end - start));
        }
        ++index;
    }
    return vhValue();
}

vhValue vhMath::complex_f(const vhValue& re, const vhValue& im)
{
    return binaryReal(re, im, nt_complex, [this](const vhValue& a, const vhValue& b) { return complex_f(a, b); },
                      [](double a, double b) { return complexOrUndefined(a, b); });
}

vhValue vhMath::complexImg_f(const vhValue& z)
{
    return unary(
        z, nt_complexImg, [this](const vhValue& e) { return complexImg_f(e); },
        [](double, double b) { return vhValue(vhDouble(b)); }, [](double) { return vhValue(vhDouble(0.0)); });
}

// The argument of the complex number in the worksheet's angle unit; a
// negative real number lies at pi.
vhValue vhMath::phangle_f(const vhValue& z)
{
    const AngleUnit unit = m_angleUnit;
    const unsigned int toRadians = m_convertResultsToRadians;
    auto angle = [unit, toRadians](double a, double b) {
        return doubleOrUndefined(inverseAngle(std::atan2(b, a), unit, toRadians));
    };
    return unary(
        z, nt_phangle, [this](const vhValue& e) { return phangle_f(e); }, angle,
        [angle](double a) { return angle(a, 0.0); });
}

vhValue vhMath::row2Vector_f(const vhValue& x, const vhValue& row)
{
    double r;
    if (!isArray(x) || !realrows::realArgument(row, r) || r < 0.0 || std::floor(r) != r || r >= 4294967296.0)
        return vhValue();
    vhValue holder;
    const vhValue& a = arrayOf(x, holder);
    return a.getMatrixRowAsVector(static_cast<unsigned int>(r));
}

// Division by zero leaves its element undefined.
vhValue vhMath::matrixSDiv_f(const vhValue& a, const vhValue& b)
{
    if (!isArray(a) || !isArray(b))
        return vhValue();
    vhValue ha, hb;
    const vhValue& x = arrayOf(a, ha);
    const vhValue& y = arrayOf(b, hb);
    if (x.valueType() != y.valueType() || x.matrixRows() != y.matrixRows() || x.matrixColumns() != y.matrixColumns() ||
        x.isImage() || y.isImage())
        return vhValue();
    const unsigned int n = x.vectorSize();
    const double* px = x.numericValues();
    const double* py = y.numericValues();
    if (px && py && !x.numericImValues() && !y.numericImValues()) {
        vhValue result = sameShape(x);
        double* out = result.numericValues();
        if (!out)
            return n == 0 ? result : vhValue();
        for (unsigned int i = 0; i < n; ++i)
            out[i] = py[i] == 0.0 ? kNaN : px[i] / py[i];
        return result;
    }
    vhValue result = x.valueType() == tagMatrix
                         ? vhValue(vhMatrix(x.matrixRows(), x.matrixColumns(), false, false, false))
                         : vhValue(vhVector(n, x.matrixRows() == 1 && n != 0, false, false));
    for (unsigned int i = 0; i < n; ++i) {
        const vhValue q = y.value(i);
        result.setValue(q.isZero() ? vhValue() : x.value(i) / q, i);
    }
    return result;
}

// Local time, "YYYY-MM-DD hh:mm:ss".
vhValue vhMath::timeNow_f()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    if (!localtime_r(&now, &local))
        return vhValue();
    char buffer[32];
    if (std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H:%M:%S", &local) == 0)
        return vhValue();
    return text(buffer);
}

} // namespace ValueTypes
} // namespace VarnholtMath
