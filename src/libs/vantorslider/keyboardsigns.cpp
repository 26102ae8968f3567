#include "keyboardsigns_p.h"

#include "fieldtext_p.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

namespace Vantor::Widgets::Internal {

namespace {

// 0 if the character stays.
char asciiSign(uint character)
{
    switch (character) {
    case 0x00B7: // middle dot
    case 0x00D7: // multiplication sign
    case 0x2217: // asterisk operator
    case 0x2219: // bullet operator
    case 0x22C5: // dot operator
        return '*';
    case 0x00F7: // division sign
    case 0x2044: // fraction slash
    case 0x2215: // division slash
        return '/';
    case 0x2010: // hyphen
    case 0x2011: // non-breaking hyphen
    case 0x2012: // figure dash
    case 0x2013: // en dash
    case 0x2212: // minus sign
        return '-';
    case 0x066B: // Arabic decimal separator
        return '.';
    default:
        break;
    }
    constexpr uint firstFullWidth = 0xFF01;
    constexpr uint lastFullWidth = 0xFF5E;
    if (character >= firstFullWidth && character <= lastFullWidth) {
        return static_cast<char>('!' + (character - firstFullWidth));
    }
    // Not the superscripts and circled numbers, which also have a digit value.
    constexpr uint lastAscii = 0x7F;
    if (character > lastAscii && QChar::category(character) == QChar::Number_DecimalDigit) {
        return static_cast<char>('0' + QChar::digitValue(character));
    }
    return 0;
}

} // namespace

bool isTypedKey(const QEvent *event)
{
    QString text;
    if (event->type() == QEvent::KeyPress) {
        text = static_cast<const QKeyEvent *>(event)->text();
    } else if (event->type() == QEvent::InputMethod) {
        text = static_cast<const QInputMethodEvent *>(event)->commitString();
    }
    return text.length() == 1 && text.at(0).isPrint();
}

QString withAsciiSigns(const QString &text)
{
    QString result;
    result.reserve(text.length());
    for (int i = 0; i < text.length(); ++i) {
        const QChar unit = text.at(i);
        // The digits of some scripts are beyond U+FFFF, in two units.
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < text.length() && text.at(i + 1).isLowSurrogate();
        const char sign =
            asciiSign(isPair ? QChar::surrogateToUcs4(unit, text.at(i + 1)) : unit.unicode());
        if (sign != 0) {
            result += QLatin1Char(sign);
        } else {
            result += unit;
            if (isPair) {
                result += text.at(i + 1);
            }
        }
        i += isPair ? 1 : 0;
    }
    return result;
}

void retypeInAscii(QLineEdit *field)
{
    const QString typed = field->text();
    const QString entry = FieldText(field->parent(), typed).entry;
    if (!field->isUndoAvailable() || withAsciiSigns(entry) == entry) {
        return;
    }
    const QSignalBlocker blocker(field);
    const int end = field->cursorPosition();
    field->undo();
    const QString before = field->text();
    const int rest = static_cast<int>(typed.length()) - end;
    const int replacedEnd = static_cast<int>(before.length()) - rest;
    int start = 0;
    while (start < qMin(end, replacedEnd) && typed.at(start) == before.at(start)) {
        ++start;
    }
    field->setSelection(start, replacedEnd - start);
    field->insert(withAsciiSigns(typed.mid(start, end - start)));
}

void commitInAscii(QInputMethodEvent *event)
{
    event->setCommitString(withAsciiSigns(event->commitString()), event->replacementStart(),
                           event->replacementLength());
}

} // namespace Vantor::Widgets::Internal
