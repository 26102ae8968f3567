#include "arithmetic_p.h"

#include <array>
#include <vector>

namespace Vantor::Widgets::Internal {

namespace {

// What matches a token of each kind, in the order of Kind. The possessive quantifiers prevent
// backtracking.
constexpr std::array<const char *, ArithmeticTokens::Closing> patterns {
    R"([ \t\xA0]++)", // Space
    R"([\n\r]++)", // LineBreak
    R"(0[0-7]++(?![\w$.]))", // Octal
    R"((?:0[xX][0-9a-fA-F]++)" // Number
    R"(|(?!0[0-7]++[.a-zA-Z_$])(?:[0-9]++\.?+[0-9]*+|\.[0-9]++)(?:[eE][-+]?+[0-9]++)?+)(?![\w$.]))",
    R"('[^'\\\r\n]*+'|"[^"\\\r\n]*+")", // Text
    R"(Math\.(?:abs|acos|asin|atan2?|ceil|cos|exp|floor|log|max|min|pow|random)" // Function
    R"(|round|sin|sqrt|tan)(?=\())",
    R"((?:Math\.(?:E|LN2|LN10|LOG2E|LOG10E|PI|SQRT1_2|SQRT2))" // Name
    R"(|true|false|null|undefined|NaN|Infinity|[a-z])(?![\w$.(]))",
    R"(\+\+|--)", // Step
    R"([-+*/]?=(?!=))", // Assignment
    R"([=!]==?|>>>?|<<|[<>]=|&&|\|\||[*/%&|^>?:,]|<(?!!--))", // Operator; "<!--" is a comment
    R"([-+~!])", // Sign
    R"(;)", // Semicolon
    R"(\()", // Opening
    R"(\))" // Closing
};

// A group for each kind. What matches none is read as one number, word or character.
QRegularExpression tokenPattern()
{
    QString pattern;
    for (const char *const kind : patterns) {
        pattern += QLatin1Char('(') + QLatin1String(kind) + QLatin1String(")|");
    }
    return QRegularExpression(pattern + QLatin1String(R"([0-9.]++|[\w$.]++|.)"),
                              QRegularExpression::DotMatchesEverythingOption);
}

} // namespace

ArithmeticTokens::ArithmeticTokens(const QString &expression)
{
    static const QRegularExpression pattern = tokenPattern();
    m_tokens = pattern.globalMatch(expression);
}

bool ArithmeticTokens::next()
{
    const bool hasNext = m_tokens.hasNext();
    if (hasNext) {
        m_token = m_tokens.next();
    }
    return hasNext;
}

// Such a text can call only functions of Math and has no loops or objects. Strings and variables
// exclude each other, so no string can be doubled repeatedly. Each token is evaluated at most
// once: the cost of an expression is proportional to its length.
bool isArithmetic(const QString &text)
{
    using Token = ArithmeticTokens;
    bool isOperandDue = true;
    bool isAfterOperator = false;
    bool isInNewLine = false;
    bool hasText = false;
    bool assigns = false;
    Token tokens(text);
    while (tokens.next()) {
        const Token::Kind kind = tokens.kind();
        switch (kind) {
        case Token::Unknown:
            return false;
        case Token::Space:
            continue;
        case Token::LineBreak:
            isInNewLine = true;
            continue;
        case Token::Step:
            // At the start of a line it belongs to the operand that follows.
            isOperandDue = isOperandDue || isInNewLine;
            assigns = true;
            break;
        case Token::Assignment:
        case Token::Operator:
            // Where an operand is due, "/" starts a regular expression literal. Other operators
            // form, with the one before, operators of newer ECMAScript: ** ?? => &&=
            if (isOperandDue) {
                return false;
            }
            assigns = assigns || kind == Token::Assignment;
            isOperandDue = true;
            break;
        case Token::Sign:
        case Token::Semicolon:
        case Token::Opening:
        case Token::Function:
            isOperandDue = true;
            break;
        case Token::Closing:
            // Newer ECMAScript allows a trailing comma in the arguments of a function.
            if (isAfterOperator) {
                return false;
            }
            isOperandDue = false;
            break;
        case Token::Octal:
        case Token::Number:
        case Token::Name:
        case Token::Text:
            hasText = hasText || kind == Token::Text;
            isOperandDue = false;
            break;
        }
        isAfterOperator = kind == Token::Operator;
        isInNewLine = false;
    }
    return tokens.isValid() && !(hasText && assigns);
}

QString withDecimalPoints(const QString &text)
{
    QString result = text;
    std::vector<bool> isCall; // for each open parenthesis
    bool isFunction = false;
    ArithmeticTokens tokens(text);
    while (tokens.next()) {
        if (tokens.kind() == ArithmeticTokens::Opening) {
            isCall.push_back(isFunction);
        } else if (tokens.kind() == ArithmeticTokens::Closing && !isCall.empty()) {
            isCall.pop_back();
        } else if (tokens.text() == QLatin1String(",") && (isCall.empty() || !isCall.back())) {
            result[tokens.start()] = QLatin1Char('.');
        }
        isFunction = tokens.kind() == ArithmeticTokens::Function;
    }
    return result;
}

} // namespace Vantor::Widgets::Internal
