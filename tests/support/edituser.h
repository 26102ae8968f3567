#pragma once

#include "eventlog.h"
#include "recteditframe.h"
#include "row.h"
#include "slidereditframe.h"

#include <functional>

// A row of a composite editor.
using Row = EditorParts<Vantor::Widgets::SliderEditFrame>;

inline Row rowOf(const QWidget &editor, const char *name)
{
    return Row(editor.findChild<Vantor::Widgets::SliderEditFrame *>(QLatin1String(name)));
}

inline QString limits(int min, int max)
{
    return QStringLiteral("%1..%2").arg(min).arg(max);
}

// A composite editor with its user and the program around it, who work by the
// steps of a table, "w=3: w(3) (0,0,3,0) | w-: w(2) (0,0,2,0)": what is done and,
// behind the colon, the signals that it causes, in order; the one without a name
// is the editor's valueChanged(). A row goes by its letter.
//   "w=12*3"              the user types into the field and presses Enter
//   "x+", "y-"            clicks a step button
//   "fields", "ranges"    logs what the fields hold
// All other words are the program's.
class EditUser
{
public:
    using Words = QStringList;
    using Program = std::function<void(const Words &)>;

    EditUser(QWidget &editor, const QString &letters, const QVector<Row> &rowsInOrder)
        : rows(rowsInOrder), m_editor(editor), m_letters(letters)
    {
    }

    void check(const QString &steps, const Program &program)
    {
        QVERIFY(User::show(m_editor));
        log.take(); // the platform's own messages
        for (const QString &step : steps.split(QStringLiteral(" | "))) {
            const QString action = step.section(QStringLiteral(": "), 0, 0);
            perform(action, program);
            QStringList expected {step.section(QStringLiteral(": "), 1)};
            if (action.contains(QLatin1Char('=')))
                expected = entered(expected);
            const QString actual =
                log.take().join(QLatin1Char(' ')).replace(QLatin1String(", "), QLatin1String(","));
            QVERIFY2(actual == expected.join(QLatin1Char(' ')),
                     qPrintable(step + QLatin1String(" but was ") + actual));
        }
    }

    EventLog log;
    const QVector<Row> rows;

protected:
    int index(const QString &letter) const { return m_letters.indexOf(letter); }

private:
    void perform(const QString &action, const Program &program)
    {
        const int row = index(action.left(1));
        if (action.contains(QLatin1Char('=')))
            rows[row].type(action.mid(2) + QLatin1Char('\n'));
        else if (action.endsWith(QLatin1Char('+')))
            User::click(rows[row].plus);
        else if (action.endsWith(QLatin1Char('-')))
            User::click(rows[row].minus);
        else if (action == QLatin1String("fields"))
            show([](const Row &row) { return row.spinBox->text(); });
        else if (action == QLatin1String("ranges"))
            show([](const Row &row) { return limits(row.frame->minimum(), row.frame->maximum()); });
        else
            program(action.split(QLatin1Char(' ')));
    }

    template <typename Read> void show(Read read)
    {
        QStringList values;
        for (const Row &row : rows)
            values.append(read(row));
        log.add(values.join(QLatin1Char(' ')));
    }

    QWidget &m_editor;
    const QString m_letters;
};

// The rows are x, y, w and h. The words of any rectangle editor:
//   "lock position", "lock size"   the user clicks a lock button
//   "offset", "scale"              the program chooses the kind of the size lock,
//   "size lock on" (or off), "ratio 1.5"  switches it, sets its proportion
//   "range w 0 500", "set 0 0 10 20"  sets a field's range, the whole rectangle
class RectUser : public EditUser
{
public:
    explicit RectUser(Vantor::Widgets::RectEditFrame &frame)
        : EditUser(frame, QStringLiteral("xywh"),
                   {rowOf(frame, "frameX"), rowOf(frame, "frameY"), rowOf(frame, "frameWidth"),
                    rowOf(frame, "frameHeight")}),
          positionLock(frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockPosition"))),
          sizeLock(frame.findChild<QToolButton *>(QStringLiteral("toolButtonLockSize"))),
          m_frame(frame)
    {
        log.watch(&frame, &Frame::valueChanged, QString());
        log.watch(&frame, &Frame::xValueChanged, QStringLiteral("x"));
        log.watch(&frame, &Frame::yValueChanged, QStringLiteral("y"));
        log.watch(&frame, &Frame::widthValueChanged, QStringLiteral("w"));
        log.watch(&frame, &Frame::heightValueChanged, QStringLiteral("h"));
        log.watch(&frame, &Frame::sizeLockChanged, QStringLiteral("sizeLock"));
        log.watch(&frame, &Frame::PositionLockChanged, QStringLiteral("positionLock"));
        frame.setPositionLockEnable(true);
        frame.setSizeLockEnable(true, Frame::SizeScaleLock);
    }

    // The program knows the words of the class under test.
    void check(const QString &steps, const Program &program = {})
    {
        EditUser::check(steps, [&](const Words &words) {
            const auto number = [&words](int i) { return words[i].toInt(); };
            if (words[0] == QLatin1String("lock"))
                User::click(words[1] == QLatin1String("size") ? sizeLock : positionLock);
            else if (words[0] == QLatin1String("offset"))
                m_frame.setSizeLockEnable(true, Frame::OffsetLock);
            else if (words[0] == QLatin1String("scale"))
                m_frame.setSizeLockEnable(true, Frame::SizeScaleLock);
            else if (words[0] == QLatin1String("size"))
                m_frame.setSizeLock(words[2] == QLatin1String("on"));
            else if (words[0] == QLatin1String("ratio"))
                m_frame.setSizeLock(words[1].toDouble());
            else if (words[0] == QLatin1String("range"))
                m_frame.setRange(flag(index(words[1])), number(2), number(3));
            else if (words[0] == QLatin1String("set"))
                m_frame.setValue(number(1), number(2), number(3), number(4));
            else
                program(words);
        });
    }

    static Vantor::Widgets::RectEditFrame::Type flag(int row) { return Frame::Type(2 << row); }

    QToolButton *const positionLock;
    QToolButton *const sizeLock;

private:
    using Frame = Vantor::Widgets::RectEditFrame;
    Frame &m_frame;
};
