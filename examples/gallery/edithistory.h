#pragma once

#include "edits.h"

#include <QtCore/QObject>

#include <QUndoStack> // of QtWidgets or, with Qt 6, of QtGui

// Undo and redo for a window of editors. One step is what the user does in one go:
// a drag with all its moves, a held button with all its repetitions, one entry.
//
// The editors report to record(); they never hear of their own report again. After
// undo and redo they show restored() through their setters, which report nothing.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(QObject *parent = nullptr);

    // What is recorded between the two signals of the editor is one step.
    template <typename Editor> void watch(Editor *editor)
    {
        connect(editor, &Editor::editStarted, this, &EditHistory::begin);
        connect(editor, &Editor::editFinished, this, &EditHistory::end);
    }

    const Edits &edits() const { return m_edits; }
    // Begins anew: there is nothing to undo.
    void reset(const Edits &edits);
    // The user changed something; the name stands behind Undo in the menu.
    void record(const QString &name, const Edits &edits);
    // The program changes something: one step, and the editors show it.
    void change(const QString &name, const Edits &edits);

    // Its actions go into the menu, and it knows whether all is saved.
    QUndoStack *stack() { return &m_stack; }

Q_SIGNALS:
    void changed(const Edits &edits); // in whatever way
    void restored(const Edits &edits); // by reset(), undo or redo

private:
    class Step;

    void begin();
    void end();
    void set(const Edits &edits);
    void restore(const Edits &edits);

    Edits m_edits;
    QUndoStack m_stack;
    int m_step = 0; // reports under the same number are one step
    int m_open = 0; // begun and not ended: an entry ends when the next edit has begun
};
