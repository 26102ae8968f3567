#include "scriptengine_p.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

#include <QtCore/QRegularExpression>
#include <QtCore/QSemaphore>
#include <QtCore/QThread>
#include <QtQml/QJSEngine>

#include <memory>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

constexpr int budgetMs = 200;

// Interrupts the engine when the budget is spent: it processes no events, so that
// only another thread can. That thread is gone when the guard is.
class BudgetGuard
{
public:
    explicit BudgetGuard(QJSEngine *engine)
        : m_thread(QThread::create([this, engine] {
              if (!m_isDone.tryAcquire(1, budgetMs)) {
                  engine->setInterrupted(true);
              }
          }))
    {
        m_thread->start();
    }
    ~BudgetGuard()
    {
        m_isDone.release();
        m_thread->wait();
    }
    Q_DISABLE_COPY(BudgetGuard)

private:
    QSemaphore m_isDone;
    std::unique_ptr<QThread> m_thread;
};

// An interrupted script still enters its handlers of exceptions, and what these
// call: of a function that calls itself there, the engine never comes back.
bool swallowsInterruption(const QString &text)
{
    static const QRegularExpression handler(QStringLiteral("\\btry\\b"));
    return text.contains(handler);
}

// Nothing for a thrown value, which may be of any kind.
std::optional<QJSValue> valueOf(QJSEngine *engine, const QString &text)
{
    QStringList thrownFrom;
    const QJSValue value = engine->evaluate(text, QString(), 1, &thrownFrom);
    if (!thrownFrom.isEmpty() || value.isError()) {
        return std::nullopt;
    }
    return value;
}

std::optional<QString> evaluateWithinBudget(const QString &text)
{
    QJSEngine engine;
    const BudgetGuard guard(&engine);
    // An object's own script code converts it, but a String() that the text has put
    // in the place of the language's takes no part.
    const QJSValue toText = engine.evaluate(
        QStringLiteral("(function(convert) { return function(value) {"
                       "  try { return convert(value); } catch (thrown) { return undefined; }"
                       "}; })(String)"));
    std::optional<QJSValue> value = valueOf(&engine, text);
    if (value && value->isObject()) {
        value = toText.call({*value});
        if (!value->isString()) {
            return std::nullopt;
        }
    }
    return value ? std::make_optional(value->toString()) : std::nullopt;
}

// Brings arithmetic into the form that gives the number that Qt Script gave:
// 017 is octal there and 08 is not, and a comma may end the text. Nothing where
// the two languages differ for good: a "/" where an operand is due, which begins a
// pattern or a comment, a power, a lone point, and an octal number with a point.
std::optional<QString> commonForm(QString text)
{
    static const QRegularExpression differing(
        QStringLiteral(R"((^|[-,+*/(=])/|\*\*|(^|[^0-9.])\.(?![0-9])|(?<![0-9.])0[0-7]++\.)"));
    static const QRegularExpression octal(QStringLiteral(R"((?<![0-9.])0([0-7]++)(?![0-9.]))"));
    static const QRegularExpression leadingZeros(QStringLiteral(R"((?<![0-9.])0++(?=[0-9]))"));
    if (text.contains(differing)) {
        return std::nullopt;
    }
    if (text.size() > 1 && text.endsWith(QLatin1Char(','))) {
        text.chop(1);
    }
    text.replace(octal, QStringLiteral("0o\\1"));
    text.remove(leadingZeros);
    return text;
}

} // namespace

std::optional<QString> evaluateScript(const QString &text, bool mayLoop)
{
    if (mayLoop) {
        return swallowsInterruption(text) ? std::nullopt : evaluateWithinBudget(text);
    }
    const std::optional<QString> arithmetic = commonForm(text);
    if (!arithmetic) {
        return std::nullopt;
    }
    QJSEngine engine;
    const std::optional<QJSValue> value = valueOf(&engine, *arithmetic);
    return value ? std::make_optional(value->toString()) : std::nullopt;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor

#endif
