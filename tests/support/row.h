#pragma once

#include "userevents.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

// A slider editor and what a user finds in it.
template <typename Frame> struct EditorParts
{
    EditorParts() = default;
    explicit EditorParts(Frame *editor)
        : frame(editor), label(editor->template findChild<QLabel *>("labelName")),
          slider(editor->template findChild<QSlider *>("slider")),
          spinBox(editor->template findChild<QAbstractSpinBox *>()),
          field(spinBox->template findChild<QLineEdit *>()),
          minus(editor->template findChild<QToolButton *>("sliderEditSubtract")),
          plus(editor->template findChild<QToolButton *>("sliderEditPlus"))
    {
    }

    // Types over what the field shows.
    void type(const QString &text) const
    {
        User::click(spinBox);
        QCoreApplication::processEvents(); // the field selects its text a moment later
        User::type(text);
    }

    Frame *frame = nullptr;
    QLabel *label = nullptr;
    QSlider *slider = nullptr;
    QAbstractSpinBox *spinBox = nullptr;
    QLineEdit *field = nullptr;
    QToolButton *minus = nullptr;
    QToolButton *plus = nullptr;
};

// The messages of an entry that ends with Enter, around the signals that it
// causes: the key, the loss of the focus, the spin box's own end of editing.
inline QStringList entered(const QStringList &causedSignals)
{
    const QString finished = QStringLiteral("debug: SpinBox editing finished");
    return QStringList {finished, finished} + causedSignals
        + QStringList {finished, QStringLiteral("debug: SpinBox lose focus.")};
}
