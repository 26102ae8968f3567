#pragma once

#include <QtCore/QTime>
#include <QtWidgets/QPlainTextEdit>

#include <type_traits>

// Shows each signal of the editors with its values, and Qt's log messages between
// them, in the order in which they occur.
class LogPane : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogPane(QWidget *parent = nullptr);
    ~LogPane() override;

    // Writes all records to standard output, too, and no messages to standard error: two
    // streams have no common order.
    void setEcho(bool echo) { m_echo = echo; }
    bool isEcho() const { return m_echo; }
    // The time that the log shows from now on, so that pictures are reproducible.
    void stopClock(const QTime &time) { m_stoppedAt = time; }
    void record(const QString &who, const QString &what);

    // A receiver for any signal whose arguments are numbers or flags.
    auto receiver(const QString &who, const QString &signal)
    {
        return [this, who, signal](auto... values) {
            const QStringList texts {text(values)...};
            record(who,
                   signal + QLatin1Char('(') + texts.join(QStringLiteral(", ")) + QLatin1Char(')'));
        };
    }

Q_SIGNALS:
    void warned(const QString &message);

private:
    template <typename T> static QString text(T value)
    {
        if constexpr (std::is_same_v<T, bool>) {
            return value ? QStringLiteral("true") : QStringLiteral("false");
        } else {
            return QString::number(value);
        }
    }

    bool m_echo = false;
    QTime m_stoppedAt; // invalid: the clock runs
};
