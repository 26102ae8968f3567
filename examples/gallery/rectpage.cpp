#include "rectpage.h"

#include <slidereditframe.h>

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QToolButton>

namespace {

// A lock goes by the rectangle at which it was switched on.
void lockAnew(const QWidget &editor, const QString &lockName)
{
    auto *lock = editor.findChild<QToolButton *>(lockName);
    if (lock->isChecked()) {
        lock->setChecked(false);
        lock->setChecked(true);
    }
}

} // namespace

void RectPage::setUp(Rect *editor, const QString &name, const QStringList &labels)
{
    const Rect::Type fields[] = {Rect::X, Rect::Y, Rect::Width, Rect::Height};
    for (int i = 0; i < labels.size(); ++i) {
        editor->setLabelText(fields[i], labels.at(i));
        editor->setPageStep(fields[i], 40);
    }
    editor->setVerticalSpacing(controlSpacing);
    editor->setAutoRepeat(true);
    editor->setLastVerticalSpacerExpanding(false);

    const auto receiver = [this, name](const char *signal) {
        return m_log->receiver(name, QLatin1String(signal));
    };
    connect(editor, &Rect::xValueChanged, m_log, receiver("xValueChanged"));
    connect(editor, &Rect::yValueChanged, m_log, receiver("yValueChanged"));
    connect(editor, &Rect::widthValueChanged, m_log, receiver("widthValueChanged"));
    connect(editor, &Rect::heightValueChanged, m_log, receiver("heightValueChanged"));
    connect(editor, &Rect::valueChanged, m_log, receiver("valueChanged"));
    connect(editor, &Rect::sizeLockChanged, m_log, receiver("sizeLockChanged"));
    connect(editor, &Rect::PositionLockChanged, m_log, receiver("PositionLockChanged"));
}

void RectPage::showRect(Rect *editor, const std::function<void()> &set)
{
    QRect before;
    QRect after;
    editor->value(before);
    set();
    editor->value(after);
    for (const auto type : {Rect::X, Rect::Y, Rect::Width, Rect::Height}) {
        editor->setValueChangeDirection(type, Vantor::Widgets::SliderEditFrame::AllowedToAny, 0);
    }
    const QSignalBlocker blocker(editor); // toggling a lock is reported
    if (before.topLeft() != after.topLeft()) {
        lockAnew(*editor, QStringLiteral("toolButtonLockPosition"));
    }
    if (before.size() != after.size()) {
        lockAnew(*editor, QStringLiteral("toolButtonLockSize"));
    }
}
