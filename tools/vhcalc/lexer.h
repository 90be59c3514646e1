#pragma once

// Splits one line of worksheet text into tokens. The lexer also guards the
// rest of the program against bytes that are no text at all: a line must be
// valid UTF-8 without control characters, and characters outside ASCII may
// only stand inside strings.

#include <cstddef>
#include <string>
#include <vector>

namespace vhcalc {

enum class TokenKind {
    Number,
    String,
    Identifier,
    Plus,
    Minus,
    Star,
    Slash,
    Caret,
    LeftParen,
    RightParen,
    LeftBracket,
    RightBracket,
    Comma,
    Semicolon,
    Dot,
    Assign,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual,
    End
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::size_t offset = 0;
    // Identifier name, decoded string content, or the spelling of a number.
    std::string text;
    // Numbers: the magnitude, whether it was written as a whole number
    // (digits only), and whether it carries the imaginary suffix i.
    double number = 0.0;
    bool wholeNumber = false;
    bool imaginary = false;
};

// Throws CalcError at the first character that can't start or continue a
// token. The last token is always End, at the line's length.
std::vector<Token> tokenize(const std::string& line);

// How a token is named in messages: the operator in quotes, "end of line", ...
std::string describe(const Token& token);

} // namespace vhcalc
