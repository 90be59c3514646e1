// Conversions between number bases, between SI and US customary units,
// between degrees and gradians, and the bits of an integer.
//
// Whole numbers travel between bases exactly: a number in the binary or
// hexadecimal text must be a whole number of at most 2^53, the largest range
// in which every whole number has an exact double. Text to text conversions
// work digit by digit and take any length.

#include <cctype>
#include <cmath>
#include <cstdint>
#include <string>

#include "frame/math.h"
#include "functions/real_rows.h"

namespace VarnholtMath {
namespace ValueTypes {

namespace {

const double kExactWholeLimit = 9007199254740992.0; // 2^53
const double kFootInMeters = 0.3048;
const double kPoundInKilograms = 0.45359237;
const double kPoundForceInNewtons = 4.4482216152605;

vhValue text(const std::string& s) { return vhSymbolicValue(s, true, {}); }

// A whole number as the result type of integers: an integer where it fits,
// else a double that holds it exactly.
vhValue wholeNumber(double d)
{
    if (d >= -2147483648.0 && d <= 2147483647.0)
        return vhInteger(static_cast<int>(d));
    return vhDouble(d);
}

// A non-negative whole real number within the exact range.
bool exactWhole(const vhValue& v, std::uint64_t& n)
{
    double d;
    if (!realrows::realArgument(v, d) || d < 0.0 || d > kExactWholeLimit || std::floor(d) != d)
        return false;
    n = static_cast<std::uint64_t>(d);
    return true;
}

int digitValue(char c, unsigned int base)
{
    int d = -1;
    if (c >= '0' && c <= '9')
        d = c - '0';
    else if (c >= 'a' && c <= 'f')
        d = c - 'a' + 10;
    else if (c >= 'A' && c <= 'F')
        d = c - 'A' + 10;
    return d >= 0 && static_cast<unsigned int>(d) < base ? d : -1;
}

// The digits of a text in the base, without leading zeros ("0" for zero);
// false for an empty text or a character that is no digit of the base.
bool cleanDigits(const vhValue& v, unsigned int base, std::string& digits)
{
    if (!v.isString())
        return false;
    const std::string s = v.toString();
    if (s.empty())
        return false;
    digits.clear();
    for (char c : s) {
        if (digitValue(c, base) < 0)
            return false;
        if (digits.empty() && c == '0')
            continue;
        digits.push_back(base == 16 ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c);
    }
    if (digits.empty())
        digits = "0";
    return true;
}

std::string toBase(std::uint64_t n, unsigned int bitsPerDigit)
{
    static const char names[] = "0123456789ABCDEF";
    const unsigned int mask = (1u << bitsPerDigit) - 1;
    std::string s;
    do {
        s.insert(s.begin(), names[n & mask]);
        n >>= bitsPerDigit;
    } while (n != 0);
    return s;
}

vhValue textToNumber(const vhValue& v, unsigned int base)
{
    std::string digits;
    if (!cleanDigits(v, base, digits))
        return vhValue();
    // Whole arithmetic, so that 2^53 + 1 is refused rather than rounded.
    const std::uint64_t limit = std::uint64_t(1) << 53;
    std::uint64_t n = 0;
    for (char c : digits) {
        if (n > (limit - static_cast<std::uint64_t>(digitValue(c, base))) / base)
            return vhValue();
        n = n * base + static_cast<std::uint64_t>(digitValue(c, base));
    }
    return wholeNumber(static_cast<double>(n));
}

// A text map over the elements of an array, or the map of one scalar.
template <class F> vhValue mapText(const vhValue& v, F f)
{
    if (!elementwise::isArray(v))
        return f(v);
    vhValue holder;
    const vhValue& a = elementwise::arrayOf(v, holder);
    if (a.isImage() || a.isTable())
        return vhValue();
    const unsigned int n = a.vectorSize();
    vhValue result = a.valueType() == tagMatrix ? vhValue(vhMatrix(a.matrixRows(), a.matrixColumns(), false, false, false))
                                                 : vhValue(vhVector(n, a.matrixRows() == 1 && n != 0, false, false));
    for (unsigned int i = 0; i < n; ++i)
        result.setValue(f(a.value(i)), i);
    return result;
}

// An integer of 64 bits in two's complement from a whole real number.
bool bitPattern(const vhValue& v, std::int64_t& n)
{
    double d;
    if (!realrows::realArgument(v, d) || std::floor(d) != d || std::fabs(d) > kExactWholeLimit)
        return false;
    n = static_cast<std::int64_t>(d);
    return true;
}

bool bitPosition(const vhValue& v, unsigned int& k)
{
    double d;
    if (!realrows::realArgument(v, d) || d < 0.0 || d > 63.0 || std::floor(d) != d)
        return false;
    k = static_cast<unsigned int>(d);
    return true;
}

} // namespace

vhValue vhMath::Decimal2Binary_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) {
        std::uint64_t n;
        return exactWhole(v, n) ? text(toBase(n, 1)) : vhValue();
    });
}

