// A stranger's first program: opens an editor, presses its plus button with a
// real click and prints what the editor signals.
#include <slidereditframe.h>
#include <slidereditframe_p.h>
// Either name may stand in a host, or both.
#include <vantorslider/slidereditframe.h>
#include <vantorslider/slidereditframedouble.h>

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolButton>

#include <cstdio>

static void send(QWidget *widget, QEvent::Type type, Qt::MouseButtons buttons)
{
    const QPoint centre = widget->rect().center();
    QMouseEvent event(type, centre, widget->mapToGlobal(centre), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Vantor::Widgets::SliderEditFrame editor;
    editor.setLabelText(QStringLiteral("Brightness"));
    editor.setRange(0, 255);
    editor.setValue(127);
    QObject::connect(&editor, &Vantor::Widgets::SliderEditFrame::valueChanged,
                     [](int value) { std::printf("valueChanged(%d)\n", value); });
    editor.show();
    auto *plus = editor.findChild<QToolButton *>(QStringLiteral("sliderEditPlus"));
    send(plus, QEvent::MouseButtonPress, Qt::LeftButton);
    send(plus, QEvent::MouseButtonRelease, Qt::NoButton);
    return 0;
}
