#include "edithistory.h"

class EditHistory::Step : public QUndoCommand
{
public:
    Step(EditHistory *history, const QString &name, const Edits &edits, bool isShown)
        : QUndoCommand(name), m_history(history), m_number(history->m_step),
          m_before(history->m_edits), m_after(edits), m_isShown(isShown)
    {
    }

    void undo() override { m_history->restore(m_before); }

    void redo() override
    {
        // The stack calls this for a new step, too. The editor already shows the value that
        // it reported, and setting it during a drag would disturb the drag.
        if (m_isShown) {
            m_isShown = false;
            m_history->set(m_after);
        } else {
            m_history->restore(m_after);
        }
    }

    int id() const override { return m_number; }

    // Merges the next report of the same drag.
    bool mergeWith(const QUndoCommand *next) override
    {
        m_after = static_cast<const Step *>(next)->m_after;
        setObsolete(m_after == m_before); // nothing to undo after a drag back and forth
        return true;
    }

private:
    EditHistory *const m_history;
    const int m_number;
    const Edits m_before;
    Edits m_after;
    bool m_isShown;
};

EditHistory::EditHistory(QObject *parent) : QObject(parent) { }

void EditHistory::reset(const Edits &edits)
{
    m_stack.clear();
    restore(edits);
}

void EditHistory::record(const QString &name, const Edits &edits)
{
    // A value at its limit causes reports without a change.
    if (edits == m_edits) {
        return;
    }
    if (m_open == 0) {
        ++m_step; // of no editor
    }
    m_stack.push(new Step(this, name, edits, true));
}

void EditHistory::change(const QString &name, const Edits &edits)
{
    if (edits == m_edits) {
        return;
    }
    ++m_step;
    m_stack.push(new Step(this, name, edits, false));
}

void EditHistory::begin()
{
    ++m_step;
    ++m_open;
}

void EditHistory::end()
{
    --m_open;
}

void EditHistory::set(const Edits &edits)
{
    m_edits = edits;
    Q_EMIT changed(m_edits);
}

void EditHistory::restore(const Edits &edits)
{
    set(edits);
    Q_EMIT restored(m_edits);
}
