#pragma once

#include "slidereditframe.h"
#include "userevents.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

// One row of a composite editor and what a user finds in it.
struct Row
{
    Row() = default;
    Row(const QWidget &editor, const char *name)
        : frame(editor.findChild<Vantor::Widgets::SliderEditFrame *>(QLatin1String(name))),
          label(frame->findChild<QLabel *>(QStringLiteral("labelName"))),
          slider(frame->findChild<QSlider *>(QStringLiteral("slider"))),
          spinBox(frame->findChild<QSpinBox *>(QStringLiteral("spinBox"))),
          minus(frame->findChild<QToolButton *>(QStringLiteral("sliderEditSubtract"))),
          plus(frame->findChild<QToolButton *>(QStringLiteral("sliderEditPlus")))
    {
    }

    // Types over what the field shows, without finishing the entry.
    void type(const QString &text) const
    {
        User::click(spinBox);
        QCoreApplication::processEvents(); // the field selects its text a moment later
        User::type(text);
    }
    void enter(const QString &text) const
    {
        type(text);
        User::press(Qt::Key_Return);
    }

    Vantor::Widgets::SliderEditFrame *frame = nullptr;
    QLabel *label = nullptr;
    QSlider *slider = nullptr;
    QSpinBox *spinBox = nullptr;
    QToolButton *minus = nullptr;
    QToolButton *plus = nullptr;
};

inline QString limits(int min, int max)
{
    return QStringLiteral("%1..%2").arg(min).arg(max);
}

// The messages of an entry that ends with Enter, around the signals that it
// causes: the key, the loss of the focus, the spin box's own end of editing.
inline QStringList entered(const QStringList &causedSignals)
{
    const QString finished = QStringLiteral("debug: SpinBox editing finished");
    return QStringList {finished, finished} + causedSignals
        + QStringList {finished, QStringLiteral("debug: SpinBox lose focus.")};
}
