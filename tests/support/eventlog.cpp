#include "eventlog.h"

EventLog *EventLog::s_current = nullptr;

EventLog::EventLog()
{
    if (s_current)
        qFatal("The last event log still lives");
    s_current = this;
    m_previous = qInstallMessageHandler(handleMessage);
}

EventLog::~EventLog()
{
    qInstallMessageHandler(m_previous);
    s_current = nullptr;
}

QStringList EventLog::take()
{
    QStringList entries;
    entries.swap(m_entries);
    return entries;
}

void EventLog::handleMessage(QtMsgType type, const QMessageLogContext &context,
                             const QString &message)
{
    // Messages of the test's own platform do not concern the library.
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type == QtFatalMsg)
        return s_current->m_previous(type, context, message);
    const char *const kind = type == QtDebugMsg ? "debug: " : "warning: ";
    s_current->m_context =
        QStringLiteral("%1 %2 %3").arg(context.file, context.function, context.category);
    s_current->add(QLatin1String(kind) + message);
}
