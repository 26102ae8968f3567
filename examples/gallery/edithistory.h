#pragma once

#include "edits.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <QUndoStack> // of QtWidgets or, with Qt 6, of QtGui

#include <functional>

class QWidget;

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

    // Learns from all sliders and buttons below the widget where a drag or a held
    // button begins and ends. To be called when they are all there.
    void watch(QWidget *page);

    const Edits &edits() const { return m_edits; }
    // Begins anew: there is nothing to undo.
    void reset(const Edits &edits);
    // The user changed something; the name stands behind Undo in the menu.
    void record(const QString &name, const Edits &edits);
    // The program changes something: one step, and the editors show it.
    void change(const QString &name, const Edits &edits);
    // Begins a step that takes in what is recorded as long as isHeld() says so. For
    // what is dragged without a slider; those are watched.
    void begin(const std::function<bool()> &isHeld);

    // Its actions go into the menu, and it knows whether all is saved.
    QUndoStack *stack() { return &m_stack; }

Q_SIGNALS:
    void changed(const Edits &edits); // in whatever way
    void restored(const Edits &edits); // by reset(), undo or redo

private:
    class Step;

    void end();
    void set(const Edits &edits);
    void restore(const Edits &edits);

    Edits m_edits;
    QUndoStack m_stack;
    int m_step = 0; // reports under the same number are one step
    bool m_isRepeating = false; // between released and pressed of a held button
    std::function<bool()> m_isHeld = [] { return false; };
    QTimer m_end; // runs from a release until the last report of it has come
};
