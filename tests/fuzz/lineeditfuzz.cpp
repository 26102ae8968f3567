// Performs the input on a calculator field and checks the invariants of its
// text. With -fsanitize=fuzzer the fuzzer creates the inputs; without it, main()
// in corpus.cpp reads files.
//
// An input is a text in UTF-8: its characters are typed, except for
//   \x01  what follows, up to the next \x02, is pasted at once
//   \x03  the cursor moves to the position given by the code of the next character
//   \x04  Backspace        \x05  editing is finished, as by Enter
//   \x06  two characters follow: decimals of a result, decimals of an entry
//   \x07  the whole text is selected

#include "qlineeditcal.h"

#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>

#include <ctime>

using Vantor::Widgets::LineEditCal;

namespace {

constexpr int min = -1000;
constexpr int max = 5000;

struct Player
{
    Player()
    {
        m_field.setLineEditMinOrMax(min, max);
        m_field.setInitialResult(m_result.toFloat());
        QObject::connect(&m_field, &LineEditCal::signalsResult, [this] { m_isEvaluated = true; });
    }

    void play(const QString &input)
    {
        const auto code = [&](int i) { return i < input.length() ? input[i].unicode() : 0; };
        for (int i = 0; i < input.length(); ++i) {
            if (code(i) == 1) {
                const QString pasted = input.mid(i + 1).section(QChar(2), 0, 0);
                insert(pasted);
                i += static_cast<int>(pasted.length()) + 1;
            } else if (code(i) == 3) {
                m_field.setCursorPosition(code(++i) % 64);
            } else if (code(i) == 4) {
                edit([this] { m_field.backspace(); });
            } else if (code(i) == 5) {
                edit([this] { m_field.setSlotEditingFinished(); });
                requireResult();
            } else if (code(i) == 6) {
                m_decimals = code(++i) % 8;
                m_field.setResultsRadixPointSeveral(m_decimals);
                m_field.setInputRadixPointSeveral(code(++i) % 8);
            } else if (code(i) == 7) {
                m_field.selectAll();
            } else {
                insert(input.mid(i, 1));
            }
        }
    }

    void insert(const QString &text)
    {
        edit([&] { m_field.insert(text); });
        if (m_isEvaluated || text.isEmpty())
            return;
        const QString now = m_field.text();
        static const QRegularExpression leadingZero("(^|[-+*/(),=])0[^-+*/(),=.]");
        if (QStringLiteral("0123456789-,+*/.()=").contains(text.back()))
            require(!now.contains(leadingZero), "no number begins with a zero");
        else
            require(!now.contains(text.back()), "a refused character is nowhere in the text");
    }

    template <typename Edit> void edit(Edit edit)
    {
        m_isEvaluated = false;
        const std::clock_t start = std::clock();
        edit();
        const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
        const int slowness = qMax(1, qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS"));
        require(ms < 400.0 * slowness, "an edit takes no time");
        require(m_field.cursorPosition() <= m_field.text().length(), "the cursor is in the text");
        if (m_isEvaluated)
            requireResult();
    }

    void requireResult()
    {
        const QString text = m_field.text();
        const QString decimals = QStringLiteral("\\.\\d{%1}").arg(m_decimals);
        const QRegularExpression number("^-?\\d+" + (m_decimals > 0 ? decimals : QString()) + '$');
        if (text != QLatin1String("nan")) {
            require(text == m_result || text.contains(number),
                    "a result is a number with its decimals");
            require(min <= text.toDouble() && text.toDouble() <= max, "a result is in the range");
        }
        m_result = text;
    }

    void require(bool isTrue, const char *promise) const
    {
        if (!isTrue)
            qFatal("Broken promise: %s\nText: %s", promise, qPrintable(m_field.text()));
    }

    LineEditCal m_field;
    QString m_result = QStringLiteral("7");
    int m_decimals = 0;
    bool m_isEvaluated = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static char arguments[][10] = {"fuzz", "-platform", "offscreen"};
    static char *argv[] = {arguments[0], arguments[1], arguments[2], nullptr};
    static int argc = 3;
    // Never deleted: with Qt 6 it would outlive objects that its destructor needs.
    [[maybe_unused]] static const auto *application = new QApplication(argc, argv);
    Player().play(QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
