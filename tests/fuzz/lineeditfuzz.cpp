// Feeds a calculator field with whatever the input says and checks what it
// promises of its text. With -fsanitize=fuzzer the inputs are the fuzzer's;
// without, main() in corpus.cpp hands over files.
//
// An input is a text in UTF-8: its characters are typed, except for
//   \x01  what follows, up to the next \x02, is pasted at once
//   \x03  the cursor goes to the position that the next character's code gives
//   \x04  Backspace        \x05  editing is finished, as Enter does
//   \x06  two characters follow: decimals of a result, decimals of an entry
//   \x07  the whole text is selected

#include "qlineeditcal.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <cstdlib>
#include <ctime>

using Vantor::Widgets::LineEditCal;

namespace {

constexpr int min = -1000;
constexpr int max = 5000;
constexpr int initial = 7;

void require(bool isTrue, const char *promise, const QString &text)
{
    if (!isTrue) {
        std::fprintf(stderr, "Broken promise: %s\nText: %s\n", promise, qPrintable(text));
        std::abort();
    }
}

bool isTyped(QChar c)
{
    return QStringLiteral("0123456789-,+*/.()=").contains(c);
}

class Field
{
public:
    Field()
    {
        m_field.setLineEditMinOrMax(min, max);
        m_field.setInitialResult(initial);
        m_result = QString::number(initial);
    }

    void insert(const QString &text)
    {
        edit([&] { m_field.insert(text); });
        if (m_isEvaluated || text.isEmpty())
            return;
        const QString now = m_field.text();
        const QChar last = text.back();
        static const QRegularExpression leadingZero("(^|[-+*/(),=])0[^-+*/(),=.]");
        if (!isTyped(last))
            require(!now.contains(last), "a refused character is nowhere in the text", now);
        else
            require(!leadingZero.match(now).hasMatch(), "no number begins with a zero", now);
    }

    void finish()
    {
        edit([this] { m_field.setSlotEditingFinished(); });
        requireResult();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        edit([=] {
            QKeyEvent event(QEvent::KeyPress, key, modifiers);
            QApplication::sendEvent(&m_field, &event);
        });
    }

    void moveTo(int position) { m_field.setCursorPosition(position); }
    void selectAll() { m_field.selectAll(); }
    void setDecimals(int ofResult, int ofEntry)
    {
        m_field.setResultsRadixPointSeveral(ofResult);
        m_field.setInputRadixPointSeveral(ofEntry);
        m_decimals = ofResult;
    }

private:
    template <typename Edit> void edit(Edit edit)
    {
        m_isEvaluated = false;
        const auto connection = QObject::connect(&m_field, &LineEditCal::signalsResult, &m_field,
                                                 [this] { m_isEvaluated = true; });
        const std::clock_t start = std::clock();
        edit();
        const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
        QObject::disconnect(connection);
        const QString text = m_field.text();
        // The budget of an evaluation, and what the instruments may add.
        const int slowness = qMax(1, qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS"));
        require(ms < 400.0 * slowness, "an edit takes no longer than its budget", text);
        require(m_field.cursorPosition() <= text.length(), "the cursor is in the text", text);
        if (m_isEvaluated)
            requireResult();
    }

    void requireResult()
    {
        const QString text = m_field.text();
        const QString decimals =
            m_decimals > 0 ? QStringLiteral("\\.\\d{%1}").arg(m_decimals) : QString();
        const QRegularExpression number(QStringLiteral("^-?\\d+%1$").arg(decimals));
        const bool isNumber = number.match(text).hasMatch();
        require(isNumber || text == m_result || text == QLatin1String("nan"),
                "a result is a number with its decimals", text);
        const bool isInRange = text.toDouble() <= max && text.toDouble() >= min;
        require(isInRange || text == QLatin1String("nan"), "a result is in the range", text);
        m_result = text;
    }

    LineEditCal m_field;
    QString m_result;
    int m_decimals = 0;
    bool m_isEvaluated = false;
};

void play(const QString &input)
{
    Field field;
    const int length = static_cast<int>(input.length());
    const auto code = [&input](int i) { return i < input.length() ? input[i].unicode() : 0; };
    for (int i = 0; i < length; ++i) {
        switch (code(i)) {
        case 1: {
            const int end = static_cast<int>(input.indexOf(QChar(2), i));
            const int begin = i + 1;
            i = end < 0 ? length : end;
            field.insert(input.mid(begin, i - begin));
            break;
        }
        case 3:
            field.moveTo(code(++i) % 64);
            break;
        case 4:
            field.press(Qt::Key_Backspace);
            break;
        case 5:
            field.finish();
            break;
        case 6:
            field.setDecimals(code(i + 1) % 8, code(i + 2) % 8);
            i += 2;
            break;
        case 7:
            field.selectAll();
            break;
        default:
            field.insert(input.mid(i, 1));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argumentCount = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const bool isSet = qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never deleted: Qt 6 has it outlive what its own end needs.
    static const auto *application = new QApplication(argumentCount, arguments);
    Q_UNUSED(isSet)
    Q_UNUSED(application)
    play(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
