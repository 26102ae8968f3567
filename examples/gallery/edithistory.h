#pragma once

#include "edits.h"

#include <QtCore/QObject>

#include <QUndoStack> // of QtWidgets or, with Qt 6, of QtGui

// Undo and redo for a window of editors. One step is one continuous action of the user:
// a drag with all its moves, a held button with all its repetitions, one entry.
//
// The editors report to record(); their own reports are not sent back to them. After
// undo and redo they show restored() through their setters, which emit nothing.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(QObject *parent = nullptr);

    // All changes recorded between the two signals of the editor are one step.
    template <typename Editor> void watch(Editor *editor)
    {
        connect(editor, &Editor::editStarted, this, &EditHistory::begin);
        connect(editor, &Editor::editFinished, this, &EditHistory::end);
    }

    const Edits &edits() const { return m_edits; }
    // Clears the history.
    void reset(const Edits &edits);
    // The user changed something; the menu shows the name after Undo.
    void record(const QString &name, const Edits &edits);
    // The program changes something: one step, and the editors show it.
    void change(const QString &name, const Edits &edits);

    // Its actions are in the menu, and it knows whether everything is saved.
    QUndoStack *stack() { return &m_stack; }

Q_SIGNALS:
    void changed(const Edits &edits); // by any cause
    void restored(const Edits &edits); // by reset(), undo or redo

private:
    class Step;

    void begin();
    void end();
    void set(const Edits &edits);
    void restore(const Edits &edits);

    Edits m_edits;
    QUndoStack m_stack;
    int m_step = 0; // reports with the same number are one step
    int m_open = 0; // started and not finished: an entry ends after the next edit has started
};
