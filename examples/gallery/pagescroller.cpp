#include "pagescroller.h"

#include <QtCore/QEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QScroller>

PageScroller::PageScroller(QWidget *page)
{
    setWidget(page);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

void PageScroller::setWidthLimit(int limit)
{
    if (limit != m_widthLimit) {
        m_widthLimit = limit;
        updateGeometry();
    }
}

QSize PageScroller::minimumSizeHint() const
{
    const int needed = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width()
        + 2 * frameWidth();
    return {qMin(needed, m_widthLimit), 200};
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
