#include "arithmetic_p.h"

#include <QtCore/QSet>

#include <algorithm>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

using Token = ArithmeticToken;

bool isBetween(QChar character, char first, char last)
{
    return character.unicode() >= first && character.unicode() <= last;
}

bool isDigit(QChar character)
{
    return isBetween(character, '0', '9');
}

bool isOctalDigit(QChar character)
{
    return isBetween(character, '0', '7');
}

bool isHexadecimalDigit(QChar character)
{
    return isDigit(character) || isBetween(character, 'a', 'f') || isBetween(character, 'A', 'F');
}

// Belongs to the name or the number before it.
bool isOfWord(QChar character)
{
    return isDigit(character) || isBetween(character, 'a', 'z') || isBetween(character, 'A', 'Z')
        || character == QLatin1Char('_') || character == QLatin1Char('$');
}

bool isBlank(QChar character)
{
    return character == QLatin1Char(' ') || character == QLatin1Char('\t')
        || character == QChar(QChar::Nbsp);
}

bool isLineBreak(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r');
}

bool startsWith(const QChar *begin, const QChar *end, const char *start)
{
    for (; *start != '\0'; ++start, ++begin) {
        if (begin == end || *begin != QLatin1Char(*start)) {
            return false;
        }
    }
    return true;
}

const QChar *skip(const QChar *begin, const QChar *end, bool (*isSkipped)(QChar))
{
    return std::find_if_not(begin, end, isSkipped);
}

// Decimal, with a point and an exponent; octal from a leading zero on; hexadecimal.
Token number(const QChar *begin, const QChar *end)
{
    const QChar *last = skip(begin, end, isDigit);
    const QChar *digits = begin;
    const bool isOctal =
        last - begin > 1 && *begin == QLatin1Char('0') && std::all_of(begin, last, isOctalDigit);
    if (startsWith(begin, end, "0x") || startsWith(begin, end, "0X")) {
        digits = begin + 2;
        last = skip(digits, end, isHexadecimalDigit);
    } else if (!isOctal) {
        if (startsWith(last, end, ".")) {
            last = skip(last + 1, end, isDigit);
        }
        if (startsWith(last, end, "e") || startsWith(last, end, "E")) {
            digits = last + 1;
            if (startsWith(digits, end, "+") || startsWith(digits, end, "-")) {
                ++digits;
            }
            last = skip(digits, end, isDigit);
        }
    }
    const bool isTouched = last != end && (isOfWord(*last) || *last == QLatin1Char('.'));
    return {last == digits || isTouched ? Token::Unknown : Token::Number, begin, last};
}

Token stringLiteral(const QChar *begin, const QChar *end)
{
    const QChar *const last = std::find_if(begin + 1, end, [begin](QChar character) {
        return character == *begin || character == QLatin1Char('\\') || isLineBreak(character);
    });
    const bool isClosed = last != end && *last == *begin;
    return {isClosed ? Token::Text : Token::Unknown, begin, isClosed ? last + 1 : last};
}

Token word(const QChar *begin, const QChar *end)
{
    static const QSet<QString> functions {
        QStringLiteral("Math.abs"),  QStringLiteral("Math.acos"),   QStringLiteral("Math.asin"),
        QStringLiteral("Math.atan"), QStringLiteral("Math.atan2"),  QStringLiteral("Math.ceil"),
        QStringLiteral("Math.cos"),  QStringLiteral("Math.exp"),    QStringLiteral("Math.floor"),
        QStringLiteral("Math.log"),  QStringLiteral("Math.max"),    QStringLiteral("Math.min"),
        QStringLiteral("Math.pow"),  QStringLiteral("Math.random"), QStringLiteral("Math.round"),
        QStringLiteral("Math.sin"),  QStringLiteral("Math.sqrt"),   QStringLiteral("Math.tan")};
    static const QSet<QString> constants {
        QStringLiteral("Math.E"),       QStringLiteral("Math.LN2"),    QStringLiteral("Math.LN10"),
        QStringLiteral("Math.LOG2E"),   QStringLiteral("Math.LOG10E"), QStringLiteral("Math.PI"),
        QStringLiteral("Math.SQRT1_2"), QStringLiteral("Math.SQRT2"),  QStringLiteral("true"),
        QStringLiteral("false"),        QStringLiteral("null"),        QStringLiteral("undefined"),
        QStringLiteral("NaN"),          QStringLiteral("Infinity")};
    const QChar *last = skip(begin, end, isOfWord);
    if (startsWith(begin, end, "Math.")) {
        last = skip(last + 1, end, isOfWord);
    }
    const QString name(begin, static_cast<int>(last - begin));
    const bool isCalled = startsWith(last, end, "(");
    if (functions.contains(name)) {
        return {isCalled ? Token::Function : Token::Unknown, begin, last};
    }
    const bool isVariable = name.size() == 1 && isBetween(*begin, 'a', 'z');
    const bool isName =
        (isVariable || constants.contains(name)) && !isCalled && !startsWith(last, end, ".");
    return {isName ? Token::Name : Token::Unknown, begin, last};
}

