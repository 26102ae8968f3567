#include "edithistory.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QSlider>

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
        // The stack calls this for a new step, too: what an editor reported it shows
        // by then, and setting it in the middle of a drag would disturb that.
        if (m_isShown) {
            m_isShown = false;
            m_history->set(m_after);
        } else {
            m_history->restore(m_after);
        }
    }

    int id() const override { return m_number; }

    // Takes the next report of the same drag in.
    bool mergeWith(const QUndoCommand *next) override
    {
        m_after = static_cast<const Step *>(next)->m_after;
        setObsolete(m_after == m_before); // a drag forth and back is nothing to undo
        return true;
    }

private:
    EditHistory *const m_history;
    const int m_number;
    const Edits m_before;
    Edits m_after;
    bool m_isShown;
};

EditHistory::EditHistory(QObject *parent) : QObject(parent)
{
    m_end.setSingleShot(true);
}

void EditHistory::watch(QWidget *page)
{
    // The sliders and buttons inside the editors: their signals are Qt's own.
    const auto sliders = page->findChildren<QSlider *>();
    for (QPointer<QSlider> slider : sliders) {
        connect(slider, &QSlider::sliderPressed, this,
                [this, slider] { begin([slider] { return slider && slider->isSliderDown(); }); });
        connect(slider, &QSlider::sliderReleased, this, &EditHistory::end);
    }

    const auto buttons = page->findChildren<QAbstractButton *>();
    for (QPointer<QAbstractButton> button : buttons) {
        // A button that repeats says released, clicked and pressed at each
        // repetition, but stays down.
        connect(button, &QAbstractButton::released, this, [this, button] {
            m_isRepeating = button->isDown();
            if (!m_isRepeating) {
                end();
            }
        });
        connect(button, &QAbstractButton::pressed, this, [this, button] {
            if (!m_isRepeating) {
                begin([button] { return button && button->isDown(); });
            }
            m_isRepeating = false;
        });
    }
}

void EditHistory::reset(const Edits &edits)
{
    m_stack.clear();
    restore(edits);
}

void EditHistory::record(const QString &name, const Edits &edits)
{
    // Reports that leave the value as it is come from a value held at its limit.
    if (edits == m_edits) {
        return;
    }
    if (!m_isHeld() && !m_end.isActive()) {
        ++m_step; // an entry, a key, a turn of the wheel
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

void EditHistory::begin(const std::function<bool()> &isHeld)
{
    ++m_step;
    m_isHeld = isHeld;
    m_end.stop();
}

// The last report follows the signal that tells of the release, before the event
// loop comes round.
void EditHistory::end()
{
    m_end.start(0);
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
