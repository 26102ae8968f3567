#pragma once

#include <QtCore/QDebug>
#include <QtCore/QObject>
#include <QtCore/QStringList>

// Records signals and messages of Qt's log as text, in the order in which they occur:
// "valueChanged(36)", "debug: SpinBox lose focus.". While a log exists it
// intercepts all messages. Only one log can exist at a time.
class EventLog
{
public:
    EventLog();
    ~EventLog();
    EventLog(const EventLog &) = delete;
    EventLog &operator=(const EventLog &) = delete;

    template <typename Sender, typename Base, typename... Args>
    void watch(const Sender *sender, void (Base::*signal)(Args...), const QString &name)
    {
        QObject::connect(sender, signal, &m_receiver, [this, name](Args... args) {
            QStringList texts;
            (texts.append(toText(args)), ...);
            add(name + QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')'));
        });
    }

    void add(const QString &entry) { m_entries.append(entry); }
    // The entries since the last call.
    QStringList take();
    // The context of the last message: file, function and category.
    QString lastContext() const { return m_context; }

private:
    template <typename T> static QString toText(const T &value)
    {
        QString text;
        QDebug(&text).nospace().noquote() << value;
        return text;
    }
    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &message);

    static EventLog *s_current;
    QObject m_receiver;
    QStringList m_entries;
    QString m_context;
    QtMessageHandler m_previous = nullptr;
};
