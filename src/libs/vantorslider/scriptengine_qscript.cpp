#include "scriptengine_p.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QtCore/QElapsedTimer>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtScript/QScriptEngine>
#include <QtScript/QScriptEngineAgent>

#include <utility>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

constexpr int budgetMs = 200;
// How often the engine looks at the timers of its thread.
constexpr int eventsIntervalMs = 10;

// Abandons the evaluation when its budget is spent. The agent hears of statements
// and calls, so it stops a recursion; the timer stops what the agent does not hear
// of, an empty loop or code that the script made itself.
class Budget : public QScriptEngineAgent
{
public:
    explicit Budget(QScriptEngine *engine) : QScriptEngineAgent(engine)
    {
        engine->setAgent(this);
        engine->setProcessEventsInterval(eventsIntervalMs);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { abandon(); });
        m_timer.setSingleShot(true);
        m_timer.start(budgetMs);
        m_clock.start();
    }

    bool isSpent() const { return m_isSpent; }

    void positionChange(qint64, int, int) override { check(); }
    void functionEntry(qint64) override { check(); }

private:
    void check()
    {
        if (m_isSpent || m_clock.hasExpired(budgetMs)) {
            abandon();
        }
    }

    // Again and again: a script may catch the end of an abandoned call.
    void abandon()
    {
        m_isSpent = true;
        engine()->abortEvaluation();
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_isSpent = false;
};

// An object's conversion is script code, too, and only what runs inside an
// evaluation is abandoned. It finds both its names in a scope of its own, which
// nothing that the script has defined or replaced can reach.
QScriptValue converted(QScriptEngine *engine, const QScriptValue &string,
                       const QScriptValue &object)
{
    QScriptValue scope = engine->pushContext()->activationObject();
    scope.setProperty(QStringLiteral("string"), string);
    scope.setProperty(QStringLiteral("object"), object);
    const QScriptValue text = engine->evaluate(QStringLiteral("string(object)"));
    engine->popContext();
    return text;
}

std::optional<QString> evaluateWithinBudget(const QString &text)
{
    QScriptEngine engine;
    const QScriptValue string = engine.globalObject().property(QStringLiteral("String"));
    Budget budget(&engine);
    QScriptValue result = engine.evaluate(text, QString(), 1);
    if (!budget.isSpent() && !engine.hasUncaughtException() && result.isObject()) {
        result = converted(&engine, string, result);
    }
    // What was thrown is not looked at: its text would be made by the script.
    if (budget.isSpent() || engine.hasUncaughtException()) {
        return std::nullopt;
    }
    return result.toString();
}

// An engine that looks at its timer delivers all events of its thread. In the
// host's these would be keys and clicks that were meant for later, and the
// deletion of what Qt's own functions further up go on with. So a script that may
// loop has a thread for as long as it runs, and the host's waits for it.
class ScriptThread : public QThread
{
public:
    explicit ScriptThread(QString text) : m_text(std::move(text)) { }

    std::optional<QString> result()
    {
        start();
        wait();
        return m_result;
    }

protected:
    void run() override { m_result = evaluateWithinBudget(m_text); }

private:
    const QString m_text;
    std::optional<QString> m_result;
};

} // namespace

std::optional<QString> evaluateScript(const QString &text, bool mayLoop)
{
    if (mayLoop) {
        return ScriptThread(text).result();
    }
    QScriptEngine engine;
    const QScriptValue result = engine.evaluate(text, QString(), 1);
    if (engine.hasUncaughtException()) {
        return std::nullopt;
    }
    return result.toString();
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor

#endif
