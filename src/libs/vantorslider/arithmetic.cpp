#include "arithmetic_p.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

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

// Whether the character continues a name or a number.
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

// Decimal with point and exponent, octal with a leading zero, or hexadecimal.
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

QStringList words(const char *list)
{
    return QString::fromLatin1(list).split(QLatin1Char(' '));
}

Token word(const QChar *begin, const QChar *end)
{
    static const QStringList functions =
        words("Math.abs Math.acos Math.asin Math.atan Math.atan2 Math.ceil Math.cos Math.exp "
              "Math.floor Math.log Math.max Math.min Math.pow Math.random Math.round Math.sin "
              "Math.sqrt Math.tan");
    static const QStringList constants =
        words("Math.E Math.LN2 Math.LN10 Math.LOG2E Math.LOG10E Math.PI Math.SQRT1_2 Math.SQRT2 "
              "true false null undefined NaN Infinity");
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

// The longest operator that matches; those of the first row start a comment.
Token sign(const QChar *begin, const QChar *end)
{
    struct Group
    {
        Token::Kind kind;
        QStringList signs;
    };
    static const std::vector<Group> groups {
        {Token::Unknown, words("<!-- // /*")},
        {Token::Operator, words("=== !== >>> == != <= >= << >> && ||")},
        {Token::Step, words("++ --")},
        {Token::Assignment, words("+= -= *= /= =")},
        {Token::Sign, words("+ - ~ !")},
        {Token::Operator, words("* / % & | ^ < > ? : ,")},
        {Token::Semicolon, words(";")},
        {Token::Opening, words("(")},
        {Token::Closing, words(")")}};
    for (const Group &group : groups) {
        for (const QString &known : group.signs) {
            const auto length = known.size();
            if (known.at(0) == *begin && end - begin >= length
                && std::equal(known.cbegin(), known.cend(), begin)) {
                return {group.kind, begin, begin + length};
            }
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

// Such a text can call only functions of Math and has no loops or objects. Strings and variables
// exclude each other, so no string can be doubled repeatedly. Each token is evaluated at most
// once: the cost of an expression is proportional to its length.
bool isArithmetic(const QString &text)
{
    bool isOperandDue = true;
    bool isAfterOperator = false;
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
        case Token::Closing:
            // Newer ECMAScript allows a trailing comma in the arguments of a function.
            if (isAfterOperator) {
                return false;
            }
            isOperandDue = false;
            break;
        case Token::Number:
        case Token::Name:
            isOperandDue = false;
            break;
        }
        isAfterOperator = token.kind == Token::Operator;
        isInNewLine = false;
    }
    return !(hasText && assigns);
}

QString withDecimalPoints(const QString &text)
{
    QString result = text;
    std::vector<bool> isCall; // for each open parenthesis
    bool isFunction = false;
    const QChar *const end = text.constData() + text.size();
    for (const QChar *at = text.constData(); at != end;) {
        const Token token = Token::at(at, end);
        if (token.kind == Token::Opening) {
            isCall.push_back(isFunction);
        } else if (token.kind == Token::Closing && !isCall.empty()) {
            isCall.pop_back();
        } else if (*at == QLatin1Char(',') && (isCall.empty() || !isCall.back())) {
            result[static_cast<int>(at - text.constData())] = QLatin1Char('.');
        }
        isFunction = token.kind == Token::Function;
        at = token.end;
    }
    return result;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
