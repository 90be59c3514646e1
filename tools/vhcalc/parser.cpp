#include "parser.h"

#include <cmath>
#include <limits>

#include "calc_error.h"

namespace vhcalc {

namespace {

using NodePtr = std::unique_ptr<Node>;

bool isComparison(TokenKind k)
{
    return k == TokenKind::Equal || k == TokenKind::NotEqual || k == TokenKind::Less || k == TokenKind::Greater ||
           k == TokenKind::LessEqual || k == TokenKind::GreaterEqual;
}

class Parser {
public:
    explicit Parser(const std::vector<Token>& tokens) : m_tokens(tokens) {}

    Statement statement()
    {
        Statement s;
        if (peek().kind == TokenKind::Identifier && peek(1).kind == TokenKind::Assign) {
            s.assignTo = peek().text;
            m_position += 2;
            if (peek().kind == TokenKind::End)
                throw CalcError(peek().offset, "an expression must follow :=");
        } else if (peek().kind == TokenKind::Assign) {
            throw CalcError(peek().offset, "a name must stand before :=");
        }
        if (peek().kind == TokenKind::End)
            throw CalcError(peek().offset, "empty expression");
        s.expression = expression();
        if (peek().kind != TokenKind::End) {
            if (peek().kind == TokenKind::RightParen)
                throw CalcError(peek().offset, "\")\" without a matching \"(\"");
            if (peek().kind == TokenKind::RightBracket)
                throw CalcError(peek().offset, "\"]\" without a matching \"[\"");
            throw CalcError(peek().offset, "unexpected " + describe(peek()));
        }
        return s;
    }

private:
    // Counts one level of nesting for the lifetime of a recursive call.
    class Depth {
    public:
        Depth(Parser& p, std::size_t offset) : m_parser(p)
        {
            if (++m_parser.m_depth > maximumNesting)
                throw CalcError(offset, "expression nested more than " + std::to_string(maximumNesting) + " levels deep");
        }
        ~Depth() { --m_parser.m_depth; }

    private:
        Parser& m_parser;
    };

    const Token& peek(std::size_t ahead = 0) const
    {
        const std::size_t i = m_position + ahead;
        return i < m_tokens.size() ? m_tokens[i] : m_tokens.back();
    }
    const Token& take() { return m_tokens[m_position < m_tokens.size() - 1 ? m_position++ : m_position]; }

    NodePtr expression()
    {
        Depth guard(*this, peek().offset);
        return chain(0);
    }

    // Level 0: comparisons, 1: + -, 2: * /, then the unary level.
    NodePtr chain(int level)
    {
        const auto belongs = [level](TokenKind k) {
            if (level == 0)
                return isComparison(k);
            if (level == 1)
                return k == TokenKind::Plus || k == TokenKind::Minus;
            return k == TokenKind::Star || k == TokenKind::Slash;
        };
        NodePtr first = level < 2 ? chain(level + 1) : unary();
        if (!belongs(peek().kind))
            return first;
        auto node = std::make_unique<Node>(Node::Kind::Chain, first->offset);
        node->children.push_back(std::move(first));
        while (belongs(peek().kind)) {
            const Token& op = take();
            node->ops.push_back(op.kind);
            node->opOffsets.push_back(op.offset);
            node->children.push_back(level < 2 ? chain(level + 1) : unary());
        }
        return node;
    }

    NodePtr unary()
    {
        if (peek().kind == TokenKind::Minus || peek().kind == TokenKind::Plus) {
            const Token& sign = take();
            Depth guard(*this, sign.offset);
            NodePtr operand = unary();
            if (sign.kind == TokenKind::Plus)
                return operand;
            // A negative literal is one number, so that -2147483648 is an
            // integer like any other that fits 32 bits.
            if (operand->kind == Node::Kind::Number) {
                operand->number = -operand->number;
                operand->offset = sign.offset;
                return operand;
            }
            auto node = std::make_unique<Node>(Node::Kind::Negate, sign.offset);
            node->children.push_back(std::move(operand));
            return node;
        }
        return power();
    }

    NodePtr power()
    {
        NodePtr base = postfix(primary());
        if (peek().kind != TokenKind::Caret)
            return base;
        const Token& caret = take();
        Depth guard(*this, caret.offset);
        auto node = std::make_unique<Node>(Node::Kind::Power, base->offset);
        node->children.push_back(std::move(base));
        node->children.push_back(unary());
        return node;
    }

