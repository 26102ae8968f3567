// A host's first program: opens an editor, clicks its plus button with real events
// and prints the editor's signals.
#include <slidereditframe.h>
#include <slidereditframe_p.h>
// A host may include either path, or both.
#include <vantorslider/slidereditframe.h>
#include <vantorslider/slidereditframedouble.h>

#include <QtWidgets/QtWidgets>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Vantor::Widgets::SliderEditFrame editor;
    editor.setRange(0, 255);
    editor.setValue(127);
    QObject::connect(&editor, &Vantor::Widgets::SliderEditFrame::valueChanged,
                     [](int value) { std::printf("valueChanged(%d)\n", value); });
    editor.show();
    auto *plus = editor.findChild<QToolButton *>(QStringLiteral("sliderEditPlus"));
    const QPoint centre = plus->rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, centre, plus->mapToGlobal(centre), Qt::LeftButton, held,
                          Qt::NoModifier);
        QApplication::sendEvent(plus, &event);
    }
    return 0;
}
