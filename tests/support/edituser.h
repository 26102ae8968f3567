#pragma once

#include "eventlog.h"
#include "row.h"

#include <functional>

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
            rows[row].enter(action.mid(2));
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