    // Member access and method calls: p.x, p.norm(), new point(3, 4).norm().
    // Each step counts as a level of nesting, so that a long chain stays
    // within the limits of evaluating and destroying it.
    NodePtr postfix(NodePtr object)
    {
        std::size_t steps = 0;
        while (peek().kind == TokenKind::Dot) {
            const Token& dot = take();
            if (m_depth + ++steps > maximumNesting)
                throw CalcError(dot.offset, "expression nested more than " + std::to_string(maximumNesting) +
                                                " levels deep");
            if (peek().kind != TokenKind::Identifier)
                throw CalcError(peek().offset, "a member name must follow \".\", not " + describe(peek()));
            const Token& name = take();
            const bool method = peek().kind == TokenKind::LeftParen;
            auto node = std::make_unique<Node>(method ? Node::Kind::Method : Node::Kind::Member, object->offset);
            node->text = name.text;
            node->children.push_back(std::move(object));
            if (method)
                arguments(*node);
            object = std::move(node);
        }
        return object;
    }

    // A bracketed list of arguments, appended to the node's children.
    void arguments(Node& node)
    {
        const Token& open = take();
        if (peek().kind != TokenKind::RightParen) {
            node.children.push_back(expression());
            while (peek().kind == TokenKind::Comma) {
                take();
                node.children.push_back(expression());
            }
        }
        close(TokenKind::RightParen, open);
    }

    // new TYPE(arguments) creates an object of a type that the host registered.
    NodePtr creation()
    {
        const Token& keyword = take();
        const Token& type = take();
        if (peek().kind != TokenKind::LeftParen)
            throw CalcError(peek().offset, "new " + type.text + " needs its arguments in brackets, such as new " +
                                               type.text + "()");
        auto node = std::make_unique<Node>(Node::Kind::New, keyword.offset);
        node->text = type.text;
        arguments(*node);
        return node;
    }

    NodePtr primary()
    {
        const Token& t = peek();
        switch (t.kind) {
        case TokenKind::Number: {
            take();
            auto node = std::make_unique<Node>(Node::Kind::Number, t.offset);
            node->number = t.number;
            node->wholeNumber = t.wholeNumber;
            node->imaginary = t.imaginary;
            node->text = t.text;
            return node;
        }
        case TokenKind::String: {
            take();
            auto node = std::make_unique<Node>(Node::Kind::String, t.offset);
            node->text = t.text;
            return node;
        }
        case TokenKind::Identifier: {
            // "new" is a word of its own only before a type name.
            if (t.text == "new" && peek(1).kind == TokenKind::Identifier)
                return creation();
            take();
            if (peek().kind != TokenKind::LeftParen) {
                auto node = std::make_unique<Node>(Node::Kind::Name, t.offset);
                node->text = t.text;
                return node;
            }
            auto node = std::make_unique<Node>(Node::Kind::Call, t.offset);
            node->text = t.text;
            arguments(*node);
            return node;
        }
        case TokenKind::LeftParen: {
            const Token& open = take();
            NodePtr inner = expression();
            close(TokenKind::RightParen, open);
            return inner;
        }
        case TokenKind::LeftBracket:
            return array();
        case TokenKind::End:
            throw CalcError(t.offset, "the expression ends too early");
        default:
            throw CalcError(t.offset, "unexpected " + describe(t));
        }
    }

    NodePtr array()
    {
        const Token& open = take();
        Depth guard(*this, open.offset);
        auto node = std::make_unique<Node>(Node::Kind::Array, open.offset);
        if (peek().kind == TokenKind::RightBracket) {
            take();
            return node;
        }
        while (true) {
            const std::size_t rowOffset = peek().offset;
            std::size_t length = 1;
            node->children.push_back(expression());
            while (peek().kind == TokenKind::Comma) {
                take();
                node->children.push_back(expression());
                ++length;
            }
            if (!node->rowLengths.empty() && length != node->rowLengths.front())
                throw CalcError(rowOffset, "row " + std::to_string(node->rowLengths.size() + 1) + " has " +
                                               std::to_string(length) + " elements, the first row " +
                                               std::to_string(node->rowLengths.front()));
            node->rowLengths.push_back(length);
            if (peek().kind != TokenKind::Semicolon)
                break;
            take();
        }
        close(TokenKind::RightBracket, open);
        return node;
    }

    void close(TokenKind kind, const Token& open)
    {
        if (peek().kind == kind) {
            take();
            return;
        }
        const char* closing = kind == TokenKind::RightParen ? "\")\"" : "\"]\"";
        if (peek().kind == TokenKind::End)
            throw CalcError(open.offset, std::string("\"") + open.text + "\" is never closed by " + closing);
        throw CalcError(peek().offset, std::string("expected ") + closing + " but found " + describe(peek()));
    }

    const std::vector<Token>& m_tokens;
    std::size_t m_position = 0;
    std::size_t m_depth = 0;
};

} // namespace

Statement parse(const std::vector<Token>& tokens)
{
    Parser parser(tokens);
    return parser.statement();
}

} // namespace vhcalc
