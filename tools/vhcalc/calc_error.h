#pragma once

// An error of one input line: what went wrong and where. The position is a
// byte offset into the line; the text forms count characters, so that a
// column stays right after a non-ASCII letter inside a string.

#include <cstddef>
#include <stdexcept>
#include <string>

namespace vhcalc {

class CalcError : public std::runtime_error {
public:
    CalcError(std::size_t offset, const std::string& message)
        : std::runtime_error(message), m_offset(offset) {}
    std::size_t offset() const { return m_offset; }

private:
    std::size_t m_offset;
};

// 1-based column of a byte offset: UTF-8 continuation bytes don't start a
// new character.
inline std::size_t columnOf(const std::string& line, std::size_t offset)
{
    std::size_t column = 1;
    for (std::size_t i = 0; i < offset && i < line.size(); ++i)
        if ((static_cast<unsigned char>(line[i]) & 0xC0) != 0x80)
            ++column;
    return column;
}

} // namespace vhcalc
