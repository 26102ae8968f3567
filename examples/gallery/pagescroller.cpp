#include "pagescroller.h"

#include <QtCore/QEvent>
#include <QtWidgets/QScrollBar>

PageScroller::PageScroller(QWidget *page)
{
    setWidget(page);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

QSize PageScroller::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width()
                + 2 * frameWidth(),
            200};
}

QSize PageScroller::sizeHint() const
{
    return {qMax(minimumSizeHint().width(), 560), 600};
}

bool PageScroller::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}
