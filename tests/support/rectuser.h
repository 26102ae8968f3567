#pragma once

#include "eventlog.h"
#include "recteditframe.h"
#include "row.h"

#include <QtCore/QPair>

#include <functional>

// What is done and the signals that it causes, in order, as "x(1); y(2)".
using Steps = QVector<QPair<QString, QString>>;

// A rectangle editor with its user and the program around it, who work by the
// words of a table:
//   "w=12*3"                 the user types into the width and presses Enter
//   "x+", "y-"               clicks a step button
//   "lock position", "lock size"  clicks a lock button
//   "offset", "scale"        the program chooses the kind of the size lock,
//   "size lock on" (or off), "ratio 1.5"  switches it, sets its proportion
//   "range w 0 500", "set 0 0 10 20"  sets a field's range, the whole rectangle
//   "fields", "ranges"       shows what the fields hold, as an entry of the log
class RectUser
{
public:
    using Words = QStringList;
    // Does what the words after the given ones do not cover.
    using Program = std::function<void(const Words &)>;

    explicit RectUser(Vantor::Widgets::RectEditFrame &frame) : m_frame(frame)
    {
        using Vantor::Widgets::RectEditFrame;
        const char *const names[] {"frameX", "frameY", "frameWidth", "frameHeight"};
        for (const char *name : names)
            rows.append(Row(frame, name));
        log.watch(&frame, &RectEditFrame::valueChanged, QStringLiteral("valueChanged"));
        log.watch(&frame, &RectEditFrame::xValueChanged, QStringLiteral("x"));
        log.watch(&frame, &RectEditFrame::yValueChanged, QStringLiteral("y"));
        log.watch(&frame, &RectEditFrame::widthValueChanged, QStringLiteral("w"));
        log.watch(&frame, &RectEditFrame::heightValueChanged, QStringLiteral("h"));
        log.watch(&frame, &RectEditFrame::sizeLockChanged, QStringLiteral("sizeLockChanged"));
        log.watch(&frame, &RectEditFrame::PositionLockChanged,
                  QStringLiteral("PositionLockChanged"));
        positionLock = frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockPosition"));
        sizeLock = frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockSize"));
        frame.setPositionLockEnable(true);
        frame.setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    }

    void check(const Steps &steps, const Program &program = {})
    {
        QVERIFY(User::show(m_frame));
        log.take(); // the platform's own messages
        for (const auto &step : steps) {
            perform(step.first, program);
            QStringList expected = step.second.split(QStringLiteral("; "));
            expected.removeAll(QString());
            if (step.first.contains(QLatin1Char('=')))
                expected = entered(expected);
            const QStringList actual = log.take();
            QVERIFY2(actual == expected,
                     qPrintable(QStringLiteral("%1: %2\ninstead of %3")
                                    .arg(step.first, actual.join(QLatin1String("; ")),
                                         expected.join(QLatin1String("; ")))));
        }
    }

    EventLog log;
    QVector<Row> rows;
    QToolButton *positionLock = nullptr;
    QToolButton *sizeLock = nullptr;

private:
    const Row &row(QChar name) const { return rows[QStringLiteral("xywh").indexOf(name)]; }

    void perform(const QString &action, const Program &program)
    {
        using Vantor::Widgets::RectEditFrame;
        const Words words = action.split(QLatin1Char(' '));
        const auto number = [&words](int i) { return words[i].toInt(); };
        if (action.contains(QLatin1Char('=')))
            row(action[0]).enter(action.mid(2));
        else if (action.endsWith(QLatin1Char('+')))
            User::click(row(action[0]).plus);
        else if (action.endsWith(QLatin1Char('-')))
            User::click(row(action[0]).minus);
        else if (words[0] == QLatin1String("lock"))
            User::click(words[1] == QLatin1String("size") ? sizeLock : positionLock);
        else if (action == QLatin1String("offset"))
            m_frame.setSizeLockEnable(true, RectEditFrame::OffsetLock);
        else if (action == QLatin1String("scale"))
            m_frame.setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
        else if (words[0] == QLatin1String("size"))
            m_frame.setSizeLock(words[2] == QLatin1String("on"));
        else if (words[0] == QLatin1String("ratio"))
            m_frame.setSizeLock(words[1].toDouble());
        else if (words[0] == QLatin1String("range"))
            m_frame.setRange(flag(words[1][0]), number(2), number(3));
        else if (words[0] == QLatin1String("set"))
            m_frame.setValue(number(1), number(2), number(3), number(4));
        else if (action == QLatin1String("fields"))
            show([](const Row &row) { return row.spinBox->text(); });
        else if (action == QLatin1String("ranges"))
            show([](const Row &row) {
                return QStringLiteral("%1..%2").arg(row.frame->minimum()).arg(row.frame->maximum());
            });
        else
            program(words);
    }

    static Vantor::Widgets::RectEditFrame::Type flag(QChar name)
    {
        return static_cast<Vantor::Widgets::RectEditFrame::Type>(
            QStringLiteral(" xy w   h").indexOf(name) * 2);
    }

    template <typename Read> void show(Read read)
    {
        QStringList values;
        for (const Row &row : rows)
            values.append(read(row));
        log.add(values.join(QLatin1Char(' ')));
    }

    Vantor::Widgets::RectEditFrame &m_frame;
};
