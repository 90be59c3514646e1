#include "lexer.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "calc_error.h"

namespace vhcalc {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isIdentifierStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool isIdentifierChar(char c) { return isIdentifierStart(c) || isDigit(c); }

std::string byteText(unsigned char byte)
{
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "0x%02X", byte);
    return buffer;
}

// Length of the UTF-8 sequence at i, or 0 when the bytes there are not one.
// Overlong forms, surrogates and code points above U+10FFFF are refused.
std::size_t utf8Length(const std::string& s, std::size_t i)
{
    const auto b = [&](std::size_t k) { return static_cast<unsigned char>(s[k]); };
    const unsigned char c = b(i);
    if (c < 0x80)
        return 1;
    std::size_t n;
    unsigned int cp;
    if (c >= 0xC2 && c <= 0xDF) { n = 2; cp = c & 0x1F; }
    else if (c >= 0xE0 && c <= 0xEF) { n = 3; cp = c & 0x0F; }
    else if (c >= 0xF0 && c <= 0xF4) { n = 4; cp = c & 0x07; }
    else return 0;
    if (i + n > s.size())
        return 0;
    for (std::size_t k = 1; k < n; ++k) {
        if ((b(i + k) & 0xC0) != 0x80)
            return 0;
        cp = (cp << 6) | (b(i + k) & 0x3F);
    }
    if ((n == 3 && (cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF))) || (n == 4 && (cp < 0x10000 || cp > 0x10FFFF)))
        return 0;
    return n;
}

// The whole line is checked before any token is made, so that garbage inside
// a string is caught as well as garbage between tokens.
void checkText(const std::string& line)
{
    for (std::size_t i = 0; i < line.size();) {
        const unsigned char c = static_cast<unsigned char>(line[i]);
        if (c < 0x20 ? c != '\t' : c == 0x7F)
            throw CalcError(i, "control character " + byteText(c) + " in the input");
        const std::size_t n = utf8Length(line, i);
        if (n == 0)
            throw CalcError(i, "byte " + byteText(c) + " is not valid UTF-8 text");
        i += n;
    }
}

Token numberToken(const std::string& line, std::size_t& i)
{
    Token t;
    t.kind = TokenKind::Number;
    t.offset = i;
    const std::size_t start = i;
    bool digits = false, point = false, exponent = false;
    while (i < line.size() && isDigit(line[i])) { ++i; digits = true; }
    if (i < line.size() && line[i] == '.') {
        point = true;
        ++i;
        while (i < line.size() && isDigit(line[i])) { ++i; digits = true; }
    }
    if (!digits)
        throw CalcError(start, "a number needs at least one digit");
    if (i < line.size() && (line[i] == 'e' || line[i] == 'E')) {
        exponent = true;
        std::size_t j = i + 1;
        if (j < line.size() && (line[j] == '+' || line[j] == '-'))
            ++j;
        if (j >= line.size() || !isDigit(line[j]))
            throw CalcError(i, "the exponent of a number needs digits");
        while (j < line.size() && isDigit(line[j]))
            ++j;
        i = j;
    }
    const std::string spelling = line.substr(start, i - start);
    // "2i" is imaginary; "2in" or "2x" is no number at all.
    if (i < line.size() && line[i] == 'i' && (i + 1 >= line.size() || !isIdentifierChar(line[i + 1]))) {
        t.imaginary = true;
        ++i;
    }
    if (i < line.size() && (isIdentifierChar(line[i]) || line[i] == '.'))
        throw CalcError(i, "unexpected \"" + std::string(1, line[i]) + "\" after the number " + spelling);

    errno = 0;
    t.number = std::strtod(spelling.c_str(), nullptr);
    if (std::isinf(t.number))
        throw CalcError(start, "the number " + (spelling.size() > 24 ? spelling.substr(0, 20) + "..." : spelling) +
                                   " is too large");
    t.wholeNumber = !point && !exponent;
    t.text = line.substr(start, i - start);
    return t;
}

Token stringToken(const std::string& line, std::size_t& i)
{
    Token t;
    t.kind = TokenKind::String;
    t.offset = i;
    ++i;
    while (true) {
        if (i >= line.size())
            throw CalcError(t.offset, "the string has no closing quote");
        const char c = line[i];
        if (c == '"') {
            ++i;
            return t;
        }
        if (c == '\\') {
            if (i + 1 < line.size() && (line[i + 1] == '"' || line[i + 1] == '\\')) {
                t.text += line[i + 1];
                i += 2;
                continue;
            }
            throw CalcError(i, "only \\\" and \\\\ may follow a backslash in a string");
        }
        t.text += c;
        ++i;
    }
}

} // namespace

std::vector<Token> tokenize(const std::string& line)
{
    checkText(line);
    std::vector<Token> tokens;
    std::size_t i = 0;
    const auto simple = [&](TokenKind kind, std::size_t length) {
        Token t;
        t.kind = kind;
        t.offset = i;
        t.text = line.substr(i, length);
        i += length;
        tokens.push_back(t);
    };
    while (i < line.size()) {
        const char c = line[i];
        const char next = i + 1 < line.size() ? line[i + 1] : '\0';
        if (c == ' ' || c == '\t') {
            ++i;
        } else if (isDigit(c) || (c == '.' && isDigit(next))) {
            tokens.push_back(numberToken(line, i));
        } else if (isIdentifierStart(c)) {
            Token t;
            t.kind = TokenKind::Identifier;
            t.offset = i;
            while (i < line.size() && isIdentifierChar(line[i]))
                t.text += line[i++];
            tokens.push_back(t);
        } else if (c == '"') {
            tokens.push_back(stringToken(line, i));
        } else if (c == ':' && next == '=') {
            simple(TokenKind::Assign, 2);
        } else if (c == '=' && next == '=') {
            simple(TokenKind::Equal, 2);
        } else if (c == '!' && next == '=') {
            simple(TokenKind::NotEqual, 2);
        } else if (c == '<') {
            next == '=' ? simple(TokenKind::LessEqual, 2) : simple(TokenKind::Less, 1);
        } else if (c == '>') {
            next == '=' ? simple(TokenKind::GreaterEqual, 2) : simple(TokenKind::Greater, 1);
        } else {
            TokenKind kind;
            switch (c) {
            case '+': kind = TokenKind::Plus; break;
            case '-': kind = TokenKind::Minus; break;
            case '*': kind = TokenKind::Star; break;
            case '/': kind = TokenKind::Slash; break;
            case '^': kind = TokenKind::Caret; break;
            case '(': kind = TokenKind::LeftParen; break;
            case ')': kind = TokenKind::RightParen; break;
            case '[': kind = TokenKind::LeftBracket; break;
            case ']': kind = TokenKind::RightBracket; break;
            case ',': kind = TokenKind::Comma; break;
            case ';': kind = TokenKind::Semicolon; break;
            // A point before a digit starts a number (.5); any other is
            // member access (p.x).
            case '.': kind = TokenKind::Dot; break;
            default: {
                const std::size_t n = utf8Length(line, i);
                throw CalcError(i, "unexpected character \"" + line.substr(i, n) + "\"");
            }
            }
            simple(kind, 1);
        }
    }
    Token end;
    end.kind = TokenKind::End;
    end.offset = line.size();
    tokens.push_back(end);
    return tokens;
}

std::string describe(const Token& token)
{
    switch (token.kind) {
    case TokenKind::End: return "end of line";
    case TokenKind::Number: return "number " + token.text;
    case TokenKind::String: return "string";
    case TokenKind::Identifier: return "name " + token.text;
    default: return "\"" + token.text + "\"";
    }
}

} // namespace vhcalc