Token sign(const QChar *begin, const QChar *end)
{
    struct
    {
        const char *text;
        int length;
        Token::Kind kind;
    } static const signs[] = {{"<!--", 4, Token::Unknown},  {"//", 2, Token::Unknown},
                              {"/*", 2, Token::Unknown}, // comments
                              {"===", 3, Token::Operator},  {"!==", 3, Token::Operator},
                              {">>>", 3, Token::Operator},  {"==", 2, Token::Operator},
                              {"!=", 2, Token::Operator},   {"<=", 2, Token::Operator},
                              {">=", 2, Token::Operator},   {"<<", 2, Token::Operator},
                              {">>", 2, Token::Operator},   {"&&", 2, Token::Operator},
                              {"||", 2, Token::Operator},   {"++", 2, Token::Step},
                              {"--", 2, Token::Step},       {"+=", 2, Token::Assignment},
                              {"-=", 2, Token::Assignment}, {"*=", 2, Token::Assignment},
                              {"/=", 2, Token::Assignment}, {"=", 1, Token::Assignment},
                              {"+", 1, Token::Sign},        {"-", 1, Token::Sign},
                              {"~", 1, Token::Sign},        {"!", 1, Token::Sign},
                              {"*", 1, Token::Operator},    {"/", 1, Token::Operator},
                              {"%", 1, Token::Operator},    {"&", 1, Token::Operator},
                              {"|", 1, Token::Operator},    {"^", 1, Token::Operator},
                              {"<", 1, Token::Operator},    {">", 1, Token::Operator},
                              {"?", 1, Token::Operator},    {":", 1, Token::Operator},
                              {",", 1, Token::Operator},    {";", 1, Token::Semicolon},
                              {"(", 1, Token::Opening},     {")", 1, Token::Closing}};
    for (const auto &known : signs) {
        if (startsWith(begin, end, known.text)) {
            return {known.kind, begin, begin + known.length};
        }
    }
    return {Token::Unknown, begin, begin + 1};
}

} // namespace

ArithmeticToken ArithmeticToken::at(const QChar *begin, const QChar *end)
{
    const bool isPoint = *begin == QLatin1Char('.');
    if (isBlank(*begin)) {
        return {Blank, begin, skip(begin, end, isBlank)};
    }
    if (isLineBreak(*begin)) {
        return {LineBreak, begin, skip(begin, end, isLineBreak)};
    }
    if (isDigit(*begin) || (isPoint && begin + 1 != end && isDigit(begin[1]))) {
        return number(begin, end);
    }
    if (*begin == QLatin1Char('\'') || *begin == QLatin1Char('"')) {
        return stringLiteral(begin, end);
    }
    return isOfWord(*begin) ? word(begin, end) : sign(begin, end);
}

// There is nothing to call but Math's functions, no loop and no object; and where a
// variable is, there is no text, so that none can be doubled. Each token is evaluated
// once at most: what an expression costs is in proportion to its length.
bool isArithmetic(const QString &text)
{
    bool isOperandDue = true;
    bool isInNewLine = false;
    bool hasText = false;
    bool assigns = false;
    const QChar *const end = text.constData() + text.size();
    for (const QChar *at = text.constData(); at != end;) {
        const Token token = Token::at(at, end);
        at = token.end;
        switch (token.kind) {
        case Token::Unknown:
            return false;
        case Token::Blank:
            continue;
        case Token::LineBreak:
            isInNewLine = true;
            continue;
        case Token::Step:
            // In a new line it belongs to what follows.
            isOperandDue = isOperandDue || isInNewLine;
            assigns = true;
            break;
        case Token::Assignment:
        case Token::Operator:
            // A "/" begins a pattern here; with the sign before it, others make what
            // only newer script languages have: ** ?? => &&=
            if (isOperandDue) {
                return false;
            }
            assigns = assigns || token.kind == Token::Assignment;
            isOperandDue = true;
            break;
        case Token::Sign:
        case Token::Semicolon:
        case Token::Opening:
        case Token::Function:
            isOperandDue = true;
            break;
        case Token::Text:
            hasText = true;
            isOperandDue = false;
            break;
        case Token::Number:
        case Token::Name:
        case Token::Closing:
            isOperandDue = false;
            break;
        }
        isInNewLine = false;
    }
    return !(hasText && assigns);
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