vhValue vhMath::Decimal2Hexadecimal_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) {
        std::uint64_t n;
        return exactWhole(v, n) ? text(toBase(n, 4)) : vhValue();
    });
}

vhValue vhMath::Binary2Decimal_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) { return textToNumber(v, 2); });
}

vhValue vhMath::Hexadecimal2Decimal_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) { return textToNumber(v, 16); });
}

vhValue vhMath::Binary2Hexadecimal_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) {
        std::string bits;
        if (!cleanDigits(v, 2, bits))
            return vhValue();
        // Groups of four bits from the right, the first one padded.
        bits.insert(0, (4 - bits.size() % 4) % 4, '0');
        std::string hex;
        for (std::size_t i = 0; i < bits.size(); i += 4) {
            std::uint64_t nibble = 0;
            for (std::size_t k = 0; k < 4; ++k)
                nibble = nibble * 2 + static_cast<std::uint64_t>(bits[i + k] - '0');
            hex += toBase(nibble, 4);
        }
        const std::size_t first = hex.find_first_not_of('0');
        return text(first == std::string::npos ? "0" : hex.substr(first));
    });
}

vhValue vhMath::Hexadecimal2Binary_f(const vhValue& x)
{
    return mapText(x, [](const vhValue& v) {
        std::string hex;
        if (!cleanDigits(v, 16, hex))
            return vhValue();
        std::string bits;
        for (char c : hex) {
            std::string group = toBase(static_cast<std::uint64_t>(digitValue(c, 16)), 1);
            bits += std::string(4 - group.size(), '0') + group;
        }
        const std::size_t first = bits.find_first_not_of('0');
        return text(first == std::string::npos ? "0" : bits.substr(first));
    });
}

vhValue vhMath::Newton2Pound_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] / kPoundForceInNewtons; });
}

vhValue vhMath::Pound2Newton_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * kPoundForceInNewtons; });
}

vhValue vhMath::Meter2Foot_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] / kFootInMeters; });
}

vhValue vhMath::Foot2Meter_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * kFootInMeters; });
}

vhValue vhMath::Kilo2Pound_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] / kPoundInKilograms; });
}

vhValue vhMath::Pound2Kilo_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * kPoundInKilograms; });
}

vhValue vhMath::Celsius2Fahrenheit_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * 1.8 + 32.0; });
}

vhValue vhMath::Fahrenheit2Celsius_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return (a[0] - 32.0) / 1.8; });
}

// Unit and angle conversions are plain numbers: symbolic arguments, units
// and complex numbers have no conversion here.

// Multiplying before dividing keeps the whole turns exact: 400 gradians give
// exactly 360 degrees and back.
vhValue vhMath::grad2deg_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * 9.0 / 10.0; });
}

vhValue vhMath::deg2grad_f(const vhValue& x)
{
    return realrows::map({&x}, 0, [](const double* a) { return a[0] * 10.0 / 9.0; });
}

// Negative integers show their bits in two's complement of 64 bits.
vhValue vhMath::isBitActive_f(const vhValue& x, const vhValue& position)
{
    std::int64_t n;
    unsigned int k;
    if (!bitPattern(x, n) || !bitPosition(position, k))
        return vhValue();
    return vhBoolean(((static_cast<std::uint64_t>(n) >> k) & 1u) != 0);
}

vhValue vhMath::setBit_f(const vhValue& x, const vhValue& position, const vhValue& on)
{
    std::int64_t n;
    unsigned int k;
    double b;
    if (!bitPattern(x, n) || !bitPosition(position, k) || !realrows::realArgument(on, b) || (b != 0.0 && b != 1.0))
        return vhValue();
    std::uint64_t bits = static_cast<std::uint64_t>(n);
    const std::uint64_t mask = std::uint64_t(1) << k;
    bits = b != 0.0 ? (bits | mask) : (bits & ~mask);
    const std::int64_t r = static_cast<std::int64_t>(bits);
    // A result outside the exact range of doubles has no faithful value.
    if (r > static_cast<std::int64_t>(kExactWholeLimit) || r < -static_cast<std::int64_t>(kExactWholeLimit))
        return vhValue();
    return wholeNumber(static_cast<double>(r));
}

} // namespace ValueTypes
} // namespace VarnholtMath
