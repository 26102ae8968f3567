#pragma once

#include <QtCore/QEvent>
#include <QtCore/QObject>

#include <functional>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// The user resets a row to its default value by a double click or double tap on its label, or by
// the action "Reset" of a screen reader. A child of the label, once the row has a default value.
class RowReset : public QObject
{
    Q_OBJECT

public:
    RowReset(QLabel *label, std::function<void()> reset);

    static RowReset *of(const QObject *row) { return row->findChild<RowReset *>(); }

    void perform() const;
    // Removes what the constructor added; a cursor that the host had set is lost. The object is
    // deleted later: perform() may be on the stack.
    void remove();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showHint();
    void updateLabel();
    bool isHintInTheWay() const;

    QLabel *const m_label;
    const std::function<void()> m_reset;
    QString m_hint;
};

// The program has reset the row that receives this event.
QEvent::Type rowResetEvent();

} // namespace Vantor::Widgets::Internal
